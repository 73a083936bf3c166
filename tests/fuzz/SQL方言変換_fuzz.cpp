// Any statement text through the dialect translation: it ends, it does not grow without bound,
// and a statement without the forms that differ comes back unchanged.
#include "dataenv/SQL方言変換.h"
#include "ファズ入力.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const SQL方言 方言 =
        供給.PickValueInArray({SQL方言::SQLite, SQL方言::PostgreSQL, SQL方言::そのまま});
    const QString 文 = ファズ残り文字列(供給);
    const QString 結果 = SQL方言変換(文, 方言);

    if (方言 == SQL方言::そのまま) ファズ確認(結果 == 文);
    const bool 候補あり = 文.contains(u"TOP", Qt::CaseInsensitive) ||
                          文.contains(u"LEFT", Qt::CaseInsensitive) ||
                          文.contains(u"RIGHT", Qt::CaseInsensitive) || 文.contains(u'[') ||
                          文.contains(u"nvarchar", Qt::CaseInsensitive);
    if (!候補あり) ファズ確認(結果 == 文);
    // LEFT( → substr( with ",1," and TOP n → LIMIT n add a few characters per word they replace.
    ファズ確認(結果.size() <= 4 * 文.size() + 64);
    // The translation drops no quoted literal: every quote of the statement is still there.
    ファズ確認(結果.count(u'\'') == 文.count(u'\''));
    return 0;
}
