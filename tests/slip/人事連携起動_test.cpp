#include <gtest/gtest.h>

#include <QFile>

#include "common/試験用ツリー.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"

namespace {

// The start of a company whose HR link is switched on.
class 人事連携起動 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 0, 0));
        s.データ.接続().自身のフォルダ設定(木.プログラムフォルダ());
    }
    QStringList 履歴() {
        QStringList r;
        for (const auto& 行 :
             木.環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴 ORDER BY proccounter"_qs)) {
            r.append(行[0].toString());
        }
        return r;
    }
    試験用ツリー 木{QString(), true};
    台本プラットフォーム 基盤;
    出金セッション s{基盤};
    画面なし 画面;
    紺碧帳起動 起動{s, 画面};
};

TEST_F(人事連携起動, 白樺が開けば始まり止めると連携の接続も閉じる) {
    ASSERT_EQ(起動.プログラム開始(QString()), 起動結果::稼動);
    EXPECT_TRUE(s.白樺連携フラグ);
    ASSERT_NE(s.データ.接続().連携先(), nullptr);
    EXPECT_TRUE(s.データ.接続().連携先()->業務DB接続中);
    EXPECT_TRUE(基盤.表示文言().isEmpty());
    起動.停止処理();
    EXPECT_FALSE(s.データ.接続().連携先()->業務DB接続中);
    EXPECT_FALSE(s.データ.接続().連携先()->環境DB接続中);
    EXPECT_EQ(履歴().last(), u"終了"_qs);
}

TEST_F(人事連携起動, 白樺の一般データベースが無ければ知らせて止まり終了行は書かない) {
    ASSERT_TRUE(QFile::remove(木.人事根() + u"/data/gnrdb.sqlite"_qs));
    ASSERT_EQ(起動.プログラム開始(QString()), 起動結果::停止);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"白樺連携データベースが使用できません。"_qs});
    EXPECT_NE(履歴().last(), u"終了"_qs);
    EXPECT_FALSE(s.データ.接続().連携先()->環境DB接続中);
}

TEST_F(人事連携起動, 白樺のサーバーが止まっていれば知らせて止まる) {
    // Nothing listens on port 1: the server of the HR database is down.
    ASSERT_TRUE(木.人事環境DB実行(
        u"UPDATE データベース定義 SET db = 'P', サーバー名 = '127.0.0.1:1', データベース名 = 'hr', ユーザーID = 'postgres' WHERE 情報種類 = 'GNR'"_qs));
    ASSERT_EQ(起動.プログラム開始(QString()), 起動結果::停止);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"白樺連携データベースが使用できません。"_qs});
    EXPECT_TRUE(履歴().last().startsWith(u"エラー 連携db_OPEN ERROR"_qs))
        << 履歴().last().toStdString();
}

TEST_F(人事連携起動, 白樺の設定が読めなければ二つの知らせで止まる) {
    ASSERT_TRUE(QFile::remove(木.人事根() + u"/conf/usrcnfg.sqlite"_qs));
    ASSERT_EQ(起動.プログラム開始(QString()), 起動結果::停止);
    const QStringList 文言 = 基盤.表示文言();
    ASSERT_EQ(文言.size(), 2);
    EXPECT_TRUE(文言[0].startsWith(u"連携syb_open ERROR"_qs));
    EXPECT_EQ(文言[1], u"白樺連携データベースが使用できません。"_qs);
}

TEST_F(人事連携起動, 連携を切った会社は白樺の木があっても開かない) {
    ASSERT_TRUE(木.業務DB実行(u"UPDATE M他業務連携 SET 連携有無区分 = 0 WHERE コード = '002'"_qs));
    ASSERT_EQ(起動.プログラム開始(QString()), 起動結果::稼動);
    EXPECT_FALSE(s.白樺連携フラグ);
    EXPECT_EQ(s.データ.接続().連携先(), nullptr);
}

}  // namespace
