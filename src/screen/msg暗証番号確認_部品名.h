#pragma once

#include "screen/部品名.h"

// Every control of the window by name, in the order of its table; the table takes its names
// from these constants and is checked to hold every one of them.
// clang-format off
#define 暗証番号確認の部品(X) \
    X(itm_ttl_担当者コード) \
    X(担当者コード) \
    X(itm_ttl_担当者名) \
    X(担当者名) \
    X(itm_ttl_暗証番号) \
    X(暗証番号) \
    X(btn_OK) \
    X(btn_キャンセル)
// clang-format on

struct 暗証番号確認部品 {
#define 暗証番号確認の部品名(n) static constexpr 部品名 n{u"" #n};
    暗証番号確認の部品(暗証番号確認の部品名)
#undef 暗証番号確認の部品名
#define 暗証番号確認の部品並び(n) n,
    static constexpr 部品名 全て[] = {暗証番号確認の部品(暗証番号確認の部品並び)};
#undef 暗証番号確認の部品並び
};
