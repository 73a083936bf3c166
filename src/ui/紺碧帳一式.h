#pragma once

#include <QString>

#include "audit/wnd出金履歴.h"
#include "audit/wnd出金検索.h"
#include "lists/wnd支払先登録.h"
#include "lists/一覧画面集.h"
#include "screen/frm紺碧帳.h"
#include "screen/msg暗証番号確認.h"
#include "slip/起動処理.h"
#include "ui/Qtプラットフォーム.h"
#include "ui/入力画面ウィンドウ.h"

// What the slip program is made of, as its main() makes it: the session on the Qt platform, the
// entry screen's model and window, the PIN dialogue, the print and wait messages, every list
// window and the windows of our own opened by function keys, all known to the platform by name, and
// the start-up over them. The program's folder decides the tree it opens.
struct 紺碧帳一式 {
    explicit 紺碧帳一式(const QString& プログラムフォルダ);
    紺碧帳一式(const 紺碧帳一式&) = delete;
    紺碧帳一式& operator=(const 紺碧帳一式&) = delete;

    Qtプラットフォーム 基盤;
    出金セッション セッション{基盤};
    frm紺碧帳 モデル{セッション};
    msg暗証番号確認 暗証確認{セッション.データ};
    一覧画面集 一覧群{セッション, モデル.画面};
    wnd出金履歴 履歴窓{セッション, モデル.画面};
    wnd出金検索 出金検索窓{セッション, モデル.画面};
    wnd支払先登録 支払先登録{セッション, モデル.画面};
    入力画面ウィンドウ 画面{モデル};
    紺碧帳起動 起動{セッション, 画面};
};
