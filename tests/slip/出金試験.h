#pragma once

#include "common/エンジン別試験.h"
#include "common/伝票投入.h"
#include "common/出金準備.h"
#include "common/文字列表示.h"
#include "slip/出金セッション.h"

// A session on the sample tree, opened and initialised as at the program's start, on both
// engines.
class 出金試験 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        出金セッション準備(s, *木);
        if (HasFatalFailure()) return;
        s.出金情報初期化();
    }

    void 投入(const QString& No, const QString& 日付, int 行数 = 2,
              const QString& 基準日付 = u"20260331"_qs) {
        試験伝票 t;
        t.出金No = No;
        t.出金日付 = 日付;
        t.行数 = 行数;
        t.番号基準日付 = 基準日付;
        ASSERT_TRUE(伝票投入(*木, t));
    }

    // The stored slip by its key, as the slip No field loads it.
    bool 読込(const QString& No, const QString& 基準日付 = u"20260331"_qs) {
        if (!s.出金キー検索({u"000"_qs, 基準日付, No})) {
            s.出金検索破棄();
            return false;
        }
        s.出金見出し読込();
        s.出金明細初期化();
        s.出金明細読込();
        return true;
    }

    // The rows of a query on the general database, each as its values joined by "|".
    QStringList 表の行(const QString& 文) {
        QStringList r;
        for (const auto& 行 : 木->業務DB行(文)) {
            QStringList 値;
            for (const auto& v : 行) 値.append(v.toString());
            r.append(値.join(u'|'));
        }
        return r;
    }

    出金セッション s{基盤};
};
