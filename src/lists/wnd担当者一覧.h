#pragma once

#include "lists/一覧画面.h"

// The staff list: a person of M担当者 found by code, kana, name, department or section, of a
// chosen status and class, handed back by code. The employee list is the same window over
// M社員 (see wnd社員一覧).
class wnd担当者一覧 : public 一覧画面 {
  public:
    wnd担当者一覧(出金セッション& s, 画面モデル& 主画面);
    static const 部品表 部品定義表;
    static const 部品表 社員部品定義表;

    void 読込() override;

  protected:
    // 対象 is "担当者" or "社員": it names the window, its list, its master and the
    // registration screen that unloads it.
    wnd担当者一覧(出金セッション& s, 画面モデル& 主画面, const QString& 対象);
    QString 検索文作成() override;
    QString 登録画面題() const override { return 対象 + u"登録"_qs; }
    void 一覧初期条件展開() override;

    const QString 対象;
    const QString 表;  // the master: M担当者 or M社員
};
