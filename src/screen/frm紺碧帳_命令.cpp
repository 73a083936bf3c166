#include "dataenv/操作権限.h"
#include "rules/帳票起動.h"
#include "screen/frm紺碧帳.h"
#include "text/プラットフォーム.h"

namespace {

// A plain question with Yes and No; the two sentences of a question stand on two lines.
bool 問う(プラットフォーム& 基盤, const QString& 文, int 既定ボタン = 1) {
    メッセージ指定 指定;
    指定.本文 = 文;
    指定.ボタン = ボタン種別::はいいいえ;
    指定.既定ボタン = 既定ボタン;
    return 基盤.メッセージ表示(指定) == 応答::はい;
}

const QString 入力あり = u"入力がありました。"_qs;

}  // namespace

void frm紺碧帳::削除() {
    if (画面使用中) return;
    if (!書込権限確認(3)) return;
    // No is the default: a deletion is never the quiet answer.
    if (!問う(s.データ.基盤(), s.削除確認文言(), 2)) {
        離脱項目へ();
        return;
    }
    s.データ.基盤().お待ち表示(true);
    s.データ.基盤().保留イベント処理();
    s.削除処理();
    if (保存未確定なら戻る()) return;
    新しい伝票へ();
}

void frm紺碧帳::画面クリア() {
    if (画面使用中) return;
    if (s.入力変更フラグ && !問う(s.データ.基盤(), 入力あり + u"\r"_qs + u"クリアしますか？"_qs)) {
        離脱項目へ();
        return;
    }
    s.出金情報初期化();
    画面全表示();
    詳細初期化();
    if (状態.先頭入力項目) 画面.SetFocus(*状態.先頭入力項目);
}

void frm紺碧帳::隣へ(bool 前) {
    if (画面使用中) return;
    // Whether there is a neighbour is asked first, so nothing is asked when there is none.
    const bool ある = 前 ? s.前No確認() : s.次No確認();
    const QString 問い =
        入力あり + u"\r"_qs +
        (前 ? u"クリアし前Noを表示しますか？"_qs : u"クリアし次Noを表示しますか？"_qs);
    if (!ある || (s.入力変更フラグ && !問う(s.データ.基盤(), 問い))) {
        離脱項目へ();
        return;
    }
    if (前) {
        s.前No読込();
    } else {
        s.次No読込();
    }
    画面全表示();
    スクロール更新();
    if (状態.先頭入力項目) 画面.SetFocus(*状態.先頭入力項目);
}

void frm紺碧帳::帳票(const QString& 出力区分) {
    if (画面使用中) return;
    データ環境& d = s.データ;
    const short 区分 = 出力区分 == u"0" ? 4 : 出力区分 == u"1" ? 5 : 7;
    const QString 問い = 出力区分 == u"0"   ? u"印刷しますか?"_qs
                         : 出力区分 == u"1" ? u"プレビュしますか?"_qs
                                            : u"PDFを作成しますか?"_qs;
    // A refused right ends the command without a word.
    if (操作権限OK(d.操作者権限().操作権限確認(u"翠嶺"_qs, u"紺碧帳書"_qs, 区分)) &&
        問う(d.基盤(), 問い)) {
        帳票起動する(出力区分);
        if (出力区分 == u"3") {
            // The report program writes the PDF and registers it; the list is read once it is
            // likely done.
            for (int i = 0; i < 151; ++i) {
                d.基盤().待機(10);
                d.基盤().保留イベント処理();
            }
            付属書類listint();
        }
    }
    if (出力区分 == u"0") 離脱項目へ();
}

void frm紺碧帳::帳票起動する(const QString& 出力区分) {
    const 出金見出し& h = s.見出し;
    ::帳票起動(s.データ.接続(), 出力区分, h.事業所コード, h.出金日付, h.出金No, h.担当者コード);
}

void frm紺碧帳::終了確認(bool& 取消) {
    取消 = false;
    if (!s.新規情報フラグ && !必須項目案内()) {
        取消 = true;
        return;
    }
    if (s.入力変更フラグ && !問う(s.データ.基盤(), 入力あり + u"\r"_qs + u"終了しますか？"_qs)) {
        取消 = true;
        離脱項目へ();
        return;
    }
    if (停止) 停止();
}
