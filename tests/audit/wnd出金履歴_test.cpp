#include <memory>

#include "audit/wnd出金履歴.h"
#include "audit/wnd出金履歴_部品名.h"
#include "出金履歴試験.h"

namespace {

using 欄 = 出金履歴部品;

// The history window over the entry screen, opened by F8 and played by keys.
class 履歴窓 : public 出金履歴試験 {
  protected:
    void SetUp() override {
        出金履歴試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        w = std::make_unique<wnd出金履歴>(s, f->画面);
    }
    部品& h(const 部品名& 名前) { return w->画面(名前.文字列()); }
    // What the operator does while the window is up; the register question is still answered.
    void 窓で(std::function<void()> 操作) {
        auto 元 = 基盤.画面表示時;
        基盤.画面表示時 = [this, 元, 操作](const QString& 名) {
            if (名 == u"wnd出金履歴") {
                ++開いた回数;
                操作();
            } else if (元) {
                元(名);
            }
        };
    }
    // A slip of two lines stored, then its first amount corrected; it stays on the screen.
    QString 修正した伝票() {
        const QString No = 伝票を打つ(u"3"_qs, 2);
        呼ぶ(No);
        f->画面.操作_フォーカス(c(u"出金金額"_qs, 0));
        打ってTab(c(u"出金金額"_qs, 0), u"1500"_qs);
        登録する();
        return No;
    }
    std::unique_ptr<wnd出金履歴> w;
    int 開いた回数 = 0;
};

TEST_P(履歴窓, 新しい伝票ではF8は何も開かない) {
    修正した伝票();
    ASSERT_TRUE(s.新規情報フラグ);
    窓で([] {});
    f->画面.操作_キー(c(u"担当者コード"_qs), キーコード::F8);
    EXPECT_EQ(開いた回数, 0);
}

TEST_P(履歴窓, F8で開き選んだ状態の見出しと明細を前の状態と比べて示しEscで閉じる) {
    const QString No = 修正した伝票();
    呼ぶ(No);
    ASSERT_FALSE(s.新規情報フラグ);
    窓で([this] {
        部品& L = h(欄::lst_状態);
        ASSERT_EQ(L.項目.size(), 2);
        EXPECT_EQ(L.セル(0, 1), u"現在"_qs);
        EXPECT_EQ(L.セル(1, 1), u"修正前"_qs);
        EXPECT_EQ(L.セル(0, 2), u"000-20260331-"_qs + s.見出し.保持出金No);
        EXPECT_EQ(w->画面.フォーカス(), &L);
        // The newest state is shown first: the corrected line is marked with its old value.
        EXPECT_EQ(h(欄::lab_合計).Caption, u"合計 3,300 → 3,850"_qs);
        部品& 明細 = h(欄::lst_明細);
        ASSERT_EQ(明細.項目.size(), 2);
        EXPECT_TRUE(明細.セル(0, 2).startsWith(u"＊出金金額 1000→1500"_qs))
            << 明細.セル(0, 2).toStdString();
        EXPECT_EQ(明細.セル(1, 2), QString());
        部品& 見出し = h(欄::lst_見出し);
        bool 合計に印 = false, 日付に印 = false;
        for (int i = 0; i < 見出し.項目.size(); ++i) {
            if (見出し.セル(i, 0) == u"実質出金金額合計") {
                合計に印 = 見出し.セル(i, 3) == u"＊";
                EXPECT_EQ(見出し.セル(i, 1), u"3850"_qs);
                EXPECT_EQ(見出し.セル(i, 2), u"3300"_qs);
            }
            if (見出し.セル(i, 0) == u"出金日付") 日付に印 = !見出し.セル(i, 3).isEmpty();
        }
        EXPECT_TRUE(合計に印);
        EXPECT_FALSE(日付に印);
        // Down and Enter: the first state, whose lines were all added.
        w->画面.操作_キー(L, キーコード::Down);
        w->画面.操作_キー(L, キーコード::Enter);
        EXPECT_EQ(h(欄::lab_合計).Caption, u"合計 － → 3,300"_qs);
        EXPECT_EQ(明細.セル(0, 2), u"追加"_qs);
        EXPECT_EQ(明細.セル(1, 2), u"追加"_qs);
        w->画面.操作_キー(L, キーコード::Esc);
    });
    f->画面.操作_キー(c(u"出金No"_qs), キーコード::F8);
    EXPECT_EQ(開いた回数, 1);
    EXPECT_TRUE(基盤.閉じた画面.contains(u"wnd出金履歴"_qs));
    EXPECT_EQ(f->画面.状態.履歴鍵, u"00020260331"_qs + No);
}

TEST_P(履歴窓, 不完全な状態はその訳と共に示す) {
    const QString No = 引用符の摘要で保存して呼ぶ(1, u"it's"_qs);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    f->画面.状態.履歴鍵 = u"00020260331"_qs + No;
    窓で([this] {
        部品& L = h(欄::lst_状態);
        ASSERT_EQ(L.項目.size(), 2);
        EXPECT_EQ(L.セル(0, 1), u"削除"_qs);
        EXPECT_EQ(L.セル(1, 8), u"不完全"_qs);
        w->画面.操作_キー(L, キーコード::Down);
        w->画面.操作_キー(L, キーコード::Enter);
        EXPECT_EQ(h(欄::lab_欠け).Caption, u"不完全: 出金固有行No 002 の置換時の行がありません"_qs);
        // The deletion removed both lines, the one without its old row too.
        w->画面.操作_キー(L, キーコード::Up);
        w->画面.操作_キー(L, キーコード::Enter);
        EXPECT_EQ(h(欄::lst_明細).項目.size(), 2);
        EXPECT_EQ(h(欄::lst_明細).セル(1, 2), u"削除"_qs);
        EXPECT_EQ(h(欄::lab_合計).Caption, u"合計 3,300 → 0"_qs);
        w->画面.操作_クリック(h(欄::btn_戻る));
    });
    基盤.画面表示(u"wnd出金履歴"_qs, true);
    EXPECT_EQ(開いた回数, 1);
}

// A key that has neither a slip nor a history row: the window says so and offers only 戻る.
TEST_P(履歴窓, 履歴の無い鍵ではその旨を示し戻るに焦点を置く) {
    f->画面.状態.履歴鍵 = u"0002026033199999999"_qs;
    QString 文言, 焦点の名;
    int 行数 = -1;
    窓で([&] {
        文言 = h(欄::lab_伝票).Caption;
        行数 = h(欄::lst_状態).項目.size();
        焦点の名 = w->画面.フォーカス() ? w->画面.フォーカス()->名前 : QString();
        w->画面.操作_キー(h(欄::btn_戻る), キーコード::Esc);
    });
    基盤.画面表示(u"wnd出金履歴"_qs, true);
    EXPECT_EQ(文言, u"この伝票の履歴はありません。"_qs);
    EXPECT_EQ(行数, 0);
    EXPECT_EQ(焦点の名, u"btn_戻る"_qs);
    EXPECT_TRUE(基盤.閉じた画面.contains(u"wnd出金履歴"_qs));
}

KONPEKI_両エンジンで(履歴窓);

}  // namespace
