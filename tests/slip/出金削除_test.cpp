#include <gtest/gtest.h>

#include "rules/集計日付計算.h"
#include "出金登録試験.h"

namespace {

class 出金削除 : public 出金登録試験 {
  protected:
    // The typed two-line slip with a third line, stored as 00000001 and loaded again.
    void 三行の伝票を保存して読む() {
        二行の伝票を打つ();
        ASSERT_TRUE(明細入力(s, 8, 金額::円(300), {}, u"印紙"_qs));
        ASSERT_TRUE(s.新規登録処理());
        s.出金情報初期化();
        ASSERT_TRUE(読込(u"00000001"_qs));
    }
};

TEST_P(出金削除, 削除は伝票を古い状態の履歴へ移して消し待ち行列に一行だけ書く) {
    三行の伝票を保存して読む();
    基盤.時刻 = QDateTime(QDate(2025, 11, 21), QTime(8, 15, 0));
    s.削除処理();

    const QString u = 利用者();
    EXPECT_EQ(見出し行(), QStringList());
    EXPECT_EQ(明細行(), QStringList());
    // The old header as stored; the refused new-state header of the store left no row.
    EXPECT_EQ(履歴見出し行(),
              QStringList{u"000|20260331|00000002|1|00000001|20251120|00003|001|001||||備考一|"
                          u"備考二|3500|300|3600|3000|3300|0|0|3000|300|0|メモ|||"
                          u"|"_qs +
                          u + u"|20251120 100000|"_qs});
    EXPECT_EQ(
        表の行(u"SELECT * FROM R出金明細 WHERE 赤黒区分 = '0' ORDER BY 出金固有行No"_qs),
        (QStringList{
            u"000|20260331|00000002|0|00000001|001|001|20251120|00003|001|001|03|1|文具店|1|ボールペン|10|1000|100|1100|20251130|1000|1100|||||"_qs +
                u + u"|20251120 100000|"_qs,
            u"000|20260331|00000002|0|00000001|002|002|20251120|00003|001|001|01|2||0|電車|10|2200|200|2200|20251130|2000|2200|||||"_qs +
                u + u"|20251120 100000|"_qs,
            u"000|20260331|00000002|0|00000001|003|003|20251120|00003|001|001|08|0||0|印紙|0|300|0|300|20251130|0|0|||||"_qs +
                u + u"|20251120 100000|"_qs}));
    // The three new-state lines of the store stay as they were.
    EXPECT_EQ(表の行(u"SELECT 出金履歴No FROM R出金明細 WHERE 赤黒区分 = '1'"_qs).size(), 3);
    EXPECT_EQ(未集計行(), (QStringList{u"000|16810|20260331|00000001|1|00000001||0|0|"_qs + u,
                                       u"000|16810|20260331|00000002|0|00000001||0|2|"_qs + u}));
    // One history number more, the slip counter as it was.
    EXPECT_EQ(番号情報(u"20260331"_qs), u"00000001|00000002"_qs);
    EXPECT_EQ(s.見出し.処理区分, u"2"_qs);
    EXPECT_EQ(s.見出し.出金履歴No, QString());
    EXPECT_EQ(s.見出し.旧出金履歴No, u"00000002"_qs);
    // Logged: the header delete and the queue row, nothing of the schedule.
    const QStringList 出力 = 最後の出力(2);
    ASSERT_EQ(出力.size(), 2);
    EXPECT_EQ(出力[0], 見出し削除文());
    EXPECT_TRUE(出力[1].startsWith(u"INSERT INTO [未集計情報] "_qs));
    EXPECT_EQ(履歴行(u"エラー "_qs).size(), 1);  // the store's refused history header only
}

// The sequence counter is not turned back: the next proposal and the next store go on from
// the number that was deleted.
TEST_P(出金削除, 削除した番号は使い回さず新しい伝票は次の番号を取る) {
    三行の伝票を保存して読む();
    s.削除処理();
    s.出金情報初期化();
    EXPECT_EQ(s.見出し.出金No, u"00000002"_qs);
    EXPECT_TRUE(s.新規情報フラグ);
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(表の行(u"SELECT 出金No FROM T出金"_qs), QStringList{u"00000002"_qs});
}

TEST_P(出金削除, 系列の伝票を消しても系列の連番はそのまま) {
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    s.出金情報初期化();
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    ASSERT_EQ(番号情報(u"20260331"_qs), u"00000002|00000002"_qs);
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000002"_qs));
    s.削除処理();
    EXPECT_EQ(番号情報(u"20260331"_qs), u"00000002|00000003"_qs);
    EXPECT_EQ(表の行(u"SELECT 出金No FROM T出金"_qs), QStringList{u"00000001"_qs});
}

TEST_P(出金削除, 日程が指す伝票も削除でき日程の行は残って連携だけが空になる) {
    三行の伝票を保存して読む();
    日程を書く(u"20251121"_qs, u"1000"_qs, u"1100"_qs, u"20260331"_qs, u"00000001"_qs);
    日程を書く(u"20251120"_qs, u"1500"_qs, u"1600"_qs, u"20260331"_qs, u"00000001"_qs);
    日程を書く(u"20251120"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000002"_qs);
    const QStringList 見本 = 表の行(u"SELECT * FROM T営業活動明細 WHERE ユーザID <> 'sales'"_qs);
    EXPECT_EQ(s.削除確認文言(), u"日程情報に登録済です。削除しますか?"_qs);

    s.削除処理();
    EXPECT_EQ(見出し行(), QStringList());
    EXPECT_EQ(日程行(), (QStringList{u"00003|20251120|0900|000|20260331|00000002"_qs,
                                     u"00003|20251120|1500|||"_qs, u"00003|20251121|1000|||"_qs}));
    EXPECT_EQ(表の行(u"SELECT * FROM T営業活動明細 WHERE ユーザID <> 'sales'"_qs), 見本);
    EXPECT_EQ(s.処理結果区分, 5);
    EXPECT_EQ(s.処理結果メッセージ, QString());
    EXPECT_EQ(s.削除確認文言(), u"削除しますか?"_qs);
}

// A never-stored slip has an empty key; the sample's schedule rows that were never linked do
// not count as pointing at it.
TEST_P(出金削除, 日程の指さない伝票と保存前の伝票は削除の問いに警告がない) {
    EXPECT_EQ(s.削除確認文言(), u"削除しますか?"_qs);
    三行の伝票を保存して読む();
    日程を書く(u"20251120"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000002"_qs);
    EXPECT_EQ(s.削除確認文言(), u"削除しますか?"_qs);
}

// Another user deleted the slip after it was loaded: no header row to move, but a history
// number is spent and the queue is told all the same.
TEST_P(出金削除, 他の利用者が先に消した伝票は履歴を書かずに番号を進め待ち行列に一行書く) {
    三行の伝票を保存して読む();
    出金セッション 他方{基盤};
    出金セッション準備(他方, *木);
    ASSERT_FALSE(HasFatalFailure());
    他方.出金情報初期化();
    ASSERT_TRUE(他方.出金キー検索({u"000"_qs, u"20260331"_qs, u"00000001"_qs}));
    他方.出金見出し読込();
    他方.削除処理();
    ASSERT_EQ(履歴見出し行().size(), 1);

    s.削除処理();
    EXPECT_EQ(履歴見出し行().size(), 1);
    EXPECT_EQ(表の行(u"SELECT 出金履歴No FROM R出金明細 WHERE 赤黒区分 = '0'"_qs).size(), 3);
    EXPECT_EQ(番号情報(u"20260331"_qs), u"00000001|00000003"_qs);
    EXPECT_EQ(s.見出し.旧出金履歴No, u"00000003"_qs);
    const QStringList 行 = 未集計行();
    ASSERT_EQ(行.size(), 3);
    EXPECT_EQ(行[2], u"000|16810|20260331|00000003|0|00000001||0|2|"_qs + 利用者());
}

// A slip stored without lines: the header moves to the history, no line is found, which
// counts as a failed delete.
TEST_P(出金削除, 明細のない伝票は見出しだけ移り明細は区分6で既に削除されていると残す) {
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    ASSERT_TRUE(s.新規登録処理());
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    s.出金明細履歴書込();
    EXPECT_EQ(s.処理結果区分, 6);
    EXPECT_EQ(s.処理結果メッセージ, u"既に削除されています。削除できませんでした。"_qs);

    s.削除処理();
    EXPECT_EQ(見出し行(), QStringList());
    EXPECT_EQ(表の行(u"SELECT 出金履歴No, 出金No FROM R出金"_qs),
              QStringList{u"00000002|00000001"_qs});
    EXPECT_EQ(履歴明細行(), QStringList());
    EXPECT_EQ(未集計行().size(), 2);
}

// The guard in front of the deletion: a slip outside today's period passes only with the
// highest access right.
TEST_P(出金削除, 修正期間外の伝票は権限6でだけ削除の確認を通る) {
    三行の伝票を保存して読む();
    基盤.時刻 = QDateTime(QDate(2027, 6, 1), QTime(9, 0, 0));
    const auto& h = s.見出し;
    EXPECT_FALSE(修正期間確認(s.データ.会社設定().会社(), s.データ.基盤(), h.出金日付,
                              h.保持出金日付, s.新規情報フラグ, 1));
    EXPECT_FALSE(修正期間確認(s.データ.会社設定().会社(), s.データ.基盤(), h.出金日付,
                              h.保持出金日付, s.新規情報フラグ, 5));
    ASSERT_TRUE(修正期間確認(s.データ.会社設定().会社(), s.データ.基盤(), h.出金日付,
                             h.保持出金日付, s.新規情報フラグ, 6));
    s.削除処理();
    EXPECT_EQ(見出し行(), QStringList());
    EXPECT_EQ(明細行(), QStringList());
}

// The database server drops the program's connection between the header and the lines of a
// deletion: the rest of the steps fail and are logged, the program goes on, and the other slip
// stays whole.
TEST_P(出金削除, 削除の途中でデータベースが切れても残りは記録されるだけで他の伝票は残る) {
    if (!GetParam()) GTEST_SKIP() << "a server drops connections; a file does not";
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    s.出金情報初期化();
    三行の伝票を保存して読む();  // the three-line slip is 00000002; 00000001 is loaded
    ASSERT_EQ(s.最終行, 1);
    const qsizetype 前のエラー = 履歴行(u"エラー "_qs).size();

    s.出金履歴書込();
    ASSERT_TRUE(木->業務DB実行(
        u"SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = current_database() AND pid <> pg_backend_pid()"_qs));
    s.出金明細履歴書込();
    s.後処理();

    EXPECT_GT(履歴行(u"エラー "_qs).size(), 前のエラー);
    EXPECT_EQ(表の行(u"SELECT 出金No FROM T出金"_qs), QStringList{u"00000002"_qs});
    EXPECT_EQ(表の行(u"SELECT COUNT(*) FROM T出金明細 WHERE 出金No = '00000002'"_qs),
              QStringList{u"3"_qs});
    EXPECT_EQ(表の行(u"SELECT COUNT(*) FROM T出金明細 WHERE 出金No = '00000001'"_qs),
              QStringList{u"2"_qs});
}

KONPEKI_両エンジンで(出金削除);

}  // namespace
