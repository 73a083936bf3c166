#pragma once

#include <QDir>
#include <QFile>
#include <memory>

#include "audit/出金検索.h"
#include "common/エンジン別試験.h"
#include "common/出金入力.h"
#include "common/出金準備.h"
#include "dataenv/ファイル操作.h"
#include "slip/出金セッション.h"
#include "slip/出金付属書類.h"

// One line typed: expense class 01 (tax included, so the real amount is the amount typed).
struct 試験行 {
    qint64 円;
    QString 支払先;
};

// Slips of the sample company typed through the session's routines and stored, corrected,
// deleted and given documents as the entry screen does it, on both engines:
//   1 2025-11-05 staff 00003  1000 文具の青葉堂, 2000 喫茶こもれび          total  3000
//   2 2025-11-12 staff 00004  50000 家電のみどり, corrected to 60000        total 60000
//   3 2025-11-20 staff 00003  800 弁当の大地, 700 弁当の大地, two documents   total  1500
//   4 2025-12-01 staff 00004  12000 文具の"青葉堂",本店                     total 12000
//   5 2025-11-18 staff 00003  4000 印刷の100%堂, then deleted               total  4000
//   6 2025-11-15 office 001, staff 00008, 3000 喫茶こもれび                 total  3000
class 出金検索試験 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        ASSERT_NO_FATAL_FAILURE(始める());
        ASSERT_NO_FATAL_FAILURE(保存(u"20251105"_qs, u"00003"_qs,
                                     {{1000, u"文具の青葉堂"_qs}, {2000, u"喫茶こもれび"_qs}}));
        ASSERT_NO_FATAL_FAILURE(保存(u"20251112"_qs, u"00004"_qs, {{50000, u"家電のみどり"_qs}}));
        ASSERT_NO_FATAL_FAILURE(
            保存(u"20251120"_qs, u"00003"_qs, {{800, u"弁当の大地"_qs}, {700, u"弁当の大地"_qs}}));
        ASSERT_NO_FATAL_FAILURE(
            保存(u"20251201"_qs, u"00004"_qs, {{12000, u"文具の\"青葉堂\",本店"_qs}}));
        ASSERT_NO_FATAL_FAILURE(保存(u"20251118"_qs, u"00003"_qs, {{4000, u"印刷の100%堂"_qs}}));
        ASSERT_NO_FATAL_FAILURE(訂正(No[1], 60000));
        ASSERT_NO_FATAL_FAILURE(削除(No[4]));
        ASSERT_NO_FATAL_FAILURE(書類を添える(No[2], u"領収書.txt"_qs));
        ASSERT_NO_FATAL_FAILURE(書類を添える(No[2], u"請求書.txt"_qs));
        // The Osaka branch's operator stores the last one.
        ASSERT_TRUE(木->環境DB実行(
            u"UPDATE 動作環境定義 SET 運用事業所コード = '001' WHERE 動作環境定義ID = '001'"_qs));
        ASSERT_NO_FATAL_FAILURE(始める());
        ASSERT_EQ(s->見出し.事業所コード, u"001"_qs);
        ASSERT_NO_FATAL_FAILURE(保存(u"20251115"_qs, u"00008"_qs, {{3000, u"喫茶こもれび"_qs}}));
        s->出金情報初期化();
    }

    // A session started on the tree as the program starts.
    void 始める() {
        s = std::make_unique<出金セッション>(基盤);
        出金セッション準備(*s, *木);
    }

    void 保存(const QString& 日付, const QString& 担当者, const QList<試験行>& 行) {
        s->出金情報初期化();
        出金日付入力(*s, 日付);
        ASSERT_TRUE(担当者入力(*s, 担当者));
        for (const 試験行& l : 行) ASSERT_TRUE(明細入力(*s, 1, 金額::円(l.円), l.支払先, u"品"_qs));
        ASSERT_TRUE(s->新規登録処理());
        No.append(s->見出し.出金No);
        鍵.append(s->見出し.鍵());
    }
    // The slip loaded by its key, as the slip No field loads it.
    void 読む(const QString& 番号) {
        const qsizetype i = No.indexOf(番号);
        ASSERT_GE(i, 0);
        s->出金情報初期化();
        ASSERT_TRUE(s->出金キー検索(鍵[i]));
        s->出金見出し読込();
        s->出金明細初期化();
        s->出金明細読込();
    }
    void 訂正(const QString& 番号, qint64 円) {
        ASSERT_NO_FATAL_FAILURE(読む(番号));
        出金金額変更時再計算(s->行[0], 金額::円(円));
        s->合計再計算();
        s->入力変更フラグ = true;
        s->修正登録処理();
    }
    void 削除(const QString& 番号) {
        ASSERT_NO_FATAL_FAILURE(読む(番号));
        s->削除処理();
    }
    // A file of the operator's attached to the slip as the entry screen attaches it.
    void 書類を添える(const QString& 番号, const QString& 名前) {
        ASSERT_NO_FATAL_FAILURE(読む(番号));
        const QString 元 = 木->根() + u"/手元"_qs;
        ASSERT_TRUE(QDir().mkpath(元));
        QFile f(元 + u"/"_qs + 名前);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("書類");
        f.close();
        ASSERT_TRUE(付属書類追加(s->データ, 出金情報名, 出金付属書類ID(*s), f.fileName(),
                                 ファイル基本名取得(f.fileName()), 出金付属書類項目(*s)));
    }

    // The numbers found, in the order found.
    QStringList 番号(出金検索条件 c) {
        const QString 誤り = 出金検索条件の誤り(c);
        EXPECT_EQ(誤り, QString());
        QList<出金検索行> r;
        EXPECT_TRUE(出金検索(s->データ, c, r)) << 出金検索文(c).toStdString() << "\n"
                                               << 最後の誤り().toStdString();
        QStringList n;
        for (const 出金検索行& x : r) n << x.鍵.番号;
        return n;
    }
    QStringList 番号(std::initializer_list<int> 何番目) const {
        QStringList n;
        for (int i : 何番目) n << No.at(i - 1);
        return n;
    }

    // The last error row of the run history, as a failed statement leaves it.
    QString 最後の誤り() {
        QString e;
        for (const auto& 行 : 履歴()) {
            if (行.at(1).toString().startsWith(u"エラー"_qs)) e = 行.at(1).toString();
        }
        return e;
    }

    std::unique_ptr<出金セッション> s;
    QStringList No;  // in the order stored
    QList<伝票鍵> 鍵;
};
