#include "lists/wnd部門一覧.h"
#include "lists/一覧部品名.h"

#include <array>

namespace {

using 欄 = 一覧部品;

using enum 部品種別;

constexpr int 高 = 330;

// Every control of the department or section list; the two differ only in their title and the
// name of the list view.
constexpr std::array<部品定義, 7> 部門系(const char16_t* 題名, const char16_t* 一覧名) {
    return {{
        {.名前 = u"wnd_ttl", .種別 = SSPanel, .題 = 題名, .位置 = {60, 60, 3900, 420}},
        {.名前 = u"itm_ttl_稼動状況区分",
         .種別 = SSPanel,
         .題 = u"稼動状況",
         .位置 = {60, 600, 1080, 高}},
        {.名前 = 欄::稼動状況区分,
         .種別 = xNum,
         .位置 = {1200, 600, 420, 高},
         .順 = 0,
         .停止 = true,
         .長さ = 1,
         .数字 = {1}},
        {.名前 = u"稼動状況区分名称",
         .種別 = ComboBox,
         .位置 = {1680, 600, 2280, 高},
         .順 = 1,
         .停止 = true},
        {.名前 = 欄::btn_画面クリア,
         .種別 = SSCommand,
         .題 = u"条件ｸﾘｱ",
         .位置 = {1200, 1020, 1320, 高},
         .順 = 2,
         .停止 = true},
        {.名前 = 欄::btn_戻る,
         .種別 = SSCommand,
         .題 = u"戻る",
         .位置 = {2640, 1020, 1320, 高},
         .順 = 3,
         .停止 = true},
        {.名前 = 一覧名, .種別 = ListView, .位置 = {60, 1440, 3900, 4800}, .順 = 4, .停止 = true},
    }};
}

constexpr auto 部門一覧 = 部門系(u"部門一覧", u"List部門");
constexpr auto セクション一覧 = 部門系(u"セクション一覧", u"Listセクション");

}  // namespace

const 部品表 wnd部門一覧::部門部品定義表{部門一覧};
const 部品表 wnd部門一覧::セクション部品定義表{セクション一覧};
