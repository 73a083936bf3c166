#pragma once

#include "lists/一覧画面.h"

// The department list and the section list: one window over M部門 or Mセクション, filtered only
// by the operating status, every row at once.
class wnd部門一覧 : public 一覧画面 {
  public:
    // 対象 is "部門" or "セクション": it names the window, its list, its master and its title.
    wnd部門一覧(出金セッション& s, 画面モデル& 主画面, const QString& 対象);
    static const 部品表 部門部品定義表;
    static const 部品表 セクション部品定義表;

    void 読込() override;
    void 条件クリア() override;
    int 行上限() const override { return 0; }

  protected:
    QString 検索文作成() override;
    QString 登録画面題() const override { return 対象 + u"登録"_qs; }

  private:
    const QString 対象;
    QString 表() const { return u"M"_qs + 対象; }
};
