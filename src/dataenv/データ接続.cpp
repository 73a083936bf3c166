#include "dataenv/データ接続.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>

#include "dataenv/QPSQLの文言.h"
#include "dataenv/単文確認.h"

データ接続::データ接続(QString 用途)
    : 接続名(u"konpeki-"_qs + 用途 + u"-"_qs +
             QString::number(reinterpret_cast<quintptr>(this), 16)) {}

データ接続::~データ接続() {
    // Writes still waiting belong to a batch that is never committed; nobody is left for them.
    待ち.clear();
    閉じる();
}

QSqlDatabase データ接続::生接続() const {
    return QSqlDatabase::database(接続名, false);
}

bool データ接続::開いている() const {
    return QSqlDatabase::contains(接続名) && 生接続().isOpen();
}

void データ接続::エラー記録(const QSqlError& e) {
    エラー.番号 = e.nativeErrorCode().isEmpty() ? QString::number(static_cast<int>(e.type()))
                                                : e.nativeErrorCode();
    エラー.説明 = e.text();
    // Qt's driver says nothing of a statement on a connection the server dropped in a stream.
    if (エラー.説明.isEmpty()) エラー.説明 = 切れた接続の説明();
}

bool データ接続::開く(const 接続先& 先) {
    閉じる();
    エラー = {};
    static const char* const ドライバ[] = {"QSQLITE", "QPSQL", "QODBC"};
    QSqlDatabase db = QSqlDatabase::addDatabase(ドライバ[static_cast<int>(先.エンジン)], 接続名);
    switch (先.エンジン) {
        case 接続先::種類::SQLite:
            // A missing file is an error, as it was for the file engine; SQLite would make one.
            if (!QFileInfo(先.ファイル).isFile()) {
                エラー = {u"3044"_qs, u"ファイルが見つかりません: "_qs + 先.ファイル};
                return false;
            }
            変換先 = SQL方言::SQLite;
            db.setDatabaseName(先.ファイル);
            // A second user waits for a lock instead of failing.
            db.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=30000"_qs);
            break;
        case 接続先::種類::PostgreSQL:
            変換先 = SQL方言::PostgreSQL;
            db.setHostName(先.ホスト);
            if (先.ポート > 0) db.setPort(先.ポート);
            db.setDatabaseName(先.データベース名);
            db.setUserName(先.ユーザー);
            db.setPassword(先.パスワード);
            // A backslash in a plain literal stays a backslash, as the statement check reads it.
            db.setConnectOptions(u"connect_timeout=60;options=-cstandard_conforming_strings=on"_qs);
            break;
        case 接続先::種類::ODBC:
            変換先 = SQL方言::そのまま;
            db.setDatabaseName(先.ODBC接続文字列);
            db.setUserName(先.ユーザー);
            db.setPassword(先.パスワード);
            break;
    }
    if (!db.open()) {
        エラー記録(db.lastError());
        return false;
    }
    if (変換先 == SQL方言::SQLite) {
        // Opening is lazy in SQLite: read the catalogue once so that a file that is no
        // database fails here, and let readers and one writer work side by side.
        bool 読めた = false;
        {
            QSqlQuery q(db);
            読めた = q.exec(u"PRAGMA journal_mode=WAL"_qs) &&
                     (!先.同期は区切りごと || q.exec(u"PRAGMA synchronous=NORMAL"_qs)) &&
                     q.exec(u"SELECT count(*) FROM sqlite_master"_qs);
            if (!読めた) エラー記録(q.lastError());
        }
        if (!読めた) {
            // Nothing may hold the connection when it is removed.
            db = QSqlDatabase();
            閉じる();
            return false;
        }
    }
    return true;
}

void データ接続::閉じる() {
    待ちを送る();
    一括 = false;
    解放待ち = false;
    用意済み.clear();  // they end with the session
    if (!QSqlDatabase::contains(接続名)) return;
    {
        QSqlDatabase db = QSqlDatabase::database(接続名, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(接続名);
}

bool データ接続::検索(記録集合& 結果, const QString& 文, int 行上限) {
    結果.閉じる();
    待ちを送る();
    if (!開いている()) {
        エラー = {u"3704"_qs, u"接続が開かれていません。"_qs};
        return false;
    }
    QString 単文;
    if (!一文に(文, 単文)) return false;
    if (行上限 > 0) 単文 = 行数を限る(単文, 行上限, 変換先);
    結果.問合せ = std::make_unique<QSqlQuery>(生接続());
    結果.問合せ->setForwardOnly(true);
    // Numbers come as their decimal text, so money is never passed through a double.
    結果.問合せ->setNumericalPrecisionPolicy(QSql::HighPrecision);
    if (!文実行(*結果.問合せ, 単文)) {
        エラー記録(結果.問合せ->lastError());
        結果.閉じる();  // a failed statement has no columns: readers tell it from an empty result
        return false;
    }
    結果.MoveNext();
    return true;
}

bool データ接続::実行(const QString& 文) {
    待ちを送る();
    if (!開いている()) {
        エラー = {u"3704"_qs, u"接続が開かれていません。"_qs};
        return false;
    }
    QString 単文;
    if (!一文に(文, 単文)) return false;
    return 単文実行(単文);
}

bool データ接続::単文実行(const QString& 単文) {
    QSqlQuery q(生接続());
    if (!文実行(q, 単文)) {
        エラー記録(q.lastError());
        return false;
    }
    return true;
}

bool データ接続::一文に(const QString& 文, QString& 単文) {
    単文 = SQL方言変換(文, 変換先);
    const 単文判定 判定 = 単文確認(単文, 変換先);
    if (判定.単文()) {
        単文.truncate(判定.長さ);
        return true;
    }
    // The text goes on after its statement: refused as the engine refuses a broken statement.
    qsizetype 語末 = 判定.余り + 1;
    while (語末 < 単文.size() && (単文.at(語末).isLetterOrNumber() || 単文.at(語末) == u'_')) {
        ++語末;
    }
    const QString 語 = 単文.mid(判定.余り, 語末 - 判定.余り);
    switch (変換先) {
        case SQL方言::SQLite:
            エラー = {u"1"_qs,
                      u"near \""_qs + 語 + u"\": syntax error Unable to execute statement"_qs};
            break;
        case SQL方言::PostgreSQL:
            エラー = {u"42601"_qs,
                      QPSQLの説明(u"ERROR:  syntax error at or near \""_qs + 語 + u"\"\n"_qs,
                                  u"42601"_qs)};
            break;
        case SQL方言::そのまま:
            エラー = {u"42000"_qs, u"syntax error at or near \""_qs + 語 + u"\""_qs};
            break;
    }
    return false;
}

bool データ接続::制御文(const QString& 文) {
    QSqlQuery q(生接続());
    if (q.exec(文)) return true;
    エラー記録(q.lastError());
    return false;
}

bool データ接続::制御文群(const QString& 文) {
    QSqlQuery q(生接続());
    bool 成功 = q.exec(文);
    while (成功 && q.nextResult()) {
    }
    if (q.lastError().isValid()) {
        エラー記録(q.lastError());
        return false;
    }
    return 成功;
}

bool データ接続::文実行(QSqlQuery& q, const QString& 文) {
    if (!一括) return q.exec(文);
    if (変換先 == SQL方言::PostgreSQL) return 一括内の文(q, 文);
    if (解放待ち) 制御文(u"RELEASE SAVEPOINT konpeki_stmt"_qs);
    解放待ち = false;
    制御文(u"SAVEPOINT konpeki_stmt"_qs);
    if (q.exec(文)) {
        // A query's rows may still be read: its savepoint goes with the next statement.
        if (q.isSelect()) {
            解放待ち = true;
        } else {
            制御文(u"RELEASE SAVEPOINT konpeki_stmt"_qs);
        }
        return true;
    }
    // Undone alone: the run goes on, as it would after a failed statement of its own.
    制御文(u"ROLLBACK TO SAVEPOINT konpeki_stmt"_qs);
    制御文(u"RELEASE SAVEPOINT konpeki_stmt"_qs);
    return false;
}

// A server is a round trip away, so the statement and the savepoint for the next one go as one
// message; the savepoint it runs in was set by the message before. The statement comes first, so
// its result and its rows are the query's, and on its own line, so that a closing comment of the
// statement cannot swallow the commands behind it.
bool データ接続::一括内の文(QSqlQuery& q, const QString& 文) {
    if (q.exec(文 + u"\n;RELEASE SAVEPOINT konpeki_stmt;SAVEPOINT konpeki_stmt"_qs)) return true;
    // The server skipped the rest of the message, and the savepoint stands for the next one.
    制御文(u"ROLLBACK TO SAVEPOINT konpeki_stmt"_qs);
    // A statement that stopped short or left a quote or a comment open read on into the commands
    // behind it, and the engine's message shows them: it runs again alone, for its own message.
    const QString 説明 = q.lastError().databaseText();
    if (!説明.contains(u"konpeki_stmt"_qs) && !説明.contains(u"\";\""_qs)) return false;
    if (q.exec(文)) {
        制御文(u"RELEASE SAVEPOINT konpeki_stmt;SAVEPOINT konpeki_stmt"_qs);
        return true;
    }
    制御文(u"ROLLBACK TO SAVEPOINT konpeki_stmt"_qs);
    return false;
}

bool データ接続::一括開始() {
    待ちを送る();
    if (一括 || !開いている() || 変換先 == SQL方言::そのまま) return true;
    if (変換先 == SQL方言::SQLite) {
        一括 = 制御文(u"BEGIN IMMEDIATE"_qs);
        return 一括;
    }
    // PostgreSQL reads a counter without waiting for the batch that has changed its row, and the
    // update behind the read then writes the same number again; a history number has nothing in
    // R出金 to be checked against. So batches take one lock at their start and run one after
    // another, as BEGIN IMMEDIATE makes them on SQLite; the lock ends with the batch. The first
    // statement's savepoint comes in the same message.
    一括 = 制御文群(u"BEGIN;SELECT pg_advisory_xact_lock(16810);SAVEPOINT konpeki_stmt"_qs);
    if (!一括) {
        const 接続エラー 失敗 = エラー;
        制御文(u"ROLLBACK"_qs);
        エラー = 失敗;
    }
    return 一括;
}

bool データ接続::一括終了() {
    // On PostgreSQL the commit goes with the last writes, when they all stand.
    確定 送った確定;
    待ちを流す(一括 && 変換先 == SQL方言::PostgreSQL ? &送った確定 : nullptr);
    if (!一括) return true;
    一括 = false;
    解放待ち = false;
    if (送った確定.送った ? !送った確定.失敗 : 制御文(u"COMMIT"_qs)) return true;
    const 接続エラー 失敗 = 送った確定.失敗.value_or(エラー);
    制御文(u"ROLLBACK"_qs);
    エラー = 失敗;
    return false;
}
