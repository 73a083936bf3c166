#pragma once

#include <gtest/gtest.h>

#include <QFile>

#include "common/エンジン別試験.h"
#include "common/出金入力.h"
#include "common/出金準備.h"
#include "ledger/紺碧帳出力.h"
#include "rules/消費税計算.h"

// The sample company with slips typed through the session and stored by its store routine, on
// both engines; the export then reads them as its own run.
class 仕訳出力試験 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        出金セッション準備(s, *木);
    }

    struct 明細 {
        short 費目;
        qint64 円;
        QString 支払先;
        QString 摘要;
        int 税率 = -1;  // typed by hand (the reduced 8 %); -1 keeps the rate of the class
    };

    // A slip of staff 00003 on the date, typed and stored; answers its number.
    QString 保存する(const QString& 日付, const QList<明細>& 行,
                     const QString& 事業所 = u"000"_qs) {
        s.見出し.事業所コード = 事業所;
        s.出金情報初期化();
        出金日付入力(s, 日付);
        EXPECT_TRUE(担当者入力(s, u"00003"_qs));
        for (const 明細& m : 行) {
            EXPECT_TRUE(明細入力(s, m.費目, 金額::円(m.円), m.支払先, m.摘要));
            if (m.税率 >= 0) {
                消費税率変更時再計算(s.行[s.最終行], 金額::円(m.税率));
                s.合計再計算();
            }
        }
        EXPECT_TRUE(s.新規登録処理());
        return 木->業務DB行(u"SELECT MAX(出金No) FROM T出金"_qs)[0][0].toString();
    }

    int 出力する(const QString& 形式, const QString& 開始 = u"20240101"_qs,
                 const QString& 終了 = u"20261231"_qs, const QStringList& 追加 = {}) {
        紺碧帳出力 p(基盤, 木->プログラムフォルダ());
        const int r = p.実行(QStringList{u"--from"_qs, 開始, u"--to"_qs, 終了, u"--format"_qs, 形式,
                                         u"--out"_qs, 出力先()} +
                             追加);
        結果文言 = p.結果文言;
        集計 = p.集計;
        return r;
    }

    QString 出力先() const { return 木->根() + u"/仕訳.txt"_qs; }
    QByteArray 出力内容() const {
        QFile f(出力先());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    QString 最後のメッセージ() const {
        return 基盤.表示済み.isEmpty() ? QString() : 基盤.表示済み.last().本文;
    }

    出金セッション s{基盤};
    QString 結果文言;
    出力集計 集計;
};
