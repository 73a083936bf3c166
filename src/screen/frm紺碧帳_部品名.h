#pragma once

#include "screen/部品名.h"

// Every control of the entry screen by name, in the order of its table. The table's rows take
// their names from these constants, and the table is checked to hold every one of them.
// clang-format off
#define 紺碧帳の部品(X) \
    X(prg_ttl) \
    X(manualpanel) \
    X(itm_ttl_出金日付) \
    X(出金日付年) \
    X(Lab_出金日付年) \
    X(出金日付月) \
    X(Lab_出金日付月) \
    X(出金日付日) \
    X(lab_出金日付日) \
    X(btn_出金No) \
    X(出金No) \
    X(btn_次No) \
    X(btn_前No) \
    X(btn_担当者コード) \
    X(担当者コード) \
    X(担当者名) \
    X(btn_画面クリア) \
    X(btn_行クリア) \
    X(btn_行挿入) \
    X(btn_行複写) \
    X(btn_部門コード) \
    X(部門コード) \
    X(部門名) \
    X(btn_セクションコード) \
    X(セクションコード) \
    X(セクション名) \
    X(btn_出張申請No) \
    X(出張申請No) \
    X(btn_参照元No) \
    X(ヘッド終了) \
    X(baK_dtl_heada) \
    X(itm_ttl_費目区分) \
    X(itm_ttl_内税外税) \
    X(tab_詳細) \
    X(baK_出金_headb) \
    X(itm_ttl_支払先) \
    X(itm_ttl_摘要) \
    X(itm_ttl_出金金額) \
    X(itm_ttl_出金消費税) \
    X(bak_dtla) \
    X(bak_dtlb) \
    X(費目区分) \
    X(費目区分名称) \
    X(btn_摘要) \
    X(内税外税区分) \
    X(内税外税区分名称) \
    X(支払先) \
    X(chb_課税事業所区分) \
    X(摘要) \
    X(Lab_消費税率) \
    X(消費税率) \
    X(出金金額) \
    X(出金消費税) \
    X(頁1終了) \
    X(scl_行) \
    X(List付属書類) \
    X(btn_付属書類追加) \
    X(btn_付属書類削除) \
    X(btn_フォルダ) \
    X(bak_合計) \
    X(itm_ttl_出金伝票備考) \
    X(出金伝票備考A) \
    X(出金伝票備考B) \
    X(itm_ttl_出金合計) \
    X(出金金額合計) \
    X(出金消費税合計) \
    X(itm_ttl_実質出金金額合計) \
    X(実質出金金額合計) \
    X(btn_軽減税率切替) \
    X(bak_税別合計) \
    X(itm_ttl_前回税率合計) \
    X(前回税率出金金額合計) \
    X(前回税率出金消費税合計) \
    X(itm_ttl_今回税率合計) \
    X(今回税率出金金額合計) \
    X(今回税率出金消費税合計) \
    X(btn_通常表示切替) \
    X(テイル終了) \
    X(btn_登録) \
    X(btn_削除) \
    X(btn_終了) \
    X(btn_印刷) \
    X(btn_プレビュ) \
    X(btn_帳票イメージ出力) \
    X(お知らせ)
// clang-format on

struct 紺碧帳部品 {
#define 紺碧帳の部品名(n) static constexpr 部品名 n{u"" #n};
    紺碧帳の部品(紺碧帳の部品名)
#undef 紺碧帳の部品名
#define 紺碧帳の部品並び(n) n,
    static constexpr 部品名 全て[] = {紺碧帳の部品(紺碧帳の部品並び)};
#undef 紺碧帳の部品並び
};
