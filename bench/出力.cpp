#include <QElapsedTimer>
#include <QFile>
#include <cstdio>

#include "ledger/紺碧帳出力.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

// The journal export of 100 thousand slips of five lines (SQLite), from the start of the run to
// the file renamed into place, in both formats.
void 出力計測() {
    const QString 根 = 大量伝票の木(100000);
    if (根.isEmpty()) return;
    const QString 出力先 = 根 + u"/仕訳.txt"_qs;
    for (const QString& 形式 : {u"yayoi"_qs, u"csv"_qs}) {
        std::vector<double> 時間;
        for (int i = 0; i < 5; ++i) {
            台本プラットフォーム 基盤;
            紺碧帳出力 p(基盤, 根 + u"/prgbin"_qs);
            QElapsedTimer t;
            t.start();
            const int r =
                p.実行(QStringList{u"--from"_qs, u"20000101"_qs, u"--to"_qs, u"20991231"_qs,
                                   u"--format"_qs, 形式, u"--out"_qs, 出力先});
            時間.push_back(ミリ秒(t));
            if (r != 0 || p.集計.伝票数 < 100000) {
                std::printf("export failed: %s\n",
                            基盤.表示済み.isEmpty()
                                ? "?"
                                : 基盤.表示済み.last().本文.toLocal8Bit().constData());
                return;
            }
            if (i == 0)
                std::printf("%s\n  %lld bytes\n", p.結果文言.toLocal8Bit().constData(),
                            static_cast<long long>(QFile(出力先).size()));
        }
        結果表示(形式 == u"yayoi" ? "export, 100k slips, yayoi" : "export, 100k slips, csv", 時間,
                 "ms");
    }
}
