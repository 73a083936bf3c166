#include <QHash>
#include <cstdio>

#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"
#include "ストレス.h"
#include "百分位.h"
#include "記録読取.h"

namespace {

// A money column as whole yen, whatever the engine's text of a number looks like ("30600",
// "30600.0000").
qint64 円(const QString& t) {
    return qRound64(t.toDouble());
}

class 検査 {
  public:
    explicit 検査(出金セッション& s) : s(s) {}

    // All rows of a query, each as the texts of the named columns.
    QList<QStringList> 行(const QString& 文, const QStringList& 列, bool 環境 = false) {
        QList<QStringList> 結果;
        記録集合 rs;
        const bool あり =
            環境 ? s.データ.接続().環境DB検索(rs, 文) : s.データ.接続().業務DB検索(rs, 文);
        if (あり) {
            for (; !rs.EOFか(); rs.MoveNext()) {
                QStringList r;
                for (const QString& c : 列) r << rs.文字列(c);
                結果 << r;
            }
        }
        rs.閉じる();
        return 結果;
    }
    qint64 数(const QString& 文, bool 環境 = false) {
        const auto r = 行(文, {u"n"_qs}, 環境);
        return r.isEmpty() ? -1 : r[0][0].toLongLong();
    }
    void 等しい(qint64 実際, qint64 期待, const QString& 何) {
        if (実際 != 期待)
            違反 << 何 + u": "_qs + QString::number(実際) + u", expected "_qs +
                        QString::number(期待);
    }

    出金セッション& s;
    QStringList 違反;
};

}  // namespace

int 検査実行(const QString& プログラムフォルダ, const QStringList& 記録ファイル, double 秒,
             int 操作員数) {
    台本プラットフォーム 基盤;
    出金セッション s(基盤);
    画面なし 窓;
    紺碧帳起動 起動(s, 窓);
    s.データ.接続().自身のフォルダ設定(プログラムフォルダ);
    if (!起動.データベース開始()) {
        std::fprintf(stderr, "the databases do not open\n");
        return 3;
    }
    検査 v(s);
    const 集計 k = 記録を読む(記録ファイル, v.違反);

    // No two slips with one number in a sequence, no marker twice.
    for (
        const auto& r : v.行(
            u"SELECT 事業所コード, 番号基準日付, 出金No FROM T出金 GROUP BY 事業所コード, 番号基準日付, 出金No HAVING COUNT(*) > 1"_qs,
            {u"事業所コード"_qs, u"番号基準日付"_qs, u"出金No"_qs})) {
        v.違反 << u"number used twice: "_qs + r.join(u'/');
    }

    // Every slip as its operator left it: header, lines in order with the amounts typed, totals.
    QHash<QString, QStringList> 見出し;  // key -> marker, amount total, tax total
    QHash<QString, QString> 印の鍵;
    for (
        const auto& r : v.行(
            u"SELECT 事業所コード, 番号基準日付, 出金No, 出金伝票備考A, 出金金額合計, 出金消費税合計 FROM T出金"_qs,
            {u"事業所コード"_qs, u"番号基準日付"_qs, u"出金No"_qs, u"出金伝票備考A"_qs,
             u"出金金額合計"_qs, u"出金消費税合計"_qs})) {
        const QString 鍵 = r[0] + r[1] + r[2];
        見出し[鍵] = r.mid(3);
        if (印の鍵.contains(r[3])) v.違反 << u"marker "_qs + r[3] + u" stored twice"_qs;
        印の鍵[r[3]] = 鍵;
        if (!k.伝票.contains(r[3])) v.違反 << u"slip "_qs + 鍵 + u" that no operator stored"_qs;
    }
    QHash<QString, QList<QStringList>> 明細;  // key -> (amount, tax) by line No
    for (
        const auto& r : v.行(
            u"SELECT 事業所コード, 番号基準日付, 出金No, 出金行No, 出金金額, 出金消費税 FROM T出金明細 ORDER BY 事業所コード, 番号基準日付, 出金No, 出金行No"_qs,
            {u"事業所コード"_qs, u"番号基準日付"_qs, u"出金No"_qs, u"出金行No"_qs, u"出金金額"_qs,
             u"出金消費税"_qs})) {
        const QString 鍵 = r[0] + r[1] + r[2];
        if (!見出し.contains(鍵)) v.違反 << u"line without its slip: "_qs + 鍵 + u" "_qs + r[3];
        明細[鍵] << r.mid(3);
    }
    for (auto it = k.伝票.cbegin(); it != k.伝票.cend(); ++it) {
        const QString& 印 = it.key();
        if (it->削除済み) {
            if (印の鍵.contains(印)) v.違反 << u"deleted slip still there: "_qs + 印;
            continue;
        }
        if (!印の鍵.contains(印)) {
            v.違反 << u"stored slip missing: "_qs + 印;
            continue;
        }
        const QString 鍵 = 印の鍵[印];
        const auto& 行 = 明細[鍵];
        qint64 額計 = 0, 税計 = 0;
        bool 一致 = 行.size() == it->金額.size();
        for (int i = 0; 一致 && i < 行.size(); ++i) {
            一致 = 行[i][0] == QString::number(i + 1).rightJustified(3, u'0') &&
                   円(行[i][1]) == it->金額[i];
            額計 += 円(行[i][1]);
            税計 += 円(行[i][2]);
        }
        if (!一致) v.違反 << u"lines of "_qs + 印 + u" differ from what was typed"_qs;
        if (円(見出し[鍵][1]) != 額計 || 円(見出し[鍵][2]) != 税計)
            v.違反 << u"totals of "_qs + 印 + u" are not those of its lines"_qs;
    }

    // History: the new state of the header is refused by the database on purpose, so the
    // header history holds the old states only; lines hold both.
    v.等しい(v.数(u"SELECT COUNT(*) AS n FROM R出金"_qs), k.訂正 + k.削除, u"R出金 rows"_qs);
    v.等しい(v.数(u"SELECT COUNT(*) AS n FROM R出金明細 WHERE 赤黒区分 = '1'"_qs),
             k.新規行 + k.訂正行, u"R出金明細 new-state rows"_qs);
    v.等しい(v.数(u"SELECT COUNT(*) AS n FROM R出金明細 WHERE 赤黒区分 = '0'"_qs),
             k.訂正行 + k.削除行, u"R出金明細 old-state rows"_qs);
    v.等しい(
        v.数(
            u"SELECT COUNT(*) AS n FROM (SELECT 事業所コード, 番号基準日付, 出金履歴No FROM R出金 GROUP BY 事業所コード, 番号基準日付, 出金履歴No HAVING COUNT(*) > 1) x"_qs),
        0, u"R出金 history numbers used twice"_qs);
    v.等しい(
        v.数(
            u"SELECT COUNT(*) AS n FROM (SELECT 事業所コード, 番号基準日付, 出金履歴No, 出金固有行No FROM R出金明細 GROUP BY 事業所コード, 番号基準日付, 出金履歴No, 出金固有行No HAVING COUNT(*) > 1) x"_qs),
        0, u"R出金明細 rows twice"_qs);

    // The queue: one row per history row set, the old state first; browse rows, one per look-up.
    v.等しい(v.数(u"SELECT COUNT(*) AS n FROM 未集計情報 WHERE 登録情報区分 = '0'"_qs), k.新規,
             u"queue rows of new slips"_qs);
    v.等しい(v.数(u"SELECT COUNT(*) AS n FROM 未集計情報 WHERE 登録情報区分 = '1'"_qs), 2 * k.訂正,
             u"queue rows of corrections"_qs);
    v.等しい(v.数(u"SELECT COUNT(*) AS n FROM 未集計情報 WHERE 登録情報区分 = '2'"_qs), k.削除,
             u"queue rows of deletions"_qs);
    v.等しい(
        v.数(
            u"SELECT COUNT(*) AS n FROM (SELECT 事業所コード, 番号基準日付, 履歴No FROM 未集計情報 GROUP BY 事業所コード, 番号基準日付, 履歴No HAVING COUNT(*) > 1) x"_qs),
        0, u"queue history numbers used twice"_qs);
    v.等しい(v.数(u"SELECT COUNT(*) AS n FROM T閲覧"_qs), k.訂正 + k.削除, u"T閲覧 rows"_qs);
    v.等しい(
        v.数(
            u"SELECT COUNT(*) AS n FROM (SELECT 事業所コード, 番号基準日付, 閲覧No FROM T閲覧 GROUP BY 事業所コード, 番号基準日付, 閲覧No HAVING COUNT(*) > 1) x"_qs),
        0, u"browse numbers used twice"_qs);

    // Counters never behind a number in use.
    qint64 番号 = 0, 履歴 = 0;
    for (const auto& r :
         v.行(u"SELECT 期日, 連番, 履歴連番 FROM A期日別番号情報 WHERE 番号ID = '16810'"_qs,
              {u"期日"_qs, u"連番"_qs, u"履歴連番"_qs})) {
        番号 += r[1].toLongLong();
        履歴 += r[2].toLongLong();
        const QString 条件 = u" WHERE 番号基準日付 = '"_qs + r[0] + u"'"_qs;
        for (const QString& 文 :
             {u"SELECT MAX(出金No) AS n FROM T出金"_qs, u"SELECT MAX(出金No) AS n FROM R出金"_qs,
              u"SELECT MAX(伝票No) AS n FROM 未集計情報"_qs}) {
            const qint64 最大 = v.数(文 + 条件);
            if (最大 > r[1].toLongLong()) v.違反 << u"counter behind: "_qs + 文 + 条件;
        }
        for (const QString& 文 : {u"SELECT MAX(出金履歴No) AS n FROM R出金明細"_qs,
                                  u"SELECT MAX(履歴No) AS n FROM 未集計情報"_qs}) {
            const qint64 最大 = v.数(文 + 条件);
            if (最大 > r[2].toLongLong()) v.違反 << u"history counter behind: "_qs + 文 + 条件;
        }
    }
    const qint64 閲覧 = v.数(u"SELECT 連番 AS n FROM A番号情報 WHERE 番号ID = '01110'"_qs);
    if (v.数(u"SELECT MAX(閲覧No) AS n FROM T閲覧"_qs) > 閲覧)
        v.違反 << u"browse counter behind"_qs;

    // The run history holds the refused history headers, and the counter rows of the new
    // period that two operators created at once: the first peek of a period inserts its row
    // without a transaction, so the later of two simultaneous first peeks is refused and logged,
    // and reads the row the other made. Nothing else.
    const auto エラー = v.行(u"SELECT 摘要 FROM プログラム稼動履歴 WHERE 摘要 LIKE 'エラー%'"_qs,
                             {u"摘要"_qs}, true);
    int 想定外 = 0, 見出し履歴 = 0, 期初 = 0;
    for (const auto& r : エラー) {
        if (r[0].contains(u"INSERT INTO [R出金] ("_qs)) {
            ++見出し履歴;
        } else if (r[0].contains(u"INSERT INTO [A期日別番号情報]"_qs)) {
            ++期初;
        } else if (想定外++ < 5) {
            v.違反 << u"logged failure: "_qs + r[0].left(200);
        }
    }
    v.等しい(見出し履歴, k.新規 + k.訂正, u"refused new-state R出金 rows"_qs);
    if (期初 >= 操作員数) v.違反 << u"every operator lost the first peek of the period"_qs;
    起動.終了処理();

    const qint64 店 = k.新規 + k.訂正 + k.削除;
    const qint64 再試行 =
        (番号 - k.新規) + (履歴 - (k.新規 + 2 * k.訂正 + k.削除)) + (閲覧 - (k.訂正 + k.削除));
    for (const QString& x : v.違反) std::fprintf(stderr, "violation: %s\n", qPrintable(x));
    std::printf("%d|%lld|%lld|%lld|%lld|%.1f|%lld|%lld|%.1f|%.1f|%.1f|%.1f|%lld\n", 操作員数,
                static_cast<long long>(k.新規), static_cast<long long>(k.訂正),
                static_cast<long long>(k.削除), static_cast<long long>(店), 秒 > 0 ? 店 / 秒 : 0.0,
                static_cast<long long>(再試行), static_cast<long long>(番号),
                最近順位百分位(k.所要ミリ秒, 50), 最近順位百分位(k.所要ミリ秒, 95),
                最近順位百分位(k.所要ミリ秒, 99), 最近順位百分位(k.所要ミリ秒, 100),
                static_cast<long long>(v.違反.size()));
    return v.違反.isEmpty() ? 0 : 1;
}
