#pragma once

#include <QHash>
#include <QSqlDatabase>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "dataenv/SQL方言変換.h"
#include "dataenv/文の引数化.h"
#include "dataenv/記録集合.h"

// How to reach one database: the engine and the values that open it.
struct 接続先 {
    enum class 種類 { SQLite, PostgreSQL, ODBC };
    種類 エンジン = 種類::SQLite;
    QString ファイル;        // SQLite
    QString ホスト;          // PostgreSQL: host name or socket folder
    int ポート = 0;          // PostgreSQL: 0 = the driver's default
    QString データベース名;  // PostgreSQL
    QString ユーザー;        // PostgreSQL, ODBC
    QString パスワード;      // PostgreSQL, ODBC
    QString ODBC接続文字列;  // ODBC
    // SQLite: a commit waits for the disk only at checkpoints. The file stays whole after any
    // crash; only the last commits can be lost when the machine itself goes down.
    bool 同期は区切りごと = false;
};

// A failed statement or open: the driver's error number and its description.
struct 接続エラー {
    QString 番号;
    QString 説明;
};

// One long-lived connection. Every statement passes the dialect translation on its way in.
class データ接続 {
  public:
    explicit データ接続(QString 用途);
    ~データ接続();
    データ接続(const データ接続&) = delete;
    データ接続& operator=(const データ接続&) = delete;

    bool 開く(const 接続先& 先);
    void 閉じる();
    bool 開いている() const;

    // True when the statement ran; whether a row stands current is the record set's EOF.
    // The record set is the caller's in every case. With a row limit, the engine is asked for
    // no more rows than that (a statement that names its own limit keeps it).
    bool 検索(記録集合& 結果, const QString& 文, int 行上限 = 0);
    bool 実行(const QString& 文);

    // A run of statements that other users see whole, after one commit. Each statement still
    // succeeds or fails alone, inside a savepoint of its own, so a failure is what it would be
    // without the run. SQLite takes the write lock at the start, so that nobody else reads a
    // number counter between our read and our commit; under PostgreSQL the counter row stays
    // locked from our update to the commit. ODBC engines run statement by statement. False
    // only when the start or the commit failed.
    bool 一括開始();
    bool 一括終了();
    bool 一括中() const { return 一括; }

    // A write whose answer may come later: on PostgreSQL inside a batch it waits, to go to the
    // server with the writes behind it in one stream instead of a round trip each. The answers
    // are handed over in order before the connection does anything else (a query, a statement,
    // the commit), each with the result and the message the statement gives on its own.
    // Elsewhere the statement runs at once.
    using 結果受け = std::function<void(bool 成功, const 接続エラー& エラー)>;
    void 後で実行(const QString& 文, 結果受け 受け);
    // Sends the writes that wait and hands over their answers.
    void 待ちを送る();

    // One row of a long read, its columns by place in the order of the SELECT. Null reads as
    // "" and 0, as 記録集合 reads it.
    class 読取行 {
      public:
        virtual ~読取行() = default;
        virtual QString 文字列(int 列) const = 0;
        virtual 金額 金額値(int 列) const = 0;
        // Whether the column's text is the one given, without making a text of it.
        virtual bool 等しい(int 列, const QString& 値) const { return 文字列(列) == 値; }
    };
    // Hands every row of a query in turn to the receiver, which answers False to stop. On
    // SQLite outside a batch the rows come straight from the engine, so that a long read costs
    // no Qt value per field. True when the statement ran, an empty result included; a statement
    // the engine refuses fails with the error 検索 gives.
    using 行受け = std::function<bool(const 読取行& 行)>;
    bool 逐次検索(const QString& 文, const 行受け& 受け);

    const 接続エラー& 最終エラー() const { return エラー; }
    SQL方言 方言() const { return 変換先; }
    QSqlDatabase 生接続() const;

  private:
    void エラー記録(const QSqlError& e);
    // PostgreSQL: what the client library says of a connection the server has dropped, in the
    // words Qt's driver uses; empty while it stands.
    QString 切れた接続の説明() const;
    bool 文実行(QSqlQuery& q, const QString& 文);
    bool 制御文(const QString& 文);
    bool 制御文群(const QString& 文);  // a message of several commands, each one checked
    bool 一括内の文(QSqlQuery& q, const QString& 文);
    // The statement as the engine gets it, translated and checked to be one statement; false
    // with a syntax error otherwise.
    bool 一文に(const QString& 文, QString& 単文);
    bool 単文実行(const QString& 単文);
    // SQLite: the statement's rows from the engine itself; nullopt when it could not be
    // prepared there, for the usual path to run it and give its error.
    std::optional<bool> 直接読む(const QString& 単文, const 行受け& 受け);

    struct 待ち文 {
        QString 単文;
        結果受け 受け;
        std::optional<接続エラー> 事前エラー;  // refused before reaching the server
        std::optional<引数付き文> 引数;        // the same with its values as parameters
        // Bound to fail at the server: it goes alone, so that the stream before it stands.
        bool 単独() const { return 事前エラー || (引数 && 引数->必ず失敗()); }
    };
    // PostgreSQL: sends the statements [始め, 終わり) as one stream and answers 終わり when they
    // all ran. Otherwise the stream is undone and the answer is the statement that failed, or
    // 始め when the stream could not go. The last may be one bound to fail: its own answer is
    // given in 答え.
    // With 確定 the stream that closes the writes ends with the commit, and 確定 tells
    // whether it went and how it ended.
    struct 確定 {
        bool 送った = false;
        std::optional<接続エラー> 失敗;
    };
    qsizetype 流して送る(const std::vector<待ち文>& 列, qsizetype 始め, qsizetype 終わり,
                         std::pair<bool, 接続エラー>& 答え, 確定* 確定付き);
    void 待ちを流す(確定* 確定付き);

    QString 接続名;
    SQL方言 変換先 = SQL方言::SQLite;
    接続エラー エラー;
    bool 一括 = false;
    bool 解放待ち = false;  // SQLite: the savepoint of a query whose rows may still be coming
    std::vector<待ち文> 待ち;
    // PostgreSQL: the writes prepared on this connection, by text and parameter types, and the
    // number of the last name given.
    QHash<QByteArray, QByteArray> 用意済み;
    int 用意番号 = 0;
};
