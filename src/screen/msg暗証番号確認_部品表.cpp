#include "screen/msg暗証番号確認.h"
#include "screen/msg暗証番号確認_部品名.h"

namespace {

using 欄 = 暗証番号確認部品;

using enum 部品種別;

constexpr int 題左 = 240, 題幅 = 1320, 欄左 = 1620, 欄高 = 360;

// The controls of the PIN window. The name field is filled by the program and skipped by Tab;
// its title panel leads to the PIN.
constexpr 部品定義 部品一覧[] = {
    {.名前 = 欄::itm_ttl_担当者コード,
     .種別 = SSPanel,
     .題 = u"担当者コード",
     .位置 = {題左, 240, 題幅, 欄高},
     .結び = 欄::担当者コード},
    {.名前 = 欄::担当者コード,
     .種別 = xField,
     .位置 = {欄左, 240, 1020, 欄高},
     .順 = 0,
     .停止 = true},
    {.名前 = 欄::itm_ttl_担当者名,
     .種別 = SSPanel,
     .題 = u"担当者名",
     .位置 = {題左, 660, 題幅, 欄高},
     .結び = 欄::暗証番号},
    {.名前 = 欄::担当者名, .種別 = xField, .位置 = {欄左, 660, 2760, 欄高}, .順 = 1},
    {.名前 = 欄::itm_ttl_暗証番号,
     .種別 = SSPanel,
     .題 = u"暗証番号",
     .位置 = {題左, 1080, 題幅, 欄高},
     .結び = 欄::暗証番号},
    {.名前 = 欄::暗証番号, .種別 = xPass, .位置 = {欄左, 1080, 1500, 欄高}, .順 = 2, .停止 = true},
    {.名前 = 欄::btn_OK,
     .種別 = SSCommand,
     .題 = u"OK",
     .位置 = {欄左, 1620, 1260, 420},
     .順 = 3,
     .停止 = true},
    {.名前 = 欄::btn_キャンセル,
     .種別 = SSCommand,
     .題 = u"キャンセル",
     .位置 = {3120, 1620, 1260, 420},
     .順 = 4,
     .停止 = true},
};
static_assert(全て表にある(欄::全て, 部品一覧));

}  // namespace

const 部品表 msg暗証番号確認::部品定義表{部品一覧};
