#include <gtest/gtest.h>

#include "common/文字列表示.h"
#include "dataenv/試験表試験.h"

namespace {

// Every call on a connection runs one statement: a text that goes on after its statement's end
// fails as a syntax error of the engine, is logged as any failed statement, and runs nothing.
class 一文実行 : public 試験表試験 {
  protected:
    一文実行() : 試験表試験(u"値 text") {}
    void SetUp() override {
        試験表試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        ASSERT_TRUE(木->業務DB実行(u"INSERT INTO 試験表 (値) VALUES ('残る')"_qs));
    }
    // The text is refused as the engine refuses a broken statement, and nothing ran.
    void 断られる(const QString& 文) {
        SCOPED_TRACE(文.toStdString());
        const auto 前 = 履歴().size();
        EXPECT_FALSE(環境.接続().業務DB実行(文));
        const 接続エラー& e = 環境.接続().業務DB().最終エラー();
        EXPECT_EQ(e.番号, GetParam() ? u"42601"_qs : u"1"_qs);
        EXPECT_TRUE(e.説明.contains(u"syntax error"_qs)) << e.説明.toStdString();
        EXPECT_EQ(試験表(), QStringList{u"残る"_qs});
        const auto 後 = 履歴();
        ASSERT_EQ(後.size(), 前 + 1);
        EXPECT_EQ(後.back()[1].toString(),
                  u"エラー "_qs + e.説明 + QString(文).replace(u"'"_qs, u"''"_qs));
    }
};

TEST_P(一文実行, 文の後に続く二つ目の文は構文の誤りとして断られ記録される) {
    開く();
    断られる(u"INSERT INTO 試験表 (値) VALUES ('x'); DELETE FROM 試験表; --')"_qs);
    EXPECT_TRUE(環境.接続().業務DB().最終エラー().説明.contains(u"\"DELETE\""_qs));
    記録集合 rs;
    EXPECT_FALSE(環境.接続().業務DB検索(rs, u"SELECT 値 FROM 試験表; DELETE FROM 試験表"_qs));
    EXPECT_TRUE(rs.EOFか());
    rs.閉じる();
    EXPECT_EQ(試験表(), QStringList{u"残る"_qs});
}

// A closing semicolon with only blanks and comments behind it is still one statement.
TEST_P(一文実行, 終わりのセミコロンの後が空白と注釈だけなら実行される) {
    開く();
    EXPECT_TRUE(環境.接続().業務DB実行(u"INSERT INTO 試験表 (値) VALUES ('足す'); -- 終わり\n"_qs));
    記録集合 rs;
    EXPECT_TRUE(
        環境.接続().業務DB検索(rs, u"SELECT 値 FROM 試験表 WHERE 値 = '足す';  /* 注 */"_qs));
    EXPECT_EQ(rs.文字列(u"値"_qs), u"足す"_qs);
    rs.閉じる();
    EXPECT_EQ(試験表(), (QStringList{u"残る"_qs, u"足す"_qs}));
}

// Forms that PostgreSQL reads with a quote or a comment ending elsewhere than SQLite does: an
// escape string, a dollar-quoted string, a nested comment. None of them runs the DELETE.
TEST_P(一文実行, 引用符と注釈の読み方が機関で違う形でも二つ目の文は走らない) {
    開く();
    for (const QString& 文 :
         {u"INSERT INTO 試験表 (値) VALUES ('x'), (E'\\''); DELETE FROM 試験表; --')"_qs,
          u"INSERT INTO 試験表 (値) VALUES ($$'$$); DELETE FROM 試験表; --')"_qs,
          u"INSERT INTO 試験表 (値) VALUES ('x') /* /* */ ' */; DELETE FROM 試験表; -- '"_qs}) {
        SCOPED_TRACE(文.toStdString());
        EXPECT_FALSE(環境.接続().業務DB実行(文));
        EXPECT_EQ(試験表(), QStringList{u"残る"_qs});
    }
}

// A server whose plain literals take backslash escapes would end '\'' after its second quote
// and run what follows; the connection reads plain literals as written whatever the database
// says, so the statement stores its one literal.
TEST_P(一文実行, 逆斜線を逃がしとする設定のデータベースでも平の文字列の逆斜線は文字) {
    if (GetParam()) {
        ASSERT_TRUE(木->業務DB実行(u"ALTER DATABASE "_qs + pg->データベース名() +
                                   u" SET standard_conforming_strings = off"_qs));
    }
    開く();
    EXPECT_TRUE(環境.接続().業務DB実行(
        u"INSERT INTO 試験表 (値) VALUES ('\\''); DELETE FROM 試験表; --')"_qs));
    EXPECT_TRUE(環境.接続().業務DB実行(u"INSERT INTO 試験表 (値) VALUES ('C:\\')"_qs));
    EXPECT_EQ(試験表(), (QStringList{u"C:\\"_qs, u"\\'); DELETE FROM 試験表; --"_qs, u"残る"_qs}));
}

KONPEKI_両エンジンで(一文実行);

}  // namespace
