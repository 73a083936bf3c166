#include <gtest/gtest.h>

#include "text/シフトJIS変換.h"

namespace {

TEST(CP932変換器, 漢字と半角カナと波ダッシュをCP932のバイトにして後ろに足す) {
    CP932変換器 変換器;
    QByteArray 出力("x");
    qsizetype 位置 = 99;
    ASSERT_TRUE(変換器.追加(u"文具ｱ〜,A\r\n"_qs, 出力, 位置));
    EXPECT_EQ(位置, -1);
    EXPECT_EQ(出力, QByteArray("x\x95\xb6\x8b\xef\xb1\x81\x60,A\r\n"));
}

TEST(CP932変換器, CP932にない文字はその位置を告げて出力を元のままにし次の文字列は変換できる) {
    CP932変換器 変換器;
    QByteArray 出力("ab");
    qsizetype 位置 = 0;
    EXPECT_FALSE(変換器.追加(u"韓国 한국"_qs, 出力, 位置));
    EXPECT_EQ(位置, 3);
    EXPECT_EQ(出力, QByteArray("ab"));
    EXPECT_FALSE(変換器.追加(u"吉𠮷"_qs, 出力, 位置));
    EXPECT_EQ(位置, 1);
    ASSERT_TRUE(変換器.追加(u"髙"_qs, 出力, 位置));
    EXPECT_EQ(出力, QByteArray("ab\xfb\xfc"));
}

}  // namespace
