#include "dataenv/SQL方言変換.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace {

bool 語の文字(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

// True when the word at i stands alone (no letter or digit glued on either side). The words
// asked for are ASCII letters: an ASCII character that is not the first letter in either case
// cannot fold to it, so most places are turned down without the comparison that folds case.
bool 単語一致(const QString& s, qsizetype i, QStringView 語) {
    if (i + 語.size() > s.size()) return false;
    const char16_t 先頭 = s.at(i).unicode();
    if (先頭 < 0x80 && (先頭 | 0x20) != (語.front().unicode() | 0x20)) return false;
    if (QStringView(s.constData() + i, 語.size()).compare(語, Qt::CaseInsensitive) != 0) {
        return false;
    }
    if (i > 0 && 語の文字(s.at(i - 1))) return false;
    const qsizetype j = i + 語.size();
    return j >= s.size() || !語の文字(s.at(j));
}

// The ASCII characters a scan passes over in one run: all but the ones given. A character beyond
// ASCII is looked at by itself, as it might fold to a letter of a word.
struct 素通し表 {
    std::array<bool, 128> 通す{};
    constexpr explicit 素通し表(std::u16string_view 止まる字) {
        for (std::size_t c = 0; c < 通す.size(); ++c)
            通す[c] = 止まる字.find(char16_t(c)) == 止まる字.npos;
    }
    // The end of the run from i.
    qsizetype 先(const QString& s, qsizetype i) const {
        while (i < s.size() && s.at(i).unicode() < 128 && 通す[s.at(i).unicode()]) ++i;
        return i;
    }
};

qsizetype 空白を飛ばす(const QString& s, qsizetype i) {
    while (i < s.size() && s.at(i).isSpace()) ++i;
    return i;
}

bool 開き括弧が続く(const QString& s, qsizetype i) {
    i = 空白を飛ばす(s, i);
    return i < s.size() && s.at(i) == u'(';
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

constexpr QStringView 語TOP = u"TOP", 語LEFT = u"LEFT", 語RIGHT = u"RIGHT", 語JOIN = u"JOIN",
                      語ON = u"ON", 語nvarchar = u"nvarchar";

// The words that end the condition of a rewritten join.
constexpr std::array<QStringView, 12> 終わりの語 = {u"WHERE", u"ORDER", u"GROUP", u"HAVING",
                                                    u"UNION", u"LEFT",  u"RIGHT", u"INNER",
                                                    u"JOIN",  u"CROSS", u"FULL",  u"LIMIT"};

// Quotes and the first letter of RIGHT stop the search for a join.
constexpr 素通し表 結合の外(u"'\"Rr");

constexpr QStringView 終わりの語の頭文字 = u"WOGHULRIJCFwoghulrijcf";

bool 終わりの語で始まる(const QString& s, qsizetype i) {
    const char16_t c = s.at(i).unicode();
    // Most characters start none of them; a non-ASCII one might fold to a first letter.
    if (c < 0x80 && !終わりの語の頭文字.contains(QChar(c))) return false;
    return std::any_of(終わりの語.begin(), 終わりの語.end(),
                       [&](QStringView w) { return 単語一致(s, i, w); });
}

// Turns "A RIGHT JOIN B ON c" into "B LEFT JOIN A ON c", one join at a time, each time taking
// the first RIGHT JOIN from the front of the text as it now stands. A rewrite leaves the text in
// front of it as it was, so the next search picks up at a place it passed before, noted on the
// way with how far the search had read: one whose reading stayed in front of the rewrite.
class 右結合書換 {
  public:
    explicit 右結合書換(QString& s) : s(s) {}

    // False when none is left or the first one left has a form this does not know.
    bool 一つ返す() {
        const qsizetype p = 次の右結合();
        if (p < 0) return false;
        const qsizetype 後 = 空白を飛ばす(s, p + 5);
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
        if (!単語一致(s, on, 語ON)) return false;
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
            if (深さ == 0 && 終わりの語で始まる(s, 条件終)) break;
        }
        while (条件終 > 条件始 && s.at(条件終 - 1).isSpace()) --条件終;
        const QString 置換 = s.mid(右始, 右終 - 右始) + u" LEFT JOIN "_qs +
                             s.mid(左始, 左終 - 左始) + u" ON "_qs + s.mid(条件始, 条件終 - 条件始);
        s.replace(左始, 条件終 - 左始, 置換);
        while (!通過点々.empty() && 通過点々.back().読了 >= 左始) 通過点々.pop_back();
        return true;
    }

  private:
    // A place the search reached, and the furthest character read before it got there.
    struct 通過点 {
        qsizetype 位置;
        qsizetype 読了;
    };

    // The first RIGHT outside literals that JOIN follows, or -1.
    qsizetype 次の右結合() {
        qsizetype i = 0, 読了 = -1;
        if (!通過点々.empty()) {
            i = 通過点々.back().位置;
            読了 = 通過点々.back().読了;
        }
        qsizetype 記録 = i;
        while (i < s.size()) {
            if (i >= 記録 + 64) {
                通過点々.push_back({i, 読了});
                記録 = i;
            }
            const qsizetype 先 = 結合の外.先(s, i);
            if (先 > i) {
                読了 = std::max(読了, 先 + 4);
                i = 先;
                continue;
            }
            const QChar c = s.at(i);
            if (c == u'\'' || c == u'"') {
                i = 引用終端(s, i);
                読了 = std::max(読了, i);
                continue;
            }
            const bool 右 = 単語一致(s, i, 語RIGHT);
            読了 = std::max(読了, i + 5);
            if (!右) {
                ++i;
                continue;
            }
            const qsizetype 後 = 空白を飛ばす(s, i + 5);
            読了 = std::max(読了, 後 + 5);
            if (単語一致(s, 後, 語JOIN)) return i;
            i += 5;
        }
        return -1;
    }

    QString& s;
    std::vector<通過点> 通過点々;
};

// Quotes, brackets, commas and the first letters of TOP, LEFT and nvarchar stop a copied run.
constexpr 素通し表 書換の外(u"'\"()[,TtLlNn");

// The rest of the translation in one pass: literals, [names], TOP n, LEFT( and nvarchar(. Each
// bracket level writes its text at the end of one output. What a level adds when it closes,
// LIMIT n for its TOP and the start position of LEFT's substr, is noted with its place and put
// in when the statement is complete, so that no text is copied once per enclosing level.
class 変換器 {
  public:
    変換器(const QString& 元, SQL方言 方言) : 元(元), 方言(方言) { 出力.reserve(元.size() + 16); }

    QString 変換() {
        段々.push_back({段種::最上位, 0});
        while (位置 < 元.size()) 一字();
        // Levels still open at the end close without their bracket.
        while (段々.size() > 1) 閉じる(false);
        上限を置く(段々.back());
        return 仕上げ();
    }

  private:
    enum class 段種 { 最上位, 括弧, 左関数 };
    struct 段 {
        段種 種;
        qsizetype 開始;         // where the level's text starts in 出力
        qsizetype 上限始 = -1;  // the number of its TOP n, in the statement
        qsizetype 上限長 = 0;
        qsizetype 読点 = -1;  // LEFT(: the last comma written by the level itself, in 出力
    };
    // Text put in front of 出力[位置]: "1," behind a LEFT's comma, or " LIMIT n".
    struct 挿入 {
        qsizetype 位置;
        bool 開始位置;
        qsizetype 上限始, 上限長;
    };

    void 一字() {
        // A run of characters that are copied as they stand goes out at once.
        const qsizetype 先 = 書換の外.先(元, 位置);
        if (先 > 位置) {
            書く(QStringView(元).mid(位置, 先 - 位置));
            位置 = 先;
            return;
        }
        段& 今 = 段々.back();
        const QChar c = 元.at(位置);
        if (c == u'\'' || c == u'"') {
            const qsizetype e = 引用終端(元, 位置);
            書く(QStringView(元).mid(位置, e - 位置));
            位置 = e;
        } else if (c == u'(') {
            ++位置;
            書く(c);
            段々.push_back({段種::括弧, 出力.size()});
        } else if (c == u')' && 今.種 != 段種::最上位) {
            ++位置;
            閉じる(true);
        } else if (c == u'[' && 方言 == SQL方言::PostgreSQL) {
            // Where no ] is left, none will be found again further on.
            if (閉じ角 != -1 && 閉じ角 < 位置) 閉じ角 = 元.indexOf(u']', 位置);
            if (閉じ角 < 0) {
                書く(c);
                ++位置;
            } else {
                書く(QStringView(元).mid(位置 + 1, 閉じ角 - 位置 - 1));
                位置 = 閉じ角 + 1;
            }
        } else if (今.上限始 < 0 && 単語一致(元, 位置, 語TOP) && TOP読取(今)) {
            // 位置 now stands behind the number; the blank before TOP is kept
        } else if (方言 == SQL方言::SQLite && 単語一致(元, 位置, 語LEFT) &&
                   開き括弧が続く(元, 位置 + 4)) {
            位置 = 空白を飛ばす(元, 位置 + 4) + 1;
            書く(u"substr(");
            段々.push_back({段種::左関数, 出力.size()});
        } else if (方言 == SQL方言::PostgreSQL && 単語一致(元, 位置, 語nvarchar) &&
                   開き括弧が続く(元, 位置 + 8)) {
            書く(u"varchar");
            位置 += 8;
        } else {
            if (c == u',' && 今.種 == 段種::左関数) 今.読点 = 出力.size();
            書く(c);
            ++位置;
        }
    }

    bool TOP読取(段& 今) {
        qsizetype i = 空白を飛ばす(元, 位置 + 3);
        const qsizetype 数字開始 = i;
        while (i < 元.size() && 元.at(i).isDigit()) ++i;
        if (i == 数字開始 || (i < 元.size() && 語の文字(元.at(i)))) return false;
        今.上限始 = 数字開始;
        今.上限長 = i - 数字開始;
        位置 = 空白を飛ばす(元, i);
        return true;
    }

    // A bracket level ends at its ")" or, without it, at the end of the statement.
    void 閉じる(bool 括弧あり) {
        段 d = 段々.back();
        段々.pop_back();
        上限を置く(d);
        if (d.種 == 段種::左関数) {
            // LEFT(x,n) becomes substr(x,1,n): the 1 goes in front of the last argument.
            if (d.読点 >= 0) 挿入々.push_back({d.読点 + 1, true, 0, 0});
            // Unclosed, a last ")" of its own text serves as the one of substr.
            const bool 括弧で終わる =
                出力.size() > d.開始 && 出力.back() == u')' && 最後の上限位置 != 出力.size();
            if (!括弧あり && 括弧で終わる) return;
        } else if (!括弧あり) {
            return;
        }
        書く(u')');
    }

    // LIMIT n goes behind the level's text, in front of its trailing blanks and semicolons.
    void 上限を置く(const 段& d) {
        if (d.上限始 < 0) return;
        const qsizetype 置場 = std::max(d.開始, 空白開始);
        挿入々.push_back({置場, false, d.上限始, d.上限長});
        空白開始 = 置場;
        最後の上限位置 = 置場;
    }

    static bool 末尾の空き(QChar c) { return c.isSpace() || c == u';'; }

    void 書く(QChar c) {
        出力 += c;
        if (!末尾の空き(c)) 空白開始 = 出力.size();
    }

    void 書く(QStringView t) {
        出力 += t;
        for (qsizetype k = t.size(); k > 0; --k) {
            if (!末尾の空き(t.at(k - 1))) {
                空白開始 = 出力.size() - t.size() + k;
                break;
            }
        }
    }

    QString 仕上げ() {
        if (挿入々.empty()) return 出力;
        // At one place the "1," of a comma comes first, then each LIMIT in the order noted.
        std::stable_sort(挿入々.begin(), 挿入々.end(), [](const 挿入& a, const 挿入& b) {
            if (a.位置 != b.位置) return a.位置 < b.位置;
            return a.開始位置 && !b.開始位置;
        });
        QString 結果;
        結果.reserve(出力.size() + 挿入々.size() * 12);
        qsizetype 済 = 0;
        for (const 挿入& x : 挿入々) {
            結果 += QStringView(出力).mid(済, x.位置 - 済);
            済 = x.位置;
            if (x.開始位置) {
                結果 += u"1,";
            } else {
                結果 += u" LIMIT ";
                結果 += QStringView(元).mid(x.上限始, x.上限長);
            }
        }
        結果 += QStringView(出力).mid(済);
        return 結果;
    }

    const QString& 元;
    const SQL方言 方言;
    qsizetype 位置 = 0;
    QString 出力;
    std::vector<段> 段々;
    std::vector<挿入> 挿入々;
    qsizetype 空白開始 = 0;         // where the trailing blanks and semicolons of 出力 begin
    qsizetype 最後の上限位置 = -1;  // at 出力.size(), the text ends with that LIMIT's number
    qsizetype 閉じ角 = -2;          // the next ] of the statement; -1: none is left
};

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
    if (方言 == SQL方言::SQLite && 元.contains(語RIGHT, Qt::CaseInsensitive)) {
        // SQLite answers a nested RIGHT JOIN by reading the whole table on the right; the same
        // join written from the other side lets it use the indexes.
        右結合書換 書換(元);
        for (int i = 0; i < 32 && 書換.一つ返す(); ++i) {
        }
    }
    // A stray closing bracket at the top level is copied as it is, so that a broken statement
    // still reaches the engine and fails there.
    return 変換器(元, 方言).変換();
}

QString 行数を限る(const QString& 文, int 行上限, SQL方言 方言) {
    // SQLite reads no row past the last one asked for, and with a limit it would plan a sort of
    // a date range where the description list walks an index in order: only the server, which
    // would send every row, gets one.
    if (方言 != SQL方言::PostgreSQL) return 文;
    // A statement that ends with its own LIMIT (a TOP of the suite's dialect) keeps it.
    static const QRegularExpression 終わりの上限(u"\\bLIMIT\\s+\\d+\\s*$"_qs,
                                                 QRegularExpression::CaseInsensitiveOption);
    if (終わりの上限.match(文).hasMatch()) return 文;
    // On a line of its own, so that a closing comment of the statement cannot take it in.
    return 文 + u"\nLIMIT "_qs + QString::number(行上限);
}
