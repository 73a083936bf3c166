#pragma once

#include <QString>

#include "common/試験用ツリー.h"

// A request row as a sibling program of the suite writes it before it starts this program:
// sent at the time given, to "紺碧帳", with the command line text as its key.
inline bool 連携要求を書く(試験用ツリー& 木, const QString& 発信日時, const QString& 起動連携情報,
                           const QString& 発信プログラムID = u"翠嶺"_qs, bool 人事側 = false) {
    const QString 文 =
        u"INSERT INTO プログラム連携情報 (発信日時, 発信プログラムID, 受信プログラムID, 受信期限, "
        u"連携区分, 起動連携情報, 終了連携情報, 運用事業所コード, 起動担当者コード, ユーザID) "
        u"VALUES ('"_qs +
        発信日時 + u"', '"_qs + 発信プログラムID + u"', '紺碧帳', '"_qs + 発信日時 +
        u"', '00', '"_qs + 起動連携情報 + u"', '', '000', '00001', 'asker')"_qs;
    return 人事側 ? 木.人事環境DB実行(文) : 木.環境DB実行(文);
}
