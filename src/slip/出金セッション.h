#pragma once

#include <QString>

#include "dataenv/データ環境.h"

// The slip header as the screen and the store see it. The remaining fields and the line table
// join it as the load and store of slips are built.
struct 出金見出し {
    QString 事業所コード;
    QString 出金日付年;
    QString 出金日付月;
    QString 出金日付日;
    QString 出金日付;
    QString 番号基準日付;
    QString 出金No;
    QString 担当者コード;
    QString 担当者名;
    QString 部門コード;
    QString 部門名;
    QString セクションコード;
    QString セクション名;
};

// The one session of a run: the data environment, the slip in memory and the flags that steer
// the screen. A test makes a fresh one for each case.
class 出金セッション {
  public:
    explicit 出金セッション(プラットフォーム& 基盤) : データ(基盤) {}

    データ環境 データ;
    出金見出し 見出し;

    bool 新規情報フラグ = true;
    bool 入力変更フラグ = false;
    bool 連携起動フラグ = false;
    bool 連携新規フラグ = false;
    bool 白樺連携フラグ = false;
    bool 軽減税率表示 = false;
    short 最終行 = -1;

    // The program link: what this run was started with, and what it answers at its end.
    QString 受信起動連携情報;
    QString 終了時連携情報;
};
