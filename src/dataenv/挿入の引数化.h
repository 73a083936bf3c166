#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

// An INSERT of plain values as a statement with parameters, so that PostgreSQL parses and plans
// it once per connection instead of once per row. Each value keeps the type its literal has: a
// quoted text or NULL has none yet and takes the column's, a whole number is int4 or int8 as it
// fits, any other number is numeric, so that the column gets what the literal would give it.
struct 引数付き挿入 {
    QByteArray 文;               // "INSERT INTO T (a, b) VALUES ($1, $2)"
    std::vector<unsigned> 型;    // the type of each parameter, 0 when the server decides
    std::vector<QByteArray> 値;  // each as text
    std::vector<bool> Null;
    // What tells one prepared statement from another: the text and the parameters' types.
    QByteArray 鍵() const;
};

// False when the statement is anything but "INSERT INTO name (columns) VALUES (values)" with
// each value a quoted text, a number or NULL; it then goes to the server as it is.
bool 挿入を引数に(const QString& 単文, 引数付き挿入& 結果);
