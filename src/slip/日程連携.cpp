#include "slip/出金セッション.h"

namespace {

const QString 修正失敗文言 = u"既に削除されています。修正できませんでした。"_qs;

// The schedule rows that point at the slip as it is stored: always by the kept key.
QString 連携条件(const 出金見出し& h) {
    return h.保持鍵().条件(鍵の列::T営業活動明細);
}

}  // namespace

bool 出金セッション::日程連携確認() {
    記録集合 rs;
    const bool あり = データ.接続().業務DB検索(
        rs, u"SELECT TOP 1"_qs + u" * FROM T営業活動明細"_qs + 連携条件(見出し));
    rs.閉じる();
    return !あり;
}

void 出金セッション::日程連携書換() {
    日程連携更新(見出し.鍵().設定(鍵の列::T営業活動明細));
}

void 出金セッション::日程連携解除() {
    // An empty key in each column: the row no longer points at any slip.
    日程連携更新(::伝票鍵{}.設定(鍵の列::T営業活動明細));
}

// The linked rows are read to the end first and then updated one by one, in the order of the
// schedule; the key values go in as read, so a quote in them breaks that row's update alone.
void 出金セッション::日程連携更新(const QString& 設定) {
    QStringList 更新文;
    記録集合 rs;
    if (データ.接続().業務DB検索(rs, u"SELECT "_qs + u" * FROM T営業活動明細"_qs +
                                         連携条件(見出し) + u" ORDER BY 日付,開始時刻"_qs)) {
        for (; !rs.EOFか(); rs.MoveNext()) {
            更新文.append(u"UPDATE T営業活動明細 SET"_qs + 設定 + u" WHERE [担当者コード] = '"_qs +
                          rs.文字列(u"担当者コード"_qs) + u"'"_qs + u" AND [日付] = '"_qs +
                          rs.文字列(u"日付"_qs) + u"'"_qs + u" AND [開始時刻] = '"_qs +
                          rs.文字列(u"開始時刻"_qs) + u"'"_qs + u" AND [終了時刻] = '"_qs +
                          rs.文字列(u"終了時刻"_qs) + u"'"_qs);
        }
    }
    rs.閉じる();
    for (const QString& 文 : 更新文) {
        const bool 成功 = データ.接続().業務DB実行(文);
        処理結果区分 = 成功 ? 5 : 4;
        処理結果メッセージ = 成功 ? QString() : 修正失敗文言;
    }
}
