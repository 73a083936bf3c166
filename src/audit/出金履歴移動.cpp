#include <QSet>

#include "audit/出金履歴読み手.h"
#include "dataenv/データ環境.h"
#include "dataenv/接続環境.h"
#include "dataenv/記録集合.h"
#include "rules/未集計情報.h"
#include "text/項目編集.h"

// A correction that moves a slip to another number sequence writes the new slip first, then
// the old one's rows under its old key, with a history number taken right after the new
// slip's in the new sequence and the operator of the correction on the old lines. Nothing else
// ties the two keys, so the move is read from those facts; the queue row, while the
// aggregation has not taken it, tells a deletion ("2") and a new slip ("0") apart for certain.

namespace {

constexpr int 候補の上限 = 20;

}  // namespace

std::optional<QString> 履歴読み手::登録情報区分(const 伝票鍵& 鍵, const QString& 履歴No,
                                                const QString& 赤黒区分) {
    const QString 文 =
        u"SELECT 登録情報区分 FROM 未集計情報 WHERE 番号ID = '16810' AND 事業所コード = "_qs +
        引用符で囲む(鍵.事業所コード) + u" AND 番号基準日付 = "_qs + 引用符で囲む(鍵.番号基準日付) +
        u" AND 伝票No = "_qs + 引用符で囲む(鍵.番号) + u" AND 履歴No = "_qs + 引用符で囲む(履歴No) +
        u" AND 赤黒区分 = "_qs + 引用符で囲む(赤黒区分);
    接続環境& 接続 = d.接続();
    記録集合 rs;
    const bool 読めた = 未集計情報は業務DBへ(d.会社設定().会社()) ? 接続.業務DB検索(rs, 文)
                                                                  : 接続.環境DB検索(rs, 文);
    std::optional<QString> 区分;
    if (読めた && !rs.EOFか()) 区分 = rs.文字列(0);
    rs.閉じる();
    return 区分;
}

std::optional<伝票鍵> 履歴読み手::移動先(const 鍵の履歴& 旧) {
    if (!旧.終わった || 旧.終わらせた人.isEmpty() || 旧.終わりの履歴No.isEmpty())
        return std::nullopt;
    if (登録情報区分(旧.鍵, 旧.終わりの履歴No, u"0"_qs) == u"2") return std::nullopt;
    // The first store under a key of another sequence, by the same operator, after the old
    // slip's last save and before its old rows were written: the nearest such is the move.
    const QString 文 =
        u"SELECT 番号基準日付, 出金No, 出金履歴No FROM R出金明細 WHERE 赤黒区分 = '1' AND 事業所コード = "_qs +
        引用符で囲む(旧.鍵.事業所コード) + u" AND 番号基準日付 <> "_qs +
        引用符で囲む(旧.鍵.番号基準日付) + u" AND ユーザID = "_qs + 引用符で囲む(旧.終わらせた人) +
        u" AND 出金履歴No < "_qs + 引用符で囲む(旧.終わりの履歴No) + u" AND 登録日付 >= "_qs +
        引用符で囲む(旧.最後の登録日付) + u" ORDER BY 出金履歴No DESC, 登録日付 DESC"_qs;
    std::vector<std::pair<伝票鍵, QString>> 候補;
    記録集合 rs;
    if (d.接続().業務DB検索(rs, 文)) {
        QSet<QString> 見た;
        for (; !rs.EOFか() && 候補.size() < 候補の上限; rs.MoveNext()) {
            const 伝票鍵 k{旧.鍵.事業所コード, rs.文字列(0), rs.文字列(1)};
            if (見た.contains(k.文字列())) continue;
            見た.insert(k.文字列());
            候補.push_back({k, rs.文字列(2)});
        }
    }
    rs.閉じる();
    for (const auto& [k, 番号] : 候補) {
        if (登録情報区分(k, 番号, u"1"_qs) == u"0") continue;
        const std::optional<鍵の履歴> 新 = 読む(k);
        if (!新 || 新->状態.empty() || 新->状態.front().書込履歴No != 番号) continue;
        return k;
    }
    return std::nullopt;
}

bool 履歴読み手::移されたか(const 伝票鍵& 鍵, const QString& 最後の履歴No) {
    if (登録情報区分(鍵, 最後の履歴No, u"0"_qs) == u"2") return false;
    const std::optional<鍵の履歴> 部 = 読む(鍵);
    return 部 && 移動先(*部).has_value();
}

std::optional<伝票鍵> 履歴読み手::移動元(const 鍵の履歴& 新) {
    if (新.状態.empty()) return std::nullopt;
    const 伝票状態& 最初 = 新.状態.front();
    if (最初.書込履歴No.isEmpty()) return std::nullopt;
    if (登録情報区分(新.鍵, 最初.書込履歴No, u"1"_qs) == u"0") return std::nullopt;
    // The first state was written by the operator of the move, whose user the old lines carry.
    const QString 書いた人 = 最初.ユーザID;
    const QString 文 =
        u"SELECT 番号基準日付, 出金No, MIN(出金履歴No) FROM R出金明細 WHERE 赤黒区分 = '0' AND 事業所コード = "_qs +
        引用符で囲む(新.鍵.事業所コード) + u" AND 番号基準日付 <> "_qs +
        引用符で囲む(新.鍵.番号基準日付) + u" AND ユーザID = "_qs + 引用符で囲む(書いた人) +
        u" AND 出金履歴No > "_qs + 引用符で囲む(最初.書込履歴No) +
        u" GROUP BY 番号基準日付, 出金No ORDER BY 3"_qs;
    std::vector<伝票鍵> 候補;
    記録集合 rs;
    if (d.接続().業務DB検索(rs, 文)) {
        for (; !rs.EOFか() && 候補.size() < 候補の上限; rs.MoveNext())
            候補.push_back({新.鍵.事業所コード, rs.文字列(0), rs.文字列(1)});
    }
    rs.閉じる();
    for (const 伝票鍵& k : 候補) {
        const std::optional<鍵の履歴> 旧 = 読む(k);
        if (旧 && 移動先(*旧) == 新.鍵) return k;
    }
    return std::nullopt;
}
