#include <gtest/gtest.h>

#include "text/マウスホイール.h"

TEST(ウィンドウプロシージャ復元, 何も差し替えていないので常に成功する) {
    EXPECT_TRUE(ウィンドウプロシージャ復元());
    EXPECT_TRUE(ウィンドウプロシージャ復元());
}
