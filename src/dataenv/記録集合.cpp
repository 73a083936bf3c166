#include "dataenv/記録集合.h"

#include "text/実行時エラー.h"
#include "text/数値変換.h"

#include <QSqlRecord>
#include <cmath>
#include <limits>

void 記録集合::MoveNext() {
    当行あり = 問合せ && 問合せ->next();
}

void 記録集合::閉じる() {
    当行あり = false;
    列一覧 = QSqlRecord();
    問合せ.reset();
}

int 記録集合::列番号(const QString& 列名) const {
    if (!問合せ) return -1;
    if (列一覧.isEmpty()) 列一覧 = 問合せ->record();
    const int i = 列一覧.indexOf(列名);  // case-insensitive, as the engines fold ASCII
    if (i >= 0) return i;
    // SQLite renames a column of a nested outer join when a table inside the join has one of
    // the same name ("部門コード:1"); it is still the column asked for.
    for (int j = 0; j < 列一覧.count(); ++j) {
        const QString 名 = 列一覧.fieldName(j);
        const qsizetype 区切り = 名.lastIndexOf(u':');
        if (区切り > 0 && 名.size() > 区切り + 1 && 名.mid(区切り + 1).toUInt() > 0 &&
            QStringView(名).left(区切り).compare(列名, Qt::CaseInsensitive) == 0) {
            return j;
        }
    }
    return -1;
}

QVariant 記録集合::値(const QString& 列名) const {
    const int i = 当行あり ? 列番号(列名) : -1;
    return i < 0 ? QVariant() : 問合せ->value(i);
}

int 記録集合::列数() const {
    if (!問合せ) return 0;
    if (列一覧.isEmpty()) 列一覧 = 問合せ->record();
    return 列一覧.count();
}

bool 記録集合::読める列(int 列) const {
    return 当行あり && 列 >= 0 && 列 < 列数();
}

QVariant 記録集合::値(int 列) const {
    return 読める列(列) ? 問合せ->value(列) : QVariant();
}

QString 記録集合::文字列(int 列) const {
    // A Null value's text is already the empty one.
    return 読める列(列) ? 問合せ->value(列).toString() : QString();
}

QString 記録集合::文字列(const QString& 列名) const {
    const QVariant v = 値(列名);
    return v.isNull() ? QString() : v.toString();
}

金額 金額の整数読込(qint64 整数) {
    try {
        return 金額::円(整数);
    } catch (const 実行時エラー&) {
        return 金額();
    }
}

金額 金額の文字列読込(const QString& 文字列) {
    try {
        return 金額::文字列から(文字列);
    } catch (const 実行時エラー&) {
        return 金額();
    }
}

namespace {

金額 金額に(const QVariant& v) {
    if (v.isNull()) return 金額();
    // Whole numbers as the engine gave them; the text of any other value is read exactly.
    const int 型 = v.typeId();
    if (型 == QMetaType::LongLong || 型 == QMetaType::Int) return 金額の整数読込(v.toLongLong());
    return 金額の文字列読込(v.toString());
}

}  // namespace

金額 記録集合::金額値(const QString& 列名) const {
    return 金額に(値(列名));
}

金額 記録集合::金額値(int 列) const {
    return 金額に(値(列));
}

double 記録集合::数値(const QString& 列名) const {
    const QVariant v = 値(列名);
    if (v.isNull()) return 0;
    bool ok = false;
    const double d = v.toDouble(&ok);
    if (ok) return d;
    try {
        return 数値変換(v.toString());
    } catch (const 実行時エラー&) {
        return 0;
    }
}

short 記録集合::整数(const QString& 列名) const {
    const double d = 数値(列名);
    if (!(std::abs(d) <= std::numeric_limits<short>::max())) return 0;
    return static_cast<short>(std::nearbyint(d));
}

short 整数変換(const QString& 文字列) {
    double d = 0;
    try {
        d = 数値変換(文字列);
    } catch (const 実行時エラー&) {
        return 0;
    }
    if (!(std::abs(d) <= std::numeric_limits<short>::max())) return 0;
    return static_cast<short>(std::nearbyint(d));
}
