// Half-width to full-width over any text: no half-width letter or digit is left, a voiced pair
// becomes one character, and converting the result again changes nothing.
#include "text/項目編集.h"
#include "ファズ入力.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const QString 文 = ファズ残り文字列(供給);
    const QString 結果 = 文字種変換(文);

    ファズ確認(結果.size() <= 文.size());
    for (QChar c : 結果) {
        const char16_t u = c.unicode();
        ファズ確認(
            !((u >= u'0' && u <= u'9') || (u >= u'A' && u <= u'Z') || (u >= u'a' && u <= u'z')));
        // Of the half-width kana block only the marks without a row stay.
        ファズ確認(!(u >= u'ｦ' && u <= u'ﾝ'));
    }
    ファズ確認(文字種変換(結果) == 結果);
    return 0;
}
