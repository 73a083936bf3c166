#include "audit/出金検索.h"
#include "audit/出金履歴読み手.h"

#include <QDate>
#include <QRegularExpression>

#include "dataenv/データ環境.h"
#include "dataenv/記録集合.h"
#include "slip/出金付属書類.h"
#include "text/項目編集.h"

namespace {

bool 日付か(const QString& 日付) {
    return 日付.size() == 8 && QDate::fromString(日付, u"yyyyMMdd"_qs).isValid();
}

// Whole yen, as a number the statement can take as it stands.
bool 円か(const QString& 値) {
    static const QRegularExpression 形(u"^-?[0-9]{1,13}$"_qs);
    return 形.match(値).hasMatch();
}

// A code of digits, filled with zeros to its length; false for anything else.
bool 桁揃え(QString& 値, int 桁) {
    if (値.isEmpty()) return true;
    if (値.size() > 桁) return false;
    for (QChar c : 値) {
        if (c < u'0' || c > u'9') return false;
    }
    値 = 値.rightJustified(桁, u'0');
    return true;
}

QString 範囲の誤り(QString& 下, QString& 上, const QString& 名) {
    下 = 下.trimmed();
    上 = 上.trimmed();
    for (const QString* v : {&下, &上}) {
        if (!v->isEmpty() && !円か(*v)) return 名 + u"は円単位の整数で指定してください。"_qs;
    }
    if (!下.isEmpty() && !上.isEmpty() && 下.toLongLong() > 上.toLongLong()) {
        return 名 + u"の下限が上限より大きくなっています。"_qs;
    }
    // The statement takes the number as a number: "007" goes in as 7.
    for (QString* v : {&下, &上}) {
        if (!v->isEmpty()) *v = QString::number(v->toLongLong());
    }
    return {};
}

// A LIKE pattern that finds the text anywhere, its own % and _ taken as they are.
QString 含む型(const QString& 文字列) {
    QString t = 文字列;
    t.replace(u"!"_qs, u"!!"_qs).replace(u"%"_qs, u"!%"_qs).replace(u"_"_qs, u"!_"_qs);
    return u"'%"_qs + 引用符二重化(t) + u"%' ESCAPE '!'"_qs;
}

// Where the rows of one kind of slip come from. K holds the slip's key: a stored slip's own row,
// which is its header too, or a deleted slip's key with the history number of its last state,
// whose header is H. A line of the slip is L in 明細表, with 明細条件 added.
struct 出所 {
    QString 表;
    QString 明細表;
    QString 明細条件;
    QString 削除印;
    QString 履歴No;
};

出所 保存済の出所() {
    return {u" FROM T出金 K LEFT JOIN M担当者 ON M担当者.コード = K.担当者コード"_qs,
            u"T出金明細"_qs,
            {},
            u"'0'"_qs,
            u"''"_qs};
}

出所 削除済の出所() {
    return {u" FROM ("_qs + 削除済伝票文() +
                u") K LEFT JOIN R出金 H ON H.事業所コード = K.事業所コード"
                u" AND H.番号基準日付 = K.番号基準日付 AND H.出金履歴No = K.出金履歴No"
                u" AND H.出金No = K.出金No"
                u" LEFT JOIN M担当者 ON M担当者.コード = H.担当者コード"_qs,
            u"R出金明細"_qs, u" AND L.赤黒区分 = '0' AND L.出金履歴No = K.出金履歴No"_qs, u"'1'"_qs,
            u"K.出金履歴No"_qs};
}

QString 明細の鍵(const 出所& o) {
    return u" WHERE L.事業所コード = K.事業所コード AND L.番号基準日付 = K.番号基準日付"
           u" AND L.出金No = K.出金No"_qs +
           o.明細条件;
}

QString 明細がある(const 出所& o, const QString& 条件) {
    return u" AND EXISTS (SELECT 1 FROM "_qs + o.明細表 + u" L"_qs + 明細の鍵(o) + 条件 + u")"_qs;
}

QString 書類の鍵() {
    return u" WHERE B.情報名 = '"_qs + 出金情報名 +
           u"' AND B.情報識別ID = K.事業所コード || K.番号基準日付 || K.出金No"_qs;
}

// The slip among those the documents name: the few slips with documents are looked up by key
// instead of every slip being asked for its documents.
QString 書類がある() {
    const auto 部分 = [](qsizetype 位置, qsizetype 桁) {
        return u"substr(B.情報識別ID, "_qs + QString::number(位置 + 1) + u", "_qs +
               QString::number(桁) + u")"_qs;
    };
    return u" AND (K.事業所コード, K.番号基準日付, K.出金No) IN (SELECT "_qs +
           部分(0, 伝票鍵::事業所桁) + u", "_qs + 部分(伝票鍵::事業所桁, 伝票鍵::日付桁) +
           u", "_qs + 部分(伝票鍵::事業所桁 + 伝票鍵::日付桁, 伝票鍵::番号桁) +
           u" FROM M付属書類 B WHERE B.情報名 = '"_qs + 出金情報名 + u"')"_qs;
}

}  // namespace

QString 出金検索条件の誤り(出金検索条件& c) {
    c.日付から = c.日付から.trimmed();
    c.日付まで = c.日付まで.trimmed();
    for (const QString* v : {&c.日付から, &c.日付まで}) {
        if (!v->isEmpty() && !日付か(*v)) {
            return u"出金日付は YYYYMMDD の日付で指定してください。"_qs;
        }
    }
    if (!c.日付から.isEmpty() && !c.日付まで.isEmpty() && c.日付から > c.日付まで) {
        return u"出金日付の開始が終了より後になっています。"_qs;
    }
    for (const QString& e : {範囲の誤り(c.合計下限, c.合計上限, u"合計金額"_qs),
                             範囲の誤り(c.明細下限, c.明細上限, u"明細金額"_qs)}) {
        if (!e.isEmpty()) return e;
    }
    c.支払先 = c.支払先.trimmed();
    c.担当者コード = c.担当者コード.trimmed();
    if (!桁揃え(c.担当者コード, 5)) return u"担当者コードは5桁までの数字で指定してください。"_qs;
    c.事業所コード = c.事業所コード.trimmed();
    if (!桁揃え(c.事業所コード, 3)) return u"事業所コードは3桁までの数字で指定してください。"_qs;
    // The head office's code stands for every office, as everywhere in the suite.
    if (c.事業所コード == ゼロ文字列(3)) c.事業所コード.clear();
    c.番号から = c.番号から.trimmed();
    c.番号まで = c.番号まで.trimmed();
    if (!桁揃え(c.番号から, 8) || !桁揃え(c.番号まで, 8)) {
        return u"出金Noは8桁までの数字で指定してください。"_qs;
    }
    if (!c.番号から.isEmpty() && !c.番号まで.isEmpty() && c.番号から > c.番号まで) {
        return u"出金Noの開始が終了より後になっています。"_qs;
    }
    return {};
}

QString 削除済伝票文() {
    return u"SELECT 旧.事業所コード, 旧.番号基準日付, 旧.出金No, MAX(旧.出金履歴No) AS 出金履歴No"
           u" FROM (SELECT 事業所コード, 番号基準日付, 出金No, 出金履歴No FROM R出金"
           u" UNION ALL SELECT 事業所コード, 番号基準日付, 出金No, 出金履歴No FROM R出金明細"
           u" WHERE 赤黒区分 = '0') 旧"
           u" WHERE NOT EXISTS (SELECT 1 FROM T出金 WHERE T出金.事業所コード = 旧.事業所コード"
           u" AND T出金.番号基準日付 = 旧.番号基準日付 AND T出金.出金No = 旧.出金No)"
           u" GROUP BY 旧.事業所コード, 旧.番号基準日付, 旧.出金No"_qs;
}

QString 出金検索文(const 出金検索条件& c) {
    const 出所 o = c.削除済 ? 削除済の出所() : 保存済の出所();
    // The header's columns: the stored slip's own row, or the deleted slip's last state.
    const QString H = c.削除済 ? u"H."_qs : u"K."_qs;
    QString 文 = u"SELECT TOP "_qs + QString::number(出金検索上限) +
                 u" K.事業所コード, K.番号基準日付, K.出金No, "_qs + H + u"出金日付, "_qs + H +
                 u"担当者コード, M担当者.氏名, (SELECT TOP 1 L.支払先 FROM "_qs + o.明細表 +
                 u" L"_qs + 明細の鍵(o) + u" ORDER BY L.出金行No), "_qs + H +
                 u"実質出金金額合計, (SELECT COUNT(*) FROM M付属書類 B"_qs + 書類の鍵() +
                 u"), "_qs + o.削除印 + u", "_qs + o.履歴No + o.表 + u" WHERE 1 = 1"_qs;
    if (!c.日付から.isEmpty())
        文 += u" AND "_qs + H + u"出金日付 >= "_qs + 引用符で囲む(c.日付から);
    if (!c.日付まで.isEmpty())
        文 += u" AND "_qs + H + u"出金日付 <= "_qs + 引用符で囲む(c.日付まで);
    if (!c.合計下限.isEmpty()) 文 += u" AND "_qs + H + u"実質出金金額合計 >= "_qs + c.合計下限;
    if (!c.合計上限.isEmpty()) 文 += u" AND "_qs + H + u"実質出金金額合計 <= "_qs + c.合計上限;
    if (!c.担当者コード.isEmpty()) {
        文 += u" AND "_qs + H + u"担当者コード = "_qs + 引用符で囲む(c.担当者コード);
    }
    if (!c.事業所コード.isEmpty())
        文 += u" AND K.事業所コード = "_qs + 引用符で囲む(c.事業所コード);
    if (!c.番号から.isEmpty()) 文 += u" AND K.出金No >= "_qs + 引用符で囲む(c.番号から);
    if (!c.番号まで.isEmpty()) 文 += u" AND K.出金No <= "_qs + 引用符で囲む(c.番号まで);
    if (!c.明細下限.isEmpty()) 文 += 明細がある(o, u" AND L.実質出金金額 >= "_qs + c.明細下限);
    if (!c.明細上限.isEmpty()) 文 += 明細がある(o, u" AND L.実質出金金額 <= "_qs + c.明細上限);
    if (!c.支払先.isEmpty()) 文 += 明細がある(o, u" AND L.支払先 LIKE "_qs + 含む型(c.支払先));
    if (c.書類あり) 文 += 書類がある();
    return 文 + u" ORDER BY "_qs + H + u"出金日付, K.出金No, K.事業所コード"_qs;
}

出金検索行 検索行を読む(const 記録集合& rs) {
    出金検索行 r;
    r.鍵 = {rs.文字列(0), rs.文字列(1), rs.文字列(2)};
    r.出金日付 = rs.文字列(3);
    r.担当者コード = rs.文字列(4);
    r.担当者名 = rs.文字列(5);
    r.支払先 = rs.文字列(6);
    r.合計 = rs.金額値(7);
    r.書類数 = rs.値(8).toInt();
    r.削除済 = rs.文字列(9) == u"1";
    r.出金履歴No = rs.文字列(10);
    return r;
}

bool 出金検索(データ環境& d, const 出金検索条件& 条件, QList<出金検索行>& 結果) {
    結果.clear();
    記録集合 rs;
    // No row found is an answer too; a failed statement leaves no columns.
    const bool 成功 = d.接続().一覧検索(rs, 出金検索文(条件), 出金検索上限, false) || rs.列数() > 0;
    for (; 成功 && 結果.size() < 出金検索上限 && !rs.EOFか(); rs.MoveNext()) {
        結果.append(検索行を読む(rs));
    }
    rs.閉じる();
    if (成功) 結果.removeIf([&](const 出金検索行& r) { return 移した伝票か(d, r); });
    return 成功;
}

bool 移した伝票か(データ環境& d, const 出金検索行& r) {
    return r.削除済 && 履歴読み手(d).移されたか(r.鍵, r.出金履歴No);
}
