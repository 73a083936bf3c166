#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>

// The button sets a message box can have.
enum class ボタン種別 {
    OK,
    OKキャンセル,
    中止再試行無視,
    はいいいえキャンセル,
    はいいいえ,
    再試行キャンセル
};
enum class アイコン種別 { なし, 停止, 質問, 注意, 情報 };
enum class 応答 { OK, キャンセル, 中止, 再試行, 無視, はい, いいえ };

struct メッセージ指定 {
    QString 本文;
    ボタン種別 ボタン = ボタン種別::OK;
    アイコン種別 アイコン = アイコン種別::なし;
    int 既定ボタン = 1;  // counted from 1: the first button
    QString 題名;        // empty: the default title (the program's name)
};

// Everything the logic asks of its surroundings goes through here, so that tests can replay
// an operator and the Qt layer can draw the same decisions.
class プラットフォーム {
  public:
    virtual ~プラットフォーム() = default;

    virtual 応答 メッセージ表示(const メッセージ指定& 指定) = 0;
    virtual QDateTime 現在時刻() const = 0;
    virtual void 保留イベント処理() = 0;
    // Holds the program for so many milliseconds.
    virtual void 待機(int ミリ秒) = 0;
    // Another window of the program by its name (a list window, a dialogue), modal or not, and
    // the enabling of a window as a whole. Showing a window that is not loaded runs its load
    // event first; a hidden one comes back as it was left. A modal show returns once the window
    // has unloaded or hidden itself, or was closed by its frame.
    virtual void 画面表示(const QString& 画面名, bool モーダル) = 0;
    virtual void 画面使用可否(const QString& 画面名, bool 可) = 0;
    // A window unloads itself: the modal show that brought it up returns.
    virtual void 画面終了(const QString& 画面名) = 0;
    // A window hides itself and stays loaded: the modal show returns, and the next show runs no
    // load.
    virtual void 画面隠す(const QString& 画面名) = 0;

    // The load event of a window and what closing it by its frame does before it unloads, by
    // the window's name; each screen registers its own, and both implementations run them.
    struct 画面事象 {
        std::function<void()> 読込;
        std::function<void()> 枠閉じ;
    };
    void 画面事象登録(const QString& 画面名, 画面事象 事象) { 事象表[画面名] = std::move(事象); }
    void 読込実行(const QString& 画面名) { 実行(画面名, &画面事象::読込); }
    void 枠閉じ実行(const QString& 画面名) { 実行(画面名, &画面事象::枠閉じ); }
    // Brings the program's active window to the top of the desktop.
    virtual void 最前面表示() = 0;
    // The modeless "please wait" window, shown while files are copied or a slip is stored.
    virtual void お待ち表示(bool 表示) = 0;
    virtual bool 文書を開く(const QString& パス, const QString& 作業フォルダ) = 0;
    virtual bool プログラム起動(const QString& プログラム, const QStringList& 引数,
                                const QString& 作業フォルダ) = 0;
    // The pickers of a file (filter in the "name (*.ext)|*.ext|..." form) and of a folder,
    // opened at a folder; an empty answer is a cancel.
    virtual QString ファイル選択(const QString& 開始フォルダ, const QString& 絞込) = 0;
    virtual QString フォルダ選択(const QString& 題名, const QString& 開始フォルダ) = 0;

    // A plain box with an OK button, the form most messages of the program take.
    応答 メッセージ(const QString& 本文) {
        メッセージ指定 指定;
        指定.本文 = 本文;
        return メッセージ表示(指定);
    }

  private:
    void 実行(const QString& 画面名, std::function<void()> 画面事象::*どれ) {
        const auto it = 事象表.constFind(画面名);
        if (it != 事象表.cend() && (*it).*どれ) ((*it).*どれ)();
    }
    QHash<QString, 画面事象> 事象表;
};
