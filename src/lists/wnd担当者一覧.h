#pragma once

#include "lists/一覧画面.h"

// The staff list: a person of M担当者 found by code, kana, name, department or section, of a
// chosen status and class, handed back by code.
class wnd担当者一覧 : public 一覧画面 {
  public:
    wnd担当者一覧(出金セッション& s, 画面モデル& 主画面);
    static const 部品表 部品定義表;

    void 読込() override;

  protected:
    QString 検索文作成() override;
    QString 登録画面題() const override { return u"担当者登録"_qs; }
    void 一覧初期条件展開() override;
};
