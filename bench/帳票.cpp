#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

#include "common/出金入力.h"
#include "rules/帳票起動.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

// From the PDF command's start of the report program to the PDF of a stored 15-line slip
// written and registered, the program's own start included (SQLite).
void 帳票計測() {
    計測用ツリー 木;
    if (!木.作成済み) return;
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
    出金セッション s(基盤);
    画面なし 画面;
    紺碧帳起動 起動(s, 画面);
    s.データ.接続().自身のフォルダ設定(木.根() + u"/prgbin"_qs);
    if (!起動.データベース開始() || !起動.ユーザ情報初期化()) return;
    担当者入力(s, u"00003"_qs);
    for (int 行 = 1; 行 <= 最大行数; ++行) {
        明細入力(s, 行 % 2 ? 3 : 1, 金額::円(1000 * 行), u"支払先"_qs,
                 u"摘要"_qs + QString::number(行));
    }
    s.新規登録処理();
    const 出金見出し& h = s.見出し;
    const QString 引数 = 帳票引数(h.事業所コード, u"3"_qs, h.出金日付, h.出金No, h.担当者コード);
    const QString PDF = 木.根() + u"/documents/出金伝票_"_qs + h.事業所コード + u"_"_qs +
                        h.番号基準日付 + u"_"_qs + h.出金No + u".pdf"_qs;

    auto env = QProcessEnvironment::systemEnvironment();
    if (!env.contains(u"QT_QPA_PLATFORM"_qs)) env.insert(u"QT_QPA_PLATFORM"_qs, u"offscreen"_qs);
    std::vector<double> 標本;
    for (int i = 0; i < 11; ++i) {
        QFile::remove(PDF);
        QProcess p;
        p.setProcessEnvironment(env);
        QElapsedTimer t;
        t.start();
        p.start(木.根() + u"/prgbin/"_qs + 帳票プログラム名, {引数});
        p.waitForFinished(30000);
        const double ms = t.nsecsElapsed() / 1e6;
        if (p.exitCode() != 0 || !QFileInfo::exists(PDF)) {
            std::printf("report program failed: %s\n", p.readAllStandardError().constData());
            return;
        }
        if (i > 0) 標本.push_back(ms);  // the first run warms the file cache
    }
    結果表示("PDF of a 15-line slip, program start included", 標本, "ms");
}
