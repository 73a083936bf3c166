#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QTimer>
#include <QTreeWidget>
#include <cstdio>

#include "ui/Qt起動準備.h"
#include "ui/紺碧帳一式.h"

namespace {

// Resident memory now and at its peak, in MB, as the kernel counts it.
void 記憶量表示(const char* 場面) {
    QFile f(u"/proc/self/status"_qs);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) return;
    double 常駐 = 0, 最大 = 0, 匿名 = 0, 写像 = 0;
    for (const QByteArray& 行 : f.readAll().split('\n')) {
        const QList<QByteArray> 語 = 行.simplified().split(' ');
        if (語.size() < 2) continue;
        if (語[0] == "VmRSS:") 常駐 = 語[1].toDouble() / 1024;
        if (語[0] == "VmHWM:") 最大 = 語[1].toDouble() / 1024;
        if (語[0] == "RssAnon:") 匿名 = 語[1].toDouble() / 1024;
        if (語[0] == "RssFile:") 写像 = 語[1].toDouble() / 1024;
    }
    // Mapped files are mostly the shared libraries and the fonts, shared with other programs.
    std::printf("%-44s VmRSS %6.1f MB  VmHWM %6.1f MB  (heap and stacks %.1f MB, files %.1f MB)\n",
                場面, 常駐, 最大, 匿名, 写像);
    std::fflush(stdout);
}

void 押す(ScreenWindow& 窓, 部品& p) {
    if (auto* b = qobject_cast<QAbstractButton*>(窓.ウィジェット(p))) b->click();
}

}  // namespace

// konpeki-bench-memory PRGBIN NAME: the slip program on the tree of that program folder, its
// entry screen up, then the description list opened from the first line and searched over the
// range "all"; prints the resident memory at each step.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Qt起動準備(app);
    const QStringList 引数 = QCoreApplication::arguments();
    if (引数.size() < 3) return 2;
    const QByteArray 名 = 引数[2].toUtf8();
    紺碧帳一式 一式(引数[1]);
    frm紺碧帳& f = 一式.モデル;
    一式.モデル.停止 = [] { std::exit(1); };
    if (一式.起動.プログラム開始(QString()) != 起動結果::稼動) {
        std::printf("%s: the program did not start\n", 名.constData());
        return 1;
    }
    ScreenWindow* 主窓 = 一式.画面.窓();
    if (!主窓) return 1;
    QApplication::processEvents();
    記憶量表示((名 + ", entry screen up").constData());

    // A staff member typed, so that the first line is open for its description button.
    f.担当者確定(u"00003"_qs);
    f.見出し表示();
    主窓->反映();
    画面モデル& m = 一式.一覧群(u"wnd出金摘要一覧"_qs).画面;
    int 行数 = -1;
    QTimer 時計;
    QObject::connect(&時計, &QTimer::timeout, [&] {
        for (QWidget* t : QApplication::topLevelWidgets()) {
            auto* 窓 = dynamic_cast<ScreenWindow*>(t);
            if (!窓 || !窓->isVisible() || 窓->windowTitle() != u"出金摘要一覧") continue;
            時計.stop();
            押す(*窓, m(u"opb_期間"_qs, 4));
            押す(*窓, m(u"btn_複合検索"_qs));
            QApplication::processEvents();
            if (auto* L = qobject_cast<QTreeWidget*>(窓->ウィジェット(m(u"List出金摘要"_qs)))) {
                行数 = L->topLevelItemCount();
            }
            記憶量表示(
                (名 + ", description list of " + QByteArray::number(行数) + " rows").constData());
            一式.基盤.画面終了(m.名前);
            return;
        }
    });
    時計.start(10);
    押す(*主窓, f.画面(u"btn_摘要"_qs, 0));
    時計.stop();
    if (行数 < 0) std::printf("%s: the description list did not open\n", 名.constData());
    一式.起動.終了処理();
    return 行数 == 1000 ? 0 : 1;
}
