#include "dataenv/スキーマ適用.h"
#include "text/項目編集.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "dataenv/データ接続.h"

namespace {

QStringList 文に分ける(const QString& 全文) {
    QStringList 文;
    QString 今;
    bool 引用中 = false;
    for (qsizetype i = 0; i < 全文.size(); ++i) {
        const QChar c = 全文.at(i);
        if (!引用中 && c == u'-' && i + 1 < 全文.size() && 全文.at(i + 1) == u'-') {
            while (i < 全文.size() && 全文.at(i) != u'\n') ++i;
            今 += u'\n';
            continue;
        }
        if (c == u'\'') 引用中 = !引用中;
        if (c == u';' && !引用中) {
            if (!今.trimmed().isEmpty()) 文.append(今.trimmed());
            今.clear();
        } else {
            今 += c;
        }
    }
    if (!今.trimmed().isEmpty()) 文.append(今.trimmed());
    return 文;
}

bool 空のSQLiteを作る(const QString& パス, QString& エラー) {
    QFile f(パス);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        エラー = パス + u": "_qs + f.errorString();
        return false;
    }
    return true;
}

bool データベースを作る(データ接続& 接続, const 接続先& 先, const QString& スキーマ,
                        const QString& 種類, QString& エラー) {
    if (!接続.開く(先)) {
        エラー = 接続.最終エラー().説明;
        return false;
    }
    return SQLフォルダ実行(接続, スキーマ + u"/"_qs + 種類, エラー) &&
           SQLファイル実行(接続, スキーマ + u"/seed/"_qs + 種類 + u".sql"_qs, エラー);
}

}  // namespace

bool SQLファイル実行(データ接続& 接続, const QString& ファイル, QString& エラー) {
    QFile f(ファイル);
    if (!f.open(QIODevice::ReadOnly)) {
        エラー = ファイル + u": "_qs + f.errorString();
        return false;
    }
    for (const QString& 文 : 文に分ける(QString::fromUtf8(f.readAll()))) {
        if (!接続.実行(文)) {
            エラー = ファイル + u": "_qs + 接続.最終エラー().説明 + u"\n"_qs + 文;
            return false;
        }
    }
    return true;
}

bool SQLフォルダ実行(データ接続& 接続, const QString& フォルダ, QString& エラー) {
    const QDir d(フォルダ);
    // Tables shared with the general database are defined once, there.
    if (QFile 共用(d.filePath(u"共用.txt"_qs)); 共用.open(QIODevice::ReadOnly)) {
        for (const QString& 行 : QString::fromUtf8(共用.readAll()).split(u'\n')) {
            const QString 表 = 行.trimmed();
            if (表.isEmpty() || 表.startsWith(u'#')) continue;
            if (!SQLファイル実行(接続, d.filePath(u"../general/"_qs + 表 + u".sql"_qs), エラー)) {
                return false;
            }
        }
    }
    for (const QString& 名 : d.entryList({u"*.sql"_qs}, QDir::Files, QDir::Name)) {
        if (!SQLファイル実行(接続, d.filePath(名), エラー)) return false;
    }
    return true;
}

接続先 PostgreSQL接続先(const QString& 接続情報) {
    接続先 先;
    先.エンジン = 接続先::種類::PostgreSQL;
    static const QRegularExpression 項目(u"(\\w+)\\s*=\\s*(\\S*)"_qs);
    for (auto it = 項目.globalMatch(接続情報); it.hasNext();) {
        const auto m = it.next();
        const QString 鍵 = m.captured(1), 値 = m.captured(2);
        if (鍵 == u"host") 先.ホスト = 値;
        if (鍵 == u"port") 先.ポート = 値.toInt();
        if (鍵 == u"dbname") 先.データベース名 = 値;
        if (鍵 == u"user") 先.ユーザー = 値;
        if (鍵 == u"password") 先.パスワード = 値;
    }
    return 先;
}

namespace {

bool フォルダを作る(const QString& 根, std::initializer_list<const char16_t*> 名前,
                    QString& エラー) {
    for (const char16_t* 名 : 名前) {
        if (!QDir().mkpath(根 + u"/"_qs + QString::fromUtf16(名))) {
            エラー = 根 + u": フォルダを作成できません"_qs;
            return false;
        }
    }
    return true;
}

// The configuration file of a tree, and its general database in the file given or on the
// server; the 'GNR' row of the configuration then points at the general database.
bool 二つのデータベースを作る(const QString& 環境DB, const QString& 業務DB,
                              const QString& PostgreSQL接続情報, const QString& スキーマ,
                              const QString& 業務の種類, QString& エラー) {
    if (!空のSQLiteを作る(環境DB, エラー)) return false;
    データ接続 環境(u"tree-conf"_qs);
    接続先 環境先;
    環境先.ファイル = 環境DB;
    if (!データベースを作る(環境, 環境先, スキーマ, u"config"_qs, エラー)) return false;

    データ接続 業務(u"tree-gnr"_qs);
    QString 定義;
    if (PostgreSQL接続情報.isEmpty()) {
        if (!空のSQLiteを作る(業務DB, エラー)) return false;
        接続先 先;
        先.ファイル = 業務DB;
        if (!データベースを作る(業務, 先, スキーマ, 業務の種類, エラー)) return false;
        定義 = u"UPDATE データベース定義 SET db = 'A', データソース名 = "_qs + 引用符で囲む(業務DB);
    } else {
        const 接続先 先 = PostgreSQL接続先(PostgreSQL接続情報);
        if (!データベースを作る(業務, 先, スキーマ, 業務の種類, エラー)) return false;
        const QString サーバー =
            先.ポート > 0 ? 先.ホスト + u":"_qs + QString::number(先.ポート) : 先.ホスト;
        定義 = u"UPDATE データベース定義 SET db = 'P', サーバー名 = "_qs + 引用符で囲む(サーバー) +
               u", データベース名 = "_qs + 引用符で囲む(先.データベース名) + u", ユーザーID = "_qs +
               引用符で囲む(先.ユーザー) + u", パスワード = "_qs + 引用符で囲む(先.パスワード) +
               u", データソース名 = ''"_qs;
    }
    if (!環境.実行(定義 + u" WHERE 情報種類 = 'GNR'"_qs)) {
        エラー = 環境.最終エラー().説明;
        return false;
    }
    return true;
}

bool 複写する(const QString& 元, const QString& 先, QString& エラー) {
    QFile::remove(先);
    if (QFile::copy(元, 先)) return true;
    エラー = 元 + u": 複写できません"_qs;
    return false;
}

}  // namespace

bool ツリー作成(const ツリー作成指定& 指定, QString& エラー) {
    const QString 根 = QDir(指定.根).absolutePath();
    if (!フォルダを作る(根,
                        {u"prgbin", u"conf", u"report", u"manual", u"data", u"users", u"documents"},
                        エラー)) {
        return false;
    }
    // The operator's manual of the sample company, named as the program opens it.
    const QDir 手引き(指定.スキーマフォルダ + u"/seed/manual"_qs);
    for (const QString& 名 : 手引き.entryList(QDir::Files)) {
        if (!複写する(手引き.filePath(名), 根 + u"/manual/"_qs + 名, エラー)) return false;
    }
    for (const QString& プログラム : 指定.複写プログラム) {
        const QString 先 = 根 + u"/prgbin/"_qs + QFileInfo(プログラム).fileName();
        if (!複写する(プログラム, 先, エラー)) return false;
    }
    if (!二つのデータベースを作る(根 + u"/conf/usrcnfg.db"_qs, 根 + u"/data/gnrdb.db"_qs,
                                  指定.PostgreSQL接続情報, 指定.スキーマフォルダ, u"general"_qs,
                                  エラー)) {
        return false;
    }
    データ接続 業務(u"tree-gnr"_qs);
    接続先 業務先;
    if (指定.PostgreSQL接続情報.isEmpty()) {
        業務先.ファイル = 根 + u"/data/gnrdb.db"_qs;
    } else {
        業務先 = PostgreSQL接続先(指定.PostgreSQL接続情報);
    }
    if (!業務.開く(業務先)) {
        エラー = 業務.最終エラー().説明;
        return false;
    }
    // The company keeps its attached documents and PDFs of slips inside the tree.
    QString 文 = u"UPDATE Mユーザ SET ドキュメントフォルダ = "_qs +
                 引用符で囲む(根 + u"/documents"_qs) + u" WHERE ID = '0001'"_qs;
    if (!業務.実行(文)) {
        エラー = 業務.最終エラー().説明;
        return false;
    }
    if (指定.人事根.isEmpty()) return true;

    // The HR system 白樺 in a tree of its own, its files of the second kind only, and the
    // company's link slot for it switched on.
    const QString 人事 = QDir(指定.人事根).absolutePath();
    if (!フォルダを作る(人事, {u"prgbin", u"conf", u"report", u"manual", u"data", u"users"},
                        エラー) ||
        !二つのデータベースを作る(人事 + u"/conf/usrcnfg.sqlite"_qs,
                                  人事 + u"/data/gnrdb.sqlite"_qs, 指定.人事PostgreSQL接続情報,
                                  指定.スキーマフォルダ, u"hrlink"_qs, エラー)) {
        return false;
    }
    文 = u"UPDATE M他業務連携 SET 連携有無区分 = 1, 連携アプリフォルダ = "_qs + 引用符で囲む(人事) +
         u" WHERE コード = '002'"_qs;
    if (!業務.実行(文)) {
        エラー = 業務.最終エラー().説明;
        return false;
    }
    return true;
}
