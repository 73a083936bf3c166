#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>
#include <memory>

#include "dataenv/データ接続.h"

// A throwaway database on the PostgreSQL server that the test script started
// (KONPEKI_TEST_PG holds its libpq connection string). Dropped at the end of the case.
class 試験用PostgreSQL {
  public:
    static bool 利用可能();
    // The server's own database "postgres", where databases are made and dropped.
    static 接続先 管理接続先();
    試験用PostgreSQL();
    ~試験用PostgreSQL();
    QString 接続情報() const { return 情報; }
    QString データベース名() const { return 名前; }

  private:
    QString 情報;
    QString 名前;
};

// A complete folder tree of the sample company in a temporary folder, with its general
// database in SQLite or, when a connection string is given, in PostgreSQL.
class 試験用ツリー {
  public:
    explicit 試験用ツリー(const QString& PostgreSQL接続情報 = {});
    // With the HR system's tree at 人事根(), linked from the company; its general database on
    // the PostgreSQL database given, or in a SQLite file.
    試験用ツリー(const QString& PostgreSQL接続情報, bool 人事あり, const QString& 人事PG = {});
    QString 根() const { return 一時.path(); }
    QString プログラムフォルダ() const { return 根() + u"/prgbin"_qs; }
    QString 環境DB() const { return 根() + u"/conf/usrcnfg.db"_qs; }
    QString 業務DB() const { return 根() + u"/data/gnrdb.db"_qs; }
    QString 人事根() const { return 根() + u"/白樺"_qs; }
    bool 作成済み = false;
    QString エラー;

    // An executable of that name in prgbin that does nothing, for a program the scripted
    // platform only records the start of.
    bool プログラムを置く(const QString& 名前);

    // Runs one statement on the configuration or general database behind the program's back.
    bool 環境DB実行(const QString& 文);
    bool 業務DB実行(const QString& 文);
    // A statement in the engine's own words (a trigger, say), passed by no translation.
    bool 業務DB素で実行(const QString& 文);
    // All rows of a query, each row as its column values in order.
    QList<QVariantList> 環境DB行(const QString& 文);
    QList<QVariantList> 業務DB行(const QString& 文);
    // The run history in its order: counter and text.
    QList<QVariantList> 稼動履歴() {
        return 環境DB行(
            u"SELECT proccounter, 摘要 FROM プログラム稼動履歴 ORDER BY proccounter"_qs);
    }
    // The same on the HR system's configuration and general databases.
    bool 人事環境DB実行(const QString& 文);
    bool 人事DB実行(const QString& 文);
    QList<QVariantList> 人事環境DB行(const QString& 文);
    QList<QVariantList> 人事DB行(const QString& 文);

  private:
    データ接続& 環境();
    データ接続& 業務();
    データ接続& 人事環境();
    データ接続& 人事();

    QTemporaryDir 一時;
    QString PG情報, 人事PG情報;
    std::unique_ptr<データ接続> 環境接続, 業務接続, 人事環境接続, 人事接続;
};

QList<QVariantList> 全行(データ接続& 接続, const QString& 文);
