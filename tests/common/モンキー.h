#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "screen/frm紺碧帳.h"

// The random operator of the monkey tests: a small generator of its own, so that one seed gives
// the same events on every machine and library.
class 乱数 {
  public:
    explicit 乱数(std::uint64_t 種) : 状態(種) {
        // Seeds next to each other must not give one stream shifted by a step.
        状態 = 次() ^ 0xD1B54A32D192ED03ull;
    }
    std::uint64_t 次() {
        // splitmix64
        std::uint64_t z = (状態 += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    int 範囲(int n) { return n <= 0 ? 0 : static_cast<int>(次() % static_cast<std::uint64_t>(n)); }
    bool 確率(int 百分率) { return 範囲(100) < 百分率; }
    template <class T>
    const T& 選ぶ(const QList<T>& 候補) {
        return 候補[範囲(static_cast<int>(候補.size()))];
    }

  private:
    std::uint64_t 状態;
};

// What an operator types: codes and numbers of every size, dates, amounts with signs and
// separators, Japanese text, quotes, and junk.
QString モンキー文字列(乱数& r);

// The screen's promises after any event: the focus on a control that can hold it, the totals
// the sum of the lines, no line past the fifteenth and the row cursors inside the grid. Empty
// when all hold, else what broke.
QString 画面不変条件(const frm紺碧帳& f);
