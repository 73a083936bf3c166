#include "screen/frm紺碧帳.h"
#include "screen/frm紺碧帳_部品名.h"

namespace {

using 欄 = 紺碧帳部品;

// Items a detail row can be given the focus by name.
const 部品名 明細名指し[] = {欄::費目区分, 欄::費目区分名称, 欄::内税外税区分,
                             欄::出金金額, 欄::出金消費税,   欄::摘要};

bool 名指しできる(const QString& 項目名) {
    for (const 部品名& n : 明細名指し) {
        if (項目名 == n.文字列()) return true;
    }
    return false;
}

// The name of the control the focus left, empty when none.
QString 名(const 部品* p) {
    return p ? p->名前 : QString();
}

}  // namespace

int frm紺碧帳::見出し空き() const {
    const auto& h = s.見出し;
    const QString* 値[] = {&h.出金日付年,   &h.出金日付月, &h.出金日付日,      &h.出金No,
                           &h.担当者コード, &h.部門コード, &h.セクションコード};
    for (int i = 0; i < 7; ++i) {
        if (値[i]->trimmed().isEmpty()) return i + 1;
    }
    return 0;
}

int frm紺碧帳::明細空き(int 明細) const {
    if (明細 < 0 || 明細 >= 行枠数) return 0;  // no line there to be missing
    return s.行[明細].費目区分 == 0 ? 1 : 0;
}

部品& frm紺碧帳::見出し項目(int 序数) {
    for (部品* p : 画面.全部品()) {
        if (p->定義.区分 == 1 && p->定義.必須 && p->定義.序数 == 序数) return *p;
    }
    return 画面(欄::出金日付年);
}

void frm紺碧帳::名前で移す(const QString& 名前, int 行) {
    if (部品* p = 画面.探す(名前, 行)) 画面.SetFocus(*p);
}

bool frm紺碧帳::入力順序確認(int 区分, int 行, const QString& 項目名, int 序数) {
    bool 結果 = false;
    const int 空き = 見出し空き();
    auto 行を当てる = [this](int r) {
        const int 明細 = r + s.先頭行;
        if (明細 <= s.最終行 + 1) {
            s.表示行 = r;
            s.現在行 = 明細;
            if (s.行[明細].費目区分 != 0 && 明細 > s.最終行) s.最終行 = 明細;
        }
        スクロール更新();
    };
    if (区分 == 1) {
        if (空き != 0 && 序数 > 空き) {
            画面.SetFocus(見出し項目(空き));
            結果 = true;
        } else {
            // The name fields take no Tab stop and pass the focus on.
            QString 先 = 項目名;
            const QString 元 = 名(状態.離脱項目);
            const QString 担当者 = 欄::担当者コード.文字列(), 部門 = 欄::部門コード.文字列(),
                          セクション = 欄::セクションコード.文字列();
            if (項目名 == 欄::担当者名.文字列() && 元 != 担当者) 先 = 担当者;
            if (項目名 == 欄::部門名.文字列()) 先 = 元 != 部門 ? 部門 : セクション;
            if (項目名 == 欄::セクション名.文字列() && 元 != セクション) 先 = セクション;
            if (!状態.入力中項目 || 先 != 状態.入力中項目->名前) 名前で移す(先);
        }
    } else if (区分 == 2) {
        if (空き != 0) {
            画面.SetFocus(見出し項目(空き));
            結果 = true;
        } else {
            行を当てる(行);
            if (行 + s.先頭行 > s.最終行 + 1) {
                画面.SetFocus(画面(欄::費目区分, s.最終行 + 1 - s.先頭行));
                結果 = true;
            } else {
                const int g = 明細空き(行 + s.先頭行);
                if (g == 0 || 序数 <= g) {
                    const bool 同じ = 状態.入力中項目 && 状態.入力中項目->名前 == 項目名 &&
                                      状態.入力中項目->添字 == 行;
                    if (!項目名.isEmpty() && !同じ && 名指しできる(項目名)) 名前で移す(項目名, 行);
                } else {
                    画面.SetFocus(画面(欄::費目区分, 行));
                    結果 = true;
                }
            }
        }
    } else if (区分 == 3) {
        if (空き != 0) {
            画面.SetFocus(見出し項目(空き));
            結果 = true;
        } else {
            行を当てる(s.表示行);
            if (s.表示行 == 0 && 明細空き(s.先頭行) == 1) {
                画面.SetFocus(画面(欄::費目区分, 0));
                結果 = true;
            }
        }
    }
    ボタン状態更新();
    return 結果;
}

bool frm紺碧帳::必須項目確認(int& 区分, int& 行, int& 序数) {
    if (const int g = 見出し空き(); g != 0) {
        区分 = 1;
        行 = -1;
        序数 = g;
        return false;
    }
    for (int n = 0; n <= s.最終行; ++n) {
        if (明細空き(n) != 0) {
            区分 = 2;
            行 = n;
            序数 = 1;
            return false;
        }
    }
    区分 = 3;
    行 = -1;
    序数 = 0;
    return true;
}

bool frm紺碧帳::必須項目案内() {
    int 区分 = 0, 行 = 0, 序数 = 0;
    if (必須項目確認(区分, 行, 序数)) return true;
    画面(欄::お知らせ).Caption = u"必須項目が未入力です。"_qs;
    if (区分 == 1) {
        画面.SetFocus(見出し項目(序数));
    } else if (区分 == 2) {
        s.現在行 = 行;
        s.表示行 = 行 % 表示行数;
        s.先頭行 = 行 - s.表示行;
        if (s.先頭行 > 行枠数 - 表示行数) {
            // The spare slot's line stands at the bottom row, as far as the bar goes.
            s.先頭行 = 行枠数 - 表示行数;
            s.表示行 = 行 - s.先頭行;
        }
        スクロール更新();
        明細表示();
        画面.SetFocus(画面(欄::費目区分, s.表示行));
    }
    return false;
}

void frm紺碧帳::ボタン状態更新() {
    const int r = s.表示行;
    const bool 区分空白 = 画面(欄::費目区分, r).Text.trimmed().isEmpty() ||
                          画面(欄::費目区分, r).Text.trimmed().toInt() == 0;
    画面(欄::btn_行クリア).Enabled = s.最終行 >= 0;
    画面(欄::btn_行挿入).Enabled =
        s.最終行 >= 0 && s.最終行 <= 13 && s.現在行 <= s.最終行 && !区分空白;
    画面(欄::btn_行複写).Enabled = 区分空白 && s.最終行 >= 0 && s.現在行 >= 1;
    const bool 担当者あり = !s.見出し.担当者コード.trimmed().isEmpty();
    画面(欄::btn_部門コード).Enabled = 担当者あり;
    画面(欄::btn_セクションコード).Enabled = 担当者あり;
    画面(欄::tab_詳細).Enabled = 見出し空き() == 0;
    int 区分 = 0, 行 = 0, 序数 = 0;
    画面(欄::btn_登録).Enabled = 必須項目確認(区分, 行, 序数) && s.最終行 >= 0 && s.入力変更フラグ;
    const bool 保存済み = !s.新規情報フラグ;
    for (const 部品名 釦 :
         {欄::btn_削除, 欄::btn_印刷, 欄::btn_プレビュ, 欄::btn_帳票イメージ出力}) {
        画面(釦).Enabled = 保存済み;
    }
}

void frm紺碧帳::ヘッド終了取得() {
    if (const int g = 見出し空き(); g != 0) {
        状態.入力中項目 = &画面(欄::ヘッド終了);
        画面.SetFocus(見出し項目(g));
        return;
    }
    部品& タブ = 画面(欄::tab_詳細);
    タブ.Enabled = true;
    const bool 前へ = 状態.離脱項目 == &画面(欄::担当者コード);
    if (タブ.Value == 1) {
        画面.SetFocus(画面(欄::List付属書類));
    } else if (前へ) {
        画面.SetFocus(画面(欄::費目区分, 0));
    } else {
        if (s.最終行 > 4) {
            部品& 棒 = 画面(欄::scl_行);
            画面.値設定(棒, 棒.Value - 1);
        }
        画面.SetFocus(画面(欄::摘要, 0));
    }
}

void frm紺碧帳::頁1終了取得(int r) {
    const QString 元 = 名(状態.離脱項目);
    if (元 == 欄::出金金額.文字列() || 元 == 欄::出金消費税.文字列()) {
        // The last line of a full slip leads to the remarks; a sixteenth imported line is
        // reached from the fifteenth.
        if (s.現在行 > s.最終行 || (s.最終行 >= 最大行数 - 1 && s.現在行 == s.最終行)) {
            画面.SetFocus(画面(欄::出金伝票備考A));
        } else if (r < 4) {
            画面.SetFocus(画面(欄::費目区分, r + 1));
        } else {
            部品& 棒 = 画面(欄::scl_行);
            if (棒.Max < 棒.Value + 1) 棒.Max = 棒.Value + 1;
            画面.値設定(棒, 棒.Value + 1);
            画面.SetFocus(画面(欄::費目区分, 4));
        }
    } else {
        // Backward, from the next row's class or from the remarks: this row's amount, so that
        // the focus never rests on the end mark itself.
        画面.SetFocus(画面(欄::出金金額, r));
    }
}

void frm紺碧帳::テイル終了取得() {
    if (状態.離脱項目 != &画面(欄::出金伝票備考B)) return;
    画面.SetFocus(*状態.先頭入力項目);
    if (s.入力変更フラグ) 登録処理();
}

void frm紺碧帳::詳細頁変更() {
    部品& タブ = 画面(欄::tab_詳細);
    if (!タブ.Enabled) return;
    画面(欄::scl_行).Visible = タブ.Value == 0;
    if (タブ.Value == 0) 画面.SetFocus(画面(欄::摘要, 0));
}

void frm紺碧帳::スクロール変更() {
    s.先頭行 = static_cast<short>(画面(欄::scl_行).Value);
    if (s.表示行 + s.先頭行 > s.最終行 + 1) s.表示行 = static_cast<short>(s.最終行 + 1 - s.先頭行);
    s.現在行 = static_cast<short>(s.表示行 + s.先頭行);
    明細表示();
    if (状態.入力中項目) 画面.SetFocus(*状態.入力中項目);
}
