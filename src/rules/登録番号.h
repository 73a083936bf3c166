#pragma once

#include <QString>
#include <QStringView>

// An invoice registration number: "T" and 13 digits, the first of them a check digit over the
// other twelve.
enum class 登録番号判定 { 正しい, 形式誤り, 検査数字誤り };

// The check digit of twelve digits: 9 minus the remainder by 9 of their sum, weighted 1, 2, 1,
// 2 ... from the right. -1 when the text is not twelve digits.
int 登録番号検査数字(QStringView 十二桁);
登録番号判定 登録番号検査(const QString& 番号);
// The refusal told to the operator; empty for a number that is right.
QString 登録番号判定文言(登録番号判定 判定);
