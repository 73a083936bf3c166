#include <gtest/gtest.h>

#include <QTextStream>

#include "audit/出金検索出力.h"
#include "出金検索試験.h"

namespace {

class 出金検索出力 : public 出金検索試験 {
  protected:
    // The function run on the arguments; its exit code, with what it printed on each stream.
    int 実行(const QStringList& 引数) {
        出力.clear();
        エラー.clear();
        QByteArray 出;
        QString 誤;
        QTextStream 出力先(&出);
        QTextStream エラー先(&誤);
        const int 終了 = 出金検索を出力(*s, 引数, 出力先, エラー先);
        出力 = QString::fromUtf8(出);
        エラー = 誤;
        return 終了;
    }
    QString 出力, エラー;
};

const QString 見出し =
    u"出金日付,出金No,事業所コード,番号基準日付,担当者コード,担当者名,支払先,実質出金金額合計,書類数,削除,出金履歴No\r\n"_qs;

TEST_P(出金検索出力, 条件に当たる伝票を見出し付きのCSVで出す) {
    ASSERT_EQ(実行({u"--from"_qs, u"20251101"_qs, u"--to"_qs, u"20251231"_qs, u"--payee"_qs,
                    u"青葉堂"_qs, u"--min"_qs, u"3000"_qs}),
              0)
        << エラー.toStdString();
    const QString 名 = 木->業務DB行(u"SELECT 氏名 FROM M担当者 WHERE コード = '00003'"_qs)
                           .value(0)
                           .value(0)
                           .toString();
    const QString 名4 = 木->業務DB行(u"SELECT 氏名 FROM M担当者 WHERE コード = '00004'"_qs)
                            .value(0)
                            .value(0)
                            .toString();
    EXPECT_EQ(出力, 見出し + u"20251105,"_qs + No[0] + u",000,20260331,00003,"_qs + 名 +
                        u",文具の青葉堂,3000,0,,\r\n"_qs + u"20251201,"_qs + No[3] +
                        u",000,20260331,00004,"_qs + 名4 +
                        u",\"文具の\"\"青葉堂\"\",本店\",12000,0,,\r\n"_qs);
    EXPECT_EQ(エラー, QString());
}

TEST_P(出金検索出力, 全ての指定が条件になる) {
    ASSERT_EQ(実行({u"--line-min"_qs, u"700"_qs, u"--line-max"_qs, u"700"_qs, u"--staff"_qs,
                    u"3"_qs, u"--office"_qs, u"0"_qs, u"--no-from"_qs, No[2], u"--no-to"_qs, No[2],
                    u"--max"_qs, u"1500"_qs, u"--with-documents"_qs}),
              0)
        << エラー.toStdString();
    const QStringList 行 = 出力.split(u"\r\n"_qs);
    ASSERT_EQ(行.size(), 3) << 出力.toStdString();
    EXPECT_TRUE(行[1].startsWith(u"20251120,"_qs + No[2] + u",000,20260331,00003,"_qs));
    EXPECT_TRUE(行[1].endsWith(u",弁当の大地,1500,2,,"_qs)) << 行[1].toStdString();
    EXPECT_EQ(行[2], QString());
    ASSERT_EQ(実行({u"--office"_qs, u"001"_qs, u"--with-documents"_qs}), 0);
    EXPECT_EQ(出力, 見出し);
}

TEST_P(出金検索出力, 削除した伝票は印と履歴番号を付けて出す) {
    ASSERT_EQ(実行({u"--deleted"_qs}), 0) << エラー.toStdString();
    const QStringList 行 = 出力.split(u"\r\n"_qs);
    ASSERT_EQ(行.size(), 3) << 出力.toStdString();
    EXPECT_TRUE(行[1].startsWith(u"20251118,"_qs + No[4] + u",000,20260331,00003,"_qs));
    EXPECT_TRUE(行[1].contains(u",印刷の100%堂,4000,0,削除,0"_qs)) << 行[1].toStdString();
}

TEST_P(出金検索出力, 誤った指定は日本語で告げて2で終わり何も出さない) {
    const QList<std::pair<QStringList, QString>> 例 = {
        {{u"--color"_qs}, u"知らない指定です: --color"_qs},
        {{u"--from"_qs}, u"--from の値がありません。"_qs},
        {{u"--from"_qs, u"2025-11-01"_qs}, u"出金日付は YYYYMMDD の日付で指定してください。"_qs},
        {{u"--min"_qs, u"10000"_qs, u"--max"_qs, u"5000"_qs},
         u"合計金額の下限が上限より大きくなっています。"_qs},
        {{u"--staff"_qs, u"abc"_qs}, u"担当者コードは5桁までの数字で指定してください。"_qs},
    };
    for (const auto& [引数, 文言] : 例) {
        EXPECT_EQ(実行(引数), 2) << 引数.join(u' ').toStdString();
        EXPECT_TRUE(エラー.startsWith(文言 + u"\n使い方: --search"_qs)) << エラー.toStdString();
        EXPECT_EQ(出力, QString());
    }
}

KONPEKI_両エンジンで(出金検索出力);

}  // namespace
