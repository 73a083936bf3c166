#include "dataenv/操作権限.h"

#include "dataenv/会社環境.h"
#include "dataenv/接続環境.h"
#include "dataenv/操作者環境.h"
#include "text/プラットフォーム.h"
#include "text/数値変換.h"

namespace {

// Only these menus keep rows of their own in 担当者別操作許可プログラム; any other menu name
// looks the program up whatever the menu of the row.
bool 業務メニューか(const QString& 名) {
    for (const char16_t* m : {u"翠嶺", u"翠嶺データ管理", u"翠嶺補助機能", u"翠嶺サービスメニュ"}) {
        if (名 == QStringView(m)) return true;
    }
    return false;
}

void 文字列で写す(const 記録集合& rs, const char16_t* 名, QString& 先) {
    const QString 列名 = QString::fromUtf16(名);
    if (!rs.Null(列名)) 先 = rs.文字列(列名);
}

}  // namespace

QString 処理分類列名(int 分類) {
    return u"処理分類"_qs + QString::number(分類) + u"操作許可"_qs;
}

QString* 操作者情報::権限(short 操作区分) {
    if (操作区分 < 0 || 操作区分 > 7) return nullptr;
    return &(this->*操作区分別権限[操作区分].second);
}

void 操作権限列読込(const 記録集合& rs, 操作者情報& 先) {
    for (const auto& [名, 欄] : 操作区分別権限) 先.*欄 = rs.文字列(QString::fromUtf16(名));
}

bool 権限値許可(const QString& 値) {
    try {
        return 数値変換(値) == 0;
    } catch (const std::exception&) {
        return false;  // a value beyond any number is no permission
    }
}

操作者環境::操作者環境(接続環境& 接続_, const 会社環境& 会社設定_)
    : 接続(接続_), 会社設定(会社設定_) {}

bool 操作者環境::操作者読込() {
    操作者_.担当者コード.clear();
    記録集合 rs;
    if (接続.環境DB検索(rs, u"SELECT * FROM 動作環境定義 WHERE 動作環境定義ID = '001'"_qs) &&
        !rs.Null(u"起動担当者コード"_qs)) {
        操作者_.担当者コード = rs.文字列(u"起動担当者コード"_qs);
    }
    rs.閉じる();
    // Another program may have changed the operator meanwhile: what this run writes from now
    // on carries the one read here.
    接続.起動担当者コード設定(操作者_.担当者コード);
    return !操作者_.担当者コード.trimmed().isEmpty();
}

bool 操作者環境::操作者情報読込(const QString& 担当者コード) {
    記録集合 rs;
    const bool 行あり =
        接続.業務DB検索(rs, u"SELECT M担当者.*"_qs + u" FROM M担当者"_qs +
                                u" WHERE M担当者.コード = '"_qs + 担当者コード + u"'"_qs);
    if (行あり) {
        // A Null column leaves what the record held.
        auto& o = 操作者_;
        文字列で写す(rs, u"コード", o.担当者コード);
        文字列で写す(rs, u"氏名", o.氏名);
        文字列で写す(rs, u"事業所コード", o.事業所コード);
        文字列で写す(rs, u"部門コード", o.部門コード);
        文字列で写す(rs, u"セクションコード", o.セクションコード);
        文字列で写す(rs, u"役職コード", o.役職コード);
        文字列で写す(rs, u"ログインID", o.ログインID);
        if (!rs.Null(u"社員区分"_qs)) o.社員区分 = rs.整数(u"社員区分"_qs);
        if (!rs.Null(u"アクセス権限"_qs)) o.アクセス権限 = rs.整数(u"アクセス権限"_qs);
        for (int i = 0; i < 10; ++i) {
            const QString 列名 = 処理分類列名(i);
            if (!rs.Null(列名)) o.処理分類操作許可[i] = rs.文字列(列名);
        }
        for (const auto& [名, 欄] : 操作区分別権限) 文字列で写す(rs, 名, o.*欄);
    }
    rs.閉じる();
    return 行あり;
}

void 操作者環境::操作者確定() {
    const QString コード = 操作者_.担当者コード;
    if (コード.trimmed().isEmpty()) return;
    if (!接続.環境DB実行記録付(u"UPDATE 動作環境定義 SET "_qs + u"起動担当者コード = '"_qs +
                               コード + u"' "_qs + u" WHERE 動作環境定義ID = '001'"_qs)) {
        接続.基盤().メッセージ(u"データベースに問題が発生し修正できませんでした。"_qs);
        return;
    }
    接続.起動担当者コード設定(コード);
    操作者情報読込(コード);
}

bool 操作者環境::操作権限判定(const QString& 業務メニュー, const QString& プログラムID_,
                              short 操作区分) {
    bool 判定 = false;
    bool 発見 = false;
    if (!操作者_.担当者コード.isEmpty()) {
        QString 文 = u"SELECT 担当者別操作許可プログラム.*"_qs +
                     u" FROM 担当者別操作許可プログラム"_qs +
                     u" WHERE 担当者別操作許可プログラム.担当者コード = '"_qs +
                     操作者_.担当者コード + u"'"_qs;
        if (業務メニューか(業務メニュー)) {
            文 += u" AND 担当者別操作許可プログラム.業務メニュ = '"_qs + 業務メニュー + u"'"_qs;
        }
        文 += u" AND 担当者別操作許可プログラム.プログラムID = '"_qs + プログラムID_ + u"'"_qs;
        記録集合 rs;
        if (接続.業務DB検索(rs, 文)) {
            // The operator's own row for the program replaces his general rights.
            操作権限列読込(rs, 操作者_);
            判定 = 権限値許可(操作者_.操作許可);
            発見 = true;
        }
        rs.閉じる();
    }
    if (!発見) {
        記録集合 rs;
        if (接続.環境DB検索(rs, u"SELECT *"_qs + u" FROM "_qs + 業務メニュー +
                                    u" WHERE プログラムID = '"_qs + プログラムID_ + u"'"_qs)) {
            const short 分類 = rs.整数(u"処理分類"_qs);
            if (分類 == 3) {
                // Branch work: a company without branches may do it, its head office never.
                if (会社設定.事業所件数() <= 0) {
                    判定 = true;
                } else if (接続.環境().運用事業所コード == u"000") {
                    判定 = false;
                } else {
                    判定 = 権限値許可(操作者_.処理分類操作許可[3]);
                }
            } else if (分類 >= 0 && 分類 <= 9) {
                判定 = 権限値許可(操作者_.処理分類操作許可[分類]);
            } else {
                判定 = true;
            }
        }
        rs.閉じる();
    }
    if (判定) {
        if (const QString* 権利 = 操作者_.権限(操作区分); 権利 && !権限値許可(*権利)) 判定 = false;
    }
    return 判定;
}

bool 操作者環境::操作権限照会(const QString& 業務メニュー, const QString& プログラムID_,
                              short 操作区分) {
    権限確認済_ = false;
    if (!操作者読込()) return false;
    if (!操作者情報読込(操作者_.担当者コード)) return false;
    const bool 判定 = 操作権限判定(業務メニュー, プログラムID_, 操作区分);
    if (判定) 権限確認済_ = true;
    return 判定;
}

short 操作者環境::操作権限確認(const QString& 業務メニュー, const QString& プログラムID_,
                               short 操作区分) {
    操作権限照会(業務メニュー, プログラムID_, 操作区分);
    // A company without PINs does not enforce rights at all.
    if (会社設定.暗証番号要否() != 1) return -1;
    if (権限確認済_) return -1;
    暗証確認題名_ = 業務メニュー + u"/暗証確認"_qs;
    接続.基盤().画面表示(u"msg暗証番号確認"_qs, true);
    if (!権限確認済_) return 0;
    return 操作権限判定(業務メニュー, プログラムID_, 操作区分) ? -1 : 1;
}

QString 操作者環境::画面タイトル設定() {
    const QString& 事業所コード = 接続.環境().運用事業所コード;
    QString 事業所名;
    記録集合 rs;
    if (接続.業務DB検索(rs,
                        u"SELECT * FROM M事業所 WHERE コード = '"_qs + 事業所コード + u"'"_qs)) {
        事業所名 = rs.文字列(u"名称"_qs);
    }
    rs.閉じる();

    QString 題 = 接続.プログラムID();
    const std::pair<const char16_t*, const char16_t*> 呼び名[] = {
        {u"翠嶺データ管理", u"データ管理"},
        {u"翠嶺補助機能", u"補助機能"},
        {u"翠嶺サービスメニュ", u"サービスメニュー"},
        {u"翠嶺マイメニュ", u"マイメニュー"},
    };
    for (const auto& [ID, 名] : 呼び名) {
        if (接続.プログラムID() == QStringView(ID)) 題 = QString::fromUtf16(名);
    }
    if (事業所コード != u"000") {
        if (!事業所名.trimmed().isEmpty()) 題 += u"("_qs + 事業所名 + u")"_qs;
    } else if (会社設定.事業所件数() > 0) {
        題 += u"(全社)"_qs;
    }
    if (!操作者_.担当者コード.isEmpty()) 題 += u"「"_qs + 操作者_.氏名 + u"」"_qs;
    return 題;
}
