#include "両エンジン入力画面.h"

namespace {

// A working day replayed through the entry screen on both engines: three new slips, a step back
// to the first, a correction, a deletion answered No and then Yes, a clear with changes, a quit
// with changes answered No and then Yes. After each step the tables tell what happened.
class 一日の業務 : public 両エンジン入力画面 {
  protected:
    // Rows of each table, in one list: T出金, T出金明細, R出金, R出金明細, queue, browse, and the
    // error rows of the run history.
    QList<int> 表() {
        QList<int> 数;
        for (const char16_t* t :
             {u"T出金", u"T出金明細", u"R出金", u"R出金明細", u"未集計情報", u"T閲覧"}) {
            数 << 木->業務DB行(u"SELECT COUNT(*) FROM "_qs + QString::fromUtf16(t))[0][0].toInt();
        }
        数 << 木->環境DB行(
                    u"SELECT COUNT(*) FROM プログラム稼動履歴 WHERE 摘要 LIKE 'エラー%'"_qs)[0][0]
                  .toInt();
        return 数;
    }
};

TEST_P(一日の業務, 三枚打ち最初へ戻って直し二枚目を消しクリアして終わる) {
    伝票を打つ(u"3"_qs, 1);
    伝票を打つ(u"5"_qs, 2);
    伝票を打つ(u"3"_qs, 3);
    // Every new-state R出金 insert fails and is logged; the new-state lines are there.
    EXPECT_EQ(表(), (QList<int>{3, 6, 0, 6, 3, 0, 3}));
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000004"_qs);

    for (int i = 0; i < 3; ++i) f->画面.操作_クリック(c(u"btn_前No"_qs));
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000001"_qs);
    EXPECT_EQ(表(), (QList<int>{3, 6, 0, 6, 3, 3, 3}));  // a browse row per step

    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    for (int k = 0; k < 10 && f->画面.フォーカス()->名前 != u"出金金額"; ++k) f->画面.操作_Tab();
    打ってTab(*f->画面.フォーカス(), u"1500"_qs);
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_EQ(表(), (QList<int>{3, 6, 1, 8, 5, 3, 4}));
    EXPECT_EQ(木->業務DB行(u"SELECT 出金金額合計 FROM T出金 WHERE 出金No = '00000001'"_qs)[0][0]
                  .toLongLong(),
              1500);

    f->画面.操作_入力(c(u"出金No"_qs), u"2"_qs);
    f->画面.操作_Tab();
    ASSERT_FALSE(s.新規情報フラグ);
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    EXPECT_EQ(基盤.表示済み.last().既定ボタン, 2);  // No is the default
    EXPECT_EQ(表(), (QList<int>{3, 6, 1, 8, 5, 4, 4}));
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    EXPECT_EQ(表(), (QList<int>{2, 4, 2, 10, 6, 4, 4}));
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000004"_qs);  // no number comes back

    打ってTab(c(u"担当者コード"_qs), u"3"_qs);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_画面クリア"_qs));
    EXPECT_TRUE(c(u"担当者コード"_qs).Text.isEmpty());

    打ってTab(c(u"担当者コード"_qs), u"5"_qs);
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_終了"_qs));
    EXPECT_EQ(停止回数, 0);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_終了"_qs));
    EXPECT_EQ(停止回数, 1);
    EXPECT_EQ(表(), (QList<int>{2, 4, 2, 10, 6, 4, 4}));
}

KONPEKI_両エンジンで(一日の業務);

}  // namespace
