#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "ui/画面ウィンドウ.h"

// What the real-window tests do as an operator, shared by all of them. A struct, not a
// namespace: clang-format rewrites the closing comment of a namespace with this name.
struct 窓の操作 {
    // ASCII by key presses into the widget with the focus; anything else as an input method
    // commits it.
    static void 打つ(const QString& 文字列) {
        QWidget* 先 = QApplication::focusWidget();
        for (QChar ch : 文字列) {
            if (ch.unicode() < 0x80) {
                QTest::keyClick(先, ch.toLatin1());
            } else {
                QInputMethodEvent 確定;
                確定.setCommitString(QString(ch));
                QApplication::sendEvent(先, &確定);
            }
        }
    }

    // What the operator does once the window of that title is up. A modal window comes up inside
    // the key or click that opens it, so the operator looks for it until it is there; a window
    // that never comes is a failure, and 来ない時 closes what the test opened so that it ends.
    static void 窓が出たら(QObject* 親, const QString& 題, std::function<void(ScreenWindow&)> 手,
                           std::function<void()> 来ない時) {
        auto 回 = std::make_shared<int>(0);
        auto* 時計 = new QTimer(親);
        QObject::connect(時計, &QTimer::timeout, [題, 手, 来ない時, 回, 時計] {
            for (QWidget* t : QApplication::topLevelWidgets()) {
                auto* 窓 = dynamic_cast<ScreenWindow*>(t);
                if (!窓 || !窓->isVisible() || 窓->windowTitle() != 題) continue;
                時計->stop();
                時計->deleteLater();
                手(*窓);
                return;
            }
            if (++*回 < 500) return;
            時計->stop();
            ADD_FAILURE() << "no window " << 題.toStdString();
            来ない時();
        });
        時計->start(10);
    }
};
