#include <QFile>
#include <QImage>

#include "report/出金伝票描画.h"
#include "report/紺碧帳書.h"
#include "帳票試験.h"

namespace {

// The report program's logic in this process: its own session on the tree, its messages on a
// scripted platform of its own.
class 紺碧帳書試験 : public 帳票試験 {
  protected:
    int 実行(const QString& 引数) {
        帳書 = std::make_unique<紺碧帳書>(帳書基盤, 木->プログラムフォルダ());
        帳書->印刷 = [this](const 出金伝票帳票& b) {
            印刷した.append(b.出金No);
            return true;
        };
        帳書->プレビュー = [this](const 出金伝票帳票& b) {
            見せた.append(b.出金No);
            return true;
        };
        return 帳書->実行(引数);
    }
    // Nothing written: no file in the document folder and no document row.
    void 何も書かない() {
        EXPECT_TRUE(文書().isEmpty()) << 文書().join(u' ').toStdString();
        EXPECT_TRUE(付属書類().isEmpty());
    }

    台本プラットフォーム 帳書基盤;
    std::unique_ptr<紺碧帳書> 帳書;
    QStringList 印刷した, 見せた;
};

TEST_P(紺碧帳書試験, PDFは一頁に番号と担当者と各行と合計を書き伝票の付属書類に登録する) {
    const QString No = 保存する(15);
    const 出金合計 合計 = s.合計;
    ASSERT_EQ(実行(引数(u"3"_qs, No)), 0) << 帳書基盤.表示文言().join(u' ').toStdString();
    EXPECT_TRUE(帳書基盤.表示済み.isEmpty());
    const QString 基準 = u"20260331"_qs;
    const QString パス = 文書フォルダ() + u"/出金伝票_000_"_qs + 基準 + u"_"_qs + No + u".pdf"_qs;
    EXPECT_EQ(帳書->PDFパス, パス);
    ASSERT_TRUE(QFile::exists(パス));
    EXPECT_EQ(PDF頁数(パス), 1);

    const QString 文字 = PDF文字(パス);
    EXPECT_TRUE(文字.contains(No));
    EXPECT_TRUE(文字.contains(u"上田 健一"_qs)) << 文字.toStdString();
    EXPECT_TRUE(文字.contains(u"株式会社紺碧商事"_qs));
    for (int i = 0; i < 15; ++i) {
        EXPECT_TRUE(文字.contains(u"摘要その"_qs + QString::number(i + 1))) << i;
        EXPECT_TRUE(文字.contains(額(s.行[i].出金金額))) << 額(s.行[i].出金金額).toStdString();
    }
    EXPECT_TRUE(文字.contains(額(合計.出金金額合計)));
    EXPECT_TRUE(文字.contains(額(合計.出金消費税合計)));
    EXPECT_TRUE(文字.contains(額(合計.実質出金金額合計)));
    QFile::remove(成果物(u"出金伝票.pdf"_qs));
    QFile::copy(パス, 成果物(u"出金伝票.pdf"_qs));

    const auto 行 = 付属書類();
    ASSERT_EQ(行.size(), 1);
    QStringList 値;
    for (const auto& v : 行[0]) 値 << v.toString();
    const QString 識別 = u"000"_qs + 基準 + No;
    EXPECT_EQ(値, (QStringList{u"紺碧帳"_qs, 識別, u"001"_qs, パス,
                               u"出金伝票_000_"_qs + 基準 + u"_"_qs + No, u"16810"_qs, No,
                               u"20251120"_qs, u"00003"_qs}));
    // The copy that the slip's list shows, beside the PDF itself.
    EXPECT_TRUE(QFile::exists(文書フォルダ() + u"/紺碧帳_"_qs + 識別 + u"_001_出金伝票_000_"_qs +
                              基準 + u"_"_qs + No + u".pdf"_qs));
}

TEST_P(紺碧帳書試験, 同じ伝票の二度目のPDFは次の連番で登録する) {
    const QString No = 保存する(2);
    ASSERT_EQ(実行(引数(u"3"_qs, No)), 0);
    ASSERT_EQ(実行(引数(u"3"_qs, No)), 0);
    const auto 行 = 付属書類();
    ASSERT_EQ(行.size(), 2);
    EXPECT_EQ(行[1][2].toString(), u"002"_qs);
}

TEST_P(紺碧帳書試験, 印刷とプレビュは読んだ伝票を渡しPDFも行も作らない) {
    const QString No = 保存する(3);
    EXPECT_EQ(実行(引数(u"0"_qs, No)), 0);
    EXPECT_EQ(帳書->帳票.明細.size(), 3);
    EXPECT_EQ(帳書->帳票.担当者名, u"上田 健一"_qs);
    EXPECT_EQ(帳書->帳票.明細[2].摘要, u"摘要その3"_qs);
    EXPECT_EQ(実行(引数(u"1"_qs, No)), 0);
    EXPECT_EQ(印刷した, QStringList{No});
    EXPECT_EQ(見せた, QStringList{No});
    何も書かない();
}

TEST_P(紺碧帳書試験, 壊れた引数は理由を告げて終了コード1で何も書かない) {
    保存する(1);
    EXPECT_EQ(実行(u"000320251120"_qs), 1);
    ASSERT_EQ(帳書基盤.表示済み.size(), 1);
    EXPECT_TRUE(帳書基盤.表示済み[0].本文.startsWith(u"帳票の指定が正しくありません。"_qs));
    EXPECT_TRUE(帳書基盤.表示済み[0].題名.isEmpty());
    何も書かない();
}

TEST_P(紺碧帳書試験, 登録されていない伝票は告げて終了コード1で何も書かない) {
    const QString No = 保存する(1);
    EXPECT_EQ(実行(引数(u"3"_qs, u"00000099"_qs)), 1);
    ASSERT_EQ(帳書基盤.表示済み.size(), 1);
    EXPECT_TRUE(帳書基盤.表示済み[0].本文.startsWith(u"伝票が登録されていません。"_qs));
    // The same number on another date, or of another staff member, is not this slip.
    EXPECT_EQ(実行(帳票引数(u"000"_qs, u"3"_qs, u"20251121"_qs, No, u"00003"_qs)), 1);
    EXPECT_EQ(実行(引数(u"3"_qs, No, u"00001"_qs)), 1);
    何も書かない();
}

TEST_P(紺碧帳書試験, 文書フォルダがなければ告げて登録しない) {
    const QString No = 保存する(1);
    ASSERT_TRUE(木->業務DB実行(u"UPDATE Mユーザ SET ドキュメントフォルダ = ''"_qs));
    EXPECT_EQ(実行(引数(u"3"_qs, No)), 1);
    EXPECT_EQ(
        帳書基盤.表示文言(),
        QStringList{u"ドキュメントフォルダが設定されていません。\nPDFは作成しませんでした。"_qs});
    何も書かない();
    // A folder that cannot exist: the PDF is not written and no row points at it.
    QFile 塞ぐ(木->根() + u"/塞ぐ"_qs);
    ASSERT_TRUE(塞ぐ.open(QIODevice::WriteOnly));
    塞ぐ.close();
    ASSERT_TRUE(木->業務DB実行(u"UPDATE Mユーザ SET ドキュメントフォルダ = '"_qs + 木->根() +
                               u"/塞ぐ/文書'"_qs));
    EXPECT_EQ(実行(引数(u"3"_qs, No)), 1);
    EXPECT_TRUE(帳書基盤.表示文言().last().startsWith(u"PDFを書き込めませんでした。"_qs));
    何も書かない();
}

TEST_P(紺碧帳書試験, 頁の絵は十五行の表と合計を描く) {
    const QString No = 保存する(15);
    ASSERT_EQ(実行(引数(u"0"_qs, No)), 0);
    const QImage 絵 = 出金伝票画像(帳書->帳票, 100);
    EXPECT_EQ(絵.width(), 827);
    EXPECT_EQ(絵.height(), 1169);
    ASSERT_TRUE(絵.save(
        成果物(u"出金伝票_"_qs + (GetParam() ? u"PostgreSQL"_qs : u"SQLite"_qs) + u".png"_qs)));
    // Ink in the line table (15 rows from about 55 mm down) and in the totals under it.
    const auto 墨 = [&](int 上mm, int 下mm) {
        int n = 0;
        for (int y = 上mm * 100 * 10 / 254; y < 下mm * 100 * 10 / 254; ++y) {
            for (int x = 0; x < 絵.width(); ++x) n += qGray(絵.pixel(x, y)) < 128;
        }
        return n;
    };
    EXPECT_GT(墨(62, 160), 20000);
    EXPECT_GT(墨(166, 176), 1000);
    // An empty slip leaves its rows blank: less ink where the lines stood.
    出金伝票帳票 空 = 帳書->帳票;
    空.明細.clear();
    const QImage 空の絵 = 出金伝票画像(空, 100);
    int 差 = 0;
    for (int y = 0; y < 絵.height(); ++y) {
        for (int x = 0; x < 絵.width(); ++x) 差 += 絵.pixel(x, y) != 空の絵.pixel(x, y);
    }
    EXPECT_GT(差, 10000);
}

KONPEKI_両エンジンで(紺碧帳書試験);

}  // namespace
