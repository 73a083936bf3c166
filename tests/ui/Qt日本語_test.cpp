#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>
#include <functional>

#include "ui/Qtプラットフォーム.h"
#include "ui/Qt起動準備.h"

namespace {

// The button texts of the file picker that is up, then its cancel; looks again until it is up.
void 選択窓を読んで閉じる(QStringList& 文言, int 残り = 100) {
    QTimer::singleShot(0, [&文言, 残り] {
        QFileDialog* 窓 = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (auto* d = qobject_cast<QFileDialog*>(w); d && d->isVisible()) 窓 = d;
        }
        if (!窓 && 残り > 0) return 選択窓を読んで閉じる(文言, 残り - 1);
        ASSERT_NE(窓, nullptr);
        for (QPushButton* b : 窓->findChild<QDialogButtonBox*>()->findChildren<QPushButton*>()) {
            文言 << b->text();
        }
        窓->reject();
    });
}

TEST(Qtの窓, 起動準備の後は添付書類のファイル選択が日本語で話す) {
    QTranslator* 訳 = Qt起動準備(*qApp);
    ASSERT_NE(訳, nullptr) << "qtbase_ja not found in "
                           << QLibraryInfo::path(QLibraryInfo::TranslationsPath).toStdString();
    Qtプラットフォーム 基盤;
    QStringList 文言;
    選択窓を読んで閉じる(文言);
    const QString 答え = 基盤.ファイル選択(QDir::tempPath(), u"すべてのファイル (*.*)|*.*"_qs);
    // The other window tests keep Qt's own texts as they were.
    QCoreApplication::removeTranslator(訳);
    delete 訳;
    EXPECT_TRUE(答え.isEmpty());
    EXPECT_TRUE(文言.contains(u"キャンセル"_qs)) << 文言.join(u" / "_qs).toStdString();
    EXPECT_FALSE(文言.contains(u"Cancel"_qs)) << 文言.join(u" / "_qs).toStdString();
}

}  // namespace
