#include <array>

#include "ledger/仕訳書式.h"
#include "rules/弥生形式.h"
#include "text/シフトJIS変換.h"
#include "text/項目編集.h"

namespace {

const QString 現金 = u"現金"_qs;

QString 円(金額 値) {
    return QString::number(値.整数値());
}

// A row is one line of the file: a carriage return or line feed in the summary (a description
// taken over from a trip application holds one) becomes a blank, as does any control character.
QString 一行に(QString 文字列) {
    for (QChar& c : 文字列) {
        if (c.unicode() < 0x20) c = u' ';
    }
    return 文字列;
}

// The fields of one line. A refund (a negative real amount) takes cash on the debit side and
// the expense on the credit side, since the format takes no negative amounts.
std::array<QString, 弥生列数> 行の項目(const 仕訳伝票& t, const 仕訳行& l, int 位置) {
    std::array<QString, 弥生列数> f;
    const bool 戻り = l.実質出金金額.負か();
    const QString 額 = 円(l.実質出金金額.絶対値());
    const QString 税額 =
        l.税区分 == u"対象外" || l.税区分 == u"非課仕入" ? u"0"_qs : 円(l.出金消費税.絶対値());
    const int 費用 = 戻り ? 弥生_貸方勘定科目 : 弥生_借方勘定科目;
    const int 現金側 = 戻り ? 弥生_借方勘定科目 : 弥生_貸方勘定科目;
    f[弥生_識別フラグ] = 弥生識別フラグ(位置, t.行.size());
    f[弥生_取引日付] = 弥生日付(t.出金日付);
    f[費用] = l.勘定科目;
    f[費用 + 1] = l.補助科目;
    f[費用 + 2] = t.部門名;
    f[費用 + 3] = l.税区分;
    f[費用 + 4] = 額;
    f[費用 + 5] = 税額;
    f[現金側] = 現金;
    f[現金側 + 3] = u"対象外"_qs;
    f[現金側 + 4] = 額;
    f[現金側 + 5] = u"0"_qs;
    f[弥生_摘要] = 一行に((l.支払先.trimmed() + u' ' + l.摘要.trimmed()).trimmed());
    f[弥生_タイプ] = u"0"_qs;
    f[弥生_仕訳メモ] = u"紺碧帳 "_qs + t.名前() + u'-' + l.出金行No;
    f[弥生_付箋1] = u"0"_qs;
    f[弥生_付箋2] = u"0"_qs;
    f[弥生_調整] = u"no"_qs;
    return f;
}

}  // namespace

bool 弥生形式追加(CP932変換器& 変換器, const 仕訳伝票& t, QByteArray& 出力, QString& エラー) {
    const qsizetype 元の長さ = 出力.size();
    QString 行;
    for (int i = 0; i < t.行.size(); ++i) {
        const std::array<QString, 弥生列数> f = 行の項目(t, t.行[i], i);
        行.clear();
        for (int c = 0; c < 弥生列数; ++c) {
            const 弥生列& 列 = 弥生列一覧[c];
            // The import cuts longer texts itself; cutting here keeps whole characters. A text
            // of at most half the places fits whatever its characters.
            const bool 切詰 = 列.桁数 > 0 && 列.文字項目 && f[c].size() * 2 > 列.桁数;
            const QString 値 = 切詰 ? バイト長切詰(f[c], 列.桁数) : f[c];
            if (c > 0) 行 += u',';
            行 += 列.文字項目 ? CSV項目(値, true) : 値;
        }
        行 += u"\r\n"_qs;
        qsizetype 位置;
        if (!変換器.追加(行, 出力, 位置)) {
            const qsizetype 単位数 = 行[位置].isHighSurrogate() ? 2 : 1;
            エラー = u"伝票 "_qs + t.名前() + u" の "_qs + t.行[i].出金行No +
                     u" 行目に Shift-JIS にない文字「"_qs + 行.mid(位置, 単位数) +
                     u"」があります。何も出力しませんでした。"_qs;
            出力.resize(元の長さ);
            return false;
        }
    }
    return true;
}
