#pragma once

#include <QMainWindow>
#include <functional>

#include "app/起動処理.h"

// The entry screen's window until its controls are drawn: the caption it will carry, and the
// quit by its frame.
class EntryWindow : public QMainWindow {
  public:
    explicit EntryWindow(出金セッション& セッション);
    // The caption the entry screen carries: the company's name and the program's.
    void 画面読込();

    std::function<void()> 閉じる時;  // the stop sequence
    std::function<void()> 表示後;    // called once the window is on screen

  protected:
    void closeEvent(QCloseEvent* e) override;
    void showEvent(QShowEvent* e) override;

  private:
    出金セッション& s;
    bool 表示済み = false;
};

// Binds the start-up's view of the screen to the window.
class 仮入力画面 : public 入力画面 {
  public:
    explicit 仮入力画面(EntryWindow& w) : 窓(w) {}
    std::function<void()> 伝票読込;  // the slip part of the load step
    void 表示() override;
    void 既定フォーカス設定() override {}

  private:
    EntryWindow& 窓;
};
