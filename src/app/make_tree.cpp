#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

#include "dataenv/スキーマ適用.h"
#include "screen/見本履歴.h"

// make-tree DIR [--pg CONNINFO] [--hr] [--hr-pg CONNINFO] [--schema DIR] [--program FILE]...
//           [--slips N]
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTextStream err(stderr);
    const QStringList a = QCoreApplication::arguments();
    ツリー作成指定 指定;
    指定.スキーマフォルダ = QStringLiteral(KONPEKI_SCHEMA_DIR);
    int 件数 = 200;
    bool 人事 = false;
    for (int i = 1; i < a.size(); ++i) {
        const bool 値あり = i + 1 < a.size();
        if (a[i] == u"--pg" && 値あり) {
            指定.PostgreSQL接続情報 = a[++i];
        } else if (a[i] == u"--hr") {
            人事 = true;
        } else if (a[i] == u"--hr-pg" && 値あり) {
            人事 = true;
            指定.人事PostgreSQL接続情報 = a[++i];
        } else if (a[i] == u"--schema" && 値あり) {
            指定.スキーマフォルダ = a[++i];
        } else if (a[i] == u"--program" && 値あり) {
            指定.複写プログラム.append(a[++i]);
        } else if (a[i] == u"--slips" && 値あり) {
            件数 = a[++i].toInt();
        } else if (指定.根.isEmpty() && !a[i].startsWith(u"--")) {
            指定.根 = a[i];
        } else {
            指定.根.clear();
            break;
        }
    }
    if (指定.根.isEmpty()) {
        err << "使い方: make-tree DIR [--pg CONNINFO] [--hr] [--hr-pg CONNINFO] [--schema DIR] "
               "[--program FILE]... [--slips N]\n";
        return 2;
    }
    // The HR system's tree stands beside the suite's.
    if (人事) {
        const QFileInfo 根(指定.根);
        指定.人事根 = 根.absoluteDir().filePath(根.fileName() + u"-白樺"_qs);
    }
    QString エラー;
    if (!ツリー作成(指定, エラー)) {
        err << エラー << "\n";
        return 1;
    }
    // The company's history, typed and stored as its operators would have done.
    if (件数 > 0) {
        const int 保存 = 見本履歴作成(QDir(指定.根).absoluteFilePath(u"prgbin"_qs),
                                      QDate::currentDate(), 件数, エラー);
        if (保存 < 0) {
            err << エラー << "\n";
            return 1;
        }
        QTextStream(stdout) << "伝票 " << 保存 << " 件を登録しました。\n";
    }
    return 0;
}
