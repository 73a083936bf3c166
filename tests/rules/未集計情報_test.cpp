#include "rules/未集計情報.h"

#include "dataenv/ファイル操作.h"
#include "rules/番号設定試験.h"

namespace {

const QString 列 =
    u"SELECT 事業所コード, 番号ID, 番号基準日付, 履歴No, 赤黒区分, 伝票No, 追加キー項目,"
    " データフラグ, 登録情報区分, 予備項目 FROM 未集計情報"_qs;

class 未集計情報 : public 番号設定試験 {
  protected:
    void SetUp() override {
        番号設定試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        ASSERT_NO_FATAL_FAILURE(起動());
        利用者 = 端末利用者名取得() + u"00001"_qs + 端末名取得();
    }
    QStringList 業務の列() { return 業務表(列 + u" ORDER BY 履歴No"_qs); }
    QStringList 環境の列() { return 環境表(列 + u" ORDER BY 履歴No"_qs); }
    QString 利用者;
    // A correction that moved to another sequence, and its two rows: the history numbers run
    // against the order of writing, so the order is read from the run history, which numbers
    // its rows.
    const 保存状態 移った修正{u"1"_qs,        u"000"_qs,      u"20260331"_qs, u"00000003"_qs,
                              u"00000021"_qs, u"20270331"_qs, u"00000001"_qs, u"00000020"_qs};
    void 移った修正の行を確かめる() {
        EXPECT_EQ(業務の列(),
                  (QStringList{u"000|16810|20270331|00000020|1|00000001||0|1|"_qs + 利用者,
                               u"000|16810|20260331|00000021|0|00000003||0|1|"_qs + 利用者}));
        const QStringList 出力 = 履歴文(u"出力終了 "_qs);
        ASSERT_EQ(出力.size(), 2);
        EXPECT_TRUE(出力[0].contains(u"''20260331'',''00000021'',''0'',''00000003''"_qs));
        EXPECT_TRUE(出力[1].contains(u"''20270331'',''00000020'',''1'',''00000001''"_qs));
    }
};

TEST_P(未集計情報, 記録者IDは利用者名と起動担当者と端末名をつなぐ) {
    EXPECT_EQ(記録者ID(環境.接続().環境()), 利用者);
    EXPECT_FALSE(端末利用者名取得().isEmpty());
}

TEST_P(未集計情報, 更新実行区分1では業務DBに書き稼動履歴に残す) {
    const 書込結果 結果 =
        未集計情報書込(環境.接続(), 環境.会社設定().会社(), u"0"_qs, u"1"_qs, u"16810"_qs,
                       u"000"_qs, u"20270331"_qs, u"00000012"_qs, u"00000034"_qs);
    EXPECT_EQ(結果.処理結果区分, 1);
    EXPECT_EQ(結果.処理結果メッセージ, QString());
    EXPECT_EQ(業務の列(), QStringList{u"000|16810|20270331|00000034|1|00000012||0|0|"_qs + 利用者});
    EXPECT_TRUE(環境の列().isEmpty());
    const QStringList 出力 = 履歴文(u"出力終了 "_qs);
    ASSERT_EQ(出力.size(), 1);
    EXPECT_TRUE(出力[0].startsWith(
        u"出力終了 INSERT INTO [未集計情報] (事業所コード,番号ID,番号基準日付,履歴No,赤黒区分,"
        "伝票No,追加キー項目,データフラグ,登録情報区分,予備項目) VALUES (''000'',''16810'',"
        "''20270331'',''00000034'',''1'',''00000012'','''',''0'',''0'',''"_qs))
        << 出力[0].toStdString();
}

TEST_P(未集計情報, 更新実行区分0では環境DBに書き稼動履歴を残さない) {
    環境.会社設定().会社変更([&](会社情報& 値) { 値.更新実行区分 = 0; });
    const 書込結果 結果 =
        未集計情報書込(環境.接続(), 環境.会社設定().会社(), u"1"_qs, u"0"_qs, u"16810"_qs,
                       u"001"_qs, u"20260331"_qs, u"00000003"_qs, u"00000010"_qs);
    EXPECT_EQ(結果.処理結果区分, 1);
    EXPECT_EQ(環境の列(), QStringList{u"001|16810|20260331|00000010|0|00000003||0|1|"_qs + 利用者});
    EXPECT_TRUE(業務の列().isEmpty());
    EXPECT_TRUE(履歴().isEmpty());
}

TEST_P(未集計情報, 書込の失敗は区分3と文言になり記録される) {
    ASSERT_TRUE(木->業務DB実行(u"DROP TABLE 未集計情報"_qs));
    const 書込結果 結果 =
        未集計情報書込(環境.接続(), 環境.会社設定().会社(), u"0"_qs, u"1"_qs, u"16810"_qs,
                       u"000"_qs, u"20270331"_qs, u"00000001"_qs, u"00000001"_qs);
    EXPECT_EQ(結果.処理結果区分, 3);
    EXPECT_EQ(結果.処理結果メッセージ, u"登録済です。登録できませんでした。"_qs);
    EXPECT_EQ(履歴文(u"エラー "_qs).size(), 1);
    EXPECT_TRUE(履歴文(u"出力終了 "_qs).isEmpty());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_P(未集計情報, 新規は赤黒1の一行) {
    const auto 結果 = 出金未集計情報書込(
        環境.接続(), 環境.会社設定().会社(),
        {u"0"_qs, u"000"_qs, {}, {}, {}, u"20270331"_qs, u"00000001"_qs, u"00000001"_qs});
    ASSERT_TRUE(結果.has_value());
    EXPECT_EQ(結果->処理結果区分, 1);
    EXPECT_EQ(業務の列(), QStringList{u"000|16810|20270331|00000001|1|00000001||0|0|"_qs + 利用者});
}

TEST_P(未集計情報, 削除は赤黒0で登録情報区分2の一行だけ) {
    const auto 結果 =
        出金未集計情報書込(環境.接続(), 環境.会社設定().会社(),
                           {u"2"_qs, u"000"_qs, u"20270331"_qs, u"00000007"_qs, u"00000015"_qs,
                            u"20270331"_qs, u"00000008"_qs, QString()});
    ASSERT_TRUE(結果.has_value());
    EXPECT_EQ(業務の列(), QStringList{u"000|16810|20270331|00000015|0|00000007||0|2|"_qs + 利用者});
}

TEST_P(未集計情報, 系列を移った修正は旧キーを先に新キーを後に書く) {
    const auto 結果 = 出金未集計情報書込(環境.接続(), 環境.会社設定().会社(), 移った修正);
    ASSERT_TRUE(結果.has_value());
    移った修正の行を確かめる();
}

TEST_P(未集計情報, 履歴番号が数値で0の状態は書かない) {
    EXPECT_FALSE(出金未集計情報書込(環境.接続(), 環境.会社設定().会社(),
                                    {u"1"_qs, u"000"_qs, u"20270331"_qs, u"00000003"_qs,
                                     u"00000000"_qs, u"20270331"_qs, u"00000003"_qs, u""_qs})
                     .has_value());
    EXPECT_TRUE(業務の列().isEmpty());
}

TEST_P(未集計情報, 結果は最後に書いた行のもの) {
    // Old and new state go to the configuration database there; a failure of the first is
    // overwritten by the success of the second.
    環境.会社設定().会社変更([&](会社情報& 値) { 値.更新実行区分 = 0; });
    ASSERT_TRUE(木->環境DB実行(
        u"CREATE TRIGGER 旧状態拒否 BEFORE INSERT ON 未集計情報 WHEN NEW.赤黒区分 = '0'"
        " BEGIN SELECT RAISE(ABORT, 'refused'); END"_qs));
    const auto 結果 =
        出金未集計情報書込(環境.接続(), 環境.会社設定().会社(),
                           {u"1"_qs, u"000"_qs, u"20270331"_qs, u"00000003"_qs, u"00000004"_qs,
                            u"20270331"_qs, u"00000003"_qs, u"00000005"_qs});
    ASSERT_TRUE(結果.has_value());
    EXPECT_EQ(結果->処理結果区分, 1);
    EXPECT_EQ(環境の列(), QStringList{u"000|16810|20270331|00000005|1|00000003||0|1|"_qs + 利用者});
    EXPECT_EQ(履歴文(u"エラー "_qs).size(), 1);
}

// Inside a store's batch the rows go as its writes: the same rows in the same order, each
// outcome handed over by the time the batch ends.
TEST_P(未集計情報, 一括の書込として送った行は同じ行を同じ順に書く) {
    std::vector<short> 答え;
    環境.接続().業務DB一括開始(u"試験"_qs);
    出金未集計情報を送る(環境.接続(), 移った修正,
                         [&](const 書込結果& r) { 答え.push_back(r.処理結果区分); });
    ASSERT_TRUE(環境.接続().業務DB一括終了());
    EXPECT_EQ(答え, (std::vector<short>{1, 1}));
    移った修正の行を確かめる();
    // With the queue gone both rows are refused, each with the store's refusal.
    ASSERT_TRUE(木->業務DB実行(u"DROP TABLE 未集計情報"_qs));
    std::vector<書込結果> 二度目;
    環境.接続().業務DB一括開始(u"試験"_qs);
    出金未集計情報を送る(環境.接続(), 移った修正, [&](const 書込結果& r) { 二度目.push_back(r); });
    環境.接続().業務DB一括終了();
    ASSERT_EQ(二度目.size(), 2u);
    for (const 書込結果& r : 二度目) {
        EXPECT_EQ(r.処理結果区分, 3);
        EXPECT_EQ(r.処理結果メッセージ, u"登録済です。登録できませんでした。"_qs);
    }
    EXPECT_EQ(履歴文(u"エラー "_qs).size(), 2);
}

KONPEKI_両エンジンで(未集計情報);

}  // namespace
