#include <gtest/gtest.h>

#include "common/試験用ツリー.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"

namespace {

// The purge of the configuration database belongs to the start of the suite's menu program
// ("翠嶺"), after the run's start row and before the general database opens; the slip program
// ("紺碧帳") never purges.
class 起動時整理 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2026, 11, 22), QTime(10, 0, 0));
        for (
            const QString& 文 : {
                u"DELETE FROM プログラム稼動履歴"_qs,
                u"INSERT INTO プログラム稼動履歴 (実行日付, プログラムID, 摘要) VALUES ('20260101 000000', '他', '古い')"_qs,
                u"INSERT INTO プログラム連携情報 (発信日時, 発信プログラムID) VALUES ('20261101 000000', '古い')"_qs,
                u"INSERT INTO プログラムクリップボード (貼付日時, 貼付プログラムID) VALUES ('20261101 000000', '古い')"_qs,
                u"INSERT INTO プログラムクリップボード明細 (貼付日時, 貼付プログラムID) VALUES ('20261101 000000', '古い')"_qs,
            }) {
            ASSERT_TRUE(木.環境DB実行(文)) << 文.toStdString();
        }
    }
    起動結果 開始(const QString& プログラムID) {
        出金セッション s{基盤, プログラムID};
        s.データ.接続().自身のフォルダ設定(木.プログラムフォルダ());
        画面なし 画面;
        紺碧帳起動 起動{s, 画面};
        const 起動結果 結果 = 起動.プログラム開始(QString());
        if (結果 == 起動結果::稼動) 起動.停止処理();
        return 結果;
    }
    int 古い行() {
        int n = 0;
        for (const char16_t* 文 :
             {u"SELECT COUNT(*) FROM プログラム稼動履歴 WHERE 摘要 = '古い'",
              u"SELECT COUNT(*) FROM プログラム連携情報 WHERE 発信プログラムID = '古い'",
              u"SELECT COUNT(*) FROM プログラムクリップボード WHERE 貼付プログラムID = '古い'",
              u"SELECT COUNT(*) FROM プログラムクリップボード明細 WHERE 貼付プログラムID = "
              u"'古い'"}) {
            n += 木.環境DB行(QString::fromUtf16(文))[0][0].toInt();
        }
        return n;
    }
    QStringList 履歴(const QString& プログラムID) {
        QStringList r;
        for (const auto& v :
             木.環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴 WHERE プログラムID = '"_qs +
                         プログラムID + u"' ORDER BY proccounter"_qs)) {
            r.append(v[0].toString());
        }
        return r;
    }

    試験用ツリー 木;
    台本プラットフォーム 基盤;
};

TEST_F(起動時整理, 紺碧帳の開始は古い行に触れない) {
    EXPECT_EQ(開始(u"紺碧帳"_qs), 起動結果::稼動);
    EXPECT_EQ(古い行(), 4);
}

TEST_F(起動時整理, 翠嶺の開始は開始行を残して古い行を消す) {
    EXPECT_EQ(開始(u"翠嶺"_qs), 起動結果::稼動);
    EXPECT_EQ(古い行(), 0);
    EXPECT_EQ(履歴(u"翠嶺"_qs), (QStringList{u"開始 "_qs, u"終了"_qs}));
}

// A general database that does not open stops the start, yet the purge ran before it.
TEST_F(起動時整理, 翠嶺の整理は業務DBを開く前に済む) {
    ASSERT_TRUE(木.環境DB実行(
        u"UPDATE データベース定義 SET データソース名 = '/nowhere/gnrdb.db' WHERE 情報種類 = 'GNR'"_qs));
    EXPECT_EQ(開始(u"翠嶺"_qs), 起動結果::停止);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"データベースが使用できません。"_qs});
    EXPECT_EQ(古い行(), 0);
}

TEST_F(起動時整理, 翠嶺の整理が消せなくても開始は続く) {
    ASSERT_TRUE(木.環境DB実行(
        u"CREATE TRIGGER 消させない BEFORE DELETE ON プログラム連携情報 BEGIN SELECT RAISE(ABORT, '削除禁止'); END"_qs));
    EXPECT_EQ(開始(u"翠嶺"_qs), 起動結果::稼動);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(古い行(), 1);
    const QStringList 行 = 履歴(u"翠嶺"_qs);
    ASSERT_EQ(行.size(), 3);
    EXPECT_TRUE(行[1].startsWith(u"エラー 削除禁止"_qs));
}

// The request of a sibling is taken out before the purge runs: with deletes refused, the take's
// delete fails first, the purge's after it.
TEST_F(起動時整理, 翠嶺の開始は連携の要求を受けてから整理する) {
    ASSERT_TRUE(木.環境DB実行(
        u"INSERT INTO プログラム連携情報 (発信日時, 発信プログラムID, 受信プログラムID, 連携区分, 起動連携情報) VALUES ('20261122 095930', '翠嶺', '紺碧帳', '00', '')"_qs));
    ASSERT_TRUE(木.環境DB実行(
        u"CREATE TRIGGER 消させない BEFORE DELETE ON プログラム連携情報 BEGIN SELECT RAISE(ABORT, '削除禁止'); END"_qs));
    EXPECT_EQ(開始(u"翠嶺"_qs), 起動結果::稼動);
    const QStringList 行 = 履歴(u"翠嶺"_qs);
    ASSERT_EQ(行.size(), 4);
    EXPECT_TRUE(行[1].contains(u"AND 連携区分 = ''00''"_qs)) << 行[1].toStdString();
    EXPECT_TRUE(行[2].contains(u"発信日時 <="_qs)) << 行[2].toStdString();
}

}  // namespace
