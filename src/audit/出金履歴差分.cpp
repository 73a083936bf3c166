#include "audit/出金履歴.h"

namespace {

std::vector<項目変化> 項目の差(const std::vector<項目値>& 前, const std::vector<項目値>& 後) {
    std::vector<項目変化> 変化;
    for (const 項目値& v : 後) {
        for (const 項目値& o : 前) {
            if (o.名前 == v.名前 && o.値 != v.値) 変化.push_back({v.名前, o.値, v.値});
        }
    }
    return 変化;
}

}  // namespace

状態差分 差分(const 伝票状態* 前, const 伝票状態& 後) {
    状態差分 d;
    const bool 削除 = 後.何 == 伝票状態::種別::削除;
    d.合計後 = 削除 ? u"0"_qs : 後.合計();
    if (!前) {
        for (const 履歴明細& m : 後.明細) d.追加行 << m.出金固有行No;
        return d;
    }
    d.合計前 = 前->合計();
    // Without a header on one side there is nothing to compare it with.
    if (!削除 && !前->見出し.empty() && !後.見出し.empty())
        d.見出し = 項目の差(前->見出し, 後.見出し);
    for (const 履歴明細& m : 後.明細) {
        const 履歴明細* o = 前->行(m.出金固有行No);
        if (!o) {
            d.追加行 << m.出金固有行No;
        } else if (auto 変化 = 項目の差(o->項目, m.項目); !変化.empty()) {
            d.変更行.push_back({m.出金固有行No, std::move(変化)});
        }
    }
    for (const 履歴明細& o : 前->明細) {
        if (!後.行(o.出金固有行No)) d.削除行 << o.出金固有行No;
    }
    return d;
}
