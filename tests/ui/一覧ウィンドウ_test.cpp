#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <functional>
#include <memory>

#include "common/人事連携試験.h"
#include "common/出金入力.h"
#include "common/出金準備.h"
#include "lists/一覧画面集.h"
#include "screen/frm紺碧帳.h"
#include "ui/Qtプラットフォーム.h"
#include "ui/画面ウィンドウ.h"
#include "ui/窓の操作.h"

namespace {

// The entry window and the list windows as the program shows them: real modal windows over the
// entry window, driven by real keys and clicks.
class 一覧ウィンドウ試験 : public ::testing::Test {
  protected:
    一覧ウィンドウ試験() : 一覧ウィンドウ試験(false) {}
    // With the HR system's tree beside the company's, the link open at the start.
    explicit 一覧ウィンドウ試験(bool 人事あり) : 木(QString(), 人事あり) {}

    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        出金セッション準備(s, 木);
        if (HasFatalFailure()) return;
        // A tree with the HR system beside it: the link opens as the start opens it.
        s.白樺連携フラグ = s.データ.人事連携選択(u"白樺"_qs);
        if (s.白樺連携フラグ) {
            ASSERT_TRUE(s.データ.人事連携開始());
        }
        f.画面読込([this] { s.出金情報初期化(); });
        for (const auto& x : 集.全部()) 基盤.画面登録(x->画面.名前, x->画面);
        主窓 = std::make_unique<ScreenWindow>(f.画面);
        主窓->show();
        QApplication::setActiveWindow(主窓.get());
        主窓->反映();
    }

    部品& c(const QString& 名前, int 行 = -1) { return f.画面(名前, 行); }
    QWidget* 主(const QString& 名前, int 行 = -1) { return 主窓->ウィジェット(c(名前, 行)); }
    QString 焦点() const {
        const 部品* p = f.画面.フォーカス();
        return p ? p->名前 : QString();
    }
    // What the operator does once the list window with that title is up. The window comes up
    // inside the click that opens it, so the operator looks for it until it is there; a window
    // that never comes is a failure, and every list is closed so that the test ends.
    void 窓で(const QString& 題, std::function<void(ScreenWindow&, 画面モデル&)> 手) {
        窓の操作::窓が出たら(
            主窓.get(), 題,
            [this, 題, 手](ScreenWindow& 窓) {
                写真(&窓, 題);
                手(窓, 集.探す(u"wnd"_qs + 題)->画面);
            },
            [this] {
                for (const auto& x : 集.全部()) 基盤.画面終了(x->画面.名前);
            });
    }
    static void 写真(QWidget* 窓, const QString& 名前) {
        QDir().mkpath(QStringLiteral(KONPEKI_ARTIFACTS));
        窓->grab().save(QStringLiteral(KONPEKI_ARTIFACTS) + u"/"_qs + 名前 + u".png"_qs);
    }
    // Keys go to the widget of the control that holds the model's focus in that window.
    static QWidget* 焦点の窓部品(ScreenWindow& 窓, 画面モデル& m) {
        return m.フォーカス() ? 窓.ウィジェット(*m.フォーカス()) : nullptr;
    }
    static void キー(ScreenWindow& 窓, 画面モデル& m, Qt::Key k) {
        QTest::keyClick(焦点の窓部品(窓, m), k);
    }
    // Typed as an input method commits it, then Tab.
    static void 打つ(ScreenWindow& 窓, 画面モデル& m, const QString& 欄, const QString& 文字列) {
        QTest::mouseClick(窓.ウィジェット(m(欄)), Qt::LeftButton);
        QInputMethodEvent 確定;
        確定.setCommitString(文字列);
        QApplication::sendEvent(焦点の窓部品(窓, m), &確定);
        キー(窓, m, Qt::Key_Tab);
    }
    static void 押す(ScreenWindow& 窓, 画面モデル& m, const QString& 釦) {
        QTest::mouseClick(窓.ウィジェット(m(釦)), Qt::LeftButton);
    }
    // A stored slip of staff 00003 with one line of that description.
    void 保存(const QString& 日付, const QString& 摘要) {
        s.出金情報初期化();
        出金日付入力(s, 日付);
        ASSERT_TRUE(担当者入力(s, u"00003"_qs));
        ASSERT_TRUE(明細入力(s, 3, 金額::円(500), {}, 摘要));
        ASSERT_TRUE(s.新規登録処理());
        s.出金情報初期化();
        f.画面全表示();
        主窓->反映();
    }

    試験用ツリー 木;
    Qtプラットフォーム 基盤;
    出金セッション s{基盤};
    frm紺碧帳 f{s};
    一覧画面集 集{s, f.画面};
    std::unique_ptr<ScreenWindow> 主窓;
};

class 人事一覧ウィンドウ試験 : public 一覧ウィンドウ試験 {
  protected:
    人事一覧ウィンドウ試験() : 一覧ウィンドウ試験(true) {}
};

TEST_F(人事一覧ウィンドウ試験, 出張申請No一覧で社員を打って探しキーで選ぶと番号が入り担当者へ進む) {
    ASSERT_TRUE(s.白樺連携フラグ);
    ASSERT_TRUE(主(u"btn_出張申請No"_qs)->isVisible());
    窓で(u"出張申請No一覧"_qs, [](ScreenWindow& 窓, 画面モデル& m) {
        auto* 一覧 = qobject_cast<QTreeWidget*>(窓.ウィジェット(m(u"List出張申請No"_qs)));
        ASSERT_NE(一覧, nullptr);
        EXPECT_EQ(一覧->headerItem()->text(3), u"社員名"_qs);
        EXPECT_EQ(一覧->headerItem()->text(6), u"区分"_qs);
        EXPECT_EQ(一覧->columnWidth(3), 2000 / 15);
        EXPECT_EQ(一覧->columnWidth(5), 850 / 15);
        打つ(窓, m, u"社員コード"_qs, u"5"_qs);
        EXPECT_EQ(qobject_cast<QLineEdit*>(窓.ウィジェット(m(u"社員名"_qs)))->text(),
                  u"大野 大輔"_qs);
        押す(窓, m, u"btn_社員コード検索"_qs);
        // His applications of every year, the latest first.
        ASSERT_EQ(一覧->topLevelItemCount(), 2);
        EXPECT_EQ(一覧->topLevelItem(0)->text(0), u"00000001"_qs);
        EXPECT_EQ(一覧->topLevelItem(1)->text(0), u"00000044"_qs);
        EXPECT_EQ(一覧->topLevelItem(0)->text(6), u"国内宿泊"_qs);
        EXPECT_EQ(焦点の窓部品(窓, m), 一覧);
        写真(&窓, u"出張申請No一覧_検索後"_qs);
        キー(窓, m, Qt::Key_Return);
    });
    QTest::mouseClick(主(u"btn_出張申請No"_qs), Qt::LeftButton);
    EXPECT_EQ(c(u"出張申請No"_qs).Text, u"00000001"_qs);
    EXPECT_EQ(qobject_cast<QLineEdit*>(主(u"出張申請No"_qs))->text(), u"00000001"_qs);
    // The field's leave took the row's key: office and base date of the pick, its three lines.
    EXPECT_TRUE(f.状態.一覧.条件.isEmpty());
    EXPECT_EQ(s.見出し.出張申請事業所コード, u"000"_qs);
    EXPECT_EQ(s.見出し.出張申請番号基準日付, u"20270331"_qs);
    EXPECT_EQ(s.最終行, 2);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
    EXPECT_EQ(主窓->focusWidget(), 主(u"担当者コード"_qs));
}

TEST_F(人事一覧ウィンドウ試験,
       出張申請No一覧の社員コードでCtrlを押すと社員一覧が開き選んだ社員で探せる) {
    // With the header's staff entered the order guard lets the focus come back to the number.
    ASSERT_TRUE(f.担当者確定(u"00005"_qs));
    f.見出し表示();
    主窓->反映();
    窓で(u"出張申請No一覧"_qs, [this](ScreenWindow& 窓, 画面モデル& m) {
        窓で(u"社員一覧"_qs, [this](ScreenWindow& 社員窓, 画面モデル& 社員) {
            auto* 一覧 = qobject_cast<QTreeWidget*>(社員窓.ウィジェット(社員(u"List社員"_qs)));
            ASSERT_NE(一覧, nullptr);
            EXPECT_EQ(一覧->headerItem()->text(4), u"セクション"_qs);
            EXPECT_EQ(一覧->columnWidth(1), 2500 / 15);
            // One click in the department code opens the department list over it.
            auto 開いた = std::make_shared<bool>(false);
            窓で(u"部門一覧"_qs, [開いた](ScreenWindow& 部門窓, 画面モデル& 部門) {
                *開いた = true;
                キー(部門窓, 部門, Qt::Key_Escape);
            });
            QTest::mouseClick(社員窓.ウィジェット(社員(u"部門コード"_qs)), Qt::LeftButton);
            EXPECT_TRUE(*開いた);
            EXPECT_EQ(社員.フォーカス(), &社員(u"部門コード"_qs));
            打つ(社員窓, 社員, u"カナ"_qs, u"クドウ"_qs);
            押す(社員窓, 社員, u"btn_カナ検索"_qs);
            ASSERT_EQ(一覧->topLevelItemCount(), 1);
            EXPECT_EQ(一覧->topLevelItem(0)->text(1), u"工藤 直樹"_qs);
            EXPECT_EQ(一覧->topLevelItem(0)->text(2), u"大阪支店"_qs);
            写真(&社員窓, u"社員一覧_検索後"_qs);
            キー(社員窓, 社員, Qt::Key_Return);
        });
        QTest::mouseClick(窓.ウィジェット(m(u"社員コード"_qs)), Qt::LeftButton);
        QTest::keyClick(焦点の窓部品(窓, m), Qt::Key_Control);
        EXPECT_EQ(qobject_cast<QLineEdit*>(窓.ウィジェット(m(u"社員コード"_qs)))->text(),
                  u"00008"_qs);
        EXPECT_EQ(qobject_cast<QLineEdit*>(窓.ウィジェット(m(u"社員名"_qs)))->text(),
                  u"工藤 直樹"_qs);
        EXPECT_EQ(m.フォーカス(), &m(u"btn_社員コード検索"_qs));
        押す(窓, m, u"btn_社員コード検索"_qs);
        auto* 一覧 = qobject_cast<QTreeWidget*>(窓.ウィジェット(m(u"List出張申請No"_qs)));
        ASSERT_EQ(一覧->topLevelItemCount(), 1);
        EXPECT_EQ(一覧->topLevelItem(0)->text(0), u"00000002"_qs);
        キー(窓, m, Qt::Key_Escape);
    });
    QTest::mouseClick(主(u"btn_出張申請No"_qs), Qt::LeftButton);
    EXPECT_TRUE(c(u"出張申請No"_qs).Text.isEmpty());
    EXPECT_EQ(焦点(), u"出張申請No"_qs);
}

// The whole take-over as an operator does it: the staff, the trip list from the entry screen, a
// pick, the lines on the screen, the store; the slip lands in the company's database and the HR
// database is left as it was.
TEST_F(人事一覧ウィンドウ試験, 出張申請を選ぶと旅費が行になり保存すると伝票だけが書かれる) {
    基盤.画面登録(f.印刷確認.画面.名前, f.印刷確認.画面);
    基盤.画面登録(f.お待ち.画面.名前, f.お待ち.画面);
    const auto 人事の行 = [this] {
        QList<QVariantList> 行;
        for (const char16_t* 表 :
             {u"T出張申請", u"T出張旅費", u"A番号情報", u"A事業所別番号情報"}) {
            行 += 木.人事DB行(u"SELECT * FROM "_qs + QString::fromUtf16(表));
        }
        return 行;
    };
    const auto 前 = 人事の行();
    // A slip of a fixed day, so that the list's year before it holds the application.
    出金日付入力(s, u"20261120"_qs);
    f.画面全表示();
    主窓->反映();
    QTest::mouseClick(主(u"担当者コード"_qs), Qt::LeftButton);
    QInputMethodEvent 確定;
    確定.setCommitString(u"1"_qs);
    QApplication::sendEvent(主(u"担当者コード"_qs), &確定);
    QTest::keyClick(主(u"担当者コード"_qs), Qt::Key_Tab);
    ASSERT_EQ(焦点(), u"出張申請No"_qs);

    窓で(u"出張申請No一覧"_qs, [](ScreenWindow& 窓, 画面モデル& m) {
        押す(窓, m, u"btn_複合検索"_qs);
        auto* 一覧 = qobject_cast<QTreeWidget*>(窓.ウィジェット(m(u"List出張申請No"_qs)));
        ASSERT_EQ(一覧->topLevelItemCount(), 1);
        EXPECT_EQ(一覧->topLevelItem(0)->text(0), u"00000003"_qs);
        EXPECT_EQ(一覧->topLevelItem(0)->text(3), u"青木 翔太"_qs);
        キー(窓, m, Qt::Key_Return);
    });
    QTest::keyClick(主(u"出張申請No"_qs), Qt::Key_Control);
    EXPECT_EQ(c(u"出張申請No"_qs).Text, u"00000003"_qs);
    ASSERT_EQ(s.最終行, 4);
    EXPECT_EQ(qobject_cast<QLineEdit*>(主(u"出金金額"_qs, 0))->text(), u"41200"_qs);
    EXPECT_EQ(c(u"費目区分名称"_qs, 0).Text, u"旅費交通費"_qs);
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(41200 + 11000 + 4000 + 1320 + 3000));

    // The store question is answered with 登録 once it is up.
    auto* 時計 = new QTimer(主窓.get());
    QObject::connect(時計, &QTimer::timeout, [this, 時計] {
        for (QWidget* t : QApplication::topLevelWidgets()) {
            auto* 窓 = dynamic_cast<ScreenWindow*>(t);
            if (!窓 || !窓->isVisible() || !窓->ウィジェット(f.印刷確認.画面(u"lab_msg"_qs)))
                continue;
            時計->stop();
            時計->deleteLater();
            QTest::mouseClick(窓->ウィジェット(f.印刷確認.画面(u"btn_登録"_qs)), Qt::LeftButton);
            return;
        }
    });
    時計->start(10);
    QTest::mouseClick(主(u"btn_登録"_qs), Qt::LeftButton);

    const auto 伝票 = 木.業務DB行(
        u"SELECT 担当者コード, 出張申請事業所コード, 出張申請番号基準日付, 出張申請No, 出金金額合計 FROM T出金"_qs);
    ASSERT_EQ(伝票.size(), 1);
    EXPECT_EQ(伝票[0][0].toString(), u"00001"_qs);
    EXPECT_EQ(伝票[0][1].toString(), u"000"_qs);
    EXPECT_EQ(伝票[0][2].toString(), u"20270331"_qs);
    EXPECT_EQ(伝票[0][3].toString(), u"00000003"_qs);
    EXPECT_EQ(伝票[0][4].toLongLong(), 60520);
    const auto 明細 = 木.業務DB行(u"SELECT 摘要, 出金金額 FROM T出金明細 ORDER BY 出金行No"_qs);
    ASSERT_EQ(明細.size(), 5);
    EXPECT_EQ(明細[0][0].toString(), u"交通費\r航空券 羽田-新千歳 往復"_qs);
    EXPECT_EQ(明細[4][1].toLongLong(), 3000);
    EXPECT_EQ(人事の行(), 前);
}

// A sixteenth expense row lands in the spare line: by Tab alone the operator goes down the lines
// into it, the grid scrolled to show it at the bottom row, retypes its amount and Tab leads on
// to the remarks.
TEST_F(人事一覧ウィンドウ試験, 十六行の申請はTabだけで十六行目まで進み打ち直して備考へ抜ける) {
    QList<QPair<QString, QString>> 旅費;
    for (int i = 0; i < 16; ++i) 旅費.append({u"01"_qs, QString::number(1000 * (i + 1))});
    出張申請を置く(木, u"00000055"_qs, 旅費);
    if (HasFatalFailure()) return;
    f.画面.SetFocus(c(u"担当者コード"_qs));
    主窓->反映();
    auto 打つ = [](const QString& 文字列) {
        for (QChar ch : 文字列) QTest::keyClick(QApplication::focusWidget(), ch.toLatin1());
    };
    auto Tab = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); };
    打つ(u"1"_qs);
    Tab();
    ASSERT_EQ(焦点(), u"出張申請No"_qs);
    // The key the trip list leaves behind with its pick; the number is typed.
    f.状態.選択鍵 = u"C000"_qs + 今期 + u"00000055"_qs;
    打つ(u"00000055"_qs);
    Tab();
    ASSERT_EQ(s.最終行, 15);

    for (int i = 0; i < 200 && !(焦点() == u"出金金額" && s.現在行 == 14); ++i) Tab();
    ASSERT_EQ(焦点(), u"出金金額"_qs);
    ASSERT_EQ(s.現在行, 14);
    Tab();
    EXPECT_EQ(焦点(), u"費目区分"_qs);
    EXPECT_EQ(s.現在行, 15);
    auto* 棒 = qobject_cast<QScrollBar*>(主(u"scl_行"_qs));
    ASSERT_NE(棒, nullptr);
    EXPECT_EQ(棒->maximum(), 11);
    EXPECT_EQ(棒->value(), 11);
    auto 欄 = [this](const QString& 名前, int 行) {
        return qobject_cast<QLineEdit*>(主(名前, 行))->text();
    };
    EXPECT_EQ(欄(u"出金金額"_qs, 4), u"16000"_qs);
    EXPECT_EQ(c(u"摘要"_qs, 4).Text, u"交通費\r摘要16"_qs);
    EXPECT_EQ(欄(u"摘要"_qs, 4), c(u"摘要"_qs, 4).Text);
    EXPECT_EQ(欄(u"出金金額"_qs, 3), u"15000"_qs);

    for (int i = 0; i < 10 && 焦点() != u"出金金額"; ++i) Tab();
    ASSERT_EQ(焦点(), u"出金金額"_qs);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    打つ(u"16500"_qs);
    Tab();
    EXPECT_EQ(s.行[15].出金金額, 金額::円(16500));
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(136500));
    EXPECT_EQ(焦点(), u"出金伝票備考A"_qs);
    EXPECT_EQ(QApplication::focusWidget(), 主(u"出金伝票備考A"_qs));
    EXPECT_EQ(s.最終行, 15);
    写真(主窓.get(), u"十六行目"_qs);
}

TEST_F(一覧ウィンドウ試験, 担当者一覧で名前を打って探しキーで選ぶとコードが入り次へ進む) {
    窓で(u"担当者一覧"_qs, [](ScreenWindow& 窓, 画面モデル& m) {
        打つ(窓, m, u"名称"_qs, u"大野"_qs);
        押す(窓, m, u"btn_名称検索"_qs);
        auto* 一覧 = qobject_cast<QTreeWidget*>(窓.ウィジェット(m(u"List担当者"_qs)));
        ASSERT_NE(一覧, nullptr);
        EXPECT_EQ(一覧->topLevelItemCount(), 1);
        EXPECT_EQ(一覧->topLevelItem(0)->text(1), u"大野 大輔"_qs);
        EXPECT_EQ(一覧->headerItem()->text(4), u"セクション"_qs);
        EXPECT_EQ(一覧->columnWidth(1), 2500 / 15);
        EXPECT_EQ(焦点の窓部品(窓, m), 一覧);
        写真(&窓, u"担当者一覧_検索後"_qs);
        キー(窓, m, Qt::Key_Return);
    });
    QTest::mouseClick(主(u"btn_担当者コード"_qs), Qt::LeftButton);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, u"00005"_qs);
    EXPECT_EQ(qobject_cast<QLineEdit*>(主(u"担当者コード"_qs))->text(), u"00005"_qs);
    EXPECT_EQ(s.見出し.担当者名, u"大野 大輔"_qs);
    EXPECT_NE(焦点(), u"担当者コード"_qs);
    EXPECT_EQ(主窓->focusWidget(), 主窓->ウィジェット(*f.画面.フォーカス()));
}

TEST_F(一覧ウィンドウ試験, 部門一覧はEscで戻り二度目は前の窓のまま選べる) {
    ASSERT_TRUE(f.担当者確定(u"00003"_qs));
    f.見出し表示();
    主窓->反映();
    窓で(u"部門一覧"_qs, [](ScreenWindow& 窓, 画面モデル& m) { キー(窓, m, Qt::Key_Escape); });
    QTest::mouseClick(主(u"btn_部門コード"_qs), Qt::LeftButton);
    EXPECT_EQ(c(u"部門コード"_qs).Text, u"001"_qs);
    窓で(u"部門一覧"_qs, [](ScreenWindow& 窓, 画面モデル& m) {
        QTest::mouseClick(窓.ウィジェット(m(u"List部門"_qs)), Qt::LeftButton);
        キー(窓, m, Qt::Key_Down);
        キー(窓, m, Qt::Key_Down);
        キー(窓, m, Qt::Key_Return);
    });
    QTest::mouseClick(主(u"btn_部門コード"_qs), Qt::LeftButton);
    EXPECT_EQ(c(u"部門コード"_qs).Text, u"002"_qs);
    EXPECT_EQ(s.見出し.部門名, u"経理部"_qs);
}

TEST_F(一覧ウィンドウ試験, 出金No一覧で選ぶと伝票が読まれる) {
    const QDate 今日 = QDate::currentDate();
    保存(今日.toString(u"yyyyMMdd"_qs), u"文具"_qs);
    保存(今日.toString(u"yyyyMMdd"_qs), u"切手"_qs);
    窓で(u"出金No一覧"_qs, [](ScreenWindow& 窓, 画面モデル& m) {
        auto* 一覧 = qobject_cast<QTreeWidget*>(窓.ウィジェット(m(u"List出金No"_qs)));
        ASSERT_EQ(一覧->topLevelItemCount(), 2);
        // The money column's figures and heading stand at the right, the number at the left.
        EXPECT_EQ(一覧->topLevelItem(0)->textAlignment(4) & Qt::AlignHorizontal_Mask,
                  Qt::AlignRight);
        EXPECT_EQ(一覧->headerItem()->textAlignment(4) & Qt::AlignHorizontal_Mask, Qt::AlignRight);
        EXPECT_NE(一覧->topLevelItem(0)->textAlignment(0) & Qt::AlignHorizontal_Mask,
                  Qt::AlignRight);
        押す(窓, m, u"btn_複合検索"_qs);
        キー(窓, m, Qt::Key_Down);
        キー(窓, m, Qt::Key_Return);
    });
    QTest::mouseClick(主(u"btn_出金No"_qs), Qt::LeftButton);
    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
    EXPECT_EQ(s.行[0].摘要, u"文具"_qs);
}

TEST_F(一覧ウィンドウ試験, 出金摘要一覧で探して選ぶと窓が閉じて入力画面に戻る) {
    保存(QDate::currentDate().toString(u"yyyyMMdd"_qs), u"ボールペン"_qs);
    ASSERT_TRUE(f.担当者確定(u"00003"_qs));
    f.見出し表示();
    主窓->反映();
    窓で(u"出金摘要一覧"_qs, [](ScreenWindow& 窓, 画面モデル& m) {
        打つ(窓, m, u"検索文字列"_qs, u"ボール"_qs);
        押す(窓, m, u"btn_複合検索"_qs);
        auto* 一覧 = qobject_cast<QTreeWidget*>(窓.ウィジェット(m(u"List出金摘要"_qs)));
        EXPECT_EQ(一覧->topLevelItemCount(), 1);
        EXPECT_EQ(一覧->headerItem()->text(0), u"出金摘要"_qs);
        EXPECT_EQ(一覧->columnWidth(0), 6400 / 15);
        キー(窓, m, Qt::Key_Return);
    });
    QTest::mouseClick(主(u"btn_摘要"_qs, 0), Qt::LeftButton);
    for (QWidget* t : QApplication::topLevelWidgets()) {
        if (auto* x = dynamic_cast<ScreenWindow*>(t)) {
            EXPECT_FALSE(x->isVisible() && x->windowTitle() == u"出金摘要一覧");
        }
    }
    EXPECT_EQ(s.最終行, -1);
}

}  // namespace
