// Plays a sibling program of the suite: it writes a request row into the configuration
// database of a fresh sample tree, starts the slip program with the request's text on its
// command line, waits for the program to end and checks the answer row it left.
//   konpeki-sibling PROGRAM [REPORT-PROGRAM]
#include <QCoreApplication>
#include <QDateTime>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include "dataenv/スキーマ適用.h"
#include "dataenv/データ接続.h"

namespace {

QTextStream 出力(stdout);

int 失敗(const QString& 理由) {
    出力 << "NG: " << 理由 << Qt::endl;
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList a = QCoreApplication::arguments();
    if (a.size() < 2) return 失敗(u"使い方: konpeki-sibling PROGRAM"_qs);
    QTemporaryDir 一時;
    ツリー作成指定 指定;
    指定.根 = 一時.path() + u"/tree"_qs;
    指定.スキーマフォルダ = QStringLiteral(KONPEKI_SCHEMA_DIR);
    指定.複写プログラム = a.mid(1);
    QString エラー;
    if (!ツリー作成(指定, エラー)) return 失敗(エラー);

    データ接続 環境(u"sibling-conf"_qs);
    接続先 先;
    先.ファイル = 指定.根 + u"/conf/usrcnfg.db"_qs;
    if (!環境.開く(先)) return 失敗(環境.最終エラー().説明);

    // A linked new start for office 001: the text is the key of the handshake.
    const QString 起動連携情報 = u"0010000000000000000"_qs;
    const QString 今 = QDateTime::currentDateTime().toString(u"yyyyMMdd HHmmss"_qs);
    if (!環境.実行(u"INSERT INTO プログラム連携情報 (発信日時, 発信プログラムID, 受信プログラムID, "
                   u"受信期限, 連携区分, 起動連携情報, 終了連携情報, 運用事業所コード, "
                   u"起動担当者コード, ユーザID) VALUES ('"_qs +
                   今 + u"', '翠嶺', '紺碧帳', '"_qs + 今 + u"', '00', '"_qs + 起動連携情報 +
                   u"', '', '000', '00001', 'sibling')"_qs)) {
        return 失敗(環境.最終エラー().説明);
    }

    // The operator closes the window as soon as it is up, having stored nothing.
    QProcess 紺碧帳;
    auto env = QProcessEnvironment::systemEnvironment();
    env.insert(u"QT_QPA_PLATFORM"_qs, u"offscreen"_qs);
    env.insert(u"KONPEKI_CLOSE_WHEN_SHOWN"_qs, u"1"_qs);
    env.insert(u"TMPDIR"_qs, 一時.path());
    紺碧帳.setProcessEnvironment(env);
    紺碧帳.start(指定.根 + u"/prgbin/紺碧帳"_qs, {起動連携情報});
    if (!紺碧帳.waitForFinished(60000)) return 失敗(u"紺碧帳が終わりません"_qs);

    記録集合 rs;
    if (!環境.検索(rs,
                   u"SELECT 連携区分, 発信プログラムID, 受信プログラムID, 起動連携情報, "
                   u"終了連携情報 FROM プログラム連携情報 ORDER BY 連携区分"_qs)) {
        return 失敗(環境.最終エラー().説明);
    }
    QStringList 行;
    for (; !rs.EOFか(); rs.MoveNext()) {
        QStringList 列;
        for (int i = 0; i < rs.列数(); ++i) 列.append(rs.値(i).toString());
        行.append(列.join(u'|'));
    }
    rs.閉じる();
    const QString 期待 = u"99|翠嶺|紺碧帳|"_qs + 起動連携情報 + u"|"_qs;
    if (行 != QStringList{期待}) {
        return 失敗(u"連携の行が違います: "_qs + 行.join(u" / "_qs) + u" (期待: "_qs + 期待 +
                    u")"_qs);
    }
    出力 << "OK: " << 行.first() << Qt::endl;
    return 0;
}
