#pragma once

#include <QString>

#include "rules/番号設定.h"

// Base dates of numbers that live in the HR system's database (its trip applications). They
// are computed with this company's closing; no number is ever taken there. Pass the link's
// connection wrapped with the session's connections: 番号環境(連携接続, 接続, 会社).

// Picks the company or per-office routine by this company's 伝票番号管理区分.
QString 連携番号基準日付取得(const 番号環境& 連携, const QString& 番号ID, const QString& 日付,
                             const QString& 事業所コード);

// As 番号基準日付取得, except that a kind typed by hand yields "99999999".
QString 連携全社番号基準日付取得(const 番号環境& 連携, const QString& 番号ID, const QString& 日付);
// The kind comes from the office's own row, which is made first when it is missing.
QString 連携事業所別番号基準日付取得(const 番号環境& 連携, const QString& 番号ID,
                                     const QString& 日付, const QString& 事業所コード);

// The office row of the link database also carries the number's name and kind.
void 連携事業所別番号行確保(const 番号環境& 連携, const QString& 番号ID,
                            const QString& 事業所コード);
