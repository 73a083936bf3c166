#include <QElapsedTimer>
#include <QSqlQuery>

#include "dataenv/データ環境.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

namespace {

const QString 文 =
    u"SELECT コード, 氏名, 部門コード, セクションコード FROM M担当者 WHERE コード = '00003'"_qs;
const QStringList 列 = {u"コード"_qs, u"氏名"_qs, u"部門コード"_qs, u"セクションコード"_qs};
constexpr int 回数 = 20000;

double 層経由(データ環境& e) {
    QElapsedTimer t;
    t.start();
    qsizetype 長さ = 0;
    for (int i = 0; i < 回数; ++i) {
        記録集合 rs;
        if (e.接続().業務DB検索(rs, 文)) {
            for (const auto& c : 列) 長さ += rs.文字列(c).size();
        }
        rs.閉じる();
    }
    if (長さ == 0) std::printf("no rows read\n");
    return t.nsecsElapsed() / 1e3 / 回数;
}

double 直接(const QSqlDatabase& db) {
    QElapsedTimer t;
    t.start();
    qsizetype 長さ = 0;
    for (int i = 0; i < 回数; ++i) {
        QSqlQuery q(db);
        q.setForwardOnly(true);
        if (q.exec(文) && q.next()) {
            for (const auto& c : 列) 長さ += q.value(c).toString().size();
        }
    }
    if (長さ == 0) std::printf("no rows read\n");
    return t.nsecsElapsed() / 1e3 / 回数;
}

}  // namespace

// The data layer's cost per query (translation, reading by name, Null rule) against a raw
// QSqlQuery of the same statement on the same connection.
void データ層計測() {
    計測用ツリー 木;
    if (!木.作成済み) return;
    台本プラットフォーム 基盤;
    データ環境 e(基盤);
    e.接続().自身のフォルダ設定(木.根() + u"/prgbin"_qs);
    if (!e.接続().SYB_OPEN() || !e.接続().DB_OPEN()) return;
    std::vector<double> 層, 生, 比;
    for (int i = 0; i < 7; ++i) {
        const double a = 層経由(e), b = 直接(e.接続().業務DB().生接続());
        層.push_back(a);
        生.push_back(b);
        比.push_back((a / b - 1) * 100);
    }
    結果表示("query through the data layer (SQLite)", 層, "us");
    結果表示("same query through raw QSqlQuery", 生, "us");
    結果表示("data layer overhead", 比, "%");
    e.接続().接続終了();
}
