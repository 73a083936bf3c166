#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTemporaryDir>
#include <algorithm>
#include <vector>

inline double ミリ秒(const QElapsedTimer& t) {
    return t.nsecsElapsed() / 1e6;
}

// Prints one figure as "name: median (min .. max) unit" over the given samples; the median.
double 結果表示(const char* 名前, std::vector<double> 標本, const char* 単位);
double 中央値(std::vector<double> 標本);

// A sample tree in a temporary folder with the built programs in prgbin; with a connection
// string, its general database is that PostgreSQL database. With 人事あり, the HR system's tree
// stands in its folder 白樺, its general database on the PostgreSQL database of 人事PG or in a
// SQLite file.
struct 計測用ツリー {
    QTemporaryDir 一時;
    bool 作成済み = false;
    explicit 計測用ツリー(const QString& PostgreSQL接続情報 = {}, bool 人事あり = false,
                          const QString& 人事PG = {});
    QString 根() const { return 一時.path(); }
};

// A sample tree with N generated slips and masters in proportion, kept in the build folder
// between runs (made again when the generator or the tables change); empty when it could not
// be made.
QString 大量伝票の木(int 件数);
// The same rows in a PostgreSQL database of the KONPEKI_TEST_PG server, named by
// 大量伝票のデータベース名 and kept there, with a tree in the build folder that points at it;
// empty without a server or when it could not be made.
QString 大量伝票のPostgreSQL木(int 件数);
QString 大量伝票のデータベース名(int 件数);
// Prints whether the two data sets hold the same rows; true when they do.
bool 大量伝票照合(int 件数, const QString& SQLite根, const QString& PostgreSQL根);

class 出金セッション;
// Opens the configuration and general databases of the tree at 根 and reads the company, as the
// program does at its start; false when one of them fails.
bool 会社を開く(出金セッション& s, const QString& 根);

void 起動時間計測();
void 一覧計測();
void データ層計測();
void 伝票計測();
void 入力画面計測();
void 登録計測();
void 削除頁送り計測();
void 帳票計測();
void 出張申請計測();
void 出力計測();
void 常駐メモリ計測();
// The check of the two data sets alone.
void 大量伝票照合計測();
