#pragma once

#include <QString>

#include <functional>

struct 会社情報;
class プラットフォーム;

// Dates are "yyyymmdd" text, compared as text. Everything here follows from the company's
// 決算月 and 決算日 alone. Out-of-range parts carry over as the date builder does; a year that
// leaves the calendar throws 日付範囲外, a closing month or day at the 16-bit edge 桁あふれ.

// The closing is at a month's end: 1/31, 2/28, 2/29, 3/31, 4/30, ..., 12/31.
bool 月末決算判定(short 決算月, short 決算日);

// The closing date of the month period that holds the date.
QString 集計日付計算(const 会社情報& 会社, const QString& 日付);
// First and last day of the fiscal year that holds the date.
QString 年度開始日計算(const 会社情報& 会社, const QString& 日付);
QString 年度終了日計算(const 会社情報& 会社, const QString& 日付);

// The slip dates that everybody may store on a given day.
struct 修正可能期間 {
    QString 下限;
    QString 上限;
};
修正可能期間 修正可能期間計算(const 会社情報& 会社, const QString& 今日);

// Whether the operator may store (or delete) the slip: its date, and for a stored slip also the
// date it was loaded with, must lie in the period of today, unless the access right is 6.
bool 修正期間判定(const 会社情報& 会社, const QString& 今日, const QString& 出金日付,
                  const QString& 読込時出金日付, bool 新規, short アクセス権限);
// The same with today by the platform's clock.
bool 修正期間確認(const 会社情報& 会社, const プラットフォーム& 基盤, const QString& 出金日付,
                  const QString& 読込時出金日付, bool 新規, short アクセス権限);

// What a change of the slip date does to the slip's number, once the number base date of the
// new date is known.
enum class 日付変更番号処置 {
    そのまま,      // new slip in the same number period: a typed number survives
    保存番号復帰,  // stored slip in its own period: base date and number as stored
    新番号,        // the slip moves to another period: new base date and a fresh proposal
    変更拒否,      // a schedule activity refers to the slip: date, base date, number as stored
};
// 日程連携あり is asked only for a stored slip whose period changes.
日付変更番号処置 日付変更時番号判定(bool 新規, const QString& 新基準日付, const QString& 現基準日付,
                                    const QString& 保存基準日付,
                                    const std::function<bool()>& 日程連携あり);
