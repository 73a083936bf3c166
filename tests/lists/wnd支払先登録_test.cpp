#include "lists/wnd支払先登録.h"

#include "lists/一覧試験.h"
#include "lists/一覧部品名.h"

namespace {

using 欄 = 支払先登録部品;

// The payee register opened by F10 from the entry screen, on either engine; what the operator
// does while it is up is 手.
class 支払先登録窓 : public 一覧試験 {
  protected:
    void SetUp() override {
        一覧試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        開始();
        if (HasFatalFailure()) return;
        窓 = std::make_unique<wnd支払先登録>(s, f->画面);
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"wnd支払先登録" && 手) 手(*窓);
        };
    }
    void 開く(std::function<void(wnd支払先登録&)> 操作) {
        手 = std::move(操作);
        f->画面.操作_キー(c(u"担当者コード"_qs), キーコード::F10);
    }
    // The fields typed, each left by Tab, and a button pressed.
    static void 打つ(wnd支払先登録& x, const QStringList& 値) {
        const 部品名 欄名[] = {欄::支払先, 欄::登録番号, 欄::登録名称, 欄::有効開始日,
                               欄::有効終了日};
        for (int i = 0; i < 値.size(); ++i) {
            x.画面.操作_入力(x.画面(欄名[i]), 値[i]);
            x.画面.操作_Tab();
        }
    }
    static void 押す(wnd支払先登録& x, 部品名 釦) { x.画面.操作_クリック(x.画面(釦)); }
    QStringList 登録(const QString& 支払先) {
        QStringList r;
        for (
            const auto& 行 : 木->業務DB行(
                u"SELECT 登録番号, 登録名称, 有効開始日, 有効終了日 FROM M紺碧支払先登録 WHERE 支払先 = '"_qs +
                支払先 + u"' ORDER BY 有効開始日"_qs)) {
            QStringList v;
            for (const auto& x : 行) v << x.toString();
            r << v.join(u'|');
        }
        return r;
    }
    int 件数() { return 木->業務DB行(u"SELECT COUNT(*) FROM M紺碧支払先登録"_qs)[0][0].toInt(); }
    QString 最後のメッセージ() const {
        return 基盤.表示済み.isEmpty() ? QString() : 基盤.表示済み.last().本文;
    }

    std::unique_ptr<wnd支払先登録> 窓;
    std::function<void(wnd支払先登録&)> 手;
};

TEST_P(支払先登録窓, F10で開くと登録が支払先順に並び欄は空で焦点は支払先) {
    bool 開いた = false;
    開く([&](wnd支払先登録& x) {
        開いた = true;
        EXPECT_EQ(x.画面.Caption, u"支払先登録"_qs);
        EXPECT_EQ(x.一覧().項目.size(), 8);
        EXPECT_EQ(列(x).first(), u"JR東日本"_qs);
        const int i = 列(x).indexOf(u"弁当の大地"_qs);
        ASSERT_GE(i, 0);
        EXPECT_EQ(x.一覧().セル(i, 1), u"T7011101012934"_qs);
        EXPECT_EQ(x.一覧().セル(i, 2), u"株式会社大地フーズ"_qs);
        EXPECT_EQ(x.一覧().セル(i, 3), u"20231001"_qs);
        EXPECT_EQ(x.一覧().セル(i, 4), u"20250331"_qs);
        EXPECT_EQ(x.一覧().選択, -1);
        EXPECT_EQ(x.画面(欄::支払先).Text, QString());
        EXPECT_EQ(焦点(x.画面), u"支払先"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    });
    EXPECT_TRUE(開いた);
    EXPECT_EQ(基盤.閉じた画面, QStringList{u"wnd支払先登録"_qs});
    EXPECT_EQ(焦点(f->画面), u"担当者コード"_qs);
}

TEST_P(支払先登録窓, 追加すると表に入り一覧で選ばれ欄は空に戻る) {
    開く([&](wnd支払先登録& x) {
        打つ(x, {u"文具の青葉堂"_qs, u"T7123456789012"_qs, u"株式会社青葉堂"_qs, u"20251001"_qs,
                 QString()});
        EXPECT_EQ(焦点(x.画面), u"btn_追加"_qs);
        押す(x, 欄::btn_追加);
        EXPECT_EQ(x.画面(欄::lab_お知らせ).Caption, u"追加しました。"_qs);
        EXPECT_EQ(x.一覧().項目.size(), 9);
        ASSERT_GE(x.一覧().選択, 0);
        EXPECT_EQ(x.一覧().セル(x.一覧().選択, 0), u"文具の青葉堂"_qs);
        EXPECT_EQ(x.画面(欄::登録番号).Text, QString());
        EXPECT_EQ(焦点(x.画面), u"支払先"_qs);
    });
    EXPECT_TRUE(基盤.表示済み.isEmpty()) << 最後のメッセージ().toStdString();
    EXPECT_EQ(登録(u"文具の青葉堂"_qs), QStringList{u"T7123456789012|株式会社青葉堂|20251001|"_qs});
}

// Each refusal is told in its own words and nothing is stored.
TEST_P(支払先登録窓, 誤った登録番号と日付と空の欄は告げて何も書かない) {
    const struct {
        QStringList 入力;
        const char16_t* 告知;
    } 例[] = {
        {{u"青葉堂"_qs, u"T712345678901"_qs, u"株式会社青葉堂"_qs, u"20251001"_qs},
         u"登録番号は「T」と13桁の半角数字で入力してください。"},
        {{u"青葉堂"_qs, u"7123456789012"_qs, u"株式会社青葉堂"_qs, u"20251001"_qs},
         u"登録番号は「T」と13桁の半角数字で入力してください。"},
        {{u"青葉堂"_qs, u"T７123456789012"_qs, u"株式会社青葉堂"_qs, u"20251001"_qs},
         u"登録番号は「T」と13桁の半角数字で入力してください。"},
        {{u"青葉堂"_qs, u"T8123456789012"_qs, u"株式会社青葉堂"_qs, u"20251001"_qs},
         u"登録番号の検査用数字が一致しません。番号を確かめてください。"},
        {{QString(), u"T7123456789012"_qs, u"株式会社青葉堂"_qs, u"20251001"_qs},
         u"支払先を入力してください。"},
        {{u"青葉堂"_qs, u"T7123456789012"_qs, QString(), u"20251001"_qs},
         u"登録名称を入力してください。"},
        {{u"青葉堂"_qs, u"T7123456789012"_qs, u"株式会社青葉堂"_qs, u"20250231"_qs},
         u"有効開始日は YYYYMMDD の日付で入力してください。"},
        {{u"青葉堂"_qs, u"T7123456789012"_qs, u"株式会社青葉堂"_qs, u"202510"_qs},
         u"有効開始日は YYYYMMDD の日付で入力してください。"},
        {{u"青葉堂"_qs, u"T7123456789012"_qs, u"株式会社青葉堂"_qs, u"20251001"_qs, u"20251301"_qs},
         u"有効終了日は YYYYMMDD の日付で入力するか、空にしてください。"},
        {{u"青葉堂"_qs, u"T7123456789012"_qs, u"株式会社青葉堂"_qs, u"20251001"_qs, u"20250930"_qs},
         u"有効終了日が有効開始日より前です。"},
        // The café of the sample has no registration; the lunch shop one until 2025-03-31.
        {{u"弁当の大地"_qs, u"T7011101012934"_qs, u"株式会社大地フーズ"_qs, u"20250301"_qs},
         u"支払先「弁当の大地」には期間の重なる登録（20231001～20250331）があります。"},
        {{u"東京交通"_qs, u"T9010401053216"_qs, u"東京交通株式会社"_qs, u"20200101"_qs,
          u"20231001"_qs},
         u"支払先「東京交通」には期間の重なる登録（20231001～）があります。"},
    };
    for (const auto& e : 例) {
        基盤.表示済み.clear();
        開く([&](wnd支払先登録& x) {
            打つ(x, e.入力);
            押す(x, 欄::btn_追加);
            EXPECT_EQ(x.画面(欄::lab_お知らせ).Caption, QString());
            x.画面.操作_キー(x.一覧(), キーコード::Esc);
        });
        EXPECT_EQ(最後のメッセージ(), QString::fromUtf16(e.告知))
            << e.入力.join(u',').toStdString();
        EXPECT_EQ(件数(), 8);
    }
}

TEST_P(支払先登録窓, 後に続く期間は重ならなければ加えられる) {
    開く([&](wnd支払先登録& x) {
        打つ(x, {u"弁当の大地"_qs, u"T7011101012934"_qs, u"株式会社大地フーズ"_qs, u"20250401"_qs});
        押す(x, 欄::btn_追加);
    });
    EXPECT_TRUE(基盤.表示済み.isEmpty()) << 最後のメッセージ().toStdString();
    EXPECT_EQ(登録(u"弁当の大地"_qs),
              (QStringList{u"T7011101012934|株式会社大地フーズ|20231001|20250331"_qs,
                           u"T7011101012934|株式会社大地フーズ|20250401|"_qs}));
}

TEST_P(支払先登録窓, 選んだ行を欄に取って変更すると元の行が書き換わる) {
    開く([&](wnd支払先登録& x) {
        // Nothing taken yet: there is nothing to change.
        押す(x, 欄::btn_変更);
        EXPECT_EQ(最後のメッセージ(), u"変更する登録を一覧で選んで Enter を押してください。"_qs);
        const int i = 列(x).indexOf(u"弁当の大地"_qs);
        x.画面.操作_項目選択(x.一覧(), i);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
        EXPECT_EQ(x.画面(欄::支払先).Text, u"弁当の大地"_qs);
        EXPECT_EQ(x.画面(欄::有効終了日).Text, u"20250331"_qs);
        EXPECT_EQ(焦点(x.画面), u"支払先"_qs);
        // Its own period does not overlap itself.
        打つ(x, {u"弁当の大地"_qs, u"T7011101012934"_qs, u"大地フーズ株式会社"_qs, u"20231001"_qs,
                 QString()});
        押す(x, 欄::btn_変更);
        EXPECT_EQ(x.画面(欄::lab_お知らせ).Caption, u"変更しました。"_qs);
        EXPECT_EQ(x.一覧().セル(x.一覧().選択, 2), u"大地フーズ株式会社"_qs);
        // The change is done: a second needs a row taken again.
        押す(x, 欄::btn_変更);
    });
    EXPECT_EQ(最後のメッセージ(), u"変更する登録を一覧で選んで Enter を押してください。"_qs);
    EXPECT_EQ(登録(u"弁当の大地"_qs),
              QStringList{u"T7011101012934|大地フーズ株式会社|20231001|"_qs});
    EXPECT_EQ(件数(), 8);
}

TEST_P(支払先登録窓, 変更でも登録番号の検査数字は確かめられ表は元のまま) {
    開く([&](wnd支払先登録& x) {
        x.画面.操作_項目ダブルクリック(x.一覧(), 列(x).indexOf(u"東京交通"_qs));
        x.画面.操作_入力(x.画面(欄::登録番号), u"T8010401053216"_qs);
        押す(x, 欄::btn_変更);
    });
    EXPECT_EQ(最後のメッセージ(),
              u"登録番号の検査用数字が一致しません。番号を確かめてください。"_qs);
    EXPECT_EQ(登録(u"東京交通"_qs), QStringList{u"T9010401053216|東京交通株式会社|20231001|"_qs});
}

TEST_P(支払先登録窓, 削除は問いにはいと答えたときだけ行を消す) {
    開く([&](wnd支払先登録& x) {
        x.画面.操作_項目ダブルクリック(x.一覧(), 列(x).indexOf(u"紺碧銀行"_qs));
        基盤.回答.enqueue(応答::いいえ);
        押す(x, 欄::btn_削除);
        EXPECT_EQ(x.一覧().項目.size(), 8);
        基盤.回答.enqueue(応答::はい);
        押す(x, 欄::btn_削除);
        EXPECT_EQ(x.画面(欄::lab_お知らせ).Caption, u"削除しました。"_qs);
        EXPECT_EQ(x.一覧().項目.size(), 7);
        EXPECT_FALSE(列(x).contains(u"紺碧銀行"_qs));
    });
    ASSERT_EQ(基盤.表示済み.size(), 2);
    EXPECT_EQ(基盤.表示済み[0].本文,
              u"支払先「紺碧銀行」の有効開始日 20231001 からの登録を削除しますか？"_qs);
    EXPECT_EQ(基盤.表示済み[0].ボタン, ボタン種別::はいいいえ);
    EXPECT_TRUE(登録(u"紺碧銀行"_qs).isEmpty());
    EXPECT_EQ(件数(), 7);
}

TEST_P(支払先登録窓, 引用符のある支払先もそのまま登録される) {
    開く([&](wnd支払先登録& x) {
        打つ(x,
             {u"O'Brien's Cafe"_qs, u"T7123456789012"_qs, u"オブライエン'商会"_qs, u"20240101"_qs});
        押す(x, 欄::btn_追加);
    });
    EXPECT_EQ(登録(u"O''Brien''s Cafe"_qs),
              QStringList{u"T7123456789012|オブライエン'商会|20240101|"_qs});
}

TEST_P(支払先登録窓, 入力クリアは欄を空にして取った行を忘れる) {
    開く([&](wnd支払先登録& x) {
        x.画面.操作_項目ダブルクリック(x.一覧(), 0);
        押す(x, 一覧部品::btn_画面クリア);
        EXPECT_EQ(x.画面(欄::支払先).Text, QString());
        押す(x, 欄::btn_削除);
    });
    EXPECT_EQ(最後のメッセージ(), u"削除する登録を一覧で選んで Enter を押してください。"_qs);
    EXPECT_EQ(件数(), 8);
}

KONPEKI_両エンジンで(支払先登録窓);

}  // namespace
