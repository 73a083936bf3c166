#include <gtest/gtest.h>

#include "dataenv/SQL方言変換.h"

namespace {
QString 変換(const QString& s, SQL方言 d) {
    return SQL方言変換(s, d);
}
}  // namespace

TEST(SQL方言変換, TOPはSQLiteで末尾のLIMITになる) {
    EXPECT_EQ(変換(u"SELECT TOP 1 * FROM M他業務連携 WHERE コード = '003'"_qs, SQL方言::SQLite),
              u"SELECT * FROM M他業務連携 WHERE コード = '003' LIMIT 1"_qs);
}

TEST(SQL方言変換, TOPはPostgreSQLでも末尾のLIMITになる) {
    EXPECT_EQ(変換(u"SELECT TOP 1000 コード FROM M担当者 ORDER BY コード"_qs, SQL方言::PostgreSQL),
              u"SELECT コード FROM M担当者 ORDER BY コード LIMIT 1000"_qs);
}

TEST(SQL方言変換, DISTINCTの後のTOPも移る) {
    EXPECT_EQ(変換(u"SELECT DISTINCT TOP 20 摘要 FROM T出金明細"_qs, SQL方言::SQLite),
              u"SELECT DISTINCT 摘要 FROM T出金明細 LIMIT 20"_qs);
}

TEST(SQL方言変換, 副問合せのTOPはその括弧の中で閉じる) {
    EXPECT_EQ(
        変換(
            u"SELECT * FROM T出金 WHERE 出金No = (SELECT TOP 1 出金No FROM T出金 ORDER BY 出金No DESC) ORDER BY 出金日付"_qs,
            SQL方言::SQLite),
        u"SELECT * FROM T出金 WHERE 出金No = (SELECT 出金No FROM T出金 ORDER BY 出金No DESC LIMIT 1) ORDER BY 出金日付"_qs);
}

TEST(SQL方言変換, 末尾のセミコロンはLIMITの後ろに残る) {
    EXPECT_EQ(変換(u"SELECT TOP 3 a FROM t;"_qs, SQL方言::SQLite), u"SELECT a FROM t LIMIT 3;"_qs);
}

TEST(SQL方言変換, 角括弧はPostgreSQLでだけ外れる) {
    const QString 文 = u"INSERT INTO [T承認] ([事業所コード],[番号ID]) VALUES ('000','16810')"_qs;
    EXPECT_EQ(変換(文, SQL方言::PostgreSQL),
              u"INSERT INTO T承認 (事業所コード,番号ID) VALUES ('000','16810')"_qs);
    EXPECT_EQ(変換(文, SQL方言::SQLite), 文);
}

TEST(SQL方言変換, LEFTはSQLiteでsubstrになる) {
    EXPECT_EQ(変換(u"SELECT LEFT(摘要,20) AS 摘要 FROM T出金明細"_qs, SQL方言::SQLite),
              u"SELECT substr(摘要,1,20) AS 摘要 FROM T出金明細"_qs);
    EXPECT_EQ(変換(u"SELECT LEFT(摘要,20) FROM T出金明細"_qs, SQL方言::PostgreSQL),
              u"SELECT LEFT(摘要,20) FROM T出金明細"_qs);
}

TEST(SQL方言変換, 入れ子の関数を含むLEFTも最後の引数の前に開始位置が入る) {
    EXPECT_EQ(変換(u"SELECT LEFT(trim(a, 'x'), 2) FROM t"_qs, SQL方言::SQLite),
              u"SELECT substr(trim(a, 'x'),1, 2) FROM t"_qs);
}

TEST(SQL方言変換, LEFT_JOINは関数ではないので残る) {
    const QString 文 =
        u"SELECT * FROM T出金 LEFT JOIN M担当者 ON T出金.担当者コード = M担当者.コード"_qs;
    EXPECT_EQ(変換(文, SQL方言::SQLite), 文);
}

TEST(SQL方言変換, nvarcharはPostgreSQLでvarcharになる) {
    EXPECT_EQ(変換(u"SELECT CAST(摘要 AS nvarchar(20)) FROM T出金明細"_qs, SQL方言::PostgreSQL),
              u"SELECT CAST(摘要 AS varchar(20)) FROM T出金明細"_qs);
    EXPECT_EQ(変換(u"SELECT CAST(摘要 AS nvarchar(20)) FROM T出金明細"_qs, SQL方言::SQLite),
              u"SELECT CAST(摘要 AS nvarchar(20)) FROM T出金明細"_qs);
}

TEST(SQL方言変換, 引用符の中の語には触れない) {
    const QString 文 =
        u"UPDATE t SET 摘要 = 'TOP 5 の [注] LEFT(x,1) nvarchar(9) 彼''s' WHERE a = 'TOP 1'"_qs;
    EXPECT_EQ(変換(文, SQL方言::SQLite), 文);
    EXPECT_EQ(変換(文, SQL方言::PostgreSQL), 文);
}

TEST(SQL方言変換, 語の一部のTOPやLEFTは書き換えない) {
    const QString 文 = u"SELECT TOPIC, LEFTOVER(1), STOP 1 FROM t"_qs;
    EXPECT_EQ(変換(文, SQL方言::SQLite), 文);
}

TEST(SQL方言変換, SQLiteでは右外部結合を左外部結合に書き直す) {
    EXPECT_EQ(
        変換(
            u"SELECT T出金.* FROM Mセクション RIGHT JOIN (M部門 RIGHT JOIN (M担当者 INNER JOIN T出金 ON M担当者.コード = T出金.担当者コード) ON M部門.コード = T出金.部門コード) ON Mセクション.コード = T出金.セクションコード WHERE T出金.出金No = '1'"_qs,
            SQL方言::SQLite),
        u"SELECT T出金.* FROM ((M担当者 INNER JOIN T出金 ON M担当者.コード = T出金.担当者コード) LEFT JOIN M部門 ON M部門.コード = T出金.部門コード) LEFT JOIN Mセクション ON Mセクション.コード = T出金.セクションコード WHERE T出金.出金No = '1'"_qs);
}

TEST(SQL方言変換, 右外部結合の条件は次の句や結合で終わる) {
    EXPECT_EQ(変換(u"SELECT * FROM A RIGHT JOIN B ON A.x = B.x ORDER BY B.x"_qs, SQL方言::SQLite),
              u"SELECT * FROM B LEFT JOIN A ON A.x = B.x ORDER BY B.x"_qs);
    EXPECT_EQ(
        変換(
            u"SELECT * FROM A RIGHT JOIN B ON (A.x = B.x AND A.y = 'RIGHT JOIN') INNER JOIN C ON C.x = B.x"_qs,
            SQL方言::SQLite),
        u"SELECT * FROM B LEFT JOIN A ON (A.x = B.x AND A.y = 'RIGHT JOIN') INNER JOIN C ON C.x = B.x"_qs);
}

TEST(SQL方言変換, 別名の付いた表は別名ごと右外部結合の反対側へ移る) {
    EXPECT_EQ(
        変換(
            u"SELECT X.名称 FROM M事業所 AS X RIGHT JOIN (M部門 AS Y RIGHT JOIN T ON Y.コード = T.b) ON X.コード = T.a WHERE T.c = '1'"_qs,
            SQL方言::SQLite),
        u"SELECT X.名称 FROM (T LEFT JOIN M部門 AS Y ON Y.コード = T.b) LEFT JOIN M事業所 AS X ON X.コード = T.a WHERE T.c = '1'"_qs);
}

TEST(SQL方言変換, PostgreSQLでは右外部結合をそのまま渡す) {
    const QString 文 = u"SELECT * FROM A RIGHT JOIN B ON A.x = B.x"_qs;
    EXPECT_EQ(変換(文, SQL方言::PostgreSQL), 文);
}

TEST(SQL方言変換, 形の分からない右外部結合は触らない) {
    const QString 文 = u"SELECT * FROM A RIGHT JOIN B USING (x)"_qs;
    EXPECT_EQ(変換(文, SQL方言::SQLite), 文);
}

TEST(SQL方言変換, そのままの方言では何も変えない) {
    const QString 文 = u"SELECT TOP 1 [a] FROM t"_qs;
    EXPECT_EQ(変換(文, SQL方言::そのまま), 文);
}

TEST(SQL方言変換, 壊れた文は壊れたまま渡る) {
    const QString 文 = u"SELECT a FROM t WHERE b = 1)"_qs;
    EXPECT_EQ(変換(文, SQL方言::SQLite), 文);
}

TEST(行数を限る, 上限はPostgreSQLにだけ自分の行に付き末尾に上限のある文はそのまま) {
    EXPECT_EQ(行数を限る(u"SELECT a FROM t ORDER BY a -- 注"_qs, 1000, SQL方言::PostgreSQL),
              u"SELECT a FROM t ORDER BY a -- 注\nLIMIT 1000"_qs);
    const QString 自前 =
        SQL方言変換(u"SELECT TOP 1000 a FROM t ORDER BY a"_qs, SQL方言::PostgreSQL);
    EXPECT_EQ(行数を限る(自前, 1000, SQL方言::PostgreSQL), 自前);
    EXPECT_EQ(行数を限る(u"SELECT a FROM t WHERE b IN (SELECT b FROM u LIMIT 3)"_qs, 9,
                         SQL方言::PostgreSQL),
              u"SELECT a FROM t WHERE b IN (SELECT b FROM u LIMIT 3)\nLIMIT 9"_qs);
    EXPECT_EQ(行数を限る(u"SELECT a FROM t"_qs, 5, SQL方言::SQLite), u"SELECT a FROM t"_qs);
    EXPECT_EQ(行数を限る(u"SELECT a FROM t"_qs, 5, SQL方言::そのまま), u"SELECT a FROM t"_qs);
}
