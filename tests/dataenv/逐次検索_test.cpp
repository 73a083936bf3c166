#include <gtest/gtest.h>

#include "common/文字列表示.h"
#include "dataenv/試験表試験.h"

namespace {

// A long read hands over the rows one at a time; on SQLite they come straight from the engine
// in blocks read ahead on a second thread. Either way each value reads as the record set reads
// it, every row comes in order, the receiver may stop the read, and a failed statement is
// logged as a failed search is.
class 逐次検索 : public 開いた試験表試験 {
  protected:
    逐次検索() : 開いた試験表試験(u"番号 integer, 値 varchar(20), 額 numeric(19,4)") {}
    // 件数 rows: whole, fractional and missing amounts, Japanese, empty and missing texts.
    void 行を入れる(int 件数) {
        環境.接続().業務DB一括開始(u"試験"_qs);
        for (int i = 1; i <= 件数; ++i) {
            const QString 値 = i % 7 == 0   ? u"NULL"_qs
                               : i % 5 == 0 ? u"''"_qs
                                            : u"'値"_qs + QString::number(i) + u"'"_qs;
            const QString 額 = i % 3 == 0   ? u"NULL"_qs
                               : i % 2 == 0 ? QString::number(i) + u".125"_qs
                                            : QString::number(i * 100);
            ASSERT_TRUE(環境.接続().業務DB実行(u"INSERT INTO 試験表 (番号, 値, 額) VALUES ("_qs +
                                               QString::number(i) + u", "_qs + 値 + u", "_qs + 額 +
                                               u")"_qs));
        }
        ASSERT_TRUE(環境.接続().業務DB一括終了());
    }
    const QString 全行 = u"SELECT 番号, 値, 額 FROM 試験表 ORDER BY 番号"_qs;
};

TEST_P(逐次検索, 値は記録集合と同じに読め行は順に全部来る) {
    // More rows than one block holds, and a last block partly filled; and on SQLite, which
    // keeps any whole number, an amount too large for money, which reads as 0.
    行を入れる(2600);
    const int 件数 = GetParam() ? 2600 : 2601;
    if (!GetParam()) {
        ASSERT_TRUE(環境.接続().業務DB実行(
            u"INSERT INTO 試験表 (番号, 値, 額) VALUES (2601, '大', 9000000000000000000)"_qs));
    }
    QStringList 期待;
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(rs, 全行));
    for (; !rs.EOFか(); rs.MoveNext()) {
        期待 << rs.文字列(0) + u"|"_qs + rs.文字列(1) + u"|"_qs + rs.金額値(2).文字列() + u"|"_qs +
                    rs.文字列(2);
    }
    rs.閉じる();
    ASSERT_EQ(期待.size(), 件数);
    if (!GetParam()) {
        EXPECT_EQ(期待.back().section(u'|', 0, 2), u"2601|大|0"_qs);
    }

    QStringList 読めた;
    int 等しくない = 0;
    ASSERT_TRUE(環境.接続().業務DB逐次検索(全行, [&](const データ接続::読取行& r) {
        読めた << r.文字列(0) + u"|"_qs + r.文字列(1) + u"|"_qs + r.金額値(2).文字列() + u"|"_qs +
                      r.文字列(2);
        for (int c = 0; c < 3; ++c) {
            if (!r.等しい(c, r.文字列(c)) || r.等しい(c, r.文字列(c) + u"x"_qs)) ++等しくない;
        }
        return true;
    }));
    EXPECT_EQ(読めた, 期待);
    EXPECT_EQ(等しくない, 0);
    // The kinds of value SQLite holds (whole, real, Null), as the record set gives them.
    if (GetParam()) return;
    EXPECT_EQ(期待[0], u"1|値1|100|100"_qs);
    EXPECT_EQ(期待[1].section(u'|', 0, 2), u"2|値2|2.125"_qs);
    EXPECT_EQ(期待[2].section(u'|', 0, 3), u"3|値3|0|"_qs);
    EXPECT_EQ(期待[4].section(u'|', 0, 1), u"5|"_qs);
    EXPECT_EQ(期待[6].section(u'|', 0, 1), u"7|"_qs);
}

TEST_P(逐次検索, 受けが止めればそこで終わり接続はそのまま使える) {
    行を入れる(3000);
    int 来た = 0;
    ASSERT_TRUE(環境.接続().業務DB逐次検索(全行, [&](const データ接続::読取行& r) {
        EXPECT_EQ(r.文字列(0), QString::number(来た + 1));
        return ++来た < 1500;
    }));
    EXPECT_EQ(来た, 1500);
    // No statement of the read is left open: the table can go at once.
    EXPECT_TRUE(環境.接続().業務DB実行(u"INSERT INTO 試験表 (番号) VALUES (0)"_qs));
    EXPECT_TRUE(環境.接続().業務DB実行(u"DROP TABLE 試験表"_qs))
        << 環境.接続().業務DB().最終エラー().説明.toStdString();
}

TEST_P(逐次検索, 行のない結果は成功で受けは呼ばれない) {
    行を入れる(3);
    int 来た = 0;
    EXPECT_TRUE(環境.接続().業務DB逐次検索(u"SELECT 番号 FROM 試験表 WHERE 番号 > 3"_qs,
                                           [&](const データ接続::読取行&) { return ++来た > 0; }));
    EXPECT_EQ(来た, 0);
}

TEST_P(逐次検索, 失敗した文は検索と同じエラーで履歴に残る) {
    for (const QString& 文 : {u"SELECT 無い列 FROM 試験表"_qs, u"SELECT 番号 FROM 試験表 WHERE"_qs,
                              u"SELECT 番号 FROM 試験表; DELETE FROM 試験表"_qs}) {
        SCOPED_TRACE(文.toStdString());
        記録集合 rs;
        EXPECT_FALSE(環境.接続().業務DB検索(rs, 文));
        rs.閉じる();
        const 接続エラー 検索のエラー = 環境.接続().業務DB().最終エラー();
        const QString 検索の履歴 = 履歴().back()[1].toString();
        bool 呼ばれた = false;
        EXPECT_FALSE(環境.接続().業務DB逐次検索(文, [&](const データ接続::読取行&) {
            呼ばれた = true;
            return true;
        }));
        EXPECT_FALSE(呼ばれた);
        EXPECT_EQ(環境.接続().業務DB().最終エラー().番号, 検索のエラー.番号);
        EXPECT_EQ(環境.接続().業務DB().最終エラー().説明, 検索のエラー.説明);
        EXPECT_EQ(履歴().back()[1].toString(), 検索の履歴);
    }
}

KONPEKI_両エンジンで(逐次検索);

}  // namespace
