#include <QDir>
#include <QFile>

#include "両エンジン入力画面.h"

namespace {

const QString 削除中 = u"＊＊削除中です。しばらくお待ちください＊＊"_qs;

// What the operator sees while a document is removed from a stored slip: each time the screen
// paints, the notice panel, whether the window takes input, and whether the copy is still there.
class 付属書類の削除中 : public 両エンジン入力画面 {
  protected:
    struct 描画 {
        QString 知らせ;
        bool 使える;
        bool 写しあり;
    };
    // A slip stored and called up, on its attachment page, with one document of that name.
    QString 書類を付ける(const QString& 名前, bool フォルダ) {
        const QString No = 伝票を打つ(u"3"_qs, 1);
        呼ぶ(No);
        f->画面.操作_値変更(c(u"tab_詳細"_qs), 1);
        const QString 手元 = 木->根() + u"/手元"_qs;
        QDir().mkpath(手元 + u"/"_qs + 名前);
        if (!フォルダ) {
            QDir().rmdir(手元 + u"/"_qs + 名前);
            QFile 元(手元 + u"/"_qs + 名前);
            EXPECT_TRUE(元.open(QIODevice::WriteOnly));
            元.write("領収");
        } else {
            QFile 中(手元 + u"/"_qs + 名前 + u"/一枚.txt"_qs);
            EXPECT_TRUE(中.open(QIODevice::WriteOnly));
        }
        基盤.選択回答.enqueue(手元 + u"/"_qs + 名前);
        f->画面.操作_クリック(c(フォルダ ? u"btn_フォルダ"_qs : u"btn_付属書類追加"_qs));
        EXPECT_EQ(c(u"List付属書類"_qs).項目.size(), 1);
        写し = 木->根() + u"/documents/紺碧帳_000"_qs + u"20260331"_qs + No + u"_001_"_qs + 名前;
        EXPECT_TRUE(QFileInfo::exists(写し));
        return No;
    }
    // Removes the selected document by its button, answering Yes, and records every paint.
    QList<描画> 外す() {
        QList<描画> 見た;
        bool 使える = true;
        基盤.描画時 = [&] {
            for (const auto& [名, 可] : 基盤.使用可否) {
                if (名 == u"frm紺碧帳") 使える = 可;
            }
            見た.append({c(u"お知らせ"_qs).Caption, 使える, QFileInfo::exists(写し)});
        };
        基盤.使用可否.clear();
        基盤.お待ち履歴.clear();
        c(u"List付属書類"_qs).選択 = 0;
        基盤.回答.enqueue(応答::はい);
        f->画面.操作_クリック(c(u"btn_付属書類削除"_qs));
        基盤.描画時 = {};
        return 見た;
    }
    // The paints that show the notice, each with the window closed to input and the copy
    // still there; afterwards the panel is empty, the window open and the copy gone.
    void 削除中が見えた(const QList<描画>& 見た) {
        int 見えた = 0;
        for (const auto& d : 見た) {
            if (d.知らせ != 削除中) continue;
            ++見えた;
            EXPECT_FALSE(d.使える);
            EXPECT_TRUE(d.写しあり);
        }
        EXPECT_GE(見えた, 1);
        EXPECT_TRUE(c(u"お知らせ"_qs).Caption.isEmpty());
        EXPECT_EQ(基盤.使用可否.last(), (QPair<QString, bool>{u"frm紺碧帳"_qs, true}));
        EXPECT_FALSE(QFileInfo::exists(写し));
        EXPECT_EQ(数(u"SELECT COUNT(*) FROM M付属書類"_qs), 0);
        EXPECT_EQ(基盤.表示文言().last(), u"付属書類から削除しますか？"_qs);
    }
    QString 写し;
};

TEST_P(付属書類の削除中, ファイルを外す間は削除中と出て画面は入力を受けない) {
    書類を付ける(u"領収書.pdf"_qs, false);
    const auto 見た = 外す();
    削除中が見えた(見た);
    EXPECT_TRUE(基盤.お待ち履歴.isEmpty());
}

TEST_P(付属書類の削除中, フォルダを外す間は削除中と出てお待ちの窓も出る) {
    書類を付ける(u"束"_qs, true);
    const auto 見た = 外す();
    削除中が見えた(見た);
    EXPECT_EQ(基盤.お待ち履歴, (QList<bool>{true, false}));
}

KONPEKI_両エンジンで(付属書類の削除中);

}  // namespace
