#pragma once

#include <QString>

class データ環境;

// The report program of the suite, beside this program in the programs folder.
inline const QString 帳票プログラム名 = u"紺碧帳書"_qs;

// The one argument of the report program: 47 fixed positions for one slip. Office (3), mode
// (1), slip date from and to (8 each), slip number from and to (8 each) and staff code from
// and to (5 each), each left-aligned, padded with blanks and cut to its width, then "2".
QString 帳票引数(const QString& 事業所コード, const QString& 出力区分, const QString& 出金日付,
                 const QString& 出金No, const QString& 担当者コード);

// Starts the report program on one slip with a normal window and goes on at once; the report's
// own outcome is not known here. A start that fails tells "帳票プログラムが有りません".
bool 帳票起動(データ環境& e, const QString& 出力区分, const QString& 事業所コード,
              const QString& 出金日付, const QString& 出金No, const QString& 担当者コード);
