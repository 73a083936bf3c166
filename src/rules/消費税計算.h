#pragma once

#include <QString>

#include <span>

#include "text/金額.h"

class 接続環境;

// The rounding every caller of the system hands to 消費税額計算: half up on the absolute
// amount, to whole yen. They stay parameters of the routine all the same.
inline constexpr short 税額丸め値 = 5;
inline constexpr short 税額桁位置 = 0;

// The rates of G消費税 around a date: 今回税率 is the one in force, 前回税率 the one before it,
// but only while the newest row opens a period with two rates (税率区分 1); otherwise 0.
struct 税率情報 {
    金額 前回税率;
    金額 今回税率;
    QString 施行日;
    QString 税率区分;
};

// The rate table G消費税 of the general database, read at every question, so that a rate
// entered meanwhile counts at once. What the tax routines below read, and all they read.
class 税率表 {
  public:
    税率表(接続環境& 接続_) : 接続(接続_) {}  // NOLINT(google-explicit-constructor): the usual call
    // Selector 0: the rate in force on the date; 2: the rate before it; 1 and anything else:
    // 0. No row, a failed query or a dialect without the statement all give 0.
    金額 税率(const QString& 日付, short 選択) const;
    税率情報 情報(const QString& 日付) const;

  private:
    // Empty for an engine whose statement is not known, so that the query fails.
    QString 照会文(const QString& 日付) const;

    接続環境& 接続;
};

金額 消費税率取得(const 税率表& 表, const QString& 日付, short 選択);
税率情報 税率情報取得(const 税率表& 表, const QString& 日付);

// The tax's rounding: r tenths added to (or taken from, below zero) the value at digit d, then
// cut. A negative d multiplies by d × 10, a 16-bit product that overflows past -3276.
金額 税額端数処理(金額 値, short 丸め値, short 桁位置);
// Class 1 adds the rate on top of the amount, class 2 finds it inside, any other class has no
// tax. A negative amount gets the mirror image of its absolute value's tax.
金額 消費税額計算(金額 出金金額, short 内税外税区分, short 丸め値, short 桁位置, 金額 消費税率);

// The fields of one slip line that its tax reads and writes.
struct 明細税額 {
    short 内税外税区分 = 0;
    金額 消費税率;
    金額 出金金額;
    金額 出金消費税;
    金額 実質出金金額;
    金額 税抜出金金額;
    金額 税込出金金額;
};

void 明細税率設定(const 税率表& 表, 明細税額& 行, const QString& 出金日付);
void 明細税額再計算(明細税額& 行);
void 明細実質金額再計算(明細税額& 行);
// False, with nothing changed, when the typed tax is the stored one. On true the caller marks
// the slip changed and adds up the totals again.
bool 明細税額手入力(明細税額& 行, 金額 入力税額);
// Rate from the date, then tax, then the real amount: one line's full recalculation.
void 明細再計算(const 税率表& 表, 明細税額& 行, const QString& 出金日付);
// Every line in use, in order; the totals are the caller's to add up afterwards.
void 全明細再計算(const 税率表& 表, std::span<明細税額> 行, const QString& 出金日付);

// What each change of a line does to its tax. After each of these but the unknown expense class
// the screen adds up the totals again.

// An expense class found in K費目区分 brings its tax class, and the rate is fetched afresh: a
// rate or tax typed by hand is lost.
void 費目区分変更時再計算(const 税率表& 表, 明細税額& 行, short 内税外税区分,
                          const QString& 出金日付);
// An unknown expense class turns the line exclusive and recomputes nothing, so rate, tax and
// amounts, typed ones included, stay.
void 費目区分不明時設定(明細税額& 行);
// The line keeps its rate, even 0: a line moved from class 0 to 1 gets no tax until its rate is
// typed or its expense class or the date changes.
void 内税外税区分変更時再計算(明細税額& 行, short 内税外税区分);
void 消費税率変更時再計算(明細税額& 行, 金額 消費税率);
void 出金金額変更時再計算(明細税額& 行, 金額 出金金額);
// A line taken over from a stored slip gets the rate in force on the slip date whatever its
// class, so a pattern from an older rate period takes today's rate.
void 過去明細取込時再計算(const 税率表& 表, 明細税額& 行, const QString& 出金日付);
// A trip line comes in with the class of its expense class (1 when that is unknown).
void 旅費明細取込時再計算(const 税率表& 表, 明細税額& 行, short 内税外税区分,
                          const QString& 出金日付);
