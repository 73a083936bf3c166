#include "rules/集計日付計算.h"

#include <QDate>

#include "dataenv/会社情報.h"
#include "text/実行時エラー.h"
#include "text/暦.h"

namespace {

// Month and day arithmetic is done in 16 bits, as the settings are held.
short 加算(qint64 左, qint64 右) {
    return 小整数へ(左 + 右);
}

QString 構築(qint64 年, qint64 月, qint64 日) {
    return 日付文字列(日付構築(小整数へ(年), 小整数へ(月), 小整数へ(日)));
}

// A calendar year on or back: month and day stay where they exist, so 29 February lands on 28.
QString 年移動(const QString& 日付, int 年数) {
    const QDate 結果 = 日付値(日付).addYears(年数);
    if (結果.year() < 100 || 結果.year() > 9999) throw 日付範囲外();
    return 日付文字列(結果);
}

}  // namespace

bool 月末決算判定(short 決算月, short 決算日) {
    switch (決算月) {
        case 2:
            return 決算日 == 28 || 決算日 == 29;
        case 4:
        case 6:
        case 9:
        case 11:
            return 決算日 == 30;
        case 1:
        case 3:
        case 5:
        case 7:
        case 8:
        case 10:
        case 12:
            return 決算日 == 31;
        default:
            return false;
    }
}

QString 集計日付計算(const 会社情報& 会社, const QString& 日付) {
    const int y = 日付の年(日付), m = 日付の月(日付), d = 日付の日(日付);
    // At a month-end closing every month closes on its own last day, whatever 決算月 says.
    if (月末決算判定(会社.決算月, 会社.決算日)) return 構築(y, 加算(m, 1), 0);
    const short c = 会社.決算日;
    if (c >= d) return 構築(y, m, c);
    return 構築(y, 加算(m, 1), c);
}

QString 年度開始日計算(const 会社情報& 会社, const QString& 日付) {
    const int y = 日付の年(日付);
    const short M = 会社.決算月, c = 会社.決算日;
    QString 候補 = 月末決算判定(M, c) ? 構築(y, 加算(M, 1), 1) : 構築(y, M, 加算(c, 1));
    if (日付 < 候補) 候補 = 年移動(候補, -1);
    return 候補;
}

QString 年度終了日計算(const 会社情報& 会社, const QString& 日付) {
    const int y = 日付の年(日付);
    const short M = 会社.決算月, c = 会社.決算日;
    QString 候補 = 月末決算判定(M, c) ? 構築(y, 加算(M, 1), 0) : 構築(y, M, c);
    if (候補 < 日付) 候補 = 年移動(候補, 1);
    return 候補;
}

修正可能期間 修正可能期間計算(const 会社情報& 会社, const QString& 今日) {
    const QString 期首 = 年度開始日計算(会社, 今日);
    const int y = 日付の年(期首), m = 日付の月(期首), d = 日付の日(期首);
    修正可能期間 期間;
    QString 基準;
    // For the first two months of a fiscal year the whole previous one stays open.
    if (今日 >= 構築(y, 加算(m, 2), d)) {
        期間.下限 = 期首;
        基準 = 今日;
    } else {
        期間.下限 = 構築(加算(y, -1), m, d);
        基準 = 期首;
    }
    const QString 期末 = 年度終了日計算(会社, 基準);
    期間.上限 = 集計日付計算(会社, 構築(加算(日付の年(期末), 2), 日付の月(期末), 1));
    return 期間;
}

bool 修正期間判定(const 会社情報& 会社, const QString& 今日, const QString& 出金日付,
                  const QString& 読込時出金日付, bool 新規, short アクセス権限) {
    const 修正可能期間 期間 = 修正可能期間計算(会社, 今日);
    const auto 期間内 = [&](const QString& 日付) { return 期間.下限 <= 日付 && 日付 <= 期間.上限; };
    if (新規 && 期間内(出金日付)) return true;
    if (!新規 && 期間内(出金日付) && 期間内(読込時出金日付)) return true;
    return アクセス権限 == 6;
}

bool 修正期間確認(const 会社情報& 会社, const プラットフォーム& 基盤, const QString& 出金日付,
                  const QString& 読込時出金日付, bool 新規, short アクセス権限) {
    return 修正期間判定(会社, 今日(基盤), 出金日付, 読込時出金日付, 新規, アクセス権限);
}

日付変更番号処置 日付変更時番号判定(bool 新規, const QString& 新基準日付, const QString& 現基準日付,
                                    const QString& 保存基準日付,
                                    const std::function<bool()>& 日程連携あり) {
    if (新規)
        return 新基準日付 != 現基準日付 ? 日付変更番号処置::新番号 : 日付変更番号処置::そのまま;
    if (新基準日付 == 保存基準日付) return 日付変更番号処置::保存番号復帰;
    return 日程連携あり() ? 日付変更番号処置::変更拒否 : 日付変更番号処置::新番号;
}
