#pragma once

#include <QString>
#include <utility>

class 記録集合;

// The operator of this workplace, read from M担当者 at every rights check. A right is held as
// text and reads the other way round: numeric value 0 (or empty) permits, anything else refuses.
struct 操作者情報 {
    QString 担当者コード;  // empty while nobody is confirmed
    QString 氏名;
    QString 事業所コード;
    QString 部門コード;
    QString セクションコード;
    QString 役職コード;
    short 社員区分 = 0;
    QString ログインID;      // read only by the PIN window
    short アクセス権限 = 0;  // held for the suite; no decision here rests on it
    QString 処理分類操作許可[10];
    QString 操作許可;  // run the program at all
    QString 入力許可;
    QString 修正許可;
    QString 削除許可;
    QString 印刷許可;
    QString プレビュ許可;
    QString テキスト出力許可;
    QString イメージ出力許可;

    // The right an operation kind tests, 0 操作許可 .. 7 イメージ出力許可; null outside 0..7.
    QString* 権限(short 操作区分);
};

// The eight rights by column name, in the order of the operation kinds.
inline constexpr std::pair<const char16_t*, QString 操作者情報::*> 操作区分別権限[8] = {
    {u"操作許可", &操作者情報::操作許可},
    {u"入力許可", &操作者情報::入力許可},
    {u"修正許可", &操作者情報::修正許可},
    {u"削除許可", &操作者情報::削除許可},
    {u"印刷許可", &操作者情報::印刷許可},
    {u"プレビュ許可", &操作者情報::プレビュ許可},
    {u"テキスト出力許可", &操作者情報::テキスト出力許可},
    {u"イメージ出力許可", &操作者情報::イメージ出力許可},
};

// "処理分類3操作許可" for class 3: the column of a processing class's right in M担当者.
QString 処理分類列名(int 分類);

// Copies the eight rights of a row, a Null as "" and so as permitted.
void 操作権限列読込(const 記録集合& rs, 操作者情報& 先);

// Whether a right's text permits: its numeric value is 0, as it is for an empty text.
bool 権限値許可(const QString& 値);

// The answer of 操作者環境::操作権限確認: -1 permitted; 0 (nobody confirmed) and 1 (confirmed by
// PIN, but refused) both refuse.
inline bool 操作権限OK(short 結果) {
    return 結果 == -1;
}
