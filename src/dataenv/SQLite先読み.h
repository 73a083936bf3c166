#pragma once

#include <sqlite3.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "dataenv/データ接続.h"

// The rows of a prepared SQLite statement, stepped on a second thread and copied into blocks
// that the caller's thread takes in order: the engine's walk and the caller's work on the rows
// before it go on at once. The blocks are reused, so that neither thread allocates per row.
// The connection belongs to the second thread until 終える; nobody else may use it meanwhile.
class SQLite先読み {
  public:
    // One value as the engine gave it: Null, a whole number, or a text (any other number as
    // its text) in the block's store of texts.
    struct 値 {
        int 種類 = SQLITE_NULL;
        qint64 整数 = 0;
        std::size_t 始め = 0;
        std::size_t 長さ = 0;
    };
    struct 束 {
        std::vector<値> 値群;  // row by row, the columns of each in order
        std::string 文字;
    };
    // A row of a block, read as the Qt driver reads it with numbers at high precision.
    class 行 : public データ接続::読取行 {
      public:
        行(const 束& b, std::size_t 先頭) : b(b), 先頭(先頭) {}
        QString 文字列(int 列) const override;
        金額 金額値(int 列) const override;
        bool 等しい(int 列, const QString& 値) const override;

      private:
        QUtf8StringView 文字(const 値& v) const {
            return {b.文字.data() + v.始め, static_cast<qsizetype>(v.長さ)};
        }
        const 束& b;
        std::size_t 先頭;
    };

    explicit SQLite先読み(sqlite3_stmt* s);
    ~SQLite先読み();
    SQLite先読み(const SQLite先読み&) = delete;
    SQLite先読み& operator=(const SQLite先読み&) = delete;

    int 列数() const { return 列数_; }
    // The next block of rows, or null when none is left; the previous one goes back for reuse.
    const 束* 次();
    // Stops the read if it is still going, and answers the last step's result: SQLITE_DONE
    // when every row came.
    int 終える();

  private:
    void 読む();

    sqlite3_stmt* s;
    const int 列数_;
    std::mutex 鍵;
    std::condition_variable 合図;
    std::deque<束*> 満;    // read, waiting for the caller
    std::deque<束*> 空き;  // for the reader to fill
    束* 手元 = nullptr;    // the caller's
    std::vector<束> 束群;
    bool やめる = false;
    bool 読み終わり = false;
    int 結果 = SQLITE_DONE;
    std::thread 読み手;
};
