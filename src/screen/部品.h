#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "text/キーコード.h"

class 画面モデル;

// The classes of control a screen is made of; their names are what the focus walk tests.
enum class 部品種別 {
    xField,
    xNum,
    xText,
    xLabel,
    xPass,  // a field that hides what is typed
    SSCommand,
    SSPanel,
    SSTab,
    ListView,
    ComboBox,
    CheckBox,
    VScrollBar,
    CommonDialog,
    OptionButton,  // one of a group: choosing it turns the others of its array off
    ProgressBar,   // shows how far a long run has come: Value between Min and Max
};

QString 種別名(部品種別 種別);

struct 位置指定 {
    int 左 = 0, 上 = 0, 幅 = 0, 高さ = 0;  // twips, relative to the screen's inner area
};

// What a field accepts as it is typed: digits only, at most so many before and after the
// decimal point, a leading minus where the control allows it. 整数桁 0: no rule of its own.
struct 数字制限 {
    int 整数桁 = 0;
    int 小数桁 = 0;
    bool 符号 = false;
};

// One row of a window's control table: everything about a control that does not change while
// the window is up. A control array has one row; its members stand 配列間隔 below each other and
// add タブ間隔 to the tab index, as the window's table says.
struct 部品定義 {
    const char16_t* 名前 = u"";
    部品種別 種別 = 部品種別::xField;
    const char16_t* 題 = u"";  // Caption
    位置指定 位置;
    const char16_t* 親 = u"";  // the container it stands in; empty for the screen itself
    int 配列 = 0;              // members of a control array; 0 for a single control
    int 順 = -1;               // TabIndex; -1: no place in the traversal
    bool 停止 = false;         // TabStop
    int 長さ = 0;              // MaxLength
    数字制限 数字;
    int 最小 = 0, 最大 = 0;      // Min and Max of a number field or scroll bar; both 0: none
    int 頁 = -1;                 // the page of the tab control it stands on; -1: not on a tab page
    int 区分 = 0;                // section of the order guard: 1 header, 2 rows, 3 tail; 0 none
    int 序数 = 0;                // ordinal in its section
    bool 必須 = false;           // the header's required item of that ordinal
    const char16_t* 結び = u"";  // a title panel: the item a click on it stands for
};

// A column of a list view in report mode: its heading, width in twips, and whether its text
// stands at the right edge, as figures do.
struct 一覧列 {
    QString 見出し;
    int 幅 = 0;
    bool 右寄せ = false;
};

// One row of a list view: the first column's text, the key that finds the row, and the further
// columns; an empty sub-item is an empty cell. A list whose keys follow from the row leaves Key
// empty and gives its rule (部品::鍵規則); 順 is the place the row was added in, from 1, which a
// sort leaves as it was.
struct 一覧項目 {
    QString Text;
    QString Key;
    QStringList SubItems;
    int 順 = 0;
};

// One control of a screen model: the row of the table it was made from, and the properties the
// logic reads and writes while the window is up.
struct 部品 {
    部品定義 定義;
    QString 名前;
    int 添字 = -1;  // position in a control array (the visible row), -1 for a single control
    部品種別 種別 = 部品種別::xField;
    部品* 親 = nullptr;          // the container, resolved when the screen is built
    画面モデル* 所属 = nullptr;  // the screen it stands on

    QString Text;
    QString Caption;
    bool Enabled = true;
    bool Visible = true;
    bool TabStop = true;
    int TabIndex = -1;  // -1: no place in the traversal
    int MaxLength = 0;
    int Left = 0, Top = 0, Width = 0, Height = 0;
    int ForeColor = -1;  // 0xRRGGBB; -1: the window text colour
    // Its events run even while the screen is being drawn (the quit is always there).
    bool 表示中も受ける = false;

    int Value = 0;  // check box (0/1), scroll bar, tab page
    int Min = 0, Max = 0, LargeChange = 1;
    QStringList 一覧;  // ComboBox items
    int ListIndex = -1;

    // A list view's columns and rows, its selected row (-1: none) and its own sort on cell text.
    QList<一覧列> 列;
    QList<一覧項目> 項目;
    int 選択 = -1;
    int SortKey = 0;  // column counted from 0
    bool 降順 = false;
    bool Sorted = false;
    int 項目版 = 0;  // counts every change of the rows, so that a window redraws only then
    void 項目クリア();
    // The same, handing the former rows to the caller, who lets them go when it suits.
    QList<一覧項目> 項目取出し();
    // Adds a row at the end; the first row into an empty list becomes the selected one, as the
    // platform's list view does. While sorting is on, the filler sorts once it has added all.
    void 項目追加(一覧項目 項目);
    // Sorts the rows by the text of column SortKey; the selected row stays selected.
    void 並べ替え();
    QString セル(int 行, int 列番号) const;
    // The key of a row: its own, or the one the list's rule makes of it.
    QString 鍵(int 行) const;
    std::function<QString(const 一覧項目&)> 鍵規則;

    // Events; each model routine sets those it handles.
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void()> Change;
    std::function<void(キーコード)> KeyDown;
    std::function<void(int)> ColumnClick;  // a list view's heading, counted from 1

    // Name and index as the focus trace prints them: "出金金額(0)".
    QString 表記() const;
    // A class of control that can hold the focus at all; labels and panels never do.
    bool 焦点を持てる種別() const;
    // Whether the text may stand in the field as typed: its length, and the digits, sign and
    // decimals of a number field. A partial number ("-", "12.") may stand while typing.
    bool 入力可(const QString& 文字列) const;
};
