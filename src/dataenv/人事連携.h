#pragma once

#include <QString>

#include "dataenv/データ接続.h"
#include "dataenv/環境情報.h"

// What the run knows of another business system of one slot of M他業務連携: its folders below
// the slot's application folder, its own database definition, its two connections, and the
// folders of its company row.
struct 連携スロット環境 {
    QString アプリフォルダ;  // the slot's 連携アプリフォルダ, the root of the other system's tree
    QString プログラムフォルダ;
    QString 共通環境フォルダ;
    QString 共通帳票フォルダ;
    QString マニュアルフォルダ;
    QString 環境フォルダ;  // effective: shared or per user
    QString 帳票フォルダ;  // effective: shared or per user
    QString 環境DBパス;
    QString 業務DBパス;

    データベース定義値 定義;
    short インストール区分 = 0;
    short 更新実行区分 = 0;

    // Folders of the other system's Mユーザ '0001'.
    QString 写真フォルダ, ドキュメントフォルダ, 総合振込ファイル, 基本読込フォルダ;
    QString 帳票イメージフォルダ, その他読込ファイル, 本支店連携フォルダ, テキスト出力フォルダ;
    QString BACKUPフォルダ;

    // An answer owed through the link side. Nothing of this program fills them, so that it
    // never answers there.
    QString 連携起動連携情報;
    QString 連携終了連携情報;

    bool 環境DB接続中 = false;
    bool 業務DB接続中 = false;
    データ接続 環境接続{u"hr-conf"_qs};
    データ接続 業務接続{u"hr-gnr"_qs};
};
