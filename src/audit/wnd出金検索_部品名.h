#pragma once

#include "screen/部品名.h"

// Every control of the slip search window by name, in the order of its table; the table takes
// its names from these constants and is checked to hold every one of them.
// clang-format off
#define 出金検索の部品(X) \
    X(wnd_ttl) \
    X(itm_ttl_出金日付) \
    X(出金日付自) \
    X(lab_出金日付から) \
    X(出金日付至) \
    X(itm_ttl_合計金額) \
    X(合計金額自) \
    X(lab_合計金額から) \
    X(合計金額至) \
    X(itm_ttl_明細金額) \
    X(明細金額自) \
    X(lab_明細金額から) \
    X(明細金額至) \
    X(itm_ttl_支払先) \
    X(支払先) \
    X(itm_ttl_担当者コード) \
    X(担当者コード) \
    X(itm_ttl_事業所コード) \
    X(事業所コード) \
    X(itm_ttl_出金No) \
    X(出金No自) \
    X(lab_出金Noから) \
    X(出金No至) \
    X(chb_付属書類あり) \
    X(chb_削除済) \
    X(btn_検索) \
    X(btn_書類を開く) \
    X(btn_画面クリア) \
    X(btn_戻る) \
    X(lab_注意) \
    X(lab_知らせ) \
    X(List出金検索)
// clang-format on

struct 出金検索部品 {
#define 出金検索の部品名(n) static constexpr 部品名 n{u"" #n};
    出金検索の部品(出金検索の部品名)
#undef 出金検索の部品名
#define 出金検索の部品並び(n) n,
    static constexpr 部品名 全て[] = {出金検索の部品(出金検索の部品並び)};
#undef 出金検索の部品並び
};
