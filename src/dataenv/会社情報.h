#pragma once

#include <QString>

#include "text/金額.h"

// The company row of Mユーザ '0001'. The program acts on the closing month and day, the slip
// number kind, the PIN switch, the update kind and the document folder; the rest is the
// common record of the suite.
struct 会社情報 {
    QString ID, 名称, 郵便番号, 住所A, 住所B, 住所C, 代表者名, 電話, FAX, HOMEPAGE, EMAIL;
    QString 会社ロゴfile, 社印file, 銀行口座A, 銀行口座B, 銀行口座C, 銀行口座D;
    short 決算月 = 0, 決算日 = 0, 締日区分 = 0, 締日 = 0, 決済方法 = 0, 決済月 = 0, 決済日 = 0;
    金額 現金決済金額;
    short 整理実施可能日自 = 0, 整理実施可能日至 = 0, 整理実施可能時刻 = 0;
    QString 明細整理実行日, 統計整理実行日;
    short 伝票番号管理区分 = 0, 暗証番号有無 = 0, 更新実行区分 = 0;
    QString 特権暗証番号, システム特権暗証番号;
    QString 登録日付, 更新日付;
    short 手形サイト = 0, 売上金額丸め方法 = 0, 仕入金額丸め方法 = 0, 在庫評価方法 = 0;
    short 売上単価少数以下桁数 = 0, 売上数量少数以下桁数 = 0, 仕入単価少数以下桁数 = 0;
    short 仕入数量少数以下桁数 = 0, 在庫単価少数以下桁数 = 0, 在庫数量少数以下桁数 = 0;
    short 重量少数以下桁数 = 0;
    short 得意先単価自動更新区分 = 0, 納品先単価自動更新区分 = 0, 仕入先単価自動更新区分 = 0;
    QString 写真フォルダ, ドキュメントフォルダ, 総合振込ファイル, 基本読込フォルダ;
    QString 帳票イメージフォルダ, その他読込ファイル, 本支店連携フォルダ, テキスト出力フォルダ;
    QString BACKUPフォルダ;
    short 明細保存月数 = 0, 統計保存年数 = 0;

    // The suite's screens take these digit settings per kind of document.
    struct 桁数 {
        short 単価 = 0, 数量 = 0;
    };
    桁数 見積桁数, 受注桁数, 売上桁数, 発注桁数, 仕入桁数, 在庫桁数;
    short 重量桁数 = 0;
};

struct 事業所情報 {
    QString コード, 名称, 郵便番号, 住所A, 住所B, 住所C, 代表者名, 電話, FAX, 登録番号;
    QString HOMEPAGE, EMAIL, 銀行口座A, 銀行口座B, 銀行口座C, 銀行口座D;
    QString 総合振込ファイル, 基本読込フォルダ, 帳票イメージフォルダ, その他読込ファイル;
    QString 本支店連携フォルダ, テキスト出力フォルダ, BACKUPフォルダ, 地区コード;
    short 暗証番号有無 = 0;
    QString 特権暗証番号;
    short 更新実行区分 = 0;
};

// One slot of M他業務連携: another business system this suite can work beside.
struct 他業務連携スロット {
    QString 業務名;
    short 連携有無区分 = 0;
    QString 連携DB, 連携DBMW, 連携データソース名, 連携ドライバ名, 連携接続文字列;
    QString 連携データベース名, 連携サーバー名, 連携ユーザーID, 連携パスワード, 連携アプリフォルダ;
    short 顧客更新有無区分 = 0, 得意先更新有無区分 = 0, 納品先更新有無区分 = 0;
    short 仕入先更新有無区分 = 0, メーカ更新有無区分 = 0, 対応先更新有無区分 = 0;
    short 商品更新有無区分 = 0, 社員更新有無区分 = 0;
};

struct 他業務連携情報 {
    static constexpr int 予約数 = 10;
    short スロット数 = 5;
    他業務連携スロット スロット[予約数];
};

// The code of M他業務連携 that fills each slot; "005" stands twice on purpose, so slots 3
// and 4 hold the same row.
inline const char16_t* const 他業務連携コード[5] = {u"003", u"002", u"004", u"005", u"005"};
