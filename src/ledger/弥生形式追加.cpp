#include <algorithm>
#include <array>

#include "ledger/CP932表.h"
#include "ledger/仕訳書式.h"
#include "ledger/行の筆.h"
#include "rules/弥生形式.h"
#include "text/項目編集.h"

namespace {

const QString 現金 = u"現金"_qs;
const QString 対象外 = u"対象外"_qs;
const QString 零 = u"0"_qs;

// One field of a row: a text, or an amount written bare (-1: none).
struct 欄値 {
    QStringView 文字;
    qint64 数 = -1;
};

// The fields of one line. A refund (a negative real amount) takes cash on the debit side and
// the expense on the credit side, since the format takes no negative amounts. The texts are
// views of what the caller keeps alive for the row.
std::array<欄値, 弥生列数> 行の項目(const 仕訳伝票& t, const 仕訳行& l, QStringView 旗,
                                    QStringView 日付, QStringView 摘要, QStringView メモ) {
    std::array<欄値, 弥生列数> f;
    const bool 戻り = l.実質出金金額.負か();
    const qint64 額 = l.実質出金金額.絶対値().整数値();
    const qint64 税額 =
        l.税区分 == 対象外 || l.税区分 == u"非課仕入" ? 0 : l.出金消費税.絶対値().整数値();
    const int 費用 = 戻り ? 弥生_貸方勘定科目 : 弥生_借方勘定科目;
    const int 現金側 = 戻り ? 弥生_借方勘定科目 : 弥生_貸方勘定科目;
    f[弥生_識別フラグ].文字 = 旗;
    f[弥生_取引日付].文字 = 日付;
    f[費用].文字 = l.勘定科目;
    f[費用 + 1].文字 = l.補助科目;
    f[費用 + 2].文字 = t.部門名;
    f[費用 + 3].文字 = l.税区分;
    f[費用 + 4].数 = 額;
    f[費用 + 5].数 = 税額;
    f[現金側].文字 = 現金;
    f[現金側 + 3].文字 = 対象外;
    f[現金側 + 4].数 = 額;
    f[現金側 + 5].数 = 0;
    f[弥生_摘要].文字 = 摘要;
    f[弥生_タイプ].文字 = 零;
    f[弥生_仕訳メモ].文字 = メモ;
    f[弥生_付箋1].文字 = 零;
    f[弥生_付箋2].文字 = 零;
    f[弥生_調整].文字 = u"no";
    return f;
}

// Room enough for the row: every text with each character doubled and its quotes, every number
// of twenty digits, the commas and the line end.
qsizetype 行の上限(const std::array<欄値, 弥生列数>& f) {
    qsizetype n = 弥生列数 + 2;
    for (const 欄値& v : f) n += v.数 >= 0 ? 20 : v.文字.size() * 2 + 2;
    return n;
}

}  // namespace

bool 弥生形式追加(CP932表& 変換器, const 仕訳伝票& t, QByteArray& 出力, QString& エラー) {
    const qsizetype 元の長さ = 出力.size();
    const QString 日付 = 弥生日付(t.出金日付);
    const QString 名前 = t.名前();
    QString 行, 摘要, メモ;  // kept from row to row, so that their memory is made once
    for (int i = 0; i < t.行.size(); ++i) {
        const 仕訳行& l = t.行[i];
        const QString 旗 = 弥生識別フラグ(i, t.行.size());
        摘要 = l.支払先.trimmed();
        摘要 += u' ';
        摘要 += l.摘要.trimmed();
        メモ.resize(0);
        メモ.append(u"紺碧帳 ").append(名前).append(u'-').append(l.出金行No);
        const auto f = 行の項目(t, l, 旗, 日付, QStringView(摘要).trimmed(), メモ);
        if (行.size() < 行の上限(f)) 行.resize(行の上限(f) * 2);
        行の筆 筆(reinterpret_cast<char16_t*>(行.data()));
        for (int c = 0; c < 弥生列数; ++c) {
            if (c > 0) 筆.字(u',');
            const 弥生列& 列 = 弥生列一覧[c];
            if (f[c].数 >= 0) {
                筆.数(f[c].数);
            } else if (列.文字項目) {
                筆.弥生の文字(f[c].文字, 列.桁数);
            } else {
                筆.文(f[c].文字);
            }
        }
        筆.字(u'\r');
        筆.字(u'\n');
        const QStringView 書いた = 筆.書いた();
        qsizetype 位置;
        if (!変換器.追加(書いた, 出力, 位置)) {
            const qsizetype 単位数 = 書いた[位置].isHighSurrogate() ? 2 : 1;
            エラー = u"伝票 "_qs + 名前 + u" の "_qs + l.出金行No +
                     u" 行目に Shift-JIS にない文字「"_qs + 書いた.mid(位置, 単位数).toString() +
                     u"」があります。何も出力しませんでした。"_qs;
            出力.resize(元の長さ);
            return false;
        }
    }
    return true;
}
