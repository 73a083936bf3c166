// Any mask and any value through the number format: text that is not a number comes back as it
// is, and a whole number written by the money mask reads back as the same number.
#include <limits>

#include "text/数値書式.h"
#include "text/金額.h"
#include "ファズ入力.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const qint64 整数 = 供給.ConsumeIntegral<qint64>();
    const double 倍精度 = 供給.ConsumeFloatingPoint<double>();
    const QString マスク = ファズ文字列(供給, 48);
    const QString 値 = ファズ残り文字列(供給);

    const QString 結果 = 書式(値, マスク);
    if (!数値文字列か(値)) ファズ確認(結果 == 値);
    書式(整数, マスク);
    try {
        書式(倍精度, マスク);
    } catch (const 桁あふれ&) {
        ファズ確認(!std::isfinite(倍精度));
    }

    const QString 金額文字 = 書式(整数, 数値書式::金額列);
    ファズ確認(金額文字 == QString::number(整数));
    const qint64 円 = 整数 % 100000000000000;  // within the money type's range in yen
    const 金額 金 = 金額::円(円);
    ファズ確認(金額::文字列から(書式(金, 数値書式::金額列)) == 金);
    ファズ確認(書式(金, 数値書式::一覧金額).remove(u',') == QString::number(円));
    return 0;
}
