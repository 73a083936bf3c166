#include <gtest/gtest.h>

#include "report/帳票指定.h"
#include "rules/帳票引数.h"

namespace {

QString 読めない理由(const QString& 引数) {
    帳票指定 指定;
    QString エラー;
    EXPECT_FALSE(帳票指定::解析(引数, 指定, エラー)) << 引数.toStdString();
    return エラー;
}

TEST(帳票指定, 伝票の画面が組み立てる引数を桁ごとに読む) {
    帳票指定 指定;
    QString エラー;
    ASSERT_TRUE(帳票指定::解析(
        帳票引数(u"001"_qs, u"3"_qs, u"20260331"_qs, u"00000012"_qs, u"00003"_qs), 指定, エラー));
    EXPECT_EQ(指定.事業所コード, u"001"_qs);
    EXPECT_EQ(指定.出力区分, u"3"_qs);
    EXPECT_EQ(指定.出金日付自, u"20260331"_qs);
    EXPECT_EQ(指定.出金日付至, u"20260331"_qs);
    EXPECT_EQ(指定.出金No自, u"00000012"_qs);
    EXPECT_EQ(指定.担当者コード自, u"00003"_qs);
    EXPECT_EQ(指定.担当者コード至, u"00003"_qs);
}

TEST(帳票指定, 空白で埋めた短い番号と担当者はゼロで埋めて読む) {
    帳票指定 指定;
    QString エラー;
    ASSERT_TRUE(帳票指定::解析(帳票引数(u"000"_qs, u"0"_qs, u"20251120"_qs, u"12"_qs, u"3"_qs),
                               指定, エラー));
    EXPECT_EQ(指定.出金No自, u"00000012"_qs);
    EXPECT_EQ(指定.担当者コード自, u"00003"_qs);
}

TEST(帳票指定, 担当者の空白は誰の伝票でもよい) {
    帳票指定 指定;
    QString エラー;
    ASSERT_TRUE(帳票指定::解析(
        帳票引数(u"000"_qs, u"1"_qs, u"20251120"_qs, u"00000001"_qs, QString()), 指定, エラー));
    EXPECT_TRUE(指定.担当者コード自.isEmpty());
}

TEST(帳票指定, 桁数が違えば読まず日本語で理由を言う) {
    EXPECT_TRUE(読めない理由(QString()).startsWith(u"帳票の指定が正しくありません。"_qs));
    EXPECT_TRUE(読めない理由(u"0013202603312026033100000012"_qs).contains(u"47桁"_qs));
}

TEST(帳票指定, 使わない出力区分や壊れた桁は読まない) {
    const auto 引数 = [](const QString& 区分, const QString& 日付, const QString& No) {
        return 帳票引数(u"001"_qs, 区分, 日付, No, u"00003"_qs);
    };
    EXPECT_TRUE(読めない理由(引数(u"2"_qs, u"20260331"_qs, u"1"_qs)).contains(u"出力区分"_qs));
    EXPECT_TRUE(読めない理由(引数(u"3"_qs, u"20260231"_qs, u"1"_qs)).contains(u"出金日付"_qs));
    EXPECT_TRUE(読めない理由(引数(u"3"_qs, u"20260331"_qs, u"1a"_qs)).contains(u"出金No"_qs));
    EXPECT_TRUE(読めない理由(引数(u"3"_qs, u"20260331"_qs, QString())).contains(u"出金No"_qs));
    QString 末尾 = 引数(u"3"_qs, u"20260331"_qs, u"1"_qs);
    末尾[46] = u'1';
    EXPECT_TRUE(読めない理由(末尾).contains(u"47桁目"_qs));
    QString 事業所 = 引数(u"3"_qs, u"20260331"_qs, u"1"_qs);
    事業所[0] = u'x';
    EXPECT_TRUE(読めない理由(事業所).contains(u"事業所コード"_qs));
}

TEST(帳票指定, 範囲が一枚の伝票でなければ読まない) {
    QString 引数 = 帳票引数(u"001"_qs, u"3"_qs, u"20260331"_qs, u"00000012"_qs, u"00003"_qs);
    引数.replace(28, 8, u"00000013"_qs);
    EXPECT_TRUE(読めない理由(引数).contains(u"一枚"_qs));
}

}  // namespace
