#include <gtest/gtest.h>

#include <QDateTime>
#include <QProcess>
#include <QSet>

#include "出金試験.h"

namespace {

class 出金同時登録 : public 出金試験 {};

constexpr int 件数 = 25;

// Two processes store new slips at the same moment: every slip gets a number of its own and
// arrives whole, with its lines, its line history and its queue row.
TEST_P(出金同時登録, 二つのプロセスが同時に登録しても番号は重ならず伝票は欠けない) {
    const QString 開始 = QString::number(QDateTime::currentMSecsSinceEpoch() + 2000);
    QProcess a, b;
    for (QProcess* p : {&a, &b}) {
        p->start(QStringLiteral(KONPEKI_STORE_HELPER),
                 {木->プログラムフォルダ(), QString::number(件数), 開始});
    }
    QSet<QString> 番号;
    for (QProcess* p : {&a, &b}) {
        ASSERT_TRUE(p->waitForFinished(180000));
        EXPECT_EQ(p->exitCode(), 0) << p->readAllStandardError().toStdString();
        const QStringList 行 =
            QString::fromUtf8(p->readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        EXPECT_EQ(行.size(), 件数);
        for (const QString& No : 行) 番号.insert(No);
    }
    EXPECT_EQ(番号.size(), 2 * 件数);
    EXPECT_EQ(表の行(u"SELECT COUNT(*), COUNT(DISTINCT 出金No) FROM T出金"_qs),
              QStringList{QString::number(2 * 件数) + u"|"_qs + QString::number(2 * 件数)});
    // Each slip has its three lines, and its totals are those of its lines.
    EXPECT_EQ(表の行(u"SELECT 出金No FROM T出金明細 GROUP BY 出金No HAVING COUNT(*) <> 3"_qs),
              QStringList());
    EXPECT_EQ(表の行(u"SELECT COUNT(DISTINCT 出金No) FROM T出金明細"_qs),
              QStringList{QString::number(2 * 件数)});
    EXPECT_EQ(
        表の行(u"SELECT 出金No FROM T出金 WHERE 出金金額合計 <> 600 OR 出金消費税合計 <> 60"_qs),
        QStringList());
    EXPECT_EQ(表の行(u"SELECT COUNT(*), COUNT(DISTINCT 出金履歴No) FROM R出金明細"_qs),
              QStringList{QString::number(6 * 件数) + u"|"_qs + QString::number(2 * 件数)});
    EXPECT_EQ(
        表の行(
            u"SELECT COUNT(*), COUNT(DISTINCT 履歴No), COUNT(DISTINCT 伝票No) FROM 未集計情報"_qs),
        QStringList{QString::number(2 * 件数) + u"|"_qs + QString::number(2 * 件数) + u"|"_qs +
                    QString::number(2 * 件数)});
    EXPECT_EQ(
        表の行(
            u"SELECT 連番, 履歴連番 FROM A期日別番号情報 WHERE 番号ID = '16810' AND 期日 = '20260331'"_qs),
        QStringList{u"%1|%1"_qs.arg(2 * 件数, 8, 10, QChar(u'0'))});
    // Only the refused history headers are in the error log.
    int エラー = 0;
    for (const auto& 行 : 履歴()) {
        const QString 摘要 = 行.at(1).toString();
        if (!摘要.startsWith(u"エラー "_qs)) continue;
        ++エラー;
        EXPECT_TRUE(摘要.contains(u"INSERT INTO [R出金] ("_qs)) << 摘要.toStdString();
    }
    EXPECT_EQ(エラー, 2 * 件数);
}

KONPEKI_両エンジンで(出金同時登録);

}  // namespace
