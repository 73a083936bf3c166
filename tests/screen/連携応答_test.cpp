#include <gtest/gtest.h>

#include "common/窓なしの入力画面.h"
#include "common/連携要求.h"
#include "screen/frm紺碧帳.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"

namespace {

// A sibling asks for a new slip of office 001; the operator types it and stores it, and the
// run ends by itself with the slip's key as its answer.
TEST(連携応答, 連携新規で保存した伝票の鍵が答えの行に残る) {
    試験用ツリー 木;
    ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
    ASSERT_TRUE(木.プログラムを置く(u"紺碧帳書"_qs));
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 0, 0));
    const QString 起動連携情報 = u"0010000000000000000"_qs;
    ASSERT_TRUE(連携要求を書く(木, u"20261123 095955"_qs, 起動連携情報));

    出金セッション s(基盤);
    s.データ.接続().自身のフォルダ設定(木.プログラムフォルダ());
    frm紺碧帳 f(s);
    紺碧帳起動* 起動 = nullptr;
    窓なしの入力画面 画面(f, [&] { 起動->伝票読込(); });
    紺碧帳起動 本当の起動(s, 画面);
    起動 = &本当の起動;
    int 停止 = 0;
    f.停止 = [&] {
        ++停止;
        本当の起動.停止処理();
    };
    基盤.画面表示時 = [&](const QString& 名) {
        if (名 == u"msg印刷確認") f.印刷確認.画面.操作_クリック(f.印刷確認.画面(u"btn_登録"_qs));
    };
    ASSERT_EQ(本当の起動.プログラム開始(起動連携情報), 起動結果::稼動);
    ASSERT_TRUE(s.連携新規フラグ);

    f.画面.操作_入力(f.画面(u"担当者コード"_qs), u"8"_qs);
    f.画面.操作_Tab();
    ASSERT_EQ(f.画面.フォーカス()->名前, u"費目区分"_qs);
    f.画面.操作_入力(*f.画面.フォーカス(), u"3"_qs);
    for (int k = 0; k < 10 && f.画面.フォーカス()->名前 != u"出金金額"; ++k) f.画面.操作_Tab();
    f.画面.操作_入力(*f.画面.フォーカス(), u"5400"_qs);
    f.画面.操作_Tab();
    f.画面.操作_クリック(f.画面(u"btn_登録"_qs));

    EXPECT_EQ(停止, 1);
    const auto 伝票 = 木.業務DB行(u"SELECT 事業所コード, 番号基準日付, 出金No FROM T出金"_qs);
    ASSERT_EQ(伝票.size(), 1);
    const QString 鍵 = 伝票[0][0].toString() + 伝票[0][1].toString() + 伝票[0][2].toString();
    EXPECT_EQ(鍵.size(), 19);
    EXPECT_TRUE(鍵.startsWith(u"001"_qs));
    const auto 答え = 木.環境DB行(
        u"SELECT 起動連携情報, 終了連携情報 FROM プログラム連携情報 WHERE 連携区分 = '99'"_qs);
    ASSERT_EQ(答え.size(), 1);
    EXPECT_EQ(答え[0][0].toString(), 起動連携情報);
    EXPECT_EQ(答え[0][1].toString(), 鍵);
}

}  // namespace
