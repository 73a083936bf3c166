#pragma once

#include <QString>
#include <functional>

#include "slip/コマンドライン.h"
#include "slip/出金セッション.h"

// What the start-up asks of the entry screen.
class 入力画面 {
  public:
    virtual ~入力画面() = default;
    // Shows the screen, not modal; showing runs its load step.
    virtual void 表示() = 0;
    // Puts the focus on the default control, 担当者コード.
    virtual void 既定フォーカス設定() = 0;
};

// No screen at all: the start and its routines run headless (tools, benchmarks, tests).
struct 画面なし : 入力画面 {
    void 表示() override {}
    void 既定フォーカス設定() override {}
};

enum class 起動結果 { 稼動, 停止 };

// The program's spine from process start to the first keystroke, and from the last command to
// the process end.
class 紺碧帳起動 {
  public:
    紺碧帳起動(出金セッション& セッション, 入力画面& 画面);

    // Answers whether another run of this program, linked or by hand, is up for this user and
    // program folder; asked at one fixed point of the start, by a hand start only.
    std::function<bool()> 他に起動中 = [] { return false; };

    起動結果 プログラム開始(const QString& コマンドライン);
    // The quit of the window: window procedure restore, 終了処理, HR link close.
    void 停止処理();

    // The slip part of the screen's load step: a new slip, a linked new slip, or the slip of
    // the start key.
    void 伝票読込();
    void 起動キー読込();
    void 起動条件読込();

    bool データベース開始();
    bool ユーザ情報初期化();
    void 連携条件項目登録(const QString& メニュー名, const QString& プログラム名);
    void 終了処理();

    起動コマンド コマンド;

  private:
    // The slip date from the clock, its parts and the whole; nothing derived yet.
    void 今日の出金日付();

    出金セッション& s;
    入力画面& 画面;
};
