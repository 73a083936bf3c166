#include <QTextStream>

#include "common/試験用ツリー.h"
#include "dataenv/スキーマ適用.h"
#include "計測.h"

namespace {

// Both Null, equal as text, or as numbers where one side is written with decimals (PostgreSQL's
// numeric beside SQLite's integer); codes have no decimal point and are compared as text.
bool 同じ値(const QVariant& a, const QVariant& b) {
    if (a.isNull() || b.isNull()) return a.isNull() && b.isNull();
    const QString x = a.toString(), y = b.toString();
    if (x == y) return true;
    if (!x.contains(u'.') && !y.contains(u'.')) return false;
    bool 数a = false, 数b = false;
    const double 値a = x.toDouble(&数a), 値b = y.toDouble(&数b);
    return 数a && 数b && 値a == 値b;
}

// The rows of a statement on both engines, compared field by field; the differences printed.
int 比べる(データ接続& 甲, データ接続& 乙, const QString& 題, const QString& 文, int& 行数) {
    const QList<QVariantList> a = 全行(甲, 文), b = 全行(乙, 文);
    行数 += static_cast<int>(a.size());
    int 差 = 0;
    if (a.size() != b.size() || a.isEmpty()) {
        std::printf("  %s: %lld rows on SQLite, %lld on PostgreSQL\n", qPrintable(題),
                    static_cast<long long>(a.size()), static_cast<long long>(b.size()));
        return 1;
    }
    for (qsizetype r = 0; r < a.size(); ++r) {
        if (a[r].size() != b[r].size()) {
            std::printf("  %s row %lld: %lld columns against %lld\n", qPrintable(題),
                        static_cast<long long>(r), static_cast<long long>(a[r].size()),
                        static_cast<long long>(b[r].size()));
            ++差;
            continue;
        }
        for (qsizetype c = 0; c < a[r].size(); ++c) {
            if (同じ値(a[r][c], b[r][c])) continue;
            std::printf("  %s row %lld column %lld: '%s' on SQLite, '%s' on PostgreSQL\n",
                        qPrintable(題), static_cast<long long>(r), static_cast<long long>(c),
                        qPrintable(a[r][c].toString()), qPrintable(b[r][c].toString()));
            ++差;
        }
    }
    return 差;
}

}  // namespace

// The two data sets of 件数 slips hold the same rows: counts, sums of every amount, the number
// of distinct descriptions and masters, and whole rows sampled across the days.
bool 大量伝票照合(int 件数, const QString& SQLite根, const QString& PostgreSQL根) {
    データ接続 甲(u"bench-check-sqlite"_qs), 乙(u"bench-check-pg"_qs);
    接続先 先;
    先.ファイル = SQLite根 + u"/data/gnrdb.db"_qs;
    if (!甲.開く(先) ||
        !乙.開く(PostgreSQL接続先(qEnvironmentVariable("KONPEKI_TEST_PG") + u" dbname="_qs +
                                  大量伝票のデータベース名(件数)))) {
        return false;
    }
    const QString 番号 = QString::number((件数 + 1) / 2).rightJustified(8, u'0');
    const QStringList 見本 = {u"00000001"_qs, u"00000300"_qs,
                              u"00000301"_qs, 番号,
                              u"99999999"_qs, QString::number(件数).rightJustified(8, u'0')};
    QStringList 職員;
    for (int i : {1, 件数 / 1000, 件数 / 500}) {
        職員 << QString::number(100 + i).rightJustified(5, u'0');
    }
    const QString 見本句 = u" WHERE 出金No IN ('"_qs + 見本.join(u"', '"_qs) + u"')"_qs;
    const std::pair<const char16_t*, QString> 問[] = {
        {u"slips",
         u"SELECT COUNT(*), SUM(出金金額合計), SUM(出金消費税合計), SUM(実質出金金額合計), SUM(税抜出金金額合計), SUM(税込出金金額合計), SUM(今回税率出金金額合計), SUM(今回税率出金消費税合計), COUNT(DISTINCT 担当者コード), MIN(出金日付), MAX(出金日付) FROM T出金"_qs},
        {u"lines",
         u"SELECT COUNT(*), SUM(出金金額), SUM(出金消費税), SUM(実質出金金額), SUM(税抜出金金額), SUM(税込出金金額), COUNT(DISTINCT 摘要), COUNT(DISTINCT 費目区分) FROM T出金明細"_qs},
        {u"masters",
         u"SELECT (SELECT COUNT(*) FROM M担当者), (SELECT COUNT(*) FROM M部門), (SELECT COUNT(*) FROM Mセクション), (SELECT MAX(コード) FROM M担当者)"_qs},
        {u"sampled slips", u"SELECT * FROM T出金"_qs + 見本句 + u" ORDER BY 出金No"_qs},
        {u"sampled lines",
         u"SELECT * FROM T出金明細"_qs + 見本句 + u" ORDER BY 出金No, 出金行No"_qs},
        {u"sampled staff", u"SELECT * FROM M担当者 WHERE コード IN ('"_qs + 職員.join(u"', '"_qs) +
                               u"') ORDER BY コード"_qs},
    };
    int 差 = 0, 行数 = 0;
    for (const auto& [題, 文] : 問) 差 += 比べる(甲, 乙, QString::fromUtf16(題), 文, 行数);
    const QList<QVariantList> 数 = 全行(
        甲,
        u"SELECT (SELECT COUNT(*) FROM T出金), (SELECT COUNT(*) FROM T出金明細), (SELECT COUNT(DISTINCT 摘要) FROM T出金明細)"_qs);
    if (数.isEmpty()) return false;
    std::printf(
        "data sets of %d slips %s: %s slips, %s lines, %s descriptions, sums and %d "
        "compared rows%s\n",
        件数, 差 == 0 ? "agree" : "DIFFER", qPrintable(数[0][0].toString()),
        qPrintable(数[0][1].toString()), qPrintable(数[0][2].toString()), 行数,
        差 == 0 ? "" : qPrintable(u" (%1 differences)"_qs.arg(差)));
    std::fflush(stdout);
    return 差 == 0;
}

void 大量伝票照合計測() {
    const QString 根 = 大量伝票の木(1000000);
    const QString PG根 = 大量伝票のPostgreSQL木(1000000);
    if (根.isEmpty() || PG根.isEmpty()) {
        std::printf("datasets: both data sets are needed (KONPEKI_TEST_PG)\n");
        return;
    }
    大量伝票照合(1000000, 根, PG根);
}
