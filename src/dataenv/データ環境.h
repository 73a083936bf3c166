#pragma once

#include <QString>

#include "dataenv/ツリー診断.h"
#include "dataenv/データ接続.h"
#include "dataenv/人事連携.h"
#include "dataenv/会社情報.h"
#include "dataenv/操作権限.h"
#include "dataenv/暗証解読部品.h"
#include "dataenv/環境情報.h"
#include "dataenv/記録集合.h"

class プラットフォーム;
class レジストリ;

// The data side of the one session of a run: where the program stands, its two connections,
// and the run history that traces them. A test makes a fresh one for each case.
class データ環境 {
  public:
    explicit データ環境(プラットフォーム& 基盤, QString プログラムID = u"紺碧帳"_qs);

    プラットフォーム& 基盤;
    const QString プログラムID;
    QString 自身のフォルダ;  // folder of the running executable
    QString コマンドライン;  // trimmed, as the start row records it

    プログラム環境情報 環境;
    QString 作業事業所コード;  // working copy of 運用事業所コード for screens and lists
    操作者情報 操作者;

    bool 環境DB接続中 = false;
    bool 業務DB接続中 = false;
    double 稼動カウンタ = 0;

    bool SYB_OPEN();
    // After a failed SYB_OPEN: whether the tree is missing or closed to this user, and where.
    ツリー診断結果 ツリー診断() const;
    bool DB_OPEN();
    bool DB_CLOSEOPEN();
    // Closes both connections at the end of the run; errors are of no interest there.
    void 接続終了();
    // Purges the short-lived rows of the configuration database; the menu program's start runs
    // it, the slip program's never does.
    void 環境情報整理();
    // Prepares Access on this workstation for the reports of the user's report folder.
    bool Access環境設定();

    bool 業務DB検索(記録集合& 結果, const QString& 文, bool 履歴 = false);
    bool 業務DB実行(const QString& 文, bool 履歴 = false);
    bool 環境DB検索(記録集合& 結果, const QString& 文);
    bool 環境DB実行(const QString& 文);
    bool 環境DB実行記録付(const QString& 文);

    // The statements of one store on the general database, committed together, named for the
    // run history. A failure to begin or to commit is logged with that name; a failed commit
    // undoes the whole batch, whatever the history rows before it say. False then.
    void 業務DB一括開始(const QString& 名);
    bool 業務DB一括終了();

    void 開始履歴書込();
    void 終了履歴書込();
    void 出力履歴書込(const QString& 文);
    void エラー履歴書込(const QString& 文言);

    // Company settings, read once after the general database opened.
    会社情報 会社;
    事業所情報 事業所;
    short 事業所件数 = 0;
    他業務連携情報 他業務連携;
    short 暗証番号要否 = 0;  // 暗証番号有無 in force: 1 asks PINs and enforces the rights
    const 暗証解読部品* 暗証解読 = &平文解読;
    // The workstation's registry. This build's holds no key, so there is no Access to prepare;
    // tests put in a registry with the keys a case needs.
    レジストリ* 端末レジストリ;

    bool 基本項目読込();
    void 事業所情報読込();
    void 他業務連携読込();
    void 運用事業所変更(const QString& 事業所コード);

    // The operator and his rights, read anew at every check so that a change of operator in
    // another program counts at once.
    bool 権限確認済 = false;  // the operator was confirmed and the last decision permitted
    QString 暗証確認題名;     // caption of the PIN window for the check that opens it
    bool 操作者読込();
    bool 操作者情報読込(const QString& 担当者コード);
    void 操作者確定();
    bool 操作権限判定(const QString& 業務メニュー, const QString& プログラムID, short 操作区分);
    bool 操作権限照会(const QString& 業務メニュー, const QString& プログラムID, short 操作区分);
    // -1 permitted; 0 nobody confirmed; 1 confirmed by PIN but refused (see 操作権限OK).
    short 操作権限確認(const QString& 業務メニュー, const QString& プログラムID, short 操作区分);
    // The one-line title of the main window: program, office or "(全社)", operator.
    QString 画面タイトル設定();
    // Labels of a program's condition items A..Z in a menu table; missing ones are stored empty.
    bool 条件項目名保存(const QString& 表名, const QString& プログラムID,
                        const QStringList& 項目名);

    // The program link: what this run was started with, and what it answers at its end.
    QString 発信元プログラムID;
    QString 受信起動連携情報;  // not empty: a sibling program waits for this run's answer
    QString 終了時連携情報;
    // Finds and takes out this run's request, sent no earlier than the time given.
    void 他プログラム連携受信(const QString& 起動連携情報, const QString& 最早日時);
    // Writes the answer row and reopens the configuration connection.
    void 他プログラム連携発信(const QString& 終了連携情報);

    // The HR link: the slot in use of M他業務連携, and a second pair of connections per slot.
    short 連携スロット番号 = -1;
    連携スロット環境 連携[他業務連携情報::予約数];
    bool 人事連携選択(const QString& 業務名);
    bool 人事連携開始();
    void 人事連携終了();
    bool 連携SYB_OPEN();
    bool 連携DB_OPEN();
    // As their twins of the general and configuration connections; the general side writes its
    // history rows to this run's own configuration database.
    bool 連携DB検索(記録集合& 結果, const QString& 文, bool 履歴 = false);
    bool 連携DB実行(const QString& 文, bool 履歴 = false);
    bool 連携環境DB検索(記録集合& 結果, const QString& 文);
    bool 連携環境DB実行(const QString& 文);
    // The link's connections of the slot in use; none before a slot is chosen.
    連携スロット環境* 連携先();

    データ接続& 環境DB() { return 環境接続; }
    データ接続& 業務DB() { return 業務接続; }

  private:
    void 木を探す();
    void データベース定義読込();
    void 動作環境定義読込(bool 全項目);
    void 利用者別環境準備();
    void 帳票DB準備(const QString& 帳票名, const QString& 帳票書式名, bool 追加複写);
    bool 環境DBを開く(const QString& フォルダ);
    接続先 環境DB接続先(const QString& フォルダ) const;
    void 履歴書込(const QString& 摘要);
    // A statement on one of the connections, its failure in the run history.
    bool 記録付検索(データ接続* 接続, 記録集合& 結果, const QString& 文, bool 履歴);
    bool 記録付実行(データ接続* 接続, const QString& 文, bool 履歴);
    // The request look-up and the answer of the program link, on either side of the HR link.
    void 連携要求受信(bool 人事側, const QString& 起動連携情報, const QString& 最早日時);
    void 連携応答発信(bool 人事側, const QString& 起動連携情報, const QString& 終了連携情報);
    void 連携利用者別環境準備();
    void 連携定義読込(連携スロット環境& L);

    QString 一括名;             // the batch under way
    double 一括前カウンタ = 0;  // the history counter as the batch began

    平文暗証解読 平文解読;
    データ接続 環境接続{u"conf"_qs};
    データ接続 業務接続{u"gnr"_qs};
};

// One store's run of statements on the general database, committed when it goes out of scope
// at the latest.
class 業務DB一括 {
  public:
    業務DB一括(データ環境& e, const QString& 名) : 環境(e) { 環境.業務DB一括開始(名); }
    ~業務DB一括() { 環境.業務DB一括終了(); }
    業務DB一括(const 業務DB一括&) = delete;
    業務DB一括& operator=(const 業務DB一括&) = delete;

  private:
    データ環境& 環境;
};
