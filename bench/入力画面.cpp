#include <QElapsedTimer>

#include "screen/frm紺碧帳.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

namespace {

// Types into whatever field has the focus, then presses Tab.
void 打ってTab(frm紺碧帳& f, const QString& 文字列) {
    if (部品* p = f.画面.フォーカス(); p && !文字列.isNull()) f.画面.操作_入力(*p, 文字列);
    f.画面.操作_Tab();
}

}  // namespace

// The entry screen model: a full display of a 15-line slip, and an operator's whole entry of
// 15 lines from the staff code on.
void 入力画面計測() {
    計測用ツリー 木;
    if (!木.作成済み) return;
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
    出金セッション s(基盤);
    if (!会社を開く(s, 木.根())) return;
    s.見出し.事業所コード = u"000"_qs;
    s.見出し.出金日付年 = u"2025"_qs;
    s.見出し.出金日付月 = u"11"_qs;
    s.見出し.出金日付日 = u"20"_qs;
    s.出金日付確定();

    std::vector<double> 表示, 入力;
    for (int 回 = 0; 回 < 15; ++回) {
        frm紺碧帳 f(s);
        f.画面読込([&] { s.出金情報初期化(); });
        f.フォーカス設定(f.画面(u"担当者コード"_qs));
        QElapsedTimer t;
        t.start();
        打ってTab(f, u"3"_qs);
        for (int i = 0; i < 最大行数; ++i) {
            打ってTab(f, u"3"_qs);                    // expense class; Tab passes its lists by
            打ってTab(f, u"東京交通"_qs);             // payee
            打ってTab(f, u"タクシー代"_qs);           // description
            打ってTab(f, QString::number(1000 + i));  // amount, then the end of the row
        }
        入力.push_back(t.nsecsElapsed() / 1e6);
        if (s.最終行 != 14) std::printf("the replay ended with %d lines\n", s.最終行 + 1);

        t.start();
        for (int i = 0; i < 100; ++i) f.画面全表示();
        表示.push_back(t.nsecsElapsed() / 1e6 / 100);
    }
    結果表示("full display of a 15-line slip", 表示, "ms");
    結果表示("replay of a 15-line entry from staff code", 入力, "ms");
    s.データ.接続().接続終了();
}
