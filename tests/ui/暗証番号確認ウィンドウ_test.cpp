#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "common/試験用ツリー.h"
#include "screen/msg暗証番号確認.h"
#include "slip/起動処理.h"
#include "ui/Qtプラットフォーム.h"
#include "ui/入力画面ウィンドウ.h"

namespace {

// The program as main puts it together, on the real platform: the entry screen is up for a
// company that asks PINs, and the PIN window is drawn from its registered model.
class 暗証番号確認ウィンドウ試験 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        ASSERT_TRUE(木.業務DB実行(u"UPDATE Mユーザ SET 暗証番号有無 = 1"_qs));
        ASSERT_TRUE(
            木.業務DB実行(u"UPDATE M担当者 SET 暗証番号 = '1234' WHERE コード = '00003'"_qs));
        s.データ.接続().自身のフォルダ設定(木.プログラムフォルダ());
        画面.伝票読込 = [this] { 起動.伝票読込(); };
        基盤.画面登録(暗証.画面.名前, 暗証.画面);
        ASSERT_EQ(起動.プログラム開始(QString()), 起動結果::稼動);
        QApplication::setActiveWindow(画面.窓());
    }
    void TearDown() override { 起動.終了処理(); }

    部品& c(const QString& 名前) { return 暗証.画面(名前); }

    試験用ツリー 木;
    Qtプラットフォーム 基盤;
    出金セッション s{基盤};
    frm紺碧帳 f{s};
    入力画面ウィンドウ 画面{f};
    紺碧帳起動 起動{s, 画面};
    msg暗証番号確認 暗証{s.データ};
};

// The modal show runs its own event loop: the operator's keys are sent from inside it.
TEST_F(暗証番号確認ウィンドウ試験, 入力画面の上に開いた窓でキーを打って確定する) {
    // Another program of the workplace signed its operator off.
    ASSERT_TRUE(木.環境DB実行(u"UPDATE 動作環境定義 SET 起動担当者コード = ''"_qs));
    QString 題名, 名前, 表示;
    bool 伏せ字 = false;
    bool 上に = false;
    bool モーダル = false;
    QTimer::singleShot(0, [&] {
        auto* 窓 = dynamic_cast<ScreenWindow*>(QApplication::activeModalWidget());
        ASSERT_NE(窓, nullptr);
        QApplication::setActiveWindow(窓);
        題名 = 窓->windowTitle();
        // A window of its own, modal, centred over the entry screen.
        上に = 画面.窓()->geometry().contains(窓->geometry().center());
        モーダル = 窓->isModal();
        QWidget* コード = 窓->ウィジェット(c(u"担当者コード"_qs));
        ASSERT_EQ(QApplication::focusWidget(), コード);
        QTest::keyClicks(コード, u"3"_qs);
        QTest::keyClick(コード, Qt::Key_Tab);
        名前 = static_cast<QLineEdit*>(窓->ウィジェット(c(u"担当者名"_qs)))->text();
        auto* 暗 = static_cast<QLineEdit*>(窓->ウィジェット(c(u"暗証番号"_qs)));
        ASSERT_EQ(QApplication::focusWidget(), 暗);
        QTest::keyClicks(暗, u"1234"_qs);
        伏せ字 = 暗->echoMode() == QLineEdit::Password;
        表示 = 暗->displayText();
        QDir().mkpath(QStringLiteral(KONPEKI_ARTIFACTS));
        窓->grab().save(QStringLiteral(KONPEKI_ARTIFACTS) + u"/暗証番号確認.png"_qs);
        QTest::keyClick(暗, Qt::Key_Tab);
        QWidget* OK = 窓->ウィジェット(c(u"btn_OK"_qs));
        ASSERT_EQ(QApplication::focusWidget(), OK);
        QTest::keyClick(OK, Qt::Key_Space);
    });
    // Should the keys go astray, the window is closed as its frame would close it.
    QTimer 番人;
    番人.setSingleShot(true);
    QObject::connect(&番人, &QTimer::timeout, [] {
        if (QWidget* w = QApplication::activeModalWidget()) w->close();
    });
    番人.start(20000);

    EXPECT_EQ(s.データ.操作者権限().操作権限確認(u"翠嶺"_qs, u"紺碧帳"_qs, 1), -1);
    EXPECT_TRUE(番人.isActive());
    EXPECT_EQ(題名, u"翠嶺/暗証確認"_qs);
    EXPECT_TRUE(上に);
    EXPECT_TRUE(モーダル);
    EXPECT_EQ(名前, u"上田 健一"_qs);
    EXPECT_TRUE(伏せ字);
    EXPECT_NE(表示, u"1234"_qs);
    EXPECT_EQ(c(u"暗証番号"_qs).Text, u"1234"_qs);
    EXPECT_EQ(木.環境DB行(u"SELECT 起動担当者コード FROM 動作環境定義"_qs)[0][0].toString(),
              u"00003"_qs);
    EXPECT_EQ(s.データ.操作者権限().操作者().氏名, u"上田 健一"_qs);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
