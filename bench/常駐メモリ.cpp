#include <QProcess>

#include "計測.h"

namespace {

void 測る(const QString& 根, const char* 名前) {
    // Qt's own notes of the offscreen platform are shown only when the run failed.
    QProcess p;
    p.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    p.start(QStringLiteral(KONPEKI_MEMORY_PROGRAM), {根 + u"/prgbin"_qs, QString::fromUtf8(名前)});
    if (!p.waitForFinished(600000) || p.exitCode() != 0) {
        std::printf("%s: the memory run failed\n%s", 名前, p.readAllStandardError().constData());
    }
    std::fflush(stdout);
}

}  // namespace

// The slip program's resident memory with the entry screen and a list of 1000 rows open, on
// the million slips in SQLite and, with KONPEKI_TEST_PG, in PostgreSQL.
void 常駐メモリ計測() {
    std::fflush(stdout);
    const QString 根 = 大量伝票の木(1000000);
    if (根.isEmpty()) return;
    測る(根, "SQLite");
    const QString PG根 = 大量伝票のPostgreSQL木(1000000);
    if (!PG根.isEmpty()) 測る(PG根, "PostgreSQL");
}
