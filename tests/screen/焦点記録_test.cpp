#include <QFile>
#include <QTemporaryDir>

#include "screen/焦点記録.h"
#include "入力画面試験.h"

namespace {

// The focus log as the environment switches it on, written to a file of a temporary folder.
class 焦点記録試験 : public 入力画面試験 {
  protected:
    void TearDown() override { 焦点記録::出力先設定({}); }
    QStringList 記録() const {
        QFile f(記録先);
        if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
        return QString::fromUtf8(f.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }
    QTemporaryDir 一時;
    QString 記録先 = 一時.filePath(u"focus.log"_qs);
};

TEST_F(焦点記録試験, Tabで行の金額を抜けると終わりの印を経て次の行へ移る理由が残る) {
    行を打つ(1);
    f->画面.操作_入力(c(u"費目区分"_qs, 1), u"3"_qs);
    f->画面.操作_フォーカス(c(u"出金金額"_qs, 1));
    焦点記録::出力先設定(記録先);

    f->画面.操作_入力(c(u"出金金額"_qs, 1), u"500"_qs);
    f->画面.操作_Tab();

    EXPECT_EQ(焦点(), u"費目区分(2)"_qs);
    EXPECT_EQ(記録(), (QStringList{
                          u"frm紺碧帳 出金金額(1) -> 頁1終了(1) [Tab]"_qs,
                          u"frm紺碧帳 頁1終了(1) -> 費目区分(2) [規則 頁1終了(1).GotFocus]"_qs,
                      }));
}

TEST_F(焦点記録試験, クリックと無効になった欄から先への移動もその理由で残る) {
    焦点記録::出力先設定(記録先);
    部品& 年 = c(u"出金日付年"_qs);
    f->画面.操作_クリック(年);
    // The field is disabled under the focus: the next event hands the focus on in tab order.
    年.Enabled = false;
    f->画面.文字設定(c(u"出金日付月"_qs), u"12"_qs);
    const QStringList 行 = 記録();
    ASSERT_EQ(行.size(), 2) << 行.join(u'|').toStdString();
    EXPECT_TRUE(行.at(0).endsWith(u" -> 出金日付年 [クリック]"_qs)) << 行.at(0).toStdString();
    EXPECT_EQ(行.at(1), u"frm紺碧帳 出金日付年 -> 出金日付月 [無効になった欄から次へ]"_qs);
}

TEST_F(焦点記録試験, 切ってあれば何も書かない) {
    焦点記録::出力先設定({});
    f->画面.操作_Tab();
    EXPECT_FALSE(QFile::exists(記録先));
}

}  // namespace
