#include "rules/消費税計算.h"
#include "rules/番号設定.h"
#include "rules/集計日付計算.h"
#include "slip/出金セッション.h"
#include "text/数値変換.h"
#include "text/項目編集.h"

void 出金セッション::出金日付確定() {
    auto& h = 見出し;
    auto 整形 = [](const QString& 部分, int 桁) {
        return QString::number(小整数値(部分)).rightJustified(桁, u'0');
    };
    h.出金日付年 = 整形(h.出金日付年, 4);
    h.出金日付月 = 整形(h.出金日付月, 2);
    h.出金日付日 = 整形(h.出金日付日, 2);
    日付補正(h.出金日付年, h.出金日付月, h.出金日付日);
    h.出金日付 = h.出金日付年 + h.出金日付月 + h.出金日付日;

    const QString 番号ID = 番号定数::出金番号ID.toString();
    const QString B = 番号基準日付取得(データ, 番号ID, h.出金日付);
    const auto 処置 = 日付変更時番号判定(新規情報フラグ, B, h.番号基準日付, h.保持番号基準日付,
                                         [this] { return !日程連携確認(); });
    switch (処置) {
        case 日付変更番号処置::そのまま:
            break;
        case 日付変更番号処置::保存番号復帰:
            h.番号基準日付 = h.保持番号基準日付;
            h.出金No = h.保持出金No;
            break;
        case 日付変更番号処置::新番号:
            h.番号基準日付 = B;
            h.出金No = 次番号参照(データ, 番号ID, B, h.事業所コード);
            break;
        case 日付変更番号処置::変更拒否:
            h.番号基準日付 = h.保持番号基準日付;
            h.出金No = h.保持出金No;
            h.出金日付 = h.保持出金日付;
            h.出金日付を分ける();
            お知らせ文言 = u"決算を超えた日付の変更は出来ません。"_qs;
            break;
    }
    h.会計集計日付 = 集計日付計算(データ.会社設定().会社(), h.出金日付);
    const 税率情報 税率 = 税率情報取得(データ.接続(), h.出金日付);
    h.前回税率 = 税率.前回税率;
    h.今回税率 = 税率.今回税率;
}

bool 出金セッション::担当者検索(const QString& コード) {
    QString 文 =
        u"SELECT M担当者.*, M部門.名称 AS 部門名, Mセクション.名称 AS セクション名"_qs +
        u" FROM Mセクション RIGHT JOIN (M部門 RIGHT JOIN M担当者 ON M部門.コード = M担当者.部門コード) ON Mセクション.コード = M担当者.セクションコード"_qs +
        u" WHERE M担当者.コード = '"_qs + コード + u"'"_qs;
    if (見出し.事業所コード != u"000"_qs) {
        文 += u" AND (M担当者.事業所コード = '"_qs + 見出し.事業所コード +
              u"' OR M担当者.事業所コード = '"_qs + u"000"_qs + u"')"_qs;
    }
    文 += u" AND M担当者.在籍区分 = '0'"_qs;
    return データ.接続().業務DB検索(担当者結果, 文);
}

void 出金セッション::担当者取込() {
    const 記録集合& rs = 担当者結果;
    const std::pair<const char16_t*, QString*> 列[] = {
        {u"コード", &見出し.担当者コード},
        {u"氏名", &見出し.担当者名},
        {u"部門コード", &見出し.部門コード},
        {u"部門名", &見出し.部門名},
        {u"セクションコード", &見出し.セクションコード},
        {u"セクション名", &見出し.セクション名},
    };
    for (const auto& [名, 先] : 列) {
        const QString 列名 = QString::fromUtf16(名);
        if (!rs.Null(列名)) *先 = rs.文字列(列名);
    }
    担当者結果.閉じる();
}
