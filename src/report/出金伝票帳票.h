#pragma once

#include <QList>
#include <QString>

#include "slip/出金セッション.h"

struct 帳票指定;

// One line of the printed slip, with the names of its classes.
struct 帳票明細 {
    QString 費目区分名称;
    QString 内税外税区分名称;
    QString 支払先;
    QString 摘要;
    金額 消費税率;
    金額 出金金額;
    金額 出金消費税;
};

// Everything the page shows, read once from the stored slip.
struct 出金伝票帳票 {
    QString 会社名;
    QString 事業所名;
    QString 事業所コード;
    QString 出金日付;
    QString 番号基準日付;
    QString 出金No;
    QString 担当者コード, 担当者名;
    QString 部門コード, 部門名;
    QString セクションコード, セクション名;
    QString 備考A, 備考B;
    QList<帳票明細> 明細;
    出金合計 合計;
    金額 前回税率, 今回税率;
};

// Reads the slip the argument names into the session and from there into the report: the
// number sequence of its date, the stored header with staff, department and section, its
// lines and totals as stored. False, with the reason, when no such slip is stored.
bool 出金伝票読込(出金セッション& s, const 帳票指定& 指定, 出金伝票帳票& 帳票, QString& エラー);
