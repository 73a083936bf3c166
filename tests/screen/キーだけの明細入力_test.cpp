#include "common/文字列表示.h"
#include "入力画面試験.h"

namespace {

// Lines typed with Tab alone, as an operator who never takes the mouse types them: class, Tab,
// payee, Tab, description, Tab, amount, Tab. Every Tab must land on the next field of the line,
// whichever row of the grid the line stands on.
class キーだけの明細入力 : public 入力画面試験 {
  protected:
    static constexpr int 全行数 = 15;  // a full slip
    static QString 区分(int i) { return QString::number(i % 10 + 1).rightJustified(2, u'0'); }
    static QString 支払先(int i) { return u"支払先"_qs + QString::number(i + 1); }
    static QString 摘要(int i) { return u"摘要"_qs + QString::number(i + 1); }
    static QString 額(int i) { return QString::number(100 * (i + 1)); }
    static QString 欄名(const QString& 名前, int 行) {
        return 名前 + u"("_qs + QString::number(行) + u")"_qs;
    }

    void 打ってTab(const QString& 文字列) {
        f->画面.操作_入力(*f->画面.フォーカス(), 文字列);
        f->画面.操作_Tab();
    }
    // The staff member by his code, then Tab into the first line.
    void 担当者から() {
        f->フォーカス設定(c(u"担当者コード"_qs));
        打ってTab(u"7"_qs);
        ASSERT_EQ(s.見出し.担当者コード, u"00007"_qs);
        ASSERT_EQ(焦点(), u"費目区分(0)"_qs);
    }
    // Line i, from its class on the row it stands on; the focus ends on the next line's class.
    void 一行(int i) {
        const int r = s.表示行;
        ASSERT_EQ(s.先頭行 + r, i);
        ASSERT_EQ(焦点(), 欄名(u"費目区分"_qs, r)) << "line " << i + 1;
        打ってTab(区分(i));
        ASSERT_EQ(焦点(), 欄名(u"支払先"_qs, r)) << "line " << i + 1;
        打ってTab(支払先(i));
        ASSERT_EQ(焦点(), 欄名(u"摘要"_qs, r)) << "line " << i + 1;
        打ってTab(摘要(i));
        ASSERT_EQ(焦点(), 欄名(u"出金金額"_qs, r)) << "line " << i + 1;
        打ってTab(額(i));
    }
    void 行を確かめる(int 行数) {
        ASSERT_EQ(s.最終行, 行数 - 1);
        for (int i = 0; i < 行数; ++i) {
            EXPECT_EQ(s.行[i].費目区分, i % 10 + 1) << i;
            EXPECT_EQ(s.行[i].支払先, 支払先(i)) << i;
            EXPECT_EQ(s.行[i].摘要, 摘要(i)) << i;
            EXPECT_EQ(s.行[i].出金金額, 金額::円(100 * (i + 1))) << i;
        }
    }
    // The focus is on a field of the rows that the operator sees and types into.
    void 打てる欄に立つ() {
        const 部品* p = f->画面.フォーカス();
        ASSERT_NE(p, nullptr);
        EXPECT_TRUE(p->種別 == 部品種別::xNum || p->種別 == 部品種別::xText)
            << 焦点().toStdString();
        EXPECT_TRUE(f->画面.焦点可(*p)) << 焦点().toStdString();
        EXPECT_GE(p->Width, 300) << 焦点().toStdString();
    }
    // Fifteen lines typed and stored by the register button, then brought back by number.
    void 十五行を登録して読む() {
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f->印刷確認.画面.操作_クリック(f->印刷確認.画面(u"btn_登録"_qs));
        };
        担当者から();
        for (int i = 0; i < 全行数 && !HasFatalFailure(); ++i) 一行(i);
        f->画面.操作_クリック(c(u"btn_登録"_qs));
        ASSERT_EQ(c(u"出金No"_qs).Text, u"00000002"_qs);
        f->画面.操作_入力(c(u"出金No"_qs), u"1"_qs);
        f->画面.操作_Tab();
        ASSERT_FALSE(s.新規情報フラグ);
        ASSERT_EQ(s.最終行, 14);
    }
};

TEST_F(キーだけの明細入力, 六行目の費目区分からTabで支払先へ進む) {
    担当者から();
    for (int i = 0; i < 5 && !HasFatalFailure(); ++i) 一行(i);
    // The grid scrolled by one; the sixth line stands on the fifth row.
    ASSERT_EQ(s.先頭行, 1);
    ASSERT_EQ(焦点(), u"費目区分(4)"_qs);
    打ってTab(u"06"_qs);
    EXPECT_EQ(s.行[5].費目区分名称, u"新聞図書費"_qs);
    EXPECT_EQ(s.行[5].内税外税区分, 2);
    EXPECT_EQ(焦点(), u"支払先(4)"_qs);
    打ってTab(u"駅前書店"_qs);
    EXPECT_EQ(s.行[5].支払先, u"駅前書店"_qs);
    EXPECT_EQ(焦点(), u"摘要(4)"_qs);
}

TEST_F(キーだけの明細入力, 十五行をTabだけで打つと最後の金額から備考へ抜ける) {
    担当者から();
    for (int i = 0; i < 全行数 && !HasFatalFailure(); ++i) 一行(i);
    EXPECT_EQ(焦点(), u"出金伝票備考A"_qs);
    EXPECT_EQ(s.先頭行, 10);
    行を確かめる(全行数);
    EXPECT_TRUE(c(u"btn_登録"_qs).Enabled);
}

TEST_F(キーだけの明細入力, ShiftTabで備考から全行を遡ると焦点はいつも打てる欄にある) {
    担当者から();
    for (int i = 0; i < 全行数 && !HasFatalFailure(); ++i) 一行(i);
    ASSERT_EQ(焦点(), u"出金伝票備考A"_qs);
    // Back from the remarks to the amount of the last line.
    f->画面.操作_ShiftTab();
    EXPECT_EQ(焦点(), u"出金金額(4)"_qs);
    // Back through every line; across the top row the grid scrolls up by one.
    QSet<int> 通った行;
    for (int k = 0; k < 80 && !(s.先頭行 == 0 && 焦点() == u"費目区分(0)"); ++k) {
        打てる欄に立つ();
        if (HasFailure()) return;
        通った行.insert(s.現在行);
        f->画面.操作_ShiftTab();
    }
    EXPECT_EQ(s.先頭行, 0);
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
    EXPECT_EQ(通った行.size(), 15);
    行を確かめる(全行数);
    // Typing where the focus stands reaches the line it shows.
    f->画面.操作_Tab();
    ASSERT_EQ(焦点(), u"支払先(0)"_qs);
    打ってTab(u"書き直し"_qs);
    EXPECT_EQ(s.行[0].支払先, u"書き直し"_qs);
}

TEST_F(キーだけの明細入力, 読み込んだ十五行の伝票をTabで全行たどれる) {
    十五行を登録して読む();
    if (HasFatalFailure()) return;
    ASSERT_EQ(焦点(), u"担当者コード"_qs);
    f->画面.操作_Tab();
    for (int i = 0; i < 全行数; ++i) {
        const int r = s.表示行;
        ASSERT_EQ(s.先頭行 + r, i);
        ASSERT_EQ(焦点(), 欄名(u"費目区分"_qs, r)) << "line " << i + 1;
        f->画面.操作_Tab();
        ASSERT_EQ(焦点(), 欄名(u"支払先"_qs, r)) << "line " << i + 1;
        f->画面.操作_Tab();
        ASSERT_EQ(焦点(), 欄名(u"摘要"_qs, r)) << "line " << i + 1;
        f->画面.操作_Tab();
        ASSERT_EQ(焦点(), 欄名(u"出金金額"_qs, r)) << "line " << i + 1;
        if (i == 全行数 - 2) {
            // A change on the fourteenth line on the way.
            打ってTab(u"1500"_qs);
        } else {
            f->画面.操作_Tab();
        }
    }
    EXPECT_EQ(焦点(), u"出金伝票備考A"_qs);
    EXPECT_EQ(s.行[13].出金金額, 金額::円(1500));
    EXPECT_TRUE(s.入力変更フラグ);
}

// The line buttons on a line below the fifth: the focus comes back to that line's class, and the
// keys go on from there along the line.
TEST_F(キーだけの明細入力, 六行目より下で行の釦を押しても焦点は行に戻りキーで続けられる) {
    担当者から();
    for (int i = 0; i < 9 && !HasFatalFailure(); ++i) 一行(i);
    ASSERT_EQ(s.先頭行, 5);
    ASSERT_EQ(焦点(), u"費目区分(4)"_qs);  // the blank tenth line

    // Copy the ninth line into the tenth, and type on along it.
    f->画面.操作_クリック(c(u"btn_行複写"_qs));
    EXPECT_EQ(s.最終行, 9);
    EXPECT_EQ(s.行[9].摘要, 摘要(8));
    EXPECT_EQ(焦点(), u"費目区分(4)"_qs);
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"支払先(4)"_qs);
    打ってTab(u"複写先"_qs);
    EXPECT_EQ(s.行[9].支払先, u"複写先"_qs);
    EXPECT_EQ(焦点(), u"摘要(4)"_qs);

    // Open a line above the copy (the eighth row of the slip stands on row 3) and fill it by keys.
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 3));
    ASSERT_EQ(s.現在行, 8);
    f->画面.操作_クリック(c(u"btn_行挿入"_qs));
    EXPECT_EQ(s.最終行, 10);
    EXPECT_EQ(焦点(), u"費目区分(3)"_qs);
    EXPECT_EQ(s.行[9].摘要, 摘要(8));
    打ってTab(u"05"_qs);
    EXPECT_EQ(焦点(), u"支払先(3)"_qs);
    打ってTab(u"挿入先"_qs);
    打ってTab(u"会食"_qs);
    打ってTab(u"3000"_qs);
    EXPECT_EQ(焦点(), u"費目区分(4)"_qs);
    EXPECT_EQ(s.行[8].費目区分, 5);
    EXPECT_EQ(s.行[8].摘要, u"会食"_qs);
    EXPECT_EQ(s.行[8].出金金額, 金額::円(3000));

    // Clear the line on row 4 (the tenth of the slip): the next line moves up into its place.
    ASSERT_EQ(s.現在行, 9);
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));
    EXPECT_EQ(s.最終行, 9);
    EXPECT_EQ(s.行[9].支払先, u"複写先"_qs);
    EXPECT_EQ(焦点(), u"費目区分(4)"_qs);
    EXPECT_EQ(s.現在行, 9);
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"支払先(4)"_qs);
    打ってTab(u"消した後"_qs);
    EXPECT_EQ(s.行[9].支払先, u"消した後"_qs);
}

}  // namespace
