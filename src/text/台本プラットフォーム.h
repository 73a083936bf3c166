#pragma once

#include <QList>
#include <QPair>
#include <QQueue>
#include <functional>

#include "text/プラットフォーム.h"

// The platform of the tests: answers come from a queue, and everything asked is recorded.
class 台本プラットフォーム : public プラットフォーム {
  public:
    struct 起動記録 {
        QString プログラム;
        QStringList 引数;
        QString 作業フォルダ;
    };

    QQueue<応答> 回答;  // answers for the next message boxes, in order
    // Where a question that no answer was queued for is told, and a modal window that nobody
    // played; the tests fail the case there. Unset, or for an operator who answers at random,
    // a box closes by its default button as Enter would close it.
    static inline std::function<void(const QString&)> 問い漏れ;
    bool 既定で答える = false;
    // The windows that ask; a lookup list closed by its frame is only a way back.
    QStringList 問いの窓{u"msg印刷確認"_qs, u"msg暗証番号確認"_qs};
    QList<メッセージ指定> 表示済み;  // every message box shown
    QList<起動記録> 起動済み;
    QStringList 開いた文書;
    // Picks for the next file and folder pickers, in order; none queued is a cancel.
    QQueue<QString> 選択回答;
    struct 選択記録 {
        QString 種類;  // "ファイル" or "フォルダ"
        QString 題名或いは絞込;
        QString 開始フォルダ;
    };
    QList<選択記録> 選択済み;
    // What the operator does while a picker is up (a picker may move the current folder).
    std::function<void()> 選択中;
    QDateTime 時刻 = QDateTime(QDate(2026, 4, 1), QTime(9, 0, 0));
    int イベント処理回数 = 0;
    int 最前面回数 = 0;
    QList<bool> お待ち履歴;  // each show (true) and hide (false) of the waiting window
    QList<QPair<QString, bool>> 表示画面;  // every window shown, with its modality
    QList<QPair<QString, bool>> 使用可否;  // every enabling or disabling of a window
    // What a modal window does while it is up: the test plays the operator there.
    std::function<void(const QString&)> 画面表示時;

    応答 メッセージ表示(const メッセージ指定& 指定) override;
    QDateTime 現在時刻() const override { return 時刻; }
    void 保留イベント処理() override { ++イベント処理回数; }
    // The clock moves on by the wait; nothing sleeps.
    void 待機(int ミリ秒) override {
        待機合計 += ミリ秒;
        時刻 = 時刻.addMSecs(ミリ秒);
    }
    int 待機合計 = 0;
    void お待ち表示(bool 表示) override { お待ち履歴.append(表示); }
    // A show runs the window's load unless it is hidden, then the test's operator; a modal
    // window still up after that is closed as its frame would close it.
    void 画面表示(const QString& 画面名, bool モーダル) override {
        表示画面.append({画面名, モーダル});
        if (!読込済み.contains(画面名)) {
            読込済み.append(画面名);
            読込実行(画面名);
        }
        if (画面表示時 && !終了画面.contains(画面名)) 画面表示時(画面名);
        if (モーダル && !画面表示時 && 問いの窓.contains(画面名))
            漏れを告げる(u"誰も答えない問いの窓: "_qs + 画面名);
        if (モーダル && !終了画面.contains(画面名)) 枠で閉じる(画面名);
        終了画面.removeAll(画面名);
    }
    void 画面終了(const QString& 画面名) override {
        終了画面.append(画面名);
        閉じた画面.append(画面名);
        読込済み.removeAll(画面名);
    }
    void 画面隠す(const QString& 画面名) override {
        終了画面.append(画面名);
        隠した画面.append(画面名);
    }
    QStringList 閉じた画面;  // every unload, in order
    QStringList 隠した画面;  // every hide, in order
    QStringList 読込済み;    // the windows loaded now, shown or hidden

    void 画面使用可否(const QString& 画面名, bool 可) override { 使用可否.append({画面名, 可}); }
    void 最前面表示() override { ++最前面回数; }
    bool 文書を開く(const QString& パス, const QString& 作業フォルダ) override;
    bool プログラム起動(const QString& プログラム, const QStringList& 引数,
                        const QString& 作業フォルダ) override;
    QString ファイル選択(const QString& 開始フォルダ, const QString& 絞込) override;
    QString フォルダ選択(const QString& 題名, const QString& 開始フォルダ) override;

    QStringList 表示文言() const;

  private:
    // True when the question is told as a fault of the test.
    bool 漏れを告げる(const QString& 何) const {
        if (!問い漏れ || 既定で答える) return false;
        問い漏れ(何);
        return true;
    }
    void 枠で閉じる(const QString& 画面名) {
        枠閉じ実行(画面名);
        閉じた画面.append(画面名);
        読込済み.removeAll(画面名);
    }
    QStringList 終了画面;
};
