#include "lists/wnd社員一覧.h"
#include "lists/一覧試験.h"

namespace {

// An employee's state as of the scripted day 2025-11-20, worked out from the personnel tables
// of the general database.
class 社員状態判定 : public 一覧試験 {
  protected:
    void SetUp() override {
        一覧試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        開始();
    }
    wnd社員一覧& 窓() { return static_cast<wnd社員一覧&>(w(u"wnd社員一覧"_qs)); }
    const 社員状態& 判定(const QString& コード) {
        窓().社員状態判定(コード);
        return 窓().状態;
    }
    // An employee of the master: office 000, department 001, section 001, post 05, full time.
    bool 社員(const QString& コード, const QString& 氏名, const QString& 採用No = QString(),
              const QString& 社員区分 = u"'2'"_qs) {
        return 業務(
            u"INSERT INTO M社員 (コード, 氏名, カナ, 事業所コード, 部門コード, セクションコード, 役職コード, 職責, 就業形態コード, 社員区分, 在籍区分, 採用事業所コード, 採用番号基準日付, 採用No) VALUES ('"_qs +
            コード + u"', '"_qs + 氏名 +
            u"', 'シャイン', '000', '001', '001', '05', '担当', '001', "_qs + 社員区分 +
            u", '1', '001', '20250331', '"_qs + 採用No + u"')"_qs);
    }
    // A transfer from office 000 / 001 / 001 / 05 / 001 / class 2 to the picture given.
    bool 異動(const QString& コード, const QString& No, const QString& 日付, const QString& 事業所,
              const QString& 部門, const QString& セクション, const QString& 社員区分 = u"1"_qs) {
        return 業務(
            u"INSERT INTO T異動 (社員コード, 異動No, 異動日付, 異動事業所コード, 異動部門コード, 異動セクションコード, 異動役職コード, 異動職責, 異動就業形態コード, 異動社員区分, 前事業所コード, 前部門コード, 前セクションコード, 前役職コード, 前職責, 前就業形態コード, 前社員区分) VALUES ('"_qs +
            コード + u"', '"_qs + No + u"', '"_qs + 日付 + u"', '"_qs + 事業所 + u"', '"_qs + 部門 +
            u"', '"_qs + セクション + u"', '03', '課長', '002', '"_qs + 社員区分 +
            u"', '000', '001', '001', '05', '担当', '001', '2')"_qs);
    }
    QStringList 読んだ表() {
        QStringList 表;
        for (const QVariantList& r :
             木->環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴 ORDER BY proccounter"_qs)) {
            const QString t = r.value(0).toString();
            for (const char16_t* 名 : {u"T退職", u"T休職", u"T異動", u"T採用", u"T諸届"}) {
                if (t.contains(QString::fromUtf16(名) + u"."_qs)) 表 << QString::fromUtf16(名);
            }
        }
        表.removeDuplicates();
        return 表;
    }
};

TEST_P(社員状態判定, 今日付けの退職は退職で明日付けならまだ在籍) {
    ASSERT_TRUE(社員(u"00100"_qs, u"退職 一郎"_qs));
    ASSERT_TRUE(業務(u"INSERT INTO T退職 (社員コード, 退職日付) VALUES ('00100', '20251120')"_qs));
    EXPECT_EQ(判定(u"00100"_qs).在籍区分, 2);
    EXPECT_EQ(窓().状態.在籍区分名, u"退職"_qs);
    EXPECT_EQ(窓().状態.社員コード, u"00100"_qs);
    ASSERT_TRUE(業務(u"UPDATE T退職 SET 退職日付 = '20251121' WHERE 社員コード = '00100'"_qs));
    EXPECT_EQ(判定(u"00100"_qs).在籍区分, 0);
    EXPECT_EQ(窓().状態.在籍区分名, u"在籍"_qs);
}

TEST_P(社員状態判定, 今日で終わる休職は休職で昨日終わったものや明日からのものは在籍) {
    ASSERT_TRUE(社員(u"00101"_qs, u"休職 花子"_qs));
    ASSERT_TRUE(業務(
        u"INSERT INTO T休職 (社員コード, 休職開始日付, 休職終了日付) VALUES ('00101', '20251001', '20251120')"_qs));
    EXPECT_EQ(判定(u"00101"_qs).在籍区分, 1);
    EXPECT_EQ(窓().状態.在籍区分名, u"休職"_qs);
    ASSERT_TRUE(業務(u"UPDATE T休職 SET 休職終了日付 = '20251119'"_qs));
    EXPECT_EQ(判定(u"00101"_qs).在籍区分, 0);
    ASSERT_TRUE(業務(u"UPDATE T休職 SET 休職開始日付 = '20251121', 休職終了日付 = '20251231'"_qs));
    EXPECT_EQ(判定(u"00101"_qs).在籍区分, 0);
}

TEST_P(社員状態判定, 退職した社員は休職の行があっても退職で休職は読まれない) {
    ASSERT_TRUE(社員(u"00102"_qs, u"両方 次郎"_qs));
    ASSERT_TRUE(業務(u"INSERT INTO T退職 (社員コード, 退職日付) VALUES ('00102', '20250930')"_qs));
    ASSERT_TRUE(業務(
        u"INSERT INTO T休職 (社員コード, 休職開始日付, 休職終了日付) VALUES ('00102', '20250101', '20251231')"_qs));
    const 社員状態& 状 = 判定(u"00102"_qs);
    EXPECT_EQ(状.在籍区分, 2);
    EXPECT_EQ(状.在籍区分名, u"退職"_qs);
    // Every read leaves its statement in the run history: T休職 is not among them.
    const QStringList 表 = 読んだ表();
    EXPECT_TRUE(表.contains(u"T退職"_qs));
    EXPECT_FALSE(表.contains(u"T休職"_qs));
}

TEST_P(社員状態判定, 来月の異動しかない社員はその異動前の姿になる) {
    ASSERT_TRUE(社員(u"00103"_qs, u"異動 三郎"_qs));
    ASSERT_TRUE(異動(u"00103"_qs, u"00000001"_qs, u"20251201"_qs, u"001"_qs, u"003"_qs, u"004"_qs));
    const 社員状態& 状 = 判定(u"00103"_qs);
    EXPECT_EQ(状.社員名, u"異動 三郎"_qs);
    EXPECT_EQ(状.カナ, u"シャイン"_qs);
    EXPECT_EQ(状.事業所コード, u"000"_qs);
    EXPECT_EQ(状.事業所名, u"本社"_qs);
    EXPECT_EQ(状.部門コード, u"001"_qs);
    EXPECT_EQ(状.部門名, u"総務部"_qs);
    EXPECT_EQ(状.セクションコード, u"001"_qs);
    EXPECT_EQ(状.セクション名, u"総務課"_qs);
    EXPECT_EQ(状.役職コード, u"05"_qs);
    EXPECT_EQ(状.役職名, u"一般"_qs);
    EXPECT_EQ(状.職責, u"担当"_qs);
    EXPECT_EQ(状.就業形態コード, u"001"_qs);
    EXPECT_EQ(状.就業形態名, u"常勤"_qs);
    EXPECT_EQ(状.社員区分, 2);
    EXPECT_EQ(状.社員区分名, u"契約社員"_qs);
    EXPECT_EQ(状.在籍区分, 0);
}

TEST_P(社員状態判定, 今日までの異動は後の姿になり同じ日の二件は番号の大きい方) {
    ASSERT_TRUE(社員(u"00104"_qs, u"異動 四郎"_qs));
    ASSERT_TRUE(異動(u"00104"_qs, u"00000001"_qs, u"20250401"_qs, u"001"_qs, u"002"_qs, u"003"_qs));
    ASSERT_TRUE(異動(u"00104"_qs, u"00000003"_qs, u"20251001"_qs, u"002"_qs, u"003"_qs, u"005"_qs));
    ASSERT_TRUE(異動(u"00104"_qs, u"00000002"_qs, u"20251001"_qs, u"001"_qs, u"004"_qs, u"004"_qs));
    ASSERT_TRUE(異動(u"00104"_qs, u"00000004"_qs, u"20260101"_qs, u"000"_qs, u"001"_qs, u"001"_qs));
    const 社員状態& 状 = 判定(u"00104"_qs);
    EXPECT_EQ(状.事業所コード, u"002"_qs);
    EXPECT_EQ(状.事業所名, u"福岡支店"_qs);
    EXPECT_EQ(状.部門名, u"営業部"_qs);
    EXPECT_EQ(状.セクション名, u"営業二課"_qs);
    EXPECT_EQ(状.役職名, u"課長"_qs);
    EXPECT_EQ(状.職責, u"課長"_qs);
    EXPECT_EQ(状.就業形態名, u"短時間勤務"_qs);
    EXPECT_EQ(状.社員区分, 1);
    EXPECT_EQ(状.社員区分名, u"正社員"_qs);
    EXPECT_EQ(状.社員名, u"異動 四郎"_qs);
}

TEST_P(社員状態判定, 先の異動が同じ日に二件なら番号の小さい方の前の姿) {
    ASSERT_TRUE(社員(u"00105"_qs, u"異動 五郎"_qs));
    ASSERT_TRUE(異動(u"00105"_qs, u"00000002"_qs, u"20251201"_qs, u"001"_qs, u"002"_qs, u"003"_qs));
    ASSERT_TRUE(異動(u"00105"_qs, u"00000001"_qs, u"20251201"_qs, u"002"_qs, u"003"_qs, u"005"_qs));
    ASSERT_TRUE(業務(
        u"UPDATE T異動 SET 前事業所コード = '001' WHERE 社員コード = '00105' AND 異動No = '00000001'"_qs));
    EXPECT_EQ(判定(u"00105"_qs).事業所名, u"大阪支店"_qs);
}

TEST_P(社員状態判定, 異動も採用番号も無い社員はマスタの姿で在籍区分は日付の行で決まる) {
    ASSERT_TRUE(社員(u"00106"_qs, u"本体 六子"_qs));
    const 社員状態& 状 = 判定(u"00106"_qs);
    EXPECT_EQ(状.社員名, u"本体 六子"_qs);
    EXPECT_EQ(状.事業所名, u"本社"_qs);
    EXPECT_EQ(状.部門名, u"総務部"_qs);
    EXPECT_EQ(状.セクション名, u"総務課"_qs);
    EXPECT_EQ(状.役職名, u"一般"_qs);
    EXPECT_EQ(状.職責, u"担当"_qs);
    EXPECT_EQ(状.就業形態名, u"常勤"_qs);
    EXPECT_EQ(状.社員区分, 2);
    EXPECT_EQ(状.社員区分名, u"契約社員"_qs);
    // The master says '1'; without a retirement or leave row the employee is on the roll.
    EXPECT_EQ(状.在籍区分, 0);
    EXPECT_EQ(状.在籍区分名, u"在籍"_qs);
    EXPECT_FALSE(読んだ表().contains(u"T採用"_qs));
}

TEST_P(社員状態判定, 社員区分が空ならば正社員の1になる) {
    ASSERT_TRUE(社員(u"00107"_qs, u"空欄 七海"_qs, QString(), u"NULL"_qs));
    EXPECT_EQ(判定(u"00107"_qs).社員区分, 1);
    EXPECT_TRUE(窓().状態.社員区分名.isEmpty());
}

TEST_P(社員状態判定, 採用番号のある社員は採用の記録の姿と名前になる) {
    ASSERT_TRUE(社員(u"00108"_qs, u"今の 名前"_qs, u"00000007"_qs));
    ASSERT_TRUE(業務(
        u"INSERT INTO T採用 (事業所コード, 番号基準日付, 採用No, 採用日付, 氏名, カナ氏名, 採用事業所コード, 採用部門コード, 採用セクションコード, 採用就業形態コード, 採用社員区分, 採用役職コード, 採用職責) VALUES ('001', '20250331', '00000007', '20240401', '採用時 名前', 'サイヨウジ', '001', '003', '004', '003', '4', '04', '見習')"_qs));
    const 社員状態& 状 = 判定(u"00108"_qs);
    EXPECT_EQ(状.社員名, u"採用時 名前"_qs);
    EXPECT_EQ(状.カナ, u"サイヨウジ"_qs);
    EXPECT_EQ(状.事業所名, u"大阪支店"_qs);
    EXPECT_EQ(状.部門名, u"営業部"_qs);
    EXPECT_EQ(状.セクション名, u"営業一課"_qs);
    EXPECT_EQ(状.役職名, u"係長"_qs);
    EXPECT_EQ(状.職責, u"見習"_qs);
    EXPECT_EQ(状.就業形態名, u"在宅勤務"_qs);
    EXPECT_EQ(状.社員区分, 4);
    EXPECT_EQ(状.社員区分名, u"パート"_qs);
    // A hiring number whose record is gone: the master.
    ASSERT_TRUE(業務(u"DELETE FROM T採用"_qs));
    EXPECT_EQ(判定(u"00108"_qs).社員名, u"今の 名前"_qs);
    EXPECT_EQ(窓().状態.部門名, u"総務部"_qs);
}

TEST_P(社員状態判定, どこにも行の無いコードは不明の姿で名前は空) {
    ASSERT_TRUE(社員(u"00109"_qs, u"前の 人"_qs));
    判定(u"00109"_qs);
    const 社員状態& 状 = 判定(u"99998"_qs);
    EXPECT_EQ(状.社員コード, u"99998"_qs);
    EXPECT_TRUE(状.社員名.isEmpty());
    EXPECT_TRUE(状.カナ.isEmpty());
    EXPECT_EQ(状.事業所コード, u"999"_qs);
    EXPECT_EQ(状.事業所名, u"不明事業所"_qs);
    EXPECT_EQ(状.部門コード, u"999"_qs);
    EXPECT_EQ(状.部門名, u"不明部門"_qs);
    EXPECT_EQ(状.セクションコード, u"999"_qs);
    EXPECT_EQ(状.セクション名, u"不明セクション"_qs);
    EXPECT_EQ(状.役職コード, u"99"_qs);
    EXPECT_EQ(状.役職名, u"不明役職"_qs);
    EXPECT_EQ(状.職責, u"不明職責"_qs);
    EXPECT_EQ(状.就業形態コード, u"999"_qs);
    EXPECT_EQ(状.就業形態名, u"不明就業形態"_qs);
    EXPECT_EQ(状.社員区分, 7);
    EXPECT_EQ(状.社員区分名, u"その他"_qs);
    EXPECT_EQ(状.在籍区分, 0);
}

TEST_P(社員状態判定, 今日までの改姓届が名前を置き換え同じ日なら番号の大きい方) {
    ASSERT_TRUE(社員(u"00110"_qs, u"旧姓 十子"_qs));
    ASSERT_TRUE(異動(u"00110"_qs, u"00000001"_qs, u"20250401"_qs, u"001"_qs, u"003"_qs, u"004"_qs));
    const auto 届 = [this](const QString& 日付, const QString& 区分, const QString& No,
                           const QString& 氏名) {
        return 業務(
            u"INSERT INTO T諸届 (社員コード, 諸届日付, 諸届区分, 諸届No, 諸届氏名, 諸届カナ氏名) VALUES ('00110', '"_qs +
            日付 + u"', '"_qs + 区分 + u"', '"_qs + No + u"', '"_qs + 氏名 + u"', 'カイセイ')"_qs);
    };
    ASSERT_TRUE(届(u"20250601"_qs, u"1"_qs, u"00000001"_qs, u"新姓 十子"_qs));
    ASSERT_TRUE(届(u"20250601"_qs, u"1"_qs, u"00000002"_qs, u"再姓 十子"_qs));
    ASSERT_TRUE(届(u"20250701"_qs, u"2"_qs, u"00000003"_qs, u"住所変更"_qs));
    ASSERT_TRUE(届(u"20251201"_qs, u"1"_qs, u"00000004"_qs, u"未来 十子"_qs));
    const 社員状態& 状 = 判定(u"00110"_qs);
    EXPECT_EQ(状.社員名, u"再姓 十子"_qs);
    EXPECT_EQ(状.カナ, u"カイセイ"_qs);
    EXPECT_EQ(状.事業所名, u"大阪支店"_qs);
    // A name change of a code with no other row: the name is set, the picture unknown.
    ASSERT_TRUE(業務(u"UPDATE T諸届 SET 社員コード = '99997'"_qs));
    EXPECT_EQ(判定(u"99997"_qs).社員名, u"再姓 十子"_qs);
    EXPECT_EQ(窓().状態.事業所名, u"不明事業所"_qs);
}

TEST_P(社員状態判定, マスタに名前の無い異動先でも異動の行は残り名前が空になる) {
    ASSERT_TRUE(社員(u"00111"_qs, u"新設 部員"_qs));
    ASSERT_TRUE(異動(u"00111"_qs, u"00000001"_qs, u"20250401"_qs, u"001"_qs, u"077"_qs, u"077"_qs));
    const 社員状態& 状 = 判定(u"00111"_qs);
    EXPECT_EQ(状.部門コード, u"077"_qs);
    EXPECT_TRUE(状.部門名.isEmpty());
    EXPECT_EQ(状.事業所名, u"大阪支店"_qs);
}

KONPEKI_両エンジンで(社員状態判定);

}  // namespace
