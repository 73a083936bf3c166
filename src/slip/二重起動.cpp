#include "slip/二重起動.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>

二重起動検査::二重起動検査(const QString& ロックフォルダ, const QString& プログラムフォルダ,
                           const QString& 利用者) {
    const QByteArray 鍵 = QCryptographicHash::hash((利用者 + u'\n' + プログラムフォルダ).toUtf8(),
                                                   QCryptographicHash::Sha1)
                              .toHex()
                              .left(16);
    印フォルダ = ロックフォルダ + u"/konpeki-"_qs + QString::fromLatin1(鍵);
    QDir().mkpath(印フォルダ);
    自分の印 = QString::number(QCoreApplication::applicationPid()) + u".lock"_qs;
    ロック = std::make_unique<QLockFile>(印フォルダ + u'/' + 自分の印);
    ロック->setStaleLockTime(0);  // a mark is stale only when its process is gone
    ロック->tryLock(0);
}

bool 二重起動検査::他に起動中() {
    const QStringList 印 = QDir(印フォルダ).entryList({u"*.lock"_qs}, QDir::Files);
    for (const QString& 名 : 印) {
        if (名 == 自分の印) continue;
        QLockFile 他(印フォルダ + u'/' + 名);
        他.setStaleLockTime(0);
        // The mark of an ended process can be taken over; dropping it removes the file.
        if (他.tryLock(0)) {
            他.unlock();
            continue;
        }
        if (他.error() == QLockFile::LockFailedError) return true;
    }
    return false;
}
