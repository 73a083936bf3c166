#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>

#include "dataenv/SQL方言変換.h"

namespace {

QString 繰り返し(QStringView 片, qsizetype 回数) {
    QString s;
    s.reserve(片.size() * 回数);
    for (qsizetype i = 0; i < 回数; ++i) s += 片;
    return s;
}

// Long statements with nested and chained RIGHT JOINs past the number of rewrites, subqueries
// with TOP and trailing blanks, LEFT( within LEFT(, [names], brackets and literals left open,
// and words thrown together; each with its SQLite and its PostgreSQL text as the translation
// wrote them when it still rebuilt its text once per bracket level.
TEST(SQL方言変換, 長い文は一段ずつ組み直していた頃と同じ文に訳される) {
    QFile f(KONPEKI_TEST_DATA "/SQL方言変換_長文.txt");
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QStringList 行々 = QString::fromUtf8(f.readAll()).split(u'\n');
    int 件数 = 0;
    for (qsizetype i = 0; i + 3 < 行々.size(); i += 4) {
        ASSERT_TRUE(行々[i].startsWith(u"# "_qs)) << i;
        const QString& 文 = 行々[i + 1];
        ASSERT_GT(文.size(), 1000);
        EXPECT_EQ(SQL方言変換(文, SQL方言::SQLite), 行々[i + 2]) << 行々[i].toStdString();
        EXPECT_EQ(SQL方言変換(文, SQL方言::PostgreSQL), 行々[i + 3]) << 行々[i].toStdString();
        EXPECT_EQ(SQL方言変換(文, SQL方言::そのまま), 文);
        ++件数;
    }
    EXPECT_EQ(件数, 10);
}

TEST(SQL方言変換, 十万段の括弧も訳して最上位のTOPは末尾に付く) {
    const QString 開き = QString(100000, u'('), 閉じ = QString(100000, u')');
    EXPECT_EQ(SQL方言変換(u"SELECT TOP 1 "_qs + 開き + u"x"_qs + 閉じ, SQL方言::SQLite),
              u"SELECT "_qs + 開き + u"x"_qs + 閉じ + u" LIMIT 1"_qs);
    // Left open, every level ends with the statement and the LIMIT still comes last.
    EXPECT_EQ(SQL方言変換(u"SELECT TOP 1 "_qs + 開き, SQL方言::PostgreSQL),
              u"SELECT "_qs + 開き + u" LIMIT 1"_qs);
}

TEST(SQL方言変換, 二万段のLEFTはそれぞれの最後の引数の前に開始位置が入る) {
    const qsizetype 段数 = 20000;
    EXPECT_EQ(
        SQL方言変換(u"SELECT "_qs + 繰り返し(u"LEFT(", 段数) + u"a"_qs + 繰り返し(u",1)", 段数),
                    SQL方言::SQLite),
        u"SELECT "_qs + 繰り返し(u"substr(", 段数) + u"a"_qs + 繰り返し(u",1,1)", 段数));
}

TEST(SQL方言変換, 各段のTOPは閉じない段でもその段の末尾の空白の前に付く) {
    const QString 文 = 繰り返し(u"(TOP 1 x", 3000) + QString(500, u' ') + u";"_qs;
    const QString 期待 =
        繰り返し(u"(x", 3000) + 繰り返し(u" LIMIT 1", 3000) + QString(500, u' ') + u";"_qs;
    EXPECT_EQ(SQL方言変換(文, SQL方言::SQLite), 期待);
}

TEST(SQL方言変換, 閉じない角括弧が百万続いてもPostgreSQLへそのまま渡る) {
    const QString 文 = u"SELECT "_qs + QString(1000000, u'[') + u" FROM t"_qs;
    EXPECT_EQ(SQL方言変換(文, SQL方言::PostgreSQL), 文);
    // one ] at the very end closes only the last of them
    EXPECT_EQ(
        SQL方言変換(u"SELECT TOP 2 "_qs + QString(1000000, u'[') + u"a]"_qs, SQL方言::PostgreSQL),
        u"SELECT "_qs + QString(999999, u'[') + u"a LIMIT 2"_qs);
}

// Each rewrite takes the first RIGHT JOIN left in the text, whose left operand is the name in
// front of it: in a chain that is the last word of the condition before.
TEST(SQL方言変換, 千の右外部結合のうち書き直すのは先頭から三十二まで) {
    QString 文 = u"SELECT * FROM A0"_qs;
    for (int i = 1; i <= 1000; ++i) {
        文 += u" RIGHT JOIN A%1 ON k%1"_qs.arg(i);
    }
    QString 期待 = u"SELECT * FROM A1 LEFT JOIN A0 ON "_qs;
    for (int i = 2; i <= 32; ++i) 期待 += u"A%1 LEFT JOIN k%2 ON "_qs.arg(i).arg(i - 1);
    期待 += u"k32"_qs;
    for (int i = 33; i <= 1000; ++i) 期待 += u" RIGHT JOIN A%1 ON k%1"_qs.arg(i);
    EXPECT_EQ(SQL方言変換(文, SQL方言::SQLite), 期待);
}

}  // namespace
