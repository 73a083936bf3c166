#include "lists/wnd社員一覧.h"

wnd社員一覧::wnd社員一覧(出金セッション& セッション, 画面モデル& 主画面)
    : wnd担当者一覧(セッション, 主画面, u"社員"_qs) {
    // The employees and their classes are the HR system's; the department and section names
    // are this company's own.
    連携で検索 = true;
    // Here a single click in a department or section code opens its list, not a double one.
    for (const QString& 名 : {u"部門コード"_qs, u"セクションコード"_qs}) {
        部品& p = 画面(名);
        p.Click = std::move(p.DblClick);
        p.DblClick = nullptr;
    }
}
