#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "dataenv/ツリー診断.h"
#include "dataenv/データ接続.h"
#include "dataenv/人事連携.h"
#include "dataenv/会社情報.h"
#include "dataenv/環境情報.h"
#include "dataenv/記録集合.h"

class プラットフォーム;
class レジストリ;

// Where the program stands, its two connections (and the HR link's pair), and the run history
// that traces every statement on them.
class 接続環境 {
  public:
    接続環境(プラットフォーム& 基盤, QString プログラムID);
    接続環境(const 接続環境&) = delete;
    接続環境& operator=(const 接続環境&) = delete;

    プラットフォーム& 基盤() const { return 基盤_; }
    const QString& プログラムID() const { return プログラムID_; }
    // The folder of the running executable, where the tree is looked for.
    const QString& 自身のフォルダ() const { return 自身のフォルダ_; }
    void 自身のフォルダ設定(const QString& フォルダ) { 自身のフォルダ_ = フォルダ; }
    // Trimmed, as the start row records it.
    const QString& コマンドライン() const { return コマンドライン_; }
    void コマンドライン設定(const QString& 行) { コマンドライン_ = 行; }

    const プログラム環境情報& 環境() const { return 環境_; }
    // Values put in by hand, as a test needs them; the run itself reads them at its start.
    template <class 変更>
    void 環境変更(変更 f) {
        f(環境_);
    }
    // Working copy of 運用事業所コード for screens and lists.
    const QString& 作業事業所コード() const { return 作業事業所コード_; }
    void 作業事業所コード設定(const QString& コード) { 作業事業所コード_ = コード; }
    // The operator's code as the next rows are to carry it (see 操作者環境::操作者読込).
    void 起動担当者コード設定(const QString& コード) { 環境_.起動担当者コード = コード; }
    // The working office, for good: in memory and in 動作環境定義.
    void 運用事業所変更(const QString& 事業所コード);

    bool 環境DB接続中() const { return 環境DB接続中_; }
    bool 業務DB接続中() const { return 業務DB接続中_; }
    double 稼動カウンタ() const { return 稼動カウンタ_; }

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
    // The workstation's registry. This build's holds no key, so there is no Access to prepare;
    // tests put in a registry with the keys a case needs.
    void 端末レジストリ設定(レジストリ* 登録簿) { 端末レジストリ = 登録簿; }

    bool 業務DB検索(記録集合& 結果, const QString& 文, bool 履歴 = false);
    bool 業務DB実行(const QString& 文, bool 履歴 = false);
    // A long read, row by row (データ接続::逐次検索); a failure is logged as a search's. True
    // when the statement ran, whether it had rows or not.
    bool 業務DB逐次検索(const QString& 文, const データ接続::行受け& 受け);
    // A write of a store whose answer may come later (データ接続::後で実行): it is logged, and
    // its result handed to 受け, when the answer comes, in the order the writes were given.
    void 業務DB後で実行(const QString& 文, std::function<void(bool 成功)> 受け, bool 履歴 = false);
    bool 環境DB検索(記録集合& 結果, const QString& 文);
    bool 環境DB実行(const QString& 文);
    bool 環境DB実行記録付(const QString& 文);

    // The statements of one store on the general database, committed together, named for the
    // run history. A failure to begin or to commit is logged with that name; a failed commit
    // undoes the whole batch, whatever the history rows before it say. False then.
    void 業務DB一括開始(const QString& 名);
    bool 業務DB一括終了();

    // Who the history rows name as operator; asked at each row.
    void 記録担当者設定(std::function<QString()> 担当者) { 記録担当者 = std::move(担当者); }
    // The start row, with the command line; the caller reads the operator first.
    void 開始履歴書込();
    void 終了履歴書込();
    void 出力履歴書込(const QString& 文);
    void エラー履歴書込(const QString& 文言);

    // Labels of a program's condition items A..Z in a menu table; missing ones are stored empty.
    bool 条件項目名保存(const QString& 表名, const QString& プログラムID,
                        const QStringList& 項目名);

    // The HR link: the slot in use of M他業務連携, and a second pair of connections per slot.
    short 連携スロット番号() const { return 連携スロット番号_; }
    // Takes the slot in use, with the other system's folder as its company row names it.
    void 連携スロット選択(short 番号, const QString& アプリフォルダ);
    bool 連携SYB_OPEN();
    bool 連携DB_OPEN();
    // Reopens the link's configuration connection, after an answer row was written there.
    void 連携環境DB再接続();
    // Closes both connections of the slot in use.
    void 連携接続終了();
    // As their twins of the general and configuration connections; the general side writes its
    // history rows to this run's own configuration database.
    bool 連携DB検索(記録集合& 結果, const QString& 文, bool 履歴 = false);
    // A list window's search on the general database or the link's: the engine is asked for no
    // more than the rows the window shows, while the history keeps the statement as written.
    bool 一覧検索(記録集合& 結果, const QString& 文, int 行上限, bool 連携);
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
    bool 記録付検索(データ接続* 接続, 記録集合& 結果, const QString& 文, bool 履歴, int 行上限 = 0);
    bool 記録付実行(データ接続* 接続, const QString& 文, bool 履歴);
    // The history row of a statement that ran: its failure, or its text when it is traced.
    void 実行の記録(bool 成功, const 接続エラー& エラー, const QString& 文, bool 履歴);
    データ接続* 連携業務接続();  // the general connection of the slot in use, if any
    void 連携利用者別環境準備();
    void 連携定義読込(連携スロット環境& L);

    プラットフォーム& 基盤_;
    const QString プログラムID_;
    QString 自身のフォルダ_;
    QString コマンドライン_;
    プログラム環境情報 環境_;
    QString 作業事業所コード_;
    std::function<QString()> 記録担当者;

    bool 環境DB接続中_ = false;
    bool 業務DB接続中_ = false;
    double 稼動カウンタ_ = 0;
    レジストリ* 端末レジストリ;

    QString 一括名;             // the batch under way
    double 一括前カウンタ = 0;  // the history counter as the batch began

    データ接続 環境接続{u"conf"_qs};
    データ接続 業務接続{u"gnr"_qs};

    short 連携スロット番号_ = -1;
    連携スロット環境 連携[他業務連携情報::予約数];
};

// One store's run of statements on the general database, committed when it goes out of scope
// at the latest.
class 業務DB一括 {
  public:
    業務DB一括(接続環境& e, const QString& 名) : 接続(e) { 接続.業務DB一括開始(名); }
    ~業務DB一括() { 接続.業務DB一括終了(); }
    業務DB一括(const 業務DB一括&) = delete;
    業務DB一括& operator=(const 業務DB一括&) = delete;

  private:
    接続環境& 接続;
};
