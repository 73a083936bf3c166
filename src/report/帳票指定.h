#pragma once

#include <QString>

// The argument text of the report program, position by position.
struct 帳票指定 {
    QString 事業所コード;
    QString 出力区分;  // "0" print, "1" preview, "3" PDF
    QString 出金日付自, 出金日付至;
    QString 出金No自, 出金No至;              // as given, blanks cut
    QString 担当者コード自, 担当者コード至;  // as given, blanks cut; empty: any staff

    // Reads the 47 positions. False, with the reason in Japanese, when the text does not name
    // one slip in a mode this program knows.
    static bool 解析(const QString& 引数, 帳票指定& 指定, QString& エラー);
};
