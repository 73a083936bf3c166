#pragma once

#include <QString>

#include "dataenv/データ環境.h"
#include "screen/画面モデル.h"

// The dialogue that asks who is working and for his PIN, when a company uses PINs and the
// workplace's operator is not both known and permitted. On success that person becomes the
// operator of the workplace for every program of the suite.
class msg暗証番号確認 {
  public:
    // Builds the controls and registers the window's load and frame close with the platform.
    explicit msg暗証番号確認(データ環境& データ);

    static const 部品表 部品定義表;

    データ環境& d;
    画面モデル 画面{u"msg暗証番号確認"_qs};

    void 画面読込();
    // Fill the window from the staff member in service (or leaving later) of this office or
    // of head office; nothing changes when he is not found.
    bool 担当者読込(const QString& コード);
    bool 担当者読込ID(const QString& ログインID);
    void 暗証照合();
    void 取消();

  private:
    void 事象を結ぶ();
    void 担当者コード離脱();
    bool 担当者検索(記録集合& rs, const QString& 条件);
    void 不一致(const QString& 文言);

    QString 照合暗証;  // the expected PIN of the operator on screen, plain
};
