#pragma once

#include "screen/画面モデル.h"

// The modeless window that covers the screen while a slip is stored.
class msgお待ち {
  public:
    static const 部品表 部品定義表;
    msgお待ち();
    画面モデル 画面{u"msgお待ち"_qs};
};
