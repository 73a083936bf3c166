#include "lists/一覧画面集.h"

#include "dataenv/データ環境.h"
#include "lists/wnd出張申請No一覧.h"
#include "lists/wnd出金No一覧.h"
#include "lists/wnd出金摘要一覧.h"
#include "lists/wnd担当者一覧.h"
#include "lists/wnd社員一覧.h"
#include "lists/wnd部門一覧.h"
#include "slip/出金セッション.h"
#include "text/プラットフォーム.h"

一覧画面集::一覧画面集(出金セッション& セッション, 画面モデル& 主画面) {
    群.push_back(std::make_unique<wnd担当者一覧>(セッション, 主画面));
    群.push_back(std::make_unique<wnd部門一覧>(セッション, 主画面, u"部門"_qs));
    群.push_back(std::make_unique<wnd部門一覧>(セッション, 主画面, u"セクション"_qs));
    群.push_back(std::make_unique<wnd出金No一覧>(セッション, 主画面));
    群.push_back(std::make_unique<wnd出金摘要一覧>(セッション, 主画面));
    群.push_back(std::make_unique<wnd社員一覧>(セッション, 主画面));
    群.push_back(std::make_unique<wnd出張申請No一覧>(セッション, 主画面));
    for (const auto& w : 群) {
        一覧画面* p = w.get();
        セッション.データ.基盤().画面事象登録(
            p->画面.名前, {.読込 = [p] { p->読込(); }, .枠閉じ = [p] { p->枠で閉じた(); }});
    }
}

一覧画面* 一覧画面集::探す(const QString& 名前) const {
    for (const auto& w : 群) {
        if (w->画面.名前 == 名前) return w.get();
    }
    return nullptr;
}
