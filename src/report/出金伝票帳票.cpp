#include "report/出金伝票帳票.h"

#include <QHash>

#include "report/帳票指定.h"
#include "rules/番号設定.h"
#include "slip/伝票鍵.h"

namespace {

// Class names by their code, as the entry screen lists them.
QHash<short, QString> 区分名称(データ環境& d, const QString& 表) {
    QHash<short, QString> 名称;
    記録集合 rs;
    if (d.接続().業務DB検索(rs, u"SELECT 区分, 名称 FROM "_qs + 表 + u" ORDER BY 区分"_qs)) {
        for (; !rs.EOFか(); rs.MoveNext()) 名称.insert(rs.整数(u"区分"_qs), rs.文字列(u"名称"_qs));
    }
    rs.閉じる();
    return 名称;
}

QString 名称(データ環境& d, const QString& 文) {
    記録集合 rs;
    const QString 値 = d.接続().業務DB検索(rs, 文) ? rs.文字列(u"名称"_qs) : QString();
    rs.閉じる();
    return 値;
}

}  // namespace

bool 出金伝票読込(出金セッション& s, const 帳票指定& 指定, 出金伝票帳票& 帳票, QString& エラー) {
    データ環境& d = s.データ;
    const QString 伝票 = u"事業所 "_qs + 指定.事業所コード + u"、出金日付 "_qs + 指定.出金日付自 +
                         u"、出金No "_qs + 指定.出金No自;
    const QString 基準日付 = 番号基準日付取得(d, 番号定数::出金番号ID.toString(), 指定.出金日付自);
    記録集合 rs;
    const QString 文 = u"SELECT TOP 1"_qs + 出金見出し列 + 出金見出し結合 +
                       伝票鍵{指定.事業所コード, 基準日付, 指定.出金No自}.条件(鍵の列::T出金読込) +
                       u" AND T出金.出金日付 = '"_qs + 指定.出金日付自 + u"'"_qs;
    if (基準日付.isEmpty() || !d.接続().業務DB検索(rs, 文)) {
        rs.閉じる();
        エラー = u"伝票が登録されていません。\n"_qs + 伝票;
        return false;
    }
    s.出金見出し読込(rs);
    const 出金見出し& h = s.見出し;
    const bool 担当者内 =
        (指定.担当者コード自.isEmpty() || h.担当者コード >= 指定.担当者コード自) &&
        (指定.担当者コード至.isEmpty() || h.担当者コード <= 指定.担当者コード至);
    if (!担当者内) {
        エラー = u"伝票が登録されていません。\n"_qs + 伝票 + u"、担当者 "_qs + 指定.担当者コード自;
        return false;
    }
    s.出金明細読込();

    帳票 = {};
    帳票.会社名 = d.会社設定().会社().名称;
    帳票.事業所コード = h.事業所コード;
    帳票.事業所名 =
        名称(d, u"SELECT 名称 FROM M事業所 WHERE コード = '"_qs + h.事業所コード + u"'"_qs);
    帳票.出金日付 = h.出金日付;
    帳票.番号基準日付 = h.番号基準日付;
    帳票.出金No = h.出金No;
    帳票.担当者コード = h.担当者コード;
    帳票.担当者名 = h.担当者名;
    帳票.部門コード = h.部門コード;
    帳票.部門名 = h.部門名;
    帳票.セクションコード = h.セクションコード;
    帳票.セクション名 = h.セクション名;
    帳票.備考A = h.出金伝票備考A;
    帳票.備考B = h.出金伝票備考B;
    帳票.合計 = s.合計;
    // The rate pair in force on the slip date, as the header read derived it for the view.
    帳票.前回税率 = h.前回税率;
    帳票.今回税率 = h.今回税率;

    const auto 費目 = 区分名称(d, u"K費目区分"_qs);
    const auto 内外 = 区分名称(d, u"K内税外税区分"_qs);
    for (int i = 0; i <= s.最終行; ++i) {
        const 出金行& r = s.行[i];
        帳票.明細.append({r.費目区分名称.isEmpty() ? 費目.value(r.費目区分) : r.費目区分名称,
                          内外.value(r.内税外税区分), r.支払先, r.摘要, r.消費税率, r.出金金額,
                          r.出金消費税});
    }
    return true;
}
