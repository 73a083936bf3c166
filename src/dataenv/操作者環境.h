#pragma once

#include <QString>

#include "dataenv/操作権限.h"

class 接続環境;
class 会社環境;

// The operator and his rights, read anew at every check so that a change of operator in
// another program counts at once.
class 操作者環境 {
  public:
    操作者環境(接続環境& 接続, const 会社環境& 会社設定);
    操作者環境(const 操作者環境&) = delete;
    操作者環境& operator=(const 操作者環境&) = delete;

    const 操作者情報& 操作者() const { return 操作者_; }
    // The operator the PIN window confirms; nothing is read or written yet.
    void 担当者コード設定(const QString& コード) { 操作者_.担当者コード = コード; }
    // Values put in by hand, as a test needs them, over those read.
    template <class 変更>
    void 操作者変更(変更 f) {
        f(操作者_);
    }
    // The operator was confirmed and the last decision permitted.
    bool 権限確認済() const { return 権限確認済_; }
    void 権限確認済設定(bool 値) { 権限確認済_ = 値; }
    // Caption of the PIN window for the check that opens it.
    const QString& 暗証確認題名() const { return 暗証確認題名_; }

    bool 操作者読込();
    bool 操作者情報読込(const QString& 担当者コード);
    void 操作者確定();
    bool 操作権限判定(const QString& 業務メニュー, const QString& プログラムID, short 操作区分);
    bool 操作権限照会(const QString& 業務メニュー, const QString& プログラムID, short 操作区分);
    // -1 permitted; 0 nobody confirmed; 1 confirmed by PIN but refused (see 操作権限OK).
    short 操作権限確認(const QString& 業務メニュー, const QString& プログラムID, short 操作区分);
    // The one-line title of the main window: program, office or "(全社)", operator.
    QString 画面タイトル設定();

  private:
    接続環境& 接続;
    const 会社環境& 会社設定;
    操作者情報 操作者_;
    bool 権限確認済_ = false;
    QString 暗証確認題名_;
};
