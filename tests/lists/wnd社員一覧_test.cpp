#include "lists/wnd社員一覧.h"

#include "lists/人事一覧試験.h"

namespace {

class 社員一覧 : public 人事一覧試験 {
  protected:
    void SetUp() override {
        人事一覧試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        // The cases count on the sample's employees 00001 to 00012.
        ASSERT_TRUE(人事(u"DELETE FROM M社員 WHERE コード > '00012'"_qs));
        開始();
    }
    // The employee list as the operator reaches it: the trip list from the entry screen, then
    // the Ctrl key in its employee code; the trip list is left by Esc afterwards.
    void 社員一覧で(std::function<void(一覧画面&)> 手) {
        操作[u"wnd出張申請No一覧"_qs] = [this](一覧画面& x) {
            部品& p = x.画面(u"社員コード"_qs);
            x.画面.操作_フォーカス(p);
            x.画面.操作_キー(p, キーコード::Ctrl);
            社員コード = p.Text;
            x.画面.操作_キー(x.一覧(), キーコード::Esc);
        };
        操作[u"wnd社員一覧"_qs] = std::move(手);
        f->画面.操作_クリック(c(u"btn_出張申請No"_qs));
    }
    void 押す(一覧画面& x, const QString& 釦) { x.画面.操作_クリック(x.画面(釦)); }
    void 打つ(一覧画面& x, const QString& 欄, const QString& 文字列) {
        x.画面.操作_入力(x.画面(欄), 文字列);
        x.画面.操作_Tab();
    }
    QString 社員コード;  // what the trip list's field holds after the employee list
};

TEST_P(社員一覧, 開くと人事の在籍者がコード順に並び区分の一覧も人事のもの) {
    // A class of the HR system only: the lists are read there.
    ASSERT_TRUE(人事(u"INSERT INTO K社員区分 (区分, 名称) VALUES ('8', '研修生')"_qs));
    社員一覧で([&](一覧画面& x) {
        EXPECT_EQ(x.画面.Caption, u"社員一覧"_qs);
        EXPECT_EQ(x.画面(u"wnd_ttl"_qs).Caption, u"社員一覧"_qs);
        EXPECT_EQ(x.一覧().選択, -1);
        EXPECT_EQ(焦点(x.画面), u"コード"_qs);
        // 00004 is on leave and 00012 retired in the master.
        EXPECT_EQ(列(x),
                  (QStringList{u"00001"_qs, u"00002"_qs, u"00003"_qs, u"00005"_qs, u"00006"_qs,
                               u"00007"_qs, u"00008"_qs, u"00009"_qs, u"00010"_qs, u"00011"_qs}));
        EXPECT_EQ(列(x, 1).value(0), u"青木 翔太"_qs);
        EXPECT_EQ(列(x, 2).value(0), u"本社"_qs);
        EXPECT_EQ(列(x, 3).value(0), u"経理部"_qs);
        EXPECT_EQ(列(x, 4).value(0), u"経理課"_qs);
        EXPECT_EQ(x.一覧().鍵(0), u"C00001"_qs);
        QList<int> 幅;
        for (const 一覧列& l : x.一覧().列) 幅 << l.幅;
        EXPECT_EQ(幅, (QList<int>{750, 2500, 2300, 2300, 2300}));
        EXPECT_EQ(x.画面(u"在籍区分名称"_qs).一覧,
                  (QStringList{u"在籍"_qs, u"休職"_qs, u"退職"_qs, u"全て"_qs}));
        EXPECT_EQ(x.画面(u"社員区分名称"_qs).一覧.value(8), u"研修生"_qs);
        EXPECT_EQ(x.画面(u"社員区分名称"_qs).Text, u"全て"_qs);
        EXPECT_TRUE(x.検索SQL.startsWith(
            u"SELECT TOP 1000 M社員.コード,M社員.氏名,M事業所.名称 AS 事業所名,M部門.名称 AS 部門名,Mセクション.名称 AS セクション名 FROM Mセクション RIGHT JOIN (M部門 RIGHT JOIN (M事業所 RIGHT JOIN M社員 ON M事業所.コード = M社員.事業所コード) ON M部門.コード = M社員.部門コード) ON Mセクション.コード = M社員.セクションコード"_qs))
            << x.検索SQL.toStdString();
        EXPECT_TRUE(x.検索SQL.endsWith(u" WHERE M社員.在籍区分 = '0' ORDER BY M社員.コード"_qs))
            << x.検索SQL.toStdString();
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    });
    EXPECT_TRUE(社員コード.isEmpty());
}

TEST_P(社員一覧, 検索の種類ごとに社員の列で絞り並べる) {
    QStringList カナ順, 名前順, 否定;
    QString カナ文, 名前文;
    社員一覧で([&](一覧画面& x) {
        打つ(x, u"カナ"_qs, u"コ"_qs);
        押す(x, u"btn_カナ検索"_qs);
        カナ順 = 列(x);
        カナ文 = x.検索SQL;
        打つ(x, u"名称"_qs, u"木"_qs);
        押す(x, u"btn_名称検索"_qs);
        名前順 = 列(x);
        名前文 = x.検索SQL;
        x.画面.操作_入力(x.画面(u"カナ"_qs), QString());
        x.画面.操作_入力(x.画面(u"名称"_qs), QString());
        打つ(x, u"コード"_qs, u"3"_qs);
        押す(x, u"btn_否定検索"_qs);
        // The status is negated as well: nobody below 00003 has left.
        EXPECT_TRUE(列(x).isEmpty());
        EXPECT_TRUE(x.検索SQL.contains(u"M社員.コード < '00003'"_qs));
        EXPECT_TRUE(x.検索SQL.contains(u" AND M社員.在籍区分 <> '0'"_qs));
        x.画面.操作_入力(x.画面(u"在籍区分"_qs), u"3"_qs);  // 全て
        押す(x, u"btn_否定検索"_qs);
        否定 = 列(x);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    });
    // コバヤシ マユ and サイトウ マコト, by kana.
    EXPECT_EQ(カナ順, (QStringList{u"00009"_qs, u"00010"_qs}));
    EXPECT_TRUE(カナ文.contains(u" WHERE M社員.カナ LIKE '%コ%' AND M社員.在籍区分 = '0'"_qs))
        << カナ文.toStdString();
    EXPECT_TRUE(カナ文.endsWith(u" ORDER BY M社員.カナ"_qs));
    // 青木, 木村 and 佐々木, by name.
    EXPECT_EQ(名前順.size(), 3);
    EXPECT_TRUE(名前文.endsWith(u" ORDER BY M社員.氏名"_qs));
    EXPECT_EQ(否定, (QStringList{u"00001"_qs, u"00002"_qs}));
}

TEST_P(社員一覧, 部門名はこの会社の業務データベースから引く) {
    ASSERT_TRUE(業務(u"UPDATE M部門 SET 名称 = '総務部(本体)' WHERE コード = '001'"_qs));
    QString 部門名;
    QStringList 行;
    社員一覧で([&](一覧画面& x) {
        打つ(x, u"部門コード"_qs, u"1"_qs);
        部門名 = x.画面(u"部門名"_qs).Text;
        押す(x, u"btn_部門コード検索"_qs);
        行 = 列(x);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    });
    EXPECT_EQ(部門名, u"総務部(本体)"_qs);
    EXPECT_EQ(行, (QStringList{u"00003"_qs}));
}

TEST_P(社員一覧, 部門コードは一回のクリックで部門一覧を開きダブルクリックでは開かない) {
    int 開いた回数 = 0;
    操作[u"wnd部門一覧"_qs] = [&](一覧画面& x) {
        ++開いた回数;
        EXPECT_EQ(f->状態.一覧.呼出元画面, u"wnd社員一覧"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    QString 部門コード, 部門名, 焦点先;
    社員一覧で([&](一覧画面& x) {
        x.画面.操作_ダブルクリック(x.画面(u"セクションコード"_qs));
        EXPECT_EQ(開いた回数, 0);
        x.画面.操作_クリック(x.画面(u"部門コード"_qs));
        部門コード = x.画面(u"部門コード"_qs).Text;
        部門名 = x.画面(u"部門名"_qs).Text;
        焦点先 = 焦点(x.画面);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    });
    EXPECT_EQ(開いた回数, 1);
    EXPECT_EQ(部門コード, u"001"_qs);
    EXPECT_EQ(部門名, u"総務部"_qs);
    EXPECT_EQ(焦点先, u"btn_部門コード検索"_qs);
}

TEST_P(社員一覧, 部門一覧から戻った後に選んでも出張申請一覧へ入れ子のまま返る) {
    操作[u"wnd部門一覧"_qs] = [&](一覧画面& x) { x.画面.操作_キー(x.一覧(), キーコード::Esc); };
    社員一覧で([&](一覧画面& x) {
        x.画面.操作_クリック(x.画面(u"部門コード"_qs));
        EXPECT_EQ(f->状態.一覧.入れ子区分, 1);
        EXPECT_EQ(f->状態.一覧.呼出元画面, u"wnd出張申請No一覧"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    });
    EXPECT_EQ(社員コード, u"00001"_qs);
    // The main screen came back only when the trip list closed.
    EXPECT_EQ(基盤.使用可否.value(基盤.使用可否.size() - 2),
              (QPair<QString, bool>{u"wnd出張申請No一覧"_qs, true}));
}

TEST_P(社員一覧, 主画面が社員登録なら閉じるときに破棄しそれ以外は隠して次も同じ行を見せる) {
    QStringList 一回目, 二回目;
    社員一覧で([&](一覧画面& x) {
        打つ(x, u"名称"_qs, u"大野"_qs);
        押す(x, u"btn_名称検索"_qs);
        一回目 = 列(x);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    });
    EXPECT_EQ(基盤.隠した画面, QStringList{u"wnd社員一覧"_qs});
    社員一覧で([&](一覧画面& x) {
        二回目 = 列(x);
        EXPECT_EQ(x.画面(u"名称"_qs).Text, u"大野"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    });
    EXPECT_EQ(一回目, QStringList{u"00005"_qs});
    EXPECT_EQ(二回目, 一回目);
    f->画面.Caption = u"社員登録"_qs;
    社員一覧で([&](一覧画面& x) { x.画面.操作_キー(x.一覧(), キーコード::Esc); });
    EXPECT_TRUE(基盤.閉じた画面.contains(u"wnd社員一覧"_qs));
}

TEST_P(社員一覧, 選んだ社員のコードが出張申請一覧に入る) {
    社員一覧で([&](一覧画面& x) {
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    });
    EXPECT_EQ(社員コード, u"00002"_qs);
}

TEST_P(社員一覧, 作業事業所が本社でなければその事業所と本社の社員だけが出る) {
    s.データ.接続().環境変更([&](プログラム環境情報& 値) { 値.運用事業所コード = u"001"_qs; });
    s.データ.接続().作業事業所コード設定(u"001"_qs);
    QStringList 行;
    QString 文;
    社員一覧で([&](一覧画面& x) {
        押す(x, u"btn_複合検索"_qs);
        行 = 列(x);
        文 = x.検索SQL;
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    });
    EXPECT_TRUE(
        文.contains(u" WHERE (M社員.事業所コード = '001' OR M社員.事業所コード = '000')"_qs))
        << 文.toStdString();
    EXPECT_EQ(行, (QStringList{u"00001"_qs, u"00002"_qs, u"00003"_qs, u"00005"_qs, u"00006"_qs,
                               u"00007"_qs, u"00008"_qs, u"00009"_qs}));
}

TEST_P(社員一覧, ちょうど千件でも注意が出て千一件目は出ない) {
    for (int n : {999, 1000, 1001}) {
        SCOPED_TRACE(n);
        ASSERT_TRUE(人事(u"DELETE FROM M社員 WHERE コード >= '10000'"_qs));
        // 10 in service already; the rest brings the matches to n.
        QString 文 =
            u"INSERT INTO M社員 (コード, 氏名, カナ, 事業所コード, 部門コード, セクションコード, 社員区分, 在籍区分) VALUES "_qs;
        for (int i = 0; i < n - 10; ++i) {
            if (i) 文 += u","_qs;
            文 += u"('"_qs + QString::number(10000 + i) +
                  u"', '試験', 'シケン', '000', '001', '001', '1', '0')"_qs;
        }
        ASSERT_TRUE(人事(文));
        int 件数 = 0;
        bool 注意 = false;
        社員一覧で([&](一覧画面& x) {
            押す(x, u"btn_複合検索"_qs);
            件数 = x.一覧().項目.size();
            注意 = x.画面(u"lab_注意"_qs).Visible;
            x.画面.操作_キー(x.一覧(), キーコード::Esc);
        });
        EXPECT_EQ(件数, qMin(n, 1000));
        EXPECT_EQ(注意, n >= 1000);
    }
}

TEST_P(社員一覧, 人事のデータベースが無くなると区分も行も空のまま開ける) {
    if (GetParam()) {
        ASSERT_TRUE(人事(
            u"SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = current_database() AND pid <> pg_backend_pid()"_qs));
    } else {
        s.データ.接続().連携先()->業務接続.閉じる();
    }
    bool 開いた = false;
    社員一覧で([&](一覧画面& x) {
        開いた = true;
        EXPECT_TRUE(x.一覧().項目.isEmpty());
        EXPECT_EQ(x.画面(u"在籍区分名称"_qs).一覧, QStringList{u"全て"_qs});
        押す(x, u"btn_複合検索"_qs);
        EXPECT_TRUE(x.一覧().項目.isEmpty());
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    });
    EXPECT_TRUE(開いた);
    EXPECT_TRUE(社員コード.isEmpty());
}

// The match of a state against the window's conditions, on the window as it opened.
TEST_P(社員一覧, 条件照合は在籍区分社員区分名前カナ事業所部門セクションを順に見る) {
    auto& x = static_cast<wnd社員一覧&>(w(u"wnd社員一覧"_qs));
    x.読込();
    社員状態& 状 = x.状態;
    状 = {};
    状.社員名 = u"大野 Daisuke"_qs;
    状.カナ = u"オオノ ダイスケ"_qs;
    状.事業所コード = u"001"_qs;
    状.部門コード = u"003"_qs;
    状.セクションコード = u"004"_qs;
    状.社員区分 = 1;
    状.在籍区分 = 0;
    bool 照合 = false;
    const auto 照らす = [&] {
        x.社員条件照合(照合);
        return 照合;
    };
    EXPECT_TRUE(照らす());
    // The status: the window opens on 在籍 only; "全て" lets every status through.
    状.在籍区分 = 2;
    EXPECT_FALSE(照らす());
    x.区分[u"在籍区分"_qs] = x.画面(u"在籍区分"_qs).Max;
    EXPECT_TRUE(照らす());
    x.区分[u"社員区分"_qs] = 2;
    EXPECT_FALSE(照らす());
    x.区分[u"社員区分"_qs] = 1;
    EXPECT_TRUE(照らす());
    // The name, without regard to case, in the compound and the name search only.
    x.条件[u"名称"_qs] = u"daisuke "_qs;
    EXPECT_TRUE(照らす());
    x.条件[u"名称"_qs] = u"大輔"_qs;
    EXPECT_FALSE(照らす());
    x.検索種別 = 3;
    EXPECT_FALSE(照らす());
    x.検索種別 = 1;
    EXPECT_TRUE(照らす());
    x.検索種別 = -1;
    EXPECT_TRUE(照らす());
    x.検索種別 = 0;
    x.条件[u"名称"_qs].clear();
    x.条件[u"カナ"_qs] = u"ダイ"_qs;
    EXPECT_TRUE(照らす());
    x.条件[u"カナ"_qs] = u"タロウ"_qs;
    EXPECT_FALSE(照らす());
    x.検索種別 = 2;
    EXPECT_FALSE(照らす());
    x.検索種別 = 0;
    x.条件[u"カナ"_qs].clear();
    // The office at work: its own employees and those of the head office.
    s.データ.接続().環境変更([&](プログラム環境情報& 値) { 値.運用事業所コード = u"002"_qs; });
    EXPECT_FALSE(照らす());
    状.事業所コード = u"000"_qs;
    EXPECT_TRUE(照らす());
    状.事業所コード = u"002"_qs;
    EXPECT_TRUE(照らす());
    s.データ.接続().環境変更([&](プログラム環境情報& 値) { 値.運用事業所コード = u"000"_qs; });
    x.条件[u"部門コード"_qs] = u"003"_qs;
    x.条件[u"セクションコード"_qs] = u"005"_qs;
    EXPECT_FALSE(照らす());
    x.検索種別 = 4;
    EXPECT_TRUE(照らす());
    x.検索種別 = 5;
    EXPECT_FALSE(照らす());
    x.条件[u"部門コード"_qs] = u"009"_qs;
    x.条件[u"セクションコード"_qs] = u"004"_qs;
    EXPECT_TRUE(照らす());
    x.検索種別 = 0;
    EXPECT_FALSE(照らす());
    // The code field and the negative search play no part.
    x.条件[u"部門コード"_qs].clear();
    x.条件[u"コード"_qs] = u"99999"_qs;
    EXPECT_TRUE(照らす());
}

KONPEKI_人事の両エンジンで(社員一覧);

}  // namespace
