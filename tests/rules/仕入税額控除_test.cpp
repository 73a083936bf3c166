#include <gtest/gtest.h>

#include <QDate>

#include "rules/仕入税額控除.h"

namespace {

int 割合(const char* 日付) {
    return 経過措置控除割合(QString::fromLatin1(日付));
}

TEST(経過措置控除割合, 制度の前は全額でその後は各期間の初日と末日で切り替わる) {
    EXPECT_EQ(割合("20230930"), 100);
    EXPECT_EQ(割合("20231001"), 80);
    EXPECT_EQ(割合("20260930"), 80);
    EXPECT_EQ(割合("20261001"), 70);
    EXPECT_EQ(割合("20280930"), 70);
    EXPECT_EQ(割合("20281001"), 50);
    EXPECT_EQ(割合("20300930"), 50);
    EXPECT_EQ(割合("20301001"), 30);
    EXPECT_EQ(割合("20310930"), 30);
    EXPECT_EQ(割合("20311001"), 0);
    EXPECT_EQ(割合("20991231"), 0);
    EXPECT_EQ(割合("19890401"), 100);
}

TEST(経過措置控除割合, 表の期間は隙間も重なりもなく続く) {
    ASSERT_GT(経過措置期間数, 1);
    EXPECT_EQ(QStringView(経過措置表[0].開始日), u"00000000");
    EXPECT_EQ(QStringView(経過措置表[経過措置期間数 - 1].終了日), u"99999999");
    for (int i = 1; i < 経過措置期間数; ++i) {
        const QDate 前の末日 =
            QDate::fromString(QString::fromUtf16(経過措置表[i - 1].終了日), u"yyyyMMdd"_qs);
        const QDate 初日 =
            QDate::fromString(QString::fromUtf16(経過措置表[i].開始日), u"yyyyMMdd"_qs);
        EXPECT_EQ(前の末日.addDays(1), 初日) << i;
        EXPECT_LT(経過措置表[i].控除割合, 経過措置表[i - 1].控除割合) << i;
    }
}

}  // namespace
