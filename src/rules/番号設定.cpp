#include "rules/番号設定.h"

#include <optional>
#include <utility>

#include "dataenv/データ環境.h"
#include "rules/集計日付計算.h"
#include "text/プラットフォーム.h"
#include "text/数値変換.h"
#include "text/数値書式.h"
#include "text/暦.h"

namespace {

enum class 採番種別 { 参照, 採番, 履歴 };

QString 番号情報読込文(const QString& 番号ID) {
    return u"SELECT A番号情報.*"_qs + u" FROM A番号情報"_qs + u" WHERE A番号情報.番号ID = '"_qs +
           番号ID + u"'"_qs;
}

QString 期日別読込文(const QString& 番号ID, const QString& 期日) {
    return u"SELECT A期日別番号情報.*"_qs + u" FROM A期日別番号情報"_qs +
           u" WHERE A期日別番号情報.番号ID = '"_qs + 番号ID + u"' AND A期日別番号情報.期日 = '"_qs +
           期日 + u"'"_qs;
}

QString 事業所別読込文(const QString& 番号ID, const QString& 事業所コード) {
    return u"SELECT A事業所別番号情報.*"_qs + u" FROM A事業所別番号情報"_qs +
           u" WHERE A事業所別番号情報.事業所コード = '"_qs + 事業所コード +
           u"' AND A事業所別番号情報.番号ID = '"_qs + 番号ID + u"'"_qs;
}

// The peek's wording names the dated table in its condition, so it fails on every engine.
QString 事業所別参照読込文(const QString& 番号ID, const QString& 事業所コード) {
    return u"SELECT A事業所別番号情報.*"_qs + u" FROM A事業所別番号情報"_qs +
           u" WHERE A事業所別番号情報.事業所コード = '"_qs + 事業所コード +
           u"' AND A事業所別期日別番号情報.番号ID = '"_qs + 番号ID + u"' "_qs;
}

QString 事業所別期日別読込文(const QString& 番号ID, const QString& 期日,
                             const QString& 事業所コード) {
    return u"SELECT A事業所別期日別番号情報.*"_qs + u" FROM A事業所別期日別番号情報"_qs +
           u" WHERE A事業所別期日別番号情報.事業所コード = '"_qs + 事業所コード +
           u"' AND A事業所別期日別番号情報.番号ID = '"_qs + 番号ID +
           u"' AND A事業所別期日別番号情報.期日 = '"_qs + 期日 + u"'"_qs;
}

bool 行あり(const 番号環境& 環境, const QString& 文) {
    記録集合 rs;
    const bool 有 = 環境.検索(rs, 文);
    rs.閉じる();
    return 有;
}

// One column of the row the statement finds, or nothing. Each result is closed before anything
// is written, so that no reader holds an old snapshot of the file while a counter moves.
std::optional<QString> 列読込(const 番号環境& 環境, const QString& 文, const QString& 列) {
    記録集合 rs;
    std::optional<QString> 結果;
    if (環境.検索(rs, 文)) 結果 = rs.文字列(列);
    rs.閉じる();
    return 結果;
}

QString 次の番号(const QString& 計数) {
    const QString 次 = 書式(数値変換(計数) + 1, 数値書式::八桁);
    return 次 == 番号定数::番号なし ? 番号定数::最初の番号.toString() : 次;
}

QString 更新文(const QString& 表, const QString& 列, const QString& 番号, const QString& 条件) {
    return u"UPDATE "_qs + 表 + u" SET "_qs + u" "_qs + 列 + u" = '"_qs + 番号 + u"'"_qs +
           u" WHERE "_qs + 条件;
}

QString 次番号手続(const 番号環境& 環境, bool 事業所別, 採番種別 種別, const QString& 番号ID,
                   const QString& 基準日付, const QString& 事業所コード) {
    const QString 列 = 種別 == 採番種別::履歴 ? u"履歴連番"_qs : u"連番"_qs;
    QString 結果;

    記録集合 rs;
    const bool 情報あり = 環境.検索(rs, 番号情報読込文(番号ID));
    const double 種類 = 情報あり ? 数値変換(rs.文字列(u"連番種類"_qs)) : 0;
    const QString 全社計数 = rs.文字列(列);
    rs.閉じる();

    if (!情報あり) {
        結果 = 番号定数::番号なし.toString();
    } else {
        const bool 期日別 =
            種別 == 採番種別::履歴 ? 種類 > 0 && 種類 < 4 : 種類 == 1 || 種類 == 2 || 種類 == 3;
        // A manual kind still keeps a running history sequence in the plain table.
        const bool 手入力 = 種別 != 採番種別::履歴 && !期日別 && 種類 != 0;

        if (手入力) {
            if (事業所別) {
                事業所別期日別番号行確保(環境, 番号ID, 基準日付, 事業所コード);
            } else {
                期日別番号行確保(環境, 番号ID, 基準日付);
            }
            return 結果;
        }

        std::optional<QString> 計数;
        QString 表, 条件;
        if (期日別 && 事業所別) {
            事業所別期日別番号行確保(環境, 番号ID, 基準日付, 事業所コード);
            計数 = 列読込(環境, 事業所別期日別読込文(番号ID, 基準日付, 事業所コード), 列);
            表 = u"A事業所別期日別番号情報"_qs;
            条件 = u"A事業所別期日別番号情報.事業所コード = '"_qs + 事業所コード +
                   u"' AND A事業所別期日別番号情報.番号ID = '"_qs + 番号ID +
                   u"' AND A事業所別期日別番号情報.期日 = '"_qs + 基準日付 + u"'"_qs;
        } else if (期日別) {
            期日別番号行確保(環境, 番号ID, 基準日付);
            計数 = 列読込(環境, 期日別読込文(番号ID, 基準日付), 列);
            表 = u"A期日別番号情報"_qs;
            条件 = u"A期日別番号情報.番号ID = '"_qs + 番号ID +
                   u"' AND A期日別番号情報.期日 = '"_qs + 基準日付 + u"'"_qs;
        } else if (事業所別) {
            事業所別番号行確保(環境, 番号ID, 事業所コード);
            計数 = 列読込(環境,
                          種別 == 採番種別::参照 ? 事業所別参照読込文(番号ID, 事業所コード)
                                                 : 事業所別読込文(番号ID, 事業所コード),
                          列);
            表 = u"A事業所別番号情報"_qs;
            条件 = u"A事業所別番号情報.事業所コード = '"_qs + 事業所コード +
                   u"' AND A事業所別番号情報.番号ID = '"_qs + 番号ID + u"'"_qs;
        } else {
            計数 = 全社計数;
            表 = u"A番号情報"_qs;
            条件 = u"A番号情報.番号ID = '"_qs + 番号ID + u"'"_qs;
        }

        // A row that could not be read leaves the number empty; a take still writes it, to a
        // row that does not exist.
        if (計数) 結果 = 次の番号(*計数);
        if (種別 != 採番種別::参照 && 結果 != 番号定数::番号なし) {
            環境.実行(更新文(表, 列, 結果, 条件));
        }
    }

    if (結果 == 番号定数::番号なし) 環境.基盤.メッセージ(番号情報エラー文言.toString());
    return 結果;
}

// The front operations tell the operator again what the routine behind them already told.
QString 二度目の知らせ(const 番号環境& 環境, const QString& 番号) {
    if (番号 == 番号定数::番号なし) 環境.基盤.メッセージ(番号情報エラー文言.toString());
    return 番号;
}

bool 全社番号管理(const 番号環境& 環境) {
    return 環境.会社.伝票番号管理区分 == 0;
}

}  // namespace

番号環境::番号環境(データ環境& e) : 番号環境(e.接続(), e.会社設定().会社()) {}

番号環境::番号環境(接続環境& 接続, const 会社情報& 会社_)
    : 検索([&接続](記録集合& rs, const QString& 文) { return 接続.業務DB検索(rs, 文); }),
      実行([&接続](const QString& 文) { return 接続.業務DB実行(文); }),
      基盤(接続.基盤()),
      会社(会社_) {}

番号環境::番号環境(データ接続& 接続, 接続環境& 記録先, const 会社情報& 会社_)
    : 検索([&接続, &記録先](記録集合& rs, const QString& 文) {
          if (!接続.検索(rs, 文)) {
              記録先.エラー履歴書込(接続.最終エラー().説明 + 文);
              return false;
          }
          return !rs.EOFか();
      }),
      実行([&接続, &記録先](const QString& 文) {
          if (!接続.実行(文)) {
              記録先.エラー履歴書込(接続.最終エラー().説明 + 文);
              return false;
          }
          return true;
      }),
      基盤(記録先.基盤()),
      会社(会社_) {}

番号環境::番号環境(検索関数 検索_, 実行関数 実行_, プラットフォーム& 基盤_, const 会社情報& 会社_)
    : 検索(std::move(検索_)), 実行(std::move(実行_)), 基盤(基盤_), 会社(会社_) {}

基準日付候補 基準日付候補::計算(const QString& 日付, const QString& 今日, const 会社情報& 会社) {
    const QString d = 日付 == 番号定数::永続基準日付 ? 今日 : 日付;
    return {年度終了日計算(会社, d), 集計日付計算(会社, d), d};
}

QString 基準日付候補::種類別(double 連番種類, QStringView 不明時) const {
    if (連番種類 == 0) return 番号定数::永続基準日付.toString();
    if (連番種類 == 1) return 年度終了日;
    if (連番種類 == 2) return 集計日付;
    if (連番種類 == 3) return 日付;
    return 不明時.toString();
}

QString 番号基準日付取得(const 番号環境& 環境, const QString& 番号ID, const QString& 日付) {
    const auto 候補 = 基準日付候補::計算(日付, 今日(環境.基盤), 環境.会社);
    記録集合 rs;
    QString 結果;
    if (環境.検索(rs, 番号情報読込文(番号ID))) {
        結果 = 候補.種類別(数値変換(rs.文字列(u"連番種類"_qs)), 番号定数::手入力基準日付);
    }
    rs.閉じる();
    return 結果;
}

QString 次番号参照(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                   const QString& 事業所コード) {
    return 二度目の知らせ(環境, 全社番号管理(環境)
                                    ? 全社次番号参照(環境, 番号ID, 基準日付)
                                    : 事業所別次番号参照(環境, 番号ID, 基準日付, 事業所コード));
}

QString 次番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                   const QString& 事業所コード) {
    return 二度目の知らせ(環境, 全社番号管理(環境)
                                    ? 全社次番号採番(環境, 番号ID, 基準日付)
                                    : 事業所別次番号採番(環境, 番号ID, 基準日付, 事業所コード));
}

QString 次履歴番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                       const QString& 事業所コード) {
    return 二度目の知らせ(環境, 全社番号管理(環境)
                                    ? 全社次履歴番号採番(環境, 番号ID, 基準日付)
                                    : 事業所別次履歴番号採番(環境, 番号ID, 基準日付, 事業所コード));
}

QString 全社次番号参照(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付) {
    return 次番号手続(環境, false, 採番種別::参照, 番号ID, 基準日付, {});
}

QString 全社次番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付) {
    return 次番号手続(環境, false, 採番種別::採番, 番号ID, 基準日付, {});
}

QString 全社次履歴番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付) {
    return 次番号手続(環境, false, 採番種別::履歴, 番号ID, 基準日付, {});
}

QString 事業所別次番号参照(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                           const QString& 事業所コード) {
    return 次番号手続(環境, true, 採番種別::参照, 番号ID, 基準日付, 事業所コード);
}

QString 事業所別次番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                           const QString& 事業所コード) {
    return 次番号手続(環境, true, 採番種別::採番, 番号ID, 基準日付, 事業所コード);
}

QString 事業所別次履歴番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                               const QString& 事業所コード) {
    return 次番号手続(環境, true, 採番種別::履歴, 番号ID, 基準日付, 事業所コード);
}

void 期日別番号行確保(const 番号環境& 環境, const QString& 番号ID, const QString& 期日) {
    if (行あり(環境, 期日別読込文(番号ID, 期日))) return;
    const auto ID = 列読込(環境, 番号情報読込文(番号ID), u"番号ID"_qs);
    if (!ID) return;
    環境.実行(u"INSERT INTO [A期日別番号情報] "_qs + u"([番号ID]"_qs + u",[期日]"_qs +
              u",[連番]"_qs + u",[履歴連番])"_qs + u" VALUES "_qs + u"('"_qs + *ID + u"'"_qs +
              u",'"_qs + 期日 + u"'"_qs + u",'00000000'"_qs + u",'00000000')"_qs);
}

void 事業所別番号行確保(const 番号環境& 環境, const QString& 番号ID, const QString& 事業所コード) {
    if (行あり(環境, 事業所別読込文(番号ID, 事業所コード))) return;
    const auto ID = 列読込(環境, 番号情報読込文(番号ID), u"番号ID"_qs);
    if (!ID) return;
    環境.実行(u"INSERT INTO [A事業所別番号情報] "_qs + u"([事業所コード]"_qs + u",[番号ID]"_qs +
              u",[連番]"_qs + u",[履歴連番])"_qs + u" VALUES "_qs + u"('"_qs + 事業所コード +
              u"'"_qs + u",'"_qs + *ID + u"'"_qs + u",'00000000'"_qs + u",'00000000')"_qs);
}

void 事業所別期日別番号行確保(const 番号環境& 環境, const QString& 番号ID, const QString& 期日,
                              const QString& 事業所コード) {
    if (行あり(環境, 事業所別期日別読込文(番号ID, 期日, 事業所コード))) return;
    // The condition names A事業所別番号情報, which the statement does not read: the read fails
    // and no row is ever made here.
    const auto ID = 列読込(環境,
                           u"SELECT A番号情報.*"_qs + u" FROM A番号情報"_qs +
                               u" WHERE A事業所別番号情報.番号ID = '"_qs + 番号ID + u"'"_qs,
                           u"番号ID"_qs);
    if (!ID) return;
    環境.実行(u"INSERT INTO [A事業所別期日別番号情報] "_qs + u"([事業所コード]"_qs +
              u",[番号ID]"_qs + u",[期日]"_qs + u",[連番]"_qs + u",[履歴連番])"_qs +
              u" VALUES "_qs + u"('"_qs + 事業所コード + u"'"_qs + u",'"_qs + *ID + u"'"_qs +
              u",'"_qs + 期日 + u"'"_qs + u",'00000000'"_qs + u",'00000000')"_qs);
}

void 更新プログラム起動(接続環境& 接続, const QString& 番号ID) {
    記録集合 rs;
    QString プログラム;
    if (接続.業務DB検索(
            rs, u"SELECT 更新プログラム FROM A番号情報 WHERE 番号ID = '"_qs + 番号ID + u"'"_qs)) {
        プログラム = rs.文字列(u"更新プログラム"_qs);
    }
    rs.閉じる();
    if (プログラム.isEmpty()) return;
    const QString フォルダ = 接続.環境().プログラムフォルダ;
    接続.基盤().プログラム起動(フォルダ + u"/"_qs + プログラム, {}, フォルダ);
}

QString 未使用番号採番(const std::function<QString()>& 採番,
                       const std::function<bool(const QString&)>& 使用済み) {
    QString 番号;
    do {
        番号 = 採番();
    } while (使用済み(番号));
    return 番号;
}
