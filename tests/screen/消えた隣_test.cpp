#include "両エンジン入力画面.h"

namespace {

// Another user deletes the neighbouring slip after the step has found it and before its key is
// searched: the look-up is recorded all the same, and the screen silently becomes a new slip.
class 消えた隣 : public 両エンジン入力画面 {
  protected:
    // The slip goes the moment its look-up is recorded, which comes before the search.
    void 記録されたら消す(const QString& No) {
        const QString 消す = u"DELETE FROM T出金 WHERE 出金No = '"_qs + No + u"';"_qs;
        引き金(u"閲覧で消す"_qs, u"AFTER INSERT ON T閲覧"_qs, 消す,
               u"BEGIN "_qs + 消す + u" RETURN NULL; END"_qs);
    }
    QList<QVariantList> 閲覧() {
        return 木->業務DB行(
            u"SELECT 閲覧情報, 伝票事業所コード, 伝票番号基準日付, 伝票No, 担当者コード FROM T閲覧 "
            u"ORDER BY 閲覧No"_qs);
    }
};

TEST_P(消えた隣, 前へ進んだ先が二度目の読みの間に消えると閲覧を残して黙って新しい伝票になる) {
    const QString 一 = 伝票を打つ(u"3"_qs, 1);
    const QString 二 = 伝票を打つ(u"3"_qs, 2);
    const QString 新 = c(u"出金No"_qs).Text;
    行を打つ(u"5"_qs, 1);
    ASSERT_TRUE(s.入力変更フラグ);
    f->画面.操作_フォーカス(c(u"摘要"_qs, 0));
    記録されたら消す(二);
    const int 閲覧数 = 閲覧().size();

    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_前No"_qs));

    // Only the question of the typed changes; no word of the vanished slip.
    EXPECT_EQ(基盤.表示文言(), QStringList{u"入力がありました。\rクリアし前Noを表示しますか？"_qs});
    const auto 行 = 閲覧();
    ASSERT_EQ(行.size(), 閲覧数 + 1);
    EXPECT_EQ(行.last()[0].toString(), u"紺碧帳"_qs);
    EXPECT_EQ(行.last()[1].toString(), u"000"_qs);
    EXPECT_EQ(行.last()[2].toString(), u"20260331"_qs);
    EXPECT_EQ(行.last()[3].toString(), 二);
    EXPECT_EQ(行.last()[4].toString(), u"00001"_qs);
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金 WHERE 出金No = '"_qs + 二 + u"'"_qs), 0);
    // The typed slip is gone, and no stored one took its place.
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_FALSE(s.入力変更フラグ);
    EXPECT_EQ(s.最終行, -1);
    EXPECT_EQ(c(u"担当者コード"_qs).Text, QString());
    EXPECT_EQ(c(u"出金金額"_qs, 0).Text, QString());
    EXPECT_EQ(c(u"出金No"_qs).Text, 新);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);

    // The step after it finds the first slip, which is still there.
    f->画面.操作_クリック(c(u"btn_前No"_qs));
    EXPECT_EQ(c(u"出金No"_qs).Text, 一);
    EXPECT_FALSE(s.新規情報フラグ);
}

KONPEKI_両エンジンで(消えた隣);

}  // namespace
