#include <gtest/gtest.h>

#include "text/実行時エラー.h"
#include "text/数値変換.h"

TEST(数値変換, 先頭の数値部分だけを読む) {
    EXPECT_DOUBLE_EQ(数値変換(u"2024"), 2024.0);
    EXPECT_DOUBLE_EQ(数値変換(u"12円"), 12.0);
    EXPECT_DOUBLE_EQ(数値変換(u"-3.5"), -3.5);
    EXPECT_DOUBLE_EQ(数値変換(u"+7"), 7.0);
    EXPECT_DOUBLE_EQ(数値変換(u"1.2.3"), 1.2);
    EXPECT_DOUBLE_EQ(数値変換(u".5"), 0.5);
}

TEST(数値変換, 空や数字で始まらない文字列はゼロ) {
    EXPECT_DOUBLE_EQ(数値変換(u""), 0.0);
    EXPECT_DOUBLE_EQ(数値変換(u"abc"), 0.0);
    EXPECT_DOUBLE_EQ(数値変換(u"A1"), 0.0);
    EXPECT_DOUBLE_EQ(数値変換(u"--1"), 0.0);
}

TEST(数値変換, 空白とタブと改行はどこにあっても読み飛ばす) {
    EXPECT_DOUBLE_EQ(数値変換(u"    1615 198th Street N.E."), 1615198.0);
    EXPECT_DOUBLE_EQ(数値変換(u"\t1\n2"), 12.0);
}

TEST(数値変換, 桁区切りのカンマで読み止める) {
    EXPECT_DOUBLE_EQ(数値変換(u"1,234"), 1.0);
}

TEST(数値変換, 指数はEとDの両方で読む) {
    EXPECT_DOUBLE_EQ(数値変換(u"1e3"), 1000.0);
    EXPECT_DOUBLE_EQ(数値変換(u"1.5D2"), 150.0);
    EXPECT_DOUBLE_EQ(数値変換(u"25E-1"), 2.5);
    EXPECT_DOUBLE_EQ(数値変換(u"1E"), 1.0);
    EXPECT_DOUBLE_EQ(数値変換(u"1E+"), 1.0);
}

TEST(数値変換, 十六進と八進は符号付きの整数として読む) {
    EXPECT_DOUBLE_EQ(数値変換(u"&H10"), 16.0);
    EXPECT_DOUBLE_EQ(数値変換(u"&HFFFF"), -1.0);
    EXPECT_DOUBLE_EQ(数値変換(u"&H10000"), 65536.0);
    EXPECT_DOUBLE_EQ(数値変換(u"&O17"), 15.0);
    EXPECT_DOUBLE_EQ(数値変換(u"&H"), 0.0);
}

TEST(数値変換, 倍精度に収まらない値は桁あふれになる) {
    EXPECT_THROW(数値変換(u"1e400"), 桁あふれ);
    EXPECT_DOUBLE_EQ(数値変換(u"1e-400"), 0.0);
}

TEST(数値変換, 小整数値は偶数丸めで十六ビットに収める) {
    EXPECT_EQ(小整数値(u"12"), 12);
    EXPECT_EQ(小整数値(u""), 0);
    EXPECT_EQ(小整数値(u"2.5"), 2);
    EXPECT_EQ(小整数値(u"3.5"), 4);
    EXPECT_EQ(小整数値(u"-2.5"), -2);
    EXPECT_EQ(小整数値(u"32767"), 32767);
    EXPECT_EQ(小整数値(u"-32768"), -32768);
    EXPECT_THROW(小整数値(u"32768"), 桁あふれ);
    EXPECT_THROW(小整数値(u"99999"), 桁あふれ);
}

TEST(数値変換, 小整数へは十六ビットの範囲外を桁あふれにする) {
    EXPECT_EQ(小整数へ(-32768), -32768);
    EXPECT_THROW(小整数へ(32768), 桁あふれ);
    EXPECT_THROW(小整数へ(-32769), 桁あふれ);
}

TEST(数値変換, 全体が数の文字列を数値と認める) {
    EXPECT_TRUE(数値文字列か(u"123"));
    EXPECT_TRUE(数値文字列か(u" 12 "));
    EXPECT_TRUE(数値文字列か(u"1,234"));
    EXPECT_TRUE(数値文字列か(u"-1.5"));
    EXPECT_TRUE(数値文字列か(u"1e3"));
    EXPECT_TRUE(数値文字列か(u".5"));
    EXPECT_TRUE(数値文字列か(u"&H1F"));
}

TEST(数値変換, 数以外を含む文字列と空の文字列は数値と認めない) {
    EXPECT_FALSE(数値文字列か(u""));
    EXPECT_FALSE(数値文字列か(u"A1"));
    EXPECT_FALSE(数値文字列か(u"1A"));
    EXPECT_FALSE(数値文字列か(u"."));
    EXPECT_FALSE(数値文字列か(u"-"));
    EXPECT_FALSE(数値文字列か(u"1 2"));
    EXPECT_FALSE(数値文字列か(u"&H"));
}

TEST(数値変換, 十進数の桁丸めは規則どおりに丸める) {
    const auto 値 = 数値文字列解析(u"2.5").value();
    EXPECT_EQ(値.桁丸め(0, 丸め規則::偶数丸め), "2");
    EXPECT_EQ(値.桁丸め(0, 丸め規則::四捨五入), "3");
    EXPECT_EQ(値.桁丸め(0, 丸め規則::切捨て), "2");
    EXPECT_EQ(値.桁丸め(2, 丸め規則::切捨て), "250");
    EXPECT_EQ(数値文字列解析(u"9.99").value().桁丸め(1, 丸め規則::四捨五入), "100");
    EXPECT_EQ(数値文字列解析(u"0.0004").value().桁丸め(2, 丸め規則::四捨五入), "0");
}
