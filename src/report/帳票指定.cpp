#include "report/帳票指定.h"

#include <QDate>

namespace {

bool 数字だけ(const QString& 文字列) {
    if (文字列.isEmpty()) return false;
    for (QChar c : 文字列) {
        if (c < u'0' || c > u'9') return false;
    }
    return true;
}

bool 日付か(const QString& 文字列) {
    return 数字だけ(文字列) && QDate::fromString(文字列, u"yyyyMMdd"_qs).isValid();
}

}  // namespace

bool 帳票指定::解析(const QString& 引数, 帳票指定& 指定, QString& エラー) {
    const QString 前置き = u"帳票の指定が正しくありません。\n"_qs;
    if (引数.size() != 47) {
        エラー =
            前置き + u"47桁の指定が必要です（"_qs + QString::number(引数.size()) + u"桁）。"_qs;
        return false;
    }
    帳票指定 v;
    v.事業所コード = 引数.mid(0, 3);
    v.出力区分 = 引数.mid(3, 1);
    v.出金日付自 = 引数.mid(4, 8);
    v.出金日付至 = 引数.mid(12, 8);
    v.出金No自 = 引数.mid(20, 8).trimmed();
    v.出金No至 = 引数.mid(28, 8).trimmed();
    v.担当者コード自 = 引数.mid(36, 5).trimmed();
    v.担当者コード至 = 引数.mid(41, 5).trimmed();
    if (!数字だけ(v.事業所コード)) {
        エラー = 前置き + u"事業所コードが数字ではありません。"_qs;
    } else if (v.出力区分 != u"0" && v.出力区分 != u"1" && v.出力区分 != u"3") {
        エラー = 前置き + u"出力区分「"_qs + v.出力区分 +
                 u"」は使えません（0 印刷、1 プレビュ、3 PDF）。"_qs;
    } else if (!日付か(v.出金日付自) || !日付か(v.出金日付至)) {
        エラー = 前置き + u"出金日付が日付ではありません。"_qs;
    } else if (!数字だけ(v.出金No自) || !数字だけ(v.出金No至)) {
        エラー = 前置き + u"出金Noが数字ではありません。"_qs;
    } else if (v.出金日付自 != v.出金日付至 || v.出金No自 != v.出金No至) {
        エラー = 前置き + u"一枚の伝票を指定してください。"_qs;
    } else if ((!v.担当者コード自.isEmpty() && !数字だけ(v.担当者コード自)) ||
               (!v.担当者コード至.isEmpty() && !数字だけ(v.担当者コード至))) {
        エラー = 前置き + u"担当者コードが数字ではありません。"_qs;
    } else if (引数.at(46) != u'2') {
        エラー = 前置き + u"47桁目は「2」です。"_qs;
    } else {
        // A number typed short is stored zero-filled to its eight places.
        v.出金No自 = v.出金No自.rightJustified(8, u'0');
        v.出金No至 = v.出金No至.rightJustified(8, u'0');
        for (QString* c : {&v.担当者コード自, &v.担当者コード至}) {
            if (!c->isEmpty()) *c = c->rightJustified(5, u'0');
        }
        指定 = v;
        return true;
    }
    return false;
}
