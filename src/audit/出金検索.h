#pragma once

#include <QList>
#include <QString>

#include "slip/伝票鍵.h"
#include "text/金額.h"

class データ環境;
class 記録集合;

// What an auditor searches slips by. Every condition left empty does not count; those given
// must all hold. Texts as typed: 出金検索条件の誤り checks them and brings codes to their length.
struct 出金検索条件 {
    QString 日付から, 日付まで;  // 出金日付, yyyymmdd, both ends included
    QString 合計下限, 合計上限;  // 実質出金金額合計 in whole yen
    QString 明細下限, 明細上限;  // any line's 実質出金金額 in whole yen
    QString 支払先;              // part of any line's payee
    QString 担当者コード;
    QString 事業所コード;
    QString 番号から, 番号まで;  // 出金No
    bool 書類あり = false;       // with at least one attached document
    bool 削除済 = false;         // the deleted slips instead of the stored ones
};

// One slip found: its key and date, staff, the payee of its first line, its total, how many
// documents it has; a deleted slip also with the history number of its last state.
struct 出金検索行 {
    伝票鍵 鍵;
    QString 出金日付;
    QString 担当者コード;
    QString 担当者名;
    QString 支払先;
    金額 合計;
    int 書類数 = 0;
    bool 削除済 = false;
    QString 出金履歴No;
};

// At most this many slips per search, the first by date and number.
inline constexpr int 出金検索上限 = 1000;

// Empty when the conditions can be searched; otherwise what is wrong, in Japanese. Codes and
// numbers are filled with zeros to their length on the way.
QString 出金検索条件の誤り(出金検索条件& 条件);

// Which slips count as deleted: the keys with old-state rows in the history tables (any R出金
// row, R出金明細 rows of 赤黒区分 '0') and no T出金 row, each with the greatest history number of
// those rows, its last state. Columns 事業所コード, 番号基準日付, 出金No, 出金履歴No.
QString 削除済伝票文();

// The statement of a search over conditions already checked: the columns 検索行を読む reads,
// ordered by date and number, at most 出金検索上限 rows.
QString 出金検索文(const 出金検索条件& 条件);
出金検索行 検索行を読む(const 記録集合& rs);

// A row of the deleted slips whose key a correction moved into another number sequence: it
// stands in the history tables alone as a deleted slip does, but its slip lives on under the
// new key, so a search does not list it.
bool 移した伝票か(データ環境& d, const 出金検索行& r);

// The search run on the general database; false when the statement failed.
bool 出金検索(データ環境& d, const 出金検索条件& 条件, QList<出金検索行>& 結果);
