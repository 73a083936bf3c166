#include "screen/msg暗証番号確認.h"
#include "screen/msg暗証番号確認_部品名.h"

#include "text/プラットフォーム.h"
#include "text/数値書式.h"

namespace {

using 欄 = 暗証番号確認部品;

}  // namespace

msg暗証番号確認::msg暗証番号確認(データ環境& データ) : d(データ) {
    画面.作る(部品定義表);
    画面.Width = 4620;
    画面.Height = 2520;
    事象を結ぶ();
    // Closed by its frame, the window confirms nobody.
    d.基盤().画面事象登録(
        画面.名前, {[this] { 画面読込(); }, [this] { d.操作者権限().権限確認済設定(false); }});
}

void msg暗証番号確認::事象を結ぶ() {
    for (部品* p : 画面.全部品()) {
        if (!*p->定義.結び) continue;
        部品* 先 = 画面.探す(QString::fromUtf16(p->定義.結び));
        p->Click = [this, 先] { 画面.SetFocus(*先); };
    }
    画面(欄::担当者コード).LostFocus = [this] { 担当者コード離脱(); };
    画面(欄::暗証番号).GotFocus = [this] {
        // A PIN means nothing without somebody it belongs to.
        部品& コード = 画面(欄::担当者コード);
        if (コード.Text.trimmed().isEmpty()) 画面.SetFocus(コード);
    };
    画面(欄::btn_OK).Click = [this] { 暗証照合(); };
    画面(欄::btn_キャンセル).Click = [this] { 取消(); };
}

void msg暗証番号確認::画面読込() {
    画面.Caption = d.操作者権限().暗証確認題名();
    for (const char16_t* 名 : {u"担当者コード", u"担当者名", u"暗証番号"}) {
        画面(QString::fromUtf16(名)).Text.clear();
    }
    照合暗証.clear();
    d.操作者権限().担当者コード設定(QString());
    // The user known by his login name goes straight to the PIN.
    部品& コード = 画面(欄::担当者コード);
    コード.TabStop = true;
    if (担当者読込ID(d.接続().環境().端末利用者名)) コード.TabStop = false;
    if (部品* 先 = 画面.次のタブ(nullptr, false)) 画面.SetFocus(*先);
}

void msg暗証番号確認::担当者コード離脱() {
    部品& コード = 画面(欄::担当者コード);
    コード.Text = 書式(コード.Text, u"00000");
    担当者読込(コード.Text);
}

bool msg暗証番号確認::担当者検索(記録集合& rs, const QString& 条件) {
    const QString 今日 = d.基盤().現在時刻().toString(u"yyyyMMdd"_qs);
    return d.接続().業務DB検索(
        rs,
        u"SELECT M担当者.*"_qs + u" FROM M担当者"_qs + 条件 + u" AND (M担当者.在籍区分 = '0'"_qs +
            u" OR (M担当者.在籍区分 = '1' AND M担当者.退社日付 <>'' AND M担当者.退社日付 > '"_qs +
            今日 + u"'))"_qs + u" AND (M担当者.事業所コード = '"_qs + d.接続().作業事業所コード() +
            u"' OR M担当者.事業所コード = '"_qs + u"000"_qs + u"')"_qs);
}

bool msg暗証番号確認::担当者読込(const QString& コード) {
    記録集合 rs;
    const bool 発見 = 担当者検索(rs, u" WHERE M担当者.コード = '"_qs + コード + u"'"_qs);
    if (発見) {
        画面(欄::担当者コード).Text = rs.文字列(u"コード"_qs);
        画面(欄::担当者名).Text = rs.文字列(u"氏名"_qs);
        照合暗証 = d.会社設定().暗証解読().解読(rs.文字列(u"暗証番号"_qs));
        d.操作者権限().操作者変更([&](操作者情報& o) {
            o.ログインID = rs.文字列(u"ログインID"_qs);
            o.アクセス権限 = rs.整数(u"アクセス権限"_qs);
            for (int i = 0; i < 10; ++i) {
                const QString 列名 = 処理分類列名(i);
                o.処理分類操作許可[i] = rs.Null(列名) ? u"0"_qs : rs.文字列(列名);
            }
            操作権限列読込(rs, o);
        });
    }
    rs.閉じる();
    return 発見;
}

bool msg暗証番号確認::担当者読込ID(const QString& ログインID) {
    記録集合 rs;
    const bool 発見 = 担当者検索(rs, u" WHERE M担当者.ログインID = '"_qs + ログインID + u"'"_qs);
    QString コード;
    if (発見) {
        コード = rs.文字列(u"コード"_qs);
        画面(欄::担当者コード).Text = コード;
        画面(欄::担当者名).Text = rs.文字列(u"氏名"_qs);
    }
    rs.閉じる();
    if (発見) 担当者読込(コード);
    return 発見;
}

void msg暗証番号確認::不一致(const QString& 文言) {
    d.操作者権限().担当者コード設定(QString());
    d.操作者権限().権限確認済設定(false);
    d.基盤().メッセージ(文言);
    画面.SetFocus(画面(欄::暗証番号));
}

void msg暗証番号確認::暗証照合() {
    // Only the entry is raised: a stored PIN with lower-case letters never matches.
    const QString 入力 = 画面(欄::暗証番号).Text.toUpper();
    if (入力.isEmpty()) {
        不一致(u"暗証番号を入力してください。"_qs);
        return;
    }
    // The office's master PIN stands in for any operator on screen.
    if (入力 != d.会社設定().事業所().特権暗証番号 && 入力 != 照合暗証) {
        不一致(u"暗証番号が違います。"_qs);
        return;
    }
    d.操作者権限().担当者コード設定(画面(欄::担当者コード).Text);
    d.操作者権限().操作者確定();
    d.操作者権限().権限確認済設定(true);
    d.基盤().画面終了(画面.名前);
}

void msg暗証番号確認::取消() {
    d.操作者権限().権限確認済設定(false);
    d.基盤().画面終了(画面.名前);
}
