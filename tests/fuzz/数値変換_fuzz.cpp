// Numbers typed into fields and read from columns: every reading of a text either gives a value
// in its type's range or ends with 桁あふれ, and money read back from its own text is the same.
#include <cmath>

#include "text/数値変換.h"
#include "text/金額.h"
#include "ファズ入力.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const QString 文 = ファズ残り文字列(供給);

    try {
        ファズ確認(std::isfinite(数値変換(文)));
    } catch (const 桁あふれ&) {
    }
    try {
        小整数値(文);
    } catch (const 桁あふれ&) {
    }
    const auto 全体 = 数値文字列解析(文);
    ファズ確認(全体.has_value() == 数値文字列か(文));
    if (全体) ファズ確認(!全体->数字.isEmpty());
    for (auto 読む : {&金額::文字列から, &金額::表示文字列から}) {
        try {
            const 金額 値 = 読む(文);
            ファズ確認(金額::文字列から(値.文字列()) == 値);
        } catch (const 桁あふれ&) {
        }
    }
    return 0;
}
