#include <gtest/gtest.h>

#include <QStringList>

#include "rules/弥生形式.h"

namespace {

QString 区分(short 内外, int 率, const char* 日付, int 控除, const QString& 非課税 = u"対象外"_qs) {
    return 弥生仕入税区分(内外, 金額::円(率), QString::fromLatin1(日付), 控除, 非課税);
}

TEST(弥生形式, 列は二十五で順と名前は取込形式のもの) {
    ASSERT_EQ(弥生列一覧.size(), 25u);
    const QStringList 名前 = {
        u"識別フラグ"_qs,   u"伝票No"_qs,       u"決算"_qs,         u"取引日付"_qs,
        u"借方勘定科目"_qs, u"借方補助科目"_qs, u"借方部門"_qs,     u"借方税区分"_qs,
        u"借方金額"_qs,     u"借方税金額"_qs,   u"貸方勘定科目"_qs, u"貸方補助科目"_qs,
        u"貸方部門"_qs,     u"貸方税区分"_qs,   u"貸方金額"_qs,     u"貸方税金額"_qs,
        u"摘要"_qs,         u"番号"_qs,         u"期日"_qs,         u"タイプ"_qs,
        u"生成元"_qs,       u"仕訳メモ"_qs,     u"付箋1"_qs,        u"付箋2"_qs,
        u"調整"_qs};
    for (int i = 0; i < 弥生列数; ++i) EXPECT_EQ(QString::fromUtf16(弥生列一覧[i].項目名), 名前[i]);
    EXPECT_EQ(QStringView(弥生列一覧[弥生_摘要].項目名), u"摘要");
    EXPECT_EQ(弥生列一覧[弥生_摘要].桁数, 64);
    EXPECT_EQ(QStringView(弥生列一覧[弥生_タイプ].項目名), u"タイプ");
}

TEST(弥生形式, 識別フラグは一行の伝票と複数行の先頭中間最終で変わる) {
    EXPECT_EQ(弥生識別フラグ(0, 1), u"2111"_qs);
    EXPECT_EQ(弥生識別フラグ(0, 2), u"2110"_qs);
    EXPECT_EQ(弥生識別フラグ(1, 2), u"2101"_qs);
    EXPECT_EQ(弥生識別フラグ(0, 15), u"2110"_qs);
    for (int i = 1; i < 14; ++i) EXPECT_EQ(弥生識別フラグ(i, 15), u"2100"_qs);
    EXPECT_EQ(弥生識別フラグ(14, 15), u"2101"_qs);
}

TEST(弥生形式, 日付は斜線で区切る) {
    EXPECT_EQ(弥生日付(u"20251120"_qs), u"2025/11/20"_qs);
}

TEST(弥生形式, 税区分は税率と軽減税率と内外の別によらず税込の内税で書く) {
    EXPECT_EQ(区分(1, 10, "20251120", 100), u"課対仕入内10%"_qs);
    EXPECT_EQ(区分(2, 10, "20251120", 100), u"課対仕入内10%"_qs);
    EXPECT_EQ(区分(2, 8, "20251120", 100), u"課対仕入内軽減8%"_qs);
    EXPECT_EQ(区分(2, 8, "20190930", 100), u"課対仕入内8%"_qs);
    EXPECT_EQ(区分(1, 8, "20191001", 100), u"課対仕入内軽減8%"_qs);
    EXPECT_EQ(区分(1, 5, "20100101", 100), u"課対仕入内5%"_qs);
}

TEST(弥生形式, 税のない行は費目の非課税区分をとる) {
    EXPECT_EQ(区分(0, 0, "20251120", 100), u"対象外"_qs);
    EXPECT_EQ(区分(0, 0, "20251120", 80, u"非課税"_qs), u"非課仕入"_qs);
    EXPECT_EQ(区分(1, 0, "20251120", 80), u"対象外"_qs);
    EXPECT_EQ(区分(0, 0, "20251120", 80, u"免税"_qs), QString());
    EXPECT_TRUE(弥生非課税区分あり(u"非課税"_qs));
    EXPECT_FALSE(弥生非課税区分あり(u"非課仕入"_qs));
}

TEST(弥生形式, 未登録の支払先は経過措置の割合の区分を後ろに付ける) {
    EXPECT_EQ(区分(2, 10, "20251120", 80), u"課対仕入内10%区分80%"_qs);
    EXPECT_EQ(区分(2, 8, "20261001", 70), u"課対仕入内軽減8%区分70%"_qs);
    EXPECT_EQ(区分(1, 10, "20290101", 50), u"課対仕入内10%区分50%"_qs);
    EXPECT_EQ(区分(1, 10, "20310101", 30), u"課対仕入内10%区分30%"_qs);
    // Nothing deductible any more: outside the tax for the books.
    EXPECT_EQ(区分(1, 10, "20320101", 0), u"対象外"_qs);
}

TEST(弥生形式, 表にない税率や割合は空で答える) {
    EXPECT_EQ(区分(1, 7, "20251120", 100), QString());
    EXPECT_EQ(弥生仕入税区分(1, 金額::万分単位から(105000), u"20251120"_qs, 100, u"対象外"_qs),
              QString());
    EXPECT_EQ(区分(1, 10, "20251120", 60), QString());
}

}  // namespace
