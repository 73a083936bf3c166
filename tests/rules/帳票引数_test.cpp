#include <gtest/gtest.h>

#include "rules/帳票引数.h"

namespace {

TEST(帳票引数, 四十七桁に範囲の両端と定数の2が並ぶ) {
    const QString 引数 = 帳票引数(u"001"_qs, u"3"_qs, u"20260331"_qs, u"00000012"_qs, u"00003"_qs);
    EXPECT_EQ(引数, u"001320260331202603310000001200000012000030000"_qs + u"32"_qs);
    EXPECT_EQ(引数.size(), 47);
}

TEST(帳票引数, 八桁に足りない出金Noは右を空白で埋め位置を保つ) {
    const QString 引数 = 帳票引数(u"000"_qs, u"0"_qs, u"20251120"_qs, u"12"_qs, u"00003"_qs);
    EXPECT_EQ(引数.mid(20, 8), u"12      "_qs);
    EXPECT_EQ(引数.mid(28, 8), u"12      "_qs);
    EXPECT_EQ(引数.mid(36, 10), u"0000300003"_qs);
    EXPECT_EQ(引数.size(), 47);
    EXPECT_EQ(引数.right(1), u"2"_qs);
}

TEST(帳票引数, 五桁を超える担当者コードは五桁に切る) {
    const QString 引数 =
        帳票引数(u"000"_qs, u"1"_qs, u"20251120"_qs, u"00000001"_qs, u"1234567"_qs);
    EXPECT_EQ(引数.mid(36, 5), u"12345"_qs);
    EXPECT_EQ(引数.mid(41, 5), u"12345"_qs);
    EXPECT_EQ(引数.size(), 47);
}

TEST(帳票引数, 空の担当者と出金Noも空白で桁を保つ) {
    const QString 引数 = 帳票引数(u"000"_qs, u"0"_qs, u"20251120"_qs, QString(), QString());
    EXPECT_EQ(引数.mid(20, 26), QString(26, u' '));
    EXPECT_EQ(引数.size(), 47);
}

}  // namespace
