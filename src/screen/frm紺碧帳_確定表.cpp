#include "screen/frm紺碧帳.h"
#include "screen/frm紺碧帳_部品名.h"
#include "text/実行時エラー.h"
#include "text/数値変換.h"
#include "text/数値書式.h"
#include "text/項目編集.h"

namespace {

using 欄 = 紺碧帳部品;
using 再 = frm紺碧帳::再表示;

}  // namespace

// Every field that commits when the focus leaves it (a line's lists and check box also on a
// click), with what the screen redraws after a change.
const frm紺碧帳::確定定義 frm紺碧帳::確定一覧[] = {
    // Header.
    {欄::出金日付年, [](frm紺碧帳& f, 部品& p) { return f.出金日付更新(0, f.日付を揃える(p)); },
     再::見出し | 再::明細 | 再::合計 | 再::知らせ},
    {欄::出金日付月, [](frm紺碧帳& f, 部品& p) { return f.出金日付更新(1, f.日付を揃える(p)); },
     再::見出し | 再::明細 | 再::合計 | 再::知らせ},
    {欄::出金日付日, [](frm紺碧帳& f, 部品& p) { return f.出金日付更新(2, f.日付を揃える(p)); },
     再::見出し | 再::明細 | 再::合計 | 再::知らせ},
    {欄::出金No,
     [](frm紺碧帳& f, 部品& p) { return f.s.出金No確定(f.桁を揃える(p), f.状態.選択鍵); },
     再::見出し | 再::明細 | 再::合計 | 再::付属書類 | 再::棒 | 再::知らせ},
    {欄::担当者コード, [](frm紺碧帳& f, 部品& p) { return f.担当者確定(f.桁を揃える(p)); },
     再::見出し | 再::知らせ},
    {欄::部門コード, [](frm紺碧帳& f, 部品& p) { return f.部門確定(f.桁を揃える(p)); },
     再::見出し | 再::知らせ},
    {欄::セクションコード, [](frm紺碧帳& f, 部品& p) { return f.セクション確定(f.桁を揃える(p)); },
     再::見出し | 再::知らせ},
    {欄::出張申請No, [](frm紺碧帳& f, 部品& p) { return f.出張申請欄確定(p); },
     再::見出し | 再::明細 | 再::合計 | 再::棒 | 再::知らせ},
    {欄::出金伝票備考A, [](frm紺碧帳& f, 部品& p) { return f.備考確定(0, p.Text); }, 再::合計},
    {欄::出金伝票備考B, [](frm紺碧帳& f, 部品& p) { return f.備考確定(1, p.Text); }, 再::合計},
    // The line on the screen row of the field.
    {欄::費目区分, [](frm紺碧帳& f, 部品& p) { return f.費目区分確定(p.添字, 小整数値(p.Text)); },
     再::行 | 再::合計 | 再::知らせ},
    {欄::費目区分名称,
     [](frm紺碧帳& f, 部品& p) {
         return f.費目区分確定(p.添字, p.ListIndex < 0 ? 0 : p.ListIndex + 1);
     },
     再::行 | 再::合計 | 再::知らせ},
    {欄::内税外税区分,
     [](frm紺碧帳& f, 部品& p) { return f.内税外税区分確定(p.添字, 小整数値(p.Text)); },
     再::行 | 再::合計 | 再::知らせ},
    // A list without a selection names no class.
    {欄::内税外税区分名称,
     [](frm紺碧帳& f, 部品& p) {
         return p.ListIndex >= 0 && f.内税外税区分確定(p.添字, p.ListIndex);
     },
     再::行 | 再::合計 | 再::知らせ},
    {欄::消費税率,
     [](frm紺碧帳& f, 部品& p) { return f.消費税率確定(p.添字, 金額::表示文字列から(p.Text)); },
     再::行 | 再::合計 | 再::知らせ},
    {欄::出金金額,
     [](frm紺碧帳& f, 部品& p) { return f.出金金額確定(p.添字, 金額::表示文字列から(p.Text)); },
     再::行 | 再::合計 | 再::知らせ},
    {欄::出金消費税,
     [](frm紺碧帳& f, 部品& p) { return f.出金消費税確定(p.添字, 金額::表示文字列から(p.Text)); },
     再::行 | 再::合計 | 再::知らせ},
    {欄::支払先, [](frm紺碧帳& f, 部品& p) { return f.支払先確定(p.添字, p.Text); },
     再::行 | 再::知らせ},
    {欄::chb_課税事業所区分,
     [](frm紺碧帳& f, 部品& p) { return f.課税事業所区分確定(p.添字, p.Value); },
     再::行 | 再::知らせ},
    {欄::摘要, [](frm紺碧帳& f, 部品& p) { return f.摘要確定(p.添字, p.Text); }, 再::知らせ},
};

const std::span<const frm紺碧帳::確定定義> frm紺碧帳::確定表{確定一覧};

void frm紺碧帳::確定する(部品& p, const 確定定義& 定義) {
    if (p.定義.区分 == 2) {
        if (画面使用中 || p.添字 < 0) return;
        if (p.添字 != s.表示行) {
            // A list or check box shows its line's value again when the line refuses the change.
            if (p.種別 == 部品種別::ComboBox || p.種別 == 部品種別::CheckBox) {
                明細行表示(s.先頭行 + p.添字, p.添字);
            }
            return;
        }
    }
    if (定義.確定(*this, p)) 描き直す(定義.再表示, p.添字);
}

void frm紺碧帳::描き直す(unsigned 何を, int 行) {
    if (何を & 再表示::見出し) 見出し表示();
    if (何を & 再表示::明細) 明細表示();
    if (何を & 再表示::行) 明細行表示(s.先頭行 + 行, 行);
    if (何を & 再表示::合計) 合計表示();
    if (何を & 再表示::付属書類) 画面.表示([this] { 付属書類listint(); });
    if (何を & 再表示::棒) スクロール更新();
    if (何を & 再表示::知らせ) 画面(欄::お知らせ).Caption = s.お知らせ文言;
}

QString frm紺碧帳::整える(部品& p, const QString& 文字列) {
    画面.表示([&] { p.Text = 文字列; });
    return 文字列;
}

QString frm紺碧帳::日付を揃える(部品& p) {
    return 整える(p, 書式(p.Text, ゼロ文字列(p.MaxLength)));
}

QString frm紺碧帳::桁を揃える(部品& p) {
    return 整える(p, 書式桁揃え(p.Text, ゼロ文字列(p.MaxLength)));
}

bool frm紺碧帳::出張申請欄確定(部品& p) {
    // A disabled field takes nothing, and without the HR link the field is not there.
    if (!p.Enabled || !s.白樺連携フラグ) return false;
    const QString No = 桁を揃える(p);
    try {
        return s.出張申請確定(No, 状態.選択鍵);
    } catch (const 実行時エラー&) {
        // The slip went back as it was; so does the field, before the error is shown.
        見出し表示();
        throw;
    }
}
