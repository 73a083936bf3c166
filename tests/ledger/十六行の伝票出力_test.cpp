#include <QFile>

#include "common/人事連携試験.h"
#include "common/出金入力.h"
#include "common/出金準備.h"
#include "ledger/弥生読取.h"
#include "ledger/紺碧帳出力.h"

namespace {

// A slip of sixteen lines, as only a trip application brings one: taken over into an empty slip
// through the session and stored by its store routine, with both the company's and the HR
// system's general databases in SQLite, or both in PostgreSQL. Each imported description holds a
// carriage return between the kind and the text.
class 十六行の伝票出力 : public 人事連携試験 {
  protected:
    bool 自社もPostgreSQL() const override { return true; }

    void SetUp() override {
        人事連携試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        連携したセッション準備(s, *木);
        if (HasFatalFailure()) return;
        QList<QPair<QString, QString>> 旅費;
        for (int i = 0; i < 16; ++i) 旅費.append({u"01"_qs, QString::number(1000 * (i + 1))});
        出張申請を置く(*木, u"00000055"_qs, 旅費);
        s.出金情報初期化();
        ASSERT_TRUE(担当者入力(s, u"00003"_qs));
        std::optional<QString> 選んだ鍵 = u"C000"_qs + 今期 + u"00000055"_qs;
        ASSERT_TRUE(s.出張申請確定(u"00000055"_qs, 選んだ鍵));
        ASSERT_EQ(s.最終行, 15);
        ASSERT_TRUE(s.新規登録処理());
        ASSERT_EQ(木->業務DB行(u"SELECT COUNT(*) FROM T出金明細"_qs)[0][0].toInt(), 16);
    }

    int 出力する(const QString& 形式) {
        紺碧帳出力 p(基盤, 木->プログラムフォルダ());
        const int r = p.実行(QStringList{u"--from"_qs, u"20261101"_qs, u"--to"_qs, u"20261130"_qs,
                                         u"--format"_qs, 形式, u"--out"_qs, 出力先()});
        結果文言 = p.結果文言;
        return r;
    }
    QString 出力先() const { return 木->根() + u"/仕訳.txt"_qs; }
    QString 最後のメッセージ() const {
        return 基盤.表示済み.isEmpty() ? QString() : 基盤.表示済み.last().本文;
    }

    出金セッション s{基盤};
    QString 結果文言;
};

TEST_P(十六行の伝票出力, 弥生形式は十六行を先頭と十四の中間と最終の識別フラグで一行ずつ書く) {
    ASSERT_EQ(出力する(u"yayoi"_qs), 0) << 最後のメッセージ().toStdString();
    QList<弥生読取行> 行;
    QString エラー;
    ASSERT_TRUE(弥生ファイル読取(出力先(), 行, エラー)) << エラー.toStdString();
    ASSERT_EQ(行.size(), 16);
    qint64 借方 = 0;
    for (int i = 0; i < 16; ++i) {
        const QStringList& f = 行[i].項目;
        ASSERT_EQ(f.size(), 25) << i;
        EXPECT_EQ(f[0], i == 0 ? u"2110"_qs : i == 15 ? u"2101"_qs : u"2100"_qs) << i;
        EXPECT_EQ(f[3], u"2026/11/23"_qs) << i;
        EXPECT_EQ(f[4], u"旅費交通費"_qs) << i;
        // No payee, so no registration; after September 2026 the transition allows 70 %.
        EXPECT_EQ(f[7], u"課対仕入内10%区分70%"_qs) << i;
        EXPECT_EQ(f[8], QString::number(1000 * (i + 1))) << i;
        EXPECT_EQ(f[9], QString::number(qRound(1000.0 * (i + 1) * 10 / 110))) << i;
        // The description's carriage return is a blank in the one-line summary.
        EXPECT_EQ(f[16], u"交通費 摘要"_qs + QString::number(i + 1)) << i;
        EXPECT_TRUE(f[21].endsWith(u"-"_qs + QString::number(i + 1).rightJustified(3, u'0'))) << i;
        借方 += f[8].toLongLong();
    }
    EXPECT_EQ(借方, 136000);
    EXPECT_EQ(借方, 木->業務DB行(u"SELECT SUM(実質出金金額合計) FROM T出金"_qs)[0][0].toLongLong());
    EXPECT_TRUE(結果文言.startsWith(u"伝票 1 件、明細 16 行、借方金額合計 136,000 円"_qs))
        << 結果文言.toStdString();
}

TEST_P(十六行の伝票出力, CSVは十六行を書き摘要は保存されたとおり改行文字ごと引用する) {
    ASSERT_EQ(出力する(u"csv"_qs), 0) << 最後のメッセージ().toStdString();
    QFile f(出力先());
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    QStringList 行 = QString::fromUtf8(f.readAll()).split(u"\r\n"_qs);
    ASSERT_EQ(行.size(), 18);  // the header, sixteen lines, and nothing after the last CRLF
    EXPECT_TRUE(行[17].isEmpty());
    for (int i = 0; i < 16; ++i) {
        EXPECT_TRUE(行[i + 1].contains(u",\"交通費\r摘要"_qs + QString::number(i + 1) + u"\","_qs))
            << 行[i + 1].toStdString();
    }
}

KONPEKI_人事の両エンジンで(十六行の伝票出力);

}  // namespace
