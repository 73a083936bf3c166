#include "dataenv/付属書類.h"

#include <QDir>
#include <QFileInfo>

#include "dataenv/データ環境.h"
#include "dataenv/ファイル操作.h"
#include "text/プラットフォーム.h"
#include "text/数値変換.h"
#include "text/数値書式.h"
#include "text/項目編集.h"

namespace {

// The main window, held disabled while files are copied or deleted.
const QString 主画面 = u"frm紺碧帳"_qs;

QString 鍵条件(const QString& 情報名, const QString& 情報識別ID) {
    return u" WHERE 情報名 = '"_qs + 情報名 + u"'"_qs + u" AND 情報識別ID = '"_qs + 情報識別ID +
           u"'"_qs;
}

QString 文字列値(const QString& 値) {
    return u",'"_qs + 引用符だけ二重化(値) + u"'"_qs;
}

}  // namespace

QString 保存名(const QString& 情報名, const QString& 情報識別ID, const QString& SEQNo) {
    return 情報名 + u"_"_qs + 情報識別ID + u"_"_qs + SEQNo;
}

QString 付属書類複写先(const データ環境& e, const QString& 保存名, const QString& 名前) {
    return e.会社設定().会社().ドキュメントフォルダ + u"/"_qs + 保存名 + u"_"_qs + 名前;
}

QString 付属書類名前(const QString& 書類名) {
    return 書類名.mid(書類名.lastIndexOf(u'/') + 1);
}

bool 付属書類キー分解(const QString& Key, QString& 情報識別ID, QString& SEQNo) {
    if (Key.size() < 4) return false;
    情報識別ID = Key.mid(1, Key.size() - 4);
    SEQNo = Key.right(3);
    return true;
}

bool 付属書類追加(データ環境& e, const QString& 情報名, const QString& 情報識別ID,
                  const QString& パス, const QString& タイトル, const 付属書類項目& 項目) {
    QString SEQNo = u"001"_qs;
    記録集合 rs;
    if (e.接続().業務DB検索(rs, u"SELECT SEQNo FROM M付属書類"_qs + 鍵条件(情報名, 情報識別ID) +
                                    u" ORDER BY SEQNo DESC"_qs)) {
        SEQNo = 書式(static_cast<qint64>(数値変換(rs.文字列(u"SEQNo"_qs))) + 1, 数値書式::三桁);
    }
    rs.閉じる();

    const 付属書類項目& v = 項目;
    const QString 文 =
        u"INSERT INTO M付属書類 "_qs + u"(情報名"_qs +
        u",情報識別ID,SEQNo,書類名,タイトル,伝票番号ID,伝票事業所コード,伝票番号基準日付,伝票No"_qs
        u",伝票日付,対応先コード,得意先コード,納品先コード,仕入先コード,銀行コード,科目コード"_qs
        u",社員コード,担当者コード,部門コード,セクションコード,商品コード,メーカコード,対象金額"_qs
        u",ユーザID,登録日付)"_qs +
        u" VALUES "_qs + u"('"_qs + 情報名 + u"'"_qs + 文字列値(情報識別ID) + 文字列値(SEQNo) +
        文字列値(パス) + 文字列値(タイトル) + 文字列値(v.伝票番号ID) +
        文字列値(v.伝票事業所コード) + 文字列値(v.伝票番号基準日付) + 文字列値(v.伝票No) +
        文字列値(v.伝票日付) + 文字列値(v.対応先コード) + 文字列値(v.得意先コード) +
        文字列値(v.納品先コード) + 文字列値(v.仕入先コード) + 文字列値(v.銀行コード) +
        文字列値(v.科目コード) + 文字列値(v.社員コード) + 文字列値(v.担当者コード) +
        文字列値(v.部門コード) + 文字列値(v.セクションコード) + 文字列値(v.商品コード) +
        文字列値(v.メーカコード) + u","_qs + 書式(v.対象金額, 数値書式::付属書類金額) +
        文字列値(記録者ID(e.接続().環境())) + u",'"_qs +
        e.基盤().現在時刻().toString(u"yyyyMMdd HHmmss"_qs) + u"')"_qs;
    const bool 成功 = e.接続().業務DB実行(文, false);
    // Only a path is copied; the name is read from the disk, so a vanished file copies nothing.
    if (成功 && パス.trimmed().contains(u'/')) {
        const QFileInfo 情報(パス);
        if (情報.exists()) 付属書類複写(e, パス, 保存名(情報名, 情報識別ID, SEQNo));
    }
    return 成功;
}

bool 付属書類削除(データ環境& e, const QString& 情報名, const QString& 情報識別ID,
                  const QString& SEQNo) {
    return e.接続().業務DB実行(u"DELETE FROM M付属書類"_qs + 鍵条件(情報名, 情報識別ID) +
                               u" AND SEQNo = '"_qs + SEQNo + u"'"_qs);
}

void 付属書類複写(データ環境& e, const QString& パス, const QString& 保存名) {
    e.基盤().画面使用可否(主画面, false);
    const QFileInfo 情報(パス);
    if (!情報.isDir()) {
        if (情報.isFile()) ファイル複写(パス, 付属書類複写先(e, 保存名, 情報.fileName()));
    } else {
        e.基盤().お待ち表示(true);
        e.基盤().保留イベント処理();
        フォルダ複写(パス, 付属書類複写先(e, 保存名, 情報.fileName()));
        e.基盤().お待ち表示(false);
    }
    e.基盤().画面使用可否(主画面, true);
}

void 付属書類実体削除(データ環境& e, const QString& 名前, const QString& 保存名) {
    e.基盤().画面使用可否(主画面, false);
    e.基盤().保留イベント処理();
    const QString 先 = 付属書類複写先(e, 保存名, 名前);
    if (フォルダ有無確認(先)) {
        e.基盤().お待ち表示(true);
        フォルダ削除(先);
        e.基盤().お待ち表示(false);
    } else {
        // The copy and anything that begins with its name, as the suite's pattern "name*.*";
        // compared as text, so that brackets and stars in a name stand for themselves.
        const QFileInfo 情報(先);
        QDir フォルダ(情報.absolutePath());
        QStringList 該当;
        for (const QString& f : フォルダ.entryList(QDir::Files | QDir::Hidden)) {
            if (f.startsWith(情報.fileName())) 該当.append(f);
        }
        for (const QString& f : 該当) フォルダ.remove(f);
    }
    e.基盤().画面使用可否(主画面, true);
}

bool 付属書類表示(データ環境& e, const QString& 名前, const QString& 保存名) {
    return ファイル実行(付属書類複写先(e, 保存名, 名前), e.基盤());
}

QList<付属書類行> 付属書類一覧(データ環境& e, const QString& 情報名, const QString& 情報識別ID) {
    QList<付属書類行> 一覧;
    記録集合 rs;
    if (e.接続().業務DB検索(rs, u"SELECT *"_qs + u" FROM M付属書類"_qs +
                                    鍵条件(情報名, 情報識別ID) + u" ORDER BY SEQNo"_qs)) {
        for (; !rs.EOFか(); rs.MoveNext()) {
            付属書類行 行;
            const QString SEQNo = rs.文字列(u"SEQNo"_qs);
            行.Key = u"C"_qs + 情報識別ID + SEQNo;
            行.タイトル = rs.文字列(u"タイトル"_qs);
            行.書類名 = rs.文字列(u"書類名"_qs);
            const QFileInfo 写し(
                付属書類複写先(e, 保存名(情報名, 情報識別ID, SEQNo), 付属書類名前(行.書類名)));
            // A copy that is gone leaves both texts empty.
            if (写し.isDir()) {
                行.サイズ = u"フォルダ"_qs;
            } else if (写し.isFile()) {
                行.サイズ = 書式(static_cast<double>(写し.size()) / 1024.0, 数値書式::キロバイト) +
                            u"KB"_qs;
            }
            if (写し.exists()) {
                行.更新日付 = 写し.lastModified().toString(u"yyyy/MM/dd HH:mm:ss"_qs).left(10);
            }
            一覧.append(行);
        }
    }
    rs.閉じる();
    return 一覧;
}

bool 付属書類有無(データ環境& e, const QString& 情報名, const QString& 情報識別ID) {
    記録集合 rs;
    const bool ある =
        e.接続().業務DB検索(rs, u"SELECT SEQNo FROM M付属書類"_qs + 鍵条件(情報名, 情報識別ID));
    rs.閉じる();
    return ある;
}
