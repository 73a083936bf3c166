#pragma once

#include "common/エンジン別試験.h"
#include "common/伝票投入.h"
#include "common/出金準備.h"
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

    出金セッション s{基盤};
};
