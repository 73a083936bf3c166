#include "検索.h"

#include <QElapsedTimer>
#include <QSqlQuery>
#include <QSqlRecord>
#include <cstdio>
#include <functional>

#include "audit/wnd出金検索.h"
#include "audit/wnd出金検索_部品名.h"
#include "dataenv/SQL方言変換.h"
#include "dataenv/データ環境.h"
#include "screen/frm紺碧帳.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

namespace {

using 欄 = 出金検索部品;

// One search: its name and the conditions the operator types.
struct 検索例 {
    const char* 名前;
    std::function<void(wnd出金検索&)> 条件;
};

void 打つ(wnd出金検索& w, 部品名 名, const QString& 文字列) {
    w.画面.操作_入力(w.画面(名), 文字列);
    w.画面.操作_Tab();
}

void 一月の範囲(wnd出金検索& w, const QString& 支払先) {
    打つ(w, 欄::出金日付自, u"20200601"_qs);
    打つ(w, 欄::出金日付至, u"20200630"_qs);
    打つ(w, 欄::合計金額自, u"10000"_qs);
    打つ(w, 欄::合計金額至, u"20000"_qs);
    打つ(w, 欄::支払先, 支払先);
}

const 検索例 検索例群[] = {
    {"a month, total 10000-20000, payee (typical)",
     [](wnd出金検索& w) { 一月の範囲(w, u"支払先"_qs); }},
    {"the same, a payee nobody has", [](wnd出金検索& w) { 一月の範囲(w, u"該当なし"_qs); }},
    {"line amount 5000-5500, all dates",
     [](wnd出金検索& w) {
         打つ(w, 欄::明細金額自, u"5000"_qs);
         打つ(w, 欄::明細金額至, u"5500"_qs);
     }},
    {"staff 00105, with documents",
     [](wnd出金検索& w) {
         打つ(w, 欄::担当者コード, u"00105"_qs);
         w.画面.操作_フォーカス(w.画面(欄::chb_付属書類あり));
         w.画面.操作_クリック(w.画面(欄::chb_付属書類あり));
     }},
    {"with documents, all dates",
     [](wnd出金検索& w) {
         w.画面.操作_フォーカス(w.画面(欄::chb_付属書類あり));
         w.画面.操作_クリック(w.画面(欄::chb_付属書類あり));
     }},
    {"deleted slips, all dates",
     [](wnd出金検索& w) {
         w.画面.操作_フォーカス(w.画面(欄::chb_削除済));
         w.画面.操作_クリック(w.画面(欄::chb_削除済));
     }},
};

// The statement as the engine gets it, read raw: every column of up to 1000 rows as text.
double 直接(データ接続& 接続, const QString& 文, int& 件数) {
    QElapsedTimer t;
    t.start();
    QSqlQuery q(接続.生接続());
    q.setForwardOnly(true);
    件数 = 0;
    const QString 訳 = 行数を限る(SQL方言変換(文, 接続.方言()), 出金検索上限, 接続.方言());
    if (q.exec(訳)) {
        const int 列数 = q.record().count();
        qsizetype 長さ = 0;
        while (件数 < 出金検索上限 && q.next()) {
            for (int c = 0; c < 列数; ++c) 長さ += q.value(c).toString().size();
            ++件数;
        }
        if (長さ < 0) std::printf("?\n");
    }
    return ミリ秒(t);
}

void 測る(const QString& 根, const char* 機関) {
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2024, 2, 15), QTime(10, 0, 0));
    出金セッション s(基盤);
    if (!会社を開く(s, 根)) return;
    {
        frm紺碧帳 f(s);
        wnd出金検索 w(s, f.画面);
        データ接続& 接続 = s.データ.接続().業務DB();
        for (const 検索例& 例 : 検索例群) {
            w.読込();
            例.条件(w);
            std::vector<double> 画面, 生;
            int 行数 = 0, 生行数 = 0;
            QElapsedTimer 全体;
            全体.start();
            // Sixty turns, or five once a slow search has taken twenty seconds.
            for (int i = 0; i < 60 && (i < 5 || 全体.elapsed() < 20000); ++i) {
                QElapsedTimer t;
                t.start();
                w.画面.操作_クリック(w.画面(欄::btn_検索));
                画面.push_back(ミリ秒(t));
                行数 = static_cast<int>(w.一覧().項目.size());
                生.push_back(直接(接続, w.検索SQL, 生行数));
            }
            std::printf(
                "%-46s %-10s %5d rows  press to rows %9.3f ms  raw %9.3f ms  (medians of %zu)\n",
                例.名前, 機関, 行数, 中央値(画面), 中央値(生), 画面.size());
            std::fflush(stdout);
        }
    }
    s.データ.接続().接続終了();
}

}  // namespace

void 検索計測() {
    const QString 根 = 大量伝票の木(1000000);
    if (根.isEmpty()) return;
    測る(根, "SQLite");
    const QString PG根 = 大量伝票のPostgreSQL木(1000000);
    if (!PG根.isEmpty()) 測る(PG根, "PostgreSQL");
}
