#include "百分位.h"

#include <algorithm>

double 最近順位百分位(QList<double> 標本, int P) {
    if (標本.isEmpty()) return 0;
    std::sort(標本.begin(), 標本.end());
    // The rank in whole numbers, so that 95 % of 20 is exactly 19 and not 19.000000000000004.
    const qsizetype N = 標本.size();
    const qsizetype 順位 = std::clamp<qsizetype>((P * N + 99) / 100, 1, N);
    return 標本[順位 - 1];
}
