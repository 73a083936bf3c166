#include "audit/wnd出金履歴.h"
#include "audit/wnd出金履歴_部品名.h"

#include "text/プラットフォーム.h"
#include "text/数値書式.h"

namespace {

using 欄 = 出金履歴部品;
using 種別 = 伝票状態::種別;

// The mark of a changed value, in its own column so that it reads without colour.
const QString 変更印 = u"＊"_qs;

QString 種別名(種別 何) {
    switch (何) {
        case 種別::現在:
            return u"現在"_qs;
        case 種別::削除:
            return u"削除"_qs;
        case 種別::以前:
            break;
    }
    return u"修正前"_qs;
}

QString 円(const QString& 値) {
    if (値.isEmpty()) return u"－"_qs;
    return 書式(金額::文字列から(値), u"#,##0"_qs);
}

// A stamp "yyyymmdd hhnnss" as "yyyy/mm/dd hh:nn:ss"; anything else as it stands.
QString 日時(const QString& 値) {
    if (値.size() != 15) return 値;
    return 値.mid(0, 4) + u'/' + 値.mid(4, 2) + u'/' + 値.mid(6, 2) + u' ' + 値.mid(9, 2) + u':' +
           値.mid(11, 2) + u':' + 値.mid(13, 2);
}

一覧項目 明細の行(const 履歴明細& m, const QString& 変化) {
    return {m.出金固有行No,
            u"R"_qs + m.出金固有行No,
            {m.値(u"出金行No"), 変化, m.値(u"費目区分"), m.値(u"支払先"), m.値(u"摘要"),
             円(m.値(u"出金金額")), 円(m.値(u"出金消費税")), 円(m.値(u"実質出金金額"))}};
}

}  // namespace

wnd出金履歴::wnd出金履歴(出金セッション& セッション, 画面モデル& 主画面)
    : s(セッション), 主(主画面) {
    画面.作る(部品定義表);
    画面.Width = 14040;
    画面.Height = 9240;
    画面.Caption = u"出金伝票の履歴"_qs;
    画面(欄::lst_状態).列 = {{u"No"_qs, 500},        {u"種別"_qs, 800},      {u"伝票"_qs, 2600},
                             {u"履歴No"_qs, 1100},   {u"登録日付"_qs, 2000}, {u"更新日付"_qs, 2000},
                             {u"ユーザID"_qs, 2000}, {u"操作者"_qs, 1400},   {u"記録"_qs, 1200}};
    画面(欄::lst_見出し).列 = {
        {u"項目"_qs, 2000}, {u"この状態"_qs, 1400}, {u"前の状態"_qs, 1400}, {u"変更"_qs, 500}};
    // What changed stands next to the line's id, where it is read first.
    画面(欄::lst_明細).列 = {{u"固有行No"_qs, 900},        {u"行No"_qs, 600},
                             {u"変化"_qs, 2700},           {u"費目"_qs, 500},
                             {u"支払先"_qs, 1300},         {u"摘要"_qs, 1500},
                             {u"出金金額"_qs, 1000, true}, {u"消費税"_qs, 800, true},
                             {u"実質金額"_qs, 1000, true}};
    部品& 状態 = 画面(欄::lst_状態);
    状態.KeyDown = [this, &状態](キーコード キー) {
        if (キー == キーコード::Enter) 状態表示(状態.選択);
    };
    状態.Click = [this, &状態] { 状態表示(状態.選択); };
    状態.DblClick = [this, &状態] { 状態表示(状態.選択); };
    画面(欄::btn_戻る).Click = [this] { 戻る(); };
    画面.KeyPreview = [this](キーコード キー) {
        if (キー != キーコード::Esc) return false;
        戻る();
        return true;
    };
    s.データ.基盤().画面事象登録(画面.名前, {.読込 = [this] { 読込(); }, .枠閉じ = {}});
}

void wnd出金履歴::読込() {
    部品& 状態 = 画面(欄::lst_状態);
    状態.項目クリア();
    画面(欄::lst_見出し).項目クリア();
    画面(欄::lst_明細).項目クリア();
    画面(欄::lab_合計).Caption.clear();
    画面(欄::lab_欠け).Caption.clear();
    const std::optional<伝票鍵> 鍵 = 伝票鍵を読む(主.状態.履歴鍵);
    履歴 = 鍵 ? 出金履歴読込(s.データ, *鍵) : std::nullopt;
    if (!履歴) {
        画面(欄::lab_伝票).Caption = u"この伝票の履歴はありません。"_qs;
        画面.SetFocus(画面(欄::btn_戻る));
        return;
    }
    const int n = static_cast<int>(履歴->状態.size());
    画面(欄::lab_伝票).Caption =
        u"伝票 "_qs + 履歴->鍵.表示() + u"　状態 "_qs + QString::number(n) + u" 件（新しい順）"_qs;
    for (int i = 0; i < n; ++i) {
        const 伝票状態& st = 履歴->状態[i];
        状態.項目追加(
            {QString::number(n - i),
             u"S"_qs + QString::number(i),
             {種別名(st.何), st.鍵.表示(), st.何 == 種別::削除 ? st.置換履歴No : st.書込履歴No,
              日時(st.登録日付), 日時(st.更新日付), st.ユーザID, st.操作者名,
              st.欠け.isEmpty() ? QString() : u"不完全"_qs}});
    }
    状態.選択 = 0;
    状態表示(0);
    画面.SetFocus(状態);
}

void wnd出金履歴::状態表示(int 行) {
    if (!履歴 || 行 < 0 || 行 >= static_cast<int>(履歴->状態.size())) return;
    const 伝票状態& st = 履歴->状態[行];
    const 伝票状態* 前 =
        行 + 1 < static_cast<int>(履歴->状態.size()) ? &履歴->状態[行 + 1] : nullptr;
    const 状態差分 d = 差分(前, st);
    画面(欄::lab_合計).Caption = u"合計 "_qs + 円(d.合計前) + u" → "_qs + 円(d.合計後);
    画面(欄::lab_欠け).Caption =
        st.欠け.isEmpty() ? QString() : u"不完全: "_qs + st.欠け.join(u"、"_qs);
    画面(欄::lab_欠け).ForeColor = 0xC00000;

    部品& 見出し = 画面(欄::lst_見出し);
    見出し.項目クリア();
    for (const 項目値& v : st.見出し) {
        const QString 以前 = 前 ? 前->見出し値(v.名前) : QString();
        bool 変わった = false;
        for (const 項目変化& c : d.見出し) 変わった |= c.名前 == v.名前;
        見出し.項目追加({v.名前, u"H"_qs + v.名前, {v.値, 以前, 変わった ? 変更印 : QString()}});
    }

    部品& 明細 = 画面(欄::lst_明細);
    明細.項目クリア();
    for (const 履歴明細& m : st.明細) {
        QString 変化;
        if (d.追加行.contains(m.出金固有行No)) 変化 = u"追加"_qs;
        for (const 明細変化& c : d.変更行) {
            if (c.出金固有行No != m.出金固有行No) continue;
            QStringList 項;
            for (const 項目変化& x : c.変化) 項 << x.名前 + u' ' + x.前 + u"→"_qs + x.後;
            変化 = 変更印 + 項.join(u"、"_qs);
        }
        明細.項目追加(明細の行(m, 変化));
    }
    if (前) {
        for (const QString& 固有行No : d.削除行) {
            if (const 履歴明細* m = 前->行(固有行No)) 明細.項目追加(明細の行(*m, u"削除"_qs));
        }
    }
}

void wnd出金履歴::戻る() {
    s.データ.基盤().画面終了(画面.名前);
}
