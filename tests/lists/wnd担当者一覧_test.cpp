#include "lists/wnd担当者一覧.h"

#include "lists/一覧試験.h"
#include "screen/次項目補正.h"

namespace {

class 担当者一覧 : public 一覧試験 {
  protected:
    void SetUp() override {
        一覧試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        開始();
    }
    一覧画面& 窓() { return w(u"wnd担当者一覧"_qs); }
    void 開く() { f->画面.操作_クリック(c(u"btn_担当者コード"_qs)); }
    void 押す(一覧画面& x, const QString& 釦) { x.画面.操作_クリック(x.画面(釦)); }
    void 打つ(一覧画面& x, const QString& 欄, const QString& 文字列) {
        x.画面.操作_入力(x.画面(欄), 文字列);
        x.画面.操作_Tab();
    }
};

TEST_P(担当者一覧, 入力画面から開くと在籍者だけがコード順に並び何も選ばれていない) {
    QStringList 行;
    QString 条件中;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        行 = 列(x);
        条件中 = f->状態.一覧.条件;
        EXPECT_EQ(x.一覧().選択, -1);
        EXPECT_EQ(焦点(x.画面), u"コード"_qs);
        EXPECT_FALSE(x.画面(u"lab_注意"_qs).Visible);
        EXPECT_EQ(x.画面(u"wnd_ttl"_qs).Caption, u"担当者一覧"_qs);
        // Operating office "000": no office clause at all.
        EXPECT_FALSE(x.検索SQL.contains(u"事業所コード ="_qs));
        EXPECT_EQ(列(x, 1).value(0), u"青木 翔太"_qs);
        EXPECT_EQ(列(x, 2).value(0), u"本社"_qs);
        EXPECT_EQ(列(x, 3).value(0), u"経理部"_qs);
        EXPECT_EQ(列(x, 4).value(0), u"経理課"_qs);
        EXPECT_EQ(x.一覧().鍵(0), u"C00001"_qs);
    };
    開く();
    // 00012 has left; every office's staff show.
    EXPECT_EQ(行, (QStringList{u"00001"_qs, u"00002"_qs, u"00003"_qs, u"00004"_qs, u"00005"_qs,
                               u"00006"_qs, u"00007"_qs, u"00008"_qs, u"00009"_qs, u"00010"_qs,
                               u"00011"_qs}));
    // The status restriction of the caller stays in force while the window is up.
    EXPECT_EQ(条件中, u"M担当者.在籍区分 = '0'"_qs);
    EXPECT_TRUE(f->状態.一覧.条件.isEmpty());
}

TEST_P(担当者一覧, 矢印とEnterで選ぶとコードが入り担当者が確定し名前の次へ進む) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    開く();
    EXPECT_EQ(c(u"担当者コード"_qs).Text, u"00002"_qs);
    EXPECT_EQ(s.見出し.担当者コード, u"00002"_qs);
    EXPECT_EQ(s.見出し.担当者名, u"石川 美咲"_qs);
    EXPECT_EQ(基盤.隠した画面, QStringList{u"wnd担当者一覧"_qs});
    EXPECT_TRUE(基盤.閉じた画面.isEmpty());
    EXPECT_EQ(基盤.使用可否.last(), (QPair<QString, bool>{u"frm紺碧帳"_qs, true}));
    EXPECT_TRUE(f->状態.一覧.条件.isEmpty());
    // The focus went past the staff code to what follows its name.
    // The name is read-only: the next field takes over, and the header's end hands on to the
    // first line.
    EXPECT_EQ(f->状態.一覧.名称先, &c(u"ヘッド終了"_qs));
    EXPECT_EQ(焦点(f->画面), u"費目区分(0)"_qs);
}

TEST_P(担当者一覧, 開いた直後のEnterは何もしない) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) { x.画面.操作_キー(x.一覧(), キーコード::Enter); };
    開く();
    EXPECT_TRUE(c(u"担当者コード"_qs).Text.isEmpty());
    EXPECT_TRUE(基盤.隠した画面.isEmpty());
    // Still up after the Enter: only the frame closed it.
    EXPECT_EQ(基盤.閉じた画面, QStringList{u"wnd担当者一覧"_qs});
    EXPECT_TRUE(s.見出し.担当者コード.isEmpty());
}

TEST_P(担当者一覧, 検索ボタンの後はEnterだけで先頭行が選ばれる) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        打つ(x, u"名称"_qs, u"上田"_qs);
        押す(x, u"btn_名称検索"_qs);
        EXPECT_EQ(焦点(x.画面), u"List担当者"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    開く();
    EXPECT_EQ(s.見出し.担当者コード, u"00003"_qs);
}

TEST_P(担当者一覧, Escは戻るボタンと同じで入力欄をそのままにし次項目補正をしない) {
    c(u"担当者コード"_qs).Text = u"7"_qs;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.画面(u"名称"_qs), キーコード::Esc);
    };
    const 部品* 名称先前 = nullptr;
    開く();
    名称先前 = f->状態.一覧.名称先;
    EXPECT_EQ(c(u"担当者コード"_qs).Text, u"7"_qs);
    EXPECT_EQ(焦点(f->画面), u"担当者コード"_qs);
    EXPECT_EQ(名称先前, &c(u"担当者名"_qs));
    EXPECT_TRUE(f->状態.一覧.条件.isEmpty());
    EXPECT_EQ(基盤.隠した画面, QStringList{u"wnd担当者一覧"_qs});
    EXPECT_EQ(基盤.使用可否.last(), (QPair<QString, bool>{u"frm紺碧帳"_qs, true}));
}

TEST_P(担当者一覧, 二度目に開くと前の行と条件が残り新しい条件は検索ボタンまで効かない) {
    c(u"担当者コード"_qs).Text = u"5"_qs;
    QStringList 一回目, 二回目;
    QString 二回目の条件;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        一回目 = 列(x);
        EXPECT_EQ(x.画面(u"コード"_qs).Text, u"00005"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    開く();
    c(u"担当者コード"_qs).Text = u"9"_qs;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        二回目 = 列(x);
        二回目の条件 = f->状態.一覧.条件;
        EXPECT_EQ(x.画面(u"コード"_qs).Text, u"00005"_qs);
        EXPECT_EQ(x.一覧().選択, 1);
        // The new condition counts from the next search on.
        押す(x, u"btn_複合検索"_qs);
        EXPECT_TRUE(x.検索SQL.contains(u"M担当者.コード >= '00009'"_qs)) << x.検索SQL.toStdString();
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    開く();
    EXPECT_EQ(一回目.first(), u"00005"_qs);
    EXPECT_EQ(二回目, 一回目);
    EXPECT_EQ(二回目の条件, u"M担当者.コード >= '00009'"_qs);
    // One load only: the second opening ran no load.
    EXPECT_EQ(基盤.読込済み, QStringList{u"wnd担当者一覧"_qs});
}

TEST_P(担当者一覧, 見出しで並べ替えて戻ると次に開いても同じ並びで並べ替えが残る) {
    QStringList 一回目, 二回目;
    bool 二回目の並べ替え = false;
    int 二回目の列 = -1;
    int 回 = 0;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        部品& L = x.一覧();
        if (回++ == 0) {
            x.画面.操作_列クリック(L, 1);  // 氏名
            一回目 = 列(x);
            x.画面.操作_キー(L, キーコード::Esc);
            return;
        }
        二回目 = 列(x);
        二回目の並べ替え = L.Sorted;
        二回目の列 = L.SortKey;
        x.画面.操作_キー(L, キーコード::Esc);
    };
    開く();
    開く();
    // The name order is not the code order of the statement.
    EXPECT_NE(一回目.first(), u"00001"_qs);
    EXPECT_EQ(二回目, 一回目);
    EXPECT_TRUE(二回目の並べ替え);
    EXPECT_EQ(二回目の列, 1);
    EXPECT_EQ(基盤.読込済み, QStringList{u"wnd担当者一覧"_qs});
}

TEST_P(担当者一覧, 渡されたコードの条件は欄に移り条件文字列から消え最初の検索に効く) {
    ASSERT_TRUE(担当者追加(u"00123"_qs, u"百二十三"_qs));
    ASSERT_TRUE(担当者追加(u"00200"_qs, u"二百"_qs));
    c(u"担当者コード"_qs).Text = u"123"_qs;
    QString 条件中;
    QStringList 行;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        条件中 = f->状態.一覧.条件;
        行 = 列(x);
        EXPECT_EQ(x.画面(u"コード"_qs).Text, u"00123"_qs);
    };
    開く();
    EXPECT_TRUE(条件中.isEmpty());
    EXPECT_EQ(行, (QStringList{u"00123"_qs, u"00200"_qs}));
}

TEST_P(担当者一覧, ちょうど1000件でも注意が出て1001件目は出ない) {
    for (int n : {999, 1000, 1001}) {
        SCOPED_TRACE(n);
        ASSERT_TRUE(業務(u"DELETE FROM M担当者 WHERE コード >= '10000'"_qs));
        // 11 in service already; the rest brings the matches to n.
        QString 文 =
            u"INSERT INTO M担当者 (コード, 氏名, カナ, 事業所コード, 部門コード, セクションコード, 社員区分, 在籍区分) VALUES "_qs;
        for (int i = 0; i < n - 11; ++i) {
            if (i) 文 += u","_qs;
            文 += u"('"_qs + QString::number(10000 + i) +
                  u"', '試験', 'シケン', '000', '001', '001', '1', '0')"_qs;
        }
        ASSERT_TRUE(業務(文));
        int 件数 = 0;
        bool 注意 = false;
        操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
            押す(x, u"btn_複合検索"_qs);
            件数 = x.一覧().項目.size();
            注意 = x.画面(u"lab_注意"_qs).Visible;
            x.画面.操作_キー(x.一覧(), キーコード::Esc);
        };
        開く();
        EXPECT_EQ(件数, qMin(n, 1000));
        EXPECT_EQ(注意, n >= 1000);
    }
}

TEST_P(担当者一覧, 見出しを二度押すと逆順になり別の見出しでは向きを保つ) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        部品& L = x.一覧();
        const QStringList 元 = 列(x, 1);
        x.画面.操作_列クリック(L, 1);  // 氏名, ascending
        QStringList 昇順 = 元;
        std::sort(昇順.begin(), 昇順.end(), [](const QString& a, const QString& b) {
            return a.compare(b, Qt::CaseInsensitive) < 0;
        });
        EXPECT_EQ(列(x, 1), 昇順);
        x.画面.操作_列クリック(L, 1);
        QStringList 降順 = 昇順;
        std::reverse(降順.begin(), 降順.end());
        EXPECT_EQ(列(x, 1), 降順);
        // Another heading: the direction stays descending.
        x.画面.操作_列クリック(L, 0);
        EXPECT_EQ(列(x).first(), u"00011"_qs);
        EXPECT_EQ(列(x).last(), u"00001"_qs);
    };
    開く();
}

TEST_P(担当者一覧, 引用符を含む名前で探せて百分率記号は何にでも合う) {
    ASSERT_TRUE(担当者追加(u"00200"_qs, u"O'Neil"_qs));
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        打つ(x, u"名称"_qs, u"O'Neil"_qs);
        押す(x, u"btn_名称検索"_qs);
        EXPECT_EQ(列(x), QStringList{u"00200"_qs});
        EXPECT_TRUE(x.検索SQL.contains(u"LIKE '%O''Neil%'"_qs));
        打つ(x, u"名称"_qs, u"上%一"_qs);
        押す(x, u"btn_名称検索"_qs);
        EXPECT_EQ(列(x), QStringList{u"00003"_qs});
        // An underscore is the engines' one-character wildcard; it stays unescaped.
        打つ(x, u"名称"_qs, u"青木_翔"_qs);
        押す(x, u"btn_名称検索"_qs);
        EXPECT_EQ(列(x), QStringList{u"00001"_qs});
    };
    開く();
}

TEST_P(担当者一覧, 半角カナと全角数字の条件もそのまま探す) {
    ASSERT_TRUE(担当者追加(u"00201"_qs, u"ﾃｽﾄ１２３"_qs, u"000"_qs, u"001"_qs, u"001"_qs, u"0"_qs,
                           u"ﾃｽﾄ"_qs));
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        打つ(x, u"カナ"_qs, u"ﾃｽ"_qs);
        押す(x, u"btn_カナ検索"_qs);
        EXPECT_EQ(列(x), QStringList{u"00201"_qs});
        打つ(x, u"名称"_qs, u"１２"_qs);
        押す(x, u"btn_名称検索"_qs);
        EXPECT_EQ(列(x), QStringList{u"00201"_qs});
    };
    開く();
}

TEST_P(担当者一覧, 部門やセクションがマスタに無い人も出て欄は空になる) {
    ASSERT_TRUE(担当者追加(u"00300"_qs, u"未登録 部門"_qs, u"000"_qs, u"777"_qs, u"002"_qs));
    ASSERT_TRUE(業務(u"UPDATE M部門 SET 名称 = NULL WHERE コード = '004'"_qs));
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        const QStringList コード = 列(x);
        const int r = static_cast<int>(コード.indexOf(u"00300"_qs));
        ASSERT_GE(r, 0);
        EXPECT_TRUE(x.一覧().セル(r, 3).isEmpty());
        EXPECT_EQ(x.一覧().セル(r, 4), u"人事課"_qs);
        // A null name in the master: an empty cell, and the row goes on.
        const int k = static_cast<int>(コード.indexOf(u"00007"_qs));
        EXPECT_TRUE(x.一覧().セル(k, 3).isEmpty());
        EXPECT_EQ(x.一覧().セル(k, 4), u"購買課"_qs);
    };
    開く();
}

TEST_P(担当者一覧, コード欄が空の間はコード検索が押せず空の複合検索は全員を出す) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        EXPECT_FALSE(x.画面(u"btn_コード検索"_qs).Enabled);
        EXPECT_FALSE(x.画面(u"btn_カナ検索"_qs).Enabled);
        EXPECT_TRUE(x.画面(u"btn_複合検索"_qs).Enabled);
        x.画面.操作_入力(x.画面(u"コード"_qs), u"3"_qs);
        EXPECT_TRUE(x.画面(u"btn_コード検索"_qs).Enabled);
        x.画面.操作_入力(x.画面(u"コード"_qs), u" "_qs);
        EXPECT_FALSE(x.画面(u"btn_コード検索"_qs).Enabled);
        // Every status and class: the whole office.
        x.画面.操作_入力(x.画面(u"在籍区分"_qs), u"2"_qs);
        押す(x, u"btn_複合検索"_qs);
        EXPECT_EQ(x.一覧().項目.size(), 11);  // the caller's status condition still holds
        EXPECT_TRUE(x.検索SQL.contains(u"(M担当者.在籍区分 = '0')"_qs));
        EXPECT_FALSE(x.検索SQL.contains(u"AND M担当者.在籍区分 = '"_qs));
        押す(x, u"btn_画面クリア"_qs);
        押す(x, u"btn_複合検索"_qs);
        EXPECT_EQ(x.一覧().項目.size(), 12);
    };
    開く();
}

TEST_P(担当者一覧, 否定検索はコードより前の人をその在籍と社員区分で出す) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        打つ(x, u"コード"_qs, u"5"_qs);
        EXPECT_EQ(x.画面(u"コード"_qs).Text, u"00005"_qs);
        x.画面.操作_入力(x.画面(u"社員区分"_qs), u"0"_qs);  // class row 0: '1'
        押す(x, u"btn_否定検索"_qs);
        // Class is negated too: those whose class is not '0'... of status not '0'.
        EXPECT_TRUE(x.検索SQL.contains(u" AND M担当者.コード < '00005'"_qs));
        EXPECT_TRUE(x.検索SQL.contains(u" AND M担当者.在籍区分 <> '0'"_qs));
        EXPECT_TRUE(x.検索SQL.contains(u" AND M担当者.社員区分 <> '0'"_qs));
        EXPECT_TRUE(x.検索SQL.contains(u" WHERE (M担当者.在籍区分 = '0')"_qs));
        EXPECT_TRUE(列(x).isEmpty());
        x.画面.操作_入力(x.画面(u"在籍区分"_qs), u"2"_qs);  // 全て
        x.画面.操作_入力(x.画面(u"社員区分"_qs), u"3"_qs);
        押す(x, u"btn_否定検索"_qs);
        EXPECT_EQ(列(x), (QStringList{u"00001"_qs, u"00002"_qs, u"00003"_qs, u"00004"_qs}));
    };
    開く();
}

TEST_P(担当者一覧, 区分の番号欄と一覧は連動する) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        部品& 番号 = x.画面(u"社員区分"_qs);
        部品& 名称 = x.画面(u"社員区分名称"_qs);
        EXPECT_EQ(番号.Text, QString::number(番号.Max));
        EXPECT_EQ(名称.Text, u"全て"_qs);
        x.画面.操作_入力(番号, u"0"_qs);
        EXPECT_EQ(名称.ListIndex, 0);
        EXPECT_EQ(x.区分.value(u"社員区分"_qs), 0);
        x.画面.操作_値変更(名称, 1);
        x.画面.操作_Tab();
        EXPECT_EQ(番号.Text, u"1"_qs);
        EXPECT_EQ(x.区分.value(u"社員区分"_qs), 1);
        // The status list opens on its first row, not on all.
        EXPECT_EQ(x.画面(u"在籍区分名称"_qs).Text, u"在籍"_qs);
    };
    開く();
}

TEST_P(担当者一覧, 条件クリアは欄と渡された条件を空にし区分はそのままで検索し一覧へ) {
    c(u"担当者コード"_qs).Text = u"5"_qs;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_入力(x.画面(u"社員区分"_qs), u"1"_qs);
        打つ(x, u"名称"_qs, u"上田"_qs);
        押す(x, u"btn_画面クリア"_qs);
        EXPECT_TRUE(x.画面(u"コード"_qs).Text.isEmpty());
        EXPECT_TRUE(x.画面(u"名称"_qs).Text.isEmpty());
        EXPECT_EQ(x.区分.value(u"社員区分"_qs), 1);
        EXPECT_EQ(焦点(x.画面), u"List担当者"_qs);
        EXPECT_EQ(x.一覧().選択, 0);
        EXPECT_EQ(x.検索種別, 0);
        EXPECT_TRUE(f->状態.一覧.条件.isEmpty());
    };
    開く();
}

TEST_P(担当者一覧, 本社以外の事業所では自事業所と全社の人だけが出る) {
    ASSERT_TRUE(木->環境DB実行(
        u"UPDATE 動作環境定義 SET 運用事業所コード = '001' WHERE 動作環境定義ID = '001'"_qs));
    f.reset();
    集.reset();
    s.データ.接続().接続終了();
    開始();
    QStringList 行;
    QString 文;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        行 = 列(x);
        文 = x.検索SQL;
    };
    開く();
    EXPECT_EQ(行, (QStringList{u"00001"_qs, u"00002"_qs, u"00003"_qs, u"00004"_qs, u"00005"_qs,
                               u"00006"_qs, u"00007"_qs, u"00008"_qs, u"00009"_qs}));
    EXPECT_TRUE(
        文.contains(u" AND (M担当者.事業所コード = '001' OR M担当者.事業所コード = '000')"_qs));
}

TEST_P(担当者一覧, O方言では最初の句もANDで始まる) {
    s.データ.接続().環境変更([&](プログラム環境情報& 値) { 値.db = u"O"_qs; });
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        EXPECT_TRUE(x.検索SQL.contains(
            u"Mセクション.コード(+) = M担当者.セクションコード AND (M担当者.在籍区分 = '0')"_qs))
            << x.検索SQL.toStdString();
        EXPECT_TRUE(x.検索SQL.startsWith(u"SELECT TOP 1000 "_qs));
        EXPECT_FALSE(x.検索SQL.contains(u" WHERE ("_qs));
    };
    開く();
}

TEST_P(担当者一覧, 部門コードでCtrlを押すと部門一覧が入れ子で開き選んだ部門が戻る) {
    QString 部門名;
    QString 入れ子中の呼出元;
    int 入れ子中 = 0;
    操作[u"wnd部門一覧"_qs] = [&](一覧画面& x) {
        入れ子中 = f->状態.一覧.入れ子区分;
        入れ子中の呼出元 = f->状態.一覧.呼出元画面;
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_キー(x.画面(u"部門コード"_qs), キーコード::Ctrl);
        EXPECT_EQ(x.画面(u"部門コード"_qs).Text, u"002"_qs);
        部門名 = x.画面(u"部門名"_qs).Text;
        EXPECT_EQ(焦点(x.画面), u"btn_部門コード検索"_qs);
        EXPECT_TRUE(x.画面(u"btn_部門コード検索"_qs).Enabled);
        EXPECT_EQ(f->状態.一覧.入れ子区分, 0);
        EXPECT_TRUE(f->状態.一覧.呼出元画面.isEmpty());
        EXPECT_EQ(f->状態.一覧.設定先, &c(u"担当者コード"_qs));
        押す(x, u"btn_部門コード検索"_qs);
        EXPECT_EQ(列(x), (QStringList{u"00001"_qs, u"00002"_qs, u"00011"_qs}));
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    開く();
    EXPECT_EQ(入れ子中, 1);
    EXPECT_EQ(入れ子中の呼出元, u"wnd担当者一覧"_qs);
    EXPECT_EQ(部門名, u"経理部"_qs);
    EXPECT_EQ(s.見出し.担当者コード, u"00001"_qs);
    EXPECT_TRUE(基盤.使用可否.contains(QPair<QString, bool>{u"wnd担当者一覧"_qs, true}));
}

TEST_P(担当者一覧, 名称欄に入ると入力画面の並びで次を探し選んだ後の行き先も変わる) {
    部品* 行き先 = nullptr;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_クリック(x.画面(u"部門名"_qs));
        行き先 = f->状態.一覧.名称先;
        // The entry screen is not this window: the focus stays here.
        EXPECT_EQ(焦点(x.画面), u"部門名"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    開く();
    ASSERT_NE(行き先, nullptr);
    EXPECT_EQ(行き先->所属, &f->画面);
    EXPECT_GE(行き先->TabIndex, w(u"wnd担当者一覧"_qs).画面(u"部門名"_qs).TabIndex);
    EXPECT_EQ(行き先, &c(u"ヘッド終了"_qs));
    EXPECT_EQ(焦点(f->画面), u"費目区分(0)"_qs);
    EXPECT_EQ(s.見出し.担当者コード, u"00001"_qs);
}

TEST_P(担当者一覧, 枠で閉じると入力画面が戻り何も入らない) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        押す(x, u"btn_複合検索"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
    };
    開く();
    EXPECT_TRUE(c(u"担当者コード"_qs).Text.isEmpty());
    EXPECT_EQ(基盤.使用可否.last(), (QPair<QString, bool>{u"frm紺碧帳"_qs, true}));
    EXPECT_TRUE(f->状態.一覧.条件.isEmpty());
    EXPECT_EQ(焦点(f->画面), u"担当者コード"_qs);
    // Closed by the frame, the window is unloaded: the next opening loads it anew.
    int 行数 = -1;
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) { 行数 = x.一覧().選択; };
    開く();
    EXPECT_EQ(行数, -1);
}

TEST_P(担当者一覧, 検索中に業務データベースが無くなっても空の一覧で落ちない) {
    操作[u"wnd担当者一覧"_qs] = [&](一覧画面& x) {
        ASSERT_TRUE(業務(u"DROP TABLE M担当者"_qs));
        押す(x, u"btn_複合検索"_qs);
        EXPECT_TRUE(x.一覧().項目.isEmpty());
        EXPECT_FALSE(x.画面(u"lab_注意"_qs).Visible);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    開く();
    EXPECT_TRUE(c(u"担当者コード"_qs).Text.isEmpty());
    const auto 履歴 = 木->環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴"_qs);
    bool 記録 = false;
    for (const auto& r : 履歴) 記録 |= r.value(0).toString().contains(u"M担当者"_qs);
    EXPECT_TRUE(記録);
}

KONPEKI_両エンジンで(担当者一覧);

}  // namespace
