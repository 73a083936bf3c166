#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QInputMethodEvent>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <functional>
#include <memory>

#include "audit/wnd出金検索.h"
#include "audit/wnd出金検索_部品名.h"
#include "common/出金入力.h"
#include "common/出金準備.h"
#include "screen/frm紺碧帳.h"
#include "ui/Qtプラットフォーム.h"
#include "ui/画面ウィンドウ.h"
#include "ui/窓の操作.h"

namespace {

using 欄 = 出金検索部品;

// The entry window with the slip search over it, as the program shows them, driven by keys.
class 出金検索ウィンドウ試験 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        出金セッション準備(s, 木);
        if (HasFatalFailure()) return;
        ASSERT_NO_FATAL_FAILURE(保存(u"20251105"_qs, 1800, u"文具の青葉堂"_qs));
        ASSERT_NO_FATAL_FAILURE(保存(u"20251112"_qs, 2400, u"喫茶こもれび"_qs));
        ASSERT_NO_FATAL_FAILURE(保存(u"20251203"_qs, 900, u"喫茶こもれび"_qs));
        ASSERT_NO_FATAL_FAILURE(保存(u"20251119"_qs, 5200, u"喫茶こもれび"_qs));
        f.画面読込([this] { s.出金情報初期化(); });
        基盤.画面登録(w.画面.名前, w.画面);
        主窓 = std::make_unique<ScreenWindow>(f.画面);
        主窓->show();
        QApplication::setActiveWindow(主窓.get());
        主窓->反映();
    }

    void 保存(const QString& 日付, qint64 円, const QString& 支払先) {
        s.出金情報初期化();
        出金日付入力(s, 日付);
        ASSERT_TRUE(担当者入力(s, u"00003"_qs));
        ASSERT_TRUE(明細入力(s, 1, 金額::円(円), 支払先, u"打合せ"_qs));
        ASSERT_TRUE(s.新規登録処理());
        No.append(s.見出し.出金No);
    }
    // What the operator does once the search window is up; it comes up inside the key that
    // opens it, so the operator looks for it until it is there.
    void 窓で(std::function<void(ScreenWindow&)> 手) {
        窓の操作::窓が出たら(主窓.get(), u"出金検索"_qs, std::move(手),
                             [this] { 基盤.画面終了(w.画面.名前); });
    }
    QWidget* 焦点の窓部品(ScreenWindow& 窓) {
        return w.画面.フォーカス() ? 窓.ウィジェット(*w.画面.フォーカス()) : nullptr;
    }
    void キー(ScreenWindow& 窓, Qt::Key k, int 回数 = 1) {
        for (int i = 0; i < 回数; ++i) QTest::keyClick(焦点の窓部品(窓), k);
    }
    // Typed as an input method commits it, then Tab.
    void 打つ(ScreenWindow& 窓, const QString& 文字列) {
        QInputMethodEvent 確定;
        確定.setCommitString(文字列);
        QApplication::sendEvent(焦点の窓部品(窓), &確定);
        キー(窓, Qt::Key_Tab);
    }

    試験用ツリー 木;
    Qtプラットフォーム 基盤;
    出金セッション s{基盤};
    frm紺碧帳 f{s};
    wnd出金検索 w{s, f.画面};
    std::unique_ptr<ScreenWindow> 主窓;
    QStringList No;
};

TEST_F(出金検索ウィンドウ試験, F9で開き月と支払先で探してEnterで選んだ伝票が入力画面に出る) {
    ASSERT_TRUE(s.新規情報フラグ);
    QStringList 行;
    窓で([&](ScreenWindow& 窓) {
        EXPECT_EQ(w.画面.フォーカス(), &w.画面(欄::出金日付自));
        打つ(窓, u"20251101"_qs);
        打つ(窓, u"20251130"_qs);
        キー(窓, Qt::Key_Tab, 4);
        EXPECT_EQ(w.画面.フォーカス(), &w.画面(欄::支払先));
        打つ(窓, u"こもれび"_qs);
        // Past staff, office, the numbers and the two boxes to the search button.
        キー(窓, Qt::Key_Tab, 6);
        ASSERT_EQ(w.画面.フォーカス(), &w.画面(欄::btn_検索));
        キー(窓, Qt::Key_Space);
        auto* 一覧 = qobject_cast<QTreeWidget*>(窓.ウィジェット(w.画面(欄::List出金検索)));
        ASSERT_NE(一覧, nullptr);
        for (int r = 0; r < 一覧->topLevelItemCount(); ++r) 行 << 一覧->topLevelItem(r)->text(1);
        EXPECT_EQ(焦点の窓部品(窓), 一覧);
        EXPECT_EQ(一覧->topLevelItem(0)->text(0), u"2025/11/12"_qs);
        EXPECT_EQ(一覧->topLevelItem(0)->text(6), u"2,400"_qs);
        キー(窓, Qt::Key_Down);
        QDir().mkpath(QStringLiteral(KONPEKI_ARTIFACTS));
        窓.grab().save(QStringLiteral(KONPEKI_ARTIFACTS) + u"/出金検索_検索後.png"_qs);
        キー(窓, Qt::Key_Return);
    });
    QTest::keyClick(主窓->ウィジェット(f.画面(u"担当者コード"_qs)), Qt::Key_F9);
    EXPECT_EQ(行, (QStringList{No[1], No[3]}));
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_EQ(s.見出し.出金No, No[3]);
    EXPECT_EQ(f.画面(u"出金No"_qs).Text, No[3]);
    EXPECT_EQ(s.行[0].支払先, u"喫茶こもれび"_qs);
}

}  // namespace
