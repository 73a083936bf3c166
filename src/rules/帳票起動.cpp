#include "rules/帳票起動.h"

#include "dataenv/データ環境.h"
#include "text/プラットフォーム.h"

namespace {
QString 欄(const QString& 値, int 幅) {
    return 値.leftJustified(幅, u' ', true);
}
}  // namespace

QString 帳票引数(const QString& 事業所コード, const QString& 出力区分, const QString& 出金日付,
                 const QString& 出金No, const QString& 担当者コード) {
    // Every range is the one slip: from and to carry the same value.
    return 欄(事業所コード, 3) + 欄(出力区分, 1) + 欄(出金日付, 8) + 欄(出金日付, 8) +
           欄(出金No, 8) + 欄(出金No, 8) + 欄(担当者コード, 5) + 欄(担当者コード, 5) + u"2"_qs;
}

bool 帳票起動(データ環境& e, const QString& 出力区分, const QString& 事業所コード,
              const QString& 出金日付, const QString& 出金No, const QString& 担当者コード) {
    const QString フォルダ = e.環境.プログラムフォルダ;
    const bool 起動 = e.基盤.プログラム起動(
        フォルダ + u"/"_qs + 帳票プログラム名,
        {帳票引数(事業所コード, 出力区分, 出金日付, 出金No, 担当者コード)}, フォルダ);
    if (!起動) e.基盤.メッセージ(u"帳票プログラムが有りません"_qs);
    return 起動;
}
