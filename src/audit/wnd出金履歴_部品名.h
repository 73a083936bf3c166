#pragma once

#include "screen/部品名.h"

// Every control of the history window by name, in the order of its table; the table takes its
// names from these constants and is checked to hold every one of them.
// clang-format off
#define 出金履歴の部品(X) \
    X(wnd_ttl) \
    X(lab_伝票) \
    X(lst_状態) \
    X(lab_合計) \
    X(lab_欠け) \
    X(lst_見出し) \
    X(lst_明細) \
    X(btn_戻る)
// clang-format on

struct 出金履歴部品 {
#define 出金履歴の部品名(n) static constexpr 部品名 n{u"" #n};
    出金履歴の部品(出金履歴の部品名)
#undef 出金履歴の部品名
#define 出金履歴の部品並び(n) n,
    static constexpr 部品名 全て[] = {出金履歴の部品(出金履歴の部品並び)};
#undef 出金履歴の部品並び
};
