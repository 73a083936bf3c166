#include "ledger/frm紺碧帳出力.h"

namespace {

using 欄 = 出力画面部品;

using enum 部品種別;

constexpr int 高 = 330;
constexpr int 題幅 = 1320;
constexpr int 欄左 = 1440;

// The command line's choices from top to bottom, the commands, the progress and the result.
constexpr 部品定義 表[] = {
    {.名前 = u"wnd_ttl", .種別 = SSPanel, .題 = u"仕訳出力", .位置 = {60, 60, 7140, 420}},
    {.名前 = u"itm_ttl_期間", .種別 = SSPanel, .題 = u"期間", .位置 = {60, 600, 題幅, 高}},
    {.名前 = 欄::開始日,
     .種別 = xNum,
     .位置 = {欄左, 600, 1200, 高},
     .順 = 0,
     .停止 = true,
     .長さ = 8,
     .数字 = {8}},
    {.名前 = u"lab_から", .種別 = xLabel, .題 = u"～", .位置 = {2640, 600, 360, 高}},
    {.名前 = 欄::終了日,
     .種別 = xNum,
     .位置 = {3000, 600, 1200, 高},
     .順 = 1,
     .停止 = true,
     .長さ = 8,
     .数字 = {8}},
    {.名前 = u"lab_日付書式", .種別 = xLabel, .題 = u"YYYYMMDD", .位置 = {4260, 600, 1500, 高}},
    {.名前 = u"itm_ttl_事業所", .種別 = SSPanel, .題 = u"事業所", .位置 = {60, 990, 題幅, 高}},
    {.名前 = 欄::事業所コード,
     .種別 = xNum,
     .位置 = {欄左, 990, 600, 高},
     .順 = 2,
     .停止 = true,
     .長さ = 3,
     .数字 = {3}},
    {.名前 = u"lab_事業所", .種別 = xLabel, .題 = u"000 は全事業所", .位置 = {2100, 990, 2100, 高}},
    {.名前 = u"itm_ttl_形式", .種別 = SSPanel, .題 = u"形式", .位置 = {60, 1380, 題幅, 高}},
    {.名前 = 欄::opb_形式,
     .種別 = OptionButton,
     .位置 = {欄左, 1380, 4200, 高},
     .配列 = 2,
     .順 = 3,
     .停止 = true},
    {.名前 = u"itm_ttl_出力先", .種別 = SSPanel, .題 = u"出力先", .位置 = {60, 2160, 題幅, 高}},
    {.名前 = 欄::出力先,
     .種別 = xText,
     .位置 = {欄左, 2160, 5760, 高},
     .順 = 5,
     .停止 = true,
     .長さ = 260},
    {.名前 = 欄::btn_出力,
     .種別 = SSCommand,
     .題 = u"出力",
     .位置 = {欄左, 2640, 1320, 360},
     .順 = 6,
     .停止 = true},
    {.名前 = 欄::btn_支払先登録,
     .種別 = SSCommand,
     .題 = u"支払先登録",
     .位置 = {2880, 2640, 1800, 360},
     .順 = 7,
     .停止 = true},
    {.名前 = 欄::btn_終了,
     .種別 = SSCommand,
     .題 = u"終了",
     .位置 = {5880, 2640, 1320, 360},
     .順 = 8,
     .停止 = true},
    {.名前 = 欄::pgb_進捗, .種別 = ProgressBar, .位置 = {60, 3180, 7140, 300}},
    {.名前 = 欄::lab_結果, .種別 = xLabel, .位置 = {60, 3600, 7140, 1560}},
};

constexpr 部品名 名前一覧[] = {欄::開始日,   欄::終了日,   欄::事業所コード,   欄::opb_形式,
                               欄::出力先,   欄::btn_出力, 欄::btn_支払先登録, 欄::btn_終了,
                               欄::pgb_進捗, 欄::lab_結果};
static_assert(全て表にある(名前一覧, 表));

}  // namespace

// The two formats stand 390 twips apart, one below the other.
const 部品表 frm紺碧帳出力::部品定義表{表, 390, 1};
