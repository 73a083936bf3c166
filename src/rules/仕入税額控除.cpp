#include "rules/仕入税額控除.h"

// 80 % from the start of the invoice system; the later steps as the tax reform of fiscal 2026
// (令和8年度税制改正大綱) set them.
const 経過措置期間 経過措置表[] = {
    {u"00000000", u"20230930", 100}, {u"20231001", u"20260930", 80}, {u"20261001", u"20280930", 70},
    {u"20281001", u"20300930", 50},  {u"20301001", u"20310930", 30}, {u"20311001", u"99999999", 0},
};
const int 経過措置期間数 = sizeof 経過措置表 / sizeof 経過措置表[0];

int 経過措置控除割合(const QString& 日付) {
    for (int i = 0; i < 経過措置期間数; ++i) {
        const 経過措置期間& p = 経過措置表[i];
        if (日付 >= QStringView(p.開始日) && 日付 <= QStringView(p.終了日)) return p.控除割合;
    }
    return 0;
}
