#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "screen/msgお待ち.h"
#include "screen/msg印刷確認.h"
#include "ui/Qtプラットフォーム.h"
#include "ui/画面ウィンドウ.h"

namespace {

// The register question and the wait window as the Qt platform draws them from their models.
class 問いの窓 : public ::testing::Test {
  protected:
    void SetUp() override {
        基盤.画面登録(u"msg印刷確認"_qs, 問い.画面);
        基盤.画面登録(u"msgお待ち"_qs, 待ち.画面);
    }
    // Runs the operator's part once the modal window is up, inside its own event loop.
    void 窓の中で(std::function<void(ScreenWindow*)> 操作, int 残り = 100) {
        QTimer::singleShot(0, [this, 操作, 残り] {
            ScreenWindow* 窓 = 問いの画面();
            if (!窓 && 残り > 0) return 窓の中で(操作, 残り - 1);  // not up yet: look again
            ASSERT_NE(窓, nullptr);
            操作(窓);
        });
    }
    // The shown window drawn from the question's model.
    ScreenWindow* 問いの画面() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* 窓 = dynamic_cast<ScreenWindow*>(w);
            if (窓 && 窓->isVisible() && 窓->ウィジェット(問い.画面(u"lab_msg"_qs))) return 窓;
        }
        return nullptr;
    }
    template <class W>
    W* 部品の(ScreenWindow* 窓, const QString& 名前) {
        return static_cast<W*>(窓->ウィジェット(問い.画面(名前)));
    }

    Qtプラットフォーム 基盤;
    出金セッション s{基盤};
    msg印刷確認 問い{s};
    msgお待ち 待ち;
};

TEST_F(問いの窓, 修正の問いは赤い文で登録のみに焦点があり登録と印刷を押すと0) {
    QString 文;
    QColor 色;
    bool 焦点 = false;
    窓の中で([&](ScreenWindow* 窓) {
        auto* l = 部品の<QLabel>(窓, u"lab_msg"_qs);
        文 = l->text();
        色 = l->palette().color(QPalette::WindowText);
        焦点 = 窓->focusWidget() == 部品の<QPushButton>(窓, u"btn_登録"_qs);
        EXPECT_EQ(窓->windowTitle(), u"紺碧帳"_qs);
        QDir().mkpath(QStringLiteral(KONPEKI_ARTIFACTS));
        窓->grab().save(QStringLiteral(KONPEKI_ARTIFACTS) + u"/修正の問い.png"_qs);
        EXPECT_EQ(部品の<QPushButton>(窓, u"btn_登録印刷"_qs)->text(), u"登録と印刷"_qs);
        QTest::mouseClick(部品の<QPushButton>(窓, u"btn_登録印刷"_qs), Qt::LeftButton);
    });
    問い.登録確認(u"紺碧帳"_qs, QString(), u"修正します。よろしいですか？"_qs, msg印刷確認::赤192);
    EXPECT_EQ(文, u"修正します。よろしいですか？"_qs);
    EXPECT_EQ(色, QColor(192, 0, 0));
    EXPECT_TRUE(焦点);
    EXPECT_EQ(s.登録確認結果, 0);
    EXPECT_EQ(問いの画面(), nullptr);
}

TEST_F(問いの窓, 登録のみを鍵で押すと1になり枠で閉じれば2) {
    窓の中で([this](ScreenWindow* 窓) {
        QTest::keyClick(窓->ウィジェット(*問い.画面.フォーカス()), Qt::Key_Space);
    });
    問い.登録確認(u"紺碧帳"_qs, QString(), u"登録します。よろしいですか？"_qs, -1);
    EXPECT_EQ(s.登録確認結果, 1);

    窓の中で([](ScreenWindow* 窓) { 窓->close(); });
    問い.登録確認(u"紺碧帳"_qs, QString(), u"登録します。よろしいですか？"_qs, -1);
    EXPECT_EQ(s.登録確認結果, 2);
}

TEST_F(問いの窓, お待ちの窓は文を出し消える) {
    基盤.お待ち表示(true);
    QWidget* 窓 = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (w->isVisible() && dynamic_cast<ScreenWindow*>(w)) 窓 = w;
    }
    ASSERT_NE(窓, nullptr);
    auto* l = static_cast<QLabel*>(
        static_cast<ScreenWindow*>(窓)->ウィジェット(待ち.画面(u"lab_msg"_qs)));
    EXPECT_EQ(l->text(), u"しばらくお待ちください。"_qs);
    基盤.お待ち表示(false);
    QApplication::processEvents();
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (dynamic_cast<ScreenWindow*>(w)) {
            EXPECT_FALSE(w->isVisible());
        }
    }
}

}  // namespace
