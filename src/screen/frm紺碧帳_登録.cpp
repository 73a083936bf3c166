#include "dataenv/操作権限.h"
#include "rules/集計日付計算.h"
#include "screen/frm紺碧帳.h"
#include "text/プラットフォーム.h"

void frm紺碧帳::離脱項目へ() {
    if (状態.離脱項目) 画面.SetFocus(*状態.離脱項目);
}

bool frm紺碧帳::書込権限確認(short 操作区分) {
    データ環境& d = s.データ;
    // Both checks run, whatever the first one answered.
    const bool 権限 = 操作権限OK(d.操作者権限().操作権限確認(u"翠嶺"_qs, u"紺碧帳"_qs, 操作区分));
    const bool 期間 =
        修正期間確認(d.会社設定().会社(), d.基盤(), s.見出し.出金日付, s.見出し.保持出金日付,
                     s.新規情報フラグ, d.操作者権限().操作者().アクセス権限);
    if (権限 && 期間) return true;
    d.基盤().メッセージ(u"操作権限がありません。"_qs);
    離脱項目へ();
    return false;
}

bool frm紺碧帳::保存未確定なら戻る() {
    if (!s.保存未確定) return false;
    // Nothing was stored, and the slip is still as typed: the operator hears why and may try
    // again.
    s.データ.基盤().お待ち表示(false);
    s.データ.基盤().メッセージ(s.処理結果メッセージ);
    離脱項目へ();
    return true;
}

void frm紺碧帳::新しい伝票へ() {
    s.出金情報初期化();
    画面全表示();
    詳細初期化();
    s.データ.基盤().お待ち表示(false);
    if (s.連携起動フラグ) {
        // The slip is clear now, so the quit asks nothing and ends the run.
        bool 取消 = false;
        終了確認(取消);
        return;
    }
    if (状態.先頭入力項目) 画面.SetFocus(*状態.先頭入力項目);
}

void frm紺碧帳::登録処理() {
    データ環境& d = s.データ;
    const bool 新規 = s.新規情報フラグ;
    if (!書込権限確認(新規 ? 1 : 2)) return;
    if (新規) {
        印刷確認.登録確認(u"紺碧帳"_qs, QString(), u"登録します。よろしいですか？"_qs, -1);
    } else {
        印刷確認.登録確認(u"紺碧帳"_qs, QString(), u"修正します。よろしいですか？"_qs,
                          msg印刷確認::赤192);
    }
    if (s.登録確認結果 == 2) {
        離脱項目へ();
        return;
    }
    d.基盤().お待ち表示(true);
    d.基盤().保留イベント処理();
    if (新規) {
        s.新規登録処理();
        if (s.連携起動フラグ && s.処理結果区分 == 1)
            s.データ.プログラム連携().終了時連携情報設定(s.伝票鍵().文字列());
    } else {
        s.修正登録処理();
    }
    if (保存未確定なら戻る()) return;
    // The slip is printed from memory, before the clear; a refused right passes in silence.
    if (s.登録確認結果 == 0 &&
        操作権限OK(d.操作者権限().操作権限確認(u"翠嶺"_qs, u"紺碧帳書"_qs, 4))) {
        帳票起動する(u"0"_qs);
    }
    新しい伝票へ();
}
