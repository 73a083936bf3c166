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
