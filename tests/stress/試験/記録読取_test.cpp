#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "stress/百分位.h"
#include "stress/記録読取.h"

namespace {

class 記録読取 : public ::testing::Test {
  protected:
    QString 書く(const QString& 名, const QByteArray& 中身) {
        const QString 道 = 置場.filePath(名);
        QFile f(道);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(中身);
        return 道;
    }
    QTemporaryDir 置場;
};

}  // namespace

TEST_F(記録読取, 二人の記録を合わせて数と金額と時間を読む) {
    const QString 甲 = 書く(u"1.journal"_qs,
                            "N a 100,200 3.250\n"
                            "C a 300,200 7.5\n"
                            "N c 900 0.750\n");
    const QString 乙 = 書く(u"2.journal"_qs,
                            "N b 400 1.000\n"
                            "D b 2.125\n");
    QStringList 違反;
    const 集計 k = 記録を読む({甲, 乙}, 違反);
    EXPECT_TRUE(違反.isEmpty()) << 違反.join(u'\n').toStdString();
    EXPECT_EQ(k.新規, 3);
    EXPECT_EQ(k.訂正, 1);
    EXPECT_EQ(k.削除, 1);
    EXPECT_EQ(k.新規行, 4);
    EXPECT_EQ(k.訂正行, 2);
    EXPECT_EQ(k.削除行, 1);
    EXPECT_EQ(k.伝票[u"a"_qs].金額, (QList<qint64>{300, 200}));
    EXPECT_FALSE(k.伝票[u"a"_qs].削除済み);
    EXPECT_TRUE(k.伝票[u"b"_qs].削除済み);
    EXPECT_EQ(k.所要ミリ秒, (QList<double>{3.25, 7.5, 0.75, 1.0, 2.125}));
    // Over both operators: the 3rd of five for the median, the 5th for p95 and p99.
    EXPECT_EQ(最近順位百分位(k.所要ミリ秒, 50), 2.125);
    EXPECT_EQ(最近順位百分位(k.所要ミリ秒, 95), 7.5);
    EXPECT_EQ(最近順位百分位(k.所要ミリ秒, 99), 7.5);
}

TEST_F(記録読取, 時間のない記録行と入力失敗は違反) {
    const QString 甲 = 書く(u"1.journal"_qs,
                            "N a 100\n"
                            "D a x\n"
                            "E typing of b did not take\n"
                            "C a 200 1.5 9\n");
    QStringList 違反;
    const 集計 k = 記録を読む({甲, 置場.filePath(u"none.journal"_qs)}, 違反);
    EXPECT_EQ(k.新規, 1);
    EXPECT_EQ(k.削除, 1);
    EXPECT_EQ(k.訂正, 1);
    EXPECT_EQ(k.入力失敗, 1);
    EXPECT_TRUE(k.所要ミリ秒.isEmpty());
    ASSERT_EQ(違反.size(), 5) << 違反.join(u'\n').toStdString();
    EXPECT_EQ(違反[0], u"journal line without its time: N a 100"_qs);
    EXPECT_EQ(違反[1], u"journal line without its time: D a x"_qs);
    EXPECT_EQ(違反[2], u"E typing of b did not take"_qs);
    EXPECT_EQ(違反[3], u"journal line without its time: C a 200 1.5 9"_qs);
    EXPECT_TRUE(違反[4].endsWith(u"none.journal cannot be read"_qs));
}
