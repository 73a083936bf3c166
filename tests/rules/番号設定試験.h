#pragma once

#include <gtest/gtest.h>

#include <QStringList>

#include "common/エンジン別試験.h"

// The sample company opened as the program opens it, with readers of the tables that numbering,
// the queue and the browse records write.
class 番号設定試験 : public エンジン別試験 {
  protected:
    void 起動() {
        ASSERT_NO_FATAL_FAILURE(開く());
        ASSERT_TRUE(環境.会社設定().基本項目読込());
    }

    // Rows as "a|b|c", so that a whole table compares in one assertion.
    static QStringList 行一覧(const QList<QVariantList>& 行) {
        QStringList 結果;
        for (const auto& 列 : 行) {
            QStringList 値;
            for (const auto& v : 列) 値.append(v.isNull() ? u"<NULL>"_qs : v.toString());
            結果.append(値.join(u'|'));
        }
        return 結果;
    }
    QStringList 業務表(const QString& 文) { return 行一覧(木->業務DB行(文)); }
    QStringList 環境表(const QString& 文) { return 行一覧(木->環境DB行(文)); }

    QStringList 番号情報(const QString& 番号ID) {
        return 業務表(u"SELECT 連番, 履歴連番 FROM A番号情報 WHERE 番号ID = '"_qs + 番号ID +
                      u"'"_qs);
    }
    QStringList 期日別() {
        return 業務表(
            u"SELECT 番号ID, 期日, 連番, 履歴連番 FROM A期日別番号情報 ORDER BY 番号ID, 期日"_qs);
    }
    QStringList 事業所別() {
        return 業務表(
            u"SELECT 事業所コード, 番号ID, 連番, 履歴連番 FROM A事業所別番号情報"
            " ORDER BY 事業所コード, 番号ID"_qs);
    }
    QStringList 事業所別期日別() {
        return 業務表(
            u"SELECT 事業所コード, 番号ID, 期日, 連番, 履歴連番 FROM A事業所別期日別番号情報"
            " ORDER BY 事業所コード, 番号ID, 期日"_qs);
    }

    void 種類設定(const QString& 番号ID, const QString& 連番種類) {
        ASSERT_TRUE(木->業務DB実行(u"UPDATE A番号情報 SET 連番種類 = '"_qs + 連番種類 +
                                   u"' WHERE 番号ID = '"_qs + 番号ID + u"'"_qs));
    }

    // The texts of the run history rows of one kind ("エラー ", "出力終了 "), in order.
    QStringList 履歴文(const QString& 種類) {
        QStringList 結果;
        for (const auto& 行 : 履歴()) {
            const QString 摘要 = 行.value(1).toString();
            if (摘要.startsWith(種類)) 結果.append(摘要);
        }
        return 結果;
    }
};
