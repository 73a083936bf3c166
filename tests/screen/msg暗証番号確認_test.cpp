#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "common/エンジン別試験.h"
#include "dataenv/ファイル操作.h"
#include "screen/msg暗証番号確認.h"

namespace {

const QString 窓名 = u"msg暗証番号確認"_qs;

// A company that asks PINs, with nobody confirmed at the workplace: every rights check opens
// the PIN window, and the test plays the operator inside it. Today is 2026-04-01.
class 暗証番号確認 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        基盤.時刻 = QDateTime(QDate(2026, 4, 1), QTime(9, 0, 0));
        業務(u"UPDATE Mユーザ SET 暗証番号有無 = 1"_qs);
        業務(u"UPDATE M担当者 SET 暗証番号 = '1234' WHERE コード = '00003'"_qs);
        設定(u"UPDATE 動作環境定義 SET 起動担当者コード = ''"_qs);
    }
    void 準備() {
        開く();
        if (HasFatalFailure()) return;
        ASSERT_TRUE(環境.会社設定().基本項目読込());
        窓 = std::make_unique<msg暗証番号確認>(環境);
    }
    void 業務(const QString& 文) { ASSERT_TRUE(木->業務DB実行(文)) << 文.toStdString(); }
    void 設定(const QString& 文) { ASSERT_TRUE(木->環境DB実行(文)) << 文.toStdString(); }
    void 特権暗証番号(const QString& 値) {
        業務(u"UPDATE M事業所 SET 特権暗証番号 = "_qs + 値 + u" WHERE コード = '000'"_qs);
    }
    QString 起動担当者() {
        return 木->環境DB行(u"SELECT 起動担当者コード FROM 動作環境定義"_qs)[0][0].toString();
    }

    // What the operator does while the window is up.
    void 操作者が(std::function<void()> 手順) {
        基盤.画面表示時 = [this, 手順](const QString& 名) {
            if (名 == 窓名) 手順();
        };
    }
    short 確認(short 区分 = 0) {
        return 環境.操作者権限().操作権限確認(u"翠嶺"_qs, u"紺碧帳"_qs, 区分);
    }

    部品& c(const QString& 名前) { return 窓->画面(名前); }
    QString 焦点() const {
        const 部品* p = 窓->画面.フォーカス();
        return p ? p->名前 : QString();
    }
    void 打つ(const QString& コード, const QString& 暗証) {
        窓->画面.操作_入力(c(u"担当者コード"_qs), コード);
        窓->画面.操作_Tab();
        暗証だけ打つ(暗証);
    }
    void 暗証だけ打つ(const QString& 暗証) {
        窓->画面.操作_入力(c(u"暗証番号"_qs), 暗証);
        窓->画面.操作_クリック(c(u"btn_OK"_qs));
    }

    std::unique_ptr<msg暗証番号確認> 窓;
};

TEST_P(暗証番号確認, 正しい暗証番号で操作者が確定し起動担当者コードに書かれる) {
    準備();
    QString 題名, 名前, 焦点後;
    操作者が([&] {
        題名 = 窓->画面.Caption;
        窓->画面.操作_入力(c(u"担当者コード"_qs), u"3"_qs);
        窓->画面.操作_Tab();
        名前 = c(u"担当者名"_qs).Text;
        焦点後 = 焦点();
        暗証だけ打つ(u"1234"_qs);
    });
    EXPECT_EQ(確認(), -1);
    EXPECT_EQ(題名, u"翠嶺/暗証確認"_qs);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, u"00003"_qs);
    EXPECT_EQ(名前, u"上田 健一"_qs);
    EXPECT_EQ(焦点後, u"暗証番号"_qs);  // the name field is no tab stop
    EXPECT_EQ(起動担当者(), u"00003"_qs);
    EXPECT_EQ(環境.操作者権限().操作者().担当者コード, u"00003"_qs);
    EXPECT_EQ(環境.操作者権限().操作者().氏名, u"上田 健一"_qs);
    EXPECT_TRUE(環境.操作者権限().権限確認済());
    EXPECT_EQ(基盤.閉じた画面, QStringList{窓名});
    EXPECT_TRUE(基盤.表示文言().isEmpty());
    EXPECT_TRUE(履歴().last()[1].toString().startsWith(
        u"出力終了 UPDATE 動作環境定義 SET 起動担当者コード = ''00003''"_qs));
    // confirmed now: the next check asks nobody
    EXPECT_EQ(確認(1), -1);
    EXPECT_EQ(基盤.表示画面.size(), 1);
}

TEST_P(暗証番号確認, 違う暗証番号は知らせて暗証番号に戻り何度でも試せる) {
    準備();
    QStringList 焦点列;
    QString 途中の操作者 = u"x"_qs;
    操作者が([&] {
        打つ(u"00003"_qs, u"9999"_qs);
        焦点列.append(焦点());
        途中の操作者 = 環境.操作者権限().操作者().担当者コード;
        EXPECT_FALSE(環境.操作者権限().権限確認済());
        暗証だけ打つ(u"0000"_qs);
        焦点列.append(焦点());
        暗証だけ打つ(u"1234"_qs);
    });
    EXPECT_EQ(確認(), -1);
    EXPECT_EQ(基盤.表示文言(),
              (QStringList{u"暗証番号が違います。"_qs, u"暗証番号が違います。"_qs}));
    EXPECT_EQ(焦点列, (QStringList{u"暗証番号"_qs, u"暗証番号"_qs}));
    EXPECT_EQ(途中の操作者, QString());
    EXPECT_EQ(起動担当者(), u"00003"_qs);
}

TEST_P(暗証番号確認, 違う暗証番号のまま閉じれば確定せず0) {
    準備();
    操作者が([&] { 打つ(u"00003"_qs, u"9999"_qs); });
    EXPECT_EQ(確認(), 0);
    EXPECT_FALSE(環境.操作者権限().権限確認済());
    EXPECT_EQ(起動担当者(), QString());
}

TEST_P(暗証番号確認, 空の入力は知らせて暗証番号に戻る) {
    準備();
    QString 焦点後;
    操作者が([&] {
        打つ(u"00003"_qs, QString());
        焦点後 = 焦点();
    });
    EXPECT_EQ(確認(), 0);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"暗証番号を入力してください。"_qs});
    EXPECT_EQ(焦点後, u"暗証番号"_qs);
    EXPECT_EQ(環境.操作者権限().操作者().担当者コード, QString());
}

TEST_P(暗証番号確認, 特権暗証番号は大文字にした入力で誰の代わりにも通る) {
    特権暗証番号(u"'MASTER'"_qs);
    準備();
    操作者が([&] { 打つ(u"00003"_qs, u"master"_qs); });
    EXPECT_EQ(確認(), -1);
    EXPECT_EQ(起動担当者(), u"00003"_qs);
}

TEST_P(暗証番号確認, 小文字を含む格納値はどう打っても一致しない) {
    業務(u"UPDATE M担当者 SET 暗証番号 = 'abc' WHERE コード = '00003'"_qs);
    準備();
    操作者が([&] {
        打つ(u"00003"_qs, u"abc"_qs);
        暗証だけ打つ(u"ABC"_qs);
    });
    EXPECT_EQ(確認(), 0);
    EXPECT_EQ(基盤.表示文言(),
              (QStringList{u"暗証番号が違います。"_qs, u"暗証番号が違います。"_qs}));
}

TEST_P(暗証番号確認, 大文字の格納値は小文字で打っても通る) {
    業務(u"UPDATE M担当者 SET 暗証番号 = 'AB12' WHERE コード = '00003'"_qs);
    準備();
    操作者が([&] { 打つ(u"3"_qs, u"ab12"_qs); });
    EXPECT_EQ(確認(), -1);
}

TEST_P(暗証番号確認, キャンセルは確定せず窓を閉じ起動担当者コードはそのまま) {
    設定(u"UPDATE 動作環境定義 SET 起動担当者コード = '99999'"_qs);
    準備();
    操作者が([&] {
        窓->画面.操作_入力(c(u"担当者コード"_qs), u"3"_qs);
        窓->画面.操作_クリック(c(u"btn_キャンセル"_qs));
    });
    EXPECT_EQ(確認(), 0);
    EXPECT_FALSE(環境.操作者権限().権限確認済());
    EXPECT_EQ(基盤.閉じた画面, QStringList{窓名});
    EXPECT_EQ(起動担当者(), u"99999"_qs);
    EXPECT_TRUE(基盤.表示文言().isEmpty());
}

TEST_P(暗証番号確認, 利用者名がログインIDなら名前まで埋まり暗証番号を待つ) {
    業務(u"UPDATE M担当者 SET ログインID = '"_qs + 端末利用者名取得() +
         u"' WHERE コード = '00003'"_qs);
    準備();
    QString コード, 名前, 焦点後;
    bool 止まる = true;
    操作者が([&] {
        コード = c(u"担当者コード"_qs).Text;
        名前 = c(u"担当者名"_qs).Text;
        止まる = c(u"担当者コード"_qs).TabStop;
        焦点後 = 焦点();
        暗証だけ打つ(u"1234"_qs);
    });
    EXPECT_EQ(確認(), -1);
    EXPECT_EQ(コード, u"00003"_qs);
    EXPECT_EQ(名前, u"上田 健一"_qs);
    EXPECT_FALSE(止まる);
    EXPECT_EQ(焦点後, u"暗証番号"_qs);
    EXPECT_EQ(環境.操作者権限().操作者().ログインID, 端末利用者名取得());
}

// The window is made once and shown for each check: each show starts from empty fields.
TEST_P(暗証番号確認, 開くたびに欄は空になり担当者コードの止まりは戻る) {
    業務(u"UPDATE M担当者 SET ログインID = '"_qs + 端末利用者名取得() +
         u"' WHERE コード = '00003'"_qs);
    準備();
    操作者が([&] { 窓->画面.操作_入力(c(u"暗証番号"_qs), u"12"_qs); });
    EXPECT_EQ(確認(), 0);
    業務(u"UPDATE M担当者 SET ログインID = '' WHERE コード = '00003'"_qs);
    QStringList 欄;
    bool 止まる = false;
    操作者が([&] {
        for (const char16_t* 名 : {u"担当者コード", u"担当者名", u"暗証番号"}) {
            欄.append(c(QString::fromUtf16(名)).Text);
        }
        止まる = c(u"担当者コード"_qs).TabStop;
    });
    EXPECT_EQ(確認(), 0);
    EXPECT_EQ(欄, (QStringList{QString(), QString(), QString()}));
    EXPECT_TRUE(止まる);
}

TEST_P(暗証番号確認, 昨日辞めた人は見つからず今日辞める人もだが明日辞める人は見つかる) {
    準備();
    const auto 辞める = [&](const QString& 日付) {
        業務(u"UPDATE M担当者 SET 事業所コード = '000', 在籍区分 = '1', 退社日付 = '"_qs + 日付 +
             u"' WHERE コード = '00012'"_qs);
        return 窓->担当者読込(u"00012"_qs);
    };
    EXPECT_FALSE(辞める(u"20260331"_qs));
    EXPECT_FALSE(辞める(u"20260401"_qs));
    EXPECT_TRUE(辞める(u"20260402"_qs));
    EXPECT_EQ(c(u"担当者名"_qs).Text, u"清水 浩二"_qs);
    業務(u"UPDATE M担当者 SET 退社日付 = '' WHERE コード = '00012'"_qs);
    EXPECT_FALSE(窓->担当者読込(u"00012"_qs));  // left, no date
}

TEST_P(暗証番号確認, 昨日辞めた人は打っても名前が出ず確定できない) {
    業務(u"UPDATE M担当者 SET 暗証番号 = '55', 事業所コード = '000' WHERE コード = '00012'"_qs);
    準備();
    QString 名前 = u"x"_qs;
    操作者が([&] {
        窓->画面.操作_入力(c(u"担当者コード"_qs), u"12"_qs);
        窓->画面.操作_Tab();
        名前 = c(u"担当者名"_qs).Text;
        暗証だけ打つ(u"55"_qs);
    });
    EXPECT_EQ(確認(), 0);
    EXPECT_EQ(名前, QString());
    EXPECT_EQ(基盤.表示文言(), QStringList{u"暗証番号が違います。"_qs});
}

TEST_P(暗証番号確認, 他の事業所の人は見つからず本社の人は見つかる) {
    設定(u"UPDATE 動作環境定義 SET 運用事業所コード = '001'"_qs);
    準備();
    EXPECT_FALSE(窓->担当者読込(u"00010"_qs));  // of 002
    EXPECT_TRUE(窓->担当者読込(u"00008"_qs));   // of 001
    EXPECT_TRUE(窓->担当者読込(u"00003"_qs));   // of 000
    EXPECT_EQ(c(u"担当者名"_qs).Text, u"上田 健一"_qs);
}

TEST_P(暗証番号確認, 暗証番号がNullの人は特権暗証番号でしか入れない) {
    業務(u"UPDATE M担当者 SET 暗証番号 = NULL WHERE コード = '00003'"_qs);
    特権暗証番号(u"'MASTER'"_qs);
    準備();
    操作者が([&] {
        打つ(u"00003"_qs, QString());
        暗証だけ打つ(u"1234"_qs);
        暗証だけ打つ(u"MASTER"_qs);
    });
    EXPECT_EQ(確認(), -1);
    EXPECT_EQ(基盤.表示文言(),
              (QStringList{u"暗証番号を入力してください。"_qs, u"暗証番号が違います。"_qs}));
    EXPECT_EQ(起動担当者(), u"00003"_qs);
}

// With no master PIN and no PIN of his own, both would be empty; yet an empty entry is refused
// before either is compared.
TEST_P(暗証番号確認, 特権暗証番号が空なら親鍵は無く空の入力も通らない) {
    業務(u"UPDATE M担当者 SET 暗証番号 = NULL WHERE コード = '00003'"_qs);
    特権暗証番号(u"''"_qs);
    準備();
    操作者が([&] {
        打つ(u"00003"_qs, QString());
        暗証だけ打つ(u" "_qs);
    });
    EXPECT_EQ(確認(), 0);
    EXPECT_EQ(基盤.表示文言(),
              (QStringList{u"暗証番号を入力してください。"_qs, u"暗証番号が違います。"_qs}));
    EXPECT_EQ(起動担当者(), QString());
}

TEST_P(暗証番号確認, 確定した人が拒まれれば1) {
    業務(u"UPDATE M担当者 SET 暗証番号 = '22', 処理分類1操作許可 = '1' WHERE コード = '00002'"_qs);
    準備();
    操作者が([&] { 打つ(u"2"_qs, u"22"_qs); });
    EXPECT_EQ(確認(), 1);
    EXPECT_EQ(起動担当者(), u"00002"_qs);
    EXPECT_TRUE(環境.操作者権限().権限確認済());
}

TEST_P(暗証番号確認, 起動担当者コードが書けなくても確定は続く) {
    準備();
    設定(u"ALTER TABLE 動作環境定義 RENAME TO 旧動作環境定義"_qs);
    操作者が([&] { 打つ(u"3"_qs, u"1234"_qs); });
    EXPECT_EQ(確認(), -1);
    EXPECT_EQ(基盤.表示文言(), QStringList{u"データベースに問題が発生し修正できませんでした。"_qs});
    EXPECT_TRUE(環境.操作者権限().権限確認済());
    EXPECT_EQ(基盤.閉じた画面, QStringList{窓名});
}

TEST_P(暗証番号確認, 題の枠はその欄へ名前の枠は暗証番号へ送る) {
    準備();
    QStringList 焦点列;
    操作者が([&] {
        窓->画面.操作_入力(c(u"担当者コード"_qs), u"3"_qs);
        for (const char16_t* 枠 :
             {u"itm_ttl_担当者名", u"itm_ttl_担当者コード", u"itm_ttl_暗証番号"}) {
            窓->画面.操作_クリック(c(QString::fromUtf16(枠)));
            焦点列.append(焦点());
        }
    });
    確認();
    EXPECT_EQ(焦点列, (QStringList{u"暗証番号"_qs, u"担当者コード"_qs, u"暗証番号"_qs}));
}

TEST_P(暗証番号確認, 担当者コードが空なら暗証番号から担当者コードへ戻される) {
    準備();
    QStringList 焦点列;
    操作者が([&] {
        焦点列.append(焦点());
        窓->画面.操作_Tab();
        焦点列.append(焦点());
        窓->画面.操作_クリック(c(u"itm_ttl_暗証番号"_qs));
        焦点列.append(焦点());
    });
    確認();
    EXPECT_EQ(焦点列, (QStringList{u"担当者コード"_qs, u"担当者コード"_qs, u"担当者コード"_qs}));
}

TEST_P(暗証番号確認, タブは担当者名を飛ばして一巡する) {
    準備();
    QStringList 焦点列;
    操作者が([&] {
        窓->画面.操作_入力(c(u"担当者コード"_qs), u"3"_qs);
        for (int i = 0; i < 4; ++i) {
            窓->画面.操作_Tab();
            焦点列.append(焦点());
        }
    });
    確認();
    EXPECT_EQ(焦点列, (QStringList{u"暗証番号"_qs, u"btn_OK"_qs, u"btn_キャンセル"_qs,
                                   u"担当者コード"_qs}));
}

KONPEKI_両エンジンで(暗証番号確認);

}  // namespace
