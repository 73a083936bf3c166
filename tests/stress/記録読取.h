#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

// What each slip must hold now, by the marker its operator typed.
struct 期待伝票 {
    QList<qint64> 金額;
    bool 削除済み = false;
};

// The operators' journals, merged.
struct 集計 {
    int 新規 = 0, 訂正 = 0, 削除 = 0, 入力失敗 = 0;
    qint64 新規行 = 0, 訂正行 = 0, 削除行 = 0;
    QHash<QString, 期待伝票> 伝票;
    QList<double> 所要ミリ秒;  // each store's and deletion's own time, in journal order
};

// Reads the journals an operator writes (see ストレス.h); what an operator could not do and
// lines that cannot be read go to 違反.
集計 記録を読む(const QStringList& ファイル, QStringList& 違反);
