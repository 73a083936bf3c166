#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "dataenv/ファイル操作.h"
#include "text/台本プラットフォーム.h"

namespace {

void 書く(const QString& パス, const QByteArray& 中身) {
    QFile f(パス);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(中身);
}

TEST(DIREXISTCHK, 最後の区切りまでのフォルダを全て作り最後の名前は作らない) {
    QTemporaryDir t;
    台本プラットフォーム 基盤;
    DIREXISTCHK(t.path() + u"/a/b/c/file.db"_qs, 基盤);
    EXPECT_TRUE(QFileInfo(t.path() + u"/a/b/c"_qs).isDir());
    EXPECT_FALSE(QFileInfo::exists(t.path() + u"/a/b/c/file.db"_qs));
    DIREXISTCHK(t.path() + u"/x/y"_qs, 基盤);  // no trailing separator: y is taken for a file
    EXPECT_TRUE(QFileInfo(t.path() + u"/x"_qs).isDir());
    EXPECT_FALSE(QFileInfo::exists(t.path() + u"/x/y"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST(DIREXISTCHK, 空や相対のパスでは何もしない) {
    台本プラットフォーム 基盤;
    DIREXISTCHK(u"   "_qs, 基盤);
    DIREXISTCHK(u"rel/a/b"_qs, 基盤);
    EXPECT_FALSE(QFileInfo::exists(u"rel"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST(DIREXISTCHK, ネットワークのパスではサーバと共有名を作らずその下を作る) {
    QTemporaryDir t;
    台本プラットフォーム 基盤;
    const QString 共有 = t.path() + u"/server/share"_qs;
    ASSERT_TRUE(QDir().mkpath(共有));
    DIREXISTCHK(t.path() + u"//server/share/a/b/file"_qs, 基盤);
    EXPECT_TRUE(QFileInfo(共有 + u"/a"_qs).isDir());
    EXPECT_TRUE(QFileInfo(共有 + u"/a/b"_qs).isDir());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST(DIREXISTCHK, 無い共有名は作らず箱を出す) {
    QTemporaryDir t;
    台本プラットフォーム 基盤;
    DIREXISTCHK(t.path() + u"//server/share/a/file"_qs, 基盤);
    EXPECT_FALSE(QFileInfo::exists(t.path() + u"/server"_qs));
    ASSERT_EQ(基盤.表示済み.size(), 1);
    EXPECT_TRUE(基盤.表示済み[0].本文.startsWith(u"DIREXISTCHK ERROR"_qs));
    EXPECT_TRUE(基盤.表示済み[0].本文.endsWith(u"\ndirexeistchk"_qs));
}

TEST(ファイル基本名取得, ファイルは最後の点の前までフォルダは最後の名前) {
    QTemporaryDir t;
    書く(t.path() + u"/請求.書.pdf"_qs, "x");
    書く(t.path() + u"/README"_qs, "x");
    QDir().mkpath(t.path() + u"/書類.d"_qs);
    EXPECT_EQ(ファイル基本名取得(t.path() + u"/請求.書.pdf"_qs), u"請求.書"_qs);
    EXPECT_EQ(ファイル基本名取得(t.path() + u"/README"_qs), u"README"_qs);
    EXPECT_EQ(ファイル基本名取得(t.path() + u"/書類.d"_qs), u"書類.d"_qs);
    EXPECT_EQ(ファイル基本名取得(t.path() + u"/無い.txt"_qs), QString());
    EXPECT_EQ(ファイル基本名取得(u"  "_qs), QString());
}

TEST(ファイル操作, 複写は上書きしフォルダ複写は木ごと写しフォルダ削除は消す) {
    QTemporaryDir t;
    書く(t.path() + u"/a.txt"_qs, "new");
    書く(t.path() + u"/b.txt"_qs, "old");
    EXPECT_TRUE(ファイル複写(t.path() + u"/a.txt"_qs, t.path() + u"/b.txt"_qs));
    QFile b(t.path() + u"/b.txt"_qs);
    ASSERT_TRUE(b.open(QIODevice::ReadOnly));
    EXPECT_EQ(b.readAll(), "new");
    QDir().mkpath(t.path() + u"/src/sub"_qs);
    書く(t.path() + u"/src/sub/c.txt"_qs, "c");
    EXPECT_TRUE(フォルダ複写(t.path() + u"/src"_qs, t.path() + u"/dst"_qs));
    EXPECT_TRUE(ファイル有無確認(t.path() + u"/dst/sub/c.txt"_qs));
    EXPECT_TRUE(フォルダ有無確認(t.path() + u"/dst/sub"_qs));
    EXPECT_FALSE(ファイル有無確認(t.path() + u"/dst/sub"_qs));
    EXPECT_TRUE(フォルダ削除(t.path() + u"/dst"_qs));
    EXPECT_FALSE(フォルダ有無確認(t.path() + u"/dst"_qs));
}

TEST(ファイル操作, ファイル実行は関連付けで開き作業フォルダはそのフォルダ) {
    台本プラットフォーム 基盤;
    EXPECT_TRUE(ファイル実行(u"/tmp/manual/紺碧帳.doc"_qs, 基盤));
    EXPECT_EQ(基盤.開いた文書, QStringList{u"/tmp/manual/紺碧帳.doc"_qs});
}

TEST(端末識別, 終端の前までを取り終端がなければ空) {
    EXPECT_EQ(終端まで(QByteArray("user\0junk", 9)), u"user"_qs);
    EXPECT_EQ(終端まで(QByteArray("nonull")), QString());
    EXPECT_FALSE(端末利用者名取得().isEmpty());
    EXPECT_FALSE(端末名取得().isEmpty());
}

}  // namespace
