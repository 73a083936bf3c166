#include "障害装置.h"

namespace {

// The general database on a small tmpfs filled up to a few pages: stores go on until the disk
// is full, then fail and are logged. No store is cut in half, the program goes on, the database
// stays whole, and once space is free again the next start stores on.
TEST(容量不足,
     満杯のディスクへの登録は失敗を記録し伝票は全部か無であり空けば次の起動から登録できる) {
    試験用ツリー 木;
    ASSERT_TRUE(木.作成済み);
    小さなディスク 小;
    if (!小.載せる(木.業務DB(), 木.根())) GTEST_SKIP() << "this machine refuses to mount a tmpfs";
    // All but a few pages taken by a filler.
    小.満たす(160 * 1024);

    伝票打鍵者 甲(木.プログラムフォルダ());
    ASSERT_TRUE(甲.開く());
    const int 前のエラー = エラー行数(木);
    int 入った = 0, 無し = 0;
    for (int i = 0; i < 40; ++i) {
        const QString 印 = u"満"_qs + QString::number(i);
        甲.新規(印, 3);
        const QString 状態 = 印の伝票(木, 印);
        if (状態 == u"none")
            ++無し;
        else if (状態 == u"1000,2000,3000")
            ++入った;
        else
            ADD_FAILURE() << 印.toStdString() << ": " << 状態.toStdString();
    }
    甲.閉じる();
    std::printf("full disk: %d slips stored, %d refused, %d logged failures\n", 入った, 無し,
                エラー行数(木) - 前のエラー);
    EXPECT_GT(無し, 0);
    EXPECT_GT(エラー行数(木), 前のエラー);
    EXPECT_EQ(見出しのない行(木), 0);

    ASSERT_TRUE(小.空ける());
    伝票打鍵者 乙(木.プログラムフォルダ());
    ASSERT_TRUE(乙.開く());
    乙.新規(u"空き"_qs, 2);
    乙.閉じる();
    EXPECT_EQ(印の伝票(木, u"空き"_qs), u"1000,2000"_qs);
    EXPECT_EQ(木.業務DB行(u"PRAGMA integrity_check"_qs).value(0).value(0).toString(), u"ok"_qs);
}

}  // namespace
