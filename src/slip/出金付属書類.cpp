#include "slip/出金付属書類.h"

#include "rules/番号設定.h"
#include "slip/出金セッション.h"

QString 出金付属書類ID(const 出金セッション& s) {
    return s.伝票鍵().文字列();
}

付属書類項目 出金付属書類項目(const 出金セッション& s) {
    const 出金見出し& h = s.見出し;
    付属書類項目 v;
    v.伝票番号ID = 番号定数::出金番号ID.toString();
    v.伝票事業所コード = s.データ.接続().作業事業所コード();
    v.伝票番号基準日付 = h.番号基準日付;
    v.伝票No = h.出金No;
    v.伝票日付 = h.出金日付;
    v.担当者コード = h.担当者コード;
    v.部門コード = h.部門コード;
    v.セクションコード = h.セクションコード;
    return v;
}
