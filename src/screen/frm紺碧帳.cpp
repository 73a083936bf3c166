#include "screen/frm紺碧帳.h"

#include <QFile>

#include "dataenv/ファイル操作.h"
#include "rules/消費税計算.h"
#include "screen/次項目補正.h"
#include "text/プラットフォーム.h"
#include "text/数値書式.h"
#include "text/項目編集.h"

namespace {

QString 金額表示(const 金額& 額) {
    return 書式(額, u"#,###,###,##0");
}

}  // namespace

frm紺碧帳::frm紺碧帳(出金セッション& セッション) : s(セッション) {
    画面.作る(部品定義表);
    事象を結ぶ();
    // A run-time error (an overflow, a date beyond the calendar) ends the operation the event
    // started, never the program: the operator is told, and the screen listens again.
    画面.異常時 = [this](const std::exception& e) {
        s.画面表示中フラグ = false;
        画面使用中 = false;
        s.データ.基盤().メッセージ(QString::fromUtf8(e.what()));
    };
}

// Got focus runs the order guard with the item's section and ordinal; lost focus commits.
void frm紺碧帳::項目事象を結ぶ(部品& 項目) {
    部品* p = &項目;
    p->GotFocus = [this, p] {
        if (s.画面表示中フラグ) return;
        s.入力中項目 = p;
        入力順序確認(p->定義.区分, p->添字, p->名前, p->定義.序数);
    };
    p->LostFocus = [this, p] {
        if (s.画面表示中フラグ) return;
        s.離脱項目 = p;
        if (p->定義.区分 == 2) {
            明細離脱(*p);
        } else {
            見出し離脱(*p);
        }
    };
}

void frm紺碧帳::事象を結ぶ() {
    for (部品* p : 画面.全部品()) {
        if (p->定義.区分 != 0) 項目事象を結ぶ(*p);
        if (*p->定義.結び) {
            p->Click = [this, p] {
                if (!s.画面表示中フラグ) 題クリック(*p);
            };
        }
    }
    画面(u"ヘッド終了"_qs).GotFocus = [this] {
        if (!s.画面表示中フラグ) ヘッド終了取得();
    };
    for (int r = 0; r < 表示行数; ++r) {
        画面(u"頁1終了"_qs, r).GotFocus = [this, r] {
            if (!s.画面表示中フラグ) 頁1終了取得(r);
        };
        for (const char16_t* 枠 : {u"bak_dtla", u"bak_dtlb"}) {
            画面(QString::fromUtf16(枠), r).Click = [this, r] {
                if (s.画面表示中フラグ) return;
                if (!入力順序確認(2, r, QString(), 1)) 離脱項目へ();
            };
        }
    }
    画面(u"テイル終了"_qs).GotFocus = [this] {
        if (!s.画面表示中フラグ) テイル終了取得();
    };
    画面(u"tab_詳細"_qs).Change = [this] {
        if (!s.画面表示中フラグ) 詳細頁変更();
    };
    画面(u"scl_行"_qs).Change = [this] {
        if (!s.画面表示中フラグ) スクロール変更();
    };
    画面(u"prg_ttl"_qs).Click = [this] {
        if (!s.画面表示中フラグ) 離脱項目へ();
    };
    画面(u"manualpanel"_qs).Click = [this] {
        if (!s.画面表示中フラグ) マニュアル表示();
    };
    画面(u"btn_軽減税率切替"_qs).Click = [this] {
        if (s.画面表示中フラグ || 画面使用中) return;
        s.軽減税率表示 = true;
        合計表示();
    };
    画面(u"btn_通常表示切替"_qs).Click = [this] {
        if (s.画面表示中フラグ || 画面使用中) return;
        s.軽減税率表示 = false;
        合計表示();
    };
    // The lookups: key code 17 or a double click in the field, or the field's button.
    for (const char16_t* 名 :
         {u"出金No", u"担当者コード", u"部門コード", u"セクションコード", u"出張申請No"}) {
        const QString 名前 = QString::fromUtf16(名);
        部品& p = 画面(名前);
        p.KeyDown = [this, 名前](int キー) {
            if (!s.画面表示中フラグ && キー == 17) 一覧を開く(名前);
        };
        if (名前 != u"出張申請No") {
            p.DblClick = [this, &p] {
                if (s.画面表示中フラグ) return;
                if (入力順序確認(p.定義.区分, -1, p.名前, p.定義.序数)) return;
                一覧を開く(p.名前);
            };
        }
        画面(u"btn_"_qs + 名前).Click = [this, 名前] {
            if (!s.画面表示中フラグ) 一覧を開く(名前);
        };
    }
    画面(u"btn_参照元No"_qs).Click = [this] {
        if (!s.画面表示中フラグ) 参照元No起動();
    };
    画面(u"btn_登録"_qs).Click = [this] {
        if (!s.画面表示中フラグ) 登録処理();
    };
    画面(u"btn_削除"_qs).Click = [this] { 削除(); };
    画面(u"btn_画面クリア"_qs).Click = [this] { 画面クリア(); };
    画面(u"btn_前No"_qs).Click = [this] { 隣へ(true); };
    画面(u"btn_次No"_qs).Click = [this] { 隣へ(false); };
    画面(u"btn_印刷"_qs).Click = [this] { 帳票(u"0"_qs); };
    画面(u"btn_プレビュ"_qs).Click = [this] { 帳票(u"1"_qs); };
    画面(u"btn_帳票イメージ出力"_qs).Click = [this] { 帳票(u"3"_qs); };
    画面(u"btn_付属書類追加"_qs).Click = [this] { 付属書類ファイル追加(); };
    画面(u"btn_フォルダ"_qs).Click = [this] { 付属書類フォルダ追加(); };
    画面(u"btn_付属書類削除"_qs).Click = [this] { 付属書類を外す(選択中の付属書類()); };
    画面(u"List付属書類"_qs).DblClick = [this] { 付属書類を開く(選択中の付属書類()); };
    // The quit takes no busy test: it is always there.
    画面(u"btn_終了"_qs).Click = [this] {
        bool 取消 = false;
        終了確認(取消);
    };
    画面(u"btn_行クリア"_qs).Click = [this] {
        if (!s.画面表示中フラグ && !画面使用中) 行クリア();
    };
    画面(u"btn_行挿入"_qs).Click = [this] {
        if (!s.画面表示中フラグ && !画面使用中) 行挿入();
    };
    画面(u"btn_行複写"_qs).Click = [this] {
        if (!s.画面表示中フラグ && !画面使用中) 行複写();
    };
    for (int r = 0; r < 表示行数; ++r) {
        画面(u"btn_摘要"_qs, r).Click = [this, r] {
            if (!s.画面表示中フラグ && !画面使用中) 摘要一覧(r);
        };
    }
    明細事象を結ぶ();
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
    画面(u"prg_ttl"_qs).Caption = s.データ.操作者権限().画面タイトル設定();
    if (伝票読込) 伝票読込();
    画面全表示();
    詳細初期化();
    スクロール更新();
}

void frm紺碧帳::画面初期配置() {
    const 部品& 知らせ = 画面(u"お知らせ"_qs);
    // The allowance for the window frame of the systems this screen was drawn for.
    画面.Height = 知らせ.Top + 知らせ.Height + 380;
    画面.Width = 知らせ.Width + 90;
    画面.Caption = s.データ.会社設定().会社().名称 + u"（"_qs + u"紺碧帳"_qs + u"）"_qs;
    部品& 行棒 = 画面(u"scl_行"_qs);
    行棒.LargeChange = 5;
    行棒.Enabled = false;
    行棒.Value = 0;
    // The lengths of the number and code fields (8, 5, 3, 3) come with the control table.
    一覧を埋める();
    s.先頭入力項目 = &画面(u"担当者コード"_qs);
    s.入力中項目 = s.離脱項目 = s.先頭入力項目;
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
        画面(u"費目区分名称"_qs, r).一覧 = 費目;
        画面(u"内税外税区分名称"_qs, r).一覧 = 内外;
        部品& 区分 = 画面(u"費目区分"_qs, r);
        区分.Min = 0;
        区分.Max = 費目.size();
    }
}

void frm紺碧帳::画面全表示() {
    見出し表示();
    明細表示();
    合計表示();
    表示中([this] { 付属書類listint(); });
}

void frm紺碧帳::見出し表示() {
    表示中([this] {
        const auto& h = s.見出し;
        画面(u"出金日付年"_qs).Text = h.出金日付年;
        画面(u"出金日付月"_qs).Text = h.出金日付月;
        画面(u"出金日付日"_qs).Text = h.出金日付日;
        画面(u"出金No"_qs).Text = h.出金No;
        画面(u"担当者コード"_qs).Text = h.担当者コード;
        画面(u"担当者名"_qs).Text = h.担当者名;
        画面(u"部門コード"_qs).Text = h.部門コード;
        画面(u"部門名"_qs).Text = h.部門名;
        画面(u"セクションコード"_qs).Text = h.セクションコード;
        画面(u"セクション名"_qs).Text = h.セクション名;
        画面(u"出張申請No"_qs).Text = h.出張申請No;
        for (const char16_t* 名 : {u"btn_参照元No", u"btn_出張申請No", u"出張申請No"}) {
            画面(QString::fromUtf16(名)).Visible = s.白樺連携フラグ;
        }
        画面(u"担当者名"_qs).TabStop = false;
        const QString& 帳票 = s.データ.接続().環境().帳票フォルダ;
        画面(u"btn_帳票イメージ出力"_qs).Visible =
            !帳票.isEmpty() && QFile::exists(帳票 + u"/repfrmdb.db"_qs);
    });
}

void frm紺碧帳::明細表示() {
    for (int r = 0; r < 表示行数; ++r) 明細行表示(s.先頭行 + r, r);
}

void frm紺碧帳::合計表示() {
    表示中([this] {
        const auto& t = s.合計;
        画面(u"出金伝票備考A"_qs).Text = s.見出し.出金伝票備考A;
        画面(u"出金伝票備考B"_qs).Text = s.見出し.出金伝票備考B;
        画面(u"出金金額合計"_qs).Text = 金額表示(t.出金金額合計);
        画面(u"出金消費税合計"_qs).Text = 金額表示(t.出金消費税合計);
        画面(u"実質出金金額合計"_qs).Text = 金額表示(t.実質出金金額合計);
        画面(u"bak_税別合計"_qs).Visible = s.軽減税率表示;
        auto 題 = [](const 金額& 率) {
            return 率.ゼロか() ? QString() : u"合計("_qs + 書式(率, u"##0") + u"%)"_qs;
        };
        画面(u"itm_ttl_前回税率合計"_qs).Caption = 題(s.見出し.前回税率);
        画面(u"itm_ttl_今回税率合計"_qs).Caption = 題(s.見出し.今回税率);
        画面(u"前回税率出金金額合計"_qs).Text = 金額表示(t.前回税率出金金額合計);
        画面(u"前回税率出金消費税合計"_qs).Text = 金額表示(t.前回税率出金消費税合計);
        画面(u"今回税率出金金額合計"_qs).Text = 金額表示(t.今回税率出金金額合計);
        画面(u"今回税率出金消費税合計"_qs).Text = 金額表示(t.今回税率出金消費税合計);
    });
}

void frm紺碧帳::スクロール更新() {
    表示中([this] {
        部品& 棒 = 画面(u"scl_行"_qs);
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
    表示中([this] {
        部品& 棒 = 画面(u"scl_行"_qs);
        棒.Enabled = false;
        棒.Value = 0;
        部品& タブ = 画面(u"tab_詳細"_qs);
        タブ.Enabled = false;
        タブ.Value = 0;
        画面(u"お知らせ"_qs).Caption.clear();
    });
}

void frm紺碧帳::フォーカス設定(部品& 対象) {
    部品* 先 = 次項目補正(画面, &対象);
    if (先->Enabled && 先->TabStop) 画面.SetFocus(*先);
}
