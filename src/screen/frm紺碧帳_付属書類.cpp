#include <QDir>

#include "dataenv/ファイル操作.h"
#include "dataenv/付属書類.h"
#include "rules/番号設定.h"
#include "screen/frm紺碧帳.h"
#include "screen/frm紺碧帳_部品名.h"
#include "slip/伝票鍵.h"
#include "slip/出金付属書類.h"
#include "text/プラットフォーム.h"

namespace {

using 欄 = 紺碧帳部品;

// The picker's filter, as all programs of the suite offer it.
const QString 書類絞込 = u"全てのファイル (*.*)|*.*|"_qs + u"ワード (*.doc)|*.doc|"_qs +
                         u"EXCELL (*.xls)|*.xls|"_qs + u"テキスト (*.txt)|*.txt|"_qs +
                         u"一太郎 (*.jws)|*.jws|"_qs + u"JPEG ファイル (*.jpg)|*.jpg|"_qs +
                         u"GIFファイル (*.gif)|*.gif|"_qs + u"メタファイル (*.wmf)|*.wmf|"_qs +
                         u"拡張メタファイル (*.emf)|*.emf|"_qs +
                         u"Bitmap ファイル (*.bmp)|*.bmp"_qs;

}  // namespace

QString frm紺碧帳::付属書類識別ID() {
    const QString 日付 =
        画面(欄::出金日付年).Text + 画面(欄::出金日付月).Text + 画面(欄::出金日付日).Text;
    return 伝票鍵{s.見出し.事業所コード,
                  番号基準日付取得(s.データ, 番号定数::出金番号ID.toString(), 日付),
                  画面(欄::出金No).Text}
        .文字列();
}

QString frm紺碧帳::選択中の付属書類() {
    const 部品& 一覧 = 画面(欄::List付属書類);
    return 一覧.選択 >= 0 && 一覧.選択 < 一覧.項目.size() ? 一覧.項目[一覧.選択].Key : QString();
}

void frm紺碧帳::付属書類ファイル追加() {
    if (画面使用中) return;
    データ環境& d = s.データ;
    const QString 識別 = 付属書類識別ID();
    // The picker may move the process's folder; it is put back whatever the answer.
    const QString 元 = QDir::currentPath();
    const QString パス = d.基盤().ファイル選択(QDir::homePath(), 書類絞込);
    if (!パス.isEmpty()) {
        const QString 題 = ファイル基本名取得(パス);
        if (!題.isEmpty()) 付属書類追加(d, 出金情報名, 識別, パス, 題, 出金付属書類項目(s));
    }
    QDir::setCurrent(元);
    付属書類listint();
}

void frm紺碧帳::付属書類フォルダ追加() {
    if (画面使用中) return;
    データ環境& d = s.データ;
    const QString 識別 = 付属書類識別ID();
    const QString 元 = QDir::currentPath();
    const QString 開始 = QDir::homePath();
    const QString パス = d.基盤().フォルダ選択(u"書類を選択して下さい"_qs, 開始);
    // The start folder itself given back counts as no choice.
    if (!パス.isEmpty() && パス != 開始) {
        const QString 題 = ファイル基本名取得(パス);
        if (!題.isEmpty()) 付属書類追加(d, 出金情報名, 識別, パス, 題, 出金付属書類項目(s));
    }
    QDir::setCurrent(元);
    付属書類listint();
}

void frm紺碧帳::付属書類を外す(const QString& Key) {
    if (画面使用中 || Key.isEmpty()) return;
    データ環境& d = s.データ;
    メッセージ指定 問い;
    問い.本文 = u"付属書類から削除しますか？"_qs;
    問い.ボタン = ボタン種別::はいいいえ;
    if (d.基盤().メッセージ表示(問い) == 応答::はい) {
        QString 識別, SEQNo;
        付属書類キー分解(Key, 識別, SEQNo);
        記録集合 rs;
        const QString 書類名 =
            d.接続().業務DB検索(rs, u"SELECT 書類名 FROM M付属書類 WHERE 情報名 = '"_qs +
                                        出金情報名 + u"' AND 情報識別ID = '"_qs + 識別 +
                                        u"' AND SEQNo = '"_qs + SEQNo + u"'"_qs)
                ? rs.文字列(u"書類名"_qs)
                : QString();
        rs.閉じる();
        // The row goes first: a copy that cannot be deleted stays behind unseen.
        if (付属書類削除(d, 出金情報名, 識別, SEQNo)) {
            // The notice is painted by the removal, once the window takes no more input.
            部品& 知らせ = 画面(欄::お知らせ);
            知らせ.Caption = u"＊＊削除中です。しばらくお待ちください＊＊"_qs;
            付属書類実体削除(d, 付属書類名前(書類名), 保存名(出金情報名, 識別, SEQNo));
            知らせ.Caption.clear();
        }
    }
    付属書類listint();
}

void frm紺碧帳::付属書類を開く(const QString& Key) {
    if (Key.isEmpty()) return;
    データ環境& d = s.データ;
    QString 識別, SEQNo;
    付属書類キー分解(Key, 識別, SEQNo);
    記録集合 rs;
    const bool ある = d.接続().業務DB検索(rs, u"SELECT 書類名 FROM M付属書類 WHERE 情報名 = '"_qs +
                                                  出金情報名 + u"' AND 情報識別ID = '"_qs + 識別 +
                                                  u"' AND SEQNo = '"_qs + SEQNo + u"'"_qs);
    const QString 書類名 = rs.文字列(u"書類名"_qs);
    rs.閉じる();
    if (ある) 付属書類表示(d, 付属書類名前(書類名), 保存名(出金情報名, 識別, SEQNo));
}

void frm紺碧帳::付属書類listint() {
    画面.表示([this] {
        部品& 一覧 = 画面(欄::List付属書類);
        一覧.列 = {{u"書類名"_qs, 4200}, {u"サイズ"_qs, 1600, true}, {u"更新日付"_qs, 1700}};
        一覧.項目クリア();
        // The documents of the slip on screen, once it has a number.
        if (画面(欄::出金No).Text.isEmpty()) return;
        for (const 付属書類行& 行 : 付属書類一覧(s.データ, 出金情報名, 付属書類識別ID())) {
            一覧.項目追加({行.タイトル, 行.Key, {行.サイズ, 行.更新日付}});
        }
    });
    付属書類ボタン更新();
}

void frm紺碧帳::付属書類ボタン更新() {
    const bool 保存済み = !s.新規情報フラグ;
    画面(欄::btn_付属書類追加).Enabled = 保存済み;
    画面(欄::btn_フォルダ).Enabled = 保存済み;
    画面(欄::btn_付属書類削除).Enabled =
        保存済み && 付属書類有無(s.データ, 出金情報名, 付属書類識別ID());
}
