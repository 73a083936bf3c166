#include "両エンジン入力画面.h"

namespace {

// The database refuses to delete two lines of a slip (another client holds them, say). The
// deletion walks on over every line: each gets its old-state history row, the others go, the
// refusals are logged and give the result 6 while the walk goes on.
class 明細削除失敗 : public 両エンジン入力画面 {
  protected:
    void 拒む行(const QString& 行1, const QString& 行2) {
        const QString 条件 =
            u"OLD.出金固有行No = '"_qs + 行1 + u"' OR OLD.出金固有行No = '"_qs + 行2 + u"'"_qs;
        引き金(u"明細削除拒否"_qs, u"BEFORE DELETE ON T出金明細"_qs,
               u"SELECT RAISE(ABORT, '明細は消せない') WHERE "_qs + 条件 + u";"_qs,
               u"BEGIN IF "_qs + 条件 +
                   u" THEN RAISE EXCEPTION '明細は消せない'; END IF; RETURN OLD; END"_qs);
    }
    QStringList 残った行() {
        QStringList r;
        for (const auto& 行 :
             木->業務DB行(u"SELECT 出金固有行No FROM T出金明細 ORDER BY 出金固有行No"_qs))
            r << 行[0].toString();
        return r;
    }
};

TEST_P(明細削除失敗, 消せない行があっても残りの行を歩き通し結果は6になる) {
    const QString No = 伝票を打つ(u"3"_qs, 3);
    拒む行(u"001"_qs, u"003"_qs);
    呼ぶ(No);
    ASSERT_EQ(s.最終行, 2);
    // The result held at each read of the clock inside the store.
    QList<int> 結果;
    基盤.毎回 = [&](int) { 結果 << s.処理結果区分; };
    const qsizetype 前のエラー = エラー履歴().size();
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_削除"_qs));
    基盤.毎回 = {};

    EXPECT_EQ(数(u"SELECT COUNT(*) FROM T出金"_qs), 0);
    EXPECT_EQ(残った行(), (QStringList{u"001"_qs, u"003"_qs}));
    // Every line reached its history row, the refused ones too.
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM R出金明細 WHERE 赤黒区分 = '0'"_qs), 3);
    const QStringList エラー = エラー履歴().mid(前のエラー);
    ASSERT_EQ(エラー.size(), 2);
    EXPECT_TRUE(エラー[0].contains(u"DELETE FROM T出金明細"_qs));
    EXPECT_TRUE(エラー[0].contains(u"出金固有行No = ''001''"_qs));
    EXPECT_TRUE(エラー[1].contains(u"出金固有行No = ''003''"_qs));
    // The last line's refusal is what the walk ends with.
    EXPECT_TRUE(結果.contains(6));
    EXPECT_EQ(数(u"SELECT COUNT(*) FROM 未集計情報 WHERE 赤黒区分 = '0'"_qs), 1);
    // The operator sees the ordinary end of the command.
    EXPECT_EQ(基盤.表示文言(), QStringList{u"削除しますか?"_qs});
    EXPECT_TRUE(s.新規情報フラグ);
    EXPECT_EQ(焦点(), u"担当者コード"_qs);
}

KONPEKI_両エンジンで(明細削除失敗);

}  // namespace
