#include "ledger/CP932表.h"

#include <QString>

quint32 CP932表::引く(char16_t 単位) {
    quint32& 値 = 表[単位];
    if (値 != 0) return 値;
    // A surrogate alone has no form; CP932 has nothing beyond the basic plane.
    if (単位 >= 0xD800 && 単位 <= 0xDFFF) return 値 = 無し;
    QByteArray バイト;
    qsizetype 位置;
    if (!変換器.追加(QString(QChar(単位)), バイト, 位置) || バイト.isEmpty() || バイト.size() > 2)
        return 値 = 無し;
    quint32 符号 = static_cast<quint8>(バイト[0]);
    if (バイト.size() == 2) 符号 |= static_cast<quint32>(static_cast<quint8>(バイト[1])) << 8;
    return 値 = (符号 << 8) | static_cast<quint32>(バイト.size());
}

bool CP932表::追加(QStringView 文字列, QByteArray& 出力, qsizetype& 不可位置) {
    不可位置 = -1;
    const qsizetype 元の長さ = 出力.size();
    出力.resize(元の長さ + 文字列.size() * 2);
    char* 出 = 出力.data() + 元の長さ;
    for (qsizetype i = 0; i < 文字列.size(); ++i) {
        const char16_t u = 文字列[i].unicode();
        if (u < 0x80) {
            *出++ = static_cast<char>(u);
            continue;
        }
        quint32 値 = 表[u];  // known already, but for the first time a unit is met
        if (値 == 0) 値 = 引く(u);
        if (値 == 無し) {
            不可位置 = i;
            出力.resize(元の長さ);
            return false;
        }
        *出++ = static_cast<char>((値 >> 8) & 0xFF);
        if ((値 & 0xFF) == 2) *出++ = static_cast<char>((値 >> 16) & 0xFF);
    }
    出力.resize(出 - 出力.constData());
    return true;
}
