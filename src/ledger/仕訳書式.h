#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "ledger/仕訳伝票.h"

class CP932表;

// The export's figures, printed at its end. 借方金額合計 adds the lines' real amounts with
// their signs (a refund line is written with its sides swapped), so it equals the slips' total.
struct 出力集計 {
    int 伝票数 = 0;
    int 行数 = 0;
    金額 借方金額合計;
    金額 消費税合計;
    金額 実質出金金額合計;  // of the slips' headers

    void 追加(const 仕訳伝票& 伝票);
};

// The rows of one slip in the 弥生 import file: one row per line, 25 columns, CP932, CRLF,
// appended to 出力. False when a character has no CP932 form, with the slip and line named in
// エラー; then 出力 is as it was.
bool 弥生形式追加(CP932表& 変換器, const 仕訳伝票& 伝票, QByteArray& 出力, QString& エラー);
// The CSV for spreadsheets: UTF-8, RFC 4180, the header row, then one row per line with its
// slip's header fields.
QByteArray CSV見出し();
void CSV形式追加(const 仕訳伝票& 伝票, QByteArray& 出力);
// A field of a comma-separated row, quoted when it must be (or always, when asked).
QString CSV項目(const QString& 値, bool 常に引用 = false);
