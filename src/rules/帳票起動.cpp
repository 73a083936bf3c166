#include "rules/帳票起動.h"

#include "dataenv/接続環境.h"
#include "text/プラットフォーム.h"

bool 帳票起動(接続環境& 接続, const QString& 出力区分, const QString& 事業所コード,
              const QString& 出金日付, const QString& 出金No, const QString& 担当者コード) {
    const QString フォルダ = 接続.環境().プログラムフォルダ;
    const bool 起動 = 接続.基盤().プログラム起動(
        フォルダ + u"/"_qs + 帳票プログラム名,
        {帳票引数(事業所コード, 出力区分, 出金日付, 出金No, 担当者コード)}, フォルダ);
    if (!起動) 接続.基盤().メッセージ(u"帳票プログラムが有りません"_qs);
    return 起動;
}
