#include "audit/wnd出金検索.h"
#include "audit/wnd出金検索_部品名.h"

#include "dataenv/データ環境.h"
#include "dataenv/付属書類.h"
#include "dataenv/記録集合.h"
#include "screen/frm紺碧帳_部品名.h"
#include "screen/次項目補正.h"
#include "slip/出金セッション.h"
#include "slip/出金付属書類.h"
#include "text/プラットフォーム.h"
#include "text/数値書式.h"

namespace {

using 欄 = 出金検索部品;

// The text fields of the conditions, in the order of the search's fields.
constexpr 部品名 条件の欄[] = {欄::出金日付自,   欄::出金日付至, 欄::合計金額自, 欄::合計金額至,
                               欄::明細金額自,   欄::明細金額至, 欄::支払先,     欄::担当者コード,
                               欄::事業所コード, 欄::出金No自,   欄::出金No至};

QString 日付表示(const QString& 日付) {
    if (日付.size() != 8) return 日付;
    return 日付.left(4) + u'/' + 日付.mid(4, 2) + u'/' + 日付.mid(6, 2);
}

}  // namespace

wnd出金検索::wnd出金検索(出金セッション& セッション, 画面モデル& 主画面)
    : 一覧画面(セッション, 主画面, u"wnd出金検索"_qs, 部品定義表, 欄::List出金検索.文字列()) {
    画面.Caption = u"出金検索"_qs;
    画面.Width = 10200;
    // The window stands over the entry screen by itself: Esc and 戻る only close it, and a
    // pick is its own.
    画面.KeyPreview = [this](キーコード キー) {
        if (キー != キーコード::Esc) return false;
        閉じる();
        return true;
    };
    部品& L = 一覧();
    L.DblClick = [this] { 開く(); };
    L.KeyDown = [this](キーコード キー) {
        if (キー == キーコード::Enter) 開く();
    };
    画面(欄::btn_戻る).Click = [this] { 閉じる(); };
    画面(欄::btn_検索).Click = [this] { 検索(); };
    画面(欄::btn_書類を開く).Click = [this] { 書類を開く(); };
    d.基盤().画面事象登録(画面.名前, {.読込 = [this] { 読込(); }, .枠閉じ = [] {}});
}

void wnd出金検索::読込() {
    for (部品名 n : 条件の欄) 画面.文字設定(画面(n), {});
    画面(欄::chb_付属書類あり).Value = 0;
    画面(欄::chb_削除済).Value = 0;
    列作成({{u"出金日付"_qs, 1200},
            {u"出金No"_qs, 1100},
            {u"事業所"_qs, 700},
            {u"担当者"_qs, 800},
            {u"担当者名"_qs, 1700},
            {u"支払先"_qs, 1900},
            {u"合計金額"_qs, 1300, true},
            {u"書類"_qs, 600, true},
            {u"状態"_qs, 560}});
    結果.clear();
    画面(欄::lab_注意).Visible = false;
    知らせ({});
    画面.SetFocus(画面(欄::出金日付自));
}

出金検索条件 wnd出金検索::画面の条件() const {
    const auto 字 = [this](部品名 n) { return 画面.探す(n)->Text; };
    出金検索条件 c;
    c.日付から = 字(欄::出金日付自);
    c.日付まで = 字(欄::出金日付至);
    c.合計下限 = 字(欄::合計金額自);
    c.合計上限 = 字(欄::合計金額至);
    c.明細下限 = 字(欄::明細金額自);
    c.明細上限 = 字(欄::明細金額至);
    c.支払先 = 字(欄::支払先);
    c.担当者コード = 字(欄::担当者コード);
    c.事業所コード = 字(欄::事業所コード);
    c.番号から = 字(欄::出金No自);
    c.番号まで = 字(欄::出金No至);
    c.書類あり = 画面.探す(欄::chb_付属書類あり)->Value != 0;
    c.削除済 = 画面.探す(欄::chb_削除済)->Value != 0;
    return c;
}

QString wnd出金検索::検索文作成() {
    結果.clear();
    出金検索条件 c = 画面の条件();
    const QString 誤り = 出金検索条件の誤り(c);
    知らせ(誤り);
    return 誤り.isEmpty() ? 出金検索文(c) : QString();
}

void wnd出金検索::行を加える(記録集合& rs, int) {
    const 出金検索行 r = 検索行を読む(rs);
    一覧項目 項;
    項.Text = 日付表示(r.出金日付);
    項.Key = r.鍵.一覧の文字列();
    項.SubItems = {r.鍵.番号,
                   r.鍵.事業所コード,
                   r.担当者コード,
                   r.担当者名,
                   r.支払先,
                   書式(r.合計, 数値書式::一覧金額),
                   r.書類数 ? QString::number(r.書類数) : QString(),
                   r.削除済 ? u"削除"_qs : QString()};
    結果.append(r);
    一覧().項目追加(std::move(項));
}

void wnd出金検索::検索() {
    検索種別 = 0;
    一覧検索実行();
    移した伝票を除く();
    if (!検索SQL.isEmpty() && 結果.isEmpty()) 知らせ(u"該当する伝票はありません。"_qs);
    if (!結果.isEmpty()) 画面.SetFocus(一覧());
}

// Once the search's rows are all read: a statement asked in the middle of a PostgreSQL result
// would cut the rows still to come.
void wnd出金検索::移した伝票を除く() {
    部品& L = 一覧();
    QList<出金検索行> 残り;
    for (一覧項目& 項 : L.項目取出し()) {
        const 出金検索行& r = 結果.at(項.順 - 1);
        if (移した伝票か(d, r)) continue;
        残り.append(r);
        L.項目追加(std::move(項));
    }
    結果 = std::move(残り);
}

void wnd出金検索::条件クリア() {
    読込();
}

const 出金検索行* wnd出金検索::選択行() const {
    const 部品& L = *画面.探す(欄::List出金検索);
    if (L.選択 < 0 || L.選択 >= L.項目.size()) return nullptr;
    const int i = L.項目.at(L.選択).順 - 1;
    return i >= 0 && i < 結果.size() ? &結果.at(i) : nullptr;
}

void wnd出金検索::開く() {
    const 出金検索行* r = 選択行();
    if (!r) return;
    if (r->削除済) {
        // A deleted slip is only in its history; the search stays behind it.
        主.状態.履歴鍵 = r->鍵.文字列();
        d.基盤().画面表示(u"wnd出金履歴"_qs, true);
        return;
    }
    // As a pick in the slip No list: the key waits for the number field, whose commit loads
    // the slip when the focus leaves it.
    主.状態.選択鍵 = r->鍵.一覧の文字列();
    const QString 番号 = r->鍵.番号;
    閉じる();
    部品& No = 主(紺碧帳部品::出金No);
    主.文字設定(No, 番号);
    主.SetFocus(No);
    if (部品* 次 = 次項目補正(主, &主(紺碧帳部品::担当者名))) 主.SetFocus(*次);
}

void wnd出金検索::書類を開く() {
    const 出金検索行* r = 選択行();
    if (!r) return;
    const QList<付属書類行> 書類 = 付属書類一覧(d, 出金情報名, r->鍵.文字列());
    if (書類.isEmpty()) {
        知らせ(u"この伝票に付属書類はありません。"_qs);
        return;
    }
    // The first document in the order the entry screen lists them.
    QString 識別, SEQNo;
    付属書類キー分解(書類.first().Key, 識別, SEQNo);
    if (!付属書類表示(d, 付属書類名前(書類.first().書類名), 保存名(出金情報名, 識別, SEQNo))) {
        知らせ(u"付属書類を開けませんでした。"_qs);
    }
}

void wnd出金検索::閉じる() {
    d.基盤().画面終了(画面.名前);
}

void wnd出金検索::知らせ(const QString& 文言) {
    部品& p = 画面(欄::lab_知らせ);
    p.Caption = 文言;
    p.ForeColor = 文言.isEmpty() ? -1 : 0xC00000;
}
