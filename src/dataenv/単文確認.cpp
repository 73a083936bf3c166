#include "dataenv/単文確認.h"

#include <utility>

namespace {

// The blanks both engines skip between statements; any other character is a statement's text.
bool 空白(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

// A word as the engines delimit one: ASCII letters, digits, "_", and anything beyond ASCII.
bool 語の文字(QChar c) {
    const char16_t u = c.unicode();
    return u >= 0x80 || (u >= u'0' && u <= u'9') || ((u | 0x20) >= u'a' && (u | 0x20) <= u'z') ||
           u == u'_';
}

// SQLite's own test of a complete statement: the ";" inside the body of CREATE TRIGGER ...
// BEGIN ... END do not end it. The states and moves are those of its statement completer.
class 引き金本体 {
  public:
    enum 字句 { 区切り, 空き, 他, 語EXPLAIN, 語CREATE, 語TEMP, 語TRIGGER, 語END };
    void 送る(字句 t) {
        static constexpr unsigned char 遷移[8][8] = {
            {1, 0, 2, 3, 4, 2, 2, 2}, {1, 1, 2, 3, 4, 2, 2, 2}, {1, 2, 2, 2, 2, 2, 2, 2},
            {1, 3, 3, 2, 4, 2, 2, 2}, {1, 4, 2, 2, 2, 4, 5, 2}, {6, 5, 5, 5, 5, 5, 5, 5},
            {6, 6, 5, 5, 5, 5, 5, 7}, {1, 7, 5, 5, 5, 5, 5, 5}};
        状態 = 遷移[状態][t];
    }
    // A ";" now ends the statement rather than a command of the body.
    bool 区切りで終わる() const { return 状態 != 5 && 状態 != 6; }
    // Keywords are ASCII to SQLite; no other letter folds to one of them.
    static 字句 語の種類(QStringView 語) {
        for (QChar c : 語) {
            if (c.unicode() >= 0x80) return 他;
        }
        static constexpr std::pair<QStringView, 字句> 鍵[] = {
            {u"EXPLAIN", 語EXPLAIN}, {u"CREATE", 語CREATE},   {u"TEMP", 語TEMP},
            {u"TEMPORARY", 語TEMP},  {u"TRIGGER", 語TRIGGER}, {u"END", 語END}};
        for (const auto& [綴り, 種類] : 鍵) {
            if (語.compare(綴り, Qt::CaseInsensitive) == 0) return 種類;
        }
        return 他;
    }

  private:
    int 状態 = 0;
};

// Reads a text as the engine's tokenizer would, as far as quotes, comments and the end of a
// statement go. Where the two engines or their settings could read a form differently, the text
// is refused there, so that what passes is one statement for either.
class 走査器 {
  public:
    走査器(const QString& 文, SQL方言 方言) : s(文), n(文.size()), 方言(方言) {}

    単文判定 判定() {
        const bool 引き金あり = 方言 != SQL方言::PostgreSQL;
        while (i < n) {
            const QChar c = s.at(i);
            if (c == u';') {
                if (!引き金あり || 引き金.区切りで終わる()) return 終わりの後(i);
                引き金.送る(引き金本体::区切り);
                ++i;
                continue;
            }
            const qsizetype 始 = i;
            if (!一語()) return {i, i};
            if (空白(c) || QStringView(s).mid(始, 2) == u"--" ||
                QStringView(s).mid(始, 2) == u"/*") {
                引き金.送る(引き金本体::空き);
            } else if (語の文字(c)) {
                引き金.送る(引き金本体::語の種類(QStringView(s).mid(始, i - 始)));
            } else {
                引き金.送る(引き金本体::他);
            }
        }
        return {n, -1};
    }

  private:
    bool 次が(QChar c) const { return i + 1 < n && s.at(i + 1) == c; }

    // One piece in front of the statement's end; false where the text is refused, at i.
    bool 一語() {
        const QChar c = s.at(i);
        if (c == u'\'') return 文字列();
        if (c == u'"') return 引用(c);
        if (c == u'-' && 次が(u'-')) return 行注釈();
        if (c == u'/' && 次が(u'*')) return 範囲注釈();
        // PostgreSQL opens a dollar-quoted string at $; SQLite reads a variable after $, @, :
        // or # up to a blank or ")", quotes included. Neither has a place in these statements.
        if (c == u'$') return false;
        if (方言 != SQL方言::PostgreSQL) {
            if (c == u'@' || c == u':' || c == u'#') return false;
            if (c == u'`') return 引用(c);
            if (c == u'[') {
                // A bracketed name runs to the first "]", with no way to write one inside.
                const qsizetype e = s.indexOf(u']', i + 1);
                i = e < 0 ? n : e + 1;
                return true;
            }
        }
        if (語の文字(c)) {
            while (i < n && 語の文字(s.at(i))) ++i;
            return true;
        }
        ++i;
        return true;
    }

    // A quoted name (or literal) in which the quote stands doubled.
    bool 引用(QChar q) {
        for (qsizetype j = i + 1; j < n; ++j) {
            if (s.at(j) != q) continue;
            if (j + 1 < n && s.at(j + 1) == q) {
                ++j;
                continue;
            }
            i = j + 1;
            return true;
        }
        i = n;
        return true;
    }

    // PostgreSQL reads a backslash in E'...' as an escape, so after an odd run of them a quote
    // stays in the literal; the text is refused there rather than read two ways. The connection
    // keeps plain literals free of escapes (standard_conforming_strings).
    bool 文字列() {
        const bool 逃がし =
            方言 == SQL方言::PostgreSQL && i > 0 && (s.at(i - 1) == u'E' || s.at(i - 1) == u'e');
        qsizetype 逆斜線 = 0;
        for (qsizetype j = i + 1; j < n; ++j) {
            const QChar c = s.at(j);
            if (c == u'\\') {
                ++逆斜線;
                continue;
            }
            if (c == u'\'') {
                if (逃がし && 逆斜線 % 2 == 1) {
                    i = j;
                    return false;
                }
                if (j + 1 < n && s.at(j + 1) == u'\'') {
                    ++j;
                    逆斜線 = 0;
                    continue;
                }
                i = j + 1;
                return true;
            }
            逆斜線 = 0;
        }
        i = n;
        return true;
    }

    // PostgreSQL ends a line comment at a carriage return as well as at a line feed.
    bool 行注釈() {
        i += 2;
        while (i < n && s.at(i) != u'\n' && s.at(i) != u'\r') ++i;
        return true;
    }

    // PostgreSQL nests block comments and SQLite does not: a comment that opens another one is
    // refused where it does. An unclosed one runs to the end (or fails on the engine).
    bool 範囲注釈() {
        for (qsizetype j = i + 2; j < n; ++j) {
            if (s.at(j) == u'*' && j + 1 < n && s.at(j + 1) == u'/') {
                i = j + 2;
                return true;
            }
            if (s.at(j) == u'/' && j + 1 < n && s.at(j + 1) == u'*') {
                i = j;
                return false;
            }
        }
        i = n;
        return true;
    }

    // Behind the ";" only blanks and comments may follow.
    単文判定 終わりの後(qsizetype 終端) {
        i = 終端 + 1;
        while (i < n) {
            const QChar c = s.at(i);
            if (空白(c)) {
                ++i;
            } else if (c == u'-' && 次が(u'-')) {
                行注釈();
            } else if (!(c == u'/' && 次が(u'*') && 範囲注釈())) {
                return {終端, i};
            }
        }
        return {終端, -1};
    }

    const QString& s;
    const qsizetype n;
    const SQL方言 方言;
    qsizetype i = 0;
    引き金本体 引き金;
};

}  // namespace

単文判定 単文確認(const QString& 文, SQL方言 方言) {
    return 走査器(文, 方言).判定();
}
