#include "audit/wnd出金検索.h"
#include "audit/wnd出金検索_部品名.h"

namespace {

using 欄 = 出金検索部品;
using enum 部品種別;

constexpr int 行(int n) {
    return 600 + n * 420;
}
constexpr int 高 = 330;
constexpr int 題幅 = 1200, 欄左 = 1320, 幅 = 9960, 釦左 = 幅 - 1440, 釦幅 = 1500;

// A condition's title panel on its row.
constexpr 部品定義 題(const char16_t* 名前, const char16_t* 題, int 段, int 左 = 60) {
    return {.名前 = 名前, .種別 = SSPanel, .題 = 題, .位置 = {左, 行(段), 題幅, 高}};
}
// A condition field: where it stands, its tab place, its length and digits.
constexpr 部品定義 条件欄(const char16_t* 名前, int 段, int 左, int 欄幅, int 順, int 長さ,
                          数字制限 数字 = {}) {
    return {.名前 = 名前,
            .種別 = xField,
            .位置 = {左, 行(段), 欄幅, 高},
            .順 = 順,
            .停止 = true,
            .長さ = 長さ,
            .数字 = 数字};
}
constexpr 部品定義 から(const char16_t* 名前, int 段, int 左) {
    return {.名前 = 名前, .種別 = xLabel, .題 = u"～", .位置 = {左, 行(段), 300, 高}};
}
constexpr 部品定義 釦(const char16_t* 名前, const char16_t* 題, int 段, int 順) {
    return {.名前 = 名前,
            .種別 = SSCommand,
            .題 = 題,
            .位置 = {釦左, 行(段), 釦幅, 高},
            .順 = 順,
            .停止 = true};
}

constexpr 数字制限 円{13, 0, true};

// The conditions on the left, each range as two fields; the commands on the right; the found
// slips below. Tab runs through the conditions, the search, the list, then the other commands.
constexpr 部品定義 部品一覧[] = {
    {.名前 = 欄::wnd_ttl, .種別 = SSPanel, .題 = u"出金検索", .位置 = {60, 60, 幅, 420}},
    題(欄::itm_ttl_出金日付, u"出金日付", 0),
    条件欄(欄::出金日付自, 0, 欄左, 1200, 0, 8, {8}),
    から(欄::lab_出金日付から, 0, 2580),
    条件欄(欄::出金日付至, 0, 2940, 1200, 1, 8, {8}),
    題(欄::itm_ttl_合計金額, u"合計金額", 1),
    条件欄(欄::合計金額自, 1, 欄左, 1500, 2, 14, 円),
    から(欄::lab_合計金額から, 1, 2880),
    条件欄(欄::合計金額至, 1, 3240, 1500, 3, 14, 円),
    題(欄::itm_ttl_明細金額, u"明細金額", 2),
    条件欄(欄::明細金額自, 2, 欄左, 1500, 4, 14, 円),
    から(欄::lab_明細金額から, 2, 2880),
    条件欄(欄::明細金額至, 2, 3240, 1500, 5, 14, 円),
    題(欄::itm_ttl_支払先, u"支払先", 3),
    条件欄(欄::支払先, 3, 欄左, 3420, 6, 40),
    題(欄::itm_ttl_担当者コード, u"担当者", 4),
    条件欄(欄::担当者コード, 4, 欄左, 900, 7, 5, {5}),
    題(欄::itm_ttl_事業所コード, u"事業所", 4, 2400),
    条件欄(欄::事業所コード, 4, 3660, 600, 8, 3, {3}),
    題(欄::itm_ttl_出金No, u"出金No", 5),
    条件欄(欄::出金No自, 5, 欄左, 1200, 9, 8, {8}),
    から(欄::lab_出金Noから, 5, 2580),
    条件欄(欄::出金No至, 5, 2940, 1200, 10, 8, {8}),
    {.名前 = 欄::chb_付属書類あり,
     .種別 = CheckBox,
     .題 = u"付属書類あり",
     .位置 = {欄左, 行(6), 1800, 高},
     .順 = 11,
     .停止 = true},
    {.名前 = 欄::chb_削除済,
     .種別 = CheckBox,
     .題 = u"削除した伝票",
     .位置 = {3240, 行(6), 2000, 高},
     .順 = 12,
     .停止 = true},
    釦(欄::btn_検索, u"検索", 0, 13),
    釦(欄::btn_書類を開く, u"書類を開く", 1, 15),
    釦(欄::btn_画面クリア, u"条件ｸﾘｱ", 2, 16),
    釦(欄::btn_戻る, u"戻る", 3, 17),
    {.名前 = 欄::lab_注意,
     .種別 = xLabel,
     .題 = u"一回の検索で1000件までを表示します。",
     .位置 = {60, 行(7), 4800, 高}},
    {.名前 = 欄::lab_知らせ, .種別 = xLabel, .位置 = {4920, 行(7), 5100, 高}},
    {.名前 = 欄::List出金検索,
     .種別 = ListView,
     .位置 = {60, 行(8), 幅, 5400},
     .順 = 14,
     .停止 = true},
};
static_assert(全て表にある(欄::全て, 部品一覧));

}  // namespace

const 部品表 wnd出金検索::部品定義表{部品一覧};
