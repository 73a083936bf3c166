#include <QHash>
#include <QMap>
#include <vector>

#include "dataenv/データ環境.h"
#include "ledger/仕訳伝票.h"
#include "ledger/出力指定.h"
#include "rules/仕入税額控除.h"
#include "rules/弥生形式.h"
#include "rules/登録番号.h"

namespace {

struct 勘定対応 {
    QString 勘定科目;
    QString 補助科目;
    QString 非課税区分;
};

struct 登録期間 {
    QString 開始日;
    QString 終了日;
    QString 登録番号;
};

bool 勘定対応読込(データ環境& 環境, QHash<QString, 勘定対応>& 対応) {
    記録集合 rs;
    const bool 成功 = 環境.接続().業務DB検索(
        rs, u"SELECT 費目区分, 勘定科目, 補助科目, 非課税区分 FROM K紺碧勘定対応"_qs);
    for (; 成功 && !rs.EOFか(); rs.MoveNext()) {
        対応.insert(rs.文字列(u"費目区分"_qs),
                    {rs.文字列(u"勘定科目"_qs).trimmed(), rs.文字列(u"補助科目"_qs).trimmed(),
                     rs.文字列(u"非課税区分"_qs).trimmed()});
    }
    rs.閉じる();
    return 成功;
}

bool 登録読込(データ環境& 環境, QHash<QString, QList<登録期間>>& 登録) {
    記録集合 rs;
    const bool 成功 = 環境.接続().業務DB検索(
        rs, u"SELECT 支払先, 有効開始日, 有効終了日, 登録番号 FROM M紺碧支払先登録"_qs);
    for (; 成功 && !rs.EOFか(); rs.MoveNext()) {
        // A number that fails its check counts as no registration.
        const QString 番号 = rs.文字列(u"登録番号"_qs).trimmed();
        if (登録番号検査(番号) != 登録番号判定::正しい) continue;
        登録[rs.文字列(u"支払先"_qs).trimmed()].append(
            {rs.文字列(u"有効開始日"_qs), rs.文字列(u"有効終了日"_qs).trimmed(), 番号});
    }
    rs.閉じる();
    return 成功;
}

// The payee's registration in force on the date.
QString 有効な登録番号(const QHash<QString, QList<登録期間>>& 登録, const QString& 支払先,
                       const QString& 日付) {
    if (登録.isEmpty()) return {};
    const auto it = 登録.constFind(支払先.trimmed());
    if (it == 登録.cend()) return {};
    for (const 登録期間& p : *it) {
        if (p.開始日 <= 日付 && (p.終了日.isEmpty() || 日付 <= p.終了日)) return p.登録番号;
    }
    return {};
}

// The names of a small master by code, read once rather than joined to every line.
bool 名称読込(データ環境& 環境, const QString& 文, QHash<QString, QString>& 名称) {
    記録集合 rs;
    const bool 成功 = 環境.接続().業務DB検索(rs, 文);
    for (; 成功 && !rs.EOFか(); rs.MoveNext()) 名称.insert(rs.文字列(0), rs.文字列(1));
    rs.閉じる();
    return 成功;
}

// The tax category of the kinds of line met on one date: slips come in date order, a day has
// only a handful of kinds, and the category is the same text for each.
class 税区分控 {
  public:
    const QString& 求める(const 仕訳行& l, const QString& 日付, const QString& 非課税区分) {
        if (日付 != 控の日付) {
            控群.clear();
            控の日付 = 日付;
        }
        for (const 控& k : 控群) {
            if (k.内外 == l.内税外税区分 && k.税率 == l.消費税率 && k.割合 == l.控除割合 &&
                k.非課税区分 == 非課税区分)
                return k.税区分;
        }
        控群.push_back({l.内税外税区分, l.消費税率, l.控除割合, 非課税区分,
                        弥生仕入税区分(l.内税外税区分, l.消費税率, 日付, l.控除割合, 非課税区分)});
        return 控群.back().税区分;
    }

  private:
    struct 控 {
        short 内外;
        金額 税率;
        int 割合;
        QString 非課税区分;
        QString 税区分;
    };
    QString 控の日付;
    std::vector<控> 控群;
};

// The columns of the read, in the order of the SELECT; rows are read by place.
enum 列 {
    列_事業所コード,
    列_番号基準日付,
    列_出金No,
    列_出金日付,
    列_担当者コード,
    列_部門コード,
    列_伝票合計,
    列_出金行No,
    列_費目区分,
    列_内税外税区分,
    列_課税事業所区分,
    列_税率,
    列_金額,
    列_税額,
    列_実質金額,
    列_支払先,
    列_摘要,
};

// The slips of the period, of one office or all.
QString 期間の条件(const 出力指定& 指定) {
    QString 文 = u" WHERE h.出金日付 >= '"_qs + 指定.開始日 + u"' AND h.出金日付 <= '"_qs +
                 指定.終了日 + u"'"_qs;
    if (!指定.事業所コード.isEmpty() && 指定.事業所コード != u"000")
        文 += u" AND h.事業所コード = '"_qs + 指定.事業所コード + u"'"_qs;
    return 文;
}

QString 伝票文(const 出力指定& 指定, SQL方言 方言) {
    // The order is the date index's, and on SQLite the header's row id after it makes each
    // header's place distinct, so that the engine walks the lines in order instead of sorting
    // them all.
    const QString 行の順 = 方言 == SQL方言::SQLite ? u"h.rowid, "_qs : QString();
    return u"SELECT h.事業所コード, h.番号基準日付, h.出金No, h.出金日付, h.担当者コード, "
           u"h.部門コード, h.実質出金金額合計, d.出金行No, d.費目区分, d.内税外税区分, "
           u"d.課税事業所区分, d.消費税率, d.出金金額, d.出金消費税, d.実質出金金額, d.支払先, "
           u"d.摘要 FROM T出金 h INNER JOIN T出金明細 d ON d.事業所コード = h.事業所コード "
           u"AND d.番号基準日付 = h.番号基準日付 AND d.出金No = h.出金No"_qs +
           期間の条件(指定) +
           u" ORDER BY h.出金日付, h.出金No, h.事業所コード, h.番号基準日付, "_qs + 行の順 +
           u"d.出金行No"_qs;
}

short 区分値(QStringView 文字) {
    if (文字.size() == 1 && 文字[0] >= u'0' && 文字[0] <= u'9') return 文字[0].unicode() - u'0';
    return 整数変換(文字.toString());
}

}  // namespace

bool 仕訳伝票読込(データ環境& 環境, const 出力指定& 指定, const 伝票受取& 受取, QString& エラー) {
    QHash<QString, 勘定対応> 対応;
    QHash<QString, QList<登録期間>> 登録;
    QHash<QString, QString> 部門名, 費目名;
    if (!勘定対応読込(環境, 対応) || !登録読込(環境, 登録) ||
        !名称読込(環境, u"SELECT コード, 名称 FROM M部門"_qs, 部門名) ||
        !名称読込(環境, u"SELECT 区分, 名称 FROM K費目区分"_qs, 費目名)) {
        エラー = u"勘定科目の対応表か支払先の登録表が読めません。"_qs;
        return false;
    }
    税区分控 税区分;
    QMap<QString, QString> 対応なし;  // expense classes without an account, by code
    仕訳伝票 t;  // the slip being read; one object for all, so that its lines keep their memory
    bool 読取中 = false;
    int 未登録割合 = 100;  // the share deductible from an unregistered payee on the slip's date
    bool 受取続行 = true;
    // The slip read so far goes to the receiver, unless something already went wrong.
    const auto 渡す = [&] {
        if (!読取中 || !対応なし.isEmpty() || !エラー.isEmpty()) return true;
        return 受取(t, エラー);
    };
    // A slip is known by its key and date; the lines of one header come together.
    const auto 同じ伝票 = [&](const データ接続::読取行& r) {
        return 読取中 && r.等しい(列_出金No, t.出金No) && r.等しい(列_出金日付, t.出金日付) &&
               r.等しい(列_事業所コード, t.事業所コード) &&
               r.等しい(列_番号基準日付, t.番号基準日付);
    };
    const auto 行を読む = [&](const データ接続::読取行& r) {
        if (!同じ伝票(r)) {
            if (!渡す()) return 受取続行 = false;
            読取中 = true;
            t.事業所コード = r.文字列(列_事業所コード);
            t.番号基準日付 = r.文字列(列_番号基準日付);
            t.出金No = r.文字列(列_出金No);
            t.出金日付 = r.文字列(列_出金日付);
            t.担当者コード = r.文字列(列_担当者コード);
            t.部門コード = r.文字列(列_部門コード);
            t.部門名 = 部門名.value(t.部門コード);
            t.実質出金金額合計 = r.金額値(列_伝票合計);
            t.行.clear();
            未登録割合 = 経過措置控除割合(t.出金日付);
        }
        仕訳行& l = t.行.emplace_back();
        l.出金行No = r.文字列(列_出金行No);
        l.費目区分 = r.文字列(列_費目区分);
        l.費目区分名称 = 費目名.value(l.費目区分);
        l.内税外税区分 = 区分値(r.文字列(列_内税外税区分));
        l.課税事業所区分 = r.文字列(列_課税事業所区分);
        l.消費税率 = r.金額値(列_税率);
        l.出金金額 = r.金額値(列_金額);
        l.出金消費税 = r.金額値(列_税額);
        l.実質出金金額 = r.金額値(列_実質金額);
        l.支払先 = r.文字列(列_支払先);
        l.摘要 = r.文字列(列_摘要);
        const auto a = 対応.constFind(l.費目区分);
        if (a == 対応.cend() || a->勘定科目.isEmpty()) {
            対応なし.insert(l.費目区分, l.費目区分名称);
            return true;
        }
        l.勘定科目 = a->勘定科目;
        l.補助科目 = a->補助科目;
        l.登録番号 = 有効な登録番号(登録, l.支払先, t.出金日付);
        l.控除割合 = l.登録番号.isEmpty() ? 未登録割合 : 100;
        l.税区分 = 税区分.求める(l, t.出金日付, a->非課税区分);
        if (l.税区分.isEmpty() && エラー.isEmpty()) {
            エラー = u"伝票 "_qs + t.名前() + u" の "_qs + l.出金行No +
                     u" 行目の税区分が決まりません（税率 "_qs + l.消費税率.文字列() +
                     u"%、非課税区分「"_qs + a->非課税区分 + u"」）。"_qs;
        }
        return true;
    };
    // No slip in the period is an empty export; only a statement that failed stops it.
    if (!環境.接続().業務DB逐次検索(伝票文(指定, 環境.接続().業務DB().方言()), 行を読む)) {
        エラー = u"伝票が読めません。"_qs;
        return false;
    }
    const bool 最後 = 受取続行 && 渡す();
    if (!対応なし.isEmpty()) {
        エラー = u"勘定科目の対応がない費目区分があります。何も出力しませんでした。"_qs;
        for (auto it = 対応なし.cbegin(); it != 対応なし.cend(); ++it)
            エラー += u"\n"_qs + it.key() + u" "_qs + it.value();
        return false;
    }
    return 最後 && エラー.isEmpty();
}

int 仕訳伝票数(データ環境& 環境, const 出力指定& 指定) {
    記録集合 rs;
    int 数 = 0;
    if (環境.接続().業務DB検索(rs, u"SELECT COUNT(*) FROM T出金 h"_qs + 期間の条件(指定)))
        数 = rs.文字列(0).toInt();
    rs.閉じる();
    return 数;
}
