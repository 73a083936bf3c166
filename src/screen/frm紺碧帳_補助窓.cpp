#include "screen/frm紺碧帳.h"
#include "text/プラットフォーム.h"

// The windows of our own beside the slip: each opens from a function key over the entry screen,
// modal as the lists are. The history needs a stored slip on the screen; the others do not.
struct frm紺碧帳::補助窓定義 {
    キーコード キー;
    const char16_t* 窓;
    bool 保存済の伝票で;
};

const frm紺碧帳::補助窓定義 frm紺碧帳::補助窓表[] = {
    {キーコード::F8, u"wnd出金履歴", true},
    {キーコード::F9, u"wnd出金検索", false},
    {キーコード::F10, u"wnd支払先登録", false},
};

bool frm紺碧帳::補助窓を開く(キーコード キー) {
    for (const 補助窓定義& d : 補助窓表) {
        if (d.キー != キー) continue;
        if (画面使用中) return true;
        if (d.保存済の伝票で) {
            if (s.新規情報フラグ || s.見出し.保持出金No.isEmpty()) return true;
            状態.履歴鍵 = s.見出し.保持鍵().文字列();
        }
        s.データ.基盤().画面表示(QString::fromUtf16(d.窓), true);
        return true;
    }
    return false;
}
