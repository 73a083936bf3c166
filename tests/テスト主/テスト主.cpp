#include <gtest/gtest.h>

#include "common/問い漏れ.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    問い漏れを誤りにする();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
