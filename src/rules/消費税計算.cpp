#include "rules/消費税計算.h"

#include <cmath>

#include "dataenv/接続環境.h"
#include "text/実行時エラー.h"
#include "text/数値変換.h"

namespace {

// A quotient of doubles: a division by zero fails with ゼロ除算, and 0/0 fails as an overflow.
double 倍精度除算(double 被除数, double 除数) {
    if (除数 == 0.0) {
        if (被除数 == 0.0) throw 桁あふれ();
        throw ゼロ除算();
    }
    return 被除数 / 除数;
}

}  // namespace

// The rate table is read only on the engines the suite knows; PostgreSQL goes the way of SQL
// Server. Elsewhere the statement stays empty and the query fails.
QString 税率表::照会文(const QString& 日付) const {
    const QString& db = 接続.環境().db;
    if (db != u"A" && db != u"S" && db != u"O" && db != u"P") return {};
    return u"SELECT G消費税.* FROM G消費税 WHERE G消費税.施行日 <= '"_qs + 日付 +
           u"' ORDER BY G消費税.施行日 DESC"_qs;
}

金額 税率表::税率(const QString& 日付, short 選択) const {
    記録集合 rs;
    金額 税率;
    if (接続.業務DB検索(rs, 照会文(日付))) {
        if (選択 == 0) {
            税率 = rs.金額値(u"消費税率"_qs);
        } else if (選択 == 2) {
            rs.MoveNext();
            if (!rs.EOFか()) 税率 = rs.金額値(u"消費税率"_qs);
        }
    }
    rs.閉じる();
    return 税率;
}

税率情報 税率表::情報(const QString& 日付) const {
    税率情報 情報;
    記録集合 rs;
    if (接続.業務DB検索(rs, 照会文(日付))) {
        情報.施行日 = rs.文字列(u"施行日"_qs);
        情報.税率区分 = rs.文字列(u"税率区分"_qs);
        情報.今回税率 = rs.金額値(u"消費税率"_qs);
        if (数値変換(情報.税率区分) == 1.0) {
            rs.MoveNext();
            if (!rs.EOFか()) 情報.前回税率 = rs.金額値(u"消費税率"_qs);
        }
    }
    rs.閉じる();
    return 情報;
}

金額 消費税率取得(const 税率表& 表, const QString& 日付, short 選択) {
    return 表.税率(日付, 選択);
}

税率情報 税率情報取得(const 税率表& 表, const QString& 日付) {
    return 表.情報(日付);
}

金額 税額端数処理(金額 値, short 丸め値, short 桁位置) {
    if (桁位置 >= 0) {
        const double 桁 = std::pow(10.0, 桁位置);
        const double 加減 = 丸め値 / 10.0;
        const double v = 値.倍精度() / 桁;
        const double 結果 = std::trunc(値.負か() ? v - 加減 : v + 加減) * 桁;
        return 金額::倍精度から偶数丸め(結果);
    }
    // d × 10, not a power of ten, is what the rule has always used; it is a 16-bit value.
    const qint16 係数 = 小整数へ(static_cast<qint64>(桁位置) * 10);
    const 金額 加減 = 金額::倍精度から偶数丸め(丸め値 / 10.0);
    const 金額 積 = 値 * static_cast<qint64>(係数);
    const 金額 切捨 = (値.負か() ? 積 - 加減 : 積 + 加減).整数部();
    return 金額::倍精度から偶数丸め(倍精度除算(切捨.倍精度(), 係数));
}

金額 消費税額計算(金額 出金金額, short 内税外税区分, short 丸め値, short 桁位置, 金額 消費税率) {
    const bool 負 = 出金金額.負か();
    if (負) 出金金額 = 出金金額 * qint64{-1};

    金額 税額;
    if (内税外税区分 == 1) {
        税額 = 金額::倍精度から偶数丸め(倍精度除算((出金金額 * 消費税率).倍精度(), 100.0));
    } else if (内税外税区分 == 2) {
        const double 除数 = (消費税率 + 金額::円(100)).倍精度();
        税額 = 金額::倍精度から偶数丸め(倍精度除算((出金金額 * 消費税率).倍精度(), 除数));
    }
    税額 = 税額端数処理(税額, 丸め値, 桁位置);

    if (負) 税額 = 税額 * qint64{-1};
    return 税額;
}

void 明細税率設定(const 税率表& 表, 明細税額& 行, const QString& 出金日付) {
    if (行.内税外税区分 == 1 || 行.内税外税区分 == 2)
        行.消費税率 = 消費税率取得(表, 出金日付, 0);
    else
        行.消費税率 = 金額();
}

namespace {

// The two derived amounts follow the tax for the two taxed classes; the others keep theirs.
void 税抜税込設定(明細税額& 行) {
    if (行.内税外税区分 == 1) {
        行.税抜出金金額 = 行.出金金額;
        行.税込出金金額 = 行.出金金額 + 行.出金消費税;
    } else if (行.内税外税区分 == 2) {
        行.税抜出金金額 = 行.出金金額 - 行.出金消費税;
        行.税込出金金額 = 行.出金金額;
    }
}

}  // namespace

void 明細税額再計算(明細税額& 行) {
    行.出金消費税 = 金額();
    if (行.内税外税区分 == 0) return;
    行.出金消費税 = 消費税額計算(行.出金金額, 行.内税外税区分, 税額丸め値, 税額桁位置, 行.消費税率);
    税抜税込設定(行);
}

void 明細実質金額再計算(明細税額& 行) {
    行.実質出金金額 = 金額();
    if (行.内税外税区分 == 0 || 行.内税外税区分 == 2)
        行.実質出金金額 = 行.出金金額;
    else if (行.内税外税区分 == 1)
        行.実質出金金額 = 行.出金金額 + 行.出金消費税;
}

bool 明細税額手入力(明細税額& 行, 金額 入力税額) {
    if (入力税額 == 行.出金消費税) return false;
    行.出金消費税 = 行.内税外税区分 != 0 ? 入力税額 : 金額();
    税抜税込設定(行);
    明細実質金額再計算(行);
    return true;
}

void 明細再計算(const 税率表& 表, 明細税額& 行, const QString& 出金日付) {
    明細税率設定(表, 行, 出金日付);
    明細税額再計算(行);
    明細実質金額再計算(行);
}

void 全明細再計算(const 税率表& 表, std::span<明細税額> 行, const QString& 出金日付) {
    for (明細税額& 一行 : 行) 明細再計算(表, 一行, 出金日付);
}

void 費目区分変更時再計算(const 税率表& 表, 明細税額& 行, short 内税外税区分,
                          const QString& 出金日付) {
    行.内税外税区分 = 内税外税区分;
    明細再計算(表, 行, 出金日付);
}

void 費目区分不明時設定(明細税額& 行) {
    行.内税外税区分 = 1;
}

void 内税外税区分変更時再計算(明細税額& 行, short 内税外税区分) {
    行.内税外税区分 = 内税外税区分;
    明細税額再計算(行);
    明細実質金額再計算(行);
}

void 消費税率変更時再計算(明細税額& 行, 金額 消費税率) {
    行.消費税率 = 消費税率;
    明細税額再計算(行);
    明細実質金額再計算(行);
}

void 出金金額変更時再計算(明細税額& 行, 金額 出金金額) {
    行.出金金額 = 出金金額;
    明細税額再計算(行);
    明細実質金額再計算(行);
}

void 過去明細取込時再計算(const 税率表& 表, 明細税額& 行, const QString& 出金日付) {
    行.消費税率 = 消費税率取得(表, 出金日付, 0);
    明細税額再計算(行);
    明細実質金額再計算(行);
}

void 旅費明細取込時再計算(const 税率表& 表, 明細税額& 行, short 内税外税区分,
                          const QString& 出金日付) {
    行.内税外税区分 = 内税外税区分;
    明細再計算(表, 行, 出金日付);
}
