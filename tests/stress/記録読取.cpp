#include "記録読取.h"

#include <QFile>
#include <QTextStream>

namespace {

QList<qint64> 金額列(const QString& t) {
    QList<qint64> 額;
    for (const QString& x : t.split(u',', Qt::SkipEmptyParts)) 額 << x.toLongLong();
    return 額;
}

// The time at the end of a line of a store, in milliseconds; false when it is not there.
bool 所要時間(const QStringList& t, qsizetype 位置, 集計& k) {
    bool 数 = false;
    const double ms = t.value(位置).toDouble(&数);
    if (!数 || t.size() != 位置 + 1 || ms < 0) return false;
    k.所要ミリ秒 << ms;
    return true;
}

}  // namespace

集計 記録を読む(const QStringList& ファイル, QStringList& 違反) {
    集計 k;
    for (const QString& 名 : ファイル) {
        QFile f(名);
        if (!f.open(QIODevice::ReadOnly)) {
            違反 << u"journal "_qs + 名 + u" cannot be read"_qs;
            continue;
        }
        QTextStream in(&f);
        while (!in.atEnd()) {
            const QString 行 = in.readLine();
            const QStringList t = 行.split(u' ');
            bool 読めた = true;
            if (t.size() >= 3 && t[0] == u"N") {
                ++k.新規;
                k.伝票[t[1]] = {金額列(t[2]), false};
                k.新規行 += k.伝票[t[1]].金額.size();
                読めた = 所要時間(t, 3, k);
            } else if (t.size() >= 3 && t[0] == u"C") {
                ++k.訂正;
                k.訂正行 += k.伝票[t[1]].金額.size();
                k.伝票[t[1]].金額 = 金額列(t[2]);
                読めた = 所要時間(t, 3, k);
            } else if (t.size() >= 2 && t[0] == u"D") {
                ++k.削除;
                k.削除行 += k.伝票[t[1]].金額.size();
                k.伝票[t[1]].削除済み = true;
                読めた = 所要時間(t, 2, k);
            } else if (!t.isEmpty() && t[0] == u"E") {
                ++k.入力失敗;
                違反 << 行;
            }
            if (!読めた) 違反 << u"journal line without its time: "_qs + 行;
        }
    }
    return k;
}
