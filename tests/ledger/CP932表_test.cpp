#include <gtest/gtest.h>

#include <QString>

#include "ledger/CP932表.h"

namespace {

// The remembered table answers as the system's conversion does, character by character over
// the whole basic plane, and for a text with a character CP932 lacks.
TEST(CP932表, 基本面の文字ごとにシステムの変換と同じバイトと不可を答える) {
    CP932変換器 系;
    ASSERT_TRUE(系.表あり());
    CP932表 表;
    int 違い = 0, 可 = 0;
    for (char32_t u = 1; u < 0x10000; ++u) {
        if (u >= 0xD800 && u <= 0xDFFF) continue;
        const QString 字(QChar(static_cast<char16_t>(u)));
        QByteArray 期待 = "x", 結果 = "x";
        qsizetype 期待位置, 位置;
        const bool 期待可 = 系.追加(字, 期待, 期待位置);
        const bool 可否 = 表.追加(字, 結果, 位置);
        if (期待可 != 可否 || 期待 != 結果 || 期待位置 != 位置) ++違い;
        if (可否) ++可;
    }
    EXPECT_EQ(違い, 0);
    EXPECT_GT(可, 7000);  // ASCII, half-width kana and the JIS characters
}

TEST(CP932表, ない文字の位置を告げ出力を元のままにし次の文字列は続けて変換する) {
    CP932表 表;
    QByteArray 出力 = "ab";
    qsizetype 位置;
    EXPECT_FALSE(表.追加(u"東京한국", 出力, 位置));
    EXPECT_EQ(位置, 2);
    EXPECT_EQ(出力, QByteArray("ab"));
    EXPECT_FALSE(表.追加(u"x\U0001F600", 出力, 位置));  // beyond the basic plane
    EXPECT_EQ(位置, 1);
    EXPECT_TRUE(表.追加(u"～①ｱ\\", 出力, 位置));
    EXPECT_EQ(位置, -1);
    EXPECT_EQ(出力, QByteArray("ab\x81\x60\x87\x40\xB1\\"));
}

}  // namespace
