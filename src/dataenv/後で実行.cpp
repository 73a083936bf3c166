#include <libpq-fe.h>

#include <algorithm>

#include "dataenv/データ接続.h"
#include "dataenv/ドライバの手.h"

namespace {

// A stream longer than this is cut, so that neither side's buffer fills while the other waits.
constexpr qsizetype 一度に送る最大 = 200;
// Prepared writes a connection keeps at most; further kinds go as their text.
constexpr qsizetype 用意の上限 = 500;

// Qt 6 names the type by the structure behind libpq's typedef.
PGconn* 生ハンドル(const QSqlDatabase& db) {
    return ドライバの手<PGconn>(db, {"PGconn*", "pg_conn*"});
}

bool 送る(PGconn* c, const char* 文) {
    return PQsendQueryParams(c, 文, 0, nullptr, nullptr, nullptr, nullptr, 0) == 1;
}

bool 引数で送る(PGconn* c, const QByteArray& 名, const 引数付き文& a) {
    const std::vector<const char*> 値 = a.値();
    return PQsendQueryPrepared(c, 名.constData(), static_cast<int>(値.size()), 値.data(), nullptr,
                               nullptr, 0) == 1;
}

// A write prepared in a stream: its command, and what it is known by once the server has it.
struct 用意 {
    std::size_t 命令;
    QByteArray 鍵;
    QByteArray 名;
};

}  // namespace

void データ接続::後で実行(const QString& 文, 結果受け 受け) {
    if (!一括 || 変換先 != SQL方言::PostgreSQL || !開いている()) {
        const bool 成功 = 実行(文);
        受け(成功, エラー);
        return;
    }
    待ち文 w;
    w.受け = std::move(受け);
    if (!一文に(文, w.単文)) {
        w.事前エラー = エラー;
    } else if (引数付き文 a; 文を引数に(w.単文, a)) {
        w.引数 = std::move(a);
    }
    待ち.push_back(std::move(w));
    if (static_cast<qsizetype>(待ち.size()) >= 一度に送る最大) 待ちを送る();
}

void データ接続::待ちを送る() {
    if (待ち.empty()) return;
    std::vector<待ち文> 列;
    列.swap(待ち);
    const auto 数 = static_cast<qsizetype>(列.size());
    std::vector<std::pair<bool, 接続エラー>> 結果(列.size(), {true, 接続エラー{}});
    for (qsizetype i = 0; i < 数;) {
        qsizetype 終わり = i;
        while (終わり < 数 && !列[終わり].単独()) ++終わり;
        // A stream with a failure in it is undone whole; it goes again up to that statement.
        while (終わり > i) {
            const qsizetype 失敗 = 流して送る(列, i, 終わり);
            if (失敗 == 終わり) break;
            終わり = 失敗;
        }
        i = 終わり;
        if (i == 数) break;
        // The statement where the stream stopped, or one bound to fail, runs alone, as any
        // statement of a batch does, so its result and its message are what they are without
        // the stream.
        if (列[i].事前エラー) {
            結果[i] = {false, *列[i].事前エラー};
        } else {
            const bool 成功 = 単文実行(列[i].単文);
            結果[i] = {成功, 成功 ? 接続エラー{} : エラー};
        }
        ++i;
    }
    for (qsizetype i = 0; i < 数; ++i) {
        if (!結果[i].first) エラー = 結果[i].second;
        列[i].受け(結果[i].first, 結果[i].second);
    }
}

// The statements go one behind the other in the savepoint that stands for the next statement,
// and its release and the savepoint for the one after them close the stream. After a failure
// the server skips the rest, and the savepoint undoes what the stream did.
qsizetype データ接続::流して送る(const std::vector<待ち文>& 列, qsizetype 始め, qsizetype 終わり) {
    PGconn* c = 生ハンドル(生接続());
    if (c == nullptr || PQtransactionStatus(c) != PQTRANS_INTRANS || !PQenterPipelineMode(c)) {
        return 始め;
    }
    // The statement each command belongs to (終わり for the closing ones), and the statements
    // prepared in this stream.
    std::vector<qsizetype> 命令の文;
    std::vector<用意> 用意中;
    // The name a write of a kind goes by: prepared on this connection before, prepared
    // earlier in this stream, or a new one to prepare first; empty when no more kinds may be kept.
    const auto 名を決める = [&](const QByteArray& 鍵, bool& 新しい) -> QByteArray {
        新しい = false;
        if (const auto it = 用意済み.constFind(鍵); it != 用意済み.cend()) return *it;
        for (const 用意& u : 用意中) {
            if (u.鍵 == 鍵) return u.名;
        }
        if (用意済み.size() >= 用意の上限) return {};
        新しい = true;
        return "konpeki_i" + QByteArray::number(++用意番号);
    };
    bool 送った = true;
    for (qsizetype i = 始め; 送った && i < 終わり; ++i) {
        const std::optional<引数付き文>& a = 列[i].引数;
        QByteArray 鍵, 名;
        bool 新しい = false;
        if (a) {
            鍵 = a->鍵();
            名 = 名を決める(鍵, 新しい);
        }
        if (名.isEmpty()) {
            送った = 送る(c, 列[i].単文.toUtf8().constData());
        } else {
            if (新しい) {
                送った = PQsendPrepare(c, 名.constData(), a->型紙.constData(),
                                       static_cast<int>(a->型.size()), a->型.data()) == 1;
                用意中.push_back({命令の文.size(), 鍵, 名});
                命令の文.push_back(i);
            }
            送った = 送った && 引数で送る(c, 名, *a);
        }
        命令の文.push_back(i);
    }
    送った = 送った && 送る(c, "RELEASE SAVEPOINT konpeki_stmt") &&
             送る(c, "SAVEPOINT konpeki_stmt") && PQpipelineSync(c) == 1;
    命令の文.resize(命令の文.size() + 2, 終わり);
    // The answers come one per command, each followed by an empty one; the sync's ends them.
    std::size_t 番 = 0;
    qsizetype 失敗位置 = 終わり;
    bool 失敗あり = !送った, 同期 = false;
    while (送った && !同期 && PQstatus(c) == CONNECTION_OK) {
        PGresult* r = PQgetResult(c);
        if (r == nullptr) {
            ++番;
            continue;
        }
        const ExecStatusType 状態 = PQresultStatus(r);
        PQclear(r);
        if (状態 == PGRES_PIPELINE_SYNC) {
            同期 = true;
        } else if (状態 != PGRES_COMMAND_OK && 状態 != PGRES_TUPLES_OK && !失敗あり) {
            失敗あり = true;
            失敗位置 = 番 < 命令の文.size() ? std::min(命令の文[番], 終わり) : 終わり;
        } else if (状態 == PGRES_COMMAND_OK) {
            // A statement prepared stays for the session, whatever the transaction does.
            for (const 用意& u : 用意中) {
                if (u.命令 == 番) 用意済み.insert(u.鍵, u.名);
            }
        }
    }
    PQexitPipelineMode(c);
    if (!失敗あり && 同期) return 終わり;
    制御文(u"ROLLBACK TO SAVEPOINT konpeki_stmt"_qs);
    // A statement that failed is where the stream stops; one that did not answer is sent again.
    return 失敗あり && 失敗位置 < 終わり ? 失敗位置 : 始め;
}
