#pragma once

#include <QString>

// A refused statement's description as Qt's PostgreSQL driver words it: the server's message,
// its SQLSTATE in parentheses when there is one, then the driver's own words, a space between
// unless the message ends its line.
inline QString QPSQLの説明(const QString& 本文, const QString& 番号) {
    QString s = 本文;
    if (!番号.isEmpty()) s += u'(' + 番号 + u')';
    if (!s.isEmpty() && !s.endsWith(u'\n')) s += u' ';
    return s + u"QPSQL: Unable to create query"_qs;
}
