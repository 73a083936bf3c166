#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "common/文字列表示.h"
#include "ledger/出力ファイル.h"

namespace {

QByteArray 中身(const QString& パス) {
    QFile f(パス);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(なし)");
}

// The export's file goes out piece by piece under another name; the target holds its old text
// until the whole is there, and an export that stops leaves nothing behind.
class 出力ファイル試験 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(置き場.isValid());
        QFile f(先);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("前の出力");
    }
    QStringList 置き場の中() const { return QDir(置き場.path()).entryList(QDir::Files); }

    QTemporaryDir 置き場;
    const QString 先 = 置き場.filePath(u"仕訳.txt"_qs);
};

TEST_F(出力ファイル試験, 溜まった分から書き仕上げると全体が先に替わる) {
    QByteArray 全体;
    {
        出力ファイル f(先, 8);
        QByteArray 内容;
        for (int i = 0; i < 10; ++i) {
            const QByteArray 行 = "row " + QByteArray::number(i) + "\r\n";
            全体 += 行;
            内容 += 行;
            f.溜まれば送る(内容);
            EXPECT_LT(内容.size(), 8);  // what went out is gone from memory
        }
        // Pieces are out, in a file of no name or another one; the target is still the old one.
        EXPECT_EQ(中身(先), QByteArray("前の出力"));
        ASSERT_TRUE(f.仕上げる(内容));
    }
    EXPECT_EQ(中身(先), 全体);
    EXPECT_EQ(置き場の中(), QStringList{u"仕訳.txt"_qs});
}

TEST_F(出力ファイル試験, 仕上げずに終われば先は元のままで何も残らない) {
    {
        出力ファイル f(先, 4);
        QByteArray 内容 = "一行目の出力\r\n";
        f.溜まれば送る(内容);
        EXPECT_TRUE(内容.isEmpty());
        EXPECT_EQ(中身(先), QByteArray("前の出力"));
    }
    EXPECT_EQ(中身(先), QByteArray("前の出力"));
    EXPECT_EQ(置き場の中(), QStringList{u"仕訳.txt"_qs});
}

TEST_F(出力ファイル試験, 書けない先は仕上げで失敗と答え何も作らない) {
    const QString 無い先 = 置き場.filePath(u"ない/仕訳.txt"_qs);
    出力ファイル f(無い先, 4);
    QByteArray 内容 = "行\r\n";
    f.溜まれば送る(内容);
    内容 = "次の行\r\n";
    EXPECT_FALSE(f.仕上げる(内容));
    EXPECT_FALSE(QFile::exists(無い先));
    EXPECT_EQ(置き場の中(), QStringList{u"仕訳.txt"_qs});
}

}  // namespace
