#pragma once

// The keys the screens act on, numbered as the platform's virtual keys: the Qt window maps its
// keys to these, and the models compare with them. Keys without a name here never reach a model.
enum class キーコード : int {
    なし = 0,
    Tab = 9,
    Enter = 13,
    Shift = 16,
    Ctrl = 17,
    Esc = 27,
    PageUp = 33,
    PageDown = 34,
    End = 35,
    Home = 36,
    Up = 38,
    Down = 40,
    F1 = 112,
    F2 = 113,
    F4 = 115,
    F5 = 116,
    F8 = 119,
    F9 = 120,
    F10 = 121,
    F12 = 123,
};
