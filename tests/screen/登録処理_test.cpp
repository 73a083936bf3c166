#include "screen/msg印刷確認.h"
#include "入力画面試験.h"

namespace {

// The register flow of the entry screen: a slip typed through the screen, the question, the
// store, and the new slip after it.
class 登録処理 : public 入力画面試験 {
  protected:
    // Two lines typed from the staff code on, then Tab through the remarks and out of 備考B.
    void 打って備考Bを抜ける() {
        行を打つ(2);
        f->画面.操作_フォーカス(c(u"出金伝票備考A"_qs));
        f->画面.操作_入力(c(u"出金伝票備考A"_qs), u"備考の'一行目"_qs);
        f->画面.操作_Tab();
        f->画面.操作_Tab();
    }
    // The operator's answer inside the question: the button clicked, or nothing (the frame).
    void 答える(const QString& 釦) {
        基盤.画面表示時 = [this, 釦](const QString& 名) {
            if (名 != u"msg印刷確認") return;
            質問の文 = f->印刷確認.画面(u"lab_msg"_qs).Caption;
            質問の色 = f->印刷確認.画面(u"lab_msg"_qs).ForeColor;
            質問の題 = f->印刷確認.画面.Caption;
            質問の焦点 =
                f->印刷確認.画面.フォーカス() ? f->印刷確認.画面.フォーカス()->名前 : QString();
            if (!釦.isEmpty()) f->印刷確認.画面.操作_クリック(f->印刷確認.画面(釦));
        };
    }
    int 伝票数() { return 木.業務DB行(u"SELECT COUNT(*) FROM T出金"_qs)[0][0].toInt(); }
    QString 質問の文, 質問の題, 質問の焦点;
    int 質問の色 = 0;
};

TEST_F(登録処理, 備考Bを抜けると問いが出て登録のみで保存し次の新規伝票で担当者に立つ) {
    答える(u"btn_登録"_qs);
    打って備考Bを抜ける();
    EXPECT_EQ(質問の題, u"紺碧帳"_qs);
    EXPECT_EQ(質問の文, u"登録します。よろしいですか？"_qs);
    EXPECT_EQ(質問の色, -1);
    EXPECT_EQ(質問の焦点, u"btn_登録"_qs);
    ASSERT_EQ(伝票数(), 1);
    const auto 行 = 木.業務DB行(
        u"SELECT 出金No, 出金日付, 担当者コード, 出金金額合計, 出金伝票備考A FROM T出金"_qs);
    EXPECT_EQ(行[0][0].toString(), u"00000001"_qs);
    EXPECT_EQ(行[0][1].toString(), u"20251120"_qs);
    EXPECT_EQ(行[0][2].toString(), u"00003"_qs);
    EXPECT_EQ(行[0][3].toLongLong(), 3000);
    EXPECT_EQ(行[0][4].toString(), u"備考の'一行目"_qs);
    EXPECT_EQ(木.業務DB行(u"SELECT COUNT(*) FROM T出金明細"_qs)[0][0].toInt(), 2);
    EXPECT_EQ(基盤.お待ち履歴, (QList<bool>{true, false}));
    // A new slip on the same date with the next number, the focus on the staff code.
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000002"_qs);
    EXPECT_EQ(c(u"出金日付日"_qs).Text, u"20"_qs);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, QString());
    EXPECT_EQ(c(u"出金金額"_qs, 0).Text, QString());
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    EXPECT_FALSE(c(u"tab_詳細"_qs).Enabled);
}

TEST_F(登録処理, いいえでは何も保存せず画面も旗もそのままで離れた項目へ戻る) {
    答える(u"btn_いいえ"_qs);
    打って備考Bを抜ける();
    EXPECT_EQ(伝票数(), 0);
    EXPECT_EQ(s.登録確認結果, 2);
    EXPECT_EQ(s.最終行, 1);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(c(u"出金金額"_qs, 1).Text, u"2000"_qs);
    EXPECT_EQ(焦点(), u"出金伝票備考B"_qs);
    EXPECT_TRUE(基盤.お待ち履歴.isEmpty());
}

TEST_F(登録処理, 枠で閉じた問いはいいえと同じ) {
    答える(QString());
    打って備考Bを抜ける();
    EXPECT_EQ(伝票数(), 0);
    EXPECT_EQ(s.登録確認結果, 2);
    EXPECT_EQ(s.最終行, 1);
    EXPECT_EQ(基盤.閉じた画面, QStringList{u"msg印刷確認"_qs});
}

TEST_F(登録処理, 登録と印刷は権限があれば消す前の伝票を印刷に回す) {
    答える(u"btn_登録印刷"_qs);
    打って備考Bを抜ける();
    EXPECT_EQ(伝票数(), 1);
    EXPECT_EQ(帳票起動記録(),
              QStringList{u"0000202511202025112000000001000000010000300003"_qs + u"2"_qs});
}

TEST_F(登録処理, 登録のみは印刷しない) {
    答える(u"btn_登録"_qs);
    打って備考Bを抜ける();
    EXPECT_TRUE(帳票起動記録().isEmpty());
}

TEST_F(登録処理, 登録釦でも同じ流れになり保存した伝票を呼ぶと修正の問いが赤で出る) {
    答える(u"btn_登録"_qs);
    行を打つ(1);
    ASSERT_TRUE(c(u"btn_登録"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    ASSERT_EQ(伝票数(), 1);
    // Load it again, change the amount and store the correction.
    f->画面.操作_入力(c(u"出金No"_qs), u"1"_qs);
    f->画面.操作_Tab();
    ASSERT_FALSE(s.新規情報フラグ);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    for (int k = 0; k < 10 && 焦点() != u"出金金額(0)"; ++k) f->画面.操作_Tab();
    f->画面.操作_入力(c(u"出金金額"_qs, 0), u"1500"_qs);
    f->画面.操作_Tab();
    ASSERT_TRUE(c(u"btn_登録"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_EQ(質問の文, u"修正します。よろしいですか？"_qs);
    EXPECT_EQ(質問の色, msg印刷確認::赤192);
    const auto 行 = 木.業務DB行(u"SELECT 出金No, 出金金額合計 FROM T出金"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][0].toString(), u"00000001"_qs);
    EXPECT_EQ(行[0][1].toLongLong(), 1500);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

TEST_F(登録処理, 修正期間の外の保存済み伝票は権限がないと断られ何も変わらない) {
    答える(u"btn_登録"_qs);
    打って備考Bを抜ける();
    ASSERT_EQ(伝票数(), 1);
    // Two years on, the slip lies outside the period everyone may change, and the operator
    // lacks the access right that may change it all the same.
    基盤.時刻 = QDateTime(QDate(2027, 11, 20), QTime(10, 0, 0));
    ASSERT_TRUE(木.業務DB実行(u"UPDATE M担当者 SET アクセス権限 = 1 WHERE コード = '00001'"_qs));
    f->画面.操作_入力(c(u"出金No"_qs), u"1"_qs);
    f->画面.操作_Tab();
    f->画面.操作_フォーカス(c(u"出金伝票備考B"_qs));
    f->画面.操作_入力(c(u"出金伝票備考B"_qs), u"直し"_qs);
    質問の文.clear();
    f->画面.操作_Tab();
    EXPECT_EQ(基盤.表示文言(), QStringList{u"操作権限がありません。"_qs});
    EXPECT_TRUE(質問の文.isEmpty());
    EXPECT_EQ(焦点(), u"出金伝票備考B"_qs);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_EQ(木.業務DB行(u"SELECT 出金伝票備考B FROM T出金"_qs)[0][0].toString(), QString());
}

TEST_F(登録処理, 修正期間の外でもアクセス権限6の操作者は直せる) {
    答える(u"btn_登録"_qs);
    打って備考Bを抜ける();
    基盤.時刻 = QDateTime(QDate(2027, 11, 20), QTime(10, 0, 0));
    f->画面.操作_入力(c(u"出金No"_qs), u"1"_qs);
    f->画面.操作_Tab();
    f->画面.操作_フォーカス(c(u"出金伝票備考B"_qs));
    f->画面.操作_入力(c(u"出金伝票備考B"_qs), u"直し"_qs);
    f->画面.操作_Tab();
    EXPECT_TRUE(基盤.表示文言().isEmpty());
    EXPECT_EQ(木.業務DB行(u"SELECT 出金伝票備考B FROM T出金"_qs)[0][0].toString(), u"直し"_qs);
}

TEST_F(登録処理, 連携で起こした伝票は保存の後に鍵を残して終わりを求める) {
    答える(u"btn_登録"_qs);
    int 終わり = 0;
    f->停止 = [&] { ++終わり; };
    s.連携起動フラグ = true;
    打って備考Bを抜ける();
    EXPECT_EQ(伝票数(), 1);
    EXPECT_EQ(s.データ.プログラム連携().終了時連携情報(), u"0002026033100000001"_qs);
    EXPECT_EQ(終わり, 1);
}

TEST_F(登録処理, 打った後に他の利用者が消した担当者でも伝票はそのまま保存される) {
    答える(u"btn_登録"_qs);
    行を打つ(1);
    ASSERT_TRUE(木.業務DB実行(u"DELETE FROM M担当者 WHERE コード = '00003'"_qs));
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    const auto 行 = 木.業務DB行(u"SELECT 担当者コード, 出金金額合計 FROM T出金"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][0].toString(), u"00003"_qs);
    EXPECT_EQ(行[0][1].toLongLong(), 1000);
    EXPECT_TRUE(基盤.表示文言().isEmpty());
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

// A company with PINs, whose operator may store slips but not print them.
class 印刷権限のない登録処理 : public 登録処理 {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.業務DB実行(u"UPDATE Mユーザ SET 暗証番号有無 = 1"_qs));
        ASSERT_TRUE(木.業務DB実行(
            u"UPDATE 担当者別操作許可プログラム SET 印刷許可 = '1' WHERE 担当者コード = '00001' AND プログラムID = '紺碧帳書'"_qs));
        登録処理::SetUp();
    }
};

TEST_F(印刷権限のない登録処理, 登録と印刷は保存し印刷せず何も言わない) {
    答える(u"btn_登録印刷"_qs);
    打って備考Bを抜ける();
    EXPECT_EQ(伝票数(), 1);
    EXPECT_TRUE(帳票起動記録().isEmpty());
    EXPECT_TRUE(基盤.表示文言().isEmpty());
    // The print right was asked for by the PIN window, which was closed unanswered.
    EXPECT_TRUE(基盤.表示画面.contains({u"msg暗証番号確認"_qs, true}));
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

}  // namespace
