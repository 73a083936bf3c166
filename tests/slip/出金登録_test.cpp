#include <gtest/gtest.h>

#include "出金登録試験.h"

namespace {

class 出金登録 : public 出金登録試験 {};

TEST_P(出金登録, 新規の伝票は見出しと明細と線の履歴と待ち行列と番号を一行ずつ書く) {
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    const QString u = 利用者();
    EXPECT_EQ(見出し行(), QStringList{打った見出し(u"3200|300|3300|3000|3300|0|0|3000|300"_qs,
                                                   u"20251120 100000"_qs, {})});
    EXPECT_EQ(明細行(), 二行の明細(u"1000|100|1100|1000|1100"_qs, u"20251120 100000"_qs, {}));
    EXPECT_EQ(履歴見出し行(), QStringList());
    // The amounts and the date stand one column off in the new-state lines.
    EXPECT_EQ(
        履歴明細行(),
        (QStringList{
            u"000|20260331|00000001|1|00000001|001|001|20251120|00003|001|001|03|1|文具店|1|ボールペン|10|1000|100|1100|1000|1100|20251130|||||"_qs +
                u + u"|20251120 100000|"_qs,
            u"000|20260331|00000001|1|00000001|002|002|20251120|00003|001|001|01|2||0|電車|10|2200|200|2200|2000|2200|20251130|||||"_qs +
                u + u"|20251120 100000|"_qs}));
    EXPECT_EQ(未集計行(), QStringList{u"000|16810|20260331|00000001|1|00000001||0|0|"_qs + u});
    EXPECT_EQ(番号情報(u"20260331"_qs), u"00000001|00000001"_qs);
    const QStringList エラー = 履歴行(u"エラー "_qs);
    ASSERT_EQ(エラー.size(), 1);
    EXPECT_TRUE(エラー[0].contains(u"INSERT INTO [R出金] (事業所コード,"_qs));
    const QStringList 出力 = 履歴行(u"出力終了 "_qs);
    ASSERT_EQ(出力.size(), 2);
    EXPECT_TRUE(出力[0].startsWith(u"INSERT INTO [T出金] (事業所コード,"_qs));
    EXPECT_TRUE(出力[1].startsWith(u"INSERT INTO [未集計情報] "_qs));
    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
    EXPECT_EQ(s.見出し.出金履歴No, u"00000001"_qs);
    EXPECT_EQ(s.見出し.最大固有行No, 2);
    EXPECT_EQ(s.処理結果区分, 1);
    EXPECT_EQ(s.処理結果メッセージ, QString());
}

// The history header is written with 31 columns and 30 values: every engine refuses it.
TEST_P(出金登録, 新しい状態の履歴見出しは三十一列に三十の値で必ず失敗し記録される) {
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(履歴見出し行(), QStringList());
    const QStringList エラー = 履歴行(u"エラー "_qs);
    ASSERT_EQ(エラー.size(), 1);
    const qsizetype 列始 = エラー[0].indexOf(u"INSERT INTO [R出金] ("_qs);
    ASSERT_GE(列始, 0);
    const QString 文 = エラー[0].mid(列始);
    const qsizetype 列頭 = QString(u"INSERT INTO [R出金] ("_qs).size();
    const qsizetype 値始 = 文.indexOf(u") VALUES ("_qs);
    const QString 列 = 文.mid(列頭, 値始 - 列頭);
    EXPECT_EQ(列.split(u',').size(), 31);
    EXPECT_TRUE(列.contains(u"承認者コード,承認区分,ユーザID"_qs));
    // The quotes of the statement stand doubled in the history text.
    const QString 値 = 文.mid(値始 + 10).chopped(1);
    EXPECT_EQ(値.split(u',').size(), 30);
    EXPECT_TRUE(値.endsWith(u",''"_qs + 利用者() + u"'',''20251120 100000'',''''"_qs))
        << 値.toStdString();
}

TEST_P(出金登録, 新しい状態の履歴明細は税抜と税込と集計日付が一列ずれて入る) {
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(
        表の行(
            u"SELECT 会計集計日付, 税抜出金金額, 税込出金金額 FROM R出金明細 ORDER BY 出金固有行No"_qs),
        (QStringList{u"1000|1100|20251130"_qs, u"2000|2200|20251130"_qs}));
    EXPECT_EQ(
        表の行(
            u"SELECT 会計集計日付, 税抜出金金額, 税込出金金額 FROM T出金明細 ORDER BY 出金固有行No"_qs),
        (QStringList{u"20251130|1000|1100"_qs, u"20251130|2000|2200"_qs}));
}

TEST_P(出金登録, 行のない新規伝票は見出しだけ書き明細も明細履歴も書かない) {
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(見出し行().size(), 1);
    EXPECT_EQ(明細行(), QStringList());
    EXPECT_EQ(履歴明細行(), QStringList());
    EXPECT_EQ(未集計行().size(), 1);
    EXPECT_EQ(s.見出し.最大固有行No, 0);
    EXPECT_EQ(s.処理結果区分, 1);
}

TEST_P(出金登録, 手で打った番号が既にあれば区分3で何も書かずに偽を返す) {
    ASSERT_TRUE(木->業務DB実行(u"UPDATE A番号情報 SET 連番種類 = '9' WHERE 番号ID = '16810'"_qs));
    s.出金情報初期化();
    ASSERT_EQ(s.見出し.番号基準日付, u"88888888"_qs);
    s.見出し.出金No = u"00000123"_qs;
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(s.見出し.出金No, u"00000123"_qs);
    EXPECT_EQ(s.見出し.出金履歴No, u"00000001"_qs);
    EXPECT_EQ(明細行().size(), 2);

    s.出金情報初期化();
    s.見出し.出金No = u"00000123"_qs;
    二行の伝票を打つ();
    EXPECT_FALSE(s.新規登録処理());
    EXPECT_EQ(s.処理結果区分, 3);
    EXPECT_EQ(s.処理結果メッセージ, u"登録済です。登録できませんでした。"_qs);
    EXPECT_EQ(見出し行().size(), 1);
    EXPECT_EQ(明細行().size(), 2);
    EXPECT_EQ(未集計行().size(), 1);
    EXPECT_EQ(s.見出し.出金履歴No, QString());
}

TEST_P(出金登録, 他の利用者が使った番号は飛ばして次を取る) {
    投入(u"00000001"_qs, u"20251101"_qs);
    投入(u"00000002"_qs, u"20251102"_qs);
    二行の伝票を打つ();
    ASSERT_EQ(s.見出し.出金No, u"00000001"_qs);  // the proposal does not look at T出金
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(s.見出し.出金No, u"00000003"_qs);
    EXPECT_EQ(番号情報(u"20260331"_qs), u"00000003|00000001"_qs);
    EXPECT_EQ(表の行(u"SELECT 出金No FROM T出金明細 WHERE 摘要 = '電車'"_qs),
              QStringList{u"00000003"_qs});
}

// A correction within the sequence: the old rows go to the history and away, the new state
// is inserted under the same key with the moment of the save and 更新日付 as loaded.
TEST_P(出金登録, 系列内の修正は同じキーで今の登録日付と読んだ更新日付で書き直す) {
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    // Another program of the suite has touched the slip since.
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE T出金 SET 更新日付 = '20251120 180000', ユーザID = '他の利用者'"_qs));
    ASSERT_TRUE(木->業務DB実行(u"UPDATE T出金明細 SET 更新日付 = '20251120 180000'"_qs));
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    出金金額変更時再計算(s.行[0], 金額::円(1500));
    s.合計再計算();
    基盤.時刻 = QDateTime(QDate(2025, 11, 21), QTime(9, 30, 0));
    // A schedule row points at the slip: the key stays, so its link is not touched.
    日程を書く(u"20251120"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    s.修正登録処理();

    const QString u = 利用者();
    EXPECT_EQ(見出し行(), QStringList{打った見出し(u"3700|350|3850|3500|3850|0|0|3500|350"_qs,
                                                   u"20251121 093000"_qs, u"20251120 180000"_qs)});
    EXPECT_EQ(明細行(), 二行の明細(u"1500|150|1650|1500|1650"_qs, u"20251121 093000"_qs,
                                   u"20251120 180000"_qs));
    // The old header as stored, its user included; the new one is refused as always.
    EXPECT_EQ(履歴見出し行(),
              QStringList{u"000|20260331|00000002|1|00000001|20251120|00003|001|001||||備考一|"
                          u"備考二|3200|300|3300|3000|3300|0|0|3000|300|0|メモ|||"
                          u"|他の利用者|20251120 100000|20251120 180000"_qs});
    const QStringList 明細履歴 = 履歴明細行();
    ASSERT_EQ(明細履歴.size(), 6);
    // Old-state lines are in step and carry the current user.
    EXPECT_EQ(
        明細履歴[2],
        u"000|20260331|00000002|0|00000001|001|001|20251120|00003|001|001|03|1|文具店|1|ボールペン|10|1000|100|1100|20251130|1000|1100|||||"_qs +
            u + u"|20251120 100000|20251120 180000"_qs);
    EXPECT_EQ(
        明細履歴[3],
        u"000|20260331|00000002|0|00000001|002|002|20251120|00003|001|001|01|2||0|電車|10|2200|200|2200|20251130|2000|2200|||||"_qs +
            u + u"|20251120 100000|20251120 180000"_qs);
    EXPECT_EQ(
        明細履歴[4],
        u"000|20260331|00000003|1|00000001|001|001|20251120|00003|001|001|03|1|文具店|1|ボールペン|10|1500|150|1650|1500|1650|20251130|||||"_qs +
            u + u"|20251121 093000|20251120 180000"_qs);
    EXPECT_EQ(未集計行(), (QStringList{u"000|16810|20260331|00000001|1|00000001||0|0|"_qs + u,
                                       u"000|16810|20260331|00000002|0|00000001||0|1|"_qs + u,
                                       u"000|16810|20260331|00000003|1|00000001||0|1|"_qs + u}));
    EXPECT_EQ(番号情報(u"20260331"_qs), u"00000001|00000003"_qs);
    EXPECT_EQ(履歴行(u"エラー "_qs).size(), 2);
    // The logged statements of the correction: the header delete, the header insert, the queue.
    const QStringList 出力 = 最後の出力(4);
    ASSERT_EQ(出力.size(), 4);
    EXPECT_EQ(出力[0], 見出し削除文());
    EXPECT_TRUE(出力[1].startsWith(u"INSERT INTO [T出金] "_qs));
    EXPECT_TRUE(出力[2].contains(u"''00000002'',''0'',''00000001''"_qs));
    EXPECT_TRUE(出力[3].contains(u"''00000003'',''1'',''00000001''"_qs));
    EXPECT_EQ(s.見出し.旧出金履歴No, u"00000002"_qs);
    EXPECT_EQ(s.見出し.出金履歴No, u"00000003"_qs);
    EXPECT_EQ(s.処理結果区分, 1);
}

// A date across the fiscal year end moves the slip to the next year's sequence: it takes a
// number there, the new slip stands before the old one goes, and the queue names the old key
// first. History numbers are taken under the new sequence for both states.
TEST_P(出金登録, 年度を越えた修正は新しい系列で番号を取り新しい伝票を先に書いて古いものを消す) {
    出金日付入力(s, u"20260331"_qs);
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    出金日付入力(s, u"20260401"_qs);
    ASSERT_EQ(s.見出し.番号基準日付, u"20270331"_qs);
    // The schedule linked the slip after it was loaded; the link follows the slip's new key.
    日程を書く(u"20260331"_qs, u"1300"_qs, u"1500"_qs, u"20260331"_qs, u"00000001"_qs);
    s.修正登録処理();

    const QString u = 利用者();
    EXPECT_EQ(表の行(u"SELECT 番号基準日付, 出金No, 出金日付, 登録日付 FROM T出金"_qs),
              QStringList{u"20270331|00000001|20260401|20251120 100000"_qs});
    EXPECT_EQ(日程行(), QStringList{u"00003|20260331|1300|000|20270331|00000001"_qs});
    EXPECT_EQ(
        表の行(
            u"SELECT 番号基準日付, 出金No, 出金固有行No, 出金行No, 出金日付, 会計集計日付 FROM T出金明細 ORDER BY 出金行No"_qs),
        (QStringList{u"20270331|00000001|001|001|20260401|20260430"_qs,
                     u"20270331|00000001|002|002|20260401|20260430"_qs}));
    EXPECT_EQ(表の行(u"SELECT 番号基準日付, 出金履歴No, 赤黒区分, 出金No, 出金日付 FROM R出金"_qs),
              QStringList{u"20260331|00000002|1|00000001|20260331"_qs});
    EXPECT_EQ(
        表の行(
            u"SELECT 番号基準日付, 出金履歴No, 赤黒区分, 出金No, 出金固有行No, 出金日付 FROM R出金明細 ORDER BY 出金履歴No, 番号基準日付, 出金固有行No"_qs),
        (QStringList{u"20260331|00000001|1|00000001|001|20260331"_qs,
                     u"20260331|00000001|1|00000001|002|20260331"_qs,
                     u"20270331|00000001|1|00000001|001|20260401"_qs,
                     u"20270331|00000001|1|00000001|002|20260401"_qs,
                     u"20260331|00000002|0|00000001|001|20260331"_qs,
                     u"20260331|00000002|0|00000001|002|20260331"_qs}));
    EXPECT_EQ(未集計行(), (QStringList{u"000|16810|20260331|00000001|1|00000001||0|0|"_qs + u,
                                       u"000|16810|20260331|00000002|0|00000001||0|1|"_qs + u,
                                       u"000|16810|20270331|00000001|1|00000001||0|1|"_qs + u}));
    EXPECT_EQ(番号情報(u"20260331"_qs), u"00000001|00000001"_qs);
    EXPECT_EQ(番号情報(u"20270331"_qs), u"00000001|00000002"_qs);
    EXPECT_EQ(s.処理結果区分, 5);
    EXPECT_EQ(s.処理結果メッセージ, QString());
}

// A new slip has an empty kept key, which a schedule row of a deleted slip also holds; a
// correction in its sequence keeps its key. Neither moves a link: no update runs.
TEST_P(出金登録, 系列内の修正と新規は日程連携を書き換えない) {
    日程を書く(u"20251119"_qs, u"0900"_qs, u"1000"_qs, {}, {});
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(s.処理結果区分, 1);
    日程を書く(u"20251120"_qs, u"0900"_qs, u"1000"_qs, u"20260331"_qs, u"00000001"_qs);
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    s.修正登録処理();
    EXPECT_EQ(s.処理結果区分, 1);
    EXPECT_EQ(日程行(), (QStringList{u"00003|20251119|0900|||"_qs,
                                     u"00003|20251120|0900|000|20260331|00000001"_qs}));
}

// The quote is doubled on the way into the new state; the old-state line writer puts the stored
// text in as it stands, so its statement breaks, and the line is deleted all the same.
TEST_P(出金登録, 摘要の引用符は新しい状態に正しく入り古い状態の明細履歴を壊すが削除は進む) {
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    ASSERT_TRUE(明細入力(s, 3, 金額::円(1000), {}, u"O'Reilly本"_qs));
    ASSERT_TRUE(明細入力(s, 3, 金額::円(500), {}, u"普通"_qs));
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(表の行(u"SELECT 摘要 FROM T出金明細 ORDER BY 出金行No"_qs),
              (QStringList{u"O'Reilly本"_qs, u"普通"_qs}));
    EXPECT_EQ(表の行(u"SELECT 摘要 FROM R出金明細 ORDER BY 出金固有行No"_qs),
              (QStringList{u"O'Reilly本"_qs, u"普通"_qs}));

    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    ASSERT_EQ(s.行[0].摘要, u"O'Reilly本"_qs);
    基盤.時刻 = 基盤.時刻.addSecs(60);
    s.修正登録処理();
    EXPECT_EQ(表の行(u"SELECT 出金固有行No, 摘要, 登録日付 FROM T出金明細 ORDER BY 出金行No"_qs),
              (QStringList{u"001|O'Reilly本|20251120 100100"_qs, u"002|普通|20251120 100100"_qs}));
    // No old-state row of the quoted line: it is gone without history.
    EXPECT_EQ(表の行(u"SELECT 出金固有行No, 摘要 FROM R出金明細 WHERE 赤黒区分 = '0'"_qs),
              QStringList{u"002|普通"_qs});
    const QStringList エラー = 履歴行(u"エラー "_qs);
    ASSERT_EQ(エラー.size(), 3);  // two refused history headers and the broken line
    EXPECT_EQ(エラー.filter(u"INSERT INTO [R出金明細] "_qs).size(), 1);
    EXPECT_TRUE(エラー.filter(u"INSERT INTO [R出金明細] "_qs)[0].contains(u"''O''Reilly本''"_qs));
    EXPECT_EQ(s.処理結果区分, 1);
}

TEST_P(出金登録, 処理結果区分は文ごとに書き換わり最後の結果だけが残る) {
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    ASSERT_TRUE(明細入力(s, 3, 金額::円(1000), {}, u"O'Reilly本"_qs));
    ASSERT_TRUE(明細入力(s, 3, 金額::円(500), {}, u"普通"_qs));
    s.見出し.処理区分 = u"0"_qs;
    ASSERT_TRUE(s.番号採番確認());
    s.出金情報書込();
    // The header went in, the refused history header came last.
    EXPECT_EQ(見出し行().size(), 1);
    EXPECT_EQ(s.処理結果区分, 3);
    EXPECT_EQ(s.処理結果メッセージ, u"登録済です。登録できませんでした。"_qs);
    s.出金明細情報書込();
    EXPECT_EQ(s.処理結果区分, 1);
    EXPECT_EQ(s.処理結果メッセージ, QString());

    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    s.見出し.処理区分 = u"1"_qs;
    s.出金履歴書込();
    EXPECT_EQ(s.処理結果区分, 7);
    // The quoted line's history fails, then its delete and the other line's succeed.
    s.出金明細履歴書込();
    EXPECT_EQ(s.処理結果区分, 7);
    EXPECT_EQ(s.処理結果メッセージ, QString());
    EXPECT_EQ(明細行(), QStringList());
    // Nothing left to move: no line found is a failed delete.
    s.出金明細履歴書込();
    EXPECT_EQ(s.処理結果区分, 6);
    EXPECT_EQ(s.処理結果メッセージ, u"既に削除されています。削除できませんでした。"_qs);
    // A header gone meanwhile writes nothing and leaves the outcome; the number is spent.
    s.出金履歴書込();
    EXPECT_EQ(s.処理結果区分, 6);
    EXPECT_EQ(s.見出し.旧出金履歴No, u"00000003"_qs);
}

// The deletion runs the two old-state writers and the after-work: one queue row, red "0",
// registration class "2", and the counter of the sequence is left as it was.
TEST_P(出金登録, 削除の手順は赤黒0で登録情報区分2の待ち行列一行だけを書く) {
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    s.見出し.出金履歴No.clear();
    s.見出し.旧出金履歴No.clear();
    s.見出し.処理区分 = u"2"_qs;
    s.出金履歴書込();
    s.出金明細履歴書込();
    s.後処理();
    EXPECT_EQ(見出し行(), QStringList());
    EXPECT_EQ(明細行(), QStringList());
    const QStringList 行 = 未集計行();
    ASSERT_EQ(行.size(), 2);
    EXPECT_EQ(行[1], u"000|16810|20260331|00000002|0|00000001||0|2|"_qs + 利用者());
    EXPECT_EQ(番号情報(u"20260331"_qs), u"00000001|00000002"_qs);
    EXPECT_EQ(
        表の行(u"SELECT 出金履歴No, 赤黒区分 FROM R出金明細 WHERE 出金履歴No = '00000002'"_qs),
        (QStringList{u"00000002|0"_qs, u"00000002|0"_qs}));
}

// A line kept from the load keeps its identity; new lines count on from the highest loaded.
TEST_P(出金登録, 読んだ行は固有行Noを保ち新しい行は最大の次を取る) {
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    ASSERT_TRUE(明細入力(s, 10, 金額::円(300), {}, u"追加"_qs));
    s.修正登録処理();
    EXPECT_EQ(表の行(u"SELECT 出金固有行No, 出金行No, 摘要 FROM T出金明細 ORDER BY 出金行No"_qs),
              (QStringList{u"001|001|ボールペン"_qs, u"002|002|電車"_qs, u"003|003|追加"_qs}));
    EXPECT_EQ(s.見出し.最大固有行No, 3);
}

TEST_P(出金登録, 更新実行区分0では待ち行列を環境DBに書き接続を開き直して更新プログラムを起動する) {
    ASSERT_TRUE(木->業務DB実行(u"UPDATE Mユーザ SET 更新実行区分 = 0"_qs));
    ASSERT_TRUE(木->業務DB実行(u"UPDATE M事業所 SET 更新実行区分 = 0"_qs));
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE A番号情報 SET 更新プログラム = 'konpeki-update' WHERE 番号ID = '16810'"_qs));
    ASSERT_TRUE(s.データ.会社設定().基本項目読込());
    ASSERT_EQ(s.データ.会社設定().会社().更新実行区分, 0);
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(未集計行(), QStringList());
    EXPECT_EQ(木->環境DB行(u"SELECT 履歴No, 赤黒区分 FROM 未集計情報"_qs).size(), 1);
    ASSERT_EQ(基盤.起動済み.size(), 1);
    EXPECT_EQ(基盤.起動済み[0].プログラム, 木->プログラムフォルダ() + u"/konpeki-update"_qs);
    // Connections opened afresh serve the next slip.
    EXPECT_TRUE(s.データ.接続().環境DB接続中());
    EXPECT_TRUE(s.データ.接続().業務DB接続中());
    s.出金情報初期化();
    EXPECT_TRUE(読込(u"00000001"_qs));
    EXPECT_EQ(s.最終行, 1);
}

TEST_P(出金登録, 更新実行区分1では更新プログラムを起動しない) {
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE A番号情報 SET 更新プログラム = 'konpeki-update' WHERE 番号ID = '16810'"_qs));
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_TRUE(基盤.起動済み.isEmpty());
}

KONPEKI_両エンジンで(出金登録);

}  // namespace
