#pragma once

#include <QByteArray>
#include <QStringView>
#include <vector>

#include "text/シフトJIS変換.h"

// CP932 for the many rows of an export: each UTF-16 unit is converted once through the system's
// table and remembered, so a row costs a lookup per character. The answers are those of
// CP932変換器: false with the place of the first unit that CP932 lacks, and the output as it was.
class CP932表 {
  public:
    bool 追加(QStringView 文字列, QByteArray& 出力, qsizetype& 不可位置);

  private:
    // The bytes of one unit: 1 or 2 in the low bits' count, the bytes above; 0 not yet asked,
    // 無し when CP932 has no form for it.
    quint32 引く(char16_t 単位);
    static constexpr quint32 無し = 0xFFFFFFFF;
    CP932変換器 変換器;
    std::vector<quint32> 表 = std::vector<quint32>(0x10000, 0);
};
