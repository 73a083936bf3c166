#pragma once

#include <QList>

#include "audit/出金検索.h"
#include "lists/一覧画面.h"

// The slip search window over the entry screen (F9): conditions, the search, the slips found.
// A stored slip picked goes to the entry screen, which loads it as from the slip No list, and
// the window closes; a deleted one opens its history over the window. The row's first document
// opens with the desktop's program. Each opening starts with empty conditions.
class wnd出金検索 : public 一覧画面 {
  public:
    wnd出金検索(出金セッション& s, 画面モデル& 主画面);
    static const 部品表 部品定義表;

    void 読込() override;
    // btn_検索: the conditions checked (a wrong one is told in lab_知らせ), then the search.
    void 検索();
    // Enter or a double click on a row.
    void 開く();
    void 書類を開く();
    void 閉じる();
    // The conditions as the fields hold them.
    出金検索条件 画面の条件() const;
    // The slip of the selected row; null with none selected.
    const 出金検索行* 選択行() const;

  protected:
    QString 検索文作成() override;
    void 行を加える(記録集合& rs, int 件数) override;
    QString 登録画面題() const override { return {}; }
    void 条件クリア() override;

  private:
    void 知らせ(const QString& 文言);
    void 移した伝票を除く();
    QList<出金検索行> 結果;  // in the order read, which each row's 順 keeps after a sort
};
