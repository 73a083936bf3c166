#include "dataenv/接続環境.h"

#include "dataenv/Access環境設定.h"
#include "dataenv/データベース定義.h"
#include "dataenv/ファイル操作.h"
#include "text/プラットフォーム.h"

namespace {

// Where an error interrupts a routine that reports it once at its end.
struct 中断 {
    接続エラー エラー;
};

qsizetype 大小無視検索(const QString& 文字列, const QString& 語) {
    return 文字列.indexOf(語, 0, Qt::CaseInsensitive);
}

short ファイル種別(const QString& フォルダ, const QString& 基本名, QString& パス) {
    パス.clear();
    if (ファイル有無確認(フォルダ + 基本名 + u".db"_qs)) {
        パス = フォルダ + 基本名 + u".db"_qs;
        return 1;
    }
    if (ファイル有無確認(フォルダ + 基本名 + u".sqlite"_qs)) {
        パス = フォルダ + 基本名 + u".sqlite"_qs;
        return 2;
    }
    return 0;
}

空レジストリ Access無しのレジストリ;

}  // namespace

接続環境::接続環境(プラットフォーム& 基盤, QString プログラムID)
    : 基盤_(基盤),
      プログラムID_(std::move(プログラムID)),
      端末レジストリ(&Access無しのレジストリ) {}

void 接続環境::木を探す() {
    auto& e = 環境_;
    const QString& P = 自身のフォルダ_;
    qsizetype p = 大小無視検索(P, u"prgbin"_qs);
    if (p < 0) p = 大小無視検索(P, u"prgsrc"_qs);
    if (p < 0) return;
    const QString 根 = P.left(p);  // with its trailing separator
    e.ルートフォルダ = P.left(p > 0 ? p - 1 : 0);
    e.プログラムフォルダ = 根 + u"prgbin"_qs;
    e.業務DB種別 = ファイル種別(根 + u"data"_qs, u"/gnrdb"_qs, e.業務DBパス);
    e.環境DB種別 = ファイル種別(根 + u"conf"_qs, u"/usrcnfg"_qs, e.環境DBパス);
    // The later folders hang off the programs folder, so they are right from prgsrc too.
    const qsizetype q = 大小無視検索(e.プログラムフォルダ, u"prgbin"_qs);
    const QString 根2 = e.プログラムフォルダ.left(q);
    e.共通環境フォルダ = 根2 + u"conf"_qs;
    e.共通帳票フォルダ = 根2 + u"report"_qs;
    e.マニュアルフォルダ = 根2 + u"manual"_qs;
    e.帳票DB種別 = ファイル種別(e.共通帳票フォルダ, u"/repdb"_qs, e.帳票DBパス);
}

// The configuration database takes a history row for every store and every logged
// statement; waiting for the disk at each of them would double the time of a store.
接続先 接続環境::環境DB接続先(const QString& フォルダ) const {
    接続先 先;
    先.ファイル = フォルダ + 環境DBファイル名(環境_.環境DB種別);
    先.同期は区切りごと = true;
    return 先;
}

bool 接続環境::環境DBを開く(const QString& フォルダ) {
    const 接続先 先 = 環境DB接続先(フォルダ);
    if (!環境接続.開く(先)) throw 中断{環境接続.最終エラー()};
    環境DB接続中_ = true;
    return true;
}

bool 接続環境::SYB_OPEN() {
    環境_.端末利用者名 = 端末利用者名取得();
    環境_.端末名 = 端末名取得();
    環境_.ユーザID = 環境_.端末利用者名;
    木を探す();
    if (環境_.プログラムフォルダ.isEmpty() || 環境_.環境DB種別 == 0) {
        環境DB接続中_ = false;
        return false;
    }
    try {
        環境DBを開く(環境_.共通環境フォルダ);
        データベース定義読込();
        動作環境定義読込(false);
        環境接続.閉じる();
        環境DB接続中_ = false;

        switch (環境_.インストール区分) {
            case 0:
                環境_.環境フォルダ = 環境_.共通環境フォルダ;
                環境_.帳票フォルダ = 環境_.共通帳票フォルダ;
                break;
            case 1: {
                const QString 利用者 = 環境_.ルートフォルダ + u"/users/"_qs + 環境_.ユーザID;
                環境_.環境フォルダ = 利用者 + u"/conf"_qs;
                環境_.帳票フォルダ = 利用者 + u"/report"_qs;
                利用者別環境準備();
                break;
            }
            default:
                環境_.環境フォルダ.clear();
                環境_.帳票フォルダ.clear();
        }

        環境DBを開く(環境_.環境フォルダ);
        動作環境定義読込(true);
        作業事業所コード_ = 環境_.運用事業所コード;
    } catch (const 中断& 中) {
        基盤_.メッセージ(u"SYB_OPEN ERROR"_qs + 中.エラー.番号 + u" "_qs + 中.エラー.説明 +
                         u"\n"_qs + u"sysopen error"_qs);
    }
    return 環境DB接続中_;
}

void 接続環境::データベース定義読込() {
    記録集合 rs;
    if (環境DB検索(rs, u"SELECT * FROM データベース定義 WHERE 情報種類 = 'GNR'"_qs)) {
        // db and dbmw are taken as they stand: a Null there is a failed read.
        if (!データベース定義を写す(rs, 環境_)) {
            rs.閉じる();
            throw 中断{{u"94"_qs, u"Null の使い方が不正です。"_qs}};
        }
        if (環境_.db == u"A") 環境_.Access業務DBパス = 環境_.データソース名;
    }
    rs.閉じる();
}

void 接続環境::動作環境定義読込(bool 全項目) {
    記録集合 rs;
    auto& e = 環境_;
    if (環境DB検索(rs, u"SELECT * FROM 動作環境定義"_qs + u" WHERE 動作環境定義ID = '001'"_qs)) {
        auto 文字 = [&](const char16_t* 名, const QString& 既定) {
            const QString 列名 = QString::fromUtf16(名);
            return rs.Null(列名) ? 既定 : rs.文字列(列名);
        };
        auto 整数 = [&](const char16_t* 名) { return rs.整数(QString::fromUtf16(名)); };
        e.運用事業所コード = 文字(u"運用事業所コード", u"000"_qs).left(3);
        e.インストール区分 = 整数(u"インストール区分");
        e.CL更新実行区分 = 整数(u"CL更新実行区分");
        if (全項目) {
            e.バックアップ日付 = 文字(u"バックアップ日付", {}).left(8);
            e.運用条件切替日付 = 文字(u"運用条件切替日付", {}).left(8);
            e.バックアップ方法 = 整数(u"バックアップ方法");
            e.バックアップ日指定 = 整数(u"バックアップ日指定");
            const char16_t* 曜日[] = {u"月曜バックアップ", u"火曜バックアップ", u"水曜バックアップ",
                                      u"木曜バックアップ", u"金曜バックアップ", u"土曜バックアップ",
                                      u"日曜バックアップ"};
            for (int i = 0; i < 7; ++i) e.曜日別バックアップ[i] = 整数(曜日[i]);
            e.バックアップ開始時刻 = 文字(u"バックアップ開始時刻", {});
            e.バックアップフォルダ = 文字(u"バックアップフォルダ", {});
            e.起動担当者コード = 文字(u"起動担当者コード", {});
        }
    }
    rs.閉じる();
}

void 接続環境::利用者別環境準備() {
    auto& e = 環境_;
    const QString 環境ファイル = 環境DBファイル名(e.環境DB種別);
    DIREXISTCHK(e.環境フォルダ + 環境ファイル, 基盤_);
    if (!ファイル有無確認(e.環境フォルダ + 環境ファイル)) {
        ファイル複写(e.共通環境フォルダ + 環境ファイル, e.環境フォルダ + 環境ファイル);
    }
    if (e.帳票DB種別 == 1) 帳票DB準備(u"/repdb.db"_qs, u"/repfrmdb.db"_qs, false);
    if (e.帳票DB種別 == 2) {
        帳票DB準備(u"/repdb.sqlite"_qs, u"/repfrmdb.sqlite"_qs, true);
        e.帳票DB種別 = 2;
    }
    if (!フォルダ有無確認(e.環境フォルダ) || !ファイル有無確認(e.環境フォルダ + 環境ファイル)) {
        エラー履歴書込(u"利用者別環境準備 User ConfF="_qs + e.環境フォルダ + u" User Report ="_qs +
                       e.帳票フォルダ);
    }
}

void 接続環境::帳票DB準備(const QString& 帳票名, const QString& 帳票書式名, bool 追加複写) {
    auto& e = 環境_;
    DIREXISTCHK(e.帳票フォルダ + 帳票名, 基盤_);
    if (ファイル有無確認(e.帳票フォルダ + 帳票名)) return;
    基盤_.お待ち表示(true);
    基盤_.保留イベント処理();
    ファイル複写(e.共通帳票フォルダ + 帳票名, e.帳票フォルダ + 帳票名);
    ファイル複写(e.共通帳票フォルダ + 帳票書式名, e.帳票フォルダ + 帳票書式名);
    if (追加複写) {
        ファイル複写(e.共通帳票フォルダ + u"/repfrmdb.db"_qs, e.帳票フォルダ + u"/repfrmdb.db"_qs);
    }
    // Access, where there is one, is told to trust the private folder. The layouts of this build
    // read the data tables of the copy beside them by its file name, so whatever the answer,
    // the copies stay as they were copied and no attached-table link is renewed.
    Access環境設定();
    基盤_.お待ち表示(false);
}

bool 接続環境::Access環境設定() {
    return Access環境(*端末レジストリ, 基盤_, 環境_.帳票フォルダ).Access環境設定();
}

bool 接続環境::DB_OPEN() {
    接続先 先;
    if (!業務DB接続先(環境_, 先)) {
        // Nothing is opened, yet the flag says open: the close at the end tries it anyway.
        業務DB接続中_ = true;
        return true;
    }
    if (!業務接続.開く(先)) {
        エラー履歴書込(u"DB_OPEN ERROR"_qs + 業務接続.最終エラー().番号 + u" "_qs +
                       業務接続.最終エラー().説明);
        return false;
    }
    業務DB接続中_ = true;
    return true;
}

bool 接続環境::DB_CLOSEOPEN() {
    if (環境DB接続中_) {
        環境接続.閉じる();
        環境DB接続中_ = false;
    }
    if (!環境DB接続中_) {
        環境DB接続中_ = 環境接続.開く(環境DB接続先(環境_.環境フォルダ));
    }
    return 環境DB接続中_;
}

void 接続環境::接続終了() {
    if (環境DB接続中_) 環境接続.閉じる();
    if (業務DB接続中_) 業務接続.閉じる();
}

bool 接続環境::記録付検索(データ接続* 接続, 記録集合& 結果, const QString& 文, bool 履歴,
                          int 行上限) {
    if (接続 == nullptr) {
        // A link routine before any slot was chosen: the caller sees a failed statement.
        結果.閉じる();
        エラー履歴書込(u"連携先が選ばれていません。"_qs + 文);
        return false;
    }
    if (!接続->検索(結果, 文, 行上限)) {
        エラー履歴書込(接続->最終エラー().説明 + 文);
        return false;
    }
    if (履歴) 出力履歴書込(文);
    return !結果.EOFか();
}

bool 接続環境::記録付実行(データ接続* 接続, const QString& 文, bool 履歴) {
    if (接続 == nullptr) {
        エラー履歴書込(u"連携先が選ばれていません。"_qs + 文);
        return false;
    }
    const bool 成功 = 接続->実行(文);
    実行の記録(成功, 接続->最終エラー(), 文, 履歴);
    return 成功;
}

void 接続環境::実行の記録(bool 成功, const 接続エラー& エラー, const QString& 文, bool 履歴) {
    if (!成功) {
        エラー履歴書込(エラー.説明 + 文);
    } else if (履歴) {
        出力履歴書込(文);
    }
}

bool 接続環境::業務DB検索(記録集合& 結果, const QString& 文, bool 履歴) {
    return 記録付検索(&業務接続, 結果, 文, 履歴);
}

bool 接続環境::業務DB逐次検索(const QString& 文, const データ接続::行受け& 受け) {
    if (業務接続.逐次検索(文, 受け)) return true;
    エラー履歴書込(業務接続.最終エラー().説明 + 文);
    return false;
}

bool 接続環境::一覧検索(記録集合& 結果, const QString& 文, int 行上限, bool 連携) {
    return 記録付検索(連携 ? 連携業務接続() : &業務接続, 結果, 文, false, 行上限);
}

bool 接続環境::業務DB実行(const QString& 文, bool 履歴) {
    return 記録付実行(&業務接続, 文, 履歴);
}

void 接続環境::業務DB後で実行(const QString& 文, std::function<void(bool 成功)> 受け, bool 履歴) {
    業務接続.後で実行(文, [this, 文, 履歴, 受け = std::move(受け)](bool 成功, const 接続エラー& e) {
        実行の記録(成功, e, 文, 履歴);
        受け(成功);
    });
}

void 接続環境::業務DB一括開始(const QString& 名) {
    一括名 = 名;
    一括前カウンタ = 稼動カウンタ_;
    if (!業務接続.一括開始()) {
        エラー履歴書込(業務接続.最終エラー().説明 + u"BEGIN "_qs + 名);
    }
}

bool 接続環境::業務DB一括終了() {
    if (業務接続.一括終了()) return true;
    // The rows the batch logged since it began stand in the history as done; this row says
    // from where on they were undone.
    const QString 以降 =
        QString::number(static_cast<qint64>(一括前カウンタ) + 1).rightJustified(12, u'0');
    エラー履歴書込(業務接続.最終エラー().説明 + u"COMMIT "_qs + 一括名 + u" proccounter "_qs +
                   以降 + u" 以降を取消"_qs);
    return false;
}

bool 接続環境::環境DB検索(記録集合& 結果, const QString& 文) {
    return 記録付検索(&環境接続, 結果, 文, false);
}

bool 接続環境::環境DB実行(const QString& 文) {
    return 記録付実行(&環境接続, 文, false);
}

bool 接続環境::環境DB実行記録付(const QString& 文) {
    if (!環境DB実行(文)) return false;
    出力履歴書込(文);
    return true;
}

void 接続環境::運用事業所変更(const QString& 事業所コード) {
    環境_.運用事業所コード = 事業所コード;
    環境DB実行記録付(u"UPDATE 動作環境定義 SET "_qs + u" 運用事業所コード = '"_qs + 事業所コード +
                     u"'"_qs + u" WHERE 動作環境定義ID = '001'"_qs);
}

bool 接続環境::条件項目名保存(const QString& 表名, const QString& プログラムID,
                              const QStringList& 項目名) {
    QString 文 = u"UPDATE "_qs + 表名 + u" SET "_qs;
    for (int i = 0; i < 26; ++i) {
        文 += u" 条件項目名"_qs + QChar(u'A' + i) + u" = '"_qs + 項目名.value(i) + u"'"_qs +
              (i < 25 ? u","_qs : QString());
    }
    文 += u" WHERE プログラムID = '"_qs + プログラムID + u"'"_qs;
    if (環境DB実行(文)) return true;
    基盤_.メッセージ(u"システムデータベースに問題があり登録できません"_qs);
    return false;
}
