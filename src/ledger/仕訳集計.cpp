#include "ledger/仕訳書式.h"

出力集計 仕訳集計(const QList<仕訳伝票>& 伝票) {
    出力集計 c;
    for (const 仕訳伝票& t : 伝票) {
        ++c.伝票数;
        c.実質出金金額合計 += t.実質出金金額合計;
        for (const 仕訳行& l : t.行) {
            ++c.行数;
            c.借方金額合計 += l.実質出金金額;
            c.消費税合計 += l.出金消費税;
        }
    }
    return c;
}

QString CSV項目(const QString& 値, bool 常に引用) {
    const bool 引用 = 常に引用 || 値.contains(u',') || 値.contains(u'"') || 値.contains(u'\r') ||
                      値.contains(u'\n');
    if (!引用) return 値;
    QString v = 値;
    v.replace(u"\""_qs, u"\"\""_qs);
    return u'"' + v + u'"';
}
