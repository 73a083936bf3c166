#include <memory>

#include "dataenv/SQLite先読み.h"
#include "dataenv/データ接続.h"
#include "dataenv/ドライバの手.h"

namespace {

// A row of the usual record set, for the engines read through Qt.
class 記録集合行 : public データ接続::読取行 {
  public:
    explicit 記録集合行(const 記録集合& rs) : rs(rs) {}
    QString 文字列(int 列) const override { return rs.文字列(列); }
    金額 金額値(int 列) const override { return rs.金額値(列); }

  private:
    const 記録集合& rs;
};

}  // namespace

bool データ接続::逐次検索(const QString& 文, const 行受け& 受け) {
    if (変換先 == SQL方言::SQLite && !一括 && 開いている()) {
        QString 単文;
        if (!一文に(文, 単文)) return false;
        if (const std::optional<bool> 結果 = 直接読む(単文, 受け)) return *結果;
    }
    記録集合 rs;
    if (!検索(rs, 文)) return false;
    const 記録集合行 行(rs);
    for (; !rs.EOFか(); rs.MoveNext()) {
        if (!受け(行)) break;
    }
    rs.閉じる();
    return true;
}

std::optional<bool> データ接続::直接読む(const QString& 単文, const 行受け& 受け) {
    sqlite3* db = ドライバの手<sqlite3>(生接続(), {"sqlite3*"});
    sqlite3_stmt* 生文 = nullptr;
    if (db != nullptr) {
        sqlite3_prepare16_v2(db, 単文.utf16(), static_cast<int>(単文.size() * 2), &生文, nullptr);
    }
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> s(生文, sqlite3_finalize);
    // Anything but a query goes the usual way, which also gives an unprepared one its error.
    if (s == nullptr || sqlite3_column_count(s.get()) == 0) return std::nullopt;
    SQLite先読み 先読み(s.get());
    const auto 列数 = static_cast<std::size_t>(先読み.列数());
    bool 続ける = true;
    for (const SQLite先読み::束* b = 先読み.次(); 続ける && b != nullptr; b = 先読み.次()) {
        for (std::size_t i = 0; 続ける && i < b->値群.size(); i += 列数) {
            続ける = 受け(SQLite先読み::行(*b, i));
        }
    }
    const int rc = 先読み.終える();
    if (rc != SQLITE_DONE) {
        エラー = {QString::number(rc),
                  QString::fromUtf8(sqlite3_errmsg(db)) + u" Unable to fetch row"_qs};
    }
    return rc == SQLITE_DONE;
}
