#include "dataenv/環境情報.h"
#include "両エンジン入力画面.h"

namespace {

// A slip that another operator's client stored last: its rows carry his user. A correction or
// a deletion through the screen keeps his user on the old header in the history, while the old
// lines in the history carry the operator who is working now.
class 履歴の利用者 : public 両エンジン入力画面 {
  protected:
    QString 他人が保存した伝票() {
        const QString No = 伝票を打つ(u"3"_qs, 2);
        EXPECT_TRUE(木->業務DB実行(u"UPDATE T出金 SET ユーザID = '他の利用者'"_qs));
        EXPECT_TRUE(木->業務DB実行(u"UPDATE T出金明細 SET ユーザID = '他の利用者'"_qs));
        呼ぶ(No);
        EXPECT_FALSE(s.新規情報フラグ);
        return No;
    }
    // The user column of the history rows of one kind, by line.
    QStringList 利用者(const QString& 表, const QString& 条件) {
        QStringList r;
        for (const auto& 行 : 木->業務DB行(u"SELECT ユーザID FROM "_qs + 表 + u" WHERE "_qs + 条件 +
                                           u" ORDER BY 出金履歴No"_qs))
            r << 行[0].toString();
        return r;
    }
    QString 今の利用者() const { return 記録者ID(s.データ.接続().環境()); }
};

TEST_P(履歴の利用者, 修正では古い見出しは保存した人で古い明細は今の操作者になる) {
    他人が保存した伝票();
    ASSERT_TRUE(今の利用者().contains(u"00001"_qs));
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 0));
    打ってTab(c(u"出金金額"_qs, 0), u"1500"_qs);
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    ASSERT_EQ(数(u"SELECT 出金金額合計 FROM T出金"_qs), 3500);
    // Only the old header stands in R出金: the new one's statement is refused as always.
    EXPECT_EQ(利用者(u"R出金"_qs, u"1 = 1"_qs), QStringList{u"他の利用者"_qs});
    EXPECT_EQ(利用者(u"R出金明細"_qs, u"赤黒区分 = '0'"_qs), QStringList(2, 今の利用者()));
    EXPECT_EQ(木->業務DB行(u"SELECT ユーザID FROM T出金"_qs)[0][0].toString(), 今の利用者());
    EXPECT_EQ(利用者(u"R出金明細"_qs, u"赤黒区分 = '1' AND 出金金額 = 1500"_qs),
              QStringList{今の利用者()});
}

TEST_P(履歴の利用者, 削除でも古い見出しは保存した人で古い明細は今の操作者になる) {
    他人が保存した伝票();
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    ASSERT_EQ(数(u"SELECT COUNT(*) FROM T出金"_qs), 0);
    EXPECT_EQ(利用者(u"R出金"_qs, u"1 = 1"_qs), QStringList{u"他の利用者"_qs});
    EXPECT_EQ(利用者(u"R出金明細"_qs, u"赤黒区分 = '0'"_qs), QStringList(2, 今の利用者()));
}

KONPEKI_両エンジンで(履歴の利用者);

}  // namespace
