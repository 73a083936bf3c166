#pragma once

#include <gtest/gtest.h>

#include "common/試験用ツリー.h"
#include "slip/出金セッション.h"
#include "text/台本プラットフォーム.h"

// A session opened on a tree as the start leaves it: databases open, company read, and an
// empty slip of office 000 for the scripted clock's day.
inline void 出金セッション準備(出金セッション& s, 試験用ツリー& 木) {
    s.データ.自身のフォルダ = 木.プログラムフォルダ();
    ASSERT_TRUE(s.データ.SYB_OPEN());
    ASSERT_TRUE(s.データ.DB_OPEN());
    ASSERT_TRUE(s.データ.基本項目読込());
    const QDate 今日 = s.データ.基盤.現在時刻().date();
    s.見出し.事業所コード = u"000"_qs;
    s.見出し.出金日付年 = QString::number(今日.year());
    s.見出し.出金日付月 = QString::number(今日.month()).rightJustified(2, u'0');
    s.見出し.出金日付日 = QString::number(今日.day()).rightJustified(2, u'0');
    s.出金日付確定();
}
