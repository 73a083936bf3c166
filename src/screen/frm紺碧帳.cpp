#include "screen/frm紺碧帳.h"

#include <QFile>

#include "dataenv/ファイル操作.h"
#include "rules/消費税計算.h"
#include "screen/frm紺碧帳_部品名.h"
#include "screen/次項目補正.h"
#include "text/プラットフォーム.h"
#include "text/数値書式.h"
#include "text/項目編集.h"

namespace {

using 欄 = 紺碧帳部品;

QString 金額表示(const 金額& 額) {
    return 書式(額, u"#,###,###,##0");
}

}  // namespace

frm紺碧帳::frm紺碧帳(出金セッション& セッション) : s(セッション) {
    画面.作る(部品定義表);
    事象を結ぶ();
    画面.KeyPreview = [this](キーコード キー) { return 補助窓を開く(キー); };
    // A run-time error (an overflow, a date beyond the calendar) ends the operation the event
    // started, never the program: the operator is told, and the screen listens again.
    画面.異常時 = [this](const std::exception& e) {
        画面使用中 = false;
        s.データ.基盤().メッセージ(QString::fromUtf8(e.what()));
    };
}

// Got focus runs the order guard with the item's section and ordinal; lost focus commits.
void frm紺碧帳::項目事象を結ぶ(部品& 項目, const 確定定義* 確定) {
    部品* p = &項目;
    p->GotFocus = [this, p] {
        状態.入力中項目 = p;
        入力順序確認(p->定義.区分, p->添字, p->名前, p->定義.序数);
    };
    p->LostFocus = [this, p, 確定] {
        状態.離脱項目 = p;
        if (確定) 確定する(*p, *確定);
    };
}

void frm紺碧帳::事象を結ぶ() {
    for (部品* p : 画面.全部品()) {
        const 確定定義* 確定 = nullptr;
        for (const 確定定義& d : 確定表) {
            if (部品名::同じ(d.名前, p->定義.名前)) 確定 = &d;
        }
        if (p->定義.区分 != 0) 項目事象を結ぶ(*p, 確定);
        // The lists and the check box of a line commit without the focus leaving them.
        if (確定 && (p->種別 == 部品種別::ComboBox || p->種別 == 部品種別::CheckBox)) {
            p->Click = [this, p, 確定] { 確定する(*p, *確定); };
        }
        if (*p->定義.結び) {
            p->Click = [this, p] { 題クリック(*p); };
        }
    }
    画面(欄::ヘッド終了).GotFocus = [this] { ヘッド終了取得(); };
    for (int r = 0; r < 表示行数; ++r) {
        画面(欄::頁1終了, r).GotFocus = [this, r] { 頁1終了取得(r); };
        for (const 部品名 枠 : {欄::bak_dtla, 欄::bak_dtlb}) {
            画面(枠, r).Click = [this, r] {
                if (!入力順序確認(2, r, QString(), 1)) 離脱項目へ();
            };
        }
    }
    画面(欄::テイル終了).GotFocus = [this] { テイル終了取得(); };
    画面(欄::tab_詳細).Change = [this] { 詳細頁変更(); };
    画面(欄::scl_行).Change = [this] { スクロール変更(); };
    画面(欄::prg_ttl).Click = [this] { 離脱項目へ(); };
    画面(欄::manualpanel).Click = [this] { マニュアル表示(); };
    画面(欄::btn_軽減税率切替).Click = [this] {
        if (画面使用中) return;
        s.軽減税率表示 = true;
        合計表示();
    };
    画面(欄::btn_通常表示切替).Click = [this] {
        if (画面使用中) return;
        s.軽減税率表示 = false;
        合計表示();
    };
    一覧事象を結ぶ();
    画面(欄::btn_参照元No).Click = [this] { 参照元No起動(); };
    画面(欄::btn_登録).Click = [this] { 登録処理(); };
    画面(欄::btn_削除).Click = [this] { 削除(); };
    画面(欄::btn_画面クリア).Click = [this] { 画面クリア(); };
    画面(欄::btn_前No).Click = [this] { 隣へ(true); };
    画面(欄::btn_次No).Click = [this] { 隣へ(false); };
    画面(欄::btn_印刷).Click = [this] { 帳票(u"0"_qs); };
    画面(欄::btn_プレビュ).Click = [this] { 帳票(u"1"_qs); };
    画面(欄::btn_帳票イメージ出力).Click = [this] { 帳票(u"3"_qs); };
    画面(欄::btn_付属書類追加).Click = [this] { 付属書類ファイル追加(); };
    画面(欄::btn_フォルダ).Click = [this] { 付属書類フォルダ追加(); };
    画面(欄::btn_付属書類削除).Click = [this] { 付属書類を外す(選択中の付属書類()); };
    画面(欄::List付属書類).DblClick = [this] { 付属書類を開く(選択中の付属書類()); };
    // The quit takes no busy test: it is always there, even while the screen is drawn.
    部品& 終了 = 画面(欄::btn_終了);
    終了.表示中も受ける = true;
    終了.Click = [this] {
        bool 取消 = false;
        終了確認(取消);
    };
    画面(欄::btn_行クリア).Click = [this] {
        if (!画面使用中) 行クリア();
    };
    画面(欄::btn_行挿入).Click = [this] {
        if (!画面使用中) 行挿入();
    };
    画面(欄::btn_行複写).Click = [this] {
        if (!画面使用中) 行複写();
    };
    for (int r = 0; r < 表示行数; ++r) {
        画面(欄::btn_摘要, r).Click = [this, r] {
            if (!画面使用中) 摘要一覧(r);
        };
    }
}

void frm紺碧帳::題クリック(const 部品& 題) {
    const QString 名前 = QString::fromUtf16(題.定義.結び);
    部品* 項目 = 画面.探す(名前);
    if (!項目) 項目 = 画面.探す(名前, s.表示行);
    if (項目 && 項目->GotFocus) 項目->GotFocus();
}

void frm紺碧帳::マニュアル表示() {
    const QString フォルダ = s.データ.接続().環境().マニュアルフォルダ;
    ファイル実行(フォルダ + u"/"_qs + 文字種変換(u"紺碧帳"_qs) + u".doc"_qs, s.データ.基盤());
}

void frm紺碧帳::画面読込(const std::function<void()>& 伝票読込) {
    画面初期配置();
    画面(欄::prg_ttl).Caption = s.データ.操作者権限().画面タイトル設定();
    if (伝票読込) 伝票読込();
    画面全表示();
    詳細初期化();
    スクロール更新();
}

void frm紺碧帳::画面初期配置() {
    const 部品& 知らせ = 画面(欄::お知らせ);
    // The allowance for the window frame of the systems this screen was drawn for.
    画面.Height = 知らせ.Top + 知らせ.Height + 380;
    画面.Width = 知らせ.Width + 90;
    画面.Caption = s.データ.会社設定().会社().名称 + u"（"_qs + u"紺碧帳"_qs + u"）"_qs;
    部品& 行棒 = 画面(欄::scl_行);
    行棒.LargeChange = 5;
    行棒.Enabled = false;
    行棒.Value = 0;
    // The lengths of the number and code fields (8, 5, 3, 3) come with the control table.
    一覧を埋める();
    状態.先頭入力項目 = &画面(欄::担当者コード);
    状態.入力中項目 = 状態.離脱項目 = 状態.先頭入力項目;
}

void frm紺碧帳::一覧を埋める() {
    auto 読む = [this](const QString& 文) {
        QStringList 名称;
        記録集合 rs;
        if (s.データ.接続().業務DB検索(rs, 文)) {
            for (; !rs.EOFか(); rs.MoveNext()) 名称.append(rs.文字列(u"名称"_qs));
        }
        rs.閉じる();
        return 名称;
    };
    const QStringList 費目 = 読む(u"SELECT * FROM K費目区分 ORDER BY 区分"_qs);
    const QStringList 内外 = 読む(u"SELECT * FROM K内税外税区分 ORDER BY 区分"_qs);
    for (int r = 0; r < 表示行数; ++r) {
        画面(欄::費目区分名称, r).一覧 = 費目;
        画面(欄::内税外税区分名称, r).一覧 = 内外;
        部品& 区分 = 画面(欄::費目区分, r);
        区分.Min = 0;
        区分.Max = 費目.size();
    }
}

void frm紺碧帳::画面全表示() {
    見出し表示();
    明細表示();
    合計表示();
    画面.表示([this] { 付属書類listint(); });
}

void frm紺碧帳::見出し表示() {
    画面.表示([this] {
        const auto& h = s.見出し;
        画面(欄::出金日付年).Text = h.出金日付年;
        画面(欄::出金日付月).Text = h.出金日付月;
        画面(欄::出金日付日).Text = h.出金日付日;
        画面(欄::出金No).Text = h.出金No;
        画面(欄::担当者コード).Text = h.担当者コード;
        画面(欄::担当者名).Text = h.担当者名;
        画面(欄::部門コード).Text = h.部門コード;
        画面(欄::部門名).Text = h.部門名;
        画面(欄::セクションコード).Text = h.セクションコード;
        画面(欄::セクション名).Text = h.セクション名;
        画面(欄::出張申請No).Text = h.出張申請No;
        for (const 部品名 名 : {欄::btn_参照元No, 欄::btn_出張申請No, 欄::出張申請No}) {
            画面(名).Visible = s.白樺連携フラグ;
        }
        画面(欄::担当者名).TabStop = false;
        const QString& 帳票 = s.データ.接続().環境().帳票フォルダ;
        画面(欄::btn_帳票イメージ出力).Visible =
            !帳票.isEmpty() && QFile::exists(帳票 + u"/repfrmdb.db"_qs);
    });
}

void frm紺碧帳::明細表示() {
    for (int r = 0; r < 表示行数; ++r) 明細行表示(s.先頭行 + r, r);
}

void frm紺碧帳::合計表示() {
    画面.表示([this] {
        const auto& t = s.合計;
        画面(欄::出金伝票備考A).Text = s.見出し.出金伝票備考A;
        画面(欄::出金伝票備考B).Text = s.見出し.出金伝票備考B;
        画面(欄::出金金額合計).Text = 金額表示(t.出金金額合計);
        画面(欄::出金消費税合計).Text = 金額表示(t.出金消費税合計);
        画面(欄::実質出金金額合計).Text = 金額表示(t.実質出金金額合計);
        画面(欄::bak_税別合計).Visible = s.軽減税率表示;
        auto 題 = [](const 金額& 率) {
            return 率.ゼロか() ? QString() : u"合計("_qs + 書式(率, u"##0") + u"%)"_qs;
        };
        画面(欄::itm_ttl_前回税率合計).Caption = 題(s.見出し.前回税率);
        画面(欄::itm_ttl_今回税率合計).Caption = 題(s.見出し.今回税率);
        画面(欄::前回税率出金金額合計).Text = 金額表示(t.前回税率出金金額合計);
        画面(欄::前回税率出金消費税合計).Text = 金額表示(t.前回税率出金消費税合計);
        画面(欄::今回税率出金金額合計).Text = 金額表示(t.今回税率出金金額合計);
        画面(欄::今回税率出金消費税合計).Text = 金額表示(t.今回税率出金消費税合計);
    });
}

void frm紺碧帳::スクロール更新() {
    画面.表示([this] {
        部品& 棒 = 画面(欄::scl_行);
        const int 行数 = s.最終行 + 1;
        if (行数 < 5) {
            棒.Enabled = false;
            棒.Value = 0;
        } else {
            棒.Enabled = true;
            // Below fewer than 15 lines one blank row stays reachable; a full slip shows none,
            // and a sixteenth imported line is scrolled to as the bottom row.
            棒.Max = 行数 >= 最大行数 ? 行数 - 表示行数 : 行数 - 4;
            棒.Value = s.先頭行;
        }
    });
}

void frm紺碧帳::詳細初期化() {
    画面.表示([this] {
        部品& 棒 = 画面(欄::scl_行);
        棒.Enabled = false;
        棒.Value = 0;
        部品& タブ = 画面(欄::tab_詳細);
        タブ.Enabled = false;
        タブ.Value = 0;
        画面(欄::お知らせ).Caption.clear();
    });
}

void frm紺碧帳::フォーカス設定(部品& 対象) {
    部品* 先 = 次項目補正(画面, &対象);
    if (先->Enabled && 先->TabStop) 画面.SetFocus(*先);
}
