#pragma once

#include <QString>

#include "dataenv/付属書類.h"

class 出金セッション;

// The record name under which slips keep their documents in M付属書類.
inline const QString 出金情報名 = u"紺碧帳"_qs;

// The slip's record in M付属書類: office, number base date and number, as the screen has them.
QString 出金付属書類ID(const 出金セッション& s);
// The columns of the slip's document rows: its number ID and key, its date, staff,
// department and section.
付属書類項目 出金付属書類項目(const 出金セッション& s);
