#include "lists/wnd支払先登録.h"

#include "dataenv/データ環境.h"
#include "slip/出金セッション.h"
#include "text/プラットフォーム.h"
#include "text/項目編集.h"

namespace {

using 欄 = 支払先登録部品;

const 部品名 入力欄[] = {欄::支払先, 欄::登録番号, 欄::登録名称, 欄::有効開始日, 欄::有効終了日};

QString 値(const QString& 文字列) {
    return u"'"_qs + 引用符二重化(文字列) + u"'"_qs;
}

}  // namespace

wnd支払先登録::wnd支払先登録(出金セッション& セッション, 画面モデル& 主画面)
    : 一覧画面(セッション, 主画面, u"wnd支払先登録"_qs, 部品定義表, 欄::List支払先登録.文字列()) {
    画面.Caption = u"支払先登録"_qs;
    画面.Width = 9060;
    // A row is taken into the fields, not handed to a caller.
    部品& L = 一覧();
    L.DblClick = [this] { 行を取る(); };
    L.KeyDown = [this](キーコード キー) {
        if (キー == キーコード::Enter) 行を取る();
    };
    画面(欄::btn_追加).Click = [this] { 追加(); };
    画面(欄::btn_変更).Click = [this] { 変更(); };
    画面(欄::btn_削除).Click = [this] { 削除(); };
    セッション.データ.基盤().画面事象登録(
        画面.名前, {.読込 = [this] { 読込(); }, .枠閉じ = [this] { 枠で閉じた(); }});
}

void wnd支払先登録::読込() {
    // Opened by a function key, not from a field: there is nothing to hand back to.
    主.状態.一覧.設定先 = nullptr;
    主.状態.一覧.名称先 = nullptr;
    列作成({{u"支払先"_qs, 2400},
            {u"登録番号"_qs, 1800},
            {u"登録名称"_qs, 2500},
            {u"有効開始日"_qs, 1050},
            {u"有効終了日"_qs, 1050}});
    画面(欄::lab_お知らせ).Caption.clear();
    取った行.reset();
    for (const 部品名 n : 入力欄) 画面(n).Text.clear();
    一覧検索実行();
    一覧().選択 = -1;
    画面.SetFocus(画面(欄::支払先));
}

QString wnd支払先登録::検索文作成() {
    return u"SELECT 支払先, 登録番号, 登録名称, 有効開始日, 有効終了日 FROM M紺碧支払先登録 ORDER BY 支払先, 有効開始日"_qs;
}

void wnd支払先登録::条件クリア() {
    取った行.reset();
    for (const 部品名 n : 入力欄) 画面.文字設定(画面(n), {});
    画面(欄::lab_お知らせ).Caption.clear();
    画面.SetFocus(画面(欄::支払先));
}

void wnd支払先登録::行を取る() {
    const 部品& L = 一覧();
    if (L.選択 < 0 || L.選択 >= L.項目.size()) return;
    取った行 = 支払先登録{L.セル(L.選択, 0), L.セル(L.選択, 1), L.セル(L.選択, 2),
                          L.セル(L.選択, 3), L.セル(L.選択, 4)};
    const QString 各値[] = {取った行->支払先, 取った行->登録番号, 取った行->登録名称,
                            取った行->有効開始日, 取った行->有効終了日};
    for (int i = 0; i < 5; ++i) 画面.文字設定(画面(入力欄[i]), 各値[i]);
    画面(欄::lab_お知らせ).Caption = u"選んだ登録を変更か削除できます。"_qs;
    画面.SetFocus(画面(欄::支払先));
}

支払先登録 wnd支払先登録::入力() const {
    const auto 欄値 = [this](部品名 n) { return 画面.探す(n)->Text.trimmed(); };
    return {欄値(欄::支払先), 欄値(欄::登録番号), 欄値(欄::登録名称), 欄値(欄::有効開始日),
            欄値(欄::有効終了日)};
}

QList<QPair<QString, QString>> wnd支払先登録::期間(const QString& 支払先) {
    QList<QPair<QString, QString>> 期間;
    記録集合 rs;
    if (d.接続().業務DB検索(
            rs, u"SELECT 有効開始日, 有効終了日 FROM M紺碧支払先登録 WHERE 支払先 = "_qs +
                    値(支払先) + u" ORDER BY 有効開始日"_qs)) {
        for (; !rs.EOFか(); rs.MoveNext()) {
            const QString 開始 = rs.文字列(0);
            // The row being changed does not stand in its own way.
            if (取った行 && 取った行->支払先 == 支払先 && 取った行->有効開始日 == 開始) continue;
            期間.append({開始, rs.文字列(1).trimmed()});
        }
    }
    rs.閉じる();
    return 期間;
}

bool wnd支払先登録::確かめる(const 支払先登録& r) {
    const QString 拒否 = 支払先登録検査(r, 期間(r.支払先));
    if (拒否.isEmpty()) return true;
    d.基盤().メッセージ(拒否);
    return false;
}

bool wnd支払先登録::実行(const QString& 文) {
    if (d.接続().業務DB実行(文)) return true;
    d.基盤().メッセージ(u"支払先の登録表に書き込めませんでした。"_qs);
    return false;
}

QString wnd支払先登録::鍵句() const {
    return u" WHERE 支払先 = "_qs + 値(取った行->支払先) + u" AND 有効開始日 = "_qs +
           値(取った行->有効開始日);
}

void wnd支払先登録::追加() {
    // An addition stands on its own, whatever row was taken before.
    取った行.reset();
    const 支払先登録 r = 入力();
    if (!確かめる(r)) return;
    if (!実行(
            u"INSERT INTO M紺碧支払先登録 (支払先, 有効開始日, 有効終了日, 登録番号, 登録名称) VALUES ("_qs +
            値(r.支払先) + u", "_qs + 値(r.有効開始日) + u", "_qs + 値(r.有効終了日) + u", "_qs +
            値(r.登録番号) + u", "_qs + 値(r.登録名称) + u")"_qs))
        return;
    済んだ(u"追加しました。"_qs, &r);
}

void wnd支払先登録::変更() {
    if (!取った行) {
        d.基盤().メッセージ(u"変更する登録を一覧で選んで Enter を押してください。"_qs);
        return;
    }
    const 支払先登録 r = 入力();
    if (!確かめる(r)) return;
    if (!実行(u"UPDATE M紺碧支払先登録 SET 支払先 = "_qs + 値(r.支払先) + u", 有効開始日 = "_qs +
              値(r.有効開始日) + u", 有効終了日 = "_qs + 値(r.有効終了日) + u", 登録番号 = "_qs +
              値(r.登録番号) + u", 登録名称 = "_qs + 値(r.登録名称) + 鍵句()))
        return;
    済んだ(u"変更しました。"_qs, &r);
}

void wnd支払先登録::削除() {
    if (!取った行) {
        d.基盤().メッセージ(u"削除する登録を一覧で選んで Enter を押してください。"_qs);
        return;
    }
    メッセージ指定 問い;
    問い.本文 = u"支払先「"_qs + 取った行->支払先 + u"」の有効開始日 "_qs + 取った行->有効開始日 +
                u" からの登録を削除しますか？"_qs;
    問い.ボタン = ボタン種別::はいいいえ;
    問い.アイコン = アイコン種別::質問;
    問い.既定ボタン = 2;
    if (d.基盤().メッセージ表示(問い) != 応答::はい) return;
    if (!実行(u"DELETE FROM M紺碧支払先登録"_qs + 鍵句())) return;
    済んだ(u"削除しました。"_qs, nullptr);
}

void wnd支払先登録::済んだ(const QString& 知らせ, const 支払先登録* 選ぶ行) {
    条件クリア();
    一覧検索実行();
    部品& L = 一覧();
    L.選択 = -1;
    for (int i = 0; 選ぶ行 && i < L.項目.size(); ++i) {
        if (L.セル(i, 0) == 選ぶ行->支払先 && L.セル(i, 3) == 選ぶ行->有効開始日) L.選択 = i;
    }
    画面(欄::lab_お知らせ).Caption = 知らせ;
}
