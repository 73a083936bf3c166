#pragma once

#include <QString>

// A log of every focus move with its cause, for the question "why did the focus land here?".
// Switched on by the environment: KONPEKI_FOCUS_TRACE=1 (or "-") writes to the standard error,
// any other value names a file the lines are appended to. Off, it costs one test per move.
struct 焦点記録 {
    static bool 有効();
    static void 書く(const QString& 行);
    // The destination as the variable would give it; empty switches the log off. Tests use it.
    static void 出力先設定(const QString& 先);
};
