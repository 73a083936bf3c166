#include "slip/起動処理.h"

#include "text/プラットフォーム.h"
#include "text/マウスホイール.h"
#include "text/数値変換.h"

namespace {

// A folder as it is typed on a command line.
QString 引数(const QString& フォルダ) {
    return フォルダ.contains(u' ') ? u"'"_qs + フォルダ + u"'"_qs : フォルダ;
}

// What the operator is told after the databases did not open because the tree is missing or
// closed to him: the folder, and the administrator's command that makes it or opens it. A
// closed tree is not made again, as that would empty the company's databases.
QString ツリー案内(const データ環境& d) {
    const ツリー診断結果 診断 = d.接続().ツリー診断();
    const QString 所 = 引数(診断.フォルダ);
    switch (診断.状態) {
        case ツリー状態::無い:
            return u"紺碧帳のフォルダツリーがありません: "_qs + 診断.フォルダ +
                   u"\n管理者が次のコマンドで作成します。\nsudo konpeki-make-tree "_qs + 所 +
                   u" --slips 0"_qs;
        case ツリー状態::読めない:
            return u"紺碧帳のフォルダツリーを読み書きできません: "_qs + 診断.フォルダ +
                   u"\n管理者が利用者をツリーのグループ (konpeki) に加えます。\nsudo adduser "_qs +
                   d.接続().環境().端末利用者名 + u" konpeki"_qs;
        case ツリー状態::使える:
            break;
    }
    return {};
}

}  // namespace

紺碧帳起動::紺碧帳起動(出金セッション& セッション, 入力画面& 画面_) : s(セッション), 画面(画面_) {}

起動結果 紺碧帳起動::プログラム開始(const QString& コマンドライン) {
    プラットフォーム& 基盤 = s.データ.基盤();
    s.データ.接続().コマンドライン設定(コマンドライン.trimmed());

    if (!データベース開始()) {
        基盤.メッセージ(u"データベースが使用できません。"_qs);
        if (const QString 案内 = ツリー案内(s.データ); !案内.isEmpty()) 基盤.メッセージ(案内);
        終了処理();
        return 起動結果::停止;
    }
    if (!ユーザ情報初期化()) {
        基盤.メッセージ(u"ユーザ情報が使用できません。"_qs);
        終了処理();
        return 起動結果::停止;
    }
    s.白樺連携フラグ = s.データ.人事連携選択(u"白樺"_qs);
    if (s.白樺連携フラグ && !s.データ.人事連携開始()) {
        // Deliberately no 終了処理 here: this path leaves no end row.
        基盤.メッセージ(u"白樺連携データベースが使用できません。"_qs);
        s.データ.人事連携終了();
        return 起動結果::停止;
    }
    連携条件項目登録(u"翠嶺"_qs, u"紺碧帳"_qs);
    if (!操作権限OK(s.データ.操作者権限().操作権限確認(u"翠嶺"_qs, u"紺碧帳"_qs, 0))) {
        基盤.メッセージ(u"操作権限がありません。"_qs);
        終了処理();
        return 起動結果::停止;
    }

    コマンド = 起動コマンド::解析(コマンドライン);
    s.連携起動フラグ = false;
    s.連携新規フラグ = false;
    s.新規情報フラグ = true;
    if (!コマンド.全体.isEmpty()) {
        // Stored even when the line is malformed: the office code then stays for the run.
        s.見出し.事業所コード = コマンド.事業所コード;
        s.見出し.番号基準日付 = コマンド.番号基準日付;
        s.見出し.出金No = コマンド.出金No;
        switch (コマンド.モード()) {
            case 起動モード::キー起動:
                s.連携起動フラグ = true;
                s.新規情報フラグ = false;
                break;
            case 起動モード::連携新規:
                s.連携起動フラグ = true;
                s.連携新規フラグ = true;
                break;
            default:
                break;
        }
    }

    // A linked start always goes on, so several linked runs can stand beside a hand-started one.
    if (!s.連携起動フラグ && 他に起動中()) {
        終了処理();
        return 起動結果::停止;
    }

    画面.表示();
    画面.既定フォーカス設定();
    return 起動結果::稼動;
}

bool 紺碧帳起動::データベース開始() {
    データ環境& d = s.データ;
    if (!d.接続().SYB_OPEN()) return false;
    d.開始履歴書込();
    d.プログラム連携().他プログラム連携受信(
        d.接続().コマンドライン().trimmed(),
        d.基盤().現在時刻().addSecs(-60).toString(u"yyyyMMdd HHmmss"_qs));
    // Only the suite's menu program keeps the configuration database's tables short.
    if (d.接続().プログラムID() == u"翠嶺") d.接続().環境情報整理();
    return d.接続().DB_OPEN();
}

bool 紺碧帳起動::ユーザ情報初期化() {
    const bool 結果 = s.データ.会社設定().基本項目読込();
    // The slip is entered for the workplace's office, so that its number comes from that
    // office's counters; a command line may still name another.
    s.見出し.事業所コード = s.データ.接続().作業事業所コード();
    s.最終行 = -1;
    s.新規情報フラグ = true;
    今日の出金日付();
    s.出金日付確定();
    s.軽減税率表示 = false;
    return 結果;
}

void 紺碧帳起動::今日の出金日付() {
    auto& h = s.見出し;
    const QDate 今日 = s.データ.基盤().現在時刻().date();
    h.出金日付年 = QString::number(今日.year()).rightJustified(4, u'0');
    h.出金日付月 = QString::number(今日.month()).rightJustified(2, u'0');
    h.出金日付日 = QString::number(今日.day()).rightJustified(2, u'0');
    h.出金日付 = h.出金日付年 + h.出金日付月 + h.出金日付日;
}

void 紺碧帳起動::伝票読込() {
    if (s.新規情報フラグ) {
        s.出金情報初期化();
        if (s.連携新規フラグ) 起動条件読込();
    } else {
        起動キー読込();
    }
}

void 紺碧帳起動::起動キー読込() {
    // A key that is not stored gives a plain new slip, without a word.
    if (!s.出金キー検索(s.伝票鍵())) {
        s.出金検索破棄();
        return;
    }
    s.出金見出し読込();
    s.出金明細読込();
}

void 紺碧帳起動::起動条件読込() {
    auto& h = s.見出し;
    h.出金日付 = コマンド.出金日付;
    h.担当者コード = コマンド.担当者コード;
    if (数値変換(h.出金日付) == 0) {
        今日の出金日付();
    } else {
        h.出金日付を分ける();
    }
    s.出金日付確定();
    if (h.担当者コード.trimmed().isEmpty()) return;
    if (!s.担当者検索(h.担当者コード)) {
        // The date and staff of the command line are lost: a plain new slip for today. A clear
        // keeps the date it is on, so the date goes back to today and what hangs on it follows.
        s.担当者検索破棄();
        s.出金情報初期化();
        今日の出金日付();
        s.出金日付確定();
        return;
    }
    s.担当者取込();

    // The first stored slip of that day and staff is shown for correction, whatever its office.
    記録集合 rs;
    const QString 文 = u"SELECT"_qs + 出金見出し列 + 出金見出し結合 + u" WHERE 出金日付 = '"_qs +
                       h.出金日付 + u"'"_qs + u" AND 担当者コード = '"_qs + h.担当者コード +
                       u"'"_qs + u" ORDER BY 出金No"_qs;
    if (s.データ.接続().業務DB検索(rs, 文)) {
        s.出金見出し読込(rs);
        s.出金明細読込();
        s.入力変更フラグ = false;
    }
    rs.閉じる();
}

void 紺碧帳起動::連携条件項目登録(const QString& メニュー名, const QString& プログラム名) {
    s.データ.接続().条件項目名保存(メニュー名, プログラム名,
                                   {u"事業所コード"_qs, u"番号基準日付"_qs, u"出金No"_qs});
}

void 紺碧帳起動::終了処理() {
    データ環境& d = s.データ;
    if (!d.プログラム連携().受信起動連携情報().isEmpty())
        d.プログラム連携().他プログラム連携発信(d.プログラム連携().終了時連携情報());
    d.接続().終了履歴書込();
    d.接続().接続終了();
}

void 紺碧帳起動::停止処理() {
    ウィンドウプロシージャ復元();
    終了処理();
    if (s.白樺連携フラグ) s.データ.人事連携終了();
}
