#include "lists/wnd出金No一覧.h"

#include "dataenv/データ環境.h"
#include "slip/出金セッション.h"
#include "text/数値書式.h"
#include "text/項目編集.h"

namespace {

constexpr 句定義 日付句{u"出金日付", u" AND T出金.出金日付 >= '", u" AND T出金.出金日付 < '", u"'"};
constexpr 句定義 番号句{u"出金No", u" AND T出金.出金No >= '", u" AND T出金.出金No < '", u"'"};
constexpr 句定義 氏名句{u"氏名", u" AND M担当者.氏名 LIKE '%", u" AND M担当者.氏名 NOT LIKE '%",
                        u"%'", true};
constexpr 句定義 担当者句{u"担当者コード", u" AND T出金.担当者コード = '",
                          u" AND T出金.担当者コード <> '", u"'"};

const QString 新しい順 = u" ORDER BY T出金.出金日付 DESC, T出金.出金No DESC"_qs;

}  // namespace

wnd出金No一覧::wnd出金No一覧(出金セッション& セッション, 画面モデル& 主画面)
    : 一覧画面(セッション, 主画面, u"wnd出金No一覧"_qs, 部品定義表, u"List出金No"_qs) {
    画面.Caption = u"出金No一覧"_qs;
    画面.Width = 7800;
    欄を結ぶ(
        {
            {u"出金日付"_qs, 条件欄種類::文字, {}, {}, {}, {}, u"btn_出金日付検索"_qs},
            {u"出金No"_qs, 条件欄種類::コード, ゼロ文字列(8), {}, {}, {}, u"btn_出金No検索"_qs},
            {u"氏名"_qs, 条件欄種類::文字, {}, {}, {}, {}, u"btn_担当者名検索"_qs},
            {u"担当者コード"_qs, 条件欄種類::コード, ゼロ文字列(5), u"担当者名"_qs,
             u"SELECT 氏名 FROM M担当者 WHERE コード = '"_qs, u"氏名"_qs,
             u"btn_担当者コード検索"_qs, u"wnd担当者一覧"_qs},
            {u"担当者名"_qs, 条件欄種類::名称},
        },
        {});
    検索ボタン(u"btn_出金日付検索"_qs, 1);
    検索ボタン(u"btn_出金No検索"_qs, 2);
    検索ボタン(u"btn_担当者名検索"_qs, 3);
    検索ボタン(u"btn_担当者コード検索"_qs, 4);
    検索ボタン(u"btn_複合検索"_qs, 0);
    検索ボタン(u"btn_否定検索"_qs, -1);
}

void wnd出金No一覧::読込() {
    一覧初期条件展開();
    列作成({{u"出金No"_qs, 1150},
            {u"出金日付"_qs, 1150},
            {u"仕コード"_qs, 1050},
            {u"担当者名"_qs, 2500},
            {u"出金金額"_qs, 1600}});
    初回検索();
}

void wnd出金No一覧::一覧初期条件展開() {
    コード取出(u"出金日付"_qs, u"T出金.出金日付"_qs);
    コード取出(u"出金No"_qs, u"T出金.出金No"_qs);
    コード取出(u"担当者コード"_qs, u"T出金.担当者コード"_qs);
    条件[u"氏名"_qs].clear();
}

QString wnd出金No一覧::検索文作成() {
    const QString 列 =
        u"SELECT TOP 1000 T出金.事業所コード, T出金.番号基準日付, T出金.出金No, T出金.出金日付, T出金.担当者コード, T出金.実質出金金額合計, M担当者.氏名 as 担当者名"_qs;
    検索文 q;
    const QString db = 方言();
    if (db == u"A" || db == u"S") {
        q.文 = 列 + u" FROM M担当者 INNER JOIN T出金 ON M担当者.コード = T出金.担当者コード "_qs;
    } else if (db == u"O") {
        q.文 = 列 + u" FROM M担当者, T出金 WHERE M担当者.コード = T出金.担当者コード "_qs;
        q.条件あり = true;
    } else {
        return {};
    }
    // Only the slips of the office at work, unless that is the whole company.
    if (d.作業事業所コード != ゼロ文字列(3)) {
        q.加える(u" AND T出金.事業所コード = '"_qs + d.作業事業所コード + u"'"_qs);
    }
    呼出条件句(q);
    switch (検索種別) {
        case 1:
            欄句(q, 日付句);
            return q.文 + u" ORDER BY T出金.出金日付, T出金.出金No"_qs;
        case 2:
            欄句(q, 番号句);
            return q.文 + u" ORDER BY T出金.出金No, T出金.出金日付 DESC"_qs;
        case 3:
            欄句(q, 氏名句);
            return q.文 + 新しい順;
        case 4:
            欄句(q, 担当者句);
            return q.文 + 新しい順;
        default:
            for (const 句定義* 句 : {&日付句, &番号句, &氏名句, &担当者句}) 欄句(q, *句);
            return q.文 + 新しい順;
    }
}

void wnd出金No一覧::行を加える(記録集合& rs, int) {
    // The columns in the order of the SELECT: office, base date, number, date, staff, total,
    // staff name.
    const auto 欄 = [&rs](int c) {
        const QVariant v = rs.値(c);
        return v.isNull() ? QString() : v.toString();
    };
    一覧項目 項;
    項.Text = 欄(2);
    // The slip's key without separators: office, number base date, number.
    項.Key = u"C"_qs + 欄(0) + 欄(1) + 項.Text;
    const QVariant 合計 = rs.値(5);
    項.SubItems = {
        欄(3), 欄(4), 欄(6),
        合計.isNull() ? QString() : 書式(rs.金額値(u"実質出金金額合計"_qs), 数値書式::一覧金額)};
    一覧().項目追加(std::move(項));
}
