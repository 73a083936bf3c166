#include <gtest/gtest.h>

#include "入力画面試験.h"

namespace {

class 行クリア後登録 : public 入力画面試験 {
  protected:
    QStringList 明細(const QString& 列) {
        QStringList r;
        for (const auto& 行 :
             木.業務DB行(u"SELECT "_qs + 列 + u" FROM T出金明細 ORDER BY 出金行No"_qs)) {
            QStringList 値;
            for (const auto& v : 行) 値.append(v.toString());
            r.append(値.join(u'|'));
        }
        return r;
    }
};

// A line cleared above a loaded one: the loaded line keeps its identity, its position closes up.
TEST_F(行クリア後登録, 上の行を消して修正すると残った行は固有行Noを保ち出金行Noが詰まる) {
    行を打つ(3);
    ASSERT_TRUE(s.新規登録処理());
    ASSERT_EQ(明細(u"出金固有行No, 出金行No, 出金金額"_qs),
              (QStringList{u"001|001|1000"_qs, u"002|002|2000"_qs, u"003|003|3000"_qs}));
    s.出金情報初期化();
    ASSERT_TRUE(s.出金No確定(u"00000001"_qs));
    ASSERT_EQ(s.最終行, 2);
    f->明細表示();
    f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
    f->画面.操作_クリック(c(u"btn_行クリア"_qs));
    ASSERT_EQ(s.最終行, 1);
    s.修正登録処理();
    EXPECT_EQ(明細(u"出金固有行No, 出金行No, 出金金額"_qs),
              (QStringList{u"002|001|2000"_qs, u"003|002|3000"_qs}));
}

}  // namespace
