#pragma once

#include <QString>
#include <QStringView>
#include <QtGlobal>

#include <compare>
#include <iosfwd>

#include "text/実行時エラー.h"
#include "text/数値変換.h"

// Money, taxes and rates (8% is 8.0000): a signed 64-bit count of ten-thousandths, exact.
//
// Values come in only through the named factories, and a double only through the one that says
// its rounding; there is no implicit conversion either way. Whatever would leave the 64-bit
// range (a sum, a product, a conversion, a rounding at the very edge) throws 桁あふれ instead of
// wrapping, and a division by zero throws ゼロ除算: the operation in progress ends there and the
// event that started it catches 実行時エラー (see 実行時エラー.h).
class 金額 {
  public:
    static constexpr qint64 一円 = 10000;

    constexpr 金額() = default;

    static 金額 円(qint64 円);
    static constexpr 金額 万分単位から(qint64 値) { return 金額(値); }
    // To the nearest ten-thousandth, ties to the even one. The double is taken at its shortest
    // decimal form, so 0.00015 is a tie (→ 0.0002) although its binary value lies just below.
    static 金額 倍精度から偶数丸め(double 値);
    static 金額 十進数から偶数丸め(const 十進数& 値);
    // The numeric value of a text (数値変換: "" is 0, "12円" is 12, "1,234" is 1), half to even at
    // the fourth decimal.
    static 金額 文字列から(QStringView 文字列);
    // The same for a field that shows group separators: "1,234,567" is 1234567.
    static 金額 表示文字列から(QStringView 文字列);

    constexpr qint64 万分単位() const { return 値_; }
    double 倍精度() const;
    十進数 十進表記() const;
    // The shortest text of the value: "8", "6.24", "-0.5".
    QString 文字列() const;

    constexpr bool ゼロか() const { return 値_ == 0; }
    constexpr bool 負か() const { return 値_ < 0; }
    constexpr int 符号() const { return (値_ > 0) - (値_ < 0); }
    金額 絶対値() const;

    // To whole yen.
    金額 整数部() const;                          // toward zero (Fix)
    金額 負方向切捨て() const;                    // toward minus infinity (Int)
    金額 四捨五入() const;                        // half away from zero
    金額 偶数丸め() const;                        // half to even
    qint64 整数値() const { return 値_ / 一円; }  // whole yen, toward zero

    金額 operator-() const;
    金額& operator+=(金額 右);
    金額& operator-=(金額 右);
    friend 金額 operator+(金額 左, 金額 右) { return 左 += 右; }
    friend 金額 operator-(金額 左, 金額 右) { return 左 -= 右; }
    // The exact product, brought back to four decimals half to even, the rule of every value
    // that enters the type. Rates times whole amounts are exact anyway.
    friend 金額 operator*(金額 左, 金額 右);
    friend 金額 operator*(金額 左, qint64 右);
    friend 金額 operator*(qint64 左, 金額 右) { return 右 * 左; }
    // The quotient at four decimals, half to even.
    金額 偶数丸め除算(qint64 除数) const;

    friend constexpr auto operator<=>(const 金額&, const 金額&) = default;

  private:
    constexpr explicit 金額(qint64 値) : 値_(値) {}
    qint64 値_ = 0;
};

void PrintTo(const 金額& 値, std::ostream* 出力);
