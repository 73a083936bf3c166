#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

// A write of plain values as a statement with parameters, so that PostgreSQL parses and plans
// it once per connection instead of once per row. Each value keeps the type its literal has: a
// quoted text or NULL has none yet and takes the column's, a whole number is int4 or int8 as it
// fits, any other number is numeric, so that the column gets what the literal would give it.
struct 引数付き文 {
    QByteArray 型紙;           // "INSERT INTO T (a, b) VALUES ($1, $2)"
    std::vector<unsigned> 型;  // the type of each parameter, 0 when the server decides
    QByteArray 値列;           // the values as text, each ended by a NUL
    std::vector<int> 値位置;   // where each starts in 値列; -1 for NULL
    int 列数 = 0;              // an insert: the columns it names
    // What tells one prepared statement from another: the text and the parameters' types.
    QByteArray 鍵() const;
    // The values as the client library takes them.
    std::vector<const char*> 値() const;
    // An insert that names more or fewer columns than it gives values: every engine refuses it
    // before it looks at a row.
    bool 必ず失敗() const { return 列数 != 0 && 列数 != static_cast<int>(型.size()); }
};

// False when the statement is neither "INSERT INTO name (columns) VALUES (values)" nor
// "DELETE FROM name WHERE column = value [AND column = value]...", with each value a quoted
// text, a number or NULL; it then goes to the server as it is.
bool 文を引数に(const QString& 単文, 引数付き文& 結果);
