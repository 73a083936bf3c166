#include "dataenv/流し送り.h"

#include "dataenv/QPSQLの文言.h"

namespace {

// Prepared writes a connection keeps at most; further kinds go as their text.
constexpr qsizetype 用意の上限 = 500;

bool 送る(const libpqの呼び口& pq, PGconn* c, const char* 文) {
    return pq.PQsendQueryParams(c, 文, 0, nullptr, nullptr, nullptr, nullptr, 0) == 1;
}

bool 引数で送る(const libpqの呼び口& pq, PGconn* c, const QByteArray& 名, const 引数付き文& a) {
    const std::vector<const char*> 値 = a.値();
    return pq.PQsendQueryPrepared(c, 名.constData(), static_cast<int>(値.size()), 値.data(),
                                  nullptr, nullptr, 0) == 1;
}

// The failure as Qt's driver words it for a statement the server refused.
接続エラー 結果のエラー(const libpqの呼び口& pq, const PGresult* r) {
    const char* 状態 = pq.PQresultErrorField(r, PG_DIAG_SQLSTATE);
    const QString 番号 = QString::fromLatin1(状態 != nullptr ? 状態 : "");
    return {番号, QPSQLの説明(QString::fromUtf8(pq.PQresultErrorMessage(r)), 番号)};
}

}  // namespace

// The name a write of a kind goes by: prepared on this connection before, prepared earlier in
// this stream, or a new one to prepare first; empty when no more kinds may be kept.
QByteArray 流し送り::名を決める(const QByteArray& 鍵, bool& 新しい) {
    新しい = false;
    if (const auto it = 用意済み.constFind(鍵); it != 用意済み.cend()) return *it;
    for (const 用意& u : 用意中) {
        if (u.鍵 == 鍵) return u.名;
    }
    if (用意済み.size() >= 用意の上限) return {};
    新しい = true;
    return "konpeki_i" + QByteArray::number(++用意番号);
}

bool 流し送り::文を送る(qsizetype 文, const QString& 単文, const std::optional<引数付き文>& a) {
    QByteArray 鍵, 名;
    bool 新しい = false;
    if (a) {
        鍵 = a->鍵();
        名 = 名を決める(鍵, 新しい);
    }
    if (名.isEmpty()) return 命令(送る(pq, c, 単文.toUtf8().constData()), 文);
    if (新しい) {
        用意中.push_back({命令の文.size(), 鍵, 名});
        if (!命令(pq.PQsendPrepare(c, 名.constData(), a->型紙.constData(),
                                   static_cast<int>(a->型.size()), a->型.data()) == 1,
                  文)) {
            return false;
        }
    }
    return 命令(引数で送る(pq, c, 名, *a), 文);
}

bool 流し送り::区切る(qsizetype 終わり) {
    ++同期数;
    return 命令(送る(pq, c, "RELEASE SAVEPOINT konpeki_stmt"), 終わり) &&
           命令(送る(pq, c, "SAVEPOINT konpeki_stmt"), 終わり) && pq.PQpipelineSync(c) == 1;
}

bool 流し送り::確定して区切る(qsizetype 終わり) {
    ++同期数;
    確定命令 = 命令の文.size();
    return 命令(送る(pq, c, "COMMIT"), 終わり) && pq.PQpipelineSync(c) == 1;
}

bool 流し送り::単独で送る(qsizetype 文, const QString& 単文, qsizetype 終わり) {
    単独命令 = 命令の文.size();
    if (!命令(送る(pq, c, 単文.toUtf8().constData()), 文) || !区切る(終わり)) return false;
    ++同期数;
    return 命令(送る(pq, c, "ROLLBACK TO SAVEPOINT konpeki_stmt"), 終わり) &&
           pq.PQpipelineSync(c) == 1;
}

// The answers come one per command, each followed by an empty one, and one per sync.
流し送り::答え 流し送り::受ける(qsizetype 終わり) {
    答え a;
    a.失敗位置 = 終わり;
    std::size_t 番 = 0;
    int 同期 = 0;
    while (同期 < 同期数 && pq.PQstatus(c) == CONNECTION_OK) {
        PGresult* r = pq.PQgetResult(c);
        if (r == nullptr) {
            ++番;
            continue;
        }
        const ExecStatusType 状態 = pq.PQresultStatus(r);
        if (状態 == PGRES_PIPELINE_SYNC) {
            ++同期;
        } else if (状態 == PGRES_COMMAND_OK || 状態 == PGRES_TUPLES_OK) {
            a.確定した = a.確定した || 番 == 確定命令;
            // A statement prepared stays for the session, whatever the transaction does.
            for (const 用意& u : 用意中) {
                if (u.命令 == 番) 用意済み.insert(u.鍵, u.名);
            }
        } else if (番 == 単独命令) {
            // After a failure before it, it ran in an undone transaction and says nothing.
            if (!a.失敗あり) a.単独の失敗 = 結果のエラー(pq, r);
        } else if (番 == 確定命令) {
            // Skipped after a failure in the stream, it is sent again once that is dealt with.
            if (状態 != PGRES_PIPELINE_ABORTED) a.確定の失敗 = 結果のエラー(pq, r);
        } else if (状態 != PGRES_PIPELINE_ABORTED && !a.失敗あり) {
            a.失敗あり = true;
            a.失敗位置 = 番 < 命令の文.size() ? std::min(命令の文[番], 終わり) : 終わり;
        }
        pq.PQclear(r);
    }
    a.揃った = 同期 == 同期数;
    return a;
}
