#include <QProcess>
#include <cstdio>

#include "common/エンジン別試験.h"
#include "common/出金入力.h"
#include "common/出金準備.h"
#include "障害試験.h"

namespace {

// What a tree holds after the killed run, told in a few words.
struct 残り {
    QString 前;    // lines of the slip stored before the kill: "1000,2000" when whole
    QString 後;    // "none", or the lines of the slip being stored when it was killed
    QString 番号;  // the slip counter
    int 履歴行 = 0;
    int 未集計 = 0;
};

残り 調べる(試験用ツリー& 木) {
    残り r;
    r.前 = 印の伝票(木, u"前"_qs);
    r.後 = 印の伝票(木, u"後"_qs);
    const auto 計数 = 木.業務DB行(
        u"SELECT 連番 FROM A期日別番号情報 WHERE 番号ID = '16810' AND 期日 = '20260331'"_qs);
    r.番号 = 計数.isEmpty() ? QString() : 計数[0][0].toString();
    r.履歴行 = 木.業務DB行(u"SELECT COUNT(*) FROM R出金明細"_qs)[0][0].toInt();
    r.未集計 = 木.業務DB行(u"SELECT COUNT(*) FROM 未集計情報"_qs)[0][0].toInt();
    return r;
}

class 強制終了 : public エンジン別試験 {
  protected:
    // The helper stores one slip, then a second one killed at the point.
    QProcess::ExitStatus 走らせる(試験用ツリー& 木, const QString& 点, QString& 出力) {
        QProcess p;
        p.start(QStringLiteral(KONPEKI_STRESS_HELPER),
                {u"once"_qs, 木.プログラムフォルダ(), 点 == u"probe" ? u"probe"_qs : u"kill"_qs,
                 点 == u"probe" ? u"-"_qs : 点});
        EXPECT_TRUE(p.waitForFinished(120000));
        出力 = QString::fromUtf8(p.readAllStandardOutput());
        return p.exitStatus();
    }
};

// A client killed (SIGKILL) at every point of a store: before its first statement, at each
// read of the clock inside it (the stamp of each row), and after its commit. The store is one
// batch, so the general database holds either nothing of the killed slip (no header, no line, no
// history, no queue row, its number not taken) or all of it, never a part; the slip stored
// before is whole. The run that comes next stores on as usual, with the next number.
TEST_P(強制終了, 登録のどの時点で殺されても伝票は全部か無でありその後も登録できる) {
    QString 出力;
    ASSERT_EQ(走らせる(*木, u"probe"_qs, 出力), QProcess::NormalExit);
    const int 読数 = 出力.split(u'\n').value(0).toInt();
    ASSERT_GT(読数, 0) << 出力.toStdString();

    QStringList 点 = {u"before"_qs};
    for (int i = 1; i <= 読数; ++i) 点 << QString::number(i);
    点 << u"after"_qs;
    bool 入った = false;
    for (const QString& p : 点) {
        std::unique_ptr<試験用PostgreSQL> 別pg;
        if (GetParam()) 別pg = std::make_unique<試験用PostgreSQL>();
        試験用ツリー 別(別pg ? 別pg->接続情報() : QString());
        ASSERT_TRUE(別.作成済み);
        EXPECT_EQ(走らせる(別, p, 出力), QProcess::CrashExit) << p.toStdString();
        const 残り r = 調べる(別);
        std::printf("kill at %-6s: slip %s, counter %s, line history %d, queue %d\n", qPrintable(p),
                    qPrintable(r.後), qPrintable(r.番号), r.履歴行, r.未集計);
        EXPECT_EQ(r.前, u"1000,2000"_qs) << p.toStdString();
        if (r.後 == u"none") {
            // Nothing of it: the number, the history and the queue row went back with it.
            EXPECT_FALSE(入った) << p.toStdString() << ": a later point lost a stored slip";
            EXPECT_EQ(r.番号, u"00000001"_qs) << p.toStdString();
            EXPECT_EQ(r.履歴行, 2) << p.toStdString();
            EXPECT_EQ(r.未集計, 1) << p.toStdString();
        } else {
            EXPECT_EQ(r.後, u"1000,2000,3000"_qs) << p.toStdString();
            EXPECT_EQ(r.番号, u"00000002"_qs) << p.toStdString();
            EXPECT_EQ(r.履歴行, 5) << p.toStdString();
            EXPECT_EQ(r.未集計, 2) << p.toStdString();
            入った = true;
        }
        if (p == u"before") {
            EXPECT_EQ(r.後, u"none"_qs);
        }
        if (p == u"after") {
            EXPECT_EQ(r.後, u"1000,2000,3000"_qs);
        }

        // The next run stores on: its slip takes the next number and arrives whole.
        台本プラットフォーム 次の基盤;
        次の基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(11, 0, 0));
        出金セッション s(次の基盤);
        出金セッション準備(s, 別);
        ASSERT_FALSE(HasFatalFailure());
        s.出金情報初期化();
        ASSERT_TRUE(担当者入力(s, u"00003"_qs));
        ASSERT_TRUE(明細入力(s, 3, 金額::円(500)));
        s.見出し.出金伝票備考A = u"次"_qs;
        ASSERT_TRUE(s.新規登録処理());
        EXPECT_EQ(s.見出し.出金No, r.後 == u"none" ? u"00000002"_qs : u"00000003"_qs);
        EXPECT_EQ(印の伝票(別, u"次"_qs), u"500"_qs);
        画面なし 窓;
        紺碧帳起動 起動(s, 窓);
        起動.終了処理();
    }
    EXPECT_TRUE(入った);
}

KONPEKI_両エンジンで(強制終了);

}  // namespace
