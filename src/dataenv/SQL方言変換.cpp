#include "dataenv/SQL方言変換.h"

#include <QList>
#include <QStringList>
#include <algorithm>

namespace {

bool 語の文字(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

// True when the word at i stands alone (no letter or digit glued on either side).
bool 単語一致(const QString& s, qsizetype i, QStringView 語) {
    if (i + 語.size() > s.size()) return false;
    if (QStringView(s).mid(i, 語.size()).compare(語, Qt::CaseInsensitive) != 0) return false;
    if (i > 0 && 語の文字(s.at(i - 1))) return false;
    const qsizetype j = i + 語.size();
    return j >= s.size() || !語の文字(s.at(j));
}

qsizetype 空白を飛ばす(const QString& s, qsizetype i) {
    while (i < s.size() && s.at(i).isSpace()) ++i;
    return i;
}

// The end of a quoted literal that starts at i ('' inside stays in the literal).
qsizetype 引用終端(const QString& s, qsizetype i) {
    const QChar q = s.at(i);
    for (++i; i < s.size(); ++i) {
        if (s.at(i) != q) continue;
        if (i + 1 < s.size() && s.at(i + 1) == q) {
            ++i;
            continue;
        }
        return i + 1;
    }
    return s.size();
}

struct 変換器 {
    const QString& 元;
    SQL方言 方言;
    qsizetype 位置 = 0;

    // Rewrites up to the closing bracket of the current level (or the end), carrying a TOP n
    // found at this level to a LIMIT n at its end.
    QString 一段(bool 括弧内) {
        QString 出力;
        QString 上限;
        while (位置 < 元.size()) {
            const QChar c = 元.at(位置);
            if (c == u'\'' || c == u'"') {
                const qsizetype e = 引用終端(元, 位置);
                出力 += QStringView(元).mid(位置, e - 位置);
                位置 = e;
            } else if (c == u'(') {
                ++位置;
                出力 += u'(' + 一段(true);
            } else if (c == u')' && 括弧内) {
                ++位置;
                return 末尾に上限(出力, 上限) + u')';
            } else if (c == u'[' && 方言 == SQL方言::PostgreSQL) {
                const qsizetype e = 元.indexOf(u']', 位置);
                if (e < 0) {
                    出力 += c;
                    ++位置;
                } else {
                    出力 += QStringView(元).mid(位置 + 1, e - 位置 - 1);
                    位置 = e + 1;
                }
            } else if (上限.isEmpty() && 単語一致(元, 位置, u"TOP") && TOP読取(上限)) {
                // 位置 now stands behind the number; the blank before TOP is kept
            } else if (方言 == SQL方言::SQLite && 単語一致(元, 位置, u"LEFT") &&
                       元.mid(空白を飛ばす(元, 位置 + 4), 1) == u"(") {
                位置 = 空白を飛ばす(元, 位置 + 4) + 1;
                QString 中身 = 一段(true);
                if (中身.endsWith(u')')) 中身.chop(1);
                出力 += u"substr("_qs + 一番目の引数に開始位置(中身) + u')';
            } else if (方言 == SQL方言::PostgreSQL && 単語一致(元, 位置, u"nvarchar") &&
                       元.mid(空白を飛ばす(元, 位置 + 8), 1) == u"(") {
                出力 += u"varchar";
                位置 += 8;
            } else {
                出力 += c;
                ++位置;
            }
        }
        return 末尾に上限(出力, 上限);
    }

    bool TOP読取(QString& 上限) {
        qsizetype i = 空白を飛ばす(元, 位置 + 3);
        const qsizetype 数字開始 = i;
        while (i < 元.size() && 元.at(i).isDigit()) ++i;
        if (i == 数字開始 || (i < 元.size() && 語の文字(元.at(i)))) return false;
        上限 = 元.mid(数字開始, i - 数字開始);
        位置 = 空白を飛ばす(元, i);
        return true;
    }

    static QString 末尾に上限(QString 出力, const QString& 上限) {
        if (上限.isEmpty()) return 出力;
        qsizetype n = 出力.size();
        while (n > 0 && (出力.at(n - 1).isSpace() || 出力.at(n - 1) == u';')) --n;
        const QString 残り = 出力.mid(n);
        出力.truncate(n);
        return 出力 + u" LIMIT "_qs + 上限 + 残り;
    }

    // LEFT(x,n) becomes substr(x,1,n): the 1 goes in front of the last top-level argument.
    static QString 一番目の引数に開始位置(const QString& 中身) {
        int 深さ = 0;
        qsizetype 区切り = -1;
        for (qsizetype i = 0; i < 中身.size(); ++i) {
            const QChar c = 中身.at(i);
            if (c == u'\'' || c == u'"') {
                i = 引用終端(中身, i) - 1;
            } else if (c == u'(') {
                ++深さ;
            } else if (c == u')') {
                --深さ;
            } else if (c == u',' && 深さ == 0) {
                区切り = i;
            }
        }
        if (区切り < 0) return 中身;
        return 中身.left(区切り) + u",1,"_qs + 中身.mid(区切り + 1);
    }
};

// Position of the bracket that closes the one at i, or -1.
qsizetype 閉じ括弧(const QString& s, qsizetype i) {
    int 深さ = 0;
    for (; i < s.size(); ++i) {
        const QChar c = s.at(i);
        if (c == u'\'' || c == u'"') {
            i = 引用終端(s, i) - 1;
        } else if (c == u'(') {
            ++深さ;
        } else if (c == u')' && --深さ == 0) {
            return i;
        }
    }
    return -1;
}

// Position of the bracket that opens the one at i, or -1 (literals are not looked into).
qsizetype 開き括弧(const QString& s, qsizetype i) {
    int 深さ = 0;
    for (; i >= 0; --i) {
        if (s.at(i) == u')') ++深さ;
        if (s.at(i) == u'(' && --深さ == 0) return i;
    }
    return -1;
}

qsizetype 語の外の位置(const QString& s, QStringView 語, qsizetype 開始) {
    for (qsizetype i = 開始; i < s.size(); ++i) {
        const QChar c = s.at(i);
        if (c == u'\'' || c == u'"') {
            i = 引用終端(s, i) - 1;
        } else if (単語一致(s, i, 語)) {
            return i;
        }
    }
    return -1;
}

// One "A RIGHT JOIN B ON c" turned into "B LEFT JOIN A ON c"; false when none is left or the
// form is not one this knows.
bool 右結合を一つ返す(QString& s) {
    static const QStringList 終わりの語 = {u"WHERE"_qs, u"ORDER"_qs, u"GROUP"_qs, u"HAVING"_qs,
                                           u"UNION"_qs, u"LEFT"_qs,  u"RIGHT"_qs, u"INNER"_qs,
                                           u"JOIN"_qs,  u"CROSS"_qs, u"FULL"_qs,  u"LIMIT"_qs};
    for (qsizetype p = 語の外の位置(s, u"RIGHT", 0); p >= 0; p = 語の外の位置(s, u"RIGHT", p + 5)) {
        const qsizetype 後 = 空白を飛ばす(s, p + 5);
        if (!単語一致(s, 後, u"JOIN")) continue;
        // the left operand: a name or a bracketed group
        qsizetype 左終 = p;
        while (左終 > 0 && s.at(左終 - 1).isSpace()) --左終;
        qsizetype 左始 = 左終;
        if (左終 > 0 && s.at(左終 - 1) == u')') {
            左始 = 開き括弧(s, 左終 - 1);
        } else {
            while (左始 > 0 && (語の文字(s.at(左始 - 1)) || s.at(左始 - 1) == u'.')) --左始;
            // A table under an alias, "M事業所 AS M異動事業所", moves as a whole.
            qsizetype a = 左始;
            while (a > 0 && s.at(a - 1).isSpace()) --a;
            if (a >= 2 && a < 左始 && 単語一致(s, a - 2, u"AS")) {
                qsizetype 名終 = a - 2;
                while (名終 > 0 && s.at(名終 - 1).isSpace()) --名終;
                qsizetype 名始 = 名終;
                while (名始 > 0 && (語の文字(s.at(名始 - 1)) || s.at(名始 - 1) == u'.')) --名始;
                if (名始 < 名終 && 名終 < a - 2) 左始 = 名始;
            }
        }
        if (左始 < 0 || 左始 == 左終) return false;
        // the right operand
        const qsizetype 右始 = 空白を飛ばす(s, 後 + 4);
        qsizetype 右終 = 右始;
        if (右始 < s.size() && s.at(右始) == u'(') {
            const qsizetype e = 閉じ括弧(s, 右始);
            if (e < 0) return false;
            右終 = e + 1;
        } else {
            while (右終 < s.size() && (語の文字(s.at(右終)) || s.at(右終) == u'.')) ++右終;
        }
        if (右終 == 右始) return false;
        const qsizetype on = 空白を飛ばす(s, 右終);
        if (!単語一致(s, on, u"ON")) return false;
        // the condition runs to the end of its group or the next clause
        const qsizetype 条件始 = 空白を飛ばす(s, on + 2);
        qsizetype 条件終 = 条件始;
        int 深さ = 0;
        for (; 条件終 < s.size(); ++条件終) {
            const QChar c = s.at(条件終);
            if (c == u'\'' || c == u'"') {
                条件終 = 引用終端(s, 条件終) - 1;
                continue;
            }
            if (c == u'(') ++深さ;
            if (c == u')' && --深さ < 0) break;
            if (深さ == 0 &&
                std::any_of(終わりの語.begin(), 終わりの語.end(),
                            [&](const QString& w) { return 単語一致(s, 条件終, w); })) {
                break;
            }
        }
        while (条件終 > 条件始 && s.at(条件終 - 1).isSpace()) --条件終;
        const QString 置換 = s.mid(右始, 右終 - 右始) + u" LEFT JOIN "_qs +
                             s.mid(左始, 左終 - 左始) + u" ON "_qs + s.mid(条件始, 条件終 - 条件始);
        s.replace(左始, 条件終 - 左始, 置換);
        return true;
    }
    return false;
}

}  // namespace

QString SQL方言変換(const QString& 文, SQL方言 方言) {
    if (方言 == SQL方言::そのまま) return 文;
    // Most statements hold none of the forms that differ: they pass untouched and uncopied.
    const bool 書換候補 =
        文.contains(u"TOP"_qs, Qt::CaseInsensitive) ||
        (方言 == SQL方言::SQLite
             ? 文.contains(u"LEFT"_qs, Qt::CaseInsensitive) ||
                   文.contains(u"RIGHT"_qs, Qt::CaseInsensitive)
             : 文.contains(u'[') || 文.contains(u"nvarchar"_qs, Qt::CaseInsensitive));
    if (!書換候補) return 文;
    QString 元 = 文;
    if (方言 == SQL方言::SQLite) {
        // SQLite answers a nested RIGHT JOIN by reading the whole table on the right; the same
        // join written from the other side lets it use the indexes.
        for (int i = 0; i < 32 && 右結合を一つ返す(元); ++i) {
        }
    }
    // A stray closing bracket at the top level is copied as it is, so that a broken statement
    // still reaches the engine and fails there.
    変換器 v{元, 方言};
    return v.一段(false);
}
