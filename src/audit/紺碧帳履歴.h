#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>

#include "slip/出金セッション.h"

// The history program for scripts: the tree opened as the slip program opens it (with run
// history rows under its own name), the history of one slip printed as text, or with --search
// the slips a search finds, as CSV.
class 紺碧帳履歴 {
  public:
    紺碧帳履歴(プラットフォーム& 基盤, const QString& 自身のフォルダ);

    static const QString 使い方;
    // 0 printed; 1 no such slip or no database; 2 wrong arguments.
    int 実行(const QStringList& 引数, QTextStream& 出力, QTextStream& エラー);

    出金セッション s;
};
