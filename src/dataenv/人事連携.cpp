#include "dataenv/人事連携.h"

#include "dataenv/データベース定義.h"
#include "dataenv/ファイル操作.h"
#include "dataenv/接続環境.h"
#include "text/プラットフォーム.h"

namespace {

// Where an error interrupts the opening of the link's configuration side.
struct 連携中断 {
    接続エラー エラー;
};

// The other system keeps its files in the second kind only; the first kind is never looked for.
const QString 連携環境ファイル = u"/usrcnfg.sqlite"_qs;

接続先 ファイル接続先(const QString& パス) {
    接続先 先;
    先.ファイル = パス;
    return 先;
}

}  // namespace

連携スロット環境* 接続環境::連携先() {
    if (連携スロット番号_ < 0 || 連携スロット番号_ >= 他業務連携情報::予約数) return nullptr;
    return &連携[連携スロット番号_];
}

void 接続環境::連携スロット選択(short 番号, const QString& アプリフォルダ) {
    連携スロット番号_ = 番号;
    if (連携スロット環境* L = 連携先()) L->アプリフォルダ = アプリフォルダ;
}

void 接続環境::連携環境DB再接続() {
    連携スロット環境* L = 連携先();
    if (L == nullptr) return;
    L->環境接続.閉じる();
    L->環境DB接続中 = L->環境接続.開く(ファイル接続先(L->環境フォルダ + 連携環境ファイル));
}

void 接続環境::連携接続終了() {
    連携スロット環境* L = 連携先();
    if (L == nullptr) return;
    if (L->環境DB接続中) {
        L->環境接続.閉じる();
        L->環境DB接続中 = false;
    }
    if (L->業務DB接続中) {
        L->業務接続.閉じる();
        L->業務DB接続中 = false;
    }
}

void 接続環境::連携定義読込(連携スロット環境& L) {
    // Read straight from the shared file, whatever the per-user copy says.
    データ接続 定義(u"hr-def"_qs);
    if (!定義.開く(ファイル接続先(L.共通環境フォルダ + 連携環境ファイル))) {
        throw 連携中断{定義.最終エラー()};
    }
    記録集合 rs;
    if (!定義.検索(rs, u"SELECT * FROM データベース定義 WHERE 情報種類 = 'GNR'"_qs)) {
        throw 連携中断{定義.最終エラー()};
    }
    if (!rs.EOFか() && !データベース定義を写す(rs, L.定義)) {
        throw 連携中断{{u"94"_qs, u"Null の使い方が不正です。"_qs}};
    }
    if (!定義.検索(rs, u"SELECT * FROM 動作環境定義 WHERE 動作環境定義ID = '001'"_qs)) {
        throw 連携中断{定義.最終エラー()};
    }
    if (!rs.EOFか()) L.インストール区分 = rs.整数(u"インストール区分"_qs);
    rs.閉じる();
}

bool 接続環境::連携SYB_OPEN() {
    連携スロット環境* L = 連携先();
    if (L == nullptr) return false;
    const QString 根 = L->アプリフォルダ;
    L->プログラムフォルダ = 根 + u"/prgbin"_qs;
    L->共通環境フォルダ = 根 + u"/conf"_qs;
    L->マニュアルフォルダ = 根 + u"/manual"_qs;
    L->共通帳票フォルダ = 根 + u"/report"_qs;
    L->環境DBパス = 根 + u"/conf"_qs + 連携環境ファイル;
    L->業務DBパス = 根 + u"/data/gnrdb.sqlite"_qs;
    L->環境DB接続中 = false;
    try {
        連携定義読込(*L);
        switch (L->インストール区分) {
            case 0:
                L->環境フォルダ = L->共通環境フォルダ;
                L->帳票フォルダ = L->共通帳票フォルダ;
                break;
            case 1: {
                const QString 利用者 = 根 + u"/users/"_qs + 環境_.ユーザID;
                L->環境フォルダ = 利用者 + u"/conf"_qs;
                L->帳票フォルダ = 利用者 + u"/report"_qs;
                連携利用者別環境準備();
                break;
            }
            default:
                L->環境フォルダ.clear();
                L->帳票フォルダ.clear();
        }
        if (!L->環境接続.開く(ファイル接続先(L->環境フォルダ + 連携環境ファイル))) {
            throw 連携中断{L->環境接続.最終エラー()};
        }
        L->環境DB接続中 = true;
    } catch (const 連携中断& 中) {
        基盤_.メッセージ(u"連携syb_open ERROR"_qs + 中.エラー.番号 + u" "_qs + 中.エラー.説明 +
                         u"\n"_qs + u"sysopen error"_qs);
    }
    return L->環境DB接続中;
}

void 接続環境::連携利用者別環境準備() {
    連携スロット環境& L = *連携先();
    const QString 環境ファイル = L.環境フォルダ + 連携環境ファイル;
    DIREXISTCHK(環境ファイル, 基盤_);
    if (!ファイル有無確認(環境ファイル)) {
        ファイル複写(L.共通環境フォルダ + 連携環境ファイル, 環境ファイル);
    }
    for (const char16_t* 名 : {u"/repdb.sqlite", u"/repfrmdb.sqlite"}) {
        const QString 帳票 = L.帳票フォルダ + QString::fromUtf16(名);
        DIREXISTCHK(帳票, 基盤_);
        if (!ファイル有無確認(帳票) &&
            ファイル有無確認(L.共通帳票フォルダ + QString::fromUtf16(名))) {
            ファイル複写(L.共通帳票フォルダ + QString::fromUtf16(名), 帳票);
        }
    }
    if (!フォルダ有無確認(L.環境フォルダ) || !ファイル有無確認(環境ファイル)) {
        エラー履歴書込(u"連携利用者別環境準備 User Conf ="_qs + L.環境フォルダ +
                       u" User Report ="_qs + L.帳票フォルダ);
    }
}

bool 接続環境::連携DB_OPEN() {
    連携スロット環境* L = 連携先();
    if (L == nullptr) return false;
    auto 失敗 = [&](const 接続エラー& e) {
        エラー履歴書込(u"連携db_OPEN ERROR"_qs + e.番号 + u" "_qs + e.説明);
        L->業務接続.閉じる();
        L->業務DB接続中 = false;
        return false;
    };
    接続先 先;
    // An unknown engine opens nothing, and the company row below cannot be read then.
    if (業務DB接続先(L->定義, 先) && !L->業務接続.開く(先)) return 失敗(L->業務接続.最終エラー());
    L->業務DB接続中 = true;
    記録集合 rs;
    if (!L->業務接続.検索(rs, u"SELECT * FROM Mユーザ WHERE ID = '0001'"_qs)) {
        return 失敗(L->業務接続.最終エラー());
    }
    L->更新実行区分 = rs.EOFか() ? 0 : rs.整数(u"更新実行区分"_qs);
    if (!rs.EOFか()) {
        const std::pair<const char16_t*, QString*> 列[] = {
            {u"写真フォルダ", &L->写真フォルダ},
            {u"ドキュメントフォルダ", &L->ドキュメントフォルダ},
            {u"総合振込ファイル", &L->総合振込ファイル},
            {u"基本読込フォルダ", &L->基本読込フォルダ},
            {u"帳票イメージフォルダ", &L->帳票イメージフォルダ},
            {u"その他読込ファイル", &L->その他読込ファイル},
            {u"本支店連携フォルダ", &L->本支店連携フォルダ},
            {u"テキスト出力フォルダ", &L->テキスト出力フォルダ},
            {u"BACKUPフォルダ", &L->BACKUPフォルダ},
        };
        for (const auto& [名, 値] : 列) *値 = rs.文字列(QString::fromUtf16(名));
    }
    rs.閉じる();
    return L->業務DB接続中;
}

データ接続* 接続環境::連携業務接続() {
    連携スロット環境* L = 連携先();
    return L ? &L->業務接続 : nullptr;
}

bool 接続環境::連携DB検索(記録集合& 結果, const QString& 文, bool 履歴) {
    return 記録付検索(連携業務接続(), 結果, 文, 履歴);
}

bool 接続環境::連携DB実行(const QString& 文, bool 履歴) {
    return 記録付実行(連携業務接続(), 文, 履歴);
}

bool 接続環境::連携環境DB検索(記録集合& 結果, const QString& 文) {
    連携スロット環境* L = 連携先();
    return 記録付検索(L ? &L->環境接続 : nullptr, 結果, 文, false);
}

bool 接続環境::連携環境DB実行(const QString& 文) {
    連携スロット環境* L = 連携先();
    return 記録付実行(L ? &L->環境接続 : nullptr, 文, false);
}
