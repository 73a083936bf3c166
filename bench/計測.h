#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTemporaryDir>
#include <algorithm>
#include <vector>

inline double ミリ秒(const QElapsedTimer& t) {
    return t.nsecsElapsed() / 1e6;
}

// Prints one figure as "name: median (min .. max) unit" over the given samples.
void 結果表示(const char* 名前, std::vector<double> 標本, const char* 単位);

// A sample tree in a temporary folder with the built programs in prgbin; with a connection
// string, its general database is that PostgreSQL database.
struct 計測用ツリー {
    QTemporaryDir 一時;
    bool 作成済み = false;
    explicit 計測用ツリー(const QString& PostgreSQL接続情報 = {});
    QString 根() const { return 一時.path(); }
};

// A sample tree with N generated slips and masters in proportion, kept in the build folder
// between runs; empty when it could not be made.
QString 大量伝票の木(int 件数);

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
