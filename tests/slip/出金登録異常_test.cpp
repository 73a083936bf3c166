#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <functional>

#include "出金登録試験.h"

namespace {

class 出金登録異常 : public 出金登録試験 {};

// The largest whole-yen amount the money type holds, and its negative, in a class without tax.
TEST_P(出金登録異常, 金額型の限界の金額はそのまま書かれ読み戻せる) {
    const 金額 上限 = 金額::円(922337203685477);
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    ASSERT_TRUE(明細入力(s, 8, 上限, {}, u"上限"_qs));
    ASSERT_TRUE(明細入力(s, 8, -上限, {}, u"下限"_qs));
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(表の行(u"SELECT 摘要 FROM T出金明細 WHERE 出金金額 = 922337203685477"_qs),
              QStringList{u"上限"_qs});
    EXPECT_EQ(表の行(u"SELECT 摘要 FROM R出金明細 WHERE 出金金額 = -922337203685477"_qs),
              QStringList{u"下限"_qs});
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    EXPECT_EQ(s.行[0].出金金額, 上限);
    EXPECT_EQ(s.行[1].出金金額, -上限);
    EXPECT_EQ(履歴行(u"エラー "_qs).size(), 1);  // the refused history header only
}

TEST_P(出金登録異常, 全角六十文字の摘要はそのまま書かれ読み戻せる) {
    const QString 摘要 = QString(60, QChar(u'漢'));
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    ASSERT_TRUE(明細入力(s, 3, 金額::円(1000), QString(30, QChar(u'払')), 摘要));
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(表の行(u"SELECT 摘要 FROM R出金明細"_qs), QStringList{摘要});
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    EXPECT_EQ(s.行[0].摘要, 摘要);
    EXPECT_EQ(s.行[0].支払先, QString(30, QChar(u'払')));
}

// Quotes are doubled on the way in, backslashes are plain characters on every engine.
TEST_P(出金登録異常, 自由文の引用符と逆斜線は全ての欄にそのまま入る) {
    const QString 文 = u"It's \\ a 'q' \\' end\\"_qs;
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    s.見出し.出金伝票備考A = 文 + u"A"_qs;
    s.見出し.出金伝票備考B = 文 + u"B"_qs;
    s.見出し.出金メモ = 文 + u"M"_qs;
    ASSERT_TRUE(明細入力(s, 3, 金額::円(1000), 文 + u"P"_qs, 文 + u"T"_qs));
    s.行[0].明細メモ = 文 + u"L"_qs;
    ASSERT_TRUE(s.新規登録処理());
    EXPECT_EQ(履歴行(u"エラー "_qs).size(), 1);
    EXPECT_EQ(表の行(u"SELECT 支払先, 摘要, 明細メモ FROM R出金明細"_qs),
              QStringList{文 + u"P|"_qs + 文 + u"T|"_qs + 文 + u"L"_qs});
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    EXPECT_EQ(s.見出し.出金伝票備考A, 文 + u"A"_qs);
    EXPECT_EQ(s.見出し.出金伝票備考B, 文 + u"B"_qs);
    EXPECT_EQ(s.見出し.出金メモ, 文 + u"M"_qs);
    EXPECT_EQ(s.行[0].支払先, 文 + u"P"_qs);
    EXPECT_EQ(s.行[0].摘要, 文 + u"T"_qs);
    EXPECT_EQ(s.行[0].明細メモ, 文 + u"L"_qs);
    // The old header writer doubles the stored remarks again, so a correction keeps them.
    s.修正登録処理();
    EXPECT_EQ(表の行(u"SELECT 出金伝票備考A, 出金伝票備考B, 出金メモ FROM R出金"_qs),
              QStringList{文 + u"A|"_qs + 文 + u"B|"_qs + 文 + u"M"_qs});
}

// The general database file turns read-only under a running program: every write of the store
// fails and is logged, nothing stops, and the slip stored before stays whole.
TEST_P(出金登録異常, 読込専用になった業務DBへの登録は失敗を記録し前の伝票を残す) {
    if (GetParam()) GTEST_SKIP() << "a file matter of the SQLite engine";
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());

    // Closed first: SQLite would hand a descriptor of the file still open for writing to the
    // next open in this process.
    s.データ.接続().業務DB().閉じる();
    const QString 業務DB = 木->業務DB();
    ASSERT_TRUE(QFile::setPermissions(業務DB, QFile::ReadOwner | QFile::ReadGroup));
    // Root writes through permissions; the immutable flag stops it too.
    const bool 不変 = QProcess::execute(u"chattr"_qs, {u"+i"_qs, 業務DB}) == 0;
    bool 戻した = false;
    const auto 書込可に戻す = [&] {
        if (戻した) return;
        戻した = true;
        if (不変) QProcess::execute(u"chattr"_qs, {u"-i"_qs, 業務DB});
        QFile::setPermissions(業務DB, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    };
    struct 最後に {
        std::function<void()> 処理;
        ~最後に() { 処理(); }
    } 後始末{書込可に戻す};
    ASSERT_TRUE(s.データ.接続().DB_OPEN());  // the program's connection sees the file as it now is

    const qsizetype 前のエラー = 履歴行(u"エラー "_qs).size();
    s.出金情報初期化();
    二行の伝票を打つ();
    EXPECT_TRUE(s.新規登録処理());
    EXPECT_EQ(s.処理結果区分, 3);
    const QStringList エラー = 履歴行(u"エラー "_qs).mid(前のエラー);
    EXPECT_GE(エラー.size(), 6);
    EXPECT_EQ(エラー.filter(u"INSERT INTO [T出金] "_qs).size(), 1);
    EXPECT_EQ(エラー.filter(u"INSERT INTO [T出金明細] "_qs).size(), 2);

    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));
    s.修正登録処理();
    EXPECT_EQ(s.処理結果区分, 3);

    書込可に戻す();
    ASSERT_TRUE(s.データ.接続().DB_OPEN());
    EXPECT_EQ(見出し行(), QStringList{打った見出し(u"3200|300|3300|3000|3300|0|0|3000|300"_qs,
                                                   u"20251120 100000"_qs, {})});
    EXPECT_EQ(明細行(), 二行の明細(u"1000|100|1100|1000|1100"_qs, u"20251120 100000"_qs, {}));
}

// Two users correct the same slip: nothing detects it. The later store replaces the earlier
// correction, whose state it moves to the history as the old one.
TEST_P(出金登録異常, 読んだ後に他の利用者が直した伝票を直すと後の保存が残り先の訂正は履歴に入る) {
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    ASSERT_TRUE(明細入力(s, 3, 金額::円(1000), {}, u"元"_qs));
    ASSERT_TRUE(s.新規登録処理());
    s.出金情報初期化();
    ASSERT_TRUE(読込(u"00000001"_qs));

    出金セッション 他方{基盤};
    出金セッション準備(他方, *木);
    ASSERT_FALSE(HasFatalFailure());
    他方.出金情報初期化();
    ASSERT_TRUE(他方.出金No確定(u"00000001"_qs));
    他方.行[0].摘要 = u"他方の訂正"_qs;
    他方.修正登録処理();

    s.行[0].摘要 = u"こちらの訂正"_qs;
    s.修正登録処理();
    EXPECT_EQ(表の行(u"SELECT 摘要 FROM T出金明細"_qs), QStringList{u"こちらの訂正"_qs});
    EXPECT_EQ(表の行(u"SELECT 摘要 FROM R出金明細 WHERE 赤黒区分 = '0' ORDER BY 出金履歴No"_qs),
              (QStringList{u"元"_qs, u"他方の訂正"_qs}));
    EXPECT_EQ(表の行(u"SELECT COUNT(*) FROM T出金"_qs), QStringList{u"1"_qs});
}

// The server drops the program's connection between typing and storing, as it does when it is
// stopped: every statement of the store fails and is logged, and the slip stored before stays.
TEST_P(出金登録異常, 打った後にサーバーとの接続が切れた登録は失敗を記録し前の伝票を残す) {
    if (!GetParam()) GTEST_SKIP() << "a server drops connections; a file does not";
    二行の伝票を打つ();
    ASSERT_TRUE(s.新規登録処理());
    s.出金情報初期化();
    二行の伝票を打つ();
    const qsizetype 前のエラー = 履歴行(u"エラー "_qs).size();
    ASSERT_TRUE(木->業務DB実行(
        u"SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = current_database() AND pid <> pg_backend_pid()"_qs));
    s.新規登録処理();
    EXPECT_GT(履歴行(u"エラー "_qs).size(), 前のエラー);
    EXPECT_EQ(表の行(u"SELECT 出金No FROM T出金"_qs), QStringList{u"00000001"_qs});
    EXPECT_EQ(表の行(u"SELECT COUNT(*) FROM T出金明細"_qs), QStringList{u"2"_qs});
}

KONPEKI_両エンジンで(出金登録異常);

}  // namespace
