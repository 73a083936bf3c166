#include "障害装置.h"

namespace {

class サーバー停止 : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!試験用PostgreSQL::利用可能()) GTEST_SKIP() << "KONPEKI_TEST_PG is not set";
        ASSERT_TRUE(鯖.起動());
        木 = std::make_unique<試験用ツリー>(鯖.接続情報());
        ASSERT_TRUE(木->作成済み) << 木->エラー.toStdString();
    }
    void TearDown() override { 木.reset(); }

    専用PostgreSQL 鯖;
    std::unique_ptr<試験用ツリー> 木;
};

// The server stops in the middle of a store of a run of stores and comes back. The store it cut
// leaves nothing (the server rolls its batch back); that store and the ones after it fail and
// are logged, the program goes on without a crash, and its connection stays failed until the
// next start, as no connection is ever opened again on a failure. The next start stores on, with
// the number after the last stored slip; the slips stored before are whole.
TEST_F(サーバー停止, 登録の途中で止まり戻ったサーバーで前の伝票は無事で次の起動から登録できる) {
    伝票打鍵者 甲(木->プログラムフォルダ());
    ASSERT_TRUE(甲.開く());
    甲.新規(u"一"_qs, 2);
    甲.新規(u"二"_qs, 2);
    const int 前のエラー = エラー行数(*木);

    甲.基盤.点 = u"2"_qs;
    甲.基盤.着いた時 = [this] { ASSERT_TRUE(鯖.停止()); };
    甲.新規(u"三"_qs, 2);
    甲.基盤.着いた時 = nullptr;
    甲.新規(u"四"_qs, 2);  // the server is down
    ASSERT_TRUE(鯖.再開());
    甲.新規(u"五"_qs, 2);  // up again, but this run's connection has failed
    甲.閉じる();

    EXPECT_GT(エラー行数(*木), 前のエラー + 3);
    for (const char16_t* 印 : {u"三", u"四", u"五"}) {
        EXPECT_EQ(印の伝票(*木, QString::fromUtf16(印)), u"none"_qs)
            << QString::fromUtf16(印).toStdString();
    }
    EXPECT_EQ(印の伝票(*木, u"一"_qs), u"1000,2000"_qs);
    EXPECT_EQ(印の伝票(*木, u"二"_qs), u"1000,2000"_qs);

    伝票打鍵者 乙(木->プログラムフォルダ());
    ASSERT_TRUE(乙.開く());
    乙.新規(u"六"_qs, 3);
    乙.閉じる();
    EXPECT_EQ(印の伝票(*木, u"六"_qs), u"1000,2000,3000"_qs);
    EXPECT_EQ(木->業務DB行(u"SELECT 出金No FROM T出金 WHERE 出金伝票備考A = '六'"_qs)
                  .value(0)
                  .value(0)
                  .toString(),
              u"00000003"_qs);
    EXPECT_EQ(見出しのない行(*木), 0);
}

}  // namespace
