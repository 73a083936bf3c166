#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "stress/百分位.h"

namespace {

// 1 to N, shuffled: the percentile must not depend on the order the journals give.
QList<double> 一からNまで(int N) {
    QList<double> 標本;
    for (int i = 1; i <= N; ++i) 標本 << i;
    std::shuffle(標本.begin(), 標本.end(), std::mt19937(7));
    return 標本;
}

}  // namespace

TEST(最近順位百分位, 千の標本では順位そのものの値) {
    const auto 標本 = 一からNまで(1000);
    EXPECT_EQ(最近順位百分位(標本, 50), 500);
    EXPECT_EQ(最近順位百分位(標本, 95), 950);
    EXPECT_EQ(最近順位百分位(標本, 99), 990);
    EXPECT_EQ(最近順位百分位(標本, 100), 1000);
}

TEST(最近順位百分位, 順位は切り上げで補間しない) {
    // 95 % of 10 is 9.5: the 10th; 50 % of 10 is the 5th, not the mean of the 5th and 6th.
    const auto 標本 = 一からNまで(10);
    EXPECT_EQ(最近順位百分位(標本, 50), 5);
    EXPECT_EQ(最近順位百分位(標本, 95), 10);
    EXPECT_EQ(最近順位百分位(標本, 99), 10);
    EXPECT_EQ(最近順位百分位(標本, 1), 1);
}

TEST(最近順位百分位, 割り切れる順位はその順位) {
    // 95 % of 20 is exactly 19, and 99 % of 200 exactly 198.
    EXPECT_EQ(最近順位百分位(一からNまで(20), 95), 19);
    EXPECT_EQ(最近順位百分位(一からNまで(200), 99), 198);
}

TEST(最近順位百分位, 値は標本のどれか) {
    const QList<double> 標本{35, 20, 50, 15, 40};
    EXPECT_EQ(最近順位百分位(標本, 30), 20);
    EXPECT_EQ(最近順位百分位(標本, 40), 20);
    EXPECT_EQ(最近順位百分位(標本, 50), 35);
    EXPECT_EQ(最近順位百分位(標本, 95), 50);
    EXPECT_EQ(最近順位百分位(QList<double>{2.5}, 99), 2.5);
}

TEST(最近順位百分位, 標本がなければ零) {
    EXPECT_EQ(最近順位百分位({}, 50), 0);
}
