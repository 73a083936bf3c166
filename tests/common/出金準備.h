#pragma once

#include <gtest/gtest.h>

#include "common/試験用ツリー.h"
#include "slip/出金セッション.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"

// A session opened on a tree as the start leaves it, through the start's own routines:
// databases open, company and workplace read, the operator's right to the program checked (so
// that his record is read), and an empty slip of the workplace's office for the scripted
// clock's day.
inline void 出金セッション準備(出金セッション& s, 試験用ツリー& 木) {
    画面なし 画面;
    紺碧帳起動 起動(s, 画面);
    s.データ.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(起動.データベース開始());
    ASSERT_TRUE(起動.ユーザ情報初期化());
    ASSERT_TRUE(操作権限OK(s.データ.操作者権限().操作権限確認(u"翠嶺"_qs, u"紺碧帳"_qs, 0)));
}

// The same, and the HR link chosen and opened as the start opens it; the tree must have the HR
// system beside it.
inline void 連携したセッション準備(出金セッション& s, 試験用ツリー& 木) {
    出金セッション準備(s, 木);
    if (::testing::Test::HasFatalFailure()) return;
    s.白樺連携フラグ = s.データ.人事連携選択(u"白樺"_qs);
    ASSERT_TRUE(s.白樺連携フラグ);
    ASSERT_TRUE(s.データ.人事連携開始());
}
