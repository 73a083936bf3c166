#include "ledger/frm紺碧帳出力.h"

#include "ledger/仕訳出力試験.h"
#include "ledger/弥生読取.h"
#include "lists/wnd支払先登録.h"

namespace {

using 欄 = 出力画面部品;

// The export window over the sample tree as 紺碧帳出力 shows it when started without arguments;
// the operator works its model, the window's redraws during a run are recorded.
class 出力画面 : public 仕訳出力試験 {
  protected:
    void SetUp() override {
        仕訳出力試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        保存する(u"20251103"_qs, {{3, 1000, u"文具の青葉堂"_qs, u"コピー用紙"_qs}});
        保存する(u"20251110"_qs, {{1, 12000, u"JR東日本"_qs, u"新幹線"_qs},
                                  {8, 200, u"港区役所"_qs, u"印紙代"_qs}});
        保存する(u"20251031"_qs, {{3, 2000, u"家電のみどり"_qs, u"USBメモリ"_qs}});
        保存する(u"20251120"_qs, {{4, 880, u"喫茶こもれび"_qs, u"打合せ"_qs}});
    }
    void 開く() {
        出力 = std::make_unique<紺碧帳出力>(基盤, 木->プログラムフォルダ());
        画面 = std::make_unique<frm紺碧帳出力>(*出力);
        支払先登録 = std::make_unique<wnd支払先登録>(出力->s, 画面->画面);
        画面->閉じる = [this] { ++閉じた; };
        画面->途中表示 = [this] {
            途中.append(c(欄::pgb_進捗).Value);
            途中の出力可否.append(c(欄::btn_出力).Enabled);
        };
        画面->読込();
    }
    部品& c(部品名 名前, int 添字 = -1) { return 画面->画面(名前, 添字); }
    void 押す(部品名 名前, int 添字 = -1) { 画面->画面.操作_クリック(c(名前, 添字)); }
    void 打つ(部品名 名前, const QString& 文字列) { 画面->画面.操作_入力(c(名前), 文字列); }
    QString 結果() { return c(欄::lab_結果).Caption; }
    QStringList 履歴() {
        QStringList r;
        for (
            const auto& 行 : 木->環境DB行(
                u"SELECT 摘要 FROM プログラム稼動履歴 WHERE プログラムID = '紺碧帳出力' ORDER BY proccounter"_qs))
            r << 行[0].toString().section(u' ', 0, 0);
        return r;
    }

    std::unique_ptr<紺碧帳出力> 出力;
    std::unique_ptr<frm紺碧帳出力> 画面;
    std::unique_ptr<wnd支払先登録> 支払先登録;
    int 閉じた = 0;
    QList<int> 途中;
    QList<bool> 途中の出力可否;
};

TEST_P(出力画面, 開くと今月の全事業所を弥生形式で出す案で出力すると進捗と件数と合計を示す) {
    開く();
    EXPECT_EQ(c(欄::開始日).Text, u"20251101"_qs);
    EXPECT_EQ(c(欄::終了日).Text, u"20251130"_qs);
    EXPECT_EQ(c(欄::事業所コード).Text, u"000"_qs);
    EXPECT_EQ(c(欄::opb_形式, 0).Value, 1);
    EXPECT_EQ(c(欄::opb_形式, 1).Value, 0);
    EXPECT_EQ(画面->画面.フォーカス(), &c(欄::開始日));
    打つ(欄::出力先, 出力先());
    押す(欄::btn_出力);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_TRUE(結果().startsWith(u"伝票 3 件\n明細 4 行\n借方金額合計 14,180 円"_qs))
        << 結果().toStdString();
    EXPECT_TRUE(結果().endsWith(u"円\n→ "_qs + 出力先()));
    EXPECT_EQ(結果().count(u'\n'), 4);
    EXPECT_EQ(c(欄::pgb_進捗).Max, 3);
    EXPECT_EQ(c(欄::pgb_進捗).Value, 3);
    // Drawn after each slip while the commands stood disabled, enabled again at the end.
    EXPECT_EQ(途中, (QList<int>{1, 2, 3}));
    EXPECT_EQ(途中の出力可否, (QList<bool>{false, false, false}));
    EXPECT_TRUE(c(欄::btn_出力).Enabled);
    QList<弥生読取行> 行;
    QString エラー;
    ASSERT_TRUE(弥生ファイル読取(出力先(), 行, エラー)) << エラー.toStdString();
    ASSERT_EQ(行.size(), 4);
    EXPECT_EQ(行[0].項目[3], u"2025/11/03"_qs);
    EXPECT_EQ(行[3].項目[3], u"2025/11/20"_qs);
    押す(欄::btn_終了);
    EXPECT_EQ(閉じた, 1);
    EXPECT_EQ(履歴(), (QStringList{u"開始"_qs, u"出力終了"_qs, u"終了"_qs}));
}

TEST_P(出力画面, 形式と事業所と期間を選び直して一つの窓で何度でも出せる) {
    保存する(u"20251105"_qs, {{3, 3000, u"文具の青葉堂"_qs, u"大阪"_qs}}, u"001"_qs);
    開く();
    打つ(欄::出力先, 出力先());
    押す(欄::opb_形式, 1);
    EXPECT_EQ(c(欄::opb_形式, 0).Value, 0);
    打つ(欄::事業所コード, u"1"_qs);
    押す(欄::btn_出力);
    EXPECT_TRUE(結果().startsWith(u"伝票 1 件\n明細 1 行\n借方金額合計 3,300 円"_qs))
        << 結果().toStdString();
    const QString 中身 = QString::fromUtf8(出力内容());
    EXPECT_TRUE(中身.startsWith(u"事業所コード,番号基準日付,出金No"_qs));
    EXPECT_TRUE(中身.contains(u"大阪"_qs));

    打つ(欄::事業所コード, u"000"_qs);
    打つ(欄::開始日, u"20251001"_qs);
    押す(欄::btn_出力);
    EXPECT_TRUE(結果().startsWith(u"伝票 5 件\n明細 6 行"_qs)) << 結果().toStdString();
    押す(欄::btn_終了);
    EXPECT_EQ(履歴(), (QStringList{u"開始"_qs, u"出力終了"_qs, u"出力終了"_qs, u"終了"_qs}));
}

// The window refuses in the command line's words, in its result; nothing is written and no box
// comes up.
TEST_P(出力画面, 誤った選択と出せない伝票は結果に理由を示し何も書かない) {
    開く();
    打つ(欄::出力先, 出力先());
    打つ(欄::終了日, u"20251131"_qs);
    押す(欄::btn_出力);
    EXPECT_EQ(結果(), u"期間は --from と --to に YYYYMMDD の日付で指定してください。"_qs);
    EXPECT_EQ(c(欄::pgb_進捗).Value, 0);

    打つ(欄::終了日, u"20251130"_qs);
    打つ(欄::出力先, QString());
    押す(欄::btn_出力);
    EXPECT_EQ(結果(), u"出力先のファイルを --out で指定してください。"_qs);

    ASSERT_TRUE(木->業務DB実行(u"DELETE FROM K紺碧勘定対応 WHERE 費目区分 = '04'"_qs));
    打つ(欄::出力先, 出力先());
    押す(欄::btn_出力);
    EXPECT_EQ(結果(),
              u"勘定科目の対応がない費目区分があります。何も出力しませんでした。\n04 会議費"_qs);
    EXPECT_TRUE(c(欄::btn_出力).Enabled);
    EXPECT_FALSE(QFile::exists(出力先()));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    押す(欄::btn_終了);
    EXPECT_EQ(履歴(), (QStringList{u"開始"_qs, u"終了"_qs}));
}

TEST_P(出力画面, 支払先登録のボタンで登録の窓が開き開いた表を読む) {
    開く();
    int 行数 = -1;
    基盤.画面表示時 = [&](const QString& 名) {
        if (名 == u"wnd支払先登録") 行数 = static_cast<int>(支払先登録->一覧().項目.size());
    };
    押す(欄::btn_支払先登録);
    EXPECT_EQ(基盤.表示画面, (QList<QPair<QString, bool>>{{u"wnd支払先登録"_qs, true}}));
    EXPECT_EQ(行数, 8);
}

TEST_P(出力画面, 出力の途中は終わらせず閉じさせない) {
    開く();
    打つ(欄::出力先, 出力先());
    QList<bool> 閉じてよい;
    画面->途中表示 = [&] {
        閉じてよい.append(画面->閉じてよいか());
        画面->終了();
        画面->画面.操作_キー(c(欄::出力先), キーコード::Esc);
    };
    押す(欄::btn_出力);
    EXPECT_EQ(閉じてよい, (QList<bool>{false, false, false}));
    EXPECT_EQ(閉じた, 0);
    EXPECT_TRUE(結果().startsWith(u"伝票 3 件"_qs));
    EXPECT_TRUE(画面->閉じてよいか());
    画面->画面.操作_キー(c(欄::出力先), キーコード::Esc);
    EXPECT_EQ(閉じた, 1);
    EXPECT_EQ(履歴(), (QStringList{u"開始"_qs, u"出力終了"_qs, u"終了"_qs}));
}

KONPEKI_両エンジンで(出力画面);

}  // namespace
