#pragma once

#include <QString>
#include <QStringList>

class データ接続;

// Runs the statements of one SQL file, separated by ";", stopping at the first failure.
bool SQLファイル実行(データ接続& 接続, const QString& ファイル, QString& エラー);
// Runs every .sql file of a folder in name order.
bool SQLフォルダ実行(データ接続& 接続, const QString& フォルダ, QString& エラー);

// Where the general database of a new tree lives: a SQLite file, or a PostgreSQL database
// given as a libpq connection string ("host=... port=... dbname=... user=... password=...").
struct ツリー作成指定 {
    QString 根;
    QString スキーマフォルダ;
    QString PostgreSQL接続情報;  // empty: SQLite
    QStringList 複写プログラム;  // files copied into prgbin
    // Not empty: the HR system 白樺 gets a tree of its own there, linked from this one, with
    // its general database in a SQLite file or in the PostgreSQL database given.
    QString 人事根;
    QString 人事PostgreSQL接続情報;
};

// Builds a complete folder tree with its databases and the sample company.
bool ツリー作成(const ツリー作成指定& 指定, QString& エラー);

struct 接続先;
// Reads a libpq-style "key=value" connection string.
接続先 PostgreSQL接続先(const QString& 接続情報);
