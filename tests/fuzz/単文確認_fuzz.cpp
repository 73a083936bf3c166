// Any text through the single-statement check, against a second reading of the same rules
// written with regular expressions: both find the same statement end and refuse at the same
// place. Beside it, what a check of a left-to-right reading must keep: a refusal stands
// whatever follows it, and a statement cut at its end takes no second one behind it.
#include <QRegularExpression>
#include <cstdlib>

#include "dataenv/単文確認.h"
#include "ファズ入力.h"

namespace {

// The pieces of a text, one alternative each, in the order they are tried. A block comment that
// opens another one inside, a dollar sign (and on SQLite @ : #), and an escape string with a
// quote after an odd run of backslashes are refused at the place of the offending character.
QRegularExpression 字句式(bool pg) {
    QString 型 =
        uR"((?s)(?<ws>[ \t\n\r\f]++|--[^\r\n]*+|/\*(?:[^*/]|\*(?!/)|/(?!\*))*+(?:\*/|$)))"
        uR"(|(?<nest>/\*(?:[^*/]|\*(?!/)|/(?!\*))*+)(?=/\*))"
        uR"(|(?<semi>;))"_qs;
    if (pg) {
        型 +=
            uR"(|(?<bad>\$))"
            uR"(|(?<eqbad>(?<=[Ee])'(?:[^'\\]|''|\\\\|\\(?![\\']))*+\\)(?='))"
            uR"(|(?<eq>(?<=[Ee])'(?:[^'\\]|''|\\\\|\\(?![\\']))*+(?:'|$)))"_qs;
    } else {
        型 +=
            uR"(|(?<bad>[$@:#]))"
            uR"(|(?<bt>`(?:[^`]|``)*+(?:`|$)))"
            uR"(|(?<br>\[[^\]]*+(?:\]|$)))"_qs;
    }
    型 +=
        uR"(|(?<q>'(?:[^']|'')*+(?:'|$)))"
        uR"(|(?<id>"(?:[^"]|"")*+(?:"|$)))"
        uR"(|(?<word>(?:[A-Za-z0-9_]|[^\x00-\x7F])++))"
        uR"(|(?<other>.))"_qs;
    return QRegularExpression(型);
}

// SQLite's statement completer: a ";" in the body of CREATE TRIGGER does not end the statement.
int 次の状態(int 状態, int 字句) {
    static constexpr int 表[8][8] = {{1, 0, 2, 3, 4, 2, 2, 2}, {1, 1, 2, 3, 4, 2, 2, 2},
                                     {1, 2, 2, 2, 2, 2, 2, 2}, {1, 3, 3, 2, 4, 2, 2, 2},
                                     {1, 4, 2, 2, 2, 4, 5, 2}, {6, 5, 5, 5, 5, 5, 5, 5},
                                     {6, 6, 5, 5, 5, 5, 5, 7}, {1, 7, 5, 5, 5, 5, 5, 5}};
    return 表[状態][字句];
}
int 語の字句(const QString& 語) {
    for (QChar c : 語) {
        if (c.unicode() >= 0x80) return 2;
    }
    const QString 大 = 語.toUpper();
    if (大 == u"EXPLAIN") return 3;
    if (大 == u"CREATE") return 4;
    if (大 == u"TEMP" || 大 == u"TEMPORARY") return 5;
    if (大 == u"TRIGGER") return 6;
    if (大 == u"END") return 7;
    return 2;
}

単文判定 神託(const QString& s, SQL方言 d) {
    const bool pg = d == SQL方言::PostgreSQL;
    static const QRegularExpression 式[2] = {字句式(false), 字句式(true)};
    qsizetype i = 0, 終端 = -1;
    int 状態 = 0;
    while (i < s.size()) {
        const auto m = 式[pg].match(s, i, QRegularExpression::NormalMatch,
                                    QRegularExpression::AnchorAtOffsetMatchOption);
        if (!m.hasMatch()) std::abort();
        const auto 組 = [&](const char* 名) {
            return m.capturedStart(QString::fromLatin1(名)) >= 0;
        };
        if (組("nest") || 組("eqbad")) return {m.capturedEnd(), m.capturedEnd()};
        if (組("bad")) return {i, i};
        if (終端 >= 0) {
            if (!組("ws")) return {終端, i};
        } else if (組("semi")) {
            if (pg || (状態 != 5 && 状態 != 6)) 終端 = i;
            状態 = 次の状態(状態, 0);
        } else {
            状態 = 次の状態(状態, 組("ws") ? 1 : 組("word") ? 語の字句(m.captured()) : 2);
        }
        i = m.capturedEnd();
    }
    return 終端 >= 0 ? 単文判定{終端, -1} : 単文判定{s.size(), -1};
}

// Lone surrogates become U+FFFD for the regular expressions, which take only whole UTF-16;
// both are characters beyond ASCII to either reading.
QString 整えた(const QString& s) {
    QString t = s;
    for (qsizetype i = 0; i < t.size(); ++i) {
        const QChar c = t.at(i);
        if (c.isHighSurrogate() && i + 1 < t.size() && t.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (c.isSurrogate()) {
            t[i] = QChar::ReplacementCharacter;
        }
    }
    return t;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const SQL方言 方言 =
        供給.PickValueInArray({SQL方言::SQLite, SQL方言::PostgreSQL, SQL方言::そのまま});
    const QString 文 = ファズ残り文字列(供給);
    const 単文判定 r = 単文確認(文, 方言);

    const 単文判定 期待 = 神託(整えた(文), 方言);
    ファズ確認(r.余り == 期待.余り);
    ファズ確認(!r.単文() || r.長さ == 期待.長さ);

    ファズ確認(r.余り >= -1 && r.余り < 文.size());
    ファズ確認(r.長さ >= 0 && r.長さ <= 文.size());
    if (!r.単文()) {
        // Read from the left: what follows the place of a refusal cannot undo it.
        ファズ確認(単文確認(文 + u"'*/\n;"_qs, 方言).余り == r.余り);
        return 0;
    }
    if (r.長さ < 文.size()) {
        ファズ確認(文.at(r.長さ) == u';');
        // The statement cut at its end is whole, and a second one behind it is refused.
        const QString 本文 = 文.left(r.長さ);
        const 単文判定 切 = 単文確認(本文, 方言);
        ファズ確認(切.単文() && 切.長さ == r.長さ);
        ファズ確認(単文確認(本文 + u"; DELETE FROM t"_qs, 方言).余り == r.長さ + 2);
    }
    return 0;
}
