#pragma once

#include <QMainWindow>
#include <functional>

#include "app/起動処理.h"
#include "screen/frm紺碧帳.h"

// The entry screen's window until its controls are drawn: the model's caption and size, and the
// quit by its frame.
class EntryWindow : public QMainWindow {
  public:
    explicit EntryWindow(frm紺碧帳& 画面);
    // Takes over what the model decided at its load.
    void 画面読込();

    std::function<void()> 閉じる時;  // the stop sequence
    std::function<void()> 表示後;    // called once the window is on screen

  protected:
    void closeEvent(QCloseEvent* e) override;
    void showEvent(QShowEvent* e) override;

  private:
    frm紺碧帳& 画面;
    bool 表示済み = false;
};

// Binds the start-up's view of the screen to the model and the window.
class 仮入力画面 : public 入力画面 {
  public:
    仮入力画面(frm紺碧帳& 画面, EntryWindow& w) : 画面(画面), 窓(w) {}
    void 表示() override;
    void 既定フォーカス設定() override;
    std::function<void()> 伝票読込;  // the slip part of the load step

  private:
    frm紺碧帳& 画面;
    EntryWindow& 窓;
};
