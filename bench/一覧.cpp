#include <QElapsedTimer>
#include <QSqlQuery>
#include <QSqlRecord>

#include "dataenv/SQL方言変換.h"
#include "lists/一覧画面集.h"
#include "screen/frm紺碧帳.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

namespace {

// The same statement read raw, every column of up to 1000 rows as text.
double 直接(const QSqlDatabase& db, const QString& 文, int& 件数) {
    QElapsedTimer t;
    t.start();
    QSqlQuery q(db);
    q.setForwardOnly(true);
    件数 = 0;
    if (q.exec(SQL方言変換(文, SQL方言::SQLite))) {
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

void 測る(const char* 名前, 一覧画面& 窓, const QString& 釦, const QSqlDatabase& db) {
    std::vector<double> 画面, 生, 比;
    int 行数 = 0, 生行数 = 0;
    // Sixty turns: a single slow turn on a busy machine moves a median of few.
    for (int i = 0; i < 60; ++i) {
        QElapsedTimer t;
        t.start();
        窓.画面.操作_クリック(窓.画面(釦));
        画面.push_back(ミリ秒(t));
        行数 = static_cast<int>(窓.一覧().項目.size());
        生.push_back(直接(db, 窓.検索SQL, 生行数));
        比.push_back(画面.back() / 生.back());
    }
    std::printf("%s: %d rows (raw %d)\n", 名前, 行数, 生行数);
    const std::string 名 = 名前;
    結果表示((名 + " search, press to rows").c_str(), 画面, "ms");
    結果表示((名 + " same statement raw").c_str(), 生, "ms");
    結果表示((名 + " ratio to raw").c_str(), 比, "x");
}

void 測る全て(一覧画面集& 集, 画面モデル& 主, const QSqlDatabase& db) {
    一覧画面& 担当者 = 集(u"wnd担当者一覧"_qs);
    担当者.読込();
    担当者.画面.操作_入力(担当者.画面(u"在籍区分"_qs), u"2"_qs);
    測る("staff list", 担当者, u"btn_複合検索"_qs, db);

    一覧画面& 部門 = 集(u"wnd部門一覧"_qs);
    部門.読込();
    測る("department list", 部門, u"btn_画面クリア"_qs, db);

    // Opened from a slip of the last day: the year before it.
    一覧画面& 番号 = 集(u"wnd出金No一覧"_qs);
    主.状態.一覧.条件 = u"T出金.番号基準日付 <> '' AND T出金.出金日付 >= '20230215'"_qs;
    番号.読込();
    測る("slip No list", 番号, u"btn_複合検索"_qs, db);

    一覧画面& 摘要 = 集(u"wnd出金摘要一覧"_qs);
    摘要.読込();
    測る("description list, last 3 months", 摘要, u"btn_複合検索"_qs, db);
    摘要.画面.操作_クリック(摘要.画面(u"opb_期間"_qs, 4));
    測る("description list, all", 摘要, u"btn_複合検索"_qs, db);
}

}  // namespace

// Each list window's search on 1 million slips, from the button press to the rows in the model,
// against the same statement read raw.
void 一覧計測() {
    const QString 根 = 大量伝票の木(1000000);
    if (根.isEmpty()) return;
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2024, 2, 15), QTime(10, 0, 0));
    出金セッション s(基盤);
    s.データ.接続().自身のフォルダ設定(根 + u"/prgbin"_qs);
    if (!s.データ.接続().SYB_OPEN() || !s.データ.接続().DB_OPEN() ||
        !s.データ.会社設定().基本項目読込())
        return;
    frm紺碧帳 f(s);
    一覧画面集 集(s, f.画面);
    // The raw reads share the program's connection, and let it go before it is closed.
    {
        const QSqlDatabase db = s.データ.接続().業務DB().生接続();
        測る全て(集, f.画面, db);
    }
    s.データ.接続().接続終了();
}
