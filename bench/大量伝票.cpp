#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>
#include <QTextStream>

#include "common/試験用ツリー.h"
#include "dataenv/スキーマ適用.h"
#include "計測.h"

namespace {

// The name changes with the generator, so that older data is made again.
const QString 版 = u"slips3"_qs;

QString 生成器(const char16_t* 名前) {
    return QStringLiteral(KONPEKI_SOURCE_DIR) + u"/scripts/"_qs + QString::fromUtf16(名前);
}

// What the data set is made of: the generator and the tables with their indexes, so that a
// changed script or a new index makes it again.
QByteArray 指紋(const QString& 生成スクリプト) {
    QCryptographicHash h(QCryptographicHash::Sha1);
    const QDir 表(QStringLiteral(KONPEKI_SCHEMA_DIR) + u"/general"_qs);
    QStringList 材料 = {生成スクリプト,
                        QStringLiteral(KONPEKI_SCHEMA_DIR) + u"/seed/general.sql"_qs};
    for (const QString& 名 : 表.entryList({u"*.sql"_qs}, QDir::Files, QDir::Name)) {
        材料 << 表.filePath(名);
    }
    for (const QString& 名 : 材料) {
        QFile f(名);
        if (f.open(QIODevice::ReadOnly)) h.addData(f.readAll());
    }
    return h.result().toHex().left(12);
}

QByteArray 印の中身(const QString& パス) {
    QFile f(パス);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool 印を置く(const QString& パス, const QByteArray& 中身) {
    QFile f(パス);
    return f.open(QIODevice::WriteOnly) && f.write(中身) == 中身.size();
}

bool 木を作る(const QString& 根, const QString& PostgreSQL接続情報) {
    QDir(根).removeRecursively();
    ツリー作成指定 指定;
    指定.根 = 根;
    指定.スキーマフォルダ = QStringLiteral(KONPEKI_SCHEMA_DIR);
    指定.PostgreSQL接続情報 = PostgreSQL接続情報;
    QString エラー;
    if (ツリー作成(指定, エラー)) return true;
    QTextStream(stderr) << エラー << "\n";
    return false;
}

bool 管理文(QSqlQuery& q, const QString& 文) {
    if (q.exec(文)) return true;
    QTextStream(stderr) << 文 << ": " << q.lastError().text() << "\n";
    return false;
}

}  // namespace

QString 大量伝票の木(int 件数) {
    const QString 根 =
        QStringLiteral(KONPEKI_BENCH_DATA) + u"/"_qs + 版 + u"-"_qs + QString::number(件数);
    const QString スクリプト = 生成器(u"make-slip-data");
    const QByteArray 印 = 指紋(スクリプト);
    if (印の中身(根 + u"/data/ready"_qs) == 印) return 根;
    if (!木を作る(根, {})) return {};
    std::printf("generating %d slips of 5 lines ...\n", 件数);
    std::fflush(stdout);
    const int rc =
        QProcess::execute(スクリプト, {根 + u"/data/gnrdb.db"_qs, QString::number(件数)});
    if (rc != 0 || !印を置く(根 + u"/data/ready"_qs, 印)) return {};
    return 根;
}

QString 大量伝票のデータベース名(int 件数) {
    return u"konpeki_"_qs + 版 + u"_"_qs + QString::number(件数);
}

QString 大量伝票のPostgreSQL木(int 件数) {
    if (!試験用PostgreSQL::利用可能()) return {};
    const QString 名 = 大量伝票のデータベース名(件数);
    const QString 接続情報 = qEnvironmentVariable("KONPEKI_TEST_PG") + u" dbname="_qs + 名;
    const QString 根 = QStringLiteral(KONPEKI_BENCH_DATA) + u"/"_qs + 版 + u"-"_qs +
                       QString::number(件数) + u"-pg"_qs;
    const QString スクリプト = 生成器(u"make-slip-data-pg");
    const QByteArray 印 = 指紋(スクリプト);
    // The database is ready when its comment says so, written after the load's last step; the
    // tree's marker names the same server, for a tree that points elsewhere is of no use.
    const QByteArray 木の印 = 接続情報.toUtf8() + "\n" + 印;
    データ接続 管理(u"bench-pg-admin"_qs);
    if (!管理.開く(試験用PostgreSQL::管理接続先())) {
        QTextStream(stderr) << 管理.最終エラー().説明 << "\n";
        return {};
    }
    QSqlQuery q(管理.生接続());
    const QString 題 = u"ready "_qs + QString::fromLatin1(印);
    const bool 既存 =
        q.exec(
            u"SELECT shobj_description(oid, 'pg_database') FROM pg_database WHERE datname = '"_qs +
            名 + u"'"_qs) &&
        q.next();
    if (既存 && q.value(0).toString() == 題 && 印の中身(根 + u"/data/ready"_qs) == 木の印)
        return 根;
    q.finish();
    std::printf("loading %d slips of 5 lines into PostgreSQL database %s ...\n", 件数,
                qPrintable(名));
    std::fflush(stdout);
    QElapsedTimer t;
    t.start();
    // Collation C, so that text sorts as it does in SQLite.
    if ((既存 && !管理文(q, u"DROP DATABASE "_qs + 名 + u" WITH (FORCE)"_qs)) ||
        !管理文(q, u"CREATE DATABASE "_qs + 名 +
                       u" TEMPLATE template0 ENCODING 'UTF8' LC_COLLATE 'C' LC_CTYPE 'C'"_qs) ||
        !木を作る(根, 接続情報) ||
        QProcess::execute(スクリプト, {接続情報, QString::number(件数)}) != 0 ||
        !管理文(q, u"COMMENT ON DATABASE "_qs + 名 + u" IS '"_qs + 題 + u"'"_qs) ||
        !印を置く(根 + u"/data/ready"_qs, 木の印)) {
        return {};
    }
    std::printf("loaded in %.0f s\n", t.nsecsElapsed() / 1e9);
    return 根;
}
