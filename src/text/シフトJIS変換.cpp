#include "text/シフトJIS変換.h"

#include <iconv.h>

#include <QSysInfo>

bool CP932変換(const QString& 文字列, QByteArray& 出力, qsizetype& 不可位置) {
    出力.clear();
    不可位置 = -1;
    iconv_t 変換 = iconv_open(
        "CP932", QSysInfo::ByteOrder == QSysInfo::LittleEndian ? "UTF-16LE" : "UTF-16BE");
    if (変換 == reinterpret_cast<iconv_t>(-1)) {
        不可位置 = 0;
        return false;
    }
    // Two bytes per UTF-16 unit are always enough: CP932 has no character longer than two.
    出力.resize(文字列.size() * 2);
    char* 入 = const_cast<char*>(reinterpret_cast<const char*>(文字列.utf16()));
    size_t 入力残 = 文字列.size() * sizeof(char16_t);
    char* 出 = 出力.data();
    size_t 出力残 = 出力.size();
    const size_t r = iconv(変換, &入, &入力残, &出, &出力残);
    iconv_close(変換);
    if (r == static_cast<size_t>(-1)) {
        不可位置 = 文字列.size() - static_cast<qsizetype>(入力残 / sizeof(char16_t));
        出力.clear();
        return false;
    }
    出力.resize(出力.size() - static_cast<qsizetype>(出力残));
    return true;
}
