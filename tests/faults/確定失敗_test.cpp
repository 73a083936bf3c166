#include "dataenv/スキーマ適用.h"
#include "障害装置.h"

namespace {

const QString 未集計の文 = u"INSERT INTO [未集計情報]"_qs;

// A fault at the last moment before a batch commits: on SQLite the disk of the general database
// filled to the last byte, on PostgreSQL its server stopped. Queue rows go to the general
// database here, so the last statement of a store or deletion is a queue row, and the run
// history's row just before the failed commit is that row's.
class 確定失敗の場 : public ::testing::Test {
  protected:
    virtual bool PG() const = 0;
    void SetUp() override {
        if (PG()) {
            if (!試験用PostgreSQL::利用可能()) GTEST_SKIP() << "KONPEKI_TEST_PG is not set";
            ASSERT_TRUE(鯖.起動());
        }
        木 = std::make_unique<試験用ツリー>(PG() ? 鯖.接続情報() : QString());
        ASSERT_TRUE(木->作成済み) << 木->エラー.toStdString();
        if (!PG() && !ディスク.載せる(木->業務DB(), 木->根()))
            GTEST_SKIP() << "this machine refuses to mount a tmpfs";
        {
            データ接続 設定(u"fixture"_qs);
            ASSERT_TRUE(設定.開く(業務DB先()));
            ASSERT_TRUE(設定.実行(u"UPDATE Mユーザ SET 更新実行区分 = 1"_qs));
        }
        甲 = std::make_unique<伝票打鍵者>(木->プログラムフォルダ());
        ASSERT_TRUE(甲->開く());
    }
    void TearDown() override {
        甲.reset();
        ディスク.外す();
        木.reset();
    }

    QString 最後の文言() const {
        const QStringList 文言 = 甲->基盤.表示文言();
        return 文言.isEmpty() ? QString() : 文言.last();
    }

    // The general database, for connections of the test's own, opened and closed again at
    // once: a stopped server would break one kept open, the tree's own among them.
    接続先 業務DB先() {
        接続先 先;
        if (PG()) {
            先 = PostgreSQL接続先(鯖.接続情報());
        } else {
            先.ファイル = 木->業務DB();
        }
        return 先;
    }
    // The history lines others see; every store and deletion adds some when it commits.
    int 確定した履歴明細数() {
        データ接続 db(u"fixture"_qs);
        if (!db.開く(業務DB先())) return -1;
        記録集合 rs;
        const int 数 =
            db.検索(rs, u"SELECT COUNT(*) FROM R出金明細"_qs) ? rs.文字列(0).toInt() : -1;
        rs.閉じる();
        return 数;
    }
    // The clock read of an operation that comes last before its batch commits: the last read
    // at which another connection does not see the batch's history lines yet. On SQLite that is
    // the one for the history row of its last queue row; on PostgreSQL the writes wait and go
    // with the commit, and it is the one for the date of the last line.
    int 確定前の読数(const std::function<void()>& 操作) {
        QList<int> 各読で;
        甲->基盤.毎回 = [&](int) { 各読で.append(確定した履歴明細数()); };
        操作();
        甲->基盤.毎回 = nullptr;
        const int 後 = 確定した履歴明細数();
        int 読数 = 0;
        for (int i = 0; i < 各読で.size(); ++i) {
            if (各読で[i] < 後) 読数 = i + 1;
        }
        return 読数;
    }
    void 障害() {
        if (PG()) {
            ASSERT_TRUE(鯖.停止());
        } else {
            ディスク.満たす();
        }
    }
    void 復旧() {
        if (PG()) {
            ASSERT_TRUE(鯖.再開());
        } else {
            ASSERT_TRUE(ディスク.空ける());
        }
    }
    // The operation with the fault at that read of the clock.
    void 障害付きで(int 読数, const std::function<void()>& 操作) {
        ASSERT_GT(読数, 0);
        甲->基盤.点 = QString::number(読数);
        甲->基盤.着いた時 = [this] { 障害(); };
        操作();
        甲->基盤.着いた時 = nullptr;
        甲->基盤.点.clear();
    }
    // The run history's row that tells of the failed commit of the batch named, checked for
    // its place and its text; the row after it, or "" when it is the last.
    QString 確定失敗の行を確かめる(const QString& 一括名) {
        QStringList 摘要;
        for (const auto& r : 木->稼動履歴()) 摘要 << r[1].toString();
        int i = static_cast<int>(摘要.size()) - 1;
        while (i >= 0 && !摘要[i].contains(u"COMMIT "_qs + 一括名)) --i;
        if (i < 1) {
            ADD_FAILURE() << "no history row for the commit of " << 一括名.toStdString();
            return {};
        }
        const QString& 行 = 摘要[i];
        EXPECT_TRUE(行.startsWith(u"エラー "_qs)) << 行.toStdString();
        // The engine's own text stands before the statement's name.
        const QString 説明 = 行.mid(4, 行.indexOf(u"COMMIT "_qs) - 4).trimmed();
        EXPECT_FALSE(説明.isEmpty()) << 行.toStdString();
        if (!PG()) {
            EXPECT_TRUE(説明.contains(u"full"_qs)) << 行.toStdString();
        }
        return i + 1 < 摘要.size() ? 摘要[i + 1] : QString();
    }
    QString 直前の行(const QString& 一括名) {
        QStringList 摘要;
        for (const auto& r : 木->稼動履歴()) 摘要 << r[1].toString();
        for (int i = 1; i < 摘要.size(); ++i) {
            if (摘要[i].contains(u"COMMIT "_qs + 一括名)) return 摘要[i - 1];
        }
        return {};
    }

    専用PostgreSQL 鯖;
    std::unique_ptr<試験用ツリー> 木;
    小さなディスク ディスク;
    std::unique_ptr<伝票打鍵者> 甲;
};

class 確定失敗 : public 確定失敗の場, public ::testing::WithParamInterface<bool> {
  protected:
    bool PG() const override { return GetParam(); }
};

// The browse row's batch has no point between its insert and its commit where a server could
// be stopped; on SQLite the disk is full before it begins, and its statements wait in memory
// for the commit all the same.
class 閲覧の確定失敗 : public 確定失敗の場 {
  protected:
    bool PG() const override { return false; }
};

TEST_P(確定失敗, 登録の確定に失敗すれば履歴に記し知らせ伝票は打ったまま画面に残る) {
    const int 読数 = 確定前の読数([&] { 甲->新規(u"前"_qs, 2); });
    const QString 提案No = 甲->s.見出し.出金No;
    障害付きで(読数, [&] { 甲->新規(u"満"_qs, 2); });

    const 出金セッション& s = 甲->s;
    EXPECT_TRUE(s.保存未確定);
    EXPECT_EQ(s.処理結果区分, 3);
    EXPECT_EQ(最後の文言(), u"登録済です。登録できませんでした。"_qs);
    // The slip as typed, in memory and on the screen, with nothing of the store in it.
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(s.見出し.出金No, 提案No);
    EXPECT_EQ(s.見出し.出金伝票備考A, u"満"_qs);
    EXPECT_TRUE(s.見出し.出金履歴No.isEmpty());
    ASSERT_EQ(s.最終行, 1);
    EXPECT_EQ(s.行[1].出金金額, 金額::円(2000));
    EXPECT_TRUE(s.行[0].出金固有行No.isEmpty());
    EXPECT_EQ(甲->入力窓().画面(u"出金伝票備考A"_qs).Text, u"満"_qs);
    EXPECT_EQ(甲->入力窓().画面(u"出金No"_qs).Text, 提案No);
    EXPECT_TRUE(直前の行(u"新規登録処理"_qs).contains(未集計の文))
        << 直前の行(u"新規登録処理"_qs).toStdString();
    確定失敗の行を確かめる(u"新規登録処理"_qs);

    復旧();
    if (HasFatalFailure()) return;
    EXPECT_EQ(印の伝票(*木, u"満"_qs), u"none"_qs);
    EXPECT_EQ(印の伝票(*木, u"前"_qs), u"1000,2000"_qs);
    EXPECT_EQ(見出しのない行(*木), 0);
    EXPECT_TRUE(
        木->業務DB行(u"SELECT * FROM 未集計情報 WHERE 伝票No = '"_qs + 提案No + u"'"_qs).isEmpty());
    if (PG()) {
        // This run's connection is gone with the server; the next run stores under the
        // number the failed store had taken, since its take was undone with it.
        甲->閉じる();
        伝票打鍵者 乙(木->プログラムフォルダ());
        ASSERT_TRUE(乙.開く());
        乙.新規(u"満"_qs, 2);
        乙.閉じる();
    } else {
        甲->登録();
        EXPECT_FALSE(s.保存未確定);
    }
    EXPECT_EQ(印の伝票(*木, u"満"_qs), u"1000,2000"_qs);
    EXPECT_EQ(木->業務DB行(u"SELECT 出金No FROM T出金 WHERE 出金伝票備考A = '満'"_qs)
                  .value(0)
                  .value(0)
                  .toString(),
              提案No);
}

TEST_P(確定失敗, 削除の確定に失敗すれば履歴に記し知らせ伝票は消えずに画面に残る) {
    const QString 一No = 甲->s.見出し.出金No;
    甲->新規(u"一"_qs, 2);
    const QString 二No = 甲->s.見出し.出金No;
    甲->新規(u"二"_qs, 2);
    const int 読数 = 確定前の読数([&] { 甲->削除(一No); });
    障害付きで(読数, [&] { 甲->削除(二No); });

    const 出金セッション& s = 甲->s;
    EXPECT_TRUE(s.保存未確定);
    EXPECT_EQ(s.処理結果区分, 6);
    EXPECT_EQ(最後の文言(), u"既に削除されています。削除できませんでした。"_qs);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_EQ(s.見出し.出金No, 二No);
    EXPECT_EQ(s.見出し.保持出金No, 二No);
    EXPECT_EQ(s.見出し.出金伝票備考A, u"二"_qs);
    EXPECT_EQ(s.最終行, 1);
    EXPECT_EQ(甲->入力窓().画面(u"出金伝票備考A"_qs).Text, u"二"_qs);
    EXPECT_TRUE(直前の行(u"削除処理"_qs).contains(未集計の文))
        << 直前の行(u"削除処理"_qs).toStdString();
    確定失敗の行を確かめる(u"削除処理"_qs);

    復旧();
    if (HasFatalFailure()) return;
    EXPECT_EQ(印の伝票(*木, u"一"_qs), u"none"_qs);
    EXPECT_EQ(印の伝票(*木, u"二"_qs), u"1000,2000"_qs);
    // Only the first deletion moved lines to the history as the old state.
    EXPECT_EQ(木->業務DB行(u"SELECT COUNT(*) FROM R出金明細 WHERE 赤黒区分 = '0'"_qs)
                  .value(0)
                  .value(0)
                  .toInt(),
              2);
}

TEST_F(閲覧の確定失敗, 閲覧記録の確定に失敗すれば履歴に記し黙って伝票を読む) {
    const QString 一No = 甲->s.見出し.出金No;
    甲->新規(u"一"_qs, 2);
    const int 前の閲覧 = 木->業務DB行(u"SELECT COUNT(*) FROM T閲覧"_qs).value(0).value(0).toInt();
    障害();
    甲->見る(一No);

    EXPECT_TRUE(甲->基盤.表示文言().isEmpty());
    // The slip is read all the same, its header query right after the failed commit.
    EXPECT_TRUE(確定失敗の行を確かめる(u"閲覧記録"_qs).startsWith(u"出力終了 SELECT TOP 1"_qs));
    復旧();
    EXPECT_EQ(木->業務DB行(u"SELECT COUNT(*) FROM T閲覧"_qs).value(0).value(0).toInt(), 前の閲覧);
}

INSTANTIATE_TEST_SUITE_P(エンジン, 確定失敗, ::testing::Values(false, true),
                         [](const auto& i) { return i.param ? "PostgreSQL" : "SQLite"; });

}  // namespace
