#include <gtest/gtest.h>

#include "common/連携要求.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"

namespace {

// A run of the program started by a sibling, from the start to the quit, headless.
class プログラム連携 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木->作成済み) << 木->エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 0, 0));
    }
    // One whole run with the command line given; answers what it took as its request.
    QString 走らせる(const QString& コマンドライン) {
        出金セッション s(基盤);
        s.データ.接続().自身のフォルダ設定(木->プログラムフォルダ());
        画面なし 画面;
        紺碧帳起動 起動(s, 画面);
        if (起動.プログラム開始(コマンドライン) != 起動結果::稼動) return u"停止"_qs;
        const QString 受信 = s.データ.プログラム連携().受信起動連携情報();
        発信元 = s.データ.プログラム連携().発信元プログラムID();
        起動.停止処理();
        return 受信;
    }
    QList<QVariantList> 連携行(const QString& 区分) {
        return 木->環境DB行(
            u"SELECT 発信日時, 発信プログラムID, 受信プログラムID, 受信期限, 連携区分, "
            u"起動連携情報, 終了連携情報, 運用事業所コード, 起動担当者コード, ユーザID "
            u"FROM プログラム連携情報 WHERE 連携区分 = '"_qs +
            区分 + u"' ORDER BY 発信日時"_qs);
    }
    QStringList 履歴() {
        QStringList r;
        for (const auto& 行 :
             木->環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴 ORDER BY proccounter"_qs)) {
            r.append(行[0].toString());
        }
        return r;
    }
    std::unique_ptr<試験用ツリー> 木 = std::make_unique<試験用ツリー>();
    台本プラットフォーム 基盤;
    QString 発信元;
};

const QString 鍵 = u"0002026033100000007"_qs;

TEST_F(プログラム連携, 要求は取り出され終わりに答えの行が同じ向きで書かれる) {
    ASSERT_TRUE(連携要求を書く(*木, u"20261123 095930"_qs, 鍵, u"翠嶺"_qs));
    基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 0, 0));
    EXPECT_EQ(走らせる(鍵), 鍵);
    EXPECT_EQ(発信元, u"翠嶺"_qs);
    EXPECT_TRUE(連携行(u"00"_qs).isEmpty());
    const auto 答え = 連携行(u"99"_qs);
    ASSERT_EQ(答え.size(), 1);
    const QVariantList& a = 答え[0];
    EXPECT_EQ(a[0].toString(), u"20261123 100000"_qs);
    EXPECT_EQ(a[1].toString(), u"翠嶺"_qs);
    EXPECT_EQ(a[2].toString(), u"紺碧帳"_qs);
    EXPECT_EQ(a[3].toString(), a[0].toString());
    EXPECT_EQ(a[5].toString(), 鍵);
    EXPECT_EQ(a[6].toString(), QString());
    EXPECT_EQ(a[7].toString(), u"000"_qs);
    EXPECT_EQ(a[8].toString(), u"00001"_qs);
    EXPECT_FALSE(a[9].toString().isEmpty());
    // The answer goes before the end row of the run history.
    const QStringList r = 履歴();
    EXPECT_EQ(r.last(), u"終了"_qs);
}

TEST_F(プログラム連携, 空のコマンドラインは文字のある要求に合わず空の要求に合う) {
    ASSERT_TRUE(連携要求を書く(*木, u"20261123 095930"_qs, 鍵));
    EXPECT_EQ(走らせる(QString()), QString());
    EXPECT_EQ(連携行(u"00"_qs).size(), 1);
    EXPECT_TRUE(連携行(u"99"_qs).isEmpty());

    ASSERT_TRUE(連携要求を書く(*木, u"20261123 095940"_qs, QString(), u"白樺"_qs));
    走らせる(QString());
    EXPECT_EQ(発信元, u"白樺"_qs);
    const auto 残り = 連携行(u"00"_qs);
    ASSERT_EQ(残り.size(), 1);
    EXPECT_EQ(残り[0][5].toString(), 鍵);
    // A run whose request had an empty text is not a linked one: it owes no answer.
    EXPECT_TRUE(連携行(u"99"_qs).isEmpty());
}

TEST_F(プログラム連携, 六十一秒前の要求は見えず表に残り六十秒前のものは取られる) {
    ASSERT_TRUE(連携要求を書く(*木, u"20261123 095859"_qs, 鍵));
    EXPECT_EQ(走らせる(鍵), QString());
    EXPECT_EQ(連携行(u"00"_qs).size(), 1);
    EXPECT_TRUE(連携行(u"99"_qs).isEmpty());

    ASSERT_TRUE(連携要求を書く(*木, u"20261123 095900"_qs, 鍵));
    EXPECT_EQ(走らせる(鍵), 鍵);
    const auto 残り = 連携行(u"00"_qs);
    ASSERT_EQ(残り.size(), 1);
    EXPECT_EQ(残り[0][0].toString(), u"20261123 095859"_qs);
}

TEST_F(プログラム連携, 受け手の時計が一分を超えて進んでいれば要求を取り逃す) {
    // The asker wrote by its own clock; the receiver's runs 90 seconds ahead.
    ASSERT_TRUE(連携要求を書く(*木, u"20261123 100000"_qs, 鍵));
    基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 1, 30));
    EXPECT_EQ(走らせる(鍵), QString());
    EXPECT_EQ(連携行(u"00"_qs).size(), 1);
}

TEST_F(プログラム連携, 一分の内の同じ文字の要求は一回の起動に一つずつ取られる) {
    ASSERT_TRUE(連携要求を書く(*木, u"20261123 095920"_qs, 鍵, u"翠嶺"_qs));
    ASSERT_TRUE(連携要求を書く(*木, u"20261123 095940"_qs, 鍵, u"白樺"_qs));
    EXPECT_EQ(走らせる(鍵), 鍵);
    const QString 一つ目 = 発信元;
    EXPECT_EQ(連携行(u"00"_qs).size(), 1);
    EXPECT_EQ(走らせる(鍵), 鍵);
    EXPECT_NE(発信元, 一つ目);
    EXPECT_TRUE(連携行(u"00"_qs).isEmpty());
    EXPECT_EQ(走らせる(鍵), QString());
    EXPECT_EQ(連携行(u"99"_qs).size(), 2);
}

TEST_F(プログラム連携, 何も保存しなかった連携の起動は空の終了連携情報で答える) {
    ASSERT_TRUE(連携要求を書く(*木, u"20261123 095959"_qs, u"0010000000000000000"_qs));
    EXPECT_EQ(走らせる(u"0010000000000000000"_qs), u"0010000000000000000"_qs);
    const auto 答え = 連携行(u"99"_qs);
    ASSERT_EQ(答え.size(), 1);
    EXPECT_EQ(答え[0][6].toString(), QString());
}

TEST_F(プログラム連携, 答えが書けなくても履歴に残り開き直して終了行は書かれる) {
    ASSERT_TRUE(連携要求を書く(*木, u"20261123 095959"_qs, 鍵));
    出金セッション s(基盤);
    s.データ.接続().自身のフォルダ設定(木->プログラムフォルダ());
    画面なし 画面;
    紺碧帳起動 起動(s, 画面);
    ASSERT_EQ(起動.プログラム開始(鍵), 起動結果::稼動);
    ASSERT_TRUE(木->環境DB実行(u"DROP TABLE プログラム連携情報"_qs));
    起動.停止処理();
    const QStringList r = 履歴();
    ASSERT_GE(r.size(), 3);
    EXPECT_TRUE(r[r.size() - 2].startsWith(u"エラー "_qs));
    EXPECT_TRUE(r[r.size() - 2].contains(u"INSERT INTO プログラム連携情報"_qs));
    EXPECT_EQ(r.last(), u"終了"_qs);
}

TEST_F(プログラム連携, 要求の無い起動は答えを書かず何も知らせない) {
    EXPECT_EQ(走らせる(鍵), QString());
    EXPECT_TRUE(連携行(u"99"_qs).isEmpty());
    EXPECT_TRUE(基盤.表示文言().isEmpty());
}

// The HR system may start this program too, with its request in its own configuration.
class 人事側の連携 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 0, 0));
        s.データ.接続().自身のフォルダ設定(木.プログラムフォルダ());
        ASSERT_TRUE(連携要求を書く(木, u"20261123 095950"_qs, 鍵, u"白樺給与"_qs, true));
    }
    int 白樺の連携行() { return 木.人事環境DB行(u"SELECT * FROM プログラム連携情報"_qs).size(); }
    試験用ツリー 木{QString(), true};
    台本プラットフォーム 基盤;
    出金セッション s{基盤};
    画面なし 画面;
    紺碧帳起動 起動{s, 画面};
};

TEST_F(人事側の連携, 自社に要求が無ければ白樺の要求を取り出すが答えはどちらの表にも書かない) {
    ASSERT_EQ(起動.プログラム開始(鍵), 起動結果::稼動);
    EXPECT_TRUE(s.白樺連携フラグ);
    EXPECT_EQ(白樺の連携行(), 0);
    // Taken out, yet the run is not a linked one: it owes nobody an answer.
    EXPECT_EQ(s.データ.プログラム連携().受信起動連携情報(), QString());
    EXPECT_EQ(s.データ.プログラム連携().発信元プログラムID(), QString());
    起動.停止処理();
    EXPECT_EQ(白樺の連携行(), 0);
    EXPECT_TRUE(木.環境DB行(u"SELECT * FROM プログラム連携情報"_qs).isEmpty());
}

TEST_F(人事側の連携, 自社で要求を受けた起動は白樺の要求に触れない) {
    ASSERT_TRUE(連携要求を書く(木, u"20261123 095950"_qs, 鍵, u"翠嶺"_qs));
    ASSERT_EQ(起動.プログラム開始(鍵), 起動結果::稼動);
    EXPECT_EQ(s.データ.プログラム連携().発信元プログラムID(), u"翠嶺"_qs);
    EXPECT_EQ(白樺の連携行(), 1);
    起動.停止処理();
}

}  // namespace
