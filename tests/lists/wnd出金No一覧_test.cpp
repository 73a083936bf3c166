#include "lists/wnd出金No一覧.h"

#include "common/伝票投入.h"
#include "common/出金入力.h"
#include "lists/一覧試験.h"

namespace {

class 出金No一覧 : public 一覧試験 {
  protected:
    void SetUp() override {
        一覧試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        開始();
    }
    // A slip typed and stored through the session, one line of class 3 for the amount.
    QString 保存(const QString& 日付, const QString& 担当者, qint64 額) {
        s.出金情報初期化();
        出金日付入力(s, 日付);
        EXPECT_TRUE(担当者入力(s, 担当者));
        EXPECT_TRUE(明細入力(s, 3, 金額::円(額), {}, u"文具"_qs));
        EXPECT_TRUE(s.新規登録処理());
        const QString No = s.見出し.出金No;
        s.出金情報初期化();
        f->画面全表示();
        return No;
    }
    void 開く() { f->画面.操作_クリック(c(u"btn_出金No"_qs)); }
};

TEST_P(出金No一覧, 入力画面から開くと一年前からの新しい順で選んだ伝票が読まれる) {
    const QString 古い = 保存(u"20241001"_qs, u"00003"_qs, 1000);
    const QString 春 = 保存(u"20250301"_qs, u"00005"_qs, 2000);
    const QString 秋 = 保存(u"20251101"_qs, u"00003"_qs, 1234567);
    QStringList 行;
    操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
        for (const auto& r : x.一覧().項目) 行 << r.Key;
        // One year before the slip date on the screen.
        EXPECT_EQ(x.画面(u"出金日付"_qs).Text, QDate::fromString(s.見出し.出金日付, u"yyyyMMdd"_qs)
                                                   .addYears(-1)
                                                   .toString(u"yyyyMMdd"_qs));
        EXPECT_EQ(x.一覧().列.value(2).見出し, u"仕コード"_qs);
        // Only the money stands at the right edge of its column.
        for (int i = 0; i < 5; ++i) EXPECT_EQ(x.一覧().列.value(i).右寄せ, i == 4) << i;
        EXPECT_EQ(x.一覧().セル(0, 1), u"20251101"_qs);
        EXPECT_EQ(x.一覧().セル(0, 2), u"00003"_qs);
        EXPECT_EQ(x.一覧().セル(0, 3), u"上田 健一"_qs);
        const QString 合計 =
            木->業務DB行(
                  u"SELECT 実質出金金額合計 FROM T出金 WHERE 番号基準日付 = '20260331' AND 出金No = '"_qs +
                  秋 + u"'"_qs)
                .value(0)
                .value(0)
                .toString();
        EXPECT_EQ(x.一覧().セル(0, 4), 書式(合計, 数値書式::一覧金額));
        EXPECT_TRUE(x.一覧().セル(0, 4).startsWith(u"1,35"_qs));
        EXPECT_EQ(x.一覧().項目.value(0).Key, u"C00020260331"_qs + 秋);
        // The base-date restriction stays while the window is up.
        EXPECT_EQ(f->状態.一覧.条件, u"T出金.番号基準日付 <> ''"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    開く();
    // Numbers count per fiscal year: the old slip has the same number in another base date.
    EXPECT_EQ(古い, 秋);
    EXPECT_EQ(行, (QStringList{u"C00020260331"_qs + 秋, u"C00020250331"_qs + 春}));
    // The key brought the slip in; the window is unloaded, not hidden.
    EXPECT_EQ(s.見出し.出金No, 秋);
    EXPECT_EQ(s.見出し.出金日付, u"20251101"_qs);
    EXPECT_EQ(c(u"出金No"_qs).Text, 秋);
    EXPECT_EQ(基盤.閉じた画面, QStringList{u"wnd出金No一覧"_qs});
    EXPECT_TRUE(基盤.隠した画面.isEmpty());
}

TEST_P(出金No一覧, 見出しで並べ替えて選んでも次に開くと文の順で並べ替えは無い) {
    // One staff member: the slip picked brings him, and the next opening lists his slips.
    const QString 前 = 保存(u"20251001"_qs, u"00003"_qs, 3000);
    const QString 後 = 保存(u"20251101"_qs, u"00003"_qs, 1000);
    QStringList 並べ替え後, 二回目, 見出し後;
    bool 二回目の並べ替え = true;
    int 二回目の列 = -1;
    bool 二回目の降順 = true;
    int 回 = 0;
    操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
        部品& L = x.一覧();
        if (回++ == 0) {
            x.画面.操作_列クリック(L, 1);  // 出金日付, oldest first
            並べ替え後 = 列(x);
            x.画面.操作_キー(L, キーコード::Down);
            x.画面.操作_キー(L, キーコード::Enter);
            return;
        }
        二回目 = 列(x);
        二回目の並べ替え = L.Sorted;
        二回目の列 = L.SortKey;
        二回目の降順 = L.降順;
        // As on a first opening: the first column is the key, so its heading turns the order.
        x.画面.操作_列クリック(L, 0);
        見出し後 = 列(x);
        x.画面.操作_キー(L, キーコード::Esc);
    };
    開く();
    EXPECT_EQ(並べ替え後, (QStringList{前, 後}));
    EXPECT_EQ(s.見出し.出金No, 前);
    開く();
    EXPECT_EQ(基盤.閉じた画面, (QStringList{u"wnd出金No一覧"_qs, u"wnd出金No一覧"_qs}));
    EXPECT_EQ(二回目, (QStringList{後, 前}));
    EXPECT_FALSE(二回目の並べ替え);
    EXPECT_EQ(二回目の列, 0);
    EXPECT_FALSE(二回目の降順);
    EXPECT_EQ(見出し後, (QStringList{後, 前}));
}

TEST_P(出金No一覧, 担当者を入れて開くとその人の伝票だけが出る) {
    保存(u"20251101"_qs, u"00003"_qs, 1000);
    const QString 大野 = 保存(u"20251102"_qs, u"00005"_qs, 1000);
    f->画面.操作_入力(c(u"担当者コード"_qs), u"5"_qs);
    f->画面.操作_Tab();
    QStringList 行;
    操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
        行 = 列(x);
        EXPECT_EQ(x.画面(u"担当者コード"_qs).Text, u"00005"_qs);
        EXPECT_EQ(x.画面(u"担当者名"_qs).Text, u"大野 大輔"_qs);
    };
    開く();
    EXPECT_EQ(行, QStringList{大野});
}

TEST_P(出金No一覧, 日付検索は古い順でNo検索はNo順に日付の新しい順で他は新しい順) {
    試験伝票 a;
    a.出金No = u"00000005"_qs;
    a.出金日付 = u"20250105"_qs;
    試験伝票 b = a;
    b.出金No = u"00000005"_qs;
    b.番号基準日付 = u"20250331"_qs;
    b.出金日付 = u"20240105"_qs;
    試験伝票 c2 = a;
    c2.出金No = u"00000002"_qs;
    c2.出金日付 = u"20250601"_qs;
    for (const auto& t : {a, b, c2}) ASSERT_TRUE(伝票投入(*木, t));
    操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_入力(x.画面(u"出金日付"_qs), u"20200101"_qs);
        x.画面.操作_Tab();
        x.画面.操作_クリック(x.画面(u"btn_出金日付検索"_qs));
        EXPECT_EQ(列(x, 1), (QStringList{u"20240105"_qs, u"20250105"_qs, u"20250601"_qs}));
        x.画面.操作_入力(x.画面(u"出金No"_qs), u"1"_qs);
        x.画面.操作_Tab();
        EXPECT_EQ(x.画面(u"出金No"_qs).Text, u"00000001"_qs);
        x.画面.操作_クリック(x.画面(u"btn_出金No検索"_qs));
        EXPECT_EQ(列(x, 1), (QStringList{u"20250601"_qs, u"20250105"_qs, u"20240105"_qs}));
        x.画面.操作_クリック(x.画面(u"btn_複合検索"_qs));
        EXPECT_EQ(列(x, 1), (QStringList{u"20250601"_qs, u"20250105"_qs, u"20240105"_qs}));
        x.画面.操作_クリック(x.画面(u"btn_否定検索"_qs));
        EXPECT_TRUE(列(x).isEmpty());
        EXPECT_TRUE(x.検索SQL.contains(u" AND T出金.出金日付 < '20200101'"_qs));
    };
    開く();
}

TEST_P(出金No一覧, 本社では全事業所の伝票が出て担当者のいない伝票は出ない) {
    試験伝票 大阪;
    大阪.事業所コード = u"001"_qs;
    大阪.出金No = u"00000007"_qs;
    大阪.担当者コード = u"00008"_qs;
    試験伝票 不明 = 大阪;
    不明.出金No = u"00000008"_qs;
    不明.担当者コード = u"99999"_qs;
    ASSERT_TRUE(伝票投入(*木, 大阪));
    ASSERT_TRUE(伝票投入(*木, 不明));
    QStringList 行;
    操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
        行 = 列(x);
        EXPECT_FALSE(x.検索SQL.contains(u"T出金.事業所コード ="_qs));
    };
    開く();
    EXPECT_EQ(行, QStringList{u"00000007"_qs});
}

TEST_P(出金No一覧, 支店ではその支店の伝票だけが出る) {
    試験伝票 大阪;
    大阪.事業所コード = u"001"_qs;
    大阪.出金No = u"00000007"_qs;
    大阪.担当者コード = u"00008"_qs;
    試験伝票 本社 = 大阪;
    本社.事業所コード = u"000"_qs;
    本社.出金No = u"00000009"_qs;
    ASSERT_TRUE(伝票投入(*木, 大阪));
    ASSERT_TRUE(伝票投入(*木, 本社));
    ASSERT_TRUE(木->環境DB実行(
        u"UPDATE 動作環境定義 SET 運用事業所コード = '001' WHERE 動作環境定義ID = '001'"_qs));
    f.reset();
    集.reset();
    s.データ.接続().接続終了();
    開始();
    QStringList 行;
    操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
        行 = 列(x);
        EXPECT_TRUE(x.検索SQL.contains(u" WHERE T出金.事業所コード = '001'"_qs));
    };
    開く();
    EXPECT_EQ(行, QStringList{u"00000007"_qs});
}

TEST_P(出金No一覧, 日付を消して複合検索すると新しい1000件が出る) {
    QString 文 =
        u"INSERT INTO T出金 (事業所コード, 番号基準日付, 出金No, 出金日付, 担当者コード, 実質出金金額合計) VALUES "_qs;
    for (int i = 0; i < 1005; ++i) {
        if (i) 文 += u","_qs;
        const QString No = QString::number(i + 1).rightJustified(8, u'0');
        const QString 日付 = QDate(2022, 1, 1).addDays(i).toString(u"yyyyMMdd"_qs);
        文 += u"('000', '20260331', '"_qs + No + u"', '"_qs + 日付 + u"', '00003', 1000)"_qs;
    }
    ASSERT_TRUE(業務(文));
    操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_入力(x.画面(u"出金日付"_qs), QString());
        x.画面.操作_Tab();
        x.画面.操作_クリック(x.画面(u"btn_複合検索"_qs));
        EXPECT_EQ(x.一覧().項目.size(), 1000);
        EXPECT_TRUE(x.画面(u"lab_注意"_qs).Visible);
        EXPECT_EQ(列(x).first(), u"00001005"_qs);
        EXPECT_EQ(列(x).last(), u"00000006"_qs);
    };
    開く();
}

TEST_P(出金No一覧, Escで戻ると条件は空になり番号はそのまま) {
    保存(u"20251101"_qs, u"00003"_qs, 1000);
    c(u"出金No"_qs).Text = u"123"_qs;
    操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    開く();
    EXPECT_TRUE(f->状態.一覧.条件.isEmpty());
    EXPECT_FALSE(f->状態.選択鍵);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"123"_qs);
    EXPECT_EQ(焦点(f->画面), u"出金No"_qs);
    EXPECT_EQ(基盤.閉じた画面, QStringList{u"wnd出金No一覧"_qs});
}

TEST_P(出金No一覧, 担当者コードでCtrlを押すと担当者一覧が入れ子で開く) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_ダブルクリック(x.画面(u"担当者コード"_qs));
        EXPECT_EQ(x.画面(u"担当者コード"_qs).Text, u"00003"_qs);
        EXPECT_EQ(x.画面(u"担当者名"_qs).Text, u"上田 健一"_qs);
        EXPECT_EQ(焦点(x.画面), u"btn_担当者コード検索"_qs);
        EXPECT_EQ(f->状態.一覧.入れ子区分, 0);
    };
    開く();
}

KONPEKI_両エンジンで(出金No一覧);

}  // namespace
