#pragma once

#include <QString>

// The row 'GNR' of データベース定義: which engine holds a general database, and how to reach it.
struct データベース定義値 {
    QString db;
    QString dbmw;
    QString プロバイダ名;
    QString データベース名;
    QString ドライバ名;
    QString ユーザーID;
    QString パスワード;
    QString データソース名;
    QString サーバー名;
    QString 接続文字列;
};

// Where the program stands and what the configuration database says of its surroundings.
// Set once at start; only the office code changes later, and the operator, read again at every
// rights check.
struct プログラム環境情報 : データベース定義値 {
    // The tree
    QString ルートフォルダ;
    QString プログラムフォルダ;
    QString 共通環境フォルダ;
    QString 共通帳票フォルダ;
    QString マニュアルフォルダ;
    QString 環境フォルダ;  // effective: shared or per user
    QString 帳票フォルダ;  // effective: shared or per user
    short 業務DB種別 = 0;  // 0 none, 1 gnrdb.db, 2 gnrdb.sqlite
    short 環境DB種別 = 0;  // 0 none, 1 usrcnfg.db, 2 usrcnfg.sqlite
    short 帳票DB種別 = 0;  // 0 none, 1 repdb.db, 2 repdb.sqlite
    QString 業務DBパス;
    QString 環境DBパス;
    QString 帳票DBパス;

    // Identity of the workplace
    QString ユーザID;
    QString 端末利用者名;
    QString 端末名;

    QString Access業務DBパス;

    // 動作環境定義, row '001'
    QString 運用事業所コード;
    short インストール区分 = 0;
    short CL更新実行区分 = 0;
    QString バックアップ日付;
    QString 運用条件切替日付;
    short バックアップ方法 = 0;
    short バックアップ日指定 = 0;
    short 曜日別バックアップ[7] = {};  // 月曜 .. 日曜
    QString バックアップ開始時刻;
    QString バックアップフォルダ;
    QString 起動担当者コード;  // the operator as last read or confirmed
};

// File names of the two kinds of file, the first kind tried first.
inline QString 環境DBファイル名(short 種別) {
    return 種別 == 1 ? u"/usrcnfg.db"_qs : 種別 == 2 ? u"/usrcnfg.sqlite"_qs : QString();
}

// The user column of the tables: user name, starting operator and computer name, joined.
inline QString 記録者ID(const プログラム環境情報& 環境) {
    return 環境.ユーザID + 環境.起動担当者コード + 環境.端末名;
}
