#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <functional>
#include <memory>

#include "common/試験用ツリー.h"
#include "ui/窓の操作.h"
#include "ui/紺碧帳一式.h"

namespace {

// The program as its main() assembles it, started on the sample tree; the payee register comes
// up over the entry window by F10 and is worked by keys alone.
class 支払先登録ウィンドウ : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        一式 = std::make_unique<紺碧帳一式>(木.プログラムフォルダ());
        ASSERT_EQ(一式->起動.プログラム開始(QString()), 起動結果::稼動);
        主窓 = 一式->画面.窓();
        ASSERT_NE(主窓, nullptr);
        QApplication::setActiveWindow(主窓);
        主窓->反映();
    }
    void TearDown() override {
        if (一式) 一式->起動.終了処理();
    }

    // What the operator does once the register is up; it comes up inside the key that opens
    // it, so the operator looks for it until it is there.
    void 窓で(std::function<void(ScreenWindow&)> 手) {
        窓の操作::窓が出たら(主窓, u"支払先登録"_qs, std::move(手),
                             [this] { 一式->基盤.画面終了(u"wnd支払先登録"_qs); });
    }
    画面モデル& m() { return 一式->支払先登録.画面; }
    static void キー(Qt::Key k) { QTest::keyClick(QApplication::focusWidget(), k); }
    static void 打つ(const QString& 文字列) { 窓の操作::打つ(文字列); }

    試験用ツリー 木;
    std::unique_ptr<紺碧帳一式> 一式;
    ScreenWindow* 主窓 = nullptr;
};

TEST_F(支払先登録ウィンドウ, F10で開きキーだけで登録を加えEscで入力画面へ戻る) {
    ASSERT_EQ(QApplication::focusWidget(),
              主窓->ウィジェット(一式->モデル.画面(u"担当者コード"_qs)));
    bool 開いた = false;
    窓で([&](ScreenWindow& 窓) {
        開いた = true;
        auto* 一覧 = qobject_cast<QTreeWidget*>(窓.ウィジェット(m()(u"List支払先登録"_qs)));
        ASSERT_NE(一覧, nullptr);
        EXPECT_EQ(一覧->topLevelItemCount(), 8);
        EXPECT_EQ(一覧->headerItem()->text(1), u"登録番号"_qs);
        EXPECT_EQ(QApplication::focusWidget(), 窓.ウィジェット(m()(u"支払先"_qs)));
        打つ(u"文具の青葉堂"_qs);
        キー(Qt::Key_Tab);
        打つ(u"T7123456789012"_qs);
        キー(Qt::Key_Return);
        打つ(u"株式会社青葉堂"_qs);
        キー(Qt::Key_Tab);
        打つ(u"20251001"_qs);
        キー(Qt::Key_Tab);
        キー(Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), 窓.ウィジェット(m()(u"btn_追加"_qs)));
        キー(Qt::Key_Space);
        EXPECT_EQ(qobject_cast<QLabel*>(窓.ウィジェット(m()(u"lab_お知らせ"_qs)))->text(),
                  u"追加しました。"_qs);
        ASSERT_EQ(一覧->topLevelItemCount(), 9);
        ASSERT_NE(一覧->currentItem(), nullptr);
        EXPECT_EQ(一覧->currentItem()->text(0), u"文具の青葉堂"_qs);
        EXPECT_EQ(一覧->currentItem()->text(1), u"T7123456789012"_qs);
        EXPECT_EQ(一覧->currentItem()->text(3), u"20251001"_qs);
        EXPECT_EQ(qobject_cast<QLineEdit*>(窓.ウィジェット(m()(u"支払先"_qs)))->text(), QString());
        QDir().mkpath(QStringLiteral(KONPEKI_ARTIFACTS));
        窓.grab().save(QStringLiteral(KONPEKI_ARTIFACTS) + u"/支払先登録.png"_qs);
        キー(Qt::Key_Escape);
    });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10);
    EXPECT_TRUE(開いた);
    const auto 行 = 木.業務DB行(
        u"SELECT 登録番号, 登録名称, 有効開始日 FROM M紺碧支払先登録 WHERE 支払先 = '文具の青葉堂'"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][0].toString(), u"T7123456789012"_qs);
    EXPECT_EQ(行[0][1].toString(), u"株式会社青葉堂"_qs);
    EXPECT_EQ(行[0][2].toString(), u"20251001"_qs);
    主窓->反映();
    // The entry screen keeps the field F10 was pressed in.
    EXPECT_EQ(主窓->focusWidget(), 主窓->ウィジェット(一式->モデル.画面(u"担当者コード"_qs)));
}

}  // namespace
