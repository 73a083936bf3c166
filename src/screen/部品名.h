#pragma once

#include <QString>
#include <cstddef>

// The name of a control as a constant of its window, so that code reaches a control by a name
// the compiler knows: a misspelt control does not build. Texts of names (a table's container or
// title link, a list's condition fields) still find a control at run time.
class 部品名 {
  public:
    constexpr explicit 部品名(const char16_t* 文字) : 文字_(文字), 長さ_(数える(文字)) {}
    constexpr const char16_t* 文字() const { return 文字_; }
    // A table row takes the constant where it names a control.
    constexpr operator const char16_t*() const {
        return 文字_;
    }  // NOLINT(google-explicit-constructor)
    // The name as text without copying it: the constant lives as long as the program.
    QString 文字列() const {
        return QString::fromRawData(reinterpret_cast<const QChar*>(文字_), 長さ_);
    }
    constexpr bool operator==(const 部品名& 他) const { return 同じ(文字_, 他.文字_); }

    static constexpr bool 同じ(const char16_t* a, const char16_t* b) {
        for (; *a && *a == *b; ++a, ++b) {
        }
        return *a == *b;
    }

  private:
    static constexpr qsizetype 数える(const char16_t* s) {
        qsizetype n = 0;
        while (s[n]) ++n;
        return n;
    }
    const char16_t* 文字_;
    qsizetype 長さ_;
};

// Whether every constant names a row of the window's table, checked when the window's code is
// compiled: a constant without its control fails the build, not the first click on it.
template <std::size_t N, std::size_t M, class 行>
consteval bool 全て表にある(const 部品名 (&名)[N], const 行 (&表)[M]) {
    for (const 部品名& n : 名) {
        bool ある = false;
        for (const 行& r : 表) ある = ある || 部品名::同じ(n, r.名前);
        if (!ある) return false;
    }
    return true;
}
