#include "screen/画面モデル.h"

#include <algorithm>

#include "screen/焦点記録.h"

void 画面モデル::作る(const 部品表& 表) {
    for (const 部品定義& d : 表.行) {
        if (d.配列 == 0) {
            追加(d);
            continue;
        }
        for (int r = 0; r < d.配列; ++r) {
            部品定義 行 = d;
            行.位置.上 += r * 表.配列間隔;
            if (行.順 >= 0) 行.順 += r * 表.タブ間隔;
            追加(行, r);
        }
    }
    // Containers by name: a member of an array stands in the same member of an array container.
    for (auto& p : 部品群) {
        const QString 親 = QString::fromUtf16(p->定義.親);
        if (親.isEmpty()) continue;
        p->親 = 探す(親, p->添字);
        if (!p->親) p->親 = 探す(親);
    }
}

部品& 画面モデル::追加(const 部品定義& 定義, int 添字) {
    auto p = std::make_unique<部品>();
    p->定義 = 定義;
    p->名前 = QString::fromUtf16(定義.名前);
    p->種別 = 定義.種別;
    p->添字 = 添字;
    p->所属 = this;
    p->Caption = QString::fromUtf16(定義.題);
    // A tab control's caption names its pages, one after another.
    if (定義.種別 == 部品種別::SSTab) p->一覧 = p->Caption.split(u'|');
    p->Left = 定義.位置.左;
    p->Top = 定義.位置.上;
    p->Width = 定義.位置.幅;
    p->Height = 定義.位置.高さ;
    p->TabIndex = 定義.順;
    p->TabStop = 定義.停止;
    p->MaxLength = 定義.長さ;
    p->Min = 定義.最小;
    p->Max = 定義.最大;
    索引.insert({p->名前, 添字}, p.get());
    部品群.push_back(std::move(p));
    return *部品群.back();
}

部品& 画面モデル::追加(const QString& 名前_, 部品種別 種別, int 添字) {
    部品定義 d;
    d.種別 = 種別;
    d.停止 = 種別 != 部品種別::xLabel && 種別 != 部品種別::SSPanel;
    部品& p = 追加(d, 添字);
    索引.remove({p.名前, 添字});
    p.名前 = 名前_;
    索引.insert({p.名前, 添字}, &p);
    return p;
}

部品* 画面モデル::探す(const QString& 名前_, int 添字) {
    return 索引.value({名前_, 添字}, nullptr);
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

bool 画面モデル::見えるか(const 部品& p) const {
    for (const 部品* q = &p; q; q = q->親) {
        if (!q->Visible) return false;
        if (q->親 && q->親->種別 == 部品種別::SSTab && q->定義.頁 >= 0 &&
            q->親->Value != q->定義.頁) {
            return false;
        }
    }
    return true;
}

bool 画面モデル::焦点可(const 部品& p) const {
    return p.焦点を持てる種別() && p.Enabled && 見えるか(p);
}

void 画面モデル::SetFocus(部品& 先) {
    if (!焦点記録::有効()) {
        待つ(&先, {});
    } else if (!事象中.isEmpty()) {
        待つ(&先, u"規則 "_qs + 事象中);
    } else {
        待つ(&先, 操作原因.isEmpty() ? u"コード"_qs : 操作原因);
    }
    待ちを処理();
}

void 画面モデル::待つ(部品* 先, const QString& 理由) {
    待ち.enqueue({先, 理由});
}

void 画面モデル::呼ぶ(const 部品* 元, const char16_t* 事象名, const std::function<void()>& 事象) {
    if (!事象) return;
    if (表示中 && !(元 && 元->表示中も受ける)) return;
    const QString 外 = 事象中;
    if (焦点記録::有効()) {
        事象中 = (元 ? 元->表記() + u'.' : QString()) + QString::fromUtf16(事象名);
    }
    struct 戻す {
        QString& 先;
        QString 値;
        ~戻す() { 先 = 値; }
    } 終わり{事象中, 外};
    if (!異常時) {
        事象();
        return;
    }
    try {
        事象();
    } catch (const std::exception& e) {
        // The display the error broke off is over: the screen listens again.
        表示中 = false;
        異常時(e);
    }
}

void 画面モデル::移す(部品* 先, const QString& 理由) {
    if (!先 || 先 == 現在 || !焦点可(*先)) return;
    部品* 元 = 現在;
    現在 = 先;
    if (焦点記録::有効()) {
        焦点記録::書く(名前 + u' ' + (元 ? 元->表記() : u"-"_qs) + u" -> "_qs + 先->表記() +
                       u" ["_qs + 理由 + u']');
    }
    if (元) 呼ぶ(元, u"LostFocus", 元->LostFocus);
    呼ぶ(先, u"GotFocus", 先->GotFocus);
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
    while (++安全弁 < 1000) {
        if (!待ち.isEmpty()) {
            const 焦点移動 m = 待ち.dequeue();
            移す(m.先, m.理由);
            continue;
        }
        // A control disabled or hidden while it held the focus hands it on in tab order, as the
        // window system moves it; no key could reach it where it stands.
        部品* 次 = 現在 && !焦点可(*現在) ? 次のタブ(現在, false) : nullptr;
        if (!次) break;
        待つ(次, u"無効になった欄から次へ"_qs);
    }
}

void 画面モデル::値を変える(部品& 先, int 値) {
    if (先.種別 == 部品種別::ComboBox) {
        先.ListIndex = 値;
        先.Text = 先.一覧.value(値);
        return;
    }
    先.Value = 先.種別 == 部品種別::VScrollBar ? std::clamp(値, 先.Min, qMax(先.Min, 先.Max)) : 値;
}

void 画面モデル::値設定(部品& 先, int 値) {
    const int 前 = 先.Value;
    値を変える(先, 値);
    if (先.Value != 前) 呼ぶ(&先, u"Change", 先.Change);
    待ちを処理();
}

void 画面モデル::文字設定(部品& 先, const QString& 文字列) {
    if (先.Text == 文字列) return;
    先.Text = 文字列;
    呼ぶ(&先, u"Change", 先.Change);
    待ちを処理();
}

void 画面モデル::操作_フォーカス(部品& 先) {
    操作で移す(先, u"フォーカス"_qs);
}

void 画面モデル::操作で移す(部品& 先, const QString& 原因) {
    const QString 外 = 操作原因;
    if (焦点記録::有効()) 操作原因 = 原因;
    待つ(&先, 操作原因);
    待ちを処理();
    操作原因 = 外;
}

void 画面モデル::操作_入力(部品& 先, const QString& 文字列) {
    if (現在 != &先) 操作で移す(先, u"入力"_qs);
    if (現在 != &先) return;  // the guard sent the focus elsewhere: the keys land there
    // Key by key, as typed over the whole field: a key the field does not take is lost, and a
    // full field takes no more.
    QString 値;
    for (const QChar c : 文字列) {
        if (先.入力可(値 + c)) 値 += c;
    }
    先.Text = 値;
    呼ぶ(&先, u"Change", 先.Change);
    待ちを処理();
}

部品* 画面モデル::次のタブ(const 部品* 起点, bool 逆) const {
    std::vector<部品*> 候補;
    for (const auto& p : 部品群) {
        if (p->TabIndex >= 0 && p->TabStop && 焦点可(*p)) 候補.push_back(p.get());
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
    if (部品* p = 次のタブ(現在, false)) 操作で移す(*p, u"Tab"_qs);
}

void 画面モデル::操作_ShiftTab() {
    if (部品* p = 次のタブ(現在, true)) 操作で移す(*p, u"Shift+Tab"_qs);
}

void 画面モデル::操作_クリック(部品& 先) {
    if (!先.Enabled || !見えるか(先)) return;
    // The mouse press gives the focus before the click runs, tab stop or not.
    if (焦点可(先)) 操作で移す(先, u"クリック"_qs);
    if (先.種別 == 部品種別::CheckBox) {
        if (現在 != &先) return;
        先.Value = 先.Value ? 0 : 1;
        呼ぶ(&先, u"Change", 先.Change);
    }
    if (先.種別 == 部品種別::OptionButton) {
        if (現在 != &先) return;
        for (auto& p : 部品群) {
            if (p->名前 == 先.名前 && p.get() != &先) p->Value = 0;
        }
        先.Value = 1;
    }
    呼ぶ(&先, u"Click", 先.Click);
    待ちを処理();
}

void 画面モデル::操作_ダブルクリック(部品& 先) {
    if (!先.Enabled || !見えるか(先)) return;
    if (現在 != &先 && 焦点可(先)) 操作で移す(先, u"ダブルクリック"_qs);
    呼ぶ(&先, u"DblClick", 先.DblClick);
    待ちを処理();
}

namespace {

// Where a navigation key takes the selection of a list view showing so many rows a page.
int 移動先(const 部品& p, キーコード キー) {
    const int 最後 = static_cast<int>(p.項目.size()) - 1;
    const int 頁 = 10;
    const int 今 = p.選択;
    switch (キー) {
        case キーコード::Up:
            return 今 < 0 ? 0 : qMax(0, 今 - 1);
        case キーコード::Down:
            return 今 < 0 ? 0 : qMin(最後, 今 + 1);
        case キーコード::PageUp:
            return qMax(0, 今 - 頁);
        case キーコード::PageDown:
            return 今 < 0 ? qMin(最後, 頁) : qMin(最後, 今 + 頁);
        case キーコード::Home:
            return 0;
        case キーコード::End:
            return 最後;
        default:
            return 今;
    }
}

}  // namespace

void 画面モデル::操作_キー(部品& 先, キーコード キー) {
    const QString 鍵 = u"キー "_qs + QString::number(static_cast<int>(キー));
    if (現在 != &先) 操作で移す(先, 鍵);
    const QString 外 = 操作原因;
    if (焦点記録::有効()) 操作原因 = 鍵;
    bool 済 = false;
    if (KeyPreview) 呼ぶ(nullptr, u"KeyPreview", [&] { 済 = KeyPreview(キー); });
    if (!済 && 先.KeyDown) 呼ぶ(&先, u"KeyDown", [&] { 先.KeyDown(キー); });
    操作原因 = 外;
    if (!済 && 先.種別 == 部品種別::ListView && 現在 == &先 && !先.項目.isEmpty()) {
        先.選択 = 移動先(先, キー);
    }
    待ちを処理();
}

void 画面モデル::操作_項目選択(部品& 先, int 行) {
    if (!先.Enabled || !見えるか(先)) return;
    if (現在 != &先 && 焦点可(先)) 操作で移す(先, u"クリック"_qs);
    if (現在 != &先 || 行 < 0 || 行 >= 先.項目.size()) return;
    先.選択 = 行;
    呼ぶ(&先, u"Click", 先.Click);
    待ちを処理();
}

void 画面モデル::操作_項目ダブルクリック(部品& 先, int 行) {
    操作_項目選択(先, 行);
    if (現在 != &先 || 先.選択 != 行) return;
    呼ぶ(&先, u"DblClick", 先.DblClick);
    待ちを処理();
}

void 画面モデル::操作_列クリック(部品& 先, int 列番号) {
    if (!先.Enabled || !見えるか(先) || 列番号 < 0 || 列番号 >= 先.列.size()) return;
    if (先.ColumnClick) 呼ぶ(&先, u"ColumnClick", [&] { 先.ColumnClick(列番号 + 1); });
    待ちを処理();
}

void 画面モデル::操作_値変更(部品& 先, int 値) {
    if (!先.Enabled || !見えるか(先)) return;
    if (現在 != &先) 操作で移す(先, u"値変更"_qs);
    const bool 選択 = 先.種別 == 部品種別::ComboBox || 先.種別 == 部品種別::CheckBox;
    if (選択 && 現在 != &先) return;
    const int 前 = 先.種別 == 部品種別::ComboBox ? 先.ListIndex : 先.Value;
    値を変える(先, 値);
    const int 後 = 先.種別 == 部品種別::ComboBox ? 先.ListIndex : 先.Value;
    if (先.種別 == 部品種別::VScrollBar && 後 == 前) {
        待ちを処理();
        return;
    }
    呼ぶ(&先, u"Change", 先.Change);
    呼ぶ(&先, u"Click", 先.Click);
    待ちを処理();
}
