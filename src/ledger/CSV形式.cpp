#include <QStringList>

#include "ledger/仕訳書式.h"
#include "ledger/行の筆.h"

namespace {

const QStringList 見出し = {
    u"事業所コード"_qs, u"番号基準日付"_qs,   u"出金No"_qs,       u"出金日付"_qs,
    u"担当者コード"_qs, u"部門コード"_qs,     u"部門名"_qs,       u"実質出金金額合計"_qs,
    u"出金行No"_qs,     u"費目区分"_qs,       u"費目区分名称"_qs, u"勘定科目"_qs,
    u"補助科目"_qs,     u"内税外税区分"_qs,   u"消費税率"_qs,     u"出金金額"_qs,
    u"出金消費税"_qs,   u"実質出金金額"_qs,   u"支払先"_qs,       u"登録番号"_qs,
    u"控除割合"_qs,     u"課税事業所区分"_qs, u"摘要"_qs,         u"税区分"_qs,
};

}  // namespace

QByteArray CSV見出し() {
    return (見出し.join(u',') + u"\r\n"_qs).toUtf8();
}

void CSV形式追加(const 仕訳伝票& t, QByteArray& 出力) {
    const QString 伝票合計 = t.実質出金金額合計.文字列();
    QString 行;  // kept from line to line, so that its memory is made once
    for (const 仕訳行& l : t.行) {
        const QString 額[] = {l.消費税率.文字列(), l.出金金額.文字列(), l.出金消費税.文字列(),
                              l.実質出金金額.文字列()};
        const QString 内外 = QString::number(l.内税外税区分);
        const QString 割合 = QString::number(l.控除割合);
        const QStringView 項目[] = {t.事業所コード, t.番号基準日付,
                                    t.出金No,       t.出金日付,
                                    t.担当者コード, t.部門コード,
                                    t.部門名,       伝票合計,
                                    l.出金行No,     l.費目区分,
                                    l.費目区分名称, l.勘定科目,
                                    l.補助科目,     内外,
                                    額[0],          額[1],
                                    額[2],          額[3],
                                    l.支払先,       l.登録番号,
                                    割合,           l.課税事業所区分,
                                    l.摘要,         l.税区分};
        qsizetype 上限 = std::size(項目) + 2;
        for (QStringView v : 項目) 上限 += 行の筆::上限(v);
        if (行.size() < 上限) 行.resize(上限 * 2);
        行の筆 筆(reinterpret_cast<char16_t*>(行.data()));
        bool 先頭 = true;
        for (QStringView v : 項目) {
            if (!先頭) 筆.字(u',');
            先頭 = false;
            筆.CSVの文字(v);
        }
        筆.字(u'\r');
        筆.字(u'\n');
        出力 += 筆.書いた().toUtf8();
    }
}
