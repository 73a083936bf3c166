#pragma once

#include <QtGlobal>

#include <stdexcept>

// A failure of arithmetic or of the date builder. It ends the operation in progress, never the
// program: the event that started the operation catches it, drops what was half done and returns
// to the screen. Logic below that point lets it pass and does not catch it itself.
class 実行時エラー : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A value left the range of its type: a money value beyond signed 64 bits of ten-thousandths, or
// a small (16-bit) integer beyond -32768..32767.
class 桁あふれ : public 実行時エラー {
  public:
    桁あふれ() : 実行時エラー("オーバーフローしました。") {}
};

class ゼロ除算 : public 実行時エラー {
  public:
    ゼロ除算() : 実行時エラー("0 で除算しました。") {}
};

// A date whose year, after carrying months and days over, lies outside 100..9999.
class 日付範囲外 : public 実行時エラー {
  public:
    日付範囲外() : 実行時エラー("日付が範囲外です。") {}
};

// An index past the end of a fixed table, such as a line beyond the spare slot of the slip.
class 添字範囲外 : public 実行時エラー {
  public:
    添字範囲外() : 実行時エラー("インデックスが有効範囲にありません。") {}
};

// The small integers of the system are 16 bits wide; a result that does not fit overflows.
inline qint16 小整数へ(qint64 値) {
    if (値 < -32768 || 値 > 32767) throw 桁あふれ();
    return static_cast<qint16>(値);
}
