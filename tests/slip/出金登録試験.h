#pragma once

#include <algorithm>

#include "common/出金入力.h"
#include "rules/未集計情報.h"
#include "出金試験.h"

// A slip typed through the session's routines and stored, on both engines.
class 出金登録試験 : public 出金試験 {
  protected:
    // Staff 00003 (department and section 001) with a remark on each line, a memo, and two
    // lines: an exclusive 1000 with payee and an inclusive 2200.
    void 二行の伝票を打つ() {
        ASSERT_TRUE(担当者入力(s, u"00003"_qs));
        s.見出し.出金伝票備考A = u"備考一"_qs;
        s.見出し.出金伝票備考B = u"備考二"_qs;
        s.見出し.出金メモ = u"メモ"_qs;
        ASSERT_TRUE(明細入力(s, 3, 金額::円(1000), u"文具店"_qs, u"ボールペン"_qs));
        ASSERT_TRUE(明細入力(s, 1, 金額::円(2200), {}, u"電車"_qs));
    }

    QString 利用者() const { return 記録者ID(s.データ.接続().環境()); }

    // The typed header as T出金 holds it, by its nine totals.
    QString 打った見出し(const QString& 合計, const QString& 登録日付,
                         const QString& 更新日付) const {
        return u"000|20260331|00000001|20251120|00003|001|001||||備考一|備考二|"_qs + 合計 +
               u"|0|メモ||||"_qs + 利用者() + u"|"_qs + 登録日付 + u"|"_qs + 更新日付;
    }

    // The two typed lines as T出金明細 holds them, by the amounts of the first line.
    QStringList 二行の明細(const QString& 一行目の額, const QString& 登録日付,
                           const QString& 更新日付) const {
        const QString 後 =
            u"|20251130|||||"_qs + 利用者() + u"|"_qs + 登録日付 + u"|"_qs + 更新日付;
        return {
            u"000|20260331|00000001|001|001|20251120|00003|001|001|03|1|文具店|1|ボールペン|10|"_qs +
                一行目の額 + 後,
            u"000|20260331|00000001|002|002|20251120|00003|001|001|01|2||0|電車|10|2200|200|2200|2000|2200"_qs +
                後};
    }

    // Run history rows of one kind ("エラー ", "出力終了 "), their text after the kind.
    QStringList 履歴行(const QString& 種類) {
        QStringList r;
        for (const auto& 行 : 履歴()) {
            const QString 摘要 = 行.at(1).toString();
            if (摘要.startsWith(種類)) r.append(摘要.mid(種類.size()));
        }
        return r;
    }

    // The last statements logged as run, oldest first; fewer when fewer were.
    QStringList 最後の出力(qsizetype 件数) {
        const QStringList 出力 = 履歴行(u"出力終了 "_qs);
        return 出力.mid(std::max<qsizetype>(0, 出力.size() - 件数));
    }
    // The logged statement of the deletion of the stored header 00000001.
    static QString 見出し削除文() {
        return u"DELETE FROM T出金 WHERE 事業所コード = ''000'' AND 番号基準日付 = ''20260331'' AND 出金No = ''00000001''"_qs;
    }

    // The queue in the order it was written.
    QStringList 未集計行() {
        return 表の行(u"SELECT * FROM 未集計情報 ORDER BY "_qs +
                      (GetParam() ? u"ctid"_qs : u"rowid"_qs));
    }
    QString 番号情報(const QString& 期日) {
        const QStringList r = 表の行(
            u"SELECT 連番, 履歴連番 FROM A期日別番号情報 WHERE 番号ID = '16810' AND 期日 = '"_qs +
            期日 + u"'"_qs);
        return r.value(0);
    }
    // A schedule row as the sales activity program writes it, pointing at a slip of office 000
    // by base date and number, or at none when both are empty.
    void 日程を書く(const QString& 日付, const QString& 開始時刻, const QString& 終了時刻,
                    const QString& 基準日付, const QString& No) {
        auto 値 = [](QString v) { return u"'"_qs + v.replace(u"'"_qs, u"''"_qs) + u"'"_qs; };
        const QString 事業所 = No.isEmpty() ? QString() : u"000"_qs;
        ASSERT_TRUE(木->業務DB実行(
            u"INSERT INTO T営業活動明細 (担当者コード, 日付, 開始時刻, 終了時刻, 件名, 内容, 出金事業所コード, 出金番号基準日付, 出金No, ユーザID, 登録日付, 更新日付) VALUES ('00003', "_qs +
            値(日付) + u", "_qs + 値(開始時刻) + u", "_qs + 値(終了時刻) +
            u", '訪問', '打合せ', "_qs + 値(事業所) + u", "_qs + 値(基準日付) + u", "_qs + 値(No) +
            u", 'sales', '20251119 090000', '')"_qs));
    }
    // The schedule rows written above, or with 見本も those of the sample company too, with
    // their links; a link never set reads "-".
    QStringList 日程行(bool 見本も = false) {
        return 表の行(
            u"SELECT 担当者コード, 日付, 開始時刻, COALESCE(出金事業所コード, '-'), COALESCE(出金番号基準日付, '-'), COALESCE(出金No, '-') FROM T営業活動明細"_qs +
            (見本も ? QString() : u" WHERE ユーザID = 'sales'"_qs) +
            u" ORDER BY 担当者コード, 日付, 開始時刻"_qs);
    }
    QStringList 見出し行() {
        return 表の行(u"SELECT * FROM T出金 ORDER BY 番号基準日付, 出金No"_qs);
    }
    QStringList 明細行() {
        return 表の行(u"SELECT * FROM T出金明細 ORDER BY 番号基準日付, 出金No, 出金行No"_qs);
    }
    QStringList 履歴見出し行() {
        return 表の行(u"SELECT * FROM R出金 ORDER BY 番号基準日付, 出金履歴No"_qs);
    }
    QStringList 履歴明細行() {
        return 表の行(
            u"SELECT * FROM R出金明細 ORDER BY 出金履歴No, 番号基準日付, 出金固有行No"_qs);
    }
};
