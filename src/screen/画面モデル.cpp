#include "screen/画面モデル.h"

#include <algorithm>

部品& 画面モデル::追加(const QString& 名前_, 部品種別 種別, int 添字) {
    auto p = std::make_unique<部品>();
    p->名前 = 名前_;
    p->種別 = 種別;
    p->添字 = 添字;
    if (種別 == 部品種別::xLabel || 種別 == 部品種別::SSPanel) p->TabStop = false;
    部品群.push_back(std::move(p));
    return *部品群.back();
}

部品* 画面モデル::探す(const QString& 名前_, int 添字) {
    for (auto& p : 部品群) {
        if (p->名前 == 名前_ && p->添字 == 添字) return p.get();
    }
    return nullptr;
}

const 部品* 画面モデル::探す(const QString& 名前_, int 添字) const {
    return const_cast<画面モデル*>(this)->探す(名前_, 添字);
}

部品& 画面モデル::operator()(const QString& 名前_, int 添字) {
    部品* p = 探す(名前_, 添字);
    Q_ASSERT_X(p, "画面モデル", qPrintable(名前_));
    return *p;
}

std::vector<部品*> 画面モデル::全部品() const {
    std::vector<部品*> 全;
    全.reserve(部品群.size());
    for (const auto& p : 部品群) 全.push_back(p.get());
    return 全;
}

void 画面モデル::SetFocus(部品& 先) {
    待ち.enqueue(&先);
    待ちを処理();
}

void 画面モデル::呼ぶ(const std::function<void()>& 事象) {
    if (!事象) return;
    if (!異常時) {
        事象();
        return;
    }
    try {
        事象();
    } catch (const std::exception& e) {
        異常時(e);
    }
}

void 画面モデル::移す(部品* 先) {
    if (!先 || 先 == 現在 || !先->入力可能()) return;
    部品* 元 = 現在;
    現在 = 先;
    if (元) 呼ぶ(元->LostFocus);
    呼ぶ(先->GotFocus);
}

// Delivers the queued focus moves one after another; a move queued while another is being
// delivered waits its turn, so chains of got-focus and lost-focus events keep their order.
void 画面モデル::待ちを処理() {
    if (処理中) return;
    処理中 = true;
    // An error passed on to the caller must not leave the queue blocked.
    struct 後始末 {
        画面モデル& m;
        ~後始末() {
            m.待ち.clear();
            m.処理中 = false;
        }
    } 終わり{*this};
    int 安全弁 = 0;
    while (!待ち.isEmpty() && ++安全弁 < 1000) 移す(待ち.dequeue());
}

void 画面モデル::操作_フォーカス(部品& 先) {
    待ち.enqueue(&先);
    待ちを処理();
}

void 画面モデル::操作_入力(部品& 先, const QString& 文字列) {
    if (現在 != &先) 操作_フォーカス(先);
    if (現在 != &先) return;  // the guard sent the focus elsewhere: the keys land there
    QString 値 = 文字列;
    if (先.MaxLength > 0) 値.truncate(先.MaxLength);
    先.Text = 値;
    呼ぶ(先.Change);
    待ちを処理();
}

部品* 画面モデル::次のタブ(const 部品* 起点, bool 逆) const {
    std::vector<部品*> 候補;
    for (const auto& p : 部品群) {
        if (p->TabIndex >= 0 && p->TabStop && p->入力可能() && p->Visible) 候補.push_back(p.get());
    }
    if (候補.empty()) return nullptr;
    std::stable_sort(候補.begin(), 候補.end(),
                     [](const 部品* a, const 部品* b) { return a->TabIndex < b->TabIndex; });
    const int 基準 = 起点 ? 起点->TabIndex : -1;
    if (!逆) {
        for (部品* p : 候補) {
            if (p->TabIndex > 基準) return p;
        }
        return 候補.front();
    }
    for (auto it = 候補.rbegin(); it != 候補.rend(); ++it) {
        if ((*it)->TabIndex < 基準) return *it;
    }
    return 候補.back();
}

void 画面モデル::操作_Tab() {
    if (部品* p = 次のタブ(現在, false)) 操作_フォーカス(*p);
}

void 画面モデル::操作_ShiftTab() {
    if (部品* p = 次のタブ(現在, true)) 操作_フォーカス(*p);
}

void 画面モデル::操作_クリック(部品& 先) {
    if (!先.Enabled || !先.Visible) return;
    // A button takes the focus before its click runs, as a mouse press gives it.
    if (先.種別 == 部品種別::SSCommand && 先.TabStop) 操作_フォーカス(先);
    呼ぶ(先.Click);
    待ちを処理();
}

void 画面モデル::操作_ダブルクリック(部品& 先) {
    if (!先.Enabled || !先.Visible) return;
    if (現在 != &先 && 先.入力可能()) 操作_フォーカス(先);
    呼ぶ(先.DblClick);
    待ちを処理();
}

void 画面モデル::操作_キー(部品& 先, int キーコード) {
    if (現在 != &先) 操作_フォーカス(先);
    if (先.KeyDown) 呼ぶ([&] { 先.KeyDown(キーコード); });
    待ちを処理();
}

void 画面モデル::操作_値変更(部品& 先, int 値) {
    if (!先.Enabled) return;
    if (先.種別 == 部品種別::ComboBox) {
        先.ListIndex = 値;
        先.Text = 先.一覧.value(値);
    } else {
        先.Value = 値;
    }
    呼ぶ(先.Change);
    呼ぶ(先.Click);
    待ちを処理();
}
