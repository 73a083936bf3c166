#pragma once

#include <QString>
#include <QStringList>

#include "ledger/仕訳書式.h"
#include "ledger/出力指定.h"
#include "slip/出金セッション.h"

// The journal export program: the command line read, the tree and the general database opened
// by the slip program's start routines (with run-history rows under its own name), the slips of
// the period read and written whole to a temporary name, then renamed. Refusals are told in
// Japanese through the platform and leave the file untouched.
class 紺碧帳出力 {
  public:
    紺碧帳出力(プラットフォーム& 基盤, const QString& 自身のフォルダ);

    // 0 when the file was written, 1 on a refusal.
    int 実行(const QStringList& 引数);
    int 実行(const 出力指定& 指定);

    出金セッション s;
    出力集計 集計;
    QString 結果文言;  // slips, lines and totals of the last export written

  private:
    int 拒否(const QString& 文言, bool 開始済み);
    bool 書き出す(const QString& パス, const QByteArray& 内容);
};
