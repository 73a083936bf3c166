#include "ledger/出力指定.h"

#include <QDate>

const QString 出力指定::使い方 =
    u"使い方: 紺碧帳出力 --from YYYYMMDD --to YYYYMMDD [--office CODE] --format yayoi|csv --out FILE"_qs;

namespace {

bool 日付か(const QString& 日付) {
    return 日付.size() == 8 && QDate::fromString(日付, u"yyyyMMdd"_qs).isValid();
}

}  // namespace

bool 出力指定::解析(const QStringList& 引数, 出力指定& 指定, QString& エラー) {
    指定 = {};
    for (qsizetype i = 0; i < 引数.size(); i += 2) {
        const QString& 名 = 引数[i];
        if (i + 1 >= 引数.size()) {
            エラー = 名 + u" の値がありません。\n"_qs + 使い方;
            return false;
        }
        const QString& 値 = 引数[i + 1];
        if (名 == u"--from") {
            指定.開始日 = 値;
        } else if (名 == u"--to") {
            指定.終了日 = 値;
        } else if (名 == u"--office") {
            指定.事業所コード = 値;
        } else if (名 == u"--format") {
            指定.形式 = 値;
        } else if (名 == u"--out") {
            指定.出力先 = 値;
        } else {
            エラー = u"知らない指定です: "_qs + 名 + u"\n"_qs + 使い方;
            return false;
        }
    }
    if (!日付か(指定.開始日) || !日付か(指定.終了日)) {
        エラー = u"期間は --from と --to に YYYYMMDD の日付で指定してください。"_qs;
        return false;
    }
    if (指定.開始日 > 指定.終了日) {
        エラー = u"期間の開始日が終了日より後です。"_qs;
        return false;
    }
    if (!指定.事業所コード.isEmpty()) {
        bool 数字 = 指定.事業所コード.size() <= 3;
        for (QChar c : 指定.事業所コード) 数字 = 数字 && c >= u'0' && c <= u'9';
        if (!数字) {
            エラー = u"事業所コードは3桁までの数字で指定してください。"_qs;
            return false;
        }
        指定.事業所コード = 指定.事業所コード.rightJustified(3, u'0');
    }
    if (指定.形式 != u"yayoi" && 指定.形式 != u"csv") {
        エラー = u"形式は --format yayoi か --format csv で指定してください。"_qs;
        return false;
    }
    if (指定.出力先.isEmpty()) {
        エラー = u"出力先のファイルを --out で指定してください。"_qs;
        return false;
    }
    return true;
}
