#include <QList>

#include "text/シフトJIS変換.h"
#include "text/項目編集.h"

namespace {

// One character of the text: its UTF-16 units (two for a surrogate pair) and its CP932 bytes.
struct 文字片 {
    qsizetype 単位数;
    int バイト数;
};

bool 上位サロゲートか(char16_t u) {
    return u >= 0xD800 && u <= 0xDBFF;
}
bool 下位サロゲートか(char16_t u) {
    return u >= 0xDC00 && u <= 0xDFFF;
}

// Bytes of each character of the text in CP932, by iconv so that the answer does not depend on
// the locale. A UTF-16 unit that CP932 lacks counts as the one-byte "?" it is replaced with, as
// the conversion of the system code page does; so a character beyond the basic plane, which
// CP932 never has, counts two bytes, and it stays one character that is never split.
QList<文字片> 文字ごとのバイト長(const QString& 文字列) {
    QList<文字片> 片;
    片.reserve(文字列.size());
    CP932変換器 変換;
    const bool 表あり = 変換.表あり();
    for (qsizetype i = 0; i < 文字列.size(); ++i) {
        const char16_t 単位 = 文字列[i].unicode();
        if (上位サロゲートか(単位) && i + 1 < 文字列.size() &&
            下位サロゲートか(文字列[i + 1].unicode())) {
            片.append({2, 2});
            ++i;
            continue;
        }
        if (!表あり) {
            // Without the table, count as Shift-JIS would: one byte for ASCII and half-width kana.
            片.append({1, 単位 < 0x80 || (単位 >= 0xFF61 && 単位 <= 0xFF9F) ? 1 : 2});
            continue;
        }
        const int バイト数 = 変換.単位のバイト数(単位);
        片.append({1, バイト数 < 0 ? 1 : バイト数});
    }
    return 片;
}

}  // namespace

int シフトJISバイト長(const QString& 文字列) {
    int 合計 = 0;
    for (const 文字片& c : 文字ごとのバイト長(文字列)) 合計 += c.バイト数;
    return 合計;
}

QString バイト長切詰(const QString& 文字列, int 上限) {
    if (上限 <= 0) return {};
    const QList<文字片> 片 = 文字ごとのバイト長(文字列);
    // Whole characters are added while the bytes stay within the limit; the one that would pass
    // it is dropped whole.
    int 合計 = 0;
    qsizetype 単位 = 0;
    for (const 文字片& c : 片) {
        if (合計 + c.バイト数 > 上限) break;
        合計 += c.バイト数;
        単位 += c.単位数;
    }
    return 文字列.left(単位);
}
