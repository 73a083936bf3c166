#pragma once

#include <QString>

// The one argument of the report program: 47 fixed positions for one slip. Office (3), mode
// (1), slip date from and to (8 each), slip number from and to (8 each) and staff code from
// and to (5 each), each left-aligned, padded with blanks and cut to its width, then "2".
QString 帳票引数(const QString& 事業所コード, const QString& 出力区分, const QString& 出金日付,
                 const QString& 出金No, const QString& 担当者コード);
