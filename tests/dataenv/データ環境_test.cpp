#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "common/エンジン別試験.h"
#include "dataenv/データ環境.h"
#include "text/台本プラットフォーム.h"
#include "text/項目編集.h"

namespace {

class データ層 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (!IsSkipped() && !HasFatalFailure()) 開く();
    }
};

TEST_P(データ層, 行のある問合せは真で先頭行に立ち列名で読める) {
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(rs, u"SELECT コード, 名称 FROM M事業所 ORDER BY コード"_qs));
    EXPECT_EQ(rs.文字列(u"コード"_qs), u"000"_qs);
    EXPECT_FALSE(rs.文字列(u"名称"_qs).isEmpty());
    int 件数 = 0;
    for (; !rs.EOFか(); rs.MoveNext()) ++件数;
    EXPECT_EQ(件数, 3);
    rs.閉じる();
}

TEST_P(データ層, 行のない問合せは偽で記録集合はなお閉じられる) {
    記録集合 rs;
    EXPECT_FALSE(環境.接続().業務DB検索(rs, u"SELECT * FROM M事業所 WHERE コード = '999'"_qs));
    EXPECT_TRUE(rs.EOFか());
    rs.閉じる();
    EXPECT_TRUE(履歴().isEmpty());  // no row is no error
}

TEST_P(データ層, Nullの列はNullと分かり文字列では空になる) {
    ASSERT_TRUE(木->業務DB実行(u"UPDATE M事業所 SET FAX = NULL WHERE コード = '001'"_qs));
    記録集合 rs;
    ASSERT_TRUE(
        環境.接続().業務DB検索(rs, u"SELECT FAX, 名称 FROM M事業所 WHERE コード = '001'"_qs));
    EXPECT_TRUE(rs.Null(u"FAX"_qs));
    EXPECT_EQ(rs.文字列(u"FAX"_qs), QString());
    EXPECT_FALSE(rs.Null(u"名称"_qs));
    rs.閉じる();
}

TEST_P(データ層, 列名の英字は大文字小文字を問わず読める) {
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(rs, u"SELECT * FROM Mユーザ WHERE ID = '0001'"_qs));
    EXPECT_EQ(rs.文字列(u"ID"_qs), u"0001"_qs);
    EXPECT_EQ(rs.文字列(u"id"_qs), u"0001"_qs);
    EXPECT_EQ(rs.整数(u"決算月"_qs), 3);
    rs.閉じる();
}

TEST_P(データ層, TOPは両方のエンジンで行数を限る) {
    記録集合 rs;
    ASSERT_TRUE(
        環境.接続().業務DB検索(rs, u"SELECT TOP 2 [コード] FROM M事業所 ORDER BY コード"_qs));
    int 件数 = 0;
    for (; !rs.EOFか(); rs.MoveNext()) ++件数;
    EXPECT_EQ(件数, 2);
    rs.閉じる();
}

TEST_P(データ層, 自由入力の引用符は二重化されて一つで届き符号は触れない) {
    const QString 名 = u"O'Neil商会  "_qs;
    ASSERT_TRUE(環境.接続().業務DB実行(u"UPDATE M事業所 SET 名称 = '"_qs + 引用符二重化(名) +
                                       u"' WHERE コード = '001'"_qs));
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(rs, u"SELECT 名称 FROM M事業所 WHERE コード = '001'"_qs));
    EXPECT_EQ(rs.文字列(u"名称"_qs), u"O'Neil商会"_qs);
    rs.閉じる();
    // A code goes in as it is: a quote in it breaks the statement, which fails quietly.
    EXPECT_FALSE(環境.接続().業務DB検索(rs, u"SELECT 名称 FROM M事業所 WHERE コード = '0'1'"_qs));
    rs.閉じる();
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_P(データ層, 失敗した文はエラー行を一つ書き引用符は二重のまま残り箱は出ない) {
    const QString 文 = u"SELECT * FROM 無い表 WHERE 名称 = 'x'"_qs;
    記録集合 rs;
    EXPECT_FALSE(環境.接続().業務DB検索(rs, 文));
    rs.閉じる();
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    const auto 行 = 履歴();
    ASSERT_EQ(行.size(), 1);
    const QString 摘要 = 行[0][1].toString();
    EXPECT_TRUE(摘要.startsWith(u"エラー "_qs)) << 摘要.toStdString();
    EXPECT_TRUE(摘要.endsWith(u"SELECT * FROM 無い表 WHERE 名称 = ''x''"_qs)) << 摘要.toStdString();
}

TEST_P(データ層, 失敗した実行も偽でエラー行を書く) {
    EXPECT_FALSE(環境.接続().業務DB実行(u"UPDATE 無い表 SET a = 1"_qs));
    const auto 行 = 履歴();
    ASSERT_EQ(行.size(), 1);
    EXPECT_TRUE(行[0][1].toString().startsWith(u"エラー "_qs));
}

TEST_P(データ層, 履歴フラグの文は成功の後に出力終了行を書き引用符は二つで残る) {
    const QString 文 = u"UPDATE M事業所 SET 名称 = 'A''s' WHERE コード = '002'"_qs;
    EXPECT_TRUE(環境.接続().業務DB実行(文, true));
    const auto 行 = 履歴();
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][0].toString(), u"000000000001"_qs);
    // Doubled once more than the statement itself: the table holds ''A''''s''.
    EXPECT_EQ(行[0][1].toString(), u"出力終了 "_qs + 引用符二重化(文));
    EXPECT_TRUE(
        環境.接続().業務DB実行(u"UPDATE M事業所 SET 名称 = 'b' WHERE コード = '002'"_qs, false));
    EXPECT_EQ(履歴().size(), 1);
}

TEST_P(データ層, 履歴フラグの問合せも記録される) {
    記録集合 rs;
    EXPECT_TRUE(環境.接続().業務DB検索(rs, u"SELECT * FROM M事業所"_qs, true));
    rs.閉じる();
    ASSERT_EQ(履歴().size(), 1);
    EXPECT_EQ(履歴()[0][1].toString(), u"出力終了 SELECT * FROM M事業所"_qs);
}

TEST_P(データ層, 環境DB実行記録付はいつも履歴を書き環境DB実行は書かない) {
    EXPECT_TRUE(環境.接続().環境DB実行(u"UPDATE 動作環境定義 SET バックアップ方法 = 0"_qs));
    EXPECT_TRUE(履歴().isEmpty());
    EXPECT_TRUE(環境.接続().環境DB実行記録付(u"UPDATE 動作環境定義 SET バックアップ方法 = 0"_qs));
    ASSERT_EQ(履歴().size(), 1);
    EXPECT_TRUE(履歴()[0][1].toString().startsWith(u"出力終了 UPDATE 動作環境定義"_qs));
}

TEST_P(データ層, DB_CLOSEOPENは環境DBを開き直す) {
    EXPECT_TRUE(環境.接続().DB_CLOSEOPEN());
    EXPECT_TRUE(環境.接続().環境DB接続中());
    記録集合 rs;
    EXPECT_TRUE(環境.接続().環境DB検索(rs, u"SELECT * FROM 動作環境定義"_qs));
    rs.閉じる();
}

TEST_P(データ層, 金額の列は四桁の小数まで正確に読める) {
    ASSERT_TRUE(
        木->業務DB実行(u"UPDATE Mユーザ SET 現金決済金額 = 12345678.1235 WHERE ID = '0001'"_qs));
    記録集合 rs;
    ASSERT_TRUE(
        環境.接続().業務DB検索(rs, u"SELECT 現金決済金額 FROM Mユーザ WHERE ID = '0001'"_qs));
    EXPECT_EQ(rs.金額値(u"現金決済金額"_qs).万分単位(), 123456781235);
    rs.閉じる();
}

TEST_P(データ層, 金額は列の位置でも名前と同じに読め整数も小数も範囲外も変わらない) {
    ASSERT_TRUE(木->業務DB実行(u"UPDATE Mユーザ SET 現金決済金額 = 16500 WHERE ID = '0001'"_qs));
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(
        rs,
        u"SELECT 現金決済金額, 0.5, -7, 922337203685478, NULL FROM Mユーザ WHERE ID = '0001'"_qs));
    EXPECT_EQ(rs.金額値(0), 金額::円(16500));
    EXPECT_EQ(rs.金額値(0), rs.金額値(u"現金決済金額"_qs));
    EXPECT_EQ(rs.金額値(1), 金額::万分単位から(5000));
    EXPECT_EQ(rs.金額値(2), 金額::円(-7));
    // Beyond the range of money, and Null, read as nothing.
    EXPECT_EQ(rs.金額値(3), 金額());
    EXPECT_TRUE(rs.Null(4));
    EXPECT_FALSE(rs.Null(0));
    EXPECT_EQ(rs.金額値(4), 金額());
    EXPECT_EQ(rs.金額値(5), 金額());
    // By place the text reads as by name: Null and a column past the last are empty.
    EXPECT_EQ(rs.文字列(2), u"-7"_qs);
    EXPECT_TRUE(rs.文字列(4).isEmpty());
    EXPECT_TRUE(rs.文字列(5).isEmpty());
    rs.閉じる();
    EXPECT_TRUE(rs.文字列(2).isEmpty());
}

TEST_P(データ層, 入れ子の外部結合の中と同名の列も名前で読める) {
    ASSERT_TRUE(木->業務DB実行(
        u"INSERT INTO T出金 (事業所コード, 番号基準日付, 出金No, 担当者コード, 部門コード) VALUES ('000', '20260331', '00000001', '00005', '777')"_qs));
    記録集合 rs;
    ASSERT_TRUE(環境.接続().業務DB検索(
        rs,
        u"SELECT T出金.*, M担当者.氏名 AS 担当者名 FROM M部門 RIGHT JOIN (M担当者 INNER JOIN T出金 ON M担当者.コード = T出金.担当者コード) ON M部門.コード = T出金.部門コード"_qs));
    EXPECT_EQ(rs.文字列(u"部門コード"_qs), u"777"_qs);
    EXPECT_EQ(rs.文字列(u"事業所コード"_qs), u"000"_qs);
    EXPECT_FALSE(rs.列あり(u"部門"_qs));
    rs.閉じる();
}

KONPEKI_両エンジンで(データ層);

}  // namespace
