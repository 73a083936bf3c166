#include "screen/次項目補正.h"

#include "screen/画面モデル.h"

部品* 次項目補正(const 画面モデル& 画面, 部品* 目標) {
    if (!目標) return 目標;
    static const QStringList 対象 = {u"CommandButton"_qs, u"SSCommand"_qs, u"xField"_qs,
                                     u"xPass"_qs,         u"xNum"_qs,      u"xText"_qs,
                                     u"xKana"_qs,         u"xZip"_qs,      u"xTel"_qs};
    部品* 最良 = nullptr;
    for (部品* p : 画面.全部品()) {
        if (!対象.contains(種別名(p->種別))) continue;
        if (!p->Visible || !p->Enabled || !p->TabStop) continue;
        if (p->TabIndex < 目標->TabIndex) continue;
        // On equal TabIndex the later control of the walk wins.
        if (!最良 || p->TabIndex <= 最良->TabIndex) 最良 = p;
    }
    return 最良 ? 最良 : 目標;
}
