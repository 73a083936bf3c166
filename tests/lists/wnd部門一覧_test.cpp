#include "lists/wnd部門一覧.h"

#include "lists/一覧試験.h"

namespace {

class 部門一覧 : public 一覧試験 {
  protected:
    void SetUp() override {
        一覧試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        開始();
    }
};

TEST_P(部門一覧, 開くと稼動中の行だけで全てにすると全部が出る) {
    操作[u"wnd部門一覧"_qs] = [&](一覧画面& x) {
        EXPECT_EQ(列(x), (QStringList{u"001"_qs, u"002"_qs, u"003"_qs, u"004"_qs}));
        EXPECT_EQ(列(x, 1).value(1), u"経理部"_qs);
        EXPECT_EQ(x.画面(u"稼動状況区分名称"_qs).Text, u"稼動中"_qs);
        EXPECT_EQ(x.一覧().選択, -1);
        EXPECT_EQ(x.画面(u"wnd_ttl"_qs).Caption, u"部門一覧"_qs);
        // A change of the status is only stored; the clear button searches.
        x.画面.操作_入力(x.画面(u"稼動状況区分"_qs), u"3"_qs);
        EXPECT_EQ(x.一覧().項目.size(), 4);
        x.画面.操作_クリック(x.画面(u"btn_画面クリア"_qs));
        EXPECT_EQ(列(x), (QStringList{u"001"_qs, u"002"_qs, u"003"_qs, u"004"_qs, u"009"_qs}));
        EXPECT_EQ(x.検索SQL, u"SELECT コード,名称 FROM M部門 ORDER BY M部門.コード"_qs);
        EXPECT_EQ(焦点(x.画面), u"List部門"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::End);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    f->画面.操作_クリック(c(u"btn_部門コード"_qs));
    EXPECT_EQ(c(u"部門コード"_qs).Text, u"009"_qs);
    EXPECT_EQ(基盤.隠した画面, QStringList{u"wnd部門一覧"_qs});
}

TEST_P(部門一覧, セクション一覧も同じ窓で稼動中から開く) {
    ASSERT_TRUE(業務(u"UPDATE Mセクション SET 稼動状況区分 = '2' WHERE コード = '003'"_qs));
    QStringList 行;
    操作[u"wndセクション一覧"_qs] = [&](一覧画面& x) {
        行 = 列(x);
        EXPECT_EQ(x.画面(u"wnd_ttl"_qs).Caption, u"セクション一覧"_qs);
        EXPECT_TRUE(x.検索SQL.contains(u" WHERE Mセクション.稼動状況区分 = '1'"_qs));
    };
    f->画面.操作_クリック(c(u"btn_セクションコード"_qs));
    EXPECT_EQ(行.size(), 7);
    EXPECT_FALSE(行.contains(u"003"_qs));
}

TEST_P(部門一覧, 名称が空の部門は欄が空になる) {
    ASSERT_TRUE(業務(u"UPDATE M部門 SET 名称 = NULL WHERE コード = '003'"_qs));
    操作[u"wnd部門一覧"_qs] = [&](一覧画面& x) {
        EXPECT_EQ(列(x, 1), (QStringList{u"総務部"_qs, u"経理部"_qs, QString(), u"購買部"_qs}));
    };
    f->画面.操作_クリック(c(u"btn_部門コード"_qs));
}

TEST_P(部門一覧, 渡された稼動状況の条件が番号になる) {
    // The entry screen hands in nothing; a sibling window may name the status.
    f->状態.一覧.条件 = u"M部門.稼動状況区分 = '2'"_qs;
    基盤.画面表示(u"wnd部門一覧"_qs, true);
    EXPECT_EQ(w(u"wnd部門一覧"_qs).区分.value(u"稼動状況区分"_qs), 2);
    EXPECT_EQ(列(w(u"wnd部門一覧"_qs)), QStringList{u"009"_qs});
}

TEST_P(部門一覧, 担当者一覧からCtrlで二度開くと前と同じ行と選択で出る) {
    QStringList 一回目, 二回目;
    int 選択一回目 = -2, 選択二回目 = -2;
    int 回 = 0;
    操作[u"wnd部門一覧"_qs] = [&](一覧画面& x) {
        if (回++ == 0) {
            x.画面.操作_入力(x.画面(u"稼動状況区分"_qs), u"3"_qs);
            x.画面.操作_クリック(x.画面(u"btn_画面クリア"_qs));
            x.画面.操作_キー(x.一覧(), キーコード::Down);
            一回目 = 列(x);
            選択一回目 = x.一覧().選択;
            x.画面.操作_キー(x.一覧(), キーコード::Esc);
            return;
        }
        二回目 = 列(x);
        選択二回目 = x.一覧().選択;
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_キー(x.画面(u"部門コード"_qs), キーコード::Ctrl);
        x.画面.操作_キー(x.画面(u"部門コード"_qs), キーコード::Ctrl);
    };
    f->画面.操作_クリック(c(u"btn_担当者コード"_qs));
    EXPECT_EQ(一回目.size(), 5);
    EXPECT_EQ(二回目, 一回目);
    EXPECT_EQ(選択一回目, 1);
    EXPECT_EQ(選択二回目, 1);
    EXPECT_EQ(基盤.隠した画面.count(u"wnd部門一覧"_qs), 2);
}

TEST_P(部門一覧, 見出しで逆順にして戻ると次に開いても逆順のまま) {
    QStringList 一回目, 二回目;
    bool 二回目の降順 = false;
    int 回 = 0;
    操作[u"wnd部門一覧"_qs] = [&](一覧画面& x) {
        部品& L = x.一覧();
        if (回++ == 0) {
            x.画面.操作_列クリック(L, 0);
            一回目 = 列(x);
            x.画面.操作_キー(L, キーコード::Esc);
            return;
        }
        二回目 = 列(x);
        二回目の降順 = L.Sorted && L.降順;
        x.画面.操作_キー(L, キーコード::Esc);
    };
    基盤.画面表示(u"wnd部門一覧"_qs, true);
    基盤.画面表示(u"wnd部門一覧"_qs, true);
    ASSERT_GE(一回目.size(), 2);
    EXPECT_GT(一回目.first(), 一回目.last());
    EXPECT_EQ(二回目, 一回目);
    EXPECT_TRUE(二回目の降順);
}

KONPEKI_両エンジンで(部門一覧);

}  // namespace
