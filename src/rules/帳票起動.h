#pragma once

#include <QString>

#include "rules/帳票引数.h"

class 接続環境;

// The report program of the suite, beside this program in the programs folder.
inline const QString 帳票プログラム名 = u"紺碧帳書"_qs;

// Starts the report program on one slip with a normal window and goes on at once; the report's
// own outcome is not known here. A start that fails tells "帳票プログラムが有りません".
bool 帳票起動(接続環境& 接続, const QString& 出力区分, const QString& 事業所コード,
              const QString& 出金日付, const QString& 出金No, const QString& 担当者コード);
