#pragma once

#include <QStringList>
#include <QTextStream>

class 出金セッション;

// The slip search for scripts: --from YYYYMMDD --to YYYYMMDD --min N --max N (slip total)
// --line-min N --line-max N --payee TEXT --staff CODE --office CODE --no-from N --no-to N
// --with-documents --deleted, on the session's open general database. The slips found go to
// 出力 as CSV (UTF-8, RFC 4180, a header row). 0 when searched, 1 when the search failed, 2 for
// wrong options, told in Japanese on エラー.
int 出金検索を出力(出金セッション& s, const QStringList& 引数, QTextStream& 出力,
                   QTextStream& エラー);
