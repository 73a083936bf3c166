#include <gtest/gtest.h>

#include "common/エンジン別試験.h"
#include "rules/帳票起動.h"

namespace {

class 帳票起動 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        ASSERT_NO_FATAL_FAILURE(開く());
    }
};

TEST_P(帳票起動, プログラムフォルダの紺碧帳書を引数一つで待たずに起動する) {
    ASSERT_TRUE(木->プログラムを置く(u"紺碧帳書"_qs));
    EXPECT_TRUE(
        ::帳票起動(環境.接続(), u"1"_qs, u"001"_qs, u"20260331"_qs, u"00000012"_qs, u"00003"_qs));
    ASSERT_EQ(基盤.起動済み.size(), 1);
    EXPECT_EQ(基盤.起動済み[0].プログラム, 木->プログラムフォルダ() + u"/紺碧帳書"_qs);
    EXPECT_EQ(基盤.起動済み[0].引数, QStringList{帳票引数(u"001"_qs, u"1"_qs, u"20260331"_qs,
                                                          u"00000012"_qs, u"00003"_qs)});
    EXPECT_EQ(基盤.起動済み[0].作業フォルダ, 木->プログラムフォルダ());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_P(帳票起動, プログラムが無ければOKだけの箱で告げる) {
    EXPECT_FALSE(
        ::帳票起動(環境.接続(), u"0"_qs, u"001"_qs, u"20260331"_qs, u"00000012"_qs, u"00003"_qs));
    ASSERT_EQ(基盤.表示済み.size(), 1);
    EXPECT_EQ(基盤.表示済み[0].本文, u"帳票プログラムが有りません"_qs);
    EXPECT_EQ(基盤.表示済み[0].ボタン, ボタン種別::OK);
}

KONPEKI_両エンジンで(帳票起動);

}  // namespace
