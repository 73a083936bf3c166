#pragma once

#include <QString>

class 試験用ツリー;

// A stored slip written behind the program's back, as another operator would have stored it.
struct 試験伝票 {
    QString 事業所コード = u"000"_qs;
    QString 番号基準日付 = u"20260331"_qs;
    QString 出金No;
    QString 出金日付 = u"20251120"_qs;
    QString 担当者コード = u"00003"_qs;
    QString 部門コード = u"001"_qs;
    QString セクションコード = u"001"_qs;
    int 行数 = 2;
    QString 費目区分 = u"03"_qs;  // every line's expense class
    qint64 金額単位 = 1000;       // line i has the amount (i + 1) × this
};

bool 伝票投入(試験用ツリー& 木, const 試験伝票& 伝票);
