#include <gtest/gtest.h>

#include "common/エンジン別試験.h"
#include "dataenv/データ環境.h"
#include "text/台本プラットフォーム.h"

namespace {

const QString 翠嶺 = u"翠嶺"_qs;
const QString 紺碧帳 = u"紺碧帳"_qs;

// The sample company: operator 00001 with rows of his own for both programs, every right held.
class 操作権限 : public エンジン別試験 {
  protected:
    void 読む() {
        開く();
        if (HasFatalFailure()) return;
        ASSERT_TRUE(環境.会社設定().基本項目読込());
    }
    void 業務(const QString& 文) { ASSERT_TRUE(木->業務DB実行(文)) << 文.toStdString(); }
    void 設定(const QString& 文) { ASSERT_TRUE(木->環境DB実行(文)) << 文.toStdString(); }
    // Without his own rows the operator's class rights of M担当者 decide.
    void 個別行なし() { 業務(u"DELETE FROM 担当者別操作許可プログラム"_qs); }
    void 担当者権限(const QString& 列, const QString& 値) {
        業務(u"UPDATE M担当者 SET "_qs + 列 + u" = "_qs + 値 + u" WHERE コード = '00001'"_qs);
    }
    void 個別権限(const QString& 列, const QString& 値) {
        業務(u"UPDATE 担当者別操作許可プログラム SET "_qs + 列 + u" = "_qs + 値 +
             u" WHERE プログラムID = '紺碧帳'"_qs);
    }
    void 個別行追加(const QString& メニュー, const QString& プログラム, const QString& 操作許可) {
        業務(
            u"INSERT INTO 担当者別操作許可プログラム (担当者コード, 業務メニュ, プログラムID, "
            "操作許可, 入力許可, 修正許可, 削除許可, 印刷許可, プレビュ許可, テキスト出力許可, "
            "イメージ出力許可) VALUES ('00001', '"_qs +
            メニュー + u"', '"_qs + プログラム + u"', '"_qs + 操作許可 +
            u"', '0', '0', '0', '0', '0', '0', '0')"_qs);
    }
    void 処理分類(int 分類) {
        設定(u"UPDATE 翠嶺 SET 処理分類 = "_qs + QString::number(分類) +
             u" WHERE プログラムID = '紺碧帳'"_qs);
    }
    // A company with PINs; where the PIN window comes up nobody types one and it closes by its
    // frame.
    void 暗証番号あり() {
        業務(u"UPDATE Mユーザ SET 暗証番号有無 = 1"_qs);
        基盤.画面表示時 = [](const QString&) {};
    }
    void 起動担当者(const QString& 値) {
        設定(u"UPDATE 動作環境定義 SET 起動担当者コード = "_qs + 値);
    }
    QString 起動担当者() {
        return 木->環境DB行(u"SELECT 起動担当者コード FROM 動作環境定義"_qs)[0][0].toString();
    }
    bool 判定(short 区分 = 0, const QString& メニュー = 翠嶺, const QString& プログラム = 紺碧帳) {
        環境.操作者権限().操作者読込();
        環境.操作者権限().操作者情報読込(環境.操作者権限().操作者().担当者コード);
        return 環境.操作者権限().操作権限判定(メニュー, プログラム, 区分);
    }
};

TEST_P(操作権限, 見本の操作者は許され記録のすべての欄が読まれる) {
    読む();
    EXPECT_EQ(環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 0), -1);
    EXPECT_TRUE(環境.操作者権限().権限確認済());
    const 操作者情報& o = 環境.操作者権限().操作者();
    EXPECT_EQ(o.担当者コード, u"00001"_qs);
    EXPECT_EQ(o.氏名, u"青木 翔太"_qs);
    EXPECT_EQ(o.事業所コード, u"000"_qs);
    EXPECT_EQ(o.部門コード, u"002"_qs);
    EXPECT_EQ(o.セクションコード, u"003"_qs);
    EXPECT_EQ(o.役職コード, u"04"_qs);
    EXPECT_EQ(o.社員区分, 1);
    EXPECT_EQ(o.ログインID, u"aoki"_qs);
    EXPECT_EQ(o.アクセス権限, 6);
    EXPECT_EQ(o.処理分類操作許可[9], u"0"_qs);
    EXPECT_EQ(o.イメージ出力許可, u"0"_qs);
    EXPECT_TRUE(基盤.表示画面.isEmpty());
}

TEST_P(操作権限, 操作者は起動担当者コードから読まれ空白なら偽) {
    読む();
    EXPECT_TRUE(環境.操作者権限().操作者読込());
    EXPECT_EQ(環境.操作者権限().操作者().担当者コード, u"00001"_qs);
    起動担当者(u"'   '"_qs);
    EXPECT_FALSE(環境.操作者権限().操作者読込());
    起動担当者(u"NULL"_qs);
    EXPECT_FALSE(環境.操作者権限().操作者読込());
    EXPECT_EQ(環境.操作者権限().操作者().担当者コード, QString());
}

TEST_P(操作権限, 操作者情報のNullの列は前の値を残し無い担当者は偽) {
    業務(
        u"UPDATE M担当者 SET 部門コード = NULL, 操作許可 = NULL, アクセス権限 = NULL WHERE コード = '00001'"_qs);
    読む();
    環境.操作者権限().操作者変更([&](操作者情報& 値) { 値.部門コード = u"999"_qs; });
    環境.操作者権限().操作者変更([&](操作者情報& 値) { 値.操作許可 = u"7"_qs; });
    環境.操作者権限().操作者変更([&](操作者情報& 値) { 値.アクセス権限 = 3; });
    ASSERT_TRUE(環境.操作者権限().操作者情報読込(u"00001"_qs));
    EXPECT_EQ(環境.操作者権限().操作者().氏名, u"青木 翔太"_qs);
    EXPECT_EQ(環境.操作者権限().操作者().部門コード, u"999"_qs);
    EXPECT_EQ(環境.操作者権限().操作者().操作許可, u"7"_qs);
    EXPECT_EQ(環境.操作者権限().操作者().アクセス権限, 3);
    EXPECT_FALSE(環境.操作者権限().操作者情報読込(u"99999"_qs));
}

TEST_P(操作権限, 個別の行は担当者の権限に勝ち記録に写される) {
    担当者権限(u"操作許可"_qs, u"'1'"_qs);
    担当者権限(u"処理分類1操作許可"_qs, u"'1'"_qs);
    個別権限(u"削除許可"_qs, u"'1'"_qs);
    読む();
    EXPECT_TRUE(判定(0));
    EXPECT_EQ(環境.操作者権限().操作者().操作許可, u"0"_qs);
    EXPECT_EQ(環境.操作者権限().操作者().削除許可, u"1"_qs);
    EXPECT_TRUE(判定(1));
    EXPECT_FALSE(判定(3));
}

TEST_P(操作権限, 個別の行の操作許可が拒めば他の権限は見ない) {
    個別権限(u"操作許可"_qs, u"'1'"_qs);
    読む();
    EXPECT_FALSE(判定(0));
    EXPECT_FALSE(判定(1));
}

TEST_P(操作権限, 権限は零か空で許し他の値で拒む) {
    個別行なし();
    読む();
    for (const QString& 値 : {u"'0'"_qs, u"''"_qs, u"'00'"_qs, u"' 0'"_qs}) {
        担当者権限(u"処理分類1操作許可"_qs, 値);
        EXPECT_TRUE(判定()) << 値.toStdString();
    }
    for (const QString& 値 : {u"'1'"_qs, u"'2'"_qs, u"'-1'"_qs, u"'0.5'"_qs}) {
        担当者権限(u"処理分類1操作許可"_qs, 値);
        EXPECT_FALSE(判定()) << 値.toStdString();
    }
}

// The per-operator row decides alone: the menu table is not even read.
TEST_P(操作権限, 個別の行の権限がすべてNullなら全部許し処理分類は読まない) {
    for (const auto& [名, 欄] : 操作区分別権限) 個別権限(QString::fromUtf16(名), u"NULL"_qs);
    for (int i = 0; i < 10; ++i) 担当者権限(処理分類列名(i), u"'1'"_qs);
    for (const auto& [名, 欄] : 操作区分別権限) 担当者権限(QString::fromUtf16(名), u"'1'"_qs);
    設定(u"DROP TABLE 翠嶺"_qs);
    読む();
    for (short 区分 = 0; 区分 <= 7; ++区分) EXPECT_TRUE(判定(区分)) << 区分;
    EXPECT_EQ(環境.操作者権限().操作者().イメージ出力許可, QString());
}

TEST_P(操作権限, 処理分類の権限は分類ごとにその列で決まり区分の権限がその後に効く) {
    個別行なし();
    読む();
    for (int 分類 : {0, 1, 2, 4, 5, 6, 7, 8, 9}) {
        処理分類(分類);
        EXPECT_TRUE(判定()) << 分類;
        担当者権限(処理分類列名(分類), u"'1'"_qs);
        EXPECT_FALSE(判定()) << 分類;
        処理分類((分類 + 1) % 10 == 3 ? 4 : (分類 + 1) % 10);
        EXPECT_TRUE(判定()) << 分類;  // another class's column
        担当者権限(処理分類列名(分類), u"'0'"_qs);
    }
    処理分類(1);
    担当者権限(u"印刷許可"_qs, u"'1'"_qs);
    EXPECT_TRUE(判定(3));
    EXPECT_FALSE(判定(4));
}

TEST_P(操作権限, 範囲外の処理分類は許す) {
    個別行なし();
    for (int i = 0; i < 10; ++i) 担当者権限(処理分類列名(i), u"'1'"_qs);
    読む();
    for (int 分類 : {10, -1, 99}) {
        処理分類(分類);
        EXPECT_TRUE(判定()) << 分類;
    }
}

TEST_P(操作権限, 範囲外の操作区分は判定を変えない) {
    for (const auto& [名, 欄] : 操作区分別権限) 個別権限(QString::fromUtf16(名), u"'1'"_qs);
    個別権限(u"操作許可"_qs, u"'0'"_qs);
    読む();
    EXPECT_TRUE(判定(8));
    EXPECT_TRUE(判定(-1));
    EXPECT_FALSE(判定(1));
}

TEST_P(操作権限, 処理分類3は事業所件数が0なら権限を見ずに許す) {
    個別行なし();
    担当者権限(u"処理分類3操作許可"_qs, u"'1'"_qs);
    業務(u"DELETE FROM M事業所 WHERE コード <> '000'"_qs);
    読む();
    ASSERT_EQ(環境.会社設定().事業所件数(), 0);
    処理分類(3);
    EXPECT_TRUE(判定());
}

TEST_P(操作権限, 処理分類3は支店のある会社の本社では拒む) {
    個別行なし();
    読む();
    ASSERT_EQ(環境.会社設定().事業所件数(), 2);
    処理分類(3);
    EXPECT_FALSE(判定());
}

TEST_P(操作権限, 処理分類3は支店では処理分類3の権限で決まる) {
    個別行なし();
    設定(u"UPDATE 動作環境定義 SET 運用事業所コード = '001'"_qs);
    読む();
    処理分類(3);
    EXPECT_TRUE(判定());
    担当者権限(u"処理分類3操作許可"_qs, u"'1'"_qs);
    EXPECT_FALSE(判定());
}

TEST_P(操作権限, 四つの業務メニュはそのメニュの行だけを見る) {
    const QStringList メニュー{u"翠嶺"_qs, u"翠嶺データ管理"_qs, u"翠嶺補助機能"_qs,
                               u"翠嶺サービスメニュ"_qs};
    読む();
    for (const QString& m : メニュー) {
        個別行なし();
        個別行追加(m, u"試験"_qs, u"0"_qs);
        // No menu table has the program, so only a row of the menu asked for permits.
        for (const QString& 問 : メニュー) {
            EXPECT_EQ(判定(0, 問, u"試験"_qs), 問 == m) << m.toStdString() << 問.toStdString();
        }
    }
}

TEST_P(操作権限, 知らないメニュはメニュを問わず行を探す) {
    個別行なし();
    個別行追加(u"翠嶺データ管理"_qs, u"試験"_qs, u"0"_qs);
    読む();
    EXPECT_TRUE(判定(0, u"他のメニュ"_qs, u"試験"_qs));
    EXPECT_FALSE(判定(0, u"翠嶺"_qs, u"試験"_qs));
}

TEST_P(操作権限, メニュ表に無く個別の行も無いプログラムは拒む) {
    読む();
    EXPECT_FALSE(判定(0, 翠嶺, u"無いプログラム"_qs));
}

TEST_P(操作権限, 操作者の無い判定はメニュ表にあるかだけで決まる) {
    個別行なし();
    読む();
    環境.操作者権限().操作者変更([&](操作者情報& 値) { 値 = {}; });
    EXPECT_TRUE(環境.操作者権限().操作権限判定(翠嶺, 紺碧帳, 7));
    EXPECT_FALSE(環境.操作者権限().操作権限判定(翠嶺, u"無いプログラム"_qs, 0));
}

TEST_P(操作権限, メニュ表が無ければ拒み暗証番号が無ければそれでも許す) {
    個別行なし();
    設定(u"DROP TABLE 翠嶺"_qs);
    読む();
    EXPECT_FALSE(判定());
    EXPECT_EQ(環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 0), -1);
    EXPECT_FALSE(環境.操作者権限().権限確認済());
    EXPECT_TRUE(基盤.表示画面.isEmpty());
}

TEST_P(操作権限, 壊れた個別の表は処理分類の権限に落ちる) {
    業務(u"DROP TABLE 担当者別操作許可プログラム"_qs);
    読む();
    EXPECT_TRUE(判定());
    担当者権限(u"処理分類1操作許可"_qs, u"'1'"_qs);
    EXPECT_FALSE(判定());
}

TEST_P(操作権限, 暗証番号無しの会社はどの確認も許す) {
    個別権限(u"操作許可"_qs, u"'1'"_qs);
    読む();
    for (short 区分 = 0; 区分 <= 7; ++区分)
        EXPECT_EQ(環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 区分), -1);
    EXPECT_FALSE(環境.操作者権限().権限確認済());
    EXPECT_TRUE(基盤.表示画面.isEmpty());
}

TEST_P(操作権限, 暗証番号ありで許された操作者には窓を出さない) {
    暗証番号あり();
    読む();
    ASSERT_EQ(環境.会社設定().暗証番号要否(), 1);
    EXPECT_EQ(環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 0), -1);
    EXPECT_EQ(環境.操作者権限().操作権限確認(u"翠嶺"_qs, u"紺碧帳書"_qs, 4), -1);
    EXPECT_TRUE(基盤.表示画面.isEmpty());
}

// Closed by its frame the window confirms nobody: each check opens it again, until another
// program writes an operator into the workplace settings.
TEST_P(操作権限, 暗証番号ありで操作者が無ければ確定するまで毎回窓が出る) {
    暗証番号あり();
    起動担当者(u"''"_qs);
    読む();
    EXPECT_EQ(環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 0), 0);
    EXPECT_EQ(環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 1), 0);
    EXPECT_EQ(環境.操作者権限().暗証確認題名(), u"翠嶺/暗証確認"_qs);
    using 表示 = QPair<QString, bool>;
    EXPECT_EQ(基盤.表示画面,
              (QList<表示>{{u"msg暗証番号確認"_qs, true}, {u"msg暗証番号確認"_qs, true}}));
    起動担当者(u"'00001'"_qs);
    EXPECT_EQ(環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 2), -1);
    EXPECT_EQ(基盤.表示画面.size(), 2);
}

TEST_P(操作権限, 暗証番号ありで拒まれた操作者には窓が出て閉じれば0) {
    暗証番号あり();
    個別権限(u"削除許可"_qs, u"'1'"_qs);
    読む();
    EXPECT_EQ(環境.操作者権限().操作権限確認(u"翠嶺補助機能"_qs, 紺碧帳, 3), 0);
    EXPECT_EQ(環境.操作者権限().暗証確認題名(), u"翠嶺補助機能/暗証確認"_qs);
    EXPECT_EQ(基盤.表示画面.size(), 1);
    EXPECT_FALSE(環境.操作者権限().権限確認済());
}

TEST_P(操作権限, 照会は担当者が無ければ偽で確認済を下ろす) {
    起動担当者(u"'99999'"_qs);
    読む();
    環境.操作者権限().権限確認済設定(true);
    EXPECT_FALSE(環境.操作者権限().操作権限照会(翠嶺, 紺碧帳, 0));
    EXPECT_FALSE(環境.操作者権限().権限確認済());
}

TEST_P(操作権限, 操作者確定は起動担当者コードを書き記録を読み直す) {
    読む();
    環境.操作者権限().担当者コード設定(u"00003"_qs);
    環境.操作者権限().操作者確定();
    EXPECT_EQ(起動担当者(), u"00003"_qs);
    EXPECT_EQ(環境.操作者権限().操作者().氏名, u"上田 健一"_qs);
    EXPECT_TRUE(履歴().last()[1].toString().startsWith(
        u"出力終了 UPDATE 動作環境定義 SET 起動担当者コード = ''00003''"_qs));
    環境.操作者権限().担当者コード設定(u"  "_qs);
    環境.操作者権限().操作者確定();
    EXPECT_EQ(起動担当者(), u"00003"_qs);
}

TEST_P(操作権限, 操作者確定が書けなければ知らせて読み直さない) {
    読む();
    設定(u"DROP TABLE 動作環境定義"_qs);
    環境.操作者権限().担当者コード設定(u"00003"_qs);
    環境.操作者権限().操作者確定();
    EXPECT_EQ(基盤.表示文言(), QStringList{u"データベースに問題が発生し修正できませんでした。"_qs});
    EXPECT_EQ(環境.操作者権限().操作者().氏名, QString());
}

TEST_P(操作権限, 題は本社で支店があれば全社と操作者の名前) {
    読む();
    環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 0);
    EXPECT_EQ(環境.操作者権限().画面タイトル設定(), u"紺碧帳(全社)「青木 翔太」"_qs);
}

TEST_P(操作権限, 題は支店ならその名前で操作者が無ければ名前を付けない) {
    設定(u"UPDATE 動作環境定義 SET 運用事業所コード = '001', 起動担当者コード = ''"_qs);
    読む();
    環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 0);
    EXPECT_EQ(環境.操作者権限().画面タイトル設定(), u"紺碧帳(大阪支店)"_qs);
}

TEST_P(操作権限, 題は本社だけの会社でも名前の無い支店でも括弧を付けない) {
    業務(u"DELETE FROM M事業所 WHERE コード <> '000'"_qs);
    読む();
    環境.操作者権限().操作権限確認(翠嶺, 紺碧帳, 0);
    EXPECT_EQ(環境.操作者権限().画面タイトル設定(), u"紺碧帳「青木 翔太」"_qs);
    業務(u"INSERT INTO M事業所 (コード, 名称) VALUES ('005', ' ')"_qs);
    環境.接続().環境変更([&](プログラム環境情報& 値) { 値.運用事業所コード = u"005"_qs; });
    EXPECT_EQ(環境.操作者権限().画面タイトル設定(), u"紺碧帳「青木 翔太」"_qs);
}

TEST_P(操作権限, 題の基はメニュのプログラムIDなら短い呼び名になる) {
    const std::pair<QString, QString> 組[] = {
        {u"翠嶺"_qs, u"翠嶺"_qs},
        {u"翠嶺データ管理"_qs, u"データ管理"_qs},
        {u"翠嶺補助機能"_qs, u"補助機能"_qs},
        {u"翠嶺サービスメニュ"_qs, u"サービスメニュー"_qs},
        {u"翠嶺マイメニュ"_qs, u"マイメニュー"_qs},
        {u"紺碧帳書"_qs, u"紺碧帳書"_qs},
    };
    for (const auto& [ID, 題] : 組) {
        データ環境 他(基盤, ID);
        他.接続().自身のフォルダ設定(木->プログラムフォルダ());
        ASSERT_TRUE(他.接続().SYB_OPEN());
        ASSERT_TRUE(他.接続().DB_OPEN());
        ASSERT_TRUE(他.会社設定().基本項目読込());
        EXPECT_EQ(他.操作者権限().画面タイトル設定(), 題 + u"(全社)"_qs) << ID.toStdString();
        他.接続().接続終了();
    }
}

TEST_P(操作権限, 条件項目名は26欄に書かれ書けなければ知らせる) {
    読む();
    QStringList 名;
    for (int i = 0; i < 26; ++i) 名.append(u"項目"_qs + QChar(u'A' + i));
    ASSERT_TRUE(環境.接続().条件項目名保存(翠嶺, u"紺碧帳書"_qs, 名));
    const auto 行 = 木->環境DB行(
        u"SELECT 条件項目名A, 条件項目名M, 条件項目名Y, 条件項目名Z FROM 翠嶺 WHERE プログラムID = '紺碧帳書'"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0], (QVariantList{u"項目A"_qs, u"項目M"_qs, u"項目Y"_qs, u"項目Z"_qs}));
    EXPECT_TRUE(基盤.表示文言().isEmpty());
    EXPECT_FALSE(環境.接続().条件項目名保存(u"無い表"_qs, u"紺碧帳書"_qs, 名));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"システムデータベースに問題があり登録できません"_qs});
}

KONPEKI_両エンジンで(操作権限);

}  // namespace
