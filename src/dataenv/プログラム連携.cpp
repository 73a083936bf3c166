#include "dataenv/接続環境.h"
#include "dataenv/操作者環境.h"
#include "dataenv/起動連携環境.h"
#include "text/プラットフォーム.h"

// The started side of the handshake between the suite's programs. The statements carry the
// values as they stand: the asker makes the command line text, and it holds no quote.

起動連携環境::起動連携環境(接続環境& 接続_, 操作者環境& 操作者_) : 接続(接続_), 操作者(操作者_) {}

void 起動連携環境::他プログラム連携受信(const QString& 起動連携情報_, const QString& 最早日時) {
    連携要求受信(false, 起動連携情報_, 最早日時);
}

void 起動連携環境::他プログラム連携発信(const QString& 終了連携情報) {
    操作者.操作者読込();
    終了時連携情報_ = 終了連携情報;
    連携応答発信(false, 受信起動連携情報_, 終了連携情報);
}

void 起動連携環境::人事側連携受信(const QString& 起動連携情報_, const QString& 最早日時) {
    連携要求受信(true, 起動連携情報_, 最早日時);
}

void 起動連携環境::人事側連携発信(const QString& 起動連携情報_, const QString& 終了連携情報) {
    連携応答発信(true, 起動連携情報_, 終了連携情報);
}

void 起動連携環境::連携要求受信(bool 人事側, const QString& 起動連携情報_,
                                const QString& 最早日時) {
    // A request of the HR side is taken out all the same, but this program never answers
    // there, so it leaves the run unlinked and no answer row is owed anywhere.
    if (!人事側) 発信元プログラムID_.clear();
    記録集合 rs;
    const QString 文 = u"SELECT * FROM プログラム連携情報"_qs + u" WHERE 発信日時 >= '"_qs +
                       最早日時 + u"'"_qs + u" AND 受信プログラムID = '"_qs + u"紺碧帳"_qs +
                       u"'"_qs + u" AND 起動連携情報 = '"_qs + 起動連携情報_ + u"'"_qs +
                       u" AND 連携区分 = '00'"_qs;
    const bool あり = 人事側 ? 接続.連携環境DB検索(rs, 文) : 接続.環境DB検索(rs, 文);
    if (!あり) {
        rs.閉じる();
        return;
    }
    if (!人事側) {
        発信元プログラムID_ = rs.文字列(u"発信プログラムID"_qs);
        受信起動連携情報_ = rs.文字列(u"起動連携情報"_qs);
    }
    const QString 削除 = u"DELETE FROM プログラム連携情報"_qs + u" WHERE 発信日時 = '"_qs +
                         rs.文字列(u"発信日時"_qs) + u"'"_qs + u" AND 発信プログラムID = '"_qs +
                         rs.文字列(u"発信プログラムID"_qs) + u"'"_qs +
                         u" AND 受信プログラムID = '"_qs + rs.文字列(u"受信プログラムID"_qs) +
                         u"'"_qs + u" AND 連携区分 = '00'"_qs;
    // The read is finished before the delete, so that no engine holds the row under a cursor.
    rs.閉じる();
    人事側 ? 接続.連携環境DB実行(削除) : 接続.環境DB実行(削除);
}

void 起動連携環境::連携応答発信(bool 人事側, const QString& 起動連携情報_,
                                const QString& 終了連携情報) {
    const プログラム環境情報& 環境 = 接続.環境();
    // One instant for the sending time and the deadline.
    const QString T = u"'"_qs + 接続.基盤().現在時刻().toString(u"yyyyMMdd HHmmss"_qs) + u"'"_qs;
    const QString 文 =
        u"INSERT INTO プログラム連携情報 ("_qs + u"発信日時,"_qs + u"発信プログラムID,"_qs +
        u"受信プログラムID,"_qs + u"受信期限,"_qs + u"連携区分,"_qs + u"起動連携情報,"_qs +
        u"終了連携情報,"_qs + u"運用事業所コード,"_qs + u"起動担当者コード,"_qs + u"ユーザID)"_qs +
        u"VALUES ("_qs + T + u", '"_qs + 発信元プログラムID_ + u"', '"_qs + u"紺碧帳"_qs +
        u"', "_qs + T + u", '"_qs + u"99"_qs + u"', '"_qs + 起動連携情報_ + u"', '"_qs +
        終了連携情報 + u"', '"_qs + 環境.運用事業所コード + u"', '"_qs +
        操作者.操作者().担当者コード + u"', '"_qs + 環境.ユーザID + u"')"_qs;
    if (!人事側) {
        // A failed insert is in the run history by now; the reopen follows all the same.
        接続.環境DB実行(文);
        接続.DB_CLOSEOPEN();
        return;
    }
    if (接続.連携先() == nullptr) return;
    接続.連携環境DB実行(文);
    接続.連携環境DB再接続();
}
