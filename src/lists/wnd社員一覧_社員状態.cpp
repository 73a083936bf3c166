#include "dataenv/データ環境.h"
#include "lists/wnd社員一覧.h"
#include "text/プラットフォーム.h"
#include "text/項目編集.h"

namespace {

// A master that names a column of a picture: its table, the column's stem and its key.
struct 名称表 {
    const char16_t* 表;
    const char16_t* 幹;
    const char16_t* 鍵;
};

constexpr 名称表 事業所{u"M事業所", u"事業所", u"コード"};
constexpr 名称表 部門{u"M部門", u"部門", u"コード"};
constexpr 名称表 セクション{u"Mセクション", u"セクション", u"コード"};
constexpr 名称表 役職{u"M役職", u"役職", u"コード"};
constexpr 名称表 就業形態{u"M就業形態", u"就業形態", u"コード"};
constexpr 名称表 在籍区分{u"K在籍区分", u"在籍区分", u"区分"};
constexpr 名称表 社員区分{u"K社員区分", u"社員区分", u"区分"};

// A SELECT of 頭 and the names of the picture whose columns in 元表 bear 接頭, each name from its
// master under an alias of that prefix, joined by a nest of RIGHT JOINs around 内 so that the
// row stays when a master has no row.
QString 名称付き文(const QString& 頭, const QString& 内, const QString& 元表, const QString& 接頭,
                   std::initializer_list<名称表> 群) {
    QString 列 = 頭;
    QString 結合 = 内;
    bool 先頭 = true;
    for (const 名称表& m : 群) {
        const QString 表 = QString::fromUtf16(m.表);
        const QString 幹 = QString::fromUtf16(m.幹);
        const QString 鍵 = QString::fromUtf16(m.鍵);
        const QString 別名 = 接頭.isEmpty() ? 表 : 表.left(1) + 接頭 + 幹;
        列 += (先頭 ? u" "_qs : u", "_qs) + 別名 + u".名称 AS "_qs + 接頭 + 幹 + u"名"_qs;
        const QString 結合列 = 元表 + u"."_qs + 接頭 + 幹 + (鍵 == u"コード" ? 鍵 : QString());
        // A lone table is not put in brackets: PostgreSQL takes brackets round a join only.
        const QString 中 = 結合.contains(u" JOIN "_qs) ? u"("_qs + 結合 + u")"_qs : 結合;
        結合 = 表 + (接頭.isEmpty() ? QString() : u" AS "_qs + 別名) + u" RIGHT JOIN "_qs + 中 +
               u" ON "_qs + 別名 + u"."_qs + 鍵 + u" = "_qs + 結合列;
        先頭 = false;
    }
    return 列 + u" FROM "_qs + 結合;
}

// A transfer with the picture of its 異動 or 前 columns.
QString 異動文(const QString& 接頭) {
    return 名称付き文(
        u"SELECT T異動.*, "_qs + u" M社員.氏名 AS 社員名,M社員.カナ AS カナ,"_qs,
        u"M社員 RIGHT JOIN "_qs + u" T異動 "_qs + u" ON M社員.コード = T異動.社員コード"_qs,
        u"T異動"_qs, 接頭, {事業所, 部門, セクション, 役職, 就業形態, 社員区分});
}

}  // namespace

void wnd社員一覧::状態を写す(const 記録集合& rs, const QString& 接頭, const QString& 名前列) {
    const auto 列 = [&](const QString& 名) { return rs.文字列(接頭 + 名); };
    状態.社員名 = rs.文字列(名前列);
    状態.カナ = rs.文字列(u"カナ"_qs);
    状態.事業所コード = 列(u"事業所コード"_qs);
    状態.事業所名 = 列(u"事業所名"_qs);
    状態.部門コード = 列(u"部門コード"_qs);
    状態.部門名 = 列(u"部門名"_qs);
    状態.セクションコード = 列(u"セクションコード"_qs);
    状態.セクション名 = 列(u"セクション名"_qs);
    状態.役職コード = 列(u"役職コード"_qs);
    状態.役職名 = 列(u"役職名"_qs);
    状態.職責 = 列(u"職責"_qs);
    状態.就業形態コード = 列(u"就業形態コード"_qs);
    状態.就業形態名 = 列(u"就業形態名"_qs);
    // A class not given counts as a regular employee.
    状態.社員区分 = rs.Null(接頭 + u"社員区分"_qs) ? 1 : rs.整数(接頭 + u"社員区分"_qs);
    状態.社員区分名 = 列(u"社員区分名"_qs);
}

void wnd社員一覧::社員状態判定(const QString& 社員コード) {
    const QString T = d.基盤().現在時刻().toString(u"yyyyMMdd"_qs);
    const QString& C = 社員コード;
    状態 = {};
    状態.社員コード = C;
    状態.在籍区分 = 0;
    状態.在籍区分名 = u"在籍"_qs;
    記録集合 rs;
    const auto 読む = [&](const QString& 文) {
        const bool 行あり = d.接続().業務DB検索(rs, 文, true);
        if (!行あり) rs.閉じる();
        return 行あり;
    };

    if (読む(u"SELECT T退職.退職日付"_qs + u" FROM "_qs + u" T退職 "_qs +
             u" WHERE T退職.社員コード = '"_qs + C + u"'"_qs + u" AND T退職.退職日付 <= '"_qs + T +
             u"'"_qs)) {
        状態.在籍区分 = 2;
        状態.在籍区分名 = u"退職"_qs;
        rs.閉じる();
    } else if (読む(u"SELECT T休職.休職開始日付,T休職.休職終了日付"_qs + u" FROM "_qs +
                    u" T休職 "_qs + u" WHERE T休職.社員コード = '"_qs + C + u"'"_qs +
                    u" AND T休職.休職開始日付 <= '"_qs + T + u"'"_qs +
                    u" AND T休職.休職終了日付 >= '"_qs + T + u"'"_qs)) {
        状態.在籍区分 = 1;
        状態.在籍区分名 = u"休職"_qs;
        rs.閉じる();
    }

    const QString 本人 = u" WHERE T異動.社員コード = '"_qs + C + u"'"_qs;
    bool 見つかった = false;
    // The latest transfer up to today gives today's picture; of two on one day the later number.
    if (読む(異動文(u"異動"_qs) + 本人 + u" AND T異動.異動日付 <= '"_qs + T + u"'"_qs +
             u" ORDER BY T異動.異動日付 DESC,T異動.異動No DESC"_qs)) {
        状態を写す(rs, u"異動"_qs, u"社員名"_qs);
        rs.閉じる();
        見つかった = true;
    }
    // Without one, the first transfer to come still shows today's picture as its before-picture.
    if (!見つかった && 読む(異動文(u"前"_qs) + 本人 + u" AND T異動.異動日付 > '"_qs + T + u"'"_qs +
                            u" ORDER BY T異動.異動日付,T異動.異動No"_qs)) {
        状態を写す(rs, u"前"_qs, u"社員名"_qs);
        rs.閉じる();
        見つかった = true;
    }
    if (!見つかった) {
        QString 採用事業所コード, 採用番号基準日付, 採用No;
        if (読む(u"SELECT *"_qs + u" FROM M社員"_qs + u" WHERE コード = '"_qs + C + u"'"_qs)) {
            採用事業所コード = rs.文字列(u"採用事業所コード"_qs);
            採用番号基準日付 = rs.文字列(u"採用番号基準日付"_qs);
            採用No = rs.文字列(u"採用No"_qs);
            rs.閉じる();
        }
        if (!採用No.isEmpty() &&
            読む(名称付き文(u"SELECT T採用.*, T採用.氏名 AS 社員名,T採用.カナ氏名 AS カナ,"_qs,
                            u"T採用"_qs, u"T採用"_qs, u"採用"_qs,
                            {事業所, 部門, セクション, 役職, 就業形態, 社員区分}) +
                 u" WHERE T採用.事業所コード = '"_qs + 採用事業所コード + u"'"_qs +
                 u" AND T採用.番号基準日付 = '"_qs + 採用番号基準日付 + u"'"_qs +
                 u" AND T採用.採用No = '"_qs + 採用No + u"'"_qs)) {
            状態を写す(rs, u"採用"_qs, u"社員名"_qs);
            rs.閉じる();
            見つかった = true;
        }
    }
    // The master itself, when no event tells the picture. Its status name is not taken: the
    // status is that of the retirement and leave rows above.
    if (!見つかった &&
        読む(名称付き文(u"SELECT M社員.*,"_qs, u"M社員"_qs, u"M社員"_qs, QString(),
                        {事業所, 部門, セクション, 役職, 就業形態, 在籍区分, 社員区分}) +
             u" WHERE M社員.コード = '"_qs + C + u"'"_qs)) {
        状態を写す(rs, QString(), u"氏名"_qs);
        rs.閉じる();
        見つかった = true;
    }
    // A name change up to today stands over whatever name the picture had.
    if (読む(u"SELECT T諸届.諸届氏名 AS 社員名,T諸届.諸届カナ氏名 AS カナ"_qs + u" FROM "_qs +
             u" T諸届 "_qs + u" WHERE T諸届.社員コード = '"_qs + C + u"'"_qs +
             u" AND T諸届.諸届日付 <= '"_qs + T + u"'"_qs + u" AND T諸届.諸届区分 = '1'"_qs +
             u" ORDER BY T諸届.諸届日付 DESC,T諸届.諸届No DESC"_qs)) {
        状態.社員名 = rs.文字列(u"社員名"_qs);
        状態.カナ = rs.文字列(u"カナ"_qs);
        rs.閉じる();
    }
    if (!見つかった) {
        状態.事業所コード = u"999"_qs;
        状態.事業所名 = u"不明事業所"_qs;
        状態.部門コード = u"999"_qs;
        状態.部門名 = u"不明部門"_qs;
        状態.セクションコード = u"999"_qs;
        状態.セクション名 = u"不明セクション"_qs;
        状態.役職コード = u"99"_qs;
        状態.役職名 = u"不明役職"_qs;
        状態.職責 = u"不明職責"_qs;
        状態.就業形態コード = u"999"_qs;
        状態.就業形態名 = u"不明就業形態"_qs;
        状態.社員区分 = 7;
        状態.社員区分名 = u"その他"_qs;
    }
}

void wnd社員一覧::社員条件照合(bool& 照合) const {
    照合 = false;
    for (const QString& 名 : {u"在籍区分"_qs, u"社員区分"_qs}) {
        const int i = 区分.value(名);
        const short 値 = 名 == u"在籍区分" ? 状態.在籍区分 : 状態.社員区分;
        if (i != 画面.探す(名)->Max && 値 != i) return;
    }
    // A text condition of the current search, trimmed; empty when the search does not use it.
    const auto 条件値 = [this](const QString& 欄名, int 種別) {
        return 検索種別 == 種別 || 検索種別 == 0 ? 条件.value(欄名).trimmed() : QString();
    };
    const QString 名称 = 条件値(u"名称"_qs, 3);
    if (!名称.isEmpty() && !状態.社員名.contains(名称, Qt::CaseInsensitive)) return;
    const QString カナ = 条件値(u"カナ"_qs, 2);
    if (!カナ.isEmpty() && !状態.カナ.contains(カナ, Qt::CaseInsensitive)) return;
    const QString 全社 = ゼロ文字列(3);
    const QString& 運用 = d.接続().環境().運用事業所コード;
    if (運用 != 全社 && 状態.事業所コード != 全社 && 状態.事業所コード != 運用) return;
    const QString 部門 = 条件値(u"部門コード"_qs, 4);
    if (!部門.isEmpty() && 部門 != 状態.部門コード) return;
    const QString セクション = 条件値(u"セクションコード"_qs, 5);
    if (!セクション.isEmpty() && セクション != 状態.セクションコード) return;
    照合 = true;
}
