#pragma once

#include "rules/消費税計算.h"
#include "slip/出金セッション.h"
#include "text/数値書式.h"

// The slip typed as the entry screen's commits take it, for tests and helpers below the screen.

// The staff member found in the slip's office, his department and section brought along.
inline bool 担当者入力(出金セッション& s, const QString& コード) {
    if (!s.担当者検索(コード)) {
        s.担当者検索破棄();
        return false;
    }
    s.担当者取込();
    s.入力変更フラグ = true;
    return true;
}

// The slip date typed by its parts; what hangs on it is derived again.
inline void 出金日付入力(出金セッション& s, const QString& 日付) {
    s.見出し.出金日付年 = 日付.mid(0, 4);
    s.見出し.出金日付月 = 日付.mid(4, 2);
    s.見出し.出金日付日 = 日付.mid(6, 2);
    s.出金日付確定();
    s.入力変更フラグ = true;
}

// The next line: an expense class of K費目区分 with its tax class and rate, then the amount,
// the payee (which marks a taxable office) and the description; the totals follow.
inline bool 明細入力(出金セッション& s, short 費目区分, 金額 出金金額, const QString& 支払先 = {},
                     const QString& 摘要 = {}) {
    記録集合 rs;
    const bool あり =
        s.データ.接続().業務DB検索(rs, u"SELECT 内税外税区分 FROM K費目区分 WHERE 区分 = '"_qs +
                                           書式(費目区分, u"00") + u"'"_qs);
    const short 内外 = rs.整数(u"内税外税区分"_qs);
    rs.閉じる();
    if (!あり || s.最終行 >= 最大行数 - 1) return false;
    出金行& l = s.行[++s.最終行];
    費目区分変更時再計算(s.データ.接続(), l, 内外, s.見出し.出金日付);
    l.費目区分 = 費目区分;
    出金金額変更時再計算(l, 出金金額);
    l.支払先 = 支払先;
    if (!支払先.isEmpty()) l.課税事業所区分 = 1;
    l.摘要 = 摘要;
    s.合計再計算();
    s.入力変更フラグ = true;
    return true;
}
