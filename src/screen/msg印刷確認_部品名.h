#pragma once

#include "screen/部品名.h"

// Every control of the window by name, in the order of its table; the table takes its names
// from these constants and is checked to hold every one of them.
// clang-format off
#define 印刷確認の部品(X) \
    X(lab_inpmsg) \
    X(lab_msg) \
    X(btn_登録印刷) \
    X(btn_登録) \
    X(btn_いいえ)
// clang-format on

struct 印刷確認部品 {
#define 印刷確認の部品名(n) static constexpr 部品名 n{u"" #n};
    印刷確認の部品(印刷確認の部品名)
#undef 印刷確認の部品名
#define 印刷確認の部品並び(n) n,
    static constexpr 部品名 全て[] = {印刷確認の部品(印刷確認の部品並び)};
#undef 印刷確認の部品並び
};
