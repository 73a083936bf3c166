#pragma once

#include <QList>

// The nearest-rank percentile P (1 to 100) of the samples: the ⌈P/100 × N⌉-th smallest of the N
// samples, always one of them. 0 when there are none.
double 最近順位百分位(QList<double> 標本, int P);
