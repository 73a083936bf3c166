#pragma once

#include "screen/部品名.h"

// The controls of the list windows that the frame and the windows' code reach by name; the
// windows' tables take these names from here, so that code and table cannot drift apart.
struct 一覧部品 {
    static constexpr 部品名 btn_戻る{u"btn_戻る"};
    static constexpr 部品名 btn_画面クリア{u"btn_画面クリア"};
    static constexpr 部品名 lab_注意{u"lab_注意"};
    static constexpr 部品名 btn_複合検索{u"btn_複合検索"};
    static constexpr 部品名 btn_否定検索{u"btn_否定検索"};
    static constexpr 部品名 btn_コード検索{u"btn_コード検索"};
    static constexpr 部品名 btn_カナ検索{u"btn_カナ検索"};
    static constexpr 部品名 btn_名称検索{u"btn_名称検索"};
    static constexpr 部品名 btn_部門コード検索{u"btn_部門コード検索"};
    static constexpr 部品名 btn_セクションコード検索{u"btn_セクションコード検索"};
    static constexpr 部品名 社員区分{u"社員区分"};
    static constexpr 部品名 稼動状況区分{u"稼動状況区分"};
    static constexpr 部品名 検索文字列{u"検索文字列"};
    static constexpr 部品名 opb_期間{u"opb_期間"};
};
