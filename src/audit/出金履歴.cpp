#include "audit/出金履歴.h"

#include <QSet>
#include <algorithm>

#include "audit/出金履歴読み手.h"
#include "text/金額.h"

namespace {

QString 項目の値(const std::vector<項目値>& 項目, QStringView 名前) {
    for (const 項目値& v : 項目) {
        if (v.名前 == 名前) return v.値;
    }
    return {};
}

// Chains of moves are short; a loop in damaged rows must still end.
constexpr int 移動の上限 = 50;

}  // namespace

QString 履歴明細::値(QStringView 名前) const {
    return 項目の値(項目, 名前);
}

QString 伝票状態::見出し値(QStringView 名前) const {
    return 項目の値(見出し, 名前);
}

const 履歴明細* 伝票状態::行(const QString& 出金固有行No) const {
    for (const 履歴明細& m : 明細) {
        if (m.出金固有行No == 出金固有行No) return &m;
    }
    return nullptr;
}

QString 伝票状態::合計() const {
    if (!見出し.empty()) return 見出し値(u"実質出金金額合計");
    金額 計;
    for (const 履歴明細& m : 明細) 計 += 金額::文字列から(m.値(u"実質出金金額"));
    return 計.文字列();
}

std::optional<出金履歴> 出金履歴読込(データ環境& d, const 伝票鍵& 鍵) {
    履歴読み手 読み手(d);
    std::optional<鍵の履歴> 部 = 読み手.読む(鍵);
    if (!部) return std::nullopt;
    // Back to the key the slip was first stored under, then forward through every move.
    QSet<QString> 戻った{鍵.文字列()};
    for (int i = 0; i < 移動の上限; ++i) {
        const std::optional<伝票鍵> 元 = 読み手.移動元(*部);
        if (!元 || 戻った.contains(元->文字列())) break;
        戻った.insert(元->文字列());
        部 = 読み手.読む(*元);
        if (!部) return std::nullopt;
    }
    出金履歴 履歴{鍵, {}};
    QSet<QString> 進んだ{部->鍵.文字列()};
    for (int i = 0; i < 移動の上限; ++i) {
        for (伝票状態& st : 部->状態) 履歴.状態.push_back(std::move(st));
        if (!部->終わった) break;
        const std::optional<伝票鍵> 先 = 読み手.移動先(*部);
        std::optional<鍵の履歴> 次 =
            先 && !進んだ.contains(先->文字列()) ? 読み手.読む(*先) : std::nullopt;
        if (次) {
            進んだ.insert(先->文字列());
            部 = std::move(次);
            continue;
        }
        伝票状態 削除;
        削除.何 = 伝票状態::種別::削除;
        削除.鍵 = 部->鍵;
        削除.置換履歴No = 部->終わりの履歴No;
        削除.ユーザID = 部->終わらせた人;
        削除.操作者名 = 読み手.操作者名(削除.ユーザID);
        履歴.状態.push_back(std::move(削除));
        break;
    }
    std::reverse(履歴.状態.begin(), 履歴.状態.end());
    return 履歴;
}
