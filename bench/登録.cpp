#include <QElapsedTimer>
#include <optional>
#include <utility>

#include "common/出金入力.h"
#include "common/試験用ツリー.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

namespace {

// The store of a new 15-line slip and of its correction within the sequence; the typing and the
// load before each are not timed. The two medians; none when the tree could not be opened.
std::optional<std::pair<double, double>> 登録計測(const QString& PostgreSQL接続情報,
                                                  const char* 新規名, const char* 修正名) {
    計測用ツリー 木(PostgreSQL接続情報);
    if (!木.作成済み) return {};
    台本プラットフォーム 基盤;
    出金セッション s(基盤);
    画面なし 画面;
    紺碧帳起動 起動(s, 画面);
    s.データ.接続().自身のフォルダ設定(木.根() + u"/prgbin"_qs);
    if (!起動.データベース開始() || !起動.ユーザ情報初期化()) return {};
    std::vector<double> 新規, 修正;
    for (int i = 0; i < 200; ++i) {
        s.出金情報初期化();
        担当者入力(s, u"00003"_qs);
        for (int 行 = 1; 行 <= 最大行数; ++行) {
            明細入力(s, 3, 金額::円(100 * 行), u"支払先"_qs, u"摘要"_qs);
        }
        QElapsedTimer t;
        t.start();
        s.新規登録処理();
        新規.push_back(t.nsecsElapsed() / 1e6);

        const QString No = s.見出し.出金No;
        s.出金情報初期化();
        s.出金No確定(No);
        if (s.最終行 != 最大行数 - 1) std::printf("the stored slip did not load\n");
        t.start();
        s.修正登録処理();
        修正.push_back(t.nsecsElapsed() / 1e6);
    }
    const double 新規値 = 結果表示(新規名, 新規, "ms");
    const double 修正値 = 結果表示(修正名, 修正, "ms");
    起動.終了処理();
    return std::pair{新規値, 修正値};
}

}  // namespace

// On SQLite, and on the PostgreSQL server of KONPEKI_TEST_PG when one is given (run it with the
// server's durable defaults: scripts/pg-server start DIR PORT durable).
void 登録計測() {
    const auto 甲 = 登録計測(QString(), "store of a new 15-line slip (SQLite)",
                             "store of its correction (SQLite)");
    if (!試験用PostgreSQL::利用可能()) return;
    試験用PostgreSQL 庫;
    const auto 乙 = 登録計測(庫.接続情報(), "store of a new 15-line slip (PostgreSQL)",
                             "store of its correction (PostgreSQL)");
    if (!甲 || !乙) return;
    std::printf("%-44s %9.2f x\n", "new-slip store, PostgreSQL/SQLite", 乙->first / 甲->first);
    std::printf("%-44s %9.2f x\n", "correction store, PostgreSQL/SQLite", 乙->second / 甲->second);
    std::fflush(stdout);
}
