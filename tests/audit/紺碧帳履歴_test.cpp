#include "audit/紺碧帳履歴.h"
#include "出金履歴試験.h"

namespace {

// The command-line program on the tree the entry screen stored into.
class 履歴の命令 : public 出金履歴試験 {
  protected:
    int 実行(const QStringList& 引数) {
        出力文.clear();
        エラー文.clear();
        QTextStream 出力(&出力文), エラー(&エラー文);
        台本プラットフォーム 別の基盤;
        紺碧帳履歴 p(別の基盤, 木->プログラムフォルダ());
        const int 結果 = p.実行(引数, 出力, エラー);
        出力.flush();
        エラー.flush();
        return 結果;
    }
    QString 出力文, エラー文;
};

TEST_P(履歴の命令, 鍵の伝票の状態を一つずつ変わった項目と共に書く) {
    const QString No = 伝票を打つ(u"3"_qs, 2);
    呼ぶ(No);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 1));
    打ってTab(c(u"出金金額"_qs, 1), u"2500"_qs);
    登録する();
    ASSERT_EQ(実行({u"00020260331"_qs + No}), 0) << エラー文.toStdString();
    EXPECT_TRUE(出力文.startsWith(u"伝票 000-20260331-"_qs + No + u"  状態数 2\n"_qs));
    EXPECT_TRUE(出力文.contains(u"\n状態 2 現在  伝票 000-20260331-"_qs));
    EXPECT_TRUE(出力文.contains(u"\n状態 1 以前  伝票 000-20260331-"_qs));
    EXPECT_TRUE(出力文.contains(u"  変更行 002 出金金額: 2000 -> 2500\n"_qs));
    EXPECT_TRUE(出力文.contains(u"  変更 実質出金金額合計: 3300 -> 3850\n"_qs));
    EXPECT_TRUE(出力文.contains(u"  追加行 001\n  追加行 002\n"_qs));
    EXPECT_FALSE(出力文.contains(u"変更行 001"_qs));
}

TEST_P(履歴の命令, 無い伝票と鍵でない引数は零でない終わりと訳を返す) {
    EXPECT_EQ(実行({u"0002026033199999999"_qs}), 1);
    EXPECT_EQ(エラー文, u"伝票が見つかりません: 0002026033199999999\n"_qs);
    EXPECT_TRUE(出力文.isEmpty());
    EXPECT_EQ(実行({u"000-2026"_qs}), 2);
    EXPECT_TRUE(エラー文.startsWith(u"使い方: 紺碧帳履歴"_qs));
    EXPECT_EQ(実行({}), 2);
}

TEST_P(履歴の命令, 検索の指定ではその伝票をCSVで書く) {
    const QString No = 伝票を打つ(u"3"_qs, 2);
    ASSERT_EQ(実行({u"--search"_qs, u"--min"_qs, u"3300"_qs, u"--max"_qs, u"3300"_qs}), 0)
        << エラー文.toStdString();
    const QStringList 行 = 出力文.split(u"\r\n"_qs, Qt::SkipEmptyParts);
    ASSERT_EQ(行.size(), 2);
    EXPECT_TRUE(行[1].contains(No)) << 行[1].toStdString();
    EXPECT_EQ(実行({u"--search"_qs, u"--min"_qs, u"3301"_qs}), 0);
    EXPECT_EQ(出力文.split(u"\r\n"_qs, Qt::SkipEmptyParts).size(), 1);
    EXPECT_EQ(実行({u"--search"_qs, u"--what"_qs}), 2);
}

KONPEKI_両エンジンで(履歴の命令);

}  // namespace
