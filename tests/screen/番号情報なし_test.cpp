#include "両エンジン入力画面.h"

namespace {

const QString 番号の知らせ = u"番号情報に問題が発生設定できませんでした。"_qs;

// The slip numbers' row is gone from the number table: every peek and take gives "00000000"
// and says so twice, and a slip is stored under that number as it stands.
class 番号情報なし : public 両エンジン入力画面 {};

TEST_P(番号情報なし, 覗いた00000000はそのまま伝票の番号になり知らせは二度ずつ出る) {
    ASSERT_TRUE(木->業務DB実行(u"DELETE FROM A番号情報 WHERE 番号ID = '16810'"_qs));
    f->画面.操作_クリック(c(u"btn_画面クリア"_qs));
    EXPECT_EQ(基盤.表示文言(), QStringList(2, 番号の知らせ));
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000000"_qs);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);

    基盤.表示済み.clear();
    伝票を打つ(u"3"_qs, 2);
    // The peek and the take of the store, the take of its history number, and the peek of
    // the next new slip: each told twice.
    EXPECT_EQ(基盤.表示文言(), QStringList(8, 番号の知らせ));
    const auto 見出し = 木->業務DB行(u"SELECT 出金No, 番号基準日付, 出金金額合計 FROM T出金"_qs);
    ASSERT_EQ(見出し.size(), 1);
    EXPECT_EQ(見出し[0][0].toString(), u"00000000"_qs);
    EXPECT_EQ(見出し[0][1].toString(), QString());
    EXPECT_EQ(見出し[0][2].toLongLong(), 3000);
    const auto 明細 =
        木->業務DB行(u"SELECT 出金No, 出金行No, 出金金額 FROM T出金明細 ORDER BY 出金行No"_qs);
    ASSERT_EQ(明細.size(), 2);
    EXPECT_EQ(明細[0][0].toString(), u"00000000"_qs);
    EXPECT_EQ(明細[1][2].toLongLong(), 2000);
    // Its history number is "00000000" too, which queues nothing.
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM R出金明細 WHERE 出金履歴No = '00000000'"_qs), 2);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM 未集計情報"_qs), 0);
    // The next new slip shows the same number again.
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000000"_qs);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

KONPEKI_両エンジンで(番号情報なし);

}  // namespace
