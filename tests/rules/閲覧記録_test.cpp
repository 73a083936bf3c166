#include "rules/閲覧記録.h"

#include "rules/番号設定.h"
#include "rules/番号設定試験.h"

namespace {

class 閲覧記録 : public 番号設定試験 {
  protected:
    void SetUp() override {
        番号設定試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        ASSERT_NO_FATAL_FAILURE(起動());
        基盤.時刻 = QDateTime(QDate(2026, 4, 1), QTime(9, 15, 30));
    }

    static 閲覧記録指定 指定(const QString& 伝票No, const QString& 事業所コード = u"000"_qs) {
        return {事業所コード,   u"青木 翔太"_qs, u"紺碧帳"_qs, u"000"_qs,
                u"20270331"_qs, 伝票No,          QString()};
    }
    QStringList 番号() {
        return 業務表(
            u"SELECT 事業所コード, 番号基準日付, 閲覧No, 伝票No FROM T閲覧 ORDER BY 閲覧No, 事業所コード"_qs);
    }
    void 閲覧行追加(const QString& 事業所コード, const QString& 閲覧No) {
        ASSERT_TRUE(木->業務DB実行(
            u"INSERT INTO T閲覧 (事業所コード, 番号基準日付, 閲覧No, 伝票No) VALUES ('"_qs +
            事業所コード + u"', '99999999', '"_qs + 閲覧No + u"', '他')"_qs));
    }
};

TEST_P(閲覧記録, 既にある閲覧Noは飛ばして次を取る) {
    ASSERT_NO_FATAL_FAILURE(閲覧行追加(u"000"_qs, u"00000001"_qs));
    ASSERT_NO_FATAL_FAILURE(閲覧行追加(u"000"_qs, u"00000002"_qs));
    EXPECT_TRUE(::閲覧記録(環境.接続(), 環境.会社設定().会社(), 指定(u"00000012"_qs)));
    EXPECT_EQ(番号(), (QStringList{u"000|99999999|00000001|他"_qs, u"000|99999999|00000002|他"_qs,
                                   u"000|99999999|00000003|00000012"_qs}));
    EXPECT_EQ(番号情報(u"01110"_qs), QStringList{u"00000003|00000000"_qs});
}

// Under per-office numbering the number comes from the workplace's office (000) and is
// checked among the rows of the office the row is kept under (001).
TEST_P(閲覧記録, 番号は運用事業所で取り行の事業所で確かめる) {
    環境.会社設定().会社変更([&](会社情報& 値) { 値.伝票番号管理区分 = 1; });
    ASSERT_NO_FATAL_FAILURE(閲覧行追加(u"000"_qs, u"00000001"_qs));
    ASSERT_NO_FATAL_FAILURE(閲覧行追加(u"001"_qs, u"00000002"_qs));
    EXPECT_TRUE(::閲覧記録(環境.接続(), 環境.会社設定().会社(), 指定(u"00000012"_qs, u"001"_qs)));
    EXPECT_TRUE(::閲覧記録(環境.接続(), 環境.会社設定().会社(), 指定(u"00000013"_qs, u"001"_qs)));
    EXPECT_EQ(番号(),
              (QStringList{u"000|99999999|00000001|他"_qs, u"001|99999999|00000001|00000012"_qs,
                           u"001|99999999|00000002|他"_qs, u"001|99999999|00000003|00000013"_qs}));
    EXPECT_EQ(事業所別(), QStringList{u"000|01110|00000003|00000000"_qs});
}

TEST_P(閲覧記録, 閲覧の基準日付は今日の系列) {
    ASSERT_NO_FATAL_FAILURE(種類設定(u"01110"_qs, u"1"_qs));
    EXPECT_TRUE(::閲覧記録(環境.接続(), 環境.会社設定().会社(), 指定(u"00000012"_qs)));
    基盤.時刻 = QDateTime(QDate(2027, 4, 1), QTime(8, 0, 0));
    EXPECT_TRUE(::閲覧記録(環境.接続(), 環境.会社設定().会社(), 指定(u"00000013"_qs)));
    EXPECT_EQ(番号(), (QStringList{u"000|20270331|00000001|00000012"_qs,
                                   u"000|20280331|00000001|00000013"_qs}));
    EXPECT_EQ(期日別(), (QStringList{u"01110|20270331|00000001|00000000"_qs,
                                     u"01110|20280331|00000001|00000000"_qs}));
}

TEST_P(閲覧記録, 閲覧の番号情報がなければ文言が二度出て00000000で記録する) {
    ASSERT_TRUE(木->業務DB実行(u"DELETE FROM A番号情報 WHERE 番号ID = '01110'"_qs));
    EXPECT_TRUE(::閲覧記録(環境.接続(), 環境.会社設定().会社(), 指定(u"00000012"_qs)));
    const QString 文言 = u"番号情報に問題が発生設定できませんでした。"_qs;
    EXPECT_EQ(基盤.表示文言(), (QStringList{文言, 文言}));
    EXPECT_EQ(番号(), QStringList{u"000||00000000|00000012"_qs});
}

TEST_P(閲覧記録, 挿入の失敗は記録されるだけで文言は出ない) {
    ASSERT_TRUE(木->業務DB実行(u"DROP TABLE T閲覧"_qs));
    EXPECT_FALSE(::閲覧記録(環境.接続(), 環境.会社設定().会社(), 指定(u"00000012"_qs)));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    const QStringList エラー = 履歴文(u"エラー "_qs);
    ASSERT_EQ(エラー.size(), 2);  // the look for the number, then the insert
    EXPECT_TRUE(エラー[1].contains(u"INSERT INTO [T閲覧] "_qs)) << エラー[1].toStdString();
}

// Two users read the same browse counter; the second finds the number in T閲覧 and goes on.
TEST_P(閲覧記録, 競合する二人は別の閲覧Noを得る) {
    台本プラットフォーム 基盤B;
    基盤B.時刻 = 基盤.時刻;
    データ環境 環境B{基盤B};
    環境B.接続().自身のフォルダ設定(木->プログラムフォルダ());
    ASSERT_TRUE(環境B.接続().SYB_OPEN());
    ASSERT_TRUE(環境B.接続().DB_OPEN());
    ASSERT_TRUE(環境B.会社設定().基本項目読込());

    bool 割込済 = false;
    QStringList B採番;
    番号環境 B側([&](記録集合& rs, const QString& 文) { return 環境B.接続().業務DB検索(rs, 文); },
                 [&](const QString& 文) {
                     if (文.startsWith(u"UPDATE A番号情報"_qs)) {
                         B採番.append(文.mid(文.indexOf(u'\'') + 1, 8));
                         if (!割込済) {
                             割込済 = true;
                             EXPECT_TRUE(::閲覧記録(環境.接続(), 環境.会社設定().会社(),
                                                    指定(u"00000001"_qs)));
                         }
                     }
                     return 環境B.接続().業務DB実行(文);
                 },
                 基盤B, 環境B.会社設定().会社());
    EXPECT_TRUE(::閲覧記録(B側, 環境B.接続().環境(), 指定(u"00000002"_qs)));

    EXPECT_EQ(B採番, (QStringList{u"00000001"_qs, u"00000002"_qs}));
    EXPECT_EQ(番号(), (QStringList{u"000|99999999|00000001|00000001"_qs,
                                   u"000|99999999|00000002|00000002"_qs}));
    EXPECT_EQ(番号情報(u"01110"_qs), QStringList{u"00000002|00000000"_qs});
}

KONPEKI_両エンジンで(閲覧記録);

}  // namespace
