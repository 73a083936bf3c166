#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "common/試験用ツリー.h"
#include "dataenv/データ環境.h"
#include "text/台本プラットフォーム.h"

// A fixture whose cases run twice: with the general database in SQLite (false) and in
// PostgreSQL (true). The PostgreSQL run is skipped when no test server is set. The platform is
// the scripted one, or one derived from it that watches more.
template <class 基盤型>
class エンジン別試験基 : public ::testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        if (GetParam()) {
            if (!試験用PostgreSQL::利用可能()) GTEST_SKIP() << "KONPEKI_TEST_PG is not set";
            pg = std::make_unique<試験用PostgreSQL>();
        }
        木 = std::make_unique<試験用ツリー>(pg ? pg->接続情報() : QString());
        ASSERT_TRUE(木->作成済み) << 木->エラー.toStdString();
    }

    // Opens both databases of the tree as the program does at its start.
    void 開く() {
        環境.接続().自身のフォルダ設定(木->プログラムフォルダ());
        ASSERT_TRUE(環境.接続().SYB_OPEN());
        ASSERT_TRUE(環境.接続().DB_OPEN());
    }

    QList<QVariantList> 履歴() { return 木->稼動履歴(); }

    std::unique_ptr<試験用PostgreSQL> pg;
    std::unique_ptr<試験用ツリー> 木;
    基盤型 基盤;
    データ環境 環境{基盤};
};

using エンジン別試験 = エンジン別試験基<台本プラットフォーム>;

#define KONPEKI_両エンジンで(fixture)                                           \
    INSTANTIATE_TEST_SUITE_P(エンジン, fixture, ::testing::Values(false, true), \
                             [](const auto& i) { return i.param ? "PostgreSQL" : "SQLite"; })
