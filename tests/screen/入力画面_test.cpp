#include <QFile>

#include "screen/次項目補正.h"
#include "入力画面試験.h"

namespace {

class 入力画面 : public 入力画面試験 {};

TEST_F(入力画面, 配置は題名と幅と長さの制限と一覧を整える) {
    EXPECT_EQ(f->画面.Caption, u"株式会社紺碧商事（紺碧帳）"_qs);
    EXPECT_EQ(f->画面.Width, 12375);
    EXPECT_EQ(f->画面.Height, 9300 + 435 + 380);
    EXPECT_EQ(c(u"出金No"_qs).MaxLength, 8);
    EXPECT_EQ(c(u"担当者コード"_qs).MaxLength, 5);
    EXPECT_EQ(c(u"部門コード"_qs).MaxLength, 3);
    EXPECT_EQ(c(u"セクションコード"_qs).MaxLength, 3);
    for (int r = 0; r < 5; ++r) {
        EXPECT_EQ(c(u"費目区分名称"_qs, r).一覧.size(), 10);
        EXPECT_EQ(c(u"費目区分名称"_qs, r).一覧.first(), u"旅費交通費"_qs);
        EXPECT_EQ(c(u"内税外税区分名称"_qs, r).一覧.size(), 3);
        EXPECT_EQ(c(u"費目区分"_qs, r).Max, 10);
        EXPECT_EQ(c(u"費目区分"_qs, r).Min, 0);
    }
    EXPECT_EQ(c(u"scl_行"_qs).LargeChange, 5);
    EXPECT_EQ(f->状態.先頭入力項目, &c(u"担当者コード"_qs));
    EXPECT_EQ(f->状態.入力中項目, &c(u"担当者コード"_qs));
}

// The head office of a company with branches works for all of it; the operator checked at the
// start stands in the title panel.
TEST_F(入力画面, 題の枠は全社と操作者の名前を示す) {
    EXPECT_EQ(c(u"prg_ttl"_qs).Caption, u"紺碧帳(全社)「青木 翔太」"_qs);
}

TEST_F(入力画面, 見出しの順番と止まる項目は表の通り) {
    const char16_t* 順[] = {u"出金日付年",       u"出金日付月",   u"出金日付日", u"出金No",
                            u"担当者コード",     u"担当者名",     u"部門コード", u"部門名",
                            u"セクションコード", u"セクション名", u"出張申請No", u"ヘッド終了"};
    for (int i = 0; i < 12; ++i) EXPECT_EQ(c(QString::fromUtf16(順[i])).TabIndex, i);
    EXPECT_FALSE(c(u"担当者名"_qs).TabStop);
    EXPECT_FALSE(c(u"部門コード"_qs).TabStop);
    EXPECT_FALSE(c(u"セクション名"_qs).TabStop);
    EXPECT_TRUE(c(u"出張申請No"_qs).TabStop);
    EXPECT_EQ(c(u"費目区分"_qs, 3).TabIndex, 42);
    EXPECT_EQ(c(u"頁1終了"_qs, 4).TabIndex, 61);
    EXPECT_FALSE(c(u"内税外税区分"_qs, 0).TabStop);
    EXPECT_FALSE(c(u"消費税率"_qs, 0).TabStop);
    EXPECT_FALSE(c(u"出金消費税"_qs, 0).TabStop);
    EXPECT_FALSE(c(u"費目区分名称"_qs, 2).TabStop);
    EXPECT_FALSE(c(u"内税外税区分名称"_qs, 2).TabStop);
    EXPECT_EQ(c(u"出金伝票備考A"_qs).TabIndex, 62);
    EXPECT_EQ(c(u"テイル終了"_qs).TabIndex, 64);
    EXPECT_EQ(c(u"btn_終了"_qs).TabIndex, 67);
    EXPECT_EQ(c(u"btn_次No"_qs).Caption, u"▲"_qs);
    EXPECT_EQ(c(u"btn_行複写"_qs).Caption, u"前行複写"_qs);
    EXPECT_EQ(c(u"tab_詳細"_qs).一覧, (QStringList{u"明細情報"_qs, u"付属書類"_qs}));
}

TEST_F(入力画面, 表示は見出しを書き人事連携がなければ出張申請を隠す) {
    EXPECT_EQ(c(u"出金日付年"_qs).Text, u"2025"_qs);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000001"_qs);
    EXPECT_FALSE(c(u"出張申請No"_qs).Visible);
    EXPECT_FALSE(c(u"btn_参照元No"_qs).Visible);
    EXPECT_FALSE(c(u"btn_帳票イメージ出力"_qs).Visible);
    EXPECT_FALSE(f->画面.表示中か());
    s.白樺連携フラグ = true;
    f->見出し表示();
    EXPECT_TRUE(c(u"出張申請No"_qs).Visible);
}

TEST_F(入力画面, 詳細初期化は棒とタブを閉じお知らせを消す) {
    c(u"お知らせ"_qs).Caption = u"x"_qs;
    c(u"tab_詳細"_qs).Value = 1;
    f->詳細初期化();
    EXPECT_FALSE(c(u"scl_行"_qs).Enabled);
    EXPECT_FALSE(c(u"tab_詳細"_qs).Enabled);
    EXPECT_EQ(c(u"tab_詳細"_qs).Value, 0);
    EXPECT_EQ(c(u"お知らせ"_qs).Caption, QString());
}

TEST_F(入力画面, 棒は五行で使えて最大1で十五行なら最大10) {
    見出しを埋める();
    行を入れる(4);
    EXPECT_FALSE(c(u"scl_行"_qs).Enabled);
    行を入れる(5);
    EXPECT_TRUE(c(u"scl_行"_qs).Enabled);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 1);
    行を入れる(9);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 5);
    行を入れる(15);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 10);
}

TEST_F(入力画面, 見出しに空きがあれば明細のどこを押しても空きへ戻る) {
    s.見出し.担当者コード.clear();
    f->見出し表示();
    f->画面.操作_フォーカス(c(u"摘要"_qs, 2));
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    f->画面.操作_クリック(c(u"bak_dtlb"_qs, 3));
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

TEST_F(入力画面, 一行だけのとき四行目を押すと二行目に行く) {
    見出しを埋める();
    行を入れる(1);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 3));
    EXPECT_EQ(焦点(), u"費目区分(1)"_qs);
    EXPECT_EQ(s.表示行, 1);
    EXPECT_EQ(s.現在行, 1);
}

TEST_F(入力画面, 空の行では費目区分より後ろに入れず費目区分へ戻る) {
    見出しを埋める();
    行を入れる(1);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 1));
    EXPECT_EQ(焦点(), u"費目区分(1)"_qs);
}

TEST_F(入力画面, 見出しの後ろの項目は最初の空きへ送られる) {
    s.見出し.出金No.clear();
    f->見出し表示();
    f->画面.操作_フォーカス(c(u"担当者コード"_qs));
    EXPECT_EQ(焦点(), u"出金No"_qs);
    f->画面.操作_フォーカス(c(u"出金日付月"_qs));
    EXPECT_EQ(焦点(), u"出金日付月"_qs);  // before the gap: allowed
}

TEST_F(入力画面, 担当者コードからのTabはヘッド終了を経て一行目の費目区分に着く) {
    見出しを埋める();
    f->画面.操作_フォーカス(c(u"担当者コード"_qs));
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
    EXPECT_TRUE(c(u"tab_詳細"_qs).Enabled);
}

TEST_F(入力画面, 人事連携があれば担当者コードからのTabは出張申請Noに行く) {
    s.白樺連携フラグ = true;
    見出しを埋める();
    f->画面.操作_フォーカス(c(u"担当者コード"_qs));
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"出張申請No"_qs);
}

TEST_F(入力画面, 付属書類の頁では棒が隠れ見出しからのTabは一覧に着く) {
    見出しを埋める();
    f->ボタン状態更新();
    f->画面.操作_値変更(c(u"tab_詳細"_qs), 1);
    EXPECT_FALSE(c(u"scl_行"_qs).Visible);
    f->画面.操作_フォーカス(c(u"担当者コード"_qs));
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"List付属書類"_qs);
    f->画面.操作_値変更(c(u"tab_詳細"_qs), 0);
    EXPECT_TRUE(c(u"scl_行"_qs).Visible);
    // Back on page 0 the focus is sent to the description, which on a slip without a line
    // the guard turns back to the expense class.
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
}

TEST_F(入力画面, 一行目から戻るTabは摘要に入る) {
    見出しを埋める();
    行を入れる(1);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    f->画面.操作_ShiftTab();
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
}

TEST_F(入力画面, 頁1終了は前へなら次の行へ戻りなら金額へ) {
    見出しを埋める();
    行を入れる(3);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 1));
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"費目区分(2)"_qs);
    f->画面.操作_ShiftTab();
    EXPECT_EQ(焦点(), u"出金金額(1)"_qs);
}

TEST_F(入力画面, 最後の行の次の空行から先は備考Aへ行く) {
    見出しを埋める();
    行を入れる(2);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 2));
    s.現在行 = 2;
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 2));
    EXPECT_EQ(焦点(), u"費目区分(2)"_qs);  // the blank row takes its class first
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 1));
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"費目区分(2)"_qs);
}

TEST_F(入力画面, 五行目の終わりで棒が一つ下がり五行目の費目区分に立つ) {
    見出しを埋める();
    行を入れる(5);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 4));
    f->画面.操作_Tab();
    EXPECT_EQ(c(u"scl_行"_qs).Value, 1);
    EXPECT_EQ(s.先頭行, 1);
    EXPECT_EQ(焦点(), u"費目区分(4)"_qs);
}

TEST_F(入力画面, 十五行目の終わりは備考Aへ行く) {
    見出しを埋める();
    行を入れる(15);
    f->画面.操作_値変更(c(u"scl_行"_qs), 10);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 4));
    EXPECT_EQ(s.現在行, 14);
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"出金伝票備考A"_qs);
}

TEST_F(入力画面, 行のない伝票では備考に入れず一行目へ戻る) {
    見出しを埋める();
    f->画面.操作_フォーカス(c(u"出金伝票備考A"_qs));
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
}

TEST_F(入力画面, 変更のあと備考Bを抜けると登録が求められ先頭の項目に戻る) {
    見出しを埋める();
    行を入れる(1);
    auto 求め = [this] { return 基盤.表示画面.count({u"msg印刷確認"_qs, true}); };
    // The operator declines the question: only its coming is looked at here.
    基盤.画面表示時 = [this](const QString& 名) {
        if (名 == u"msg印刷確認")
            f->印刷確認.画面.操作_クリック(f->印刷確認.画面(u"btn_いいえ"_qs));
    };
    f->画面.操作_フォーカス(c(u"出金伝票備考B"_qs));
    f->画面.操作_Tab();
    EXPECT_EQ(求め(), 0);  // nothing changed yet
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    s.入力変更フラグ = true;
    f->画面.操作_フォーカス(c(u"出金伝票備考B"_qs));
    f->画面.操作_Tab();
    EXPECT_EQ(求め(), 1);
}

TEST_F(入力画面, 行挿入は十五行目で行複写は一行目で使えない) {
    見出しを埋める();
    行を入れる(15);
    f->画面.操作_値変更(c(u"scl_行"_qs), 10);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 4));
    EXPECT_EQ(s.現在行, 14);
    EXPECT_FALSE(c(u"btn_行挿入"_qs).Enabled);
    行を入れる(14);  // fourteen lines: the fifteenth can still be opened
    f->画面.操作_値変更(c(u"scl_行"_qs), 0);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    EXPECT_EQ(s.現在行, 0);
    EXPECT_TRUE(c(u"btn_行挿入"_qs).Enabled);
    EXPECT_FALSE(c(u"btn_行複写"_qs).Enabled);
    EXPECT_TRUE(c(u"btn_行クリア"_qs).Enabled);
}

TEST_F(入力画面, 保存済みの伝票は変わるまで登録できず削除と印刷はできる) {
    見出しを埋める();
    行を入れる(2);
    s.新規情報フラグ = false;
    s.入力変更フラグ = false;
    f->ボタン状態更新();
    EXPECT_FALSE(c(u"btn_登録"_qs).Enabled);
    EXPECT_TRUE(c(u"btn_削除"_qs).Enabled);
    EXPECT_TRUE(c(u"btn_印刷"_qs).Enabled);
    s.入力変更フラグ = true;
    f->ボタン状態更新();
    EXPECT_TRUE(c(u"btn_登録"_qs).Enabled);
    s.新規情報フラグ = true;
    f->ボタン状態更新();
    EXPECT_FALSE(c(u"btn_削除"_qs).Enabled);
    EXPECT_FALSE(c(u"btn_プレビュ"_qs).Enabled);
}

TEST_F(入力画面, 担当者が空なら部門と所属の釦とタブが閉じる) {
    見出しを埋める();
    f->ボタン状態更新();
    EXPECT_TRUE(c(u"btn_部門コード"_qs).Enabled);
    s.見出し.担当者コード.clear();
    f->ボタン状態更新();
    EXPECT_FALSE(c(u"btn_部門コード"_qs).Enabled);
    EXPECT_FALSE(c(u"btn_セクションコード"_qs).Enabled);
    EXPECT_FALSE(c(u"tab_詳細"_qs).Enabled);
}

TEST_F(入力画面, 必須項目案内は空きを知らせその行に立つ) {
    見出しを埋める();
    行を入れる(8);
    s.行[6].費目区分 = 0;
    EXPECT_FALSE(f->必須項目案内());
    EXPECT_EQ(c(u"お知らせ"_qs).Caption, u"必須項目が未入力です。"_qs);
    EXPECT_EQ(s.現在行, 6);
    EXPECT_EQ(s.表示行, 1);
    EXPECT_EQ(s.先頭行, 5);
    EXPECT_EQ(焦点(), u"費目区分(1)"_qs);
    int 区分 = 0, 行 = 0, 序数 = 0;
    s.見出し.部門コード.clear();
    EXPECT_FALSE(f->必須項目確認(区分, 行, 序数));
    EXPECT_EQ(区分, 1);
    EXPECT_EQ(序数, 6);
}

TEST_F(入力画面, 名前の欄は次の項目へ送る) {
    見出しを埋める();
    f->画面.操作_フォーカス(c(u"出金No"_qs));
    f->画面.操作_フォーカス(c(u"部門名"_qs));
    EXPECT_EQ(焦点(), u"部門コード"_qs);
    f->画面.操作_フォーカス(c(u"部門名"_qs));
    EXPECT_EQ(焦点(), u"セクションコード"_qs);
}

TEST_F(入力画面, 日付の題の枠を押すと年を得たのと同じで空きの前なら焦点は動かない) {
    f->画面.操作_フォーカス(c(u"出金No"_qs));
    f->画面.操作_クリック(c(u"itm_ttl_出金日付"_qs));
    // The year's got-focus ran: it is the item being entered, and nothing sent the focus on.
    EXPECT_EQ(f->状態.入力中項目, &c(u"出金日付年"_qs));
    EXPECT_EQ(焦点(), u"出金No"_qs);
}

TEST_F(入力画面, 列の題の枠を押すと今の行のその項目を得たのと同じく空きへ送られる) {
    f->画面.操作_クリック(c(u"itm_ttl_支払先"_qs));
    EXPECT_EQ(焦点(), u"担当者コード"_qs);  // the header's gap
    見出しを埋める();
    f->画面.操作_クリック(c(u"itm_ttl_出金金額"_qs));
    // The first row has no class yet: the amount is a later item of that line.
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
    EXPECT_EQ(f->状態.入力中項目, &c(u"費目区分"_qs, 0));
    EXPECT_FALSE(c(u"btn_行複写"_qs).Enabled);
}

TEST_F(入力画面, 合計の題の枠を押すと備考を得たのと同じで行のない伝票は一行目へ) {
    見出しを埋める();
    for (const char16_t* 枠 :
         {u"itm_ttl_出金伝票備考", u"itm_ttl_出金合計", u"itm_ttl_実質出金金額合計", u"bak_合計"}) {
        f->画面.操作_フォーカス(c(u"出金No"_qs));
        f->画面.操作_クリック(c(QString::fromUtf16(枠)));
        EXPECT_EQ(焦点(), u"費目区分(0)"_qs) << QString::fromUtf16(枠).toStdString();
    }
}

TEST_F(入力画面, 内税外税の題の枠は行の内税外税区分として案内する) {
    行を打つ(2);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 1));
    f->画面.操作_クリック(c(u"itm_ttl_内税外税"_qs));
    EXPECT_EQ(f->状態.入力中項目, &c(u"内税外税区分"_qs, 1));
    EXPECT_EQ(s.表示行, 1);
    EXPECT_EQ(焦点(), u"摘要(1)"_qs);  // the item is already the one being entered
}

TEST_F(入力画面, 題名の枠を押すと離れた項目へ戻る) {
    f->画面.操作_フォーカス(c(u"出金No"_qs));
    f->画面.操作_フォーカス(c(u"出金日付月"_qs));
    f->画面.操作_クリック(c(u"prg_ttl"_qs));
    EXPECT_EQ(焦点(), u"出金No"_qs);
}

TEST_F(入力画面, Manualの枠は手引きのフォルダの紺碧帳docを開く) {
    f->画面.操作_クリック(c(u"manualpanel"_qs));
    const QString 手引き = 木.根() + u"/manual/紺碧帳.doc"_qs;
    EXPECT_EQ(基盤.開いた文書, QStringList{手引き});
    EXPECT_TRUE(QFile::exists(手引き));  // the sample tree carries it
    QFile 中身(手引き);
    ASSERT_TRUE(中身.open(QIODevice::ReadOnly));
    EXPECT_TRUE(中身.readAll().startsWith("{\\rtf1"));
}

TEST_F(入力画面, 押した行の釦は焦点を取るので戻った焦点で釦の状態が改まる) {
    行を打つ(2);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 1));
    ASSERT_TRUE(c(u"btn_行挿入"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_行挿入"_qs));
    ASSERT_EQ(s.最終行, 2);
    // The new empty line is where the focus came back to: no insert there, but a copy.
    EXPECT_EQ(焦点(), u"費目区分(1)"_qs);
    EXPECT_FALSE(c(u"btn_行挿入"_qs).Enabled);
    EXPECT_TRUE(c(u"btn_行複写"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_行複写"_qs));
    EXPECT_EQ(s.行[1].費目区分, 3);
    EXPECT_TRUE(c(u"btn_行挿入"_qs).Enabled);
    EXPECT_FALSE(c(u"btn_行複写"_qs).Enabled);
}

TEST_F(入力画面, 付属書類の頁の部品は明細の頁では見えずTabも止まらない) {
    EXPECT_FALSE(f->画面.見えるか(c(u"List付属書類"_qs)));
    EXPECT_TRUE(f->画面.見えるか(c(u"摘要"_qs, 0)));
    見出しを埋める();
    f->画面.操作_フォーカス(c(u"出金No"_qs));  // the guard opens the tab once the header is whole
    ASSERT_TRUE(c(u"tab_詳細"_qs).Enabled);
    f->画面.操作_値変更(c(u"tab_詳細"_qs), 1);
    EXPECT_TRUE(f->画面.見えるか(c(u"List付属書類"_qs)));
    EXPECT_FALSE(f->画面.見えるか(c(u"摘要"_qs, 0)));
    EXPECT_FALSE(f->画面.見えるか(c(u"itm_ttl_支払先"_qs)));
    EXPECT_TRUE(f->画面.見えるか(c(u"費目区分"_qs, 0)));  // the left block stays
    f->画面.操作_フォーカス(c(u"摘要"_qs, 0));
    EXPECT_NE(焦点(), u"摘要(0)"_qs);
}

TEST(次項目補正, 使えない次の項目はタブ順で次に使える項目へ) {
    画面モデル m(u"t"_qs);
    auto& a = m.追加(u"a"_qs, 部品種別::xField);
    a.TabIndex = 1;
    auto& b = m.追加(u"b"_qs, 部品種別::xField);
    b.TabIndex = 2;
    auto& l = m.追加(u"l"_qs, 部品種別::VScrollBar);
    l.TabIndex = 3;
    auto& d = m.追加(u"d"_qs, 部品種別::SSCommand);
    d.TabIndex = 4;
    EXPECT_EQ(次項目補正(m, &a), &a);
    a.Enabled = false;
    EXPECT_EQ(次項目補正(m, &a), &b);
    b.Visible = false;
    EXPECT_EQ(次項目補正(m, &a), &d);  // the scroll bar is never chosen
    d.TabStop = false;
    EXPECT_EQ(次項目補正(m, &a), &a);  // none: the reference stays
}

TEST(次項目補正, 同じタブ順なら後に歩いた方が勝つ) {
    画面モデル m(u"t"_qs);
    auto& a = m.追加(u"a"_qs, 部品種別::xField);
    a.TabIndex = 5;
    a.Enabled = false;
    auto& b = m.追加(u"b"_qs, 部品種別::xNum);
    b.TabIndex = 6;
    auto& c2 = m.追加(u"c"_qs, 部品種別::xText);
    c2.TabIndex = 6;
    EXPECT_EQ(次項目補正(m, &a), &c2);
}

TEST_F(入力画面, フォーカス設定は使えない項目の先に行く) {
    見出しを埋める();
    c(u"担当者コード"_qs).Enabled = false;
    f->フォーカス設定(c(u"担当者コード"_qs));
    // The header end takes it and passes it on to the first row.
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
}

}  // namespace
