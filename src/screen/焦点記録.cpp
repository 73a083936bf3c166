#include "screen/焦点記録.h"

#include <QFile>
#include <QTextStream>
#include <cstdio>

namespace {

struct 記録先 {
    QString 先;
    bool 読んだ = false;
};

記録先& 記録() {
    static 記録先 r;
    if (!r.読んだ) {
        r.読んだ = true;
        r.先 = qEnvironmentVariable("KONPEKI_FOCUS_TRACE");
    }
    return r;
}

}  // namespace

bool 焦点記録::有効() {
    return !記録().先.isEmpty();
}

void 焦点記録::書く(const QString& 行) {
    const QString& 先 = 記録().先;
    if (先.isEmpty()) return;
    if (先 == u"1" || 先 == u"-") {
        std::fprintf(stderr, "%s\n", 行.toUtf8().constData());
        return;
    }
    QFile f(先);
    if (!f.open(QIODevice::Append | QIODevice::Text)) return;
    QTextStream(&f) << 行 << u'\n';
}

void 焦点記録::出力先設定(const QString& 先) {
    記録().先 = 先;
}
