#include "slip/出金セッション.h"

// The stored rows go to the history as the old state and away, in one batch as a store does;
// no new state is written, so the queue gets one row. A schedule row keeps its place and only
// loses the link.
void 出金セッション::削除処理() {
    const 保存前控え 控え = 控えを取る();
    業務DB一括 一括(データ.接続(), u"削除処理"_qs);
    見出し.出金履歴No.clear();
    見出し.旧出金履歴No.clear();
    見出し.処理区分 = u"2"_qs;
    出金履歴書込();
    出金明細履歴書込();
    後処理();
    if (確定を確かめる(控え)) 日程連携解除();
}

// A slip that a schedule points at can still be deleted; the question only warns of it.
QString 出金セッション::削除確認文言() {
    const QString 問い = u"削除しますか?"_qs;
    return 日程連携確認() ? 問い : u"日程情報に登録済です。"_qs + 問い;
}
