#include <gtest/gtest.h>

#include "common/エンジン別試験.h"
#include "common/窓なしの入力画面.h"
#include "text/台本プラットフォーム.h"

namespace {

// The program as it starts, in a company that asks PINs, with operator 00001 at the workplace.
// While it runs, the menu program puts another operator into 動作環境定義.
class 操作者交代 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        ASSERT_TRUE(木->業務DB実行(u"UPDATE Mユーザ SET 暗証番号有無 = 1"_qs));
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        s.データ.接続().自身のフォルダ設定(木->プログラムフォルダ());
        f.停止 = [] {};
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f.印刷確認.画面.操作_クリック(f.印刷確認.画面(u"btn_登録"_qs));
        };
        ASSERT_EQ(起動.プログラム開始(QString()), 起動結果::稼動);
    }

    部品& c(const QString& 名前, int 行 = -1) { return f.画面(名前, 行); }
    void 打つ(部品& 欄, const QString& 文字列) {
        f.画面.操作_入力(欄, 文字列);
        f.画面.操作_Tab();
    }
    // A new slip of staff 00003 with one line, stored by the register button.
    void 新しい伝票(const QString& 金額) {
        打つ(c(u"担当者コード"_qs), u"3"_qs);
        f.画面.操作_フォーカス(c(u"費目区分"_qs, 0));
        打つ(c(u"費目区分"_qs, 0), u"3"_qs);
        f.画面.操作_フォーカス(c(u"出金金額"_qs, 0));
        打つ(c(u"出金金額"_qs, 0), 金額);
        f.画面.操作_クリック(c(u"btn_登録"_qs));
    }
    void 操作者を変える(const QString& コード) {
        ASSERT_TRUE(木->環境DB実行(u"UPDATE 動作環境定義 SET 起動担当者コード = '"_qs + コード +
                                   u"' WHERE 動作環境定義ID = '001'"_qs));
    }
    QString 利用者(const QString& コード) const {
        return s.データ.接続().環境().ユーザID + コード + s.データ.接続().環境().端末名;
    }
    qint64 合計() {
        return 木->業務DB行(u"SELECT 出金金額合計 FROM T出金 WHERE 出金No = '00000001'"_qs)
            .value(0)
            .value(0)
            .toLongLong();
    }
    QStringList 列(const QString& 文) {
        QStringList r;
        for (const auto& 行 : 木->業務DB行(文)) r << 行.value(0).toString();
        return r;
    }

    出金セッション s{基盤};
    frm紺碧帳 f{s};
    窓なしの入力画面 画面{f, [this] { 起動.伝票読込(); }};
    紺碧帳起動 起動{s, 画面};
};

TEST_P(操作者交代, 動作中に変わった起動担当者で権限が判定され以後の行と閲覧記録に残る) {
    新しい伝票(u"1000"_qs);
    const QString 最初 = 利用者(u"00001"_qs);
    ASSERT_EQ(列(u"SELECT ユーザID FROM T出金 WHERE 出金No = '00000001'"_qs), QStringList{最初});

    // 00009 may enter slips, but neither correct nor delete them.
    操作者を変える(u"00009"_qs);
    新しい伝票(u"2000"_qs);
    const QString 二人目 = 利用者(u"00009"_qs);
    const QString 二 = u" WHERE 出金No = '00000002'"_qs;
    EXPECT_EQ(列(u"SELECT ユーザID FROM T出金"_qs + 二), QStringList{二人目});
    EXPECT_EQ(列(u"SELECT ユーザID FROM T出金明細"_qs + 二), QStringList{二人目});
    EXPECT_EQ(列(u"SELECT ユーザID FROM R出金明細"_qs + 二), QStringList{二人目});

    // Brought up for correction: the browse row names the new operator.
    打つ(c(u"出金No"_qs), u"1"_qs);
    ASSERT_EQ(s.見出し.出金No, u"00000001"_qs);
    ASSERT_FALSE(s.新規情報フラグ);
    const auto 閲覧 = 木->業務DB行(
        u"SELECT 担当者コード, 担当者名, ユーザID FROM T閲覧 WHERE 伝票No = '00000001'"_qs);
    ASSERT_EQ(閲覧.size(), 1);
    EXPECT_EQ(閲覧[0][0].toString(), u"00009"_qs);
    EXPECT_EQ(閲覧[0][1].toString(), u"小林 真由"_qs);
    EXPECT_EQ(閲覧[0][2].toString(), 二人目);

    // His correction is refused: the PIN window comes, is closed unanswered, and nothing moves.
    f.画面.操作_フォーカス(c(u"出金金額"_qs, 0));
    打つ(c(u"出金金額"_qs, 0), u"1500"_qs);
    f.画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_TRUE(基盤.表示画面.contains({u"msg暗証番号確認"_qs, true}));
    EXPECT_EQ(基盤.表示文言().value(0), u"操作権限がありません。"_qs);
    EXPECT_EQ(合計(), 1000);

    // 00002 may: the new state carries him, the old header row its own user, the old line rows
    // the user of this store.
    操作者を変える(u"00002"_qs);
    f.画面.操作_クリック(c(u"btn_登録"_qs));
    const QString 三人目 = 利用者(u"00002"_qs);
    const QString 一 = u" WHERE 出金No = '00000001'"_qs;
    EXPECT_EQ(合計(), 1500);
    EXPECT_EQ(列(u"SELECT ユーザID FROM T出金"_qs + 一), QStringList{三人目});
    EXPECT_EQ(列(u"SELECT ユーザID FROM T出金明細"_qs + 一), QStringList{三人目});
    EXPECT_EQ(列(u"SELECT ユーザID FROM R出金"_qs + 一), QStringList{最初});
    EXPECT_EQ(列(u"SELECT ユーザID FROM R出金明細"_qs + 一 + u" ORDER BY 出金履歴No"_qs),
              (QStringList{最初, 三人目, 三人目}));
}

KONPEKI_両エンジンで(操作者交代);

}  // namespace
