#include "rules/消費税計算.h"
#include "rules/番号設定.h"
#include "rules/閲覧記録.h"
#include "slip/出金セッション.h"

const QString 出金見出し列 =
    u" T出金.*, M担当者.氏名 AS 担当者名, M部門.名称 AS 部門名, Mセクション.名称 AS セクション名"_qs;
const QString 出金見出し結合 =
    u" FROM Mセクション RIGHT JOIN (M部門 RIGHT JOIN (M担当者 INNER JOIN T出金 ON M担当者.コード = T出金.担当者コード) ON M部門.コード = T出金.部門コード) ON Mセクション.コード = T出金.セクションコード"_qs;
namespace {

const QString 明細文 = u"SELECT T出金明細.*, K費目区分.名称 AS 費目区分名称"_qs;
const QString 明細結合 =
    u" FROM K費目区分 INNER JOIN T出金明細 ON K費目区分.区分 = T出金明細.費目区分"_qs;

// Each column is copied only when it is not Null: a Null leaves what the field held.
void 写す(const 記録集合& rs, const char16_t* 列, QString& 先) {
    const QString 名 = QString::fromUtf16(列);
    if (!rs.Null(名)) 先 = rs.文字列(名);
}
void 写す(const 記録集合& rs, const char16_t* 列, short& 先) {
    const QString 名 = QString::fromUtf16(列);
    if (!rs.Null(名)) 先 = rs.整数(名);
}
void 写す(const 記録集合& rs, const char16_t* 列, 金額& 先) {
    const QString 名 = QString::fromUtf16(列);
    if (!rs.Null(名)) 先 = rs.金額値(名);
}

// The line fields a stored line and a pattern line share.
void 行を写す(const 記録集合& rs, 出金行& r) {
    写す(rs, u"費目区分", r.費目区分);
    写す(rs, u"費目区分名称", r.費目区分名称);
    写す(rs, u"内税外税区分", r.内税外税区分);
    写す(rs, u"消費税率", r.消費税率);
    写す(rs, u"出金金額", r.出金金額);
    写す(rs, u"出金消費税", r.出金消費税);
}

}  // namespace

bool 出金セッション::出金キー検索(const ::伝票鍵& 鍵) {
    // Recorded before the read, so a look-up of a number that does not exist is recorded too.
    閲覧記録指定 閲覧;
    閲覧.事業所コード = 見出し.事業所コード;
    閲覧.担当者名 = データ.操作者権限().操作者().氏名;
    閲覧.プログラム名 = u"紺碧帳"_qs;
    閲覧.伝票事業所コード = 鍵.事業所コード;
    閲覧.伝票番号基準日付 = 鍵.番号基準日付;
    閲覧.伝票No = 鍵.番号;
    閲覧記録(データ.接続(), データ.会社設定().会社(), 閲覧);

    const QString 文 =
        u"SELECT TOP 1"_qs + 出金見出し列 + 出金見出し結合 + 鍵.条件(鍵の列::T出金読込);
    return データ.接続().業務DB検索(見出し結果, 文, true);
}

void 出金セッション::出金見出し読込() {
    出金見出し読込(見出し結果);
}

void 出金セッション::出金見出し読込(記録集合& rs) {
    出金見出し& h = 見出し;
    if (!rs.Null(u"事業所コード"_qs))
        h.事業所コード = h.保持事業所コード = rs.文字列(u"事業所コード"_qs);
    if (!rs.Null(u"出金No"_qs)) h.出金No = h.保持出金No = rs.文字列(u"出金No"_qs);
    if (!rs.Null(u"出金日付"_qs)) {
        h.出金日付 = rs.文字列(u"出金日付"_qs);
        h.出金日付を分ける();
        h.保持出金日付 = h.出金日付;
    }
    if (!rs.Null(u"番号基準日付"_qs)) {
        h.番号基準日付 = h.保持番号基準日付 = rs.文字列(u"番号基準日付"_qs);
    }
    写す(rs, u"担当者コード", h.担当者コード);
    写す(rs, u"担当者名", h.担当者名);
    写す(rs, u"部門コード", h.部門コード);
    写す(rs, u"部門名", h.部門名);
    写す(rs, u"セクションコード", h.セクションコード);
    写す(rs, u"セクション名", h.セクション名);
    写す(rs, u"出張申請事業所コード", h.出張申請事業所コード);
    写す(rs, u"出張申請番号基準日付", h.出張申請番号基準日付);
    写す(rs, u"出張申請No", h.出張申請No);
    写す(rs, u"伝票発行区分", h.伝票発行区分);
    写す(rs, u"出金伝票備考A", h.出金伝票備考A);
    写す(rs, u"出金伝票備考B", h.出金伝票備考B);
    写す(rs, u"出金メモ", h.出金メモ);
    // The two plain totals without a control are not read: they stay as they were.
    写す(rs, u"出金金額合計", 合計.出金金額合計);
    写す(rs, u"出金消費税合計", 合計.出金消費税合計);
    写す(rs, u"実質出金金額合計", 合計.実質出金金額合計);
    写す(rs, u"前回税率出金金額合計", 合計.前回税率出金金額合計);
    写す(rs, u"前回税率出金消費税合計", 合計.前回税率出金消費税合計);
    写す(rs, u"今回税率出金金額合計", 合計.今回税率出金金額合計);
    写す(rs, u"今回税率出金消費税合計", 合計.今回税率出金消費税合計);
    写す(rs, u"承認日付", h.承認日付);
    写す(rs, u"承認者コード", h.承認者コード);
    写す(rs, u"承認区分", h.承認区分);
    写す(rs, u"登録日付", h.登録日付);
    写す(rs, u"更新日付", h.更新日付);
    rs.閉じる();
    入力変更フラグ = false;
    const 税率情報 税率 = 税率情報取得(データ.接続(), h.出金日付);
    h.前回税率 = 税率.前回税率;
    h.今回税率 = 税率.今回税率;
}

void 出金セッション::出金明細読込() {
    最終行 = -1;
    見出し.最大固有行No = 0;
    記録集合 rs;
    const QString 文 = 明細文 + 明細結合 + 見出し.鍵().条件(鍵の列::T出金明細表付) +
                       u" ORDER BY T出金明細.出金行No"_qs;
    if (データ.接続().業務DB検索(rs, 文)) {
        for (; !rs.EOFか(); rs.MoveNext()) {
            // Every stored line comes in, a sixteenth imported one into the spare slot; rows
            // beyond the table are a fault of the data, left unread.
            if (最終行 >= 行枠数 - 1) break;
            ++最終行;
            出金行& r = 新しい行枠(最終行);
            if (最終行 == 0) 写す(rs, u"会計集計日付", 見出し.会計集計日付);
            if (!rs.Null(u"出金固有行No"_qs)) {
                r.出金固有行No = rs.文字列(u"出金固有行No"_qs);
                const short 固有 = 整数変換(r.出金固有行No);
                if (固有 > 見出し.最大固有行No) 見出し.最大固有行No = 固有;
            }
            行を写す(rs, r);
            写す(rs, u"税抜出金金額", r.税抜出金金額);
            写す(rs, u"税込出金金額", r.税込出金金額);
            写す(rs, u"支払先", r.支払先);
            写す(rs, u"課税事業所区分", r.課税事業所区分);
            写す(rs, u"摘要", r.摘要);
            写す(rs, u"実質出金金額", r.実質出金金額);
            写す(rs, u"明細メモ", r.明細メモ);
            写す(rs, u"承認日付", r.承認日付);
            写す(rs, u"承認者コード", r.承認者コード);
            写す(rs, u"承認区分", r.承認区分);
            写す(rs, u"登録日付", r.登録日付);
            写す(rs, u"更新日付", r.更新日付);
        }
    }
    rs.閉じる();
    新規情報フラグ = 最終行 == -1;
}

void 出金セッション::出金検索破棄() {
    見出し結果.閉じる();
    出金情報初期化();
}

bool 出金セッション::出金No確定(const QString& 入力No, std::optional<QString>& 答え) {
    if (入力No == 見出し.出金No) return false;
    入力変更フラグ = true;
    QString 文言;
    if (入力No.isEmpty()) {
        見出し.出金No = 次番号参照(データ, 番号定数::出金番号ID.toString(), 見出し.番号基準日付,
                                   見出し.事業所コード);
    } else {
        // A key picked in the slip No list gives office and base date.
        const auto 選んだ鍵 = 答えの鍵を取る(答え, u"出金");
        const auto 鍵 = (選んだ鍵 ? *選んだ鍵 : 見出し.鍵()).番号替え(入力No);
        if (出金キー検索(鍵)) {
            出金見出し読込();
            出金明細初期化();
            出金明細読込();
        } else {
            出金検索破棄();
            // Under hand numbering there is no proposal: the typed number stands.
            if (見出し.出金No.isEmpty()) 見出し.出金No = 入力No;
            文言 = u"新規情報です。"_qs;
        }
    }
    お知らせ文言 = 文言;
    return true;
}

QString 出金セッション::隣接文(bool 前) const {
    const auto& h = 見出し;
    QString 文 = u"SELECT TOP 1 番号基準日付,出金No"_qs + u" FROM T出金"_qs +
                 u" WHERE 事業所コード = '"_qs + h.事業所コード + u"'"_qs;
    if (前) {
        文 += h.出金No.isEmpty()
                  ? u" AND 出金日付 <= '"_qs + h.出金日付 + u"'"_qs
                  : u" AND ((出金日付 = '"_qs + h.出金日付 + u"' AND 出金No < '"_qs + h.出金No +
                        u"')"_qs + u" OR 出金日付 < '"_qs + h.出金日付 + u"')"_qs;
        文 += u" ORDER BY 出金日付 DESC, 出金No DESC"_qs;
    } else if (h.出金No.isEmpty()) {
        文 += u" AND 出金日付 >= '"_qs + h.出金日付 + u"'"_qs + u" ORDER BY 出金日付, 出金No"_qs;
    } else {
        文 += u" AND ((出金日付 = '"_qs + h.出金日付 + u"' AND 出金No > '"_qs + h.出金No +
              u"')"_qs + u" OR 出金日付 > '"_qs + h.出金日付 + u"')"_qs +
              u" ORDER BY 出金日付 , 出金No"_qs;
    }
    return 文;
}

bool 出金セッション::前No確認() {
    記録集合 rs;
    const bool あり = データ.接続().業務DB検索(rs, 隣接文(true));
    rs.閉じる();
    return あり;
}

bool 出金セッション::次No確認() {
    記録集合 rs;
    const bool あり = データ.接続().業務DB検索(rs, 隣接文(false));
    rs.閉じる();
    return あり;
}

bool 出金セッション::前No読込() {
    return 隣接読込(true);
}
bool 出金セッション::次No読込() {
    return 隣接読込(false);
}

bool 出金セッション::隣接読込(bool 前) {
    記録集合 rs;
    const bool あり = データ.接続().業務DB検索(rs, 隣接文(前));
    const QString 基準日付 = rs.文字列(u"番号基準日付"_qs);
    const QString No = rs.文字列(u"出金No"_qs);
    rs.閉じる();
    if (!あり) return false;
    if (出金キー検索({見出し.事業所コード, 基準日付, No})) {
        出金見出し読込();
        出金明細初期化();
        出金明細読込();
    } else {
        // The slip vanished between the two reads.
        出金検索破棄();
        出金明細初期化();
        出金合計初期化();
    }
    return true;
}

bool 出金セッション::過去明細取込(const QString& 鍵, int 位置) {
    記録集合 rs;
    const QString 文 = 明細文 + 明細結合 + 明細鍵を切り出す(鍵).条件(鍵の列::T出金明細);
    const bool あり = データ.接続().業務DB検索(rs, 文);
    if (あり) {
        出金行& r = 行[位置];
        行を写す(rs, r);
        写す(rs, u"摘要", r.摘要);
        写す(rs, u"支払先", r.支払先);
        写す(rs, u"課税事業所区分", r.課税事業所区分);
        過去明細取込時再計算(データ.接続(), r, 見出し.出金日付);
        合計再計算();
    }
    rs.閉じる();
    return あり;
}
