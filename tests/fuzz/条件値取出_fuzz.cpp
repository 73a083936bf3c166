// Conditions handed between screens are SQL text that a list window takes apart again: any
// field name and any condition through 条件値取出, and the quoting and mask helpers beside it.
#include "text/項目編集.h"
#include "ファズ入力.h"

namespace {

const QString 演算子[] = {u" >= '"_qs, u" <= '"_qs, u" = '"_qs,
                          u" > '"_qs,  u" < '"_qs,  u" LIKE '"_qs};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const QString 項目名 = ファズ文字列(供給, 64);
    const QString 条件 = ファズ残り文字列(供給);

    QString 残り = 条件;
    const QString 値 = 条件値取出(項目名, 条件, 残り);
    bool 比較あり = false;
    for (const QString& 演 : 演算子) 比較あり |= 条件.contains(項目名 + 演, Qt::CaseInsensitive);
    if (!比較あり) {
        ファズ確認(値.isEmpty());
        ファズ確認(残り == 条件);
    } else {
        // The value is text of the condition, less the percent signs of a LIKE.
        ファズ確認(百分率記号除去(条件).contains(百分率記号除去(値)));
        ファズ確認(!値.contains(u'\''));
    }
    // The same call on the rest again, as a list window does for each preset field.
    QString 再 = 残り;
    条件値取出(項目名, 残り, 再);

    const QString 二重 = 引用符二重化(条件);
    ファズ確認(二重.count(u'\'') == 2 * 条件.count(u'\''));
    ファズ確認(!二重.endsWith(u' '));
    ファズ確認(百分率記号除去(条件).size() == 条件.size() - 条件.count(u'%'));
    const QString マスク = 書式マスク作成(項目名);
    ファズ確認(マスク.size() == 項目名.size());
    if (!項目名.isEmpty()) ファズ確認(書式桁揃え(条件, 項目名).size() <= 項目名.size());
    ファズ確認(書式桁揃え(条件, マスク).size() <= (マスク.isEmpty() ? 条件.size() : マスク.size()));
    return 0;
}
