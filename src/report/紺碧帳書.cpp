#include "report/紺碧帳書.h"

#include "dataenv/ファイル操作.h"
#include "report/出金伝票描画.h"
#include "report/帳票指定.h"
#include "slip/出金付属書類.h"
#include "text/プラットフォーム.h"

紺碧帳書::紺碧帳書(プラットフォーム& 基盤, const QString& 自身のフォルダ)
    : s(基盤, u"紺碧帳書"_qs) {
    s.データ.接続().自身のフォルダ設定(自身のフォルダ);
}

int 紺碧帳書::拒否(const QString& 文言) {
    s.データ.基盤().メッセージ(文言);
    s.データ.接続().接続終了();
    return 1;
}

int 紺碧帳書::実行(const QString& 引数) {
    帳票指定 指定;
    QString エラー;
    // The argument is read before anything is opened, so a wrong one leaves no trace.
    if (!帳票指定::解析(引数, 指定, エラー)) return 拒否(エラー);
    データ環境& d = s.データ;
    d.接続().コマンドライン設定(引数);
    if (!d.接続().SYB_OPEN() || !d.接続().DB_OPEN() || !d.会社設定().基本項目読込()) {
        return 拒否(u"データベースが使用できません。"_qs);
    }
    if (!出金伝票読込(s, 指定, 帳票, エラー)) return 拒否(エラー);

    bool 出力 = false;
    if (指定.出力区分 == u"0") {
        出力 = 印刷 && 印刷(帳票);
    } else if (指定.出力区分 == u"1") {
        出力 = プレビュー && プレビュー(帳票);
    } else if (!PDF出力()) {
        return 1;
    } else {
        出力 = true;
    }
    d.接続().接続終了();
    // A print or preview the operator closed unused is no failure of the program.
    return 出力 || 指定.出力区分 != u"3" ? 0 : 1;
}

bool 紺碧帳書::PDF出力() {
    データ環境& d = s.データ;
    const QString フォルダ = d.会社設定().会社().ドキュメントフォルダ;
    if (フォルダ.trimmed().isEmpty()) {
        拒否(u"ドキュメントフォルダが設定されていません。\nPDFは作成しませんでした。"_qs);
        return false;
    }
    PDFパス = フォルダ + u"/出金伝票_"_qs + 帳票.事業所コード + u"_"_qs + 帳票.番号基準日付 +
              u"_"_qs + 帳票.出金No + u".pdf"_qs;
    if (!出金伝票PDF(帳票, PDFパス)) {
        拒否(u"PDFを書き込めませんでした。\n"_qs + PDFパス);
        return false;
    }
    // Registered as any document the operator attaches, so the slip's list shows it.
    if (!付属書類追加(d, 出金情報名, 出金付属書類ID(s), PDFパス, ファイル基本名取得(PDFパス),
                      出金付属書類項目(s))) {
        拒否(u"PDFを付属書類に登録できませんでした。\n"_qs + PDFパス);
        return false;
    }
    return true;
}
