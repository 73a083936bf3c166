#pragma once

#include <QDateTime>

#include "common/断点プラットフォーム.h"
#include "screen/frm紺碧帳.h"
#include "slip/起動処理.h"

// An operator at the entry screen model, started on a tree as the program starts, typing as a
// person types (into a field, then Tab) and storing by the register button with "register
// only". The platform can stop a store at a point (断点プラットフォーム).
class 伝票打鍵者 {
  public:
    explicit 伝票打鍵者(const QString& プログラムフォルダ) {
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        s.データ.接続().自身のフォルダ設定(プログラムフォルダ);
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f.印刷確認.画面.操作_クリック(f.印刷確認.画面(u"btn_登録"_qs));
        };
        f.停止 = [] {};
    }
    bool 開く() {
        if (!起動.データベース開始() || !起動.ユーザ情報初期化()) return false;
        f.画面読込([this] { s.出金情報初期化(); });
        return true;
    }
    void 閉じる() { 起動.終了処理(); }

    // A new slip of lines of 1000, 2000, ... yen, marked in 出金伝票備考A.
    void 新規(const QString& 印, int 行数) {
        打つ(c(u"担当者コード"_qs), u"3"_qs);
        for (int r = 0; r < 行数; ++r) {
            f.画面.操作_フォーカス(c(u"費目区分"_qs, r));
            打つ(c(u"費目区分"_qs, r), u"3"_qs);
            打つ(c(u"出金金額"_qs, r), QString::number(1000 * (r + 1)));
        }
        f.画面.操作_フォーカス(c(u"出金伝票備考A"_qs));
        打つ(c(u"出金伝票備考A"_qs), 印);
        f.画面.操作_クリック(c(u"btn_登録"_qs));
    }
    // Brings the slip up by its number and clears the screen again: one look-up, one browse row.
    void 見る(const QString& No) {
        打つ(c(u"出金No"_qs), No);
        f.画面.操作_クリック(c(u"btn_画面クリア"_qs));
    }
    // The register button on the slip as it stands.
    void 登録() { f.画面.操作_クリック(c(u"btn_登録"_qs)); }
    void 削除(const QString& No) {
        打つ(c(u"出金No"_qs), No);
        基盤.回答.enqueue(応答::はい);
        f.画面.操作_クリック(c(u"btn_削除"_qs));
    }

    断点プラットフォーム 基盤;
    出金セッション s{基盤};
    // The screen the operator looks at.
    frm紺碧帳& 入力窓() { return f; }

  private:
    部品& c(const QString& 名前, int 行 = -1) { return f.画面(名前, 行); }
    void 打つ(部品& 欄, const QString& 文字列) {
        f.画面.操作_入力(欄, 文字列);
        f.画面.操作_Tab();
    }
    画面なし 窓;
    紺碧帳起動 起動{s, 窓};
    frm紺碧帳 f{s};
};
