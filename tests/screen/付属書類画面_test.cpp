#include <QDir>
#include <QFile>

#include "dataenv/付属書類.h"
#include "入力画面試験.h"

namespace {

// The attachment page of the entry screen: its three buttons, the pickers, removal and opening.
class 付属書類画面 : public 入力画面試験 {
  protected:
    void SetUp() override {
        入力画面試験::SetUp();
        if (HasFatalFailure()) return;
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f->印刷確認.画面.操作_クリック(f->印刷確認.画面(u"btn_登録"_qs));
        };
        手元 = 木.根() + u"/手元"_qs;
        QDir().mkpath(手元);
    }
    // A slip stored through the screen and called up again.
    QString 保存して呼ぶ() {
        const QString No = c(u"出金No"_qs).Text;
        行を打つ(1);
        f->画面.操作_クリック(c(u"btn_登録"_qs));
        f->画面.操作_入力(c(u"出金No"_qs), No);
        f->画面.操作_Tab();
        EXPECT_FALSE(s.新規情報フラグ);
        // The operator turns to the attachment page.
        f->画面.操作_値変更(c(u"tab_詳細"_qs), 1);
        EXPECT_EQ(c(u"tab_詳細"_qs).Value, 1);
        return No;
    }
    QString 置く(const QString& 名前) {
        QFile f(手元 + u"/"_qs + 名前);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("書類");
        return f.fileName();
    }
    QString 識別(const QString& No) const { return u"00020260331"_qs + No; }
    int 行数() { return 木.業務DB行(u"SELECT COUNT(*) FROM M付属書類"_qs)[0][0].toInt(); }
    bool 釦(const QString& 名) { return c(名).Enabled; }
    // The list's rows, each as its three cells.
    QStringList 一覧() {
        QStringList r;
        for (const auto& i : c(u"List付属書類"_qs).項目)
            r << i.Text + u"|"_qs + i.SubItems.join(u'|');
        return r;
    }
    QString 手元;
};

TEST_F(付属書類画面, 新しい伝票では三つの釦とも使えない) {
    EXPECT_FALSE(釦(u"btn_付属書類追加"_qs));
    EXPECT_FALSE(釦(u"btn_フォルダ"_qs));
    EXPECT_FALSE(釦(u"btn_付属書類削除"_qs));
}

TEST_F(付属書類画面, 保存した伝票では追加が使え削除は書類があるときだけ使える) {
    const QString No = 保存して呼ぶ();
    EXPECT_TRUE(釦(u"btn_付属書類追加"_qs));
    EXPECT_TRUE(釦(u"btn_フォルダ"_qs));
    EXPECT_FALSE(釦(u"btn_付属書類削除"_qs));
    基盤.選択回答.enqueue(置く(u"領収書.pdf"_qs));
    f->画面.操作_クリック(c(u"btn_付属書類追加"_qs));
    ASSERT_EQ(基盤.選択済み.size(), 1);
    EXPECT_EQ(基盤.選択済み[0].種類, u"ファイル"_qs);
    EXPECT_EQ(基盤.選択済み[0].開始フォルダ, QDir::homePath());
    EXPECT_TRUE(基盤.選択済み[0].題名或いは絞込.startsWith(
        u"全てのファイル (*.*)|*.*|ワード (*.doc)|*.doc|EXCELL (*.xls)|*.xls|"_qs));
    EXPECT_TRUE(基盤.選択済み[0].題名或いは絞込.endsWith(u"|Bitmap ファイル (*.bmp)|*.bmp"_qs));
    const auto 行 = 木.業務DB行(
        u"SELECT 情報識別ID, タイトル, 伝票No, 伝票日付, 担当者コード FROM M付属書類"_qs);
    ASSERT_EQ(行.size(), 1);
    EXPECT_EQ(行[0][0].toString(), 識別(No));
    EXPECT_EQ(行[0][1].toString(), u"領収書"_qs);
    EXPECT_EQ(行[0][2].toString(), No);
    EXPECT_EQ(行[0][3].toString(), u"20251120"_qs);
    EXPECT_EQ(行[0][4].toString(), u"00003"_qs);
    EXPECT_TRUE(釦(u"btn_付属書類削除"_qs));
    const QString 今日 = QDate::currentDate().toString(u"yyyy/MM/dd"_qs);
    EXPECT_EQ(一覧(), QStringList{u"領収書|0KB|"_qs + 今日});
    const 部品& L = c(u"List付属書類"_qs);
    ASSERT_EQ(L.列.size(), 3);
    EXPECT_EQ(L.列[0].見出し, u"書類名"_qs);
    EXPECT_EQ(L.列[1].見出し, u"サイズ"_qs);
    EXPECT_TRUE(L.列[1].右寄せ);
    EXPECT_FALSE(L.列[0].右寄せ);
    EXPECT_EQ(L.列[2].見出し, u"更新日付"_qs);
    EXPECT_EQ(L.項目[0].Key, u"C"_qs + 識別(No) + u"001"_qs);
}

TEST_F(付属書類画面, ファイル選択の取消は何も足さず元のフォルダに戻す) {
    保存して呼ぶ();
    const QString 元 = QDir::currentPath();
    基盤.選択中 = [this] { QDir::setCurrent(手元); };
    f->画面.操作_クリック(c(u"btn_付属書類追加"_qs));
    EXPECT_EQ(基盤.選択済み.size(), 1);
    EXPECT_EQ(行数(), 0);
    EXPECT_EQ(QDir::currentPath(), 元);
}

TEST_F(付属書類画面, フォルダ選択は題を出し開始フォルダのままの答えは選ばなかったことになる) {
    保存して呼ぶ();
    基盤.選択回答.enqueue(QDir::homePath());
    f->画面.操作_クリック(c(u"btn_フォルダ"_qs));
    ASSERT_EQ(基盤.選択済み.size(), 1);
    EXPECT_EQ(基盤.選択済み[0].種類, u"フォルダ"_qs);
    EXPECT_EQ(基盤.選択済み[0].題名或いは絞込, u"書類を選択して下さい"_qs);
    EXPECT_EQ(行数(), 0);
    QDir().mkpath(手元 + u"/束/下"_qs);
    基盤.選択回答.enqueue(手元 + u"/束"_qs);
    f->画面.操作_クリック(c(u"btn_フォルダ"_qs));
    EXPECT_EQ(行数(), 1);
    EXPECT_TRUE(QFileInfo(木.根() + u"/documents/紺碧帳_"_qs + 識別(c(u"出金No"_qs).Text) +
                          u"_001_束/下"_qs)
                    .isDir());
}

TEST_F(付属書類画面, 削除は選んだ項目が無ければ何もせず問いにはいで行と写しを消す) {
    const QString No = 保存して呼ぶ();
    基盤.選択回答.enqueue(置く(u"a.txt"_qs));
    f->画面.操作_クリック(c(u"btn_付属書類追加"_qs));
    const QString 写し = 木.根() + u"/documents/紺碧帳_"_qs + 識別(No) + u"_001_a.txt"_qs;
    ASSERT_TRUE(QFile::exists(写し));
    f->付属書類を外す(QString());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    const QString 鍵 = u"C"_qs + 識別(No) + u"001"_qs;
    基盤.回答.enqueue(応答::いいえ);
    f->付属書類を外す(鍵);
    ASSERT_EQ(基盤.表示文言(), QStringList{u"付属書類から削除しますか？"_qs});
    EXPECT_EQ(基盤.表示済み[0].ボタン, ボタン種別::はいいいえ);
    EXPECT_EQ(行数(), 1);
    基盤.回答.enqueue(応答::はい);
    f->付属書類を外す(鍵);
    EXPECT_EQ(行数(), 0);
    EXPECT_FALSE(QFile::exists(写し));
    EXPECT_TRUE(c(u"お知らせ"_qs).Caption.isEmpty());
    EXPECT_FALSE(釦(u"btn_付属書類削除"_qs));
    EXPECT_TRUE(一覧().isEmpty());
}

TEST_F(付属書類画面, 開くのは写しで手で消された写しでも何も言わない) {
    const QString No = 保存して呼ぶ();
    基盤.選択回答.enqueue(置く(u"a.txt"_qs));
    f->画面.操作_クリック(c(u"btn_付属書類追加"_qs));
    const QString 写し = 木.根() + u"/documents/紺碧帳_"_qs + 識別(No) + u"_001_a.txt"_qs;
    f->付属書類を開く(QString());
    EXPECT_TRUE(基盤.開いた文書.isEmpty());
    f->付属書類を開く(u"C"_qs + 識別(No) + u"001"_qs);
    EXPECT_EQ(基盤.開いた文書, QStringList{写し});
    QFile::remove(写し);
    f->付属書類を開く(u"C"_qs + 識別(No) + u"001"_qs);
    EXPECT_EQ(基盤.開いた文書.size(), 2);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(付属書類画面, 釦と二度押しは一覧で選んだ書類に働く) {
    const QString No = 保存して呼ぶ();
    基盤.選択回答.enqueue(置く(u"a.txt"_qs));
    f->画面.操作_クリック(c(u"btn_付属書類追加"_qs));
    基盤.選択回答.enqueue(置く(u"b.txt"_qs));
    f->画面.操作_クリック(c(u"btn_付属書類追加"_qs));
    ASSERT_EQ(一覧().size(), 2);
    EXPECT_EQ(c(u"List付属書類"_qs).選択, 0);  // the first row comes selected
    // Nothing selected: neither opens nor asks.
    c(u"List付属書類"_qs).選択 = -1;
    f->画面.操作_ダブルクリック(c(u"List付属書類"_qs));
    f->画面.操作_クリック(c(u"btn_付属書類削除"_qs));
    EXPECT_TRUE(基盤.開いた文書.isEmpty());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
    c(u"List付属書類"_qs).選択 = 1;
    f->画面.操作_ダブルクリック(c(u"List付属書類"_qs));
    EXPECT_EQ(基盤.開いた文書,
              QStringList{木.根() + u"/documents/紺碧帳_"_qs + 識別(No) + u"_002_b.txt"_qs});
    c(u"List付属書類"_qs).選択 = 0;
    基盤.回答.enqueue(応答::はい);
    f->画面.操作_クリック(c(u"btn_付属書類削除"_qs));
    ASSERT_EQ(一覧().size(), 1);
    EXPECT_TRUE(一覧()[0].startsWith(u"b|"_qs));
}

TEST_F(付属書類画面, 帳票は保存していない画面の伝票にも起動できる) {
    行を打つ(1);
    基盤.回答.enqueue(応答::はい);
    f->帳票(u"1"_qs);
    EXPECT_EQ(帳票起動記録(),
              QStringList{u"0001202511202025112000000001000000010000300003"_qs + u"2"_qs});
}

}  // namespace
