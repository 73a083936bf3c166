#pragma once

#include <QSqlDatabase>
#include <QSqlDriver>
#include <initializer_list>

// The engine's own connection behind a Qt connection, for the few calls Qt does not offer;
// null when the driver's handle is not of one of the type names given.
template <class T>
T* ドライバの手(const QSqlDatabase& db, std::initializer_list<const char*> 型名) {
    const QVariant v = db.driver()->handle();
    if (!v.isValid()) return nullptr;
    for (const char* 名 : 型名) {
        if (qstrcmp(v.typeName(), 名) == 0) return *static_cast<T* const*>(v.constData());
    }
    return nullptr;
}
