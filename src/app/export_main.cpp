#include <QCoreApplication>
#include <cstdio>

#include "ledger/端末プラットフォーム.h"
#include "ledger/紺碧帳出力.h"

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList 引数 = QCoreApplication::arguments().mid(1);
    if (引数.isEmpty()) {
        std::fputs((出力指定::使い方 + u'\n').toLocal8Bit().constData(), stderr);
        return 2;
    }
    端末プラットフォーム 基盤;
    紺碧帳出力 出力(基盤, QCoreApplication::applicationDirPath());
    const int 結果 = 出力.実行(引数);
    if (結果 == 0) std::puts(出力.結果文言.toLocal8Bit().constData());
    return 結果;
}
