#include <QMap>

#include "入力画面試験.h"

namespace {

// Every field of a line by name, as text, so that whole lines compare at once.
QMap<QString, QString> 欄(const 出金行& l) {
    return {
        {u"費目区分"_qs, QString::number(l.費目区分)},
        {u"費目区分名称"_qs, l.費目区分名称},
        {u"内税外税区分"_qs, QString::number(l.内税外税区分)},
        {u"消費税率"_qs, l.消費税率.文字列()},
        {u"出金金額"_qs, l.出金金額.文字列()},
        {u"出金消費税"_qs, l.出金消費税.文字列()},
        {u"実質出金金額"_qs, l.実質出金金額.文字列()},
        {u"税抜出金金額"_qs, l.税抜出金金額.文字列()},
        {u"税込出金金額"_qs, l.税込出金金額.文字列()},
        {u"支払先"_qs, l.支払先},
        {u"課税事業所区分"_qs, QString::number(l.課税事業所区分)},
        {u"摘要"_qs, l.摘要},
        {u"明細メモ"_qs, l.明細メモ},
        {u"出金固有行No"_qs, l.出金固有行No},
        {u"出金行No"_qs, l.出金行No},
        {u"承認日付"_qs, l.承認日付},
        {u"承認者コード"_qs, l.承認者コード},
        {u"承認区分"_qs, l.承認区分},
        {u"登録日付"_qs, l.登録日付},
        {u"更新日付"_qs, l.更新日付},
    };
}

// The fields that moving or copying a line carries; the others stay with the slot.
const QStringList 写る欄 = {
    u"費目区分"_qs,   u"内税外税区分"_qs, u"消費税率"_qs,       u"出金金額"_qs,
    u"出金消費税"_qs, u"支払先"_qs,       u"課税事業所区分"_qs, u"摘要"_qs,
    u"明細メモ"_qs,   u"出金固有行No"_qs, u"費目区分名称"_qs,   u"実質出金金額"_qs,
    u"承認日付"_qs,   u"承認者コード"_qs,
};

// What a slot holds after the line 元 was written over the slot 先.
QMap<QString, QString> 写した後(const QMap<QString, QString>& 元, QMap<QString, QString> 先) {
    for (const QString& 名 : 写る欄) 先[名] = 元[名];
    return 先;
}

QMap<QString, QString> 空の行(const QString& 行No = {}) {
    出金行 l;
    l.出金行No = 行No;
    return 欄(l);
}

class 明細試験 : public 入力画面試験 {
  protected:
    // The header complete and the rows shown again, as after any display of the slip.
    void 準備() {
        見出しを埋める();
        f->明細表示();
    }
    // A stored-looking line in which every field differs from those of the other lines.
    void 行を作る(int i) {
        出金行& l = s.行[i];
        const QString n = QString::number(i + 1).rightJustified(3, u'0');
        const bool 内税 = i % 2 == 1;
        l.費目区分 = 内税 ? 1 : 3;
        l.費目区分名称 = 内税 ? u"旅費交通費"_qs : u"消耗品費"_qs;
        l.内税外税区分 = 内税 ? 2 : 1;
        l.消費税率 = 金額::円(10);
        l.出金金額 = 金額::円(1000 * (i + 1));
        l.出金消費税 = 金額::円(10 * (i + 1));
        l.実質出金金額 = 金額::円(1100 * (i + 1));
        l.税抜出金金額 = 金額::円(900 + i);
        l.税込出金金額 = 金額::円(1200 + i);
        l.支払先 = u"支払先"_qs + n;
        l.課税事業所区分 = static_cast<short>(i % 2);
        l.摘要 = u"摘要"_qs + n;
        l.明細メモ = u"メモ"_qs + n;
        l.出金固有行No = n;
        l.出金行No = n;
        l.承認日付 = u"202510"_qs + n.right(2);
        l.承認者コード = u"00"_qs + n;
        l.承認区分 = QString::number(i % 3);
        l.登録日付 = u"20251001 100"_qs + n;
        l.更新日付 = u"20251002 100"_qs + n;
    }
    // A stored slip of n such lines on the screen, unchanged.
    void 伝票を置く(int n) {
        準備();
        for (int i = 0; i < n; ++i) 行を作る(i);
        s.最終行 = static_cast<short>(n - 1);
        s.新規情報フラグ = false;
        s.入力変更フラグ = false;
        s.合計再計算();
        f->明細表示();
        f->合計表示();
        f->スクロール更新();
    }
    QList<QMap<QString, QString>> 全行() const {
        QList<QMap<QString, QString>> 全;
        for (const auto& l : s.行) 全.append(欄(l));
        return 全;
    }
    // Scrolls the line into view, at the bottom row when it lies below the first five, and
    // steps into its expense class.
    void 行に立つ(int 明細) {
        const int 先頭 = 明細 < 5 ? 0 : 明細 - 4;
        if (c(u"scl_行"_qs).Value != 先頭) f->画面.操作_値変更(c(u"scl_行"_qs), 先頭);
        f->画面.操作_フォーカス(c(u"費目区分"_qs, 明細 - 先頭));
        ASSERT_EQ(s.現在行, 明細);
    }
    void 打つ(const QString& 名前, int 行, const QString& 文字列) {
        f->画面.操作_入力(c(名前, 行), 文字列);
        f->画面.操作_Tab();
    }
    QString 欄の字(const QString& 名前, int 行) { return c(名前, 行).Text; }
};

// ---- Row commits ----

class 明細確定 : public 明細試験 {};

TEST_F(明細確定, 費目区分は名称と区分と今日の税率を連れてくる) {
    準備();
    打つ(u"費目区分"_qs, 0, u"3"_qs);
    const auto& l = s.行[0];
    EXPECT_EQ(l.費目区分, 3);
    EXPECT_EQ(l.費目区分名称, u"消耗品費"_qs);
    EXPECT_EQ(l.内税外税区分, 1);
    EXPECT_EQ(l.消費税率, 金額::円(10));
    EXPECT_EQ(l.出金消費税, 金額());
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_FALSE(f->費目区分不正);
    EXPECT_EQ(c(u"費目区分名称"_qs, 0).ListIndex, 2);
    EXPECT_EQ(c(u"費目区分名称"_qs, 0).Text, u"消耗品費"_qs);
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 0).ListIndex, 1);
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 0).Text, u"外税"_qs);
    EXPECT_EQ(欄の字(u"内税外税区分"_qs, 0), u"1"_qs);
    EXPECT_EQ(欄の字(u"消費税率"_qs, 0), u"10"_qs);
    EXPECT_EQ(焦点(), u"支払先(0)"_qs);  // Tab passes the lists by
    EXPECT_EQ(s.最終行, 0);              // the row became a line when the focus entered its payee
}

TEST_F(明細確定, 金額を抜けると税と派生額と合計が続き次の行へ進む) {
    準備();
    打つ(u"費目区分"_qs, 0, u"3"_qs);
    s.お知らせ文言 = u"知らせ"_qs;
    打つ(u"出金金額"_qs, 0, u"1234"_qs);
    const auto& l = s.行[0];
    EXPECT_EQ(l.出金金額, 金額::円(1234));
    EXPECT_EQ(l.出金消費税, 金額::円(123));
    EXPECT_EQ(l.税抜出金金額, 金額::円(1234));
    EXPECT_EQ(l.税込出金金額, 金額::円(1357));
    EXPECT_EQ(l.実質出金金額, 金額::円(1357));
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(1234));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(123));
    EXPECT_EQ(s.合計.今回税率出金金額合計, 金額::円(1234));
    EXPECT_EQ(欄の字(u"出金消費税"_qs, 0), u"123"_qs);
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"1,234"_qs);
    EXPECT_EQ(c(u"実質出金金額合計"_qs).Text, u"1,357"_qs);
    EXPECT_EQ(c(u"お知らせ"_qs).Caption, u"知らせ"_qs);
    EXPECT_EQ(焦点(), u"費目区分(1)"_qs);
}

TEST_F(明細確定, 費目区分の読み出しは書いたままの文で稼動履歴に残る) {
    準備();
    打つ(u"費目区分"_qs, 0, u"3"_qs);
    const auto 行 = 木.環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴 ORDER BY proccounter"_qs);
    QStringList 摘要;
    for (const auto& r : 行) 摘要.append(r.value(0).toString());
    EXPECT_TRUE(摘要.contains(
        u"出力終了 SELECT K費目区分.* FROM K費目区分 WHERE K費目区分.区分 = ''03''"_qs))
        << 摘要.join(u'\n').toStdString();
}

TEST_F(明細確定, 同じ費目区分を打ち直しても変更にならない) {
    伝票を置く(1);
    行に立つ(0);
    打つ(u"費目区分"_qs, 0, u"03"_qs);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_FALSE(f->費目区分確定(0, 3));
}

// A class that another user took out of the table after the screen had filled its lists.
void 区分を消す(試験用ツリー& 木, const QString& 区分) {
    ASSERT_TRUE(木.業務DB実行(u"DELETE FROM K費目区分 WHERE 区分 = '"_qs + 区分 + u"'"_qs));
}

TEST_F(明細確定, 知らない費目区分は0と外税になり率と金額と打った税は残る) {
    準備();
    打つ(u"費目区分"_qs, 0, u"3"_qs);
    打つ(u"出金金額"_qs, 0, u"1000"_qs);
    f->画面.操作_入力(c(u"出金消費税"_qs, 0), u"55"_qs);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    const 金額 前の合計 = s.合計.実質出金金額合計;
    区分を消す(木, u"09"_qs);
    打つ(u"費目区分"_qs, 0, u"9"_qs);
    const auto& l = s.行[0];
    EXPECT_EQ(l.費目区分, 0);
    EXPECT_EQ(l.内税外税区分, 1);
    EXPECT_EQ(l.消費税率, 金額::円(10));
    EXPECT_EQ(l.出金金額, 金額::円(1000));
    EXPECT_EQ(l.出金消費税, 金額::円(55));
    EXPECT_EQ(l.実質出金金額, 金額::円(1055));
    EXPECT_TRUE(f->費目区分不正);
    EXPECT_EQ(s.合計.実質出金金額合計, 前の合計);
    EXPECT_EQ(欄の字(u"費目区分"_qs, 0), u"0"_qs);
    EXPECT_EQ(c(u"費目区分名称"_qs, 0).ListIndex, -1);
    EXPECT_EQ(c(u"費目区分名称"_qs, 0).Text, QString());
    EXPECT_FALSE(c(u"費目区分名称"_qs, 0).Enabled);  // no class, and not past the lines
}

TEST_F(明細確定, 知らない区分の後で非課税の区分を打つと率と税は0で派生額は残る) {
    準備();
    打つ(u"費目区分"_qs, 0, u"3"_qs);
    打つ(u"出金金額"_qs, 0, u"1000"_qs);
    f->画面.操作_入力(c(u"出金消費税"_qs, 0), u"55"_qs);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    区分を消す(木, u"09"_qs);
    打つ(u"費目区分"_qs, 0, u"9"_qs);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    打つ(u"費目区分"_qs, 0, u"8"_qs);
    const auto& l = s.行[0];
    EXPECT_EQ(l.費目区分, 8);
    EXPECT_EQ(l.費目区分名称, u"租税公課"_qs);
    EXPECT_EQ(l.内税外税区分, 0);
    EXPECT_EQ(l.消費税率, 金額());
    EXPECT_EQ(l.出金消費税, 金額());
    EXPECT_EQ(l.実質出金金額, 金額::円(1000));
    EXPECT_EQ(l.税抜出金金額, 金額::円(1000));  // as the typed tax left them
    EXPECT_EQ(l.税込出金金額, 金額::円(1055));
    EXPECT_FALSE(f->費目区分不正);
    EXPECT_EQ(s.合計.実質出金金額合計, 金額::円(1000));
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 0).Text, u"非課税"_qs);
}

TEST_F(明細確定, 費目区分を変えると手で打った税は計算し直される) {
    準備();
    打つ(u"費目区分"_qs, 0, u"3"_qs);
    打つ(u"出金金額"_qs, 0, u"1000"_qs);
    f->画面.操作_入力(c(u"出金消費税"_qs, 0), u"95"_qs);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    EXPECT_EQ(s.行[0].出金消費税, 金額::円(95));
    EXPECT_EQ(s.行[0].実質出金金額, 金額::円(1095));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(95));
    打つ(u"費目区分"_qs, 0, u"10"_qs);
    EXPECT_EQ(s.行[0].費目区分名称, u"雑費"_qs);
    EXPECT_EQ(s.行[0].出金消費税, 金額::円(100));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(100));
}

TEST_F(明細確定, 区分を変えても率は残り非課税から外税へ移した行の税は0) {
    準備();
    打つ(u"費目区分"_qs, 0, u"8"_qs);
    打つ(u"出金金額"_qs, 0, u"1000"_qs);
    f->画面.操作_フォーカス(c(u"内税外税区分名称"_qs, 0));
    f->画面.操作_値変更(c(u"内税外税区分名称"_qs, 0), 1);
    const auto& l = s.行[0];
    EXPECT_EQ(l.内税外税区分, 1);
    EXPECT_EQ(l.消費税率, 金額());
    EXPECT_EQ(l.出金消費税, 金額());
    EXPECT_EQ(l.税抜出金金額, 金額::円(1000));
    EXPECT_EQ(l.税込出金金額, 金額::円(1000));
    EXPECT_EQ(l.実質出金金額, 金額::円(1000));
    EXPECT_EQ(欄の字(u"内税外税区分"_qs, 0), u"1"_qs);
    // A rate typed by hand is kept and the tax follows it.
    f->画面.操作_入力(c(u"消費税率"_qs, 0), u"8"_qs);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 0));
    EXPECT_EQ(l.消費税率, 金額::円(8));
    EXPECT_EQ(l.出金消費税, 金額::円(80));
    EXPECT_EQ(l.実質出金金額, 金額::円(1080));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(80));
    EXPECT_EQ(s.合計.前回税率出金消費税合計, 金額::円(80));
    // Inclusive at the same rate: the tax is found inside the amount and shows in its colour.
    f->画面.操作_値変更(c(u"内税外税区分名称"_qs, 0), 2);
    EXPECT_EQ(l.消費税率, 金額::円(8));
    EXPECT_EQ(l.出金消費税, 金額::円(74));
    EXPECT_EQ(l.税抜出金金額, 金額::円(926));
    EXPECT_EQ(l.税込出金金額, 金額::円(1000));
    EXPECT_EQ(l.実質出金金額, 金額::円(1000));
    EXPECT_EQ(c(u"出金消費税"_qs, 0).ForeColor, 0x8080FF);
    EXPECT_EQ(c(u"出金消費税合計"_qs).Text, u"74"_qs);
}

TEST_F(明細確定, 内税外税区分は番号でも入る) {
    伝票を置く(1);
    行に立つ(0);
    s.入力変更フラグ = false;
    打つ(u"内税外税区分"_qs, 0, u"2"_qs);
    EXPECT_EQ(s.行[0].内税外税区分, 2);
    EXPECT_EQ(s.行[0].出金消費税, 金額::円(91));  // 1000 at 10% inclusive
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 0).ListIndex, 2);
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 0).Text, u"内税"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
}

TEST_F(明細確定, 一覧で選んだ費目はその位置に1を足した区分) {
    準備();
    f->画面.操作_フォーカス(c(u"費目区分名称"_qs, 0));
    f->画面.操作_値変更(c(u"費目区分名称"_qs, 0), 0);
    const auto& l = s.行[0];
    EXPECT_EQ(l.費目区分, 1);
    EXPECT_EQ(l.費目区分名称, u"旅費交通費"_qs);
    EXPECT_EQ(l.内税外税区分, 2);
    EXPECT_EQ(l.消費税率, 金額::円(10));
    EXPECT_EQ(欄の字(u"費目区分"_qs, 0), u"1"_qs);
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 0).Text, u"内税"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
}

TEST_F(明細確定, 手で打った税はそのまま入り合計も続く) {
    伝票を置く(1);
    行に立つ(0);
    f->画面.操作_入力(c(u"出金消費税"_qs, 0), u"95"_qs);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    const auto& l = s.行[0];
    EXPECT_EQ(l.出金消費税, 金額::円(95));
    EXPECT_EQ(l.税抜出金金額, 金額::円(1000));
    EXPECT_EQ(l.税込出金金額, 金額::円(1095));
    EXPECT_EQ(l.実質出金金額, 金額::円(1095));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(95));
    EXPECT_EQ(c(u"出金消費税合計"_qs).Text, u"95"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
}

TEST_F(明細確定, 非課税の行に打った税は0になるが変更として数える) {
    準備();
    打つ(u"費目区分"_qs, 0, u"8"_qs);
    打つ(u"出金金額"_qs, 0, u"1000"_qs);
    s.入力変更フラグ = false;
    f->画面.操作_入力(c(u"出金消費税"_qs, 0), u"5"_qs);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    EXPECT_EQ(s.行[0].出金消費税, 金額());
    EXPECT_EQ(欄の字(u"出金消費税"_qs, 0), u"0"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_TRUE(f->出金消費税確定(0, 金額::円(5)));
    EXPECT_FALSE(f->出金消費税確定(0, 金額()));
}

TEST_F(明細確定, 支払先を入れると課税事業所になり空にしても印は残る) {
    伝票を置く(1);  // line 0 is not a taxable office
    行に立つ(0);
    打つ(u"支払先"_qs, 0, u"紺碧文具"_qs);
    EXPECT_EQ(s.行[0].支払先, u"紺碧文具"_qs);
    EXPECT_EQ(s.行[0].課税事業所区分, 1);
    EXPECT_EQ(c(u"chb_課税事業所区分"_qs, 0).Value, 1);
    打つ(u"支払先"_qs, 0, QString());
    EXPECT_EQ(s.行[0].支払先, QString());
    EXPECT_EQ(s.行[0].課税事業所区分, 1);
    EXPECT_EQ(c(u"chb_課税事業所区分"_qs, 0).Value, 1);
}

TEST_F(明細確定, 印を外した後で支払先を空にしても外れたまま) {
    伝票を置く(2);  // line 1 has a payee and the flag
    行に立つ(1);
    f->画面.操作_値変更(c(u"chb_課税事業所区分"_qs, 1), 0);
    EXPECT_EQ(s.行[1].課税事業所区分, 0);
    打つ(u"支払先"_qs, 1, QString());
    EXPECT_EQ(s.行[1].課税事業所区分, 0);
    EXPECT_EQ(c(u"chb_課税事業所区分"_qs, 1).Value, 0);
}

TEST_F(明細確定, 課税事業所の印は変更になり行だけを描き直す) {
    伝票を置く(1);
    行に立つ(0);
    c(u"出金金額合計"_qs).Text = u"未描画"_qs;
    c(u"支払先"_qs, 0).Text = u"未描画"_qs;
    f->画面.操作_値変更(c(u"chb_課税事業所区分"_qs, 0), 1);
    EXPECT_EQ(s.行[0].課税事業所区分, 1);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(欄の字(u"支払先"_qs, 0), u"支払先001"_qs);
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"未描画"_qs);
    EXPECT_FALSE(f->課税事業所区分確定(0, 1));
}

TEST_F(明細確定, 摘要は入れるだけで何も描き直さない) {
    伝票を置く(1);
    行に立つ(0);
    c(u"出金消費税"_qs, 0).Text = u"未描画"_qs;
    打つ(u"摘要"_qs, 0, u"文具代"_qs);
    EXPECT_EQ(s.行[0].摘要, u"文具代"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(欄の字(u"出金消費税"_qs, 0), u"未描画"_qs);
    EXPECT_EQ(焦点(), u"出金金額(0)"_qs);
}

TEST_F(明細確定, 案内に断られた行の一覧は選んでも変わらず行の値を見せる) {
    伝票を置く(1);
    行に立つ(0);
    // The first empty line has no class yet: its tax class list is a later item of that line.
    f->画面.操作_値変更(c(u"内税外税区分名称"_qs, 1), 2);
    EXPECT_EQ(焦点(), u"費目区分(1)"_qs);
    EXPECT_EQ(s.行[1].内税外税区分, 0);
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 1).ListIndex, -1);
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 1).Text, QString());
    EXPECT_FALSE(s.入力変更フラグ);
}

TEST_F(明細確定, 今の行でない行の一覧は案内がその行を今の行にしてから変える) {
    伝票を置く(2);
    行に立つ(0);
    f->画面.操作_値変更(c(u"費目区分名称"_qs, 1), 9);
    EXPECT_EQ(s.表示行, 1);
    EXPECT_EQ(s.現在行, 1);
    EXPECT_EQ(s.行[1].費目区分, 10);
    EXPECT_EQ(焦点(), u"費目区分名称(1)"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
}

TEST_F(明細確定, 行を指していない行の表示は断られた値を行の値に戻す) {
    伝票を置く(2);
    行に立つ(0);
    部品& 印 = c(u"chb_課税事業所区分"_qs, 1);
    const int 元 = s.行[1].課税事業所区分;
    印.Value = 1 - 元;  // what the control showed after the refused click
    印.Click();
    EXPECT_EQ(印.Value, 元);
    EXPECT_EQ(s.行[1].課税事業所区分, 元);
}

TEST_F(明細確定, 見出しに空きがあれば課税事業所の印は押しても変わらず空きへ行く) {
    f->明細表示();
    f->画面.操作_クリック(c(u"chb_課税事業所区分"_qs, 0));
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    EXPECT_EQ(c(u"chb_課税事業所区分"_qs, 0).Value, 0);
    EXPECT_EQ(s.行[0].課税事業所区分, 0);
    EXPECT_FALSE(s.入力変更フラグ);
}

TEST_F(明細確定, 空の行の課税事業所の印は押しても変わらず費目区分へ行く) {
    伝票を置く(1);
    行に立つ(0);
    f->画面.操作_クリック(c(u"chb_課税事業所区分"_qs, 1));
    EXPECT_EQ(焦点(), u"費目区分(1)"_qs);
    EXPECT_EQ(c(u"chb_課税事業所区分"_qs, 1).Value, 0);
    EXPECT_EQ(s.行[1].課税事業所区分, 0);
    EXPECT_EQ(s.最終行, 0);
}

TEST_F(明細確定, 今の行の課税事業所の印は押すと焦点を取り値が変わる) {
    伝票を置く(2);
    行に立つ(0);
    const int 元 = s.行[1].課税事業所区分;
    f->画面.操作_クリック(c(u"chb_課税事業所区分"_qs, 1));
    EXPECT_EQ(焦点(), u"chb_課税事業所区分(1)"_qs);
    EXPECT_EQ(s.表示行, 1);
    EXPECT_EQ(s.行[1].課税事業所区分, 1 - 元);
    EXPECT_TRUE(s.入力変更フラグ);
}

TEST_F(明細確定, 一覧の窓が出ている間は何もしない) {
    伝票を置く(1);
    行に立つ(0);
    f->画面使用中 = true;
    f->画面.操作_値変更(c(u"費目区分名称"_qs, 0), 9);
    f->画面.操作_入力(c(u"出金金額"_qs, 0), u"5000"_qs);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    EXPECT_EQ(s.行[0].費目区分, 3);
    EXPECT_EQ(s.行[0].出金金額, 金額::円(1000));
    EXPECT_FALSE(s.入力変更フラグ);
}

TEST_F(明細確定, 数の欄は数字だけを桁まで取る) {
    伝票を置く(1);
    行に立つ(0);
    f->画面.操作_入力(c(u"出金金額"_qs, 0), u"taxi"_qs);
    EXPECT_EQ(欄の字(u"出金金額"_qs, 0), QString());
    f->画面.操作_入力(c(u"出金金額"_qs, 0), u"9e18"_qs);
    EXPECT_EQ(欄の字(u"出金金額"_qs, 0), u"918"_qs);
    f->画面.操作_入力(c(u"出金金額"_qs, 0), u"-12345678901"_qs);
    EXPECT_EQ(欄の字(u"出金金額"_qs, 0), u"-1234567890"_qs);
    f->画面.操作_入力(c(u"出金金額"_qs, 0), u"12.5"_qs);
    EXPECT_EQ(欄の字(u"出金金額"_qs, 0), u"125"_qs);  // no decimals in an amount
    f->画面.操作_入力(c(u"出金消費税"_qs, 0), u"1234567890"_qs);
    EXPECT_EQ(欄の字(u"出金消費税"_qs, 0), u"123456789"_qs);
    f->画面.操作_入力(c(u"消費税率"_qs, 0), u"-8.125"_qs);
    EXPECT_EQ(欄の字(u"消費税率"_qs, 0), u"8.12"_qs);
    f->画面.操作_入力(c(u"消費税率"_qs, 0), u"123"_qs);
    EXPECT_EQ(欄の字(u"消費税率"_qs, 0), u"12"_qs);
    f->画面.操作_入力(c(u"内税外税区分"_qs, 0), u"12"_qs);
    EXPECT_EQ(欄の字(u"内税外税区分"_qs, 0), u"1"_qs);
}

TEST_F(明細確定, 費目区分は表の区分の数までしか打てない) {
    準備();
    ASSERT_EQ(c(u"費目区分"_qs, 0).Max, 10);
    f->画面.操作_入力(c(u"費目区分"_qs, 0), u"99"_qs);
    EXPECT_EQ(欄の字(u"費目区分"_qs, 0), u"9"_qs);
    f->画面.操作_入力(c(u"費目区分"_qs, 0), u"11"_qs);
    EXPECT_EQ(欄の字(u"費目区分"_qs, 0), u"1"_qs);
    f->画面.操作_入力(c(u"費目区分"_qs, 0), u"10"_qs);
    EXPECT_EQ(欄の字(u"費目区分"_qs, 0), u"10"_qs);
    f->画面.操作_入力(c(u"費目区分"_qs, 0), u"-1"_qs);
    EXPECT_EQ(欄の字(u"費目区分"_qs, 0), u"1"_qs);
}

TEST_F(明細確定, 桁あふれは知らせて操作だけを終える) {
    // A slip stored by another program whose lines no total can hold together.
    試験伝票 t;
    t.出金No = u"00000077"_qs;
    t.行数 = 2;
    t.金額単位 = 400000000000000;
    ASSERT_TRUE(伝票投入(木, t));
    見出しを埋める();
    打つ(u"出金No"_qs, -1, u"77"_qs);
    ASSERT_EQ(s.行[1].出金金額, 金額::円(800000000000000));
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    f->画面.操作_入力(c(u"出金消費税"_qs, 0), u"1"_qs);
    f->画面.操作_Tab();
    EXPECT_TRUE(基盤.表示文言().contains(u"オーバーフローしました。"_qs));
    EXPECT_FALSE(f->画面.表示中か());
    EXPECT_FALSE(f->画面使用中);
    // The screen listens again.
    f->画面.操作_フォーカス(c(u"出金日付年"_qs));
    EXPECT_EQ(焦点(), u"出金日付年"_qs);
}

// ---- Row display ----

class 明細表示 : public 明細試験 {};

TEST_F(明細表示, 行のない枠は空で一覧は行と最初の空行にだけ開く) {
    伝票を置く(2);
    for (int r = 0; r < 2; ++r) {
        EXPECT_TRUE(c(u"費目区分名称"_qs, r).Enabled) << r;
        EXPECT_TRUE(c(u"内税外税区分名称"_qs, r).Enabled) << r;
    }
    EXPECT_TRUE(c(u"費目区分名称"_qs, 2).Enabled);
    EXPECT_TRUE(c(u"内税外税区分名称"_qs, 2).Enabled);
    for (int r = 3; r < 5; ++r) {
        EXPECT_FALSE(c(u"費目区分名称"_qs, r).Enabled) << r;
        EXPECT_FALSE(c(u"内税外税区分名称"_qs, r).Enabled) << r;
    }
    for (const char16_t* 名 : {u"費目区分", u"内税外税区分", u"消費税率", u"出金金額",
                               u"出金消費税", u"支払先", u"摘要"}) {
        EXPECT_EQ(欄の字(QString::fromUtf16(名), 2), QString())
            << QString::fromUtf16(名).toStdString();
    }
    EXPECT_EQ(c(u"費目区分名称"_qs, 2).ListIndex, -1);
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 2).ListIndex, -1);
    EXPECT_EQ(c(u"chb_課税事業所区分"_qs, 2).Value, 0);
}

TEST_F(明細表示, 行の欄と一覧の位置は行の値から) {
    伝票を置く(2);
    EXPECT_EQ(欄の字(u"費目区分"_qs, 1), u"1"_qs);
    EXPECT_EQ(c(u"費目区分名称"_qs, 1).ListIndex, 0);
    EXPECT_EQ(c(u"費目区分名称"_qs, 1).Text, u"旅費交通費"_qs);
    EXPECT_EQ(欄の字(u"内税外税区分"_qs, 1), u"2"_qs);
    EXPECT_EQ(c(u"内税外税区分名称"_qs, 1).ListIndex, 2);
    EXPECT_EQ(欄の字(u"消費税率"_qs, 1), u"10"_qs);
    EXPECT_EQ(欄の字(u"出金金額"_qs, 1), u"2000"_qs);
    EXPECT_EQ(欄の字(u"出金消費税"_qs, 1), u"20"_qs);
    EXPECT_EQ(欄の字(u"支払先"_qs, 1), u"支払先002"_qs);
    EXPECT_EQ(欄の字(u"摘要"_qs, 1), u"摘要002"_qs);
    EXPECT_EQ(c(u"chb_課税事業所区分"_qs, 1).Value, 1);
    EXPECT_EQ(c(u"費目区分名称"_qs, 0).ListIndex, 2);
    EXPECT_FALSE(f->画面.表示中か());
}

TEST_F(明細表示, 内税の行の税だけが赤みの色で出る) {
    伝票を置く(3);
    EXPECT_EQ(c(u"出金消費税"_qs, 0).ForeColor, -1);
    EXPECT_EQ(c(u"出金消費税"_qs, 1).ForeColor, 0x8080FF);
    EXPECT_EQ(c(u"出金消費税"_qs, 2).ForeColor, -1);
    EXPECT_EQ(c(u"出金消費税"_qs, 3).ForeColor, -1);
    s.行[1].内税外税区分 = 0;
    f->明細行表示(1, 1);
    EXPECT_EQ(c(u"出金消費税"_qs, 1).ForeColor, -1);
}

TEST_F(明細表示, 一行目の一覧は担当者コードが0でない数になってから開く) {
    f->明細表示();
    EXPECT_FALSE(c(u"費目区分名称"_qs, 0).Enabled);
    EXPECT_FALSE(c(u"内税外税区分名称"_qs, 0).Enabled);
    s.見出し.担当者コード = u"00000"_qs;
    f->見出し表示();
    f->明細表示();
    EXPECT_FALSE(c(u"費目区分名称"_qs, 0).Enabled);
    準備();
    EXPECT_TRUE(c(u"費目区分名称"_qs, 0).Enabled);
    EXPECT_TRUE(c(u"内税外税区分名称"_qs, 0).Enabled);
}

TEST_F(明細表示, 最初の空行より先の枠は中身があっても空で閉じている) {
    伝票を置く(1);
    行を作る(3);
    f->明細行表示(3, 3);
    EXPECT_EQ(欄の字(u"費目区分"_qs, 3), QString());
    EXPECT_EQ(欄の字(u"摘要"_qs, 3), QString());
    EXPECT_FALSE(c(u"費目区分名称"_qs, 3).Enabled);
}

TEST_F(明細表示, 五行目より下はスクロールした先頭行から) {
    伝票を置く(8);
    f->画面.操作_値変更(c(u"scl_行"_qs), 3);
    EXPECT_EQ(s.先頭行, 3);
    EXPECT_EQ(欄の字(u"摘要"_qs, 0), u"摘要004"_qs);
    EXPECT_EQ(欄の字(u"摘要"_qs, 4), u"摘要008"_qs);
}

// ---- Clear line ----

class 明細行クリア : public 明細試験 {};

TEST_F(明細行クリア, 一行目を消すと下の行が上がり写らない欄は元の枠に残る) {
    伝票を置く(3);
    const auto 前 = 全行();
    行に立つ(0);
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));
    EXPECT_EQ(欄(s.行[0]), 写した後(前[1], 前[0]));
    EXPECT_EQ(欄(s.行[1]), 写した後(前[2], 前[1]));
    EXPECT_EQ(欄(s.行[2]), 空の行(u"003"_qs));
    EXPECT_EQ(s.最終行, 1);
    EXPECT_TRUE(s.入力変更フラグ);
    // The totals add up again, the derived amounts left in the slots included.
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(5000));
    EXPECT_EQ(s.合計.税抜出金金額合計, 金額::円(900 + 901));
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"5,000"_qs);
    EXPECT_EQ(欄の字(u"摘要"_qs, 0), u"摘要002"_qs);
    EXPECT_EQ(欄の字(u"摘要"_qs, 2), QString());
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
    EXPECT_TRUE(基盤.表示済み.isEmpty());  // no line is ever allocated
}

TEST_F(明細行クリア, ただ一行を消すと最終行はマイナス1で棒は閉じ合計は0) {
    伝票を置く(1);
    行に立つ(0);
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(欄(s.行[0]), 空の行(u"001"_qs));
    EXPECT_FALSE(c(u"scl_行"_qs).Enabled);
    EXPECT_EQ(c(u"scl_行"_qs).Value, 0);
    EXPECT_EQ(s.合計.出金金額合計, 金額());
    EXPECT_EQ(s.合計.税抜出金金額合計, 金額());
    EXPECT_EQ(c(u"実質出金金額合計"_qs).Text, u"0"_qs);
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
}

TEST_F(明細行クリア, 五行から四行になると棒が閉じ先頭行は0に戻る) {
    伝票を置く(6);
    行に立つ(5);
    EXPECT_EQ(s.先頭行, 1);
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));
    EXPECT_EQ(s.最終行, 4);
    EXPECT_EQ(s.先頭行, 0);
    EXPECT_TRUE(c(u"scl_行"_qs).Enabled);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 1);
    EXPECT_EQ(c(u"scl_行"_qs).Value, 0);
    EXPECT_EQ(欄の字(u"摘要"_qs, 0), u"摘要001"_qs);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 4));
    ASSERT_EQ(s.現在行, 4);
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));
    EXPECT_EQ(s.最終行, 3);
    EXPECT_FALSE(c(u"scl_行"_qs).Enabled);
}

TEST_F(明細行クリア, 最初の空行で押すとその枠だけを空にし変更にはしない) {
    伝票を置く(5);
    f->画面.操作_値変更(c(u"scl_行"_qs), 1);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 4));
    ASSERT_EQ(s.現在行, 5);
    s.行[5].摘要 = u"書きかけ"_qs;
    const auto 前 = 全行();
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));
    EXPECT_EQ(欄(s.行[5]), 空の行());
    for (int i = 0; i < 5; ++i) EXPECT_EQ(欄(s.行[i]), 前[i]) << i;
    EXPECT_EQ(s.最終行, 4);
    EXPECT_EQ(s.先頭行, 0);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(c(u"scl_行"_qs).Value, 0);
    EXPECT_EQ(欄の字(u"摘要"_qs, 4), u"摘要005"_qs);
}

TEST_F(明細行クリア, 十五行の伝票の最後の行を消すと十四行になる) {
    伝票を置く(15);
    const auto 前 = 全行();
    行に立つ(14);
    EXPECT_EQ(s.先頭行, 10);
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));
    EXPECT_EQ(s.最終行, 13);
    for (int i = 0; i < 14; ++i) EXPECT_EQ(欄(s.行[i]), 前[i]) << i;
    EXPECT_EQ(欄(s.行[14]), 空の行(u"015"_qs));
    EXPECT_EQ(欄(s.行[15]), 空の行());
    EXPECT_EQ(s.先頭行, 10);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 10);
    EXPECT_EQ(c(u"scl_行"_qs).Value, 10);
    EXPECT_EQ(欄の字(u"摘要"_qs, 4), QString());
    EXPECT_TRUE(c(u"費目区分名称"_qs, 4).Enabled);  // now the first empty row
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(焦点(), u"費目区分(4)"_qs);
}

TEST_F(明細行クリア, 十五行の伝票の最初の行を消すと全部が一つ上がる) {
    伝票を置く(15);
    const auto 前 = 全行();
    行に立つ(0);
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));
    EXPECT_EQ(s.最終行, 13);
    for (int i = 0; i < 14; ++i) EXPECT_EQ(欄(s.行[i]), 写した後(前[i + 1], 前[i])) << i;
    EXPECT_EQ(欄(s.行[14]), 空の行(u"015"_qs));
    EXPECT_EQ(c(u"scl_行"_qs).Max, 10);
}

// ---- Insert line ----

class 明細行挿入 : public 明細試験 {};

TEST_F(明細行挿入, 今の行に空の行を開き変更の印も合計も動かさない) {
    伝票を置く(3);
    const auto 前 = 全行();
    const 出金合計 前の合計 = s.合計;
    行に立つ(1);
    f->画面.操作_クリック(c(u"btn_行挿入"_qs));
    EXPECT_EQ(s.最終行, 3);
    EXPECT_EQ(欄(s.行[0]), 前[0]);
    EXPECT_EQ(欄(s.行[1]), 空の行(u"002"_qs));
    EXPECT_EQ(欄(s.行[2]), 写した後(前[1], 前[2]));
    EXPECT_EQ(欄(s.行[3]), 写した後(前[2], 前[3]));
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(s.合計.出金金額合計, 前の合計.出金金額合計);
    EXPECT_EQ(s.合計.税抜出金金額合計, 前の合計.税抜出金金額合計);
    EXPECT_EQ(欄の字(u"費目区分"_qs, 1), QString());
    EXPECT_EQ(欄の字(u"摘要"_qs, 2), u"摘要002"_qs);
    // An opened line has no class and is not past the lines, so its lists stay closed.
    EXPECT_FALSE(c(u"費目区分名称"_qs, 1).Enabled);
    EXPECT_EQ(焦点(), u"費目区分(1)"_qs);
}

TEST_F(明細行挿入, 十四行なら十五行目を開き十五行では何もしない) {
    伝票を置く(14);
    const auto 前 = 全行();
    行に立つ(13);
    EXPECT_TRUE(c(u"btn_行挿入"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_行挿入"_qs));
    EXPECT_EQ(s.最終行, 14);
    EXPECT_EQ(欄(s.行[13]), 空の行(u"014"_qs));
    EXPECT_EQ(欄(s.行[14]), 写した後(前[13], 前[14]));
    EXPECT_EQ(c(u"scl_行"_qs).Max, 10);
    EXPECT_EQ(c(u"scl_行"_qs).Value, 9);
    f->ボタン状態更新();
    EXPECT_FALSE(c(u"btn_行挿入"_qs).Enabled);
    const auto 十五行 = 全行();
    f->行挿入();
    EXPECT_EQ(全行(), 十五行);
    EXPECT_EQ(s.最終行, 14);
    EXPECT_EQ(焦点(), u"費目区分(4)"_qs);
}

TEST_F(明細行挿入, 十五行の伝票の最初の行でも何もしない) {
    伝票を置く(15);
    const auto 前 = 全行();
    行に立つ(0);
    EXPECT_FALSE(c(u"btn_行挿入"_qs).Enabled);
    f->行挿入();
    EXPECT_EQ(全行(), 前);
    EXPECT_EQ(s.最終行, 14);
}

TEST_F(明細行挿入, 最後の行より後ろでは何もしない) {
    伝票を置く(2);
    const auto 前 = 全行();
    行に立つ(2);
    EXPECT_FALSE(c(u"btn_行挿入"_qs).Enabled);
    f->行挿入();
    EXPECT_EQ(全行(), 前);
    EXPECT_EQ(s.最終行, 1);
    EXPECT_EQ(焦点(), u"費目区分(2)"_qs);
}

TEST_F(明細行挿入, 一行目に開くと全部が一つ下がり棒が伸びる) {
    伝票を置く(5);
    const auto 前 = 全行();
    行に立つ(0);
    f->画面.操作_クリック(c(u"btn_行挿入"_qs));
    EXPECT_EQ(s.最終行, 5);
    EXPECT_EQ(欄(s.行[0]), 空の行(u"001"_qs));
    for (int i = 1; i <= 5; ++i) EXPECT_EQ(欄(s.行[i]), 写した後(前[i - 1], 前[i])) << i;
    EXPECT_EQ(c(u"scl_行"_qs).Max, 2);
    EXPECT_EQ(c(u"scl_行"_qs).Value, 0);
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
}

// ---- Copy line ----

class 明細行複写 : public 明細試験 {};

TEST_F(明細行複写, 一行目では何も写さない) {
    伝票を置く(2);
    const auto 前 = 全行();
    行に立つ(0);
    EXPECT_FALSE(c(u"btn_行複写"_qs).Enabled);
    f->行複写();
    EXPECT_EQ(全行(), 前);
    EXPECT_EQ(s.最終行, 1);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
}

TEST_F(明細行複写, 空の行へ前の行を写すと新しい行として最終行が伸びる) {
    伝票を置く(2);
    const auto 前 = 全行();
    行に立つ(2);
    EXPECT_TRUE(c(u"btn_行複写"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_行複写"_qs));
    auto 期待 = 写した後(前[1], 前[2]);
    for (const char16_t* 名 :
         {u"出金固有行No", u"承認日付", u"承認者コード", u"承認区分", u"登録日付", u"更新日付"}) {
        期待[QString::fromUtf16(名)] = QString();
    }
    EXPECT_EQ(欄(s.行[2]), 期待);
    EXPECT_EQ(s.行[2].税抜出金金額, 金額());  // not copied: the slot's own
    EXPECT_EQ(s.最終行, 2);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(1000 + 2000 + 2000));
    EXPECT_EQ(s.合計.税抜出金金額合計, 金額::円(900 + 901));
    EXPECT_EQ(欄の字(u"摘要"_qs, 2), u"摘要002"_qs);
    EXPECT_EQ(c(u"出金消費税"_qs, 2).ForeColor, 0x8080FF);
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"5,000"_qs);
    EXPECT_EQ(焦点(), u"費目区分(2)"_qs);
}

TEST_F(明細行複写, 既にある行へ写すと固有行Noが空になり写らない欄は残る) {
    伝票を置く(3);
    const auto 前 = 全行();
    行に立つ(2);
    f->行複写();
    const auto& l = s.行[2];
    EXPECT_EQ(l.出金固有行No, QString());
    EXPECT_EQ(l.承認区分, QString());
    EXPECT_EQ(l.登録日付, QString());
    EXPECT_EQ(l.摘要, u"摘要002"_qs);
    EXPECT_EQ(l.費目区分, 1);
    EXPECT_EQ(l.税抜出金金額, 金額::円(902));
    EXPECT_EQ(l.税込出金金額, 金額::円(1202));
    EXPECT_EQ(l.出金行No, u"003"_qs);
    EXPECT_EQ(s.最終行, 2);
    EXPECT_TRUE(s.入力変更フラグ);
}

TEST_F(明細行複写, 十五行の伝票の最後の行にも写せ最終行は変わらない) {
    伝票を置く(15);
    const auto 前 = 全行();
    行に立つ(14);
    f->行複写();
    EXPECT_EQ(s.行[14].摘要, u"摘要014"_qs);
    EXPECT_EQ(s.行[14].出金金額, 金額::円(14000));
    EXPECT_EQ(s.行[14].出金固有行No, QString());
    EXPECT_EQ(欄(s.行[13]), 前[13]);
    EXPECT_EQ(欄(s.行[15]), 前[15]);
    EXPECT_EQ(s.最終行, 14);
    EXPECT_EQ(欄の字(u"摘要"_qs, 4), u"摘要014"_qs);
}

// ---- Scroll bar ----

class 明細スクロール : public 明細試験 {};

TEST_F(明細スクロール, 棒は五行から使え最大は十五行で10それ以外は最終行引く3) {
    伝票を置く(4);
    EXPECT_FALSE(c(u"scl_行"_qs).Enabled);
    EXPECT_EQ(c(u"scl_行"_qs).Value, 0);
    伝票を置く(5);
    EXPECT_TRUE(c(u"scl_行"_qs).Enabled);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 1);
    伝票を置く(14);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 10);
    伝票を置く(15);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 10);
    s.先頭行 = 7;
    f->スクロール更新();
    EXPECT_EQ(c(u"scl_行"_qs).Value, 7);
    EXPECT_EQ(s.先頭行, 7);  // the bar's value is written without its change event
}

TEST_F(明細スクロール, 棒を動かすと先頭行と今の行が続き入力中の項目に戻る) {
    伝票を置く(8);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 2));
    f->画面.操作_値変更(c(u"scl_行"_qs), 3);
    EXPECT_EQ(s.先頭行, 3);
    EXPECT_EQ(s.表示行, 2);
    EXPECT_EQ(s.現在行, 5);
    EXPECT_EQ(欄の字(u"摘要"_qs, 2), u"摘要006"_qs);
    EXPECT_EQ(焦点(), u"摘要(2)"_qs);
}

TEST_F(明細スクロール, 最後の行の二つ先を指すはずの表示行は最後の次の行に戻る) {
    伝票を置く(7);
    行に立つ(4);
    EXPECT_EQ(s.表示行, 4);
    // The end of row 4 can raise the bar past what the lines need.
    c(u"scl_行"_qs).Max = 4;
    f->画面.操作_値変更(c(u"scl_行"_qs), 4);
    EXPECT_EQ(s.先頭行, 4);
    EXPECT_EQ(s.表示行, 3);
    EXPECT_EQ(s.現在行, 7);
    EXPECT_EQ(欄の字(u"摘要"_qs, 2), u"摘要007"_qs);
    EXPECT_EQ(欄の字(u"摘要"_qs, 3), QString());
}

// ---- Description list ----

class 明細摘要一覧 : public 明細試験 {
  protected:
    void 型を置く() {
        試験伝票 t;
        t.出金No = u"00000008"_qs;
        t.出金日付 = u"20180101"_qs;
        t.番号基準日付 = u"20180331"_qs;
        ASSERT_TRUE(伝票投入(木, t));
        ASSERT_TRUE(木.業務DB実行(
            u"UPDATE T出金明細 SET 消費税率 = 8, 出金消費税 = 160 WHERE 出金No = '00000008' AND 出金固有行No = '002'"_qs));
    }
    // The list window: what it was handed, and the pick it leaves behind (empty: back button).
    void 一覧で選ぶ(const QString& 鍵) {
        基盤.画面表示時 = [this, 鍵](const QString& 名) {
            if (名 != u"wnd出金摘要一覧") return;
            渡された条件 = f->状態.一覧.条件;
            設定先 = f->状態.一覧.設定先;
            名称先 = f->状態.一覧.名称先;
            使用中だった = f->画面使用中;
            f->状態.一覧.条件.clear();
            if (鍵.isEmpty()) {
                f->状態.選択鍵.reset();
            } else {
                f->状態.選択鍵 = 鍵;
            }
        };
    }
    QString 渡された条件 = u"未"_qs;
    部品* 設定先 = nullptr;
    部品* 名称先 = nullptr;
    bool 使用中だった = false;
};

TEST_F(明細摘要一覧, 選んだ行を型として今日の税率で取り込み行を描く) {
    型を置く();
    準備();
    一覧で選ぶ(
        u"C00020180331"
        "00000008"
        "002"_qs);
    f->画面.操作_クリック(c(u"btn_摘要"_qs, 0));
    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(基盤.表示画面[0].first, u"wnd出金摘要一覧"_qs);
    EXPECT_TRUE(基盤.表示画面[0].second);
    ASSERT_FALSE(基盤.使用可否.isEmpty());
    EXPECT_EQ(基盤.使用可否[0].first, u"frm紺碧帳"_qs);
    EXPECT_FALSE(基盤.使用可否[0].second);
    EXPECT_TRUE(使用中だった);
    EXPECT_FALSE(f->画面使用中);
    const auto& l = s.行[0];
    EXPECT_EQ(l.費目区分, 3);
    EXPECT_EQ(l.費目区分名称, u"消耗品費"_qs);
    EXPECT_EQ(l.内税外税区分, 1);
    EXPECT_EQ(l.消費税率, 金額::円(10));
    EXPECT_EQ(l.出金金額, 金額::円(2000));
    EXPECT_EQ(l.出金消費税, 金額::円(200));
    EXPECT_EQ(l.摘要, u"摘要002"_qs);
    EXPECT_EQ(l.支払先, u"支払先002"_qs);
    EXPECT_EQ(l.課税事業所区分, 1);
    EXPECT_EQ(欄の字(u"費目区分"_qs, 0), u"3"_qs);
    EXPECT_EQ(欄の字(u"出金金額"_qs, 0), u"2000"_qs);
    EXPECT_EQ(欄の字(u"出金消費税"_qs, 0), u"200"_qs);
    EXPECT_EQ(欄の字(u"摘要"_qs, 0), u"摘要002"_qs);
    EXPECT_EQ(c(u"費目区分名称"_qs, 0).Text, u"消耗品費"_qs);
    EXPECT_EQ(s.合計.出金金額合計, 金額());  // not yet a line: the row joins at the next entry
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
    f->画面.操作_Tab();
    EXPECT_EQ(s.最終行, 0);
}

TEST_F(明細摘要一覧, 一覧には行の摘要を渡し設定先は費目区分と摘要) {
    伝票を置く(1);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 0));
    一覧で選ぶ(QString());
    const auto 前 = 全行();
    f->画面.操作_クリック(c(u"btn_摘要"_qs, 0));
    EXPECT_EQ(渡された条件, u"摘要001"_qs);
    EXPECT_EQ(設定先, &c(u"費目区分"_qs, 0));
    EXPECT_EQ(名称先, &c(u"摘要"_qs, 0));
    EXPECT_EQ(全行(), 前);  // back without a pick
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
}

TEST_F(明細摘要一覧, 今の行でない行の釦はその行を今の行にしてから取り込む) {
    型を置く();
    伝票を置く(7);
    行に立つ(0);
    f->画面.操作_値変更(c(u"scl_行"_qs), 2);
    ASSERT_EQ(s.表示行, 0);
    一覧で選ぶ(
        u"C00020180331"
        "00000008"
        "001"_qs);
    f->画面.操作_クリック(c(u"btn_摘要"_qs, 4));
    EXPECT_EQ(s.表示行, 4);
    EXPECT_EQ(s.現在行, 6);
    EXPECT_EQ(s.行[6].摘要, u"摘要001"_qs);
    EXPECT_EQ(s.行[6].出金金額, 金額::円(1000));
    EXPECT_EQ(s.行[6].出金消費税, 金額::円(100));
    EXPECT_EQ(s.行[2].摘要, u"摘要003"_qs);
    EXPECT_EQ(欄の字(u"摘要"_qs, 4), u"摘要001"_qs);
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(1000 + 2000 + 3000 + 4000 + 5000 + 6000 + 1000));
}

TEST_F(明細摘要一覧, 最初の空行より下の行では門が止め一覧は開かない) {
    伝票を置く(1);
    一覧で選ぶ(
        u"C00020180331"
        "00000008"
        "001"_qs);
    f->画面.操作_クリック(c(u"btn_摘要"_qs, 3));
    EXPECT_TRUE(基盤.表示画面.isEmpty());
    EXPECT_TRUE(基盤.使用可否.isEmpty());
    EXPECT_EQ(焦点(), u"費目区分(1)"_qs);
    EXPECT_EQ(s.行[3].費目区分, 0);
}

TEST_F(明細摘要一覧, 見出しに空きがあれば一覧は開かない) {
    一覧で選ぶ(QString());
    f->画面.操作_クリック(c(u"btn_摘要"_qs, 0));
    EXPECT_TRUE(基盤.表示画面.isEmpty());
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

}  // namespace
