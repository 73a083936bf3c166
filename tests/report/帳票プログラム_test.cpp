#include <QFile>
#include <QImage>
#include <QProcess>

#include "screen/frm紺碧帳.h"
#include "帳票試験.h"

namespace {

// The scripted operator, but a program start that really runs the program, to its end.
class 実起動基盤 : public 台本プラットフォーム {
  public:
    bool プログラム起動(const QString& プログラム, const QStringList& 引数,
                        const QString& 作業フォルダ) override {
        台本プラットフォーム::プログラム起動(プログラム, 引数, 作業フォルダ);
        QProcess p;
        p.setWorkingDirectory(作業フォルダ);
        p.start(プログラム, 引数);
        if (!p.waitForStarted()) return false;
        p.waitForFinished(60000);
        終了コード = p.exitCode();
        return true;
    }
    int 終了コード = -1;
};

// The slip program's PDF command on a stored slip, with the real report program in prgbin.
class 帳票プログラム : public 帳票試験 {};

TEST_P(帳票プログラム, PDF出力は本物の紺碧帳書を起こし待った後にPDFの行が一覧に載る) {
    const QString No = 保存する(3);
    const QString 先 = 木->プログラムフォルダ() + u"/紺碧帳書"_qs;
    ASSERT_TRUE(QFile::copy(QStringLiteral(KONPEKI_REPORT_PROGRAM), 先));
    QFile 様式(木->根() + u"/report/repfrmdb.db"_qs);
    ASSERT_TRUE(様式.open(QIODevice::WriteOnly));
    様式.close();

    実起動基盤 画面基盤;
    画面基盤.時刻 = 基盤.時刻;
    出金セッション 画面側(画面基盤);
    出金セッション準備(画面側, *木);
    frm紺碧帳 f(画面側);
    f.画面読込([&] { 画面側.出金情報初期化(); });
    f.画面.操作_入力(f.画面(u"出金No"_qs), No);
    f.画面.操作_Tab();
    ASSERT_FALSE(画面側.新規情報フラグ);
    EXPECT_FALSE(f.画面(u"btn_付属書類削除"_qs).Enabled);

    画面基盤.回答.enqueue(応答::はい);
    f.画面.操作_クリック(f.画面(u"btn_帳票イメージ出力"_qs));
    EXPECT_EQ(画面基盤.表示文言(), QStringList{u"PDFを作成しますか?"_qs});
    ASSERT_EQ(画面基盤.起動済み.size(), 1);
    EXPECT_EQ(画面基盤.起動済み[0].引数, QStringList{引数(u"3"_qs, No)});
    EXPECT_EQ(画面基盤.終了コード, 0);
    const QString PDF = 文書フォルダ() + u"/出金伝票_000_20260331_"_qs + No + u".pdf"_qs;
    ASSERT_TRUE(QFile::exists(PDF));
    EXPECT_EQ(PDF頁数(PDF), 1);
    EXPECT_TRUE(PDF文字(PDF).contains(u"摘要その3"_qs));
    const auto 行 = 付属書類();
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][1].toString(), u"00020260331"_qs + No);
    EXPECT_EQ(行[0][3].toString(), PDF);
    // The list read again after the wait shows the PDF, and it can be removed.
    EXPECT_EQ(画面基盤.待機合計, 1510);
    const auto& 項目 = f.画面(u"List付属書類"_qs).項目;
    ASSERT_EQ(項目.size(), 1);
    EXPECT_EQ(項目[0].Text, u"出金伝票_000_20260331_"_qs + No);
    EXPECT_EQ(項目[0].Key, u"C00020260331"_qs + No + u"001"_qs);
    EXPECT_TRUE(項目[0].SubItems.value(0).endsWith(u"KB"_qs));
    EXPECT_TRUE(f.画面(u"btn_付属書類削除"_qs).Enabled);
}

TEST_P(帳票プログラム, プレビュは本物の紺碧帳書が一頁を窓に出し何も書かない) {
    const QString No = 保存する(15);
    const QString 先 = 木->プログラムフォルダ() + u"/紺碧帳書"_qs;
    ASSERT_TRUE(QFile::copy(QStringLiteral(KONPEKI_REPORT_PROGRAM), 先));
    const QString 写真 =
        成果物(u"印刷プレビュー_"_qs + (GetParam() ? u"PostgreSQL"_qs : u"SQLite"_qs) + u".png"_qs);
    QFile::remove(写真);
    QProcess p;
    auto env = QProcessEnvironment::systemEnvironment();
    env.insert(u"KONPEKI_SCREENSHOT"_qs, 写真);
    p.setProcessEnvironment(env);
    p.start(先, {引数(u"1"_qs, No)});
    ASSERT_TRUE(p.waitForFinished(60000));
    EXPECT_EQ(p.exitCode(), 0);
    const QImage 絵(写真);
    ASSERT_FALSE(絵.isNull());
    EXPECT_GT(絵.width(), 600);
    EXPECT_TRUE(文書().isEmpty());
    EXPECT_TRUE(付属書類().isEmpty());
}

KONPEKI_両エンジンで(帳票プログラム);

}  // namespace
