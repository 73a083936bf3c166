#include "rules/帳票引数.h"

namespace {
QString 欄(const QString& 値, int 幅) {
    return 値.leftJustified(幅, u' ', true);
}
}  // namespace

QString 帳票引数(const QString& 事業所コード, const QString& 出力区分, const QString& 出金日付,
                 const QString& 出金No, const QString& 担当者コード) {
    // Every range is the one slip: from and to carry the same value.
    return 欄(事業所コード, 3) + 欄(出力区分, 1) + 欄(出金日付, 8) + 欄(出金日付, 8) +
           欄(出金No, 8) + 欄(出金No, 8) + 欄(担当者コード, 5) + 欄(担当者コード, 5) + u"2"_qs;
}
