#include "audit/紺碧帳履歴.h"

#include "audit/出金履歴.h"
#include "audit/出金検索出力.h"
#include "slip/起動処理.h"

const QString 紺碧帳履歴::使い方 =
    u"使い方: 紺碧帳履歴 伝票の鍵（事業所コード3桁・番号基準日付8桁・出金No8桁の19文字）\n"
    u"　　　　紺碧帳履歴 --search 条件（日付・金額・支払先・担当者・事業所・番号・書類・削除）"_qs;

紺碧帳履歴::紺碧帳履歴(プラットフォーム& 基盤, const QString& 自身のフォルダ)
    : s(基盤, u"紺碧帳履歴"_qs) {
    s.データ.接続().自身のフォルダ設定(自身のフォルダ);
}

int 紺碧帳履歴::実行(const QStringList& 引数, QTextStream& 出力, QTextStream& エラー) {
    const bool 検索 = !引数.isEmpty() && 引数[0] == u"--search";
    const std::optional<伝票鍵> 鍵 = 引数.size() == 1 ? 伝票鍵を読む(引数[0]) : std::nullopt;
    if (!鍵 && !検索) {
        エラー << 使い方 << u'\n';
        return 2;
    }
    s.データ.接続().コマンドライン設定(引数.join(u' '));
    画面なし 画面;
    紺碧帳起動 起動(s, 画面);
    if (!起動.データベース開始() || !起動.ユーザ情報初期化()) {
        エラー << u"データベースが使用できません。"_qs << u'\n';
        起動.終了処理();
        return 1;
    }
    if (検索) {
        const int 結果 = 出金検索を出力(s, 引数.mid(1), 出力, エラー);
        起動.終了処理();
        return 結果;
    }
    const std::optional<出金履歴> 履歴 = 出金履歴読込(s.データ, *鍵);
    int 結果 = 0;
    if (履歴) {
        出力 << 履歴文(*履歴);
    } else {
        エラー << u"伝票が見つかりません: "_qs << 引数[0] << u'\n';
        結果 = 1;
    }
    起動.終了処理();
    return 結果;
}
