#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <functional>

#include "common/試験用ツリー.h"
#include "dataenv/データ環境.h"
#include "text/台本プラットフォーム.h"

namespace {

// A clock that moves on by ten seconds at every reading, so that two limits taken one after the
// other differ.
class 進む時計 : public 台本プラットフォーム {
  public:
    QDateTime 現在時刻() const override { return 時刻.addSecs(10 * 読んだ回数++); }
    mutable int 読んだ回数 = 0;
};

struct 対象表 {
    const char16_t* 表;
    const char16_t* 列;
};
const 対象表 四つの表[] = {
    {u"プログラム稼動履歴", u"実行日付"},
    {u"プログラム連携情報", u"発信日時"},
    {u"プログラムクリップボード", u"貼付日時"},
    {u"プログラムクリップボード明細", u"貼付日時"},
};

class 環境情報整理 : public ::testing::Test {
  protected:
    // The rows are set through the program's own connection, so that no other connection of
    // this process holds the file when a case turns it read-only.
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2026, 11, 22), QTime(10, 0, 0));
        環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
        ASSERT_TRUE(環境.接続().SYB_OPEN());
        for (const auto& t : 四つの表) {
            ASSERT_TRUE(環境.接続().環境DB実行(u"DELETE FROM "_qs + QString::fromUtf16(t.表)));
        }
    }
    // A row of the table stamped with that time; its second column tells it apart.
    void 行(const char16_t* 表, const QString& 日時, const QString& 印) {
        const QString 名 = QString::fromUtf16(表);
        QString 列 = u"実行日付, プログラムID"_qs;
        if (名 == u"プログラム連携情報") 列 = u"発信日時, 発信プログラムID"_qs;
        if (名.startsWith(u"プログラムクリップボード")) 列 = u"貼付日時, 貼付プログラムID"_qs;
        ASSERT_TRUE(環境.接続().環境DB実行(u"INSERT INTO "_qs + 名 + u" ("_qs + 列 +
                                           u") VALUES ('"_qs + 日時 + u"', '"_qs + 印 + u"')"_qs));
    }
    QStringList 残り(const char16_t* 表) {
        const QString 名 = QString::fromUtf16(表);
        QString 列 = 名 == u"プログラム稼動履歴"   ? u"プログラムID"_qs
                     : 名 == u"プログラム連携情報" ? u"発信プログラムID"_qs
                                                   : u"貼付プログラムID"_qs;
        QStringList r;
        for (const auto& v :
             木.環境DB行(u"SELECT "_qs + 列 + u" FROM "_qs + 名 + u" ORDER BY 1"_qs)) {
            r.append(v[0].toString());
        }
        return r;
    }
    QStringList エラー行() {
        QStringList r;
        for (
            const auto& v : 木.環境DB行(
                u"SELECT 摘要 FROM プログラム稼動履歴 WHERE 摘要 LIKE 'エラー %' ORDER BY proccounter"_qs)) {
            r.append(v[0].toString());
        }
        return r;
    }
    // Each table with a row long past, one exactly at its limit and one a second younger.
    void 三つずつ置く() {
        for (const auto& t : 四つの表) {
            const bool 月 = QString::fromUtf16(t.表) == u"プログラム稼動履歴";
            行(t.表, 月 ? u"20260522 100000"_qs : u"20261119 100000"_qs, u"b限度"_qs);
            行(t.表, 月 ? u"20260522 100001"_qs : u"20261119 100001"_qs, u"c若い"_qs);
            行(t.表, u"20250101 000000"_qs, u"a古い"_qs);
        }
    }

    試験用ツリー 木;
    台本プラットフォーム 基盤;
    データ環境 環境{基盤, u"翠嶺"_qs};
};

TEST_F(環境情報整理, 期限ちょうどの行は消え一秒若い行は残る) {
    三つずつ置く();
    環境.接続().環境情報整理();
    for (const auto& t : 四つの表) {
        EXPECT_EQ(残り(t.表), QStringList{u"c若い"_qs}) << QString::fromUtf16(t.表).toStdString();
    }
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_TRUE(エラー行().isEmpty());
}

TEST_F(環境情報整理, 八月三十一日の六か月前は二月の末日) {
    基盤.時刻 = QDateTime(QDate(2026, 8, 31), QTime(12, 0, 0));
    行(u"プログラム稼動履歴", u"20260228 120000"_qs, u"a二月末"_qs);
    行(u"プログラム稼動履歴", u"20260228 120001"_qs, u"b二月末の後"_qs);
    行(u"プログラム稼動履歴", u"20260301 000000"_qs, u"c三月"_qs);
    環境.接続().環境情報整理();
    EXPECT_EQ(残り(u"プログラム稼動履歴"), (QStringList{u"b二月末の後"_qs, u"c三月"_qs}));
}

TEST_F(環境情報整理, 閏年の八月三十一日の六か月前は二月二十九日) {
    基盤.時刻 = QDateTime(QDate(2028, 8, 31), QTime(12, 0, 0));
    行(u"プログラム稼動履歴", u"20280229 120000"_qs, u"a二月末"_qs);
    行(u"プログラム稼動履歴", u"20280229 120001"_qs, u"b二月末の後"_qs);
    環境.接続().環境情報整理();
    EXPECT_EQ(残り(u"プログラム稼動履歴"), QStringList{u"b二月末の後"_qs});
}

TEST_F(環境情報整理, 三日は暦の日で月をまたぐ) {
    基盤.時刻 = QDateTime(QDate(2026, 3, 2), QTime(8, 30, 0));
    行(u"プログラム連携情報", u"20260227 083000"_qs, u"a限度"_qs);
    行(u"プログラム連携情報", u"20260227 083001"_qs, u"b若い"_qs);
    環境.接続().環境情報整理();
    EXPECT_EQ(残り(u"プログラム連携情報"), QStringList{u"b若い"_qs});
}

TEST_F(環境情報整理, 二つのクリップボード表はそれぞれの貼付日時で消える) {
    行(u"プログラムクリップボード", u"20261120 000000"_qs, u"見出し若い"_qs);
    行(u"プログラムクリップボード明細", u"20261101 000000"_qs, u"明細古い"_qs);
    行(u"プログラムクリップボード明細", u"20261121 000000"_qs, u"明細若い"_qs);
    環境.接続().環境情報整理();
    EXPECT_EQ(残り(u"プログラムクリップボード"), QStringList{u"見出し若い"_qs});
    EXPECT_EQ(残り(u"プログラムクリップボード明細"), QStringList{u"明細若い"_qs});
}

// The delete takes its limit from the clock again: a row that turned old between the query and
// the delete goes too. A row that only the later limit would reach, with nothing before it,
// stays, since the empty query leaves the table alone.
TEST_F(環境情報整理, 削除の期限は問い合わせの後に取り直す) {
    進む時計 時計;
    時計.時刻 = QDateTime(QDate(2026, 11, 22), QTime(10, 0, 0));
    データ環境 e{時計, u"翠嶺"_qs};
    e.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(e.接続().SYB_OPEN());
    // Readings: the three other tables' queries at +0, +10 and +20 s, this one's query at
    // +30 s, its delete at +40 s.
    時計.読んだ回数 = 0;
    行(u"プログラムクリップボード明細", u"20261119 100030"_qs, u"a問い合わせの期限"_qs);
    行(u"プログラムクリップボード明細", u"20261119 100035"_qs, u"b削除の期限"_qs);
    行(u"プログラムクリップボード明細", u"20261119 100041"_qs, u"c若い"_qs);
    e.接続().環境情報整理();
    EXPECT_EQ(時計.読んだ回数, 5);
    EXPECT_EQ(残り(u"プログラムクリップボード明細"), QStringList{u"c若い"_qs});

    時計.読んだ回数 = 0;
    ASSERT_TRUE(木.環境DB実行(u"DELETE FROM プログラムクリップボード明細"_qs));
    行(u"プログラムクリップボード明細", u"20261119 100035"_qs, u"b削除の期限"_qs);
    e.接続().環境情報整理();
    EXPECT_EQ(時計.読んだ回数, 4);  // four queries and no delete
    EXPECT_EQ(残り(u"プログラムクリップボード明細"), QStringList{u"b削除の期限"_qs});
}

TEST_F(環境情報整理, 問い合わせに失敗した表は消さずに記録し他の表は続ける) {
    三つずつ置く();
    ASSERT_TRUE(木.環境DB実行(u"ALTER TABLE プログラム連携情報 RENAME TO 旧連携"_qs));
    環境.接続().環境情報整理();
    const QStringList エラー = エラー行();
    ASSERT_EQ(エラー.size(), 1);
    EXPECT_TRUE(エラー[0].contains(
        u"SELECT * FROM プログラム連携情報 WHERE 発信日時 <= ''20261119 100000''"_qs))
        << エラー[0].toStdString();
    EXPECT_EQ(残り(u"プログラムクリップボード"), QStringList{u"c若い"_qs});
    EXPECT_EQ(残り(u"プログラムクリップボード明細"), QStringList{u"c若い"_qs});
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(環境情報整理, 削除に失敗すれば稼動履歴にだけ残り行はそのまま) {
    三つずつ置く();
    ASSERT_TRUE(木.環境DB実行(
        u"CREATE TRIGGER 消させない BEFORE DELETE ON プログラムクリップボード BEGIN SELECT RAISE(ABORT, '削除禁止'); END"_qs));
    環境.接続().環境情報整理();
    const QStringList エラー = エラー行();
    ASSERT_EQ(エラー.size(), 1);
    EXPECT_TRUE(エラー[0].startsWith(u"エラー 削除禁止"_qs)) << エラー[0].toStdString();
    EXPECT_TRUE(エラー[0].contains(
        u"DELETE FROM プログラムクリップボード WHERE 貼付日時 <= ''20261119 100000''"_qs));
    EXPECT_EQ(残り(u"プログラムクリップボード"),
              (QStringList{u"a古い"_qs, u"b限度"_qs, u"c若い"_qs}));
    EXPECT_EQ(残り(u"プログラムクリップボード明細"), QStringList{u"c若い"_qs});
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

// The configuration file turns read-only under the run: the deletes fail, and so does the
// history row that would tell of them. Nothing is said, nothing is lost.
TEST_F(環境情報整理, 読込専用の環境DBでは黙って何も消さない) {
    三つずつ置く();
    環境.接続().環境DB().閉じる();
    const QString 環境DB = 木.環境DB();
    ASSERT_TRUE(QFile::setPermissions(環境DB, QFile::ReadOwner | QFile::ReadGroup));
    // Root writes through permissions; the immutable flag stops it too.
    const bool 不変 = QProcess::execute(u"chattr"_qs, {u"+i"_qs, 環境DB}) == 0;
    struct 最後に {
        std::function<void()> 処理;
        ~最後に() { 処理(); }
    } 後始末{[&] {
        if (不変) QProcess::execute(u"chattr"_qs, {u"-i"_qs, 環境DB});
        QFile::setPermissions(環境DB, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    }};
    ASSERT_TRUE(環境.接続().DB_CLOSEOPEN());
    環境.接続().環境情報整理();
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    for (const auto& t : 四つの表) EXPECT_EQ(残り(t.表).size(), 3);
}

// Another process holds the write lock of the configuration file during the purge: the deletes
// give up, silently, and the next start purges.
TEST_F(環境情報整理, 他のプロセスが環境DBを握っていれば黙って何も消さない) {
    三つずつ置く();
    QProcess 他方;
    他方.start(u"sqlite3"_qs, {木.環境DB()});
    ASSERT_TRUE(他方.waitForStarted()) << "sqlite3 is needed for this test";
    他方.write(
        "BEGIN EXCLUSIVE;\nINSERT INTO プログラム連携情報 (発信プログラムID) VALUES ('他方');\n"
        ".print locked\n");
    ASSERT_TRUE(他方.waitForReadyRead(10000));
    ASSERT_TRUE(他方.readAllStandardOutput().contains("locked"));
    // The run gives up at once instead of waiting out its busy timeout.
    ASSERT_TRUE(環境.接続().環境DB実行(u"PRAGMA busy_timeout = 0"_qs));
    環境.接続().環境情報整理();
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    他方.write("ROLLBACK;\n.quit\n");
    他方.closeWriteChannel();
    ASSERT_TRUE(他方.waitForFinished(10000));
    for (const auto& t : 四つの表) EXPECT_EQ(残り(t.表).size(), 3);
    EXPECT_TRUE(エラー行().isEmpty());

    環境.接続().環境情報整理();
    for (const auto& t : 四つの表) EXPECT_EQ(残り(t.表), QStringList{u"c若い"_qs});
}

}  // namespace
