#include "screen/msg印刷確認.h"
#include "screen/msg印刷確認_部品名.h"

#include "text/プラットフォーム.h"

namespace {

using 欄 = 印刷確認部品;

using enum 部品種別;

constexpr 部品定義 部品一覧[] = {
    {.名前 = 欄::lab_inpmsg, .種別 = xLabel, .位置 = {240, 180, 4800, 330}},
    {.名前 = 欄::lab_msg, .種別 = xLabel, .位置 = {240, 600, 4800, 420}},
    {.名前 = 欄::btn_登録印刷,
     .種別 = SSCommand,
     .題 = u"登録と印刷",
     .位置 = {240, 1260, 1500, 450},
     .順 = 2,
     .停止 = true},
    {.名前 = 欄::btn_登録,
     .種別 = SSCommand,
     .題 = u"登録のみ",
     .位置 = {1890, 1260, 1500, 450},
     .順 = 0,
     .停止 = true},
    {.名前 = 欄::btn_いいえ,
     .種別 = SSCommand,
     .題 = u"いいえ",
     .位置 = {3540, 1260, 1500, 450},
     .順 = 1,
     .停止 = true},
};
static_assert(全て表にある(欄::全て, 部品一覧));

}  // namespace

const 部品表 msg印刷確認::部品定義表{部品一覧};

msg印刷確認::msg印刷確認(出金セッション& セッション) : s(セッション) {
    画面.作る(部品定義表);
    画面.Width = 5280;
    画面.Height = 1950;
    画面(欄::btn_登録印刷).Click = [this] { 答える(0); };
    画面(欄::btn_登録).Click = [this] { 答える(1); };
    画面(欄::btn_いいえ).Click = [this] { 答える(2); };
    // Loading counts as いいえ, so that a close by the frame stores nothing.
    s.データ.基盤().画面事象登録(画面.名前, {.読込 = [this] { s.登録確認結果 = 2; }, .枠閉じ = {}});
}

void msg印刷確認::登録確認(const QString& 題, const QString& 注記, const QString& 本文, int 色) {
    画面.Caption = 題;
    画面(欄::lab_inpmsg).Caption = 注記;
    部品& 文 = 画面(欄::lab_msg);
    文.Caption = 本文;
    文.ForeColor = 色;
    画面(欄::btn_登録).TabIndex = 0;
    画面(欄::btn_いいえ).TabIndex = 1;
    画面(欄::btn_登録印刷).TabIndex = 2;
    画面.SetFocus(画面(欄::btn_登録));
    s.データ.基盤().画面表示(画面.名前, true);
}

void msg印刷確認::答える(short 結果) {
    s.登録確認結果 = 結果;
    s.データ.基盤().画面終了(画面.名前);
}
