// One of two processes that store new slips into the same tree at the same moment. Arguments:
// the tree's program folder, the number of slips, and the moment to begin (milliseconds since
// the epoch), so that both begin together after their start-up. Prints each number it stored.
#include <QCoreApplication>
#include <QDateTime>
#include <QThread>
#include <cstdio>

#include "common/出金入力.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList 引数 = app.arguments();
    if (引数.size() != 4) return 2;
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
    出金セッション s(基盤);
    画面なし 画面;
    紺碧帳起動 起動(s, 画面);
    s.データ.接続().自身のフォルダ設定(引数[1]);
    if (!起動.データベース開始() || !起動.ユーザ情報初期化()) return 3;
    const int 件数 = 引数[2].toInt();
    const qint64 開始 = 引数[3].toLongLong();
    while (QDateTime::currentMSecsSinceEpoch() < 開始) QThread::msleep(1);
    for (int i = 0; i < 件数; ++i) {
        s.出金情報初期化();
        if (!担当者入力(s, u"00003"_qs)) return 4;
        for (int 行 = 1; 行 <= 3; ++行) {
            if (!明細入力(s, 3, 金額::円(100 * 行), {}, u"同時"_qs)) return 5;
        }
        if (!s.新規登録処理()) return 6;
        std::printf("%s\n", qPrintable(s.見出し.出金No));
    }
    起動.終了処理();
    return 0;
}
