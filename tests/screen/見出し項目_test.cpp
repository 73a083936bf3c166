#include "text/実行時エラー.h"
#include "入力画面試験.h"

namespace {

class 見出し項目 : public 入力画面試験 {
  protected:
    // Types into a field and leaves it by Tab, as an operator does.
    void 打って抜ける(const QString& 名前, const QString& 文字列) {
        f->画面.操作_入力(c(名前), 文字列);
        f->画面.操作_Tab();
    }
    // Types into a field without a Tab stop and leaves it by clicking the date's year.
    void 打ってクリックで抜ける(const QString& 名前, const QString& 文字列) {
        f->画面.操作_入力(c(名前), 文字列);
        f->画面.操作_フォーカス(c(u"出金日付年"_qs));
    }
    void 保存伝票(const QString& No, const QString& 日付, int 行数 = 2,
                  const QString& 基準日付 = u"20260331"_qs) {
        試験伝票 t;
        t.出金No = No;
        t.出金日付 = 日付;
        t.行数 = 行数;
        t.番号基準日付 = 基準日付;
        ASSERT_TRUE(伝票投入(木, t));
    }
    // A stored slip loaded by its number, as the operator brings it up.
    void 保存伝票を出す(const QString& No, const QString& 日付, int 行数 = 2) {
        保存伝票(No, 日付, 行数);
        打って抜ける(u"出金No"_qs, No);
        ASSERT_FALSE(s.新規情報フラグ);
    }
    QString 知らせ() { return c(u"お知らせ"_qs).Caption; }
    const QPair<QString, bool>& 最後の表示() const { return 基盤.表示画面.last(); }
};

// Date

TEST_F(見出し項目, 年を変えると番号期間と税率が変わり全明細と合計が計算し直される) {
    行を入れる(2);
    s.お知らせ文言 = u"新規情報です。"_qs;
    c(u"お知らせ"_qs).Caption = s.お知らせ文言;
    打って抜ける(u"出金日付年"_qs, u"2018"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.出金日付, u"20181120"_qs);
    EXPECT_EQ(h.番号基準日付, u"20190331"_qs);
    EXPECT_EQ(h.出金No, u"00000001"_qs);
    EXPECT_EQ(h.会計集計日付, u"20181130"_qs);
    EXPECT_EQ(h.今回税率, 金額::円(8));
    EXPECT_TRUE(h.前回税率.ゼロか());
    EXPECT_EQ(s.行[0].消費税率, 金額::円(8));
    EXPECT_EQ(s.行[0].出金消費税, 金額::円(80));
    EXPECT_EQ(s.行[0].実質出金金額, 金額::円(1080));
    EXPECT_EQ(s.行[0].税抜出金金額, 金額::円(1000));
    EXPECT_EQ(s.行[0].税込出金金額, 金額::円(1080));
    EXPECT_EQ(s.行[1].出金消費税, 金額::円(160));
    EXPECT_EQ(s.合計.出金金額合計, 金額::円(3000));
    EXPECT_EQ(s.合計.出金消費税合計, 金額::円(240));
    EXPECT_EQ(s.合計.今回税率出金金額合計, 金額::円(3000));
    EXPECT_EQ(s.合計.今回税率出金消費税合計, 金額::円(240));
    EXPECT_TRUE(s.入力変更フラグ);

    EXPECT_EQ(c(u"出金日付年"_qs).Text, u"2018"_qs);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000001"_qs);
    EXPECT_EQ(c(u"出金消費税合計"_qs).Text, u"240"_qs);
    EXPECT_EQ(c(u"実質出金金額合計"_qs).Text, u"3,240"_qs);
    EXPECT_EQ(c(u"itm_ttl_今回税率合計"_qs).Caption, u"合計(8%)"_qs);
    EXPECT_EQ(知らせ(), QString());
    EXPECT_EQ(焦点(), u"出金日付月"_qs);
}

TEST_F(見出し項目, 年を変えずに離れると月を変えた後でも計算し直さない) {
    行を入れる(1);
    打って抜ける(u"出金日付月"_qs, u"12"_qs);
    ASSERT_EQ(s.見出し.出金日付, u"20251220"_qs);
    ASSERT_EQ(s.行[0].出金消費税, 金額::円(100));
    s.行[0].出金消費税 = 金額::円(999);
    s.入力変更フラグ = false;

    打って抜ける(u"出金日付年"_qs, u"2025"_qs);

    EXPECT_EQ(s.行[0].出金消費税, 金額::円(999));
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(s.見出し.出金日付, u"20251220"_qs);
}

TEST_F(見出し項目, 月のゼロは暦に直してから番号期間を決める) {
    打って抜ける(u"出金日付月"_qs, u"0"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.出金日付年, u"2024"_qs);
    EXPECT_EQ(h.出金日付月, u"12"_qs);
    EXPECT_EQ(h.出金日付日, u"20"_qs);
    EXPECT_EQ(h.出金日付, u"20241220"_qs);
    EXPECT_EQ(h.番号基準日付, u"20250331"_qs);
    EXPECT_EQ(h.会計集計日付, u"20241231"_qs);
    EXPECT_EQ(c(u"出金日付年"_qs).Text, u"2024"_qs);
    EXPECT_EQ(c(u"出金日付月"_qs).Text, u"12"_qs);
}

TEST_F(見出し項目, 日の一桁は二桁に揃い月にない日は月末になる) {
    打って抜ける(u"出金日付日"_qs, u"5"_qs);
    EXPECT_EQ(s.見出し.出金日付, u"20251105"_qs);
    EXPECT_EQ(c(u"出金日付日"_qs).Text, u"05"_qs);

    打って抜ける(u"出金日付日"_qs, u"31"_qs);
    EXPECT_EQ(s.見出し.出金日付, u"20251130"_qs);
    EXPECT_EQ(c(u"出金日付日"_qs).Text, u"30"_qs);
}

TEST_F(見出し項目, 新規伝票で打った番号は同じ番号期間の日付変更で残る) {
    s.見出し.出金No = u"00000123"_qs;  // as typed under hand numbering, where it stands
    f->見出し表示();

    打って抜ける(u"出金日付月"_qs, u"12"_qs);
    EXPECT_EQ(s.見出し.出金No, u"00000123"_qs);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000123"_qs);

    打って抜ける(u"出金日付年"_qs, u"2026"_qs);
    EXPECT_EQ(s.見出し.番号基準日付, u"20270331"_qs);
    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
}

TEST_F(見出し項目, 保存伝票の番号期間内の日付変更は番号を保ちデータベースは変えない) {
    保存伝票を出す(u"00000005"_qs, u"20251118"_qs);

    打って抜ける(u"出金日付日"_qs, u"25"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.出金日付, u"20251125"_qs);
    EXPECT_EQ(h.出金No, u"00000005"_qs);
    EXPECT_EQ(h.番号基準日付, u"20260331"_qs);
    EXPECT_EQ(h.保持出金日付, u"20251118"_qs);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000005"_qs);
    const auto 行 = 木.業務DB行(u"SELECT 出金No, 出金日付 FROM T出金"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][1].toString(), u"20251118"_qs);
}

TEST_F(見出し項目, 保存伝票の日付を別の番号期間へ移すとすぐ新しい番号が出る) {
    保存伝票を出す(u"00000005"_qs, u"20251118"_qs);

    打って抜ける(u"出金日付年"_qs, u"2026"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.出金日付, u"20261118"_qs);
    EXPECT_EQ(h.番号基準日付, u"20270331"_qs);
    EXPECT_EQ(h.出金No, u"00000001"_qs);
    EXPECT_EQ(h.保持出金No, u"00000005"_qs);
    EXPECT_EQ(h.保持番号基準日付, u"20260331"_qs);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000001"_qs);
    EXPECT_EQ(知らせ(), QString());
}

TEST_F(見出し項目, 日程が参照する保存伝票は決算を超えて日付を移せない) {
    保存伝票を出す(u"00000005"_qs, u"20251118"_qs);
    // The sales activity program links one of its rows to the slip.
    ASSERT_TRUE(木.業務DB実行(
        u"INSERT INTO T営業活動明細 (担当者コード, 日付, 開始時刻, 終了時刻, 出金事業所コード, 出金番号基準日付, 出金No) VALUES ('00003', '20251118', '1000', '1100', '000', '20260331', '00000005')"_qs));

    打って抜ける(u"出金日付年"_qs, u"2026"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.出金日付, u"20251118"_qs);
    EXPECT_EQ(h.出金日付年, u"2025"_qs);
    EXPECT_EQ(h.出金No, u"00000005"_qs);
    EXPECT_EQ(h.番号基準日付, u"20260331"_qs);
    EXPECT_EQ(c(u"出金日付年"_qs).Text, u"2025"_qs);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000005"_qs);
    EXPECT_EQ(知らせ(), u"決算を超えた日付の変更は出来ません。"_qs);
}

// Slip number

TEST_F(見出し項目, 番号を打つと保存伝票が読まれ画面全体とスクロールが出直す) {
    保存伝票(u"00000005"_qs, u"20251118"_qs, 6);
    c(u"お知らせ"_qs).Caption = u"新規情報です。"_qs;

    打って抜ける(u"出金No"_qs, u"5"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.出金No, u"00000005"_qs);
    EXPECT_EQ(h.担当者コード, u"00003"_qs);
    EXPECT_EQ(s.最終行, 5);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000005"_qs);
    EXPECT_EQ(c(u"出金日付日"_qs).Text, u"18"_qs);
    EXPECT_EQ(c(u"担当者名"_qs).Text, u"上田 健一"_qs);
    EXPECT_EQ(c(u"部門名"_qs).Text, u"総務部"_qs);
    EXPECT_EQ(c(u"セクション名"_qs).Text, u"総務課"_qs);
    EXPECT_EQ(c(u"出金伝票備考A"_qs).Text, u"備考その一"_qs);
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"21,000"_qs);
    EXPECT_TRUE(c(u"scl_行"_qs).Enabled);
    EXPECT_EQ(c(u"scl_行"_qs).Max, 2);
    EXPECT_EQ(知らせ(), QString());
}

TEST_F(見出し項目, 保存されていない番号は打った見出しと明細を捨てて新規情報と知らせる) {
    見出しを埋める();
    行を入れる(2);

    打って抜ける(u"出金No"_qs, u"9"_qs);

    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
    EXPECT_EQ(s.見出し.担当者コード, QString());
    EXPECT_EQ(s.最終行, -1);
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000001"_qs);
    EXPECT_EQ(c(u"担当者名"_qs).Text, QString());
    EXPECT_EQ(c(u"出金金額合計"_qs).Text, u"0"_qs);
    EXPECT_EQ(知らせ(), u"新規情報です。"_qs);
}

TEST_F(見出し項目, 画面の番号を打ち直しても何も読まない) {
    c(u"お知らせ"_qs).Caption = u"前の知らせ"_qs;

    打って抜ける(u"出金No"_qs, u"1"_qs);

    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000001"_qs);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(知らせ(), u"前の知らせ"_qs);
    EXPECT_TRUE(木.業務DB行(u"SELECT 伝票No FROM T閲覧"_qs).isEmpty());
}

TEST_F(見出し項目, 一覧が残した鍵なら別の番号期間の伝票が読まれる) {
    保存伝票(u"00000007"_qs, u"20250310"_qs, 1, u"20250331"_qs);
    f->状態.選択鍵 = u"C0002025033100000007"_qs;

    打って抜ける(u"出金No"_qs, u"00000007"_qs);

    EXPECT_EQ(s.見出し.番号基準日付, u"20250331"_qs);
    EXPECT_EQ(s.見出し.出金日付, u"20250310"_qs);
    EXPECT_FALSE(f->状態.選択鍵);
    EXPECT_EQ(c(u"出金日付年"_qs).Text, u"2025"_qs);
    EXPECT_EQ(c(u"出金日付月"_qs).Text, u"03"_qs);
}

TEST_F(見出し項目, 読んだ伝票の番号を空にすると新しい番号で伝票はそのまま) {
    保存伝票を出す(u"00000005"_qs, u"20251118"_qs);

    打って抜ける(u"出金No"_qs, QString());

    EXPECT_EQ(s.見出し.出金No, u"00000001"_qs);
    EXPECT_EQ(s.見出し.担当者コード, u"00003"_qs);
    EXPECT_EQ(s.最終行, 1);
    EXPECT_FALSE(s.新規情報フラグ);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(c(u"出金No"_qs).Text, u"00000001"_qs);
    EXPECT_EQ(知らせ(), QString());
}

// Staff, department, section

TEST_F(見出し項目, 担当者を打つと部門とセクションが付いてきて明細へ進む) {
    打って抜ける(u"担当者コード"_qs, u"3"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.担当者コード, u"00003"_qs);
    EXPECT_EQ(h.担当者名, u"上田 健一"_qs);
    EXPECT_EQ(h.部門コード, u"001"_qs);
    EXPECT_EQ(h.部門名, u"総務部"_qs);
    EXPECT_EQ(h.セクションコード, u"001"_qs);
    EXPECT_EQ(h.セクション名, u"総務課"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, u"00003"_qs);
    EXPECT_EQ(c(u"担当者名"_qs).Text, u"上田 健一"_qs);
    EXPECT_EQ(c(u"部門コード"_qs).Text, u"001"_qs);
    EXPECT_EQ(c(u"セクション名"_qs).Text, u"総務課"_qs);
    EXPECT_TRUE(c(u"btn_部門コード"_qs).Enabled);
    EXPECT_TRUE(c(u"tab_詳細"_qs).Enabled);
    EXPECT_EQ(焦点(), u"費目区分(0)"_qs);
}

TEST_F(見出し項目, 担当者コード12は00012として引かれる) {
    ASSERT_TRUE(木.業務DB実行(u"UPDATE M担当者 SET 在籍区分 = '0' WHERE コード = '00012'"_qs));

    打って抜ける(u"担当者コード"_qs, u"12"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.担当者コード, u"00012"_qs);
    EXPECT_EQ(h.担当者名, u"清水 浩二"_qs);
    EXPECT_EQ(h.部門名, u"営業部"_qs);
    EXPECT_EQ(h.セクションコード, u"007"_qs);
    EXPECT_EQ(h.セクション名, u"大阪営業課"_qs);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, u"00012"_qs);
}

TEST_F(見出し項目, 退職した担当者は該当なしで前のコードに戻り名前はそのまま) {
    打って抜ける(u"担当者コード"_qs, u"3"_qs);
    s.入力変更フラグ = false;

    打って抜ける(u"担当者コード"_qs, u"12"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.担当者コード, u"00003"_qs);
    EXPECT_EQ(h.担当者名, u"上田 健一"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, u"00003"_qs);
    EXPECT_EQ(c(u"担当者名"_qs).Text, u"上田 健一"_qs);
    EXPECT_EQ(知らせ(), u"該当情報がありません。"_qs);
}

TEST_F(見出し項目, 正しい担当者を打てば知らせは消える) {
    打って抜ける(u"担当者コード"_qs, u"99"_qs);
    ASSERT_EQ(知らせ(), u"該当情報がありません。"_qs);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, QString());
    EXPECT_EQ(焦点(), u"担当者コード"_qs);

    打って抜ける(u"担当者コード"_qs, u"5"_qs);

    EXPECT_EQ(s.見出し.担当者名, u"大野 大輔"_qs);
    EXPECT_EQ(知らせ(), QString());
}

TEST_F(見出し項目, 本社以外の事業所では他の事業所の担当者は引けない) {
    s.見出し.事業所コード = u"001"_qs;

    打って抜ける(u"担当者コード"_qs, u"10"_qs);
    EXPECT_EQ(s.見出し.担当者コード, QString());
    EXPECT_EQ(知らせ(), u"該当情報がありません。"_qs);

    打って抜ける(u"担当者コード"_qs, u"8"_qs);
    EXPECT_EQ(s.見出し.担当者名, u"工藤 直樹"_qs);

    f->画面.操作_入力(c(u"担当者コード"_qs), u"3"_qs);
    f->画面.操作_フォーカス(c(u"出金日付年"_qs));
    EXPECT_EQ(s.見出し.担当者名, u"上田 健一"_qs);
}

TEST_F(見出し項目, 担当者は手で変えた部門とセクションを上書きする) {
    打って抜ける(u"担当者コード"_qs, u"3"_qs);
    打ってクリックで抜ける(u"部門コード"_qs, u"2"_qs);
    打ってクリックで抜ける(u"セクションコード"_qs, u"3"_qs);
    ASSERT_EQ(s.見出し.部門名, u"経理部"_qs);
    ASSERT_EQ(s.見出し.セクション名, u"経理課"_qs);

    打って抜ける(u"担当者コード"_qs, u"5"_qs);

    const auto& h = s.見出し;
    EXPECT_EQ(h.部門コード, u"003"_qs);
    EXPECT_EQ(h.部門名, u"営業部"_qs);
    EXPECT_EQ(h.セクションコード, u"004"_qs);
    EXPECT_EQ(h.セクション名, u"営業一課"_qs);
    EXPECT_EQ(c(u"部門名"_qs).Text, u"営業部"_qs);
}

TEST_F(見出し項目, 担当者を空にすると名前は残り部門ボタンと詳細タブが止まる) {
    打って抜ける(u"担当者コード"_qs, u"3"_qs);
    ASSERT_TRUE(c(u"tab_詳細"_qs).Enabled);
    s.入力変更フラグ = false;

    打って抜ける(u"担当者コード"_qs, QString());

    const auto& h = s.見出し;
    EXPECT_EQ(h.担当者コード, QString());
    EXPECT_EQ(h.担当者名, u"上田 健一"_qs);
    EXPECT_EQ(h.部門コード, u"001"_qs);
    EXPECT_EQ(h.セクション名, u"総務課"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, QString());
    EXPECT_EQ(c(u"担当者名"_qs).Text, u"上田 健一"_qs);
    EXPECT_FALSE(c(u"btn_部門コード"_qs).Enabled);
    EXPECT_FALSE(c(u"btn_セクションコード"_qs).Enabled);
    EXPECT_FALSE(c(u"tab_詳細"_qs).Enabled);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

TEST_F(見出し項目, 部門は三桁に揃えて引かれ事業所も稼動状況も問わない) {
    見出しを埋める();

    打ってクリックで抜ける(u"部門コード"_qs, u"9"_qs);

    EXPECT_EQ(s.見出し.部門コード, u"009"_qs);
    EXPECT_EQ(s.見出し.部門名, u"企画室"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(c(u"部門コード"_qs).Text, u"009"_qs);
    EXPECT_EQ(c(u"部門名"_qs).Text, u"企画室"_qs);
    EXPECT_EQ(知らせ(), QString());
}

TEST_F(見出し項目, ない部門は該当なしで前のコードと名前が残る) {
    打って抜ける(u"担当者コード"_qs, u"3"_qs);

    打ってクリックで抜ける(u"部門コード"_qs, u"8"_qs);

    EXPECT_EQ(s.見出し.部門コード, u"001"_qs);
    EXPECT_EQ(s.見出し.部門名, u"総務部"_qs);
    EXPECT_EQ(c(u"部門コード"_qs).Text, u"001"_qs);
    EXPECT_EQ(c(u"部門名"_qs).Text, u"総務部"_qs);
    EXPECT_EQ(知らせ(), u"該当情報がありません。"_qs);
}

TEST_F(見出し項目, 部門を空にすると名前は残り見出しに穴があく) {
    打って抜ける(u"担当者コード"_qs, u"3"_qs);

    打ってクリックで抜ける(u"部門コード"_qs, QString());

    EXPECT_EQ(s.見出し.部門コード, QString());
    EXPECT_EQ(s.見出し.部門名, u"総務部"_qs);
    EXPECT_EQ(c(u"部門名"_qs).Text, u"総務部"_qs);
    EXPECT_EQ(f->見出し空き(), 6);
}

TEST_F(見出し項目, セクションは三桁に揃えて引かれないものは該当なし) {
    打って抜ける(u"担当者コード"_qs, u"3"_qs);

    打ってクリックで抜ける(u"セクションコード"_qs, u"06"_qs);
    EXPECT_EQ(s.見出し.セクションコード, u"006"_qs);
    EXPECT_EQ(s.見出し.セクション名, u"購買課"_qs);
    EXPECT_EQ(c(u"セクション名"_qs).Text, u"購買課"_qs);

    打ってクリックで抜ける(u"セクションコード"_qs, u"99"_qs);
    EXPECT_EQ(s.見出し.セクションコード, u"006"_qs);
    EXPECT_EQ(c(u"セクションコード"_qs).Text, u"006"_qs);
    EXPECT_EQ(c(u"セクション名"_qs).Text, u"購買課"_qs);
    EXPECT_EQ(知らせ(), u"該当情報がありません。"_qs);

    打ってクリックで抜ける(u"セクションコード"_qs, QString());
    EXPECT_EQ(s.見出し.セクションコード, QString());
    EXPECT_EQ(s.見出し.セクション名, u"購買課"_qs);
}

TEST_F(見出し項目, 変わらない離脱では何も動かず変更フラグも知らせもそのまま) {
    打って抜ける(u"担当者コード"_qs, u"3"_qs);
    s.入力変更フラグ = false;
    c(u"お知らせ"_qs).Caption = u"前の知らせ"_qs;

    打って抜ける(u"出金日付年"_qs, u"2025"_qs);
    打って抜ける(u"出金日付月"_qs, u"11"_qs);
    打って抜ける(u"出金日付日"_qs, u"20"_qs);
    打って抜ける(u"出金No"_qs, u"00000001"_qs);
    打って抜ける(u"担当者コード"_qs, u"003"_qs);
    打ってクリックで抜ける(u"部門コード"_qs, u"1"_qs);
    打ってクリックで抜ける(u"セクションコード"_qs, u"001"_qs);

    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(知らせ(), u"前の知らせ"_qs);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, u"00003"_qs);
    EXPECT_EQ(c(u"部門コード"_qs).Text, u"001"_qs);
}

// Remarks

TEST_F(見出し項目, 長い備考はシフトJISのバイト数で切られ合計表示が切った値を出す) {
    見出しを埋める();
    行を入れる(1);
    c(u"お知らせ"_qs).Caption = u"前の知らせ"_qs;
    const QString 長い = u"a"_qs + QString(39, QChar(u'あ'));

    打って抜ける(u"出金伝票備考A"_qs, 長い);

    const QString 切った = u"a"_qs + QString(19, QChar(u'あ'));
    EXPECT_EQ(s.見出し.出金伝票備考A, 切った);
    EXPECT_EQ(c(u"出金伝票備考A"_qs).Text, 切った);
    EXPECT_TRUE(s.入力変更フラグ);
    EXPECT_EQ(知らせ(), u"前の知らせ"_qs);
    EXPECT_EQ(焦点(), u"出金伝票備考B"_qs);
}

TEST_F(見出し項目, 備考Bも切られ同じ備考での離脱は何もしない) {
    見出しを埋める();
    行を入れる(1);
    f->画面.操作_フォーカス(c(u"出金伝票備考A"_qs));

    // Left by a click: Tab from here would bring up the register dialogue.
    f->画面.操作_入力(c(u"出金伝票備考B"_qs), QString(40, QChar(u'い')));
    f->画面.操作_フォーカス(c(u"出金伝票備考A"_qs));
    EXPECT_EQ(s.見出し.出金伝票備考B, QString(20, QChar(u'い')));
    EXPECT_EQ(c(u"出金伝票備考B"_qs).Text, QString(20, QChar(u'い')));

    s.入力変更フラグ = false;
    f->画面.操作_フォーカス(c(u"出金伝票備考B"_qs));
    f->画面.操作_フォーカス(c(u"出金伝票備考A"_qs));
    EXPECT_FALSE(s.入力変更フラグ);

    打って抜ける(u"出金伝票備考A"_qs, u"振込手数料込み"_qs);
    EXPECT_EQ(s.見出し.出金伝票備考A, u"振込手数料込み"_qs);
    EXPECT_TRUE(s.入力変更フラグ);
}

// Lookups

TEST_F(見出し項目, 空の担当者欄からの一覧は在籍者だけを出す) {
    f->画面.操作_クリック(c(u"btn_担当者コード"_qs));

    ASSERT_EQ(基盤.使用可否.size(), 1);
    EXPECT_EQ(基盤.使用可否[0], (QPair<QString, bool>{u"frm紺碧帳"_qs, false}));
    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(最後の表示(), (QPair<QString, bool>{u"wnd担当者一覧"_qs, true}));
    EXPECT_EQ(f->状態.一覧.条件, u"M担当者.在籍区分 = '0'"_qs);
    EXPECT_EQ(f->状態.一覧.設定先, &c(u"担当者コード"_qs));
    EXPECT_EQ(f->状態.一覧.名称先, &c(u"担当者名"_qs));
}

TEST_F(見出し項目, 担当者欄に打ったコードからの一覧は退職者も出す) {
    f->画面.操作_入力(c(u"担当者コード"_qs), u"12"_qs);
    f->画面.操作_キー(c(u"担当者コード"_qs), キーコード::Ctrl);

    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(最後の表示(), (QPair<QString, bool>{u"wnd担当者一覧"_qs, true}));
    EXPECT_EQ(f->状態.一覧.条件, u"M担当者.コード >= '00012'"_qs);
    EXPECT_EQ(s.見出し.担当者コード, QString());  // the field was not left
}

TEST_F(見出し項目, 担当者欄のダブルクリックでも一覧が開きCtrl以外のキーでは開かない) {
    f->画面.操作_キー(c(u"担当者コード"_qs), キーコード::Shift);
    EXPECT_TRUE(基盤.表示画面.isEmpty());

    f->画面.操作_ダブルクリック(c(u"担当者コード"_qs));

    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(最後の表示().first, u"wnd担当者一覧"_qs);
    EXPECT_EQ(f->状態.一覧.設定先, &c(u"担当者コード"_qs));
}

TEST_F(見出し項目, 部門とセクションの一覧は条件に手を付けない) {
    見出しを埋める();
    f->画面.操作_フォーカス(c(u"担当者コード"_qs));  // the guard updates the buttons
    f->状態.一覧.条件 = u"前の条件"_qs;

    f->画面.操作_クリック(c(u"btn_部門コード"_qs));
    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(最後の表示(), (QPair<QString, bool>{u"wnd部門一覧"_qs, true}));
    EXPECT_EQ(f->状態.一覧.条件, u"前の条件"_qs);
    EXPECT_EQ(f->状態.一覧.設定先, &c(u"部門コード"_qs));
    EXPECT_EQ(f->状態.一覧.名称先, &c(u"部門名"_qs));

    f->画面.操作_キー(c(u"セクションコード"_qs), キーコード::Ctrl);
    ASSERT_EQ(基盤.表示画面.size(), 2);
    EXPECT_EQ(最後の表示(), (QPair<QString, bool>{u"wndセクション一覧"_qs, true}));
    EXPECT_EQ(f->状態.一覧.条件, u"前の条件"_qs);
    EXPECT_EQ(f->状態.一覧.設定先, &c(u"セクションコード"_qs));
    EXPECT_EQ(f->状態.一覧.名称先, &c(u"セクション名"_qs));

    f->画面.操作_ダブルクリック(c(u"部門コード"_qs));
    ASSERT_EQ(基盤.表示画面.size(), 3);
    EXPECT_EQ(最後の表示().first, u"wnd部門一覧"_qs);
    EXPECT_EQ(基盤.使用可否.size(), 3);
}

TEST_F(見出し項目, 担当者が空なら部門ボタンは効かずダブルクリックは穴へ戻る) {
    f->画面.操作_フォーカス(c(u"担当者コード"_qs));  // the guard updates the buttons
    ASSERT_FALSE(c(u"btn_部門コード"_qs).Enabled);

    f->画面.操作_クリック(c(u"btn_部門コード"_qs));
    f->画面.操作_クリック(c(u"btn_セクションコード"_qs));
    f->画面.操作_ダブルクリック(c(u"部門コード"_qs));

    EXPECT_TRUE(基盤.表示画面.isEmpty());
    EXPECT_TRUE(基盤.使用可否.isEmpty());
    EXPECT_EQ(焦点(), u"担当者コード"_qs);

    f->画面.操作_キー(c(u"部門コード"_qs), キーコード::Ctrl);  // the key goes straight to the list
    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(最後の表示().first, u"wnd部門一覧"_qs);
}

TEST_F(見出し項目, 出金No一覧は画面の日付の一年前からで担当者があれば絞る) {
    f->画面.操作_クリック(c(u"btn_出金No"_qs));
    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(最後の表示(), (QPair<QString, bool>{u"wnd出金No一覧"_qs, true}));
    EXPECT_EQ(f->状態.一覧.条件, u"T出金.番号基準日付 <> '' AND T出金.出金日付 >= '20241120'"_qs);
    EXPECT_EQ(f->状態.一覧.設定先, &c(u"出金No"_qs));
    EXPECT_EQ(f->状態.一覧.名称先, &c(u"担当者名"_qs));

    見出しを埋める();
    f->画面.操作_キー(c(u"出金No"_qs), キーコード::Ctrl);
    EXPECT_EQ(
        f->状態.一覧.条件,
        u"T出金.番号基準日付 <> '' AND T出金.出金日付 >= '20241120' AND T出金.担当者コード = '00003'"_qs);
}

TEST_F(見出し項目, 閏日の一年前は二月二十八日) {
    打って抜ける(u"出金日付年"_qs, u"2024"_qs);
    打って抜ける(u"出金日付月"_qs, u"2"_qs);
    打って抜ける(u"出金日付日"_qs, u"29"_qs);
    ASSERT_EQ(s.見出し.出金日付, u"20240229"_qs);

    f->画面.操作_ダブルクリック(c(u"出金No"_qs));

    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(f->状態.一覧.条件, u"T出金.番号基準日付 <> '' AND T出金.出金日付 >= '20230228'"_qs);
}

TEST_F(見出し項目, 出金Noの釦は焦点を取るので打った日は直されてから一覧の条件になる) {
    f->画面.操作_入力(c(u"出金日付日"_qs), u"31"_qs);  // typed, not yet left

    f->画面.操作_クリック(c(u"btn_出金No"_qs));

    EXPECT_EQ(s.見出し.出金日付, u"20251130"_qs);
    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(f->状態.一覧.条件, u"T出金.番号基準日付 <> '' AND T出金.出金日付 >= '20241130'"_qs);
}

TEST_F(見出し項目, 画面の日付が暦にないまま出金No一覧を開くと日付エラーで何も変えない) {
    // The fields as drawn, not as the slip holds them: a day the calendar does not have.
    c(u"出金日付日"_qs).Text = u"31"_qs;
    f->状態.一覧.条件 = u"前の条件"_qs;

    EXPECT_THROW(f->一覧を開く(u"出金No"_qs), 日付範囲外);

    EXPECT_TRUE(基盤.表示画面.isEmpty());
    EXPECT_TRUE(基盤.使用可否.isEmpty());
    EXPECT_EQ(f->状態.一覧.条件, u"前の条件"_qs);
    EXPECT_EQ(f->状態.一覧.設定先, nullptr);
}

TEST_F(見出し項目, 出張申請No一覧は申請日付と社員で絞りダブルクリックでは開かない) {
    s.白樺連携フラグ = true;
    f->見出し表示();

    f->画面.操作_ダブルクリック(c(u"出張申請No"_qs));
    EXPECT_TRUE(基盤.表示画面.isEmpty());

    f->画面.操作_クリック(c(u"btn_出張申請No"_qs));
    ASSERT_EQ(基盤.表示画面.size(), 1);
    EXPECT_EQ(最後の表示(), (QPair<QString, bool>{u"wnd出張申請No一覧"_qs, true}));
    EXPECT_EQ(f->状態.一覧.条件,
              u"T出張申請.番号基準日付 <> '' AND T出張申請.出張申請日付 >= '20241120'"_qs);
    EXPECT_EQ(f->状態.一覧.設定先, &c(u"出張申請No"_qs));
    EXPECT_EQ(f->状態.一覧.名称先, &c(u"担当者コード"_qs));

    見出しを埋める();
    f->画面.操作_キー(c(u"出張申請No"_qs), キーコード::Ctrl);
    ASSERT_EQ(基盤.表示画面.size(), 2);
    EXPECT_EQ(
        f->状態.一覧.条件,
        u"T出張申請.番号基準日付 <> '' AND T出張申請.出張申請日付 >= '20241120' AND T出張申請.社員コード = '00003'"_qs);
}

TEST_F(見出し項目, 一覧で選んだ担当者はフォーカスの移りで取り込まれる) {
    基盤.画面表示時 = [this](const QString&) {
        f->状態.一覧.設定先->Text = u"00005"_qs;
        基盤.画面使用可否(u"frm紺碧帳"_qs, true);
        f->画面.SetFocus(*f->状態.一覧.設定先);
        f->画面.SetFocus(*f->状態.一覧.名称先);
    };
    f->画面.操作_フォーカス(c(u"担当者コード"_qs));

    f->画面.操作_キー(c(u"担当者コード"_qs), キーコード::Ctrl);

    EXPECT_EQ(s.見出し.担当者コード, u"00005"_qs);
    EXPECT_EQ(s.見出し.担当者名, u"大野 大輔"_qs);
    EXPECT_EQ(c(u"部門名"_qs).Text, u"営業部"_qs);
    EXPECT_EQ(焦点(), u"担当者名"_qs);
}

}  // namespace
