#include <QDir>
#include <QFile>

#include "common/エンジン別試験.h"
#include "common/人事連携試験.h"

namespace {

QStringList 摘要一覧(const QList<QVariantList>& 行) {
    QStringList r;
    for (const auto& v : 行) r.append(v[1].toString());
    return r;
}

class 人事連携 : public 人事連携試験 {};
KONPEKI_人事の両エンジンで(人事連携);

TEST_P(人事連携, 見本の白樺が開き社員と会社の行を読む) {
    開く();
    連携スロット環境* L = 環境.接続().連携先();
    ASSERT_NE(L, nullptr);
    EXPECT_EQ(環境.接続().連携スロット番号(), 1);
    EXPECT_TRUE(L->環境DB接続中);
    EXPECT_TRUE(L->業務DB接続中);
    EXPECT_EQ(L->プログラムフォルダ, 木->人事根() + u"/prgbin"_qs);
    EXPECT_EQ(L->環境フォルダ, 木->人事根() + u"/conf"_qs);
    EXPECT_EQ(L->定義.db, GetParam() ? u"P"_qs : u"A"_qs);
    EXPECT_EQ(L->更新実行区分, 1);
    記録集合 rs;
    ASSERT_TRUE(環境.接続().連携DB検索(rs, u"SELECT 氏名 FROM M社員 WHERE コード = '00005'"_qs));
    EXPECT_EQ(rs.文字列(u"氏名"_qs), u"大野 大輔"_qs);
    rs.閉じる();
    EXPECT_TRUE(基盤.表示文言().isEmpty());
}

TEST_P(人事連携, 検索の記録は自社の稼動履歴に書かれ連携側の環境には書かれない) {
    開く();
    記録集合 rs;
    ASSERT_TRUE(環境.接続().連携DB検索(rs, u"SELECT * FROM K旅費区分"_qs, true));
    rs.閉じる();
    ASSERT_TRUE(環境.接続().連携環境DB実行(u"DELETE FROM プログラムクリップボード"_qs));
    EXPECT_EQ(摘要一覧(履歴()), QStringList{u"出力終了 SELECT * FROM K旅費区分"_qs});
    EXPECT_TRUE(木->人事環境DB行(u"SELECT * FROM プログラム稼動履歴"_qs).isEmpty());
}

TEST_P(人事連携, 失敗した文は自社の稼動履歴にエラーとして残る) {
    開く();
    EXPECT_FALSE(環境.接続().連携DB実行(u"UPDATE 無い表 SET x = 1"_qs, true));
    記録集合 rs;
    EXPECT_FALSE(環境.接続().連携環境DB検索(rs, u"SELECT * FROM 無い表"_qs));
    rs.閉じる();
    const QStringList 摘要 = 摘要一覧(履歴());
    ASSERT_EQ(摘要.size(), 2);
    EXPECT_TRUE(摘要[0].startsWith(u"エラー "_qs));
    EXPECT_TRUE(摘要[0].endsWith(u"UPDATE 無い表 SET x = 1"_qs));
    EXPECT_TRUE(摘要[1].endsWith(u"SELECT * FROM 無い表"_qs));
}

TEST_P(人事連携, 終了で二つの接続が閉じ連携側には何も書かない) {
    開く();
    環境.人事連携終了();
    EXPECT_FALSE(環境.接続().連携先()->環境DB接続中);
    EXPECT_FALSE(環境.接続().連携先()->業務DB接続中);
    記録集合 rs;
    EXPECT_FALSE(環境.接続().連携DB検索(rs, u"SELECT * FROM M社員"_qs));
    rs.閉じる();
    EXPECT_TRUE(木->人事環境DB行(u"SELECT * FROM プログラム連携情報"_qs).isEmpty());
}

TEST_P(人事連携, 利用者別の白樺は共通の設定を利用者の場所に写して開く) {
    ASSERT_TRUE(木->人事環境DB実行(u"UPDATE 動作環境定義 SET インストール区分 = 1"_qs));
    開く();
    const 連携スロット環境& L = *環境.接続().連携先();
    const QString 利用者 = 木->人事根() + u"/users/"_qs + 環境.接続().環境().ユーザID;
    EXPECT_EQ(L.環境フォルダ, 利用者 + u"/conf"_qs);
    EXPECT_EQ(L.帳票フォルダ, 利用者 + u"/report"_qs);
    EXPECT_TRUE(QFile::exists(利用者 + u"/conf/usrcnfg.sqlite"_qs));
    EXPECT_TRUE(L.環境DB接続中);
}

TEST_P(人事連携, 白樺の一般データベースが無ければ開始は偽で履歴に連携db_OPENが残る) {
    if (GetParam()) {
        ASSERT_TRUE(木->人事環境DB実行(
            u"UPDATE データベース定義 SET データベース名 = 'no_such_db' WHERE 情報種類 = 'GNR'"_qs));
    } else {
        ASSERT_TRUE(QFile::remove(木->人事根() + u"/data/gnrdb.sqlite"_qs));
    }
    自社を開いて連携を選ぶ();
    EXPECT_FALSE(環境.人事連携開始());
    const QStringList 摘要 = 摘要一覧(履歴());
    ASSERT_FALSE(摘要.isEmpty());
    EXPECT_TRUE(摘要.last().startsWith(u"エラー 連携db_OPEN ERROR"_qs))
        << 摘要.last().toStdString();
}

// A company without the HR system, or with its slot configured in other ways.
class 人事連携枠 : public エンジン別試験 {
  protected:
    void 開いて読む() {
        開く();
        ASSERT_TRUE(環境.会社設定().基本項目読込());
    }
};
KONPEKI_両エンジンで(人事連携枠);

TEST_P(人事連携枠, 連携有無区分が0の枠は選ばれない) {
    開いて読む();
    EXPECT_FALSE(環境.人事連携選択(u"白樺"_qs));
    EXPECT_EQ(環境.接続().連携先(), nullptr);
    記録集合 rs;
    EXPECT_FALSE(環境.接続().連携DB検索(rs, u"SELECT * FROM M社員"_qs));
    rs.閉じる();
}

TEST_P(人事連携枠, アプリフォルダが空なら設定側を飛ばし空の値で一般側を開いて失敗する) {
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE M他業務連携 SET 連携有無区分 = 1, 連携アプリフォルダ = '' WHERE コード = '002'"_qs));
    開いて読む();
    ASSERT_TRUE(環境.人事連携選択(u"白樺"_qs));
    EXPECT_FALSE(環境.人事連携開始());
    EXPECT_FALSE(環境.接続().連携先()->環境DB接続中);
    EXPECT_TRUE(環境.接続().連携先()->定義.db.isEmpty());
    // No opening message of the configuration side: it was never tried.
    EXPECT_TRUE(基盤.表示文言().isEmpty());
    const auto 行 = 履歴();
    ASSERT_FALSE(行.isEmpty());
    EXPECT_TRUE(行.last()[1].toString().startsWith(u"エラー 連携db_OPEN ERROR"_qs));
}

TEST_P(人事連携枠, 三番目と四番目の枠は同じ行で昇順の検索では三番目が選ばれる) {
    ASSERT_TRUE(木->業務DB実行(
        u"UPDATE M他業務連携 SET 業務名 = '白樺', 連携有無区分 = 1 WHERE コード = '005'"_qs));
    開いて読む();
    ASSERT_TRUE(環境.人事連携選択(u"白樺"_qs));
    EXPECT_EQ(環境.接続().連携スロット番号(), 3);
}

TEST(人事連携の木, 自社が第一種のファイルでも連携側は第二種だけを探す) {
    試験用ツリー 木(QString(), true);
    ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
    // The HR side's configuration only in the first kind: the link does not look for it.
    const QString 設定 = 木.人事根() + u"/conf/usrcnfg"_qs;
    ASSERT_TRUE(QFile::rename(設定 + u".sqlite"_qs, 設定 + u".db"_qs));
    台本プラットフォーム 基盤;
    データ環境 環境(基盤);
    環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(環境.接続().環境().環境DB種別, 1);
    ASSERT_TRUE(環境.接続().DB_OPEN());
    ASSERT_TRUE(環境.会社設定().基本項目読込());
    ASSERT_TRUE(環境.人事連携選択(u"白樺"_qs));
    EXPECT_FALSE(環境.接続().連携SYB_OPEN());
    ASSERT_EQ(基盤.表示文言().size(), 1);
    EXPECT_TRUE(基盤.表示文言()[0].startsWith(u"連携syb_open ERROR3044 "_qs));
    EXPECT_TRUE(基盤.表示文言()[0].endsWith(u"\nsysopen error"_qs));
    EXPECT_FALSE(QFile::exists(設定 + u".sqlite"_qs));
}

}  // namespace
