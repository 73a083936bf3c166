#pragma once

#include "common/人事連携試験.h"
#include "lists/一覧試験.h"

// The lists over the tree with the HR system 白樺 beside it, its general database in SQLite or
// in PostgreSQL; the program starts with the link open. The scripted clock stands on
// 2026-11-23, in the fiscal year of the sample applications.
class 人事一覧試験 : public 一覧操作<人事連携試験> {
  protected:
    bool 人事(const QString& 文) { return 木->人事DB実行(文); }
    // An employee of the HR system's master.
    bool 社員追加(const QString& コード, const QString& 氏名, const QString& 事業所 = u"000"_qs,
                  const QString& 部門 = u"001"_qs, const QString& セクション = u"001"_qs,
                  const QString& 在籍 = u"0"_qs, const QString& 社員区分 = u"1"_qs) {
        return 人事(
            u"INSERT INTO M社員 (コード, 氏名, カナ, 事業所コード, 部門コード, セクションコード, 社員区分, 在籍区分) VALUES ('"_qs +
            コード + u"', '"_qs + QString(氏名).replace(u"'"_qs, u"''"_qs) + u"', 'テスト', '"_qs +
            事業所 + u"', '"_qs + 部門 + u"', '"_qs + セクション + u"', '"_qs + 社員区分 +
            u"', '"_qs + 在籍 + u"')"_qs);
    }
};
