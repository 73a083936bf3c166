// The text a sibling program passes: its fields never run past their places, and the start mode
// follows from them as the table of start modes says.
#include "slip/コマンドライン.h"
#include "ファズ入力.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const QString 引数 = ファズ残り文字列(供給);
    const 起動コマンド c = 起動コマンド::解析(引数);

    ファズ確認(c.全体 == 引数.trimmed());
    ファズ確認(c.事業所コード.size() <= 3 && c.番号基準日付.size() <= 8 && c.出金No.size() <= 8);
    ファズ確認(c.出金日付.size() <= 8 && c.担当者コード.size() <= 5);
    ファズ確認(c.事業所コード + c.番号基準日付 + c.出金No + c.出金日付 + c.担当者コード ==
               c.全体.left(32));

    const 起動モード モード = c.モード();
    if (c.全体.isEmpty()) {
        ファズ確認(モード == 起動モード::通常);
    } else if (c.事業所コード.trimmed().isEmpty() || c.番号基準日付.trimmed().isEmpty() ||
               c.出金No.isEmpty()) {
        ファズ確認(モード == 起動モード::不正);
    } else {
        const bool 零 = c.番号基準日付 == u"00000000" && c.出金No == u"00000000";
        ファズ確認(モード == (零 ? 起動モード::連携新規 : 起動モード::キー起動));
    }
    return 0;
}
