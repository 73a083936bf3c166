// The report program's argument: any text, and any text set to its 47 places, through the reading
// of the argument. A refusal says why in Japanese and leaves the caller's values; an argument read
// names one slip by digits and a calendar date taken from their places, and the argument composed
// again from what was read is read the same.
#include <QDate>

#include "report/帳票指定.h"
#include "rules/帳票引数.h"
#include "ファズ入力.h"

namespace {

bool 数字だけ(const QString& s, qsizetype 長さ) {
    if (s.size() != 長さ) return false;
    for (QChar c : s)
        if (c < u'0' || c > u'9') return false;
    return true;
}

// A number or staff code typed short is read zero-filled: the digits of its place, blanks cut.
bool 零埋め(const QString& 値, const QString& 欄, qsizetype 長さ) {
    const QString 数字 = 欄.trimmed();
    return 数字だけ(値, 長さ) && !数字.isEmpty() && 値.endsWith(数字) &&
           値.left(長さ - 数字.size()) == QString(長さ - 数字.size(), u'0');
}

bool 暦の日付(const QString& s) {
    return 数字だけ(s, 8) &&
           QDate(s.left(4).toInt(), s.mid(4, 2).toInt(), s.mid(6, 2).toInt()).isValid();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider 供給(data, size);
    const bool 桁合わせ = 供給.ConsumeBool();
    QString 引数 = ファズ残り文字列(供給);
    if (桁合わせ) 引数 = 引数.leftJustified(47, u' ', true);

    帳票指定 指定;
    指定.事業所コード = u"前"_qs;
    QString エラー;
    if (!帳票指定::解析(引数, 指定, エラー)) {
        const QString 前置き = u"帳票の指定が正しくありません。\n"_qs;
        ファズ確認(エラー.startsWith(前置き) && エラー.size() > 前置き.size());
        ファズ確認(指定.事業所コード == u"前"_qs && 指定.出力区分.isEmpty() &&
                   指定.出金No自.isEmpty());
        if (引数.size() != 47) ファズ確認(エラー.contains(u"47桁"_qs));
        return 0;
    }

    ファズ確認(エラー.isEmpty() && 引数.size() == 47 && 引数.at(46) == u'2');
    ファズ確認(指定.事業所コード == 引数.left(3) && 数字だけ(指定.事業所コード, 3));
    ファズ確認(指定.出力区分 == 引数.mid(3, 1) &&
               (指定.出力区分 == u"0" || 指定.出力区分 == u"1" || 指定.出力区分 == u"3"));
    // One slip: both ends of each range are the same.
    ファズ確認(指定.出金日付自 == 引数.mid(4, 8) && 指定.出金日付至 == 引数.mid(12, 8));
    ファズ確認(指定.出金日付自 == 指定.出金日付至 && 暦の日付(指定.出金日付自));
    ファズ確認(零埋め(指定.出金No自, 引数.mid(20, 8), 8) &&
               零埋め(指定.出金No至, 引数.mid(28, 8), 8));
    ファズ確認(指定.出金No自 == 指定.出金No至);
    // A blank staff code stands for any staff.
    const QString 担当欄[] = {引数.mid(36, 5), 引数.mid(41, 5)};
    const QString* 担当[] = {&指定.担当者コード自, &指定.担当者コード至};
    for (int k = 0; k < 2; ++k) {
        if (担当欄[k].trimmed().isEmpty()) {
            ファズ確認(担当[k]->isEmpty());
        } else {
            ファズ確認(零埋め(*担当[k], 担当欄[k], 5));
        }
    }

    帳票指定 再読;
    QString 再エラー;
    ファズ確認(帳票指定::解析(帳票引数(指定.事業所コード, 指定.出力区分, 指定.出金日付自,
                                       指定.出金No自, 指定.担当者コード自),
                              再読, 再エラー));
    ファズ確認(再読.事業所コード == 指定.事業所コード && 再読.出力区分 == 指定.出力区分);
    ファズ確認(再読.出金日付自 == 指定.出金日付自 && 再読.出金日付至 == 指定.出金日付至);
    ファズ確認(再読.出金No自 == 指定.出金No自 && 再読.出金No至 == 指定.出金No至);
    ファズ確認(再読.担当者コード自 == 指定.担当者コード自 &&
               再読.担当者コード至 == 指定.担当者コード自);
    return 0;
}
