// konpeki-stress operate PRGBIN INDEX COUNT START_MS | check PRGBIN SECONDS OPERATORS JOURNAL...
//                | once PRGBIN ACTION POINT
#include <QCoreApplication>
#include <cstdio>

#include "ストレス.h"

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList a = app.arguments();
    if (a.size() == 6 && a[1] == u"operate")
        return 操作員実行(a[2], a[3].toInt(), a[4].toInt(), a[5].toLongLong());
    if (a.size() == 5 && a[1] == u"once") return 単発実行(a[2], a[3], a[4]);
    if (a.size() >= 6 && a[1] == u"check")
        return 検査実行(a[2], a.mid(5), a[3].toDouble(), a[4].toInt());
    std::fprintf(stderr,
                 "usage: konpeki-stress operate PRGBIN INDEX COUNT START_MS\n"
                 "       konpeki-stress check PRGBIN SECONDS OPERATORS JOURNAL...\n"
                 "       konpeki-stress once PRGBIN kill|probe|hold|delete POINT\n");
    return 2;
}
