#pragma once

#include "lists/一覧画面.h"

// The slip number list: stored slips of T出金, newest first, by date, number, staff name or
// staff code. The pick answers with the slip's key and the window is unloaded after use.
class wnd出金No一覧 : public 一覧画面 {
  public:
    wnd出金No一覧(出金セッション& s, 画面モデル& 主画面);
    static const 部品表 部品定義表;

    void 読込() override;

  protected:
    QString 検索文作成() override;
    void 行を加える(記録集合& rs, int 件数) override;
    bool 鍵を返す() const override { return true; }
    QString 登録画面題() const override { return {}; }
    void 一覧初期条件展開() override;
};
