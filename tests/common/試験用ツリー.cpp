#include "試験用ツリー.h"

#include <QFile>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>

#include "dataenv/スキーマ適用.h"

接続先 試験用PostgreSQL::管理接続先() {
    接続先 先 = PostgreSQL接続先(qEnvironmentVariable("KONPEKI_TEST_PG"));
    if (先.データベース名.isEmpty()) 先.データベース名 = u"postgres"_qs;
    return 先;
}

bool 試験用PostgreSQL::利用可能() {
    return !qEnvironmentVariable("KONPEKI_TEST_PG").isEmpty();
}

試験用PostgreSQL::試験用PostgreSQL() {
    名前 = u"t_"_qs + QUuid::createUuid().toString(QUuid::Id128).left(20);
    データ接続 管理(u"pg-admin"_qs);
    if (管理.開く(管理接続先())) 管理.実行(u"CREATE DATABASE "_qs + 名前);
    情報 = qEnvironmentVariable("KONPEKI_TEST_PG") + u" dbname="_qs + 名前;
}

試験用PostgreSQL::~試験用PostgreSQL() {
    データ接続 管理(u"pg-admin"_qs);
    if (管理.開く(管理接続先())) {
        管理.実行(u"DROP DATABASE IF EXISTS "_qs + 名前 + u" WITH (FORCE)"_qs);
    }
}

試験用ツリー::試験用ツリー(const QString& PostgreSQL接続情報)
    : 試験用ツリー(PostgreSQL接続情報, false) {}

試験用ツリー::試験用ツリー(const QString& PostgreSQL接続情報, bool 人事あり, const QString& 人事PG)
    : PG情報(PostgreSQL接続情報), 人事PG情報(人事PG) {
    ツリー作成指定 指定;
    指定.根 = 一時.path();
    指定.スキーマフォルダ = QStringLiteral(KONPEKI_SCHEMA_DIR);
    指定.PostgreSQL接続情報 = PostgreSQL接続情報;
    if (人事あり) {
        指定.人事根 = 人事根();
        指定.人事PostgreSQL接続情報 = 人事PG;
    }
    作成済み = ツリー作成(指定, エラー);
}

namespace {

// One connection per database, opened at its first use.
データ接続& 開いて使う(std::unique_ptr<データ接続>& 接続, const QString& 用途,
                       const QString& ファイル, const QString& PG) {
    if (!接続) {
        接続 = std::make_unique<データ接続>(用途);
        接続先 先;
        if (PG.isEmpty()) {
            先.ファイル = ファイル;
        } else {
            先 = PostgreSQL接続先(PG);
        }
        接続->開く(先);
    }
    return *接続;
}

}  // namespace

データ接続& 試験用ツリー::環境() {
    return 開いて使う(環境接続, u"test-conf"_qs, 環境DB(), {});
}

データ接続& 試験用ツリー::業務() {
    return 開いて使う(業務接続, u"test-gnr"_qs, 業務DB(), PG情報);
}

データ接続& 試験用ツリー::人事環境() {
    return 開いて使う(人事環境接続, u"test-hr-conf"_qs, 人事根() + u"/conf/usrcnfg.sqlite"_qs, {});
}

データ接続& 試験用ツリー::人事() {
    return 開いて使う(人事接続, u"test-hr-gnr"_qs, 人事根() + u"/data/gnrdb.sqlite"_qs, 人事PG情報);
}

bool 試験用ツリー::人事環境DB実行(const QString& 文) {
    return 人事環境().実行(文);
}
bool 試験用ツリー::人事DB実行(const QString& 文) {
    return 人事().実行(文);
}
QList<QVariantList> 試験用ツリー::人事環境DB行(const QString& 文) {
    return 全行(人事環境(), 文);
}
QList<QVariantList> 試験用ツリー::人事DB行(const QString& 文) {
    return 全行(人事(), 文);
}

bool 試験用ツリー::環境DB実行(const QString& 文) {
    return 環境().実行(文);
}
bool 試験用ツリー::業務DB実行(const QString& 文) {
    return 業務().実行(文);
}
bool 試験用ツリー::業務DB素で実行(const QString& 文) {
    QSqlQuery q(業務().生接続());
    return q.exec(文);
}
QList<QVariantList> 試験用ツリー::環境DB行(const QString& 文) {
    return 全行(環境(), 文);
}
QList<QVariantList> 試験用ツリー::業務DB行(const QString& 文) {
    return 全行(業務(), 文);
}

QList<QVariantList> 全行(データ接続& 接続, const QString& 文) {
    QList<QVariantList> 行;
    QSqlQuery q(接続.生接続());
    if (!q.exec(SQL方言変換(文, 接続.方言()))) return 行;
    while (q.next()) {
        QVariantList 値;
        for (int i = 0; i < q.record().count(); ++i) 値.append(q.value(i));
        行.append(値);
    }
    return 行;
}

bool 試験用ツリー::プログラムを置く(const QString& 名前) {
    QFile f(プログラムフォルダ() + u"/"_qs + 名前);
    if (!f.open(QIODevice::WriteOnly)) return false;
    f.write("#!/bin/sh\nexit 0\n");
    f.close();
    return f.setPermissions(f.permissions() | QFileDevice::ExeOwner | QFileDevice::ExeUser);
}
