#include "common/伝票投入.h"

#include "common/試験用ツリー.h"

bool 伝票投入(試験用ツリー& 木, const 試験伝票& t) {
    const auto q = [](const QString& s) { return u"'"_qs + s + u"'"_qs; };
    qint64 合計 = 0;
    for (int i = 0; i < t.行数; ++i) 合計 += (i + 1) * t.金額単位;
    const qint64 税 = 合計 / 10;
    const QString 見出し =
        u"INSERT INTO T出金 (事業所コード, 番号基準日付, 出金No, 出金日付, 担当者コード, 部門コード, セクションコード, 出張申請事業所コード, 出張申請番号基準日付, 出張申請No, 出金伝票備考A, 出金伝票備考B, 出金金額合計, 出金消費税合計, 実質出金金額合計, 税抜出金金額合計, 税込出金金額合計, 前回税率出金金額合計, 前回税率出金消費税合計, 今回税率出金金額合計, 今回税率出金消費税合計, 伝票発行区分, 出金メモ, 承認日付, 承認者コード, 承認区分, ユーザID, 登録日付, 更新日付) VALUES ("_qs +
        q(t.事業所コード) + u","_qs + q(t.番号基準日付) + u","_qs + q(t.出金No) + u","_qs +
        q(t.出金日付) + u","_qs + q(t.担当者コード) + u","_qs + q(t.部門コード) + u","_qs +
        q(t.セクションコード) + u",'','','','備考その一','備考その二',"_qs + QString::number(合計) +
        u","_qs + QString::number(税) + u","_qs + QString::number(合計 + 税) + u","_qs +
        QString::number(合計) + u","_qs + QString::number(合計 + 税) + u",0,0,"_qs +
        QString::number(合計) + u","_qs + QString::number(税) +
        u",'1','メモ','','','0','user','20251120 100000','')"_qs;
    if (!木.業務DB実行(見出し)) return false;
    for (int i = 0; i < t.行数; ++i) {
        const qint64 額 = (i + 1) * t.金額単位;
        const QString No = QString::number(i + 1).rightJustified(3, u'0');
        const QString 行 =
            u"INSERT INTO T出金明細 (事業所コード, 番号基準日付, 出金No, 出金固有行No, 出金行No, 出金日付, 担当者コード, 部門コード, セクションコード, 費目区分, 内税外税区分, 支払先, 課税事業所区分, 摘要, 消費税率, 出金金額, 出金消費税, 実質出金金額, 税抜出金金額, 税込出金金額, 会計集計日付, 明細メモ, 承認日付, 承認者コード, 承認区分, ユーザID, 登録日付, 更新日付) VALUES ("_qs +
            q(t.事業所コード) + u","_qs + q(t.番号基準日付) + u","_qs + q(t.出金No) + u","_qs +
            q(No) + u","_qs + q(No) + u","_qs + q(t.出金日付) + u","_qs + q(t.担当者コード) +
            u","_qs + q(t.部門コード) + u","_qs + q(t.セクションコード) + u","_qs + q(t.費目区分) +
            u",'1','支払先"_qs + No + u"','1','摘要"_qs + No + u"',10,"_qs + QString::number(額) +
            u","_qs + QString::number(額 / 10) + u","_qs + QString::number(額 + 額 / 10) + u","_qs +
            QString::number(額) + u","_qs + QString::number(額 + 額 / 10) +
            u",'20251130','','','','0','user','20251120 100000','')"_qs;
        if (!木.業務DB実行(行)) return false;
    }
    return true;
}
