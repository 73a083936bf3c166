#pragma once

#include <QHash>
#include <QList>
#include <QQueue>
#include <QString>
#include <exception>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "screen/画面状態.h"
#include "screen/部品.h"
#include "screen/部品名.h"

// A window's control table and the spacing of its control arrays.
struct 部品表 {
    std::span<const 部品定義> 行;
    int 配列間隔 = 0;  // twips between the members of a control array
    int タブ間隔 = 0;  // tab index step between the members of a control array
};

// A screen as a model: its controls by name (control arrays by name and index), the focus, and
// the events an operator's actions fire. Focus moves asked for inside an event are queued and
// delivered after the event returns, in order, as the platform's message queue delivers them.
// The model owns every rule of focus, clicks, pages and visibility; a window only draws it.
class 画面モデル {
  public:
    explicit 画面モデル(QString 名前) : 名前(std::move(名前)) {}
    画面モデル(const 画面モデル&) = delete;
    画面モデル& operator=(const 画面モデル&) = delete;

    const QString 名前;
    QString Caption;
    // Where the focus was and goes, and the hand-over to the list windows over this screen.
    画面状態 状態;
    int Width = 0, Height = 0;

    // Makes every control of the table, in its order.
    void 作る(const 部品表& 表);
    部品& 追加(const 部品定義& 定義, int 添字 = -1);
    部品& 追加(const QString& 名前, 部品種別 種別, int 添字 = -1);
    // A control by the constant of its name; a text of a name (a table's link, a list's
    // condition field) finds it the same way, by a hash of name and index.
    部品* 探す(部品名 名前, int 添字 = -1) { return 探す(名前.文字列(), 添字); }
    const 部品* 探す(部品名 名前, int 添字 = -1) const { return 探す(名前.文字列(), 添字); }
    部品& operator()(部品名 名前, int 添字 = -1) { return (*this)(名前.文字列(), 添字); }
    部品* 探す(const QString& 名前, int 添字 = -1);
    const 部品* 探す(const QString& 名前, int 添字 = -1) const;
    部品& operator()(const QString& 名前, int 添字 = -1);
    // Every control in the order of creation, as the platform enumerates a form's controls.
    std::vector<部品*> 全部品() const;

    // Whether the operator sees the control: it and every container up are Visible, and a
    // control on a page of a tab control is seen only while that page is up.
    bool 見えるか(const 部品& p) const;
    // Whether the control can take the focus now, by code or by a click: a class that holds a
    // focus, seen, and enabled. The tab stop plays no part.
    bool 焦点可(const 部品& p) const;

    部品* フォーカス() const { return 現在; }
    // A focus move asked for by code: delivered once the running event has returned.
    void SetFocus(部品& 先);
    // A value set by code: a scroll bar's stays within Min..Max, and its change event runs
    // only when the value moved.
    void 値設定(部品& 先, int 値);
    // A text set by code: the change event runs when the text is another, as typing runs it.
    void 文字設定(部品& 先, const QString& 文字列);

    // What an operator does. Each runs its events and then every focus move they queued.
    void 操作_フォーカス(部品& 先);                   // click into a field or tab to it
    void 操作_入力(部品& 先, const QString& 文字列);  // focus it and type the text
    void 操作_Tab();
    void 操作_ShiftTab();
    // A click: the control takes the focus first when it can; a check box then turns over, but
    // only if the focus stayed on it.
    void 操作_クリック(部品& 先);
    void 操作_ダブルクリック(部品& 先);
    // A key goes to the window first (KeyPreview), then to the control. In a list view the
    // arrow, page, Home and End keys move the selected row once the control has seen them.
    void 操作_キー(部品& 先, キーコード キー);
    // A row of a list view clicked (the list takes the focus and the row is selected), double
    // clicked (then the list's double click runs), or a column heading clicked.
    void 操作_項目選択(部品& 先, int 行);
    void 操作_項目ダブルクリック(部品& 先, int 行);
    void 操作_列クリック(部品& 先, int 列番号);
    // A scroll bar moved, a tab page or a list entry chosen. The control takes the focus first;
    // a list takes the choice only if the focus stayed on it.
    void 操作_値変更(部品& 先, int 値);

    // Called when an event ends in a run-time error (an overflow, a date beyond the calendar):
    // the operation is abandoned there and the screen goes on. Without a handler the error
    // passes to the caller.
    std::function<void(const std::exception&)> 異常時;
    // The window's own look at every key before its control; true when it dealt with the key.
    std::function<bool(キーコード)> KeyPreview;

    // Writes to the controls without their events reading it back as input: while the screen
    // is being drawn, no event of a control runs, except those of a control that takes events
    // always (部品::表示中も受ける). A display inside another keeps the outer one's guard.
    template <class F>
    void 表示(F&& 書く) {
        const bool 外 = 表示中;
        表示中 = true;
        書く();
        表示中 = 外;
    }
    bool 表示中か() const { return 表示中; }

    // The next or previous control in tab order that can take the focus and is a tab stop.
    部品* 次のタブ(const 部品* 起点, bool 逆) const;

  private:
    // The one door through which every event of a control runs: the display guard, the cause
    // the focus trace names, and the handler of a run-time error.
    void 呼ぶ(const 部品* 元, const char16_t* 事象名, const std::function<void()>& 事象);
    void 移す(部品* 先, const QString& 理由);
    void 待つ(部品* 先, const QString& 理由);
    void 操作で移す(部品& 先, const QString& 原因);
    void 待ちを処理();
    void 値を変える(部品& 先, int 値);
    bool 処理中 = false;
    bool 表示中 = false;
    // What set the focus moving: the operator's action, or the event whose rule asked for it.
    QString 操作原因;
    QString 事象中;

    std::vector<std::unique_ptr<部品>> 部品群;
    QHash<std::pair<QString, int>, 部品*> 索引;
    部品* 現在 = nullptr;
    struct 焦点移動 {
        部品* 先;
        QString 理由;
    };
    QQueue<焦点移動> 待ち;
};
