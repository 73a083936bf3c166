#include "text/シフトJIS変換.h"

#include <iconv.h>

#include <QSysInfo>

namespace {

const iconv_t 表なし = reinterpret_cast<iconv_t>(-1);

}  // namespace

CP932変換器::CP932変換器()
    : 変換(iconv_open("CP932",
                      QSysInfo::ByteOrder == QSysInfo::LittleEndian ? "UTF-16LE" : "UTF-16BE")) {}

CP932変換器::~CP932変換器() {
    if (変換 != 表なし) iconv_close(static_cast<iconv_t>(変換));
}

bool CP932変換器::追加(const QString& 文字列, QByteArray& 出力, qsizetype& 不可位置) {
    不可位置 = -1;
    if (変換 == 表なし) {
        不可位置 = 0;
        return false;
    }
    const qsizetype 元の長さ = 出力.size();
    // Two bytes per UTF-16 unit are always enough: CP932 has no character longer than two.
    出力.resize(元の長さ + 文字列.size() * 2);
    char* 入 = const_cast<char*>(reinterpret_cast<const char*>(文字列.utf16()));
    size_t 入力残 = 文字列.size() * sizeof(char16_t);
    char* 出 = 出力.data() + 元の長さ;
    size_t 出力残 = 文字列.size() * 2;
    const size_t r = iconv(static_cast<iconv_t>(変換), &入, &入力残, &出, &出力残);
    // Back to the initial state, so that a failure leaves nothing for the next text.
    iconv(static_cast<iconv_t>(変換), nullptr, nullptr, nullptr, nullptr);
    if (r == static_cast<size_t>(-1)) {
        不可位置 = 文字列.size() - static_cast<qsizetype>(入力残 / sizeof(char16_t));
        出力.resize(元の長さ);
        return false;
    }
    出力.resize(出力.size() - static_cast<qsizetype>(出力残));
    return true;
}

bool CP932変換器::表あり() const {
    return 変換 != 表なし;
}

int CP932変換器::単位のバイト数(char16_t 単位) {
    if (変換 == 表なし) return -1;
    char* 入 = reinterpret_cast<char*>(&単位);
    size_t 入力残 = sizeof 単位;
    char 出力[8];
    char* 出 = 出力;
    size_t 出力残 = sizeof 出力;
    const size_t r = iconv(static_cast<iconv_t>(変換), &入, &入力残, &出, &出力残);
    iconv(static_cast<iconv_t>(変換), nullptr, nullptr, nullptr, nullptr);
    return r == static_cast<size_t>(-1) ? -1 : static_cast<int>(sizeof 出力 - 出力残);
}
