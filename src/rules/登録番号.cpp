#include "rules/登録番号.h"

namespace {

bool 半角数字か(QChar c) {
    return c >= u'0' && c <= u'9';
}

}  // namespace

int 登録番号検査数字(QStringView 十二桁) {
    if (十二桁.size() != 12) return -1;
    int 和 = 0;
    for (qsizetype n = 1; n <= 12; ++n) {
        const QChar c = 十二桁[12 - n];
        if (!半角数字か(c)) return -1;
        和 += (c.unicode() - u'0') * (n % 2 == 1 ? 1 : 2);
    }
    return 9 - 和 % 9;
}

登録番号判定 登録番号検査(const QString& 番号) {
    if (番号.size() != 14 || 番号[0] != u'T') return 登録番号判定::形式誤り;
    const QStringView 数字 = QStringView(番号).mid(1);
    for (QChar c : 数字) {
        if (!半角数字か(c)) return 登録番号判定::形式誤り;
    }
    return 登録番号検査数字(数字.mid(1)) == 数字[0].unicode() - u'0' ? 登録番号判定::正しい
                                                                     : 登録番号判定::検査数字誤り;
}

QString 登録番号判定文言(登録番号判定 判定) {
    switch (判定) {
        case 登録番号判定::形式誤り:
            return u"登録番号は「T」と13桁の半角数字で入力してください。"_qs;
        case 登録番号判定::検査数字誤り:
            return u"登録番号の検査用数字が一致しません。番号を確かめてください。"_qs;
        default:
            return {};
    }
}
