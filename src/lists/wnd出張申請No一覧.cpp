#include "lists/wnd出張申請No一覧.h"

#include "dataenv/記録集合.h"
#include "text/数値書式.h"

namespace {

constexpr 番号一覧定義 出張申請No一覧{
    .窓名 = u"wnd出張申請No一覧",
    .題 = u"出張申請No一覧",
    .一覧名 = u"List出張申請No",
    .幅 = 8880,
    .表 = u"T出張申請",
    .列 =
        u"SELECT TOP 1000 T出張申請.事業所コード, T出張申請.番号基準日付, T出張申請.出張申請No, "
        u"T出張申請.出張申請日付, T出張申請.社員コード, T出張申請.開始日付, T出張申請.日数, "
        u"M社員.氏名 AS 社員名, K出張区分.名称 AS 出張区分名",
    .結合 =
        u" FROM K出張区分 INNER JOIN (M社員 INNER JOIN T出張申請 ON M社員.コード = "
        u"T出張申請.社員コード) ON K出張区分.区分 = T出張申請.出張区分 ",
    .結合O =
        u" FROM K出張区分,M社員, T出張申請 WHERE M社員.コード = T出張申請.社員コード AND "
        u"K出張区分.区分 = T出張申請.出張区分",
    .事業所句 = u" AND T出張申請.事業所コード = '",
    .日付 = {u"出張申請日付", u" AND T出張申請.出張申請日付 >= '",
             u" AND T出張申請.出張申請日付 < '", u"'"},
    .番号 = {u"出張申請No", u" AND T出張申請.出張申請No >= '", u" AND T出張申請.出張申請No < '",
             u"'"},
    .氏名 = {u"社員氏名", u" AND M社員.氏名 LIKE '%", u" AND M社員.氏名 NOT LIKE '%", u"%'", true},
    .人 = {u"社員コード", u" AND T出張申請.社員コード = '", u" AND T出張申請.社員コード <> '",
           u"'"},
    // The name button looks for the whole name, and its value goes in unquoted: a name with a
    // quote breaks that one statement, while the compound search takes it.
    .氏名単独 = {u"社員氏名", u" AND M社員.氏名 = '", u" AND M社員.氏名 = '", u"'"},
    .日付釦 = u"btn_出張申請日付検索",
    .番号釦 = u"btn_出張申請No検索",
    .氏名釦 = u"btn_社員名検索",
    .人釦 = u"btn_社員コード検索",
    .日付順 = u" ORDER BY T出張申請.出張申請日付, T出張申請.出張申請No",
    .番号順 = u" ORDER BY T出張申請.出張申請No, T出張申請.出張申請日付 DESC",
    .人順 =
        u" ORDER BY T出張申請.社員コード, T出張申請.出張申請日付 DESC, T出張申請.出張申請No DESC",
    .新しい順 = u" ORDER BY T出張申請.出張申請日付 DESC, T出張申請.出張申請No DESC",
    .人名欄 = u"社員名",
    .人名文 = u"SELECT 氏名 FROM M社員 WHERE コード = '",
    .入れ子画面 = u"wnd社員一覧",
};

}  // namespace

wnd出張申請No一覧::wnd出張申請No一覧(出金セッション& セッション, 画面モデル& 主画面)
    : 番号一覧(セッション, 主画面, 部品定義表, 出張申請No一覧) {
    // Everything here lives in the HR system's database, the employee's name included.
    連携で検索 = true;
    連携で名称 = true;
}

QList<一覧列> wnd出張申請No一覧::列群() const {
    return {{u"申請No"_qs, 1150}, {u"申請日付"_qs, 1150}, {u"コード"_qs, 1050},
            {u"社員名"_qs, 2000}, {u"出張日付"_qs, 1150}, {u"日数"_qs, 850, true},
            {u"区分"_qs, 1150}};
}

void wnd出張申請No一覧::行を加える(記録集合& rs, int) {
    // The columns in the order of the SELECT: office, base date, number, date, employee, start,
    // days, employee name, trip class name.
    項目を加える(
        rs, {rs.文字列(3), rs.文字列(4), rs.文字列(7), rs.文字列(5),
             rs.Null(6) ? QString() : 書式(rs.数値(u"日数"_qs), 数値書式::百分率), rs.文字列(8)});
}
