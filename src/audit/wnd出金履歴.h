#pragma once

#include <optional>

#include "audit/出金履歴.h"
#include "screen/画面モデル.h"
#include "slip/出金セッション.h"

// The history window: every state of the slip whose key the screen below left in 履歴鍵, newest
// first; the state chosen (Enter or a click) shows its header and lines beside the state before
// it, with each changed value marked, the lines added and removed, and the totals.
class wnd出金履歴 {
  public:
    wnd出金履歴(出金セッション& s, 画面モデル& 主画面);

    static const 部品表 部品定義表;

    出金セッション& s;
    画面モデル& 主;
    画面モデル 画面{u"wnd出金履歴"_qs};
    std::optional<出金履歴> 履歴;

    void 読込();
    // Shows the state of the row (0 the newest) in the header and line lists.
    void 状態表示(int 行);
    void 戻る();
};
