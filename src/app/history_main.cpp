#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

#include "audit/紺碧帳履歴.h"
#include "ledger/端末プラットフォーム.h"

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTextStream 出力(stdout), エラー(stderr);
    出力.setEncoding(QStringConverter::Utf8);
    エラー.setEncoding(QStringConverter::Utf8);
    端末プラットフォーム 基盤;
    紺碧帳履歴 履歴(基盤, QCoreApplication::applicationDirPath());
    return 履歴.実行(QCoreApplication::arguments().mid(1), 出力, エラー);
}
