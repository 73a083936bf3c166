#pragma once

#include <QDate>
#include <QString>

// The sample company's history: slips of the current and the previous fiscal year, typed
// through the entry screen and stored by its register flow, some of them corrected, so that
// numbers, history, queue and browse rows agree as if operators had typed them. The tree at the
// program folder must be new. Answers the number of slips stored, or -1 with the reason.
int 見本履歴作成(const QString& プログラムフォルダ, const QDate& 今日, int 件数, QString& エラー);
