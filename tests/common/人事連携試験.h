#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "common/試験用ツリー.h"
#include "dataenv/データ環境.h"
#include "text/台本プラットフォーム.h"

// A fixture whose cases run with the HR system's general database in SQLite (false) and in
// PostgreSQL (true); the company's own databases are SQLite files. The PostgreSQL run is
// skipped when no test server is set.
class 人事連携試験 : public ::testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        if (GetParam()) {
            if (!試験用PostgreSQL::利用可能()) GTEST_SKIP() << "KONPEKI_TEST_PG is not set";
            pg = std::make_unique<試験用PostgreSQL>();
        }
        木 = std::make_unique<試験用ツリー>(QString(), true, pg ? pg->接続情報() : QString());
        ASSERT_TRUE(木->作成済み) << 木->エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 0, 0));
    }

    // Opens the company's databases and the HR link as the program's start does.
    void 開く() {
        自社を開いて連携を選ぶ();
        ASSERT_TRUE(環境.人事連携開始());
    }
    void 自社を開いて連携を選ぶ() {
        環境.自身のフォルダ = 木->プログラムフォルダ();
        ASSERT_TRUE(環境.SYB_OPEN());
        ASSERT_TRUE(環境.DB_OPEN());
        ASSERT_TRUE(環境.基本項目読込());
        ASSERT_TRUE(環境.人事連携選択(u"白樺"_qs));
    }

    QList<QVariantList> 履歴() { return 木->稼動履歴(); }

    std::unique_ptr<試験用PostgreSQL> pg;
    std::unique_ptr<試験用ツリー> 木;
    台本プラットフォーム 基盤;
    データ環境 環境{基盤};
};

#define KONPEKI_人事の両エンジンで(fixture)                                         \
    INSTANTIATE_TEST_SUITE_P(人事エンジン, fixture, ::testing::Values(false, true), \
                             [](const auto& i) { return i.param ? "PostgreSQL" : "SQLite"; })
