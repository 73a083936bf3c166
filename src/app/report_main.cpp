#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTimer>

#include "report/出金伝票描画.h"
#include "report/紺碧帳書.h"
#include "ui/Qtプラットフォーム.h"
#include "ui/Qt起動準備.h"

namespace {

// The page fills the paper: the layout keeps its own margins.
void 用紙設定(QPrinter& 用紙, const 出金伝票帳票& 帳票) {
    用紙.setPageSize(QPageSize(QPageSize::A4));
    用紙.setFullPage(true);
    用紙.setDocName(u"出金伝票 "_qs + 帳票.事業所コード + u"-"_qs + 帳票.出金No);
}

void 描く(QPrinter& 用紙, const 出金伝票帳票& 帳票) {
    QPainter p(&用紙);
    出金伝票描画(p, 用紙.paperRect(QPrinter::DevicePixel), 帳票);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    Qt起動準備(app);
    Qtプラットフォーム 基盤;
    基盤.既定の題名 = u"紺碧帳書"_qs;
    紺碧帳書 帳書(基盤, QCoreApplication::applicationDirPath());

    帳書.印刷 = [](const 出金伝票帳票& 帳票) {
        QPrinter 用紙(QPrinter::HighResolution);
        用紙設定(用紙, 帳票);
        QPrintDialog 窓(&用紙);
        窓.setWindowTitle(u"紺碧帳書 - 印刷"_qs);
        if (窓.exec() != QDialog::Accepted) return false;
        描く(用紙, 帳票);
        return true;
    };
    帳書.プレビュー = [](const 出金伝票帳票& 帳票) {
        QPrinter 用紙(QPrinter::HighResolution);
        用紙設定(用紙, 帳票);
        QPrintPreviewDialog 窓(&用紙);
        窓.setWindowTitle(u"紺碧帳書 - 出金伝票 "_qs + 帳票.出金No);
        窓.resize(900, 1000);
        QObject::connect(&窓, &QPrintPreviewDialog::paintRequested,
                         [&](QPrinter* p) { 描く(*p, 帳票); });
        // For the tests and the README: a picture of the preview, then a close.
        const QString 写真 = qEnvironmentVariable("KONPEKI_SCREENSHOT");
        if (!写真.isEmpty()) {
            QTimer::singleShot(0, &窓, [&] {
                窓.grab().save(写真);
                窓.close();
            });
        }
        窓.exec();
        return true;
    };
    // Siblings pass the fixed-position text as one argument, whose inner blanks are positions.
    return 帳書.実行(QCoreApplication::arguments().mid(1).join(u' '));
}
