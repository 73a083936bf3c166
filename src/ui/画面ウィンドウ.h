#pragma once

#include <QHash>
#include <QWidget>
#include <functional>

#include "screen/画面モデル.h"

class QTreeWidget;

// Draws a screen model with Qt widgets, one widget per control at the control's place, and hands
// what the operator does to the model. The model decides: after each operation every widget is
// brought in step with it, the focus included.
class ScreenWindow : public QWidget {
  public:
    explicit ScreenWindow(画面モデル& モデル, QWidget* 親 = nullptr);

    // Brings every widget in step with the model.
    void 反映();
    QWidget* ウィジェット(const 部品& p) const { return 対応.value(&p); }
    部品* 部品へ(QWidget* w) const;

    // Asked before the frame closes the window; false keeps it open.
    std::function<bool()> 閉じてよいか;
    std::function<void()> 閉じる時;

  protected:
    bool eventFilter(QObject* 対象, QEvent* 事象) override;
    void closeEvent(QCloseEvent* e) override;

  private:
    void 作る();
    // Runs an operator's action on the model: the text typed into the focused field goes to
    // the model first, and the widgets follow the model afterwards.
    void 操作(const std::function<void()>& 動作);
    void 入力を渡す();
    // The control's colour, or the window's own for that role when the control has none.
    void 色を合わせる(const 部品& p, QWidget* w, QPalette::ColorRole 役);
    // A mouse press on a control's widget; true when the press must go no further.
    bool 押下(部品& p, QWidget* w);
    // A list view's headings and rows, redrawn only when the model's rows changed.
    void 行を描く(const 部品& p, QTreeWidget* t);

    画面モデル& m;
    QHash<const 部品*, QWidget*> 対応;
    QHash<QWidget*, 部品*> 逆引き;
    QHash<const 部品*, int> 描いた版;
    bool 同期中 = false;
    const 部品* 焦点の部品 =
        nullptr;  // the model's focus when the widgets were last brought in step
};
