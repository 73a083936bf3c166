#include "lists/wnd出金摘要一覧.h"

#include "common/出金入力.h"
#include "lists/一覧試験.h"

namespace {

class 出金摘要一覧 : public 一覧試験 {
  protected:
    void SetUp() override {
        一覧試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        開始();
    }
    // A stored slip of that day whose lines carry these descriptions.
    void 保存(const QString& 日付, const QStringList& 摘要) {
        s.出金情報初期化();
        出金日付入力(s, 日付);
        ASSERT_TRUE(担当者入力(s, u"00003"_qs));
        for (const QString& t : 摘要) ASSERT_TRUE(明細入力(s, 3, 金額::円(100), {}, t));
        ASSERT_TRUE(s.新規登録処理());
        s.出金情報初期化();
        f->画面全表示();
    }
    bool A() const { return !GetParam(); }
    // The header is complete first: the lines open only then.
    void 開く() {
        ASSERT_TRUE(f->担当者確定(u"00003"_qs));
        f->見出し表示();
        f->画面.操作_クリック(c(u"btn_摘要"_qs, 0));
    }
};

TEST_P(出金摘要一覧, 開くと直近三か月の空でない摘要が先頭20文字で並ぶ) {
    保存(u"20250701"_qs, {u"古い摘要"_qs});
    保存(u"20251001"_qs,
         {u"ボールペン"_qs, QString(), u"あいうえおかきくけこさしすせそたちつてと長い続き"_qs});
    QStringList 行;
    操作[u"wnd出金摘要一覧"_qs] = [&](一覧画面& x) {
        行 = 列(x);
        EXPECT_EQ(x.一覧().選択, -1);
        EXPECT_EQ(x.画面(u"opb_期間"_qs, 0).Value, 1);
        EXPECT_EQ(x.画面(u"opb_期間"_qs, 4).Caption, u"全て"_qs);
        EXPECT_TRUE(
            x.検索SQL.contains(u" WHERE 出金日付 >= '20250820' AND 出金日付 <= '20251120'"_qs))
            << x.検索SQL.toStdString();
    };
    開く();
    EXPECT_EQ(行, (QStringList{u"あいうえおかきくけこさしすせそたちつてと"_qs, u"ボールペン"_qs}));
}

TEST_P(出金摘要一覧, 先頭20文字が同じ摘要はSとOでは一度だけAでは重ねて出る) {
    保存(u"20251101"_qs, {u"あいうえおかきくけこさしすせそたちつてと一"_qs,
                          u"あいうえおかきくけこさしすせそたちつてと二"_qs});
    QStringList 行, 鍵;
    操作[u"wnd出金摘要一覧"_qs] = [&](一覧画面& x) {
        行 = 列(x);
        for (int i = 0; i < x.一覧().項目.size(); ++i) 鍵 << x.一覧().鍵(i);
    };
    開く();
    const QString 先頭 = u"あいうえおかきくけこさしすせそたちつてと"_qs;
    if (A()) {
        EXPECT_EQ(行, (QStringList{先頭, 先頭}));
        EXPECT_EQ(鍵, (QStringList{u"C00000000001"_qs + 先頭, u"C00000000002"_qs + 先頭}));
    } else {
        EXPECT_EQ(行, QStringList{先頭});
        EXPECT_EQ(鍵, QStringList{u"C"_qs + 先頭});
    }
}

TEST_P(出金摘要一覧, 全てにすると日付のある全部の行が出る) {
    保存(u"20100101"_qs, {u"十五年前"_qs});
    保存(u"20251101"_qs, {u"今月"_qs});
    操作[u"wnd出金摘要一覧"_qs] = [&](一覧画面& x) {
        EXPECT_EQ(列(x), QStringList{u"今月"_qs});
        // The option is only stored; the search button uses it.
        x.画面.操作_クリック(x.画面(u"opb_期間"_qs, 4));
        EXPECT_EQ(列(x), QStringList{u"今月"_qs});
        EXPECT_EQ(x.画面(u"opb_期間"_qs, 0).Value, 0);
        x.画面.操作_クリック(x.画面(u"btn_複合検索"_qs));
        EXPECT_EQ(列(x), (QStringList{u"今月"_qs, u"十五年前"_qs}));
        EXPECT_TRUE(x.検索SQL.contains(u" WHERE 出金日付 <> ''"_qs));
        x.画面.操作_クリック(x.画面(u"btn_画面クリア"_qs));
        EXPECT_EQ(x.画面(u"opb_期間"_qs, 0).Value, 1);
        EXPECT_EQ(列(x), QStringList{u"今月"_qs});
    };
    開く();
}

// More distinct descriptions than a search shows: the window stops at 1000 and says so, and the
// engine is asked for no more than that, while the statement stays as the window wrote it.
TEST_P(出金摘要一覧, 千を超える摘要は千件で止まり機関にも千件までを求める) {
    for (int 伝票 = 0; 伝票 < 67; ++伝票) {
        QStringList 摘要;
        for (int 行 = 0; 行 < 最大行数; ++行) {
            摘要 << u"摘要"_qs + QString::number(伝票 * 最大行数 + 行).rightJustified(4, u'0');
        }
        保存(u"20251101"_qs, 摘要);
    }
    int 件数 = 0;
    bool 注意 = false;
    QString 文, 送った文;
    操作[u"wnd出金摘要一覧"_qs] = [&](一覧画面& x) {
        件数 = static_cast<int>(x.一覧().項目.size());
        注意 = x.画面(u"lab_注意"_qs).Visible;
        文 = x.検索SQL;
        if (GetParam()) {
            // The server's view of the program's connection: the statement it got last.
            const auto 行 = 木->業務DB行(
                u"SELECT query FROM pg_stat_activity WHERE datname = current_database() AND pid <> pg_backend_pid() AND query LIKE '%先頭摘要%'"_qs);
            if (!行.isEmpty()) 送った文 = 行.front()[0].toString();
        }
    };
    開く();
    EXPECT_EQ(件数, 1000);
    EXPECT_TRUE(注意);
    EXPECT_FALSE(文.contains(u"LIMIT"_qs)) << 文.toStdString();
    if (GetParam()) {
        EXPECT_TRUE(送った文.endsWith(u"\nLIMIT 1000"_qs)) << 送った文.toStdString();
    }
}

TEST_P(出金摘要一覧, 検索文字列は先頭20文字の中でだけ合い否検索はその逆) {
    保存(u"20251101"_qs, {u"あいうえおかきくけこさしすせそたちつてと末尾"_qs, u"末尾の付箋"_qs,
                          u"100%果汁"_qs, u"O'Neilの本"_qs});
    操作[u"wnd出金摘要一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_入力(x.画面(u"検索文字列"_qs), u"末尾"_qs);
        x.画面.操作_Tab();
        x.画面.操作_クリック(x.画面(u"btn_複合検索"_qs));
        EXPECT_EQ(列(x), QStringList{u"末尾の付箋"_qs});
        EXPECT_TRUE(x.検索SQL.contains(A() ? u" AND LEFT(摘要,20)  LIKE '%末尾%'"_qs
                                           : u" AND SUBSTRING(摘要,1,20)  LIKE '%末尾%'"_qs));
        x.画面.操作_クリック(x.画面(u"btn_否定検索"_qs));
        EXPECT_EQ(列(x).size(), 3);
        EXPECT_TRUE(x.検索SQL.contains(u" AND SUBSTRING(摘要,1,20) NOT LIKE '%末尾%'"_qs));
        x.画面.操作_入力(x.画面(u"検索文字列"_qs), u"O'N"_qs);
        x.画面.操作_Tab();
        x.画面.操作_クリック(x.画面(u"btn_複合検索"_qs));
        EXPECT_EQ(列(x), QStringList{u"O'Neilの本"_qs});
    };
    開く();
}

TEST_P(出金摘要一覧, 列の並べ替えの後も行の鍵は読んだ順を持ち選んだ行の鍵が返る) {
    保存(u"20251101"_qs, {u"あいう"_qs, u"いろは"_qs});
    QString 鍵;
    std::optional<QString> 答え;
    操作[u"wnd出金摘要一覧"_qs] = [&](一覧画面& x) {
        部品& L = x.一覧();
        x.画面.操作_キー(L, キーコード::Down);  // the first row, "あいう"
        // The one column is already the sort key, so a click on it turns the order round.
        x.画面.操作_列クリック(L, 0);
        EXPECT_EQ(L.セル(0, 0), u"いろは"_qs);
        // The selected row went along with the sort.
        EXPECT_EQ(L.選択, 1);
        EXPECT_EQ(L.鍵(0), A() ? u"C00000000002いろは"_qs : u"Cいろは"_qs);
        EXPECT_EQ(L.鍵(1), A() ? u"C00000000001あいう"_qs : u"Cあいう"_qs);
        x.画面.操作_キー(L, キーコード::Up);
        鍵 = L.鍵(L.選択);
        x.画面.操作_キー(L, キーコード::Enter);
        答え = f->状態.選択鍵;
    };
    開く();
    EXPECT_EQ(鍵, A() ? u"C00000000002いろは"_qs : u"Cいろは"_qs);
    // The answer is the picked row's key; the line it was picked for takes it.
    EXPECT_EQ(答え, 鍵);
    EXPECT_FALSE(f->状態.選択鍵);
    EXPECT_TRUE(f->状態.一覧.条件.isEmpty());
}

TEST_P(出金摘要一覧, 見出しで逆順にして戻っても次に開くと文の順で並べ替えは無い) {
    保存(u"20251101"_qs, {u"あいう"_qs, u"いろは"_qs});
    QStringList 一回目, 二回目, 見出し後;
    bool 二回目の並べ替え = true;
    bool 二回目の降順 = true;
    int 回 = 0;
    操作[u"wnd出金摘要一覧"_qs] = [&](一覧画面& x) {
        部品& L = x.一覧();
        if (回++ == 0) {
            x.画面.操作_列クリック(L, 0);
            一回目 = 列(x);
            x.画面.操作_キー(L, キーコード::Esc);
            return;
        }
        二回目 = 列(x);
        二回目の並べ替え = L.Sorted;
        二回目の降順 = L.降順;
        // The direction starts ascending again: the first click turns it to descending.
        x.画面.操作_列クリック(L, 0);
        見出し後 = 列(x);
        x.画面.操作_キー(L, キーコード::Esc);
    };
    開く();
    // The header stands: the second opening is the button alone.
    f->画面.操作_クリック(c(u"btn_摘要"_qs, 0));
    EXPECT_EQ(一回目, (QStringList{u"いろは"_qs, u"あいう"_qs}));
    EXPECT_EQ(二回目, (QStringList{u"あいう"_qs, u"いろは"_qs}));
    EXPECT_FALSE(二回目の並べ替え);
    EXPECT_FALSE(二回目の降順);
    EXPECT_EQ(見出し後, (QStringList{u"いろは"_qs, u"あいう"_qs}));
}

TEST_P(出金摘要一覧, 選ぶと鍵が返り窓は閉じ費目区分に文字が入ってから摘要へ進む) {
    保存(u"20251101"_qs, {u"ボールペン"_qs});
    QString 鍵;
    std::optional<QString> 答え;
    操作[u"wnd出金摘要一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        鍵 = x.一覧().鍵(0);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    開く();
    EXPECT_EQ(基盤.閉じた画面, QStringList{u"wnd出金摘要一覧"_qs});
    EXPECT_EQ(基盤.使用可否.last(), (QPair<QString, bool>{u"frm紺碧帳"_qs, true}));
    // The key names no stored line, so nothing is taken over and the line stays empty.
    EXPECT_FALSE(鍵.isEmpty());
    EXPECT_EQ(s.最終行, -1);
    EXPECT_TRUE(c(u"費目区分"_qs, 0).Text.isEmpty());
}

KONPEKI_両エンジンで(出金摘要一覧);

}  // namespace
