#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <optional>

#include "dataenv/データ環境.h"
#include "rules/消費税計算.h"
#include "slip/伝票鍵.h"
#include "text/金額.h"

// The slip header in memory. The kept fields remember the stored key and date as loaded, so that
// a changed key can still reach the stored rows.
struct 出金見出し {
    QString 事業所コード;
    QString 出金日付年;
    QString 出金日付月;
    QString 出金日付日;
    QString 出金日付;
    QString 番号基準日付;
    QString 出金No;
    QString 担当者コード;
    QString 担当者名;
    QString 部門コード;
    QString 部門名;
    QString セクションコード;
    QString セクション名;
    QString 出張申請事業所コード;
    QString 出張申請番号基準日付;
    QString 出張申請No;
    short 伝票発行区分 = 0;
    QString 出金メモ;
    QString 出金伝票備考A;
    QString 出金伝票備考B;
    QString 会計集計日付;
    金額 前回税率;
    金額 今回税率;
    QString 承認日付;
    QString 承認者コード;
    QString 承認区分;
    QString 登録日付;
    QString 更新日付;
    QString 保持事業所コード;
    QString 保持番号基準日付;
    QString 保持出金No;
    QString 保持出金日付;
    QString 処理区分;  // "0" new, "1" correction, "2" delete
    QString 出金履歴No;
    QString 旧出金履歴No;
    short 最大固有行No = 0;

    伝票鍵 鍵() const { return {事業所コード, 番号基準日付, 出金No}; }
    // The key the slip is stored under, as loaded.
    伝票鍵 保持鍵() const { return {保持事業所コード, 保持番号基準日付, 保持出金No}; }
    伝票鍵 出張申請鍵() const { return {出張申請事業所コード, 出張申請番号基準日付, 出張申請No}; }
    // The date's three fields as the screen shows them, cut from 出金日付.
    void 出金日付を分ける() {
        出金日付年 = 出金日付.mid(0, 4);
        出金日付月 = 出金日付.mid(4, 2);
        出金日付日 = 出金日付.mid(6, 2);
    }
};

// The totals of the slip, added up from its lines after each change and overwritten on load.
struct 出金合計 {
    金額 出金金額合計;
    金額 出金消費税合計;
    金額 実質出金金額合計;
    金額 税抜出金金額合計;
    金額 税込出金金額合計;
    金額 前回税率出金金額合計;
    金額 前回税率出金消費税合計;
    金額 今回税率出金金額合計;
    金額 今回税率出金消費税合計;
};

// One slot of the line table; its tax fields are those the tax routines work on.
struct 出金行 : 明細税額 {
    short 費目区分 = 0;  // 0: an empty row
    QString 費目区分名称;
    QString 支払先;
    short 課税事業所区分 = 0;
    QString 摘要;
    QString 明細メモ;
    QString 出金固有行No;  // stable across corrections; empty or 0 until first saved
    QString 出金行No;      // position, rewritten at save
    QString 承認日付;
    QString 承認者コード;
    QString 承認区分;
    QString 登録日付;
    QString 更新日付;
};

// Lines a slip takes by typing and by the line commands.
inline constexpr int 最大行数 = 15;
// Slots of the line table: one more, a spare slot that only a trip application's sixteenth row
// fills; such a line is stored, loaded and shown like any other.
inline constexpr int 行枠数 = 最大行数 + 1;
inline constexpr int 表示行数 = 5;

// The columns (behind SELECT) and joins of the header read: staff joined inner, department and
// section outer.
extern const QString 出金見出し列;
extern const QString 出金見出し結合;

// The one session of a run: the data environment, the slip in memory and the flags that steer
// the screen. A test makes a fresh one for each case.
class 出金セッション {
  public:
    explicit 出金セッション(プラットフォーム& 基盤, QString プログラムID = u"紺碧帳"_qs)
        : データ(基盤, std::move(プログラムID)) {}

    データ環境 データ;
    出金見出し 見出し;
    出金合計 合計;
    // Typed lines use slots 0 to 14; the spare slot 15 holds a sixteenth imported line.
    std::array<出金行, 行枠数> 行;

    bool 新規情報フラグ = true;
    bool 入力変更フラグ = false;
    bool 連携起動フラグ = false;
    bool 連携新規フラグ = false;
    bool 白樺連携フラグ = false;
    bool 軽減税率表示 = false;
    short 登録確認結果 = 0;  // 0 登録印刷, 1 登録, 2 いいえ
    short 先頭行 = 0;
    short 現在行 = 0;
    short 表示行 = 0;
    short 最終行 = -1;

    // The notice the last commit leaves for the screen's message line.
    QString お知らせ文言;

    // Clearing the slip in memory.
    void 出金情報初期化();
    void 出金見出し初期化();
    void 出金明細初期化();
    void 出金行初期化(int 位置);
    void 出金合計初期化();

    // Loading stored slips and stepping between them.
    bool 出金キー検索(const ::伝票鍵& 鍵);
    void 出金見出し読込();
    // The same from a header row of another query, which is closed afterwards.
    void 出金見出し読込(記録集合& 結果);
    void 出金明細読込();
    void 出金検索破棄();
    // A number typed or picked into 出金No. A pick from the number list hands its row's key
    // ("C", office, number base date, number), which gives office and base date; the key is
    // taken (emptied) when it serves.
    bool 出金No確定(const QString& 入力No, std::optional<QString>& 答え);
    bool 出金No確定(const QString& 入力No) {
        std::optional<QString> 無し;
        return 出金No確定(入力No, 無し);
    }
    bool 前No確認();
    bool 次No確認();
    bool 前No読込();
    bool 次No読込();
    bool 過去明細取込(const QString& 鍵, int 位置);

    // A slot of the line table; past the spare slot the table ends with 添字範囲外.
    出金行& 行枠(int 位置);
    // The same, emptied for a line that comes in: the clear of the lines leaves the spare slot
    // as it was, so a line landing there must not take over what an earlier slip left.
    出金行& 新しい行枠(int 位置);
    // An expense class of K費目区分 by its code, as a line takes it over; the statement is
    // traced in the run history. False when no such class exists.
    bool 費目区分検索(int 区分, short& 新区分, QString& 名称, short& 内税外税区分);

    // The trip application typed or picked into 出張申請No, read from the HR link: its key to the
    // three reference fields and, on a slip without lines, its expense rows as lines. False
    // when the number is the one held. A run-time error part-way puts the slip back as it was.
    bool 出張申請確定(const QString& 入力No, std::optional<QString>& 答え);
    bool 出張申請確定(const QString& 入力No) {
        std::optional<QString> 無し;
        return 出張申請確定(入力No, 無し);
    }
    void 旅費明細取込();

    // The nine totals added up from the lines in use.
    void 合計再計算();
    // The key of the slip on screen (it may not be stored yet).
    ::伝票鍵 伝票鍵() const { return 見出し.鍵(); }

    // The slip date as typed: repaired, and what hangs on it derived again (number period,
    // proposal, aggregate date, tax rates).
    void 出金日付確定();
    // Staff by code in the slip's office or the head office, present staff only. The result
    // stays open for 担当者取込, or is closed by the caller.
    bool 担当者検索(const QString& コード);
    void 担当者取込();
    void 担当者検索破棄() { 担当者結果.閉じる(); }

    // Storing the slip in memory: a new slip, or a correction as the old rows moved to the
    // history and the new state inserted afresh. Every statement stands alone; a failure is
    // logged and the sequence goes on, so a store never stops half-way with an error.
    // False when the number typed by hand is already stored, or when the batch did not commit.
    bool 新規登録処理();
    void 修正登録処理();

    // The steps of a store, in the orders above; a deletion runs the two old-state writers.
    bool 番号採番確認();
    void 出金情報書込();
    void 出金明細情報書込();
    void 出金履歴書込();
    void 出金明細履歴書込();
    QString 出金履歴No採番();
    void 後処理();

    // The outcome of the last statement of a store: each statement overwrites both.
    // 1 inserted, 3 insert failed or number taken, 4 schedule update failed, 5 schedule
    // updated, 6 delete failed or nothing to delete, 7 deleted.
    short 処理結果区分 = 0;
    QString 処理結果メッセージ;
    // The batch of the last store or deletion did not commit: none of it stands, and the slip
    // in memory is back as it was before (処理結果区分 3 or 6).
    bool 保存未確定 = false;

    // Deleting the stored slip: its rows moved to the history as the old state and removed,
    // the queue told, and the schedule's link to it emptied.
    void 削除処理();
    // The question before a deletion, with a warning when a schedule row points at the slip.
    QString 削除確認文言();

    // The schedule activities of the sibling program that point at the stored slip (its kept
    // key). True when none does. A failed read counts as none.
    bool 日程連携確認();
    // Moves those links to the slip's new key, after a correction that took the slip into
    // another number sequence.
    void 日程連携書換();
    // Empties those links, after a deletion.
    void 日程連携解除();

  private:
    struct 保存前控え {
        出金見出し 見出し;
        decltype(出金セッション::行) 行;
    };
    保存前控え 控えを取る();
    // True when the batch committed; otherwise puts the slip back as it was before the store.
    bool 確定を確かめる(const 保存前控え& 控え);
    QString 隣接文(bool 前) const;
    bool 行あり(const QString& 文);
    void 挿入結果(bool 成功);
    void 削除結果(bool 成功);
    void 挿入を送る(const QString& 文, bool 履歴 = false);
    void 削除を送る(const QString& 文, bool 履歴 = false);
    bool 隣接読込(bool 前);
    bool 出張申請適用(const QString& 入力No, std::optional<QString>& 答え);
    void 日程連携更新(const QString& 設定);

    記録集合 見出し結果;  // open between 出金キー検索 and 出金見出し読込
    記録集合 担当者結果;  // open between 担当者検索 and 担当者取込
};
