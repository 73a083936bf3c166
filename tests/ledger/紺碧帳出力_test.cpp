#include "ledger/仕訳出力試験.h"
#include "ledger/弥生読取.h"

namespace {

class 弥生出力 : public 仕訳出力試験 {
  protected:
    // Five slips over the registration dates of the sample payees, stored out of date order.
    void 五伝票() {
        保存する(u"20251120"_qs, {{3, 1000, u"文具の青葉堂"_qs, u"コピー用紙"_qs}});
        保存する(u"20251121"_qs, {{1, 12000, u"JR東日本"_qs, u"新幹線"_qs},
                                  {8, 200, u"港区役所"_qs, u"印紙代"_qs},
                                  {4, 880, u"喫茶こもれび"_qs, u"打合せ 飲物"_qs, 8}});
        保存する(u"20240301"_qs, {{3, 2000, u"家電のみどり"_qs, u"USBメモリ"_qs}});
        保存する(u"20240401"_qs, {{3, 2000, u"家電のみどり"_qs, u"USBメモリ"_qs}});
        保存する(u"20251122"_qs, {{9, 3240, u"弁当の大地"_qs, u"会議用弁当"_qs, 8}});
    }

    QList<弥生読取行> 読む() {
        QList<弥生読取行> 行;
        QString エラー;
        EXPECT_TRUE(弥生ファイル読取(出力先(), 行, エラー)) << エラー.toStdString();
        return 行;
    }
};

// What one row must hold: flag, date, account, tax category, amount, tax, description.
struct 期待行 {
    const char16_t* 識別フラグ;
    const char16_t* 取引日付;
    const char16_t* 勘定科目;
    const char16_t* 税区分;
    qint64 金額;
    qint64 税額;
    const char16_t* 摘要;
};

TEST_P(弥生出力, 各行は二十五項目で伝票ごとの識別フラグと日付と科目と税区分と金額をもつ) {
    五伝票();
    ASSERT_EQ(出力する(u"yayoi"_qs), 0) << 最後のメッセージ().toStdString();
    const QList<弥生読取行> 行 = 読む();
    const 期待行 期待[] = {
        // registered only from 1 April 2024: the March purchase takes the transition
        {u"2111", u"2024/03/01", u"消耗品費", u"課対仕入内10%区分80%", 2200, 200,
         u"家電のみどり USBメモリ"},
        {u"2111", u"2024/04/01", u"消耗品費", u"課対仕入内10%", 2200, 200,
         u"家電のみどり USBメモリ"},
        // never registered
        {u"2111", u"2025/11/20", u"消耗品費", u"課対仕入内10%区分80%", 1100, 100,
         u"文具の青葉堂 コピー用紙"},
        // registered; a line without tax; the reduced rate from an unregistered café
        {u"2110", u"2025/11/21", u"旅費交通費", u"課対仕入内10%", 12000, 1091, u"JR東日本 新幹線"},
        {u"2100", u"2025/11/21", u"租税公課", u"対象外", 200, 0, u"港区役所 印紙代"},
        {u"2101", u"2025/11/21", u"会議費", u"課対仕入内軽減8%区分80%", 880, 65,
         u"喫茶こもれび 打合せ 飲物"},
        // registered until 31 March 2025 only
        {u"2111", u"2025/11/22", u"福利厚生費", u"課対仕入内軽減8%区分80%", 3240, 240,
         u"弁当の大地 会議用弁当"},
    };
    ASSERT_EQ(行.size(), std::size(期待));
    for (qsizetype i = 0; i < 行.size(); ++i) {
        const QStringList& f = 行[i].項目;
        const 期待行& e = 期待[i];
        ASSERT_EQ(f.size(), 25) << i;
        EXPECT_EQ(f[0], QString::fromUtf16(e.識別フラグ)) << i;
        EXPECT_EQ(f[3], QString::fromUtf16(e.取引日付)) << i;
        EXPECT_EQ(f[4], QString::fromUtf16(e.勘定科目)) << i;
        EXPECT_EQ(f[6], u"総務部"_qs) << i;
        EXPECT_EQ(f[7], QString::fromUtf16(e.税区分)) << i;
        EXPECT_EQ(f[8], QString::number(e.金額)) << i;
        EXPECT_EQ(f[9], QString::number(e.税額)) << i;
        EXPECT_EQ(f[10], u"現金"_qs) << i;
        EXPECT_EQ(f[13], u"対象外"_qs) << i;
        EXPECT_EQ(f[14], QString::number(e.金額)) << i;
        EXPECT_EQ(f[16], QString::fromUtf16(e.摘要)) << i;
        EXPECT_EQ(f[19], u"0"_qs) << i;
        // Texts are quoted, numbers bare.
        EXPECT_TRUE(行[i].引用[4] && 行[i].引用[16]) << i;
        EXPECT_FALSE(行[i].引用[0] || 行[i].引用[8]) << i;
    }
}

TEST_P(弥生出力, 借方金額の合計は伝票の実質出金金額合計の和で終わりに件数と合計を告げる) {
    五伝票();
    ASSERT_EQ(出力する(u"yayoi"_qs), 0);
    qint64 借方 = 0;
    for (const 弥生読取行& r : 読む()) 借方 += r.項目[8].toLongLong();
    const qint64 伝票合計 =
        木->業務DB行(u"SELECT SUM(実質出金金額合計) FROM T出金"_qs)[0][0].toLongLong();
    EXPECT_EQ(借方, 伝票合計);
    EXPECT_EQ(借方, 2200 + 2200 + 1100 + 12000 + 200 + 880 + 3240);
    EXPECT_EQ(集計.伝票数, 5);
    EXPECT_EQ(集計.行数, 7);
    EXPECT_TRUE(結果文言.startsWith(u"伝票 5 件、明細 7 行、借方金額合計 21,820 円"_qs))
        << 結果文言.toStdString();
}

TEST_P(弥生出力, 期間の外の伝票は出さない) {
    五伝票();
    ASSERT_EQ(出力する(u"yayoi"_qs, u"20240401"_qs, u"20251121"_qs), 0);
    const QList<弥生読取行> 行 = 読む();
    ASSERT_EQ(行.size(), 5);
    EXPECT_EQ(行.first().項目[3], u"2024/04/01"_qs);
    EXPECT_EQ(行.last().項目[3], u"2025/11/21"_qs);
}

TEST_P(弥生出力, 伝票の無い期間は空のファイルを書き零件を告げる) {
    五伝票();
    ASSERT_EQ(出力する(u"yayoi"_qs, u"20200101"_qs, u"20201231"_qs), 0) << 結果文言.toStdString();
    EXPECT_TRUE(読む().isEmpty());
    EXPECT_EQ(集計.伝票数, 0);
    EXPECT_TRUE(結果文言.startsWith(u"伝票 0 件、明細 0 行"_qs)) << 結果文言.toStdString();
}

TEST_P(弥生出力, 十五行の伝票は先頭と十三の中間と最終の識別フラグで十六行目は打てない) {
    s.出金情報初期化();
    出金日付入力(s, u"20251120"_qs);
    ASSERT_TRUE(担当者入力(s, u"00003"_qs));
    for (int i = 0; i < 15; ++i)
        ASSERT_TRUE(明細入力(s, i % 2 ? 1 : 3, 金額::円(100 * (i + 1)), u"東京交通"_qs,
                             u"行"_qs + QString::number(i + 1)));
    // Typed, a slip holds fifteen lines at most; a sixteenth comes only from a trip application.
    EXPECT_FALSE(明細入力(s, 3, 金額::円(1600), u"東京交通"_qs, u"行16"_qs));
    ASSERT_TRUE(s.新規登録処理());
    ASSERT_EQ(出力する(u"yayoi"_qs), 0);
    const QList<弥生読取行> 行 = 読む();
    ASSERT_EQ(行.size(), 15);
    EXPECT_EQ(行[0].項目[0], u"2110"_qs);
    for (int i = 1; i < 14; ++i) EXPECT_EQ(行[i].項目[0], u"2100"_qs) << i;
    EXPECT_EQ(行[14].項目[0], u"2101"_qs);
    for (int i = 0; i < 15; ++i) {
        EXPECT_EQ(行[i].項目[16], u"東京交通 行"_qs + QString::number(i + 1));
        EXPECT_EQ(行[i].項目[4], i % 2 ? u"旅費交通費"_qs : u"消耗品費"_qs);
    }
}

TEST_P(弥生出力, 対応のない費目区分があれば名前を挙げて止まり何も書かない) {
    五伝票();
    ASSERT_TRUE(木->業務DB実行(u"DELETE FROM K紺碧勘定対応 WHERE 費目区分 IN ('03', '04')"_qs));
    QFile 既存(出力先());
    ASSERT_TRUE(既存.open(QIODevice::WriteOnly));
    既存.write("before");
    既存.close();
    EXPECT_EQ(出力する(u"yayoi"_qs), 1);
    EXPECT_EQ(
        最後のメッセージ(),
        u"勘定科目の対応がない費目区分があります。何も出力しませんでした。\n03 消耗品費\n04 会議費"_qs);
    EXPECT_EQ(出力内容(), QByteArray("before"));
    EXPECT_EQ(出力する(u"csv"_qs), 1);
    EXPECT_EQ(出力内容(), QByteArray("before"));
}

TEST_P(弥生出力, シフトJISにない文字は伝票と行を挙げて止まり何も書かないがCSVには書ける) {
    保存する(u"20251120"_qs, {{3, 1000, u"文具の青葉堂"_qs, u"コピー用紙"_qs},
                              {3, 500, u"한국상사"_qs, u"견본"_qs}});
    EXPECT_EQ(出力する(u"yayoi"_qs), 1);
    EXPECT_EQ(
        最後のメッセージ(),
        u"伝票 000-20260331-00000001 の 002 行目に Shift-JIS にない文字「한」があります。何も出力しませんでした。"_qs);
    EXPECT_FALSE(QFile::exists(出力先()));
    EXPECT_EQ(出力する(u"csv"_qs), 0);
    EXPECT_TRUE(QString::fromUtf8(出力内容()).contains(u"한국상사"_qs));
}

TEST_P(弥生出力, 検査数字の合わない登録番号は登録のない支払先として扱う) {
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE M紺碧支払先登録 SET 登録番号 = 'T8010401053216' WHERE 支払先 = '東京交通'"_qs));
    保存する(u"20251120"_qs, {{1, 1100, u"東京交通"_qs, u"タクシー代"_qs}});
    ASSERT_EQ(出力する(u"yayoi"_qs), 0);
    EXPECT_EQ(読む()[0].項目[7], u"課対仕入内10%区分80%"_qs);
}

TEST_P(弥生出力, 稼動履歴に自分のプログラム名で開始と出力と終了を残す) {
    五伝票();
    ASSERT_EQ(出力する(u"yayoi"_qs), 0);
    const auto 行 = 木->環境DB行(
        u"SELECT 摘要 FROM プログラム稼動履歴 WHERE プログラムID = '紺碧帳出力' ORDER BY proccounter"_qs);
    ASSERT_EQ(行.size(), 3);
    EXPECT_EQ(行[0][0].toString(),
              u"開始 --from 20240101 --to 20261231 --format yayoi --out "_qs + 出力先());
    EXPECT_TRUE(
        行[1][0].toString().startsWith(u"出力終了 仕訳出力 yayoi 20240101-20261231 伝票 5 件"_qs))
        << 行[1][0].toString().toStdString();
    EXPECT_EQ(行[2][0].toString(), u"終了"_qs);
}

TEST_P(弥生出力, CSVは見出し行とRFC4180の引用で伝票の見出し項目を各行にもつ) {
    保存する(u"20251120"_qs, {{4, 1100, u"喫茶こもれび"_qs, u"会議, \"特別\""_qs}});
    ASSERT_EQ(出力する(u"csv"_qs), 0);
    const QString 全体 = QString::fromUtf8(出力内容());
    QStringList 行 = 全体.split(u"\r\n"_qs);
    ASSERT_EQ(行.size(), 3);
    EXPECT_TRUE(行[2].isEmpty());
    弥生読取行 見出し, 明細;
    ASSERT_TRUE(行を分ける(行[0], 見出し));
    ASSERT_TRUE(行を分ける(行[1], 明細));
    ASSERT_EQ(見出し.項目.size(), 明細.項目.size());
    const auto 値 = [&](const char16_t* 名) {
        return 明細.項目[見出し.項目.indexOf(QString::fromUtf16(名))];
    };
    EXPECT_EQ(値(u"出金No"), u"00000001"_qs);
    EXPECT_EQ(値(u"出金日付"), u"20251120"_qs);
    EXPECT_EQ(値(u"勘定科目"), u"会議費"_qs);
    EXPECT_EQ(値(u"摘要"), u"会議, \"特別\""_qs);
    EXPECT_TRUE(明細.引用[見出し.項目.indexOf(u"摘要"_qs)]);
    EXPECT_EQ(値(u"登録番号"), QString());
    EXPECT_EQ(値(u"控除割合"), u"80"_qs);
    EXPECT_EQ(値(u"実質出金金額"), u"1100"_qs);
}

TEST_P(弥生出力, 事業所を指定するとその事業所の伝票だけで000は全社) {
    保存する(u"20251120"_qs, {{3, 1000, u"文具の青葉堂"_qs, u"本社"_qs}});
    保存する(u"20251121"_qs, {{3, 2000, u"文具の青葉堂"_qs, u"大阪"_qs}}, u"001"_qs);
    ASSERT_EQ(
        出力する(u"yayoi"_qs, u"20251101"_qs, u"20251130"_qs, QStringList{u"--office"_qs, u"1"_qs}),
        0);
    QList<弥生読取行> 行 = 読む();
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0].項目[16], u"文具の青葉堂 大阪"_qs);
    EXPECT_EQ(行[0].項目[21].left(8), u"紺碧帳 001-"_qs);
    ASSERT_EQ(出力する(u"yayoi"_qs, u"20251101"_qs, u"20251130"_qs,
                       QStringList{u"--office"_qs, u"000"_qs}),
              0);
    EXPECT_EQ(読む().size(), 2);
}

TEST_P(弥生出力, 書けない出力先は告げて終わり稼動履歴に終了を残す) {
    保存する(u"20251120"_qs, {{3, 1000, u"文具の青葉堂"_qs, u"コピー用紙"_qs}});
    紺碧帳出力 p(基盤, 木->プログラムフォルダ());
    const QString 先 = 木->根() + u"/ない/仕訳.txt"_qs;
    EXPECT_EQ(p.実行(QStringList{u"--from"_qs, u"20251101"_qs, u"--to"_qs, u"20251130"_qs,
                                 u"--format"_qs, u"yayoi"_qs, u"--out"_qs, 先}),
              1);
    EXPECT_EQ(最後のメッセージ(), u"ファイルを書き込めませんでした。\n"_qs + 先);
    const auto 行 = 木->環境DB行(
        u"SELECT 摘要 FROM プログラム稼動履歴 WHERE プログラムID = '紺碧帳出力' ORDER BY proccounter"_qs);
    ASSERT_EQ(行.size(), 2);
    EXPECT_EQ(行[1][0].toString(), u"終了"_qs);
}

TEST_P(弥生出力, 誤った引数は何も開かず稼動履歴も残さない) {
    紺碧帳出力 p(基盤, 木->プログラムフォルダ());
    EXPECT_EQ(p.実行(QStringList{u"--from"_qs, u"2025"_qs}), 1);
    EXPECT_TRUE(最後のメッセージ().startsWith(u"--from の値"_qs) ||
                最後のメッセージ().startsWith(u"期間は"_qs))
        << 最後のメッセージ().toStdString();
    EXPECT_TRUE(
        木->環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴 WHERE プログラムID = '紺碧帳出力'"_qs)
            .isEmpty());
}

KONPEKI_両エンジンで(弥生出力);

}  // namespace
