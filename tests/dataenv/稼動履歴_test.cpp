#include <gtest/gtest.h>

#include "common/試験用ツリー.h"
#include "dataenv/データ環境.h"
#include "dataenv/ファイル操作.h"
#include "text/台本プラットフォーム.h"

namespace {

class 稼動履歴 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2026, 11, 22), QTime(8, 5, 9));
        環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
        ASSERT_TRUE(環境.接続().SYB_OPEN());
    }
    QList<QVariantList> 行() {
        return 木.環境DB行(
            u"SELECT 実行日付, プログラムID, proccounter, 摘要, 運用事業所コード, 起動担当者コード, ユーザID FROM プログラム稼動履歴 ORDER BY proccounter"_qs);
    }
    試験用ツリー 木;
    台本プラットフォーム 基盤;
    データ環境 環境{基盤};
};

TEST_F(稼動履歴, 最初の行は十二桁のカウンタ1で全ての列が埋まる) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE 動作環境定義 SET 起動担当者コード = '00003'"_qs));
    環境.接続().コマンドライン設定(u"00120240401"_qs);
    環境.開始履歴書込();
    const auto r = 行();
    ASSERT_EQ(r.size(), 1);
    EXPECT_EQ(r[0][0].toString(), u"20261122 080509"_qs);
    EXPECT_EQ(r[0][1].toString(), u"紺碧帳"_qs);
    EXPECT_EQ(r[0][2].toString(), u"000000000001"_qs);
    EXPECT_EQ(r[0][3].toString(), u"開始 00120240401"_qs);
    EXPECT_EQ(r[0][4].toString(), u"000"_qs);
    EXPECT_EQ(r[0][5].toString(), u"00003"_qs);  // read afresh before the start row
    EXPECT_EQ(r[0][6].toString(), 端末利用者名取得());
}

TEST_F(稼動履歴, 開始と終了でカウンタが続く) {
    環境.開始履歴書込();
    環境.接続().終了履歴書込();
    const auto r = 行();
    ASSERT_EQ(r.size(), 2);
    EXPECT_EQ(r[0][3].toString(), u"開始 "_qs);  // an empty command line after the kind
    EXPECT_EQ(r[1][2].toString(), u"000000000002"_qs);
    EXPECT_EQ(r[1][3].toString(), u"終了"_qs);
}

TEST_F(稼動履歴, コマンドラインの引用符は一つのまま届く) {
    環境.接続().コマンドライン設定(u"  a'b  "_qs);
    環境.開始履歴書込();
    EXPECT_EQ(行()[0][3].toString(), u"開始 a'b"_qs);
}

TEST_F(稼動履歴, 記録した文の引用符は二つになって届く) {
    環境.接続().出力履歴書込(u"UPDATE t SET a = 'x'"_qs);
    EXPECT_EQ(行()[0][3].toString(), u"出力終了 UPDATE t SET a = ''x''"_qs);
}

TEST_F(稼動履歴, 紺碧帳では未集計情報の文も記録する) {
    環境.接続().出力履歴書込(u"INSERT INTO 未集計情報 VALUES (1)"_qs);
    EXPECT_EQ(行().size(), 1);
}

TEST_F(稼動履歴, 更新モニタは未集計情報の文を記録しないが他の文は記録する) {
    データ環境 監視(基盤, u"更新モニタ"_qs);
    監視.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(監視.接続().SYB_OPEN());
    監視.接続().出力履歴書込(u"SELECT * FROM 未集計情報"_qs);
    EXPECT_TRUE(行().isEmpty());
    監視.接続().出力履歴書込(u"SELECT * FROM T出金"_qs);
    ASSERT_EQ(行().size(), 1);
    EXPECT_EQ(行()[0][1].toString(), u"更新モニタ"_qs);
}

TEST_F(稼動履歴, 環境DBが閉じていれば失敗した文は箱も行も残さない) {
    ASSERT_TRUE(環境.接続().DB_OPEN());
    環境.接続().環境DB().閉じる();
    EXPECT_FALSE(環境.接続().業務DB実行(u"UPDATE 無い表 SET a = 1"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_TRUE(行().isEmpty());
}

TEST_F(稼動履歴, 書けない行は飲み込まれ仕事は続く) {
    ASSERT_TRUE(木.環境DB実行(u"DROP TABLE プログラム稼動履歴"_qs));
    環境.開始履歴書込();
    環境.接続().エラー履歴書込(u"x"_qs);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(環境.接続().稼動カウンタ(), 2);
}

}  // namespace
