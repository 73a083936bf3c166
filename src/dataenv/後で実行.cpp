#include "dataenv/QPSQLの文言.h"
#include "dataenv/libpqの呼び口.h"
#include "dataenv/データ接続.h"
#include "dataenv/ドライバの手.h"
#include "dataenv/流し送り.h"

namespace {

// A stream longer than this is cut, so that neither side's buffer fills while the other waits.
constexpr qsizetype 一度に送る最大 = 200;

// The driver's connection with the library calls that go with it; both null when either is not
// at hand, and every statement then goes on its own.
struct 生の接続 {
    const libpqの呼び口* pq = nullptr;
    PGconn* c = nullptr;
};
生の接続 生ハンドル(const QSqlDatabase& db) {
    const libpqの呼び口* pq = libpqの呼び口を得る();
    if (pq == nullptr) return {};
    // Qt 6 names the type by the structure behind libpq's typedef.
    PGconn* c = ドライバの手<PGconn>(db, {"PGconn*", "pg_conn*"});
    return c == nullptr ? 生の接続{} : 生の接続{pq, c};
}

}  // namespace

QString データ接続::切れた接続の説明() const {
    if (変換先 != SQL方言::PostgreSQL || !QSqlDatabase::contains(接続名)) return {};
    const auto [pq, c] = 生ハンドル(生接続());
    if (c == nullptr || pq->PQstatus(c) == CONNECTION_OK) return {};
    return QPSQLの説明(QString::fromUtf8(pq->PQerrorMessage(c)), {});
}

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
    待ちを流す(nullptr);
}

void データ接続::待ちを流す(確定* 確定付き) {
    if (待ち.empty()) return;
    std::vector<待ち文> 列;
    列.swap(待ち);
    const auto 数 = static_cast<qsizetype>(列.size());
    std::vector<std::pair<bool, 接続エラー>> 結果(列.size(), {true, 接続エラー{}});
    for (qsizetype i = 0; i < 数;) {
        qsizetype 終わり = i;
        while (終わり < 数 && !列[終わり].単独()) ++終わり;
        // One that the server is bound to refuse ends the stream, in a part of its own.
        const bool 単独を含む = 終わり < 数 && !列[終わり].事前エラー;
        if (単独を含む) ++終わり;
        const qsizetype 予定 = 終わり;
        // A stream with a failure in it is undone whole; it goes again up to that statement.
        while (終わり > i) {
            // The batch's commit goes with the stream that ends its writes.
            確定* 確定先 = 終わり == 数 && !列[終わり - 1].単独() ? 確定付き : nullptr;
            const qsizetype 失敗 = 流して送る(列, i, 終わり, 結果[終わり - 1], 確定先);
            if (失敗 == 終わり) break;
            終わり = 失敗;
        }
        i = 終わり;
        if (i == 数 || (i == 予定 && 単独を含む)) continue;
        // The statement where the stream stopped runs alone, as any statement of a batch does,
        // so its result and its message are what they are without the stream.
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
// the server skips the rest, and the savepoint undoes what the stream did. A last statement
// bound to fail goes behind the others in a part of its own, and its answer comes back in 答え.
qsizetype データ接続::流して送る(const std::vector<待ち文>& 列, qsizetype 始め, qsizetype 終わり,
                                 std::pair<bool, 接続エラー>& 答え, 確定* 確定付き) {
    const auto [pq, c] = 生ハンドル(生接続());
    if (c == nullptr || pq->PQtransactionStatus(c) != PQTRANS_INTRANS ||
        !pq->PQenterPipelineMode(c)) {
        return 始め;
    }
    流し送り 流れ(*pq, c, 用意済み, 用意番号);
    const bool 単独あり = 列[終わり - 1].単独();
    const qsizetype 並ぶ終わり = 単独あり ? 終わり - 1 : 終わり;
    bool 送った = true;
    for (qsizetype i = 始め; 送った && i < 並ぶ終わり; ++i) {
        送った = 流れ.文を送る(i, 列[i].単文, 列[i].引数);
    }
    if (送った && 並ぶ終わり > 始め) {
        送った = 確定付き ? 流れ.確定して区切る(並ぶ終わり) : 流れ.区切る(並ぶ終わり);
    }
    if (送った && 単独あり) 送った = 流れ.単独で送る(並ぶ終わり, 列[並ぶ終わり].単文, 終わり);
    const 流し送り::答え a = 送った ? 流れ.受ける(終わり) : 流し送り::答え{};
    pq->PQexitPipelineMode(c);
    if (a.揃った && !a.失敗あり) {
        if (単独あり) 答え = {!a.単独の失敗, a.単独の失敗.value_or(接続エラー{})};
        if (確定付き) *確定付き = {a.確定した || a.確定の失敗, a.確定の失敗};
        return 終わり;
    }
    制御文(u"ROLLBACK TO SAVEPOINT konpeki_stmt"_qs);
    // A statement that failed is where the stream stops; one that did not answer is sent again.
    return a.失敗あり && a.失敗位置 < 終わり ? a.失敗位置 : 始め;
}
