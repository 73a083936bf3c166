#pragma once

#include <QString>

#include "text/レジストリ.h"

class プラットフォーム;

// The workstation's set-up for the reports that Access prints from the user's report folder:
// which Office is installed, and what that version needs in the registry to open the folder's
// files without a warning. Every failure is a plain box or nothing; the caller goes on.
class Access環境 {
  public:
    Access環境(レジストリ& 登録簿, プラットフォーム& 基盤, QString 帳票フォルダ);

    // True when the routine of the installed version completed; False without Access, without
    // its key, or for a version that is not known.
    bool Access環境設定();
    // True when the key of the file associations could be opened.
    bool Access関連付け(const QString& Accessフォルダ);
    bool Accessセキュリティ設定(const QString& Accessフォルダ);
    bool 信頼済み場所設定(const QString& Accessフォルダ, const QString& 信頼フォルダ,
                          const QString& キー版);

  private:
    void 書込不可();

    レジストリ& 登録簿;
    プラットフォーム& 基盤;
    const QString 帳票フォルダ;
};
