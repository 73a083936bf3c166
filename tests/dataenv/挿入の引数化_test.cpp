#include <gtest/gtest.h>

#include "common/文字列表示.h"
#include "dataenv/挿入の引数化.h"

namespace {

// The values of an insert become parameters with the types their literals have; anything the
// reading is not sure of stays a statement of its own.
TEST(挿入の引数化, 文字数NULLは型を保った引数になる) {
    引数付き挿入 a;
    ASSERT_TRUE(挿入を引数に(
        u"INSERT INTO T出金明細 (a, b, c, d, e, f, g) VALUES ('it''s 出金', 100, -2.50, NULL, "
        u"'', 3000000000, 'a\\b')"_qs,
        a));
    EXPECT_EQ(a.文, QByteArray("INSERT INTO T出金明細 (a, b, c, d, e, f, g) VALUES ($1, $2, $3, "
                               "$4, $5, $6, $7)"));
    EXPECT_EQ(a.型, (std::vector<unsigned>{0, 23, 1700, 0, 0, 20, 0}));
    EXPECT_EQ(a.値[0], QString(u"it's 出金"_qs).toUtf8());
    EXPECT_EQ(a.値[1], QByteArray("100"));
    EXPECT_EQ(a.値[2], QByteArray("-2.50"));
    EXPECT_EQ(a.値[4], QByteArray(""));
    EXPECT_EQ(a.値[5], QByteArray("3000000000"));
    EXPECT_EQ(a.値[6], QByteArray("a\\b"));
    EXPECT_EQ(a.Null, (std::vector<bool>{false, false, false, true, false, false, false}));
    // The same text with a whole number where a fraction stood is another statement.
    引数付き挿入 b;
    ASSERT_TRUE(
        挿入を引数に(u"INSERT INTO T出金明細 (a, b, c, d, e, f, g) VALUES ('x', 1, 2, "
                     u"NULL, 'y', 3000000000, 'z')"_qs,
                     b));
    EXPECT_EQ(b.文, a.文);
    EXPECT_NE(b.鍵(), a.鍵());
}

TEST(挿入の引数化, 確かでない文はそのまま送る) {
    引数付き挿入 a;
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
        EXPECT_FALSE(挿入を引数に(文, a)) << 文.toStdString();
    }
}

}  // namespace
