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

// One control of a screen model, with the properties the logic reads and writes. Geometry is in
// twips, relative to the screen's inner area.
struct 部品 {
    QString 名前;
    int 添字 = -1;  // position in a control array (the visible row), -1 for a single control
    部品種別 種別 = 部品種別::xField;
    QString 親;  // the container it stands in, by name; empty for the screen itself

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

    // A control that can take the focus by code or click.
    bool 入力可能() const;
};
