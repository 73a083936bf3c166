#include "lists/wnd部門一覧.h"
#include "lists/一覧部品名.h"

#include "dataenv/データ環境.h"
#include "slip/出金セッション.h"
#include "text/項目編集.h"

namespace {

using 欄 = 一覧部品;

}  // namespace

wnd部門一覧::wnd部門一覧(出金セッション& セッション, 画面モデル& 主画面, const QString& 対象_)
    : 一覧画面(セッション, 主画面, u"wnd"_qs + 対象_ + u"一覧"_qs,
               対象_ == u"部門" ? 部門部品定義表 : セクション部品定義表, u"List"_qs + 対象_),
      対象(対象_) {
    画面.Caption = 対象 + u"一覧"_qs;
    画面.Width = 4020;
    欄を結ぶ({}, {{u"稼動状況区分"_qs, u"稼動状況区分名称"_qs,
                   u"SELECT * FROM K稼動状況区分 ORDER BY 区分"_qs}});
}

void wnd部門一覧::読込() {
    区分一覧作成();
    // The second status row, unless the caller names one.
    区分[u"稼動状況区分"_qs] = 1;
    const QString 項目 = 表() + u".稼動状況区分"_qs;
    if (主.状態.一覧.条件.contains(項目, Qt::CaseInsensitive)) {
        区分[u"稼動状況区分"_qs] = 整数変換(条件取出(項目));
    }
    列作成({{u"コード"_qs, 750}, {u"名称"_qs, 2500}});
    初回検索();
}

void wnd部門一覧::条件クリア() {
    // Nothing is reset here: the search runs again as it stands.
    一覧検索実行();
    画面.SetFocus(一覧());
}

QString wnd部門一覧::検索文作成() {
    QString 文 = u"SELECT コード,名称 FROM "_qs + 表();
    const int i = 区分.value(u"稼動状況区分"_qs);
    if (i != 画面(欄::稼動状況区分).Max) {
        文 += u" WHERE "_qs + 表() + u".稼動状況区分 = '"_qs + QString::number(i) + u"'"_qs;
    }
    return 文 + u" ORDER BY "_qs + 表() + u".コード"_qs;
}
