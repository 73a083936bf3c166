#include "dataenv/データベース定義.h"

bool データベース定義を写す(const 記録集合& rs, データベース定義値& 値) {
    for (const char16_t* 列 : {u"db", u"dbmw"}) {
        if (rs.Null(QString::fromUtf16(列))) return false;
    }
    値.db = rs.文字列(u"db"_qs).trimmed();
    値.dbmw = rs.文字列(u"dbmw"_qs).trimmed();
    const std::pair<const char16_t*, QString*> 列[] = {
        {u"プロバイダ名", &値.プロバイダ名}, {u"データベース名", &値.データベース名},
        {u"ドライバ名", &値.ドライバ名},     {u"ユーザーID", &値.ユーザーID},
        {u"パスワード", &値.パスワード},     {u"データソース名", &値.データソース名},
        {u"サーバー名", &値.サーバー名},     {u"接続文字列", &値.接続文字列},
    };
    for (const auto& [名, 先] : 列) {
        const QString 列名 = QString::fromUtf16(名);
        if (!rs.Null(列名)) *先 = rs.文字列(列名).trimmed();
    }
    return true;
}

bool 業務DB接続先(const データベース定義値& e, 接続先& 先) {
    先 = {};
    if (e.db == u"A") {
        先.エンジン = 接続先::種類::SQLite;
        先.ファイル = e.データソース名;
    } else if (e.db == u"P") {
        先.エンジン = 接続先::種類::PostgreSQL;
        const qsizetype 区切り = e.サーバー名.lastIndexOf(u':');
        先.ホスト = 区切り < 0 ? e.サーバー名 : e.サーバー名.left(区切り);
        先.ポート = 区切り < 0 ? 0 : e.サーバー名.mid(区切り + 1).toInt();
        先.データベース名 = e.データベース名;
        先.ユーザー = e.ユーザーID;
        先.パスワード = e.パスワード;
    } else if (e.db == u"S" || e.db == u"O") {
        先.エンジン = 接続先::種類::ODBC;
        先.ユーザー = e.ユーザーID;
        先.パスワード = e.パスワード;
        先.ODBC接続文字列 = e.db == u"S"
                                ? u"DRIVER={"_qs + e.プロバイダ名 + u"};SERVER="_qs + e.サーバー名 +
                                      u";DATABASE="_qs + e.データベース名 + u";"_qs
                                : u"DSN="_qs + e.データソース名 + u";"_qs;
    } else {
        return false;
    }
    return true;
}
