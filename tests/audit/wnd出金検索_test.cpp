#include <gtest/gtest.h>

#include <QFileInfo>
#include <functional>
#include <memory>

#include "audit/wnd出金履歴.h"
#include "audit/wnd出金検索.h"
#include "audit/wnd出金検索_部品名.h"
#include "screen/frm紺碧帳.h"
#include "出金検索試験.h"

namespace {

using 欄 = 出金検索部品;

// The entry screen of the head office with the search window over it, F9 opening it; what the
// operator does in the window is given per case.
class wnd出金検索試験 : public 出金検索試験 {
  protected:
    void SetUp() override {
        出金検索試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        ASSERT_TRUE(木->環境DB実行(
            u"UPDATE 動作環境定義 SET 運用事業所コード = '000' WHERE 動作環境定義ID = '001'"_qs));
        ASSERT_NO_FATAL_FAILURE(始める());
        ASSERT_EQ(s->データ.接続().作業事業所コード(), u"000"_qs);
        f = std::make_unique<frm紺碧帳>(*s);
        f->画面読込([this] { s->出金情報初期化(); });
        w = std::make_unique<wnd出金検索>(*s, f->画面);
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"wnd出金検索" && 操作) 操作(*w);
        };
    }

    // F9 in the staff field of the entry screen.
    void F9(std::function<void(wnd出金検索&)> 手) {
        操作 = std::move(手);
        f->画面.操作_キー(f->画面(u"担当者コード"_qs), キーコード::F9);
    }
    部品& c(部品名 名) { return w->画面(名); }
    void 打つ(部品名 名, const QString& 文字列) {
        w->画面.操作_入力(c(名), 文字列);
        w->画面.操作_Tab();
    }
    void 押す(部品名 名) { w->画面.操作_クリック(c(名)); }
    // The numbers of the rows shown, in their order.
    QStringList 行の番号() {
        QStringList n;
        const 部品& L = c(欄::List出金検索);
        for (int r = 0; r < L.項目.size(); ++r) n << L.セル(r, 1);
        return n;
    }
    QString 焦点() const {
        const 部品* p = w->画面.フォーカス();
        return p ? p->名前 : QString();
    }

    std::unique_ptr<frm紺碧帳> f;
    std::unique_ptr<wnd出金検索> w;
    std::function<void(wnd出金検索&)> 操作;
};

TEST_P(wnd出金検索試験, 条件を打って検索しEnterで選んだ伝票が入力画面に出て窓は閉じる) {
    ASSERT_TRUE(s->新規情報フラグ);
    QStringList 見えた;
    F9([&](wnd出金検索&) {
        EXPECT_EQ(焦点(), u"出金日付自"_qs);
        打つ(欄::出金日付自, u"20251101"_qs);
        打つ(欄::出金日付至, u"20251130"_qs);
        w->画面.操作_入力(c(欄::支払先), u"こもれび"_qs);
        押す(欄::btn_検索);
        見えた = 行の番号();
        EXPECT_EQ(焦点(), u"List出金検索"_qs);
        w->画面.操作_キー(c(欄::List出金検索), キーコード::Enter);
    });
    EXPECT_EQ(見えた, 番号({1, 6}));
    EXPECT_TRUE(基盤.閉じた画面.contains(u"wnd出金検索"_qs));
    EXPECT_FALSE(s->新規情報フラグ);
    EXPECT_EQ(s->見出し.鍵(), 鍵[0]);
    EXPECT_EQ(f->画面(u"出金No"_qs).Text, No[0]);
    EXPECT_EQ(s->行[1].支払先, u"喫茶こもれび"_qs);
    EXPECT_FALSE(f->状態.選択鍵.has_value());
}

TEST_P(wnd出金検索試験, 並べ替えた後も選んだ行の伝票を開き他の事業所の伝票も鍵のとおりに出る) {
    F9([&](wnd出金検索&) {
        押す(欄::btn_検索);
        ASSERT_EQ(行の番号(), 番号({1, 2, 6, 3, 4}));
        // By the total's text: 1,500 3,000 3,000 12,000 60,000 in text order.
        w->画面.操作_列クリック(c(欄::List出金検索), 6);
        ASSERT_EQ(行の番号().value(0), No[2]);
        w->画面.操作_項目ダブルクリック(c(欄::List出金検索), 0);
    });
    EXPECT_EQ(s->見出し.鍵(), 鍵[2]);
    F9([&](wnd出金検索&) {
        打つ(欄::事業所コード, u"1"_qs);
        押す(欄::btn_検索);
        ASSERT_EQ(行の番号(), 番号({6}));
        w->画面.操作_キー(c(欄::List出金検索), キーコード::Enter);
    });
    EXPECT_EQ(s->見出し.鍵(), 鍵[5]);
    EXPECT_EQ(s->見出し.事業所コード, u"001"_qs);
}

TEST_P(wnd出金検索試験, 削除した伝票ではその鍵で履歴の窓を開き検索の窓は残る) {
    wnd出金履歴 履歴窓(*s, f->画面);
    bool 閉じていた = true;
    F9([&](wnd出金検索&) {
        w->画面.操作_フォーカス(c(欄::chb_削除済));
        押す(欄::chb_削除済);
        押す(欄::btn_検索);
        ASSERT_EQ(行の番号(), 番号({5}));
        EXPECT_EQ(c(欄::List出金検索).セル(0, 8), u"削除"_qs);
        w->画面.操作_キー(c(欄::List出金検索), キーコード::Enter);
        閉じていた = 基盤.閉じた画面.contains(u"wnd出金検索"_qs);
    });
    EXPECT_FALSE(閉じていた);
    EXPECT_TRUE(基盤.表示画面.contains(qMakePair(u"wnd出金履歴"_qs, true)));
    EXPECT_EQ(f->状態.履歴鍵, 鍵[4].文字列());
    EXPECT_TRUE(s->新規情報フラグ);
    // The history window read that slip: its deletion first.
    部品& 状態 = 履歴窓.画面(u"lst_状態"_qs);
    ASSERT_FALSE(状態.項目.isEmpty());
    EXPECT_EQ(状態.セル(0, 1), u"削除"_qs);
    EXPECT_EQ(状態.セル(0, 2), 鍵[4].事業所コード + u'-' + 鍵[4].番号基準日付 + u'-' + 鍵[4].番号);
}

TEST_P(wnd出金検索試験, 書類を開くは選んだ行の最初の書類を開き書類のない伝票では知らせる) {
    F9([&](wnd出金検索&) {
        押す(欄::btn_検索);
        ASSERT_EQ(行の番号(), 番号({1, 2, 6, 3, 4}));
        EXPECT_EQ(c(欄::List出金検索).セル(3, 7), u"2"_qs);
        w->画面.操作_項目選択(c(欄::List出金検索), 0);
        押す(欄::btn_書類を開く);
        EXPECT_EQ(c(欄::lab_知らせ).Caption, u"この伝票に付属書類はありません。"_qs);
        EXPECT_TRUE(基盤.開いた文書.isEmpty());
        w->画面.操作_項目選択(c(欄::List出金検索), 3);
        押す(欄::btn_書類を開く);
    });
    ASSERT_EQ(基盤.開いた文書.size(), 1);
    EXPECT_TRUE(基盤.開いた文書[0].endsWith(u"領収書.txt"_qs)) << 基盤.開いた文書[0].toStdString();
    EXPECT_TRUE(QFileInfo::exists(基盤.開いた文書[0]));
    EXPECT_TRUE(s->新規情報フラグ);
}

TEST_P(wnd出金検索試験, 誤った条件と当たりのない検索は知らせに出て行は出ない) {
    F9([&](wnd出金検索&) {
        打つ(欄::出金日付自, u"20251131"_qs);
        押す(欄::btn_検索);
        EXPECT_EQ(c(欄::lab_知らせ).Caption, u"出金日付は YYYYMMDD の日付で指定してください。"_qs);
        EXPECT_EQ(行の番号(), QStringList());
        打つ(欄::出金日付自, u"20251130"_qs);
        打つ(欄::合計金額自, u"100000"_qs);
        押す(欄::btn_検索);
        EXPECT_EQ(c(欄::lab_知らせ).Caption, u"該当する伝票はありません。"_qs);
        打つ(欄::合計金額自, {});
        押す(欄::btn_検索);
        EXPECT_EQ(行の番号(), 番号({4}));
        EXPECT_EQ(c(欄::lab_知らせ).Caption, QString());
        押す(欄::btn_画面クリア);
        EXPECT_EQ(c(欄::出金日付自).Text, QString());
        EXPECT_EQ(行の番号(), QStringList());
    });
}

TEST_P(wnd出金検索試験, Escでは何も選ばずに閉じ次に開くと条件は空に戻る) {
    F9([&](wnd出金検索&) {
        打つ(欄::支払先, u"青葉堂"_qs);
        押す(欄::btn_検索);
        ASSERT_EQ(行の番号().size(), 2);
        w->画面.操作_キー(c(欄::List出金検索), キーコード::Esc);
    });
    EXPECT_TRUE(基盤.閉じた画面.contains(u"wnd出金検索"_qs));
    EXPECT_TRUE(s->新規情報フラグ);
    EXPECT_FALSE(f->状態.選択鍵.has_value());
    F9([&](wnd出金検索&) {
        EXPECT_EQ(c(欄::支払先).Text, QString());
        EXPECT_EQ(行の番号(), QStringList());
    });
}

KONPEKI_両エンジンで(wnd出金検索試験);

}  // namespace
