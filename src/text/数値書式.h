#pragma once

#include <QString>
#include <QStringView>

#include <concepts>

#include "text/数値変換.h"
#include "text/金額.h"

// The number masks the system writes with.
struct 数値書式 {
    static constexpr QStringView 金額列 = u"##########0";      // money and taxes written into SQL
    static constexpr QStringView 税率列 = u"##0.00";           // rates written into SQL
    static constexpr QStringView 一覧金額 = u"#,###,###,##0";  // money in the slip list
    static constexpr QStringView 百分率 = u"##0";              // whole percent and day counts
    static constexpr QStringView 付属書類金額 = u"###########0";
    static constexpr QStringView キロバイト = u"###,###,##0";  // a file's size, followed by "KB"
    static constexpr QStringView 区分値 = u"0";                // class values in conditions
    static constexpr QStringView 三桁 = u"000";                // line numbers, office codes
    static constexpr QStringView 八桁 = u"00000000";           // slip and application numbers
};

// A number written by a mask of one section:
//   "0"  a digit that is always written, "#" a digit written only when significant;
//   "."  the decimal point: the value is rounded half away from zero to the places after it,
//        "0" places always written, "#" places only when not a trailing zero;
//   ","  between digit places: groups of three in the whole part; right of the last digit
//        place: the value divided by 1000;
//   other characters are written as they stand.
// The whole part is never cut: digits beyond the places spill to the left. A negative value gets
// "-" in front, also when it rounds to zero ("-0"). Zero by "###" is
// an empty text. An empty mask writes the plain number.
QString 書式(const 十進数& 値, QStringView マスク);
QString 書式(const 金額& 値, QStringView マスク);
// A double counts by its first 15 significant digits.
QString 書式(double 値, QStringView マスク);
template <std::integral T>
QString 書式(T 値, QStringView マスク) {
    return 書式(十進数::整数から(static_cast<qint64>(値)), マスク);
}
// A text is formatted when the whole of it is a number ("123", " 12 ", "1,234", "1.5");
// any other text, the empty one included, comes back as it is.
QString 書式(const QString& 値, QStringView マスク);
