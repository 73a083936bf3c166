#include "common/文字列表示.h"
#include "出張申請取込試験.h"

namespace {

// A slip whose sixteenth line came from a trip application: both the company's and the HR
// system's general databases in SQLite, or both in PostgreSQL.
class 十六行の伝票 : public 出張申請取込 {
  protected:
    bool 自社もPostgreSQL() const override { return true; }

    // An application of sixteen rows (amounts 1000 to 16000) taken over into the empty slip;
    // the last row of kind 区分.
    void 十六行を取り込む(const QString& 最後の区分 = u"01"_qs) {
        QList<QPair<QString, QString>> 旅費;
        for (int i = 0; i < 16; ++i) {
            旅費.append({i == 15 ? 最後の区分 : u"01"_qs, QString::number(1000 * (i + 1))});
        }
        申請を置く(u"00000055"_qs, 旅費);
        選ぶ(u"000"_qs, 今期, u"00000055"_qs);
        ASSERT_EQ(s.最終行, 15);
    }
    void 入れて離れる(const QString& 名前, int 行, const QString& 文字列) {
        f->画面.操作_入力(c(名前, 行), 文字列);
        f->画面.操作_フォーカス(行 < 0 ? c(u"担当者コード"_qs) : c(u"支払先"_qs, 行));
    }
    QString 焦点() const {
        const 部品* p = f->画面.フォーカス();
        if (!p) return {};
        return p->添字 < 0 ? p->名前 : p->名前 + u"("_qs + QString::number(p->添字) + u")"_qs;
    }
    // The rows of a query on the company's general database, each as its values joined by "|";
    // amounts as whole yen.
    QStringList 行の字(const QString& 文) {
        QStringList r;
        for (const auto& 行 : 木->業務DB行(文)) {
            QStringList 値;
            for (const auto& v : 行) {
                値.append(v.typeId() == QMetaType::QString
                              ? v.toString()
                              : QString::number(qRound64(v.toDouble())));
            }
            r.append(値.join(u'|'));
        }
        return r;
    }
    // "固有行No|amount" of the sixteen lines, the last one's amount given.
    static QStringList 十六行(qint64 最後の額) {
        QStringList r;
        for (int i = 0; i < 16; ++i) {
            r.append(QString::number(i + 1).rightJustified(3, u'0') + u"|"_qs +
                     QString::number(i == 15 ? 最後の額 : 1000 * (i + 1)));
        }
        return r;
    }
};

// Taken over, stored, loaded, corrected on its last line and stored again: the slip keeps its
// sixteen lines, and the history holds each state whole.
TEST_P(十六行の伝票, 取り込んだ十六行は登録と読込と訂正を経ても十六行のまま履歴も揃う) {
    登録のみと答える();
    十六行を取り込む();
    ASSERT_TRUE(c(u"btn_登録"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    ASSERT_EQ(行の字(u"SELECT 出金No FROM T出金"_qs), QStringList{u"00000001"_qs});
    ASSERT_EQ(数(u"T出金明細"_qs), 16);

    入れて離れる(u"出金No"_qs, -1, u"1"_qs);
    ASSERT_FALSE(s.新規情報フラグ);
    ASSERT_EQ(s.最終行, 15);
    EXPECT_EQ(s.行[15].出金金額, 金額::円(16000));
    EXPECT_EQ(s.行[15].摘要, u"交通費\r摘要16"_qs);
    EXPECT_EQ(s.見出し.最大固有行No, 16);

    f->画面.操作_値変更(c(u"scl_行"_qs), 11);
    入れて離れる(u"出金金額"_qs, 4, u"17000"_qs);
    ASSERT_EQ(s.行[15].出金金額, 金額::円(17000));
    ASSERT_TRUE(c(u"btn_登録"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_登録"_qs));

    EXPECT_EQ(行の字(u"SELECT 出金固有行No, 出金金額 FROM T出金明細 ORDER BY 出金行No"_qs),
              十六行(17000));
    EXPECT_EQ(行の字(u"SELECT 出金金額合計 FROM T出金"_qs), QStringList{u"137000"_qs});
    // The header history keeps the state replaced, with its sixteen lines' total; the rows of
    // the new states are refused by every engine, as every store's are.
    EXPECT_EQ(行の字(u"SELECT 出金履歴No, 出金金額合計 FROM R出金"_qs),
              QStringList{u"00000002|136000"_qs});
    const QString 履歴明細 =
        u"SELECT 出金固有行No, 出金金額 FROM R出金明細 WHERE 出金履歴No = '%1' ORDER BY 出金固有行No"_qs;
    EXPECT_EQ(行の字(履歴明細.arg(u"00000001"_qs)), 十六行(16000));
    EXPECT_EQ(行の字(履歴明細.arg(u"00000002"_qs)), 十六行(16000));  // the state replaced
    EXPECT_EQ(行の字(履歴明細.arg(u"00000003"_qs)), 十六行(17000));
    EXPECT_EQ(数(u"R出金明細"_qs), 48);
}

// Every line counts in the gap check: a sixteenth row of a kind without an expense class stops
// the store until it is given one, and is never stored as class "00".
TEST_P(十六行の伝票, 十六行目の知らない費目は登録させず案内はその行へ送る) {
    ASSERT_TRUE(木->人事DB実行(
        u"INSERT INTO K旅費区分 (区分, 名称, 費目区分) VALUES ('06', '手荷物', '99')"_qs));
    登録のみと答える();
    十六行を取り込む(u"06"_qs);
    ASSERT_EQ(s.行[15].費目区分, 0);

    int 区分 = 0, 行 = 0, 序数 = 0;
    EXPECT_FALSE(f->必須項目確認(区分, 行, 序数));
    EXPECT_EQ(区分, 2);
    EXPECT_EQ(行, 15);
    EXPECT_FALSE(c(u"btn_登録"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_EQ(数(u"T出金"_qs), 0);
    EXPECT_EQ(数(u"T出金明細"_qs), 0);

    EXPECT_FALSE(f->必須項目案内());
    EXPECT_EQ(知らせ(), u"必須項目が未入力です。"_qs);
    EXPECT_EQ(s.先頭行, 11);
    EXPECT_EQ(s.表示行, 4);
    EXPECT_EQ(s.現在行, 15);
    EXPECT_EQ(c(u"scl_行"_qs).Value, 11);
    EXPECT_EQ(焦点(), u"費目区分(4)"_qs);
    EXPECT_EQ(c(u"摘要"_qs, 4).Text, u"手荷物\r摘要16"_qs);

    入れて離れる(u"費目区分"_qs, 4, u"3"_qs);
    ASSERT_EQ(s.行[15].費目区分, 3);
    ASSERT_TRUE(c(u"btn_登録"_qs).Enabled);
    f->画面.操作_クリック(c(u"btn_登録"_qs));
    EXPECT_EQ(
        行の字(
            u"SELECT 出金行No, 費目区分 FROM T出金明細 WHERE 出金行No >= '015' ORDER BY 出金行No"_qs),
        (QStringList{u"015|01"_qs, u"016|03"_qs}));
}

// The bar reaches the sixteenth line as the bottom row, where it can be seen and changed; from
// the fifteenth line's amount Tab leads into it, and from its amount to the remarks.
TEST_P(十六行の伝票, 棒は十六行目まで送れその行を見て打ち直せる) {
    十六行を取り込む();
    部品& 棒 = c(u"scl_行"_qs);
    EXPECT_TRUE(棒.Enabled);
    EXPECT_EQ(棒.Max, 11);

    f->画面.操作_値変更(棒, 11);
    EXPECT_EQ(s.先頭行, 11);
    EXPECT_EQ(c(u"摘要"_qs, 3).Text, u"交通費\r摘要15"_qs);
    EXPECT_EQ(c(u"摘要"_qs, 4).Text, u"交通費\r摘要16"_qs);
    EXPECT_EQ(c(u"出金金額"_qs, 4).Text, u"16000"_qs);
    EXPECT_TRUE(c(u"費目区分名称"_qs, 4).Enabled);

    入れて離れる(u"出金金額"_qs, 4, u"16500"_qs);
    EXPECT_EQ(s.現在行, 15);
    EXPECT_EQ(s.行[15].出金金額, 金額::円(16500));
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(136500));
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"136,500"_qs);

    f->画面.操作_値変更(棒, 10);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 4));
    ASSERT_EQ(s.現在行, 14);
    f->画面.操作_Tab();
    EXPECT_EQ(s.先頭行, 11);
    EXPECT_EQ(s.現在行, 15);
    EXPECT_EQ(焦点(), u"費目区分(4)"_qs);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 4));
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"出金伝票備考A"_qs);
    EXPECT_EQ(s.先頭行, 11);
    EXPECT_EQ(s.最終行, 15);
}

// Clearing a line of the sixteen leaves a full slip of fifteen, seen as one: the bar ends at
// 10 and no blank row is left below the last line to type a sixteenth into.
TEST_P(十六行の伝票, 十六行から行を消すと満杯の十五行に戻り下に空の行は出ない) {
    十六行を取り込む();
    f->画面.操作_値変更(c(u"scl_行"_qs), 11);
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 2));
    ASSERT_EQ(s.現在行, 13);
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));

    EXPECT_EQ(s.最終行, 14);
    EXPECT_EQ(s.行[13].出金金額, 金額::円(15000));
    EXPECT_EQ(s.行[14].出金金額, 金額::円(16000));
    EXPECT_EQ(s.先頭行, 10);
    EXPECT_EQ(s.現在行, 13);
    EXPECT_EQ(s.表示行, 3);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 10);
    EXPECT_EQ(c(u"scl_行"_qs).Value, 10);
    EXPECT_EQ(c(u"摘要"_qs, 4).Text, u"交通費\r摘要16"_qs);
    EXPECT_EQ(焦点(), u"費目区分(3)"_qs);
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(136000 - 14000));

    // The last line of the full slip leads to the remarks, as on any slip of fifteen lines.
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 4));
    f->画面.操作_Tab();
    EXPECT_EQ(焦点(), u"出金伝票備考A"_qs);
    EXPECT_EQ(s.最終行, 14);
}

KONPEKI_人事の両エンジンで(十六行の伝票);

}  // namespace
