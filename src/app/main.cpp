#include <QApplication>
#include <QDir>
#include <QTextStream>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "dataenv/ファイル操作.h"
#include "slip/二重起動.h"
#include "ui/Qt起動準備.h"
#include "ui/紺碧帳一式.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    Qt起動準備(app);

    紺碧帳一式 一式(QCoreApplication::applicationDirPath());
    出金セッション& セッション = 一式.セッション;
    入力画面ウィンドウ& 画面 = 一式.画面;
    紺碧帳起動& 起動 = 一式.起動;
    // Every run, linked or by hand, takes its mark here and holds it to the end.
    二重起動検査 検査(QDir::tempPath(), QCoreApplication::applicationDirPath(), 端末利用者名取得());
    起動.他に起動中 = [&] { return 検査.他に起動中(); };
    // Once the quit is decided the process ends at once: no further event runs.
    一式.モデル.停止 = [&] {
        起動.停止処理();
        std::fflush(stdout);
        std::exit(0);
    };
    // Siblings pass the fixed-position text as one argument, whose inner blanks are positions.
    const QString コマンドライン = QCoreApplication::arguments().mid(1).join(u' ');
    if (起動.プログラム開始(コマンドライン) == 起動結果::停止) return 0;

    // For the benchmark and the tests: a picture of the window, word that it is up with the
    // slip's office and staff, and a close as an operator would close it.
    const QString 写真 = qEnvironmentVariable("KONPEKI_SCREENSHOT");
    if (qEnvironmentVariableIsSet("KONPEKI_CLOSE_WHEN_SHOWN") || !写真.isEmpty()) {
        QTimer::singleShot(0, [&] {
            ScreenWindow* 窓 = 画面.窓();
            if (!写真.isEmpty()) 窓->grab().save(写真);
            QTextStream(stdout) << "shown " << 窓->windowTitle() << Qt::endl
                                << "slip " << セッション.見出し.事業所コード << u'|'
                                << セッション.見出し.担当者コード << Qt::endl;
            if (qEnvironmentVariableIsSet("KONPEKI_CLOSE_WHEN_SHOWN")) 窓->close();
        });
    }
    return app.exec();
}
