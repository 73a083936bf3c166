#pragma once

#include "lists/番号一覧.h"

// The trip application list: applications of T出張申請 in the HR link's database, newest first,
// by date, number, employee name or employee code. The pick answers with the application's key,
// which the entry screen takes over, and the window is unloaded after use.
class wnd出張申請No一覧 : public 番号一覧 {
  public:
    wnd出張申請No一覧(出金セッション& s, 画面モデル& 主画面);
    static const 部品表 部品定義表;

  protected:
    void 行を加える(記録集合& rs, int 件数) override;
    QList<一覧列> 列群() const override;
};
