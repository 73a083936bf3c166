#include <gtest/gtest.h>

#include "text/台本プラットフォーム.h"
#include "text/実行時エラー.h"
#include "text/暦.h"

TEST(暦, 日付構築は十三月を翌年の一月にする) {
    EXPECT_EQ(日付構築(2024, 13, 1), QDate(2025, 1, 1));
    EXPECT_EQ(日付構築(2023, 15, 0), QDate(2024, 2, 29));
}

TEST(暦, 日付構築は零月を前年の十二月にする) {
    EXPECT_EQ(日付構築(2024, 0, 1), QDate(2023, 12, 1));
    EXPECT_EQ(日付構築(2024, -1, 1), QDate(2023, 11, 1));
}

TEST(暦, 日付構築は零日を前月の末日にする) {
    EXPECT_EQ(日付構築(2024, 3, 0), QDate(2024, 2, 29));
    EXPECT_EQ(日付構築(2024, 1, -1), QDate(2023, 12, 30));
}

TEST(暦, 日付構築は三十日の月の三十一日を翌月一日にする) {
    EXPECT_EQ(日付構築(2023, 4, 31), QDate(2023, 5, 1));
    EXPECT_EQ(日付構築(2023, 2, 30), QDate(2023, 3, 2));
}

TEST(暦, 日付構築は二桁の年を補う) {
    EXPECT_EQ(日付構築(0, 1, 1), QDate(2000, 1, 1));
    EXPECT_EQ(日付構築(29, 1, 1), QDate(2029, 1, 1));
    EXPECT_EQ(日付構築(30, 1, 1), QDate(1930, 1, 1));
    EXPECT_EQ(日付構築(100, 1, 1), QDate(100, 1, 1));
}

TEST(暦, 日付構築は暦の範囲外を日付範囲外にする) {
    EXPECT_THROW(日付構築(10000, 1, 1), 日付範囲外);
    EXPECT_THROW(日付構築(9999, 12, 32), 日付範囲外);
    EXPECT_THROW(日付構築(-1, 1, 1), 日付範囲外);
    EXPECT_EQ(日付構築(9999, 12, 31), QDate(9999, 12, 31));
}

TEST(暦, 日付文字列は年月日八桁になる) {
    EXPECT_EQ(日付文字列(QDate(2024, 3, 5)), u"20240305"_qs);
    EXPECT_EQ(日時文字列(QDateTime(QDate(2024, 3, 5), QTime(9, 8, 7))), u"20240305 090807"_qs);
    EXPECT_EQ(時刻文字列(QTime(13, 4, 5)), u"13:04:05"_qs);
}

TEST(暦, 日付値は文字列の部分を数値で読み繰り越して組み立てる) {
    EXPECT_EQ(日付値(u"20240305"_qs), QDate(2024, 3, 5));
    EXPECT_EQ(日付値(u"20240231"_qs), QDate(2024, 3, 2));
    EXPECT_EQ(日付の年(u"20240305"_qs), 2024);
    EXPECT_EQ(日付の月(u"20240305"_qs), 3);
    EXPECT_EQ(日付の日(u"20240305"_qs), 5);
    EXPECT_EQ(日付の月(u"2024ab05"_qs), 0);
}

TEST(暦, 今日はプラットフォームの時計から読む) {
    台本プラットフォーム 環境;
    環境.時刻 = QDateTime(QDate(2024, 12, 31), QTime(23, 59, 59));
    EXPECT_EQ(今日(環境), u"20241231"_qs);
}

TEST(暦, 三か月前が存在しない日なら月末になる) {
    EXPECT_EQ(月数前(QDate(2024, 5, 31), 3), QDate(2024, 2, 29));
    EXPECT_EQ(月数前(QDate(2023, 5, 31), 3), QDate(2023, 2, 28));
    EXPECT_EQ(月数前(QDate(2024, 5, 15), 3), QDate(2024, 2, 15));
    EXPECT_EQ(月数前(QDate(2024, 2, 15), 3), QDate(2023, 11, 15));
}

TEST(暦, 閏日の一年前は二月二十八日になる) {
    EXPECT_EQ(年数前(QDate(2024, 2, 29), 1), QDate(2023, 2, 28));
    EXPECT_EQ(年数前(QDate(2024, 2, 29), 4), QDate(2020, 2, 29));
}

TEST(暦, 三年前と十年前は同じ月日になる) {
    EXPECT_EQ(年数前(QDate(2024, 6, 10), 3), QDate(2021, 6, 10));
    EXPECT_EQ(年数前(QDate(2024, 6, 10), 10), QDate(2014, 6, 10));
    EXPECT_EQ(年数前(QDate(2024, 2, 29), 10), QDate(2014, 2, 28));
}
