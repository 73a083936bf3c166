#pragma once

#include <QHash>
#include <QString>
#include <optional>
#include <vector>

#include "audit/出金履歴行.h"

class データ環境;

// The states of one key, oldest first, and how the key ended when no slip stands under it.
struct 鍵の履歴 {
    伝票鍵 鍵;
    std::vector<伝票状態> 状態;
    bool 終わった = false;   // no T出金 row: deleted, or moved to another number sequence
    QString 終わりの履歴No;  // the rows that ended it
    QString 終わらせた人;    // the user its old lines carry: who deleted or moved it
    QString 最後の登録日付;  // the save of the last state, as its lines carry it
};

// Reads histories for one request: the staff names are read once, the rows key by key.
class 履歴読み手 {
  public:
    explicit 履歴読み手(データ環境& d);

    std::optional<鍵の履歴> 読む(const 伝票鍵& 鍵);
    // The key a correction moved this ended key to, when its rows show one.
    std::optional<伝票鍵> 移動先(const 鍵の履歴& 旧);
    // The ended key whose move made this key's first state.
    std::optional<伝票鍵> 移動元(const 鍵の履歴& 新);
    // Whether a key found in the history tables alone was moved by a correction rather than
    // deleted; 最後の履歴No is the greatest of its old rows. A deletion's queue row says so
    // without the rows being read.
    bool 移されたか(const 伝票鍵& 鍵, const QString& 最後の履歴No);
    QString 操作者名(const QString& ユーザID);

  private:
    // 登録情報区分 of the queue row of a history row, when the queue still holds it.
    std::optional<QString> 登録情報区分(const 伝票鍵& 鍵, const QString& 履歴No,
                                        const QString& 赤黒区分);
    データ環境& d;
    QHash<QString, QString> 担当者;  // code → name, read when the first name is asked for
    bool 担当者読込済 = false;
};
