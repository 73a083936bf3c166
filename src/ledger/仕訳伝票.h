#pragma once

#include <QList>
#include <QString>
#include <functional>

#include "text/金額.h"

class データ環境;
struct 出力指定;

// One slip line as the export writes it: the stored line, its ledger account, and the payee's
// registration on the slip date.
struct 仕訳行 {
    QString 出金行No;
    QString 費目区分;
    QString 費目区分名称;
    short 内税外税区分 = 0;
    金額 消費税率;
    金額 出金金額;
    金額 出金消費税;
    金額 実質出金金額;
    QString 支払先;
    QString 課税事業所区分;
    QString 摘要;
    QString 勘定科目;
    QString 補助科目;
    QString 登録番号;  // empty: no valid registration on the slip date
    int 控除割合 = 100;
    QString 税区分;  // the 弥生 tax category
};

struct 仕訳伝票 {
    QString 事業所コード;
    QString 番号基準日付;
    QString 出金No;
    QString 出金日付;
    QString 担当者コード;
    QString 部門コード;
    QString 部門名;
    金額 実質出金金額合計;
    QList<仕訳行> 行;

    // "000-20260331-00000001", the slip as refusals and the journal memo name it.
    QString 名前() const {
        // Made in one piece: the export asks for it once for every slip.
        QString 名;
        名.reserve(事業所コード.size() + 番号基準日付.size() + 出金No.size() + 2);
        名.append(事業所コード).append(u'-').append(番号基準日付).append(u'-').append(出金No);
        return 名;
    }
};

// Hands the slips of the period with their lines, in date and number order, one at a time to
// 受取, which may stop the read by answering False with its refusal. False with the refusal in
// Japanese: a failed read, an expense class without an account (all of them named, the read
// going on to find them while nothing more is handed over), a line whose tax category the table
// lacks.
using 伝票受取 = std::function<bool(const 仕訳伝票& 伝票, QString& エラー)>;
bool 仕訳伝票読込(データ環境& 環境, const 出力指定& 指定, const 伝票受取& 受取, QString& エラー);
// How many slips the period holds, for a progress to count against; 0 when the count fails.
int 仕訳伝票数(データ環境& 環境, const 出力指定& 指定);
