#include <gtest/gtest.h>

#include "common/文字列表示.h"
#include "dataenv/試験表試験.h"

namespace {

// On PostgreSQL the inserts and deletes of a stream go as prepared statements with parameters.
// What they store, and whether they fail, is what the same statements give as text.
class 引数付き書込試験 : public 開いた試験表試験 {
  protected:
    引数付き書込試験()
        : 開いた試験表試験(u"番号 integer, 文字 varchar(20), 額 numeric(19,4), 小 smallint") {}
    // The values after 番号, each kind of literal into each kind of column.
    const QStringList 値一覧 = {
        u"'it''s 出金', 100, 1.5"_qs,
        u"100, '100.25', 7"_qs,
        u"1.50, -2, -1.5"_qs,
        u"'a\\b', NULL, NULL"_qs,
        u"NULL, 3000000000, 3"_qs,
        u"'', 0.0001, 2.5"_qs,
        u"'x', 'y', 1"_qs,
        u"'z', 1, 99999"_qs,
        u"-0.5, -0.5, 0"_qs,
    };
    QString 文(int 番号, const QString& 値) {
        return u"INSERT INTO 試験表 (番号, 文字, 額, 小) VALUES ("_qs + QString::number(番号) +
               u", "_qs + 値 + u")"_qs;
    }
    // The stored values as text, by number.
    QStringList 行(int 始め) {
        QStringList r;
        for (const auto& v : 木->業務DB行(
                 u"SELECT 番号, 文字, CAST(額 AS varchar(30)), CAST(小 AS varchar(10)) FROM 試験表 "
                 u"WHERE 番号 >= "_qs +
                 QString::number(始め) + u" AND 番号 < "_qs + QString::number(始め + 100) +
                 u" ORDER BY 番号"_qs)) {
            r << QString::number(v[0].toInt() - 始め) + u"|"_qs + v[1].toString() + u"|"_qs +
                     v[2].toString() + u"|"_qs + v[3].toString();
        }
        return r;
    }
};

TEST_P(引数付き書込試験, 流した挿入は文のままと同じ値で入り同じ文が失敗する) {
    // Twice over in streams, so that the second round runs on statements prepared already.
    std::vector<int> 流した答え, 文の答え;
    for (int 回 = 0; 回 < 2; ++回) {
        環境.接続().業務DB一括開始(u"試験"_qs);
        for (int i = 0; i < 値一覧.size(); ++i) {
            環境.接続().業務DB後で実行(文(回 * 100 + 100 + i, 値一覧[i]),
                                       [&](bool 成功) { 流した答え.push_back(成功); });
        }
        ASSERT_TRUE(環境.接続().業務DB一括終了());
    }
    for (int i = 0; i < 値一覧.size(); ++i)
        文の答え.push_back(環境.接続().業務DB実行(文(i, 値一覧[i])));
    const std::vector<int> 一回分(流した答え.begin(), 流した答え.begin() + 値一覧.size());
    EXPECT_EQ(一回分, 文の答え);
    EXPECT_EQ(std::vector<int>(流した答え.begin() + 値一覧.size(), 流した答え.end()), 文の答え);
    EXPECT_EQ(行(100), 行(0));
    EXPECT_EQ(行(200), 行(0));
    if (!GetParam()) return;
    // The text 'y' is no number and 99999 no smallint: those two fail in every way.
    EXPECT_EQ(std::count(文の答え.begin(), 文の答え.end(), 0), 2);
    EXPECT_EQ(行(0).size(), 値一覧.size() - 2);
    // The inserts went prepared: a few statements, one per kind of parameters.
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(
        rs, u"SELECT COUNT(*) FROM pg_prepared_statements WHERE name LIKE 'konpeki_i%'"_qs));
    const int 用意数 = rs.文字列(0).toInt();
    EXPECT_GE(用意数, 5);
    EXPECT_LE(用意数, 9);
    rs.閉じる();
    // Thirty inserts of a new kind in one stream prepare it once.
    環境.接続().業務DB一括開始(u"試験"_qs);
    for (int i = 0; i < 30; ++i)
        環境.接続().業務DB後で実行(文(300 + i, u"'同じ形', 5.25, 6"_qs), [](bool) {});
    ASSERT_TRUE(環境.接続().業務DB一括終了());
    ASSERT_TRUE(環境.接続().業務DB検索(
        rs, u"SELECT COUNT(*) FROM pg_prepared_statements WHERE name LIKE 'konpeki_i%'"_qs));
    EXPECT_EQ(rs.文字列(0).toInt(), 用意数 + 1);
    rs.閉じる();
    EXPECT_EQ(行(300).size(), 30);
}

// Deletes by equal values go prepared in a stream too, and take away the rows the same deletes
// take away as text; one that the engine refuses fails with the message it has as text.
TEST_P(引数付き書込試験, 流した削除は文のままと同じ行を消し同じ文が失敗する) {
    for (int 始め : {0, 100}) {
        for (int i = 0; i < 値一覧.size(); ++i) 環境.接続().業務DB実行(文(始め + i, 値一覧[i]));
    }
    // Row by row: a text, a fraction, a text again, a text where a number stands, a number
    // beyond int4, and a smallint compared with a number it cannot hold.
    const QStringList 条件 = {
        u"番号 = %1 AND 文字 = 'it''s 出金'"_qs, u"番号 = %1 AND 額 = 100.25"_qs,
        u"文字 = '1.50' AND 番号 = %1"_qs,       u"小 = 'x' AND 額 = %1"_qs,
        u"番号 = %1 AND 額 = 3000000000"_qs,     u"番号 = %1 AND 小 = 99999"_qs,
    };
    // The failing one is the same text in both rounds, so that its message is too.
    auto 削除文 = [&](int 始め, int k) {
        return u"DELETE FROM 試験表 WHERE "_qs + 条件[k].arg(k == 3 ? 3 : 始め + k);
    };
    std::vector<std::pair<bool, QString>> 流した答え, 文の答え;
    データ接続& db = 環境.接続().業務DB();
    ASSERT_TRUE(db.一括開始());
    for (int k = 0; k < 条件.size(); ++k) {
        db.後で実行(削除文(100, k), [&](bool 成功, const 接続エラー& e) {
            流した答え.push_back({成功, 成功 ? QString() : e.説明});
        });
    }
    ASSERT_TRUE(db.一括終了());
    for (int k = 0; k < 条件.size(); ++k) {
        const bool 成功 = db.実行(削除文(0, k));
        文の答え.push_back({成功, 成功 ? QString() : db.最終エラー().説明});
    }
    EXPECT_EQ(流した答え, 文の答え);
    EXPECT_EQ(行(100), 行(0));
    if (!GetParam()) return;
    // 'x' is no smallint: that delete fails; 99999 is compared as a number and finds nothing.
    // Four of the seven rows are gone.
    EXPECT_EQ(std::count_if(文の答え.begin(), 文の答え.end(), [](auto& a) { return !a.first; }), 1);
    EXPECT_EQ(行(0).size(), 値一覧.size() - 2 - 4);
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(
        rs, u"SELECT COUNT(*) FROM pg_prepared_statements WHERE statement LIKE 'DELETE%'"_qs));
    EXPECT_GE(rs.文字列(0).toInt(), 4);
    rs.閉じる();
}

// An insert naming more columns than it has values cannot stand: it goes alone, with the
// message it has alone, and the writes before and after it in the stream stand.
TEST_P(引数付き書込試験, 値の足りない挿入は流れを止めず文のままの答えになる) {
    const QString 足りない = u"INSERT INTO 試験表 (番号, 文字, 額, 小) VALUES (50, 'a', 1)"_qs;
    データ接続& db = 環境.接続().業務DB();
    std::vector<std::pair<bool, QString>> 答え;
    auto 受け = [&](bool 成功, const 接続エラー& e) {
        答え.push_back({成功, 成功 ? QString() : e.説明});
    };
    ASSERT_TRUE(db.一括開始());
    db.後で実行(文(100, 値一覧[0]), 受け);
    db.後で実行(足りない, 受け);
    db.後で実行(文(101, 値一覧[1]), 受け);
    ASSERT_TRUE(db.一括終了());
    const bool 成功 = db.実行(足りない);
    ASSERT_FALSE(成功);
    const std::vector<std::pair<bool, QString>> 期待 = {
        {true, QString()}, {false, db.最終エラー().説明}, {true, QString()}};
    EXPECT_EQ(答え, 期待);
    EXPECT_EQ(行(100).size(), 2);
    EXPECT_TRUE(行(0).isEmpty());
}

KONPEKI_両エンジンで(引数付き書込試験);

}  // namespace
