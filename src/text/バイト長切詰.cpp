#include <iconv.h>

#include <QList>
#include <QSysInfo>

#include "text/項目編集.h"

namespace {

// Bytes of each character of the text in CP932, by iconv so that the answer does not depend on
// the locale. A character CP932 lacks counts as the one-byte "?" it is replaced with.
QList<int> 文字ごとのバイト長(const QString& 文字列) {
    QList<int> 長さ;
    長さ.reserve(文字列.size());
    iconv_t 変換 = iconv_open(
        "CP932", QSysInfo::ByteOrder == QSysInfo::LittleEndian ? "UTF-16LE" : "UTF-16BE");
    if (変換 == reinterpret_cast<iconv_t>(-1)) {
        // Without the table, count as Shift-JIS would: one byte for ASCII and half-width kana.
        for (QChar c : 文字列)
            長さ.append(c.unicode() < 0x80 || (c.unicode() >= 0xFF61 && c.unicode() <= 0xFF9F) ? 1
                                                                                               : 2);
        return 長さ;
    }
    // One UTF-16 unit at a time, as the text is counted; CP932 has nothing beyond the BMP, so a
    // surrogate half fails like any other missing character.
    for (QChar c : 文字列) {
        char16_t 単位 = c.unicode();
        char* 入 = reinterpret_cast<char*>(&単位);
        size_t 入力残 = sizeof 単位;
        char 出力[8];
        char* 出 = 出力;
        size_t 出力残 = sizeof 出力;
        const size_t r = iconv(変換, &入, &入力残, &出, &出力残);
        長さ.append(r == static_cast<size_t>(-1) ? 1 : static_cast<int>(sizeof 出力 - 出力残));
    }
    iconv_close(変換);
    return 長さ;
}

}  // namespace

int シフトJISバイト長(const QString& 文字列) {
    int 合計 = 0;
    for (int n : 文字ごとのバイト長(文字列)) 合計 += n;
    return 合計;
}

QString バイト長切詰(const QString& 文字列, int 上限) {
    const QList<int> 長さ = 文字ごとのバイト長(文字列);
    int 合計 = 0;
    for (int n : 長さ) 合計 += n;
    if (合計 <= 上限) return 文字列;

    // Characters are added one by one until the bytes pass the limit; the last one goes again.
    合計 = 0;
    qsizetype 加えた = 0;
    while (加えた < 長さ.size() && 合計 <= 上限) 合計 += 長さ[加えた++];
    return 文字列.left(加えた - 1);
}
