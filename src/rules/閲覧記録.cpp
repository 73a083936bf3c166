#include "rules/閲覧記録.h"

#include "dataenv/接続環境.h"
#include "rules/未集計情報.h"
#include "rules/番号設定.h"
#include "text/プラットフォーム.h"
#include "text/暦.h"

bool 閲覧記録(接続環境& 接続, const 会社情報& 会社, const 閲覧記録指定& 指定) {
    // The counter is read and written back one higher, then the number is checked and the row
    // goes in: as one batch, so that two look-ups at the same moment cannot read one value.
    業務DB一括 一括(接続, u"閲覧記録"_qs);
    return 閲覧記録(番号環境(接続, 会社), 接続.環境(), 指定);
}

bool 閲覧記録(const 番号環境& 環境, const プログラム環境情報& 情報, const 閲覧記録指定& 指定) {
    const QString 番号ID = 番号定数::閲覧番号ID.toString();
    const QString 基準日付 = 番号基準日付取得(環境, 番号ID, 今日(環境.基盤));

    const QString 閲覧No =
        未使用番号採番([&] { return 次番号採番(環境, 番号ID, 基準日付, 情報.運用事業所コード); },
                       [&](const QString& 番号) {
                           記録集合 rs;
                           const bool 使用済み = 環境.検索(
                               rs, u"SELECT 閲覧No FROM T閲覧"_qs + u" WHERE 事業所コード = '"_qs +
                                       指定.事業所コード + u"'"_qs + u" AND 番号基準日付 = '"_qs +
                                       基準日付 + u"'"_qs + u" AND 閲覧No = '"_qs + 番号 + u"'"_qs);
                           rs.閉じる();
                           return 使用済み;
                       });

    const QDateTime 今 = 環境.基盤.現在時刻();
    const QString 値[] = {
        指定.事業所コード,
        基準日付,
        閲覧No,
        日付文字列(今.date()),
        時刻文字列(今.time()),
        情報.起動担当者コード,
        指定.担当者名,
        指定.プログラム名,
        指定.伝票事業所コード,
        指定.伝票番号基準日付,
        指定.伝票No,
        指定.キー項目,
        u"0"_qs,  // 閲覧区分
        {},       // 閲覧メモ
        {},       // 承認日付
        {},       // 承認者コード
        u"0"_qs,  // 承認区分
        記録者ID(情報),
        日時文字列(今),
        {},  // 更新日付
    };
    QString 値一覧;
    for (const QString& v : 値) 値一覧 += (値一覧.isEmpty() ? u"('"_qs : u",'"_qs) + v + u"'"_qs;
    return 環境.実行(u"INSERT INTO [T閲覧] "_qs +
                     u"(事業所コード,番号基準日付,閲覧No,閲覧日付,閲覧時刻,担当者コード,"_qs +
                     u"担当者名,閲覧情報,伝票事業所コード,伝票番号基準日付,伝票No,キー項目,"_qs +
                     u"閲覧区分,閲覧メモ,承認日付,承認者コード,承認区分,ユーザID,登録日付,"_qs +
                     u"更新日付)"_qs + u" VALUES "_qs + 値一覧 + u")"_qs);
}
