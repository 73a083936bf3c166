#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "common/試験用ツリー.h"
#include "dataenv/データ環境.h"
#include "text/台本プラットフォーム.h"

// A fixture whose cases run with the HR system's general database in SQLite (false) and in
// PostgreSQL (true); the company's own databases are SQLite files, unless a fixture asks for its
// general database on PostgreSQL too. The PostgreSQL run is skipped when no test server is set.
class 人事連携試験 : public ::testing::TestWithParam<bool> {
  protected:
    // True in a fixture whose PostgreSQL run puts the company's general database there as well.
    virtual bool 自社もPostgreSQL() const { return false; }

    void SetUp() override {
        if (GetParam()) {
            if (!試験用PostgreSQL::利用可能()) GTEST_SKIP() << "KONPEKI_TEST_PG is not set";
            pg = std::make_unique<試験用PostgreSQL>();
            if (自社もPostgreSQL()) 自社pg = std::make_unique<試験用PostgreSQL>();
        }
        木 = std::make_unique<試験用ツリー>(自社pg ? 自社pg->接続情報() : QString(), true,
                                            pg ? pg->接続情報() : QString());
        ASSERT_TRUE(木->作成済み) << 木->エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 0, 0));
    }

    // Opens the company's databases and the HR link as the program's start does.
    void 開く() {
        自社を開いて連携を選ぶ();
        ASSERT_TRUE(環境.人事連携開始());
    }
    void 自社を開いて連携を選ぶ() {
        環境.接続().自身のフォルダ設定(木->プログラムフォルダ());
        ASSERT_TRUE(環境.接続().SYB_OPEN());
        ASSERT_TRUE(環境.接続().DB_OPEN());
        ASSERT_TRUE(環境.会社設定().基本項目読込());
        ASSERT_TRUE(環境.人事連携選択(u"白樺"_qs));
    }

    QList<QVariantList> 履歴() { return 木->稼動履歴(); }

    std::unique_ptr<試験用PostgreSQL> pg, 自社pg;
    std::unique_ptr<試験用ツリー> 木;
    台本プラットフォーム 基盤;
    データ環境 環境{基盤};
};

// The HR side's current fiscal period, as the sample tree's clock of 2026-11-23 falls in it.
inline const QString 今期 = u"20270331"_qs;

// An application of employee 00003 at the head office in this period, with the expense rows
// given as (kind, amount); descriptions "摘要1", "摘要2", ...
inline void 出張申請を置く(試験用ツリー& 木, const QString& No,
                           const QList<QPair<QString, QString>>& 旅費) {
    ASSERT_TRUE(木.人事DB実行(
        u"INSERT INTO T出張申請 (事業所コード, 番号基準日付, 出張申請No, 出張申請日付, 社員コード, 開始日付, 終了日付, 日数, 出張区分, 出張先, 出張目的, ユーザID, 登録日付, 更新日付) VALUES ('000', '"_qs +
        今期 + u"', '"_qs + No +
        u"', '20261120', '00003', '20261124', '20261124', 1, '0', '川崎', '打合せ', '', '20261120 100000', '')"_qs));
    int 行No = 0;
    for (const auto& [区分, 額] : 旅費) {
        ++行No;
        ASSERT_TRUE(木.人事DB実行(
            u"INSERT INTO T出張旅費 (事業所コード, 番号基準日付, 出張申請No, 旅費行No, 旅費区分, 旅費摘要, 旅費金額) VALUES ('000', '"_qs +
            今期 + u"', '"_qs + No + u"', '"_qs + QString::number(行No).rightJustified(3, u'0') +
            u"', '"_qs + 区分 + u"', '摘要"_qs + QString::number(行No) + u"', "_qs + 額 + u")"_qs));
    }
}

#define KONPEKI_人事の両エンジンで(fixture)                                         \
    INSTANTIATE_TEST_SUITE_P(人事エンジン, fixture, ::testing::Values(false, true), \
                             [](const auto& i) { return i.param ? "PostgreSQL" : "SQLite"; })
