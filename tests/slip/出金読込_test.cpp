#include <gtest/gtest.h>

#include "出金試験.h"

namespace {

class 出金読込 : public 出金試験 {
  protected:
    bool 読込(const QString& No, const QString& 基準日付 = u"20260331"_qs) {
        if (!s.出金キー検索(u"000"_qs, 基準日付, No)) {
            s.出金検索破棄();
            return false;
        }
        s.出金見出し読込();
        s.出金明細初期化();
        s.出金明細読込();
        return true;
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
    EXPECT_TRUE(s.合計.税抜出金金額合計.ゼロか());  // not read on load
    EXPECT_EQ(s.最終行, 2);
    EXPECT_EQ(s.行[1].出金金額, 金額::円(2000));
    EXPECT_EQ(s.行[1].費目区分名称, u"消耗品費"_qs);
    EXPECT_EQ(s.行[1].支払先, u"支払先002"_qs);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_FALSE(s.入力変更フラグ);
}

TEST_P(出金読込, キー検索は読む前に閲覧を記録し文を履歴に残す) {
    EXPECT_FALSE(s.出金キー検索(u"000"_qs, u"20260331"_qs, u"00000099"_qs));
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

TEST_P(出金読込, 壊れた十六行目は読まず最終行は15にならない) {
    投入(u"00000003"_qs, u"20251118"_qs, 16);
    ASSERT_TRUE(読込(u"00000003"_qs));
    EXPECT_EQ(s.最終行, 14);
    EXPECT_TRUE(s.行[15].出金金額.ゼロか());
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
    s.一覧条件文字列 =
        u"C00020250331"
        "00000005"_qs;
    EXPECT_TRUE(s.出金No確定(u"00000005"_qs));
    EXPECT_EQ(s.見出し.番号基準日付, u"20250331"_qs);
    EXPECT_EQ(s.最終行, 0);
    EXPECT_EQ(s.一覧条件文字列, QString());
}

TEST_P(出金読込, 出金を含む条件文は鍵として読まない) {
    投入(u"00000005"_qs, u"20251118"_qs, 1, u"20250331"_qs);
    s.一覧条件文字列 = u"T出金.出金No >= '1'"_qs.leftJustified(20, u' ');
    EXPECT_TRUE(s.出金No確定(u"00000005"_qs));
    EXPECT_EQ(s.お知らせ文言, u"新規情報です。"_qs);  // searched under the session's base date
    EXPECT_FALSE(s.一覧条件文字列.isEmpty());
}

TEST_P(出金読込, 最初の伝票では前は何もしない) {
    投入(u"00000001"_qs, u"20251101"_qs);
    ASSERT_TRUE(読込(u"00000001"_qs));
    EXPECT_FALSE(s.前No確認());
    EXPECT_FALSE(s.前No読込());
    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
    EXPECT_EQ(s.最終行, 1);
}

TEST_P(出金読込, 同じ日付の伝票は番号の文字順で進む) {
    投入(u"00000002"_qs, u"20251110"_qs);
    投入(u"00000010"_qs, u"20251110"_qs);
    投入(u"00000003"_qs, u"20251111"_qs);
    ASSERT_TRUE(読込(u"00000002"_qs));
    ASSERT_TRUE(s.次No確認());
    ASSERT_TRUE(s.次No読込());
    EXPECT_EQ(s.見出し.出金No, u"00000010"_qs);
    ASSERT_TRUE(s.次No読込());
    EXPECT_EQ(s.見出し.出金No, u"00000003"_qs);
    EXPECT_FALSE(s.次No確認());
    ASSERT_TRUE(s.前No読込());
    EXPECT_EQ(s.見出し.出金No, u"00000010"_qs);
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
