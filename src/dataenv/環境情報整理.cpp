#include "dataenv/接続環境.h"
#include "text/プラットフォーム.h"

namespace {

// The short-lived tables of the configuration database and how long their rows are kept, by
// calendar months or by days.
struct 整理対象 {
    const char16_t* 表;
    const char16_t* 日時列;
    int 月数;
    int 日数;
};

constexpr 整理対象 整理表[] = {
    {u"プログラム稼動履歴", u"実行日付", 6, 0},
    {u"プログラム連携情報", u"発信日時", 0, 3},
    {u"プログラムクリップボード", u"貼付日時", 0, 3},
    {u"プログラムクリップボード明細", u"貼付日時", 0, 3},
};

}  // namespace

void 接続環境::環境情報整理() {
    for (const 整理対象& 対象 : 整理表) {
        const QString 表 = QString::fromUtf16(対象.表);
        const QString 列 = QString::fromUtf16(対象.日時列);
        // The age columns hold "yyyymmdd hhnnss", so "<=" on the text compares times.
        const auto 期限 = [&] {
            const QDateTime 限 = 基盤_.現在時刻().addMonths(-対象.月数).addDays(-対象.日数);
            return u"'"_qs + 限.toString(u"yyyyMMdd HHmmss"_qs) + u"'"_qs;
        };
        // Asked first, so that a file with nothing to purge is not written to.
        記録集合 rs;
        const bool あり = 環境DB検索(
            rs, u"SELECT *"_qs + u" FROM "_qs + 表 + u" WHERE "_qs + 列 + u" <= "_qs + 期限());
        rs.閉じる();
        if (!あり) continue;
        環境DB実行(u"DELETE FROM "_qs + 表 + u" WHERE "_qs + 列 + u" <= "_qs + 期限());
    }
}
