#include <array>
#include <cstddef>
#include "lists/一覧部品名.h"

#include "lists/wnd出張申請No一覧.h"
#include "lists/wnd出金No一覧.h"

namespace {

using 欄 = 一覧部品;

using enum 部品種別;

constexpr int 行(int n) {
    return 600 + n * 420;
}
constexpr int 高 = 330;
constexpr int 題幅 = 1200, 欄左 = 1320, 釦左 = 4560, 釦幅 = 1500;

// What the two number lists call their controls; the rest of their tables is the same.
struct 番号一覧の名 {
    const char16_t* 題;
    int 幅;  // of the title and of the list view; the right-hand buttons stand at its edge
    const char16_t *日付題名, *日付題, *日付欄, *日付釦;
    const char16_t *番号題名, *番号題, *番号欄, *番号釦, *番号釦題;
    const char16_t *氏名題名, *氏名題, *氏名欄, *氏名釦, *氏名釦題;
    const char16_t *人題名, *人題, *人欄, *人名欄, *人釦, *人釦題;
    const char16_t* 一覧名;
    bool 以降;  // "以降" beside the date and the number
};

struct 番号一覧表 {
    std::array<部品定義, 22> 行{};
    std::size_t 数 = 0;
};

// Every control of a number list: class, caption, place, tab order and stop, limits. The
// looked-up person's name takes no tab stop.
constexpr 番号一覧表 番号系(const 番号一覧の名& n) {
    番号一覧表 t;
    const auto 加える = [&t](部品定義 d) { t.行[t.数++] = d; };
    const auto 右の釦 = [&](const char16_t* 名前, const char16_t* 題, int 段, int 順) {
        加える({.名前 = 名前,
                .種別 = SSCommand,
                .題 = 題,
                .位置 = {n.幅 - 1500, 行(段), 1500, 高},
                .順 = 順,
                .停止 = true});
    };
    加える({.名前 = u"wnd_ttl", .種別 = SSPanel, .題 = n.題, .位置 = {60, 60, n.幅, 420}});
    加える({.名前 = n.日付題名, .種別 = SSPanel, .題 = n.日付題, .位置 = {60, 行(0), 題幅, 高}});
    加える({.名前 = n.日付欄,
            .種別 = xField,
            .位置 = {欄左, 行(0), 1200, 高},
            .順 = 0,
            .停止 = true,
            .長さ = 8,
            .数字 = {8}});
    if (n.以降) {
        加える({.名前 = u"lab_見積日付",
                .種別 = xLabel,
                .題 = u"以降",
                .位置 = {2580, 行(0), 600, 高}});
    }
    加える({.名前 = n.日付釦,
            .種別 = SSCommand,
            .題 = u"日付検索",
            .位置 = {釦左, 行(0), 釦幅, 高},
            .順 = 1,
            .停止 = true});
    加える({.名前 = n.番号題名, .種別 = SSPanel, .題 = n.番号題, .位置 = {60, 行(1), 題幅, 高}});
    加える({.名前 = n.番号欄,
            .種別 = xField,
            .位置 = {欄左, 行(1), 1200, 高},
            .順 = 2,
            .停止 = true,
            .長さ = 8,
            .数字 = {8}});
    if (n.以降) {
        加える(
            {.名前 = u"lab_見積No", .種別 = xLabel, .題 = u"以降", .位置 = {2580, 行(1), 600, 高}});
    }
    加える({.名前 = n.番号釦,
            .種別 = SSCommand,
            .題 = n.番号釦題,
            .位置 = {釦左, 行(1), 釦幅, 高},
            .順 = 3,
            .停止 = true});
    加える({.名前 = n.氏名題名, .種別 = SSPanel, .題 = n.氏名題, .位置 = {60, 行(2), 題幅, 高}});
    加える({.名前 = n.氏名欄,
            .種別 = xField,
            .位置 = {欄左, 行(2), 3120, 高},
            .順 = 4,
            .停止 = true,
            .長さ = 40});
    加える({.名前 = n.氏名釦,
            .種別 = SSCommand,
            .題 = n.氏名釦題,
            .位置 = {釦左, 行(2), 釦幅, 高},
            .順 = 5,
            .停止 = true});
    加える({.名前 = n.人題名, .種別 = SSPanel, .題 = n.人題, .位置 = {60, 行(3), 題幅, 高}});
    加える({.名前 = n.人欄,
            .種別 = xField,
            .位置 = {欄左, 行(3), 900, 高},
            .順 = 6,
            .停止 = true,
            .長さ = 5});
    加える({.名前 = n.人名欄, .種別 = xField, .位置 = {2280, 行(3), 2160, 高}, .順 = 7});
    加える({.名前 = n.人釦,
            .種別 = SSCommand,
            .題 = n.人釦題,
            .位置 = {釦左, 行(3), 釦幅, 高},
            .順 = 8,
            .停止 = true});
    右の釦(u"btn_複合検索", u"検索", 0, 9);
    右の釦(u"btn_否定検索", u"否検索", 1, 10);
    右の釦(u"btn_画面クリア", u"条件ｸﾘｱ", 2, 11);
    右の釦(u"btn_戻る", u"戻る", 3, 12);
    加える({.名前 = 欄::lab_注意,
            .種別 = xLabel,
            .題 = u"一回の検索で1000件までを表示します。",
            .位置 = {60, 行(4), 6000, 高}});
    加える({.名前 = n.一覧名,
            .種別 = ListView,
            .位置 = {60, 行(5), n.幅, 5400},
            .順 = 13,
            .停止 = true});
    return t;
}

constexpr 番号一覧表 出金No一覧 = 番号系({
    .題 = u"出金No一覧",
    .幅 = 7680,
    .日付題名 = u"itm_ttl_出金日付",
    .日付題 = u"出金日付",
    .日付欄 = u"出金日付",
    .日付釦 = u"btn_出金日付検索",
    .番号題名 = u"itm_ttl_出金No",
    .番号題 = u"出金No",
    .番号欄 = u"出金No",
    .番号釦 = u"btn_出金No検索",
    .番号釦題 = u"No検索",
    .氏名題名 = u"itm_ttl_氏名",
    .氏名題 = u"氏名",
    .氏名欄 = u"氏名",
    .氏名釦 = u"btn_担当者名検索",
    .氏名釦題 = u"氏名検索",
    .人題名 = u"itm_ttl_担当者コード",
    .人題 = u"担当者",
    .人欄 = u"担当者コード",
    .人名欄 = u"担当者名",
    .人釦 = u"btn_担当者コード検索",
    .人釦題 = u"担当者検索",
    .一覧名 = u"List出金No",
    .以降 = false,
});

constexpr 番号一覧表 出張申請No一覧 = 番号系({
    .題 = u"出張申請No一覧",
    .幅 = 8760,
    .日付題名 = u"itm_ttl_出張申請日付",
    .日付題 = u"申請日付",
    .日付欄 = u"出張申請日付",
    .日付釦 = u"btn_出張申請日付検索",
    .番号題名 = u"itm_ttl_出張申請No",
    .番号題 = u"申請No",
    .番号欄 = u"出張申請No",
    .番号釦 = u"btn_出張申請No検索",
    .番号釦題 = u"申請No検索",
    .氏名題名 = u"itm_ttl_社員氏名",
    .氏名題 = u"社員名",
    .氏名欄 = u"社員氏名",
    .氏名釦 = u"btn_社員名検索",
    .氏名釦題 = u"社員名検索",
    .人題名 = u"itm_ttl_社員コード",
    .人題 = u"社員",
    .人欄 = u"社員コード",
    .人名欄 = u"社員名",
    .人釦 = u"btn_社員コード検索",
    .人釦題 = u"社員検索",
    .一覧名 = u"List出張申請No",
    .以降 = true,
});

}  // namespace

const 部品表 wnd出金No一覧::部品定義表{{出金No一覧.行.data(), 出金No一覧.数}};
const 部品表 wnd出張申請No一覧::部品定義表{{出張申請No一覧.行.data(), 出張申請No一覧.数}};
