#include <QLineEdit>
#include <QScrollBar>

#include "common/文字列表示.h"
#include "ui/画面ウィンドウ.h"
#include "入力画面ウィンドウ試験.h"

namespace {

// A slip of fifteen lines typed into the real window with keys alone, never the mouse; the
// register question answered by a key in its own window.
class キーだけの十五行ウィンドウ : public 入力画面ウィンドウ試験 {
  protected:
    static constexpr int 全行数 = 15;  // a full slip
    void SetUp() override {
        入力画面ウィンドウ試験::SetUp();
        // The question comes up drawn from its model; Space presses the button it has focused.
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 != u"msg印刷確認") return;
            ScreenWindow 問い(f.印刷確認.画面);
            問い.show();
            QApplication::setActiveWindow(&問い);
            問い.反映();
            ++問いの数;
            問いの焦点 =
                f.印刷確認.画面.フォーカス() ? f.印刷確認.画面.フォーカス()->名前 : QString();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
            QApplication::setActiveWindow(窓);
        };
    }

    static QString 区分(int i) { return QString::number(i % 10 + 1).rightJustified(2, u'0'); }
    static QString 支払先(int i) { return u"支払先"_qs + QString::number(i + 1); }
    static QString 摘要(int i) {
        // The first line's description is longer than its field shows.
        return i == 0 ? 長い摘要 : u"摘要"_qs + QString::number(i + 1);
    }
    static qint64 額(int i) { return 100 * (i + 1); }
    inline static const QString 長い摘要 =
        u"北海道出張旅費 航空券 羽田-新千歳 往復 十一月十八日から二十日まで"_qs;

    // Qt's focus is on the widget of the named control of that row, and the model agrees.
    void 焦点は(const QString& 名前, int 行 = -1) {
        ASSERT_EQ(焦点(), 名前 + (行 < 0 ? QString() : QString::number(行)));
        ASSERT_EQ(QApplication::focusWidget(), w(名前, 行)) << 名前.toStdString() << 行;
    }
    void 打ってTab(const QString& 文字列) {
        打つ(文字列);
        Tab();
    }
    void ShiftTab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab); }
    // The staff member, then fifteen lines along class, payee, description and amount.
    void 十五行を打つ() {
        焦点は(u"担当者コード"_qs);
        打ってTab(u"7"_qs);
        for (int i = 0; i < 全行数; ++i) {
            const int r = qMin(i, 4);
            焦点は(u"費目区分"_qs, r);
            if (HasFatalFailure()) return;
            ASSERT_EQ(s.先頭行 + r, i);
            打ってTab(区分(i));
            焦点は(u"支払先"_qs, r);
            if (HasFatalFailure()) return;
            打ってTab(支払先(i));
            焦点は(u"摘要"_qs, r);
            if (HasFatalFailure()) return;
            打ってTab(摘要(i));
            焦点は(u"出金金額"_qs, r);
            if (HasFatalFailure()) return;
            打ってTab(QString::number(額(i)));
        }
        焦点は(u"出金伝票備考A"_qs);
    }
    // Remarks, and Tab out of the second: the question, answered "登録のみ" by a key.
    void 備考から登録() {
        打ってTab(u"十五行"_qs);
        焦点は(u"出金伝票備考B"_qs);
        打ってTab(u"キーだけ"_qs);
    }
    QList<QList<QVariant>> 明細行() {
        return 木.業務DB行(
            u"SELECT 出金No, 出金行No, 費目区分, 支払先, 摘要, 出金金額 FROM T出金明細 ORDER BY 出金No, 出金行No"_qs);
    }

    // Where the cursor stands in the field as drawn, from its left edge.
    static int 字の位置(QLineEdit* e) {
        e->grab();  // drawn once, so that the view follows the cursor
        return e->inputMethodQuery(Qt::ImCursorRectangle).toRect().left();
    }

    int 問いの数 = 0;
    QString 問いの焦点;
};

TEST_F(キーだけの十五行ウィンドウ, 十五行をキーだけで打ち問いもキーで答えると全行が表に入る) {
    十五行を打つ();
    if (HasFatalFailure()) return;
    EXPECT_EQ(static_cast<QScrollBar*>(w(u"scl_行"_qs))->value(), 10);
    // Back from the remarks to the last amount, and on again.
    ShiftTab();
    焦点は(u"出金金額"_qs, 4);
    Tab();
    焦点は(u"出金伝票備考A"_qs);
    備考から登録();
    EXPECT_EQ(問いの数, 1);
    EXPECT_EQ(問いの焦点, u"btn_登録"_qs);
    const auto 行 = 明細行();
    ASSERT_EQ(行.size(), 15);
    for (int i = 0; i < 15; ++i) {
        EXPECT_EQ(行[i][0].toString(), u"00000001"_qs) << i;
        EXPECT_EQ(行[i][2].toString(), 区分(i)) << i;
        EXPECT_EQ(行[i][3].toString(), 支払先(i)) << i;
        EXPECT_EQ(行[i][4].toString(), 摘要(i)) << i;
        EXPECT_EQ(行[i][5].toLongLong(), 額(i)) << i;
    }
    const auto 頭 = 木.業務DB行(u"SELECT 担当者コード, 出金金額合計, 出金伝票備考B FROM T出金"_qs);
    ASSERT_EQ(頭.size(), 1);
    EXPECT_EQ(頭[0][0].toString(), u"00007"_qs);
    EXPECT_EQ(頭[0][1].toLongLong(), 12000);
    EXPECT_EQ(頭[0][2].toString(), u"キーだけ"_qs);
    // The next slip, and the focus back on the staff code.
    EXPECT_EQ(欄(u"出金No"_qs)->text(), u"00000002"_qs);
    焦点は(u"担当者コード"_qs);
    一致を確かめる();
}

TEST_F(キーだけの十五行ウィンドウ, ShiftTabで全行を遡ると焦点はいつも見えている欄にある) {
    十五行を打つ();
    if (HasFatalFailure()) return;
    // Back from the remarks through every line; across the top row the grid scrolls up.
    for (int k = 0; k < 80 && !(s.先頭行 == 0 && 焦点() == u"費目区分0"); ++k) {
        ShiftTab();
        auto* e = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(e, nullptr) << 焦点().toStdString();
        ASSERT_EQ(e, w(f.画面.フォーカス()->名前, f.画面.フォーカス()->添字));
        ASSERT_TRUE(e->isVisible()) << 焦点().toStdString();
        ASSERT_GE(e->width(), 20) << 焦点().toStdString();
    }
    EXPECT_EQ(s.先頭行, 0);
    EXPECT_EQ(static_cast<QScrollBar*>(w(u"scl_行"_qs))->value(), 0);
    // The keys go on from there along the first line.
    Tab();
    焦点は(u"支払先"_qs, 0);
    欄(u"支払先"_qs, 0)->selectAll();
    打ってTab(u"書き直し"_qs);
    EXPECT_EQ(s.行[0].支払先, u"書き直し"_qs);
    一致を確かめる();
}

TEST_F(キーだけの十五行ウィンドウ, 読み込んだ十五行はTabで全行たどれ長い摘要は頭から見える) {
    十五行を打つ();
    if (HasFatalFailure()) return;
    備考から登録();
    ASSERT_EQ(明細行().size(), 15);
    // Back to the slip number and the stored slip by its number.
    ShiftTab();
    焦点は(u"出金No"_qs);
    欄(u"出金No"_qs)->selectAll();
    打ってTab(u"1"_qs);
    ASSERT_FALSE(s.新規情報フラグ);
    ASSERT_EQ(s.最終行, 14);
    焦点は(u"担当者コード"_qs);
    // A text put there by the program shows from its first character.
    QLineEdit* 長い = 欄(u"摘要"_qs, 0);
    EXPECT_EQ(長い->text(), 長い摘要);
    EXPECT_EQ(長い->cursorPosition(), 0);
    ASSERT_GT(長い->fontMetrics().horizontalAdvance(長い摘要), 長い->width());
    EXPECT_LT(字の位置(長い), 長い->width() / 4);

    Tab();
    for (int i = 0; i < 全行数; ++i) {
        const int r = qMin(i, 4);
        焦点は(u"費目区分"_qs, r);
        if (HasFatalFailure()) return;
        Tab();
        焦点は(u"支払先"_qs, r);
        if (HasFatalFailure()) return;
        Tab();
        焦点は(u"摘要"_qs, r);
        if (HasFatalFailure()) return;
        if (i == 0) {
            // The operator's own keys move the view: to the end, and a word added there.
            EXPECT_EQ(長い->cursorPosition(), 0);
            QTest::keyClick(長い, Qt::Key_End);
            打つ(u"迄"_qs);
            EXPECT_EQ(長い->cursorPosition(), 長い摘要.size() + 1);
            EXPECT_GT(字の位置(長い), 長い->width() / 2);
            EXPECT_LE(字の位置(長い), 長い->width());
        }
        Tab();
        焦点は(u"出金金額"_qs, r);
        if (HasFatalFailure()) return;
        // Keys typed into a field the focus has just come to replace what the program put there.
        if (i == 13) 打つ(u"1500"_qs);
        Tab();
    }
    焦点は(u"出金伝票備考A"_qs);
    EXPECT_EQ(s.行[13].出金金額, 金額::円(1500));
    EXPECT_EQ(s.行[0].摘要, 長い摘要 + u"迄"_qs);
    EXPECT_EQ(s.先頭行, 10);
    一致を確かめる();
}

}  // namespace
