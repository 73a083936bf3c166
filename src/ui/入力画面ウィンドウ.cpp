#include "ui/入力画面ウィンドウ.h"
#include "screen/frm紺碧帳_部品名.h"

void 入力画面ウィンドウ::表示() {
    画面.画面読込(伝票読込);
    ウィンドウ = std::make_unique<ScreenWindow>(画面.画面);
    // The frame's close is the quit of the screen, with its questions; a cancel keeps it up.
    ウィンドウ->閉じてよいか = [this] {
        bool 取消 = false;
        画面.終了確認(取消);
        return !取消;
    };
    ウィンドウ->show();
}

void 入力画面ウィンドウ::既定フォーカス設定() {
    画面.フォーカス設定(画面.画面(紺碧帳部品::担当者コード));
    if (ウィンドウ) {
        ウィンドウ->activateWindow();
        ウィンドウ->反映();
    }
}
