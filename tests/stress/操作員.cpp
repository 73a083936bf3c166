#include <QDateTime>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThread>
#include <cstdio>
#include <vector>

#include "screen/frm紺碧帳.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"
#include "ストレス.h"

namespace {

// An operator at the entry screen, typing as a person types: into a field, then Tab.
class 操作員 {
  public:
    操作員(const QString& プログラムフォルダ, int 番号) : 番号(番号), 乱(0x5EED0000u + 番号) {
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        s.データ.接続().自身のフォルダ設定(プログラムフォルダ);
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f.印刷確認.画面.操作_クリック(f.印刷確認.画面(u"btn_登録"_qs));
        };
        f.停止 = [] {};
    }
    ~操作員() {
        if (開いた) 起動.終了処理();
    }

    bool 開く() {
        if (!起動.データベース開始() || !起動.ユーザ情報初期化()) return false;
        開いた = true;
        f.画面読込([this] { s.出金情報初期化(); });
        f.フォーカス設定(c(u"担当者コード"_qs));
        return true;
    }

    void 一件(int i) {
        const quint32 種 = 乱.bounded(100);
        if (生存.empty() || 種 < 60) {
            新規(u"負荷%1-%2"_qs.arg(番号).arg(i));
        } else {
            const int k = static_cast<int>(乱.bounded(static_cast<quint32>(生存.size())));
            if (種 < 85)
                訂正(k);
            else
                削除(k);
        }
    }

  private:
    struct 伝票 {
        QString 印;
        QList<int> 金額;
    };

    部品& c(const QString& 名前, int 行 = -1) { return f.画面(名前, 行); }
    void 打つ(部品& 欄, const QString& 文字列) {
        f.画面.操作_入力(欄, 文字列);
        f.画面.操作_Tab();
    }
    static QString 金額列(const QList<int>& 額) {
        QStringList t;
        for (int a : 額) t << QString::number(a);
        return t.join(u',');
    }
    void 記す(const QString& 行) {
        std::printf("%s\n", qPrintable(行));
        std::fflush(stdout);
    }
    // Presses a button of the entry screen and answers how long the press took, in milliseconds
    // as text: the store or the deletion it runs, not the typing before it.
    QString 押して計る(const QString& ボタン) {
        QElapsedTimer 計;
        計.start();
        f.画面.操作_クリック(c(ボタン));
        return QString::number(static_cast<double>(計.nsecsElapsed()) / 1e6, 'f', 3);
    }

    void 新規(const QString& 印) {
        伝票 d{印, {}};
        if (!s.新規情報フラグ) {
            記す(u"E the screen still holds slip "_qs + s.見出し.出金No + u" before "_qs + 印);
            f.画面.操作_クリック(c(u"btn_画面クリア"_qs));
        }
        const int 行数 = 1 + static_cast<int>(乱.bounded(4));
        打つ(c(u"担当者コード"_qs), u"3"_qs);
        for (int r = 0; r < 行数; ++r) {
            const int 額 = 100 * (1 + static_cast<int>(乱.bounded(500)));
            f.画面.操作_フォーカス(c(u"費目区分"_qs, r));
            打つ(c(u"費目区分"_qs, r), u"3"_qs);
            打つ(c(u"出金金額"_qs, r), QString::number(額));
            d.金額 << 額;
        }
        f.画面.操作_フォーカス(c(u"出金伝票備考A"_qs));
        打つ(c(u"出金伝票備考A"_qs), 印);
        if (s.最終行 != 行数 - 1 || s.見出し.出金伝票備考A != 印) {
            記す(u"E typing of "_qs + 印 + u" did not take"_qs);
            f.画面.操作_クリック(c(u"btn_画面クリア"_qs));
            return;
        }
        const qsizetype 待ち = 基盤.お待ち履歴.size();
        const qsizetype 知らせ = 基盤.表示済み.size();
        const bool 押せる = c(u"btn_登録"_qs).Enabled;
        const QString 所要 = 押して計る(u"btn_登録"_qs);
        if (基盤.お待ち履歴.size() == 待ち) {
            // The store did not run: say what the screen showed instead.
            QStringList 文言;
            for (qsizetype i = 知らせ; i < 基盤.表示済み.size(); ++i) 文言 << 基盤.表示済み[i].本文;
            記す(u"E "_qs + 印 + u" was not stored: button "_qs +
                 (押せる ? u"enabled"_qs : u"disabled"_qs) + u", notice '"_qs +
                 c(u"お知らせ"_qs).Caption + u"', staff '"_qs + s.見出し.担当者名 +
                 u"', messages: "_qs + 文言.join(u" / "_qs));
            f.画面.操作_クリック(c(u"btn_画面クリア"_qs));
            return;
        }
        記す(u"N "_qs + 印 + u" "_qs + 金額列(d.金額) + u" "_qs + 所要);
        生存.push_back(d);
    }

    // Brings the operator's own slip up by its number, as he would read it off his list.
    bool 呼び出す(const 伝票& d) {
        記録集合 rs;
        QString No;
        if (s.データ.接続().業務DB検索(
                rs, u"SELECT 出金No FROM T出金 WHERE 出金伝票備考A = '"_qs + d.印 + u"'"_qs)) {
            No = rs.文字列(u"出金No"_qs);
        }
        rs.閉じる();
        if (No.isEmpty()) {
            記す(u"E "_qs + d.印 + u" is not in T出金"_qs);
            return false;
        }
        打つ(c(u"出金No"_qs), No);
        if (s.新規情報フラグ || s.見出し.出金伝票備考A != d.印) {
            記す(u"E "_qs + d.印 + u" did not load under "_qs + No);
            return false;
        }
        return true;
    }

    void 訂正(int k) {
        伝票& d = 生存[k];
        if (!呼び出す(d)) return;
        int 額 = 100 * (1 + static_cast<int>(乱.bounded(500)));
        // The same amount again would change nothing, and an unchanged slip is not stored.
        if (額 == d.金額[0]) 額 += 100;
        f.画面.操作_フォーカス(c(u"費目区分"_qs, 0));
        打つ(c(u"出金金額"_qs, 0), QString::number(額));
        d.金額[0] = 額;
        const QString 所要 = 押して計る(u"btn_登録"_qs);
        記す(u"C "_qs + d.印 + u" "_qs + 金額列(d.金額) + u" "_qs + 所要);
    }

    void 削除(int k) {
        if (!呼び出す(生存[k])) return;
        基盤.回答.enqueue(応答::はい);
        const QString 所要 = 押して計る(u"btn_削除"_qs);
        基盤.回答.clear();
        記す(u"D "_qs + 生存[k].印 + u" "_qs + 所要);
        生存.erase(生存.begin() + k);
    }

    const int 番号;
    QRandomGenerator 乱;
    bool 開いた = false;
    std::vector<伝票> 生存;
    台本プラットフォーム 基盤;
    出金セッション s{基盤};
    画面なし 窓;
    紺碧帳起動 起動{s, 窓};
    frm紺碧帳 f{s};
};

}  // namespace

int 操作員実行(const QString& プログラムフォルダ, int 番号, int 件数, qint64 開始) {
    操作員 人(プログラムフォルダ, 番号);
    if (!人.開く()) {
        std::fprintf(stderr, "operator %d: the databases do not open\n", 番号);
        return 3;
    }
    // All operators begin together, after each one's start-up; one that is not ready by then
    // says so, as the figures of the run no longer hold for all of them at once.
    if (const qint64 遅れ = QDateTime::currentMSecsSinceEpoch() - 開始; 遅れ > 0)
        std::fprintf(stderr, "operator %d: ready %lld ms after the common start\n", 番号,
                     static_cast<long long>(遅れ));
    while (QDateTime::currentMSecsSinceEpoch() < 開始) QThread::msleep(1);
    for (int i = 0; i < 件数; ++i) 人.一件(i);
    return 0;
}
