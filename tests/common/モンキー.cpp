#include "common/モンキー.h"

#include "dataenv/記録集合.h"

namespace {

QString 数字列(乱数& r, int 最大桁) {
    QString s;
    const int n = 1 + r.範囲(最大桁);
    for (int i = 0; i < n; ++i) s += QChar(u'0' + r.範囲(10));
    return s;
}

}  // namespace

QString モンキー文字列(乱数& r) {
    static const QStringList 定型 = {
        u"3"_qs,
        u"5"_qs,
        u"00003"_qs,
        u"1"_qs,
        u"2"_qs,
        u"0"_qs,
        u"001"_qs,
        u"002"_qs,
        u"2025"_qs,
        u"11"_qs,
        u"20"_qs,
        u"31"_qs,
        u"13"_qs,
        u"99"_qs,
        u"-1"_qs,
        u"1,000"_qs,
        u"12.5"_qs,
        u"8"_qs,
        u"10"_qs,
        u""_qs,
        u" "_qs,
        u"交通費"_qs,
        u"株式会社見本"_qs,
        u"ｶﾞｷﾞｸﾞ"_qs,
        u"O'Neil"_qs,
        u"''"_qs,
        u"%_"_qs,
        u"１２３"_qs,
        u"😀"_qs,
        u"99999999999"_qs,
        u"-99999"_qs,
        u"1E9"_qs,
        u"&HFFFF"_qs,
        u"00000000"_qs,
        u"99999999"_qs,
        u"\t"_qs,
        u"会議費　打合せ"_qs,
    };
    switch (r.範囲(4)) {
        case 0:
            return 数字列(r, 12);
        case 1: {
            // Japanese, mixed with the signs that reach SQL text.
            static const QString 字 = u"出金伝票備考摘要支払先あいうアイウｱｲｳ漢字'\"%_-,. 　"_qs;
            QString s;
            const int n = 1 + r.範囲(40);
            for (int i = 0; i < n; ++i) s += 字[r.範囲(static_cast<int>(字.size()))];
            return s;
        }
        default:
            return r.選ぶ(定型);
    }
}

// A loaded slip shows its totals as stored, not added up again, and a stored line whose class
// is not a class does not load (the inner join on K費目区分): such a slip, stored through the
// tail with a gap, shows totals that differ from its lines, on purpose. True when the totals
// are those of the stored header.
bool 読込時の合計(const frm紺碧帳& f) {
    出金セッション& s = f.s;
    if (s.新規情報フラグ) return false;
    const auto& h = s.見出し;
    記録集合 rs;
    bool 同じ = false;
    if (s.データ.接続().業務DB検索(
            rs,
            u"SELECT 出金金額合計, 出金消費税合計, 実質出金金額合計 FROM T出金 WHERE 事業所コード = '"_qs +
                h.事業所コード + u"' AND 番号基準日付 = '"_qs + h.番号基準日付 +
                u"' AND 出金No = '"_qs + h.出金No + u"'"_qs)) {
        同じ = 金額::文字列から(rs.文字列(u"出金金額合計"_qs)) == s.合計.出金金額合計 &&
               金額::文字列から(rs.文字列(u"出金消費税合計"_qs)) == s.合計.出金消費税合計 &&
               金額::文字列から(rs.文字列(u"実質出金金額合計"_qs)) == s.合計.実質出金金額合計;
    }
    rs.閉じる();
    return 同じ;
}

QString 画面不変条件(const frm紺碧帳& f) {
    const 出金セッション& s = f.s;
    const 部品* 焦点 = f.画面.フォーカス();
    if (!焦点) return u"no control has the focus"_qs;
    if (!f.画面.焦点可(*焦点)) {
        return u"the focus stands on "_qs + 焦点->名前 + u"("_qs + QString::number(焦点->添字) +
               u"), which cannot hold it (enabled "_qs + QString::number(焦点->Enabled) +
               u", seen "_qs + QString::number(f.画面.見えるか(*焦点)) + u")"_qs;
    }
    if (s.最終行 < -1 || s.最終行 >= 最大行数) return u"last line "_qs + QString::number(s.最終行);
    if (s.先頭行 < 0 || s.先頭行 > 最大行数 - 表示行数)
        return u"first visible line "_qs + QString::number(s.先頭行);
    if (s.現在行 < 0 || s.現在行 >= 最大行数)
        return u"current line "_qs + QString::number(s.現在行);
    if (s.行[最大行数].費目区分 != 0 || !s.行[最大行数].出金金額.ゼロか())
        return u"a line past the fifteenth holds data"_qs;
    金額 額, 税, 実質;
    for (int i = 0; i <= s.最終行; ++i) {
        額 += s.行[i].出金金額;
        税 += s.行[i].出金消費税;
        実質 += s.行[i].実質出金金額;
    }
    const bool 線の和 =
        額 == s.合計.出金金額合計 && 税 == s.合計.出金消費税合計 && 実質 == s.合計.実質出金金額合計;
    if (!線の和 && !読込時の合計(f)) {
        return u"totals "_qs + s.合計.出金金額合計.文字列() + u"/"_qs +
               s.合計.出金消費税合計.文字列() + u"/"_qs + s.合計.実質出金金額合計.文字列() +
               u", lines "_qs + 額.文字列() + u"/"_qs + 税.文字列() + u"/"_qs + 実質.文字列();
    }
    return {};
}
