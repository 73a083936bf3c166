#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>
#include <QWheelEvent>

#include "入力画面ウィンドウ試験.h"

namespace {

TEST_F(入力画面ウィンドウ試験, 開くと担当者コードに焦点があり題名と幅は画面の通り) {
    EXPECT_EQ(窓->windowTitle(), u"株式会社紺碧商事（紺碧帳）"_qs);
    EXPECT_EQ(窓->width() * 15, 12375);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    EXPECT_EQ(QApplication::focusWidget(), w(u"担当者コード"_qs));
    EXPECT_EQ(static_cast<QLineEdit*>(w(u"出金No"_qs))->text(), u"00000001"_qs);
    一致を確かめる();
}

TEST_F(入力画面ウィンドウ試験, 担当者と二行をキーで打つと画面と部品が揃う) {
    打つ(u"3"_qs);
    Tab();
    EXPECT_EQ(s.見出し.担当者コード, u"00003"_qs);
    EXPECT_EQ(static_cast<QLineEdit*>(w(u"担当者名"_qs))->text(), u"上田 健一"_qs);
    EXPECT_EQ(焦点(), u"費目区分0"_qs);
    for (int i = 0; i < 2; ++i) {
        打つ(u"3"_qs);
        Tab();
        支払先までTab();
        ASSERT_EQ(f.画面.フォーカス()->名前, u"支払先"_qs);
        打つ(u"文具店"_qs);
        Tab();
        打つ(u"用紙"_qs);
        Tab();
        打つ(QString::number(1000 * (i + 1)));
        Tab();
    }
    EXPECT_EQ(s.最終行, 1);
    EXPECT_EQ(s.行[1].出金金額, 金額::円(2000));
    EXPECT_EQ(s.行[1].摘要, u"用紙"_qs);
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(3000));
    EXPECT_EQ(static_cast<QLineEdit*>(w(u"出金金額合計"_qs))->text(), u"3,000"_qs);
    EXPECT_EQ(static_cast<QLineEdit*>(w(u"出金消費税"_qs, 1))->text(), u"200"_qs);
    EXPECT_EQ(static_cast<QComboBox*>(w(u"費目区分名称"_qs, 0))->currentText(), u"消耗品費"_qs);
    EXPECT_EQ(焦点(), u"費目区分2"_qs);
    一致を確かめる();
}

TEST_F(入力画面ウィンドウ試験, エンターは一行欄でTabとして働く) {
    打つ(u"3"_qs);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(s.見出し.担当者コード, u"00003"_qs);
    EXPECT_EQ(焦点(), u"費目区分0"_qs);
}

TEST_F(入力画面ウィンドウ試験, 明細を押しても見出しの空きがあれば空きへ戻る) {
    QTest::mouseClick(w(u"摘要"_qs, 2), Qt::LeftButton);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    EXPECT_EQ(QApplication::focusWidget(), w(u"担当者コード"_qs));
}

TEST_F(入力画面ウィンドウ試験, 切替の釦で税別の枠が現れ戻る) {
    QTest::mouseClick(w(u"btn_軽減税率切替"_qs), Qt::LeftButton);
    EXPECT_TRUE(s.軽減税率表示);
    EXPECT_TRUE(w(u"bak_税別合計"_qs)->isVisible());
    EXPECT_TRUE(w(u"前回税率出金金額合計"_qs)->isVisible());
    EXPECT_EQ(static_cast<QLabel*>(w(u"itm_ttl_今回税率合計"_qs))->text(), u"合計(10%)"_qs);
    配置と文字を確かめる();
    写真(u"軽減税率表示"_qs);
    QTest::mouseClick(w(u"btn_通常表示切替"_qs), Qt::LeftButton);
    EXPECT_FALSE(w(u"bak_税別合計"_qs)->isVisible());
}

TEST_F(入力画面ウィンドウ試験, 新規伝票の帯の中で部品は重ならない) {
    配置と文字を確かめる();
    EXPECT_EQ(static_cast<QPushButton*>(w(u"btn_行複写"_qs))->text(), u"前行複写"_qs);
    EXPECT_EQ(static_cast<QLabel*>(w(u"itm_ttl_出金日付"_qs))->text(), u"出金日付"_qs);
    EXPECT_EQ(w(u"出金日付年"_qs)->geometry(), QRect(66, 40, 40, 22));
    EXPECT_FALSE(w(u"List付属書類"_qs)->isVisible());  // page 1 of the tab is not up
    EXPECT_TRUE(w(u"摘要"_qs, 4)->isVisible());
    写真(u"新規伝票"_qs);
    // Containers hold others by design; the end controls stand off the working area.
    QSet<QString> 入れ物;
    for (部品* p : f.画面.全部品()) {
        if (p->親) 入れ物.insert(p->親->名前);
    }
    入れ物 << u"tab_詳細"_qs;
    QList<QPair<部品*, QRect>> 見える;
    for (部品* p : f.画面.全部品()) {
        QWidget* x = 窓->ウィジェット(*p);
        if (!x || !x->isVisible() || 入れ物.contains(p->名前) || p->Left < 0) continue;
        見える.append({p, x->geometry()});
    }
    for (int i = 0; i < 見える.size(); ++i) {
        for (int j = i + 1; j < 見える.size(); ++j) {
            EXPECT_FALSE(見える[i].second.intersects(見える[j].second))
                << 見える[i].first->名前.toStdString() << 見える[i].first->添字 << " / "
                << 見える[j].first->名前.toStdString() << 見える[j].first->添字;
        }
    }
}

TEST_F(入力画面ウィンドウ試験, 七行の伝票は下へ送られて見える) {
    打つ(u"3"_qs);
    Tab();
    for (int i = 0; i < 7; ++i) {
        打つ(u"3"_qs);
        Tab();
        支払先までTab();
        打つ(u"東京交通"_qs);
        Tab();
        打つ(u"タクシー代"_qs);
        Tab();
        打つ(QString::number(1000 + i));
        Tab();
    }
    EXPECT_EQ(s.最終行, 6);
    EXPECT_EQ(s.先頭行, 3);
    auto* 棒 = w(u"scl_行"_qs);
    EXPECT_TRUE(棒->isEnabled());
    EXPECT_EQ(static_cast<QLineEdit*>(w(u"出金金額"_qs, 3))->text(), u"1006"_qs);
    一致を確かめる();
    配置と文字を確かめる();
    EXPECT_EQ(欄(u"摘要"_qs, 0)->text(), u"タクシー代"_qs);
    EXPECT_EQ(欄(u"出金金額"_qs, 0)->text(), u"1003"_qs);
    EXPECT_EQ(欄(u"費目区分"_qs, 4)->text(), QString());  // the blank row after the lines
    EXPECT_EQ(static_cast<QScrollBar*>(棒)->value(), 3);
    EXPECT_EQ(static_cast<QScrollBar*>(棒)->maximum(), 3);
    写真(u"七行"_qs);
}

TEST_F(入力画面ウィンドウ試験, 数の欄は数字でない鍵を取らず桁で止まる) {
    QTest::mouseClick(w(u"出金日付年"_qs), Qt::LeftButton);
    ASSERT_EQ(焦点(), u"出金日付年"_qs);
    欄(u"出金日付年"_qs)->selectAll();
    打つ(u"2o26x7"_qs);
    EXPECT_EQ(欄(u"出金日付年"_qs)->text(), u"2267"_qs);
    打つ(u"1"_qs);
    EXPECT_EQ(欄(u"出金日付年"_qs)->text(), u"2267"_qs);
    Tab();
    EXPECT_EQ(s.見出し.出金日付年, u"2267"_qs);

    QTest::mouseClick(w(u"担当者コード"_qs), Qt::LeftButton);
    打つ(u"3"_qs);
    Tab();
    ASSERT_EQ(焦点(), u"費目区分0"_qs);
    打つ(u"99"_qs);
    EXPECT_EQ(欄(u"費目区分"_qs, 0)->text(), u"9"_qs);
    Tab();
    支払先までTab();
    Tab();
    Tab();
    ASSERT_EQ(焦点(), u"出金金額0"_qs);
    欄(u"出金金額"_qs, 0)->selectAll();
    打つ(u"taxi"_qs);
    EXPECT_EQ(欄(u"出金金額"_qs, 0)->text(), u"0"_qs);  // not one of the keys was taken
    打つ(u"-123456789012"_qs);
    EXPECT_EQ(欄(u"出金金額"_qs, 0)->text(), u"-1234567890"_qs);
}

TEST_F(入力画面ウィンドウ試験, 見出しに空きがあれば課税事業所の印を押しても変わらず空きへ行く) {
    QTest::mouseClick(w(u"chb_課税事業所区分"_qs, 0), Qt::LeftButton);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    EXPECT_FALSE(static_cast<QCheckBox*>(w(u"chb_課税事業所区分"_qs, 0))->isChecked());
    EXPECT_EQ(s.行[0].課税事業所区分, 0);
    一致を確かめる();
}

TEST_F(入力画面ウィンドウ試験, 閉じた一覧とタブの上で車輪を回しても何も変わらない) {
    打つ(u"3"_qs);
    Tab();
    打つ(u"3"_qs);
    Tab();
    auto* 一覧 = static_cast<QComboBox*>(w(u"費目区分名称"_qs, 0));
    ASSERT_TRUE(一覧->isEnabled());
    ASSERT_EQ(一覧->currentIndex(), 2);
    auto 回す = [](QWidget* 先) {
        const QPoint 中 = 先->rect().center();
        QWheelEvent 車輪(中, 先->mapToGlobal(中), QPoint(), QPoint(0, -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(先, &車輪);
    };
    回す(一覧);
    EXPECT_EQ(一覧->currentIndex(), 2);
    EXPECT_EQ(s.行[0].費目区分, 3);
    auto* タブ = static_cast<QTabBar*>(w(u"tab_詳細"_qs));
    ASSERT_TRUE(タブ->isEnabled());
    回す(タブ);
    EXPECT_EQ(タブ->currentIndex(), 0);
    EXPECT_EQ(c(u"tab_詳細"_qs).Value, 0);
}

TEST_F(入力画面ウィンドウ試験, 押した釦は焦点を取り打った欄はその前に確定する) {
    打つ(u"3"_qs);
    Tab();
    打つ(u"3"_qs);
    Tab();
    ASSERT_EQ(s.最終行, 0);
    QTest::mouseClick(w(u"摘要"_qs, 0), Qt::LeftButton);
    ASSERT_EQ(焦点(), u"摘要0"_qs);
    打つ(u"用紙"_qs);
    QTest::mouseClick(w(u"btn_行挿入"_qs), Qt::LeftButton);
    // The field was left for the button, so its text is the line's before the line moved down.
    EXPECT_EQ(s.最終行, 1);
    EXPECT_EQ(s.行[1].摘要, u"用紙"_qs);
    EXPECT_EQ(焦点(), u"費目区分0"_qs);
    EXPECT_FALSE(c(u"btn_行挿入"_qs).Enabled);  // the buttons follow the row the focus is on
    一致を確かめる();
}

TEST_F(入力画面ウィンドウ試験, 題の枠を押すとその項目を得たのと同じく見出しの空きへ送られる) {
    QTest::mouseClick(w(u"itm_ttl_出金金額"_qs), Qt::LeftButton);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    // The panel ran the amount's got-focus, and the focus never left the staff code.
    EXPECT_EQ(f.状態.入力中項目, &c(u"出金金額"_qs, 0));
    一致を確かめる();
}

}  // namespace

namespace {

TEST_F(入力画面ウィンドウ試験, 窓で打った伝票を備考Bから登録すると次の新規伝票が出る) {
    基盤.画面表示時 = [this](const QString& 名) {
        if (名 == u"msg印刷確認") f.印刷確認.画面.操作_クリック(f.印刷確認.画面(u"btn_登録"_qs));
    };
    打つ(u"3"_qs);
    Tab();
    打つ(u"3"_qs);
    Tab();
    支払先までTab();
    打つ(u"文具店"_qs);
    Tab();
    打つ(u"用紙"_qs);
    Tab();
    打つ(u"1200"_qs);
    Tab();
    QTest::mouseClick(w(u"出金伝票備考A"_qs), Qt::LeftButton);
    打つ(u"十一月分"_qs);
    Tab();
    Tab();
    const auto 行 = 木.業務DB行(u"SELECT 出金No, 出金金額合計, 出金伝票備考A FROM T出金"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][0].toString(), u"00000001"_qs);
    EXPECT_EQ(行[0][1].toLongLong(), 1200);
    EXPECT_EQ(行[0][2].toString(), u"十一月分"_qs);
    EXPECT_EQ(欄(u"出金No"_qs)->text(), u"00000002"_qs);
    EXPECT_EQ(欄(u"担当者コード"_qs)->text(), QString());
    EXPECT_EQ(欄(u"摘要"_qs, 0)->text(), QString());
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    一致を確かめる();
    写真(u"登録の後"_qs);
}

TEST_F(入力画面ウィンドウ試験, 付属書類の頁で足した書類の大きさは列の右に寄る) {
    基盤.画面表示時 = [this](const QString& 名) {
        if (名 == u"msg印刷確認") f.印刷確認.画面.操作_クリック(f.印刷確認.画面(u"btn_登録"_qs));
    };
    打つ(u"3"_qs);
    Tab();
    打つ(u"3"_qs);
    Tab();
    支払先までTab();
    Tab();
    Tab();
    打つ(u"1200"_qs);
    Tab();
    QTest::mouseClick(w(u"btn_登録"_qs), Qt::LeftButton);
    QTest::mouseClick(w(u"btn_前No"_qs), Qt::LeftButton);
    ASSERT_EQ(欄(u"出金No"_qs)->text(), u"00000001"_qs);
    auto* タブ = static_cast<QTabBar*>(w(u"tab_詳細"_qs));
    QTest::mouseClick(タブ, Qt::LeftButton, {}, タブ->tabRect(1).center());
    ASSERT_EQ(c(u"tab_詳細"_qs).Value, 1);
    QFile 書類(木.根() + u"/領収書.pdf"_qs);
    ASSERT_TRUE(書類.open(QIODevice::WriteOnly));
    書類.write(QByteArray(3000, 'x'));
    書類.close();
    基盤.選択回答.enqueue(書類.fileName());
    QTest::mouseClick(w(u"btn_付属書類追加"_qs), Qt::LeftButton);
    auto* 一覧 = qobject_cast<QTreeWidget*>(w(u"List付属書類"_qs));
    ASSERT_NE(一覧, nullptr);
    ASSERT_EQ(一覧->topLevelItemCount(), 1);
    EXPECT_EQ(一覧->topLevelItem(0)->text(0), u"領収書"_qs);
    EXPECT_TRUE(一覧->topLevelItem(0)->text(1).endsWith(u"KB"_qs));
    // The size and its heading stand at the right, the title at the left.
    EXPECT_EQ(一覧->topLevelItem(0)->textAlignment(1) & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    EXPECT_EQ(一覧->headerItem()->textAlignment(1) & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    EXPECT_NE(一覧->topLevelItem(0)->textAlignment(0) & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    写真(u"付属書類"_qs);
}

}  // namespace

namespace {

// A working day in the real window, by keys and clicks: three slips, back to the first, a
// correction, a deletion answered No and then Yes, a clear, a quit answered No and then Yes.
TEST_F(入力画面ウィンドウ試験, 一日の業務をキーと釦で進めると表がその通りになる) {
    基盤.画面表示時 = [this](const QString& 名) {
        if (名 == u"msg印刷確認") f.印刷確認.画面.操作_クリック(f.印刷確認.画面(u"btn_登録"_qs));
    };
    int 停止 = 0;
    f.停止 = [&] { ++停止; };
    auto 数 = [this](const char* 表) {
        return 木.業務DB行(u"SELECT COUNT(*) FROM "_qs + QString::fromUtf8(表))[0][0].toInt();
    };
    auto 一枚 = [this](int 行数) {
        QTest::mouseClick(w(u"担当者コード"_qs), Qt::LeftButton);
        打つ(u"3"_qs);
        Tab();
        for (int i = 0; i < 行数; ++i) {
            打つ(u"3"_qs);
            Tab();
            支払先までTab();
            Tab();
            Tab();
            打つ(QString::number(1000 * (i + 1)));
            Tab();
        }
        QTest::mouseClick(w(u"btn_登録"_qs), Qt::LeftButton);
    };
    一枚(1);
    一枚(2);
    一枚(3);
    EXPECT_EQ(数("T出金"), 3);
    EXPECT_EQ(数("T出金明細"), 6);
    EXPECT_EQ(欄(u"出金No"_qs)->text(), u"00000004"_qs);

    for (int i = 0; i < 3; ++i) QTest::mouseClick(w(u"btn_前No"_qs), Qt::LeftButton);
    EXPECT_EQ(欄(u"出金No"_qs)->text(), u"00000001"_qs);
    EXPECT_EQ(数("T閲覧"), 3);

    QTest::mouseClick(w(u"費目区分"_qs, 0), Qt::LeftButton);
    支払先までTab();
    Tab();
    Tab();
    ASSERT_EQ(焦点(), u"出金金額0"_qs);
    欄(u"出金金額"_qs, 0)->selectAll();
    打つ(u"1500"_qs);
    Tab();
    QTest::mouseClick(w(u"btn_登録"_qs), Qt::LeftButton);
    EXPECT_EQ(数("R出金"), 1);
    EXPECT_EQ(木.業務DB行(u"SELECT 出金金額合計 FROM T出金 WHERE 出金No = '00000001'"_qs)[0][0]
                  .toLongLong(),
              1500);

    QTest::mouseClick(w(u"出金No"_qs), Qt::LeftButton);
    欄(u"出金No"_qs)->selectAll();
    打つ(u"2"_qs);
    Tab();
    基盤.回答.enqueue(応答::いいえ);
    QTest::mouseClick(w(u"btn_削除"_qs), Qt::LeftButton);
    EXPECT_EQ(数("T出金"), 3);
    基盤.回答.enqueue(応答::はい);
    QTest::mouseClick(w(u"btn_削除"_qs), Qt::LeftButton);
    EXPECT_EQ(数("T出金"), 2);
    EXPECT_EQ(数("未集計情報"), 6);
    EXPECT_EQ(欄(u"出金No"_qs)->text(), u"00000004"_qs);

    QTest::mouseClick(w(u"担当者コード"_qs), Qt::LeftButton);
    打つ(u"3"_qs);
    Tab();
    基盤.回答.enqueue(応答::はい);
    QTest::mouseClick(w(u"btn_画面クリア"_qs), Qt::LeftButton);
    EXPECT_EQ(欄(u"担当者コード"_qs)->text(), QString());

    QTest::mouseClick(w(u"担当者コード"_qs), Qt::LeftButton);
    打つ(u"5"_qs);
    Tab();
    基盤.回答.enqueue(応答::いいえ);
    QTest::mouseClick(w(u"btn_終了"_qs), Qt::LeftButton);
    EXPECT_EQ(停止, 0);
    基盤.回答.enqueue(応答::いいえ);
    窓->close();  // the frame's close asks the same, and No keeps the window
    EXPECT_TRUE(窓->isVisible());
    一致を確かめる();
    基盤.回答.enqueue(応答::はい);
    窓->close();
    EXPECT_EQ(停止, 1);
    EXPECT_EQ(基盤.表示文言().last(), u"入力がありました。\r終了しますか？"_qs);
    EXPECT_FALSE(窓->isVisible());
}

}  // namespace
