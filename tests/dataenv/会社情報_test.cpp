#include <gtest/gtest.h>

#include "common/エンジン別試験.h"
#include "dataenv/データ環境.h"
#include "text/台本プラットフォーム.h"

namespace {

class 会社設定 : public エンジン別試験 {
  protected:
    QString 運用事業所() {
        return 木
            ->環境DB行(
                u"SELECT 運用事業所コード FROM 動作環境定義 WHERE 動作環境定義ID = '001'"_qs)[0][0]
            .toString();
    }
};

TEST_P(会社設定, 見本の会社を読む) {
    開く();
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    EXPECT_EQ(環境.会社設定().会社().ID, u"0001"_qs);
    EXPECT_FALSE(環境.会社設定().会社().名称.isEmpty());
    EXPECT_EQ(環境.会社設定().会社().決算月, 3);
    EXPECT_EQ(環境.会社設定().会社().決算日, 31);
    EXPECT_EQ(環境.会社設定().事業所().コード, u"000"_qs);
    EXPECT_EQ(環境.会社設定().事業所件数(), 2);
    EXPECT_EQ(環境.接続().環境().運用事業所コード, u"000"_qs);
}

TEST_P(会社設定, Mユーザの行がなければ偽) {
    ASSERT_TRUE(木->業務DB実行(u"DELETE FROM Mユーザ"_qs));
    開く();
    EXPECT_FALSE(環境.会社設定().基本項目読込());
}

TEST_P(会社設定, 無い事業所は本社に永久に移される) {
    ASSERT_TRUE(木->環境DB実行(u"UPDATE 動作環境定義 SET 運用事業所コード = '999'"_qs));
    開く();
    EXPECT_EQ(環境.接続().作業事業所コード(), u"999"_qs);
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    EXPECT_EQ(環境.接続().環境().運用事業所コード, u"000"_qs);
    EXPECT_EQ(運用事業所(), u"000"_qs);
    EXPECT_EQ(環境.会社設定().事業所().コード, u"000"_qs);
    // the working copy is left alone by the move
    EXPECT_EQ(環境.接続().作業事業所コード(), u"999"_qs);
    const auto 行 = 木->環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴"_qs);
    ASSERT_FALSE(行.isEmpty());
    EXPECT_TRUE(行[0][0].toString().startsWith(u"出力終了 UPDATE 動作環境定義 SET"_qs));
}

TEST_P(会社設定, 本社では事業所が会社を上書きしない) {
    ASSERT_TRUE(木->業務DB実行(u"UPDATE Mユーザ SET 暗証番号有無 = 1, 更新実行区分 = 1"_qs));
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE M事業所 SET 暗証番号有無 = 0, 更新実行区分 = 0, テキスト出力フォルダ = '/x' WHERE コード = '000'"_qs));
    開く();
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    EXPECT_TRUE(環境.会社設定().暗証番号要否());
    EXPECT_EQ(環境.会社設定().会社().更新実行区分, 1);
    EXPECT_NE(環境.会社設定().会社().テキスト出力フォルダ, u"/x"_qs);
}

TEST_P(会社設定, 支店の暗証番号無しは会社の有りに勝つ) {
    ASSERT_TRUE(木->業務DB実行(u"UPDATE Mユーザ SET 暗証番号有無 = 1, 更新実行区分 = 1"_qs));
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE M事業所 SET 暗証番号有無 = 0, 更新実行区分 = 0 WHERE コード = '001'"_qs));
    ASSERT_TRUE(木->環境DB実行(u"UPDATE 動作環境定義 SET 運用事業所コード = '001'"_qs));
    開く();
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    EXPECT_FALSE(環境.会社設定().暗証番号要否());
    EXPECT_EQ(環境.会社設定().会社().更新実行区分, 0);
}

TEST_P(会社設定, 支店の空のフォルダは会社のフォルダを残し空でなければ上書きする) {
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE Mユーザ SET テキスト出力フォルダ = '/会社/出力', BACKUPフォルダ = '/会社/控え'"_qs));
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE M事業所 SET テキスト出力フォルダ = '', BACKUPフォルダ = '/支店/控え' WHERE コード = '001'"_qs));
    ASSERT_TRUE(木->環境DB実行(u"UPDATE 動作環境定義 SET 運用事業所コード = '001'"_qs));
    開く();
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    EXPECT_EQ(環境.会社設定().会社().テキスト出力フォルダ, u"/会社/出力"_qs);
    EXPECT_EQ(環境.会社設定().会社().BACKUPフォルダ, u"/支店/控え"_qs);
}

TEST_P(会社設定, 本社だけなら事業所件数は0) {
    ASSERT_TRUE(木->業務DB実行(u"DELETE FROM M事業所 WHERE コード <> '000'"_qs));
    開く();
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    EXPECT_EQ(環境.会社設定().事業所件数(), 0);
}

TEST_P(会社設定, 他業務連携の枠3と4は同じ005の行) {
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE M他業務連携 SET 業務名 = '白樺', 連携有無区分 = 1 WHERE コード = '005'"_qs));
    ASSERT_TRUE(木->業務DB実行(u"UPDATE M他業務連携 SET 業務名 = '三番' WHERE コード = '003'"_qs));
    開く();
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    const auto& 枠 = 環境.会社設定().他業務連携().スロット;
    EXPECT_EQ(環境.会社設定().他業務連携().スロット数, 5);
    EXPECT_EQ(枠[0].業務名, u"三番"_qs);
    EXPECT_EQ(枠[3].業務名, u"白樺"_qs);
    EXPECT_EQ(枠[4].業務名, u"白樺"_qs);
    EXPECT_EQ(枠[4].連携有無区分, 1);
}

TEST_P(会社設定, 行のない枠とNullの列は既定のまま) {
    ASSERT_TRUE(木->業務DB実行(u"DELETE FROM M他業務連携 WHERE コード = '002'"_qs));
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE M他業務連携 SET 連携アプリフォルダ = NULL, 連携有無区分 = NULL WHERE コード = '003'"_qs));
    開く();
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    EXPECT_EQ(環境.会社設定().他業務連携().スロット[1].業務名, QString());
    EXPECT_EQ(環境.会社設定().他業務連携().スロット[0].連携アプリフォルダ, QString());
    EXPECT_EQ(環境.会社設定().他業務連携().スロット[0].連携有無区分, 0);
}

TEST_P(会社設定, 桁数は種類ごとの枠に写る) {
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE Mユーザ SET 売上単価少数以下桁数 = 2, 売上数量少数以下桁数 = 1, 仕入単価少数以下桁数 = 3, 在庫数量少数以下桁数 = 4, 重量少数以下桁数 = 2"_qs));
    開く();
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    const auto& c = 環境.会社設定().会社();
    EXPECT_EQ(c.見積桁数.単価, 2);
    EXPECT_EQ(c.受注桁数.数量, 1);
    EXPECT_EQ(c.売上桁数.単価, 2);
    EXPECT_EQ(c.発注桁数.単価, 3);
    EXPECT_EQ(c.仕入桁数.単価, 3);
    EXPECT_EQ(c.在庫桁数.数量, 4);
    EXPECT_EQ(c.重量桁数, 2);
}

TEST_P(会社設定, 運用事業所変更は表と値を変え作業用の写しは変えない) {
    開く();
    環境.接続().運用事業所変更(u"002"_qs);
    EXPECT_EQ(環境.接続().環境().運用事業所コード, u"002"_qs);
    EXPECT_EQ(環境.接続().作業事業所コード(), u"000"_qs);
    EXPECT_EQ(運用事業所(), u"002"_qs);
}

KONPEKI_両エンジンで(会社設定);

}  // namespace
