#include "slip/伝票鍵.h"

#include <QStringList>

namespace {

using enum 鍵の列::部分;

// Office, base date and number in that order, the way most statements name them.
鍵の列 並べて(const QString& 表, const QString& 事業所列, const QString& 日付列,
              const QString& 番号列, const QString& 行列 = {}) {
    return {表, {{{事業所, 事業所列}, {基準日付, 日付列}, {番号, 番号列}}}, 行列};
}

QString 列名(const 鍵の列& 列, const QString& 名前) {
    return 列.表.isEmpty() ? 名前 : 列.表 + u'.' + 名前;
}

QString 値(const 伝票鍵& 鍵, 鍵の列::部分 何) {
    switch (何) {
        case 鍵の列::事業所:
            return 鍵.事業所コード;
        case 鍵の列::基準日付:
            return 鍵.番号基準日付;
        case 鍵の列::番号:
            break;
    }
    return 鍵.番号;
}

}  // namespace

const 鍵の列 鍵の列::T出金 = 並べて({}, u"事業所コード"_qs, u"番号基準日付"_qs, u"出金No"_qs);
const 鍵の列 鍵の列::T出金明細 =
    並べて({}, u"事業所コード"_qs, u"番号基準日付"_qs, u"出金No"_qs, u"出金固有行No"_qs);
const 鍵の列 鍵の列::T出金読込 = {
    u"T出金"_qs,
    {{{番号, u"出金No"_qs}, {事業所, u"事業所コード"_qs}, {基準日付, u"番号基準日付"_qs}}}};
const 鍵の列 鍵の列::T出金明細表付 = 並べて(u"T出金明細"_qs, u"事業所コード"_qs, u"番号基準日付"_qs,
                                            u"出金No"_qs, u"出金固有行No"_qs);
const 鍵の列 鍵の列::R出金履歴 =
    並べて({}, u"事業所コード"_qs, u"番号基準日付"_qs, u"出金履歴No"_qs);
const 鍵の列 鍵の列::T営業活動明細 =
    並べて({}, u"出金事業所コード"_qs, u"出金番号基準日付"_qs, u"出金No"_qs);
const 鍵の列 鍵の列::T出張申請 = {
    u"T出張申請"_qs,
    {{{事業所, u"事業所コード"_qs}, {番号, u"出張申請No"_qs}, {基準日付, u"番号基準日付"_qs}}}};
const 鍵の列 鍵の列::T出張旅費 =
    並べて(u"T出張旅費"_qs, u"事業所コード"_qs, u"番号基準日付"_qs, u"出張申請No"_qs);

QString 伝票鍵::文字列() const {
    return 事業所コード + 番号基準日付 + 番号;
}

QString 伝票鍵::表示() const {
    return 事業所コード + u'-' + 番号基準日付 + u'-' + 番号;
}

QString 伝票鍵::一覧の文字列() const {
    return u"C"_qs + 文字列();
}

伝票鍵 伝票鍵::番号替え(const QString& 別の番号) const {
    return {事業所コード, 番号基準日付, 別の番号};
}

QString 伝票鍵::条件(const 鍵の列& 列) const {
    QStringList 句;
    for (const auto& c : 列.列順) {
        句.append(列名(列, c.名前) + u" = '"_qs + 値(*this, c.何) + u"'"_qs);
    }
    return u" WHERE "_qs + 句.join(u" AND "_qs);
}

QString 伝票鍵::設定(const 鍵の列& 列) const {
    QStringList 句;
    for (const auto& c : 列.列順) {
        句.append(u"["_qs + c.名前 + u"] = '"_qs + 値(*this, c.何) + u"'"_qs);
    }
    return u" "_qs + 句.join(u',');
}

std::optional<伝票鍵> 伝票鍵を読む(const QString& 文字列) {
    if (文字列.size() != 伝票鍵::桁数) return std::nullopt;
    return 伝票鍵を切り出す(文字列);
}

伝票鍵 伝票鍵を切り出す(const QString& 文字列) {
    constexpr qsizetype 日付位置 = 伝票鍵::事業所桁;
    constexpr qsizetype 番号位置 = 日付位置 + 伝票鍵::日付桁;
    return {文字列.mid(0, 伝票鍵::事業所桁), 文字列.mid(日付位置, 伝票鍵::日付桁),
            文字列.mid(番号位置, 伝票鍵::番号桁)};
}

std::optional<伝票鍵> 一覧の伝票鍵(const QString& 文字列) {
    if (文字列.size() != 1 + 伝票鍵::桁数) return std::nullopt;
    return 伝票鍵を読む(文字列.mid(1));
}

std::optional<伝票鍵> 答えの鍵を取る(std::optional<QString>& 答え, QStringView 表の語) {
    if (!答え) return std::nullopt;
    const QString 文字列 = 答え->trimmed();
    if (文字列.contains(表の語)) return std::nullopt;
    std::optional<伝票鍵> 鍵 = 一覧の伝票鍵(文字列);
    if (鍵) 答え.reset();
    return 鍵;
}

QString 明細鍵::条件(const 鍵の列& 列) const {
    return 伝票.条件(列) + u" AND "_qs + 列名(列, 列.行列) + u" = '"_qs + 固有行No + u"'"_qs;
}

明細鍵 明細鍵を切り出す(const QString& 文字列) {
    return {伝票鍵を切り出す(文字列), 文字列.mid(伝票鍵::桁数, 明細鍵::行桁)};
}
