#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include "text/プラットフォーム.h"

// A date from year, month and day with whatever is out of range carried over: month 13 is
// January of the next year, month 0 December of the year before, day 0 the last day of the
// month before, day 31 of a 30-day month the first of the next. Years 0-29 and 30-99 stand for
// 2000-2029 and 1930-1999, as typed two-digit years do. A year outside 100..9999 after the carry
// throws 日付範囲外.
QDate 日付構築(int 年, int 月, int 日);

// Dates travel as "yyyymmdd", stamps as "yyyymmdd hhnnss", browse times as "hh:mm:ss".
QString 日付文字列(const QDate& 日付);
QString 日時文字列(const QDateTime& 日時);
QString 時刻文字列(const QTime& 時刻);
// The date of a "yyyymmdd" text: year, month and day from characters 1-4, 5-6 and 7-8 by their
// numeric value, built by 日付構築.
QDate 日付値(const QString& 日付);
// Year, month and day of a "yyyymmdd" text, each by its numeric value.
int 日付の年(const QString& 日付);
int 日付の月(const QString& 日付);
int 日付の日(const QString& 日付);

// Today by the platform's clock, "yyyymmdd".
QString 今日(const プラットフォーム& 環境);

// Calendar steps back; a day the target month lacks becomes its last day, so 31 May less three
// months is the end of February and 29 February less a year is 28 February.
QDate 月数前(const QDate& 日付, int 月数);
QDate 年数前(const QDate& 日付, int 年数);
