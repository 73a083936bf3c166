#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "slip/伝票鍵.h"

class データ環境;

// A column of a slip in one state, in its meaning and as text: amounts as their shortest
// decimal form, codes and dates as stored.
struct 項目値 {
    QString 名前;
    QString 値;
};

struct 履歴明細 {
    QString 出金固有行No;
    std::vector<項目値> 項目;
    QString 値(QStringView 名前) const;
};

// One state of a slip: what a store wrote and left standing until the next store replaced it,
// or the deletion that ended it.
struct 伝票状態 {
    enum class 種別 { 現在, 以前, 削除 };
    種別 何 = 種別::以前;
    伝票鍵 鍵;
    // The history number its written lines carry, and that of the rows that replaced it (or
    // of the deletion); empty where no row holds one.
    QString 書込履歴No;
    QString 置換履歴No;
    std::vector<項目値> 見出し;  // empty when no row holds the header of this state
    std::vector<履歴明細> 明細;
    // Why the state is not whole: rows a failed statement never wrote. Empty when whole.
    QStringList 欠け;
    QString 登録日付, 更新日付, ユーザID, 操作者名;

    QString 見出し値(QStringView 名前) const;
    // The line of that 出金固有行No in this state; none when the state has no such line.
    const 履歴明細* 行(const QString& 出金固有行No) const;
    // The slip total of the state: its header's, or the sum of its lines without a header.
    QString 合計() const;
};

// Every state of a slip, newest first: the current one or the deletion, then each earlier one;
// a slip whose date moved it to another number sequence is followed across the move.
struct 出金履歴 {
    伝票鍵 鍵;
    std::vector<伝票状態> 状態;
};

// The history of the slip under the key; none when neither the slip nor a history row of it
// exists.
std::optional<出金履歴> 出金履歴読込(データ環境& d, const 伝票鍵& 鍵);

// What changed from one state to the next.
struct 項目変化 {
    QString 名前, 前, 後;
};
struct 明細変化 {
    QString 出金固有行No;
    std::vector<項目変化> 変化;
};
struct 状態差分 {
    std::vector<項目変化> 見出し;
    QStringList 追加行, 削除行;  // by 出金固有行No
    std::vector<明細変化> 変更行;
    QString 合計前, 合計後;
};
// 前 is the older state; without one (the first state) everything counts as added.
状態差分 差分(const 伝票状態* 前, const 伝票状態& 後);

// The history as text for scripts: one block per state, a line per changed field.
QString 履歴文(const 出金履歴& 履歴);
