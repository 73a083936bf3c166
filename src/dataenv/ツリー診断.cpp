#include <QDir>
#include <QFileInfo>

#include "dataenv/接続環境.h"

ツリー診断結果 接続環境::ツリー診断() const {
    ツリー診断結果 結果;
    // A program outside a prgbin has no tree: it is told where it stands.
    if (環境_.ルートフォルダ.isEmpty()) {
        結果.状態 = ツリー状態::無い;
        結果.フォルダ = QDir::cleanPath(自身のフォルダ_);
        return 結果;
    }
    const QFileInfo 設定(環境_.ルートフォルダ + u"/conf"_qs);
    結果.フォルダ = QDir::cleanPath(設定.isSymLink() ? QFileInfo(設定.symLinkTarget()).path()
                                                     : 環境_.ルートフォルダ);
    if (!設定.exists()) {
        結果.状態 = ツリー状態::無い;
        return 結果;
    }
    // The run writes its history there from its start, and SQLite its journal beside it.
    if (!設定.isDir() || !設定.isReadable() || !設定.isExecutable() || !設定.isWritable()) {
        結果.状態 = ツリー状態::読めない;
        return 結果;
    }
    for (const QString& 名 : {u"usrcnfg.db"_qs, u"usrcnfg.sqlite"_qs}) {
        const QFileInfo f(設定.filePath() + u"/"_qs + 名);
        if (!f.exists()) continue;
        if (!f.isFile() || !f.isReadable() || !f.isWritable()) 結果.状態 = ツリー状態::読めない;
        return 結果;
    }
    結果.状態 = ツリー状態::無い;
    return 結果;
}
