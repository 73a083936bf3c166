#include <gtest/gtest.h>

#include "dataenv/単文確認.h"

namespace {

constexpr SQL方言 全方言[] = {SQL方言::SQLite, SQL方言::PostgreSQL, SQL方言::そのまま};

// Where the text is refused, or -1, on each dialect.
void 全方言で(const QString& 文, qsizetype 余り) {
    for (SQL方言 d : 全方言) {
        EXPECT_EQ(単文確認(文, d).余り, 余り) << 文.toStdString() << " " << static_cast<int>(d);
    }
}

TEST(単文確認, 一つの文はそのまま全体が一文) {
    const QString 文 = u"SELECT * FROM T出金 WHERE 出金No = '00000001'"_qs;
    for (SQL方言 d : 全方言) {
        const 単文判定 r = 単文確認(文, d);
        EXPECT_TRUE(r.単文());
        EXPECT_EQ(r.長さ, 文.size());
    }
    EXPECT_TRUE(単文確認(QString(), SQL方言::SQLite).単文());
}

TEST(単文確認, 終わりのセミコロンと後ろの空白と注釈は文の外に落ちる) {
    const QString 文 = u"DELETE FROM T出金 ;  -- 終わり\r\n /* 注 */ \t"_qs;
    for (SQL方言 d : 全方言) {
        const 単文判定 r = 単文確認(文, d);
        EXPECT_TRUE(r.単文());
        EXPECT_EQ(r.長さ, 16);
    }
}

TEST(単文確認, 文の終わりの後に続く文は始まりの位置で断られる) {
    const QString 文 = u"INSERT INTO t VALUES ('x'); DELETE FROM t; --')"_qs;
    全方言で(文, 文.indexOf(u"DELETE"_qs));
    全方言で(u"SELECT 1;;"_qs, 9);
    全方言で(u"SELECT 1; /* 注 */ x"_qs, 18);
}

TEST(単文確認, 引用符の中のセミコロンと注釈記号は文字のまま) {
    全方言で(u"INSERT INTO t VALUES ('O''Reilly; DELETE FROM t; --', '/* ; */')"_qs, -1);
    全方言で(u"SELECT \"列;\"\"名\" FROM t"_qs, -1);
    全方言で(u"SELECT 1 -- it's; not the end\n FROM t"_qs, -1);
    全方言で(u"SELECT 1 /* ' ; */ FROM t"_qs, -1);
}

TEST(単文確認, 閉じない引用符と注釈は最後まで続き文の誤りは機関が返す) {
    全方言で(u"SELECT 'abc; DELETE FROM t"_qs, -1);
    全方言で(u"SELECT 1 /* ; DELETE FROM t"_qs, -1);
}

// A history row takes a stored payee as it stands: a quote in it ends the literal early, and
// whatever follows the statement's end is refused.
TEST(単文確認, 支払先と摘要に仕込んだ二つ目の文は断られる) {
    const QString 文 =
        u"INSERT INTO [R出金明細] (a,b,c) VALUES ('文具店',/*','1','*/'1','筆',10); DELETE FROM M担当者; --',10)"_qs;
    全方言で(文, 文.indexOf(u"DELETE"_qs));
}

// PostgreSQL ends a line comment at a carriage return as well.
TEST(単文確認, 行注釈は復帰でも終わる) {
    const QString 文 = u"SELECT 1 -- 注\r; DELETE FROM t"_qs;
    全方言で(文, 文.indexOf(u"DELETE"_qs));
}

// Nested comments: PostgreSQL would close this one at its second "*/", SQLite at its first.
TEST(単文確認, 注釈の中で開く注釈は断られる) {
    全方言で(u"SELECT 1 /* /* */ ' */; DELETE FROM t; -- '"_qs, 12);
}

// $$...$$ is a string to PostgreSQL, and $a(...) a variable to SQLite that swallows a quote.
TEST(単文確認, 引用符の外のドル記号は断られる) {
    全方言で(u"SELECT $$'$$; DELETE FROM t; --'"_qs, 7);
    全方言で(u"SELECT 'a$b' FROM t"_qs, -1);
    EXPECT_EQ(単文確認(u"SELECT :a(') ; DELETE FROM t; --'"_qs, SQL方言::SQLite).余り, 7);
    EXPECT_EQ(単文確認(u"SELECT @a FROM t"_qs, SQL方言::SQLite).余り, 7);
    EXPECT_EQ(単文確認(u"SELECT 2 # 3"_qs, SQL方言::PostgreSQL).余り, -1);
}

// In E'...' PostgreSQL reads \' as a quote inside the literal.
TEST(単文確認, PostgreSQLのE文字列で逆斜線の後の引用符は断られる) {
    const QString 文 = u"INSERT INTO t VALUES (E'\\''); DELETE FROM t; --')"_qs;
    EXPECT_EQ(単文確認(文, SQL方言::PostgreSQL).余り, 25);
    EXPECT_EQ(単文確認(u"SELECT e'\\\\\\'' FROM t"_qs, SQL方言::PostgreSQL).余り, 12);
    // An even run of backslashes leaves the quote a quote; a plain literal keeps its backslash.
    EXPECT_EQ(単文確認(u"SELECT E'\\\\', 'C:\\' FROM t"_qs, SQL方言::PostgreSQL).余り, -1);
    // SQLite has no escapes: \'' is a backslash and a doubled quote, inside the literal.
    EXPECT_EQ(単文確認(文, SQL方言::SQLite).余り, -1);
}

// SQLite reads [..] and `..` as names; PostgreSQL reads a quote inside them as a literal.
TEST(単文確認, 角括弧と逆引用符はSQLiteでだけ名前) {
    const QString 文 = u"SELECT [a'] ; DELETE FROM t; --'"_qs;
    EXPECT_EQ(単文確認(文, SQL方言::SQLite).余り, 文.indexOf(u"DELETE"_qs));
    EXPECT_EQ(単文確認(文, SQL方言::PostgreSQL).余り, -1);
    EXPECT_EQ(単文確認(u"SELECT `a'` ; x"_qs, SQL方言::SQLite).余り, 14);
    EXPECT_EQ(単文確認(u"SELECT [a;b] FROM t"_qs, SQL方言::SQLite).余り, -1);
}

// SQLite reads CREATE TRIGGER ... BEGIN ...; END as one statement, as its own completer does.
TEST(単文確認, SQLiteの引き金の本体のセミコロンは文を終えない) {
    const QString 文 =
        u"CREATE TEMP TRIGGER 消させない BEFORE DELETE ON t BEGIN SELECT RAISE(ABORT, 'x'); "
        u"UPDATE u SET a = CASE WHEN 1 THEN 2 END; END"_qs;
    EXPECT_EQ(単文確認(文, SQL方言::SQLite).余り, -1);
    EXPECT_EQ(単文確認(文 + u" ;\n"_qs, SQL方言::SQLite).長さ, 文.size() + 1);
    EXPECT_EQ(単文確認(文 + u"; DELETE FROM t"_qs, SQL方言::SQLite).余り, 文.size() + 2);
    // PostgreSQL has no such body: the first ";" ends the statement.
    EXPECT_EQ(単文確認(文, SQL方言::PostgreSQL).余り, 文.indexOf(u"UPDATE"_qs));
    // An END that is not the first word after a ";" closes nothing.
    EXPECT_EQ(単文確認(u"SELECT 1 END; DELETE FROM t"_qs, SQL方言::SQLite).余り, 14);
}

}  // namespace
