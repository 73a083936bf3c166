#include "screen/frm紺碧帳.h"

#include "rules/消費税計算.h"
#include "text/プラットフォーム.h"
#include "text/実行時エラー.h"
#include "text/数値変換.h"
#include "text/数値書式.h"
#include "text/暦.h"
#include "text/項目編集.h"

namespace {

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
    const int 年 = 小整数値(画面.探す(u"出金日付年"_qs)->Text);
    const int 月 = 小整数値(画面.探す(u"出金日付月"_qs)->Text);
    const int 日 = 小整数値(画面.探す(u"出金日付日"_qs)->Text);
    const QDate 日付 = 日付構築(年, 月, 日);
    if (日付.month() != 月 || 日付.day() != 日) throw 日付範囲外();
    return 日付文字列(年数前(日付, 1));
}

// The number lists open on the last year, for the staff on the screen when there is one.
QString 番号一覧条件(const 画面モデル& 画面, const QString& 表, const QString& 日付列,
                     const QString& 担当列) {
    QString 条件 = 表 + u".番号基準日付 <> ''"_qs + u" AND "_qs + 表 + u"."_qs + 日付列 +
                   u" >= '"_qs + 一年前(画面) + u"'"_qs;
    const QString& 担当者 = 画面.探す(u"担当者コード"_qs)->Text;
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

void frm紺碧帳::見出し離脱(部品& p) {
    const QString& 名 = p.名前;
    // The normalised text goes back into the field even when nothing changed.
    auto 整える = [this, &p](const QString& 文字列) {
        表示中([&] { p.Text = 文字列; });
        return 文字列;
    };
    auto 知らせる = [this] { 画面(u"お知らせ"_qs).Caption = s.お知らせ文言; };

    if (名 == u"出金日付年" || 名 == u"出金日付月" || 名 == u"出金日付日") {
        const int 部分 = 名 == u"出金日付年" ? 0 : 名 == u"出金日付月" ? 1 : 2;
        const QString 文字列 = 整える(書式(p.Text, 部分 == 0 ? u"0000" : u"00"));
        if (!出金日付更新(部分, 文字列)) return;
        見出し表示();
        明細表示();
        合計表示();
        知らせる();
    } else if (名 == u"出金No") {
        const QString No = 整える(書式桁揃え(p.Text, ゼロ文字列(8)));
        if (!s.出金No確定(No)) return;
        画面全表示();
        スクロール更新();
        知らせる();
    } else if (名 == u"担当者コード" || 名 == u"部門コード" || 名 == u"セクションコード") {
        const int 桁 = 名 == u"担当者コード" ? 5 : 3;
        const QString コード = 整える(書式桁揃え(p.Text, ゼロ文字列(桁)));
        const bool 変更 = 名 == u"担当者コード" ? 担当者確定(コード)
                          : 名 == u"部門コード" ? 部門確定(コード)
                                                : セクション確定(コード);
        if (!変更) return;
        見出し表示();
        知らせる();
    } else if (名 == u"出張申請No") {
        // A disabled field takes nothing, and without the HR link the field is not there.
        if (!p.Enabled || !s.白樺連携フラグ) return;
        const QString No = 整える(書式桁揃え(p.Text, ゼロ文字列(8)));
        bool 変更 = false;
        try {
            変更 = s.出張申請確定(No);
        } catch (const 実行時エラー&) {
            // The slip went back as it was; so does the field, before the error is shown.
            見出し表示();
            throw;
        }
        if (!変更) return;
        見出し表示();
        明細表示();
        合計表示();
        スクロール更新();
        知らせる();
    } else if (名 == u"出金伝票備考A" || 名 == u"出金伝票備考B") {
        if (備考確定(名 == u"出金伝票備考A" ? 0 : 1, p.Text)) 合計表示();
    }
}

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
    const 部品& 欄 = 画面(備考 == 0 ? u"出金伝票備考A"_qs : u"出金伝票備考B"_qs);
    現 = バイト長切詰(文字列, 欄.MaxLength);
    return true;
}

void frm紺碧帳::一覧を開く(const QString& 項目名) {
    // The condition is built before anything changes, so that a date error leaves the screen
    // as it was.
    QString 一覧名;
    QString 条件;
    bool 条件あり = true;
    QString 名称先;
    if (項目名 == u"出金No") {
        一覧名 = u"wnd出金No一覧"_qs;
        条件 = 番号一覧条件(画面, u"T出金"_qs, u"出金日付"_qs, u"担当者コード"_qs);
        名称先 = u"担当者名"_qs;
    } else if (項目名 == u"担当者コード") {
        一覧名 = u"wnd担当者一覧"_qs;
        // A typed code starts the list there and shows also those who have left.
        const QString& 入力 = 画面(項目名).Text;
        条件 = 入力.trimmed().isEmpty()
                   ? u"M担当者.在籍区分 = '0'"_qs
                   : u"M担当者.コード >= '"_qs + 書式桁揃え(入力, ゼロ文字列(5)) + u"'"_qs;
        名称先 = u"担当者名"_qs;
    } else if (項目名 == u"部門コード") {
        一覧名 = u"wnd部門一覧"_qs;
        条件あり = false;
        名称先 = u"部門名"_qs;
    } else if (項目名 == u"セクションコード") {
        一覧名 = u"wndセクション一覧"_qs;
        条件あり = false;
        名称先 = u"セクション名"_qs;
    } else if (項目名 == u"出張申請No") {
        一覧名 = u"wnd出張申請No一覧"_qs;
        条件 = 番号一覧条件(画面, u"T出張申請"_qs, u"出張申請日付"_qs, u"社員コード"_qs);
        名称先 = u"担当者コード"_qs;
    } else {
        return;
    }
    s.データ.基盤().画面使用可否(画面.名前, false);
    if (条件あり) s.一覧条件文字列 = 条件;
    s.一覧設定先項目 = &画面(項目名);
    s.一覧設定先名称項目 = &画面(名称先);
    s.データ.基盤().画面表示(一覧名, true);
}

void frm紺碧帳::参照元No起動() {
    const QString No = 画面(u"出張申請No"_qs).Text.trimmed();
    if (No.isEmpty() || No == ゼロ文字列(No.size())) return;
    const QString フォルダ = 人事連携プログラムフォルダ(s);
    if (フォルダ.isEmpty()) return;
    const auto& h = s.見出し;
    s.データ.基盤().プログラム起動(フォルダ + u"/出張申請登録"_qs,
                                   {h.出張申請事業所コード + h.出張申請番号基準日付 + h.出張申請No},
                                   フォルダ);
}
