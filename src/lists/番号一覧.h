#pragma once

#include "lists/一覧画面.h"

// What a number list is made of: its window, its statement's head and joins, the office column,
// the four condition fields with their clauses, buttons and orders, and the person whose name a
// code field looks up and whose list it opens.
struct 番号一覧定義 {
    const char16_t* 窓名;
    const char16_t* 題;
    const char16_t* 一覧名;
    int 幅;
    const char16_t* 表;     // the table whose columns a caller presets
    const char16_t* 列;     // the SELECT head
    const char16_t* 結合;   // the FROM of the 'A' and 'S' dialects
    const char16_t* 結合O;  // the FROM of the 'O' dialect, ending in its WHERE clause
    const char16_t* 事業所句;
    句定義 日付, 番号, 氏名, 人;
    句定義 氏名単独;  // the clause of the name button's own search
    const char16_t* 日付釦;
    const char16_t* 番号釦;
    const char16_t* 氏名釦;
    const char16_t* 人釦;
    const char16_t* 日付順;
    const char16_t* 番号順;
    const char16_t* 人順;  // the name and the person searches
    const char16_t* 新しい順;
    const char16_t* 人名欄;
    const char16_t* 人名文;  // the statement that looks the name up, the code and "'" follow
    const char16_t* 入れ子画面;
};

// The frame of the lists of numbered documents: from a date on, from a number on, by a
// person's name or code, newest first. The pick answers with the document's key ("C", office,
// number base date, number) and the window is unloaded after each use.
class 番号一覧 : public 一覧画面 {
  public:
    番号一覧(出金セッション& s, 画面モデル& 主画面, const 部品表& 表, const 番号一覧定義& 定義);

    void 読込() override;

  protected:
    QString 検索文作成() override;
    bool 鍵を返す() const override { return true; }
    QString 登録画面題() const override { return {}; }
    void 一覧初期条件展開() override;
    virtual QList<一覧列> 列群() const = 0;
    // A row's item: the number (SELECT column 2) as its text and the key made of the first
    // three columns, then the cells given.
    void 項目を加える(記録集合& rs, QStringList 欄);

    const 番号一覧定義& 定;
};
