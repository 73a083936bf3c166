#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

// The export's file, written piece by piece under a temporary name beside the target while the
// slips are formatted, and renamed over the target only when the export is whole; dropped
// unrenamed otherwise. A failed write is remembered, not told at once, so that the export's
// refusals keep their order: the slips first, then the totals, then the file.
class 出力ファイル {
  public:
    // 一度に書く量: how much gathers before it goes to the file.
    explicit 出力ファイル(const QString& パス, qsizetype 一度に書く量 = 1 << 20)
        : f(パス), 一度に書く量(一度に書く量) {}

    // Sends the formatted text once enough has gathered, and empties it for what follows.
    void 溜まれば送る(QByteArray& 内容) {
        if (内容.size() >= 一度に書く量) 送る(内容);
    }
    // The rest, then the rename. False when anything failed to be written.
    bool 仕上げる(QByteArray& 残り) {
        送る(残り);
        return !失敗 && f.commit();
    }

  private:
    void 送る(QByteArray& 内容) {
        if (!失敗 && !f.isOpen()) 失敗 = !f.open(QIODevice::WriteOnly);
        if (!失敗 && f.write(内容) != 内容.size()) 失敗 = true;
        内容.resize(0);  // keeps its memory for the next piece
    }

    QSaveFile f;
    const qsizetype 一度に書く量;
    bool 失敗 = false;
};
