#include "rules/消費税計算.h"
#include "rules/白樺連携番号設定.h"
#include "slip/出金セッション.h"
#include "text/実行時エラー.h"

namespace {

// The link's number tables, reached through the link's own statements so that their failures
// land in this run's history.
番号環境 連携番号環境(データ環境& e) {
    return 番号環境([&e](記録集合& rs, const QString& 文) { return e.接続().連携DB検索(rs, 文); },
                    [&e](const QString& 文) { return e.接続().連携DB実行(文); }, e.基盤(),
                    e.会社設定().会社());
}

}  // namespace

bool 出金セッション::出張申請確定(const QString& 入力No, std::optional<QString>& 答え) {
    if (入力No == 見出し.出張申請No) return false;
    const 出金見出し 元見出し = 見出し;
    const auto 元行 = 行;
    const short 元最終行 = 最終行;
    const 出金合計 元合計 = 合計;
    const bool 元変更 = 入力変更フラグ;
    const QString 元文言 = お知らせ文言;
    try {
        return 出張申請適用(入力No, 答え);
    } catch (const 実行時エラー&) {
        // The slip goes back whole, so that no half-taken application can be stored.
        見出し = 元見出し;
        行 = 元行;
        最終行 = 元最終行;
        合計 = 元合計;
        入力変更フラグ = 元変更;
        お知らせ文言 = 元文言;
        throw;
    }
}

bool 出金セッション::出張申請適用(const QString& 入力No, std::optional<QString>& 答え) {
    auto& h = 見出し;
    入力変更フラグ = true;
    if (入力No.isEmpty()) {
        // Office and base date stay, as do the lines taken over before.
        h.出張申請No.clear();
        お知らせ文言.clear();
        return true;
    }

    // A pick from the trip list answers with its row's key: "C", office, base date, number.
    const auto 選んだ鍵 = 答えの鍵を取る(答え, u"出張申請");
    auto 鍵 = (選んだ鍵 ? *選んだ鍵 : h.出張申請鍵()).番号替え(入力No);
    if (鍵.番号基準日付.isEmpty()) {
        // A typed number belongs to the period of the slip date.
        鍵.番号基準日付 = 連携番号基準日付取得(
            連携番号環境(データ), 番号定数::出張申請番号ID.toString(), h.出金日付, 鍵.事業所コード);
    }
    記録集合 rs;
    if (!データ.接続().連携DB検索(
            rs, u"SELECT T出張申請.*"_qs + u" FROM T出張申請"_qs + 鍵.条件(鍵の列::T出張申請))) {
        rs.閉じる();
        h.出張申請事業所コード.clear();
        h.出張申請番号基準日付.clear();
        h.出張申請No.clear();
        お知らせ文言 = u"該当情報がありません。"_qs;
        return true;
    }
    h.出張申請事業所コード = rs.文字列(u"事業所コード"_qs);
    h.出張申請番号基準日付 = rs.文字列(u"番号基準日付"_qs);
    h.出張申請No = rs.文字列(u"出張申請No"_qs);
    rs.閉じる();
    旅費明細取込();
    合計再計算();
    お知らせ文言.clear();
    return true;
}

void 出金セッション::旅費明細取込() {
    // Lines come in only on a slip without any.
    if (最終行 != -1) return;
    const auto& h = 見出し;
    const QString 文 =
        u"SELECT T出張旅費.*,K旅費区分.名称 AS 旅費区分名,K旅費区分.費目区分"_qs +
        u" FROM K旅費区分 INNER JOIN T出張旅費 ON K旅費区分.区分 = T出張旅費.旅費区分"_qs +
        h.出張申請鍵().条件(鍵の列::T出張旅費) + u" ORDER BY T出張旅費.旅費行No"_qs;
    記録集合 rs;
    if (データ.接続().連携DB検索(rs, 文)) {
        // No limit of its own: a sixteenth row takes the spare slot, a seventeenth ends the
        // take-over with 添字範囲外.
        for (; !rs.EOFか(); rs.MoveNext()) {
            ++最終行;
            出金行& l = 新しい行枠(最終行);
            if (!rs.Null(u"費目区分"_qs)) l.費目区分 = rs.整数(u"費目区分"_qs);
            if (!rs.Null(u"旅費摘要"_qs)) {
                // One carriage return without a line feed, stored as it stands.
                l.摘要 = rs.文字列(u"旅費区分名"_qs) + QChar(13) + rs.文字列(u"旅費摘要"_qs);
            }
            if (!rs.Null(u"旅費金額"_qs)) l.出金金額 = rs.金額値(u"旅費金額"_qs);
            short 区分 = 0, 内外 = 1;
            QString 名称;
            if (費目区分検索(l.費目区分, 区分, 名称, 内外)) {
                l.費目区分 = 区分;
                l.費目区分名称 = 名称;
            } else {
                l.費目区分 = 0;
            }
            旅費明細取込時再計算(データ.接続(), l, 内外, h.出金日付);
        }
    }
    rs.閉じる();
}
