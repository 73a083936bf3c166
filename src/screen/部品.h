#pragma once

#include <QString>
#include <QStringList>
#include <functional>

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

// One control of a screen model: the row of the table it was made from, and the properties the
// logic reads and writes while the window is up.
struct 部品 {
    部品定義 定義;
    QString 名前;
    int 添字 = -1;  // position in a control array (the visible row), -1 for a single control
    部品種別 種別 = 部品種別::xField;
    部品* 親 = nullptr;  // the container, resolved when the screen is built

    QString Text;
    QString Caption;
    bool Enabled = true;
    bool Visible = true;
    bool TabStop = true;
    int TabIndex = -1;  // -1: no place in the traversal
    int MaxLength = 0;
    int Left = 0, Top = 0, Width = 0, Height = 0;
    int ForeColor = -1;  // 0xRRGGBB; -1: the window text colour

    int Value = 0;  // check box (0/1), scroll bar, tab page
    int Min = 0, Max = 0, LargeChange = 1;
    QStringList 一覧;  // ComboBox items
    int ListIndex = -1;

    // Events; each model routine sets those it handles.
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void()> Change;
    std::function<void(int)> KeyDown;

    // A class of control that can hold the focus at all; labels and panels never do.
    bool 焦点を持てる種別() const;
    // Whether the text may stand in the field as typed: its length, and the digits, sign and
    // decimals of a number field. A partial number ("-", "12.") may stand while typing.
    bool 入力可(const QString& 文字列) const;
};
