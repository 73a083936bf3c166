#pragma once

#include <QString>

// Free text on its way into SQL: every quote doubled, trailing blanks cut.
QString 引用符二重化(const QString& 文字列);
// The same without the cut: a file path keeps its blanks, since they are part of the name.
QString 引用符だけ二重化(const QString& 文字列);
// A value as an SQL text literal: between quotes, its own quotes doubled, nothing cut.
QString 引用符で囲む(const QString& 文字列);

// N zeros; none for N of 0 or less. "000" is the office code that stands for all offices.
QString ゼロ文字列(int 桁数);
// The value by the mask (a text that is not a number stays as it is), then cut to the mask's
// length, since the field cannot hold more: "1234567" by "00000" is "12345".
QString 書式桁揃え(const QString& 値, const QString& マスク);
// A zero mask as long as the text.
QString 書式マスク作成(const QString& 文字列);
QString 百分率記号除去(const QString& 文字列);
// Takes the value that a condition compares 項目名 with back out of it, as in
// "M担当者.コード >= '00123' AND M担当者.在籍区分 = '0'", and hands the condition with that clause
// cut away to 残り. Callers pass the same text as 条件 and 残り, so the clause leaves it. When the
// field is not compared in it, the answer is empty and 残り is not touched. With " > '", " < '"
// and " LIKE '" all in front of the clause goes too, and so with " = '" right behind a WHERE.
QString 条件値取出(const QString& 項目名, const QString& 条件, QString& 残り);

// Half-width letters, digits, signs and kana to their full-width forms; all else unchanged.
QString 文字種変換(const QString& 文字列);
// The longest start of the text that takes at most 上限 bytes in Shift-JIS (CP932); a
// double-byte character at the limit, or a surrogate pair, is dropped whole. A limit of 0 or
// below gives empty text.
QString バイト長切詰(const QString& 文字列, int 上限);
// Shift-JIS bytes of the text, whatever the locale; each UTF-16 unit that Shift-JIS lacks
// counts one byte, the "?" it would become (so a character beyond the basic plane counts two).
int シフトJISバイト長(const QString& 文字列);

// Repairs a typed date in place. All three 0: left alone. A valid date: left as typed. Otherwise
// the date with the overflow carried over ("2024", "13", "15" is 2025-01-15), except that a day
// above 27 gives the last day of the typed month ("2024", "02", "31" is 2024-02-29); written back
// as "0000", "00", "00". A year outside the calendar throws 日付範囲外, a part beyond 16 bits
// 桁あふれ.
void 日付補正(QString& 年, QString& 月, QString& 日);
