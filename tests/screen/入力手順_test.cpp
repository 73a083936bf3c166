#include "入力画面試験.h"

namespace {

// Whole sittings at the screen, replayed key by key.
class 入力手順 : public 入力画面試験 {
  protected:
    void 打ってTab(const QString& 文字列) {
        if (部品* p = f->画面.フォーカス(); p && !文字列.isNull()) f->画面.操作_入力(*p, 文字列);
        f->画面.操作_Tab();
    }
    // Tab on until the focus stands on the named field (the lists of a row take Tab stops
    // only once the row has been drawn with a class).
    void Tabで(const QString& 名前) {
        for (int i = 0; i < 6 && f->画面.フォーカス()->名前 != 名前; ++i) f->画面.操作_Tab();
        ASSERT_EQ(f->画面.フォーカス()->名前, 名前);
    }
    void 一行(const QString& 区分, const QString& 支払先, const QString& 摘要,
              const QString& 金額) {
        打ってTab(区分);
        Tabで(u"支払先"_qs);
        打ってTab(支払先);
        打ってTab(摘要);
        打ってTab(金額);
    }
};

TEST_F(入力手順, 新しい伝票を担当者から七行と備考まで打ち備考Bを抜けると登録が求められる) {
    int 登録 = 0;
    基盤.画面表示時 = [&](const QString& 名) { 登録 += 名 == u"msg印刷確認"; };
    f->フォーカス設定(c(u"担当者コード"_qs));
    ASSERT_EQ(焦点(), u"担当者コード"_qs);
    打ってTab(u"3"_qs);
    EXPECT_EQ(s.見出し.担当者コード, u"00003"_qs);
    EXPECT_EQ(s.見出し.部門名, u"総務部"_qs);
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
    for (int i = 0; i < 7; ++i) {
        一行(u"3"_qs, u"東京交通"_qs, u"タクシー代"_qs, QString::number(1000 * (i + 1)));
        if (i == 4) {
            // The end of the fifth row scrolled the grid by one.
            EXPECT_EQ(s.先頭行, 1);
            EXPECT_EQ(焦点(), u"費目区分(4)"_qs);
        }
    }
    EXPECT_EQ(s.最終行, 6);
    EXPECT_EQ(s.先頭行, 3);
    EXPECT_EQ(s.行[6].出金金額, 金額::円(7000));
    EXPECT_EQ(s.行[6].出金消費税, 金額::円(700));  // class 1 adds 10% on top
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(28000));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(2800));
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"28,000"_qs);
    EXPECT_EQ(焦点(), u"費目区分(4)"_qs);  // the blank eighth line
    // Into the remarks by click, two lines of text, and Tab out of the second.
    f->画面.操作_入力(c(u"出金伝票備考A"_qs), u"出張精算"_qs);
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"出金伝票備考B"_qs);
    f->画面.操作_入力(c(u"出金伝票備考B"_qs), u"十一月分"_qs);
    f->画面.操作_Tab();
    EXPECT_EQ(s.見出し.出金伝票備考A, u"出張精算"_qs);
    EXPECT_EQ(s.見出し.出金伝票備考B, u"十一月分"_qs);
    EXPECT_EQ(登録, 1);
    // The question closed by its frame stores nothing, and the focus is back on the remark.
    EXPECT_EQ(焦点(), u"出金伝票備考B"_qs);
    EXPECT_TRUE(c(u"btn_登録"_qs).Enabled);
    EXPECT_FALSE(c(u"btn_削除"_qs).Enabled);
}

TEST_F(入力手順, 行のある伝票で日付を変えると税率と税が付いてくる) {
    f->フォーカス設定(c(u"担当者コード"_qs));
    打ってTab(u"3"_qs);
    一行(u"3"_qs, u"文具店"_qs, u"用紙"_qs, u"1000"_qs);
    EXPECT_EQ(s.行[0].出金消費税, 金額::円(100));
    // Back to 2019-09-30, the last day of 8%.
    f->画面.操作_入力(c(u"出金日付年"_qs), u"2019"_qs);
    f->画面.操作_入力(c(u"出金日付月"_qs), u"9"_qs);
    f->画面.操作_入力(c(u"出金日付日"_qs), u"30"_qs);
    f->画面.操作_Tab();
    EXPECT_EQ(s.見出し.出金日付, u"20190930"_qs);
    EXPECT_EQ(c(u"出金日付月"_qs).Text, u"09"_qs);
    EXPECT_EQ(s.見出し.今回税率, 金額::円(8));
    EXPECT_TRUE(s.見出し.前回税率.ゼロか());
    EXPECT_EQ(s.行[0].消費税率, 金額::円(8));
    EXPECT_EQ(s.行[0].出金消費税, 金額::円(80));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(80));
    EXPECT_EQ(s.見出し.番号基準日付, u"20200331"_qs);
    EXPECT_EQ(c(u"出金消費税"_qs, 0).Text, u"80"_qs);
}

TEST_F(入力手順, 保存済みの伝票を番号で読み変えてから次の伝票へ移る) {
    for (const char16_t* No : {u"00000005", u"00000006"}) {
        試験伝票 t;
        t.出金No = QString::fromUtf16(No);
        t.出金日付 = u"20251118"_qs;
        t.行数 = 3;
        ASSERT_TRUE(伝票投入(木, t));
    }
    f->画面.操作_入力(c(u"出金No"_qs), u"5"_qs);
    f->画面.操作_Tab();
    EXPECT_EQ(s.見出し.出金No, u"00000005"_qs);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_EQ(s.最終行, 2);
    EXPECT_EQ(c(u"摘要"_qs, 1).Text, u"摘要002"_qs);
    EXPECT_FALSE(c(u"btn_登録"_qs).Enabled);
    EXPECT_TRUE(c(u"btn_削除"_qs).Enabled);
    // A change to the second line's amount.
    f->画面.操作_入力(c(u"出金金額"_qs, 1), u"2500"_qs);
    f->画面.操作_Tab();
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(s.行[1].出金金額, 金額::円(2500));
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(6500));
    EXPECT_TRUE(c(u"btn_登録"_qs).Enabled);
    // Stepping away to the next slip.
    ASSERT_TRUE(s.次No確認());
    ASSERT_TRUE(s.次No読込());
    f->画面全表示();
    f->スクロール更新();
    EXPECT_EQ(s.見出し.出金No, u"00000006"_qs);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000006"_qs);
    EXPECT_EQ(c(u"出金金額"_qs, 1).Text, u"2000"_qs);
}

TEST_F(入力手順, 明細を押しても見出しの空きへ戻される) {
    s.見出し.出金No.clear();
    f->見出し表示();
    f->画面.操作_クリック(c(u"bak_dtla"_qs, 2));
    EXPECT_EQ(焦点(), u"出金No"_qs);
}

}  // namespace
