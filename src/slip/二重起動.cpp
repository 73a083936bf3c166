#include "slip/二重起動.h"

#include <QCryptographicHash>

二重起動検査::二重起動検査(const QString& ロックフォルダ, const QString& プログラムフォルダ,
                           const QString& 利用者) {
    const QByteArray 鍵 = QCryptographicHash::hash((利用者 + u'\n' + プログラムフォルダ).toUtf8(),
                                                   QCryptographicHash::Sha1)
                              .toHex()
                              .left(16);
    ロック = std::make_unique<QLockFile>(ロックフォルダ + u"/konpeki-"_qs +
                                         QString::fromLatin1(鍵) + u".lock"_qs);
    ロック->setStaleLockTime(0);  // a lock left by a crashed run is recognised by its process id
}

bool 二重起動検査::他に起動中() {
    return !ロック->isLocked() && !ロック->tryLock(0);
}
