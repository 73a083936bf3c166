#include "slip/出金セッション.h"

#include "rules/番号設定.h"
#include "rules/集計日付計算.h"
#include "text/実行時エラー.h"

void 出金セッション::出金情報初期化() {
    新規情報フラグ = true;
    入力変更フラグ = false;
    出金見出し初期化();
    出金明細初期化();
    出金合計初期化();
}

void 出金セッション::出金見出し初期化() {
    // The date, the rates and the office survive: the operator goes on with the same day.
    出金見出し 新 = {};
    新.事業所コード = 見出し.事業所コード;
    新.出金日付年 = 見出し.出金日付年;
    新.出金日付月 = 見出し.出金日付月;
    新.出金日付日 = 見出し.出金日付日;
    新.出金日付 = 見出し.出金日付;
    新.前回税率 = 見出し.前回税率;
    新.今回税率 = 見出し.今回税率;
    新.番号基準日付 = 番号基準日付取得(データ, 番号定数::出金番号ID.toString(), 新.出金日付);
    新.会計集計日付 = 集計日付計算(データ.会社設定().会社(), 新.出金日付);
    新.出金No =
        次番号参照(データ, 番号定数::出金番号ID.toString(), 新.番号基準日付, 新.事業所コード);
    見出し = 新;
    新規情報フラグ = true;
}

void 出金セッション::出金明細初期化() {
    最終行 = -1;
    先頭行 = 0;
    現在行 = 0;
    表示行 = 0;
    for (int i = 0; i < 最大行数; ++i) 出金行初期化(i);
}

void 出金セッション::出金行初期化(int 位置) {
    // The position number stays: the next save writes it anew.
    const QString 行No = 行[位置].出金行No;
    行[位置] = 出金行{};
    行[位置].出金行No = 行No;
}

出金行& 出金セッション::行枠(int 位置) {
    if (位置 < 0 || 位置 >= static_cast<int>(行.size())) throw 添字範囲外();
    return 行[位置];
}

出金行& 出金セッション::新しい行枠(int 位置) {
    出金行& l = 行枠(位置);
    出金行初期化(位置);
    return l;
}

void 出金セッション::出金合計初期化() {
    見出し.出金伝票備考A.clear();
    見出し.出金伝票備考B.clear();
    合計 = 出金合計{};
    軽減税率表示 = false;
}

void 出金セッション::合計再計算() {
    合計 = 出金合計{};
    if (最終行 < 0) return;
    // Rates are compared through their text, as the rate columns of the screen hold them.
    auto 同率 = [](const 金額& a, const 金額& b) {
        return 金額::文字列から(a.文字列()) == 金額::文字列から(b.文字列());
    };
    for (int i = 0; i <= 最終行; ++i) {
        const 出金行& r = 行[i];
        合計.出金金額合計 += r.出金金額;
        合計.出金消費税合計 += r.出金消費税;
        合計.実質出金金額合計 += r.実質出金金額;
        合計.税抜出金金額合計 += r.税抜出金金額;
        合計.税込出金金額合計 += r.税込出金金額;
        // With both rates equal every line goes to the previous pair: that test comes first.
        if (同率(r.消費税率, 見出し.前回税率) && !見出し.前回税率.ゼロか()) {
            合計.前回税率出金金額合計 += r.税抜出金金額;
            合計.前回税率出金消費税合計 += r.出金消費税;
        } else if (同率(r.消費税率, 見出し.今回税率) && !見出し.今回税率.ゼロか()) {
            合計.今回税率出金金額合計 += r.税抜出金金額;
            合計.今回税率出金消費税合計 += r.出金消費税;
        }
    }
}
