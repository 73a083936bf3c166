#pragma once

#include <QByteArray>
#include <QString>

// The text in CP932, the Shift-JIS of Windows. When a character has no CP932 form the answer is
// False and 不可位置 is its place in the text (UTF-16 units); nothing is ever replaced by "?".
bool CP932変換(const QString& 文字列, QByteArray& 出力, qsizetype& 不可位置);
