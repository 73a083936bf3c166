#include "出張申請取込試験.h"

namespace {

TEST_P(出張申請取込, 一覧から選ぶと申請の旅費が明細に入り合計と画面が書き直される) {
    選ぶ(u"000"_qs, 今期, u"00000001"_qs);

    参照欄は(u"000"_qs, 今期, u"00000001"_qs);
    EXPECT_FALSE(f->状態.選択鍵);
    EXPECT_TRUE(s.入力変更フラグ);
    ASSERT_EQ(s.最終行, 2);
    const 出金行& l = s.行[0];
    EXPECT_EQ(l.費目区分, 1);
    EXPECT_EQ(l.費目区分名称, u"旅費交通費"_qs);
    EXPECT_EQ(l.内税外税区分, 2);
    EXPECT_EQ(l.消費税率, 金額::円(10));
    EXPECT_EQ(l.出金金額, 金額::円(29440));
    EXPECT_EQ(l.出金消費税, 金額::円(2676));
    EXPECT_EQ(l.実質出金金額, 金額::円(29440));
    EXPECT_EQ(l.税抜出金金額, 金額::円(26764));
    EXPECT_EQ(l.摘要, u"交通費\r新幹線 東京-新大阪 往復"_qs);
    EXPECT_EQ(s.行[1].出金消費税, 金額::円(891));
    EXPECT_EQ(s.行[2].摘要, u"日当\r2日分"_qs);
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(43240));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(3931));
    EXPECT_EQ(s.合計.今回税率出金金額合計, 金額::円(43240 - 3931));

    EXPECT_EQ(c(u"出張申請No"_qs).Text, u"00000001"_qs);
    EXPECT_EQ(c(u"費目区分"_qs, 0).Text, u"1"_qs);
    EXPECT_EQ(c(u"出金金額"_qs, 0).Text, u"29440"_qs);
    EXPECT_EQ(c(u"摘要"_qs, 2).Text, u"日当\r2日分"_qs);
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"43,240"_qs);
    EXPECT_EQ(c(u"出金消費税合計"_qs).Text, u"3,931"_qs);
    EXPECT_FALSE(c(u"scl_行"_qs).Enabled);
    EXPECT_EQ(知らせ(), QString());
}

// The jump to the trip application program of the HR system: its programs folder, the key
// behind the name without separators; a number of zeros starts nothing.
TEST_P(出張申請取込, 参照元の釦は白樺の出張申請登録を申請の鍵で起こす) {
    選ぶ(u"000"_qs, 今期, u"00000001"_qs);
    f->画面.操作_クリック(c(u"btn_参照元No"_qs));
    ASSERT_EQ(基盤.起動済み.size(), 1);
    const QString フォルダ = 木->人事根() + u"/prgbin"_qs;
    EXPECT_EQ(基盤.起動済み[0].プログラム, フォルダ + u"/出張申請登録"_qs);
    EXPECT_EQ(基盤.起動済み[0].引数, QStringList{u"000"_qs + 今期 + u"00000001"_qs});
    f->画面.操作_入力(c(u"出張申請No"_qs), u"00000000"_qs);
    f->画面.操作_クリック(c(u"btn_参照元No"_qs));
    EXPECT_EQ(基盤.起動済み.size(), 1);
}

// The take-over asks nothing of the employee: an application of one who retired before the
// trip comes in as any other.
TEST_P(出張申請取込, 出張の前に退職した社員の申請もそのまま入る) {
    申請を置く(u"00000060"_qs, {{u"01"_qs, u"1500"_qs}});
    ASSERT_TRUE(木->人事DB実行(
        u"UPDATE T出張申請 SET 社員コード = '00012' WHERE 出張申請No = '00000060'"_qs));
    選ぶ(u"000"_qs, 今期, u"00000060"_qs);
    参照欄は(u"000"_qs, 今期, u"00000060"_qs);
    ASSERT_EQ(s.最終行, 0);
    EXPECT_EQ(s.行[0].出金金額, 金額::円(1500));
    EXPECT_EQ(知らせ(), QString());
}

TEST_P(出張申請取込, 明細のある伝票では明細を残し参照欄だけが変わる) {
    f->画面.操作_入力(c(u"費目区分"_qs, 0), u"3"_qs);
    f->画面.操作_入力(c(u"出金金額"_qs, 0), u"500"_qs);
    f->画面.操作_フォーカス(c(u"支払先"_qs, 0));
    ASSERT_EQ(s.最終行, 0);

    選ぶ(u"000"_qs, 今期, u"00000003"_qs);

    参照欄は(u"000"_qs, 今期, u"00000003"_qs);
    EXPECT_EQ(s.最終行, 0);
    EXPECT_EQ(s.行[0].費目区分, 3);
    EXPECT_EQ(s.行[0].出金金額, 金額::円(500));
    EXPECT_EQ(s.行[1].出金金額, 金額());
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(500));
    EXPECT_EQ(c(u"出金金額"_qs, 1).Text, QString());
}

TEST_P(出張申請取込, 番号を空にすると番号だけが消え事業所と基準日付と明細は残る) {
    選ぶ(u"000"_qs, 今期, u"00000001"_qs);
    s.入力変更フラグ = false;
    s.お知らせ文言 = u"前の知らせ"_qs;

    打って抜ける(QString());

    参照欄は(u"000"_qs, 今期, QString());
    EXPECT_EQ(s.最終行, 2);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(知らせ(), QString());
    EXPECT_EQ(c(u"出張申請No"_qs).Text, QString());
}

TEST_P(出張申請取込, 保持した事業所と期間なら打った番号でも申請が見つかる) {
    選ぶ(u"000"_qs, 今期, u"00000001"_qs);

    打って抜ける(u"4"_qs);

    参照欄は(u"000"_qs, 今期, u"00000004"_qs);
    EXPECT_EQ(c(u"出張申請No"_qs).Text, u"00000004"_qs);
    EXPECT_EQ(s.最終行, 2);  // the lines of the first application stay
    EXPECT_EQ(s.行[0].出金金額, 金額::円(29440));
}

TEST_P(出張申請取込, 同じ番号で抜けても何も変わらない) {
    選ぶ(u"000"_qs, 今期, u"00000001"_qs);
    s.入力変更フラグ = false;

    打って抜ける(u"00000001"_qs);

    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(s.最終行, 2);
}

TEST_P(出張申請取込, 無い番号は該当なしと知らせ三つの参照欄を空にする) {
    選ぶ(u"000"_qs, 今期, u"00000001"_qs);

    打って抜ける(u"99"_qs);

    参照欄は(QString(), QString(), QString());
    EXPECT_EQ(知らせ(), u"該当情報がありません。"_qs);
    EXPECT_EQ(c(u"出張申請No"_qs).Text, QString());
    EXPECT_EQ(s.最終行, 2);
}

TEST_P(出張申請取込, 新しい伝票で打った番号は空の事業所と伝票日付の期間で探され見つからない) {
    ASSERT_TRUE(木->人事DB実行(u"DROP TABLE T出張申請"_qs));

    打って抜ける(u"1"_qs);

    EXPECT_EQ(知らせ(), u"該当情報がありません。"_qs);
    参照欄は(QString(), QString(), QString());
    // The failed statement, as the history keeps it (quotes doubled), shows the base date of
    // the slip date.
    const QString 文 =
        u"SELECT T出張申請.* FROM T出張申請 WHERE T出張申請.事業所コード = '' AND T出張申請.出張申請No = '00000001' AND T出張申請.番号基準日付 = '20270331'"_qs;
    const QStringList h = 履歴();
    ASSERT_FALSE(h.isEmpty());
    EXPECT_TRUE(h.last().startsWith(u"エラー "_qs));
    EXPECT_TRUE(h.last().endsWith(QString(文).replace(u"'"_qs, u"''"_qs)))
        << h.last().toStdString();
}

TEST_P(出張申請取込, 一覧の鍵でない答えは使わず保持した事業所と期間で探す) {
    選ぶ(u"000"_qs, 今期, u"00000001"_qs);
    const QString 答え = u"T出張申請.出張申請No >= '10'"_qs;
    ASSERT_EQ(答え.size(), 20);
    f->状態.選択鍵 = 答え;

    打って抜ける(u"5"_qs);

    参照欄は(u"000"_qs, 今期, u"00000005"_qs);
    EXPECT_EQ(f->状態.選択鍵, 答え);
}

TEST_P(出張申請取込, 旅費の無い申請は参照欄だけを埋める) {
    申請を置く(u"00000050"_qs, {});

    選ぶ(u"000"_qs, 今期, u"00000050"_qs);

    参照欄は(u"000"_qs, 今期, u"00000050"_qs);
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(知らせ(), QString());
}

TEST_P(出張申請取込, 費目区分表にない費目の旅費は区分0と外税で入り直すまで登録できない) {
    ASSERT_TRUE(木->人事DB実行(
        u"INSERT INTO K旅費区分 (区分, 名称, 費目区分) VALUES ('06', '手荷物', '99')"_qs));
    申請を置く(u"00000051"_qs, {{u"06"_qs, u"2000"_qs}, {u"01"_qs, u"1100"_qs}});
    登録のみと答える();

    選ぶ(u"000"_qs, 今期, u"00000051"_qs);

    ASSERT_EQ(s.最終行, 1);
    EXPECT_EQ(s.行[0].費目区分, 0);
    EXPECT_EQ(s.行[0].内税外税区分, 1);
    EXPECT_EQ(s.行[0].消費税率, 金額::円(10));
    EXPECT_EQ(s.行[0].出金消費税, 金額::円(200));
    EXPECT_EQ(s.行[0].摘要, u"手荷物\r摘要1"_qs);
    EXPECT_EQ(c(u"費目区分"_qs, 0).Text, u"0"_qs);
    EXPECT_FALSE(c(u"btn_登録"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_EQ(数(u"T出金"_qs), 0);

    f->画面.操作_入力(c(u"費目区分"_qs, 0), u"3"_qs);
    f->画面.操作_フォーカス(c(u"支払先"_qs, 0));
    ASSERT_EQ(s.行[0].費目区分, 3);
    ASSERT_TRUE(c(u"btn_登録"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_EQ(数(u"T出金"_qs), 1);
    EXPECT_EQ(数(u"T出金明細"_qs), 2);
}

TEST_P(出張申請取込, 取り込んだ伝票を登録すると参照欄と復帰だけの摘要がそのまま保存される) {
    登録のみと答える();
    選ぶ(u"000"_qs, 今期, u"00000003"_qs);
    ASSERT_EQ(s.最終行, 4);
    ASSERT_TRUE(c(u"btn_登録"_qs).Enabled);

    f->画面.操作_クリック(c(u"btn_登録"_qs));

    const auto 見出し = 木->業務DB行(
        u"SELECT 出張申請事業所コード, 出張申請番号基準日付, 出張申請No, 出金金額合計, 出金消費税合計, 実質出金金額合計 FROM T出金"_qs);
    ASSERT_EQ(見出し.size(), 1);
    EXPECT_EQ(見出し[0][0].toString(), u"000"_qs);
    EXPECT_EQ(見出し[0][1].toString(), 今期);
    EXPECT_EQ(見出し[0][2].toString(), u"00000003"_qs);
    EXPECT_EQ(見出し[0][3].toLongLong(), 60520);
    EXPECT_EQ(見出し[0][4].toLongLong(), 5529);
    EXPECT_EQ(見出し[0][5].toLongLong(), 60820);
    const auto 明細 = 木->業務DB行(
        u"SELECT 費目区分, 内税外税区分, 摘要, 出金金額, 出金消費税, 実質出金金額 FROM T出金明細 ORDER BY 出金行No"_qs);
    ASSERT_EQ(明細.size(), 5);
    EXPECT_EQ(明細[0][0].toString(), u"01"_qs);
    EXPECT_EQ(明細[0][1].toString(), u"2"_qs);
    EXPECT_EQ(明細[0][2].toString(), u"交通費\r航空券 羽田-新千歳 往復"_qs);
    EXPECT_FALSE(明細[0][2].toString().contains(u'\n'));
    EXPECT_EQ(明細[0][3].toLongLong(), 41200);
    EXPECT_EQ(明細[0][4].toLongLong(), 3745);
    EXPECT_EQ(明細[3][0].toString(), u"02"_qs);
    EXPECT_EQ(明細[4][0].toString(), u"10"_qs);
    EXPECT_EQ(明細[4][1].toString(), u"1"_qs);
    EXPECT_EQ(明細[4][4].toLongLong(), 300);
    EXPECT_EQ(明細[4][5].toLongLong(), 3300);
    // The screen is on the next new slip, its reference fields empty.
    EXPECT_EQ(s.最終行, -1);
    参照欄は(QString(), QString(), QString());
}

TEST_P(出張申請取込, 零と負と入力の上限の金額はそのまま入り税が付く) {
    申請を置く(u"00000052"_qs,
               {{u"01"_qs, u"0"_qs}, {u"01"_qs, u"-5000"_qs}, {u"01"_qs, u"9999999999"_qs}});

    選ぶ(u"000"_qs, 今期, u"00000052"_qs);

    ASSERT_EQ(s.最終行, 2);
    EXPECT_EQ(s.行[0].出金金額, 金額());
    EXPECT_EQ(s.行[0].出金消費税, 金額());
    EXPECT_EQ(s.行[0].費目区分, 1);
    EXPECT_EQ(s.行[1].出金金額, 金額::円(-5000));
    EXPECT_EQ(s.行[1].出金消費税, 金額::円(-455));
    EXPECT_EQ(s.行[2].出金金額, 金額::円(9999999999));
    EXPECT_EQ(s.行[2].出金消費税, 金額::円(909090909));
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(9999994999));
    EXPECT_EQ(c(u"出金金額"_qs, 1).Text, u"-5000"_qs);
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"9,999,994,999"_qs);
    EXPECT_EQ(c(u"費目区分"_qs, 0).Text, u"1"_qs);
}

TEST_P(出張申請取込, 金額型を超える税になる金額は桁あふれで終わり伝票は元のまま) {
    申請を置く(u"00000053"_qs, {{u"01"_qs, u"1000"_qs}, {u"01"_qs, u"900000000000000"_qs}});

    選ぶ(u"000"_qs, 今期, u"00000053"_qs);

    EXPECT_EQ(基盤.表示文言().value(0), u"オーバーフローしました。"_qs);
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(s.行[0].出金金額, 金額());
    参照欄は(QString(), QString(), QString());
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(c(u"出張申請No"_qs).Text, QString());
    EXPECT_EQ(c(u"出金金額"_qs, 0).Text, QString());
}

TEST_P(出張申請取込, 十五行の申請は全行が入る) {
    同じ行の申請を置く(u"00000054"_qs, 15);

    選ぶ(u"000"_qs, 今期, u"00000054"_qs);

    EXPECT_EQ(s.最終行, 14);
    EXPECT_EQ(s.行[14].出金金額, 金額::円(15000));
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(120000));
    EXPECT_TRUE(c(u"scl_行"_qs).Enabled);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 10);
    EXPECT_TRUE(基盤.表示文言().isEmpty());
}

TEST_P(出張申請取込, 十六行目は予備の枠に入る) {
    同じ行の申請を置く(u"00000055"_qs, 16);

    選ぶ(u"000"_qs, 今期, u"00000055"_qs);

    EXPECT_EQ(s.最終行, 15);
    EXPECT_EQ(s.行[15].出金金額, 金額::円(16000));
    EXPECT_EQ(s.行[15].摘要, u"交通費\r摘要16"_qs);
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(136000));
    EXPECT_EQ(c(u"scl_行"_qs).Max, 11);
    EXPECT_TRUE(基盤.表示文言().isEmpty());
}

TEST_P(出張申請取込, 十七行目は添字の範囲外で終わり伝票は元のままで次の申請は入る) {
    同じ行の申請を置く(u"00000056"_qs, 17);

    選ぶ(u"000"_qs, 今期, u"00000056"_qs);

    EXPECT_EQ(基盤.表示文言(), QStringList{u"インデックスが有効範囲にありません。"_qs});
    EXPECT_EQ(s.最終行, -1);
    for (int i = 0; i < 最大行数; ++i) EXPECT_EQ(s.行[i].費目区分, 0) << i;
    参照欄は(QString(), QString(), QString());
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(s.合計.出金金額合計, 金額());
    EXPECT_EQ(c(u"出張申請No"_qs).Text, QString());
    EXPECT_EQ(c(u"出金金額"_qs, 0).Text, QString());
    EXPECT_FALSE(c(u"btn_登録"_qs).Enabled);
    EXPECT_EQ(数(u"T出金"_qs), 0);
    EXPECT_EQ(数(u"T出金明細"_qs), 0);

    選ぶ(u"000"_qs, 今期, u"00000001"_qs);
    EXPECT_EQ(s.最終行, 2);
    参照欄は(u"000"_qs, 今期, u"00000001"_qs);
}

TEST_P(出張申請取込, 人事の旅費表が読めなければ明細は入らず人事には何も書かない) {
    const int 申請 = 人事数(u"T出張申請"_qs);
    const int 番号 = 人事数(u"A事業所別番号情報"_qs);
    ASSERT_TRUE(木->人事DB実行(u"DROP TABLE K旅費区分"_qs));

    選ぶ(u"000"_qs, 今期, u"00000001"_qs);

    参照欄は(u"000"_qs, 今期, u"00000001"_qs);
    EXPECT_EQ(s.最終行, -1);
    const QString 文 =
        u"SELECT T出張旅費.*,K旅費区分.名称 AS 旅費区分名,K旅費区分.費目区分 FROM K旅費区分 INNER JOIN T出張旅費 ON K旅費区分.区分 = T出張旅費.旅費区分 WHERE T出張旅費.事業所コード = '000' AND T出張旅費.番号基準日付 = '20270331' AND T出張旅費.出張申請No = '00000001' ORDER BY T出張旅費.旅費行No"_qs;
    EXPECT_TRUE(履歴().last().startsWith(u"エラー "_qs));
    EXPECT_TRUE(履歴().last().endsWith(QString(文).replace(u"'"_qs, u"''"_qs)))
        << 履歴().last().toStdString();
    EXPECT_EQ(人事数(u"T出張申請"_qs), 申請);
    EXPECT_EQ(人事数(u"A事業所別番号情報"_qs), 番号);
}

TEST_P(出張申請取込, 人事のデータベースが無くなっても止まらず該当なしとなる) {
    if (pg) {
        pg.reset();  // dropped on the server under the open connection
    } else {
        s.データ.人事連携終了();
        ASSERT_TRUE(QFile::remove(木->人事根() + u"/data/gnrdb.sqlite"_qs));
    }

    選ぶ(u"000"_qs, 今期, u"00000001"_qs);
    打って抜ける(u"2"_qs);

    EXPECT_EQ(知らせ(), u"該当情報がありません。"_qs);
    参照欄は(QString(), QString(), QString());
    EXPECT_EQ(s.最終行, -1);
    EXPECT_TRUE(基盤.表示文言().isEmpty());
    EXPECT_TRUE(履歴().last().startsWith(u"エラー "_qs));
    EXPECT_EQ(数(u"T出金"_qs), 0);
}

TEST_P(出張申請取込, 人事連携のない会社では欄を抜けても何も起きない) {
    s.白樺連携フラグ = false;
    f->見出し表示();
    ASSERT_FALSE(c(u"出張申請No"_qs).Visible);
    f->状態.選択鍵 = u"C000"_qs + 今期 + u"00000001"_qs;
    c(u"出張申請No"_qs).Text = u"00000001"_qs;

    c(u"出張申請No"_qs).LostFocus();

    参照欄は(QString(), QString(), QString());
    EXPECT_EQ(s.最終行, -1);
    EXPECT_FALSE(s.入力変更フラグ);
}

KONPEKI_人事の両エンジンで(出張申請取込);

}  // namespace
