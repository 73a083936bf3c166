#include "common/エンジン別試験.h"
#include "障害試験.h"

namespace {

class 閲覧番号競合 : public エンジン別試験 {};

// Four operators look slips up at the same time, each look-up taking a browse number. The
// number is read, written back one higher and checked against T閲覧 before the row goes in:
// two look-ups that read the counter together would take one number, unless the take and the
// row go in as one batch, one after another.
TEST_P(閲覧番号競合, 同時に何度も見ても閲覧番号は重ならない) {
    {
        伝票打鍵者 準備(木->プログラムフォルダ());
        ASSERT_TRUE(準備.開く());
        準備.新規(u"元"_qs, 1);
        準備.閉じる();
    }
    constexpr int 人数 = 4, 回数 = 80;
    std::vector<std::unique_ptr<QProcess>> 人;
    for (int i = 0; i < 人数; ++i) {
        人.push_back(std::make_unique<QProcess>());
        人.back()->start(
            QStringLiteral(KONPEKI_STRESS_HELPER),
            {u"once"_qs, 木->プログラムフォルダ(), u"browse"_qs, QString::number(回数)});
    }
    for (auto& p : 人) {
        ASSERT_TRUE(p->waitForFinished(180000));
        EXPECT_EQ(p->exitCode(), 0) << p->readAllStandardError().toStdString();
    }
    EXPECT_EQ(木->業務DB行(u"SELECT COUNT(*) FROM T閲覧"_qs).value(0).value(0).toInt(),
              人数 * 回数);
    EXPECT_EQ(
        木->業務DB行(
              u"SELECT COUNT(*) FROM (SELECT 事業所コード, 番号基準日付, 閲覧No FROM T閲覧 GROUP BY 事業所コード, 番号基準日付, 閲覧No HAVING COUNT(*) > 1) x"_qs)
            .value(0)
            .value(0)
            .toInt(),
        0);
}

KONPEKI_両エンジンで(閲覧番号競合);

}  // namespace
