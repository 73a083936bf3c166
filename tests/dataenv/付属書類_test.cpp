#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include "common/エンジン別試験.h"
#include "dataenv/ファイル操作.h"
#include "dataenv/付属書類.h"

namespace {

// Documents attached to a record of the sample company, whose document folder lies in its tree.
class 付属書類 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        ASSERT_NO_FATAL_FAILURE(開く());
        ASSERT_TRUE(環境.会社設定().基本項目読込());
        ASSERT_EQ(環境.会社設定().会社().ドキュメントフォルダ, 木->根() + u"/documents"_qs);
        元 = 木->根() + u"/手元"_qs;
        ASSERT_TRUE(QDir().mkpath(元));
    }
    void TearDown() override {
        if (固めた) QProcess::execute(u"chattr"_qs, {u"-i"_qs, 文書()});
    }

    QString 文書() const { return 環境.会社設定().会社().ドキュメントフォルダ; }
    QString 置く(const QString& 名前, const QByteArray& 中身 = "書類") {
        const QString パス = 元 + u"/"_qs + 名前;
        QDir().mkpath(QFileInfo(パス).absolutePath());
        QFile f(パス);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(中身);
        return パス;
    }
    bool 足す(const QString& 識別, const QString& パス, const 付属書類項目& v = {}) {
        return 付属書類追加(環境, u"紺碧帳"_qs, 識別, パス, ファイル基本名取得(パス), v);
    }
    QStringList 連番(const QString& 識別) {
        QStringList r;
        for (const auto& 行 : 木->業務DB行(u"SELECT SEQNo FROM M付属書類 WHERE 情報識別ID = '"_qs +
                                           識別 + u"' ORDER BY SEQNo"_qs)) {
            r << 行[0].toString();
        }
        return r;
    }
    QStringList 写し() const {
        QStringList r = QDir(文書()).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
        r.sort();
        return r;
    }
    static QByteArray 中身(const QString& パス) {
        QFile f(パス);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<なし>");
    }

    QString 元;
    bool 固めた = false;
    const QString 甲 = u"00020260331"_qs + u"00000012"_qs;
    const QString 乙 = u"00020260331"_qs + u"00000013"_qs;
};

TEST_P(付属書類, 追加は挿入順の列で行を書き保存名を付けた写しを文書フォルダに置く) {
    付属書類項目 v;
    v.伝票番号ID = u"16810"_qs;
    v.伝票事業所コード = u"000"_qs;
    v.伝票番号基準日付 = u"20260331"_qs;
    v.伝票No = u"00000012"_qs;
    v.伝票日付 = u"20251120"_qs;
    v.担当者コード = u"00003"_qs;
    v.部門コード = u"001"_qs;
    v.セクションコード = u"002"_qs;
    基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 1, 2));
    const QString パス = 置く(u"領収書.pdf"_qs, "PDF");
    ASSERT_TRUE(足す(甲, パス, v));
    const auto 行 = 木->業務DB行(u"SELECT * FROM M付属書類"_qs);
    ASSERT_EQ(行.size(), 1);
    QStringList 値;
    for (const auto& x : 行[0]) 値 << x.toString();
    const QString 利用者 = 環境.接続().環境().ユーザID + 環境.接続().環境().起動担当者コード +
                           環境.接続().環境().端末名;
    EXPECT_EQ(値, (QStringList{u"紺碧帳"_qs,
                               甲,
                               u"001"_qs,
                               パス,
                               u"領収書"_qs,
                               u"16810"_qs,
                               u"000"_qs,
                               u"20260331"_qs,
                               u"00000012"_qs,
                               u"20251120"_qs,
                               {},
                               {},
                               {},
                               {},
                               {},
                               {},
                               {},
                               u"00003"_qs,
                               u"001"_qs,
                               u"002"_qs,
                               {},
                               {},
                               u"0"_qs,
                               利用者,
                               u"20251120 100102"_qs}));
    EXPECT_EQ(写し(), QStringList{u"紺碧帳_"_qs + 甲 + u"_001_領収書.pdf"_qs});
    EXPECT_EQ(中身(文書() + u"/紺碧帳_"_qs + 甲 + u"_001_領収書.pdf"_qs), QByteArray("PDF"));
    ASSERT_TRUE(足す(甲, パス));
    EXPECT_EQ(連番(甲), (QStringList{u"001"_qs, u"002"_qs}));
}

TEST_P(付属書類, 下線を含む名前もそのまま写し一覧は行の鍵で引く) {
    ASSERT_TRUE(足す(甲, 置く(u"見積_第2版_最終.txt"_qs)));
    const auto 一覧 = 付属書類一覧(環境, u"紺碧帳"_qs, 甲);
    ASSERT_EQ(一覧.size(), 1);
    EXPECT_EQ(一覧[0].Key, u"C"_qs + 甲 + u"001"_qs);
    EXPECT_EQ(一覧[0].タイトル, u"見積_第2版_最終"_qs);
    EXPECT_EQ(一覧[0].サイズ, u"0KB"_qs);  // six bytes
    QString 識別, SEQNo;
    ASSERT_TRUE(付属書類キー分解(一覧[0].Key, 識別, SEQNo));
    EXPECT_EQ(識別, 甲);
    EXPECT_EQ(SEQNo, u"001"_qs);
}

TEST_P(付属書類, 同じ名前の書類も伝票ごとに別の写しになる) {
    const QString パス = 置く(u"領収書.jpg"_qs);
    ASSERT_TRUE(足す(甲, パス));
    ASSERT_TRUE(足す(乙, パス));
    EXPECT_EQ(写し(), (QStringList{u"紺碧帳_"_qs + 甲 + u"_001_領収書.jpg"_qs,
                                   u"紺碧帳_"_qs + 乙 + u"_001_領収書.jpg"_qs}));
}

TEST_P(付属書類, 消した連番は最大だったときだけ再び使われる) {
    const QString パス = 置く(u"a.txt"_qs);
    for (int i = 0; i < 3; ++i) ASSERT_TRUE(足す(甲, パス));
    ASSERT_TRUE(付属書類削除(環境, u"紺碧帳"_qs, 甲, u"002"_qs));
    ASSERT_TRUE(足す(甲, パス));
    EXPECT_EQ(連番(甲), (QStringList{u"001"_qs, u"003"_qs, u"004"_qs}));
    ASSERT_TRUE(付属書類削除(環境, u"紺碧帳"_qs, 甲, u"004"_qs));
    ASSERT_TRUE(足す(甲, パス));
    EXPECT_EQ(連番(甲), (QStringList{u"001"_qs, u"003"_qs, u"004"_qs}));
}

TEST_P(付属書類, 大きさはKB単位に丸めフォルダはフォルダと出し写しが無ければ空) {
    ASSERT_TRUE(足す(甲, 置く(u"空.txt"_qs, QByteArray())));
    ASSERT_TRUE(足す(甲, 置く(u"小.txt"_qs, QByteArray(600, 'x'))));
    ASSERT_TRUE(足す(甲, 置く(u"半.txt"_qs, QByteArray(1536, 'x'))));
    置く(u"束/一.txt"_qs);
    ASSERT_TRUE(足す(甲, 元 + u"/束"_qs));
    ASSERT_TRUE(足す(甲, 置く(u"消す.txt"_qs)));
    QFile::remove(文書() + u"/紺碧帳_"_qs + 甲 + u"_005_消す.txt"_qs);
    const auto 一覧 = 付属書類一覧(環境, u"紺碧帳"_qs, 甲);
    ASSERT_EQ(一覧.size(), 5);
    QStringList 大きさ;
    for (const auto& 行 : 一覧) 大きさ << 行.サイズ;
    EXPECT_EQ(大きさ, (QStringList{u"0KB"_qs, u"1KB"_qs, u"2KB"_qs, u"フォルダ"_qs, QString()}));
    const QString 今日 = QDate::currentDate().toString(u"yyyy/MM/dd"_qs);
    EXPECT_EQ(一覧[0].更新日付, 今日);
    EXPECT_EQ(一覧[3].更新日付, 今日);
    EXPECT_EQ(一覧[3].タイトル, u"束"_qs);
    EXPECT_TRUE(一覧[4].更新日付.isEmpty());
}

TEST_P(付属書類, 入れ子のフォルダは丸ごと写り読めない書類は読める範囲で写る) {
    置く(u"束/一.txt"_qs, "一");
    置く(u"束/下/二.txt"_qs, "二");
    置く(u"束/下/更に下/三.txt"_qs, "三");
    const QString 読めない = 置く(u"束/秘.txt"_qs, "秘");
    QFile::setPermissions(読めない, QFileDevice::Permissions());
    ASSERT_TRUE(足す(甲, 元 + u"/束"_qs));
    const QString 先 = 文書() + u"/紺碧帳_"_qs + 甲 + u"_001_束"_qs;
    EXPECT_EQ(中身(先 + u"/一.txt"_qs), QByteArray("一"));
    EXPECT_EQ(中身(先 + u"/下/二.txt"_qs), QByteArray("二"));
    EXPECT_EQ(中身(先 + u"/下/更に下/三.txt"_qs), QByteArray("三"));
    // Whoever may not read the file gets no copy of it; the rest of the folder is there.
    const bool 読める = access(QFile::encodeName(読めない).constData(), R_OK) == 0;
    EXPECT_EQ(QFile::exists(先 + u"/秘.txt"_qs), 読める);
    EXPECT_EQ(基盤.お待ち履歴, (QList<bool>{true, false}));
    EXPECT_EQ(基盤.使用可否,
              (QList<QPair<QString, bool>>{{u"frm紺碧帳"_qs, false}, {u"frm紺碧帳"_qs, true}}));
    EXPECT_EQ(連番(甲), QStringList{u"001"_qs});
}

TEST_P(付属書類, 写す前に消えた書類は行だけが残り大きさの無い行になる) {
    const QString パス = 元 + u"/消えた.txt"_qs;
    ASSERT_TRUE(足す(甲, パス));
    EXPECT_TRUE(写し().isEmpty());
    const auto 一覧 = 付属書類一覧(環境, u"紺碧帳"_qs, 甲);
    ASSERT_EQ(一覧.size(), 1);
    EXPECT_EQ(一覧[0].書類名, パス);
    EXPECT_TRUE(一覧[0].サイズ.isEmpty());
}

TEST_P(付属書類, 引用符と空白と日本語の名前もそのまま行と写しになる) {
    const QString パス = 置く(u"O'Brien 様 \"請求\" 書 .txt"_qs, "請求");
    ASSERT_TRUE(足す(甲, パス));
    const auto 行 = 木->業務DB行(u"SELECT 書類名, タイトル FROM M付属書類"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][0].toString(), パス);
    EXPECT_EQ(行[0][1].toString(), u"O'Brien 様 \"請求\" 書 "_qs);
    EXPECT_EQ(中身(文書() + u"/紺碧帳_"_qs + 甲 + u"_001_O'Brien 様 \"請求\" 書 .txt"_qs),
              QByteArray("請求"));
    EXPECT_EQ(付属書類一覧(環境, u"紺碧帳"_qs, 甲).value(0).サイズ, u"0KB"_qs);
}

TEST_P(付属書類, 手で消された写しの書類も行は外れ何も言わない) {
    ASSERT_TRUE(足す(甲, 置く(u"a.txt"_qs)));
    QFile::remove(文書() + u"/紺碧帳_"_qs + 甲 + u"_001_a.txt"_qs);
    ASSERT_TRUE(付属書類削除(環境, u"紺碧帳"_qs, 甲, u"001"_qs));
    付属書類実体削除(環境, u"a.txt"_qs, 保存名(u"紺碧帳"_qs, 甲, u"001"_qs));
    EXPECT_TRUE(連番(甲).isEmpty());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_P(付属書類, 実体削除は自分の保存名の写しだけを消しフォルダは丸ごと消す) {
    ASSERT_TRUE(足す(甲, 置く(u"a.txt"_qs)));
    ASSERT_TRUE(足す(甲, 置く(u"a.txt.bak"_qs)));
    置く(u"束/下/一.txt"_qs);
    ASSERT_TRUE(足す(甲, 元 + u"/束"_qs));
    付属書類実体削除(環境, u"a.txt"_qs, 保存名(u"紺碧帳"_qs, 甲, u"001"_qs));
    付属書類実体削除(環境, u"束"_qs, 保存名(u"紺碧帳"_qs, 甲, u"003"_qs));
    EXPECT_EQ(写し(), QStringList{u"紺碧帳_"_qs + 甲 + u"_002_a.txt.bak"_qs});
}

TEST_P(付属書類, 開くのは文書フォルダの写し) {
    ASSERT_TRUE(足す(甲, 置く(u"a.txt"_qs)));
    付属書類表示(環境, u"a.txt"_qs, 保存名(u"紺碧帳"_qs, 甲, u"001"_qs));
    EXPECT_EQ(基盤.開いた文書, QStringList{文書() + u"/紺碧帳_"_qs + 甲 + u"_001_a.txt"_qs});
}

TEST_P(付属書類, 挿入に失敗すれば何も写さない) {
    ASSERT_TRUE(木->業務DB実行(u"ALTER TABLE M付属書類 RENAME TO M付属書類旧"_qs));
    EXPECT_FALSE(足す(甲, 置く(u"a.txt"_qs)));
    EXPECT_TRUE(写し().isEmpty());
}

TEST_P(付属書類, 無い文書フォルダや書けない文書フォルダでは行だけが残り一覧は空の大きさ) {
    QDir(文書()).removeRecursively();
    ASSERT_TRUE(足す(甲, 置く(u"a.txt"_qs)));
    EXPECT_FALSE(QFileInfo::exists(文書()));
    EXPECT_TRUE(付属書類一覧(環境, u"紺碧帳"_qs, 甲).value(0).サイズ.isEmpty());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    // A folder nobody may write to, not even the administrator.
    ASSERT_TRUE(QDir().mkpath(文書()));
    固めた = QProcess::execute(u"chattr"_qs, {u"+i"_qs, 文書()}) == 0;
    if (!固めた && getuid() == 0) GTEST_SKIP() << "chattr +i is not available here";
    if (!固めた) QFile::setPermissions(文書(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    ASSERT_TRUE(足す(甲, 置く(u"b.txt"_qs)));
    EXPECT_TRUE(写し().isEmpty());
    EXPECT_EQ(連番(甲), (QStringList{u"001"_qs, u"002"_qs}));
    EXPECT_TRUE(付属書類一覧(環境, u"紺碧帳"_qs, 甲).value(1).サイズ.isEmpty());
}

KONPEKI_両エンジンで(付属書類);

}  // namespace
