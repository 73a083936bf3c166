#include "text/実行時エラー.h"
#include "text/数値変換.h"
#include "text/暦.h"
#include "text/項目編集.h"

void 日付補正(QString& 年, QString& 月, QString& 日) {
    const int y = 小整数値(年), m = 小整数値(月), d = 小整数値(日);
    if (y == 0 && m == 0 && d == 0) return;

    QDate 日付 = 日付構築(y, m, d);
    // A valid date keeps the texts exactly as typed, leading zeros or not.
    if (日付.year() == y && 日付.month() == m && 日付.day() == d) return;

    // A day past 27 can only have failed on the month's length: the typed month's last day is
    // meant, not a date carried into the next month.
    if (d > 27) 日付 = 日付構築(y, 小整数へ(static_cast<qint64>(m) + 1), 0);

    年 = QString::number(日付.year()).rightJustified(4, u'0');
    月 = QString::number(日付.month()).rightJustified(2, u'0');
    日 = QString::number(日付.day()).rightJustified(2, u'0');
}
