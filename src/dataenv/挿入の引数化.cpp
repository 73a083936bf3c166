#include "dataenv/挿入の引数化.h"

#include <limits>

namespace {

// PostgreSQL's type numbers of the literals' types.
constexpr unsigned int4型 = 23;
constexpr unsigned int8型 = 20;
constexpr unsigned numeric型 = 1700;

bool 空白か(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

void 空白を飛ばす(const QString& s, qsizetype& i) {
    while (i < s.size() && 空白か(s[i].unicode())) ++i;
}

// A number as PostgreSQL reads it in a statement: digits with at most one point inside, a minus
// before them. Leading zeros and exponents are left to the statement as it is.
bool 数を読む(const QString& s, qsizetype& i, QString& 数, unsigned& 型) {
    const qsizetype 始 = i;
    if (i < s.size() && s[i] == u'-') ++i;
    const qsizetype 桁始 = i;
    while (i < s.size() && s[i].isDigit() && s[i].unicode() < 0x80) ++i;
    const qsizetype 整数桁 = i - 桁始;
    if (整数桁 == 0 || (整数桁 > 1 && s[桁始] == u'0')) return false;
    bool 小数 = false;
    if (i < s.size() && s[i] == u'.') {
        ++i;
        const qsizetype 小数始 = i;
        while (i < s.size() && s[i].isDigit() && s[i].unicode() < 0x80) ++i;
        if (i == 小数始) return false;
        小数 = true;
    }
    数 = s.mid(始, i - 始);
    bool 収まる = false;
    const qlonglong v = 数.toLongLong(&収まる);
    if (小数 || !収まる) {
        型 = numeric型;
    } else {
        型 = v >= std::numeric_limits<qint32>::min() && v <= std::numeric_limits<qint32>::max()
                 ? int4型
                 : int8型;
    }
    return true;
}

// A quoted text, its doubled quotes made single; backslashes stand as they are.
bool 文字を読む(const QString& s, qsizetype& i, QString& 文字) {
    if (i >= s.size() || s[i] != u'\'') return false;
    ++i;
    文字.clear();
    while (i < s.size()) {
        if (s[i] == u'\'') {
            if (i + 1 < s.size() && s[i + 1] == u'\'') {
                文字 += u'\'';
                i += 2;
                continue;
            }
            ++i;
            return true;
        }
        文字 += s[i++];
    }
    return false;
}

}  // namespace

QByteArray 引数付き挿入::鍵() const {
    QByteArray k = 文;
    for (unsigned t : 型) k += ' ' + QByteArray::number(t);
    return k;
}

bool 挿入を引数に(const QString& 単文, 引数付き挿入& 結果) {
    if (!単文.startsWith(u"INSERT INTO "_qs, Qt::CaseInsensitive)) return false;
    const qsizetype 値の語 = 単文.indexOf(u") VALUES ("_qs, 0, Qt::CaseInsensitive);
    if (値の語 < 0) return false;
    const QStringView 頭 = QStringView(単文).left(値の語 + 9);
    if (頭.contains(u'\'') || 頭.contains(u'"') || 頭.contains(u'-') || 頭.contains(u'/')) {
        return false;
    }
    結果 = {};
    QString 文 = 頭.toString() + u'(';
    qsizetype i = 値の語 + 10;
    QString 値;
    for (int 番 = 1;; ++番) {
        空白を飛ばす(単文, i);
        unsigned 型 = 0;
        bool Null = false;
        if (i < 単文.size() && 単文[i] == u'\'') {
            if (!文字を読む(単文, i, 値)) return false;
        } else if (単文.mid(i, 4).compare(u"NULL"_qs, Qt::CaseInsensitive) == 0 &&
                   (i + 4 >= 単文.size() || !単文[i + 4].isLetterOrNumber())) {
            Null = true;
            値.clear();
            i += 4;
        } else if (!数を読む(単文, i, 値, 型)) {
            return false;
        }
        文 += (番 == 1 ? u"$"_qs : u", $"_qs) + QString::number(番);
        結果.型.push_back(型);
        結果.値.push_back(値.toUtf8());
        結果.Null.push_back(Null);
        空白を飛ばす(単文, i);
        if (i < 単文.size() && 単文[i] == u',') {
            ++i;
            continue;
        }
        if (i >= 単文.size() || 単文[i] != u')') return false;
        ++i;
        break;
    }
    空白を飛ばす(単文, i);
    if (i != 単文.size()) return false;
    結果.文 = (文 + u')').toUtf8();
    return true;
}
