#include <QFile>

#include "入力画面試験.h"

namespace {

// The commands of the entry screen besides the register flow: clear, previous and next, the
// reports, the quit, the deletion and the attachment buttons.
class 画面命令 : public 入力画面試験 {
  protected:
    void SetUp() override {
        入力画面試験::SetUp();
        if (HasFatalFailure()) return;
        f->停止 = [this] { ++停止回数; };
        // The register question is answered "register only".
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f->印刷確認.画面.操作_クリック(f->印刷確認.画面(u"btn_登録"_qs));
        };
    }
    // A slip of n lines typed and stored through the screen; answers its number.
    QString 保存する(int n) {
        const QString No = c(u"出金No"_qs).Text;
        行を打つ(n);
        f->画面.操作_クリック(c(u"btn_登録"_qs));
        return No;
    }
    void 呼ぶ(const QString& No) {
        f->画面.操作_入力(c(u"出金No"_qs), No);
        f->画面.操作_Tab();
    }
    int 数(const QString& 文) { return 木.業務DB行(文)[0][0].toInt(); }
    QStringList 問い() {
        QStringList 文;
        for (const auto& m : 基盤.表示済み) 文 << m.本文;
        return 文;
    }
    int 停止回数 = 0;
    // The report argument of the slip of that number, staff 00003, dated today.
    static QString 引数(const QString& 区分, const QString& No) {
        return u"000"_qs + 区分 + u"2025112020251120"_qs + No + No + u"00003000032"_qs;
    }
};

TEST_F(画面命令, 新しい伝票の画面クリアは何も問わず日付を残す) {
    f->画面.操作_入力(c(u"出金日付日"_qs), u"3"_qs);
    f->画面.操作_Tab();
    s.入力変更フラグ = false;
    f->画面.操作_クリック(c(u"btn_画面クリア"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(c(u"出金日付日"_qs).Text, u"03"_qs);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

TEST_F(画面命令, 打った後の画面クリアは二行の問いでいいえなら何も消さない) {
    行を打つ(1);
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 0));
    f->画面.操作_クリック(c(u"btn_画面クリア"_qs));
    ASSERT_EQ(基盤.表示済み.size(), 1);
    EXPECT_EQ(基盤.表示済み[0].本文, u"入力がありました。\rクリアしますか？"_qs);
    EXPECT_EQ(基盤.表示済み[0].ボタン, ボタン種別::はいいいえ);
    EXPECT_EQ(基盤.表示済み[0].既定ボタン, 1);
    EXPECT_EQ(s.最終行, 0);
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_画面クリア"_qs));
    EXPECT_EQ(s.最終行, -1);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

TEST_F(画面命令, 前の伝票がなければ打った後でも何も問わない) {
    行を打つ(1);
    f->画面.操作_クリック(c(u"btn_前No"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(s.最終行, 0);
}

TEST_F(画面命令, 前と次は保存した伝票の間を進み打った後は問う) {
    const QString 一 = 保存する(1);
    const QString 二 = 保存する(2);
    f->画面.操作_クリック(c(u"btn_前No"_qs));
    EXPECT_EQ(c(u"出金No"_qs).Text, 二);
    EXPECT_FALSE(s.新規情報フラグ);
    f->画面.操作_クリック(c(u"btn_前No"_qs));
    EXPECT_EQ(c(u"出金No"_qs).Text, 一);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    // A change typed: the step asks first.
    f->画面.操作_フォーカス(c(u"摘要"_qs, 0));
    f->画面.操作_入力(c(u"摘要"_qs, 0), u"直し"_qs);
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_次No"_qs));
    EXPECT_EQ(問い(), QStringList{u"入力がありました。\rクリアし次Noを表示しますか？"_qs});
    EXPECT_EQ(c(u"出金No"_qs).Text, 一);
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_次No"_qs));
    EXPECT_EQ(c(u"出金No"_qs).Text, 二);
    EXPECT_EQ(s.最終行, 1);
}

TEST_F(画面命令, 印刷は問いにはいで要求しどの場合も離れた項目へ戻る) {
    const QString No = 保存する(1);
    呼ぶ(No);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 0));
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_印刷"_qs));
    EXPECT_EQ(問い(), QStringList{u"印刷しますか?"_qs});
    EXPECT_TRUE(帳票起動記録().isEmpty());
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_印刷"_qs));
    EXPECT_EQ(帳票起動記録(), QStringList{引数(u"0"_qs, No)});
    EXPECT_EQ(基盤.起動済み.last().作業フォルダ, 木.プログラムフォルダ());
    EXPECT_EQ(焦点(), u"摘要(0)"_qs);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_プレビュ"_qs));
    EXPECT_EQ(問い().last(), u"プレビュしますか?"_qs);
    EXPECT_EQ(帳票起動記録().last(), 引数(u"1"_qs, No));
}

TEST_F(画面命令, PDF出力の後は一秒半ほど待って書類の一覧を読み直す) {
    const QString No = 保存する(1);
    EXPECT_FALSE(c(u"btn_帳票イメージ出力"_qs).Visible);  // no image report form installed
    QFile 様式(木.根() + u"/report/repfrmdb.db"_qs);
    ASSERT_TRUE(様式.open(QIODevice::WriteOnly));
    様式.close();
    呼ぶ(No);
    ASSERT_TRUE(c(u"btn_帳票イメージ出力"_qs).Visible);
    const int 前 = 基盤.イベント処理回数;
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_帳票イメージ出力"_qs));
    EXPECT_EQ(問い(), QStringList{u"PDFを作成しますか?"_qs});
    EXPECT_EQ(帳票起動記録(), QStringList{引数(u"3"_qs, No)});
    EXPECT_EQ(基盤.待機合計, 1510);
    EXPECT_EQ(基盤.イベント処理回数 - 前, 151);
}

TEST_F(画面命令, 打った新しい伝票の終了は揃っていなくても問いいいえなら残る) {
    f->画面.操作_入力(c(u"担当者コード"_qs), u"3"_qs);
    f->画面.操作_Tab();
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_終了"_qs));
    EXPECT_EQ(問い(), QStringList{u"入力がありました。\r終了しますか？"_qs});
    EXPECT_EQ(停止回数, 0);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_終了"_qs));
    EXPECT_EQ(停止回数, 1);
}

TEST_F(画面命令, 何も打っていない新しい伝票の終了は問わずに終わる) {
    f->画面.操作_クリック(c(u"btn_終了"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(停止回数, 1);
}

TEST_F(画面命令, 担当者を消した保存済み伝票は埋めるかクリアするまで終われない) {
    const QString No = 保存する(1);
    呼ぶ(No);
    f->画面.操作_入力(c(u"担当者コード"_qs), QString());
    f->画面.操作_Tab();
    f->画面.操作_クリック(c(u"btn_終了"_qs));
    EXPECT_EQ(停止回数, 0);
    EXPECT_EQ(c(u"お知らせ"_qs).Caption, u"必須項目が未入力です。"_qs);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_画面クリア"_qs));
    f->画面.操作_クリック(c(u"btn_終了"_qs));
    EXPECT_EQ(停止回数, 1);
}

TEST_F(画面命令, 削除は既定がいいえの問いではいなら消し新しい番号で新規伝票になる) {
    const QString 一 = 保存する(2);
    呼ぶ(一);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 1));
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    ASSERT_EQ(基盤.表示済み.size(), 1);
    EXPECT_EQ(基盤.表示済み[0].本文, u"削除しますか?"_qs);
    EXPECT_EQ(基盤.表示済み[0].既定ボタン, 2);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金"_qs), 1);
    EXPECT_EQ(焦点(), u"摘要(1)"_qs);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金"_qs), 0);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金明細"_qs), 0);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM 未集計情報 WHERE 登録情報区分 = '2' AND 赤黒区分 = '0'"_qs),
              1);
    EXPECT_TRUE(s.新規情報フラグ);
    // The deleted number is not offered again.
    EXPECT_NE(c(u"出金No"_qs).Text, 一);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

TEST_F(画面命令, 日程に結ばれた伝票の削除は警告を前に付けて問う) {
    const QString 一 = 保存する(1);
    ASSERT_TRUE(木.業務DB実行(
        u"INSERT INTO T営業活動明細 (担当者コード, 日付, 開始時刻, 終了時刻, 出金事業所コード, 出金番号基準日付, 出金No) VALUES ('00003', '20251120', '1000', '1100', '000', '20260331', '"_qs +
        一 + u"')"_qs));
    呼ぶ(一);
    基盤.回答.enqueue(応答::いいえ);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    EXPECT_EQ(問い(), QStringList{u"日程情報に登録済です。削除しますか?"_qs});
}

TEST_F(画面命令,
       付属書類の釦は新規では閉じ保存済みなら追加とフォルダが開き削除は書類があるときだけ) {
    EXPECT_FALSE(c(u"btn_付属書類追加"_qs).Enabled);
    EXPECT_FALSE(c(u"btn_フォルダ"_qs).Enabled);
    EXPECT_FALSE(c(u"btn_付属書類削除"_qs).Enabled);
    const QString 一 = 保存する(1);
    呼ぶ(一);
    EXPECT_TRUE(c(u"btn_付属書類追加"_qs).Enabled);
    EXPECT_TRUE(c(u"btn_フォルダ"_qs).Enabled);
    EXPECT_FALSE(c(u"btn_付属書類削除"_qs).Enabled);
    ASSERT_TRUE(木.業務DB実行(
        u"INSERT INTO M付属書類 (情報名, 情報識別ID, SEQNo, 書類名) VALUES ('紺碧帳', '00020260331"_qs +
        一 + u"', '001', '領収書.pdf')"_qs));
    f->付属書類listint();
    EXPECT_TRUE(c(u"btn_付属書類削除"_qs).Enabled);
}

TEST_F(画面命令, 表示中は命令が何もせず終了だけは動く) {
    行を打つ(1);
    // While the screen is drawn, a click reaches the model's one door for events and stops
    // there, except on the quit.
    f->画面.表示([&] {
        for (const char16_t* 釦 : {u"btn_画面クリア", u"btn_前No", u"btn_印刷", u"btn_削除"}) {
            f->画面.操作_クリック(c(QString::fromUtf16(釦)));
        }
        EXPECT_TRUE(基盤.表示済み.isEmpty());
        EXPECT_EQ(s.最終行, 0);
        EXPECT_EQ(停止回数, 0);
        基盤.回答.enqueue(応答::はい);
        f->画面.操作_クリック(c(u"btn_終了"_qs));
    });
    EXPECT_EQ(停止回数, 1);
}

}  // namespace
