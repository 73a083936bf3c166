#include <gtest/gtest.h>

#include "screen/画面モデル.h"
#include "text/実行時エラー.h"

namespace {

struct 三項目 {
    画面モデル m{u"t"_qs};
    部品& a = m.追加(u"a"_qs, 部品種別::xField);
    部品& b = m.追加(u"b"_qs, 部品種別::xField);
    部品& c = m.追加(u"c"_qs, 部品種別::xField);
    部品& 札 = m.追加(u"札"_qs, 部品種別::xLabel);
    QStringList 記録;
    三項目() {
        int i = 0;
        for (部品* p : {&a, &b, &c}) {
            p->TabIndex = ++i;
            p->GotFocus = [this, p] { 記録 << p->名前 + u"+"_qs; };
            p->LostFocus = [this, p] { 記録 << p->名前 + u"-"_qs; };
        }
        札.TabIndex = 0;
    }
};

TEST(画面モデル, Tabは見えて使えて止まる項目をタブ順に巡り端で回る) {
    三項目 t;
    t.m.操作_フォーカス(t.a);
    t.m.操作_Tab();
    EXPECT_EQ(t.m.フォーカス(), &t.b);
    t.b.Enabled = false;
    t.m.操作_ShiftTab();
    EXPECT_EQ(t.m.フォーカス(), &t.a);
    t.m.操作_Tab();
    EXPECT_EQ(t.m.フォーカス(), &t.c);  // b is disabled
    t.m.操作_Tab();
    EXPECT_EQ(t.m.フォーカス(), &t.a);  // round again; the label never takes a stop
    t.c.TabStop = false;
    t.a.Visible = false;
    EXPECT_EQ(t.m.次のタブ(&t.c, false), nullptr);
}

TEST(画面モデル, 事象の中のフォーカス移動は事象の後に順に届く) {
    三項目 t;
    t.b.GotFocus = [&] {
        t.記録 << u"b+"_qs;
        t.m.SetFocus(t.c);
        t.記録 << u"b+終"_qs;  // the move waits until this event has returned
    };
    t.m.操作_フォーカス(t.a);
    t.m.操作_Tab();
    EXPECT_EQ(t.記録, (QStringList{u"a+"_qs, u"a-"_qs, u"b+"_qs, u"b+終"_qs, u"b-"_qs, u"c+"_qs}));
    EXPECT_EQ(t.m.フォーカス(), &t.c);
}

TEST(画面モデル, 入力は長さで切られ案内で他へ送られたら打った文字はそちらに行かない) {
    三項目 t;
    t.a.MaxLength = 3;
    t.m.操作_入力(t.a, u"12345"_qs);
    EXPECT_EQ(t.a.Text, u"123"_qs);
    t.b.GotFocus = [&] { t.m.SetFocus(t.a); };
    t.m.操作_入力(t.b, u"x"_qs);
    EXPECT_EQ(t.b.Text, QString());
    EXPECT_EQ(t.m.フォーカス(), &t.a);
}

TEST(画面モデル, 使えない項目はクリックもフォーカスも受けない) {
    三項目 t;
    int 押下 = 0;
    auto& 釦 = t.m.追加(u"釦"_qs, 部品種別::SSCommand);
    釦.Click = [&] { ++押下; };
    釦.Enabled = false;
    t.m.操作_クリック(釦);
    EXPECT_EQ(押下, 0);
    釦.Enabled = true;
    t.m.操作_クリック(釦);
    EXPECT_EQ(押下, 1);
    EXPECT_EQ(t.m.フォーカス(), &釦);  // a press gives the button the focus first
    t.a.Enabled = false;
    t.m.操作_フォーカス(t.a);
    EXPECT_EQ(t.m.フォーカス(), &釦);
}

TEST(画面モデル, 配列は名前と添字で引けて全部品は作った順に並ぶ) {
    画面モデル m(u"t"_qs);
    m.追加(u"行"_qs, 部品種別::xNum, 0);
    m.追加(u"行"_qs, 部品種別::xNum, 1);
    m.追加(u"単"_qs, 部品種別::ComboBox);
    EXPECT_EQ(m.探す(u"行"_qs, 1)->添字, 1);
    EXPECT_EQ(m.探す(u"行"_qs), nullptr);
    EXPECT_EQ(m.全部品().size(), 3u);
    EXPECT_EQ(種別名(m.全部品()[2]->種別), u"ComboBox"_qs);
    m.操作_値変更(*m.探す(u"単"_qs), 1);
    EXPECT_EQ(m.探す(u"単"_qs)->ListIndex, 1);
}

}  // namespace

namespace {

TEST(画面モデル, 事象の実行時エラーは受け手に渡り後のフォーカス移動は止まらない) {
    三項目 t;
    QStringList 受けた;
    t.m.異常時 = [&](const std::exception& e) { 受けた << QString::fromUtf8(e.what()); };
    t.b.LostFocus = [&] { throw 桁あふれ(); };
    t.m.操作_フォーカス(t.b);
    t.m.操作_Tab();
    EXPECT_EQ(受けた, QStringList{u"オーバーフローしました。"_qs});
    EXPECT_EQ(t.m.フォーカス(), &t.c);
    t.m.操作_Tab();
    EXPECT_EQ(t.m.フォーカス(), &t.a);
}

TEST(画面モデル, 受け手がなければ実行時エラーは呼び手に渡り待ち行列は空になる) {
    三項目 t;
    t.a.GotFocus = [&] {
        t.m.SetFocus(t.b);
        throw 桁あふれ();
    };
    EXPECT_THROW(t.m.操作_フォーカス(t.a), 桁あふれ);
    t.m.操作_フォーカス(t.c);
    EXPECT_EQ(t.m.フォーカス(), &t.c);
}

}  // namespace

namespace {

constexpr 部品定義 試験表[] = {
    {.名前 = u"枠", .種別 = 部品種別::SSPanel, .位置 = {0, 0, 900, 900}},
    {.名前 = u"欄",
     .種別 = 部品種別::xNum,
     .位置 = {10, 20, 300, 330},
     .親 = u"枠",
     .配列 = 3,
     .順 = 4,
     .停止 = true,
     .数字 = {3, 1, true}},
    {.名前 = u"頁", .種別 = 部品種別::SSTab, .題 = u"一|二", .位置 = {0, 1000, 900, 900}},
    {.名前 = u"一の欄", .種別 = 部品種別::xField, .親 = u"頁", .順 = 20, .停止 = true, .頁 = 0},
    {.名前 = u"二の欄", .種別 = 部品種別::xField, .親 = u"頁", .順 = 21, .停止 = true, .頁 = 1},
    {.名前 = u"釦", .種別 = 部品種別::SSCommand, .題 = u"押す"},
    {.名前 = u"印", .種別 = 部品種別::CheckBox},
    {.名前 = u"棒", .種別 = 部品種別::VScrollBar, .最大 = 3},
};

struct 表の画面 {
    画面モデル m{u"t"_qs};
    表の画面() { m.作る({試験表, 400, 10}); }
};

TEST(画面モデル, 表から部品を作り配列は間隔ずつ下へタブ順は十ずつ進む) {
    表の画面 t;
    const 部品& 欄2 = t.m(u"欄"_qs, 2);
    EXPECT_EQ(欄2.Top, 20 + 800);
    EXPECT_EQ(欄2.Left, 10);
    EXPECT_EQ(欄2.TabIndex, 24);
    EXPECT_TRUE(欄2.TabStop);
    EXPECT_EQ(欄2.親, &t.m(u"枠"_qs));
    EXPECT_EQ(t.m(u"釦"_qs).Caption, u"押す"_qs);
    EXPECT_EQ(t.m(u"頁"_qs).一覧, (QStringList{u"一"_qs, u"二"_qs}));
    EXPECT_EQ(t.m(u"棒"_qs).Max, 3);
    EXPECT_EQ(t.m.全部品().size(), 10u);
}

TEST(画面モデル, 頁の上の部品はその頁が出ている間だけ見えTabもその間だけ止まる) {
    表の画面 t;
    EXPECT_TRUE(t.m.見えるか(t.m(u"一の欄"_qs)));
    EXPECT_FALSE(t.m.見えるか(t.m(u"二の欄"_qs)));
    t.m.操作_フォーカス(t.m(u"一の欄"_qs));
    t.m.操作_Tab();
    EXPECT_EQ(t.m.フォーカス(), &t.m(u"欄"_qs, 2));  // tab 24: past the hidden page's 21
    t.m.操作_値変更(t.m(u"頁"_qs), 1);
    EXPECT_FALSE(t.m.見えるか(t.m(u"一の欄"_qs)));
    t.m.操作_フォーカス(t.m(u"二の欄"_qs));
    EXPECT_EQ(t.m.フォーカス(), &t.m(u"二の欄"_qs));
    t.m(u"枠"_qs).Visible = false;  // a hidden container hides what stands in it
    EXPECT_FALSE(t.m.見えるか(t.m(u"欄"_qs, 1)));
}

TEST(画面モデル, 押すと焦点を持てる部品はタブで止まらなくても焦点を取り枠は取らない) {
    表の画面 t;
    int 押下 = 0;
    t.m(u"釦"_qs).Click = [&] { ++押下; };
    t.m(u"枠"_qs).Click = [&] { ++押下; };
    t.m.操作_フォーカス(t.m(u"欄"_qs, 0));
    t.m.操作_クリック(t.m(u"釦"_qs));
    EXPECT_EQ(t.m.フォーカス(), &t.m(u"釦"_qs));
    t.m.操作_クリック(t.m(u"枠"_qs));
    EXPECT_EQ(t.m.フォーカス(), &t.m(u"釦"_qs));
    EXPECT_EQ(押下, 2);
    t.m.操作_クリック(t.m(u"印"_qs));
    EXPECT_EQ(t.m.フォーカス(), &t.m(u"印"_qs));
    EXPECT_EQ(t.m(u"印"_qs).Value, 1);
}

TEST(画面モデル, 焦点を他へ送られた印は押しても変わらず押した事象も起きない) {
    表の画面 t;
    部品& 印 = t.m(u"印"_qs);
    int 押下 = 0;
    印.Click = [&] { ++押下; };
    印.GotFocus = [&] { t.m.SetFocus(t.m(u"欄"_qs, 1)); };
    t.m.操作_クリック(印);
    EXPECT_EQ(印.Value, 0);
    EXPECT_EQ(押下, 0);
    EXPECT_EQ(t.m.フォーカス(), &t.m(u"欄"_qs, 1));
}

TEST(画面モデル, 棒の値は最小から最大を出ず変わらなければ変化の事象は起きない) {
    表の画面 t;
    部品& 棒 = t.m(u"棒"_qs);
    int 変化 = 0;
    棒.Change = [&] { ++変化; };
    t.m.値設定(棒, -1);
    EXPECT_EQ(棒.Value, 0);
    EXPECT_EQ(変化, 0);
    t.m.値設定(棒, 9);
    EXPECT_EQ(棒.Value, 3);
    EXPECT_EQ(変化, 1);
    t.m.操作_値変更(棒, 7);
    EXPECT_EQ(棒.Value, 3);
    EXPECT_EQ(変化, 1);
    t.m.操作_値変更(棒, -5);
    EXPECT_EQ(棒.Value, 0);
    EXPECT_EQ(変化, 2);
}

TEST(画面モデル, 数の欄は数字と符号と小数を桁まで打てる) {
    表の画面 t;
    部品& 欄 = t.m(u"欄"_qs, 0);
    t.m.操作_入力(欄, u"a-1x23.45"_qs);
    EXPECT_EQ(欄.Text, u"-123.4"_qs);
    EXPECT_TRUE(欄.入力可(u"-"_qs));
    EXPECT_TRUE(欄.入力可(u"12."_qs));
    EXPECT_FALSE(欄.入力可(u"1-"_qs));
    EXPECT_FALSE(欄.入力可(u"1234"_qs));
    欄.Min = 0;
    欄.Max = 12;
    EXPECT_TRUE(欄.入力可(u"12"_qs));
    EXPECT_FALSE(欄.入力可(u"13"_qs));
    EXPECT_FALSE(欄.入力可(u"-1"_qs));
    部品& 字 = t.m(u"一の欄"_qs);
    EXPECT_TRUE(字.入力可(u"taxi"_qs));  // a text field without a digit rule takes anything
}

}  // namespace
