#include <QHash>

#include "rules/未集計情報.h"
#include "rules/番号設定.h"
#include "slip/出金セッション.h"
#include "text/プラットフォーム.h"
#include "text/数値書式.h"
#include "text/項目編集.h"

namespace {

using 値表 = QHash<QString, QString>;  // column name to its literal in the statement

const QString 登録失敗文言 = u"登録済です。登録できませんでした。"_qs;
const QString 削除失敗文言 = u"既に削除されています。削除できませんでした。"_qs;

// Column lists in the order of their inserts.
const QStringList T出金列 = {u"事業所コード"_qs,
                             u"番号基準日付"_qs,
                             u"出金No"_qs,
                             u"出金日付"_qs,
                             u"担当者コード"_qs,
                             u"部門コード"_qs,
                             u"セクションコード"_qs,
                             u"出張申請事業所コード"_qs,
                             u"出張申請番号基準日付"_qs,
                             u"出張申請No"_qs,
                             u"出金伝票備考A"_qs,
                             u"出金伝票備考B"_qs,
                             u"出金金額合計"_qs,
                             u"出金消費税合計"_qs,
                             u"実質出金金額合計"_qs,
                             u"税抜出金金額合計"_qs,
                             u"税込出金金額合計"_qs,
                             u"前回税率出金金額合計"_qs,
                             u"前回税率出金消費税合計"_qs,
                             u"今回税率出金金額合計"_qs,
                             u"今回税率出金消費税合計"_qs,
                             u"伝票発行区分"_qs,
                             u"出金メモ"_qs,
                             u"承認日付"_qs,
                             u"承認者コード"_qs,
                             u"ユーザID"_qs,
                             u"登録日付"_qs,
                             u"更新日付"_qs};
const QStringList T出金明細列 = {
    u"事業所コード"_qs,     u"番号基準日付"_qs, u"出金No"_qs,       u"出金固有行No"_qs,
    u"出金行No"_qs,         u"出金日付"_qs,     u"担当者コード"_qs, u"部門コード"_qs,
    u"セクションコード"_qs, u"費目区分"_qs,     u"内税外税区分"_qs, u"支払先"_qs,
    u"課税事業所区分"_qs,   u"摘要"_qs,         u"消費税率"_qs,     u"出金金額"_qs,
    u"出金消費税"_qs,       u"実質出金金額"_qs, u"税抜出金金額"_qs, u"税込出金金額"_qs,
    u"会計集計日付"_qs,     u"明細メモ"_qs,     u"承認日付"_qs,     u"承認者コード"_qs,
    u"ユーザID"_qs,         u"登録日付"_qs,     u"更新日付"_qs};
// The totals of the header and the five amounts of a line.
const QStringList 金額の列 = T出金列.mid(12, 9) + T出金明細列.mid(15, 5);
const QStringList 自由文列 = {u"出金伝票備考A"_qs, u"出金伝票備考B"_qs, u"出金メモ"_qs,
                              u"支払先"_qs,        u"摘要"_qs,          u"明細メモ"_qs};
const QString 税率列 = u"消費税率"_qs;

QStringList 入れる(QStringList 列, const QString& 後, const QString& 前) {
    列.insert(列.indexOf(前), 後);
    return 列;
}
QStringList 除く(QStringList 列, const QString& 名) {
    列.removeAll(名);
    return 列;
}
// The history tables: the slip's columns with the history number and the red-black class
// behind the base date.
QStringList 履歴列(const QStringList& 列) {
    return 入れる(入れる(列, u"出金履歴No"_qs, 列.at(2)), u"赤黒区分"_qs, 列.at(2));
}
const QStringList R出金列 = 入れる(履歴列(T出金列), u"承認区分"_qs, u"ユーザID"_qs);
const QStringList R出金明細列 = 履歴列(T出金明細列);
// The new-state writer of the history lines names 会計集計日付 before the two amounts while its
// values carry it behind them, so those rows hold the amounts and the date one column off;
// the suite's other programs read the rows as they are written, so this stays.
const QStringList R出金明細新列 =
    入れる(除く(R出金明細列, u"会計集計日付"_qs), u"会計集計日付"_qs, u"税抜出金金額"_qs);
// The new-state writer of the history header names 承認区分 without giving it a value, so the
// values from ユーザID on stand one place forward and every engine refuses the row.
const QStringList R出金新値順 = 除く(R出金列, u"承認区分"_qs);

QString 引用(const QString& 値) {
    return u"'"_qs + 値 + u"'"_qs;
}
QString 額(const 金額& 値) {
    return 書式(値, 数値書式::金額列);
}

QString 挿入文(const QString& 表, const QStringList& 列, const QStringList& 値順, const 値表& 値) {
    QStringList 値列;
    for (const QString& c : 値順) 値列.append(値.value(c));
    return u"INSERT INTO ["_qs + 表 + u"] ("_qs + 列.join(u',') + u") VALUES ("_qs +
           値列.join(u',') + u")"_qs;
}

// An old state: every column from its stored row, the given ones excepted. Free text is
// doubled only where asked: the line writer puts it in as stored.
値表 記録の値(const 記録集合& rs, const QStringList& 列, bool 自由文を二重化,
              const 値表& 与える値) {
    値表 値 = 与える値;
    for (const QString& c : 列) {
        if (値.contains(c)) continue;
        if (金額の列.contains(c)) {
            値[c] = 額(rs.金額値(c));
        } else if (c == 税率列) {
            値[c] = 書式(rs.金額値(c), 数値書式::税率列);
        } else if (自由文を二重化 && 自由文列.contains(c)) {
            値[c] = 引用(引用符二重化(rs.文字列(c)));
        } else {
            値[c] = 引用(rs.文字列(c));
        }
    }
    return 値;
}

// What every new-state row takes from the header: key, history number, date, staff, user.
値表 新状態の値(const 出金見出し& h, const QString& 利用者) {
    return {
        {u"事業所コード"_qs, 引用(h.事業所コード)},
        {u"番号基準日付"_qs, 引用(h.番号基準日付)},
        {u"出金履歴No"_qs, 引用(h.出金履歴No)},
        {u"赤黒区分"_qs, 引用(u"1"_qs)},
        {u"出金No"_qs, 引用(h.出金No)},
        {u"出金日付"_qs, 引用(h.出金日付)},
        {u"担当者コード"_qs, 引用(h.担当者コード)},
        {u"部門コード"_qs, 引用(h.部門コード)},
        {u"セクションコード"_qs, 引用(h.セクションコード)},
        {u"ユーザID"_qs, 引用(利用者)},
    };
}

}  // namespace

void 出金セッション::挿入結果(bool 成功) {
    処理結果区分 = 成功 ? 1 : 3;
    処理結果メッセージ = 成功 ? QString() : 登録失敗文言;
}

void 出金セッション::削除結果(bool 成功) {
    処理結果区分 = 成功 ? 7 : 6;
    処理結果メッセージ = 成功 ? QString() : 削除失敗文言;
}

// The writes of a store take their answers as they come; the last one decides the result, as
// when each waited for its own.
void 出金セッション::挿入を送る(const QString& 文, bool 履歴) {
    データ.接続().業務DB後で実行(
        文, [this](bool 成功) { 挿入結果(成功); }, 履歴);
}

void 出金セッション::削除を送る(const QString& 文, bool 履歴) {
    データ.接続().業務DB後で実行(
        文, [this](bool 成功) { 削除結果(成功); }, 履歴);
}

bool 出金セッション::行あり(const QString& 文) {
    記録集合 rs;
    const bool あり = データ.接続().業務DB検索(rs, 文);
    rs.閉じる();
    return あり;
}

// A store reaches other users whole, and its number take stays locked until then, so two
// users storing at once cannot both find the same number unused.
bool 出金セッション::新規登録処理() {
    const 保存前控え 控え = 控えを取る();
    業務DB一括 一括(データ.接続(), u"新規登録処理"_qs);
    見出し.出金履歴No.clear();
    見出し.旧出金履歴No.clear();
    見出し.処理区分 = u"0"_qs;
    if (!番号採番確認()) return false;
    出金情報書込();
    出金明細情報書込();
    後処理();
    return 確定を確かめる(控え);
}

void 出金セッション::修正登録処理() {
    const 保存前控え 控え = 控えを取る();
    業務DB一括 一括(データ.接続(), u"修正登録処理"_qs);
    見出し.出金履歴No.clear();
    見出し.旧出金履歴No.clear();
    見出し.処理区分 = u"1"_qs;
    if (見出し.保持番号基準日付 == 見出し.番号基準日付) {
        出金履歴書込();
        出金明細履歴書込();
        出金情報書込();
        出金明細情報書込();
        後処理();
        確定を確かめる(控え);
        return;
    }
    // The slip moves to another sequence: the new one stands before the old one goes.
    if (!番号採番確認()) return;
    出金情報書込();
    出金明細情報書込();
    出金履歴書込();
    出金明細履歴書込();
    後処理();
    if (確定を確かめる(控え)) 日程連携書換();
}

出金セッション::保存前控え 出金セッション::控えを取る() {
    保存未確定 = false;
    return {見出し, 行};
}

bool 出金セッション::確定を確かめる(const 保存前控え& 控え) {
    if (!保存未確定) return true;
    // Nothing of the batch stands: the slip goes back to what was typed, to be stored again.
    見出し = 控え.見出し;
    行 = 控え.行;
    return false;
}

bool 出金セッション::番号採番確認() {
    auto& h = 見出し;
    const QString 番号ID = 番号定数::出金番号ID.toString();
    if (!次番号参照(データ, 番号ID, h.番号基準日付, h.事業所コード).isEmpty()) {
        // Another user may store between the take and the look: take again until unused.
        h.出金No = 未使用番号採番(
            [&] { return 次番号採番(データ, 番号ID, h.番号基準日付, h.事業所コード); },
            [&](const QString& No) {
                return 行あり(u"SELECT TOP 1 出金No FROM T出金"_qs +
                              h.鍵().番号替え(No).条件(鍵の列::T出金));
            });
        return true;
    }
    // A number typed by hand is refused when it is stored already.
    if (行あり(u"SELECT  TOP 1 出金No FROM T出金"_qs + h.鍵().条件(鍵の列::T出金))) {
        処理結果区分 = 3;
        処理結果メッセージ = 登録失敗文言;
        return false;
    }
    return true;
}

QString 出金セッション::出金履歴No採番() {
    const auto& h = 見出し;
    const QString 番号ID = 番号定数::出金番号ID.toString();
    return 未使用番号採番(
        [&] { return 次履歴番号採番(データ, 番号ID, h.番号基準日付, h.事業所コード); },
        [&](const QString& No) {
            return 行あり(u"SELECT TOP 1 出金No FROM R出金"_qs +
                          h.鍵().番号替え(No).条件(鍵の列::R出金履歴));
        });
}

void 出金セッション::出金情報書込() {
    auto& h = 見出し;
    h.出金履歴No = 出金履歴No採番();
    h.登録日付 = データ.基盤().現在時刻().toString(u"yyyyMMdd HHmmss"_qs);
    値表 値 = 新状態の値(h, 記録者ID(データ.接続().環境()));
    値.insert(値表{
        {u"出張申請事業所コード"_qs, 引用(h.出張申請事業所コード)},
        {u"出張申請番号基準日付"_qs, 引用(h.出張申請番号基準日付)},
        {u"出張申請No"_qs, 引用(h.出張申請No)},
        {u"出金伝票備考A"_qs, 引用(引用符二重化(h.出金伝票備考A))},
        {u"出金伝票備考B"_qs, 引用(引用符二重化(h.出金伝票備考B))},
        {u"出金金額合計"_qs, 額(合計.出金金額合計)},
        {u"出金消費税合計"_qs, 額(合計.出金消費税合計)},
        {u"実質出金金額合計"_qs, 額(合計.実質出金金額合計)},
        {u"税抜出金金額合計"_qs, 額(合計.税抜出金金額合計)},
        {u"税込出金金額合計"_qs, 額(合計.税込出金金額合計)},
        {u"前回税率出金金額合計"_qs, 額(合計.前回税率出金金額合計)},
        {u"前回税率出金消費税合計"_qs, 額(合計.前回税率出金消費税合計)},
        {u"今回税率出金金額合計"_qs, 額(合計.今回税率出金金額合計)},
        {u"今回税率出金消費税合計"_qs, 額(合計.今回税率出金消費税合計)},
        {u"伝票発行区分"_qs, 引用(書式(h.伝票発行区分, u"0"))},
        {u"出金メモ"_qs, 引用(引用符二重化(h.出金メモ))},
        {u"承認日付"_qs, 引用(h.承認日付)},
        {u"承認者コード"_qs, 引用(h.承認者コード)},
        {u"登録日付"_qs, 引用(h.登録日付)},
        {u"更新日付"_qs, 引用(h.更新日付)},
    });
    挿入を送る(挿入文(u"T出金"_qs, T出金列, T出金列, 値), true);
    挿入を送る(挿入文(u"R出金"_qs, R出金列, R出金新値順, 値));
}

void 出金セッション::出金明細情報書込() {
    auto& h = 見出し;
    const QString 利用者 = 記録者ID(データ.接続().環境());
    for (int i = 0; i <= 最終行; ++i) {
        出金行& r = 行[i];
        r.登録日付 = データ.基盤().現在時刻().toString(u"yyyyMMdd HHmmss"_qs);
        // A line keeps its identity across corrections; a new one gets the next free number.
        if (数値変換(r.出金固有行No) == 0) {
            ++h.最大固有行No;
            r.出金固有行No = 書式(h.最大固有行No, 数値書式::三桁);
        }
        r.出金行No = 書式(i + 1, 数値書式::三桁);
        値表 値 = 新状態の値(h, 利用者);
        値.insert(値表{
            {u"出金固有行No"_qs, 引用(r.出金固有行No)},
            {u"出金行No"_qs, 引用(r.出金行No)},
            {u"費目区分"_qs, 引用(書式(r.費目区分, u"00"))},
            {u"内税外税区分"_qs, 引用(書式(r.内税外税区分, u"0"))},
            {u"支払先"_qs, 引用(引用符二重化(r.支払先))},
            {u"課税事業所区分"_qs, 引用(書式(r.課税事業所区分, u"0"))},
            {u"摘要"_qs, 引用(引用符二重化(r.摘要))},
            {u"消費税率"_qs, 書式(r.消費税率, 数値書式::税率列)},
            {u"出金金額"_qs, 額(r.出金金額)},
            {u"出金消費税"_qs, 額(r.出金消費税)},
            {u"実質出金金額"_qs, 額(r.実質出金金額)},
            {u"税抜出金金額"_qs, 額(r.税抜出金金額)},
            {u"税込出金金額"_qs, 額(r.税込出金金額)},
            {u"会計集計日付"_qs, 引用(h.会計集計日付)},
            {u"明細メモ"_qs, 引用(引用符二重化(r.明細メモ))},
            {u"承認日付"_qs, 引用(r.承認日付)},
            {u"承認者コード"_qs, 引用(r.承認者コード)},
            {u"登録日付"_qs, 引用(r.登録日付)},
            {u"更新日付"_qs, 引用(r.更新日付)},
        });
        挿入を送る(挿入文(u"T出金明細"_qs, T出金明細列, T出金明細列, 値));
        挿入を送る(挿入文(u"R出金明細"_qs, R出金明細新列, R出金明細列, 値));
    }
}

void 出金セッション::出金履歴書込() {
    auto& h = 見出し;
    // The number is taken before the row is known to exist, so a slip gone meanwhile still
    // advances the history sequence.
    h.旧出金履歴No = 出金履歴No採番();
    const QString 条件 = h.保持鍵().条件(鍵の列::T出金);
    記録集合 rs;
    if (!データ.接続().業務DB検索(rs, u"SELECT * FROM T出金"_qs + 条件)) {
        rs.閉じる();
        return;
    }
    const QString 文 = 挿入文(
        u"R出金"_qs, R出金列, R出金列,
        記録の値(rs, R出金列, true,
                 {{u"出金履歴No"_qs, 引用(h.旧出金履歴No)}, {u"赤黒区分"_qs, 引用(u"1"_qs)}}));
    rs.閉じる();
    挿入を送る(文);
    削除を送る(u"DELETE FROM T出金"_qs + 条件, true);
}

void 出金セッション::出金明細履歴書込() {
    const auto& h = 見出し;
    const QString 条件 = h.保持鍵().条件(鍵の列::T出金明細表付);
    // Each stored line with its history row; the rows are read to the end before the first is
    // written, so no cursor stands on a table that is being deleted from.
    QList<std::pair<QString, QString>> 行と履歴;
    記録集合 rs;
    if (データ.接続().業務DB検索(
            rs, u"SELECT * FROM T出金明細"_qs + 条件 + u" ORDER BY T出金明細.出金行No"_qs)) {
        for (; !rs.EOFか(); rs.MoveNext()) {
            const 値表 値 = 記録の値(rs, R出金明細列, false,
                                     {{u"出金履歴No"_qs, 引用(h.旧出金履歴No)},
                                      {u"赤黒区分"_qs, 引用(u"0"_qs)},
                                      {u"ユーザID"_qs, 引用(記録者ID(データ.接続().環境()))}});
            行と履歴.append({rs.文字列(u"出金固有行No"_qs),
                             挿入文(u"R出金明細"_qs, R出金明細列, R出金明細列, 値)});
        }
    }
    rs.閉じる();
    if (行と履歴.isEmpty()) {
        削除結果(false);
        return;
    }
    for (const auto& [固有行No, 文] : 行と履歴) {
        挿入を送る(文);
        削除を送る(u"DELETE FROM T出金明細"_qs +
                   明細鍵{h.保持鍵(), 固有行No}.条件(鍵の列::T出金明細表付));
    }
}

void 出金セッション::後処理() {
    const auto& h = 見出し;
    保存状態 状態;
    状態.処理区分 = h.処理区分;
    状態.事業所コード = h.事業所コード;
    状態.旧番号基準日付 = h.保持番号基準日付;
    状態.旧出金No = h.保持出金No;
    状態.旧出金履歴No = h.旧出金履歴No;
    状態.番号基準日付 = h.番号基準日付;
    状態.出金No = h.出金No;
    状態.出金履歴No = h.出金履歴No;
    const auto 結果を置く = [this](const 書込結果& 結果) {
        処理結果区分 = 結果.処理結果区分;
        処理結果メッセージ = 結果.処理結果メッセージ;
    };
    // A queue row in the general database goes with the batch, behind the writes of the slip,
    // whose answers set the result before it may set it again; one in the configuration
    // database is written only once the batch stands, so that none points at rows undone.
    const bool 一括の内 = 未集計情報は業務DBへ(データ.会社設定().会社());
    if (一括の内) 出金未集計情報を送る(データ.接続(), 状態, 結果を置く);
    if (!データ.接続().業務DB一括終了()) {
        保存未確定 = true;
        if (h.処理区分 == u"2") {
            削除結果(false);
        } else {
            挿入結果(false);
        }
        return;
    }
    if (!一括の内) {
        if (const auto 結果 = 出金未集計情報書込(データ.接続(), データ.会社設定().会社(), 状態)) {
            結果を置く(*結果);
        }
    }
    if (データ.会社設定().会社().更新実行区分 != 0) return;
    // The update program reads what this run wrote, through connections opened afresh.
    データ.接続().接続終了();
    データ.接続().SYB_OPEN();
    データ.接続().DB_OPEN();
    更新プログラム起動(データ.接続(), 番号定数::出金番号ID.toString());
}
