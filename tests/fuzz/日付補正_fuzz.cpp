// Typed dates: any year, month and day text through the repair, and any eight characters read as
// a stored date. A date outside the calendar or a part beyond 16 bits ends the event with its
// runtime error; anything else leaves a valid date or the texts as typed.
#include <QDate>

#include "text/実行時エラー.h"
#include "text/数値変換.h"
#include "text/暦.h"
#include "text/項目編集.h"
#include "ファズ入力.h"

namespace {

bool 数字だけ(const QString& s, qsizetype 長さ) {
    if (s.size() != 長さ) return false;
    for (QChar c : s)
        if (c < u'0' || c > u'9') return false;
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const QString 年0 = ファズ文字列(供給, 24), 月0 = ファズ文字列(供給, 24);
    const QString 日0 = ファズ文字列(供給, 24);
    const QString 日付 = ファズ残り文字列(供給);

    QString 年 = 年0, 月 = 月0, 日 = 日0;
    try {
        日付補正(年, 月, 日);
        if (年 != 年0 || 月 != 月0 || 日 != 日0) {
            ファズ確認(数字だけ(年, 4) && 数字だけ(月, 2) && 数字だけ(日, 2));
            const QDate d(年.toInt(), 月.toInt(), 日.toInt());
            ファズ確認(d.isValid() && d.year() >= 100 && d.year() <= 9999);
            // A repaired date stays as it is when repaired again.
            QString 年2 = 年, 月2 = 月, 日2 = 日;
            日付補正(年2, 月2, 日2);
            ファズ確認(年2 == 年 && 月2 == 月 && 日2 == 日);
        }
    } catch (const 実行時エラー&) {
    }
    try {
        const QDate d = 日付値(日付);
        ファズ確認(d.isValid() && d.year() >= 100 && d.year() <= 9999);
        ファズ確認(日付文字列(d).size() == 8);
    } catch (const 実行時エラー&) {
    }
    return 0;
}
