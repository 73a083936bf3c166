#pragma once

#include <QString>
#include <QStringList>

// One headless operator: starts the program's session on the tree of the program folder, waits
// for the common start moment, then stores, corrects and deletes slips through the entry screen
// model and writes a journal line per operation to standard output, each store and deletion
// with the milliseconds its button press took:
//   N marker a1,a2,... ms   a new slip, marked by marker in 出金伝票備考A, with its line amounts
//   C marker a1,a2,... ms   a correction, with the amounts it leaves
//   D marker ms             a deletion
//   E text                  something the operator could not do
// Answers the process exit code.
int 操作員実行(const QString& プログラムフォルダ, int 番号, int 件数, qint64 開始);

// Checks the databases of the tree against the operators' journals and prints one line of
// figures (see scripts/stress). Answers 0 when every invariant holds.
int 検査実行(const QString& プログラムフォルダ, const QStringList& 記録ファイル, double 秒,
             int 操作員数);

// One operator for the fault tests, on the tree of the program folder:
//   kill POINT    stores a slip of two lines, then one of three killed at POINT of its store
//   probe -       the same without the kill; prints how often the second store read the clock
//   hold POINT    stores a slip of two lines, waiting at POINT for a line on standard input
//   delete NO     deletes the slip NO
//   browse N      looks the slip 00000001 up N times
// POINT is "before" (the first statement not yet run), "after" (committed and cleared), or N,
// the N-th read of the clock during the store. Prints "DONE" when it got to the end.
int 単発実行(const QString& プログラムフォルダ, const QString& 動作, const QString& 点);
