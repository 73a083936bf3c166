#include <QSet>
#include <algorithm>
#include <map>

#include "audit/出金履歴読み手.h"
#include "dataenv/データ環境.h"
#include "dataenv/記録集合.h"

namespace {

using 明細行 = 履歴行群::明細行;
using 見出し行 = 履歴行群::見出し行;

struct 番号比較 {
    bool operator()(const QString& 左, const QString& 右) const { return 番号順(左, 右); }
};
using 番号別 = std::map<QString, std::vector<const 明細行*>, 番号比較>;

番号別 番号ごとに(const std::vector<明細行>& 行) {
    番号別 群;
    for (const 明細行& r : 行) 群[r.履歴No].push_back(&r);
    return 群;
}

// A state while its rows are gathered: the lines its store wrote, and the rows that replaced it.
struct 組立中 {
    QString 書込No, 置換No;
    std::vector<const 明細行*> 新行, 旧行;
    const 見出し行* 旧見出し = nullptr;
    bool 現在 = false;
    QString 順番() const { return 書込No.isEmpty() ? 置換No : 書込No; }
};

// Old-state lines are copies of the stored lines, which carry the stamp of their own save: an
// old line belongs to the state whose written line has its line id and stamp. The number alone
// does not tell, since a move takes the number of its old rows from the new key's sequence.
int 写した状態(const std::vector<組立中>& 群, const 明細行& 旧) {
    for (std::size_t i = 0; i < 群.size(); ++i) {
        for (const 明細行* w : 群[i].新行) {
            if (w->明細.出金固有行No == 旧.明細.出金固有行No && w->登録日付 == 旧.登録日付)
                return static_cast<int>(i);
        }
    }
    return -1;
}

// The rows that replaced a state, as one store wrote them: their number, and the state their
// lines copy (-1 when no line tells).
struct 置換記録 {
    QString 番号;
    int 状態 = -1;
    std::vector<const 明細行*> 行;
    const 見出し行* 見出し = nullptr;
};

// The earliest save among a state's written lines: its header was saved just before.
QString 書込時刻(const 組立中& b) {
    QString t;
    for (const 明細行* w : b.新行) {
        if (t.isEmpty() || w->登録日付 < t) t = w->登録日付;
    }
    return t;
}

std::vector<置換記録> 置換記録を集める(const std::vector<組立中>& 群, const 履歴行群& 行群) {
    std::vector<置換記録> 記録;
    for (const 明細行& r : 行群.旧明細) {
        const int 状態 = 写した状態(群, r);
        auto it = std::find_if(記録.begin(), 記録.end(), [&](const 置換記録& k) {
            return k.番号 == r.履歴No && k.状態 == 状態;
        });
        if (it == 記録.end()) it = 記録.insert(記録.end(), {r.履歴No, 状態, {}, nullptr});
        it->行.push_back(&r);
    }
    // A header goes with the lines of its number; when several stores share the number, with
    // the one whose state was written nearest after the header's own stamp.
    for (const 見出し行& h : 行群.旧見出し) {
        置換記録* 先 = nullptr;
        QString 先の時刻;
        for (置換記録& k : 記録) {
            if (k.番号 != h.履歴No || k.見出し) continue;
            const QString t = k.状態 >= 0 ? 書込時刻(群[k.状態]) : QString();
            const bool 後 = !t.isEmpty() && t >= h.登録日付;
            if (!先 || (後 && (先の時刻.isEmpty() || t < 先の時刻))) {
                先 = &k;
                先の時刻 = 後 ? t : QString();
            }
        }
        if (!先) 先 = &*記録.insert(記録.end(), {h.履歴No, -1, {}, nullptr});
        先->見出し = &h;
    }
    std::stable_sort(記録.begin(), 記録.end(),
                     [](const 置換記録& a, const 置換記録& b) { return 番号順(a.番号, b.番号); });
    return 記録;
}

// Without a line to tell, the rows close the latest state written before them: stores of one
// key draw their numbers from its own sequence in order.
int 番号で閉じる先(const std::vector<組立中>& 群, const QString& 番号) {
    for (int i = static_cast<int>(群.size()) - 1; i >= 0; --i) {
        if (群[i].置換No.isEmpty() && !群[i].書込No.isEmpty() && 番号順(群[i].書込No, 番号))
            return i;
    }
    return -1;
}

void 行を並べる(std::vector<履歴明細>& 明細) {
    std::stable_sort(明細.begin(), 明細.end(), [](const 履歴明細& a, const 履歴明細& b) {
        return a.値(u"出金行No") < b.値(u"出金行No");
    });
}

// The state's lines: those the stored rows (or the replacing rows) hold, and those its store
// wrote that no later row holds. A line missing from either record makes the state incomplete.
void 明細を揃える(伝票状態& st, const std::vector<const 明細行*>& 保存行,
                  const std::vector<const 明細行*>& 新行, bool 書込記録あり) {
    for (const 明細行* r : 保存行) st.明細.push_back(r->明細);
    const QString 保存の語 = st.何 == 伝票状態::種別::現在 ? u"保存中の"_qs : u"置換時の"_qs;
    for (const 明細行* r : 新行) {
        if (st.行(r->明細.出金固有行No)) continue;
        st.明細.push_back(r->明細);
        st.欠け << u"出金固有行No "_qs + r->明細.出金固有行No + u" の"_qs + 保存の語 +
                       u"行がありません"_qs;
    }
    if (!書込記録あり) {
        if (!保存行.empty()) st.欠け << u"書込時の明細行がありません"_qs;
    } else {
        for (const 明細行* r : 保存行) {
            const bool 書いた = std::any_of(新行.begin(), 新行.end(), [&](const 明細行* w) {
                return w->明細.出金固有行No == r->明細.出金固有行No;
            });
            if (!書いた)
                st.欠け << u"出金固有行No "_qs + r->明細.出金固有行No +
                               u" の書込時の行がありません"_qs;
        }
    }
    行を並べる(st.明細);
}

}  // namespace

履歴読み手::履歴読み手(データ環境& 環境) : d(環境) {}

// The user of a row is the system user, the operator's code and the computer joined without a
// separator: the operator is the one staff code found in it, when exactly one is.
QString 履歴読み手::操作者名(const QString& ユーザID) {
    if (!担当者読込済) {
        担当者読込済 = true;
        記録集合 rs;
        if (d.接続().業務DB検索(rs, u"SELECT コード, 氏名 FROM M担当者"_qs)) {
            for (; !rs.EOFか(); rs.MoveNext()) 担当者.insert(rs.文字列(0), rs.文字列(1));
        }
        rs.閉じる();
    }
    QString 名;
    int 数 = 0;
    for (auto it = 担当者.begin(); it != 担当者.end(); ++it) {
        if (!it.key().isEmpty() && ユーザID.contains(it.key())) {
            名 = it.value();
            ++数;
        }
    }
    return 数 == 1 ? 名 : QString();
}

std::optional<鍵の履歴> 履歴読み手::読む(const 伝票鍵& 鍵) {
    履歴行群 行群;
    if (!履歴行を読む(d.接続(), 鍵, 行群) || 行群.空()) return std::nullopt;

    std::vector<組立中> 群;
    const 番号別 新群 = 番号ごとに(行群.新明細);
    for (const auto& [番号, 行] : 新群) 群.push_back({番号, {}, 行, {}, nullptr});
    for (const 置換記録& k : 置換記録を集める(群, 行群)) {
        int i = k.状態;
        // Stores within one second leave equal stamps: the number tells them apart then.
        if (i >= 0 && !群[i].置換No.isEmpty()) i = -1;
        if (i < 0) i = 番号で閉じる先(群, k.番号);
        if (i < 0 || !群[i].置換No.isEmpty()) {
            群.push_back({{}, k.番号, {}, k.行, k.見出し});
            continue;
        }
        群[i].置換No = k.番号;
        群[i].旧行 = k.行;
        群[i].旧見出し = k.見出し;
    }
    std::stable_sort(群.begin(), 群.end(),
                     [](const 組立中& a, const 組立中& b) { return 番号順(a.順番(), b.順番()); });

    鍵の履歴 結果{鍵};
    const bool 保存中 = 行群.現在見出し || !行群.現在明細.empty();
    if (保存中) {
        auto it = std::find_if(群.rbegin(), 群.rend(),
                               [](const 組立中& b) { return b.置換No.isEmpty(); });
        if (it != 群.rend() && !it->書込No.isEmpty()) {
            it->現在 = true;
        } else {
            群.push_back({});
            群.back().現在 = true;
        }
    }
    std::vector<const 明細行*> 現在行;
    for (const 明細行& r : 行群.現在明細) 現在行.push_back(&r);

    for (const 組立中& b : 群) {
        伝票状態 st;
        st.鍵 = 鍵;
        st.何 = b.現在 ? 伝票状態::種別::現在 : 伝票状態::種別::以前;
        st.書込履歴No = b.書込No;
        st.置換履歴No = b.置換No;
        const 見出し行* h = b.現在 ? (行群.現在見出し ? &*行群.現在見出し : nullptr) : b.旧見出し;
        if (h) {
            st.見出し = h->見出し;
            st.登録日付 = h->登録日付;
            st.更新日付 = h->更新日付;
            st.ユーザID = h->ユーザID;
        } else {
            st.欠け << (b.現在 ? u"見出しの行がありません"_qs
                               : u"置換時の見出しの行がありません"_qs);
            // Lines of the store carry its stamp and user; replacing lines carry the replacer.
            const auto& 元 = !b.新行.empty() ? b.新行 : (b.現在 ? 現在行 : b.旧行);
            if (!元.empty()) {
                st.登録日付 = 元.front()->登録日付;
                if (&元 != &b.旧行) st.ユーザID = 元.front()->ユーザID;
            }
        }
        if (!b.現在 && b.置換No.isEmpty()) st.欠け << u"置き換えた時の行がありません"_qs;
        明細を揃える(st, b.現在 ? 現在行 : b.旧行, b.新行, !b.書込No.isEmpty());
        st.操作者名 = 操作者名(st.ユーザID);
        結果.状態.push_back(std::move(st));
    }
    if (!保存中 && !群.empty()) {
        const 組立中& 最後 = 群.back();
        結果.終わった = true;
        結果.終わりの履歴No = 最後.置換No;
        if (!最後.旧行.empty()) 結果.終わらせた人 = 最後.旧行.front()->ユーザID;
        for (const 明細行* r : 最後.新行.empty() ? 最後.旧行 : 最後.新行)
            結果.最後の登録日付 = std::max(結果.最後の登録日付, r->登録日付);
    }
    return 結果;
}
