#include <memory>

#include "common/エンジン別試験.h"
#include "common/伝票投入.h"
#include "common/窓なしの入力画面.h"
#include "common/連携要求.h"

namespace {

// A run started by a sibling program through the link table: once the slip is stored or
// deleted the run ends by itself, asks nothing more and leaves its answer.
class 連携終了 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        ASSERT_TRUE(木->プログラムを置く(u"紺碧帳書"_qs));
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        s.データ.接続().自身のフォルダ設定(木->プログラムフォルダ());
        f = std::make_unique<frm紺碧帳>(s);
        画面 = std::make_unique<窓なしの入力画面>(*f, [this] { 起動->伝票読込(); });
        起動 = std::make_unique<紺碧帳起動>(s, *画面);
        f->停止 = [this] {
            ++停止回数;
            起動->停止処理();
        };
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f->印刷確認.画面.操作_クリック(f->印刷確認.画面(u"btn_登録"_qs));
        };
    }
    // The sibling's request, written five seconds before the start it asks for.
    void 始める(const QString& 起動連携情報) {
        ASSERT_TRUE(連携要求を書く(*木, u"20251120 095955"_qs, 起動連携情報));
        ASSERT_EQ(起動->プログラム開始(起動連携情報), 起動結果::稼動);
        ASSERT_TRUE(s.連携起動フラグ);
    }
    QList<QVariantList> 答え() {
        return 木->環境DB行(
            u"SELECT 起動連携情報, 終了連携情報 FROM プログラム連携情報 WHERE 連携区分 = '99'"_qs);
    }
    部品& c(const QString& 名前, int 行 = -1) { return f->画面(名前, 行); }
    void 打ってTab(部品& 欄, const QString& 文字列) {
        f->画面.操作_入力(欄, 文字列);
        f->画面.操作_Tab();
    }
    int 数(const QString& 文) { return 木->業務DB行(文)[0][0].toInt(); }

    出金セッション s{基盤};
    std::unique_ptr<frm紺碧帳> f;
    std::unique_ptr<窓なしの入力画面> 画面;
    std::unique_ptr<紺碧帳起動> 起動;
    int 停止回数 = 0;
};

TEST_P(連携終了, 連携新規で打った伝票は保存の後に何も問わずに終わり鍵を答える) {
    始める(u"0010000000000000000"_qs);
    打ってTab(c(u"担当者コード"_qs), u"8"_qs);
    ASSERT_EQ(f->画面.フォーカス()->名前, u"費目区分"_qs);
    打ってTab(*f->画面.フォーカス(), u"3"_qs);
    for (int k = 0; k < 10 && f->画面.フォーカス()->名前 != u"出金金額"; ++k) f->画面.操作_Tab();
    打ってTab(*f->画面.フォーカス(), u"5400"_qs);
    ASSERT_TRUE(s.入力変更フラグ);
    f->画面.操作_クリック(c(u"btn_登録"_qs));

    EXPECT_EQ(停止回数, 1);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    const auto 伝票 =
        木->業務DB行(u"SELECT 事業所コード, 番号基準日付, 出金No, 出金金額合計 FROM T出金"_qs);
    ASSERT_EQ(伝票.size(), 1);
    EXPECT_EQ(伝票[0][3].toLongLong(), 5400);
    const QString 鍵 = 伝票[0][0].toString() + 伝票[0][1].toString() + 伝票[0][2].toString();
    const auto 行 = 答え();
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][1].toString(), 鍵);
    // The run's end row follows the answer.
    EXPECT_EQ(履歴().last()[1].toString(), u"終了"_qs);
}

TEST_P(連携終了, 連携で呼んだ伝票を直すと修正を保存して何も問わずに終わり答えは空) {
    試験伝票 伝票;
    伝票.出金No = u"00000004"_qs;
    ASSERT_TRUE(伝票投入(*木, 伝票));
    始める(u"00020260331"_qs + 伝票.出金No);
    ASSERT_FALSE(s.新規情報フラグ);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 0));
    打ってTab(c(u"出金金額"_qs, 0), u"1500"_qs);
    f->画面.操作_クリック(c(u"btn_登録"_qs));

    EXPECT_EQ(停止回数, 1);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(数(u"SELECT 出金金額合計 FROM T出金 WHERE 出金No = '00000004'"_qs), 3500);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM R出金明細 WHERE 赤黒区分 = '0'"_qs), 2);
    const auto 行 = 答え();
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][0].toString(), u"00020260331"_qs + 伝票.出金No);
    EXPECT_EQ(行[0][1].toString(), QString());
}

TEST_P(連携終了, 連携で呼んだ伝票を消すと削除の問いだけで終わる) {
    試験伝票 伝票;
    伝票.出金No = u"00000004"_qs;
    ASSERT_TRUE(伝票投入(*木, 伝票));
    始める(u"00020260331"_qs + 伝票.出金No);
    ASSERT_FALSE(s.新規情報フラグ);
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_削除"_qs));

    EXPECT_EQ(停止回数, 1);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"削除しますか?"_qs});
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金"_qs), 0);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金明細"_qs), 0);
    const auto 行 = 答え();
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][1].toString(), QString());
}

KONPEKI_両エンジンで(連携終了);

}  // namespace
