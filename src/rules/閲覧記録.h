#pragma once

#include <QString>

class 接続環境;
struct 会社情報;
class 番号環境;
struct プログラム環境情報;

// One look-up of a slip by key, as T閲覧 keeps it.
struct 閲覧記録指定 {
    QString 事業所コード;  // the office the screen works for: the browse row is kept under it
    QString 担当者名;      // name of the starting operator
    QString プログラム名;  // "紺碧帳"
    QString 伝票事業所コード, 伝票番号基準日付, 伝票No;  // the key looked up
    QString キー項目;
};

// Records a look-up before the slip is read, so also one that finds nothing. The browse number
// is taken under 運用事業所コード and checked against T閲覧 under the row's own office until it
// is free. True when the row was stored; a failure is only logged.
bool 閲覧記録(接続環境& 接続, const 会社情報& 会社, const 閲覧記録指定& 指定);
// The same on a given general connection, whose numbers and T閲覧 are read and written there.
bool 閲覧記録(const 番号環境& 環境, const プログラム環境情報& 情報, const 閲覧記録指定& 指定);
