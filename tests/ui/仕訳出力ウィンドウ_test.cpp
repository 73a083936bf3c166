#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QInputMethodEvent>
#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <memory>

#include "common/出金入力.h"
#include "common/出金準備.h"
#include "common/試験用ツリー.h"
#include "ledger/frm紺碧帳出力.h"
#include "lists/wnd支払先登録.h"
#include "ui/Qtプラットフォーム.h"
#include "ui/画面ウィンドウ.h"
#include "ui/窓の操作.h"

namespace {

// The export window as 紺碧帳出力 shows it when started without arguments, over the sample tree
// with two slips of November 2025, worked by keys alone.
class 仕訳出力ウィンドウ : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        {
            台本プラットフォーム 打鍵;
            打鍵.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
            出金セッション s(打鍵);
            出金セッション準備(s, 木);
            for (const auto& [日付, 額] :
                 {std::pair{u"20251105"_qs, 1000}, {u"20251118"_qs, 2500}}) {
                s.出金情報初期化();
                出金日付入力(s, 日付);
                ASSERT_TRUE(担当者入力(s, u"00003"_qs));
                ASSERT_TRUE(明細入力(s, 1, 金額::円(額), u"東京交通"_qs, u"タクシー代"_qs));
                ASSERT_TRUE(s.新規登録処理());
            }
        }
        基盤.画面登録(支払先登録.画面.名前, 支払先登録.画面);
        窓 = std::make_unique<ScreenWindow>(画面.画面);
        画面.途中表示 = [this] {
            窓->反映();
            ++途中表示回数;
            QApplication::processEvents();
        };
        画面.閉じる = [this] { 窓->close(); };
        窓->閉じてよいか = [this] { return 画面.閉じてよいか(); };
        窓->閉じる時 = [this] {
            画面.閉じる = nullptr;
            画面.終了();
        };
        // Loaded once the window is up, so that the field the focus comes to holds its
        // proposal selected, to be typed over.
        窓->show();
        QApplication::setActiveWindow(窓.get());
        画面.読込();
        窓->反映();
    }

    QWidget* w(部品名 名前, int 添字 = -1) { return 窓->ウィジェット(画面.画面(名前, 添字)); }
    static void キー(Qt::Key k) { QTest::keyClick(QApplication::focusWidget(), k); }
    static void 打つ(const QString& 文字列) { 窓の操作::打つ(文字列); }

    試験用ツリー 木;
    Qtプラットフォーム 基盤;
    紺碧帳出力 出力{基盤, 木.プログラムフォルダ()};
    frm紺碧帳出力 画面{出力};
    wnd支払先登録 支払先登録{出力.s, 画面.画面};
    std::unique_ptr<ScreenWindow> 窓;
    int 途中表示回数 = 0;
};

using 欄 = 出力画面部品;

TEST_F(仕訳出力ウィンドウ, キーだけで期間と形式と出力先を選んで出し支払先登録を開いて閉じる) {
    ASSERT_EQ(QApplication::focusWidget(), w(欄::開始日));
    const QString 先 = 木.根() + u"/十一月.csv"_qs;
    打つ(u"20251101"_qs);
    キー(Qt::Key_Tab);
    打つ(u"20251130"_qs);
    キー(Qt::Key_Return);
    キー(Qt::Key_Tab);  // the office stays 000, every office
    ASSERT_EQ(QApplication::focusWidget(), w(欄::opb_形式, 0));
    キー(Qt::Key_Tab);
    キー(Qt::Key_Space);
    EXPECT_EQ(画面.画面(欄::opb_形式, 1).Value, 1);
    EXPECT_EQ(画面.画面(欄::opb_形式, 0).Value, 0);
    キー(Qt::Key_Tab);
    打つ(先);
    キー(Qt::Key_Return);
    ASSERT_EQ(QApplication::focusWidget(), w(欄::btn_出力));
    キー(Qt::Key_Space);

    const QString 結果 = qobject_cast<QLabel*>(w(欄::lab_結果))->text();
    EXPECT_EQ(
        結果,
        u"伝票 2 件\n明細 2 行\n借方金額合計 3,500 円（うち消費税 318 円）\n実質出金金額合計 3,500 円\n→ "_qs +
            先);
    auto* 棒 = qobject_cast<QProgressBar*>(w(欄::pgb_進捗));
    ASSERT_NE(棒, nullptr);
    EXPECT_EQ(棒->maximum(), 2);
    EXPECT_EQ(棒->value(), 2);
    EXPECT_EQ(途中表示回数, 2);
    QFile f(先);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll().count("\r\n"), 3);  // the header and two lines
    QDir().mkpath(QStringLiteral(KONPEKI_ARTIFACTS));
    窓->grab().save(QStringLiteral(KONPEKI_ARTIFACTS) + u"/仕訳出力.png"_qs);

    // The register comes up over the window and goes back by Esc.
    int 行数 = -1;
    auto* 時計 = new QTimer(窓.get());
    QObject::connect(時計, &QTimer::timeout, [&, 時計] {
        for (QWidget* t : QApplication::topLevelWidgets()) {
            auto* 登録窓 = dynamic_cast<ScreenWindow*>(t);
            if (!登録窓 || !登録窓->isVisible() || 登録窓->windowTitle() != u"支払先登録") continue;
            時計->stop();
            行数 = qobject_cast<QTreeWidget*>(
                       登録窓->ウィジェット(支払先登録.画面(u"List支払先登録"_qs)))
                       ->topLevelItemCount();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            return;
        }
    });
    時計->start(10);
    キー(Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), w(欄::btn_支払先登録));
    キー(Qt::Key_Space);
    時計->stop();
    EXPECT_EQ(行数, 8);

    窓->反映();
    QTest::keyClick(窓->focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(窓->focusWidget(), w(欄::btn_終了));
    QTest::keyClick(窓->focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(窓->isVisible());
    const auto 履歴 = 木.環境DB行(
        u"SELECT 摘要 FROM プログラム稼動履歴 WHERE プログラムID = '紺碧帳出力' ORDER BY proccounter"_qs);
    ASSERT_EQ(履歴.size(), 3);
    EXPECT_EQ(履歴[2][0].toString(), u"終了"_qs);
}

}  // namespace
