#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "ledger/仕訳書式.h"
#include "ledger/出力指定.h"
#include "slip/出金セッション.h"
#include "slip/起動処理.h"

// The journal export program: the tree and the general database opened by the slip program's
// start routines (with run-history rows under its own name), the slips of a period read and
// written whole to a temporary name, then renamed. A run from the command line opens, exports
// once and ends; the window opens once, exports as often as asked, and ends when it closes.
class 紺碧帳出力 {
  public:
    紺碧帳出力(プラットフォーム& 基盤, const QString& 自身のフォルダ);

    // The command line: 0 when the file was written, 1 on a refusal, told in Japanese through
    // the platform; the file is then untouched.
    int 実行(const QStringList& 引数);
    int 実行(const 出力指定& 指定);

    // The steps of a run. 開始 and 出力 answer false with the refusal in 拒否文言; a failed
    // start has ended the run already.
    bool 開始();
    bool 出力(const 出力指定& 指定);
    void 終了();

    出金セッション s;
    出力集計 集計;
    QString 結果文言;  // slips, lines and totals of the last export written
    QString 拒否文言;  // why the last start or export wrote nothing
    // Told the slips read so far, slip by slip, while an export runs.
    std::function<void(int 伝票数)> 進捗;

  private:
    int 拒否();

    画面なし 画面;
    紺碧帳起動 起動{s, 画面};
};
