#include "lists/wnd担当者一覧.h"
#include "lists/一覧部品名.h"

#include "dataenv/データ環境.h"
#include "slip/出金セッション.h"
#include "text/項目編集.h"

namespace {

using 欄 = 一覧部品;

}  // namespace

wnd担当者一覧::wnd担当者一覧(出金セッション& セッション, 画面モデル& 主画面)
    : wnd担当者一覧(セッション, 主画面, u"担当者"_qs) {}

wnd担当者一覧::wnd担当者一覧(出金セッション& セッション, 画面モデル& 主画面, const QString& 対象_)
    : 一覧画面(セッション, 主画面, u"wnd"_qs + 対象_ + u"一覧"_qs,
               対象_ == u"社員" ? 社員部品定義表 : 部品定義表, u"List"_qs + 対象_),
      対象(対象_),
      表(u"M"_qs + 対象_) {
    画面.Caption = 対象 + u"一覧"_qs;
    画面.Width = 10800;
    const QString 部門名文 = u"SELECT 名称 FROM M部門 WHERE コード = '"_qs;
    const QString セクション名文 = u"SELECT 名称 FROM Mセクション WHERE コード = '"_qs;
    欄を結ぶ(
        {
            {u"コード"_qs, 条件欄種類::コード, {}, {}, {}, u"btn_コード検索"_qs},
            {u"カナ"_qs, 条件欄種類::文字, {}, {}, {}, u"btn_カナ検索"_qs},
            {u"名称"_qs, 条件欄種類::文字, {}, {}, {}, u"btn_名称検索"_qs},
            {u"部門コード"_qs, 条件欄種類::コード, u"部門名"_qs, 部門名文, u"名称"_qs,
             u"btn_部門コード検索"_qs, u"wnd部門一覧"_qs},
            {u"部門名"_qs, 条件欄種類::名称},
            {u"セクションコード"_qs, 条件欄種類::コード, u"セクション名"_qs, セクション名文,
             u"名称"_qs, u"btn_セクションコード検索"_qs, u"wndセクション一覧"_qs},
            {u"セクション名"_qs, 条件欄種類::名称},
        },
        {
            {u"在籍区分"_qs, u"在籍区分名称"_qs, u"SELECT * FROM K在籍区分 ORDER BY 区分"_qs},
            {u"社員区分"_qs, u"社員区分名称"_qs, u"SELECT * FROM K社員区分 ORDER BY 区分"_qs},
        });
    検索ボタン(欄::btn_コード検索, 1);
    検索ボタン(欄::btn_カナ検索, 2);
    検索ボタン(欄::btn_名称検索, 3);
    検索ボタン(欄::btn_部門コード検索, 4);
    検索ボタン(欄::btn_セクションコード検索, 5);
    検索ボタン(欄::btn_複合検索, 0);
    検索ボタン(欄::btn_否定検索, -1);
}

void wnd担当者一覧::読込() {
    区分一覧作成();
    // The list opens on the first status and on every class.
    区分[u"在籍区分"_qs] = 0;
    区分[u"社員区分"_qs] = 画面(欄::社員区分).Max;
    一覧初期条件展開();
    列作成({{u"コード"_qs, 750},
            {u"氏名"_qs, 2500},
            {u"事業所"_qs, 2300},
            {u"部門"_qs, 2300},
            {u"セクション"_qs, 2300}});
    初回検索();
}

void wnd担当者一覧::一覧初期条件展開() {
    コード取出(u"コード"_qs, 表 + u".コード"_qs);
    コード取出(u"部門コード"_qs, 表 + u".部門コード"_qs);
    コード取出(u"セクションコード"_qs, 表 + u".セクションコード"_qs);
    条件[u"カナ"_qs].clear();
    条件[u"名称"_qs].clear();
}

QString wnd担当者一覧::検索文作成() {
    const QString& T = 表;
    const QString 列 =
        u"SELECT TOP 1000 "_qs + T + u".コード,"_qs + T +
        u".氏名,M事業所.名称 AS 事業所名,M部門.名称 AS 部門名,Mセクション.名称 AS セクション名"_qs;
    検索文 q;
    const QString db = 方言();
    if (db == u"A" || db == u"S") {
        q.文 = 列 + u" FROM Mセクション RIGHT JOIN (M部門 RIGHT JOIN (M事業所 RIGHT JOIN "_qs + T +
               u" ON M事業所.コード = "_qs + T + u".事業所コード) ON M部門.コード = "_qs + T +
               u".部門コード) ON Mセクション.コード = "_qs + T + u".セクションコード"_qs;
    } else if (db == u"O") {
        q.文 = 列 + u" FROM Mセクション,M部門,M事業所,"_qs + T + u" WHERE M事業所.コード(+) = "_qs +
               T + u".事業所コード AND M部門.コード(+) = "_qs + T +
               u".部門コード AND Mセクション.コード(+) = "_qs + T + u".セクションコード"_qs;
        q.条件あり = true;
    } else {
        return {};
    }
    呼出条件句(q);
    const QString 全社 = ゼロ文字列(3);
    if (d.接続().環境().運用事業所コード != 全社) {
        q.加える(u" AND ("_qs + T + u".事業所コード = '"_qs + d.接続().作業事業所コード() +
                 u"' OR "_qs + T + u".事業所コード = '"_qs + 全社 + u"')"_qs);
    }
    // One field's clause: "<T>.<column> <op> '" with its negation and what closes it.
    const auto 句 = [&](const QString& 欄名, const QString& 列名, const QString& 正,
                        const QString& 否, bool 曖昧) {
        const QString 頭 = u" AND "_qs + T + u"."_qs + 列名;
        欄句(q, 欄名, 頭 + 正, 頭 + 否, 曖昧 ? u"%'"_qs : u"'"_qs, 曖昧);
    };
    const auto コード句 = [&] { 句(u"コード"_qs, u"コード"_qs, u" >= '"_qs, u" < '"_qs, false); };
    const auto 名称句 = [&] {
        句(u"名称"_qs, u"氏名"_qs, u" LIKE '%"_qs, u" NOT LIKE '%"_qs, true);
    };
    const auto カナ句 = [&] {
        句(u"カナ"_qs, u"カナ"_qs, u" LIKE '%"_qs, u" NOT LIKE '%"_qs, true);
    };
    const auto 部門句 = [&] {
        句(u"部門コード"_qs, u"部門コード"_qs, u" = '"_qs, u" <> '"_qs, false);
    };
    const auto セクション句 = [&] {
        句(u"セクションコード"_qs, u"セクションコード"_qs, u" = '"_qs, u" <> '"_qs, false);
    };
    switch (検索種別) {
        case 1:
            コード句();
            break;
        case 2:
            カナ句();
            break;
        case 3:
            名称句();
            break;
        case 4:
            部門句();
            break;
        case 5:
            セクション句();
            break;
        default:
            コード句();
            名称句();
            カナ句();
            部門句();
            セクション句();
            break;
    }
    for (const QString& 区分名 : {u"在籍区分"_qs, u"社員区分"_qs}) {
        const QString 頭 = u" AND "_qs + T + u"."_qs + 区分名;
        区分句(q, 区分名, 頭 + u" = '"_qs, 頭 + u" <> '"_qs);
    }
    const QString 順 = 検索種別 == 2 ? u"カナ"_qs : 検索種別 == 3 ? u"氏名"_qs : u"コード"_qs;
    return q.文 + u" ORDER BY "_qs + T + u"."_qs + 順;
}
