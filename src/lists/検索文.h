#pragma once

#include <QString>

// A statement built clause by clause. Each clause is written as it follows another, opening
// with " AND "; the first one of the statement opens with " WHERE " instead, unless the base
// statement already ends in a WHERE clause.
struct 検索文 {
    QString 文;
    bool 条件あり = false;

    void 加える(const QString& 句) {
        文 += 条件あり ? 句 : u" WHERE "_qs + 句.mid(5);
        条件あり = true;
    }
};

// One field's clause of a search: its literal for the plain and for the negative search, and
// what closes it. A LIKE value goes through the quote doubling; a code or range value is
// inserted as it stands.
struct 句定義 {
    const char16_t* 欄;
    const char16_t* 正;
    const char16_t* 否;
    const char16_t* 閉じ;
    bool 曖昧 = false;
};
