#pragma once

#include <QString>
#include <optional>

struct 部品;

// What a caller asks of a list window: its condition, the field the picked row goes into, and
// where the focus goes afterwards; for a list opened from another list, that list's window.
struct 一覧依頼 {
    QString 条件;  // SQL the list adds to its search; the list takes its preset fields out of it
    部品* 設定先 = nullptr;
    部品* 名称先 = nullptr;
    QString 呼出元画面;
    int 入れ子区分 = 0;  // 1 while the list stands over another list
};

// The focus-bearing state of a screen, shared with the list windows over it; the slip session
// knows nothing of it.
struct 画面状態 {
    部品* 離脱項目 = nullptr;      // the field the focus left last
    部品* 入力中項目 = nullptr;    // the field the focus went to last
    部品* 先頭入力項目 = nullptr;  // where a new slip starts
    一覧依頼 一覧;
    // The answer of a number or description list: the key of the picked row, until the field
    // it was picked for takes it. None after a back, a close, or a list that hands no key.
    std::optional<QString> 選択鍵;
    // The 19-character key of the stored slip a history window is opened on.
    QString 履歴鍵;
};
