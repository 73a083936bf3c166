#pragma once

#include <QString>
#include <functional>
#include <span>

#include "screen/msgお待ち.h"
#include "screen/msg印刷確認.h"
#include "screen/画面モデル.h"
#include "slip/出金セッション.h"

// The entry screen of the slip: every control by the name it has on the form, and the event
// routines behind them. The Qt window only draws this model and forwards what the operator does.
class frm紺碧帳 {
  public:
    explicit frm紺碧帳(出金セッション& セッション);

    // Everything static of each control: class, caption, place, tab order, limits, page and
    // its place in the order guard.
    static const 部品表 部品定義表;

    出金セッション& s;
    画面モデル 画面{u"frm紺碧帳"_qs};
    画面状態& 状態 = 画面.状態;

    bool 費目区分不正 = false;  // the last expense class typed was not a class
    bool 画面使用中 = false;    // a modal window of this screen is up

    // What a commit redraws once it changed the slip.
    struct 再表示 {
        enum : unsigned {
            行 = 1,
            合計 = 2,
            見出し = 4,
            明細 = 8,
            付属書類 = 16,
            棒 = 32,
            知らせ = 64
        };
    };
    // A field's commit, bound to the field's lost focus: it reads the field into the slip and
    // is true when the slip changed; what it redraws then stands beside it.
    struct 確定定義 {
        const char16_t* 名前;
        bool (*確定)(frm紺碧帳& f, 部品& 欄);
        unsigned 再表示;
    };
    static const std::span<const 確定定義> 確定表;

    // The dialogues of the register flow.
    msg印刷確認 印刷確認{s};
    msgお待ち お待ち;
    // The stop sequence and the end of the process, once the quit is decided.
    std::function<void()> 停止;

    // The register flow: right and period, the question, the store, the new slip.
    void 登録処理();
    // The commands of the command band and the header.
    void 削除();
    void 画面クリア();
    void 隣へ(bool 前);
    // btn_印刷, btn_プレビュ, btn_帳票イメージ出力: "0" print, "1" preview, "3" PDF.
    void 帳票(const QString& 出力区分);
    // The quit: a stored slip with a gap may not be left; pending changes are asked about.
    // 取消 comes back true when the screen stays.
    void 終了確認(bool& 取消);
    // The attachment list of the slip and the enabling of its three buttons.
    void 付属書類listint();
    void 付属書類ボタン更新();
    // btn_付属書類追加 and btn_フォルダ: a file or a folder picked and attached to the slip on
    // screen; btn_付属書類削除 and a double click in the list: the document of a list item,
    // by its Key, removed with its copy or opened. An empty Key is no item selected.
    void 付属書類ファイル追加();
    void 付属書類フォルダ追加();
    void 付属書類を外す(const QString& Key);
    void 付属書類を開く(const QString& Key);
    // The slip's record in M付属書類 as the screen shows it: office, the number base date of
    // the date on screen, the number on screen.
    QString 付属書類識別ID();
    // The Key of the list's selected item; empty with none selected.
    QString 選択中の付属書類();

    // The screen's load step: lay out, fill the lists, title the window, load or clear the slip,
    // display.
    void 画面読込(const std::function<void()>& 伝票読込);

    // Layout, display and focus.
    void 画面初期配置();
    void 画面全表示();
    void 見出し表示();
    void 明細表示();
    void 合計表示();
    void スクロール更新();
    void 詳細初期化();
    void フォーカス設定(部品& 対象);
    bool 入力順序確認(int 区分, int 行, const QString& 項目名, int 序数);
    void ボタン状態更新();
    bool 必須項目確認(int& 区分, int& 行, int& 序数);
    bool 必須項目案内();
    int 見出し空き() const;        // ordinal of the header's first empty required item
    int 明細空き(int 明細) const;  // 1 when the line has no expense class
    部品& 見出し項目(int 序数);    // the header's required item of an ordinal
    // A click on a title panel: the got-focus of the item it stands for (in the current row).
    void 題クリック(const 部品& 題);
    // manualpanel: the program's manual, named by the program ID, in the manual folder.
    void マニュアル表示();
    // F8 the history of the stored slip on the screen, F9 the slip search, F10 the payee
    // register. True when the key is one of them.
    bool 補助窓を開く(キーコード キー);

    // Header fields.
    bool 出金日付更新(int 部分, const QString& 文字列);  // 0 year, 1 month, 2 day
    bool 担当者確定(const QString& コード);
    bool 部門確定(const QString& コード);
    bool セクション確定(const QString& コード);
    bool 備考確定(int 備考, const QString& 文字列);  // 0 A, 1 B
    void 一覧を開く(const QString& 項目名);
    // btn_参照元No: the trip application program on the slip's application.
    void 参照元No起動();

    // Line grid.
    bool 費目区分確定(int 行, int 区分);
    bool 内税外税区分確定(int 行, int 区分);
    bool 消費税率確定(int 行, const 金額& 率);
    bool 出金金額確定(int 行, const 金額& 額);
    bool 出金消費税確定(int 行, const 金額& 税);
    bool 支払先確定(int 行, const QString& 文字列);
    bool 課税事業所区分確定(int 行, int 値);
    bool 摘要確定(int 行, const QString& 文字列);
    void 明細行表示(int 明細, int 行);
    void 行クリア();
    void 行挿入();
    void 行複写();
    void 摘要一覧(int 行);

  private:
    static const 確定定義 確定一覧[];
    struct 一覧定義;
    static const 一覧定義 一覧表[];
    struct 補助窓定義;
    static const 補助窓定義 補助窓表[];
    void 一覧事象を結ぶ();
    void 一覧を開く(const 一覧定義& 定義);
    void 事象を結ぶ();
    void 項目事象を結ぶ(部品& p, const 確定定義* 確定);
    void 一覧を埋める();
    // The one path of every commit: a line's field only on the line in use and with no modal
    // window up; then the commit, and what it redraws.
    void 確定する(部品& p, const 確定定義& 定義);
    void 描き直す(unsigned 何を, int 行);
    // The header's fields as their commits read them: the text brought to its mask first, and
    // written back to the field even when nothing changed.
    QString 整える(部品& p, const QString& 文字列);
    QString 日付を揃える(部品& p);  // year "0000", month and day "00", as long as the field
    QString 桁を揃える(部品& p);    // a code or number filled with zeros to the field's length
    bool 出張申請欄確定(部品& p);
    void 行を写す(int 元, int 先);
    void ヘッド終了取得();
    void 頁1終了取得(int 行);
    void テイル終了取得();
    void 詳細頁変更();
    void スクロール変更();
    void 名前で移す(const QString& 名前, int 行 = -1);

    // The refusals and the end of a store or a deletion, shared by both commands.
    void 離脱項目へ();
    bool 書込権限確認(short 操作区分);
    // After a store or deletion whose batch did not commit: its message, the slip left as it
    // is. True then.
    bool 保存未確定なら戻る();
    void 新しい伝票へ();
    // The report program on the slip in memory, whether it is stored or not.
    void 帳票起動する(const QString& 出力区分);
};
