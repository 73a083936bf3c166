#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

#include "dataenv/スキーマ適用.h"
#include "slip/出金セッション.h"
#include "検索.h"
#include "計測.h"

double 中央値(std::vector<double> 標本) {
    if (標本.empty()) return 0;
    std::sort(標本.begin(), 標本.end());
    return 標本[標本.size() / 2];
}

double 結果表示(const char* 名前, std::vector<double> 標本, const char* 単位) {
    std::sort(標本.begin(), 標本.end());
    std::printf("%-44s median %9.3f %s  (min %.3f .. max %.3f, n=%zu)\n", 名前,
                標本[標本.size() / 2], 単位, 標本.front(), 標本.back(), 標本.size());
    std::fflush(stdout);
    return 標本[標本.size() / 2];
}

bool 会社を開く(出金セッション& s, const QString& 根) {
    s.データ.接続().自身のフォルダ設定(根 + u"/prgbin"_qs);
    return s.データ.接続().SYB_OPEN() && s.データ.接続().DB_OPEN() &&
           s.データ.会社設定().基本項目読込();
}

計測用ツリー::計測用ツリー(const QString& PostgreSQL接続情報, bool 人事あり,
                           const QString& 人事PG) {
    ツリー作成指定 指定;
    指定.根 = 一時.path();
    指定.PostgreSQL接続情報 = PostgreSQL接続情報;
    if (人事あり) {
        指定.人事根 = 一時.path() + u"/白樺"_qs;
        指定.人事PostgreSQL接続情報 = 人事PG;
    }
    指定.スキーマフォルダ = QStringLiteral(KONPEKI_SCHEMA_DIR);
    指定.複写プログラム = {QStringLiteral(KONPEKI_PROGRAM), QStringLiteral(KONPEKI_REPORT_PROGRAM)};
    QString エラー;
    作成済み = ツリー作成(指定, エラー);
    if (!作成済み) QTextStream(stderr) << エラー << "\n";
}

// With names ("start", "data", "screen", "slips", "store", "delete", "lists", "report", "trip",
// "export", "memory", "datasets", "search") only those run; without, all.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList 名前 = app.arguments().mid(1);
    const std::pair<const char*, void (*)()> 計測[] = {
        {"start", 起動時間計測}, {"data", データ層計測},     {"screen", 入力画面計測},
        {"slips", 伝票計測},     {"store", 登録計測},        {"delete", 削除頁送り計測},
        {"lists", 一覧計測},     {"report", 帳票計測},       {"trip", 出張申請計測},
        {"export", 出力計測},    {"memory", 常駐メモリ計測}, {"datasets", 大量伝票照合計測},
        {"search", 検索計測}};
    for (const auto& [名, 処理] : 計測) {
        if (名前.isEmpty() || 名前.contains(QLatin1String(名))) 処理();
    }
    return 0;
}
