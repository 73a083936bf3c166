#include "rules/白樺連携番号設定.h"

#include <QFile>
#include <QTemporaryDir>

#include "dataenv/スキーマ適用.h"
#include "rules/番号設定試験.h"

namespace {

const QString 出張申請 = u"72150"_qs;

// The sample company beside the HR system's general database, in the same engine.
class 白樺連携番号設定 : public 番号設定試験 {
  protected:
    void SetUp() override {
        番号設定試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        ASSERT_NO_FATAL_FAILURE(起動());

        接続先 先;
        if (GetParam()) {
            連携pg = std::make_unique<試験用PostgreSQL>();
            先 = PostgreSQL接続先(連携pg->接続情報());
        } else {
            先.ファイル = 連携フォルダ.path() + u"/gnrdb.sqlite"_qs;
            QFile f(先.ファイル);
            ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        }
        ASSERT_TRUE(連携DB.開く(先)) << 連携DB.最終エラー().説明.toStdString();
        const QString スキーマ = QStringLiteral(KONPEKI_SCHEMA_DIR);
        QString エラー;
        ASSERT_TRUE(SQLフォルダ実行(連携DB, スキーマ + u"/hrlink"_qs, エラー))
            << エラー.toStdString();
        ASSERT_TRUE(SQLファイル実行(連携DB, スキーマ + u"/seed/hrlink.sql"_qs, エラー))
            << エラー.toStdString();
    }

    QStringList 連携表(const QString& 文) { return 行一覧(全行(連携DB, 文)); }
    QStringList 連携事業所別() {
        return 連携表(
            u"SELECT 事業所コード, 番号ID, 名称, 連番種類, 連番, 履歴連番 FROM A事業所別番号情報"
            " ORDER BY 事業所コード, 番号ID"_qs);
    }
    void 連携実行(const QString& 文) { ASSERT_TRUE(連携DB.実行(文)) << 文.toStdString(); }

    std::unique_ptr<試験用PostgreSQL> 連携pg;
    QTemporaryDir 連携フォルダ;
    データ接続 連携DB{u"test-hrlink"_qs};
};

TEST_P(白樺連携番号設定, 全社の基準日付は本体の会社の決算で計算する) {
    const 番号環境 連携(連携DB, 環境.接続(), 環境.会社設定().会社());
    EXPECT_EQ(連携番号基準日付取得(連携, 出張申請, u"20260401"_qs, u"000"_qs), u"20270331"_qs);
    // The HR system's own closing is not consulted.
    環境.会社設定().会社変更([&](会社情報& 値) { 値.決算月 = 12; });
    EXPECT_EQ(連携番号基準日付取得(連携, 出張申請, u"20260401"_qs, u"000"_qs), u"20261231"_qs);
    EXPECT_EQ(連携全社番号基準日付取得(連携, 出張申請, u"99999999"_qs), u"20261231"_qs);
    EXPECT_TRUE(連携事業所別().isEmpty());
}

TEST_P(白樺連携番号設定, 手入力の種類は本体なら88888888で連携では99999999) {
    ASSERT_NO_FATAL_FAILURE(連携実行(u"UPDATE A番号情報 SET 連番種類 = '7'"_qs));
    const 番号環境 連携(連携DB, 環境.接続(), 環境.会社設定().会社());
    EXPECT_EQ(連携全社番号基準日付取得(連携, 出張申請, u"20260401"_qs), u"99999999"_qs);
    EXPECT_EQ(番号基準日付取得(連携, 出張申請, u"20260401"_qs), u"88888888"_qs);
}

TEST_P(白樺連携番号設定, 連携に番号IDがなければ空) {
    const 番号環境 連携(連携DB, 環境.接続(), 環境.会社設定().会社());
    EXPECT_EQ(連携全社番号基準日付取得(連携, u"16810"_qs, u"20260401"_qs), QString());
    環境.会社設定().会社変更([&](会社情報& 値) { 値.伝票番号管理区分 = 1; });
    EXPECT_EQ(連携番号基準日付取得(連携, u"16810"_qs, u"20260401"_qs, u"001"_qs), QString());
    EXPECT_TRUE(連携事業所別().isEmpty());
}

TEST_P(白樺連携番号設定, 事業所別は名称と種類を写した事業所行を作りその行の種類で計算する) {
    環境.会社設定().会社変更([&](会社情報& 値) { 値.伝票番号管理区分 = 1; });
    const 番号環境 連携(連携DB, 環境.接続(), 環境.会社設定().会社());
    EXPECT_EQ(連携番号基準日付取得(連携, 出張申請, u"20260401"_qs, u"001"_qs), u"20270331"_qs);
    EXPECT_EQ(連携事業所別(), QStringList{u"001|72150|出張申請|1|00000000|00000000"_qs});

    // The office row decides, not A番号情報.
    ASSERT_NO_FATAL_FAILURE(
        連携実行(u"UPDATE A事業所別番号情報 SET 連番種類 = '3' WHERE 事業所コード = '001'"_qs));
    EXPECT_EQ(連携番号基準日付取得(連携, 出張申請, u"20260401"_qs, u"001"_qs), u"20260401"_qs);
    ASSERT_NO_FATAL_FAILURE(
        連携実行(u"UPDATE A事業所別番号情報 SET 連番種類 = '5' WHERE 事業所コード = '001'"_qs));
    EXPECT_EQ(連携事業所別番号基準日付取得(連携, 出張申請, u"20260401"_qs, u"001"_qs),
              u"99999999"_qs);
    EXPECT_EQ(連携事業所別().size(), 1);
    EXPECT_TRUE(事業所別().isEmpty());  // the general database is not touched
}

TEST_P(白樺連携番号設定, 連携の事業所行確保は既にある行に触れない) {
    const 番号環境 連携(連携DB, 環境.接続(), 環境.会社設定().会社());
    ASSERT_NO_FATAL_FAILURE(
        連携実行(u"INSERT INTO A事業所別番号情報 VALUES "
                 "('002', '72150', '旧名', '0', '00000004', '00000009')"_qs));
    連携事業所別番号行確保(連携, 出張申請, u"002"_qs);
    連携事業所別番号行確保(連携, 出張申請, u"003"_qs);
    EXPECT_EQ(連携事業所別(), (QStringList{u"002|72150|旧名|0|00000004|00000009"_qs,
                                           u"003|72150|出張申請|1|00000000|00000000"_qs}));
    環境.会社設定().会社変更([&](会社情報& 値) { 値.伝票番号管理区分 = 1; });
    EXPECT_EQ(連携番号基準日付取得(連携, 出張申請, u"20260401"_qs, u"002"_qs), u"99999999"_qs);
}

TEST_P(白樺連携番号設定, 連携の失敗は本体の稼動履歴に残る) {
    ASSERT_NO_FATAL_FAILURE(連携実行(u"DROP TABLE A事業所別番号情報"_qs));
    const 番号環境 連携(連携DB, 環境.接続(), 環境.会社設定().会社());
    EXPECT_EQ(連携事業所別番号基準日付取得(連携, 出張申請, u"20260401"_qs, u"001"_qs), QString());
    const QStringList エラー = 履歴文(u"エラー "_qs);
    ASSERT_EQ(エラー.size(), 3);  // the look for the row, its insert, the read of the kind
    EXPECT_TRUE(エラー[1].contains(
        u"INSERT INTO [A事業所別番号情報] ([事業所コード],[番号ID],[名称],[連番種類],[連番],"
        "[履歴連番]) VALUES (''001'',''72150'',''出張申請'',''1'',''00000000'',''00000000'')"_qs))
        << エラー[1].toStdString();
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

KONPEKI_両エンジンで(白樺連携番号設定);

}  // namespace
