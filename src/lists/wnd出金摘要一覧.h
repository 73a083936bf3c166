#pragma once

#include "lists/一覧画面.h"

// The description list: the first 20 characters of the descriptions of earlier lines, within a
// chosen period, to be used again on a line. Unloaded after use.
class wnd出金摘要一覧 : public 一覧画面 {
  public:
    wnd出金摘要一覧(出金セッション& s, 画面モデル& 主画面);
    static const 部品表 部品定義表;

    void 読込() override;
    void 条件クリア() override;
    int 期間 = 0;  // the chosen period option, 4 for all

  protected:
    QString 検索文作成() override;
    void 行を加える(記録集合& rs, int 件数) override;
    bool 鍵を返す() const override { return true; }
    QString 登録画面題() const override { return {}; }

  private:
    void 状態表示();
};
