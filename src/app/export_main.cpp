#include <QApplication>
#include <cstdio>

#include "ledger/frm紺碧帳出力.h"
#include "ledger/端末プラットフォーム.h"
#include "ledger/紺碧帳出力.h"
#include "lists/wnd支払先登録.h"
#include "ui/Qtプラットフォーム.h"
#include "ui/Qt起動準備.h"
#include "ui/画面ウィンドウ.h"

namespace {

int 端末で(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList 引数 = QCoreApplication::arguments().mid(1);
    端末プラットフォーム 基盤;
    紺碧帳出力 出力(基盤, QCoreApplication::applicationDirPath());
    const int 結果 = 出力.実行(引数);
    if (結果 == 0) std::puts(出力.結果文言.toLocal8Bit().constData());
    return 結果;
}

// Without arguments: the export window, with the payee register behind its button.
int 窓で(int argc, char** argv) {
    QApplication app(argc, argv);
    Qt起動準備(app);
    Qtプラットフォーム 基盤;
    基盤.既定の題名 = u"紺碧帳出力"_qs;
    紺碧帳出力 出力(基盤, QCoreApplication::applicationDirPath());
    frm紺碧帳出力 画面(出力);
    wnd支払先登録 支払先登録(出力.s, 画面.画面);
    基盤.画面登録(支払先登録.画面.名前, 支払先登録.画面);
    ScreenWindow 窓(画面.画面);
    画面.途中表示 = [&] {
        窓.反映();
        QApplication::processEvents();
    };
    画面.閉じる = [&] { 窓.close(); };
    窓.閉じてよいか = [&] { return 画面.閉じてよいか(); };
    窓.閉じる時 = [&] {
        画面.閉じる = nullptr;
        画面.終了();
    };
    // Loaded once the window is up, so that the field the focus comes to holds its proposal
    // selected, to be typed over.
    窓.show();
    画面.読込();
    窓.反映();
    return app.exec();
}

}  // namespace

int main(int argc, char** argv) {
    return argc > 1 ? 端末で(argc, argv) : 窓で(argc, argv);
}
