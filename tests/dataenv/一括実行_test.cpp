#include <gtest/gtest.h>

#include "common/文字列表示.h"
#include "dataenv/試験表試験.h"

namespace {

// Statements of a store run as one batch with a savepoint around each. Each one still succeeds
// or fails alone, with the message it gives outside a batch, and a query hands over all its rows.
class 一括実行 : public 試験表試験 {
  protected:
    一括実行() : 試験表試験(u"値 varchar(20) PRIMARY KEY") {}
    void SetUp() override {
        試験表試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        開く();
    }
    bool 実行(const QString& 文) { return 環境.接続().業務DB実行(文); }
    const 接続エラー& エラー() { return 環境.接続().業務DB().最終エラー(); }
};

TEST_P(一括実行, 文は一括の中でも外と同じに成り失敗はその文だけを取り消す) {
    ASSERT_TRUE(実行(u"INSERT INTO 試験表 (値) VALUES ('重複')"_qs));
    // An unknown column, a broken word, a quote and a comment left open, a statement cut short,
    // a key taken twice: the middle four read on into whatever follows them in a message.
    const QString 文一覧[] = {
        u"UPDATE 試験表 SET 無い列 = 'x'"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('a') ,, ('b')"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('it's')"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('c') /* 閉じない"_qs,
        u"SELECT * FROM 試験表 WHERE"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('重複')"_qs,
    };
    int 失敗数 = 0;
    for (const QString& 文 : 文一覧) {
        SCOPED_TRACE(文.toStdString());
        const bool 単独成功 = 実行(文);
        const 接続エラー 単独 = エラー();
        const QStringList 単独後 = 試験表();
        ASSERT_TRUE(実行(u"DELETE FROM 試験表 WHERE 値 <> '重複'"_qs));
        環境.接続().業務DB一括開始(u"試験"_qs);
        EXPECT_TRUE(実行(u"INSERT INTO 試験表 (値) VALUES ('前')"_qs));
        EXPECT_EQ(実行(文), 単独成功);
        if (!単独成功) {
            ++失敗数;
            EXPECT_EQ(エラー().番号, 単独.番号);
            EXPECT_EQ(エラー().説明, 単独.説明);
        }
        EXPECT_TRUE(実行(u"INSERT INTO 試験表 (値) VALUES ('後')"_qs));
        EXPECT_TRUE(環境.接続().業務DB一括終了());
        QStringList 期待 = 単独後 + QStringList{u"前"_qs, u"後"_qs};
        期待.sort();
        EXPECT_EQ(試験表(), 期待);
        ASSERT_TRUE(実行(u"DELETE FROM 試験表 WHERE 値 <> '重複'"_qs));
    }
    // SQLite ends a comment left open with the text; the rest fail on both engines.
    EXPECT_EQ(失敗数, GetParam() ? 6 : 5);
}

TEST_P(一括実行, 問合せは全ての行を渡し次の文はその後に動く) {
    環境.接続().業務DB一括開始(u"試験"_qs);
    for (int i = 0; i < 40; ++i) {
        ASSERT_TRUE(
            実行(u"INSERT INTO 試験表 (値) VALUES ('"_qs + QString::number(1000 + i) + u"')"_qs));
    }
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(rs, u"SELECT 値 FROM 試験表 ORDER BY 値"_qs));
    QStringList 読んだ;
    for (; !rs.EOFか(); rs.MoveNext()) 読んだ << rs.文字列(0);
    rs.閉じる();
    ASSERT_EQ(読んだ.size(), 40);
    EXPECT_EQ(読んだ.front(), u"1000"_qs);
    EXPECT_EQ(読んだ.back(), u"1039"_qs);
    // A query left after its first row does not stand in the way of the next statement.
    ASSERT_TRUE(環境.接続().業務DB検索(rs, u"SELECT 値 FROM 試験表 ORDER BY 値"_qs));
    EXPECT_TRUE(実行(u"DELETE FROM 試験表 WHERE 値 >= '1020'"_qs));
    rs.閉じる();
    EXPECT_FALSE(実行(u"INSERT INTO 試験表 (値) VALUES ('1000')"_qs));
    EXPECT_TRUE(実行(u"INSERT INTO 試験表 (値) VALUES ('最後') -- 行の終わりまでの注釈"_qs));
    EXPECT_TRUE(環境.接続().業務DB一括終了());
    EXPECT_EQ(試験表().size(), 21);
    EXPECT_TRUE(試験表().contains(u"最後"_qs));
}

KONPEKI_両エンジンで(一括実行);

}  // namespace
