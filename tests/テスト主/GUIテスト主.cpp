#include <gtest/gtest.h>

#include "common/問い漏れ.h"

#include <QApplication>
#include <QFont>

// The widget tests need a full application object; they run on the offscreen platform.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    問い漏れを誤りにする();
    QApplication::setFont(QFont(u"Noto Sans CJK JP"_qs, 10));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
