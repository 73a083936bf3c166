#include <QStringList>
#include <vector>

#include "common/モンキー.h"
#include "screen/入力画面試験.h"

namespace {

// A random operator on the entry screen model of the sample tree: focus moves, Tab and
// Shift+Tab, typing (Japanese included), keys, clicks and double clicks on whatever is seen and
// enabled, scroll bars, pages and lists, and random answers to every question and dialogue,
// stores and deletions included. The screen's promises are checked after every event. Each
// seed is a case of its own, so that the cases run side by side; a failure names the seed and
// the event, and the last events before it.
class 入力画面モンキー : public 入力画面試験, public ::testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        入力画面試験::SetUp();
        if (HasFatalFailure()) return;
        f->停止 = [this] { ++停止回数; };
        f->フォーカス設定(c(u"担当者コード"_qs));
        基盤.画面表示時 = [this](const QString& 名) { 窓の操作(名); };
    }

    // A modal window is up: the register question gets one of its buttons or its frame, the
    // PIN question some text; the other windows are closed by their frame.
    void 窓の操作(const QString& 名) {
        記録 << u"  window "_qs + 名;
        if (名 == u"msg印刷確認") {
            static const QStringList 釦 = {u"btn_登録"_qs, u"btn_登録印刷"_qs, u"btn_いいえ"_qs};
            if (r->確率(90)) f->印刷確認.画面.操作_クリック(f->印刷確認.画面(r->選ぶ(釦)));
        }
    }

    QString 説明(const 部品& p) const {
        return p.名前 + (p.添字 < 0 ? QString() : u"("_qs + QString::number(p.添字) + u")"_qs);
    }

    // One event of the operator; its description goes to the record.
    void 一つ() {
        画面モデル& m = f->画面;
        std::vector<部品*> 見える, 焦点可;
        for (部品* p : m.全部品()) {
            if (!m.見えるか(*p) || !p->Enabled) continue;
            見える.push_back(p);
            if (m.焦点可(*p)) 焦点可.push_back(p);
        }
        // Answers for whatever message box this event asks.
        基盤.回答.clear();
        // A random operator: what he does not answer closes by its default.
        基盤.既定で答える = true;
        static const QList<応答> 答 = {応答::はい, 応答::いいえ, 応答::OK, 応答::キャンセル};
        for (int i = r->範囲(3); i > 0; --i) 基盤.回答.enqueue(r->選ぶ(答));

        部品* 焦点 = m.フォーカス();
        const int 種 = r->範囲(100);
        if (種 < 25 && 焦点) {
            const QString 文 = モンキー文字列(*r);
            記録 << u"type '"_qs + 文 + u"' into "_qs + 説明(*焦点);
            m.操作_入力(*焦点, 文);
        } else if (種 < 45) {
            記録 << u"Tab"_qs;
            m.操作_Tab();
        } else if (種 < 50) {
            記録 << u"Shift+Tab"_qs;
            m.操作_ShiftTab();
        } else if (種 < 62 && !焦点可.empty()) {
            部品* p = 焦点可[r->範囲(static_cast<int>(焦点可.size()))];
            記録 << u"focus "_qs + 説明(*p);
            m.操作_フォーカス(*p);
        } else if (種 < 70 && !焦点可.empty()) {
            部品* p = 焦点可[r->範囲(static_cast<int>(焦点可.size()))];
            const QString 文 = モンキー文字列(*r);
            記録 << u"click into "_qs + 説明(*p) + u" and type '"_qs + 文 + u"'"_qs;
            m.操作_入力(*p, 文);
        } else if (種 < 86 && !見える.empty()) {
            部品* p = 見える[r->範囲(static_cast<int>(見える.size()))];
            記録 << u"click "_qs + 説明(*p);
            m.操作_クリック(*p);
        } else if (種 < 89 && !見える.empty()) {
            部品* p = 見える[r->範囲(static_cast<int>(見える.size()))];
            記録 << u"double click "_qs + 説明(*p);
            m.操作_ダブルクリック(*p);
        } else if (種 < 94 && 焦点) {
            using enum キーコード;
            static const QList<キーコード> キー = {Ctrl, Enter, Tab, Esc, PageUp, PageDown,
                                                   Up,   Down,  F1,  F2,  F4,     F5,
                                                   F8,   F9,    F10, F12};
            const キーコード k = r->選ぶ(キー);
            記録 << u"key "_qs + QString::number(static_cast<int>(k)) + u" on "_qs + 説明(*焦点);
            m.操作_キー(*焦点, k);
        } else {
            std::vector<部品*> 値部品;
            for (部品* p : 見える) {
                if (p->種別 == 部品種別::VScrollBar || p->種別 == 部品種別::SSTab ||
                    p->種別 == 部品種別::ComboBox)
                    値部品.push_back(p);
            }
            if (値部品.empty()) return;
            部品* p = 値部品[r->範囲(static_cast<int>(値部品.size()))];
            // What a hand can choose: an entry of the list, a position of the bar, a page.
            int 値 = 0;
            if (p->種別 == 部品種別::ComboBox) {
                if (p->一覧.isEmpty()) return;
                値 = r->範囲(static_cast<int>(p->一覧.size()));
            } else {
                値 = p->Min + r->範囲(p->Max - p->Min + 1);
            }
            記録 << u"set "_qs + 説明(*p) + u" to "_qs + QString::number(値);
            m.操作_値変更(*p, 値);
        }
    }

    // Runs the events and stops at the first broken promise, with the record of the last ones.
    void 走らせる(int 種, int 件数) {
        乱数 乱(static_cast<std::uint64_t>(種));
        r = &乱;
        for (int i = 0; i < 件数; ++i) {
            一つ();
            if (const 部品* 後 = f->画面.フォーカス()) {
                記録.last() += u"  -> "_qs + 説明(*後) +
                               (f->画面.焦点可(*後) ? u""_qs : u" (cannot hold it)"_qs);
            }
            if (記録.size() > 40) 記録.remove(0, 記録.size() - 40);
            const QString 破れ = 画面不変条件(*f);
            if (!破れ.isEmpty()) {
                FAIL() << "seed " << 種 << ", event " << i << ": " << 破れ.toStdString()
                       << "\nslip on the screen as stored: " << 保存状態().toStdString()
                       << "\nlast events:\n"
                       << 記録.join(u'\n').toStdString();
            }
        }
        // The operator did things: slips were stored, numbers taken.
        std::printf("seed %d: %d events, %d messages, %lld slips in T出金\n", 種, 件数,
                    static_cast<int>(基盤.表示済み.size()),
                    木.業務DB行(u"SELECT COUNT(*) FROM T出金"_qs)[0][0].toLongLong());
    }

    // The slip on the screen as the tables hold it: header totals, then each line.
    QString 保存状態() {
        const auto& h = s.見出し;
        const QString 条件 = u" WHERE 事業所コード = '"_qs + h.事業所コード +
                             u"' AND 番号基準日付 = '"_qs + h.番号基準日付 +
                             u"' AND 出金No = '"_qs + h.出金No + u"'"_qs;
        QStringList t;
        for (const auto& 行 : 木.業務DB行(
                 u"SELECT 出金No, 出金金額合計, 出金消費税合計, 実質出金金額合計 FROM T出金"_qs +
                 条件)) {
            QStringList v;
            for (const auto& x : 行) v << x.toString();
            t << v.join(u'/');
        }
        for (
            const auto& 行 : 木.業務DB行(
                u"SELECT 出金行No, 費目区分, 出金金額, 出金消費税, 実質出金金額 FROM T出金明細"_qs +
                条件 + u" ORDER BY 出金行No"_qs)) {
            QStringList v;
            for (const auto& x : 行) v << x.toString();
            t << v.join(u'/');
        }
        return t.join(u"; "_qs);
    }

    乱数* r = nullptr;
    QStringList 記録;
    int 停止回数 = 0;
};

// 100 000 events in all: ten seeds of 10 000.
TEST_P(入力画面モンキー, 一万事象の後も画面の約束が守られる) {
    走らせる(GetParam(), 10000);
}

INSTANTIATE_TEST_SUITE_P(種, 入力画面モンキー, ::testing::Range(1, 11));

}  // namespace
