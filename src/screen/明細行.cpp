#include <algorithm>

#include "rules/消費税計算.h"
#include "screen/frm紺碧帳.h"
#include "screen/frm紺碧帳_部品名.h"
#include "text/プラットフォーム.h"
#include "text/実行時エラー.h"
#include "text/数値変換.h"
#include "text/数値書式.h"

namespace {

using 欄 = 紺碧帳部品;

// No line of a disbursement slip is ever allocated elsewhere, so the guard always lets go.
bool 引当済み(const 出金行&) {
    return false;
}

// A slot with nothing to show, as a cleared or freshly opened line: its fields stay blank
// instead of showing zeros.
bool 表示欄が空(const 出金行& l) {
    return l.費目区分 == 0 && l.内税外税区分 == 0 && l.消費税率.ゼロか() && l.出金金額.ゼロか() &&
           l.出金消費税.ゼロか() && l.支払先.isEmpty() && l.摘要.isEmpty() && l.課税事業所区分 == 0;
}

int 一覧位置(int 位置, const 部品& 一覧) {
    return 位置 >= 0 && 位置 < 一覧.一覧.size() ? 位置 : -1;
}

// A changed value marks the slip changed; the line's amounts follow and the totals are added up
// again. The same value changes nothing.
template <class T, class F>
bool 税額欄確定(出金セッション& s, const T& 現在, const T& 新, F&& 再計算) {
    if (新 == 現在) return false;
    s.入力変更フラグ = true;
    再計算();
    s.合計再計算();
    return true;
}

}  // namespace

bool frm紺碧帳::費目区分確定(int 行, int 区分) {
    出金行& l = s.行[s.先頭行 + 行];
    if (区分 == l.費目区分) return false;
    s.入力変更フラグ = true;
    short 新区分 = 0, 内外 = 1;
    QString 名称;
    if (s.費目区分検索(区分, 新区分, 名称, 内外)) {
        費目区分変更時再計算(s.データ.接続(), l, 内外, s.見出し.出金日付);
        l.費目区分 = 新区分;
        l.費目区分名称 = 名称;
        s.合計再計算();
        費目区分不正 = false;
    } else {
        // Rate, tax and amounts stay as they were, a typed tax included.
        費目区分不明時設定(l);
        l.費目区分 = 0;
        費目区分不正 = true;
    }
    return true;
}

bool frm紺碧帳::内税外税区分確定(int 行, int 区分) {
    出金行& l = s.行[s.先頭行 + 行];
    return 税額欄確定(s, static_cast<int>(l.内税外税区分), 区分,
                      [&] { 内税外税区分変更時再計算(l, 小整数へ(区分)); });
}

bool frm紺碧帳::消費税率確定(int 行, const 金額& 率) {
    出金行& l = s.行[s.先頭行 + 行];
    return 税額欄確定(s, l.消費税率, 率, [&] { 消費税率変更時再計算(l, 率); });
}

bool frm紺碧帳::出金金額確定(int 行, const 金額& 額) {
    出金行& l = s.行[s.先頭行 + 行];
    return 税額欄確定(s, l.出金金額, 額, [&] { 出金金額変更時再計算(l, 額); });
}

bool frm紺碧帳::出金消費税確定(int 行, const 金額& 税) {
    出金行& l = s.行[s.先頭行 + 行];
    if (!明細税額手入力(l, 税)) return false;
    s.入力変更フラグ = true;
    s.合計再計算();
    return true;
}

bool frm紺碧帳::支払先確定(int 行, const QString& 文字列) {
    出金行& l = s.行[s.先頭行 + 行];
    if (文字列 == l.支払先) return false;
    s.入力変更フラグ = true;
    l.支払先 = 文字列;
    // A named payee is taken as a taxable office; emptying the payee leaves the flag alone.
    if (!文字列.isEmpty()) l.課税事業所区分 = 1;
    return true;
}

bool frm紺碧帳::課税事業所区分確定(int 行, int 値) {
    出金行& l = s.行[s.先頭行 + 行];
    if (値 == l.課税事業所区分) return false;
    s.入力変更フラグ = true;
    l.課税事業所区分 = 小整数へ(値);
    return true;
}

bool frm紺碧帳::摘要確定(int 行, const QString& 文字列) {
    出金行& l = s.行[s.先頭行 + 行];
    if (文字列 == l.摘要) return false;
    s.入力変更フラグ = true;
    l.摘要 = 文字列;
    return true;
}

void frm紺碧帳::明細行表示(int 明細, int 行) {
    画面.表示([&] {
        const 出金行 空欄{};
        // The lines in use, and the blank row after them while the slip is not full: a line of
        // the spare slot is shown only when an import put it there.
        const bool 範囲内 =
            明細 >= 0 && (明細 <= s.最終行 || (明細 == s.最終行 + 1 && 明細 < 最大行数));
        const 出金行& l = 範囲内 ? s.行[明細] : 空欄;
        const bool 空 = 表示欄が空(l);
        auto 数 = [空](const 金額& 値) { return 空 ? QString() : 値.文字列(); };

        画面(欄::費目区分, 行).Text = 空 ? QString() : QString::number(l.費目区分);
        画面(欄::内税外税区分, 行).Text = 空 ? QString() : QString::number(l.内税外税区分);
        画面(欄::消費税率, 行).Text = 数(l.消費税率);
        画面(欄::出金金額, 行).Text = 数(l.出金金額);
        部品& 税 = 画面(欄::出金消費税, 行);
        税.Text = 数(l.出金消費税);
        // An inclusive tax stands out in its own colour.
        税.ForeColor = !空 && l.内税外税区分 == 2 ? 0x8080FF : -1;
        画面(欄::支払先, 行).Text = l.支払先;
        画面(欄::摘要, 行).Text = l.摘要;
        画面(欄::chb_課税事業所区分, 行).Value = l.課税事業所区分;

        部品& 費目名 = 画面(欄::費目区分名称, 行);
        費目名.ListIndex = 空 ? -1 : 一覧位置(l.費目区分 - 1, 費目名);
        費目名.Text = 費目名.一覧.value(費目名.ListIndex);
        部品& 内外名 = 画面(欄::内税外税区分名称, 行);
        内外名.ListIndex = 空 ? -1 : 一覧位置(l.内税外税区分, 内外名);
        内外名.Text = 内外名.一覧.value(内外名.ListIndex);

        // Lines with a class, and the first empty line after them, may choose from the lists;
        // the top row only once a staff member is there.
        bool 開く = 範囲内 && (l.費目区分 != 0 || 明細 == s.最終行 + 1);
        if (行 == 0 && 数値変換(画面(欄::担当者コード).Text) == 0) 開く = false;
        費目名.Enabled = 開く;
        内外名.Enabled = 開く;
    });
}

// Moves and copies of lines carry this set of fields only; the derived amounts, the position
// and the store dates of the target stay as they were.
void frm紺碧帳::行を写す(int 元, int 先) {
    const 出金行& a = s.行[元];
    出金行& b = s.行[先];
    b.費目区分 = a.費目区分;
    b.内税外税区分 = a.内税外税区分;
    b.消費税率 = a.消費税率;
    b.出金金額 = a.出金金額;
    b.出金消費税 = a.出金消費税;
    b.支払先 = a.支払先;
    b.課税事業所区分 = a.課税事業所区分;
    b.摘要 = a.摘要;
    b.明細メモ = a.明細メモ;
    b.出金固有行No = a.出金固有行No;
    b.費目区分名称 = a.費目区分名称;
    b.実質出金金額 = a.実質出金金額;
    b.承認日付 = a.承認日付;
    b.承認者コード = a.承認者コード;
}

void frm紺碧帳::行クリア() {
    if (引当済み(s.行[s.現在行])) {
        s.データ.基盤().メッセージ(u"引当済みです。"_qs);
    } else {
        if (s.最終行 == -1 || s.現在行 > s.最終行) {
            s.出金行初期化(s.現在行);
            if (s.最終行 < 5) s.先頭行 = 0;
        } else {
            const int 末 = std::min(s.最終行 + 1, 行枠数 - 1);
            for (int i = s.現在行 + 1; i <= 末; ++i) 行を写す(i, i - 1);
            s.出金行初期化(s.最終行);
            s.入力変更フラグ = true;
            --s.最終行;
            if (s.最終行 < 5) s.先頭行 = 0;
            if (s.先頭行 > 最大行数 - 表示行数) {
                // Without the sixteenth line the view goes back to that of a full slip, whose
                // bottom row is its last line and no blank row to type a new one into.
                s.先頭行 = 最大行数 - 表示行数;
                s.現在行 = std::min(s.現在行, s.最終行);
                s.表示行 = static_cast<short>(s.現在行 - s.先頭行);
            }
        }
        s.合計再計算();
        明細表示();
        合計表示();
        スクロール更新();
    }
    画面.SetFocus(画面(欄::費目区分, s.表示行));
}

void frm紺碧帳::行挿入() {
    // Opening a line changes no amount, so the slip counts as unchanged and no total moves.
    if (s.最終行 >= s.現在行 && s.最終行 < 最大行数 - 1) {
        for (int i = s.最終行; i >= s.現在行; --i) 行を写す(i, i + 1);
        s.出金行初期化(s.現在行);
        ++s.最終行;
        明細表示();
        合計表示();
        スクロール更新();
    }
    画面.SetFocus(画面(欄::費目区分, s.表示行));
}

void frm紺碧帳::行複写() {
    if (s.現在行 != 0 && s.最終行 != -1) {
        行を写す(s.現在行 - 1, s.現在行);
        // The copy is a new line at the next store.
        出金行& l = s.行[s.現在行];
        l.出金固有行No.clear();
        l.承認日付.clear();
        l.承認者コード.clear();
        l.承認区分.clear();
        l.登録日付.clear();
        l.更新日付.clear();
        if (s.最終行 < s.現在行) s.最終行 = s.現在行;
        s.入力変更フラグ = true;
        s.合計再計算();
        明細表示();
        合計表示();
    }
    画面.SetFocus(画面(欄::費目区分, s.表示行));
}

void frm紺碧帳::摘要一覧(int 行) {
    if (画面使用中) return;
    状態.入力中項目 = 画面.フォーカス();
    if (入力順序確認(2, 行, u"費目区分"_qs, 1)) return;
    auto& 基盤 = s.データ.基盤();
    基盤.画面使用可否(画面.名前, false);
    状態.一覧.条件 = 画面(欄::摘要, 行).Text;
    状態.一覧.設定先 = &画面(欄::費目区分, 行);
    状態.一覧.名称先 = &画面(欄::摘要, 行);
    状態.選択鍵.reset();
    画面使用中 = true;
    基盤.画面表示(u"wnd出金摘要一覧"_qs, true);
    画面使用中 = false;
    // A pick answers with the chosen line's key: "C", office, base date, number, line id.
    if (!状態.選択鍵) return;
    const QString 鍵 = *状態.選択鍵;
    状態.選択鍵.reset();
    const int 明細 = s.先頭行 + 行;
    s.過去明細取込(鍵.mid(1), 明細);
    明細行表示(明細, 行);
}
