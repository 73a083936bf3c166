#include "入力画面試験.h"

namespace {

class 合計表示 : public 入力画面試験 {};

TEST_F(合計表示, 通常表示では縦計と実質額を書き税別の枠は隠れる) {
    s.合計.出金金額合計 = 金額::円(1234567);
    s.合計.出金消費税合計 = 金額::円(-50);
    s.合計.実質出金金額合計 = 金額::円(0);
    s.見出し.出金伝票備考A = u"備考A"_qs;
    f->合計表示();
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"1,234,567"_qs);
    EXPECT_EQ(c(u"出金消費税合計"_qs).Text, u"-50"_qs);
    EXPECT_EQ(c(u"実質出金金額合計"_qs).Text, u"0"_qs);
    EXPECT_EQ(c(u"出金伝票備考A"_qs).Text, u"備考A"_qs);
    EXPECT_FALSE(c(u"bak_税別合計"_qs).Visible);
    EXPECT_FALSE(f->画面.表示中か());
}

TEST_F(合計表示, 切替の釦で税別の枠を出し戻す) {
    f->画面.操作_クリック(c(u"btn_軽減税率切替"_qs));
    EXPECT_TRUE(s.軽減税率表示);
    EXPECT_TRUE(c(u"bak_税別合計"_qs).Visible);
    EXPECT_EQ(c(u"itm_ttl_前回税率合計"_qs).Caption, u"合計(8%)"_qs);
    EXPECT_EQ(c(u"itm_ttl_今回税率合計"_qs).Caption, u"合計(10%)"_qs);
    f->画面.操作_クリック(c(u"btn_通常表示切替"_qs));
    EXPECT_FALSE(s.軽減税率表示);
    EXPECT_FALSE(c(u"bak_税別合計"_qs).Visible);
}

TEST_F(合計表示, 税率が一つの期間では前回の題は空で端数の率は丸めて見せる) {
    s.見出し.前回税率 = 金額();
    s.見出し.今回税率 = 金額::文字列から(u"6.24");
    f->合計表示();
    EXPECT_EQ(c(u"itm_ttl_前回税率合計"_qs).Caption, QString());
    EXPECT_EQ(c(u"itm_ttl_今回税率合計"_qs).Caption, u"合計(6%)"_qs);
}

TEST_F(合計表示, 画面が使用中なら切替は何もしない) {
    f->画面使用中 = true;
    f->画面.操作_クリック(c(u"btn_軽減税率切替"_qs));
    EXPECT_FALSE(s.軽減税率表示);
}

TEST_F(合計表示, 区分0の行は税率を打たない限りどちらの組にも入らない) {
    s.最終行 = 1;
    s.行[0].内税外税区分 = 0;
    s.行[0].税抜出金金額 = 金額::円(700);
    s.行[1].内税外税区分 = 0;
    s.行[1].消費税率 = 金額::円(8);
    s.行[1].税抜出金金額 = 金額::円(300);
    s.合計再計算();
    f->画面.操作_クリック(c(u"btn_軽減税率切替"_qs));
    EXPECT_EQ(c(u"前回税率出金金額合計"_qs).Text, u"300"_qs);
    EXPECT_EQ(c(u"前回税率出金消費税合計"_qs).Text, u"0"_qs);
    EXPECT_EQ(c(u"今回税率出金金額合計"_qs).Text, u"0"_qs);
}

}  // namespace
