#pragma once

#include <QString>

// The engine a finished statement goes to. Statements are written once, in the suite's own
// dialect; this is the single place that adapts them.
enum class SQL方言 { SQLite, PostgreSQL, そのまま };

QString SQL方言変換(const QString& 文, SQL方言 方言);

// The statement with a limit of rows for PostgreSQL, unless it ends with one; other engines
// stop reading where the caller stops.
QString 行数を限る(const QString& 文, int 行上限, SQL方言 方言);
