#pragma once

#include <QString>

// The share of the tax on a purchase from a payee who is no registered invoice issuer that may
// still be deducted, in percent, by the date of the purchase ("yyyymmdd"). 100 before the
// invoice system began; 0 once the transition has run out.
int 経過措置控除割合(const QString& 日付);

// One period of the transition. The table is the one place a change of the law is edited.
struct 経過措置期間 {
    const char16_t* 開始日;
    const char16_t* 終了日;
    int 控除割合;
};
extern const 経過措置期間 経過措置表[];
extern const int 経過措置期間数;
