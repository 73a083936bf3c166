#pragma once

#include <functional>

#include "ledger/紺碧帳出力.h"
#include "screen/画面モデル.h"

// The controls of the export window that its code reaches by name.
struct 出力画面部品 {
    static constexpr 部品名 開始日{u"開始日"};
    static constexpr 部品名 終了日{u"終了日"};
    static constexpr 部品名 事業所コード{u"事業所コード"};
    static constexpr 部品名 opb_形式{u"opb_形式"};  // 0 yayoi, 1 csv
    static constexpr 部品名 出力先{u"出力先"};
    static constexpr 部品名 btn_出力{u"btn_出力"};
    static constexpr 部品名 btn_支払先登録{u"btn_支払先登録"};
    static constexpr 部品名 btn_終了{u"btn_終了"};
    static constexpr 部品名 pgb_進捗{u"pgb_進捗"};
    static constexpr 部品名 lab_結果{u"lab_結果"};
};

// The window of 紺碧帳出力 started without arguments: the command line's choices as fields,
// the export run with a progress bar, and its result (slips, lines and totals, or the refusal).
// The database is opened with the window and closed with it; the payee register opens from it.
class frm紺碧帳出力 {
  public:
    explicit frm紺碧帳出力(紺碧帳出力& 出力);
    frm紺碧帳出力(const frm紺碧帳出力&) = delete;
    frm紺碧帳出力& operator=(const frm紺碧帳出力&) = delete;

    画面モデル 画面{u"frm紺碧帳出力"_qs};
    static const 部品表 部品定義表;

    // The start: the database opened, the period proposed as the current month of all offices
    // in the 弥生 format. A database that cannot be used leaves only the end.
    void 読込();
    void 出力();
    // The end of the run, once: its end row, then the window is closed. Not while an export
    // runs, nor may the window be closed by its frame then.
    void 終了();
    bool 閉じてよいか() const { return !実行中; }

    // The window drawn again while an export runs, the operator's events let through; and the
    // window closed.
    std::function<void()> 途中表示;
    std::function<void()> 閉じる;

  private:
    void 使用可否(bool 可);
    紺碧帳出力& p;
    bool 開いた = false;
    bool 実行中 = false;
    bool 終了済み = false;
};
