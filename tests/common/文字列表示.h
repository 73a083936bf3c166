#pragma once

#include <QString>
#include <ostream>

// Failing comparisons show texts as text, not as their UTF-16 units.
inline void PrintTo(const QString& 値, std::ostream* 出力) {
    *出力 << '"' << 値.toStdString() << '"';
}
