#include "audit/wnd出金検索.h"
#include "audit/wnd出金検索_部品名.h"
#include "audit/出金検索.h"
#include "出金履歴試験.h"

namespace {

using 種別 = 伝票状態::種別;

// A slip of three lines corrected three times: an amount, a line removed, a line added with
// the date moved into the next fiscal year, which gives it a key in the new number sequence.
class 三度の修正 : public 出金履歴試験 {
  protected:
    void SetUp() override {
        出金履歴試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        No = 伝票を打つ(u"3"_qs, 3);
        ASSERT_EQ(数(u"SELECT COUNT(*) FROM T出金明細"_qs), 3);

        呼ぶ(No);
        ASSERT_FALSE(s.新規情報フラグ);
        f->画面.操作_フォーカス(c(u"出金金額"_qs, 0));
        打ってTab(c(u"出金金額"_qs, 0), u"1500"_qs);
        登録する();

        呼ぶ(No);
        f->画面.操作_フォーカス(c(u"費目区分"_qs, 1));
        f->画面.操作_クリック(c(u"btn_行クリア"_qs));
        ASSERT_EQ(s.最終行, 1);
        登録する();

        呼ぶ(No);
        f->画面.操作_フォーカス(c(u"費目区分"_qs, 2));
        打ってTab(c(u"費目区分"_qs, 2), u"3"_qs);
        for (int k = 0; k < 10 && f->画面.フォーカス()->名前 != u"出金金額"; ++k)
            f->画面.操作_Tab();
        打ってTab(*f->画面.フォーカス(), u"4000"_qs);
        f->画面.操作_フォーカス(c(u"出金日付年"_qs));
        日付を打つ(u"2026"_qs, u"4"_qs, u"10"_qs);
        登録する();
        const auto 新 = 木->業務DB行(u"SELECT 番号基準日付, 出金No FROM T出金"_qs);
        ASSERT_EQ(新.size(), 1);
        新しい鍵 = {u"000"_qs, 新[0][0].toString(), 新[0][1].toString()};
        ASSERT_EQ(新しい鍵.番号基準日付, u"20270331"_qs);
    }
    QString No;
    伝票鍵 新しい鍵;
};

TEST_P(三度の修正, 四つの状態がその違いだけを持って新しい順に並ぶ) {
    const 出金履歴 h = 読む(新しい鍵);
    ASSERT_EQ(h.状態.size(), 4u);
    const 伝票鍵 旧 = 鍵(u"20260331"_qs, No);
    EXPECT_EQ(h.状態[0].何, 種別::現在);
    EXPECT_EQ(h.状態[0].鍵, 新しい鍵);
    for (int i = 1; i < 4; ++i) {
        EXPECT_EQ(h.状態[i].何, 種別::以前) << i;
        EXPECT_EQ(h.状態[i].鍵, 旧) << i;
    }
    for (const 伝票状態& st : h.状態) {
        EXPECT_TRUE(st.欠け.isEmpty()) << st.欠け.join(u' ').toStdString();
        EXPECT_EQ(st.ユーザID, 今の利用者());
        EXPECT_FALSE(st.操作者名.isEmpty());
    }
    // The stamps tell the stores apart, oldest a minute before each later one.
    EXPECT_LT(h.状態[3].登録日付, h.状態[2].登録日付);
    EXPECT_LT(h.状態[2].登録日付, h.状態[1].登録日付);
    EXPECT_LT(h.状態[1].登録日付, h.状態[0].登録日付);

    // The first correction: the first line's amount, and nothing else of the lines.
    const 状態差分 一 = 差分(&h.状態[3], h.状態[2]);
    EXPECT_TRUE(一.追加行.isEmpty());
    EXPECT_TRUE(一.削除行.isEmpty());
    ASSERT_EQ(一.変更行.size(), 1u);
    EXPECT_EQ(一.変更行[0].出金固有行No, u"001"_qs);
    const 項目変化* 額 = 変化(一.変更行[0].変化, u"出金金額"_qs);
    ASSERT_TRUE(額);
    EXPECT_EQ(額->前, u"1000"_qs);
    EXPECT_EQ(額->後, u"1500"_qs);
    EXPECT_EQ(一.合計前, u"6600"_qs);
    EXPECT_EQ(一.合計後, u"7150"_qs);
    EXPECT_TRUE(名前(一.見出し).contains(u"実質出金金額合計"_qs));
    EXPECT_FALSE(名前(一.見出し).contains(u"出金日付"_qs));

    // The second: line 002 gone, line 003 moved up a place with what it says unchanged (the
    // two amounts the line clear leaves behind in the slot are stored as they stand).
    const 状態差分 二 = 差分(&h.状態[2], h.状態[1]);
    EXPECT_EQ(二.削除行, QStringList{u"002"_qs});
    EXPECT_TRUE(二.追加行.isEmpty());
    ASSERT_EQ(二.変更行.size(), 1u);
    EXPECT_EQ(二.変更行[0].出金固有行No, u"003"_qs);
    const 項目変化* 位置 = 変化(二.変更行[0].変化, u"出金行No"_qs);
    ASSERT_TRUE(位置);
    EXPECT_EQ(位置->前, u"003"_qs);
    EXPECT_EQ(位置->後, u"002"_qs);
    for (const QString& 列 : {u"費目区分"_qs, u"出金金額"_qs, u"実質出金金額"_qs, u"摘要"_qs})
        EXPECT_FALSE(名前(二.変更行[0].変化).contains(列)) << 列.toStdString();
    EXPECT_EQ(二.合計後, u"4950"_qs);

    // The third: a new line 004, the date into the next year under a new key.
    const 状態差分 三 = 差分(&h.状態[1], h.状態[0]);
    EXPECT_EQ(三.追加行, QStringList{u"004"_qs});
    EXPECT_TRUE(三.削除行.isEmpty());
    const 項目変化* 日 = 変化(三.見出し, u"出金日付"_qs);
    ASSERT_TRUE(日);
    EXPECT_EQ(日->前, u"20251120"_qs);
    EXPECT_EQ(日->後, u"20260410"_qs);
    const 項目変化* 基準 = 変化(三.見出し, u"番号基準日付"_qs);
    ASSERT_TRUE(基準);
    EXPECT_EQ(基準->後, u"20270331"_qs);
    EXPECT_EQ(三.合計前, u"4950"_qs);
    EXPECT_EQ(三.合計後, u"9350"_qs);
    // The lines that stayed say what they said; the aggregation date follows the new day.
    ASSERT_EQ(三.変更行.size(), 2u);
    EXPECT_EQ(名前(三.変更行[0].変化), QStringList{u"会計集計日付"_qs});
    for (const 明細変化& m : 三.変更行) {
        const 項目変化* 集計 = 変化(m.変化, u"会計集計日付"_qs);
        ASSERT_TRUE(集計) << m.出金固有行No.toStdString();
        EXPECT_EQ(集計->前, u"20251130"_qs);
        EXPECT_EQ(集計->後, u"20260430"_qs);
        EXPECT_FALSE(名前(m.変化).contains(u"出金金額"_qs));
    }
}

TEST_P(三度の修正, 古い鍵から読んでも同じ四つの状態になる) {
    const 出金履歴 新 = 読む(新しい鍵);
    const 出金履歴 旧 = 読む(鍵(u"20260331"_qs, No));
    ASSERT_EQ(新.状態.size(), 4u);
    ASSERT_EQ(旧.状態.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(旧.状態[i].鍵, 新.状態[i].鍵);
        EXPECT_EQ(旧.状態[i].書込履歴No, 新.状態[i].書込履歴No);
        EXPECT_EQ(旧.状態[i].置換履歴No, 新.状態[i].置換履歴No);
    }
}

// The old key of a moved slip stands in the history tables only, as a deleted slip's does; the
// search for deleted slips leaves it out until the slip itself is deleted.
TEST_P(三度の修正, 年度を越えて移した伝票は削除した伝票に数えない) {
    出金検索条件 条件;
    条件.削除済 = true;
    QList<出金検索行> 行;
    ASSERT_TRUE(出金検索(s.データ, 条件, 行));
    EXPECT_TRUE(行.isEmpty());

    日付を打つ(u"2026"_qs, u"4"_qs, u"10"_qs);
    呼ぶ(新しい鍵.番号);
    ASSERT_FALSE(s.新規情報フラグ);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    ASSERT_TRUE(出金検索(s.データ, 条件, 行));
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0].鍵, 新しい鍵);
    // Its history runs from the first store under the old key to the deletion.
    const 出金履歴 h = 読む(新しい鍵);
    ASSERT_EQ(h.状態.size(), 5u);
    EXPECT_EQ(h.状態[0].何, 種別::削除);
    EXPECT_EQ(h.状態[4].鍵, 鍵(u"20260331"_qs, No));
}

// The window's search for deleted slips reads the same rule: the moved key is not listed, and
// the slips deleted after it all are (on PostgreSQL a statement asked while the search's rows
// were still being read would cut them short).
TEST_P(三度の修正, 検索の窓も移した伝票を削除した伝票に並べない) {
    QStringList 消した;
    for (int i = 0; i < 2; ++i) {
        消した << 伝票を打つ(u"3"_qs, 1);
        呼ぶ(消した.back());
        基盤.回答.enqueue(応答::はい);
        f->画面.操作_クリック(c(u"btn_削除"_qs));
    }
    ASSERT_EQ(数(u"SELECT COUNT(*) FROM T出金"_qs), 1);
    wnd出金検索 w(s, f->画面);
    QStringList 番号;
    const auto 元 = 基盤.画面表示時;
    基盤.画面表示時 = [&](const QString& 名) {
        if (名 != u"wnd出金検索") return 元(名);
        w.画面.操作_クリック(w.画面(出金検索部品::chb_削除済.文字列()));
        w.画面.操作_クリック(w.画面(出金検索部品::btn_検索.文字列()));
        const 部品& L = w.画面(出金検索部品::List出金検索.文字列());
        for (int r = 0; r < L.項目.size(); ++r) 番号 << L.セル(r, 1);
        w.画面.操作_キー(w.画面(出金検索部品::btn_戻る.文字列()), キーコード::Esc);
    };
    f->画面.操作_キー(c(u"担当者コード"_qs), キーコード::F9);
    番号.sort();
    EXPECT_EQ(番号, 消した);
}

KONPEKI_両エンジンで(三度の修正);

class 削除と欠け : public 出金履歴試験 {};

TEST_P(削除と欠け, 削除した伝票は削除とその前の状態を見せる) {
    const QString No = 伝票を打つ(u"3"_qs, 2);
    呼ぶ(No);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    ASSERT_EQ(数(u"SELECT COUNT(*) FROM T出金"_qs), 0);
    const 出金履歴 h = 読む(鍵(u"20260331"_qs, No));
    ASSERT_EQ(h.状態.size(), 2u);
    EXPECT_EQ(h.状態[0].何, 種別::削除);
    EXPECT_FALSE(h.状態[0].置換履歴No.isEmpty());
    EXPECT_EQ(h.状態[0].ユーザID, 今の利用者());
    EXPECT_EQ(h.状態[1].何, 種別::以前);
    EXPECT_TRUE(h.状態[1].欠け.isEmpty());
    EXPECT_EQ(h.状態[1].明細.size(), 2u);
    const 状態差分 d = 差分(&h.状態[1], h.状態[0]);
    EXPECT_EQ(d.削除行, (QStringList{u"001"_qs, u"002"_qs}));
    EXPECT_EQ(d.合計前, u"3300"_qs);
    EXPECT_EQ(d.合計後, u"0"_qs);
}

// A quote in a description: the store doubles it, but the old-state writer of the correction
// writes it back undoubled, its statement fails, and the line is gone without that row.
TEST_P(削除と欠け, 引用符の摘要は置換時の行が無く不完全と示す) {
    const QString No = 引用符の摘要で保存して呼ぶ(0, u"O'Neil様"_qs);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 1));
    打ってTab(c(u"出金金額"_qs, 1), u"2500"_qs);
    登録する();
    ASSERT_EQ(数(u"SELECT COUNT(*) FROM R出金明細 WHERE 赤黒区分 = '0'"_qs), 1);

    const 出金履歴 h = 読む(鍵(u"20260331"_qs, No));
    ASSERT_EQ(h.状態.size(), 2u);
    EXPECT_TRUE(h.状態[0].欠け.isEmpty());
    EXPECT_EQ(h.状態[1].欠け, QStringList{u"出金固有行No 001 の置換時の行がありません"_qs});
    // What the store wrote of that line is still shown, quote and all.
    ASSERT_EQ(h.状態[1].明細.size(), 2u);
    const 履歴明細& 書いた行 = h.状態[1].明細[0];
    EXPECT_EQ(書いた行.値(u"摘要"), u"O'Neil様"_qs);
    // Its row is the written one, whose three shifted columns are back in their meaning.
    EXPECT_EQ(書いた行.値(u"会計集計日付"), u"20251130"_qs);
    EXPECT_EQ(書いた行.値(u"税抜出金金額"), u"1000"_qs);
    EXPECT_EQ(書いた行.値(u"税込出金金額"), u"1100"_qs);
    EXPECT_EQ(書いた行.値(u"実質出金金額"), u"1100"_qs);
    const 状態差分 d = 差分(&h.状態[1], h.状態[0]);
    EXPECT_TRUE(d.削除行.isEmpty());
    ASSERT_EQ(d.変更行.size(), 1u);
    EXPECT_EQ(d.変更行[0].出金固有行No, u"002"_qs);
}

// Two corrections within the second of the store: every line keeps the same stamp in each
// state, and the history numbers put the states in their order.
TEST_P(削除と欠け, 同じ秒の修正も順に並ぶ) {
    const QString No = 伝票を打つ(u"3"_qs, 1);
    for (const QString& 額 : {u"1500"_qs, u"1700"_qs}) {
        呼ぶ(No);
        f->画面.操作_フォーカス(c(u"出金金額"_qs, 0));
        打ってTab(c(u"出金金額"_qs, 0), 額);
        f->画面.操作_クリック(c(u"btn_登録"_qs));
    }
    const 出金履歴 h = 読む(鍵(u"20260331"_qs, No));
    ASSERT_EQ(h.状態.size(), 3u);
    QStringList 額;
    for (const 伝票状態& st : h.状態) {
        EXPECT_TRUE(st.欠け.isEmpty()) << st.欠け.join(u' ').toStdString();
        ASSERT_EQ(st.明細.size(), 1u);
        額 << st.明細[0].値(u"出金金額");
    }
    EXPECT_EQ(額, (QStringList{u"1700"_qs, u"1500"_qs, u"1000"_qs}));
}

TEST_P(削除と欠け, 無い鍵には履歴が無い) {
    EXPECT_FALSE(出金履歴読込(s.データ, 鍵(u"20260331"_qs, u"00000099"_qs)).has_value());
}

KONPEKI_両エンジンで(削除と欠け);

}  // namespace
