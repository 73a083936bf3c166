#include <gtest/gtest.h>

#include "出金検索試験.h"

namespace {

using 出金検索 = 出金検索試験;

TEST_P(出金検索, 条件なしでは保存済の伝票を日付と番号の順に出し削除した伝票は出さない) {
    EXPECT_EQ(番号(出金検索条件{}), 番号({1, 2, 6, 3, 4}));
}

TEST_P(出金検索, 日付の範囲は両端を含む) {
    出金検索条件 c;
    c.日付から = u"20251112"_qs;
    c.日付まで = u"20251120"_qs;
    EXPECT_EQ(番号(c), 番号({2, 6, 3}));
    c.日付まで.clear();
    EXPECT_EQ(番号(c), 番号({2, 6, 3, 4}));
    c.日付から.clear();
    c.日付まで = u"20251112"_qs;
    EXPECT_EQ(番号(c), 番号({1, 2}));
}

TEST_P(出金検索, 合計金額の範囲は訂正後の合計で見る) {
    出金検索条件 c;
    c.合計下限 = u"3000"_qs;
    c.合計上限 = u"12000"_qs;
    EXPECT_EQ(番号(c), 番号({1, 6, 4}));
    c.合計下限 = u"50000"_qs;
    c.合計上限 = u"50000"_qs;
    EXPECT_EQ(番号(c), QStringList());
    c.合計上限.clear();
    EXPECT_EQ(番号(c), 番号({2}));
}

TEST_P(出金検索, 明細金額はどれか一行が範囲にあれば当たる) {
    出金検索条件 c;
    c.明細下限 = u"1900"_qs;
    c.明細上限 = u"2100"_qs;
    EXPECT_EQ(番号(c), 番号({1}));
    c.明細上限.clear();
    c.明細下限 = u"13000"_qs;
    EXPECT_EQ(番号(c), 番号({2}));
    c.明細下限.clear();
    c.明細上限 = u"800"_qs;
    EXPECT_EQ(番号(c), 番号({3}));
}

TEST_P(出金検索, 支払先はどれかの行の一部で当たり記号は文字のまま探す) {
    出金検索条件 c;
    c.支払先 = u"青葉堂"_qs;
    EXPECT_EQ(番号(c), 番号({1, 4}));
    c.支払先 = u"こもれび"_qs;
    EXPECT_EQ(番号(c), 番号({1, 6}));
    // LIKE's own signs and a quote are plain characters here.
    for (const QString& 記号 : {u"_"_qs, u"%"_qs, u"!"_qs, u"x' OR '1'='1"_qs}) {
        c.支払先 = 記号;
        EXPECT_EQ(番号(c), QStringList()) << 記号.toStdString();
    }
    c.支払先 = u"\"青葉堂\","_qs;
    EXPECT_EQ(番号(c), 番号({4}));
}

TEST_P(出金検索, 担当者と事業所と番号の範囲はコードを桁に揃えて見る) {
    出金検索条件 c;
    c.担当者コード = u"4"_qs;
    EXPECT_EQ(番号(c), 番号({2, 4}));
    c = {};
    c.事業所コード = u"1"_qs;
    EXPECT_EQ(番号(c), 番号({6}));
    // The head office's code stands for the whole company.
    c.事業所コード = u"000"_qs;
    EXPECT_EQ(番号(c), 番号({1, 2, 6, 3, 4}));
    c = {};
    c.番号から = No[1];
    c.番号まで = QString::number(No[2].toInt());
    EXPECT_EQ(番号(c), 番号({2, 3}));
}

TEST_P(出金検索, 付属書類のある伝票だけを書類の数と出す) {
    出金検索条件 c;
    c.書類あり = true;
    EXPECT_EQ(番号(c), 番号({3}));
    QList<出金検索行> r;
    ASSERT_TRUE(::出金検索(s->データ, c, r));
    ASSERT_EQ(r.size(), 1);
    EXPECT_EQ(r[0].書類数, 2);
}

TEST_P(出金検索, 行は日付と担当者と最初の行の支払先と合計と書類の数を持つ) {
    出金検索条件 c;
    c.日付から = u"20251120"_qs;
    c.日付まで = u"20251120"_qs;
    QList<出金検索行> r;
    ASSERT_TRUE(::出金検索(s->データ, c, r));
    ASSERT_EQ(r.size(), 1);
    EXPECT_EQ(r[0].鍵, 鍵[2]);
    EXPECT_EQ(r[0].出金日付, u"20251120"_qs);
    EXPECT_EQ(r[0].担当者コード, u"00003"_qs);
    EXPECT_EQ(r[0].担当者名, 木->業務DB行(u"SELECT 氏名 FROM M担当者 WHERE コード = '00003'"_qs)
                                 .value(0)
                                 .value(0)
                                 .toString());
    EXPECT_FALSE(r[0].担当者名.isEmpty());
    EXPECT_EQ(r[0].支払先, u"弁当の大地"_qs);
    EXPECT_EQ(r[0].合計, 金額::円(1500));
    EXPECT_EQ(r[0].書類数, 2);
    EXPECT_FALSE(r[0].削除済);
}

TEST_P(出金検索, 削除した伝票は履歴だけから最後の状態で見つかり訂正した伝票は含まない) {
    出金検索条件 c;
    c.削除済 = true;
    QList<出金検索行> r;
    ASSERT_TRUE(::出金検索(s->データ, c, r));
    ASSERT_EQ(r.size(), 1);
    EXPECT_EQ(r[0].鍵, 鍵[4]);
    EXPECT_TRUE(r[0].削除済);
    EXPECT_EQ(r[0].出金日付, u"20251118"_qs);
    EXPECT_EQ(r[0].担当者コード, u"00003"_qs);
    EXPECT_EQ(r[0].支払先, u"印刷の100%堂"_qs);
    EXPECT_EQ(r[0].合計, 金額::円(4000));
    EXPECT_EQ(r[0].書類数, 0);
    // The history number of the deletion's rows.
    EXPECT_EQ(
        r[0].出金履歴No,
        木->業務DB行(
              u"SELECT MAX(出金履歴No) FROM R出金明細 WHERE 赤黒区分 = '0' AND 出金No = '"_qs +
              No[4] + u"'"_qs)
            .value(0)
            .value(0)
            .toString());
    EXPECT_FALSE(r[0].出金履歴No.isEmpty());
}

TEST_P(出金検索, 削除した伝票にも他の条件が効く) {
    出金検索条件 c;
    c.削除済 = true;
    c.支払先 = u"100%"_qs;
    c.明細下限 = u"4000"_qs;
    c.合計上限 = u"4000"_qs;
    c.担当者コード = u"00003"_qs;
    c.日付から = u"20251118"_qs;
    c.番号から = No[4];
    EXPECT_EQ(番号(c), 番号({5}));
    c.日付まで = u"20251117"_qs;
    c.日付から.clear();
    EXPECT_EQ(番号(c), QStringList());
    c = {};
    c.削除済 = true;
    c.支払先 = u"100%"_qs;
    c.書類あり = true;
    EXPECT_EQ(番号(c), QStringList());
    c.書類あり = false;
    c.事業所コード = u"001"_qs;
    EXPECT_EQ(番号(c), QStringList());
}

TEST_P(出金検索, 条件は全て満たす伝票だけに当たる) {
    出金検索条件 c;
    c.日付から = u"20251101"_qs;
    c.日付まで = u"20251130"_qs;
    c.合計下限 = u"2000"_qs;
    c.支払先 = u"こもれび"_qs;
    EXPECT_EQ(番号(c), 番号({1, 6}));
    c.事業所コード = u"001"_qs;
    EXPECT_EQ(番号(c), 番号({6}));
    c.担当者コード = u"00003"_qs;
    EXPECT_EQ(番号(c), QStringList());
    c = {};
    c.担当者コード = u"00003"_qs;
    c.明細上限 = u"1000"_qs;
    c.書類あり = true;
    EXPECT_EQ(番号(c), 番号({3}));
    c.合計下限 = u"1501"_qs;
    EXPECT_EQ(番号(c), QStringList());
}

TEST_P(出金検索, 誤った条件は日本語で告げ検索しない) {
    const auto 誤り = [](auto 設定) {
        出金検索条件 c;
        設定(c);
        return 出金検索条件の誤り(c);
    };
    EXPECT_EQ(誤り([](出金検索条件& c) { c.日付から = u"20251131"_qs; }),
              u"出金日付は YYYYMMDD の日付で指定してください。"_qs);
    EXPECT_EQ(誤り([](出金検索条件& c) {
                  c.日付から = u"20251201"_qs;
                  c.日付まで = u"20251130"_qs;
              }),
              u"出金日付の開始が終了より後になっています。"_qs);
    EXPECT_EQ(誤り([](出金検索条件& c) { c.合計下限 = u"1,000"_qs; }),
              u"合計金額は円単位の整数で指定してください。"_qs);
    EXPECT_EQ(誤り([](出金検索条件& c) {
                  c.明細下限 = u"5000"_qs;
                  c.明細上限 = u"400"_qs;
              }),
              u"明細金額の下限が上限より大きくなっています。"_qs);
    EXPECT_EQ(誤り([](出金検索条件& c) { c.担当者コード = u"12a"_qs; }),
              u"担当者コードは5桁までの数字で指定してください。"_qs);
    EXPECT_EQ(誤り([](出金検索条件& c) { c.事業所コード = u"0001"_qs; }),
              u"事業所コードは3桁までの数字で指定してください。"_qs);
    EXPECT_EQ(誤り([](出金検索条件& c) {
                  c.番号から = u"9"_qs;
                  c.番号まで = u"8"_qs;
              }),
              u"出金Noの開始が終了より後になっています。"_qs);
    EXPECT_EQ(誤り([](出金検索条件& c) { c.明細上限 = u"-300"_qs; }), QString());
}

KONPEKI_両エンジンで(出金検索);

}  // namespace
