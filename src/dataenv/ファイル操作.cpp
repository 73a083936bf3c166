#include "dataenv/ファイル操作.h"

#include <pwd.h>
#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include "text/プラットフォーム.h"

QString 終端まで(const QByteArray& 緩衝) {
    const qsizetype n = 緩衝.indexOf('\0');
    return n < 0 ? QString() : QString::fromLocal8Bit(緩衝.left(n));
}

QString 端末利用者名取得() {
    QByteArray 緩衝(255, '\0');
    if (const passwd* pw = getpwuid(geteuid()); pw && pw->pw_name) {
        qstrncpy(緩衝.data(), pw->pw_name, 緩衝.size());
    } else if (const char* n = getlogin()) {
        qstrncpy(緩衝.data(), n, 緩衝.size());
    }
    return 終端まで(緩衝);
}

QString 端末名取得() {
    QByteArray 緩衝(255, '\0');
    if (gethostname(緩衝.data(), 緩衝.size() - 1) != 0) 緩衝.fill('\0');
    return 終端まで(緩衝);
}

bool ファイル有無確認(const QString& パス) {
    return !パス.isEmpty() && QFileInfo(パス).isFile();
}

bool フォルダ有無確認(const QString& パス) {
    return !パス.isEmpty() && QFileInfo(パス).isDir();
}

bool ファイル複写(const QString& 元, const QString& 先) {
    if (QFileInfo::exists(先)) QFile::remove(先);
    QFile::copy(元, 先);
    // A database file in use keeps its latest writes in its log beside it: they go along.
    QFile::remove(先 + u"-wal"_qs);
    if (QFileInfo::exists(元 + u"-wal"_qs)) QFile::copy(元 + u"-wal"_qs, 先 + u"-wal"_qs);
    return true;
}

bool フォルダ複写(const QString& 元, const QString& 先) {
    QDir().mkpath(先);
    QDirIterator it(元, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                    QDirIterator::Subdirectories);
    const QDir 元フォルダ(元);
    while (it.hasNext()) {
        const QString パス = it.next();
        const QString 相手 = 先 + u'/' + 元フォルダ.relativeFilePath(パス);
        if (it.fileInfo().isDir()) {
            QDir().mkpath(相手);
        } else {
            ファイル複写(パス, 相手);
        }
    }
    return true;
}

bool フォルダ削除(const QString& パス) {
    QDir(パス).removeRecursively();
    return true;
}

void DIREXISTCHK(const QString& パス, プラットフォーム& 基盤) {
    if (パス.trimmed().isEmpty()) return;
    qsizetype 開始;
    if (const qsizetype i = パス.indexOf(u"//"); i >= 0) {
        // A network path: the server and its share are never created.
        開始 = パス.indexOf(u'/', i + 2);
        if (開始 >= 0) 開始 = パス.indexOf(u'/', 開始 + 1);
        if (開始 < 0) return;
    } else if (パス.startsWith(u'/')) {
        開始 = 0;
    } else {
        return;
    }
    for (qsizetype j = パス.indexOf(u'/', 開始 + 1); j >= 0; j = パス.indexOf(u'/', j + 1)) {
        const QString フォルダ = パス.left(j);
        if (フォルダ.isEmpty() || QFileInfo(フォルダ).isDir()) continue;
        if (!QDir().mkdir(フォルダ)) {
            基盤.メッセージ(u"DIREXISTCHK ERROR"_qs + u"76"_qs + u" "_qs +
                            u"パスが見つかりません。"_qs + u"\n"_qs + u"direxeistchk"_qs);
            return;
        }
    }
}

QString ファイル基本名取得(const QString& パス) {
    if (パス.trimmed().isEmpty()) return QString();
    const QFileInfo 情報(パス);
    if (情報.isDir()) return パス.mid(パス.lastIndexOf(u'/') + 1);
    if (!情報.isFile()) return QString();
    const QString 名前 = 情報.fileName();
    const qsizetype 点 = 名前.lastIndexOf(u'.');
    return 点 < 0 ? 名前 : 名前.left(点);
}

bool ファイル実行(const QString& パス, プラットフォーム& 基盤) {
    return 基盤.文書を開く(パス, QFileInfo(パス).absolutePath());
}
