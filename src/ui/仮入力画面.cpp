#include "ui/仮入力画面.h"

#include <QCloseEvent>
#include <QLabel>
#include <QTimer>

EntryWindow::EntryWindow(出金セッション& セッション) : s(セッション) {
    resize(12375 / 15, 8000 / 15);
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

void EntryWindow::画面読込() {
    setWindowTitle(s.データ.会社.名称 + u"（紺碧帳）"_qs);
    auto* 題 = new QLabel(s.データ.会社.名称 + u"\n出金伝票"_qs, this);
    題->setAlignment(Qt::AlignCenter);
    setCentralWidget(題);
}

void 仮入力画面::表示() {
    窓.画面読込();
    if (伝票読込) 伝票読込();
    窓.show();
}
