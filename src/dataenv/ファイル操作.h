#pragma once

#include <QString>

class プラットフォーム;

QString 端末利用者名取得();
QString 端末名取得();
bool ファイル有無確認(const QString& パス);
bool フォルダ有無確認(const QString& パス);
bool ファイル複写(const QString& 元, const QString& 先);
bool フォルダ複写(const QString& 元, const QString& 先);
bool フォルダ削除(const QString& パス);
// Creates every missing folder of the path; the last segment is a file name and is left alone.
void DIREXISTCHK(const QString& パス, プラットフォーム& 基盤);
QString ファイル基本名取得(const QString& パス);
bool ファイル実行(const QString& パス, プラットフォーム& 基盤);

// The part of a C-style buffer up to its first null; a buffer without one gives "".
QString 終端まで(const QByteArray& 緩衝);
