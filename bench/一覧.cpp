#include <QElapsedTimer>
#include <QSqlQuery>
#include <QSqlRecord>
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

#include "common/試験用ツリー.h"
#include "dataenv/SQL方言変換.h"
#include "dataenv/データ環境.h"
#include "dataenv/人事連携.h"
#include "lists/一覧画面集.h"
#include "screen/frm紺碧帳.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

namespace {

// One list's search on one engine: rows shown and read raw, and the medians.
struct 一覧結果 {
    int 行数 = 0, 生行数 = 0;
    double 画面 = 0, 生 = 0, 比 = 0;
    size_t 回数 = 0;
};
// Per list in the order measured, per engine (SQLite, PostgreSQL).
using 結果表 = std::vector<std::pair<std::string, std::array<std::optional<一覧結果>, 2>>>;

// The same statement read raw as the engine gets it, in its own dialect and with the window's
// limit of rows, every column of up to 1000 rows as text.
double 直接(データ接続& 接続, const QString& 文, int 上限, int& 件数) {
    QElapsedTimer t;
    t.start();
    QSqlQuery q(接続.生接続());
    q.setForwardOnly(true);
    件数 = 0;
    const QString 訳 = SQL方言変換(文, 接続.方言());
    if (q.exec(上限 > 0 ? 行数を限る(訳, 上限, 接続.方言()) : 訳)) {
        const int 列数 = q.record().count();
        qsizetype 長さ = 0;
        while (件数 < 1000 && q.next()) {
            for (int c = 0; c < 列数; ++c) 長さ += q.value(c).toString().size();
            ++件数;
        }
        if (長さ < 0) std::printf("?\n");
    }
    return ミリ秒(t);
}

// Sixty turns: a single slow turn on a busy machine moves a median of few. A search that takes
// seconds stops after five turns once twenty seconds have gone.
一覧結果 測る(一覧画面& 窓, const QString& 釦, データ接続& 接続) {
    std::vector<double> 画面, 生, 比;
    一覧結果 r;
    QElapsedTimer 全体;
    全体.start();
    for (int i = 0; i < 60 && (i < 5 || 全体.elapsed() < 20000); ++i) {
        QElapsedTimer t;
        t.start();
        窓.画面.操作_クリック(窓.画面(釦));
        画面.push_back(ミリ秒(t));
        r.行数 = static_cast<int>(窓.一覧().項目.size());
        生.push_back(直接(接続, 窓.検索SQL, 窓.行上限(), r.生行数));
        比.push_back(画面.back() / 生.back());
    }
    r.回数 = 画面.size();
    r.画面 = 中央値(画面);
    r.生 = 中央値(生);
    r.比 = 中央値(比);
    return r;
}

void 記録(結果表& 表, const char* 名前, int 機関, const 一覧結果& r) {
    auto it = std::find_if(表.begin(), 表.end(), [&](const auto& e) { return e.first == 名前; });
    if (it == 表.end()) it = 表.insert(表.end(), {名前, {}});
    it->second[機関] = r;
}

// The company's lists on the million slips of the tree at 根.
void 伝票の一覧(const QString& 根, int 機関, 結果表& 表) {
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2024, 2, 15), QTime(10, 0, 0));
    出金セッション s(基盤);
    if (!会社を開く(s, 根)) return;
    {
        frm紺碧帳 f(s);
        一覧画面集 集(s, f.画面);
        データ接続& 接続 = s.データ.接続().業務DB();

        一覧画面& 担当者 = 集(u"wnd担当者一覧"_qs);
        担当者.読込();
        担当者.画面.操作_入力(担当者.画面(u"在籍区分"_qs), u"2"_qs);
        記録(表, "staff list", 機関, 測る(担当者, u"btn_複合検索"_qs, 接続));

        一覧画面& 部門 = 集(u"wnd部門一覧"_qs);
        部門.読込();
        記録(表, "department list", 機関, 測る(部門, u"btn_画面クリア"_qs, 接続));

        // Opened from a slip of the last day: the year before it.
        一覧画面& 番号 = 集(u"wnd出金No一覧"_qs);
        f.画面.状態.一覧.条件 = u"T出金.番号基準日付 <> '' AND T出金.出金日付 >= '20230215'"_qs;
        番号.読込();
        記録(表, "slip No list", 機関, 測る(番号, u"btn_複合検索"_qs, 接続));

        一覧画面& 摘要 = 集(u"wnd出金摘要一覧"_qs);
        摘要.読込();
        記録(表, "description list, last 3 months", 機関, 測る(摘要, u"btn_複合検索"_qs, 接続));
        摘要.画面.操作_クリック(摘要.画面(u"opb_期間"_qs, 4));
        記録(表, "description list, all", 機関, 測る(摘要, u"btn_複合検索"_qs, 接続));
    }
    s.データ.接続().接続終了();
}

// The lists of the HR system's database, on the sample data of a tree with the link: its
// general database and the HR one on PostgreSQL when given, else SQLite files.
void 人事の一覧(const QString& PG, const QString& 人事PG, int 機関, 結果表& 表) {
    計測用ツリー 木(PG, true, 人事PG);
    if (!木.作成済み) return;
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 0, 0));
    出金セッション s(基盤);
    if (!会社を開く(s, 木.根())) return;
    s.白樺連携フラグ = s.データ.人事連携選択(u"白樺"_qs) && s.データ.人事連携開始();
    if (!s.白樺連携フラグ) return;
    {
        frm紺碧帳 f(s);
        一覧画面集 集(s, f.画面);
        データ接続& 接続 = s.データ.接続().連携先()->業務接続;

        // Every status: the last position of the class list.
        一覧画面& 社員 = 集(u"wnd社員一覧"_qs);
        社員.読込();
        社員.画面.操作_入力(社員.画面(u"在籍区分"_qs),
                            QString::number(社員.画面(u"在籍区分"_qs).Max));
        記録(表, "employee list (HR)", 機関, 測る(社員, u"btn_複合検索"_qs, 接続));

        // As the entry screen opens it.
        一覧画面& 申請 = 集(u"wnd出張申請No一覧"_qs);
        f.画面.状態.一覧.条件 = u"T出張申請.番号基準日付 <> ''"_qs;
        申請.読込();
        記録(表, "trip application list (HR)", 機関, 測る(申請, u"btn_複合検索"_qs, 接続));
    }
    s.データ.人事連携終了();
    s.データ.接続().接続終了();
}

void 表示(const 結果表& 表) {
    const char* 機関名[] = {"SQLite", "PostgreSQL"};
    for (const auto& [名前, 行] : 表) {
        std::printf("%s\n  %-12s %6s %8s %14s %14s %10s\n", 名前.c_str(), "engine", "rows",
                    "raw rows", "press to rows", "same raw", "to raw");
        for (int e = 0; e < 2; ++e) {
            if (!行[e]) continue;
            const 一覧結果& r = *行[e];
            std::printf("  %-12s %6d %8d %11.3f ms %11.3f ms %9.2fx  (medians of %zu)\n", 機関名[e],
                        r.行数, r.生行数, r.画面, r.生, r.比, r.回数);
        }
        if (行[0] && 行[1]) {
            std::printf("  %-12s %15s %11.1fx %13.1fx\n", "PG/SQLite", "",
                        行[1]->画面 / 行[0]->画面, 行[1]->生 / 行[0]->生);
        }
    }
    std::fflush(stdout);
}

}  // namespace

// Each list window's search, from the button press to the rows in the model, against the same
// statement read raw: the company's lists on 1 million slips, the HR lists on the HR system's
// sample data; on SQLite, and on the PostgreSQL server of KONPEKI_TEST_PG when one is given.
void 一覧計測() {
    const QString 根 = 大量伝票の木(1000000);
    if (根.isEmpty()) return;
    const QString PG根 = 大量伝票のPostgreSQL木(1000000);
    if (!PG根.isEmpty()) 大量伝票照合(1000000, 根, PG根);
    結果表 表;
    伝票の一覧(根, 0, 表);
    人事の一覧({}, {}, 0, 表);
    if (!PG根.isEmpty()) {
        伝票の一覧(PG根, 1, 表);
        試験用PostgreSQL 自社, 人事;
        人事の一覧(自社.接続情報(), 人事.接続情報(), 1, 表);
    }
    表示(表);
}
