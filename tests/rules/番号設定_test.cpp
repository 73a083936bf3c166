#include "rules/番号設定.h"

#include "rules/番号設定試験.h"

namespace {

const QString 出金 = u"16810"_qs;
const QString 閲覧 = u"01110"_qs;
const QString 未知 = u"99999"_qs;
const QString 文言 = u"番号情報に問題が発生設定できませんでした。"_qs;

class 番号設定 : public 番号設定試験 {
  protected:
    void SetUp() override {
        番号設定試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        ASSERT_NO_FATAL_FAILURE(起動());
    }
    void 事業所別に() {
        環境.会社設定().会社変更([&](会社情報& 値) { 値.伝票番号管理区分 = 1; });
    }

    // The session's general database, with every statement written down on its way.
    番号環境 記録付き(QStringList& 文一覧) {
        return 番号環境(
            [&](記録集合& rs, const QString& 文) {
                文一覧.append(文);
                return 環境.接続().業務DB検索(rs, 文);
            },
            [&](const QString& 文) {
                文一覧.append(文);
                return 環境.接続().業務DB実行(文);
            },
            基盤, 環境.会社設定().会社());
    }
};

// --- base date ---

TEST_P(番号設定, 種類0の基準日付は日付によらず99999999) {
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"0"_qs));
    for (const char16_t* 日付 : {u"20240101", u"20260331", u"20260401", u"20991231", u"99999999"}) {
        EXPECT_EQ(番号基準日付取得(環境, 出金, QString::fromUtf16(日付)), u"99999999"_qs);
    }
}

TEST_P(番号設定, 種類1は年度終了日で決算日の翌日は翌年度末) {
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"20260331"_qs), u"20260331"_qs);
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"20260401"_qs), u"20270331"_qs);
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"20270331"_qs), u"20270331"_qs);
}

TEST_P(番号設定, 種類2は月の締日で種類3は日付そのもの) {
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"2"_qs));
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"20260415"_qs), u"20260430"_qs);
    環境.会社設定().会社変更([&](会社情報& 値) { 値.決算日 = 20; });
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"20260420"_qs), u"20260420"_qs);
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"20260421"_qs), u"20260520"_qs);
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"3"_qs));
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"20260421"_qs), u"20260421"_qs);
}

TEST_P(番号設定, ほかの種類は手入力で88888888_数値でない種類は0) {
    for (const char16_t* 種類 : {u"4", u"9", u"-1", u"1.5"}) {
        ASSERT_NO_FATAL_FAILURE(種類設定(出金, QString::fromUtf16(種類)));
        EXPECT_EQ(番号基準日付取得(環境, 出金, u"20260401"_qs), u"88888888"_qs)
            << QString::fromUtf16(種類).toStdString();
    }
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"X"_qs));
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"20260401"_qs), u"99999999"_qs);
}

TEST_P(番号設定, 日付引数99999999は今日の系列) {
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"99999999"_qs), u"20270331"_qs);
    基盤.時刻 = QDateTime(QDate(2026, 3, 31), QTime(23, 59, 59));
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"99999999"_qs), u"20260331"_qs);
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"3"_qs));
    EXPECT_EQ(番号基準日付取得(環境, 出金, u"99999999"_qs), u"20260331"_qs);
}

TEST_P(番号設定, 番号情報にない番号IDの基準日付は空で文言もない) {
    EXPECT_EQ(番号基準日付取得(環境, 未知, u"20260401"_qs), QString());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

// --- company numbering ---

TEST_P(番号設定, 種類0はどの日付の伝票も一つの系列の次を得る) {
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"0"_qs));
    const QString 四月 = 番号基準日付取得(環境, 出金, u"20260401"_qs);
    const QString 翌年 = 番号基準日付取得(環境, 出金, u"20271231"_qs);
    EXPECT_EQ(次番号採番(環境, 出金, 四月, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(次番号参照(環境, 出金, 翌年, u"000"_qs), u"00000002"_qs);
    EXPECT_EQ(次番号採番(環境, 出金, 翌年, u"000"_qs), u"00000002"_qs);
    EXPECT_EQ(番号情報(出金), QStringList{u"00000002|00000000"_qs});
    EXPECT_TRUE(期日別().isEmpty());
}

TEST_P(番号設定, 決算日翌日の種類1は翌年度の期日行を作り00000001から数える) {
    const QString 基準 = 番号基準日付取得(環境, 出金, u"20260401"_qs);
    ASSERT_EQ(基準, u"20270331"_qs);
    EXPECT_EQ(次番号参照(環境, 出金, 基準, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000000|00000000"_qs});
    EXPECT_EQ(次番号採番(環境, 出金, 基準, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(次番号採番(環境, 出金, 基準, u"000"_qs), u"00000002"_qs);
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000002|00000000"_qs});
    EXPECT_EQ(番号情報(出金), QStringList{u"00000000|00000000"_qs});
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_TRUE(履歴文(u"エラー "_qs).isEmpty());
}

TEST_P(番号設定, 参照を二度しても同じ番号で計数は変わらない) {
    ASSERT_TRUE(木->業務DB実行(
        u"INSERT INTO A期日別番号情報 VALUES ('16810', '20270331', '00000005', '00000002')"_qs));
    EXPECT_EQ(次番号参照(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000006"_qs);
    EXPECT_EQ(次番号参照(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000006"_qs);
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000005|00000002"_qs});
}

TEST_P(番号設定, 計数9の次は00000010で99999999の次は九桁の100000000) {
    ASSERT_TRUE(木->業務DB実行(
        u"INSERT INTO A期日別番号情報 VALUES ('16810', '20270331', '9', '99999999')"_qs));
    EXPECT_EQ(次番号採番(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000010"_qs);
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"20270331"_qs, u"000"_qs), u"100000000"_qs);
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"20270331"_qs, u"000"_qs), u"100000001"_qs);
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000010|100000001"_qs});
}

TEST_P(番号設定, 数値でない計数やNULLの計数の次は00000001) {
    ASSERT_TRUE(木->業務DB実行(
        u"INSERT INTO A期日別番号情報 VALUES ('16810', '20270331', 'abc', NULL)"_qs));
    EXPECT_EQ(次番号採番(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000001|00000001"_qs});
}

TEST_P(番号設定, 計算が00000000になれば00000001に替わる) {
    ASSERT_TRUE(
        木->業務DB実行(u"INSERT INTO A期日別番号情報 VALUES ('16810', '20270331', '-1', '-1')"_qs));
    EXPECT_EQ(次番号採番(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000001"_qs);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_P(番号設定, 履歴番号は履歴連番だけを進める) {
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000002"_qs);
    EXPECT_EQ(次番号参照(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000000|00000002"_qs});
}

TEST_P(番号設定, 種類0の履歴番号はA番号情報の履歴連番を進める) {
    ASSERT_NO_FATAL_FAILURE(種類設定(閲覧, u"0"_qs));
    EXPECT_EQ(次履歴番号採番(環境, 閲覧, u"99999999"_qs, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(番号情報(閲覧), QStringList{u"00000000|00000001"_qs});
}

TEST_P(番号設定, 全社番号管理では事業所の引数は使われない) {
    EXPECT_EQ(次番号採番(環境, 出金, u"20270331"_qs, u"001"_qs), u"00000001"_qs);
    EXPECT_EQ(次番号採番(環境, 出金, u"20270331"_qs, u"002"_qs), u"00000002"_qs);
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000002|00000000"_qs});
    EXPECT_TRUE(事業所別().isEmpty());
    EXPECT_TRUE(事業所別期日別().isEmpty());
}

TEST_P(番号設定, 未知の番号IDは00000000で前面の操作は文言を二度出す) {
    using 操作 = QString (*)(const 番号環境&, const QString&, const QString&, const QString&);
    for (操作 f : {&次番号参照, &次番号採番, &次履歴番号採番}) {
        基盤.表示済み.clear();
        EXPECT_EQ(f(環境, 未知, u"20270331"_qs, u"000"_qs), u"00000000"_qs);
        ASSERT_EQ(基盤.表示文言(), (QStringList{文言, 文言}));
        for (const auto& m : 基盤.表示済み) EXPECT_EQ(m.ボタン, ボタン種別::OK);
    }
    EXPECT_TRUE(期日別().isEmpty());
}

TEST_P(番号設定, 未知の番号IDで裏の手続きは文言を一度だけ出す) {
    EXPECT_EQ(全社次番号参照(環境, 未知, u"20270331"_qs), u"00000000"_qs);
    EXPECT_EQ(基盤.表示文言(), QStringList{文言});
    基盤.表示済み.clear();
    EXPECT_EQ(事業所別次番号採番(環境, 未知, u"20270331"_qs, u"001"_qs), u"00000000"_qs);
    EXPECT_EQ(基盤.表示文言(), QStringList{文言});
}

TEST_P(番号設定, 手入力の種類は空を返し文言も計数の変化もなく88888888の行だけ確保する) {
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"9"_qs));
    const QString 基準 = 番号基準日付取得(環境, 出金, u"20260401"_qs);
    ASSERT_EQ(基準, u"88888888"_qs);
    EXPECT_EQ(次番号参照(環境, 出金, 基準, u"000"_qs), QString());
    QStringList 文;
    EXPECT_EQ(次番号採番(記録付き(文), 出金, 基準, u"000"_qs), QString());
    EXPECT_TRUE(文.filter(u"UPDATE"_qs).isEmpty());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(期日別(), QStringList{u"16810|88888888|00000000|00000000"_qs});
    EXPECT_EQ(番号情報(出金), QStringList{u"00000000|00000000"_qs});
}

TEST_P(番号設定, 手入力の種類でも履歴番号はA番号情報で続く) {
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"9"_qs));
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"88888888"_qs, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"88888888"_qs, u"000"_qs), u"00000002"_qs);
    EXPECT_EQ(番号情報(出金), QStringList{u"00000000|00000002"_qs});
    EXPECT_TRUE(期日別().isEmpty());
}

TEST_P(番号設定, 更新の失敗は記録され返した番号はそのまま) {
    const bool pg = GetParam();
    if (pg) {
        ASSERT_TRUE(
            木->業務DB実行(u"CREATE FUNCTION 更新拒否() RETURNS trigger LANGUAGE plpgsql AS"
                           " 'BEGIN RAISE EXCEPTION ''locked''; END'"_qs));
        ASSERT_TRUE(
            木->業務DB実行(u"CREATE TRIGGER 更新拒否 BEFORE UPDATE ON A期日別番号情報"
                           " FOR EACH ROW EXECUTE FUNCTION 更新拒否()"_qs));
    } else {
        ASSERT_TRUE(
            木->業務DB実行(u"CREATE TRIGGER 更新拒否 BEFORE UPDATE ON A期日別番号情報"
                           " BEGIN SELECT RAISE(ABORT, 'locked'); END"_qs));
    }
    EXPECT_EQ(次番号採番(環境, 出金, u"20270331"_qs, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000000|00000000"_qs});
    const QStringList エラー = 履歴文(u"エラー "_qs);
    ASSERT_EQ(エラー.size(), 1);
    EXPECT_TRUE(エラー[0].contains(
        u"UPDATE A期日別番号情報 SET  連番 = ''00000001'' WHERE A期日別番号情報.番号ID = "
        "''16810'' AND A期日別番号情報.期日 = ''20270331''"_qs))
        << エラー[0].toStdString();
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

// --- ensure routines ---

TEST_P(番号設定, 番号情報にない番号IDの行確保は何も挿入しない) {
    期日別番号行確保(環境, 未知, u"20270331"_qs);
    事業所別番号行確保(環境, 未知, u"001"_qs);
    事業所別期日別番号行確保(環境, 未知, u"20270331"_qs, u"001"_qs);
    EXPECT_TRUE(期日別().isEmpty());
    EXPECT_TRUE(事業所別().isEmpty());
    EXPECT_TRUE(事業所別期日別().isEmpty());
}

TEST_P(番号設定, 行確保は番号情報の行から一度だけ作る) {
    期日別番号行確保(環境, 出金, u"20270331"_qs);
    期日別番号行確保(環境, 出金, u"20270331"_qs);
    事業所別番号行確保(環境, 出金, u"001"_qs);
    事業所別番号行確保(環境, 出金, u"001"_qs);
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000000|00000000"_qs});
    EXPECT_EQ(事業所別(), QStringList{u"001|16810|00000000|00000000"_qs});
    EXPECT_TRUE(履歴文(u"エラー "_qs).isEmpty());
}

// The per-office dated row is never made by this program: its read of A番号情報 names
// A事業所別番号情報 in the condition, and every engine refuses that.
TEST_P(番号設定, 事業所別期日別の行確保は別の表の修飾で失敗し行を作らない) {
    事業所別期日別番号行確保(環境, 出金, u"20270331"_qs, u"001"_qs);
    EXPECT_TRUE(事業所別期日別().isEmpty());
    const QStringList エラー = 履歴文(u"エラー "_qs);
    ASSERT_EQ(エラー.size(), 1);
    EXPECT_TRUE(エラー[0].contains(
        u"SELECT A番号情報.* FROM A番号情報 WHERE A事業所別番号情報.番号ID = ''16810''"_qs))
        << エラー[0].toStdString();
}

// --- per-office numbering ---

TEST_P(番号設定, 事業所別の種類0は事業所ごとの系列で数える) {
    事業所別に();
    EXPECT_EQ(次番号採番(環境, 閲覧, u"99999999"_qs, u"001"_qs), u"00000001"_qs);
    EXPECT_EQ(次番号採番(環境, 閲覧, u"99999999"_qs, u"001"_qs), u"00000002"_qs);
    EXPECT_EQ(次番号採番(環境, 閲覧, u"99999999"_qs, u"002"_qs), u"00000001"_qs);
    EXPECT_EQ(次履歴番号採番(環境, 閲覧, u"99999999"_qs, u"002"_qs), u"00000001"_qs);
    EXPECT_EQ(事業所別(),
              (QStringList{u"001|01110|00000002|00000000"_qs, u"002|01110|00000001|00000001"_qs}));
    EXPECT_EQ(番号情報(閲覧), QStringList{u"00000000|00000000"_qs});
    EXPECT_TRUE(履歴文(u"エラー "_qs).isEmpty());
}

// The peek reads the office row with a condition on the dated table, which fails: it proposes
// no number, while the take of the same row works.
TEST_P(番号設定, 事業所別の種類0の参照は別の表の修飾で失敗し空を返す) {
    事業所別に();
    QStringList 文;
    EXPECT_EQ(次番号参照(記録付き(文), 閲覧, u"99999999"_qs, u"001"_qs), QString());
    EXPECT_EQ(文,
              (QStringList{
                  u"SELECT A番号情報.* FROM A番号情報 WHERE A番号情報.番号ID = '01110'"_qs,
                  u"SELECT A事業所別番号情報.* FROM A事業所別番号情報 WHERE "
                  "A事業所別番号情報.事業所コード = '001' AND A事業所別番号情報.番号ID = "
                  "'01110'"_qs,
                  u"SELECT A番号情報.* FROM A番号情報 WHERE A番号情報.番号ID = '01110'"_qs,
                  u"INSERT INTO [A事業所別番号情報] ([事業所コード],[番号ID],[連番],[履歴連番]) "
                  "VALUES ('001','01110','00000000','00000000')"_qs,
                  u"SELECT A事業所別番号情報.* FROM A事業所別番号情報 WHERE "
                  "A事業所別番号情報.事業所コード = '001' AND A事業所別期日別番号情報.番号ID = "
                  "'01110' "_qs,
              }));
    EXPECT_EQ(事業所別(), QStringList{u"001|01110|00000000|00000000"_qs});
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    const QStringList エラー = 履歴文(u"エラー "_qs);
    ASSERT_EQ(エラー.size(), 1);
    EXPECT_TRUE(
        エラー[0].contains(u"WHERE A事業所別番号情報.事業所コード = ''001'' AND "
                           "A事業所別期日別番号情報.番号ID = ''01110''"_qs))
        << エラー[0].toStdString();

    // The takes read the same row with the right table and count on.
    文.clear();
    EXPECT_EQ(次番号採番(記録付き(文), 閲覧, u"99999999"_qs, u"001"_qs), u"00000001"_qs);
    EXPECT_EQ(次履歴番号採番(記録付き(文), 閲覧, u"99999999"_qs, u"001"_qs), u"00000001"_qs);
    EXPECT_EQ(文.filter(u"A事業所別期日別"_qs), QStringList());
    EXPECT_EQ(文.filter(u"UPDATE"_qs),
              (QStringList{u"UPDATE A事業所別番号情報 SET  連番 = '00000001' WHERE "
                           "A事業所別番号情報.事業所コード = '001' AND A事業所別番号情報.番号ID = "
                           "'01110'"_qs,
                           u"UPDATE A事業所別番号情報 SET  履歴連番 = '00000001' WHERE "
                           "A事業所別番号情報.事業所コード = '001' AND A事業所別番号情報.番号ID = "
                           "'01110'"_qs}));
    EXPECT_EQ(事業所別次番号参照(環境, 閲覧, u"99999999"_qs, u"001"_qs), QString());
}

TEST_P(番号設定, 新しい期日の採番は行を確保してから読み進める) {
    QStringList 文;
    EXPECT_EQ(次番号採番(記録付き(文), 出金, u"20270331"_qs, u"000"_qs), u"00000001"_qs);
    const QString 情報 = u"SELECT A番号情報.* FROM A番号情報 WHERE A番号情報.番号ID = '16810'"_qs;
    const QString 期日行 =
        u"SELECT A期日別番号情報.* FROM A期日別番号情報 WHERE A期日別番号情報.番号ID = '16810' "
        "AND A期日別番号情報.期日 = '20270331'"_qs;
    EXPECT_EQ(文, (QStringList{情報, 期日行, 情報,
                               u"INSERT INTO [A期日別番号情報] ([番号ID],[期日],[連番],[履歴連番]) "
                               "VALUES ('16810','20270331','00000000','00000000')"_qs,
                               期日行,
                               u"UPDATE A期日別番号情報 SET  連番 = '00000001' WHERE "
                               "A期日別番号情報.番号ID = '16810' AND A期日別番号情報.期日 = "
                               "'20270331'"_qs}));
    文.clear();
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"0"_qs));
    EXPECT_EQ(次履歴番号採番(記録付き(文), 出金, u"99999999"_qs, u"000"_qs), u"00000001"_qs);
    EXPECT_EQ(文, (QStringList{情報,
                               u"UPDATE A番号情報 SET  履歴連番 = '00000001' WHERE "
                               "A番号情報.番号ID = '16810'"_qs}));
}

TEST_P(番号設定, 事業所別の期日別は行ができず参照も採番も空) {
    事業所別に();
    EXPECT_EQ(次番号参照(環境, 出金, u"20270331"_qs, u"001"_qs), QString());
    // The take still writes its empty number, to a row that is not there.
    QStringList 文;
    EXPECT_EQ(次番号採番(記録付き(文), 出金, u"20270331"_qs, u"001"_qs), QString());
    EXPECT_EQ(文.last(),
              u"UPDATE A事業所別期日別番号情報 SET  連番 = '' WHERE "
              "A事業所別期日別番号情報.事業所コード = '001' AND A事業所別期日別番号情報.番号ID = "
              "'16810' AND A事業所別期日別番号情報.期日 = '20270331'"_qs);
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"20270331"_qs, u"001"_qs), QString());
    EXPECT_TRUE(事業所別期日別().isEmpty());
    EXPECT_TRUE(期日別().isEmpty());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    EXPECT_EQ(履歴文(u"エラー "_qs).size(), 3);
}

TEST_P(番号設定, 事業所別の期日別は行が既にあれば進む) {
    事業所別に();
    ASSERT_TRUE(
        木->業務DB実行(u"INSERT INTO A事業所別期日別番号情報 VALUES "
                       "('001', '16810', '20270331', '00000003', '00000007')"_qs));
    EXPECT_EQ(次番号参照(環境, 出金, u"20270331"_qs, u"001"_qs), u"00000004"_qs);
    EXPECT_EQ(次番号採番(環境, 出金, u"20270331"_qs, u"001"_qs), u"00000004"_qs);
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"20270331"_qs, u"001"_qs), u"00000008"_qs);
    EXPECT_EQ(次番号採番(環境, 出金, u"20270331"_qs, u"002"_qs), QString());
    EXPECT_EQ(事業所別期日別(), QStringList{u"001|16810|20270331|00000004|00000008"_qs});
}

TEST_P(番号設定, 事業所別の手入力の種類の履歴番号は事業所の行で続く) {
    事業所別に();
    ASSERT_NO_FATAL_FAILURE(種類設定(出金, u"9"_qs));
    EXPECT_EQ(次番号採番(環境, 出金, u"88888888"_qs, u"001"_qs), QString());
    EXPECT_EQ(次履歴番号採番(環境, 出金, u"88888888"_qs, u"001"_qs), u"00000001"_qs);
    EXPECT_EQ(事業所別(), QStringList{u"001|16810|00000000|00000001"_qs});
    EXPECT_TRUE(事業所別期日別().isEmpty());
}

// --- update program ---

TEST_P(番号設定, 更新プログラムが空やNULLや未知の番号IDなら何も起動しない) {
    更新プログラム起動(環境.接続(), 出金);
    ASSERT_TRUE(木->業務DB実行(u"UPDATE A番号情報 SET 更新プログラム = NULL"_qs));
    更新プログラム起動(環境.接続(), 出金);
    更新プログラム起動(環境.接続(), 未知);
    EXPECT_TRUE(基盤.起動済み.isEmpty());
}

TEST_P(番号設定, 更新プログラムはプログラムフォルダから待たずに起動する) {
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE A番号情報 SET 更新プログラム = '翠嶺更新' WHERE 番号ID = '16810'"_qs));
    更新プログラム起動(環境.接続(), 出金);
    ASSERT_EQ(基盤.起動済み.size(), 1);
    EXPECT_EQ(基盤.起動済み[0].プログラム, 木->プログラムフォルダ() + u"/翠嶺更新"_qs);
    EXPECT_TRUE(基盤.起動済み[0].引数.isEmpty());
    EXPECT_EQ(基盤.起動済み[0].作業フォルダ, 木->プログラムフォルダ());
    更新プログラム起動(環境.接続(), 閲覧);
    EXPECT_EQ(基盤.起動済み.size(), 1);
}

// --- the caller's retry ---

TEST(未使用番号採番, 使用済みの番号を飛ばし上限なく取り直す) {
    int 回数 = 0;
    const QString 番号 =
        未使用番号採番([&] { return QString::number(++回数).rightJustified(8, u'0'); },
                       [](const QString& n) { return n.toInt() < 40; });
    EXPECT_EQ(番号, u"00000040"_qs);
    EXPECT_EQ(回数, 40);
}

// Two users read the same counter: the second writes the number the first already stored, and
// only the look into T出金 sends it on to the next.
TEST_P(番号設定, 競合する二人は文書表での取り直しで別の番号を得る) {
    台本プラットフォーム 基盤B;
    データ環境 環境B{基盤B};
    環境B.接続().自身のフォルダ設定(木->プログラムフォルダ());
    ASSERT_TRUE(環境B.接続().SYB_OPEN());
    ASSERT_TRUE(環境B.接続().DB_OPEN());
    ASSERT_TRUE(環境B.会社設定().基本項目読込());

    const QString 基準 = u"20270331"_qs;
    auto 使用済み = [&](データ環境& e, const QString& 番号) {
        記録集合 rs;
        const bool 有 = e.接続().業務DB検索(
            rs, u"SELECT TOP 1 出金No FROM T出金"_qs + u" WHERE 事業所コード = '"_qs + u"000"_qs +
                    u"' AND 番号基準日付 = '"_qs + 基準 + u"' AND 出金No = '"_qs + 番号 + u"'"_qs);
        rs.閉じる();
        return 有;
    };
    auto 登録 = [&](データ環境& e, const QString& 番号) {
        return e.接続().業務DB実行(
            u"INSERT INTO T出金 (事業所コード, 番号基準日付, 出金No) VALUES "
            "('000', '"_qs +
            基準 + u"', '"_qs + 番号 + u"')"_qs);
    };
    // Both screens showed the same proposal, so the dated row stands before either stores.
    ASSERT_EQ(次番号参照(環境, 出金, 基準, u"000"_qs), u"00000001"_qs);

    QString 番号A;
    bool 割込済 = false;
    番号環境 B側([&](記録集合& rs, const QString& 文) { return 環境B.接続().業務DB検索(rs, 文); },
                 [&](const QString& 文) {
                     if (!割込済 && 文.startsWith(u"UPDATE A期日別番号情報"_qs)) {
                         割込済 = true;
                         番号A =
                             未使用番号採番([&] { return 次番号採番(環境, 出金, 基準, u"000"_qs); },
                                            [&](const QString& n) { return 使用済み(環境, n); });
                         EXPECT_TRUE(登録(環境, 番号A));
                     }
                     return 環境B.接続().業務DB実行(文);
                 },
                 基盤B, 環境B.会社設定().会社());
    QStringList B試行;
    const QString 番号B = 未使用番号採番(
        [&] {
            B試行.append(次番号採番(B側, 出金, 基準, u"000"_qs));
            return B試行.last();
        },
        [&](const QString& n) { return 使用済み(環境B, n); });
    ASSERT_TRUE(登録(環境B, 番号B));

    EXPECT_EQ(番号A, u"00000001"_qs);
    EXPECT_EQ(B試行, (QStringList{u"00000001"_qs, u"00000002"_qs}));
    EXPECT_EQ(番号B, u"00000002"_qs);
    EXPECT_EQ(業務表(u"SELECT 出金No FROM T出金 ORDER BY 出金No"_qs),
              (QStringList{u"00000001"_qs, u"00000002"_qs}));
    EXPECT_EQ(期日別(), QStringList{u"16810|20270331|00000002|00000000"_qs});
}

KONPEKI_両エンジンで(番号設定);

}  // namespace
