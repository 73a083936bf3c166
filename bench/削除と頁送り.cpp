#include <QElapsedTimer>

#include "common/出金入力.h"
#include "screen/frm紺碧帳.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

namespace {

// A stored 15-line slip, typed through the session's commits and stored; answers its number.
QString 十五行を保存(出金セッション& s) {
    s.出金情報初期化();
    担当者入力(s, u"00003"_qs);
    for (int 行 = 1; 行 <= 最大行数; ++行) {
        明細入力(s, 3, 金額::円(100 * 行), u"支払先"_qs, u"摘要"_qs);
    }
    s.新規登録処理();
    return s.見出し.出金No;
}

}  // namespace

// The deletion of a stored 15-line slip, and one step back and one forth between two stored
// slips through the entry screen (the command, the load, the screen model written again), on
// SQLite; the store and the load before a deletion are not timed.
void 削除頁送り計測() {
    計測用ツリー 木;
    if (!木.作成済み) return;
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
    出金セッション s(基盤);
    画面なし 画面;
    紺碧帳起動 起動(s, 画面);
    s.データ.接続().自身のフォルダ設定(木.根() + u"/prgbin"_qs);
    if (!起動.データベース開始() || !起動.ユーザ情報初期化()) return;

    std::vector<double> 削除;
    for (int i = 0; i < 200; ++i) {
        const QString No = 十五行を保存(s);
        s.出金情報初期化();
        s.出金No確定(No);
        QElapsedTimer t;
        t.start();
        s.削除処理();
        削除.push_back(t.nsecsElapsed() / 1e6);
    }
    結果表示("deletion of a 15-line slip (SQLite)", 削除, "ms");

    十五行を保存(s);
    十五行を保存(s);
    frm紺碧帳 f(s);
    f.画面読込([&] { s.出金情報初期化(); });
    f.フォーカス設定(f.画面(u"担当者コード"_qs));
    f.画面.操作_クリック(f.画面(u"btn_前No"_qs));
    std::vector<double> 頁送り;
    for (int i = 0; i < 200; ++i) {
        QElapsedTimer t;
        t.start();
        f.画面.操作_クリック(f.画面(u"btn_前No"_qs));
        f.画面.操作_クリック(f.画面(u"btn_次No"_qs));
        頁送り.push_back(t.nsecsElapsed() / 2e6);
    }
    結果表示("one step through the screen (SQLite)", 頁送り, "ms");
    起動.終了処理();
}
