#include "dataenv/接続環境.h"
#include "text/プラットフォーム.h"
#include "text/項目編集.h"

// Every row of the run history goes straight to the configuration connection; a failure to
// write it is swallowed, so tracing never stops work.
void 接続環境::履歴書込(const QString& 摘要) {
    // The rows of writes still waiting for their answers come first, in their order.
    業務接続.待ちを送る();
    稼動カウンタ_ += 1;
    const QString 日時 = 基盤_.現在時刻().toString(u"yyyyMMdd HHmmss"_qs);
    const QString カウンタ =
        QString::number(static_cast<qint64>(稼動カウンタ_)).rightJustified(12, u'0');
    const QString 文 =
        u"INSERT INTO プログラム稼動履歴 ("_qs + u"実行日付,"_qs + u"プログラムID,"_qs +
        u"proccounter,"_qs + u"摘要,"_qs + u"運用事業所コード,"_qs + u"起動担当者コード,"_qs +
        u"ユーザID)"_qs + u"VALUES ("_qs + u"'"_qs + 日時 + u"'"_qs + u", '"_qs + プログラムID_ +
        u"', '"_qs + カウンタ + u"', '"_qs + 摘要 + u"', '"_qs + 環境_.運用事業所コード +
        u"', '"_qs + (記録担当者 ? 記録担当者() : QString()) + u"', '"_qs + 環境_.ユーザID +
        u"')"_qs;
    環境DB().実行(文);
}

void 接続環境::開始履歴書込() {
    履歴書込(u"開始 "_qs + 引用符二重化(コマンドライン_.trimmed()));
}

void 接続環境::終了履歴書込() {
    履歴書込(u"終了"_qs);
}

void 接続環境::出力履歴書込(const QString& 文) {
    // The update monitor polls the queue; its polls would flood the history.
    if (プログラムID_.contains(u"更新モニタ") && 文.contains(u"未集計情報")) return;
    履歴書込(u"出力終了 "_qs + 引用符二重化(引用符二重化(文)));
}

void 接続環境::エラー履歴書込(const QString& 文言) {
    履歴書込(u"エラー "_qs + 引用符二重化(引用符二重化(文言)));
}
