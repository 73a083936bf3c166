#include <gtest/gtest.h>

#include "text/実行時エラー.h"
#include "text/項目編集.h"

namespace {

// The three parts after the repair, joined by "/" so that a failure shows them all.
QString 補正後(QString 年, QString 月, QString 日) {
    日付補正(年, 月, 日);
    return 年 + u'/' + 月 + u'/' + 日;
}

}  // namespace

TEST(日付補正, すべてゼロならそのまま) {
    EXPECT_EQ(補正後(u"0000"_qs, u"00"_qs, u"00"_qs), u"0000/00/00"_qs);
    EXPECT_EQ(補正後(u""_qs, u""_qs, u""_qs), u"//"_qs);
}

TEST(日付補正, 平年の二月二十九日は二十八日になる) {
    EXPECT_EQ(補正後(u"2023"_qs, u"02"_qs, u"29"_qs), u"2023/02/28"_qs);
}

TEST(日付補正, 正しい日付はそのまま) {
    EXPECT_EQ(補正後(u"2024"_qs, u"02"_qs, u"28"_qs), u"2024/02/28"_qs);
    EXPECT_EQ(補正後(u"2024"_qs, u"02"_qs, u"29"_qs), u"2024/02/29"_qs);
}

TEST(日付補正, 三十一日ある月の二十八日はそのまま) {
    EXPECT_EQ(補正後(u"2024"_qs, u"01"_qs, u"28"_qs), u"2024/01/28"_qs);
}

TEST(日付補正, 正しい日付は書式を整えずに残す) {
    EXPECT_EQ(補正後(u"2024"_qs, u"2"_qs, u"5"_qs), u"2024/2/5"_qs);
}

TEST(日付補正, 二十七日を超える日は入力した月の末日になる) {
    EXPECT_EQ(補正後(u"2024"_qs, u"02"_qs, u"31"_qs), u"2024/02/29"_qs);
    EXPECT_EQ(補正後(u"2023"_qs, u"11"_qs, u"31"_qs), u"2023/11/30"_qs);
    EXPECT_EQ(補正後(u"2023"_qs, u"04"_qs, u"31"_qs), u"2023/04/30"_qs);
}

TEST(日付補正, 十四月三十日は十四月の末日になる) {
    // Month 14 of 2023 is February 2024; day 0 of the month after it is its last day.
    EXPECT_EQ(補正後(u"2023"_qs, u"14"_qs, u"30"_qs), u"2024/02/29"_qs);
}

TEST(日付補正, 二十七日以下なら月の繰り越しをそのまま使う) {
    EXPECT_EQ(補正後(u"2024"_qs, u"13"_qs, u"15"_qs), u"2025/01/15"_qs);
    EXPECT_EQ(補正後(u"2024"_qs, u"14"_qs, u"27"_qs), u"2025/02/27"_qs);
}

TEST(日付補正, 零月は前年の十二月になる) {
    EXPECT_EQ(補正後(u"2024"_qs, u"00"_qs, u"15"_qs), u"2023/12/15"_qs);
}

TEST(日付補正, 零日は前月の末日になる) {
    EXPECT_EQ(補正後(u"2024"_qs, u"03"_qs, u"00"_qs), u"2024/02/29"_qs);
    EXPECT_EQ(補正後(u"2024"_qs, u"01"_qs, u"00"_qs), u"2023/12/31"_qs);
}

TEST(日付補正, 直した日付は四桁と二桁で書き戻す) {
    EXPECT_EQ(補正後(u"2023"_qs, u"2"_qs, u"29"_qs), u"2023/02/28"_qs);
    EXPECT_EQ(補正後(u"2024"_qs, u"0"_qs, u"1"_qs), u"2023/12/01"_qs);
}

TEST(日付補正, 数字でない部分は数値ゼロとして扱う) {
    EXPECT_EQ(補正後(u"2024"_qs, u"ab"_qs, u"15"_qs), u"2023/12/15"_qs);
}

TEST(日付補正, 二桁の年は二千年代か千九百年代になる) {
    EXPECT_EQ(補正後(u"0024"_qs, u"05"_qs, u"10"_qs), u"2024/05/10"_qs);
    EXPECT_EQ(補正後(u"0095"_qs, u"05"_qs, u"10"_qs), u"1995/05/10"_qs);
}

TEST(日付補正, 暦の範囲を外れる年は日付範囲外になる) {
    QString 年 = u"10000"_qs, 月 = u"01"_qs, 日 = u"01"_qs;
    EXPECT_THROW(日付補正(年, 月, 日), 日付範囲外);
    EXPECT_EQ(年, u"10000"_qs);
}

TEST(日付補正, 十六ビットを超える部分は桁あふれになる) {
    QString 年 = u"2024"_qs, 月 = u"01"_qs, 日 = u"99999"_qs;
    EXPECT_THROW(日付補正(年, 月, 日), 桁あふれ);
}
