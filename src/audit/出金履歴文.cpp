#include <QTextStream>

#include "audit/出金履歴.h"

namespace {

QString 種別名(伝票状態::種別 何) {
    switch (何) {
        case 伝票状態::種別::現在:
            return u"現在"_qs;
        case 伝票状態::種別::削除:
            return u"削除"_qs;
        case 伝票状態::種別::以前:
            break;
    }
    return u"以前"_qs;
}

}  // namespace

QString 履歴文(const 出金履歴& 履歴) {
    QString 文;
    QTextStream o(&文);
    o << u"伝票 "_qs << 履歴.鍵.表示() << u"  状態数 "_qs << 履歴.状態.size() << u'\n';
    const std::size_t n = 履歴.状態.size();
    for (std::size_t i = 0; i < n; ++i) {
        const 伝票状態& st = 履歴.状態[i];
        const 伝票状態* 前 = i + 1 < n ? &履歴.状態[i + 1] : nullptr;
        o << u"\n状態 "_qs << (n - i) << u' ' << 種別名(st.何) << u"  伝票 "_qs << st.鍵.表示()
          << u"  履歴No "_qs << (st.何 == 伝票状態::種別::削除 ? st.置換履歴No : st.書込履歴No)
          << u"  登録日付 "_qs << st.登録日付 << u"  更新日付 "_qs << st.更新日付
          << u"  ユーザID "_qs << st.ユーザID << u"  操作者 "_qs << st.操作者名 << u'\n';
        for (const QString& 欠け : st.欠け) o << u"  不完全 "_qs << 欠け << u'\n';
        const 状態差分 d = 差分(前, st);
        o << u"  合計 "_qs << d.合計前 << u" -> "_qs << d.合計後 << u'\n';
        for (const 項目変化& c : d.見出し)
            o << u"  変更 "_qs << c.名前 << u": "_qs << c.前 << u" -> "_qs << c.後 << u'\n';
        for (const QString& r : d.追加行) o << u"  追加行 "_qs << r << u'\n';
        for (const QString& r : d.削除行) o << u"  削除行 "_qs << r << u'\n';
        for (const 明細変化& m : d.変更行) {
            for (const 項目変化& c : m.変化)
                o << u"  変更行 "_qs << m.出金固有行No << u' ' << c.名前 << u": "_qs << c.前
                  << u" -> "_qs << c.後 << u'\n';
        }
    }
    return 文;
}
