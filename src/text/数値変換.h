#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <optional>

enum class 丸め規則 {
    偶数丸め,  // half to even: the rule of every conversion into the money type
    四捨五入,  // half away from zero: the rule of number formats
    切捨て,    // toward zero
};

// A number as it is written: sign, digits without the point, and the power of ten of the last
// digit, so 12.5 is {false, "125", -1}. Money and formats work on this and never on a binary
// fraction, so that what was typed or stored is what gets rounded.
struct 十進数 {
    bool 負 = false;
    QByteArray 数字;  // ASCII digits; empty or all zeros is zero
    int 指数 = 0;

    bool ゼロか() const;

    // The digits of |value| × 10^小数桁, rounded to a whole number by the rule; "0" for zero.
    QByteArray 桁丸め(int 小数桁, 丸め規則 規則) const;

    static 十進数 整数から(qint64 値);
    // 有効桁 0 takes the shortest digits that read back as the same double, so 0.00015 is
    // 0.00015 and not the binary value a hair below it; 15 gives the 15 significant
    // digits by which a double is shown.
    static 十進数 倍精度から(double 値, int 有効桁 = 0);
};

// The numeric value of a text: blanks, tabs and line feeds are
// dropped wherever they stand, then the longest numeric start counts (sign, digits, one point,
// exponent by "E" or "D", or "&H" / "&O" integers); "" and "abc" are 0, "12円" is 12 and
// "1,234" is 1, since no group separator is read.
十進数 数値先頭解析(QStringView 文字列);
// The value as a double. A value beyond the range of a double overflows (桁あふれ).
double 数値変換(QStringView 文字列);
// The numeric value as a small (16-bit) integer, rounded half to even;
// beyond -32768..32767 it overflows (桁あふれ).
qint16 小整数値(QStringView 文字列);

// The whole text is a number (blanks around it, "," between digits allowed), the test made
// before a text is formatted as a number; nullopt otherwise, and for an empty text.
std::optional<十進数> 数値文字列解析(QStringView 文字列);
bool 数値文字列か(QStringView 文字列);
