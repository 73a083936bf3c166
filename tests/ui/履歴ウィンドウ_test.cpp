#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <memory>

#include "audit/wnd出金履歴.h"
#include "common/出金入力.h"
#include "common/出金準備.h"
#include "screen/frm紺碧帳.h"
#include "ui/Qtプラットフォーム.h"
#include "ui/画面ウィンドウ.h"
#include "ui/窓の操作.h"

namespace {

// The history window as the program shows it, modal over the entry window, opened by F8 and
// read with the keys alone.
class 履歴ウィンドウ試験 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        出金セッション準備(s, 木);
        if (HasFatalFailure()) return;
        f.画面読込([this] { s.出金情報初期化(); });
        基盤.画面登録(履歴.画面.名前, 履歴.画面);
        主窓 = std::make_unique<ScreenWindow>(f.画面);
        主窓->show();
        QApplication::setActiveWindow(主窓.get());
        主窓->反映();
    }
    void キー(QWidget* 先, Qt::Key k) { QTest::keyClick(先, k); }
    QWidget* 主の焦点() { return 主窓->ウィジェット(*f.画面.フォーカス()); }

    試験用ツリー 木;
    Qtプラットフォーム 基盤;
    出金セッション s{基盤};
    frm紺碧帳 f{s};
    wnd出金履歴 履歴{s, f.画面};
    std::unique_ptr<ScreenWindow> 主窓;
};

TEST_F(履歴ウィンドウ試験, 番号を打ってF8で開き下とEnterで前の状態を選びEscで戻る) {
    // A slip of two lines, stored and then corrected by the session's own store routines.
    出金日付入力(s, u"20251120"_qs);
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    ASSERT_TRUE(明細入力(s, 3, 金額::円(1000), u"文具の青葉堂"_qs, u"コピー用紙"_qs));
    ASSERT_TRUE(明細入力(s, 3, 金額::円(2000), {}, u"封筒"_qs));
    ASSERT_TRUE(s.新規登録処理());
    const QString No = s.見出し.出金No;
    s.出金情報初期化();
    ASSERT_TRUE(s.出金No確定(No));
    f.画面全表示();
    ASSERT_TRUE(f.出金金額確定(0, 金額::円(1500)));
    s.修正登録処理();
    s.出金情報初期化();
    f.画面全表示();
    主窓->反映();

    // The operator types the number and leaves the field: the slip is loaded.
    f.画面.操作_フォーカス(f.画面(u"出金No"_qs));
    主窓->反映();
    auto* 番号 = qobject_cast<QLineEdit*>(主の焦点());
    ASSERT_TRUE(番号);
    番号->selectAll();
    QTest::keyClicks(番号, No);
    キー(番号, Qt::Key_Tab);
    ASSERT_FALSE(s.新規情報フラグ);

    QStringList 見た合計;
    int 行数 = -1;
    窓の操作::窓が出たら(
        主窓.get(), u"出金伝票の履歴"_qs,
        [&](ScreenWindow& 窓) {
            auto* 合計 = qobject_cast<QLabel*>(窓.ウィジェット(履歴.画面(u"lab_合計"_qs)));
            auto* 状態 = qobject_cast<QTreeWidget*>(窓.ウィジェット(履歴.画面(u"lst_状態"_qs)));
            行数 = 状態 ? 状態->topLevelItemCount() : -1;
            if (合計) 見た合計 << 合計->text();
            QDir().mkpath(QStringLiteral(KONPEKI_ARTIFACTS));
            窓.grab().save(QStringLiteral(KONPEKI_ARTIFACTS) + u"/出金伝票の履歴.png"_qs);
            QWidget* 焦点 = QApplication::focusWidget();
            キー(焦点, Qt::Key_Down);
            キー(焦点, Qt::Key_Return);
            if (合計) 見た合計 << 合計->text();
            キー(QApplication::focusWidget(), Qt::Key_Escape);
        },
        [this] { 基盤.画面終了(履歴.画面.名前); });
    キー(主の焦点(), Qt::Key_F8);
    EXPECT_EQ(行数, 2);
    // The newest state first, its first amount corrected; then the first state, all new.
    EXPECT_EQ(見た合計, (QStringList{u"合計 3,300 → 3,850"_qs, u"合計 － → 3,300"_qs}));
    EXPECT_FALSE(履歴.画面.フォーカス() == nullptr);
    EXPECT_EQ(f.画面.状態.履歴鍵, u"00020260331"_qs + No);
}

}  // namespace
