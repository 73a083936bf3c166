#include "ui/Qt起動準備.h"

#include <QApplication>
#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

QTranslator* Qt起動準備(QApplication& アプリ) {
    QApplication::setFont(QFont(u"Noto Sans CJK JP"_qs, 10));
    // Every text of the suite is Japanese, whatever the desktop's language.
    auto* 訳 = new QTranslator(&アプリ);
    if (!訳->load(QLocale(QLocale::Japanese, QLocale::Japan), u"qtbase"_qs, u"_"_qs,
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
        !QCoreApplication::installTranslator(訳)) {
        delete 訳;
        return nullptr;
    }
    return 訳;
}
