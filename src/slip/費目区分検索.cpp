#include "slip/出金セッション.h"
#include "text/数値書式.h"

bool 出金セッション::費目区分検索(int 区分, short& 新区分, QString& 名称, short& 内税外税区分) {
    const QString 文 = u"SELECT K費目区分.*"_qs + u" FROM K費目区分"_qs +
                       u" WHERE K費目区分.区分 = '"_qs + 書式(区分, u"00") + u"'"_qs;
    記録集合 rs;
    const bool あり = データ.接続().業務DB検索(rs, 文, true);
    if (あり) {
        新区分 = rs.整数(u"区分"_qs);
        名称 = rs.文字列(u"名称"_qs);
        内税外税区分 = rs.整数(u"内税外税区分"_qs);
    }
    rs.閉じる();
    return あり;
}
