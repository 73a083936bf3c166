#pragma once

#include <functional>

#include "screen/frm紺碧帳.h"
#include "slip/起動処理.h"

// The entry screen as the start-up shows it, without a window.
class 窓なしの入力画面 : public 入力画面 {
  public:
    窓なしの入力画面(frm紺碧帳& f, std::function<void()> 読込)
        : 画面(f), 伝票読込(std::move(読込)) {}
    void 表示() override { 画面.画面読込(伝票読込); }
    void 既定フォーカス設定() override { 画面.フォーカス設定(画面.画面(u"担当者コード"_qs)); }

  private:
    frm紺碧帳& 画面;
    std::function<void()> 伝票読込;
};
