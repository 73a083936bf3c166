#include <QElapsedTimer>

#include "rules/番号設定.h"
#include "slip/出金セッション.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

namespace {

void 計測一式(int 件数) {
    const QString 根 = 大量伝票の木(件数);
    if (根.isEmpty()) return;
    台本プラットフォーム 基盤;
    出金セッション s(基盤);
    if (!会社を開く(s, 根)) return;
    s.見出し.事業所コード = u"000"_qs;

    // The 15-line slip stands on the middle day.
    記録集合 rs;
    s.データ.接続().業務DB検索(rs, u"SELECT 番号基準日付 FROM T出金 WHERE 出金No = '99999999'"_qs);
    const QString 基準日付 = rs.文字列(u"番号基準日付"_qs);
    rs.閉じる();

    std::vector<double> 読込, 前へ, 採番;
    for (int i = 0; i < 60; ++i) {
        QElapsedTimer t;
        t.start();
        if (s.出金キー検索({u"000"_qs, 基準日付, u"99999999"_qs})) {
            s.出金見出し読込();
            s.出金明細初期化();
            s.出金明細読込();
        }
        読込.push_back(ミリ秒(t));
        if (s.最終行 != 14) std::printf("the 15-line slip did not load\n");
        t.start();
        s.前No読込();
        前へ.push_back(ミリ秒(t));
    }

    // A take that meets a number already stored under the base date and retries once.
    s.データ.接続().業務DB検索(
        rs, u"SELECT MAX(出金No) AS 最大 FROM T出金 WHERE 番号基準日付 = '"_qs + 基準日付 +
                u"' AND 出金No <> '99999999'"_qs);
    const qint64 最大 = rs.文字列(u"最大"_qs).toLongLong();
    rs.閉じる();
    const QString 番号ID = 番号定数::出金番号ID.toString();
    for (int i = 0; i < 60; ++i) {
        期日別番号行確保(s.データ, 番号ID, 基準日付);
        s.データ.接続().業務DB実行(u"UPDATE A期日別番号情報 SET 連番 = '"_qs +
                                   QString::number(最大 - 1).rightJustified(8, u'0') +
                                   u"' WHERE 番号ID = '16810' AND 期日 = '"_qs + 基準日付 +
                                   u"'"_qs);
        int 試行 = 0;
        QElapsedTimer t;
        t.start();
        const QString No = 未使用番号採番(
            [&] {
                ++試行;
                return 次番号採番(s.データ, 番号ID, 基準日付, u"000"_qs);
            },
            [&](const QString& n) {
                記録集合 r;
                const bool 使用済み = s.データ.接続().業務DB検索(
                    r,
                    u"SELECT TOP 1 出金No FROM T出金 WHERE 事業所コード = '000' AND 番号基準日付 = '"_qs +
                        基準日付 + u"' AND 出金No = '"_qs + n + u"'"_qs);
                r.閉じる();
                return 使用済み;
            });
        採番.push_back(ミリ秒(t));
        if (試行 != 2) std::printf("expected one retry, got %d takes (%s)\n", 試行, qPrintable(No));
    }
    const QByteArray 題 = QByteArray::number(件数) + " slips: ";
    結果表示((題 + "key search + header + 15 lines").constData(), 読込, "ms");
    結果表示((題 + "one previous-slip step").constData(), 前へ, "ms");
    結果表示((題 + "number take with one retry").constData(), 採番, "ms");
    s.データ.接続().接続終了();
}

}  // namespace

void 伝票計測() {
    for (int 件数 : {10000, 1000000}) 計測一式(件数);
}
