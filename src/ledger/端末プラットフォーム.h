#pragma once

#include "text/プラットフォーム.h"

// The platform of a run from the command line: messages go to the standard error, the clock is
// the system's, and there are no windows to show.
class 端末プラットフォーム : public プラットフォーム {
  public:
    応答 メッセージ表示(const メッセージ指定& 指定) override;
    QDateTime 現在時刻() const override { return QDateTime::currentDateTime(); }
    void 保留イベント処理() override {}
    void 待機(int) override {}
    void 画面表示(const QString&, bool) override {}
    void 画面使用可否(const QString&, bool) override {}
    void 画面終了(const QString&) override {}
    void 画面隠す(const QString&) override {}
    void 最前面表示() override {}
    void お待ち表示(bool) override {}
    bool 文書を開く(const QString&, const QString&) override { return false; }
    bool プログラム起動(const QString&, const QStringList&, const QString&) override {
        return false;
    }
    QString ファイル選択(const QString&, const QString&) override { return {}; }
    QString フォルダ選択(const QString&, const QString&) override { return {}; }
};
