#include <gtest/gtest.h>

#include "ledger/出力指定.h"

namespace {

QString 拒否(const QStringList& 引数) {
    出力指定 指定;
    QString エラー;
    EXPECT_FALSE(出力指定::解析(引数, 指定, エラー));
    return エラー;
}

TEST(出力指定, 五つの指定を読み事業所は三桁にそろえる) {
    出力指定 指定;
    QString エラー;
    ASSERT_TRUE(
        出力指定::解析({u"--from"_qs, u"20251101"_qs, u"--to"_qs, u"20251130"_qs, u"--office"_qs,
                        u"1"_qs, u"--format"_qs, u"csv"_qs, u"--out"_qs, u"/tmp/x.csv"_qs},
                       指定, エラー));
    EXPECT_EQ(指定.開始日, u"20251101"_qs);
    EXPECT_EQ(指定.終了日, u"20251130"_qs);
    EXPECT_EQ(指定.事業所コード, u"001"_qs);
    EXPECT_EQ(指定.形式, u"csv"_qs);
    EXPECT_EQ(指定.出力先, u"/tmp/x.csv"_qs);
}

TEST(出力指定, 誤った指定はそれぞれの文言で拒む) {
    const QStringList 正 = {u"--from"_qs,   u"20251101"_qs, u"--to"_qs,  u"20251130"_qs,
                            u"--format"_qs, u"yayoi"_qs,    u"--out"_qs, u"f"_qs};
    auto 替え = [&](int i, const QString& v) {
        QStringList a = 正;
        a[i] = v;
        return a;
    };
    EXPECT_EQ(拒否(替え(1, u"20251131"_qs)),
              u"期間は --from と --to に YYYYMMDD の日付で指定してください。"_qs);
    EXPECT_EQ(拒否(替え(3, u"20251001"_qs)), u"期間の開始日が終了日より後です。"_qs);
    EXPECT_EQ(拒否(替え(5, u"pdf"_qs)),
              u"形式は --format yayoi か --format csv で指定してください。"_qs);
    EXPECT_TRUE(拒否(替え(0, u"--since"_qs)).startsWith(u"知らない指定です: --since"_qs));
    EXPECT_EQ(拒否(正.mid(0, 6)), u"出力先のファイルを --out で指定してください。"_qs);
    EXPECT_TRUE(拒否(正.mid(0, 7)).startsWith(u"--out の値がありません。"_qs));
    EXPECT_EQ(拒否(正 + QStringList{u"--office"_qs, u"A1"_qs}),
              u"事業所コードは3桁までの数字で指定してください。"_qs);
}

}  // namespace
