// A memo field's text cut to its Shift-JIS length: the result is a start of the text within the
// limit, no character is split, and no further whole character would still have fitted.
#include "text/項目編集.h"
#include "ファズ入力.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const int 上限 = 供給.ConsumeIntegralInRange<int>(-4, 300);
    const QString 文 = ファズ残り文字列(供給);
    const QString 結果 = バイト長切詰(文, 上限);

    ファズ確認(文.startsWith(結果));
    if (上限 <= 0) {
        ファズ確認(結果.isEmpty());
        return 0;
    }
    const int バイト = シフトJISバイト長(結果);
    ファズ確認(バイト <= 上限);
    if (シフトJISバイト長(文) <= 上限) ファズ確認(結果 == 文);
    if (結果.size() < 文.size()) {
        const qsizetype n = 結果.size();
        ファズ確認(!(n > 0 && 文[n - 1].isHighSurrogate() && 文[n].isLowSurrogate()));
        const qsizetype 次の長さ =
            文[n].isHighSurrogate() && n + 1 < 文.size() && 文[n + 1].isLowSurrogate() ? 2 : 1;
        ファズ確認(バイト + シフトJISバイト長(文.mid(n, 次の長さ)) > 上限);
    }
    return 0;
}
