#pragma once

#include <QString>

#include "screen/画面モデル.h"
#include "slip/出金セッション.h"

// The question before a slip is stored: register only, register and print, or not at all. The
// answer is left in the session's 登録確認結果: 0 register and print, 1 register, 2 no.
class msg印刷確認 {
  public:
    static const 部品表 部品定義表;
    static constexpr int 赤192 = 0xC00000;  // the colour of a correction's question

    explicit msg印刷確認(出金セッション& セッション);

    出金セッション& s;
    画面モデル 画面{u"msg印刷確認"_qs};

    // Shows the question modally with its caption, note and text in the given colour (-1: the
    // window text colour); the quiet default is to register without printing.
    void 登録確認(const QString& 題, const QString& 注記, const QString& 本文, int 色);

  private:
    void 答える(short 結果);
};
