#include "lists/wnd出金No一覧.h"

#include "dataenv/記録集合.h"
#include "text/数値書式.h"

namespace {

constexpr 句定義 氏名句{u"氏名", u" AND M担当者.氏名 LIKE '%", u" AND M担当者.氏名 NOT LIKE '%",
                        u"%'", true};

constexpr 番号一覧定義 出金No一覧{
    .窓名 = u"wnd出金No一覧",
    .題 = u"出金No一覧",
    .一覧名 = u"List出金No",
    .幅 = 7800,
    .表 = u"T出金",
    .列 =
        u"SELECT TOP 1000 T出金.事業所コード, T出金.番号基準日付, T出金.出金No, T出金.出金日付, "
        u"T出金.担当者コード, T出金.実質出金金額合計, M担当者.氏名 as 担当者名",
    .結合 = u" FROM M担当者 INNER JOIN T出金 ON M担当者.コード = T出金.担当者コード ",
    .結合O = u" FROM M担当者, T出金 WHERE M担当者.コード = T出金.担当者コード ",
    .事業所句 = u" AND T出金.事業所コード = '",
    .日付 = {u"出金日付", u" AND T出金.出金日付 >= '", u" AND T出金.出金日付 < '", u"'"},
    .番号 = {u"出金No", u" AND T出金.出金No >= '", u" AND T出金.出金No < '", u"'"},
    .氏名 = 氏名句,
    .人 = {u"担当者コード", u" AND T出金.担当者コード = '", u" AND T出金.担当者コード <> '", u"'"},
    .氏名単独 = 氏名句,
    .日付釦 = u"btn_出金日付検索",
    .番号釦 = u"btn_出金No検索",
    .氏名釦 = u"btn_担当者名検索",
    .人釦 = u"btn_担当者コード検索",
    .日付順 = u" ORDER BY T出金.出金日付, T出金.出金No",
    .番号順 = u" ORDER BY T出金.出金No, T出金.出金日付 DESC",
    .人順 = u" ORDER BY T出金.出金日付 DESC, T出金.出金No DESC",
    .新しい順 = u" ORDER BY T出金.出金日付 DESC, T出金.出金No DESC",
    .人名欄 = u"担当者名",
    .人名文 = u"SELECT 氏名 FROM M担当者 WHERE コード = '",
    .入れ子画面 = u"wnd担当者一覧",
};

}  // namespace

wnd出金No一覧::wnd出金No一覧(出金セッション& セッション, 画面モデル& 主画面)
    : 番号一覧(セッション, 主画面, 部品定義表, 出金No一覧) {}

QList<一覧列> wnd出金No一覧::列群() const {
    return {{u"出金No"_qs, 1150},
            {u"出金日付"_qs, 1150},
            {u"仕コード"_qs, 1050},
            {u"担当者名"_qs, 2500},
            {u"出金金額"_qs, 1600, true}};
}

void wnd出金No一覧::行を加える(記録集合& rs, int) {
    // The columns in the order of the SELECT: office, base date, number, date, staff, total,
    // staff name.
    項目を加える(rs, {rs.文字列(3), rs.文字列(4), rs.文字列(6),
                      rs.Null(5) ? QString() : 書式(rs.金額値(5), 数値書式::一覧金額)});
}
