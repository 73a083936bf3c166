#include "screen/部品.h"

QString 種別名(部品種別 種別) {
    static const char16_t* const 名前[] = {
        u"xField", u"xNum",     u"xText",    u"xLabel",   u"SSCommand",  u"SSPanel",
        u"SSTab",  u"ListView", u"ComboBox", u"CheckBox", u"VScrollBar", u"CommonDialog",
    };
    return QString::fromUtf16(名前[static_cast<int>(種別)]);
}

bool 部品::入力可能() const {
    switch (種別) {
        case 部品種別::xLabel:
        case 部品種別::SSPanel:
        case 部品種別::CommonDialog:
            return false;
        default:
            return Visible && Enabled;
    }
}
