#pragma once

#include <functional>
#include <memory>

#include "screen/frm紺碧帳.h"
#include "slip/起動処理.h"
#include "ui/画面ウィンドウ.h"

// The entry screen as the start-up sees it: loading the model, then drawing it in a window.
class 入力画面ウィンドウ : public 入力画面 {
  public:
    explicit 入力画面ウィンドウ(frm紺碧帳& 画面) : 画面(画面) {}
    void 表示() override;
    void 既定フォーカス設定() override;

    std::function<void()> 伝票読込;  // the slip part of the load step
    ScreenWindow* 窓() const { return ウィンドウ.get(); }

  private:
    frm紺碧帳& 画面;
    std::unique_ptr<ScreenWindow> ウィンドウ;
};
