#include <gtest/gtest.h>

#include "common/文字列表示.h"
#include "dataenv/試験表試験.h"

namespace {

// On PostgreSQL the commit of a batch goes with its last writes. A commit the server refuses
// still ends the batch as a refused commit does on its own: false, with the same message, and
// nothing of the batch stands.
class 確定付きの流れ試験 : public 開いた試験表試験 {
  protected:
    確定付きの流れ試験() : 開いた試験表試験(u"番号 integer, 値 varchar(10)") {}
    QString 挿入(int 番号, const QString& 値) {
        return u"INSERT INTO 試験表 (番号, 値) VALUES ("_qs + QString::number(番号) + u", '"_qs +
               値 + u"')"_qs;
    }
};

TEST_P(確定付きの流れ試験, 断られた確定は単独の確定と同じ答えで何も残さない) {
    if (!GetParam()) GTEST_SKIP() << "a unique check kept to the commit is PostgreSQL's";
    データ接続& db = 環境.接続().業務DB();
    ASSERT_TRUE(
        db.実行(u"ALTER TABLE 試験表 ADD CONSTRAINT 試験表_番号 UNIQUE (番号) "
                u"DEFERRABLE INITIALLY DEFERRED"_qs));
    // The same two rows, once each written at once and committed alone,
    ASSERT_TRUE(db.一括開始());
    ASSERT_TRUE(db.実行(挿入(1, u"甲"_qs)));
    ASSERT_TRUE(db.実行(挿入(1, u"乙"_qs)));
    ASSERT_FALSE(db.一括終了());
    const 接続エラー 単独 = db.最終エラー();
    EXPECT_EQ(単独.番号, u"23505"_qs);
    // and once as writes that wait, the commit going with them.
    std::vector<bool> 答え;
    ASSERT_TRUE(db.一括開始());
    for (const QString& 値 : {u"甲"_qs, u"乙"_qs})
        db.後で実行(挿入(1, 値), [&](bool 成功, const 接続エラー&) { 答え.push_back(成功); });
    ASSERT_FALSE(db.一括終了());
    EXPECT_EQ(答え, (std::vector<bool>{true, true}));
    EXPECT_EQ(db.最終エラー().番号, 単独.番号);
    EXPECT_EQ(db.最終エラー().説明, 単独.説明);
    EXPECT_TRUE(試験表().isEmpty());
    // The connection goes on: the next batch stands.
    ASSERT_TRUE(db.一括開始());
    db.後で実行(挿入(2, u"丙"_qs), [](bool, const 接続エラー&) {});
    db.後で実行(挿入(3, u"丁"_qs), [](bool, const 接続エラー&) {});
    EXPECT_TRUE(db.一括終了());
    EXPECT_EQ(試験表(), (QStringList{u"丁"_qs, u"丙"_qs}));
}

// A write that fails in the last stream keeps the commit out of it: the writes around it stand
// and the batch commits behind them.
TEST_P(確定付きの流れ試験, 最後の流れで失敗した書込のあとも残りは確定する) {
    データ接続& db = 環境.接続().業務DB();
    std::vector<bool> 答え;
    auto 受け = [&](bool 成功, const 接続エラー&) { 答え.push_back(成功); };
    ASSERT_TRUE(db.一括開始());
    db.後で実行(挿入(1, u"甲"_qs), 受け);
    db.後で実行(u"INSERT INTO 無い表 (番号) VALUES (1)"_qs, 受け);
    db.後で実行(挿入(2, u"乙"_qs), 受け);
    EXPECT_TRUE(db.一括終了());
    EXPECT_EQ(答え, (std::vector<bool>{true, false, true}));
    EXPECT_EQ(試験表(), (QStringList{u"乙"_qs, u"甲"_qs}));
}

KONPEKI_両エンジンで(確定付きの流れ試験);

}  // namespace
