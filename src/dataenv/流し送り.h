#pragma once

#include <QByteArray>
#include <QHash>
#include <optional>
#include <vector>

#include "dataenv/libpqの呼び口.h"
#include "dataenv/データ接続.h"

// One stream of statements to PostgreSQL, sent in pipeline mode and then answered. The writes
// with plain values go as prepared statements; a kind the connection has not prepared yet is
// prepared in front of its first use. After a failure the server skips what follows up to the
// next sync.
class 流し送り {
  public:
    流し送り(const libpqの呼び口& pq, PGconn* c, QHash<QByteArray, QByteArray>& 用意済み,
             int& 用意番号)
        : pq(pq), c(c), 用意済み(用意済み), 用意番号(用意番号) {}

    // Statement 文 of the stream.
    bool 文を送る(qsizetype 文, const QString& 単文, const std::optional<引数付き文>& 引数);
    // The statements sent so far stand: their savepoint is released, the next one set, and a
    // sync ends the part.
    bool 区切る(qsizetype 終わり);
    // The statements sent so far stand, and with them the batch: a commit ends the part.
    bool 確定して区切る(qsizetype 終わり);
    // A statement the engine will refuse, in a part of its own, and then the savepoint undoes
    // it; should it succeed after all, it stands like any other.
    bool 単独で送る(qsizetype 文, const QString& 単文, qsizetype 終わり);

    struct 答え {
        bool 揃った = false;                   // every part answered
        bool 失敗あり = false;                 // a statement other than the one sent alone failed
        qsizetype 失敗位置 = 0;                // that statement, or 終わり for a closing command
        std::optional<接続エラー> 単独の失敗;  // the message of the one sent alone
        bool 確定した = false;                 // the commit sent with the stream succeeded
        std::optional<接続エラー> 確定の失敗;  // or failed, and the batch is undone
    };
    答え 受ける(qsizetype 終わり);

  private:
    bool 命令(bool 送った, qsizetype 文) {
        命令の文.push_back(文);
        return 送った;
    }
    QByteArray 名を決める(const QByteArray& 鍵, bool& 新しい);

    // A write prepared in the stream: its command, and what it is known by.
    struct 用意 {
        std::size_t 命令;
        QByteArray 鍵;
        QByteArray 名;
    };
    const libpqの呼び口& pq;
    PGconn* c;
    QHash<QByteArray, QByteArray>& 用意済み;
    int& 用意番号;
    std::vector<qsizetype> 命令の文;  // the statement each command belongs to
    std::vector<用意> 用意中;
    int 同期数 = 0;
    std::optional<std::size_t> 単独命令;
    std::optional<std::size_t> 確定命令;
};
