#include "lists/wnd出金摘要一覧.h"
#include "lists/一覧部品名.h"

namespace {

using 欄 = 一覧部品;

using enum 部品種別;

constexpr int 高 = 330;

// Every control of the description list; the five period options stand one below the other.
constexpr 部品定義 部品一覧[] = {
    {.名前 = u"wnd_ttl", .種別 = SSPanel, .題 = u"出金摘要一覧", .位置 = {60, 60, 6720, 420}},
    {.名前 = u"itm_ttl_タイトル",
     .種別 = SSPanel,
     .題 = u"検索文字列",
     .位置 = {60, 600, 1200, 高}},
    {.名前 = 欄::検索文字列,
     .種別 = xField,
     .位置 = {1320, 600, 3300, 高},
     .順 = 0,
     .停止 = true,
     .長さ = 40},
    {.名前 = 欄::opb_期間,
     .種別 = OptionButton,
     .位置 = {4800, 600, 1920, 高},
     .配列 = 5,
     .順 = 1,
     .停止 = true},
    {.名前 = 欄::btn_複合検索,
     .種別 = SSCommand,
     .題 = u"検索",
     .位置 = {60, 1020, 1500, 高},
     .順 = 6,
     .停止 = true},
    {.名前 = 欄::btn_否定検索,
     .種別 = SSCommand,
     .題 = u"否検索",
     .位置 = {1620, 1020, 1500, 高},
     .順 = 7,
     .停止 = true},
    {.名前 = 欄::btn_画面クリア,
     .種別 = SSCommand,
     .題 = u"条件ｸﾘｱ",
     .位置 = {60, 1440, 1500, 高},
     .順 = 8,
     .停止 = true},
    {.名前 = 欄::btn_戻る,
     .種別 = SSCommand,
     .題 = u"戻る",
     .位置 = {1620, 1440, 1500, 高},
     .順 = 9,
     .停止 = true},
    {.名前 = 欄::lab_注意,
     .種別 = xLabel,
     .題 = u"一回の検索で1000件までを表示します。",
     .位置 = {60, 2760, 6000, 高}},
    {.名前 = u"List出金摘要",
     .種別 = ListView,
     .位置 = {60, 3120, 6720, 5400},
     .順 = 10,
     .停止 = true},
};

}  // namespace

const 部品表 wnd出金摘要一覧::部品定義表{部品一覧, 360, 1};
