#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "common/試験用ツリー.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"
#include "ui/入力画面ウィンドウ.h"
#include "ui/窓の操作.h"

// The real window on the sample tree, driven by real key and mouse events.
class 入力画面ウィンドウ試験 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        s.データ.接続().自身のフォルダ設定(木.プログラムフォルダ());
        画面.伝票読込 = [this] { 起動.伝票読込(); };
        ASSERT_EQ(起動.プログラム開始(QString()), 起動結果::稼動);
        窓 = 画面.窓();
        ASSERT_NE(窓, nullptr);
        QApplication::setActiveWindow(窓);
        窓->反映();
    }
    void TearDown() override { 起動.終了処理(); }

    部品& c(const QString& 名前, int 行 = -1) { return f.画面(名前, 行); }
    QWidget* w(const QString& 名前, int 行 = -1) { return 窓->ウィジェット(c(名前, 行)); }
    QString 焦点() const {
        const 部品* p = f.画面.フォーカス();
        return p ? p->名前 + (p->添字 < 0 ? QString() : QString::number(p->添字)) : QString();
    }
    void 打つ(const QString& 文字列) { 窓の操作::打つ(文字列); }
    void Tab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
    void 支払先までTab() {
        for (int i = 0; i < 5 && f.画面.フォーカス()->名前 != u"支払先"; ++i) Tab();
    }
    // Every line edit shows what its control holds, and Qt's focus is the model's.
    void 一致を確かめる() {
        for (部品* p : f.画面.全部品()) {
            if (auto* e = qobject_cast<QLineEdit*>(窓->ウィジェット(*p))) {
                EXPECT_EQ(e->text(), p->Text) << p->名前.toStdString() << p->添字;
            }
        }
        EXPECT_EQ(QApplication::focusWidget(), 窓->ウィジェット(*f.画面.フォーカス()));
    }
    // Every control the model shows stands at its place (15 twips to a pixel) with its text,
    // and only those are drawn.
    void 配置と文字を確かめる() {
        for (部品* p : f.画面.全部品()) {
            QWidget* x = 窓->ウィジェット(*p);
            if (!x) continue;
            const std::string 名 = p->名前.toStdString() + std::to_string(p->添字);
            EXPECT_EQ(x->isVisible(), f.画面.見えるか(*p)) << 名;
            EXPECT_EQ(x->isEnabled(), p->Enabled) << 名;
            EXPECT_EQ(x->x(), p->Left / 15) << 名;
            EXPECT_EQ(x->y(), p->Top / 15) << 名;
            EXPECT_EQ(x->width(), qMax(1, p->Width / 15)) << 名;
            if (p->種別 != 部品種別::SSTab) {
                EXPECT_EQ(x->height(), qMax(1, p->Height / 15)) << 名;
            }
            if (auto* b = qobject_cast<QPushButton*>(x)) {
                EXPECT_EQ(b->text(), p->Caption) << 名;
            }
            if (auto* l = qobject_cast<QLabel*>(x)) {
                EXPECT_EQ(l->text(), p->Caption) << 名;
            }
            if (auto* e = qobject_cast<QLineEdit*>(x)) {
                EXPECT_EQ(e->text(), p->Text) << 名;
            }
            if (auto* k = qobject_cast<QComboBox*>(x)) {
                EXPECT_EQ(k->currentText(), p->Text) << 名;
            }
        }
    }
    // A picture for the eye; what it shows is asserted through the widgets.
    void 写真(const QString& 名前) {
        QDir().mkpath(QStringLiteral(KONPEKI_ARTIFACTS));
        窓->grab().save(QStringLiteral(KONPEKI_ARTIFACTS) + u"/"_qs + 名前 + u".png"_qs);
    }
    QLineEdit* 欄(const QString& 名前, int 行 = -1) { return static_cast<QLineEdit*>(w(名前, 行)); }

    試験用ツリー 木;
    台本プラットフォーム 基盤;
    出金セッション s{基盤};
    frm紺碧帳 f{s};
    入力画面ウィンドウ 画面{f};
    紺碧帳起動 起動{s, 画面};
    ScreenWindow* 窓 = nullptr;
};
