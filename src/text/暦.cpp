#include "text/暦.h"

#include "text/実行時エラー.h"
#include "text/数値変換.h"

namespace {

qint64 床除算(qint64 a, qint64 b) {
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)));
}

int 部分値(const QString& 日付, qsizetype 開始, qsizetype 長さ) {
    return 小整数値(QStringView(日付).mid(開始, 長さ));
}

}  // namespace

QDate 日付構築(int 年, int 月, int 日) {
    qint64 y = 年;
    if (y >= 0 && y <= 29)
        y += 2000;
    else if (y >= 30 && y <= 99)
        y += 1900;
    const qint64 通し月 = y * 12 + (static_cast<qint64>(月) - 1);
    const qint64 新年 = 床除算(通し月, 12);
    const int 新月 = static_cast<int>(通し月 - 新年 * 12) + 1;
    // Far outside the calendar no day count can bring it back.
    if (新年 < -100000 || 新年 > 100000) throw 日付範囲外();
    const QDate 結果 = QDate(static_cast<int>(新年), 新月, 1).addDays(static_cast<qint64>(日) - 1);
    if (!結果.isValid() || 結果.year() < 100 || 結果.year() > 9999) throw 日付範囲外();
    return 結果;
}

QString 日付文字列(const QDate& 日付) {
    return 日付.toString(u"yyyyMMdd");
}

QString 日時文字列(const QDateTime& 日時) {
    return 日時.toString(u"yyyyMMdd HHmmss");
}

QString 時刻文字列(const QTime& 時刻) {
    return 時刻.toString(u"HH:mm:ss");
}

int 日付の年(const QString& 日付) {
    return 部分値(日付, 0, 4);
}
int 日付の月(const QString& 日付) {
    return 部分値(日付, 4, 2);
}
int 日付の日(const QString& 日付) {
    return 部分値(日付, 6, 2);
}

QDate 日付値(const QString& 日付) {
    return 日付構築(日付の年(日付), 日付の月(日付), 日付の日(日付));
}

QString 今日(const プラットフォーム& 環境) {
    return 日付文字列(環境.現在時刻().date());
}

QDate 月数前(const QDate& 日付, int 月数) {
    return 日付.addMonths(-月数);
}

QDate 年数前(const QDate& 日付, int 年数) {
    return 日付.addYears(-年数);
}
