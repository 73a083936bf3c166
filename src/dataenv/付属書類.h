#pragma once

#include <QList>
#include <QString>

#include "text/金額.h"

class データ環境;

// The columns of an M付属書類 row that the caller may fill besides its key, path and title;
// those left out are written as "" and 0.
struct 付属書類項目 {
    QString 伝票番号ID, 伝票事業所コード, 伝票番号基準日付, 伝票No, 伝票日付;
    QString 対応先コード, 得意先コード, 納品先コード, 仕入先コード, 銀行コード, 科目コード;
    QString 社員コード, 担当者コード, 部門コード, セクションコード, 商品コード, メーカコード;
    金額 対象金額;
};

// One attached document as its list shows it: the row and what its copy is on disk now.
struct 付属書類行 {
    QString Key;  // "C" + 情報識別ID + SEQNo
    QString タイトル;
    QString 書類名;  // full path of the file or folder that was attached
    QString サイズ;  // "12KB", "フォルダ", or empty when the copy is gone
    QString 更新日付;
};

// The prefix of a document's copy: the key of its row, which is all that ties the two.
QString 保存名(const QString& 情報名, const QString& 情報識別ID, const QString& SEQNo);
// The copy of a file or folder of that name (with its extension) in the document folder.
QString 付属書類複写先(const データ環境& e, const QString& 保存名, const QString& 名前);
// The name with extension of an attached path: the text after its last separator.
QString 付属書類名前(const QString& 書類名);
// "C" + 情報識別ID + SEQNo split back: false for a key too short to hold both.
bool 付属書類キー分解(const QString& Key, QString& 情報識別ID, QString& SEQNo);

// Inserts the next row of the record and copies the file or folder into the document folder.
// A failed insert copies nothing; a failed copy leaves the row, which then lists without size.
bool 付属書類追加(データ環境& e, const QString& 情報名, const QString& 情報識別ID,
                  const QString& パス, const QString& タイトル, const 付属書類項目& 項目 = {});
bool 付属書類削除(データ環境& e, const QString& 情報名, const QString& 情報識別ID,
                  const QString& SEQNo);
void 付属書類複写(データ環境& e, const QString& パス, const QString& 保存名);
// Deletes the copy of the named file or folder; the row is the caller's.
void 付属書類実体削除(データ環境& e, const QString& 名前, const QString& 保存名);
// Opens the copy with the desktop's program for it; a missing copy fails silently.
bool 付属書類表示(データ環境& e, const QString& 名前, const QString& 保存名);

// The record's documents in SEQNo order, with the size and date of each copy.
QList<付属書類行> 付属書類一覧(データ環境& e, const QString& 情報名, const QString& 情報識別ID);
// Whether the record has any document at all.
bool 付属書類有無(データ環境& e, const QString& 情報名, const QString& 情報識別ID);
