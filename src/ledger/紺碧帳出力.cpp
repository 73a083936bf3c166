#include "ledger/紺碧帳出力.h"

#include "ledger/CP932表.h"
#include "ledger/出力ファイル.h"
#include "text/プラットフォーム.h"
#include "text/数値書式.h"

紺碧帳出力::紺碧帳出力(プラットフォーム& 基盤, const QString& 自身のフォルダ)
    : s(基盤, u"紺碧帳出力"_qs) {
    s.データ.接続().自身のフォルダ設定(自身のフォルダ);
}

int 紺碧帳出力::拒否() {
    s.データ.基盤().メッセージ(拒否文言);
    return 1;
}

int 紺碧帳出力::実行(const QStringList& 引数) {
    出力指定 指定;
    // The arguments are read before anything is opened, so a wrong one leaves no trace.
    if (!出力指定::解析(引数, 指定, 拒否文言)) return 拒否();
    s.データ.接続().コマンドライン設定(引数.join(u' '));
    return 実行(指定);
}

int 紺碧帳出力::実行(const 出力指定& 指定) {
    if (!開始()) return 拒否();
    const bool 書けた = 出力(指定);
    if (!書けた) s.データ.基盤().メッセージ(拒否文言);
    終了();
    return 書けた ? 0 : 1;
}

bool 紺碧帳出力::開始() {
    if (起動.データベース開始() && 起動.ユーザ情報初期化()) return true;
    拒否文言 = u"データベースが使用できません。"_qs;
    終了();
    return false;
}

void 紺碧帳出力::終了() {
    起動.終了処理();
}

bool 紺碧帳出力::出力(const 出力指定& 指定) {
    // Read and formatted slip by slip, and written under a temporary name that takes the
    // target's place only when all is whole.
    const bool 弥生 = 指定.形式 == u"yayoi";
    QByteArray 内容 = 弥生 ? QByteArray() : CSV見出し();
    出力ファイル 先(指定.出力先);
    CP932表 変換器;
    集計 = {};
    結果文言.clear();
    拒否文言.clear();
    const bool 読めた = 仕訳伝票読込(
        s.データ, 指定,
        [&](const 仕訳伝票& t, QString& e) {
            集計.追加(t);
            if (進捗) 進捗(集計.伝票数);
            if (弥生 && !弥生形式追加(変換器, t, 内容, e)) return false;
            if (!弥生) CSV形式追加(t, 内容);
            先.溜まれば送る(内容);
            return true;
        },
        拒否文言);
    if (!読めた) return false;
    if (集計.借方金額合計 != 集計.実質出金金額合計) {
        拒否文言 = u"明細の金額の合計 "_qs + 集計.借方金額合計.文字列() +
                   u" が伝票の実質出金金額合計 "_qs + 集計.実質出金金額合計.文字列() +
                   u" と一致しません。何も出力しませんでした。"_qs;
        return false;
    }
    if (!先.仕上げる(内容)) {
        拒否文言 = u"ファイルを書き込めませんでした。\n"_qs + 指定.出力先;
        return false;
    }

    const QString 金額書式 = u"###,###,###,##0"_qs;
    結果文言 = u"伝票 "_qs + QString::number(集計.伝票数) + u" 件、明細 "_qs +
               QString::number(集計.行数) + u" 行、借方金額合計 "_qs +
               書式(集計.借方金額合計, 金額書式).trimmed() + u" 円（うち消費税 "_qs +
               書式(集計.消費税合計, 金額書式).trimmed() + u" 円）、実質出金金額合計 "_qs +
               書式(集計.実質出金金額合計, 金額書式).trimmed() + u" 円 → "_qs + 指定.出力先;
    s.データ.接続().出力履歴書込(u"仕訳出力 "_qs + 指定.形式 + u" "_qs + 指定.開始日 + u"-"_qs +
                                 指定.終了日 + u" "_qs + 結果文言);
    return true;
}
