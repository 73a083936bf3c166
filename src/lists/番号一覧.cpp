#include "lists/番号一覧.h"
#include "lists/一覧部品名.h"

#include "dataenv/データ環境.h"
#include "slip/伝票鍵.h"
#include "slip/出金セッション.h"
#include "text/項目編集.h"

namespace {

using 欄 = 一覧部品;

}  // namespace

番号一覧::番号一覧(出金セッション& セッション, 画面モデル& 主画面, const 部品表& 表,
                   const 番号一覧定義& 定義)
    : 一覧画面(セッション, 主画面, QString::fromUtf16(定義.窓名), 表,
               QString::fromUtf16(定義.一覧名)),
      定(定義) {
    画面.Caption = QString::fromUtf16(定.題);
    画面.Width = 定.幅;
    const auto 名 = [](const char16_t* t) { return QString::fromUtf16(t); };
    欄を結ぶ(
        {
            {名(定.日付.欄), 条件欄種類::文字, {}, {}, {}, 名(定.日付釦)},
            {名(定.番号.欄), 条件欄種類::コード, {}, {}, {}, 名(定.番号釦)},
            {名(定.氏名.欄), 条件欄種類::文字, {}, {}, {}, 名(定.氏名釦)},
            {名(定.人.欄), 条件欄種類::コード, 名(定.人名欄), 名(定.人名文), u"氏名"_qs,
             名(定.人釦), 名(定.入れ子画面)},
            {名(定.人名欄), 条件欄種類::名称},
        },
        {});
    検索ボタン(部品名(定.日付釦), 1);
    検索ボタン(部品名(定.番号釦), 2);
    検索ボタン(部品名(定.氏名釦), 3);
    検索ボタン(部品名(定.人釦), 4);
    検索ボタン(欄::btn_複合検索, 0);
    検索ボタン(欄::btn_否定検索, -1);
}

void 番号一覧::読込() {
    一覧初期条件展開();
    列作成(列群());
    初回検索();
}

void 番号一覧::一覧初期条件展開() {
    const QString 表 = QString::fromUtf16(定.表) + u"."_qs;
    for (const 句定義* 句 : {&定.日付, &定.番号, &定.人}) {
        const QString 欄名 = QString::fromUtf16(句->欄);
        コード取出(欄名, 表 + 欄名);
    }
    条件[QString::fromUtf16(定.氏名.欄)].clear();
}

QString 番号一覧::検索文作成() {
    検索文 q;
    const QString db = 方言();
    if (db == u"A" || db == u"S") {
        q.文 = QString::fromUtf16(定.列) + QString::fromUtf16(定.結合);
    } else if (db == u"O") {
        q.文 = QString::fromUtf16(定.列) + QString::fromUtf16(定.結合O);
        q.条件あり = true;
    } else {
        return {};
    }
    // Only the documents of the office at work, unless that is the whole company.
    if (d.接続().作業事業所コード() != ゼロ文字列(3)) {
        q.加える(QString::fromUtf16(定.事業所句) + d.接続().作業事業所コード() + u"'"_qs);
    }
    呼出条件句(q);
    const char16_t* 順 = 定.新しい順;
    switch (検索種別) {
        case 1:
            欄句(q, 定.日付);
            順 = 定.日付順;
            break;
        case 2:
            欄句(q, 定.番号);
            順 = 定.番号順;
            break;
        case 3:
            欄句(q, 定.氏名単独);
            順 = 定.人順;
            break;
        case 4:
            欄句(q, 定.人);
            順 = 定.人順;
            break;
        default:
            for (const 句定義* 句 : {&定.日付, &定.番号, &定.氏名, &定.人}) 欄句(q, *句);
            break;
    }
    return q.文 + QString::fromUtf16(順);
}

void 番号一覧::項目を加える(記録集合& rs, QStringList 欄群) {
    一覧項目 項;
    項.Text = rs.文字列(2);
    項.Key = 伝票鍵{rs.文字列(0), rs.文字列(1), 項.Text}.一覧の文字列();
    項.SubItems = std::move(欄群);
    一覧().項目追加(std::move(項));
}
