#include "common/伝票投入.h"
#include "lists/一覧試験.h"

namespace {

// The slip No list restricts by the working office the run started with, not by the operating
// office of the workplace, which the menu may change while the program runs.
class 出金No一覧の作業事業所 : public 一覧試験 {
  protected:
    void SetUp() override {
        一覧試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        試験伝票 大阪;
        大阪.事業所コード = u"001"_qs;
        大阪.出金No = u"00000007"_qs;
        大阪.担当者コード = u"00008"_qs;
        試験伝票 本社 = 大阪;
        本社.事業所コード = u"000"_qs;
        本社.出金No = u"00000009"_qs;
        ASSERT_TRUE(伝票投入(*木, 大阪));
        ASSERT_TRUE(伝票投入(*木, 本社));
    }
    // Opens the list from the entry screen; answers its rows and its statement.
    QStringList 開いて見る() {
        QStringList 行;
        操作[u"wnd出金No一覧"_qs] = [&](一覧画面& x) {
            行 = 列(x);
            文 = x.検索SQL;
        };
        f->画面.操作_クリック(c(u"btn_出金No"_qs));
        return 行;
    }
    QString 文;
};

TEST_P(出金No一覧の作業事業所, 支店で始めた後に運用事業所が本社になっても支店の伝票だけが出る) {
    ASSERT_TRUE(木->環境DB実行(
        u"UPDATE 動作環境定義 SET 運用事業所コード = '001' WHERE 動作環境定義ID = '001'"_qs));
    開始();
    ASSERT_EQ(s.データ.接続().作業事業所コード(), u"001"_qs);
    s.データ.接続().運用事業所変更(u"000"_qs);
    ASSERT_EQ(s.データ.接続().環境().運用事業所コード, u"000"_qs);
    EXPECT_EQ(開いて見る(), QStringList{u"00000007"_qs});
    EXPECT_TRUE(文.contains(u" WHERE T出金.事業所コード = '001'"_qs)) << 文.toStdString();
}

TEST_P(出金No一覧の作業事業所, 本社で始めた後に運用事業所が支店になっても全事業所の伝票が出る) {
    開始();
    ASSERT_EQ(s.データ.接続().作業事業所コード(), u"000"_qs);
    s.データ.接続().運用事業所変更(u"001"_qs);
    ASSERT_EQ(s.データ.接続().環境().運用事業所コード, u"001"_qs);
    EXPECT_EQ(開いて見る(), (QStringList{u"00000009"_qs, u"00000007"_qs}));
    EXPECT_FALSE(文.contains(u"T出金.事業所コード ="_qs)) << 文.toStdString();
}

KONPEKI_両エンジンで(出金No一覧の作業事業所);

}  // namespace
