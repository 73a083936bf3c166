#pragma once

#include <optional>

#include "lists/一覧画面.h"

// The controls of the payee register that its code reaches by name.
struct 支払先登録部品 {
    static constexpr 部品名 支払先{u"支払先"};
    static constexpr 部品名 登録番号{u"登録番号"};
    static constexpr 部品名 登録名称{u"登録名称"};
    static constexpr 部品名 有効開始日{u"有効開始日"};
    static constexpr 部品名 有効終了日{u"有効終了日"};
    static constexpr 部品名 btn_追加{u"btn_追加"};
    static constexpr 部品名 btn_変更{u"btn_変更"};
    static constexpr 部品名 btn_削除{u"btn_削除"};
    static constexpr 部品名 lab_お知らせ{u"lab_お知らせ"};
    static constexpr 部品名 List支払先登録{u"List支払先登録"};
};

// One registration as the operator types it: the payee as typed in a slip line's 支払先, the
// invoice registration number, the registered name and the period, dates "yyyymmdd" (an empty
// end is open).
struct 支払先登録 {
    QString 支払先;
    QString 登録番号;
    QString 登録名称;
    QString 有効開始日;
    QString 有効終了日;
};

// The refusal of a registration before it is stored, in Japanese; empty when it may be stored.
// 他の期間 are the periods (start, end) the payee already has, apart from the one changed.
QString 支払先登録検査(const 支払先登録& r, const QList<QPair<QString, QString>>& 他の期間);

// The payee register: every registration listed, a row taken into the fields by Enter or a
// double click, and added, changed or deleted from the fields. Its refusals are message boxes;
// what was done is told in the window's notice.
class wnd支払先登録 : public 一覧画面 {
  public:
    wnd支払先登録(出金セッション& s, 画面モデル& 主画面);
    static const 部品表 部品定義表;

    void 読込() override;
    // The clear button empties the fields and forgets the row taken.
    void 条件クリア() override;
    int 行上限() const override { return 0; }

    void 追加();
    void 変更();
    void 削除();
    // The selected row into the fields, as the one a change or a delete acts on.
    void 行を取る();

  protected:
    QString 検索文作成() override;
    QString 登録画面題() const override { return {}; }

  private:
    支払先登録 入力() const;
    // The registration typed, checked; false after the refusal was shown.
    bool 確かめる(const 支払先登録& r);
    QList<QPair<QString, QString>> 期間(const QString& 支払先);
    bool 実行(const QString& 文);
    // After a store: the fields empty, the rows read again with the stored one selected.
    void 済んだ(const QString& 知らせ, const 支払先登録* 選ぶ行);
    QString 鍵句() const;

    std::optional<支払先登録> 取った行;  // the row a change or a delete acts on
};
