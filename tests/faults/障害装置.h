#pragma once

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStorageInfo>
#include <QTemporaryDir>

#include "common/試験用ツリー.h"
#include "障害試験.h"

// A PostgreSQL server of the case's own, since the case stops it: the suite's server stays up
// for the cases that run beside it. It holds one empty database, "faults".
class 専用PostgreSQL {
  public:
    ~専用PostgreSQL() {
        if (起動済み) 実行(鯖, {u"stop"_qs, フォルダ});
    }
    bool 起動() {
        // The server runs as another user, who must get through the folder.
        QFile::setPermissions(一時.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                               QFile::ReadOther | QFile::ExeOther);
        フォルダ = 一時.path() + u"/pg"_qs;
        番号 = QString::number(20000 + QRandomGenerator::global()->bounded(20000));
        起動済み = 実行(鯖, {u"start"_qs, フォルダ, 番号});
        return 起動済み &&
               実行(u"psql"_qs, {u"-h"_qs, フォルダ, u"-p"_qs, 番号, u"-U"_qs, u"postgres"_qs,
                                 u"-qc"_qs, u"CREATE DATABASE faults"_qs});
    }
    QString 接続情報() const {
        return u"host="_qs + フォルダ + u" port="_qs + 番号 + u" dbname=faults user=postgres"_qs;
    }
    // Stops the server and keeps its data; 再開 starts it again as it was.
    bool 停止() { return 実行(鯖, {u"pause"_qs, フォルダ}); }
    bool 再開() { return 実行(鯖, {u"resume"_qs, フォルダ}); }

  private:
    const QString 鯖 = QStringLiteral(KONPEKI_SOURCE_DIR "/scripts/pg-server");
    QTemporaryDir 一時;
    QString フォルダ;
    QString 番号;
    bool 起動済み = false;
};

// The folder of a file put on a small tmpfs of its own, which the case fills and frees.
class 小さなディスク {
  public:
    ~小さなディスク() { 外す(); }
    void 外す() {
        if (!フォルダ.isEmpty()) 実行(u"umount"_qs, {u"-l"_qs, フォルダ});
        フォルダ.clear();
    }
    // Mounts the tmpfs over the file's folder and puts the file back on it; false when this
    // machine refuses to mount one. The file must not be open at this point.
    bool 載せる(const QString& ファイル, const QString& 控えフォルダ) {
        const QString 控え = 控えフォルダ + u"/"_qs + QFileInfo(ファイル).fileName() + u".copy"_qs;
        const QString 場所 = QFileInfo(ファイル).absolutePath();
        if (!QFile::copy(ファイル, 控え)) return false;
        if (!実行(u"mount"_qs, {u"-t"_qs, u"tmpfs"_qs, u"-o"_qs, u"size=2m"_qs, u"tmpfs"_qs, 場所}))
            return false;
        フォルダ = 場所;
        return QFile::copy(控え, ファイル);
    }
    // Fills the disk with a filler until no more than 残り bytes are free.
    void 満たす(qint64 残り = 0) {
        QFile f(詰め物());
        if (!f.open(QIODevice::Append)) return;
        const QByteArray 塊(4096, 'x');
        while (QStorageInfo(フォルダ).bytesAvailable() > 残り + 4096 && f.write(塊) == 塊.size()) {
            f.flush();
        }
        // The last page or so byte by byte, until the disk takes no more.
        while (QStorageInfo(フォルダ).bytesAvailable() > 残り && f.write("x", 1) == 1 &&
               f.flush()) {
        }
    }
    bool 空ける() { return QFile::remove(詰め物()); }

  private:
    QString 詰め物() const { return フォルダ + u"/filler"_qs; }
    QString フォルダ;
};
