#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "text/数値書式.h"

// A text with an exponent as large as the reader takes ("1D999999" is a number) has a million
// digits; grouped by three they are written in one pass, not one insert of a comma at a time,
// which took minutes and held the screen that formatted such a text.
TEST(数値書式長大, 百万桁の数も三桁区切りで書ける) {
    QElapsedTimer 計時;
    計時.start();
    const QString 結果 = 書式(u"1D999999"_qs, u"#,##0");
    // Milliseconds in one pass; the bound leaves room for a loaded machine.
    EXPECT_LT(計時.elapsed(), 3000);
    ASSERT_EQ(結果.size(), 1000000 + 333333);
    EXPECT_TRUE(結果.startsWith(u"1,000,000,"_qs));
    EXPECT_TRUE(結果.endsWith(u",000"_qs));
    EXPECT_EQ(結果.count(u','), 333333);
}

TEST(数値書式長大, 区切りの位置は従来どおり) {
    EXPECT_EQ(書式(1234567, u"#,##0"), u"1,234,567"_qs);
    EXPECT_EQ(書式(-1234, u"#,##0"), u"-1,234"_qs);
    EXPECT_EQ(書式(123, u"#,##0"), u"123"_qs);
    EXPECT_EQ(書式(1234, u"#,##0"), u"1,234"_qs);
    EXPECT_EQ(書式(0, u"#,##0"), u"0"_qs);
}
