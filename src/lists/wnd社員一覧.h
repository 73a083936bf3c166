#pragma once

#include "lists/wnd担当者一覧.h"

// One employee's state as of today, as the personnel event tables tell it.
struct 社員状態 {
    QString 社員コード;
    QString 社員名;
    QString カナ;
    QString 事業所コード, 事業所名;
    QString 部門コード, 部門名;
    QString セクションコード, セクション名;
    QString 役職コード, 役職名;
    QString 職責;
    QString 就業形態コード, 就業形態名;
    short 社員区分 = 0;
    QString 社員区分名;
    short 在籍区分 = 0;  // 0 on the roll, 1 on leave, 2 retired
    QString 在籍区分名;
};

// The employee list: the staff list over M社員 of the HR system's database. It also works out an
// employee's state from the personnel events and tests it against its own conditions; no
// screen of this program asks for that, the list is filled from M社員 alone.
class wnd社員一覧 : public wnd担当者一覧 {
  public:
    wnd社員一覧(出金セッション& s, 画面モデル& 主画面);

    社員状態 状態;
    // Fills 状態 for the employee as of today: retirement, leave, the latest transfer (or the
    // picture before the first one to come), the hiring record, the master, and a name change.
    void 社員状態判定(const QString& 社員コード);
    // Whether 状態 fits the window's present status, class, name, kana, office, department and
    // section conditions.
    void 社員条件照合(bool& 照合) const;

  private:
    // The state from a row whose columns for office, department and so on bear 接頭 ("異動",
    // "前", "採用" or nothing), with their names beside them.
    void 状態を写す(const 記録集合& rs, const QString& 接頭, const QString& 名前列);
};
