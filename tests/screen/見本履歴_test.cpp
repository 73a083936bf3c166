#include <gtest/gtest.h>

#include "common/試験用ツリー.h"
#include "screen/見本履歴.h"

namespace {

// The sample history typed through the entry screen: what it stores agrees as if operators had
// stored it.
class 見本履歴 : public ::testing::Test {
  protected:
    int 数(const QString& 文) { return 木.業務DB行(文)[0][0].toInt(); }
    試験用ツリー 木;
};

TEST_F(見本履歴, 二年度にわたる伝票が番号と履歴と待ち行列の揃った形で残る) {
    ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
    QString エラー;
    ASSERT_EQ(見本履歴作成(木.プログラムフォルダ(), QDate(2026, 11, 23), 40, エラー), 40)
        << エラー.toStdString();
    // Three of them deleted again, two at head office and one at the second branch.
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金"_qs), 37);
    // Every office types: head office half, each branch a quarter.
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金 WHERE 事業所コード = '000'"_qs), 18);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金 WHERE 事業所コード = '001'"_qs), 10);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金 WHERE 事業所コード = '002'"_qs), 9);
    // The previous fiscal year's first day to today, in both number periods.
    EXPECT_EQ(
        数(u"SELECT COUNT(*) FROM T出金 WHERE 出金日付 < '20250401' OR 出金日付 > '20261123'"_qs),
        0);
    EXPECT_GT(数(u"SELECT COUNT(*) FROM T出金 WHERE 番号基準日付 = '20260331'"_qs), 0);
    EXPECT_GT(数(u"SELECT COUNT(*) FROM T出金 WHERE 番号基準日付 = '20270331'"_qs), 0);
    // No number twice in a period, and numbers follow the dates.
    EXPECT_EQ(
        数(u"SELECT COUNT(*) FROM (SELECT 番号基準日付, 出金No FROM T出金 GROUP BY 番号基準日付, 出金No HAVING COUNT(*) > 1) AS x"_qs),
        0);
    EXPECT_EQ(
        数(u"SELECT COUNT(*) FROM T出金 a, T出金 b WHERE a.番号基準日付 = b.番号基準日付 AND a.出金No < b.出金No AND a.出金日付 > b.出金日付"_qs),
        0);
    // Each header's total is the sum of its lines; one slip of fifteen lines.
    EXPECT_EQ(
        数(u"SELECT COUNT(*) FROM T出金 h WHERE h.出金金額合計 <> (SELECT SUM(l.出金金額) FROM T出金明細 l WHERE l.事業所コード = h.事業所コード AND l.番号基準日付 = h.番号基準日付 AND l.出金No = h.出金No)"_qs),
        0);
    EXPECT_EQ(
        数(u"SELECT MAX(c) FROM (SELECT COUNT(*) AS c FROM T出金明細 GROUP BY 事業所コード, 番号基準日付, 出金No) AS x"_qs),
        15);
    // Both rates, the reduced one on food and drink.
    EXPECT_GT(数(u"SELECT COUNT(*) FROM T出金明細 WHERE 消費税率 = 8"_qs), 0);
    EXPECT_GT(数(u"SELECT COUNT(*) FROM T出金明細 WHERE 消費税率 = 10"_qs), 0);
    // Six corrections (one of them moving a slip into the new fiscal year) and three deletions
    // leave their old states in the history; a correction queues two rows, a deletion one.
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM R出金"_qs), 6 + 3);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM 未集計情報 WHERE 登録情報区分 = '1'"_qs), 2 * 6);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM 未集計情報 WHERE 登録情報区分 = '2'"_qs), 3);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM 未集計情報"_qs), 40 + 2 * 6 + 3);
    // The moved slip: its old key is in the history only, its new one in the new year.
    EXPECT_EQ(
        数(u"SELECT COUNT(*) FROM 未集計情報 q WHERE q.登録情報区分 = '1' AND q.赤黒区分 = '0' AND q.番号基準日付 = '20260331' AND NOT EXISTS (SELECT 1 FROM T出金 t WHERE t.事業所コード = q.事業所コード AND t.番号基準日付 = q.番号基準日付 AND t.出金No = q.伝票No)"_qs),
        1);
    // A schedule visit points at a stored slip.
    EXPECT_EQ(
        数(u"SELECT COUNT(*) FROM T営業活動明細 a, T出金 t WHERE a.出金事業所コード = t.事業所コード AND a.出金番号基準日付 = t.番号基準日付 AND a.出金No = t.出金No"_qs),
        1);
    // The workplace is back on head office.
    EXPECT_EQ(木.環境DB行(u"SELECT 運用事業所コード FROM 動作環境定義"_qs)[0][0].toString(),
              u"000"_qs);
}

}  // namespace
