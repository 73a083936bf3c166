#include <gtest/gtest.h>

#include "common/文字列表示.h"
#include "dataenv/試験表試験.h"

namespace {

// Statements of a store run as one batch with a savepoint around each. Each one still succeeds
// or fails alone, with the message it gives outside a batch, and a query hands over all its rows.
// Writes may wait for their answers; each still succeeds or fails as it does alone, with its
// message and its history row, in the order the writes were given.
class 一括実行 : public 開いた試験表試験 {
  protected:
    一括実行() : 開いた試験表試験(u"値 varchar(20) PRIMARY KEY") {}
    bool 実行(const QString& 文) { return 環境.接続().業務DB実行(文); }
    const 接続エラー& エラー() { return 環境.接続().業務DB().最終エラー(); }
    // The write given to wait; its answer goes to 答え.
    void 送る(const QString& 文, std::vector<int>& 答え, bool 履歴 = false) {
        環境.接続().業務DB後で実行(
            文, [&答え](bool 成功) { 答え.push_back(成功 ? 1 : 0); }, 履歴);
    }
    // The texts of the run history rows after the first 何行.
    QStringList 履歴文(qsizetype 何行) {
        QStringList r;
        const auto 行 = 履歴();
        for (qsizetype i = 何行; i < 行.size(); ++i) r << 行[i][1].toString();
        return r;
    }
    // Good writes with bad ones between them: an unknown column, broken syntax, a quote and a
    // comment left open, a statement cut short, a key taken twice, and one refused before it
    // reaches the server.
    const QStringList 文一覧 = {
        u"INSERT INTO 試験表 (値) VALUES ('一')"_qs,
        u"UPDATE 試験表 SET 無い列 = 'x'"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('二')"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('a') ,, ('b')"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('it's')"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('三')"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('c') /* 閉じない"_qs,
        u"SELECT * FROM 試験表 WHERE"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('重複')"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('四'); DELETE FROM 試験表"_qs,
        u"UPDATE 試験表 SET 値 = '五' WHERE 値 = '一'"_qs,
        u"INSERT INTO 試験表 (値) VALUES ('六')"_qs,
    };
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

TEST_P(一括実行, 待った書込も一つずつ待つ時と同じ結果と履歴になる) {
    ASSERT_TRUE(実行(u"INSERT INTO 試験表 (値) VALUES ('重複')"_qs));
    // Each write waiting for its own answer, in a batch.
    const qsizetype 始め = 履歴().size();
    環境.接続().業務DB一括開始(u"試験"_qs);
    std::vector<int> 一つずつ;
    QStringList 一つずつの説明;
    for (const QString& 文 : 文一覧) {
        const bool 成功 = 環境.接続().業務DB実行(文, true);
        一つずつ.push_back(成功 ? 1 : 0);
        if (!成功) 一つずつの説明 << 環境.接続().業務DB().最終エラー().説明;
    }
    ASSERT_TRUE(環境.接続().業務DB一括終了());
    const QStringList 一つずつの表 = 試験表();
    const QStringList 一つずつの履歴 = 履歴文(始め);

    ASSERT_TRUE(実行(u"DELETE FROM 試験表 WHERE 値 <> '重複'"_qs));
    const qsizetype 中程 = 履歴().size();
    環境.接続().業務DB一括開始(u"試験"_qs);
    std::vector<int> 待った;
    for (const QString& 文 : 文一覧) 送る(文, 待った, true);
    ASSERT_TRUE(環境.接続().業務DB一括終了());
    EXPECT_EQ(待った, 一つずつ);
    EXPECT_EQ(試験表(), 一つずつの表);
    EXPECT_EQ(履歴文(中程), 一つずつの履歴);

    // The statements that failed, the traced ones and the messages all stand in the history.
    const std::vector<int> 期待 = GetParam() ? std::vector{1, 0, 1, 0, 0, 1, 0, 0, 0, 0, 1, 1}
                                             : std::vector{1, 0, 1, 0, 0, 1, 1, 0, 0, 0, 1, 1};
    EXPECT_EQ(待った, 期待);
    // SQLite ends a comment left open with the text, so its value stands there.
    QStringList 残る = {u"三"_qs, u"二"_qs, u"五"_qs, u"六"_qs, u"重複"_qs};
    if (!GetParam()) 残る.prepend(u"c"_qs);
    EXPECT_EQ(試験表(), 残る);
    ASSERT_EQ(一つずつの履歴.size(), 文一覧.size());
    for (const QString& 説明 : 一つずつの説明) {
        EXPECT_TRUE(一つずつの履歴.join(u'\n').contains(説明.left(20))) << 説明.toStdString();
    }
}

TEST_P(一括実行, 答えは次に接続を使う前に順に渡る) {
    ASSERT_TRUE(実行(u"INSERT INTO 試験表 (値) VALUES ('重複')"_qs));
    const qsizetype 始め = 履歴().size();
    環境.接続().業務DB一括開始(u"試験"_qs);
    std::vector<int> 答え;
    送る(u"INSERT INTO 試験表 (値) VALUES ('甲')"_qs, 答え);
    送る(u"INSERT INTO 試験表 (値) VALUES ('重複')"_qs, 答え);
    送る(u"INSERT INTO 試験表 (値) VALUES ('乙')"_qs, 答え, true);
    // On the server the writes wait; the file engine runs each at once.
    EXPECT_EQ(答え.size(), GetParam() ? 0u : 3u);
    // A query of the batch sees them, and their answers came before it ran.
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(rs, u"SELECT COUNT(*) FROM 試験表"_qs));
    EXPECT_EQ(rs.文字列(0), u"3"_qs);
    rs.閉じる();
    EXPECT_EQ(答え, (std::vector{1, 0, 1}));

    // A history row of something else waits for the rows of the writes given before it.
    送る(u"INSERT INTO 試験表 (値) VALUES ('重複')"_qs, 答え);
    環境.接続().エラー履歴書込(u"別の行"_qs);
    EXPECT_EQ(答え, (std::vector{1, 0, 1, 0}));
    ASSERT_TRUE(環境.接続().業務DB一括終了());
    const QStringList 行 = 履歴文(始め);
    ASSERT_EQ(行.size(), 4);
    EXPECT_TRUE(行[0].startsWith(u"エラー "_qs));
    EXPECT_TRUE(行[0].contains(u"VALUES (''重複'')"_qs));
    EXPECT_EQ(行[1], u"出力終了 INSERT INTO 試験表 (値) VALUES (''乙'')"_qs);
    EXPECT_TRUE(行[2].contains(u"VALUES (''重複'')"_qs));
    EXPECT_EQ(行[3], u"エラー 別の行"_qs);
}

TEST_P(一括実行, 多くの書込も一つ残らず答えが渡る) {
    ASSERT_TRUE(実行(u"INSERT INTO 試験表 (値) VALUES ('重複')"_qs));
    環境.接続().業務DB一括開始(u"試験"_qs);
    std::vector<int> 答え;
    for (int i = 0; i < 450; ++i) {
        // Every hundredth takes a key already taken.
        const QString 値 = i % 100 == 50 ? u"重複"_qs : QString::number(10000 + i);
        送る(u"INSERT INTO 試験表 (値) VALUES ('"_qs + 値 + u"')"_qs, 答え);
    }
    環境.接続().業務DB().待ちを送る();
    if (GetParam()) {
        // The last writes went as one stream: the server's last command is the savepoint that
        // closes it, not a message of a statement and its savepoint commands.
        const auto 行 = 木->業務DB行(
            u"SELECT query FROM pg_stat_activity WHERE datname = current_database() "
            u"AND pid <> pg_backend_pid() AND backend_type = 'client backend'"_qs);
        ASSERT_EQ(行.size(), 1);
        EXPECT_EQ(行[0][0].toString(), u"SAVEPOINT konpeki_stmt"_qs);
    }
    ASSERT_TRUE(環境.接続().業務DB一括終了());
    ASSERT_EQ(答え.size(), 450u);
    for (int i = 0; i < 450; ++i) EXPECT_EQ(答え[i], i % 100 == 50 ? 0 : 1) << i;
    EXPECT_EQ(試験表().size(), 1 + 450 - 4);
}

TEST_P(一括実行, 確定しない一括の書込は残らない) {
    ASSERT_TRUE(実行(u"INSERT INTO 試験表 (値) VALUES ('重複')"_qs));
    環境.接続().業務DB一括開始(u"試験"_qs);
    std::vector<int> 答え;
    送る(u"INSERT INTO 試験表 (値) VALUES ('消える')"_qs, 答え);
    // The connection closes with the write still waiting: it is sent, and undone with the
    // batch.
    環境.接続().業務DB().閉じる();
    EXPECT_EQ(答え, (std::vector{1}));
    EXPECT_EQ(試験表(), (QStringList{u"重複"_qs}));
}

KONPEKI_両エンジンで(一括実行);

}  // namespace
