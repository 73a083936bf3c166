#include <gtest/gtest.h>

#include "出金試験.h"

namespace {

class 出金記録 : public 出金試験 {};

TEST_P(出金記録, 開始直後は今日の新規伝票で番号の提案と集計日付と税率がある) {
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(s.見出し.出金日付, u"20251120"_qs);
    EXPECT_EQ(s.見出し.番号基準日付, u"20260331"_qs);
    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
    EXPECT_EQ(s.見出し.会計集計日付, u"20251130"_qs);
    EXPECT_EQ(s.見出し.今回税率, 金額::円(10));
    EXPECT_EQ(s.見出し.前回税率, 金額::円(8));
}

TEST_P(出金記録, 消去は時計を読まず日付と税率と事業所を残す) {
    s.見出し.担当者コード = u"00003"_qs;
    s.見出し.出金伝票備考A = u"備考"_qs;
    s.最終行 = 1;
    s.行[0].出金金額 = 金額::円(500);
    s.合計.出金金額合計 = 金額::円(500);
    s.軽減税率表示 = true;
    基盤.時刻 = 基盤.時刻.addDays(1);  // the operator's day went on
    s.出金情報初期化();
    EXPECT_EQ(s.見出し.出金日付, u"20251120"_qs);
    EXPECT_EQ(s.見出し.事業所コード, u"000"_qs);
    EXPECT_EQ(s.見出し.今回税率, 金額::円(10));
    EXPECT_EQ(s.見出し.担当者コード, QString());
    EXPECT_EQ(s.見出し.出金伝票備考A, QString());
    EXPECT_EQ(s.見出し.伝票発行区分, 0);
    EXPECT_EQ(s.見出し.最大固有行No, 0);
    EXPECT_EQ(s.最終行, -1);
    EXPECT_TRUE(s.行[0].出金金額.ゼロか());
    EXPECT_TRUE(s.合計.出金金額合計.ゼロか());
    EXPECT_FALSE(s.軽減税率表示);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_FALSE(s.入力変更フラグ);
}

TEST_P(出金記録, 行の消去は出金行Noを残す) {
    s.行[3].出金行No = u"004"_qs;
    s.行[3].摘要 = u"タクシー"_qs;
    s.行[3].費目区分 = 1;
    s.出金行初期化(3);
    EXPECT_EQ(s.行[3].出金行No, u"004"_qs);
    EXPECT_EQ(s.行[3].摘要, QString());
    EXPECT_EQ(s.行[3].費目区分, 0);
}

TEST_P(出金記録, 明細の消去は十六番目の枠に触れない) {
    s.行[15].摘要 = u"枠15"_qs;
    s.先頭行 = 10;
    s.現在行 = 12;
    s.表示行 = 2;
    s.出金明細初期化();
    EXPECT_EQ(s.行[15].摘要, u"枠15"_qs);
    EXPECT_EQ(s.先頭行, 0);
    EXPECT_EQ(s.現在行, 0);
    EXPECT_EQ(s.表示行, 0);
}

TEST_P(出金記録, 承認区分は書く列に入らない) {
    EXPECT_EQ(T出金列.size(), 28);
    EXPECT_EQ(T出金明細列.size(), 27);
    EXPECT_FALSE(T出金列.contains(u"承認区分"_qs));
    EXPECT_FALSE(T出金明細列.contains(u"承認区分"_qs));
    EXPECT_EQ(T出金列.first(), u"事業所コード"_qs);
    EXPECT_EQ(T出金列.last(), u"更新日付"_qs);
    EXPECT_EQ(T出金明細列.at(3), u"出金固有行No"_qs);
    EXPECT_EQ(T出金明細列.at(20), u"会計集計日付"_qs);
}

TEST_P(出金記録, 合計は税率の組ごとに税抜額と税を分ける) {
    s.最終行 = 3;
    auto 行 = [&](int i, int 率, int 額, int 税) {
        s.行[i].消費税率 = 金額::円(率);
        s.行[i].出金金額 = 金額::円(額 + 税);
        s.行[i].税抜出金金額 = 金額::円(額);
        s.行[i].出金消費税 = 金額::円(税);
        s.行[i].実質出金金額 = 金額::円(額 + 税);
        s.行[i].税込出金金額 = 金額::円(額 + 税);
    };
    行(0, 10, 1000, 100);
    行(1, 8, 500, 40);
    行(2, 0, 300, 0);
    行(3, 5, 200, 10);  // a hand-typed third rate: in no pair
    s.合計再計算();
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(2150));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(150));
    EXPECT_EQ(s.合計.税抜出金金額合計, 金額::円(2000));
    EXPECT_EQ(s.合計.前回税率出金金額合計, 金額::円(500));
    EXPECT_EQ(s.合計.前回税率出金消費税合計, 金額::円(40));
    EXPECT_EQ(s.合計.今回税率出金金額合計, 金額::円(1000));
    EXPECT_EQ(s.合計.今回税率出金消費税合計, 金額::円(100));
}

TEST_P(出金記録, 二つの税率が等しければ全て前回の組に入る) {
    s.見出し.前回税率 = 金額::円(10);
    s.見出し.今回税率 = 金額::円(10);
    s.最終行 = 0;
    s.行[0].消費税率 = 金額::円(10);
    s.行[0].税抜出金金額 = 金額::円(1000);
    s.行[0].出金消費税 = 金額::円(100);
    s.合計再計算();
    EXPECT_EQ(s.合計.前回税率出金金額合計, 金額::円(1000));
    EXPECT_TRUE(s.合計.今回税率出金金額合計.ゼロか());
}

TEST_P(出金記録, 行がなければ合計は全て0) {
    s.合計.出金金額合計 = 金額::円(5);
    s.合計.今回税率出金消費税合計 = 金額::円(5);
    s.最終行 = -1;
    s.合計再計算();
    EXPECT_TRUE(s.合計.出金金額合計.ゼロか());
    EXPECT_TRUE(s.合計.今回税率出金消費税合計.ゼロか());
}

KONPEKI_両エンジンで(出金記録);

}  // namespace
