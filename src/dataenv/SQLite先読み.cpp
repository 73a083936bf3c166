#include "dataenv/SQLite先読み.h"

namespace {

// Rows per block, and blocks: a few hundred kilobytes in all, and few hand-overs.
constexpr std::size_t 一束の行数 = 1024;
constexpr std::size_t 束の数 = 3;

}  // namespace

QString SQLite先読み::行::文字列(int 列) const {
    const 値& v = b.値群[先頭 + 列];
    switch (v.種類) {
        case SQLITE_NULL:
            return {};
        case SQLITE_INTEGER:
            return QString::number(v.整数);
        default:
            return 文字(v).toString();
    }
}

金額 SQLite先読み::行::金額値(int 列) const {
    const 値& v = b.値群[先頭 + 列];
    switch (v.種類) {
        case SQLITE_NULL:
            return 金額();
        case SQLITE_INTEGER:
            return 金額の整数読込(v.整数);
        default:
            return 金額の文字列読込(文字(v).toString());
    }
}

bool SQLite先読み::行::等しい(int 列, const QString& 値) const {
    const SQLite先読み::値& v = b.値群[先頭 + 列];
    if (v.種類 == SQLITE_INTEGER) return 文字列(列) == 値;
    return QAnyStringView::equal(文字(v), 値);  // Null is the empty text
}

SQLite先読み::SQLite先読み(sqlite3_stmt* s) : s(s), 列数_(sqlite3_column_count(s)), 束群(束の数) {
    for (束& b : 束群) {
        b.値群.reserve(一束の行数 * static_cast<std::size_t>(列数_));
        空き.push_back(&b);
    }
    読み手 = std::thread([this] { 読む(); });
}

SQLite先読み::~SQLite先読み() {
    終える();
}

void SQLite先読み::読む() {
    for (;;) {
        束* b = nullptr;
        {
            std::unique_lock<std::mutex> l(鍵);
            合図.wait(l, [this] { return !空き.empty() || やめる; });
            if (やめる) break;
            b = 空き.front();
            空き.pop_front();
        }
        b->値群.clear();
        b->文字.clear();
        int rc = SQLITE_ROW;
        for (std::size_t n = 0; n < 一束の行数 && (rc = sqlite3_step(s)) == SQLITE_ROW; ++n) {
            for (int c = 0; c < 列数_; ++c) {
                値 v;
                v.種類 = sqlite3_column_type(s, c);
                if (v.種類 == SQLITE_INTEGER) {
                    v.整数 = sqlite3_column_int64(s, c);
                } else if (v.種類 != SQLITE_NULL) {
                    const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(s, c));
                    v.長さ = static_cast<std::size_t>(sqlite3_column_bytes(s, c));
                    v.始め = b->文字.size();
                    if (p != nullptr) b->文字.append(p, v.長さ);
                }
                b->値群.push_back(v);
            }
        }
        std::lock_guard<std::mutex> l(鍵);
        if (!b->値群.empty()) {
            満.push_back(b);
        } else {
            空き.push_back(b);
        }
        if (rc != SQLITE_ROW) {
            結果 = rc;
            読み終わり = true;
        }
        合図.notify_all();
        if (読み終わり) return;
    }
    std::lock_guard<std::mutex> l(鍵);
    読み終わり = true;
    合図.notify_all();
}

const SQLite先読み::束* SQLite先読み::次() {
    std::unique_lock<std::mutex> l(鍵);
    if (手元 != nullptr) {
        空き.push_back(手元);
        手元 = nullptr;
        合図.notify_all();
    }
    合図.wait(l, [this] { return !満.empty() || 読み終わり; });
    if (満.empty()) return nullptr;
    手元 = 満.front();
    満.pop_front();
    return 手元;
}

int SQLite先読み::終える() {
    {
        std::lock_guard<std::mutex> l(鍵);
        やめる = true;
    }
    合図.notify_all();
    if (読み手.joinable()) 読み手.join();
    return 結果;
}
