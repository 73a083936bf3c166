#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>

#include "common/伝票打鍵者.h"
#include "common/試験用ツリー.h"

// The lines of the slip marked 印 in 出金伝票備考A, "1000,2000" and so on; "none" when no such
// slip is stored, and a word of warning when lines stand without their header.
inline QString 印の伝票(試験用ツリー& 木, const QString& 印) {
    QStringList 額;
    for (
        const auto& r : 木.業務DB行(
            u"SELECT m.出金金額 FROM T出金明細 m INNER JOIN T出金 h ON h.事業所コード = m.事業所コード AND h.番号基準日付 = m.番号基準日付 AND h.出金No = m.出金No WHERE h.出金伝票備考A = '"_qs +
            印 + u"' ORDER BY m.出金行No"_qs)) {
        額 << QString::number(r[0].toLongLong());
    }
    const auto 見出し =
        木.業務DB行(u"SELECT COUNT(*) FROM T出金 WHERE 出金伝票備考A = '"_qs + 印 + u"'"_qs);
    if (見出し.isEmpty() || 見出し[0][0].toInt() == 0)
        return 額.isEmpty() ? u"none"_qs : u"lines without header"_qs;
    return 額.join(u',');
}

// Lines of T出金明細 whose header is not in T出金: a store cut in half would leave them.
inline int 見出しのない行(試験用ツリー& 木) {
    return 木
        .業務DB行(
            u"SELECT COUNT(*) FROM T出金明細 m WHERE NOT EXISTS (SELECT 1 FROM T出金 h WHERE h.事業所コード = m.事業所コード AND h.番号基準日付 = m.番号基準日付 AND h.出金No = m.出金No)"_qs)
        .value(0)
        .value(0)
        .toInt();
}

inline int エラー行数(試験用ツリー& 木) {
    return 木.環境DB行(u"SELECT COUNT(*) FROM プログラム稼動履歴 WHERE 摘要 LIKE 'エラー%'"_qs)
        .value(0)
        .value(0)
        .toInt();
}

// Runs a command and answers whether it ended well.
inline bool 実行(const QString& プログラム, const QStringList& 引数) {
    QProcess p;
    p.start(プログラム, 引数);
    return p.waitForFinished(120000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}
