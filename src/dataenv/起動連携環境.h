#pragma once

#include <QString>

class 接続環境;
class 操作者環境;

// The program link: what this run was started with, and what it answers at its end; on the
// HR side the same handshake through the link's configuration connection.
class 起動連携環境 {
  public:
    起動連携環境(接続環境& 接続, 操作者環境& 操作者);
    起動連携環境(const 起動連携環境&) = delete;
    起動連携環境& operator=(const 起動連携環境&) = delete;

    const QString& 発信元プログラムID() const { return 発信元プログラムID_; }
    // Not empty: a sibling program waits for this run's answer.
    const QString& 受信起動連携情報() const { return 受信起動連携情報_; }
    const QString& 終了時連携情報() const { return 終了時連携情報_; }
    void 終了時連携情報設定(const QString& 情報) { 終了時連携情報_ = 情報; }

    // Finds and takes out this run's request, sent no earlier than the time given.
    void 他プログラム連携受信(const QString& 起動連携情報, const QString& 最早日時);
    // Writes the answer row and reopens the configuration connection.
    void 他プログラム連携発信(const QString& 終了連携情報);
    // The same two on the HR side; the request found there leaves this run unlinked.
    void 人事側連携受信(const QString& 起動連携情報, const QString& 最早日時);
    void 人事側連携発信(const QString& 起動連携情報, const QString& 終了連携情報);

  private:
    // The request look-up and the answer of the program link, on either side of the HR link.
    void 連携要求受信(bool 人事側, const QString& 起動連携情報, const QString& 最早日時);
    void 連携応答発信(bool 人事側, const QString& 起動連携情報, const QString& 終了連携情報);

    接続環境& 接続;
    操作者環境& 操作者;
    QString 発信元プログラムID_;
    QString 受信起動連携情報_;
    QString 終了時連携情報_;
};
