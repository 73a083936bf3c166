#pragma once

#include <QStringList>

#include "common/エンジン別試験.h"

// A fixture with one table of values, 試験表, in the tree's general database on either engine.
class 試験表試験 : public エンジン別試験 {
  protected:
    explicit 試験表試験(const char16_t* 列定義) : 列定義(列定義) {}
    void SetUp() override {
        エンジン別試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        ASSERT_TRUE(
            木->業務DB実行(u"CREATE TABLE 試験表 ("_qs + QString::fromUtf16(列定義) + u")"_qs));
    }
    // The values of the table, sorted.
    QStringList 試験表() {
        QStringList r;
        for (const auto& 行 : 木->業務DB行(u"SELECT 値 FROM 試験表"_qs)) r << 行[0].toString();
        r.sort();
        return r;
    }

  private:
    const char16_t* 列定義;
};

// The same, with both databases of the tree opened as the program opens them.
class 開いた試験表試験 : public 試験表試験 {
  protected:
    using 試験表試験::試験表試験;
    void SetUp() override {
        試験表試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        開く();
    }
};
