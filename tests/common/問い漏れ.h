#pragma once

#include <gtest/gtest.h>

#include "text/台本プラットフォーム.h"

// A question the script did not answer fails the case that asked it: a test that passed only
// by a silent default would pass against a program that asks the wrong thing.
inline void 問い漏れを誤りにする() {
    台本プラットフォーム::問い漏れ = [](const QString& 何) { ADD_FAILURE() << 何.toStdString(); };
}
