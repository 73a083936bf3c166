#include <gtest/gtest.h>

#include "dataenv/ファイル操作.h"
#include "出金試験.h"

namespace {

class 出金読込 : public 出金試験 {
  protected:
    // Rows of T閲覧 as "a|b|c", in the order of their browse numbers.
    QStringList 閲覧行(const QString& 列) {
        return 表の行(u"SELECT "_qs + 列 + u" FROM T閲覧 ORDER BY 閲覧No"_qs);
    }
};

TEST_P(出金読込, キーで見出しと明細と名前が読まれ保持キーが立つ) {
    投入(u"00000005"_qs, u"20251118"_qs, 3);
    ASSERT_TRUE(読込(u"00000005"_qs));
    const auto& h = s.見出し;
    EXPECT_EQ(h.出金No, u"00000005"_qs);
    EXPECT_EQ(h.保持出金No, u"00000005"_qs);
    EXPECT_EQ(h.保持番号基準日付, u"20260331"_qs);
    EXPECT_EQ(h.保持出金日付, u"20251118"_qs);
    EXPECT_EQ(h.出金日付月, u"11"_qs);
    EXPECT_EQ(h.出金日付日, u"18"_qs);
    EXPECT_EQ(h.担当者名, u"上田 健一"_qs);
    EXPECT_EQ(h.部門名, u"総務部"_qs);
    EXPECT_EQ(h.セクション名, u"総務課"_qs);
    EXPECT_EQ(h.伝票発行区分, 1);
    EXPECT_EQ(h.出金伝票備考A, u"備考その一"_qs);
    EXPECT_EQ(h.会計集計日付, u"20251130"_qs);
    EXPECT_EQ(h.最大固有行No, 3);
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(6000));
    EXPECT_EQ(s.合計.今回税率出金消費税合計, 金額::円(600));
    EXPECT_TRUE(s.合計.税抜出金金額合計.ゼロか());  // stored as 6000, but not read on load
    EXPECT_TRUE(s.合計.税込出金金額合計.ゼロか());  // stored as 6600, but not read on load
    EXPECT_EQ(s.最終行, 2);
    EXPECT_EQ(s.行[1].出金金額, 金額::円(2000));
    EXPECT_EQ(s.行[1].費目区分名称, u"消耗品費"_qs);
    EXPECT_EQ(s.行[1].支払先, u"支払先002"_qs);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_FALSE(s.入力変更フラグ);
}

// The stored totals are taken as they stand, even when the lines add up to something else.
TEST_P(出金読込, 合計は記録された値を読み明細から計算し直さない) {
    投入(u"00000005"_qs, u"20251118"_qs, 3);
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE T出金 SET 出金金額合計 = 12345, 出金消費税合計 = 17, 実質出金金額合計 = 99,"
        " 前回税率出金金額合計 = 5, 前回税率出金消費税合計 = 3, 今回税率出金金額合計 = 7,"
        " 今回税率出金消費税合計 = 1"_qs));
    ASSERT_TRUE(読込(u"00000005"_qs));
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(12345));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(17));
    EXPECT_EQ(s.合計.実質出金金額合計, 金額::円(99));
    EXPECT_EQ(s.合計.前回税率出金金額合計, 金額::円(5));
    EXPECT_EQ(s.合計.前回税率出金消費税合計, 金額::円(3));
    EXPECT_EQ(s.合計.今回税率出金金額合計, 金額::円(7));
    EXPECT_EQ(s.合計.今回税率出金消費税合計, 金額::円(1));
    EXPECT_TRUE(s.合計.税抜出金金額合計.ゼロか());
    EXPECT_TRUE(s.合計.税込出金金額合計.ゼロか());
    s.合計再計算();
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(6000));
}

// The approval marks come along with the slip and each line, and a clear drops them.
TEST_P(出金読込, 承認の区分は見出しと明細から読まれ消去で消える) {
    投入(u"00000005"_qs, u"20251118"_qs, 2);
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE T出金 SET 承認区分 = '1', 承認日付 = '20251119', 承認者コード = '00002'"_qs));
    ASSERT_TRUE(木->業務DB実行(u"UPDATE T出金明細 SET 承認区分 = '2' WHERE 出金行No = '002'"_qs));
    ASSERT_TRUE(読込(u"00000005"_qs));
    EXPECT_EQ(s.見出し.承認区分, u"1"_qs);
    EXPECT_EQ(s.見出し.承認日付, u"20251119"_qs);
    EXPECT_EQ(s.見出し.承認者コード, u"00002"_qs);
    EXPECT_EQ(s.行[0].承認区分, u"0"_qs);
    EXPECT_EQ(s.行[1].承認区分, u"2"_qs);
    s.出金情報初期化();
    EXPECT_EQ(s.見出し.承認区分, QString());
    EXPECT_EQ(s.行[1].承認区分, QString());
}

// Every look-up by key leaves one browse row with all its columns: the operator's code from the
// workplace settings and his name, read by the rights check of the start.
TEST_P(出金読込, キー検索は一回ごとに決まった値の閲覧行を残す) {
    投入(u"00000005"_qs, u"20251118"_qs);
    ASSERT_TRUE(読込(u"00000005"_qs));
    const QString 利用者 = 端末利用者名取得() + u"00001"_qs + 端末名取得();
    EXPECT_EQ(
        閲覧行(u"*"_qs),
        QStringList{u"000|99999999|00000001|20251120|10:00:00|00001|青木 翔太|紺碧帳|000|20260331|"
                    "00000005||0||||0|"_qs +
                    利用者 + u"|20251120 100000|"_qs});
}

// Each step reads its neighbour through the key look-up, so each step found leaves a row, in
// the order of the steps; a step that finds nothing reads nothing and leaves none.
TEST_P(出金読込, 頁送りは一歩ごとに閲覧Noの順に閲覧行を残す) {
    投入(u"00000002"_qs, u"20251110"_qs);
    投入(u"00000003"_qs, u"20251111"_qs);
    投入(u"00000004"_qs, u"20251112"_qs);
    ASSERT_TRUE(読込(u"00000003"_qs));
    ASSERT_TRUE(s.次No読込());
    EXPECT_FALSE(s.次No読込());
    ASSERT_TRUE(s.前No読込());
    ASSERT_TRUE(s.前No読込());
    EXPECT_FALSE(読込(u"00000099"_qs));
    EXPECT_EQ(閲覧行(u"閲覧No, 伝票No, 担当者コード, 担当者名"_qs),
              (QStringList{
                  u"00000001|00000003|00001|青木 翔太"_qs, u"00000002|00000004|00001|青木 翔太"_qs,
                  u"00000003|00000003|00001|青木 翔太"_qs, u"00000004|00000002|00001|青木 翔太"_qs,
                  u"00000005|00000099|00001|青木 翔太"_qs}));
}

TEST_P(出金読込, キー検索は読む前に閲覧を記録し文を履歴に残す) {
    EXPECT_FALSE(s.出金キー検索({u"000"_qs, u"20260331"_qs, u"00000099"_qs}));
    s.出金検索破棄();
    const auto 閲覧 = 木->業務DB行(u"SELECT 伝票No, 閲覧情報 FROM T閲覧"_qs);
    ASSERT_EQ(閲覧.size(), 1);
    EXPECT_EQ(閲覧[0][0].toString(), u"00000099"_qs);
    EXPECT_EQ(閲覧[0][1].toString(), u"紺碧帳"_qs);
    const auto 行 = 履歴();
    ASSERT_FALSE(行.isEmpty());
    EXPECT_TRUE(行.last()[1].toString().startsWith(u"出力終了 SELECT TOP 1 T出金.*"_qs));
}

TEST_P(出金読込, 担当者がマスタにない伝票は見つからない) {
    試験伝票 t;
    t.出金No = u"00000007"_qs;
    t.担当者コード = u"99999"_qs;
    ASSERT_TRUE(伝票投入(*木, t));
    EXPECT_FALSE(読込(u"00000007"_qs));
    EXPECT_TRUE(s.新規情報フラグ);
}

TEST_P(出金読込, 名前のNullや部門の欠けは前の値を残す) {
    投入(u"00000001"_qs, u"20251118"_qs);
    ASSERT_TRUE(読込(u"00000001"_qs));
    ASSERT_EQ(s.見出し.担当者名, u"上田 健一"_qs);
    試験伝票 t;
    t.出金No = u"00000002"_qs;
    t.担当者コード = u"00005"_qs;
    t.部門コード = u"777"_qs;
    ASSERT_TRUE(伝票投入(*木, t));
    ASSERT_TRUE(木->業務DB実行(u"UPDATE M担当者 SET 氏名 = NULL WHERE コード = '00005'"_qs));
    ASSERT_TRUE(読込(u"00000002"_qs));
    EXPECT_EQ(s.見出し.担当者コード, u"00005"_qs);
    EXPECT_EQ(s.見出し.担当者名, u"上田 健一"_qs);
    EXPECT_EQ(s.見出し.部門コード, u"777"_qs);
    EXPECT_EQ(s.見出し.部門名, u"総務部"_qs);
}

TEST_P(出金読込, 十五行の伝票は枠0から14に入り最終行は14) {
    投入(u"00000003"_qs, u"20251118"_qs, 15);
    ASSERT_TRUE(読込(u"00000003"_qs));
    EXPECT_EQ(s.最終行, 14);
    EXPECT_EQ(s.行[14].出金金額, 金額::円(15000));
    EXPECT_EQ(s.見出し.最大固有行No, 15);
}

// A sixteenth line, as a trip application can bring one, is read into the spare slot.
TEST_P(出金読込, 十六行の伝票は予備の枠まで読まれ最終行は15) {
    投入(u"00000003"_qs, u"20251118"_qs, 16);
    ASSERT_TRUE(読込(u"00000003"_qs));
    EXPECT_EQ(s.最終行, 15);
    EXPECT_EQ(s.行[14].出金金額, 金額::円(15000));
    EXPECT_EQ(s.行[15].出金金額, 金額::円(16000));
    EXPECT_EQ(s.行[15].摘要, u"摘要016"_qs);
    EXPECT_EQ(s.行[15].出金固有行No, u"016"_qs);
    EXPECT_EQ(s.見出し.最大固有行No, 16);
    EXPECT_FALSE(s.新規情報フラグ);
}

// The clear of the lines leaves the spare slot alone; a line read into it takes nothing over
// from the slip read before, where its own column is Null.
TEST_P(出金読込, 予備の枠に読む行は前の伝票の値を持ち越さない) {
    投入(u"00000003"_qs, u"20251118"_qs, 16);
    投入(u"00000004"_qs, u"20251118"_qs, 16);
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE T出金明細 SET 支払先 = NULL, 明細メモ = NULL WHERE 出金No = '00000004' AND 出金行No = '016'"_qs));
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE T出金明細 SET 明細メモ = 'メモ16' WHERE 出金No = '00000003' AND 出金行No = '016'"_qs));
    ASSERT_TRUE(読込(u"00000003"_qs));
    ASSERT_EQ(s.行[15].支払先, u"支払先016"_qs);
    ASSERT_EQ(s.行[15].明細メモ, u"メモ16"_qs);
    ASSERT_TRUE(読込(u"00000004"_qs));
    EXPECT_EQ(s.最終行, 15);
    EXPECT_EQ(s.行[15].支払先, QString());
    EXPECT_EQ(s.行[15].明細メモ, QString());
}

// Past the line table a row is a fault of the data: it is left unread.
TEST_P(出金読込, 十七行目は表の外で読まれず最終行は15) {
    投入(u"00000003"_qs, u"20251118"_qs, 17);
    ASSERT_TRUE(読込(u"00000003"_qs));
    EXPECT_EQ(s.最終行, 15);
    EXPECT_EQ(s.行[15].出金金額, 金額::円(16000));
}

TEST_P(出金読込, 費目区分のない行は内部結合で戻らず見出しだけなら新規扱い) {
    試験伝票 t;
    t.出金No = u"00000004"_qs;
    t.費目区分 = u"99"_qs;
    ASSERT_TRUE(伝票投入(*木, t));
    ASSERT_TRUE(読込(u"00000004"_qs));
    EXPECT_EQ(s.最終行, -1);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(s.見出し.保持出金No, u"00000004"_qs);  // the kept key is set all the same
}

TEST_P(出金読込, 同じ番号の打ち直しは何もしない) {
    s.入力変更フラグ = false;
    EXPECT_FALSE(s.出金No確定(s.見出し.出金No));
    EXPECT_FALSE(s.入力変更フラグ);
}

TEST_P(出金読込, 読んだ伝票の番号を空にすると中身を残し新しい番号で読込状態のまま) {
    投入(u"00000005"_qs, u"20251118"_qs, 2);
    ASSERT_TRUE(読込(u"00000005"_qs));
    EXPECT_TRUE(s.出金No確定(QString()));
    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
    EXPECT_EQ(s.見出し.保持出金No, u"00000005"_qs);
    EXPECT_EQ(s.最終行, 1);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(s.お知らせ文言, QString());
}

TEST_P(出金読込, 新規で行を入れてから無い番号を打つと行は消え新規情報と知らせる) {
    s.最終行 = 1;
    s.行[0].摘要 = u"入力中"_qs;
    s.見出し.担当者コード = u"00003"_qs;
    EXPECT_TRUE(s.出金No確定(u"00000042"_qs));
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(s.行[0].摘要, QString());
    EXPECT_EQ(s.見出し.担当者コード, QString());
    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);  // the proposal wins over the typed number
    EXPECT_EQ(s.お知らせ文言, u"新規情報です。"_qs);
}

TEST_P(出金読込, 手入力の番号では提案がなく打った番号が残る) {
    ASSERT_TRUE(木->業務DB実行(u"UPDATE A番号情報 SET 連番種類 = '8' WHERE 番号ID = '16810'"_qs));
    s.出金情報初期化();
    EXPECT_TRUE(s.出金No確定(u"00000042"_qs));
    EXPECT_EQ(s.見出し.出金No, u"00000042"_qs);
    EXPECT_EQ(s.お知らせ文言, u"新規情報です。"_qs);
}

TEST_P(出金読込, 見つかった番号は未保存の変更があっても問わずに置き換える) {
    投入(u"00000005"_qs, u"20251118"_qs, 2);
    s.最終行 = 0;
    s.行[0].摘要 = u"未保存"_qs;
    s.入力変更フラグ = true;
    EXPECT_TRUE(s.出金No確定(u"00000005"_qs));
    EXPECT_EQ(s.行[0].摘要, u"摘要001"_qs);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(s.お知らせ文言, QString());
}

TEST_P(出金読込, 一覧の二十文字の鍵は事業所と基準日付を与え使った後は空になる) {
    投入(u"00000005"_qs, u"20251118"_qs, 1, u"20250331"_qs);
    std::optional<QString> 鍵 =
        u"C00020250331"
        "00000005"_qs;
    EXPECT_TRUE(s.出金No確定(u"00000005"_qs, 鍵));
    EXPECT_EQ(s.見出し.番号基準日付, u"20250331"_qs);
    EXPECT_EQ(s.最終行, 0);
    EXPECT_FALSE(鍵);
}

TEST_P(出金読込, 出金を含む答えは鍵として読まない) {
    投入(u"00000005"_qs, u"20251118"_qs, 1, u"20250331"_qs);
    std::optional<QString> 鍵 = u"T出金.出金No >= '1'"_qs.leftJustified(20, u' ');
    EXPECT_TRUE(s.出金No確定(u"00000005"_qs, 鍵));
    EXPECT_EQ(s.お知らせ文言, u"新規情報です。"_qs);  // searched under the session's base date
    EXPECT_TRUE(鍵);
}

TEST_P(出金読込, 最初の伝票では前は何もしない) {
    投入(u"00000001"_qs, u"20251101"_qs);
    ASSERT_TRUE(読込(u"00000001"_qs));
    EXPECT_FALSE(s.前No確認());
    EXPECT_FALSE(s.前No読込());
    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
    EXPECT_EQ(s.最終行, 1);
}

// "10" comes before "9" as text, after it as a number: only the text order passes.
TEST_P(出金読込, 同じ日付の伝票は番号の文字順で進む) {
    投入(u"9"_qs, u"20251110"_qs);
    投入(u"10"_qs, u"20251110"_qs);
    投入(u"3"_qs, u"20251111"_qs);
    ASSERT_TRUE(読込(u"10"_qs));
    EXPECT_FALSE(s.前No確認());
    ASSERT_TRUE(s.次No読込());
    EXPECT_EQ(s.見出し.出金No, u"9"_qs);
    ASSERT_TRUE(s.次No読込());
    EXPECT_EQ(s.見出し.出金No, u"3"_qs);
    EXPECT_FALSE(s.次No確認());
    ASSERT_TRUE(s.前No読込());
    EXPECT_EQ(s.見出し.出金No, u"9"_qs);
    ASSERT_TRUE(s.前No読込());
    EXPECT_EQ(s.見出し.出金No, u"10"_qs);
}

TEST_P(出金読込, 基準日付は並びに加わらず日付と番号だけで進む) {
    投入(u"00000004"_qs, u"20251110"_qs, 1, u"20250331"_qs);
    投入(u"00000006"_qs, u"20251110"_qs, 1, u"20260331"_qs);
    投入(u"00000005"_qs, u"20251110"_qs, 1, u"20270331"_qs);
    ASSERT_TRUE(読込(u"00000005"_qs, u"20270331"_qs));
    ASSERT_TRUE(s.前No読込());
    EXPECT_EQ(s.見出し.出金No, u"00000004"_qs);
    EXPECT_EQ(s.見出し.番号基準日付, u"20250331"_qs);
    ASSERT_TRUE(s.次No読込());
    ASSERT_TRUE(s.次No読込());
    EXPECT_EQ(s.見出し.出金No, u"00000006"_qs);
}

TEST_P(出金読込, 新規伝票からは画面の日付と提案の位置から進む) {
    投入(u"00000009"_qs, u"20251119"_qs);
    投入(u"00000009"_qs, u"20251121"_qs, 1, u"20250331"_qs);
    // The new slip stands at 2025-11-20 with the proposal 00000001.
    ASSERT_TRUE(s.前No確認());
    ASSERT_TRUE(s.前No読込());
    EXPECT_EQ(s.見出し.出金日付, u"20251119"_qs);
    EXPECT_FALSE(s.新規情報フラグ);
}

TEST_P(出金読込, 番号のない新規伝票では同じ日付も前に含む) {
    投入(u"00000009"_qs, u"20251120"_qs);
    s.見出し.出金No.clear();
    ASSERT_TRUE(s.前No読込());
    EXPECT_EQ(s.見出し.出金No, u"00000009"_qs);
}

TEST_P(出金読込, 他の事業所の伝票へは進まない) {
    試験伝票 t;
    t.事業所コード = u"001"_qs;
    t.出金No = u"00000001"_qs;
    t.出金日付 = u"20251101"_qs;
    ASSERT_TRUE(伝票投入(*木, t));
    EXPECT_FALSE(s.前No確認());
}

TEST_P(出金読込, 過去明細は型として写り今日の税率で計算し直され合計が続く) {
    試験伝票 t;
    t.出金No = u"00000008"_qs;
    t.出金日付 = u"20180101"_qs;
    t.番号基準日付 = u"20180331"_qs;
    t.行数 = 2;
    ASSERT_TRUE(伝票投入(*木, t));
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE T出金明細 SET 消費税率 = 8, 出金消費税 = 160 WHERE 出金No = '00000008' AND 出金固有行No = '002'"_qs));
    s.最終行 = 0;
    ASSERT_TRUE(
        s.過去明細取込(u"00020180331"
                       "00000008"
                       "002"_qs,
                       0));
    const auto& r = s.行[0];
    EXPECT_EQ(r.摘要, u"摘要002"_qs);
    EXPECT_EQ(r.支払先, u"支払先002"_qs);
    EXPECT_EQ(r.費目区分, 3);
    EXPECT_EQ(r.出金金額, 金額::円(2000));
    EXPECT_EQ(r.消費税率, 金額::円(10));
    EXPECT_EQ(r.出金消費税, 金額::円(200));  // class 1 adds the rate on top
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(2000));
    EXPECT_FALSE(
        s.過去明細取込(u"00020180331"
                       "00000008"
                       "009"_qs,
                       1));
}

KONPEKI_両エンジンで(出金読込);

}  // namespace
