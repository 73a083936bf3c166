#include <gtest/gtest.h>

#include "common/文字列表示.h"
#include "dataenv/文の引数化.h"

namespace {

QByteArray 値(const 引数付き文& a, int k) {
    return QByteArray(a.値().at(k));
}

// The values of an insert become parameters with the types their literals have; anything the
// reading is not sure of stays a statement of its own.
TEST(文の引数化, 文字数NULLは型を保った引数になる) {
    引数付き文 a;
    ASSERT_TRUE(文を引数に(
        u"INSERT INTO T出金明細 (a, b, c, d, e, f, g) VALUES ('it''s 出金', 100, -2.50, NULL, "
        u"'', 3000000000, 'a\\b')"_qs,
        a));
    EXPECT_EQ(a.型紙, QByteArray("INSERT INTO T出金明細 (a, b, c, d, e, f, g) VALUES ($1, $2, "
                                 "$3, $4, $5, $6, $7)"));
    EXPECT_EQ(a.型, (std::vector<unsigned>{0, 23, 1700, 0, 0, 20, 0}));
    EXPECT_EQ(値(a, 0), QString(u"it's 出金"_qs).toUtf8());
    EXPECT_EQ(値(a, 1), QByteArray("100"));
    EXPECT_EQ(値(a, 2), QByteArray("-2.50"));
    EXPECT_EQ(a.値().at(3), nullptr);
    EXPECT_EQ(値(a, 4), QByteArray(""));
    EXPECT_EQ(値(a, 5), QByteArray("3000000000"));
    EXPECT_EQ(値(a, 6), QByteArray("a\\b"));
    EXPECT_FALSE(a.必ず失敗());
    // The same text with a whole number where a fraction stood is another statement.
    引数付き文 b;
    ASSERT_TRUE(
        文を引数に(u"INSERT INTO T出金明細 (a, b, c, d, e, f, g) VALUES ('x', 1, 2, "
                   u"NULL, 'y', 3000000000, 'z')"_qs,
                   b));
    EXPECT_EQ(b.型紙, a.型紙);
    EXPECT_NE(b.鍵(), a.鍵());
}

// A delete by the equality of columns to plain values, joined by AND.
TEST(文の引数化, 列の等しさで消す文も引数になる) {
    引数付き文 a;
    ASSERT_TRUE(
        文を引数に(u"DELETE FROM T出金明細 WHERE T出金明細.事業所コード = '000' AND "
                   u"T出金明細.出金No='0''1'  AND 番号 = -12"_qs,
                   a));
    EXPECT_EQ(a.型紙, QByteArray("DELETE FROM T出金明細 WHERE T出金明細.事業所コード = $1 AND "
                                 "T出金明細.出金No=$2  AND 番号 = $3"));
    EXPECT_EQ(a.型, (std::vector<unsigned>{0, 0, 23}));
    EXPECT_EQ(値(a, 0), QByteArray("000"));
    EXPECT_EQ(値(a, 1), QByteArray("0'1"));
    EXPECT_EQ(値(a, 2), QByteArray("-12"));
    EXPECT_FALSE(a.必ず失敗());
    for (const QString& 文 : {
             u"DELETE FROM T"_qs,
             u"DELETE FROM T WHERE a = 1 OR b = 2"_qs,
             u"DELETE FROM T WHERE a = 1 AND (b = 2)"_qs,
             u"DELETE FROM T WHERE a < 1"_qs,
             u"DELETE FROM T WHERE a = b"_qs,
             u"DELETE FROM T WHERE a = 1ANDb = 2"_qs,
             u"DELETE FROM T WHERE a = 1 AND"_qs,
             u"DELETE FROM T WHERE \"a\" = 1"_qs,
             u"DELETE FROM T WHERE a = 1 -- 注"_qs,
             u"DELETE FROM T WHERE 1 = 1"_qs,
         }) {
        EXPECT_FALSE(文を引数に(文, a)) << 文.toStdString();
    }
}

// An insert naming more columns than it gives values is refused by every engine.
TEST(文の引数化, 列と値の数が違う挿入は必ず失敗する) {
    引数付き文 a;
    ASSERT_TRUE(文を引数に(u"INSERT INTO T (a,b,c) VALUES ('1',2)"_qs, a));
    EXPECT_EQ(a.列数, 3);
    EXPECT_TRUE(a.必ず失敗());
    ASSERT_TRUE(文を引数に(u"INSERT INTO T (a) VALUES ('1',2)"_qs, a));
    EXPECT_TRUE(a.必ず失敗());
    ASSERT_TRUE(文を引数に(u"INSERT INTO T (a, b) VALUES ('1,2',2)"_qs, a));
    EXPECT_FALSE(a.必ず失敗());
    ASSERT_TRUE(文を引数に(u"DELETE FROM T WHERE a = 1"_qs, a));
    EXPECT_FALSE(a.必ず失敗());
}

TEST(文の引数化, 確かでない文はそのまま送る) {
    引数付き文 a;
    for (const QString& 文 : {
             u"UPDATE T SET a = 1"_qs,
             u"INSERT INTO T (a) SELECT a FROM U"_qs,
             u"INSERT INTO T (a) VALUES (007)"_qs,     // the literal reads as 7
             u"INSERT INTO T (a) VALUES (1e3)"_qs,     // an exponent
             u"INSERT INTO T (a) VALUES (E'\\n')"_qs,  // an escaped text
             u"INSERT INTO T (a) VALUES ('open)"_qs,   // a quote left open
             u"INSERT INTO T (a) VALUES (1), (2)"_qs,  // two rows
             u"INSERT INTO T (a) VALUES (now())"_qs,   // a function
             u"INSERT INTO T (a) VALUES (1) RETURNING a"_qs,
             u"INSERT INTO T (a) VALUES (1) -- 注"_qs,
             u"INSERT INTO T (\"a'\") VALUES (1)"_qs,
             u"INSERT INTO T (a) VALUES (NULLS)"_qs,
         }) {
        EXPECT_FALSE(文を引数に(文, a)) << 文.toStdString();
    }
}

}  // namespace
