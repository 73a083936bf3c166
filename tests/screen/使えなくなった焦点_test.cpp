#include "screen/入力画面試験.h"

namespace {

class 使えなくなった焦点 : public 入力画面試験 {};

// A line's class typed over with what the field does not take (it stays empty) and left by Tab:
// the focus
// first lands on the line's class list, then the commit leaves the line without a class and so
// closes its lists. The focus does not stay on the closed list, where no key could reach it; it
// goes on in tab order to the next control that can hold it, as the window system moves it, and
// that control's order guard sends it back to the class the line now lacks.
TEST_F(使えなくなった焦点, 閉じた一覧に焦点は残らずタブ順の次へ進む) {
    行を打つ(3);
    f->画面.操作_入力(c(u"費目区分"_qs, 2), u"う"_qs);
    f->画面.操作_Tab();
    EXPECT_FALSE(c(u"費目区分名称"_qs, 2).Enabled);
    ASSERT_NE(f->画面.フォーカス(), nullptr);
    EXPECT_TRUE(f->画面.焦点可(*f->画面.フォーカス())) << 焦点().toStdString();
    EXPECT_EQ(焦点(), u"費目区分(2)"_qs);
}

// A control hidden while it holds the focus hands it on the same way: the split totals'
// button hides its own panel.
TEST_F(使えなくなった焦点, 自分の枠を隠すボタンから焦点は次へ進む) {
    f->画面.操作_クリック(c(u"btn_軽減税率切替"_qs));
    ASSERT_TRUE(f->画面.見えるか(c(u"btn_通常表示切替"_qs)));
    f->画面.操作_クリック(c(u"btn_通常表示切替"_qs));
    ASSERT_NE(f->画面.フォーカス(), nullptr);
    EXPECT_TRUE(f->画面.焦点可(*f->画面.フォーカス())) << 焦点().toStdString();
}

}  // namespace
