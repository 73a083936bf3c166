#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QTest>
#include <vector>

#include "common/モンキー.h"
#include "common/試験用ツリー.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"
#include "ui/入力画面ウィンドウ.h"

namespace {

// A random operator on the real window: key presses (Tab, arrows, Enter, function keys,
// letters and digits), Japanese committed by an input method, and mouse clicks on whatever
// widget is seen and enabled; random answers to every question. After each event the screen's
// promises hold and Qt's focus is the model's.
class 入力画面ウィンドウモンキー : public ::testing::TestWithParam<int> {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        s.データ.接続().自身のフォルダ設定(木.プログラムフォルダ());
        画面.伝票読込 = [this] { 起動.伝票読込(); };
        f.停止 = [this] { ++停止回数; };
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 != u"msg印刷確認" || !r || !r->確率(90)) return;
            static const QStringList 釦 = {u"btn_登録"_qs, u"btn_登録印刷"_qs, u"btn_いいえ"_qs};
            f.印刷確認.画面.操作_クリック(f.印刷確認.画面(r->選ぶ(釦)));
        };
        ASSERT_EQ(起動.プログラム開始(QString()), 起動結果::稼動);
        窓 = 画面.窓();
        ASSERT_NE(窓, nullptr);
        QApplication::setActiveWindow(窓);
        窓->反映();
    }
    void TearDown() override { 起動.終了処理(); }

    void 一つ() {
        基盤.回答.clear();
        // A random operator: what he does not answer closes by its default.
        基盤.既定で答える = true;
        static const QList<応答> 答 = {応答::はい, 応答::いいえ, 応答::OK, 応答::キャンセル};
        for (int i = r->範囲(3); i > 0; --i) 基盤.回答.enqueue(r->選ぶ(答));
        QWidget* 先 = QApplication::focusWidget();
        if (!先) 先 = 窓;
        const int 種 = r->範囲(100);
        if (種 < 30) {
            static const QList<Qt::Key> キー = {
                Qt::Key_Tab,  Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Return, Qt::Key_Up,
                Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Escape, Qt::Key_F1,
                Qt::Key_F2,   Qt::Key_F5,     Qt::Key_F12,      Qt::Key_Delete, Qt::Key_Backspace,
                Qt::Key_Home, Qt::Key_End,    Qt::Key_Left,     Qt::Key_Right,  Qt::Key_Control};
            const Qt::Key k = r->選ぶ(キー);
            記録 << u"key "_qs + QString::number(k);
            QTest::keyClick(先, k);
        } else if (種 < 60) {
            const QString 文 = モンキー文字列(*r);
            記録 << u"type '"_qs + 文 + u"'"_qs;
            for (QChar ch : 文) {
                QWidget* 今 = QApplication::focusWidget();
                if (!今) break;
                if (ch.unicode() < 0x80 && ch.unicode() >= 0x20) {
                    QTest::keyClick(今, ch.toLatin1());
                } else {
                    QInputMethodEvent 確定;
                    確定.setCommitString(QString(ch));
                    QApplication::sendEvent(今, &確定);
                }
            }
        } else {
            std::vector<QWidget*> 候補;
            for (部品* p : f.画面.全部品()) {
                QWidget* w = 窓->ウィジェット(*p);
                if (w && w->isVisible() && w->isEnabled()) 候補.push_back(w);
            }
            if (候補.empty()) return;
            QWidget* w = 候補[r->範囲(static_cast<int>(候補.size()))];
            const 部品* p = 窓->部品へ(w);
            記録 << u"click "_qs + (p ? p->名前 + QString::number(p->添字) : QString());
            if (種 < 95)
                QTest::mouseClick(w, Qt::LeftButton);
            else
                QTest::mouseDClick(w, Qt::LeftButton);
        }
    }

    QString 名(QWidget* w) const {
        if (!w) return u"nothing"_qs;
        const 部品* p = 窓->部品へ(w);
        return p ? p->名前 + QString::number(p->添字)
                 : QString::fromLatin1(w->metaObject()->className()) + u" "_qs + w->objectName();
    }

    void 走らせる(int 種, int 件数) {
        乱数 乱(static_cast<std::uint64_t>(種) + 1000);
        r = &乱;
        for (int i = 0; i < 件数; ++i) {
            一つ();
            if (記録.size() > 40) 記録.remove(0, 記録.size() - 40);
            QString 破れ = 画面不変条件(f);
            // A list opened by a click holds the keys in its own list view until it closes,
            // also when the model's order guard sent its focus elsewhere on that click (the
            // model then takes no choice from the list): a window matter, counted.
            QWidget* 焦点 = 窓->ウィジェット(*f.画面.フォーカス());
            const bool 一覧が開いている =
                qobject_cast<QAbstractItemView*>(QApplication::focusWidget()) &&
                qobject_cast<QComboBox*>(
                    QApplication::focusWidget()->parentWidget()
                        ? QApplication::focusWidget()->parentWidget()->parentWidget()
                        : nullptr);
            if (一覧が開いている &&
                QApplication::focusWidget() !=
                    static_cast<QWidget*>(qobject_cast<QComboBox*>(焦点)
                                              ? qobject_cast<QComboBox*>(焦点)->view()
                                              : nullptr))
                ++他の一覧;
            if (破れ.isEmpty() && QApplication::focusWidget() != 焦点 && !一覧が開いている)
                破れ = u"Qt's focus is on "_qs + 名(QApplication::focusWidget()) +
                       u", the model's on "_qs + f.画面.フォーカス()->名前 +
                       QString::number(f.画面.フォーカス()->添字);
            if (!破れ.isEmpty()) {
                FAIL() << "seed " << 種 << ", event " << i << ": " << 破れ.toStdString()
                       << "\nlast events:\n"
                       << 記録.join(u'\n').toStdString();
            }
        }
        r = nullptr;
        std::printf("seed %d: %d events, a list other than the model's focus open after %d\n", 種,
                    件数, 他の一覧);
    }

    試験用ツリー 木;
    台本プラットフォーム 基盤;
    出金セッション s{基盤};
    frm紺碧帳 f{s};
    入力画面ウィンドウ 画面{f};
    紺碧帳起動 起動{s, 画面};
    ScreenWindow* 窓 = nullptr;
    乱数* r = nullptr;
    QStringList 記録;
    int 停止回数 = 0;
    int 他の一覧 = 0;  // events after which another control's list held the keys
};

// 10 000 events in all: four seeds of 2 500.
TEST_P(入力画面ウィンドウモンキー, 二千五百事象の後も画面の約束が守られる) {
    走らせる(GetParam(), 2500);
}

INSTANTIATE_TEST_SUITE_P(種, 入力画面ウィンドウモンキー, ::testing::Range(1, 5));

}  // namespace
