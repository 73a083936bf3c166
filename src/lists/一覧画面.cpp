#include "lists/一覧画面.h"
#include "lists/一覧部品名.h"

#include "dataenv/データ環境.h"
#include "screen/次項目補正.h"
#include "slip/出金セッション.h"
#include "text/プラットフォーム.h"
#include "text/項目編集.h"

namespace {

using 欄 = 一覧部品;

}  // namespace

一覧画面::一覧画面(出金セッション& s_, 画面モデル& 主画面, const QString& 名前, const 部品表& 表,
                   const QString& 一覧名)
    : 画面(名前), s(s_), d(s_.データ), 主(主画面) {
    画面.作る(表);
    一覧部品 = &画面(一覧名);
    // Esc reaches the window before any control: it is the way back.
    画面.KeyPreview = [this](キーコード キー) {
        if (キー != キーコード::Esc) return false;
        戻る();
        return true;
    };
    部品& L = 一覧();
    L.DblClick = [this] { 選ぶ(); };
    L.KeyDown = [this](キーコード キー) {
        if (キー == キーコード::Enter) 選ぶ();
    };
    L.ColumnClick = [this](int 列番号) { 列見出しクリック(列番号); };
    // A key must not be purely numeric; it is made when a pick asks for it.
    L.鍵規則 = [](const 一覧項目& 項) { return u"C"_qs + 項.Text; };
    画面(欄::btn_戻る).Click = [this] { 戻る(); };
    画面(欄::btn_画面クリア).Click = [this] { 条件クリア(); };
}

部品& 一覧画面::一覧() {
    return *一覧部品;
}

const 条件欄* 一覧画面::欄(const QString& 名前) const {
    for (const 条件欄& e : 条件欄群) {
        if (e.名前 == 名前) return &e;
    }
    return nullptr;
}

void 一覧画面::焦点(部品* 先) {
    if (先 && 先->所属) 先->所属->SetFocus(*先);
}

void 一覧画面::欄句(検索文& 文, const 句定義& 句) const {
    欄句(文, QString::fromUtf16(句.欄), QString::fromUtf16(句.正), QString::fromUtf16(句.否),
         QString::fromUtf16(句.閉じ), 句.曖昧);
}

void 一覧画面::欄句(検索文& 文, const QString& 欄名, const QString& 正, const QString& 否,
                    const QString& 閉じ, bool 曖昧) const {
    const QString 値 = 条件.value(欄名);
    if (値.trimmed().isEmpty()) return;
    文.加える((検索種別 == -1 ? 否 : 正) + (曖昧 ? 引用符二重化(値) : 値) + 閉じ);
}

void 一覧画面::区分句(検索文& 文, const QString& 番号, const QString& 正, const QString& 否) const {
    const int i = 区分.value(番号);
    if (i == 画面.探す(番号)->Max) return;
    文.加える((検索種別 == -1 ? 否 : 正) + QString::number(i) + u"'"_qs);
}

void 一覧画面::呼出条件句(検索文& 文) const {
    if (!主.状態.一覧.条件.trimmed().isEmpty()) {
        文.加える(u" AND ("_qs + 主.状態.一覧.条件 + u")"_qs);
    }
}

QString 一覧画面::方言() const {
    QString db = d.接続().環境().db;
    if (連携で検索) {
        const 連携スロット環境* L = d.接続().連携先();
        db = L ? L->定義.db : QString();
    }
    // PostgreSQL takes the way of SQL Server wherever the statements differ.
    return db == u"P" ? u"S"_qs : db;
}

bool 一覧画面::文を開く(記録集合& rs, const QString& 文, bool 連携) {
    return 連携 ? d.接続().連携DB検索(rs, 文) : d.接続().業務DB検索(rs, 文);
}

void 一覧画面::検索ボタン(部品名 名前, int 種別) {
    画面(名前).Click = [this, 種別] {
        検索種別 = 種別;
        一覧検索実行();
        画面.SetFocus(一覧());
    };
}

void 一覧画面::欄を結ぶ(QList<条件欄> 欄群, QList<区分欄> 区分群) {
    条件欄群 = std::move(欄群);
    区分欄群 = std::move(区分群);
    for (const 条件欄& e : 条件欄群) {
        部品& p = 画面(e.名前);
        p.Change = [this] { 検索ボタン状態更新(); };
        if (e.種類 == 条件欄種類::名称) {
            // A looked-up name is not typed: the focus goes on to what follows.
            p.GotFocus = [this, &p] {
                主.状態.入力中項目 = &p;
                主.状態.一覧.名称先 = 次項目補正(主, &p);
                if (主.状態.一覧.名称先->所属 == &画面) 画面.SetFocus(*主.状態.一覧.名称先);
            };
            continue;
        }
        p.GotFocus = [this, &p] { 主.状態.入力中項目 = &p; };
        p.LostFocus = [this, &p, 名前 = e.名前] {
            const 条件欄& 定 = *欄(名前);
            const QString 値 = 定.種類 == 条件欄種類::コード
                                   ? 書式桁揃え(p.Text, ゼロ文字列(p.MaxLength))
                                   : p.Text;
            if (値 != 条件.value(名前)) {
                条件[名前] = 値;
                if (!定.名称欄.isEmpty()) 条件[定.名称欄] = 名称検索(定, 値);
            }
            一覧条件表示();
        };
        if (!e.入れ子画面.isEmpty()) {
            const auto 開く = [this, &p, 名前 = e.名前] {
                if (主.状態.入力中項目 == &p) 入れ子一覧(*欄(名前));
            };
            p.KeyDown = [開く](キーコード キー) {
                if (キー == キーコード::Ctrl) 開く();
            };
            p.DblClick = 開く;
        }
    }
    for (const 区分欄& k : 区分欄群) {
        部品& 番号 = 画面(k.番号);
        部品& 名称 = 画面(k.名称);
        番号.GotFocus = [this, &番号] { 主.状態.入力中項目 = &番号; };
        名称.GotFocus = [this, &名称] { 主.状態.入力中項目 = &名称; };
        番号.Change = [this, &番号, &名称] {
            const int i = 番号.Text.toInt();
            名称.ListIndex = i;
            名称.Text = 名称.一覧.value(i);
            区分[番号.名前] = i;
        };
        名称.LostFocus = [this, &番号, &名称] {
            番号.Text = QString::number(名称.ListIndex);
            区分[番号.名前] = 名称.ListIndex;
        };
    }
}

void 一覧画面::区分一覧作成() {
    for (const 区分欄& k : 区分欄群) {
        部品& 名称 = 画面(k.名称);
        名称.一覧.clear();
        記録集合 rs;
        if (文を開く(rs, k.文, 連携で検索)) {
            for (; !rs.EOFか(); rs.MoveNext()) 名称.一覧 << rs.文字列(u"名称"_qs);
        }
        rs.閉じる();
        部品& 番号 = 画面(k.番号);
        番号.Min = 0;
        番号.Max = static_cast<int>(名称.一覧.size());
        名称.一覧 << u"全て"_qs;
    }
}

void 一覧画面::一覧条件表示() {
    // Texts set here run the fields' change events, so the search buttons follow.
    for (const 条件欄& e : 条件欄群) 画面.文字設定(画面(e.名前), 条件.value(e.名前));
    for (const 区分欄& k : 区分欄群) {
        const int i = 区分.value(k.番号);
        画面(k.番号).Text = QString::number(i);
        部品& 名称 = 画面(k.名称);
        名称.ListIndex = i;
        名称.Text = 名称.一覧.value(i);
    }
}

void 一覧画面::列作成(const QList<一覧列>& 列) {
    部品& L = 一覧();
    L.列 = 列;
    L.項目クリア();
    // A list view made by a load stands in the order of the statement until a heading is
    // clicked; the sort of an earlier load went with the window.
    L.Sorted = false;
    L.SortKey = 0;
    L.降順 = false;
}

QString 一覧画面::条件取出(const QString& 項目名) {
    if (!主.状態.一覧.条件.contains(項目名, Qt::CaseInsensitive)) return {};
    const QString 元 = 主.状態.一覧.条件;
    return 条件値取出(項目名, 元, 主.状態.一覧.条件);
}

void 一覧画面::コード取出(const QString& 欄名, const QString& 項目名) {
    const 条件欄& e = *欄(欄名);
    const QString 値 = 条件取出(項目名);
    条件[欄名] = 値;
    if (!e.名称欄.isEmpty()) 条件[e.名称欄] = 値.isEmpty() ? QString() : 名称検索(e, 値);
}

QString 一覧画面::名称検索(const 条件欄& 欄, const QString& コード) {
    記録集合 rs;
    QString 名称;
    if (文を開く(rs, 欄.名称文 + コード + u"'"_qs, 連携で名称)) 名称 = rs.文字列(欄.名称列);
    rs.閉じる();
    return 名称;
}

void 一覧画面::初回検索() {
    一覧条件表示();
    検索種別 = 0;
    一覧検索実行();
    // Nothing is picked by a stray Enter right after opening.
    一覧().選択 = -1;
    if (部品* 先頭 = 画面.次のタブ(nullptr, false)) 画面.SetFocus(*先頭);
}

void 一覧画面::一覧検索実行() {
    部品& L = 一覧();
    // The rows of the last search are let go one at a time while the new ones are read, so that
    // the memory of each goes straight to the next row.
    QList<一覧項目> 前の行 = L.項目取出し();
    検索SQL = 検索文作成();
    const int 上限 = 行上限();
    int 件数 = 0;
    if (!検索SQL.isEmpty()) {
        記録集合 rs;
        if (d.接続().一覧検索(rs, 検索SQL, 上限, 連携で検索)) {
            for (; (上限 == 0 || 件数 < 上限) && !rs.EOFか(); rs.MoveNext()) {
                行を加える(rs, 件数);
                if (件数 < 前の行.size()) 前の行[件数] = {};
                ++件数;
            }
        }
        rs.閉じる();
    }
    if (L.Sorted) L.並べ替え();
    // The limit is only told, never counted past.
    if (部品* 注意 = 画面.探す(欄::lab_注意)) 注意->Visible = 上限 > 0 && 件数 >= 上限;
    検索ボタン状態更新();
}

void 一覧画面::行を加える(記録集合& rs, int) {
    一覧項目 項;
    項.SubItems.reserve(rs.列数());
    項.Text = rs.文字列(0);
    // A Null column leaves its cell empty.
    for (int c = 1; c < rs.列数(); ++c) 項.SubItems << rs.文字列(c);
    一覧().項目追加(std::move(項));
}

void 一覧画面::検索ボタン状態更新() {
    for (const 条件欄& e : 条件欄群) {
        if (e.検索ボタン.isEmpty() || e.種類 == 条件欄種類::名称) continue;
        画面(e.検索ボタン).Enabled = !画面(e.名前).Text.trimmed().isEmpty();
    }
}

void 一覧画面::列見出しクリック(int 列番号) {
    部品& L = 一覧();
    if (列番号 - 1 != L.SortKey) {
        L.SortKey = 列番号 - 1;
    } else {
        L.降順 = !L.降順;
    }
    L.Sorted = true;
    L.並べ替え();
}

void 一覧画面::選ぶ() {
    部品& L = 一覧();
    if (L.選択 < 0 || L.選択 >= L.項目.size()) return;
    const 一覧項目 項 = L.項目.at(L.選択);
    // The number and description lists answer with the row's key, which outlives the close.
    if (鍵を返す()) 主.状態.選択鍵 = L.鍵(L.選択);
    if (部品* 先 = 主.状態.一覧.設定先) 先->所属->文字設定(*先, 項.Text);
    閉じる();
    主.状態.一覧.条件.clear();
    if (主.状態.一覧.入れ子区分 == 1) {
        d.基盤().画面使用可否(主.状態.一覧.呼出元画面, true);
        焦点(主.状態.一覧.設定先);
        焦点(主.状態.一覧.名称先);
        return;
    }
    d.基盤().画面使用可否(主.名前, true);
    焦点(主.状態.一覧.設定先);
    主.状態.一覧.名称先 = 次項目補正(主, 主.状態.一覧.名称先);
    焦点(主.状態.一覧.名称先);
}

void 一覧画面::戻る() {
    閉じる();
    呼出元へ戻す();
}

void 一覧画面::枠で閉じた() {
    呼出元へ戻す();
}

void 一覧画面::呼出元へ戻す() {
    d.基盤().画面使用可否(主.状態.一覧.入れ子区分 == 1 ? 主.状態.一覧.呼出元画面 : 主.名前, true);
    主.状態.一覧.条件.clear();
    焦点(主.状態.一覧.設定先);
}

void 一覧画面::閉じる() {
    const QString 題 = 登録画面題();
    if (鍵を返す() || 題.isEmpty() || 主.Caption.contains(題)) {
        d.基盤().画面終了(画面.名前);
    } else {
        d.基盤().画面隠す(画面.名前);
    }
}

void 一覧画面::条件クリア() {
    主.状態.一覧.条件.clear();
    検索種別 = 0;
    一覧初期条件展開();
    一覧条件表示();
    一覧検索実行();
    画面.SetFocus(一覧());
}

void 一覧画面::入れ子一覧(const 条件欄& 欄) {
    部品* 先 = 主.状態.一覧.設定先;
    部品* 名 = 主.状態.一覧.名称先;
    // A window that is itself nested (the employee list over the trip list) stays so once its
    // own nested list is back; from the first level this leaves 0 and no caller, as always.
    const short 元の区分 = 主.状態.一覧.入れ子区分;
    const QString 元の呼出元 = 主.状態.一覧.呼出元画面;
    主.状態.一覧.呼出元画面 = 画面.名前;
    主.状態.一覧.入れ子区分 = 1;
    d.基盤().画面使用可否(画面.名前, false);
    主.状態.一覧.条件.clear();
    主.状態.一覧.設定先 = &画面(欄.名前);
    主.状態.一覧.名称先 = &画面(欄.検索ボタン);
    d.基盤().画面表示(欄.入れ子画面, true);
    主.状態.一覧.入れ子区分 = 元の区分;
    主.状態.一覧.呼出元画面 = 元の呼出元;
    主.状態.一覧.設定先 = 先;
    主.状態.一覧.名称先 = 名;
    主.状態.入力中項目 = &画面(欄.名前);
}
