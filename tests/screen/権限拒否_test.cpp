#include <QFile>

#include "両エンジン入力画面.h"

namespace {

// A company with PINs, whose operator 00001 is refused one right at a time. A refused store or
// deletion says "操作権限がありません。" and changes nothing; a refused report says nothing.
class 権限拒否 : public 両エンジン入力画面 {
  protected:
    void 始める前() override {
        ASSERT_TRUE(木->業務DB実行(u"UPDATE Mユーザ SET 暗証番号有無 = 1"_qs));
    }
    void 断る(const QString& プログラム, const QString& 権限) {
        ASSERT_TRUE(木->業務DB実行(u"UPDATE 担当者別操作許可プログラム SET "_qs + 権限 +
                                   u" = '1' WHERE 担当者コード = '00001' AND プログラムID = '"_qs +
                                   プログラム + u"'"_qs));
    }
    // Rows of the slip tables and the queue, in one list.
    QList<int> 表() {
        QList<int> n;
        for (const char16_t* t : {u"T出金", u"T出金明細", u"R出金", u"R出金明細", u"未集計情報"})
            n << 数(u"SELECT COUNT(*) FROM "_qs + QString::fromUtf16(t));
        return n;
    }
    bool 問いの窓が出た() const { return 基盤.表示画面.contains({u"msg印刷確認"_qs, true}); }
    bool 暗証の窓が出た() const { return 基盤.表示画面.contains({u"msg暗証番号確認"_qs, true}); }
    // A stored slip of two lines called up, its first amount retyped, the focus left on the
    // description of line 1.
    QString 呼んで直す() {
        const QString No = 伝票を打つ(u"3"_qs, 2);
        呼ぶ(No);
        EXPECT_FALSE(s.新規情報フラグ);
        f->画面.操作_フォーカス(c(u"出金金額"_qs, 0));
        打ってTab(c(u"出金金額"_qs, 0), u"1500"_qs);
        f->画面.操作_フォーカス(c(u"摘要"_qs, 1));
        基盤.表示済み.clear();
        基盤.表示画面.clear();
        return No;
    }
};

TEST_P(権限拒否, 入力権限が無ければ新しい伝票は問わずに断られ何も保存されない) {
    断る(u"紺碧帳"_qs, u"入力許可"_qs);
    行を打つ(u"3"_qs, 2);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 1));
    const QString No = c(u"出金No"_qs).Text;
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"操作権限がありません。"_qs});
    EXPECT_TRUE(暗証の窓が出た());
    EXPECT_FALSE(問いの窓が出た());
    EXPECT_EQ(表(), (QList<int>{0, 0, 0, 0, 0}));
    EXPECT_TRUE(基盤.お待ち履歴.isEmpty());
    // The slip stays as typed, the focus where the operator left it.
    EXPECT_EQ(焦点(), u"摘要(1)"_qs);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(s.最終行, 1);
    EXPECT_EQ(c(u"出金金額"_qs, 1).Text, u"2000"_qs);
    EXPECT_EQ(c(u"出金No"_qs).Text, No);
}

TEST_P(権限拒否, 修正権限が無ければ直した伝票は断られ保存済みの行も履歴もそのまま) {
    断る(u"紺碧帳"_qs, u"修正許可"_qs);
    const QString No = 呼んで直す();
    const QList<int> 前 = 表();
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"操作権限がありません。"_qs});
    EXPECT_FALSE(問いの窓が出た());
    EXPECT_EQ(表(), 前);
    EXPECT_EQ(数(u"SELECT 出金金額合計 FROM T出金 WHERE 出金No = '"_qs + No + u"'"_qs), 3000);
    EXPECT_EQ(焦点(), u"摘要(1)"_qs);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(c(u"出金金額"_qs, 0).Text, u"1500"_qs);
}

TEST_P(権限拒否, 削除権限が無ければ削除は問う前に断られ伝票は残る) {
    断る(u"紺碧帳"_qs, u"削除許可"_qs);
    const QString No = 呼んで直す();
    const QList<int> 前 = 表();
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"操作権限がありません。"_qs});
    EXPECT_TRUE(暗証の窓が出た());
    EXPECT_EQ(表(), 前);
    EXPECT_EQ(焦点(), u"摘要(1)"_qs);
    EXPECT_EQ(c(u"出金No"_qs).Text, No);
    EXPECT_FALSE(s.新規情報フラグ);
    // The other rights stand: the correction goes through.
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_EQ(数(u"SELECT 出金金額合計 FROM T出金 WHERE 出金No = '"_qs + No + u"'"_qs), 3500);
}

TEST_P(権限拒否, 修正期間の外の伝票は削除の権限があってもアクセス権限6でなければ消せない) {
    const QString No = 伝票を打つ(u"3"_qs, 2);
    // Two years on, the slip lies outside the period everyone may change.
    基盤.時刻 = QDateTime(QDate(2027, 11, 20), QTime(10, 0, 0));
    ASSERT_TRUE(木->業務DB実行(u"UPDATE M担当者 SET アクセス権限 = 1 WHERE コード = '00001'"_qs));
    呼ぶ(No);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 0));
    基盤.表示済み.clear();
    const QList<int> 前 = 表();
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"操作権限がありません。"_qs});
    EXPECT_FALSE(暗証の窓が出た());
    EXPECT_EQ(表(), 前);
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
    EXPECT_FALSE(s.新規情報フラグ);

    ASSERT_TRUE(木->業務DB実行(u"UPDATE M担当者 SET アクセス権限 = 6 WHERE コード = '00001'"_qs));
    基盤.表示済み.clear();
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"削除しますか?"_qs});
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金"_qs), 0);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM R出金明細 WHERE 赤黒区分 = '0'"_qs), 2);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

TEST_P(権限拒否, 印刷権限が無ければ印刷は黙って何もせず離れた項目へ戻る) {
    断る(u"紺碧帳書"_qs, u"印刷許可"_qs);
    呼んで直す();
    f->画面.操作_クリック(c(u"btn_印刷"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_TRUE(暗証の窓が出た());
    EXPECT_TRUE(帳票起動記録().isEmpty());
    EXPECT_EQ(焦点(), u"摘要(1)"_qs);
    // Preview is another right, still held.
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_プレビュ"_qs));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"プレビュしますか?"_qs});
}

TEST_P(権限拒否, プレビュ権限が無ければプレビュは黙って何もせず焦点も動かさない) {
    断る(u"紺碧帳書"_qs, u"プレビュ許可"_qs);
    呼んで直す();
    f->画面.操作_クリック(c(u"btn_プレビュ"_qs));
    const QString 押した後 = 焦点();
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_TRUE(暗証の窓が出た());
    EXPECT_TRUE(帳票起動記録().isEmpty());
    EXPECT_EQ(押した後, u"btn_プレビュ"_qs);
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_印刷"_qs));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"印刷しますか?"_qs});
}

TEST_P(権限拒否, イメージ出力権限が無ければPDFは黙って何もせず待ちもしない) {
    断る(u"紺碧帳書"_qs, u"イメージ出力許可"_qs);
    // The image report's form is installed, so the button shows.
    QFile 様式(木->根() + u"/report/repfrmdb.db"_qs);
    ASSERT_TRUE(様式.open(QIODevice::WriteOnly));
    様式.close();
    呼んで直す();
    ASSERT_TRUE(c(u"btn_帳票イメージ出力"_qs).Visible);
    const int 描画 = 基盤.イベント処理回数;
    f->画面.操作_クリック(c(u"btn_帳票イメージ出力"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_TRUE(暗証の窓が出た());
    EXPECT_TRUE(帳票起動記録().isEmpty());
    EXPECT_EQ(基盤.待機合計, 0);
    EXPECT_LT(基盤.イベント処理回数 - 描画, 151);
    EXPECT_EQ(焦点(), u"btn_帳票イメージ出力"_qs);
    // The right refused was the image output's alone.
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_プレビュ"_qs));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"プレビュしますか?"_qs});
}

KONPEKI_両エンジンで(権限拒否);

}  // namespace
