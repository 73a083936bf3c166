#include "rules/白樺連携番号設定.h"

#include "dataenv/会社情報.h"
#include "text/数値変換.h"
#include "text/暦.h"

namespace {

QString 種類読込後基準日付(const 番号環境& 連携, const 基準日付候補& 候補, const QString& 文) {
    記録集合 rs;
    QString 結果;
    if (連携.検索(rs, 文)) {
        結果 = 候補.種類別(数値変換(rs.文字列(u"連番種類"_qs)), 番号定数::永続基準日付);
    }
    rs.閉じる();
    return 結果;
}

QString 番号情報読込文(const QString& 番号ID) {
    return u"SELECT A番号情報.*"_qs + u" FROM A番号情報"_qs + u" WHERE A番号情報.番号ID = '"_qs +
           番号ID + u"'"_qs;
}

QString 事業所別読込文(const QString& 番号ID, const QString& 事業所コード) {
    return u"SELECT A事業所別番号情報.*"_qs + u" FROM A事業所別番号情報"_qs +
           u" WHERE A事業所別番号情報.事業所コード = '"_qs + 事業所コード +
           u"' AND A事業所別番号情報.番号ID = '"_qs + 番号ID + u"'"_qs;
}

}  // namespace

QString 連携番号基準日付取得(const 番号環境& 連携, const QString& 番号ID, const QString& 日付,
                             const QString& 事業所コード) {
    if (連携.会社.伝票番号管理区分 != 0) {
        return 連携事業所別番号基準日付取得(連携, 番号ID, 日付, 事業所コード);
    }
    return 連携全社番号基準日付取得(連携, 番号ID, 日付);
}

QString 連携全社番号基準日付取得(const 番号環境& 連携, const QString& 番号ID, const QString& 日付) {
    const auto 候補 = 基準日付候補::計算(日付, 今日(連携.基盤), 連携.会社);
    return 種類読込後基準日付(連携, 候補, 番号情報読込文(番号ID));
}

QString 連携事業所別番号基準日付取得(const 番号環境& 連携, const QString& 番号ID,
                                     const QString& 日付, const QString& 事業所コード) {
    const auto 候補 = 基準日付候補::計算(日付, 今日(連携.基盤), 連携.会社);
    連携事業所別番号行確保(連携, 番号ID, 事業所コード);
    return 種類読込後基準日付(連携, 候補, 事業所別読込文(番号ID, 事業所コード));
}

void 連携事業所別番号行確保(const 番号環境& 連携, const QString& 番号ID,
                            const QString& 事業所コード) {
    記録集合 rs;
    const bool 既存 = 連携.検索(rs, 事業所別読込文(番号ID, 事業所コード));
    rs.閉じる();
    if (既存) return;
    if (!連携.検索(rs, 番号情報読込文(番号ID))) {
        rs.閉じる();
        return;
    }
    const QString ID = rs.文字列(u"番号ID"_qs);
    const QString 名称 = rs.文字列(u"名称"_qs);
    const QString 連番種類 = rs.文字列(u"連番種類"_qs);
    rs.閉じる();
    連携.実行(u"INSERT INTO [A事業所別番号情報] "_qs + u"([事業所コード]"_qs + u",[番号ID]"_qs +
              u",[名称]"_qs + u",[連番種類]"_qs + u",[連番]"_qs + u",[履歴連番])"_qs +
              u" VALUES "_qs + u"('"_qs + 事業所コード + u"'"_qs + u",'"_qs + ID + u"'"_qs +
              u",'"_qs + 名称 + u"'"_qs + u",'"_qs + 連番種類 + u"'"_qs + u",'00000000'"_qs +
              u",'00000000')"_qs);
}
