#include "audit/出金履歴行.h"

#include <algorithm>

#include "dataenv/接続環境.h"
#include "dataenv/記録集合.h"
#include "text/項目編集.h"

namespace {

struct 列定義 {
    const char16_t* 名前;
    bool 金額列;
};

// The columns an auditor compares, in the order the window shows them. The stamps and the
// user are when and who, told beside each state rather than compared.
const 列定義 見出し列[] = {
    {u"出金日付", false},
    {u"担当者コード", false},
    {u"部門コード", false},
    {u"セクションコード", false},
    {u"出張申請事業所コード", false},
    {u"出張申請番号基準日付", false},
    {u"出張申請No", false},
    {u"出金伝票備考A", false},
    {u"出金伝票備考B", false},
    {u"出金金額合計", true},
    {u"出金消費税合計", true},
    {u"実質出金金額合計", true},
    {u"税抜出金金額合計", true},
    {u"税込出金金額合計", true},
    {u"前回税率出金金額合計", true},
    {u"前回税率出金消費税合計", true},
    {u"今回税率出金金額合計", true},
    {u"今回税率出金消費税合計", true},
    {u"伝票発行区分", false},
    {u"出金メモ", false},
    {u"承認日付", false},
    {u"承認者コード", false},
};
const 列定義 明細列[] = {
    {u"出金行No", false},     {u"費目区分", false},       {u"内税外税区分", false},
    {u"支払先", false},       {u"課税事業所区分", false}, {u"摘要", false},
    {u"消費税率", true},      {u"出金金額", true},        {u"出金消費税", true},
    {u"実質出金金額", true},  {u"税抜出金金額", true},    {u"税込出金金額", true},
    {u"会計集計日付", false}, {u"明細メモ", false},       {u"承認日付", false},
    {u"承認者コード", false},
};

QString 値の文字列(const 記録集合& rs, const 列定義& 列) {
    const QString 名 = QString::fromUtf16(列.名前);
    if (rs.Null(名)) return {};
    return 列.金額列 ? rs.金額値(名).文字列() : rs.文字列(名);
}

std::vector<項目値> 見出しを読む(const 記録集合& rs, const 伝票鍵& 鍵) {
    std::vector<項目値> 項目{{u"番号基準日付"_qs, 鍵.番号基準日付}, {u"出金No"_qs, 鍵.番号}};
    for (const 列定義& 列 : 見出し列)
        項目.push_back({QString::fromUtf16(列.名前), 値の文字列(rs, 列)});
    return 項目;
}

// The new-state writer names 会計集計日付 before the two amounts and gives its values after
// them: the tax-exclusive amount stands in 会計集計日付, the tax-inclusive one in 税抜出金金額
// and the aggregation date in 税込出金金額. They are put back in their meaning here.
void 新状態の列を戻す(const 記録集合& rs, 履歴明細& 明細) {
    for (項目値& v : 明細.項目) {
        if (v.名前 == u"税抜出金金額") {
            v.値 = rs.Null(u"会計集計日付"_qs)
                       ? QString()
                       : 金額::文字列から(rs.文字列(u"会計集計日付"_qs)).文字列();
        } else if (v.名前 == u"税込出金金額") {
            v.値 = rs.Null(u"税抜出金金額"_qs) ? QString() : rs.金額値(u"税抜出金金額"_qs).文字列();
        } else if (v.名前 == u"会計集計日付") {
            v.値 = rs.Null(u"税込出金金額"_qs)
                       ? QString()
                       : QString::number(rs.金額値(u"税込出金金額"_qs).整数値());
        }
    }
}

履歴行群::明細行 明細を読む(const 記録集合& rs, bool 新状態) {
    履歴行群::明細行 行;
    行.履歴No = rs.文字列(u"出金履歴No"_qs);
    行.登録日付 = rs.文字列(u"登録日付"_qs);
    行.ユーザID = rs.文字列(u"ユーザID"_qs);
    行.明細.出金固有行No = rs.文字列(u"出金固有行No"_qs);
    for (const 列定義& 列 : 明細列)
        行.明細.項目.push_back({QString::fromUtf16(列.名前), 値の文字列(rs, 列)});
    if (新状態) 新状態の列を戻す(rs, 行.明細);
    return 行;
}

履歴行群::見出し行 見出し行を読む(const 記録集合& rs, const 伝票鍵& 鍵) {
    return {rs.文字列(u"出金履歴No"_qs), 見出しを読む(rs, 鍵), rs.文字列(u"登録日付"_qs),
            rs.文字列(u"更新日付"_qs), rs.文字列(u"ユーザID"_qs)};
}

// Every row of one statement through the reader; false when the statement failed.
template <class F>
bool 行ごとに(接続環境& 接続, const QString& 文, F&& 読む) {
    記録集合 rs;
    // A query without rows answers false too; only one that failed has no columns.
    if (!接続.業務DB検索(rs, 文) && rs.列数() == 0) {
        rs.閉じる();
        return false;
    }
    for (; !rs.EOFか(); rs.MoveNext()) 読む(rs);
    rs.閉じる();
    return true;
}

}  // namespace

QString 鍵の条件(const 伝票鍵& 鍵) {
    return u" WHERE 事業所コード = '"_qs + 引用符二重化(鍵.事業所コード) +
           u"' AND 番号基準日付 = '"_qs + 引用符二重化(鍵.番号基準日付) + u"' AND 出金No = '"_qs +
           引用符二重化(鍵.番号) + u"'"_qs;
}

bool 番号順(const QString& 左, const QString& 右) {
    const qlonglong l = 左.toLongLong(), r = 右.toLongLong();
    return l != r ? l < r : 左 < 右;
}

bool 履歴行を読む(接続環境& 接続, const 伝票鍵& 鍵, 履歴行群& 行群) {
    const QString 条件 = 鍵の条件(鍵);
    bool 読めた = 行ごとに(接続, u"SELECT * FROM T出金"_qs + 条件, [&](const 記録集合& rs) {
        if (!行群.現在見出し) 行群.現在見出し = 見出し行を読む(rs, 鍵);
    });
    読めた &= 行ごとに(接続, u"SELECT * FROM T出金明細"_qs + 条件 + u" ORDER BY 出金行No"_qs,
                       [&](const 記録集合& rs) { 行群.現在明細.push_back(明細を読む(rs, false)); });
    読めた &= 行ごとに(接続, u"SELECT * FROM R出金"_qs + 条件, [&](const 記録集合& rs) {
        行群.旧見出し.push_back(見出し行を読む(rs, 鍵));
    });
    読めた &= 行ごとに(接続, u"SELECT * FROM R出金明細"_qs + 条件 + u" ORDER BY 出金行No"_qs,
                       [&](const 記録集合& rs) {
                           const bool 新 = rs.文字列(u"赤黒区分"_qs) == u"1";
                           (新 ? 行群.新明細 : 行群.旧明細).push_back(明細を読む(rs, 新));
                       });
    std::stable_sort(行群.旧見出し.begin(), 行群.旧見出し.end(),
                     [](const auto& a, const auto& b) { return 番号順(a.履歴No, b.履歴No); });
    return 読めた;
}
