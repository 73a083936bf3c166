#include <gtest/gtest.h>

#include "slip/コマンドライン.h"

namespace {

起動モード モード(const QString& s) {
    return 起動コマンド::解析(s).モード();
}

TEST(コマンドライン, 空や空白だけなら通常) {
    EXPECT_EQ(モード(QString()), 起動モード::通常);
    EXPECT_EQ(モード(u"    "_qs), 起動モード::通常);
}

TEST(コマンドライン, 十一文字では番号が空で不正だが事業所は取れる) {
    const auto c = 起動コマンド::解析(u"00120240401"_qs);
    EXPECT_EQ(c.モード(), 起動モード::不正);
    EXPECT_EQ(c.事業所コード, u"001"_qs);
    EXPECT_EQ(c.番号基準日付, u"20240401"_qs);
    EXPECT_EQ(c.出金No, QString());
}

TEST(コマンドライン, 事業所と零の日付と零の番号の十九文字は連携新規で日付と担当者は空) {
    const auto c = 起動コマンド::解析(u"0010000000000000000"_qs);
    EXPECT_EQ(c.モード(), 起動モード::連携新規);
    EXPECT_EQ(c.出金日付, QString());
    EXPECT_EQ(c.担当者コード, QString());
}

TEST(コマンドライン, 基準日付だけ零なら文字通りの零の日付でキー起動) {
    EXPECT_EQ(モード(u"0010000000000000005"_qs), 起動モード::キー起動);
}

TEST(コマンドライン, 全ての欄を位置で切り三十二文字より後ろは捨てる) {
    const auto c = 起動コマンド::解析(u"  001202404010000001220240415000077777  "_qs);
    EXPECT_EQ(c.全体, u"001202404010000001220240415000077777"_qs);
    EXPECT_EQ(c.事業所コード, u"001"_qs);
    EXPECT_EQ(c.番号基準日付, u"20240401"_qs);
    EXPECT_EQ(c.出金No, u"00000012"_qs);
    EXPECT_EQ(c.出金日付, u"20240415"_qs);
    EXPECT_EQ(c.担当者コード, u"00007"_qs);
    EXPECT_EQ(c.モード(), 起動モード::キー起動);
}

TEST(コマンドライン, 基準日付が空白なら不正) {
    EXPECT_EQ(モード(u"001        00000001"_qs), 起動モード::不正);
}

TEST(コマンドライン, 番号の欄は空白一つでも長さがあればキーになる) {
    // The No is not trimmed for the test; the whole line is, so the blank needs text behind it.
    EXPECT_EQ(モード(u"00120240401 x"_qs), 起動モード::キー起動);
}

TEST(コマンドライン, 連携新規の比較は完全一致) {
    EXPECT_EQ(モード(u"0010000000000000000 "_qs), 起動モード::連携新規);
    EXPECT_EQ(モード(u"001000000000000000"_qs), 起動モード::キー起動);
}

}  // namespace
