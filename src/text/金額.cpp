#include "text/金額.h"

#include <charconv>
#include <limits>
#include <ostream>

namespace {

using 広整数 = __int128;

constexpr qint64 最小 = std::numeric_limits<qint64>::min();
constexpr qint64 最大 = std::numeric_limits<qint64>::max();

qint64 範囲確認(広整数 値) {
    if (値 < 最小 || 値 > 最大) throw 桁あふれ();
    return static_cast<qint64>(値);
}

広整数 絶対(広整数 値) {
    return 値 < 0 ? -値 : 値;
}

// 分子 / 分母 to a whole number, ties to even; 分母 is not zero.
広整数 偶数丸め商(広整数 分子, 広整数 分母) {
    広整数 商 = 分子 / 分母;
    const 広整数 余り = 分子 % 分母;
    const 広整数 二倍余り = 絶対(余り) * 2;
    const 広整数 絶対分母 = 絶対(分母);
    if (二倍余り > 絶対分母 || (二倍余り == 絶対分母 && 商 % 2 != 0))
        商 += ((分子 < 0) != (分母 < 0)) ? -1 : 1;
    return 商;
}

}  // namespace

金額 金額::円(qint64 円) {
    return 金額(範囲確認(static_cast<広整数>(円) * 一円));
}

金額 金額::倍精度から偶数丸め(double 値) {
    return 十進数から偶数丸め(十進数::倍精度から(値));
}

金額 金額::十進数から偶数丸め(const 十進数& 値) {
    qsizetype 有効 = 値.数字.size();
    for (char c : 値.数字) {
        if (c != '0') break;
        --有効;
    }
    if (有効 == 0) return 金額();
    // More than 20 whole digits of ten-thousandths cannot fit; say so before building them.
    if (有効 + static_cast<qint64>(値.指数) + 4 > 20) throw 桁あふれ();

    const QByteArray 桁 = 値.桁丸め(4, 丸め規則::偶数丸め);
    unsigned long long 絶対値 = 0;
    const auto r = std::from_chars(桁.constData(), 桁.constData() + 桁.size(), 絶対値);
    if (r.ec != std::errc()) throw 桁あふれ();
    const 広整数 符号付き = 値.負 ? -static_cast<広整数>(絶対値) : static_cast<広整数>(絶対値);
    return 金額(範囲確認(符号付き));
}

金額 金額::文字列から(QStringView 文字列) {
    return 十進数から偶数丸め(数値先頭解析(文字列));
}

金額 金額::表示文字列から(QStringView 文字列) {
    QString 区切りなし = 文字列.toString();
    区切りなし.remove(u',');
    return 文字列から(区切りなし);
}

double 金額::倍精度() const {
    return static_cast<double>(値_) / 一円;
}

十進数 金額::十進表記() const {
    十進数 結果 = 十進数::整数から(値_);
    結果.指数 = -4;
    return 結果;
}

QString 金額::文字列() const {
    const quint64 絶対値 = 値_ < 0 ? 0 - static_cast<quint64>(値_) : static_cast<quint64>(値_);
    QString 結果 = QString::number(絶対値 / 一円);
    quint64 小数 = 絶対値 % 一円;
    if (小数 != 0) {
        QString 小数桁 = QString::number(小数).rightJustified(4, u'0');
        while (小数桁.endsWith(u'0')) 小数桁.chop(1);
        結果 += u'.' + 小数桁;
    }
    return 値_ < 0 ? u'-' + 結果 : 結果;
}

金額 金額::絶対値() const {
    return 値_ < 0 ? -*this : *this;
}

金額 金額::整数部() const {
    return 金額(値_ - 値_ % 一円);
}

金額 金額::負方向切捨て() const {
    const qint64 余り = 値_ % 一円;
    if (余り >= 0) return 金額(値_ - 余り);
    return 金額(範囲確認(static_cast<広整数>(値_) - 余り - 一円));
}

金額 金額::四捨五入() const {
    広整数 円 = 値_ / 一円;
    const qint64 余り = 値_ % 一円;
    if (余り >= 一円 / 2) ++円;
    if (余り <= -一円 / 2) --円;
    return 金額(範囲確認(円 * 一円));
}

金額 金額::偶数丸め() const {
    return 金額(範囲確認(偶数丸め商(値_, 一円) * 一円));
}

金額 金額::operator-() const {
    return 金額(範囲確認(-static_cast<広整数>(値_)));
}

金額& 金額::operator+=(金額 右) {
    値_ = 範囲確認(static_cast<広整数>(値_) + 右.値_);
    return *this;
}

金額& 金額::operator-=(金額 右) {
    値_ = 範囲確認(static_cast<広整数>(値_) - 右.値_);
    return *this;
}

金額 operator*(金額 左, 金額 右) {
    // Both factors carry four decimals, so the exact product carries eight.
    const 広整数 積 = static_cast<広整数>(左.値_) * 右.値_;
    return 金額(範囲確認(偶数丸め商(積, 金額::一円)));
}

金額 operator*(金額 左, qint64 右) {
    return 金額(範囲確認(static_cast<広整数>(左.値_) * 右));
}

金額 金額::偶数丸め除算(qint64 除数) const {
    if (除数 == 0) throw ゼロ除算();
    return 金額(範囲確認(偶数丸め商(値_, 除数)));
}

void PrintTo(const 金額& 値, std::ostream* 出力) {
    *出力 << 値.文字列().toStdString();
}
