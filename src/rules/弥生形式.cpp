#include "rules/弥生形式.h"

const std::array<弥生列, 弥生列数> 弥生列一覧 = {{
    {u"識別フラグ", 4, false},  {u"伝票No", 6, false},       {u"決算", 4, true},
    {u"取引日付", 10, false},   {u"借方勘定科目", 24, true}, {u"借方補助科目", 24, true},
    {u"借方部門", 24, true},    {u"借方税区分", 0, true},    {u"借方金額", 11, false},
    {u"借方税金額", 11, false}, {u"貸方勘定科目", 24, true}, {u"貸方補助科目", 24, true},
    {u"貸方部門", 24, true},    {u"貸方税区分", 0, true},    {u"貸方金額", 11, false},
    {u"貸方税金額", 11, false}, {u"摘要", 64, true},         {u"番号", 10, true},
    {u"期日", 10, false},       {u"タイプ", 1, false},       {u"生成元", 4, true},
    {u"仕訳メモ", 180, true},   {u"付箋1", 1, false},        {u"付箋2", 1, false},
    {u"調整", 4, true},
}};

namespace {

// Every tax category text the export writes, by a key of our own: the rate (with "軽減" for the
// reduced rate), the two kinds of lines without tax, and the invoice form of a purchase from an
// unregistered payee, which follows the category of the rate.
struct 税区分文言 {
    const char16_t* 鍵;
    const char16_t* 文言;
};
const 税区分文言 税区分表[] = {
    {u"10", u"課対仕入内10%"}, {u"軽減8", u"課対仕入内軽減8%"}, {u"8", u"課対仕入内8%"},
    {u"5", u"課対仕入内5%"},   {u"3", u"課対仕入内3%"},         {u"対象外", u"対象外"},
    {u"非課税", u"非課仕入"},  {u"控除80", u"区分80%"},         {u"控除70", u"区分70%"},
    {u"控除50", u"区分50%"},   {u"控除30", u"区分30%"},
};

QString 文言(const QString& 鍵) {
    for (const 税区分文言& t : 税区分表) {
        if (鍵 == QStringView(t.鍵)) return QString::fromUtf16(t.文言);
    }
    return {};
}

// The reduced rate came with the standard 10 % on 1 October 2019; an 8 % before is standard.
const QString 軽減税率開始日 = u"20191001"_qs;

}  // namespace

QString 弥生識別フラグ(int 位置, int 行数) {
    if (行数 <= 1) return u"2111"_qs;
    if (位置 == 0) return u"2110"_qs;
    return 位置 == 行数 - 1 ? u"2101"_qs : u"2100"_qs;
}

QString 弥生日付(const QString& 日付) {
    // Made in one piece: the export calls it once for every slip.
    const QStringView d(日付);
    QString 結果;
    結果.reserve(10);
    結果.append(d.mid(0, 4)).append(u'/').append(d.mid(4, 2)).append(u'/').append(d.mid(6, 2));
    return 結果;
}

bool 弥生非課税区分あり(const QString& 非課税区分) {
    return 非課税区分 == u"対象外" || 非課税区分 == u"非課税";
}

QString 弥生仕入税区分(short 内税外税区分, 金額 消費税率, const QString& 日付, int 控除割合,
                       const QString& 非課税区分) {
    const bool 課税 = (内税外税区分 == 1 || 内税外税区分 == 2) && !消費税率.ゼロか();
    if (!課税) return 弥生非課税区分あり(非課税区分) ? 文言(非課税区分) : QString();
    // Nothing of the tax may be deducted any more: the purchase is outside the tax for the books.
    if (控除割合 == 0) return 文言(u"対象外"_qs);
    if (消費税率.整数部() != 消費税率) return {};
    QString 率 = QString::number(消費税率.整数値());
    if (率 == u"8" && 日付 >= 軽減税率開始日) 率 = u"軽減8"_qs;
    const QString 基本 = 文言(率);
    if (基本.isEmpty() || 控除割合 == 100) return 基本;
    const QString 区分 = 文言(u"控除"_qs + QString::number(控除割合));
    return 区分.isEmpty() ? QString() : 基本 + 区分;
}
