#include <gtest/gtest.h>

#include "出金登録試験.h"

namespace {

class 日程連携 : public 出金登録試験 {
  protected:
    void 伝票を保存して読む() {
        二行の伝票を打つ();
        ASSERT_TRUE(s.新規登録処理());
        s.出金情報初期化();
        ASSERT_TRUE(読込(u"00000001"_qs));
    }
    QStringList 更新の誤り() {
        return 履歴行(u"エラー "_qs).filter(u"UPDATE T営業活動明細 SET"_qs);
    }
    // Exactly one update failed, and its logged text holds 文 (quotes doubled in the log).
    void 一つの更新が失敗した(const QString& 文) {
        const QStringList 誤り = 更新の誤り();
        ASSERT_EQ(誤り.size(), 1);
        EXPECT_TRUE(誤り[0].contains(文)) << 誤り[0].toStdString();
    }
};

TEST_P(日程連携, 確認は伝票を指す行がなければ真で一行でもあれば偽) {
    伝票を保存して読む();
    EXPECT_TRUE(s.日程連携確認());
    日程を書く(u"20251120"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000002"_qs);
    日程を書く(u"20251120"_qs, u"1000"_qs, u"1100"_qs, u"20270331"_qs, u"00000001"_qs);
    EXPECT_TRUE(s.日程連携確認());
    日程を書く(u"20251121"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    EXPECT_FALSE(s.日程連携確認());
    // Asked by the kept key: a date typed since does not hide the link.
    s.見出し.番号基準日付 = u"20270331"_qs;
    s.見出し.出金No = u"00000009"_qs;
    EXPECT_FALSE(s.日程連携確認());
}

// Each update sets the outcome, so an outcome left alone shows that none ran.
TEST_P(日程連携, 連携がなければ更新文は一つも走らない) {
    伝票を保存して読む();
    日程を書く(u"20251120"_qs, u"0900"_qs, u"1000"_qs, {}, {});
    const QStringList 前 = 日程行(true);
    s.処理結果区分 = 0;
    s.日程連携書換();
    s.日程連携解除();
    EXPECT_EQ(s.処理結果区分, 0);
    EXPECT_EQ(s.処理結果メッセージ, QString());
    EXPECT_EQ(日程行(true), 前);
    EXPECT_TRUE(更新の誤り().isEmpty());
}

// The rows are written out of their schedule order; the walk goes by 日付 and 開始時刻, so
// the row whose update breaks on its quoted 日付 comes last and its failure is what remains.
TEST_P(日程連携, 連携した行は日付と開始時刻の順に更新され最後の失敗が結果に残る) {
    伝票を保存して読む();
    日程を書く(u"20251121'"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    日程を書く(u"20251121"_qs, u"1300"_qs, u"1400"_qs, u"20260331"_qs, u"00000001"_qs);
    日程を書く(u"20251120"_qs, u"1500"_qs, u"1600"_qs, u"20260331"_qs, u"00000001"_qs);
    日程を書く(u"20251121"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    s.日程連携解除();
    EXPECT_EQ(s.処理結果区分, 4);
    EXPECT_EQ(s.処理結果メッセージ, u"既に削除されています。修正できませんでした。"_qs);
    EXPECT_EQ(日程行(), (QStringList{u"00003|20251120|1500|||"_qs, u"00003|20251121|0900|||"_qs,
                                     u"00003|20251121|1300|||"_qs,
                                     u"00003|20251121'|0900|000|20260331|00000001"_qs}));
    // The failure is logged with the statement as composed; successful updates are not.
    一つの更新が失敗した(
        u"UPDATE T営業活動明細 SET [出金事業所コード] = '''',[出金番号基準日付] = '''',[出金No] = '''' WHERE [担当者コード] = ''00003'' AND [日付] = ''20251121'''' AND [開始時刻] = ''0900'' AND [終了時刻] = ''1000''"_qs);
    EXPECT_TRUE(履歴行(u"出力終了 "_qs).filter(u"T営業活動明細"_qs).isEmpty());
}

// A failure in the middle of the walk: the rows after it are still updated and the last
// outcome is a success.
TEST_P(日程連携, 引用符のある日付で一行の更新が失敗しても後の行は書き換わる) {
    伝票を保存して読む();
    日程を書く(u"20251122"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    日程を書く(u"20251120"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    日程を書く(u"20251121'"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    s.見出し.番号基準日付 = u"20270331"_qs;
    s.見出し.出金No = u"00000007"_qs;
    s.日程連携書換();
    EXPECT_EQ(s.処理結果区分, 5);
    EXPECT_EQ(s.処理結果メッセージ, QString());
    EXPECT_EQ(日程行(), (QStringList{u"00003|20251120|0900|000|20270331|00000007"_qs,
                                     u"00003|20251121'|0900|000|20260331|00000001"_qs,
                                     u"00003|20251122|0900|000|20270331|00000007"_qs}));
    一つの更新が失敗した(
        u"UPDATE T営業活動明細 SET [出金事業所コード] = ''000'',[出金番号基準日付] = ''20270331'',[出金No] = ''00000007'' WHERE [担当者コード] = ''00003'' AND [日付] = ''20251121''''"_qs);
}

// A time with a quote breaks its update the same way.
TEST_P(日程連携, 引用符のある時刻は逃がさずその行の更新を失敗させる) {
    伝票を保存して読む();
    日程を書く(u"20251120"_qs, u"09'00"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    s.日程連携解除();
    EXPECT_EQ(s.処理結果区分, 4);
    EXPECT_EQ(日程行(), QStringList{u"00003|20251120|09'00|000|20260331|00000001"_qs});
    EXPECT_EQ(更新の誤り().size(), 1);
}

// The date of a linked slip cannot move it into the next fiscal year's sequence.
TEST_P(日程連携, 日程が指す保存伝票の日付は決算を超えて変えられない) {
    伝票を保存して読む();
    日程を書く(u"20251120"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    出金日付入力(s, u"20260401"_qs);
    const auto& h = s.見出し;
    EXPECT_EQ(s.お知らせ文言, u"決算を超えた日付の変更は出来ません。"_qs);
    EXPECT_EQ(h.出金日付, u"20251120"_qs);
    EXPECT_EQ(h.出金日付年, u"2025"_qs);
    EXPECT_EQ(h.出金日付月, u"11"_qs);
    EXPECT_EQ(h.出金日付日, u"20"_qs);
    EXPECT_EQ(h.番号基準日付, u"20260331"_qs);
    EXPECT_EQ(h.出金No, u"00000001"_qs);
    // Within the fiscal year the date moves freely.
    s.お知らせ文言.clear();
    出金日付入力(s, u"20260330"_qs);
    EXPECT_EQ(s.お知らせ文言, QString());
    EXPECT_EQ(h.出金日付, u"20260330"_qs);
    EXPECT_EQ(h.出金No, u"00000001"_qs);
}

KONPEKI_両エンジンで(日程連携);

}  // namespace
