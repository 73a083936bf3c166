#pragma once

#include <QString>

#include "dataenv/会社環境.h"
#include "dataenv/接続環境.h"
#include "dataenv/操作者環境.h"
#include "dataenv/起動連携環境.h"

class プラットフォーム;

// The data side of the one session of a run, in four parts handed out to what needs them: the
// connections with the run history, the company settings, the operator with his rights, and
// the program link. A test makes a fresh one for each case.
class データ環境 {
  public:
    explicit データ環境(プラットフォーム& 基盤, QString プログラムID = u"紺碧帳"_qs);
    データ環境(const データ環境&) = delete;
    データ環境& operator=(const データ環境&) = delete;

    プラットフォーム& 基盤() const { return 接続_.基盤(); }
    接続環境& 接続() { return 接続_; }
    const 接続環境& 接続() const { return 接続_; }
    会社環境& 会社設定() { return 会社_; }
    const 会社環境& 会社設定() const { return 会社_; }
    操作者環境& 操作者権限() { return 操作者_; }
    const 操作者環境& 操作者権限() const { return 操作者_; }
    起動連携環境& プログラム連携() { return 連携_; }
    const 起動連携環境& プログラム連携() const { return 連携_; }

    // The start row of the run history, with the operator read first.
    void 開始履歴書込();

    // The HR link: the slot of M他業務連携 whose system is named and switched on, its
    // connections, and the handshake on its side.
    bool 人事連携選択(const QString& 業務名);
    bool 人事連携開始();
    void 人事連携終了();

  private:
    接続環境 接続_;
    会社環境 会社_{接続_};
    操作者環境 操作者_{接続_, 会社_};
    起動連携環境 連携_{接続_, 操作者_};
};
