#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <memory>

#include "common/エンジン別試験.h"
#include "common/出金入力.h"
#include "common/出金準備.h"
#include "common/試験用ツリー.h"
#include "rules/帳票起動.h"
#include "text/台本プラットフォーム.h"
#include "text/数値書式.h"

// The sample company with slips typed through the session and stored by its store routine, on
// both engines; the report program then reads them as another process would.
class 帳票試験 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        出金セッション準備(s, *木);
    }

    // A slip of staff 00003 with n lines, classes 3 (tax on top) and 1 (tax inside) taking
    // turns, stored; answers its number. The typed totals stay in the session.
    QString 保存する(int n) {
        s.出金情報初期化();
        EXPECT_TRUE(担当者入力(s, u"00003"_qs));
        s.見出し.出金伝票備考A = u"十一月分の立替"_qs;
        for (int i = 0; i < n; ++i) {
            EXPECT_TRUE(明細入力(s, i % 2 ? 1 : 3, 金額::円(1000 * (i + 1) + 7 * i),
                                 u"支払先"_qs + QString::number(i + 1),
                                 u"摘要その"_qs + QString::number(i + 1)));
        }
        s.新規登録処理();
        return 木->業務DB行(u"SELECT MAX(出金No) FROM T出金"_qs)[0][0].toString();
    }

    QString 引数(const QString& 区分, const QString& No,
                 const QString& 担当者 = u"00003"_qs) const {
        return 帳票引数(u"000"_qs, 区分, u"20251120"_qs, No, 担当者);
    }
    QString 文書フォルダ() const { return 木->根() + u"/documents"_qs; }
    QStringList 文書() const {
        return QDir(文書フォルダ()).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    }
    QList<QVariantList> 付属書類() {
        return 木->業務DB行(
            u"SELECT 情報名, 情報識別ID, SEQNo, 書類名, タイトル, 伝票番号ID, 伝票No, 伝票日付, 担当者コード FROM M付属書類 ORDER BY SEQNo"_qs);
    }

    // The text of a PDF as the Debian tool extracts it, and its page count. The font shares
    // glyphs between ideographs and Kangxi radicals (金 and ⾦), which the extraction may
    // give back as either: compared in the compatibility form.
    static QString PDF文字(const QString& パス) {
        QProcess p;
        p.start(u"pdftotext"_qs, {u"-layout"_qs, パス, u"-"_qs});
        p.waitForFinished();
        return QString::fromUtf8(p.readAllStandardOutput())
            .normalized(QString::NormalizationForm_KC);
    }
    static int PDF頁数(const QString& パス) {
        QProcess p;
        p.start(u"pdfinfo"_qs, {パス});
        p.waitForFinished();
        for (const QString& 行 : QString::fromUtf8(p.readAllStandardOutput()).split(u'\n')) {
            if (行.startsWith(u"Pages:")) return 行.mid(6).trimmed().toInt();
        }
        return -1;
    }
    static QString 額(const 金額& 値) { return 書式(値, 数値書式::一覧金額); }
    static QString 成果物(const QString& 名前) {
        QDir().mkpath(QStringLiteral(KONPEKI_ARTIFACTS));
        return QStringLiteral(KONPEKI_ARTIFACTS) + u"/"_qs + 名前;
    }

    出金セッション s{基盤};
};
