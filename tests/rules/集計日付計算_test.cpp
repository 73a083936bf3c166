#include <gtest/gtest.h>

#include "common/試験用ツリー.h"
#include "dataenv/データ環境.h"
#include "rules/集計日付計算.h"
#include "text/台本プラットフォーム.h"

namespace {

会社情報 決算(short 月, short 日) {
    会社情報 会社;
    会社.決算月 = 月;
    会社.決算日 = 日;
    return 会社;
}

QString 集計(const 会社情報& 会社, const char* 日付) {
    return 集計日付計算(会社, QString::fromLatin1(日付));
}
QString 期首(const 会社情報& 会社, const char* 日付) {
    return 年度開始日計算(会社, QString::fromLatin1(日付));
}
QString 期末(const 会社情報& 会社, const char* 日付) {
    return 年度終了日計算(会社, QString::fromLatin1(日付));
}

TEST(月末決算判定, 各月の末日だけで二月は28日も29日も) {
    const short 月末[][2] = {{1, 31}, {2, 28}, {2, 29}, {3, 31},  {4, 30},  {5, 31}, {6, 30},
                             {7, 31}, {8, 31}, {9, 30}, {10, 31}, {11, 30}, {12, 31}};
    for (const auto& p : 月末) EXPECT_TRUE(月末決算判定(p[0], p[1])) << p[0] << "/" << p[1];

    const short 月末でない[][2] = {{1, 30}, {3, 30}, {5, 30},  {12, 30}, {2, 27}, {2, 30},
                                   {4, 31}, {0, 31}, {13, 31}, {3, 0},   {0, 0},  {-3, 31}};
    for (const auto& p : 月末でない) EXPECT_FALSE(月末決算判定(p[0], p[1])) << p[0] << "/" << p[1];
}

TEST(集計日付計算, 三月末決算は月末で締める) {
    const 会社情報 会社 = 決算(3, 31);
    EXPECT_EQ(集計(会社, "20240331"), u"20240331"_qs);
    EXPECT_EQ(集計(会社, "20240401"), u"20240430"_qs);
    EXPECT_EQ(集計(会社, "20240215"), u"20240229"_qs);
    EXPECT_EQ(集計(会社, "20231231"), u"20231231"_qs);
}

TEST(集計日付計算, 月末決算なら決算月によらず日付の月の末日) {
    const 会社情報 会社 = 決算(6, 30);
    EXPECT_EQ(集計(会社, "20240215"), u"20240229"_qs);
    EXPECT_EQ(集計(会社, "20240701"), u"20240731"_qs);
    EXPECT_EQ(集計(決算(2, 28), "20240105"), u"20240131"_qs);
}

TEST(集計日付計算, 二十日締めは当月か翌月の二十日) {
    const 会社情報 会社 = 決算(3, 20);
    EXPECT_EQ(集計(会社, "20240305"), u"20240320"_qs);
    EXPECT_EQ(集計(会社, "20240320"), u"20240320"_qs);
    EXPECT_EQ(集計(会社, "20240321"), u"20240420"_qs);
    EXPECT_EQ(集計(会社, "20241221"), u"20250120"_qs);
    // 決算月 takes no part
    EXPECT_EQ(集計(決算(9, 20), "20240321"), u"20240420"_qs);
}

TEST(集計日付計算, 三十日締めは二月に暦の繰り越しをそのまま受ける) {
    const 会社情報 会社 = 決算(3, 30);
    EXPECT_EQ(集計(会社, "20230210"), u"20230302"_qs);
    EXPECT_EQ(集計(会社, "20240210"), u"20240301"_qs);
    EXPECT_EQ(集計(会社, "20230131"), u"20230302"_qs);
    EXPECT_EQ(集計(会社, "20240131"), u"20240301"_qs);
    EXPECT_EQ(集計(会社, "20240331"), u"20240430"_qs);
}

TEST(集計日付計算, 決算日0はその月の末日) {
    const 会社情報 会社 = 決算(3, 0);
    EXPECT_EQ(集計(会社, "20240201"), u"20240229"_qs);
    EXPECT_EQ(集計(会社, "20230215"), u"20230228"_qs);
    EXPECT_EQ(集計(会社, "20241231"), u"20241231"_qs);
    EXPECT_EQ(集計(決算(0, 0), "20240401"), u"20240430"_qs);
}

TEST(集計日付計算, 数字でない文字は0として数える) {
    // month "AB" is 0: the month after it is January, and its day 0 the last of December
    EXPECT_EQ(集計(決算(3, 31), "2024AB15"), u"20231231"_qs);
    EXPECT_EQ(集計(決算(3, 20), "202404xx"), u"20240420"_qs);
}

TEST(集計日付計算, 暦の外に出る年は日付範囲外) {
    EXPECT_THROW(集計(決算(3, 10), "99991215"), 日付範囲外);
}

TEST(年度開始終了日計算, 三月末決算) {
    const 会社情報 会社 = 決算(3, 31);
    EXPECT_EQ(期首(会社, "20240331"), u"20230401"_qs);
    EXPECT_EQ(期末(会社, "20240331"), u"20240331"_qs);
    EXPECT_EQ(期首(会社, "20240401"), u"20240401"_qs);
    EXPECT_EQ(期末(会社, "20240401"), u"20250331"_qs);
}

TEST(年度開始終了日計算, 十二月末決算は十三月で候補を作って一年戻す) {
    const 会社情報 会社 = 決算(12, 31);
    EXPECT_EQ(期首(会社, "20240601"), u"20240101"_qs);
    EXPECT_EQ(期末(会社, "20240601"), u"20241231"_qs);
    EXPECT_EQ(期首(会社, "20240101"), u"20240101"_qs);
    EXPECT_EQ(期末(会社, "20241231"), u"20241231"_qs);
}

TEST(年度開始終了日計算, 二十日締めは決算日の翌日から) {
    const 会社情報 会社 = 決算(3, 20);
    EXPECT_EQ(期首(会社, "20240321"), u"20240321"_qs);
    EXPECT_EQ(期末(会社, "20240321"), u"20250320"_qs);
    EXPECT_EQ(期首(会社, "20240320"), u"20230321"_qs);
    EXPECT_EQ(期末(会社, "20240320"), u"20240320"_qs);
}

TEST(年度開始終了日計算, 二月末決算の一年後は二月28日のまま) {
    for (short 日 : {28, 29}) {
        const 会社情報 会社 = 決算(2, 日);
        EXPECT_EQ(期末(会社, "20230301"), u"20240228"_qs) << 日;
        EXPECT_EQ(期末(会社, "20230228"), u"20230228"_qs) << 日;
        EXPECT_EQ(期末(会社, "20240229"), u"20240229"_qs) << 日;
        EXPECT_EQ(期首(会社, "20240229"), u"20230301"_qs) << 日;
        EXPECT_EQ(期首(会社, "20240301"), u"20240301"_qs) << 日;
    }
}

TEST(年度開始終了日計算, 年の加減で二月29日は二月28日になる) {
    // candidates built as 1/60 = 29 Feb 2024; building them a year away would give 1 March
    EXPECT_EQ(期首(決算(1, 59), "20240210"), u"20230228"_qs);
    EXPECT_EQ(期首(決算(1, 59), "20240229"), u"20240229"_qs);
    EXPECT_EQ(期末(決算(1, 60), "20240310"), u"20250228"_qs);
}

TEST(年度開始終了日計算, 決算日の16ビットのあふれと暦の外の年) {
    EXPECT_THROW(期首(決算(3, 32767), "20240401"), 桁あふれ);
    EXPECT_THROW(期末(決算(3, 31), "99990401"), 日付範囲外);
    EXPECT_THROW(期首(決算(3, 31), "01000101"), 日付範囲外);
}

// ---- who may store which dates ----

修正可能期間 期間(const 会社情報& 会社, const char* 今日) {
    return 修正可能期間計算(会社, QString::fromLatin1(今日));
}

TEST(修正可能期間計算, 期首から二か月は前年度全体が開いている) {
    const 会社情報 会社 = 決算(3, 31);
    修正可能期間 p = 期間(会社, "20240510");
    EXPECT_EQ(p.下限, u"20230401"_qs);
    EXPECT_EQ(p.上限, u"20270331"_qs);
    p = 期間(会社, "20240531");
    EXPECT_EQ(p.下限, u"20230401"_qs);
    EXPECT_EQ(p.上限, u"20270331"_qs);
    p = 期間(会社, "20240601");
    EXPECT_EQ(p.下限, u"20240401"_qs);
    EXPECT_EQ(p.上限, u"20270331"_qs);
    p = 期間(会社, "20250331");
    EXPECT_EQ(p.下限, u"20240401"_qs);
    EXPECT_EQ(p.上限, u"20270331"_qs);
    // the upper bound moves on at the new year, the lower one two months later
    p = 期間(会社, "20250401");
    EXPECT_EQ(p.下限, u"20240401"_qs);
    EXPECT_EQ(p.上限, u"20280331"_qs);
}

TEST(修正可能期間計算, 二十日締め) {
    const 修正可能期間 p = 期間(決算(3, 20), "20240415");
    EXPECT_EQ(p.下限, u"20230321"_qs);
    EXPECT_EQ(p.上限, u"20270320"_qs);
    const 修正可能期間 q = 期間(決算(3, 20), "20240521");
    EXPECT_EQ(q.下限, u"20240321"_qs);
    EXPECT_EQ(q.上限, u"20270320"_qs);
}

TEST(修正期間判定, 新しい伝票は期間内なら誰でも境界も含む) {
    const 会社情報 会社 = 決算(3, 31);
    const QString 今日 = u"20240510"_qs;
    for (const char* 日付 : {"20230401", "20240510", "20270331"})
        EXPECT_TRUE(修正期間判定(会社, 今日, QString::fromLatin1(日付), QString(), true, 0));
    for (const char* 日付 : {"20230331", "20270401"})
        EXPECT_FALSE(修正期間判定(会社, 今日, QString::fromLatin1(日付), QString(), true, 0));
}

TEST(修正期間判定, 登録済の伝票は今の日付と読込時の日付の両方が期間内) {
    const 会社情報 会社 = 決算(3, 31);
    const QString 今日 = u"20240601"_qs;
    EXPECT_TRUE(修正期間判定(会社, 今日, u"20240601"_qs, u"20270331"_qs, false, 0));
    EXPECT_FALSE(修正期間判定(会社, 今日, u"20240601"_qs, u"20240331"_qs, false, 0));
    EXPECT_FALSE(修正期間判定(会社, 今日, u"20240331"_qs, u"20240601"_qs, false, 0));
    // a date that was never loaded is outside, so a stored slip always needs both
    EXPECT_FALSE(修正期間判定(会社, 今日, u"20240601"_qs, QString(), false, 0));
}

TEST(修正期間判定, 期間外の登録済伝票は日付を変えなくても削除でも断る) {
    const 会社情報 会社 = 決算(3, 31);
    EXPECT_FALSE(修正期間判定(会社, u"20240601"_qs, u"20240331"_qs, u"20240331"_qs, false, 0));
    EXPECT_TRUE(修正期間判定(会社, u"20240510"_qs, u"20240331"_qs, u"20240331"_qs, false, 0));
}

TEST(修正期間判定, アクセス権限6はどの場合も通り他の値は通らない) {
    const 会社情報 会社 = 決算(3, 31);
    const QString 今日 = u"20240601"_qs;
    EXPECT_TRUE(修正期間判定(会社, 今日, u"20000101"_qs, QString(), true, 6));
    EXPECT_TRUE(修正期間判定(会社, 今日, u"20240601"_qs, u"20000101"_qs, false, 6));
    EXPECT_TRUE(修正期間判定(会社, 今日, u"29991231"_qs, u"29991231"_qs, false, 6));
    for (short 権限 : {0, 1, 5, 7, 9})
        EXPECT_FALSE(修正期間判定(会社, 今日, u"20000101"_qs, QString(), true, 権限)) << 権限;
}

TEST(修正期間確認, 今日は基盤の時計から会社はセッションから) {
    台本プラットフォーム 基盤;
    データ環境 環境{基盤};
    環境.会社設定().会社変更([&](会社情報& 値) { 値 = 決算(3, 31); });
    基盤.時刻 = QDateTime(QDate(2024, 5, 10), QTime(23, 59, 59));
    EXPECT_TRUE(
        修正期間確認(環境.会社設定().会社(), 環境.基盤(), u"20230401"_qs, QString(), true, 0));
    基盤.時刻 = QDateTime(QDate(2024, 6, 1), QTime(0, 0, 0));
    EXPECT_FALSE(
        修正期間確認(環境.会社設定().会社(), 環境.基盤(), u"20230401"_qs, QString(), true, 0));
    EXPECT_TRUE(
        修正期間確認(環境.会社設定().会社(), 環境.基盤(), u"20230401"_qs, QString(), true, 6));
}

TEST(集計日付計算, 見本の会社の決算設定で) {
    試験用ツリー 木;
    ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
    台本プラットフォーム 基盤;
    データ環境 環境{基盤};
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    ASSERT_TRUE(環境.接続().DB_OPEN());
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    EXPECT_EQ(集計日付計算(環境.会社設定().会社(), u"20240415"_qs), u"20240430"_qs);
    EXPECT_EQ(年度開始日計算(環境.会社設定().会社(), u"20240415"_qs), u"20240401"_qs);
    EXPECT_EQ(年度終了日計算(環境.会社設定().会社(), u"20240415"_qs), u"20250331"_qs);
}

// ---- what a new slip date does to the slip's number ----

struct 問合せ記録 {
    bool 答 = false;
    int 回数 = 0;
    std::function<bool()> 関数() {
        return [this] {
            ++回数;
            return 答;
        };
    }
};

TEST(日付変更時番号判定, 新しい伝票は基準日付が変わったときだけ新番号で日程は見ない) {
    問合せ記録 日程{true};
    EXPECT_EQ(日付変更時番号判定(true, u"20240401"_qs, u"20240401"_qs, QString(), 日程.関数()),
              日付変更番号処置::そのまま);
    EXPECT_EQ(日付変更時番号判定(true, u"20250401"_qs, u"20240401"_qs, QString(), 日程.関数()),
              日付変更番号処置::新番号);
    EXPECT_EQ(日程.回数, 0);
}

TEST(日付変更時番号判定, 登録済の伝票は保存した基準日付と比べる) {
    問合せ記録 日程{true};
    // back in its own period after a detour through another one: the stored number returns
    EXPECT_EQ(
        日付変更時番号判定(false, u"20240401"_qs, u"20250401"_qs, u"20240401"_qs, 日程.関数()),
        日付変更番号処置::保存番号復帰);
    EXPECT_EQ(日程.回数, 0);
}

TEST(日付変更時番号判定, 登録済の伝票が他の期間へ移るのは日程の連携がないときだけ) {
    問合せ記録 なし{false};
    EXPECT_EQ(
        日付変更時番号判定(false, u"20250401"_qs, u"20240401"_qs, u"20240401"_qs, なし.関数()),
        日付変更番号処置::新番号);
    EXPECT_EQ(なし.回数, 1);
    問合せ記録 あり{true};
    EXPECT_EQ(
        日付変更時番号判定(false, u"20250401"_qs, u"20240401"_qs, u"20240401"_qs, あり.関数()),
        日付変更番号処置::変更拒否);
    EXPECT_EQ(あり.回数, 1);
}

}  // namespace
