#pragma once

#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>
#include <QVariant>
#include <memory>

#include "text/金額.h"

// The result of one query, read forward by column name. The caller closes it on every path,
// whether the query answered True or not.
class 記録集合 {
  public:
    記録集合() = default;

    bool EOFか() const { return !当行あり; }
    void MoveNext();
    void 閉じる();

    // The column as it came from the engine; an unknown column reads as Null.
    QVariant 値(const QString& 列名) const;
    bool Null(const QString& 列名) const { return 値(列名).isNull(); }
    bool Null(int 列) const { return 値(列).isNull(); }
    bool 列あり(const QString& 列名) const { return 列番号(列名) >= 0; }
    // The columns by place, for readers that take them in the order of the SELECT.
    int 列数() const;
    QVariant 値(int 列) const;
    // Null reads as "" and 0, the rule most readers of the suite follow.
    QString 文字列(const QString& 列名) const;
    QString 文字列(int 列) const;
    // Numeric value of the column's text, as the suite reads numbers stored as text or number.
    double 数値(const QString& 列名) const;
    short 整数(const QString& 列名) const;
    // Money exactly as stored, rounded half to even at the fourth decimal.
    金額 金額値(const QString& 列名) const;
    金額 金額値(int 列) const;

  private:
    friend class データ接続;
    int 列番号(const QString& 列名) const;
    bool 読める列(int 列) const;  // a column of the current row

    std::unique_ptr<QSqlQuery> 問合せ;
    bool 当行あり = false;
    mutable QSqlRecord 列一覧;  // the columns, read once per result
};

// Money from a value as an engine gives it, a whole number or a text; what is no amount, or
// too large for one, reads as 0.
金額 金額の整数読込(qint64 整数);
金額 金額の文字列読込(const QString& 文字列);

// A 16-bit integer by the numeric value of a text; what does not fit or is no number reads as 0.
short 整数変換(const QString& 文字列);
