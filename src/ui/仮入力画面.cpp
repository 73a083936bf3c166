#include "ui/仮入力画面.h"

#include <QCloseEvent>
#include <QLabel>
#include <QTimer>

EntryWindow::EntryWindow(frm紺碧帳& 画面_) : 画面(画面_) {}

void EntryWindow::画面読込() {
    setWindowTitle(画面.画面.Caption);
    // 15 twips to a pixel at 96 dpi.
    resize(画面.画面.Width / 15, 画面.画面.Height / 15);
    auto* 題 = new QLabel(画面.s.データ.会社.名称 + u"\n出金伝票"_qs, this);
    題->setAlignment(Qt::AlignCenter);
    setCentralWidget(題);
}

void EntryWindow::closeEvent(QCloseEvent* e) {
    if (閉じる時) 閉じる時();
    e->accept();
}

void EntryWindow::showEvent(QShowEvent* e) {
    QMainWindow::showEvent(e);
    if (!表示済み && 表示後) {
        表示済み = true;
        QTimer::singleShot(0, this, [this] { 表示後(); });
    }
}

void 仮入力画面::表示() {
    画面.画面読込(伝票読込);
    窓.画面読込();
    窓.show();
}

void 仮入力画面::既定フォーカス設定() {
    画面.フォーカス設定(画面.画面(u"担当者コード"_qs));
}
