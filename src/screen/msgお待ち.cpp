#include "screen/msgお待ち.h"

namespace {

constexpr 部品定義 部品一覧[] = {
    {.名前 = u"lab_msg",
     .種別 = 部品種別::xLabel,
     .題 = u"しばらくお待ちください。",
     .位置 = {240, 300, 4200, 420}},
};

}  // namespace

const 部品表 msgお待ち::部品定義表{部品一覧};

msgお待ち::msgお待ち() {
    画面.作る(部品定義表);
    画面.Caption = u"紺碧帳"_qs;
    画面.Width = 4680;
    画面.Height = 1020;
}
