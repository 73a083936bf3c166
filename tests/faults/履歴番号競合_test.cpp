#include <QElapsedTimer>
#include <QThread>

#include "common/エンジン別試験.h"
#include "障害試験.h"

namespace {

class 履歴番号競合 : public エンジン別試験 {};

// One operator stores a new slip and stands inside his store, his history number taken; another
// deletes a slip meanwhile and takes a history number too. The new slip's header history is
// refused on purpose, so the deleting operator's check against R出金 cannot see the number in
// use: only the order of the two batches keeps him from taking it again. The second batch waits
// for the first, and the two history numbers differ in the queue and in the line history.
TEST_P(履歴番号競合, 登録中に別の利用者が削除しても履歴番号は重ならない) {
    {
        伝票打鍵者 準備(木->プログラムフォルダ());
        ASSERT_TRUE(準備.開く());
        準備.新規(u"元"_qs, 2);
        準備.閉じる();
    }
    QProcess 甲, 乙;
    甲.start(QStringLiteral(KONPEKI_STRESS_HELPER),
             {u"once"_qs, 木->プログラムフォルダ(), u"hold"_qs, u"1"_qs});
    ASSERT_TRUE(甲.waitForReadyRead(60000));
    ASSERT_EQ(甲.readLine().trimmed(), "IN");

    乙.start(QStringLiteral(KONPEKI_STRESS_HELPER),
             {u"once"_qs, 木->プログラムフォルダ(), u"delete"_qs, u"00000001"_qs});
    if (GetParam()) {
        // The deletion stands waiting for a lock the held store has.
        QElapsedTimer 計時;
        計時.start();
        bool 待っている = false;
        while (!待っている && 計時.elapsed() < 60000) {
            待っている =
                木->業務DB行(
                      u"SELECT COUNT(*) FROM pg_stat_activity WHERE datname = current_database() AND wait_event_type = 'Lock'"_qs)
                    .value(0)
                    .value(0)
                    .toInt() > 0;
            QThread::yieldCurrentThread();
        }
        ASSERT_TRUE(待っている);
    }
    甲.write("\n");
    甲.closeWriteChannel();
    for (QProcess* p : {&甲, &乙}) {
        ASSERT_TRUE(p->waitForFinished(120000));
        EXPECT_EQ(p->exitCode(), 0) << p->readAllStandardError().toStdString();
    }
    EXPECT_EQ(印の伝票(*木, u"待"_qs), u"1000,2000"_qs);
    EXPECT_EQ(印の伝票(*木, u"元"_qs), u"none"_qs);
    const auto 未集計 = 木->業務DB行(
        u"SELECT 履歴No, 登録情報区分 FROM 未集計情報 ORDER BY 履歴No, 登録情報区分"_qs);
    ASSERT_EQ(未集計.size(), 3);
    QStringList 番号;
    for (const auto& r : 未集計) 番号 << r[0].toString();
    番号.removeDuplicates();
    EXPECT_EQ(番号.size(), 3) << 番号.join(u' ').toStdString();
    EXPECT_EQ(
        木->業務DB行(
              u"SELECT COUNT(*) FROM (SELECT 出金履歴No, 出金固有行No FROM R出金明細 GROUP BY 出金履歴No, 出金固有行No HAVING COUNT(*) > 1) x"_qs)
            .value(0)
            .value(0)
            .toInt(),
        0);
}

KONPEKI_両エンジンで(履歴番号競合);

}  // namespace
