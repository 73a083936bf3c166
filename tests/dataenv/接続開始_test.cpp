#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "common/試験用ツリー.h"
#include "dataenv/スキーマ適用.h"
#include "dataenv/データ環境.h"
#include "dataenv/ファイル操作.h"
#include "text/台本プラットフォーム.h"

namespace {

// Qt's warnings while a test runs, for the ones that tell of a connection misused.
QStringList 警告;
void 警告を集める(QtMsgType, const QMessageLogContext&, const QString& 文) {
    警告.append(文);
}

class 接続開始 : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString(); }

    QList<QVariantList> 履歴() {
        return 木.環境DB行(
            u"SELECT proccounter, 摘要 FROM プログラム稼動履歴 ORDER BY proccounter"_qs);
    }

    試験用ツリー 木;
    台本プラットフォーム 基盤;
    データ環境 環境{基盤};
};

TEST_F(接続開始, 見本の木では両方のデータベースが開く) {
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().ルートフォルダ, 木.根());
    EXPECT_EQ(環境.接続().環境().プログラムフォルダ, 木.根() + u"/prgbin"_qs);
    EXPECT_EQ(環境.接続().環境().共通環境フォルダ, 木.根() + u"/conf"_qs);
    EXPECT_EQ(環境.接続().環境().環境フォルダ, 木.根() + u"/conf"_qs);
    EXPECT_EQ(環境.接続().環境().帳票フォルダ, 木.根() + u"/report"_qs);
    EXPECT_EQ(環境.接続().環境().マニュアルフォルダ, 木.根() + u"/manual"_qs);
    EXPECT_EQ(環境.接続().環境().環境DB種別, 1);
    EXPECT_EQ(環境.接続().環境().業務DB種別, 1);
    EXPECT_EQ(環境.接続().環境().db, u"A"_qs);
    EXPECT_EQ(環境.接続().環境().データソース名, 木.業務DB());
    EXPECT_EQ(環境.接続().環境().運用事業所コード, u"000"_qs);
    EXPECT_EQ(環境.接続().作業事業所コード(), u"000"_qs);
    EXPECT_EQ(環境.接続().環境().ユーザID, 端末利用者名取得());
    EXPECT_FALSE(環境.接続().環境().ユーザID.isEmpty());
    EXPECT_TRUE(環境.接続().DB_OPEN());
    EXPECT_TRUE(環境.接続().業務DB接続中());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(接続開始, prgsrcの下の副フォルダからも根が見つかりプログラムフォルダはprgbinになる) {
    QDir().mkpath(木.根() + u"/prgsrc/sub"_qs);
    環境.接続().自身のフォルダ設定(木.根() + u"/prgsrc/sub"_qs);
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().ルートフォルダ, 木.根());
    EXPECT_EQ(環境.接続().環境().プログラムフォルダ, 木.根() + u"/prgbin"_qs);
}

TEST_F(接続開始, 大文字のPRGBINも見つかりプログラムフォルダは小文字で綴られる) {
    QDir().mkpath(木.根() + u"/PRGBIN"_qs);
    環境.接続().自身のフォルダ設定(木.根() + u"/PRGBIN"_qs);
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().プログラムフォルダ, 木.根() + u"/prgbin"_qs);
}

TEST_F(接続開始, 上の方のprgbinで切られる) {
    // The first occurrence counts: a program in <root>/prgbin-old/tree/prgbin belongs to <root>,
    // not to the tree beside it.
    const QString 内側 = 木.根() + u"/prgbin-old/tree"_qs;
    QDir().mkpath(内側 + u"/prgbin"_qs);
    QDir().mkpath(内側 + u"/conf"_qs);
    環境.接続().自身のフォルダ設定(内側 + u"/prgbin"_qs);
    EXPECT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().ルートフォルダ, 木.根());
    EXPECT_EQ(環境.接続().環境().共通環境フォルダ, 木.根() + u"/conf"_qs);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(接続開始, prgbinもprgsrcもない場所では黙って偽) {
    QDir().mkpath(木.根() + u"/bin"_qs);
    環境.接続().自身のフォルダ設定(木.根() + u"/bin"_qs);
    EXPECT_FALSE(環境.接続().SYB_OPEN());
    EXPECT_FALSE(環境.接続().環境DB接続中());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(接続開始, 環境DBがなければ黙って偽) {
    QFile::remove(木.環境DB());
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    EXPECT_FALSE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().環境DB種別, 0);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(接続開始, 二種類の環境DBがあれば第一の種類が勝つ) {
    QFile::copy(木.環境DB(), 木.根() + u"/conf/usrcnfg.sqlite"_qs);
    ASSERT_TRUE(木.環境DB実行(u"UPDATE データベース定義 SET dbmw = 'first'"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().環境DB種別, 1);
    EXPECT_EQ(環境.接続().環境().dbmw, u"first"_qs);
}

TEST_F(接続開始, 第二の種類だけならそれを使う) {
    QFile::rename(木.環境DB(), 木.根() + u"/conf/usrcnfg.sqlite"_qs);
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().環境DB種別, 2);
}

TEST_F(接続開始, 壊れた環境DBはSYB_OPEN_ERRORの箱を出して偽) {
    QFile f(木.環境DB());
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(QByteArray(4096, 'x'));
    f.close();
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    警告.clear();
    const QtMessageHandler 元 = qInstallMessageHandler(警告を集める);
    EXPECT_FALSE(環境.接続().SYB_OPEN());
    qInstallMessageHandler(元);
    // The failed connection was removed with nothing left holding it.
    EXPECT_TRUE(警告.filter(u"still in use"_qs).isEmpty()) << 警告.join(u'\n').toStdString();
    ASSERT_EQ(基盤.表示済み.size(), 1);
    EXPECT_TRUE(基盤.表示済み[0].本文.startsWith(u"SYB_OPEN ERROR"_qs));
    EXPECT_TRUE(基盤.表示済み[0].本文.endsWith(u"\nsysopen error"_qs));
}

TEST_F(接続開始, dbのNullは読み損ないで箱を出すが接続は開いたまま) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE データベース定義 SET db = NULL"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    EXPECT_TRUE(環境.接続().SYB_OPEN());
    ASSERT_EQ(基盤.表示済み.size(), 1);
    EXPECT_EQ(基盤.表示済み[0].本文,
              u"SYB_OPEN ERROR94 Null の使い方が不正です。\nsysopen error"_qs);
    EXPECT_EQ(環境.接続().環境().db, QString());
}

TEST_F(接続開始, 他の列のNullは空のまま) {
    ASSERT_TRUE(木.環境DB実行(
        u"UPDATE データベース定義 SET プロバイダ名 = NULL, サーバー名 = NULL, ユーザーID = '  u1  '"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    EXPECT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(環境.接続().環境().プロバイダ名, QString());
    EXPECT_EQ(環境.接続().環境().サーバー名, QString());
    EXPECT_EQ(環境.接続().環境().ユーザーID, u"u1"_qs);  // trimmed
}

TEST_F(接続開始, GNR行がなければ方言は空でDB_OPENは何も開かずに真) {
    ASSERT_TRUE(木.環境DB実行(u"DELETE FROM データベース定義"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().db, QString());
    EXPECT_TRUE(環境.接続().DB_OPEN());
    EXPECT_TRUE(環境.接続().業務DB接続中());
    記録集合 rs;
    EXPECT_FALSE(環境.接続().業務DB検索(rs, u"SELECT * FROM Mユーザ"_qs));
    rs.閉じる();
    環境.接続().接続終了();  // a close on a connection never made is harmless
}

TEST_F(接続開始, 知らない方言も何も開かずに真) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE データベース定義 SET db = 'X'"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_TRUE(環境.接続().DB_OPEN());
    EXPECT_FALSE(環境.接続().業務DB().開いている());
}

TEST_F(接続開始, 行001がなければ既定値で事業所は空のまま) {
    ASSERT_TRUE(木.環境DB実行(u"DELETE FROM 動作環境定義"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().運用事業所コード, QString());
    EXPECT_EQ(環境.接続().環境().インストール区分, 0);
    EXPECT_EQ(環境.接続().環境().起動担当者コード, QString());
}

TEST_F(接続開始, 事業所のNullは000になり数値は文字でも読める) {
    ASSERT_TRUE(木.環境DB実行(
        u"UPDATE 動作環境定義 SET 運用事業所コード = NULL, バックアップ方法 = '2', バックアップ日付 = '20240101123'"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().運用事業所コード, u"000"_qs);
    EXPECT_EQ(環境.接続().環境().バックアップ方法, 2);
    EXPECT_EQ(環境.接続().環境().バックアップ日付, u"20240101"_qs);
}

TEST_F(接続開始, 利用者別の区分では初回に利用者のフォルダを作り写しを使う) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE 動作環境定義 SET インストール区分 = 1"_qs));
    for (const char16_t* 名 : {u"/report/repdb.db", u"/report/repfrmdb.db"}) {
        QFile f(木.根() + QString::fromUtf16(名));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("report");
    }
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    const QString 利用者 = 木.根() + u"/users/"_qs + 端末利用者名取得();
    EXPECT_EQ(環境.接続().環境().環境フォルダ, 利用者 + u"/conf"_qs);
    EXPECT_EQ(環境.接続().環境().帳票フォルダ, 利用者 + u"/report"_qs);
    EXPECT_TRUE(QFile::exists(利用者 + u"/conf/usrcnfg.db"_qs));
    EXPECT_TRUE(QFile::exists(利用者 + u"/report/repdb.db"_qs));
    EXPECT_TRUE(QFile::exists(利用者 + u"/report/repfrmdb.db"_qs));
    EXPECT_EQ(基盤.お待ち履歴, (QList<bool>{true, false}));
    // The run now works on the private copy: a change there does not reach the shared one.
    ASSERT_TRUE(環境.接続().環境DB実行(u"UPDATE 動作環境定義 SET 運用事業所コード = '001'"_qs));
    EXPECT_EQ(木.環境DB行(u"SELECT 運用事業所コード FROM 動作環境定義"_qs)[0][0].toString(),
              u"000"_qs);
}

TEST_F(接続開始, 利用者の写しが既にあれば写し直さない) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE 動作環境定義 SET インストール区分 = 1"_qs));
    const QString 利用者 = 木.根() + u"/users/"_qs + 端末利用者名取得();
    QDir().mkpath(利用者 + u"/conf"_qs);
    QFile::copy(木.環境DB(), 利用者 + u"/conf/usrcnfg.db"_qs);
    {
        データ接続 写し(u"copy"_qs);  // the private copy says office 002
        接続先 先;
        先.ファイル = 利用者 + u"/conf/usrcnfg.db"_qs;
        ASSERT_TRUE(写し.開く(先));
        ASSERT_TRUE(写し.実行(u"UPDATE 動作環境定義 SET 運用事業所コード = '002'"_qs));
    }
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().運用事業所コード, u"002"_qs);
    EXPECT_TRUE(基盤.お待ち履歴.isEmpty());  // no report copy without a shared report file
}

TEST_F(接続開始, 利用者のフォルダが作れなければ履歴に残し箱を出して偽) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE 動作環境定義 SET インストール区分 = 1"_qs));
    QDir(木.根() + u"/users"_qs).removeRecursively();
    QFile 邪魔(木.根() + u"/users"_qs);  // a file where the users folder should be
    ASSERT_TRUE(邪魔.open(QIODevice::WriteOnly));
    邪魔.close();
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    EXPECT_FALSE(環境.接続().SYB_OPEN());
    const QStringList 文言 = 基盤.表示文言();
    ASSERT_EQ(文言.size(), 2);
    EXPECT_TRUE(文言[0].startsWith(u"DIREXISTCHK ERROR"_qs));
    EXPECT_TRUE(文言[1].startsWith(u"SYB_OPEN ERROR"_qs));
}

TEST_F(接続開始, DB_CLOSEOPENが開けなければ黙って偽) {
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    QFile::remove(木.環境DB());
    EXPECT_FALSE(環境.接続().DB_CLOSEOPEN());
    EXPECT_FALSE(環境.接続().環境DB接続中());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(接続開始, 区分が0でも1でもなければフォルダは空で二度目が開かず箱が出る) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE 動作環境定義 SET インストール区分 = 2"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    EXPECT_FALSE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().環境フォルダ, QString());
    ASSERT_EQ(基盤.表示済み.size(), 1);
    EXPECT_TRUE(基盤.表示済み[0].本文.startsWith(u"SYB_OPEN ERROR"_qs));
}

TEST_F(接続開始, 業務DBのファイルがなければDB_OPENは偽でエラー行を書く) {
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    QFile::remove(木.業務DB());
    EXPECT_FALSE(環境.接続().DB_OPEN());
    EXPECT_FALSE(環境.接続().業務DB接続中());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    const auto 行 = 木.環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_TRUE(行[0][0].toString().startsWith(u"エラー DB_OPEN ERROR3044 "_qs));
}

TEST_F(接続開始, SとOはODBCの運転手がなければ開かずエラー行を書く) {
    for (const char16_t* 方言 : {u"S", u"O"}) {
        ASSERT_TRUE(
            木.環境DB実行(u"UPDATE データベース定義 SET db = '"_qs + QString::fromUtf16(方言) +
                          u"', プロバイダ名 = 'NoSuchDriver', データソース名 = 'nodsn'"_qs));
        データ環境 e(基盤);
        e.接続().自身のフォルダ設定(木.プログラムフォルダ());
        ASSERT_TRUE(e.接続().SYB_OPEN());
        EXPECT_FALSE(e.接続().DB_OPEN());
        EXPECT_FALSE(e.接続().業務DB接続中());
        e.接続().接続終了();
    }
    const auto 行 = 木.環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴"_qs);
    ASSERT_EQ(行.size(), 2);
    for (const auto& r : 行) EXPECT_TRUE(r[0].toString().startsWith(u"エラー DB_OPEN ERROR"_qs));
}

TEST_F(接続開始, 止まっているPostgreSQLにはDB_OPENが偽でエラー行を書く) {
    ASSERT_TRUE(木.環境DB実行(
        u"UPDATE データベース定義 SET db = 'P', サーバー名 = '127.0.0.1:1', データベース名 = 'x', ユーザーID = 'u', パスワード = 'p'"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_FALSE(環境.接続().DB_OPEN());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    const auto 行 = 木.環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_TRUE(行[0][0].toString().startsWith(u"エラー DB_OPEN ERROR"_qs));
}

TEST_F(接続開始, PostgreSQLが合言葉を拒めばDB_OPENは偽) {
    const QString tcp = qEnvironmentVariable("KONPEKI_TEST_PG_TCP");
    if (tcp.isEmpty()) GTEST_SKIP() << "KONPEKI_TEST_PG_TCP is not set";
    const 接続先 先 = PostgreSQL接続先(tcp);
    ASSERT_TRUE(木.環境DB実行(u"UPDATE データベース定義 SET db = 'P', サーバー名 = '"_qs +
                              先.ホスト + u":"_qs + QString::number(先.ポート) +
                              u"', データベース名 = 'postgres'"_qs + u", ユーザーID = '"_qs +
                              先.ユーザー + u"', パスワード = 'wrong'"_qs));
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_FALSE(環境.接続().DB_OPEN());
    const auto 行 = 木.環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_TRUE(行[0][0].toString().startsWith(u"エラー DB_OPEN ERROR"_qs));
    // and with the right password it opens
    ASSERT_TRUE(
        木.環境DB実行(u"UPDATE データベース定義 SET パスワード = '"_qs + 先.パスワード + u"'"_qs));
    データ環境 e(基盤);
    e.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(e.接続().SYB_OPEN());
    EXPECT_TRUE(e.接続().DB_OPEN());
}

}  // namespace
