#include "ledger/仕訳書式.h"

void 出力集計::追加(const 仕訳伝票& t) {
    ++伝票数;
    実質出金金額合計 += t.実質出金金額合計;
    for (const 仕訳行& l : t.行) {
        ++行数;
        借方金額合計 += l.実質出金金額;
        消費税合計 += l.出金消費税;
    }
}

QString CSV項目(const QString& 値, bool 常に引用) {
    const bool 引用 = 常に引用 || 値.contains(u',') || 値.contains(u'"') || 値.contains(u'\r') ||
                      値.contains(u'\n');
    if (!引用) return 値;
    QString v;
    v.reserve(値.size() + 2);
    v += u'"';
    for (QChar c : 値) {
        if (c == u'"') v += u'"';
        v += c;
    }
    v += u'"';
    return v;
}
