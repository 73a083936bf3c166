#pragma once

#include <QString>
#include <QStringList>

// What one run of the export writes: the slips of a period of 出金日付, of one office or all.
struct 出力指定 {
    QString 開始日;        // "yyyymmdd"
    QString 終了日;        // "yyyymmdd"
    QString 事業所コード;  // empty or "000": every office
    QString 形式;          // "yayoi" or "csv"
    QString 出力先;

    // The command line --from YYYYMMDD --to YYYYMMDD [--office CODE] --format yayoi|csv
    // --out FILE. False with the refusal in Japanese.
    static bool 解析(const QStringList& 引数, 出力指定& 指定, QString& エラー);
    static const QString 使い方;
};
