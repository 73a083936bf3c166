#pragma once

#include <QString>
#include <functional>

#include "report/出金伝票帳票.h"
#include "slip/出金セッション.h"

// The report program on one slip: the argument read, the folder tree and the general database
// found as the slip program finds them, the slip read, and the page printed, previewed or
// written as a PDF that is attached to the slip. Refusals are told in Japanese.
class 紺碧帳書 {
  public:
    紺碧帳書(プラットフォーム& 基盤, const QString& 自身のフォルダ);

    // The printer's dialogue and the preview window live with the executable; each answers
    // whether the page went out.
    std::function<bool(const 出金伝票帳票&)> 印刷;
    std::function<bool(const 出金伝票帳票&)> プレビュー;

    // 0 when the page went out, 1 on a refusal; nothing is written on a refusal.
    int 実行(const QString& 引数);

    出金セッション s;
    出金伝票帳票 帳票;
    QString PDFパス;  // the PDF of the last image output

  private:
    bool PDF出力();
    int 拒否(const QString& 文言);
};
