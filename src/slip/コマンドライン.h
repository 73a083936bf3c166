#pragma once

#include <QString>

enum class 起動モード { 通常, キー起動, 連携新規, 不正 };

// The fixed-position command line: office (1,3), base date (4,8), slip No (12,8), date (20,8),
// staff (28,5). No separators, no length checks.
struct 起動コマンド {
    QString 全体;  // trimmed
    QString 事業所コード;
    QString 番号基準日付;
    QString 出金No;
    QString 出金日付;
    QString 担当者コード;

    static 起動コマンド 解析(const QString& 引数);
    起動モード モード() const;
};
