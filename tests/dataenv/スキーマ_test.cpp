#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "common/試験用ツリー.h"
#include "dataenv/スキーマ適用.h"

namespace {

const QString スキーマ = QStringLiteral(KONPEKI_SCHEMA_DIR);

// Applies one database's tables and seed; the same files serve both engines.
void 適用できる(データ接続& 接続, const QString& 種類) {
    QString エラー;
    ASSERT_TRUE(SQLフォルダ実行(接続, スキーマ + u"/"_qs + 種類, エラー)) << エラー.toStdString();
    ASSERT_TRUE(SQLファイル実行(接続, スキーマ + u"/seed/"_qs + 種類 + u".sql"_qs, エラー))
        << エラー.toStdString();
}

void 空のファイル(const QString& パス) {
    QFile f(パス);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
}

TEST(スキーマ, 三つのデータベースがSQLiteに作れる) {
    for (const char16_t* 種類 : {u"config", u"general", u"hrlink"}) {
        QTemporaryDir t;
        空のファイル(t.path() + u"/x.db"_qs);
        データ接続 接続(u"schema"_qs);
        接続先 先;
        先.ファイル = t.path() + u"/x.db"_qs;
        ASSERT_TRUE(接続.開く(先));
        適用できる(接続, QString::fromUtf16(種類));
    }
}

TEST(スキーマ, 業務と人事連携のデータベースがPostgreSQLに作れる) {
    if (!試験用PostgreSQL::利用可能()) GTEST_SKIP() << "KONPEKI_TEST_PG is not set";
    for (const char16_t* 種類 : {u"general", u"hrlink"}) {
        試験用PostgreSQL pg;
        データ接続 接続(u"schema"_qs);
        ASSERT_TRUE(接続.開く(PostgreSQL接続先(pg.接続情報())));
        適用できる(接続, QString::fromUtf16(種類));
    }
}

TEST(スキーマ, 見本の会社は決めた通りの中身を持つ) {
    試験用ツリー 木;
    ASSERT_TRUE(木.作成済み);
    const auto 費目 = 木.業務DB行(u"SELECT 区分 FROM K費目区分 ORDER BY 区分"_qs);
    ASSERT_EQ(費目.size(), 10);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(費目[i][0].toInt(), i + 1);
    EXPECT_EQ(木.業務DB行(u"SELECT COUNT(*) FROM K内税外税区分"_qs)[0][0].toInt(), 3);
    const auto 税 = 木.業務DB行(u"SELECT 施行日, 消費税率 FROM G消費税 ORDER BY 施行日"_qs);
    ASSERT_EQ(税.size(), 4);
    EXPECT_EQ(税[0][0].toString(), u"19890401"_qs);
    EXPECT_EQ(税[3][0].toString(), u"20191001"_qs);
    EXPECT_EQ(税[3][1].toDouble(), 10.0);
    const auto 番号 = 木.業務DB行(u"SELECT 番号ID FROM A番号情報 ORDER BY 番号ID"_qs);
    EXPECT_EQ(番号.size(), 3);
    EXPECT_EQ(木.業務DB行(u"SELECT COUNT(*) FROM M事業所"_qs)[0][0].toInt(), 3);
    EXPECT_GE(木.業務DB行(u"SELECT COUNT(*) FROM M担当者"_qs)[0][0].toInt(), 10);
    EXPECT_EQ(木.業務DB行(u"SELECT COUNT(*) FROM M担当者 WHERE 在籍区分 <> '0'"_qs)[0][0].toInt(),
              1);
    EXPECT_EQ(
        木.環境DB行(
              u"SELECT COUNT(*) FROM 翠嶺 WHERE プログラムID IN ('紺碧帳', '紺碧帳書')"_qs)[0][0]
            .toInt(),
        2);
    for (const char16_t* 名 : {u"prgbin", u"conf", u"report", u"manual", u"data", u"users"}) {
        EXPECT_TRUE(QDir(木.根() + u"/"_qs + QString::fromUtf16(名)).exists());
    }
}

TEST(スキーマ, PostgreSQLの木はデータベース定義にPと接続値を書く) {
    if (!試験用PostgreSQL::利用可能()) GTEST_SKIP() << "KONPEKI_TEST_PG is not set";
    試験用PostgreSQL pg;
    試験用ツリー 木(pg.接続情報());
    ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
    const auto 定義 = 木.環境DB行(
        u"SELECT db, サーバー名, データベース名, ユーザーID FROM データベース定義 WHERE 情報種類 = 'GNR'"_qs);
    ASSERT_EQ(定義.size(), 1);
    const 接続先 先 = PostgreSQL接続先(pg.接続情報());
    EXPECT_EQ(定義[0][0].toString(), u"P"_qs);
    EXPECT_EQ(定義[0][1].toString(), 先.ホスト + u":"_qs + QString::number(先.ポート));
    EXPECT_EQ(定義[0][2].toString(), pg.データベース名());
    EXPECT_EQ(定義[0][3].toString(), 先.ユーザー);
    EXPECT_FALSE(QFile::exists(木.業務DB()));
}

}  // namespace
