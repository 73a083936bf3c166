#pragma once

#include <QString>
#include <array>

#include "text/金額.h"

// The journal import format of the 弥生 ledger programs: one row per journal line, 25 columns.

struct 弥生列 {
    const char16_t* 項目名;
    int 桁数;       // half-width places the import takes; 0 where the format sets none
    bool 文字項目;  // written quoted; numbers, dates and flags stand bare
};
inline constexpr int 弥生列数 = 25;
extern const std::array<弥生列, 弥生列数> 弥生列一覧;

// The place of a column in 弥生列一覧, from 0.
enum 弥生列位置 {
    弥生_識別フラグ,
    弥生_伝票No,
    弥生_決算,
    弥生_取引日付,
    弥生_借方勘定科目,
    弥生_借方補助科目,
    弥生_借方部門,
    弥生_借方税区分,
    弥生_借方金額,
    弥生_借方税金額,
    弥生_貸方勘定科目,
    弥生_貸方補助科目,
    弥生_貸方部門,
    弥生_貸方税区分,
    弥生_貸方金額,
    弥生_貸方税金額,
    弥生_摘要,
    弥生_番号,
    弥生_期日,
    弥生_タイプ,
    弥生_生成元,
    弥生_仕訳メモ,
    弥生_付箋1,
    弥生_付箋2,
    弥生_調整,
};

// 2111 for a slip of one line; 2110, 2100 and 2101 for the first, a middle and the last line
// of a slip of several. 位置 counts from 0.
QString 弥生識別フラグ(int 位置, int 行数);
// "yyyymmdd" as "yyyy/mm/dd".
QString 弥生日付(const QString& 日付);

// The tax category of a purchase line. 非課税区分 is what a line without tax takes ("対象外"
// or "非課税"); 控除割合 the share of the tax that may be deducted (100 from a registered
// payee). Empty when the table holds no text for the rate or the share: the export stops then.
QString 弥生仕入税区分(short 内税外税区分, 金額 消費税率, const QString& 日付, int 控除割合,
                       const QString& 非課税区分);
// Whether a text is one the table knows as the category of a line without tax.
bool 弥生非課税区分あり(const QString& 非課税区分);
