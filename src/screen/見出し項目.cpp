#include "screen/frm紺碧帳.h"
#include "screen/frm紺碧帳_部品名.h"

#include "rules/消費税計算.h"
#include "text/プラットフォーム.h"
#include "text/実行時エラー.h"
#include "text/数値変換.h"
#include "text/数値書式.h"
#include "text/暦.h"
#include "text/項目編集.h"

namespace {

using 欄 = 紺碧帳部品;

const QString 該当なし文言 = u"該当情報がありません。"_qs;

// Department and section masters: looked up by code alone, whatever the office or whether the
// record is still in use.
bool マスタ検索(データ環境& データ, 記録集合& 結果, const QString& 表, const QString& コード) {
    const QString 文 = u"SELECT "_qs + 表 + u".*"_qs + u" FROM "_qs + 表 + u" WHERE "_qs + 表 +
                       u".コード = '"_qs + コード + u"'"_qs;
    return データ.接続().業務DB検索(結果, 文);
}

bool 部門検索(データ環境& データ, 記録集合& 結果, const QString& コード) {
    return マスタ検索(データ, 結果, u"M部門"_qs, コード);
}

bool セクション検索(データ環境& データ, 記録集合& 結果, const QString& コード) {
    return マスタ検索(データ, 結果, u"Mセクション"_qs, コード);
}

// Code and name of the found row into the header; a null column leaves the field as it was.
void マスタ取込(記録集合& 結果, QString& コード, QString& 名称) {
    if (!結果.Null(u"コード"_qs)) コード = 結果.文字列(u"コード"_qs);
    if (!結果.Null(u"名称"_qs)) 名称 = 結果.文字列(u"名称"_qs);
    結果.閉じる();
}

// The steps every code of the header takes; an empty code keeps the old name, and a code not
// found keeps the old code, which the re-display then shows again.
template <class 検索, class 取込>
bool コード確定(出金セッション& s, QString& 現コード, const QString& コード, 検索&& 探す,
                取込&& 取り込む) {
    if (コード == 現コード) return false;
    s.入力変更フラグ = true;
    if (コード.isEmpty()) {
        現コード.clear();
        return true;
    }
    if (!探す()) {
        s.お知らせ文言 = 該当なし文言;
        return true;
    }
    取り込む();
    s.お知らせ文言.clear();
    return true;
}

QString& 日付部分(出金見出し& h, int 部分) {
    return 部分 == 0 ? h.出金日付年 : 部分 == 1 ? h.出金日付月 : h.出金日付日;
}

// Every line takes the rate in force on the new date, then its tax and amounts follow.
void 全行再計算(出金セッション& s) {
    for (int i = 0; i <= s.最終行; ++i) 明細再計算(s.データ.接続(), s.行[i], s.見出し.出金日付);
    s.合計再計算();
}

// The date as the three fields show it, taken back one year. The fields are read as they
// stand, not as the session holds them, so a date that is no calendar date (a day typed but
// not yet left) raises 日付範囲外 like a year outside the calendar; the event's catcher
// handles it.
QString 一年前(const 画面モデル& 画面) {
    const int 年 = 小整数値(画面.探す(欄::出金日付年)->Text);
    const int 月 = 小整数値(画面.探す(欄::出金日付月)->Text);
    const int 日 = 小整数値(画面.探す(欄::出金日付日)->Text);
    const QDate 日付 = 日付構築(年, 月, 日);
    if (日付.month() != 月 || 日付.day() != 日) throw 日付範囲外();
    return 日付文字列(年数前(日付, 1));
}

// The number lists open on the last year, for the staff on the screen when there is one.
QString 番号一覧条件(const 画面モデル& 画面, const QString& 表, const QString& 日付列,
                     const QString& 担当列) {
    QString 条件 = 表 + u".番号基準日付 <> ''"_qs + u" AND "_qs + 表 + u"."_qs + 日付列 +
                   u" >= '"_qs + 一年前(画面) + u"'"_qs;
    const QString& 担当者 = 画面.探す(欄::担当者コード)->Text;
    if (!担当者.trimmed().isEmpty()) {
        条件 += u" AND "_qs + 表 + u"."_qs + 担当列 + u" = '"_qs + 担当者 + u"'"_qs;
    }
    return 条件;
}

// The programs folder of the HR link's slot in use; none without the link.
QString 人事連携プログラムフォルダ(出金セッション& s) {
    const 連携スロット環境* L = s.白樺連携フラグ ? s.データ.接続().連携先() : nullptr;
    return L ? L->プログラムフォルダ : QString();
}

}  // namespace

bool frm紺碧帳::出金日付更新(int 部分, const QString& 文字列) {
    QString& 現 = 日付部分(s.見出し, 部分);
    if (文字列 == 現) return false;
    s.入力変更フラグ = true;
    現 = 文字列;
    s.お知らせ文言.clear();
    s.出金日付確定();
    全行再計算(s);
    return true;
}

bool frm紺碧帳::担当者確定(const QString& コード) {
    return コード確定(
        s, s.見出し.担当者コード, コード,
        [&] {
            if (s.担当者検索(コード)) return true;
            s.担当者検索破棄();
            return false;
        },
        [&] { s.担当者取込(); });
}

bool frm紺碧帳::部門確定(const QString& コード) {
    記録集合 rs;
    const bool 結果 = コード確定(
        s, s.見出し.部門コード, コード, [&] { return 部門検索(s.データ, rs, コード); },
        [&] { マスタ取込(rs, s.見出し.部門コード, s.見出し.部門名); });
    rs.閉じる();
    return 結果;
}

bool frm紺碧帳::セクション確定(const QString& コード) {
    記録集合 rs;
    const bool 結果 = コード確定(
        s, s.見出し.セクションコード, コード, [&] { return セクション検索(s.データ, rs, コード); },
        [&] { マスタ取込(rs, s.見出し.セクションコード, s.見出し.セクション名); });
    rs.閉じる();
    return 結果;
}

bool frm紺碧帳::備考確定(int 備考, const QString& 文字列) {
    QString& 現 = 備考 == 0 ? s.見出し.出金伝票備考A : s.見出し.出金伝票備考B;
    if (文字列 == 現) return false;
    s.入力変更フラグ = true;
    // The column is measured in Shift-JIS bytes, as many as the field's characters.
    const 部品& 備考欄 = 画面(備考 == 0 ? 欄::出金伝票備考A : 欄::出金伝票備考B);
    現 = バイト長切詰(文字列, 備考欄.MaxLength);
    return true;
}

// A field with a lookup list: its button, the list window, where the focus goes on after a
// pick, whether a double click in the field opens it, and the caller's condition (none: the
// list keeps the condition it has).
struct frm紺碧帳::一覧定義 {
    部品名 欄;
    部品名 釦;
    const char16_t* 窓;
    部品名 名称先;
    bool ダブルクリック;
    std::optional<QString> (*条件)(const 画面モデル& 画面);
};

const frm紺碧帳::一覧定義 frm紺碧帳::一覧表[] = {
    {欄::出金No, 欄::btn_出金No, u"wnd出金No一覧", 欄::担当者名, true,
     [](const 画面モデル& 画面) -> std::optional<QString> {
         return 番号一覧条件(画面, u"T出金"_qs, u"出金日付"_qs, u"担当者コード"_qs);
     }},
    {欄::担当者コード, 欄::btn_担当者コード, u"wnd担当者一覧", 欄::担当者名, true,
     [](const 画面モデル& 画面) -> std::optional<QString> {
         // A typed code starts the list there and shows also those who have left.
         const 部品& 入力 = *画面.探す(欄::担当者コード);
         if (入力.Text.trimmed().isEmpty()) return u"M担当者.在籍区分 = '0'"_qs;
         return u"M担当者.コード >= '"_qs + 書式桁揃え(入力.Text, ゼロ文字列(入力.MaxLength)) +
                u"'"_qs;
     }},
    {欄::部門コード, 欄::btn_部門コード, u"wnd部門一覧", 欄::部門名, true,
     [](const 画面モデル&) -> std::optional<QString> { return std::nullopt; }},
    {欄::セクションコード, 欄::btn_セクションコード, u"wndセクション一覧", 欄::セクション名, true,
     [](const 画面モデル&) -> std::optional<QString> { return std::nullopt; }},
    {欄::出張申請No, 欄::btn_出張申請No, u"wnd出張申請No一覧", 欄::担当者コード, false,
     [](const 画面モデル& 画面) -> std::optional<QString> {
         return 番号一覧条件(画面, u"T出張申請"_qs, u"出張申請日付"_qs, u"社員コード"_qs);
     }},
};

// Ctrl in the field, its button, and a double click where the table says so.
void frm紺碧帳::一覧事象を結ぶ() {
    for (const 一覧定義& d : 一覧表) {
        部品& p = 画面(d.欄);
        p.KeyDown = [this, &d](キーコード キー) {
            if (キー == キーコード::Ctrl) 一覧を開く(d);
        };
        if (d.ダブルクリック) {
            p.DblClick = [this, &p, &d] {
                if (入力順序確認(p.定義.区分, -1, p.名前, p.定義.序数)) return;
                一覧を開く(d);
            };
        }
        画面(d.釦).Click = [this, &d] { 一覧を開く(d); };
    }
}

void frm紺碧帳::一覧を開く(const QString& 項目名) {
    for (const 一覧定義& d : 一覧表) {
        if (項目名 == d.欄.文字列()) 一覧を開く(d);
    }
}

void frm紺碧帳::一覧を開く(const 一覧定義& d) {
    // The condition is built before anything changes, so that a date error leaves the screen
    // as it was.
    const std::optional<QString> 条件 = d.条件(画面);
    s.データ.基盤().画面使用可否(画面.名前, false);
    if (条件) 状態.一覧.条件 = *条件;
    状態.一覧.設定先 = &画面(d.欄);
    状態.一覧.名称先 = &画面(d.名称先);
    状態.選択鍵.reset();
    s.データ.基盤().画面表示(QString::fromUtf16(d.窓), true);
}

void frm紺碧帳::参照元No起動() {
    const QString No = 画面(欄::出張申請No).Text.trimmed();
    if (No.isEmpty() || No == ゼロ文字列(No.size())) return;
    const QString フォルダ = 人事連携プログラムフォルダ(s);
    if (フォルダ.isEmpty()) return;
    s.データ.基盤().プログラム起動(フォルダ + u"/出張申請登録"_qs, {s.見出し.出張申請鍵().文字列()},
                                   フォルダ);
}
