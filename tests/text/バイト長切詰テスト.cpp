#include <gtest/gtest.h>

#include <clocale>

#include "text/項目編集.h"

TEST(バイト長切詰, 上限を超えると全角文字をまるごと落とす) {
    EXPECT_EQ(バイト長切詰(u"あいう"_qs, 5), u"あい"_qs);
}

TEST(バイト長切詰, 上限ちょうどならそのまま返す) {
    EXPECT_EQ(バイト長切詰(u"あいう"_qs, 6), u"あいう"_qs);
}

TEST(バイト長切詰, 最初の全角文字が入らなければ空になる) {
    EXPECT_EQ(バイト長切詰(u"あいう"_qs, 1), QString());
}

TEST(バイト長切詰, 空の文字列は空のまま) {
    EXPECT_EQ(バイト長切詰(QString(), 5), QString());
    EXPECT_EQ(バイト長切詰(QString(), 0), QString());
}

TEST(バイト長切詰, 半角文字は一バイトと数える) {
    EXPECT_EQ(バイト長切詰(u"abcdef"_qs, 4), u"abcd"_qs);
    EXPECT_EQ(バイト長切詰(u"ｱｲｳｴ"_qs, 3), u"ｱｲｳ"_qs);
    EXPECT_EQ(バイト長切詰(u"aあb"_qs, 2), u"a"_qs);
    EXPECT_EQ(バイト長切詰(u"aあb"_qs, 3), u"aあ"_qs);
}

TEST(バイト長切詰, 上限ゼロなら空になる) {
    EXPECT_EQ(バイト長切詰(u"a"_qs, 0), QString());
}

TEST(バイト長切詰, シフトJISのバイト長を数える) {
    EXPECT_EQ(シフトJISバイト長(u"あa"_qs), 3);
    EXPECT_EQ(シフトJISバイト長(u"ｶﾞ"_qs), 2);
    EXPECT_EQ(シフトJISバイト長(u"出金伝票"_qs), 8);
    EXPECT_EQ(シフトJISバイト長(QString()), 0);
}

TEST(バイト長切詰, 機種依存文字もCP932の二バイトと数える) {
    EXPECT_EQ(シフトJISバイト長(u"①"_qs), 2);
    EXPECT_EQ(シフトJISバイト長(u"～"_qs), 2);
}

TEST(バイト長切詰, シフトJISにない文字は一バイトと数える) {
    EXPECT_EQ(シフトJISバイト長(u"é"_qs), 1);
    EXPECT_EQ(シフトJISバイト長(u"😀"_qs), 2);  // two UTF-16 units, two "?"
}

TEST(バイト長切詰, ロケールにかかわらずシフトJISで数える) {
    const std::string 元 = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(シフトJISバイト長(u"あいう"_qs), 6);
    EXPECT_EQ(バイト長切詰(u"あいう"_qs, 5), u"あい"_qs);
    std::setlocale(LC_ALL, 元.c_str());
}
