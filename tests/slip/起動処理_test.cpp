#include <gtest/gtest.h>

#include <unistd.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <memory>
#include <vector>

#include "common/伝票投入.h"
#include "common/試験用ツリー.h"
#include "rules/集計日付計算.h"
#include "slip/二重起動.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"

namespace {

class 記録画面 : public 入力画面 {
  public:
    void 表示() override {
        表示回数++;
        if (読込) 読込();
    }
    std::function<void()> 読込;
    void 既定フォーカス設定() override { フォーカス回数++; }
    int 表示回数 = 0;
    int フォーカス回数 = 0;
};

class 起動 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2026, 11, 22), QTime(10, 0, 0));
        s.データ.接続().自身のフォルダ設定(木.プログラムフォルダ());
        画面.読込 = [this] { 起動処理.伝票読込(); };
    }
    QStringList 履歴() {
        QStringList r;
        for (const auto& 行 : 木.環境DB行(
                 u"SELECT proccounter, 摘要 FROM プログラム稼動履歴 ORDER BY proccounter"_qs)) {
            r.append(行[0].toString() + u" "_qs + 行[1].toString());
        }
        return r;
    }
    試験用ツリー 木;
    台本プラットフォーム 基盤;
    出金セッション s{基盤};
    記録画面 画面;
    紺碧帳起動 起動処理{s, 画面};
};

TEST_F(起動, 見本の木で開始し閉じると開始行と終了行が残る) {
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::稼動);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(画面.表示回数, 1);
    EXPECT_EQ(画面.フォーカス回数, 1);
    EXPECT_EQ(履歴(), QStringList{u"000000000001 開始 "_qs});
    EXPECT_FALSE(s.連携起動フラグ);
    EXPECT_FALSE(s.連携新規フラグ);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(s.見出し.出金日付, u"20261122"_qs);
    EXPECT_EQ(s.見出し.出金日付年, u"2026"_qs);
    EXPECT_EQ(s.見出し.出金日付月, u"11"_qs);
    EXPECT_EQ(s.見出し.出金日付日, u"22"_qs);
    EXPECT_EQ(s.最終行, -1);
    起動処理.停止処理();
    EXPECT_EQ(履歴(), (QStringList{u"000000000001 開始 "_qs, u"000000000002 終了"_qs}));
    EXPECT_FALSE(s.データ.接続().環境DB().開いている());
    EXPECT_FALSE(s.データ.接続().業務DB().開いている());
}

TEST_F(起動, 連携条件項目が翠嶺の表に書かれる) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE 翠嶺 SET 条件項目名D = 'x', 条件項目名Z = 'z'"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::稼動);
    const auto 行 = 木.環境DB行(
        u"SELECT 条件項目名A, 条件項目名B, 条件項目名C, 条件項目名D, 条件項目名Z FROM 翠嶺 WHERE プログラムID = '紺碧帳'"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][0].toString(), u"事業所コード"_qs);
    EXPECT_EQ(行[0][1].toString(), u"番号基準日付"_qs);
    EXPECT_EQ(行[0][2].toString(), u"出金No"_qs);
    EXPECT_EQ(行[0][3].toString(), QString());
    EXPECT_EQ(行[0][4].toString(), QString());
    const auto 他 = 木.環境DB行(u"SELECT 条件項目名D FROM 翠嶺 WHERE プログラムID = '紺碧帳書'"_qs);
    EXPECT_EQ(他[0][0].toString(), u"x"_qs);
}

TEST_F(起動, 翠嶺の表が書けなければ知らせて開始は続く) {
    ASSERT_TRUE(木.環境DB実行(u"DROP TABLE 翠嶺"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::稼動);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"システムデータベースに問題があり登録できません"_qs});
    EXPECT_EQ(画面.表示回数, 1);
}

// Nobody answers the PIN window here: it closes by its frame, and the start ends.
TEST_F(起動, 暗証番号のある会社で拒まれた操作者は操作権限がありませんで止まる) {
    ASSERT_TRUE(木.業務DB実行(u"UPDATE Mユーザ SET 暗証番号有無 = 1"_qs));
    基盤.画面表示時 = [](const QString&) {};
    ASSERT_TRUE(木.業務DB実行(
        u"UPDATE 担当者別操作許可プログラム SET 操作許可 = '1' WHERE プログラムID = '紺碧帳'"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    EXPECT_EQ(基盤.表示画面, (QList<QPair<QString, bool>>{{u"msg暗証番号確認"_qs, true}}));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"操作権限がありません。"_qs});
    EXPECT_EQ(画面.表示回数, 0);
    EXPECT_EQ(履歴().last(), u"000000000002 終了"_qs);
}

TEST_F(起動, 暗証番号のある会社で許された操作者は窓なしで始まる) {
    ASSERT_TRUE(木.業務DB実行(u"UPDATE Mユーザ SET 暗証番号有無 = 1"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::稼動);
    EXPECT_TRUE(基盤.表示画面.isEmpty());
    EXPECT_EQ(s.データ.操作者権限().操作者().氏名, u"青木 翔太"_qs);
}

TEST_F(起動, 暗証番号の無い会社では拒まれた操作者でも始まる) {
    ASSERT_TRUE(木.業務DB実行(
        u"UPDATE 担当者別操作許可プログラム SET 操作許可 = '1' WHERE プログラムID = '紺碧帳'"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::稼動);
    EXPECT_TRUE(基盤.表示画面.isEmpty());
    EXPECT_EQ(画面.表示回数, 1);
}

TEST_F(起動, データベースが開かなければ知らせて終了処理をして止まる) {
    QFile::remove(木.業務DB());
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"データベースが使用できません。"_qs});
    EXPECT_EQ(画面.表示回数, 0);
    const auto r = 履歴();
    ASSERT_EQ(r.size(), 3);
    EXPECT_TRUE(r[0].startsWith(u"000000000001 開始"_qs));
    EXPECT_TRUE(r[1].startsWith(u"000000000002 エラー DB_OPEN ERROR"_qs));
    EXPECT_EQ(r[2], u"000000000003 終了"_qs);
}

TEST_F(起動, 木がなければ知らせて止まり何も書かない) {
    s.データ.接続().自身のフォルダ設定(木.根() + u"/elsewhere"_qs);
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    // Outside a prgbin the program has no tree: it names its own folder.
    const QString 所 = 木.根() + u"/elsewhere"_qs;
    EXPECT_EQ(基盤.表示文言(),
              (QStringList{u"データベースが使用できません。"_qs,
                           u"紺碧帳のフォルダツリーがありません: "_qs + 所 +
                               u"\n管理者が次のコマンドで作成します。\nsudo konpeki-make-tree "_qs +
                               所 + u" --slips 0"_qs}));
    EXPECT_TRUE(履歴().isEmpty());
}

// The installed programs' layout: prgbin in the programs' folder, conf a link into the tree
// that the package makes elsewhere.
TEST_F(起動, 導入先の木が無ければフォルダと作るコマンドを二つ目の知らせで示す) {
    QTemporaryDir 外;
    const QString 導入 = 外.path() + u"/usr/lib/konpeki"_qs;
    ASSERT_TRUE(QDir().mkpath(導入 + u"/prgbin"_qs));
    ASSERT_TRUE(QFile::link(u"../../../var/lib/konpeki/conf"_qs, 導入 + u"/conf"_qs));
    s.データ.接続().自身のフォルダ設定(導入 + u"/prgbin"_qs);
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    const QString 木の所 = 外.path() + u"/var/lib/konpeki"_qs;
    EXPECT_EQ(基盤.表示文言(),
              (QStringList{u"データベースが使用できません。"_qs,
                           u"紺碧帳のフォルダツリーがありません: "_qs + 木の所 +
                               u"\n管理者が次のコマンドで作成します。\nsudo konpeki-make-tree "_qs +
                               木の所 + u" --slips 0"_qs}));
    EXPECT_EQ(画面.表示回数, 0);
}

TEST_F(起動, 設定データベースの無い木も無い木として示す) {
    ASSERT_TRUE(QFile::remove(木.環境DB()));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    const QStringList 文言 = 基盤.表示文言();
    ASSERT_EQ(文言.size(), 2);
    EXPECT_EQ(文言[0], u"データベースが使用できません。"_qs);
    EXPECT_TRUE(文言[1].startsWith(u"紺碧帳のフォルダツリーがありません: "_qs + 木.根() + u"\n"_qs))
        << 文言[1].toStdString();
}

// Root reads every file; a configuration database that is no file stands for one that the
// operator may not open.
TEST_F(起動, 開けない木はフォルダと利用者をグループに加えるコマンドを示し作り直させない) {
    ASSERT_TRUE(QFile::remove(木.環境DB()));
    ASSERT_TRUE(QDir().mkdir(木.環境DB()));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    const QStringList 文言 = 基盤.表示文言();
    ASSERT_EQ(文言.size(), 2);
    EXPECT_EQ(文言[0], u"データベースが使用できません。"_qs);
    EXPECT_EQ(文言[1], u"紺碧帳のフォルダツリーを読み書きできません: "_qs + 木.根() +
                           u"\n管理者が利用者をツリーのグループ (konpeki) に加えます。\n"
                           u"sudo adduser "_qs +
                           s.データ.接続().環境().端末利用者名 + u" konpeki"_qs);
}

TEST_F(起動, 書けない設定フォルダは開けない木として示す) {
    if (::geteuid() == 0) GTEST_SKIP() << "root writes every folder";
    const QString 設定 = 木.根() + u"/conf"_qs;
    ASSERT_TRUE(QFile::setPermissions(設定, QFile::ReadOwner | QFile::ExeOwner));
    const 起動結果 結果 = 起動処理.プログラム開始(QString());
    QFile::setPermissions(設定, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(結果, 起動結果::停止);
    const QStringList 文言 = 基盤.表示文言();
    ASSERT_FALSE(文言.isEmpty());
    EXPECT_TRUE(
        文言.last().startsWith(u"紺碧帳のフォルダツリーを読み書きできません: "_qs + 木.根()))
        << 文言.last().toStdString();
}

TEST_F(起動, 会社の行がなければユーザ情報の知らせで止まる) {
    ASSERT_TRUE(木.業務DB実行(u"DELETE FROM Mユーザ"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"ユーザ情報が使用できません。"_qs});
    EXPECT_EQ(履歴().last(), u"000000000002 終了"_qs);
}

TEST_F(起動, 知らない方言では何も開かずユーザ情報で止まる) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE データベース定義 SET db = 'Q'"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"ユーザ情報が使用できません。"_qs});
}

TEST_F(起動, 白樺の連携が開けなければ知らせて止まり終了行は書かない) {
    ASSERT_TRUE(木.業務DB実行(
        u"UPDATE M他業務連携 SET 業務名 = '白樺', 連携有無区分 = 1, 連携アプリフォルダ = '/nowhere' WHERE コード = '003'"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    // The link's configuration is missing: its own message comes first.
    const QStringList 文言 = 基盤.表示文言();
    ASSERT_EQ(文言.size(), 2);
    EXPECT_TRUE(文言[0].startsWith(u"連携syb_open ERROR"_qs));
    EXPECT_EQ(文言[1], u"白樺連携データベースが使用できません。"_qs);
    EXPECT_EQ(履歴(), QStringList{u"000000000001 開始 "_qs});
    EXPECT_TRUE(s.白樺連携フラグ);
}

TEST_F(起動, 連携の無い白樺の枠は開始を止めない) {
    ASSERT_TRUE(木.業務DB実行(
        u"UPDATE M他業務連携 SET 業務名 = '白樺', 連携有無区分 = 0 WHERE コード = '003'"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::稼動);
    EXPECT_FALSE(s.白樺連携フラグ);
}

TEST_F(起動, 手で起こした二つ目は黙って止まり開始行と終了行を残す) {
    起動処理.他に起動中 = [] { return true; };
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::停止);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(画面.表示回数, 0);
    EXPECT_EQ(履歴(), (QStringList{u"000000000001 開始 "_qs, u"000000000002 終了"_qs}));
}

TEST_F(起動, キーのある起動は他が動いていても進む) {
    起動処理.他に起動中 = [] { return true; };
    ASSERT_EQ(起動処理.プログラム開始(u"0002024040100000001"_qs), 起動結果::稼動);
    EXPECT_EQ(画面.表示回数, 1);
    EXPECT_TRUE(s.連携起動フラグ);
    EXPECT_FALSE(s.連携新規フラグ);
    EXPECT_EQ(s.見出し.事業所コード, u"000"_qs);
    EXPECT_EQ(履歴().first(), u"000000000001 開始 0002024040100000001"_qs);
}

TEST_F(起動, 連携新規は二つの旗を立て新規のまま) {
    ASSERT_EQ(起動処理.プログラム開始(u"0010000000000000000"_qs), 起動結果::稼動);
    EXPECT_TRUE(s.連携起動フラグ);
    EXPECT_TRUE(s.連携新規フラグ);
    EXPECT_TRUE(s.新規情報フラグ);
}

TEST_F(起動, 不正な行でも事業所は会期中の事業所として残り旗は通常) {
    ASSERT_EQ(起動処理.プログラム開始(u"00120240401"_qs), 起動結果::稼動);
    EXPECT_FALSE(s.連携起動フラグ);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(s.見出し.事業所コード, u"001"_qs);
}

TEST_F(起動, 空白だけの行は通常で何も写さない) {
    ASSERT_EQ(起動処理.プログラム開始(u"     "_qs), 起動結果::稼動);
    EXPECT_FALSE(s.連携起動フラグ);
    EXPECT_FALSE(s.連携新規フラグ);
    EXPECT_EQ(s.見出し.事業所コード, u"000"_qs);  // the workplace's, not from the line
}

TEST_F(起動, キー起動で伝票が読まれる) {
    試験伝票 t;
    t.出金No = u"00000004"_qs;
    t.出金日付 = u"20261101"_qs;
    t.番号基準日付 = u"20270331"_qs;
    t.行数 = 3;
    ASSERT_TRUE(伝票投入(木, t));
    ASSERT_EQ(起動処理.プログラム開始(u"0002027033100000004"_qs), 起動結果::稼動);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_EQ(s.見出し.出金日付, u"20261101"_qs);
    EXPECT_EQ(s.最終行, 2);
    EXPECT_EQ(s.見出し.担当者名, u"上田 健一"_qs);
}

TEST_F(起動, 無いキーの起動は黙って新規伝票になり連携の旗は立ったまま) {
    ASSERT_EQ(起動処理.プログラム開始(u"0002027033100000099"_qs), 起動結果::稼動);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_TRUE(s.連携起動フラグ);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(s.見出し.出金日付, u"20261122"_qs);
    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
}

TEST_F(起動, 零の基準日付と零でない番号は文字通りのキーで探し新規で終わる) {
    ASSERT_EQ(起動処理.プログラム開始(u"0010000000000000005"_qs), 起動結果::稼動);
    EXPECT_TRUE(s.連携起動フラグ);
    EXPECT_FALSE(s.連携新規フラグ);
    EXPECT_TRUE(s.新規情報フラグ);
    const auto 閲覧 = 木.業務DB行(u"SELECT 伝票番号基準日付, 伝票No FROM T閲覧"_qs);
    ASSERT_EQ(閲覧.size(), 1);
    EXPECT_EQ(閲覧[0][0].toString(), u"00000000"_qs);
    EXPECT_EQ(閲覧[0][1].toString(), u"00000005"_qs);
}

TEST_F(起動, 連携新規は日付と担当者の新規伝票を開く) {
    ASSERT_EQ(起動処理.プログラム開始(u"00000000000000000002026111500005"_qs), 起動結果::稼動);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(s.見出し.出金日付, u"20261115"_qs);
    EXPECT_EQ(s.見出し.担当者コード, u"00005"_qs);
    EXPECT_EQ(s.見出し.担当者名, u"大野 大輔"_qs);
    EXPECT_EQ(s.見出し.部門コード, u"003"_qs);
    EXPECT_EQ(s.見出し.部門名, u"営業部"_qs);
    EXPECT_EQ(s.見出し.セクション名, u"営業一課"_qs);
}

TEST_F(起動, 連携新規でその日その担当者の伝票があれば最も若い番号を訂正に開く) {
    for (const char16_t* No : {u"00000007", u"00000003"}) {
        試験伝票 t;
        t.事業所コード = u"002"_qs;  // the office is not tested
        t.出金No = QString::fromUtf16(No);
        t.出金日付 = u"20261115"_qs;
        t.番号基準日付 = u"20270331"_qs;
        t.担当者コード = u"00005"_qs;
        ASSERT_TRUE(伝票投入(木, t));
    }
    ASSERT_EQ(起動処理.プログラム開始(u"00000000000000000002026111500005"_qs), 起動結果::稼動);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(s.見出し.出金No, u"00000003"_qs);
    EXPECT_EQ(s.見出し.事業所コード, u"002"_qs);
    EXPECT_EQ(s.最終行, 1);
}

TEST_F(起動, 連携新規の零の日付は今日になる) {
    ASSERT_EQ(起動処理.プログラム開始(u"00000000000000000000000000000005"_qs), 起動結果::稼動);
    EXPECT_EQ(s.見出し.出金日付, u"20261122"_qs);
    EXPECT_EQ(s.見出し.担当者コード, u"00005"_qs);
}

// The command line's date lies in the period before today's, whose counter stands elsewhere:
// only a clear that goes back to today and derives the number again shows today's proposal.
class 連携新規の担当者なし : public 起動, public ::testing::WithParamInterface<const char16_t*> {};

TEST_P(連携新規の担当者なし, 今日の素の新規伝票になり行の日付は捨てられる) {
    ASSERT_TRUE(木.業務DB実行(
        u"INSERT INTO A期日別番号情報 VALUES ('16810', '20260331', '00000005', '00000000')"_qs));
    ASSERT_TRUE(木.業務DB実行(
        u"INSERT INTO A期日別番号情報 VALUES ('16810', '20270331', '00000002', '00000000')"_qs));
    const QString 行 = u"001000000000000000020260315"_qs + QString::fromUtf16(GetParam());
    ASSERT_EQ(起動処理.プログラム開始(行), 起動結果::稼動);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_TRUE(s.連携起動フラグ);
    EXPECT_TRUE(s.連携新規フラグ);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(s.見出し.担当者コード, QString());
    EXPECT_EQ(s.見出し.担当者名, QString());
    EXPECT_EQ(s.見出し.事業所コード, u"001"_qs);
    EXPECT_EQ(s.見出し.出金日付, u"20261122"_qs);
    EXPECT_EQ(s.見出し.出金日付年 + s.見出し.出金日付月 + s.見出し.出金日付日, u"20261122"_qs);
    EXPECT_EQ(s.見出し.番号基準日付, u"20270331"_qs);
    EXPECT_EQ(s.見出し.出金No, u"00000003"_qs);
    EXPECT_EQ(s.見出し.会計集計日付, 集計日付計算(s.データ.会社設定().会社(), u"20261122"_qs));
}

// 00012 works at office 001 and has left; 99999 is no one.
INSTANTIATE_TEST_SUITE_P(担当者, 連携新規の担当者なし, ::testing::Values(u"00012", u"99999"),
                         [](const auto& i) { return QString::fromUtf16(i.param).toStdString(); });

// The same start with a present staff member keeps the date of the command line.
TEST_F(起動, 連携新規で担当者が在籍なら行の日付の系列から番号を出す) {
    ASSERT_TRUE(木.業務DB実行(
        u"INSERT INTO A期日別番号情報 VALUES ('16810', '20260331', '00000005', '00000000')"_qs));
    ASSERT_EQ(起動処理.プログラム開始(u"00100000000000000002026031500008"_qs), 起動結果::稼動);
    EXPECT_EQ(s.見出し.出金日付, u"20260315"_qs);
    EXPECT_EQ(s.見出し.番号基準日付, u"20260331"_qs);
    EXPECT_EQ(s.見出し.出金No, u"00000006"_qs);
    EXPECT_EQ(s.見出し.担当者名, u"工藤 直樹"_qs);
}

// The office of the workplace with its own counters, so that the proposal tells whose it is.
class 作業事業所 : public 起動 {
  protected:
    void 事業所別の番号() {
        ASSERT_TRUE(木.業務DB実行(u"UPDATE Mユーザ SET 伝票番号管理区分 = 1"_qs));
        ASSERT_TRUE(木.業務DB実行(
            u"INSERT INTO A事業所別期日別番号情報 VALUES ('000', '16810', '20270331', '00000007', '00000000')"_qs));
        ASSERT_TRUE(木.業務DB実行(
            u"INSERT INTO A事業所別期日別番号情報 VALUES ('001', '16810', '20270331', '00000041', '00000000')"_qs));
    }
    bool 担当者あり(const QString& コード) {
        const bool あり = s.担当者検索(コード);
        s.担当者検索破棄();
        return あり;
    }
};

TEST_F(作業事業所, 本社で手で起こすと伝票は本社のもので本社の系列から番号を出す) {
    ASSERT_NO_FATAL_FAILURE(事業所別の番号());
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::稼動);
    EXPECT_EQ(s.データ.接続().作業事業所コード(), u"000"_qs);
    EXPECT_EQ(s.見出し.事業所コード, u"000"_qs);
    EXPECT_EQ(s.見出し.番号基準日付, u"20270331"_qs);
    EXPECT_EQ(s.見出し.出金No, u"00000008"_qs);
    // The head office finds staff of every office.
    EXPECT_TRUE(担当者あり(u"00008"_qs));
    EXPECT_TRUE(担当者あり(u"00010"_qs));
}

TEST_F(作業事業所, 支店で手で起こすと伝票は支店のもので支店の系列から番号を出す) {
    ASSERT_NO_FATAL_FAILURE(事業所別の番号());
    ASSERT_TRUE(木.環境DB実行(u"UPDATE 動作環境定義 SET 運用事業所コード = '001'"_qs));
    ASSERT_EQ(起動処理.プログラム開始(QString()), 起動結果::稼動);
    EXPECT_EQ(s.データ.接続().作業事業所コード(), u"001"_qs);
    EXPECT_EQ(s.見出し.事業所コード, u"001"_qs);
    EXPECT_EQ(s.見出し.出金No, u"00000042"_qs);
    EXPECT_TRUE(担当者あり(u"00008"_qs));   // the branch's own
    EXPECT_TRUE(担当者あり(u"00003"_qs));   // the head office's
    EXPECT_FALSE(担当者あり(u"00010"_qs));  // another branch's
    EXPECT_FALSE(担当者あり(u"00012"_qs));  // the branch's, left

    // A clear keeps the office and proposes from its counter again.
    s.見出し.出金No = u"00000099"_qs;
    s.出金情報初期化();
    EXPECT_EQ(s.見出し.事業所コード, u"001"_qs);
    EXPECT_EQ(s.見出し.出金No, u"00000042"_qs);
}

TEST_F(作業事業所, 支店でも行の事業所が伝票の事業所になる) {
    ASSERT_TRUE(木.環境DB実行(u"UPDATE 動作環境定義 SET 運用事業所コード = '001'"_qs));
    ASSERT_EQ(起動処理.プログラム開始(u"00200000000000000002026111500010"_qs), 起動結果::稼動);
    EXPECT_EQ(s.見出し.事業所コード, u"002"_qs);
    EXPECT_EQ(s.見出し.担当者名, u"斉藤 誠"_qs);
    s.出金情報初期化();
    EXPECT_EQ(s.見出し.事業所コード, u"002"_qs);
}

TEST(二重起動検査, 印は生きている間だけ置かれ自分のものは他と数えない) {
    QTemporaryDir t;
    QStringList 印;
    {
        二重起動検査 検査(t.path(), u"/tree/prgbin"_qs, u"user"_qs);
        EXPECT_FALSE(検査.他に起動中());
        EXPECT_FALSE(検査.他に起動中());
        const QStringList 印フォルダ = QDir(t.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        ASSERT_EQ(印フォルダ.size(), 1);
        印 = QDir(t.path() + u'/' + 印フォルダ[0]).entryList(QDir::Files);
        EXPECT_EQ(印,
                  QStringList{QString::number(QCoreApplication::applicationPid()) + u".lock"_qs});
        二重起動検査 別の木(t.path(), u"/other/prgbin"_qs, u"user"_qs);
        二重起動検査 別の人(t.path(), u"/tree/prgbin"_qs, u"other"_qs);
        EXPECT_EQ(QDir(t.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 3);
    }
    for (const QString& 印フォルダ : QDir(t.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        EXPECT_TRUE(QDir(t.path() + u'/' + 印フォルダ).entryList(QDir::Files).isEmpty());
    }
}

// The real program on a real tree, with temporary files of its own so that marks of other
// runs on this machine do not count.
class 実行ファイル : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み);
        ASSERT_TRUE(一時.isValid());
        const QString 元 = QStringLiteral(KONPEKI_BINARY_DIR) + u"/src/app/紺碧帳"_qs;
        ASSERT_TRUE(QFile::copy(元, プログラム()));
    }
    void TearDown() override {
        for (auto& p : 常駐) {
            p->kill();
            p->waitForFinished(10000);
        }
    }

    QString プログラム() const { return 木.プログラムフォルダ() + u"/紺碧帳"_qs; }

    std::unique_ptr<QProcess> 起こす(const QStringList& 引数, bool 表示後に閉じる) {
        auto p = std::make_unique<QProcess>();
        auto env = QProcessEnvironment::systemEnvironment();
        env.insert(u"QT_QPA_PLATFORM"_qs, u"offscreen"_qs);
        env.insert(u"TMPDIR"_qs, 一時.path());
        env.remove(u"KONPEKI_CLOSE_WHEN_SHOWN"_qs);
        env.remove(u"KONPEKI_SCREENSHOT"_qs);
        if (表示後に閉じる) env.insert(u"KONPEKI_CLOSE_WHEN_SHOWN"_qs, u"1"_qs);
        p->setProcessEnvironment(env);
        p->start(プログラム(), 引数);
        return p;
    }

    // Runs the program to its end and answers what it printed.
    QString 走らせる(const QStringList& 引数) {
        auto p = 起こす(引数, true);
        EXPECT_TRUE(p->waitForFinished(30000));
        EXPECT_EQ(p->exitCode(), 0);
        return QString::fromUtf8(p->readAllStandardOutput());
    }

    // Starts the program and leaves it up; returns once its start row is written, by which
    // time its mark is held.
    void 常駐させる(const QStringList& 引数) {
        const qsizetype 前 = 履歴().size();
        常駐.push_back(起こす(引数, false));
        QProcess& p = *常駐.back();
        for (int i = 0; i < 600 && 履歴().size() == 前; ++i) {
            ASSERT_FALSE(p.waitForFinished(50)) << "the program ended before its start";
        }
        ASSERT_EQ(履歴().size(), 前 + 1) << "no start row";
    }

    // The start and end rows of every run in the order written (each run counts from 1, so
    // the counter orders one run only); traces of statements left out.
    QStringList 履歴() {
        QStringList r;
        for (const auto& 行 :
             木.環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴 ORDER BY rowid"_qs)) {
            const QString 摘要 = 行[0].toString();
            if (摘要.startsWith(u"開始"_qs) || 摘要.startsWith(u"終了"_qs)) r.append(摘要);
        }
        return r;
    }

    試験用ツリー 木;
    QTemporaryDir 一時;
    std::vector<std::unique_ptr<QProcess>> 常駐;
};

TEST_F(実行ファイル, 見本の木で窓を出し閉じると開始と終了を残す) {
    const QString 出力 = 走らせる({});
    const QString 会社名 =
        木.業務DB行(u"SELECT 名称 FROM Mユーザ WHERE ID = '0001'"_qs)[0][0].toString();
    EXPECT_TRUE(出力.startsWith(u"shown "_qs + 会社名 + u"（紺碧帳）"_qs)) << 出力.toStdString();
    EXPECT_EQ(履歴(), (QStringList{u"開始 "_qs, u"終了"_qs}));
}

TEST_F(実行ファイル, 連携で動いている間の手の起動は黙って止まり開始と終了を残す) {
    ASSERT_NO_FATAL_FAILURE(常駐させる({u"0002024040100000001"_qs}));
    const QString 出力 = 走らせる({});
    EXPECT_FALSE(出力.contains(u"shown"_qs)) << 出力.toStdString();
    EXPECT_EQ(履歴(), (QStringList{u"開始 0002024040100000001"_qs, u"開始 "_qs, u"終了"_qs}));

    // A run that ended without a word leaves a mark that no longer counts.
    常駐.back()->kill();
    ASSERT_TRUE(常駐.back()->waitForFinished(10000));
    EXPECT_TRUE(走らせる({}).startsWith(u"shown "_qs));
}

TEST_F(実行ファイル, 手で動いている横でも連携の起動は進み二つ目の手の起動は止まる) {
    ASSERT_NO_FATAL_FAILURE(常駐させる({}));
    EXPECT_TRUE(走らせる({u"0002024040100000001"_qs}).startsWith(u"shown "_qs));
    EXPECT_FALSE(走らせる({}).contains(u"shown"_qs));
    EXPECT_EQ(履歴(), (QStringList{u"開始 "_qs, u"開始 0002024040100000001"_qs, u"終了"_qs,
                                   u"開始 "_qs, u"終了"_qs}));
}

// On SQLite alone the program maps no PostgreSQL client library, nor what that brings with it.
TEST_F(実行ファイル, ファイルの木ではPostgreSQLの庫を読み込まない) {
    ASSERT_NO_FATAL_FAILURE(常駐させる({}));
    QFile 地図(u"/proc/"_qs + QString::number(常駐.back()->processId()) + u"/maps"_qs);
    ASSERT_TRUE(地図.open(QIODevice::ReadOnly));
    const QByteArray 中身 = 地図.readAll();
    EXPECT_TRUE(中身.contains("libsqlite3")) << 中身.toStdString();
    EXPECT_FALSE(中身.contains("libpq.so")) << 中身.toStdString();
    EXPECT_FALSE(中身.contains("libkrb5")) << 中身.toStdString();
}

// A sibling passes the fixed positions as one argument; the blank date keeps the staff code at
// position 28.
TEST_F(実行ファイル, 一つの引数の中の空白は位置として残る) {
    const QString 行 = u"001"_qs + u"00000000"_qs + u"00000000"_qs + u"        "_qs + u"00003"_qs;
    const QString 出力 = 走らせる({行});
    EXPECT_TRUE(出力.contains(u"\nslip 001|00003\n"_qs)) << 出力.toStdString();
    EXPECT_EQ(履歴(), (QStringList{u"開始 "_qs + 行, u"終了"_qs}));
}

// Several arguments are joined by one blank each: the same fields split into arguments move
// the staff code out of place, and a code that is no one gives no staff.
TEST_F(実行ファイル, 幾つもの引数は一つの空白でつながる) {
    const QString 出力 = 走らせる({u"0010000000000000000"_qs, u"20261115"_qs, u"00003"_qs});
    EXPECT_TRUE(出力.contains(u"\nslip 001|\n"_qs)) << 出力.toStdString();
    EXPECT_EQ(履歴().first(), u"開始 0010000000000000000 20261115 00003"_qs);
}

}  // namespace
