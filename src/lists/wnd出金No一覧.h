#pragma once

#include "lists/番号一覧.h"

// The slip number list: stored slips of T出金, newest first, by date, number, staff name or
// staff code. The pick answers with the slip's key and the window is unloaded after use.
class wnd出金No一覧 : public 番号一覧 {
  public:
    wnd出金No一覧(出金セッション& s, 画面モデル& 主画面);
    static const 部品表 部品定義表;

  protected:
    void 行を加える(記録集合& rs, int 件数) override;
    QList<一覧列> 列群() const override;
};
