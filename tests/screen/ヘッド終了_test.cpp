#include "入力画面試験.h"

namespace {

// Every way into the header's end control, on slips of 1, 5, 6 and 15 typed lines, with the
// rows scrolled to the top: the focus lands where it should and no cursor leaves the lines.
class ヘッド終了 : public 入力画面試験, public ::testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        入力画面試験::SetUp();
        if (HasFatalFailure()) return;
        行を打つ(GetParam());
        if (HasFatalFailure()) return;
        部品& 棒 = c(u"scl_行"_qs);
        if (棒.Enabled) f->画面.操作_値変更(棒, 0);
        ASSERT_EQ(s.先頭行, 0);
    }
    // The cursors stand within the lines and the bar within its range, and row 0 shows the
    // line the cursors say.
    void 範囲内を確かめる() {
        const 部品& 棒 = c(u"scl_行"_qs);
        EXPECT_GE(棒.Value, 棒.Min);
        EXPECT_LE(棒.Value, qMax(棒.Min, 棒.Max));
        EXPECT_GE(s.先頭行, 0);
        EXPECT_GE(s.表示行, 0);
        EXPECT_LT(s.表示行, 5);
        EXPECT_GE(s.現在行, 0);
        EXPECT_LT(s.現在行, 15);
        EXPECT_EQ(s.先頭行, 棒.Value);
        EXPECT_EQ(c(u"出金金額"_qs, 0).Text, s.行[s.先頭行].出金金額.文字列());
    }
};

TEST_P(ヘッド終了, 担当者コードからのTabは一行目の費目区分に着く) {
    f->画面.操作_フォーカス(c(u"担当者コード"_qs));
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
    EXPECT_EQ(s.現在行, 0);
    範囲内を確かめる();
}

TEST_P(ヘッド終了, 一行目の費目区分からの戻りTabは摘要に入り行の外を読まない) {
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    f->画面.操作_ShiftTab();
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
    EXPECT_EQ(s.現在行, 0);
    範囲内を確かめる();
}

TEST_P(ヘッド終了, 担当者名からのTabは戻りとして摘要に入る) {
    f->画面.操作_フォーカス(c(u"担当者コード"_qs));
    f->画面.操作_フォーカス(c(u"担当者名"_qs));
    ASSERT_EQ(焦点(), u"担当者名"_qs);
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
    範囲内を確かめる();
}

TEST_P(ヘッド終了, 人事連携の出張申請NoからのTabは戻りとして摘要に入る) {
    s.白樺連携フラグ = true;
    f->見出し表示();
    f->画面.操作_フォーカス(c(u"出張申請No"_qs));
    ASSERT_EQ(焦点(), u"出張申請No"_qs);
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
    範囲内を確かめる();
}

TEST_P(ヘッド終了, 送った行から戻ると六行からは一つ上へ送り返す) {
    // One line: the bar is off and takes nothing. Five lines: it can show the blank sixth row,
    // but going back does not move it.
    f->画面.操作_値変更(c(u"scl_行"_qs), 1);
    const int 送り = GetParam() >= 5 ? 1 : 0;
    ASSERT_EQ(s.先頭行, 送り);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    f->画面.操作_ShiftTab();
    EXPECT_EQ(s.先頭行, GetParam() > 5 ? 0 : 送り);
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
    範囲内を確かめる();
}

INSTANTIATE_TEST_SUITE_P(行数, ヘッド終了, ::testing::Values(1, 5, 6, 15));

}  // namespace
