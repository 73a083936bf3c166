#pragma once

#include <QString>

#include <functional>
#include <optional>

#include "dataenv/環境情報.h"

class 接続環境;
struct 会社情報;

// How a write ended, in the session values that a store keeps: 1 and empty, or 3 and its text.
struct 書込結果 {
    short 処理結果区分 = 0;
    QString 処理結果メッセージ;
};

// Whether queue rows go to the general database (更新実行区分 1) rather than the
// configuration database.
bool 未集計情報は業務DBへ(const 会社情報& 会社);

// One queue row for the aggregation. It goes to the general database, with a history row,
// when the update program is not started after each store (更新実行区分 1), and otherwise to
// the configuration database, where that program looks.
書込結果 未集計情報書込(接続環境& 接続, const 会社情報& 会社, const QString& 登録情報区分,
                        const QString& 赤黒区分, const QString& 番号ID, const QString& 事業所コード,
                        const QString& 番号基準日付, const QString& 伝票No, const QString& 履歴No);

// The two states of one store of a slip: the state replaced, under its kept key, and the state
// written. A history number that is numerically 0 means that state has no history row.
struct 保存状態 {
    QString 処理区分;  // "0" new, "1" correction, "2" deletion
    QString 事業所コード;
    QString 旧番号基準日付, 旧出金No, 旧出金履歴No;
    QString 番号基準日付, 出金No, 出金履歴No;
};

// Queues the old state first, then the new one, each only when it has a history number; the
// outcome of the last row written, or nothing when no row was due.
std::optional<書込結果> 出金未集計情報書込(接続環境& 接続, const 会社情報& 会社,
                                           const 保存状態& 状態);

// The same rows as writes of the batch running on the general database, where they go when
// 更新実行区分 is 1: each outcome reaches 受け in order once the batch's writes are answered,
// at the latest when the batch ends.
void 出金未集計情報を送る(接続環境& 接続, const 保存状態& 状態,
                          const std::function<void(const 書込結果&)>& 受け);
