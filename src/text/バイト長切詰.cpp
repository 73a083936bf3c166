#include <iconv.h>

#include <QList>
#include <QSysInfo>

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
    iconv_t 変換 = iconv_open(
        "CP932", QSysInfo::ByteOrder == QSysInfo::LittleEndian ? "UTF-16LE" : "UTF-16BE");
    const bool 表あり = 変換 != reinterpret_cast<iconv_t>(-1);
    for (qsizetype i = 0; i < 文字列.size(); ++i) {
        char16_t 単位 = 文字列[i].unicode();
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
        char* 入 = reinterpret_cast<char*>(&単位);
        size_t 入力残 = sizeof 単位;
        char 出力[8];
        char* 出 = 出力;
        size_t 出力残 = sizeof 出力;
        const size_t r = iconv(変換, &入, &入力残, &出, &出力残);
        片.append({1, r == static_cast<size_t>(-1) ? 1 : static_cast<int>(sizeof 出力 - 出力残)});
    }
    if (表あり) iconv_close(変換);
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
