#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "ledger/仕訳伝票.h"

// The export's figures, printed at its end. 借方金額合計 adds the lines' real amounts with
// their signs (a refund line is written with its sides swapped), so it equals the slips' total.
struct 出力集計 {
    int 伝票数 = 0;
    int 行数 = 0;
    金額 借方金額合計;
    金額 消費税合計;
    金額 実質出金金額合計;  // of the slips' headers
};
出力集計 仕訳集計(const QList<仕訳伝票>& 伝票);

// The 弥生 import file: one row per line, 25 columns, CP932, CRLF. False when a character has
// no CP932 form, with the slip and line named in エラー; then 出力 is empty.
bool 弥生形式作成(const QList<仕訳伝票>& 伝票, QByteArray& 出力, QString& エラー);
// UTF-8, RFC 4180, a header row, one row per line with its slip's header fields.
QByteArray CSV形式作成(const QList<仕訳伝票>& 伝票);
// A field of a comma-separated row, quoted when it must be (or always, when asked).
QString CSV項目(const QString& 値, bool 常に引用 = false);
