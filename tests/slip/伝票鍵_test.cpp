#include <gtest/gtest.h>

#include "slip/伝票鍵.h"

namespace {

const 伝票鍵 鍵{u"001"_qs, u"20260331"_qs, u"00000012"_qs};

TEST(伝票鍵, 十九文字を事業所と基準日付と番号に分け同じ十九文字に戻す) {
    const auto 読んだ = 伝票鍵を読む(u"0012026033100000012"_qs);
    ASSERT_TRUE(読んだ);
    EXPECT_EQ(読んだ->事業所コード, u"001"_qs);
    EXPECT_EQ(読んだ->番号基準日付, u"20260331"_qs);
    EXPECT_EQ(読んだ->番号, u"00000012"_qs);
    EXPECT_EQ(*読んだ, 鍵);
    EXPECT_EQ(読んだ->文字列(), u"0012026033100000012"_qs);
}

TEST(伝票鍵, 十九文字でないものは鍵として読まない) {
    EXPECT_FALSE(伝票鍵を読む(QString()));
    EXPECT_FALSE(伝票鍵を読む(u"001202603310000001"_qs));
    EXPECT_FALSE(伝票鍵を読む(u"00120260331000000123"_qs));
    EXPECT_FALSE(伝票鍵を読む(u"C0012026033100000012"_qs));
}

TEST(伝票鍵, 切り出しは長さを問わず位置で切り短い文字列は短い部分になる) {
    const 伝票鍵 短い = 伝票鍵を切り出す(u"00120260"_qs);
    EXPECT_EQ(短い.事業所コード, u"001"_qs);
    EXPECT_EQ(短い.番号基準日付, u"20260"_qs);
    EXPECT_TRUE(短い.番号.isEmpty());
    // Whatever stands behind the 19 characters is not part of the key.
    EXPECT_EQ(伝票鍵を切り出す(u"0012026033100000012202604150000"_qs), 鍵);
}

TEST(伝票鍵, 一覧の鍵は目印一文字の後の十九文字でそれ以外は鍵でない) {
    EXPECT_EQ(鍵.一覧の文字列(), u"C0012026033100000012"_qs);
    const auto 選んだ = 一覧の伝票鍵(u"C0012026033100000012"_qs);
    ASSERT_TRUE(選んだ);
    EXPECT_EQ(*選んだ, 鍵);
    EXPECT_FALSE(一覧の伝票鍵(u"0012026033100000012"_qs));
    EXPECT_FALSE(一覧の伝票鍵(u"C00120260331000000120"_qs));
    EXPECT_FALSE(一覧の伝票鍵(u"M担当者.コード >= '00012'"_qs));
}

TEST(伝票鍵, 一覧の答えは鍵のときだけ取られ使い切られる) {
    std::optional<QString> 答え = u" C0012026033100000012 "_qs;
    EXPECT_EQ(答えの鍵を取る(答え, u"出金"), 鍵);
    EXPECT_FALSE(答え);
    EXPECT_FALSE(答えの鍵を取る(答え, u"出金"));

    // Twenty characters naming the table are a condition, and stay.
    答え = u"T出金.出金No >= '1'"_qs.leftJustified(20, u' ');
    EXPECT_FALSE(答えの鍵を取る(答え, u"出金"));
    EXPECT_TRUE(答え);
    // A description list's longer key is not a slip key either.
    答え = 鍵.一覧の文字列() + u"001"_qs;
    EXPECT_FALSE(答えの鍵を取る(答え, u"出金"));
    EXPECT_TRUE(答え);
}

TEST(伝票鍵, 番号替えは同じ番号系列の別の番号) {
    EXPECT_EQ(鍵.番号替え(u"00000013"_qs), (伝票鍵{u"001"_qs, u"20260331"_qs, u"00000013"_qs}));
}

TEST(伝票鍵, 伝票と明細の条件は表の列名で事業所と基準日付と番号の順) {
    EXPECT_EQ(
        鍵.条件(鍵の列::T出金),
        u" WHERE 事業所コード = '001' AND 番号基準日付 = '20260331' AND 出金No = '00000012'"_qs);
    EXPECT_EQ(
        鍵.条件(鍵の列::T出金明細表付),
        u" WHERE T出金明細.事業所コード = '001' AND T出金明細.番号基準日付 = '20260331' AND T出金明細.出金No = '00000012'"_qs);
}

TEST(伝票鍵, 見出しの読込の条件は番号を先に表名付きで並べる) {
    EXPECT_EQ(
        鍵.条件(鍵の列::T出金読込),
        u" WHERE T出金.出金No = '00000012' AND T出金.事業所コード = '001' AND T出金.番号基準日付 = '20260331'"_qs);
}

TEST(伝票鍵, 履歴の条件は番号の列が履歴番号) {
    EXPECT_EQ(
        鍵.番号替え(u"00000007"_qs).条件(鍵の列::R出金履歴),
        u" WHERE 事業所コード = '001' AND 番号基準日付 = '20260331' AND 出金履歴No = '00000007'"_qs);
}

TEST(伝票鍵, 日程の条件と設定は出金を冠した列で空の鍵は三つの空に設定する) {
    EXPECT_EQ(
        鍵.条件(鍵の列::T営業活動明細),
        u" WHERE 出金事業所コード = '001' AND 出金番号基準日付 = '20260331' AND 出金No = '00000012'"_qs);
    EXPECT_EQ(
        鍵.設定(鍵の列::T営業活動明細),
        u" [出金事業所コード] = '001',[出金番号基準日付] = '20260331',[出金No] = '00000012'"_qs);
    EXPECT_EQ(伝票鍵{}.設定(鍵の列::T営業活動明細),
              u" [出金事業所コード] = '',[出金番号基準日付] = '',[出金No] = ''"_qs);
}

TEST(伝票鍵, 出張申請の条件は番号を基準日付より先に旅費は事業所と基準日付と番号の順) {
    const 伝票鍵 申請{u"002"_qs, u"99999999"_qs, u"00000056"_qs};
    EXPECT_EQ(
        申請.条件(鍵の列::T出張申請),
        u" WHERE T出張申請.事業所コード = '002' AND T出張申請.出張申請No = '00000056' AND T出張申請.番号基準日付 = '99999999'"_qs);
    EXPECT_EQ(
        申請.条件(鍵の列::T出張旅費),
        u" WHERE T出張旅費.事業所コード = '002' AND T出張旅費.番号基準日付 = '99999999' AND T出張旅費.出張申請No = '00000056'"_qs);
}

TEST(伝票鍵, 鍵の値は手を加えずに入る) {
    // A quote typed into the number reaches the statement as typed, as it always has.
    EXPECT_EQ(鍵.番号替え(u"0'"_qs).条件(鍵の列::T出金),
              u" WHERE 事業所コード = '001' AND 番号基準日付 = '20260331' AND 出金No = '0''"_qs);
}

TEST(明細鍵, 二十二文字を伝票の鍵と固有行Noに切り条件は伝票の条件に行の列を足す) {
    const 明細鍵 行 = 明細鍵を切り出す(u"0012026033100000012003"_qs);
    EXPECT_EQ(行.伝票, 鍵);
    EXPECT_EQ(行.固有行No, u"003"_qs);
    EXPECT_EQ(
        行.条件(鍵の列::T出金明細),
        u" WHERE 事業所コード = '001' AND 番号基準日付 = '20260331' AND 出金No = '00000012' AND 出金固有行No = '003'"_qs);
    EXPECT_EQ(
        行.条件(鍵の列::T出金明細表付),
        u" WHERE T出金明細.事業所コード = '001' AND T出金明細.番号基準日付 = '20260331' AND T出金明細.出金No = '00000012' AND T出金明細.出金固有行No = '003'"_qs);
}

TEST(明細鍵, 短い文字列は位置で切られ欠けた部分は空) {
    const 明細鍵 行 = 明細鍵を切り出す(u"あいう"_qs);
    EXPECT_EQ(行.伝票.事業所コード, u"あいう"_qs);
    EXPECT_TRUE(行.伝票.番号基準日付.isEmpty());
    EXPECT_TRUE(行.固有行No.isEmpty());
    EXPECT_EQ(
        行.条件(鍵の列::T出金明細),
        u" WHERE 事業所コード = 'あいう' AND 番号基準日付 = '' AND 出金No = '' AND 出金固有行No = ''"_qs);
}

}  // namespace
