#include "screen/部品.h"

#include <QRegularExpression>

QString 種別名(部品種別 種別) {
    static const char16_t* const 名前[] = {
        u"xField",    u"xNum",       u"xText",        u"xLabel",   u"xPass",
        u"SSCommand", u"SSPanel",    u"SSTab",        u"ListView", u"ComboBox",
        u"CheckBox",  u"VScrollBar", u"CommonDialog",
    };
    return QString::fromUtf16(名前[static_cast<int>(種別)]);
}

bool 部品::焦点を持てる種別() const {
    return 種別 != 部品種別::xLabel && 種別 != 部品種別::SSPanel && 種別 != 部品種別::CommonDialog;
}

bool 部品::入力可(const QString& 文字列) const {
    if (MaxLength > 0 && 文字列.size() > MaxLength) return false;
    const 数字制限& d = 定義.数字;
    if (d.整数桁 <= 0) return true;
    QString 型 = u"^"_qs + (d.符号 ? u"-?"_qs : QString()) + u"[0-9]{0,"_qs +
                 QString::number(d.整数桁) + u"}"_qs;
    if (d.小数桁 > 0) 型 += u"(\\.[0-9]{0,"_qs + QString::number(d.小数桁) + u"})?"_qs;
    if (!QRegularExpression(型 + u"$"_qs).match(文字列).hasMatch()) return false;
    // A bounded field stops taking digits once its value would pass the bound.
    if (Min < Max) {
        bool 数 = false;
        const double 値 = 文字列.toDouble(&数);
        if (数 && (値 > Max || 値 < Min)) return false;
    }
    return true;
}
