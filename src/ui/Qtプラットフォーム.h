#pragma once

#include <QEventLoop>
#include <QHash>
#include <QPointer>
#include <QWidget>

#include "screen/画面モデル.h"

#include "text/プラットフォーム.h"

// The platform of the real program: Qt message boxes, the system clock, the desktop.
class Qtプラットフォーム : public プラットフォーム {
  public:
    応答 メッセージ表示(const メッセージ指定& 指定) override;
    QDateTime 現在時刻() const override { return QDateTime::currentDateTime(); }
    void 保留イベント処理() override;
    void 待機(int ミリ秒) override;
    void お待ち表示(bool 表示) override;
    void 画面表示(const QString& 画面名, bool モーダル) override;
    void 画面使用可否(const QString& 画面名, bool 可) override;
    void 画面終了(const QString& 画面名) override;
    void 画面隠す(const QString& 画面名) override;
    // A window the program shows by name, drawn from its model.
    void 画面登録(const QString& 画面名, 画面モデル& モデル) { 画面群[画面名] = &モデル; }
    void 最前面表示() override;
    bool 文書を開く(const QString& パス, const QString& 作業フォルダ) override;
    bool プログラム起動(const QString& プログラム, const QStringList& 引数,
                        const QString& 作業フォルダ) override;
    QString ファイル選択(const QString& 開始フォルダ, const QString& 絞込) override;
    QString フォルダ選択(const QString& 題名, const QString& 開始フォルダ) override;

    QString 既定の題名 = u"紺碧帳"_qs;

  private:
    QWidget* 窓を作る(const QString& 画面名, 画面モデル& m);
    struct 開いた画面 {
        QPointer<QWidget> 窓;
        QPointer<QEventLoop> 待ち;
    };
    QHash<QString, 画面モデル*> 画面群;
    QHash<QString, 開いた画面> 開いている;
    QHash<QString, QPointer<QWidget>> 隠れている;  // loaded and hidden, kept as they were left
    QPointer<QWidget> お待ち画面;
};
