#include <QFile>
#include <QFileInfo>

#include "common/試験用ツリー.h"
#include "障害試験.h"

namespace {

// The folder of the SQLite general database turns read-only (and immutable, which stops root
// too) in the middle of a store. The database file and its write-ahead log stand already and
// stay writable, so the store that runs needs no new file: it arrives whole. When the program
// ends, the log cannot be removed from the folder; the next start still opens the database and
// finds every slip whole.
TEST(読込専用フォルダ, 登録の途中で読込専用になったフォルダでも伝票は全部か無であり前の伝票は無事) {
    試験用ツリー 木;
    ASSERT_TRUE(木.作成済み);
    const QString フォルダ = QFileInfo(木.業務DB()).absolutePath();
    bool 不変 = false;
    const auto 戻す = [&] {
        if (不変) 実行(u"chattr"_qs, {u"-i"_qs, フォルダ});
        不変 = false;
        QFile::setPermissions(フォルダ, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    struct 最後に {
        std::function<void()> f;
        ~最後に() { f(); }
    } 後始末{戻す};

    伝票打鍵者 甲(木.プログラムフォルダ());
    ASSERT_TRUE(甲.開く());
    甲.新規(u"一"_qs, 2);
    甲.基盤.点 = u"1"_qs;
    甲.基盤.着いた時 = [&] {
        QFile::setPermissions(フォルダ, QFile::ReadOwner | QFile::ExeOwner);
        不変 = 実行(u"chattr"_qs, {u"+i"_qs, フォルダ});
    };
    甲.新規(u"二"_qs, 3);
    甲.基盤.着いた時 = nullptr;
    甲.新規(u"三"_qs, 1);
    甲.閉じる();

    const QString 二 = 印の伝票(木, u"二"_qs);
    EXPECT_TRUE(二 == u"none" || 二 == u"1000,2000,3000") << 二.toStdString();
    const QString 三 = 印の伝票(木, u"三"_qs);
    EXPECT_TRUE(三 == u"none" || 三 == u"1000") << 三.toStdString();
    EXPECT_EQ(印の伝票(木, u"一"_qs), u"1000,2000"_qs);
    std::printf("read-only folder: the cut store %s, the next %s, %d logged failures\n",
                qPrintable(二), qPrintable(三), エラー行数(木));

    // Still read-only: the next start reads every slip whole.
    伝票打鍵者 乙(木.プログラムフォルダ());
    ASSERT_TRUE(乙.開く());
    乙.閉じる();
    EXPECT_EQ(印の伝票(木, u"一"_qs), u"1000,2000"_qs);

    // Writable again: the next start stores on.
    戻す();
    伝票打鍵者 丙(木.プログラムフォルダ());
    ASSERT_TRUE(丙.開く());
    丙.新規(u"四"_qs, 2);
    丙.閉じる();
    EXPECT_EQ(印の伝票(木, u"四"_qs), u"1000,2000"_qs);
    EXPECT_EQ(見出しのない行(木), 0);
    EXPECT_EQ(木.業務DB行(u"PRAGMA integrity_check"_qs).value(0).value(0).toString(), u"ok"_qs);
}

}  // namespace
