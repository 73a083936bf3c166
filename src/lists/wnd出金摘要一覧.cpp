#include "lists/wnd出金摘要一覧.h"
#include "lists/一覧部品名.h"

#include <QDate>

#include "dataenv/データ環境.h"
#include "slip/出金セッション.h"
#include "text/プラットフォーム.h"
#include "text/数値書式.h"
#include "text/項目編集.h"

namespace {

using 欄 = 一覧部品;

constexpr const char16_t* 期間題[] = {u"直近３ヶ月", u"直近１年", u"直近３年", u"直近10年",
                                      u"全て"};

}  // namespace

wnd出金摘要一覧::wnd出金摘要一覧(出金セッション& セッション, 画面モデル& 主画面)
    : 一覧画面(セッション, 主画面, u"wnd出金摘要一覧"_qs, 部品定義表, u"List出金摘要"_qs) {
    画面.Caption = u"出金摘要一覧"_qs;
    画面.Width = 6840;
    for (int i = 0; i < 5; ++i) {
        部品& p = 画面(欄::opb_期間, i);
        p.Caption = QString::fromUtf16(期間題[i]);
        // The period is only stored; the next search uses it.
        p.Click = [this, &p, i] {
            if (p.Value) 期間 = i;
        };
    }
    部品& 文字列 = 画面(欄::検索文字列);
    文字列.GotFocus = [this, &文字列] { 主.状態.入力中項目 = &文字列; };
    文字列.Change = [this] { 画面(欄::btn_複合検索).Enabled = true; };
    文字列.LostFocus = [this, &文字列] {
        if (文字列.Text == 条件.value(u"検索文字列"_qs)) return;
        条件[u"検索文字列"_qs] = 文字列.Text;
        状態表示();
    };
    検索ボタン(欄::btn_複合検索, 0);
    検索ボタン(欄::btn_否定検索, -1);
    // Keys are made when a pick asks for one.
    一覧().鍵規則 = [this](const 一覧項目& 項) {
        if (方言() != u"A") return u"C"_qs + 項.Text;
        // Without DISTINCT the same text comes more than once; the place it was read in keeps
        // the keys apart.
        return u"C"_qs + 書式(項.順, u"00000000000") + 項.Text;
    };
}

void wnd出金摘要一覧::状態表示() {
    画面(欄::検索文字列).Text = 条件.value(u"検索文字列"_qs);
    for (int i = 0; i < 5; ++i) 画面(欄::opb_期間, i).Value = i == 期間 ? 1 : 0;
}

void wnd出金摘要一覧::読込() {
    条件[u"検索文字列"_qs].clear();
    期間 = 0;
    状態表示();
    列作成({{u"出金摘要"_qs, 6400}});
    初回検索();
}

void wnd出金摘要一覧::条件クリア() {
    検索種別 = 0;
    条件[u"検索文字列"_qs].clear();
    期間 = 0;
    状態表示();
    一覧検索実行();
    画面.SetFocus(一覧());
}

QString wnd出金摘要一覧::検索文作成() {
    const bool A = 方言() == u"A";
    const QString 先頭 = A ? u"LEFT(摘要,20)"_qs : u"SUBSTRING(摘要,1,20)"_qs;
    QString 文 = (A ? u"SELECT "_qs : u"SELECT DISTINCT "_qs) + 先頭 + u" AS 先頭摘要"_qs +
                 u" FROM T出金明細"_qs;
    if (期間 < 4) {
        // Worked out on each search, by the calendar from today.
        const QDate 今日 = d.基盤().現在時刻().date();
        const QDate 起点 = 期間 == 0   ? 今日.addMonths(-3)
                           : 期間 == 1 ? 今日.addYears(-1)
                           : 期間 == 2 ? 今日.addYears(-3)
                                       : 今日.addYears(-10);
        文 += u" WHERE 出金日付 >= '"_qs + 起点.toString(u"yyyyMMdd"_qs) +
              u"' AND 出金日付 <= '"_qs + 今日.toString(u"yyyyMMdd"_qs) + u"'"_qs;
    } else {
        文 += u" WHERE 出金日付 <> ''"_qs;
    }
    文 += A ? u" AND 摘要 <> ''"_qs : u" AND CAST(摘要 AS nvarchar(20)) <> ''"_qs;
    const QString 値 = 条件.value(u"検索文字列"_qs);
    if (!値.trimmed().isEmpty()) {
        // The negative search has the SUBSTRING form on every engine.
        const QString 句 = 検索種別 == -1 ? u" AND SUBSTRING(摘要,1,20) NOT LIKE '%"_qs
                                          : u" AND "_qs + 先頭 + u"  LIKE '%"_qs;
        文 += 句 + 引用符二重化(値) + u"%'"_qs;
    }
    return 文 + (A ? u" ORDER BY 摘要"_qs : u" ORDER BY 先頭摘要"_qs);
}

void wnd出金摘要一覧::行を加える(記録集合& rs, int) {
    一覧項目 項;
    項.Text = rs.文字列(0);
    一覧().項目追加(std::move(項));
}
