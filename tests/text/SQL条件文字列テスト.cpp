#include <gtest/gtest.h>

#include "text/項目編集.h"

namespace {

struct 取出結果 {
    QString 値;
    QString 残り;
};

// Callers hand the same text in as condition and rest; so do these tests.
取出結果 取出(const QString& 項目名, QString 条件) {
    const QString 値 = 条件値取出(項目名, 条件, 条件);
    return {値, 条件};
}

const QString コード = u"M担当者.コード"_qs;

}  // namespace

TEST(引用符二重化, 引用符を二重にして右端の空白を落とす) {
    EXPECT_EQ(引用符二重化(u"O'Neil  "_qs), u"O''Neil"_qs);
}

TEST(引用符二重化, 空の文字列は空のまま) {
    EXPECT_EQ(引用符二重化(QString()), QString());
}

TEST(引用符二重化, 左端の空白と途中の空白は残す) {
    EXPECT_EQ(引用符二重化(u"  a b  "_qs), u"  a b"_qs);
    EXPECT_EQ(引用符二重化(u"''"_qs), u"''''"_qs);
}

TEST(ゼロ文字列, 桁数だけゼロを並べる) {
    EXPECT_EQ(ゼロ文字列(3), u"000"_qs);
    EXPECT_EQ(ゼロ文字列(1), u"0"_qs);
    EXPECT_EQ(ゼロ文字列(8), u"00000000"_qs);
}

TEST(ゼロ文字列, ゼロ以下の桁数は空になる) {
    EXPECT_EQ(ゼロ文字列(0), QString());
    EXPECT_EQ(ゼロ文字列(-1), QString());
}

TEST(書式桁揃え, 数値を左からゼロで埋める) {
    EXPECT_EQ(書式桁揃え(u"123"_qs, u"00000"_qs), u"00123"_qs);
    EXPECT_EQ(書式桁揃え(u"5"_qs, u"000"_qs), u"005"_qs);
}

TEST(書式桁揃え, マスクより長い値は末尾を切り落とす) {
    EXPECT_EQ(書式桁揃え(u"1234567"_qs, u"00000"_qs), u"12345"_qs);
}

TEST(書式桁揃え, 数値でない値はそのまま返す) {
    EXPECT_EQ(書式桁揃え(u"A1"_qs, u"000"_qs), u"A1"_qs);
}

TEST(書式桁揃え, 数値でない値もマスクの長さで切る) {
    EXPECT_EQ(書式桁揃え(u"ABCD"_qs, u"000"_qs), u"ABC"_qs);
}

TEST(書式桁揃え, 空の値は空のまま) {
    EXPECT_EQ(書式桁揃え(QString(), u"000"_qs), QString());
}

TEST(書式桁揃え, 空のマスクなら値をそのまま返す) {
    EXPECT_EQ(書式桁揃え(u"1234567"_qs, QString()), u"1234567"_qs);
    EXPECT_EQ(書式桁揃え(u"12"_qs, QString()), u"12"_qs);
}

TEST(書式桁揃え, 小数は四捨五入してから揃える) {
    EXPECT_EQ(書式桁揃え(u"12.5"_qs, u"000"_qs), u"013"_qs);
}

TEST(書式マスク作成, 文字列と同じ長さのゼロになる) {
    EXPECT_EQ(書式マスク作成(u"123"_qs), u"000"_qs);
    EXPECT_EQ(書式マスク作成(u"あいう"_qs), u"000"_qs);
}

TEST(書式マスク作成, 空の文字列は空になる) {
    EXPECT_EQ(書式マスク作成(QString()), QString());
}

TEST(百分率記号除去, 百分率記号をすべて落とす) {
    EXPECT_EQ(百分率記号除去(u"%山%田%"_qs), u"山田"_qs);
    EXPECT_EQ(百分率記号除去(u"abc"_qs), u"abc"_qs);
    EXPECT_EQ(百分率記号除去(QString()), QString());
}

TEST(条件値取出, 以上の句だけなら値を返し残りは空になる) {
    const auto r = 取出(コード, u"M担当者.コード >= '00123'"_qs);
    EXPECT_EQ(r.値, u"00123"_qs);
    EXPECT_EQ(r.残り, QString());
}

TEST(条件値取出, 先頭の等号の句は後ろの接続詞ごと切る) {
    const auto r =
        取出(u"M担当者.在籍区分"_qs, u"M担当者.在籍区分 = '0' AND M担当者.コード >= '00123'"_qs);
    EXPECT_EQ(r.値, u"0"_qs);
    EXPECT_EQ(r.残り, u"M担当者.コード >= '00123'"_qs);
}

TEST(条件値取出, 先頭の句の後ろのORも切る) {
    const auto r = 取出(コード, u"M担当者.コード <= '00500' OR M担当者.区分 = '1'"_qs);
    EXPECT_EQ(r.値, u"00500"_qs);
    EXPECT_EQ(r.残り, u"M担当者.区分 = '1'"_qs);
}

TEST(条件値取出, ANDの後ろの句は前の接続詞を切り後ろの接続詞を残す) {
    const auto r = 取出(
        コード, u"M担当者.在籍区分 = '0' AND M担当者.コード >= '00123' AND M担当者.区分 = '1'"_qs);
    EXPECT_EQ(r.値, u"00123"_qs);
    EXPECT_EQ(r.残り, u"M担当者.在籍区分 = '0' AND M担当者.区分 = '1'"_qs);
}

TEST(条件値取出, 末尾の句は前の接続詞ごと切る) {
    const auto r = 取出(コード, u"M担当者.在籍区分 = '0' AND M担当者.コード >= '00123'"_qs);
    EXPECT_EQ(r.値, u"00123"_qs);
    EXPECT_EQ(r.残り, u"M担当者.在籍区分 = '0'"_qs);
}

TEST(条件値取出, ORの後ろの句は前のORを切る) {
    const auto r = 取出(コード, u"M担当者.在籍区分 = '0' OR M担当者.コード >= '00123'"_qs);
    EXPECT_EQ(r.値, u"00123"_qs);
    EXPECT_EQ(r.残り, u"M担当者.在籍区分 = '0'"_qs);
}

TEST(条件値取出, 開始と値の間に開き括弧があれば閉じ括弧まで切る) {
    const auto r = 取出(
        u"M担当者.名称"_qs,
        u"M担当者.在籍区分 = '0' AND M担当者.名称 = '(株' OR M担当者.カナ = 'ｶ') AND M担当者.区分 = '1'"_qs);
    EXPECT_EQ(r.値, u"(株"_qs);
    EXPECT_EQ(r.残り, u"M担当者.在籍区分 = '0' AND M担当者.区分 = '1'"_qs);
}

TEST(条件値取出, 括弧の中の句は開始が見つからなければ条件を変えない) {
    // The AND in front of "(" is looked for from p-5 and so is missed; the OR after the value
    // becomes the start, and what is cut is nothing.
    const QString 条件 =
        u"M担当者.在籍区分 = '0' AND (M担当者.コード = 'x' OR M担当者.区分 = 'y')"_qs;
    const auto r = 取出(コード, 条件);
    EXPECT_EQ(r.値, u"x"_qs);
    EXPECT_EQ(r.残り, 条件);
}

TEST(条件値取出, LIKEの値は百分率記号を落とし句までの全体を切る) {
    const auto r =
        取出(u"M担当者.名称"_qs, u"M担当者.在籍区分 = '0' AND M担当者.名称 LIKE '%abc%'"_qs);
    EXPECT_EQ(r.値, u"abc"_qs);
    EXPECT_EQ(r.残り, QString());
}

TEST(条件値取出, LIKEの句の後ろの接続詞は残る) {
    const auto r =
        取出(u"M担当者.名称"_qs,
             u"M担当者.在籍区分 = '0' AND M担当者.名称 LIKE '%abc%' AND M担当者.区分 = '1'"_qs);
    EXPECT_EQ(r.値, u"abc"_qs);
    EXPECT_EQ(r.残り, u" AND M担当者.区分 = '1'"_qs);
}

TEST(条件値取出, 超の句は前にある別の句も一緒に切る) {
    const auto r = 取出(
        コード, u"M担当者.在籍区分 = '0' AND M担当者.コード > '00100' AND M担当者.区分 = '1'"_qs);
    EXPECT_EQ(r.値, u"00100"_qs);
    EXPECT_EQ(r.残り, u" AND M担当者.区分 = '1'"_qs);
}

TEST(条件値取出, 未満の句も前にある句を一緒に切る) {
    const auto r = 取出(コード, u"M担当者.在籍区分 = '0' AND M担当者.コード < '00100'"_qs);
    EXPECT_EQ(r.値, u"00100"_qs);
    EXPECT_EQ(r.残り, QString());
}

TEST(条件値取出, 項目がなければ空を返し条件を変えない) {
    const QString 条件 = u"M担当者.在籍区分 = '0'"_qs;
    const auto r = 取出(コード, 条件);
    EXPECT_EQ(r.値, QString());
    EXPECT_EQ(r.残り, 条件);
}

TEST(条件値取出, 項目がなければ別に渡した残りにも触れない) {
    QString 残り = u"前のまま"_qs;
    EXPECT_EQ(条件値取出(コード, u"M担当者.在籍区分 = '0'"_qs, 残り), QString());
    EXPECT_EQ(残り, u"前のまま"_qs);
}

TEST(条件値取出, 別に渡した残りには切った後の条件が入り条件は変わらない) {
    const QString 条件 = u"M担当者.コード >= '00123' AND M担当者.在籍区分 = '0'"_qs;
    QString 残り;
    EXPECT_EQ(条件値取出(コード, 条件, 残り), u"00123"_qs);
    EXPECT_EQ(残り, u"M担当者.在籍区分 = '0'"_qs);
    EXPECT_EQ(条件, u"M担当者.コード >= '00123' AND M担当者.在籍区分 = '0'"_qs);
}

TEST(条件値取出, 項目名と演算子は大文字小文字を区別せず探す) {
    const auto r = 取出(u"T出金.出金no"_qs, u"T出金.出金No like '%0012%'"_qs);
    EXPECT_EQ(r.値, u"0012"_qs);
    EXPECT_EQ(r.残り, QString());
}

TEST(条件値取出, 演算子は以上以下等号超未満LIKEの順に試す) {
    const auto r = 取出(コード, u"M担当者.コード = 'a' AND M担当者.コード >= 'b'"_qs);
    EXPECT_EQ(r.値, u"b"_qs);
    EXPECT_EQ(r.残り, u"M担当者.コード = 'a'"_qs);
}

TEST(条件値取出, 最初に現れた句だけを取り出す) {
    const auto r = 取出(コード, u"M担当者.コード >= 'a' AND M担当者.コード >= 'b'"_qs);
    EXPECT_EQ(r.値, u"a"_qs);
    EXPECT_EQ(r.残り, u"M担当者.コード >= 'b'"_qs);
}

TEST(条件値取出, WHEREの直後の以上の句はWHEREを残して切る) {
    const auto r = 取出(
        コード,
        u"SELECT * FROM M担当者 WHERE M担当者.コード >= '00123' AND M担当者.在籍区分 = '0'"_qs);
    EXPECT_EQ(r.値, u"00123"_qs);
    EXPECT_EQ(r.残り, u"SELECT * FROM M担当者 WHERE M担当者.在籍区分 = '0'"_qs);
}

TEST(条件値取出, WHEREの直後の等号の句は前の全体ごと切る) {
    const auto r =
        取出(コード,
             u"SELECT * FROM M担当者 WHERE M担当者.コード = '00123' AND M担当者.在籍区分 = '0'"_qs);
    EXPECT_EQ(r.値, u"00123"_qs);
    EXPECT_EQ(r.残り, u"M担当者.在籍区分 = '0'"_qs);
}

TEST(条件値取出, 六か七文字目の句は前のANDから切る) {
    const auto r = 取出(u"F"_qs, u"A AND F = 'x' AND G = 'y'"_qs);
    EXPECT_EQ(r.値, u"x"_qs);
    EXPECT_EQ(r.残り, u"A AND G = 'y'"_qs);
}

TEST(条件値取出, 五文字目の句は前にORがなければ前の全体を切る) {
    const auto r = 取出(u"F"_qs, u"abcdF = 'x' AND G = 'y'"_qs);
    EXPECT_EQ(r.値, u"x"_qs);
    EXPECT_EQ(r.残り, u" AND G = 'y'"_qs);
}

TEST(条件値取出, 二から四文字目の句は後ろの接続詞を残す) {
    const auto r = 取出(u"F"_qs, u"  F = 'x' AND G = 'y'"_qs);
    EXPECT_EQ(r.値, u"x"_qs);
    EXPECT_EQ(r.残り, u" AND G = 'y'"_qs);
}

TEST(条件値取出, 閉じ引用符のない値は末尾までになる) {
    const auto r = 取出(コード, u"M担当者.コード >= '00123"_qs);
    EXPECT_EQ(r.値, u"00123"_qs);
    EXPECT_EQ(r.残り, QString());
}

TEST(条件値取出, 出金一覧の条件から日付と担当者を順に取り出す) {
    QString 条件 =
        u"T出金.番号基準日付 <> '' AND T出金.出金日付 >= '20230401' AND T出金.担当者コード = '00012'"_qs;
    EXPECT_EQ(条件値取出(u"T出金.出金日付"_qs, 条件, 条件), u"20230401"_qs);
    EXPECT_EQ(条件, u"T出金.番号基準日付 <> '' AND T出金.担当者コード = '00012'"_qs);
    EXPECT_EQ(条件値取出(u"T出金.出金No"_qs, 条件, 条件), QString());
    EXPECT_EQ(条件値取出(u"T出金.担当者コード"_qs, 条件, 条件), u"00012"_qs);
    EXPECT_EQ(条件, u"T出金.番号基準日付 <> ''"_qs);
}
