#include "lists/wnd出張申請No一覧.h"

#include "lists/人事一覧試験.h"

namespace {

class 出張申請一覧 : public 人事一覧試験 {
  protected:
    void SetUp() override {
        人事一覧試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        // The cases work on the sample's first two applications and add what else they need.
        ASSERT_TRUE(人事(
            u"DELETE FROM T出張申請 WHERE 出張申請No NOT IN ('00000001', '00000002') OR 番号基準日付 <> '20270331'"_qs));
        開始();
        ASSERT_TRUE(s.白樺連携フラグ);
    }
    void 開く() { f->画面.操作_クリック(c(u"btn_出張申請No"_qs)); }
    void 押す(一覧画面& x, const QString& 釦) { x.画面.操作_クリック(x.画面(釦)); }
    void 打つ(一覧画面& x, const QString& 欄, const QString& 文字列) {
        x.画面.操作_入力(x.画面(欄), 文字列);
        x.画面.操作_Tab();
    }
    // An application of the HR system as its entry program stores it.
    bool 申請追加(const QString& 事業所, const QString& No, const QString& 日付,
                  const QString& 社員, const QString& 区分 = u"1"_qs, int 日数 = 2) {
        return 人事(
            u"INSERT INTO T出張申請 (事業所コード, 番号基準日付, 出張申請No, 出張申請日付, 社員コード, 開始日付, 終了日付, 日数, 出張区分, 出張先, 出張目的, ユーザID, 登録日付, 更新日付) VALUES ('"_qs +
            事業所 + u"', '20270331', '"_qs + No + u"', '"_qs + 日付 + u"', '"_qs + 社員 +
            u"', '"_qs + 日付 + u"', '"_qs + 日付 + u"', "_qs + QString::number(日数) + u", '"_qs +
            区分 + u"', '仙台', '試験', '', '"_qs + 日付 + u" 100000', '')"_qs);
    }
    // The rows of a search on the open window, then the way back.
    QStringList 検索(const QString& 釦, const QHash<QString, QString>& 欄 = {},
                     QString* 文 = nullptr) {
        QStringList 行;
        操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
            for (auto i = 欄.begin(); i != 欄.end(); ++i) 打つ(x, i.key(), i.value());
            押す(x, 釦);
            行 = 列(x);
            if (文) *文 = x.検索SQL;
            x.画面.操作_キー(x.一覧(), キーコード::Esc);
        };
        開く();
        return 行;
    }
    QList<QVariantList> 誤り() {
        return 木->環境DB行(
            u"SELECT 摘要 FROM プログラム稼動履歴 WHERE 摘要 LIKE 'エラー%' ORDER BY proccounter"_qs);
    }
};

TEST_P(出張申請一覧, 入力画面から開くと一年前からの申請が新しい順に並び何も選ばれていない) {
    QString 条件中;
    操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
        条件中 = f->状態.一覧.条件;
        EXPECT_EQ(x.画面(u"wnd_ttl"_qs).Caption, u"出張申請No一覧"_qs);
        EXPECT_EQ(x.画面(u"出張申請日付"_qs).Text, u"20251123"_qs);
        EXPECT_EQ(x.一覧().選択, -1);
        EXPECT_FALSE(x.画面(u"lab_注意"_qs).Visible);
        EXPECT_EQ(列(x), (QStringList{u"00000002"_qs, u"00000001"_qs}));
        EXPECT_EQ(列(x, 1), (QStringList{u"20261112"_qs, u"20261105"_qs}));
        EXPECT_EQ(列(x, 2), (QStringList{u"00008"_qs, u"00005"_qs}));
        EXPECT_EQ(列(x, 3), (QStringList{u"工藤 直樹"_qs, u"大野 大輔"_qs}));
        EXPECT_EQ(列(x, 4), (QStringList{u"20261118"_qs, u"20261110"_qs}));
        EXPECT_EQ(列(x, 5), (QStringList{u"1"_qs, u"2"_qs}));
        EXPECT_EQ(列(x, 6), (QStringList{u"日帰り"_qs, u"国内宿泊"_qs}));
        EXPECT_EQ(x.一覧().項目.value(0).Key, u"C0012027033100000002"_qs);
        QStringList 見出し;
        QList<int> 幅;
        QList<bool> 右;
        for (const 一覧列& l : x.一覧().列) {
            見出し << l.見出し;
            幅 << l.幅;
            右 << l.右寄せ;
        }
        EXPECT_EQ(右, (QList<bool>{false, false, false, false, false, true, false}));
        EXPECT_EQ(見出し, (QStringList{u"申請No"_qs, u"申請日付"_qs, u"コード"_qs, u"社員名"_qs,
                                       u"出張日付"_qs, u"日数"_qs, u"区分"_qs}));
        EXPECT_EQ(幅, (QList<int>{1150, 1150, 1050, 2000, 1150, 850, 1150}));
        EXPECT_EQ(x.検索SQL,
                  u"SELECT TOP 1000 T出張申請.事業所コード, T出張申請.番号基準日付, "
                  u"T出張申請.出張申請No, T出張申請.出張申請日付, T出張申請.社員コード, "
                  u"T出張申請.開始日付, T出張申請.日数, M社員.氏名 AS 社員名, K出張区分.名称 AS "
                  u"出張区分名"
                  u" FROM K出張区分 INNER JOIN (M社員 INNER JOIN T出張申請 ON M社員.コード = "
                  u"T出張申請.社員コード) ON K出張区分.区分 = T出張申請.出張区分 "
                  u" WHERE (T出張申請.番号基準日付 <> '') AND T出張申請.出張申請日付 >= '20251123'"
                  u" ORDER BY T出張申請.出張申請日付 DESC, T出張申請.出張申請No DESC"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    開く();
    // The date clause went into its field; the fixed restriction stayed.
    EXPECT_EQ(条件中, u"T出張申請.番号基準日付 <> ''"_qs);
    EXPECT_TRUE(c(u"出張申請No"_qs).Text.isEmpty());
}

TEST_P(出張申請一覧, 担当者が入った伝票からは同じコードの社員の申請だけが出て名前は人事から引く) {
    // The HR system's own name, unlike the staff master of the company.
    ASSERT_TRUE(人事(u"UPDATE M社員 SET 氏名 = '大野 大輔(人事)' WHERE コード = '00005'"_qs));
    ASSERT_TRUE(f->担当者確定(u"00005"_qs));
    f->見出し表示();
    操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
        EXPECT_EQ(x.画面(u"社員コード"_qs).Text, u"00005"_qs);
        EXPECT_EQ(x.画面(u"社員名"_qs).Text, u"大野 大輔(人事)"_qs);
        EXPECT_EQ(列(x), QStringList{u"00000001"_qs});
        EXPECT_TRUE(x.画面(u"btn_社員コード検索"_qs).Enabled);
        EXPECT_FALSE(x.画面(u"btn_社員名検索"_qs).Enabled);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    開く();
}

TEST_P(出張申請一覧, キーで選ぶと番号が入り鍵の事業所と基準日付で申請が取られ窓は閉じられる) {
    操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    開く();
    EXPECT_EQ(c(u"出張申請No"_qs).Text, u"00000002"_qs);
    // The row's key, "C" with the office at 2-4 and the base date at 5-12, was read by the
    // number's leave on the way and then emptied: the slip holds the application of office 001.
    EXPECT_TRUE(f->状態.一覧.条件.isEmpty());
    EXPECT_EQ(s.見出し.出張申請事業所コード, u"001"_qs);
    EXPECT_EQ(s.見出し.出張申請番号基準日付, u"20270331"_qs);
    EXPECT_EQ(s.見出し.出張申請No, u"00000002"_qs);
    EXPECT_EQ(基盤.閉じた画面, QStringList{u"wnd出張申請No一覧"_qs});
    EXPECT_TRUE(基盤.隠した画面.isEmpty());
    EXPECT_EQ(基盤.使用可否.last(), (QPair<QString, bool>{u"frm紺碧帳"_qs, true}));
    // The focus went through the number to the staff code, the field the entry screen names.
    EXPECT_EQ(焦点(f->画面), u"担当者コード"_qs);
}

TEST_P(出張申請一覧, Escでは番号欄をそのままにし条件を空にして番号欄へ戻る) {
    // With the header's staff entered the order guard lets the focus stay on the number.
    ASSERT_TRUE(f->担当者確定(u"00005"_qs));
    f->見出し表示();
    c(u"出張申請No"_qs).Text = u"00000009"_qs;
    操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_キー(x.一覧(), キーコード::Down);
        x.画面.操作_キー(x.画面(u"社員氏名"_qs), キーコード::Esc);
    };
    開く();
    EXPECT_EQ(c(u"出張申請No"_qs).Text, u"00000009"_qs);
    EXPECT_TRUE(f->状態.一覧.条件.isEmpty());
    EXPECT_EQ(焦点(f->画面), u"出張申請No"_qs);
    EXPECT_EQ(基盤.閉じた画面, QStringList{u"wnd出張申請No一覧"_qs});
}

TEST_P(出張申請一覧, 見出しで並べ替えて戻っても次に開くと文の順で並べ替えは無い) {
    QStringList 一回目, 二回目;
    bool 二回目の並べ替え = true;
    int 二回目の列 = -1;
    int 回 = 0;
    操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
        部品& L = x.一覧();
        if (回++ == 0) {
            // The application date, oldest first, against the statement's newest first.
            x.画面.操作_列クリック(L, 1);
            一回目 = 列(x, 1);
            x.画面.操作_キー(L, キーコード::Esc);
            return;
        }
        二回目 = 列(x, 1);
        二回目の並べ替え = L.Sorted;
        二回目の列 = L.SortKey;
        x.画面.操作_キー(L, キーコード::Esc);
    };
    開く();
    開く();
    ASSERT_EQ(一回目.size(), 2);
    EXPECT_LT(一回目.first(), 一回目.last());
    QStringList 逆 = 一回目;
    std::reverse(逆.begin(), 逆.end());
    EXPECT_EQ(二回目, 逆);
    EXPECT_FALSE(二回目の並べ替え);
    EXPECT_EQ(二回目の列, 0);
}

TEST_P(出張申請一覧, 出張区分か社員のマスタが無い申請は出ない) {
    ASSERT_TRUE(申請追加(u"000"_qs, u"00000003"_qs, u"20261115"_qs, u"00001"_qs, u"9"_qs));
    ASSERT_TRUE(申請追加(u"000"_qs, u"00000004"_qs, u"20261116"_qs, u"99999"_qs));
    ASSERT_TRUE(申請追加(u"000"_qs, u"00000005"_qs, u"20261117"_qs, u"00001"_qs));
    EXPECT_EQ(検索(u"btn_複合検索"_qs),
              (QStringList{u"00000005"_qs, u"00000002"_qs, u"00000001"_qs}));
}

TEST_P(出張申請一覧, 社員名ボタンは氏名全体で探し複合検索は一部で探す) {
    EXPECT_EQ(検索(u"btn_社員名検索"_qs, {{u"社員氏名"_qs, u"大野"_qs}}), QStringList());
    EXPECT_EQ(検索(u"btn_社員名検索"_qs, {{u"社員氏名"_qs, u"大野 大輔"_qs}}),
              QStringList{u"00000001"_qs});
    EXPECT_EQ(検索(u"btn_複合検索"_qs, {{u"社員氏名"_qs, u"大野"_qs}}),
              QStringList{u"00000001"_qs});
    // The negative search negates the date from the entry screen as well: it is emptied.
    EXPECT_EQ(
        検索(u"btn_否定検索"_qs, {{u"社員氏名"_qs, u"大野"_qs}, {u"出張申請日付"_qs, u""_qs}}),
        QStringList{u"00000002"_qs});
}

TEST_P(出張申請一覧, 引用符の入った名前は社員名ボタンでは文が壊れて空になり複合検索では見つかる) {
    ASSERT_TRUE(社員追加(u"00020"_qs, u"O'Neil"_qs));
    ASSERT_TRUE(申請追加(u"000"_qs, u"00000003"_qs, u"20261120"_qs, u"00020"_qs));
    QString 文;
    EXPECT_EQ(検索(u"btn_社員名検索"_qs, {{u"社員氏名"_qs, u"O'Neil"_qs}}, &文), QStringList());
    // That one clause is not quoted.
    EXPECT_TRUE(文.contains(u" AND M社員.氏名 = 'O'Neil'"_qs)) << 文.toStdString();
    ASSERT_FALSE(誤り().isEmpty());
    EXPECT_TRUE(誤り().last().value(0).toString().contains(u"M社員.氏名 = "_qs));
    EXPECT_EQ(検索(u"btn_複合検索"_qs, {{u"社員氏名"_qs, u"O'Neil"_qs}}, &文),
              QStringList{u"00000003"_qs});
    EXPECT_TRUE(文.contains(u" AND M社員.氏名 LIKE '%O''Neil%'"_qs)) << 文.toStdString();
}

TEST_P(出張申請一覧, 日付検索は古い順で番号検索は番号順で社員検索は社員順に並ぶ) {
    ASSERT_TRUE(申請追加(u"000"_qs, u"00000003"_qs, u"20261101"_qs, u"00008"_qs));
    ASSERT_TRUE(申請追加(u"000"_qs, u"00000004"_qs, u"20261120"_qs, u"00001"_qs));
    QString 文;
    EXPECT_EQ(検索(u"btn_出張申請日付検索"_qs, {{u"出張申請日付"_qs, u"20261102"_qs}}, &文),
              (QStringList{u"00000001"_qs, u"00000002"_qs, u"00000004"_qs}));
    EXPECT_TRUE(文.endsWith(u" ORDER BY T出張申請.出張申請日付, T出張申請.出張申請No"_qs));
    EXPECT_EQ(検索(u"btn_出張申請No検索"_qs, {{u"出張申請No"_qs, u"2"_qs}}, &文),
              (QStringList{u"00000002"_qs, u"00000003"_qs, u"00000004"_qs}));
    EXPECT_TRUE(文.contains(u" AND T出張申請.出張申請No >= '00000002'"_qs)) << 文.toStdString();
    EXPECT_TRUE(文.endsWith(u" ORDER BY T出張申請.出張申請No, T出張申請.出張申請日付 DESC"_qs));
    EXPECT_EQ(検索(u"btn_社員コード検索"_qs, {{u"社員コード"_qs, u"8"_qs}}, &文),
              (QStringList{u"00000002"_qs, u"00000003"_qs}));
    EXPECT_TRUE(文.endsWith(
        u" ORDER BY T出張申請.社員コード, T出張申請.出張申請日付 DESC, T出張申請.出張申請No DESC"_qs));
    EXPECT_EQ(検索(u"btn_否定検索"_qs, {{u"社員コード"_qs, u"8"_qs}, {u"出張申請日付"_qs, u""_qs}}),
              (QStringList{u"00000004"_qs, u"00000001"_qs}));
}

TEST_P(出張申請一覧, 何も当たらない条件では空で注意も出ない) {
    操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
        打つ(x, u"出張申請日付"_qs, u"20990101"_qs);
        押す(x, u"btn_複合検索"_qs);
        EXPECT_TRUE(x.一覧().項目.isEmpty());
        EXPECT_FALSE(x.画面(u"lab_注意"_qs).Visible);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    開く();
    EXPECT_TRUE(c(u"出張申請No"_qs).Text.isEmpty());
    EXPECT_TRUE(誤り().isEmpty());
}

TEST_P(出張申請一覧, 千件を超えると千件で止まり注意が出る) {
    for (int n : {1000, 1001}) {
        SCOPED_TRACE(n);
        ASSERT_TRUE(人事(u"DELETE FROM T出張申請"_qs));
        QString 文 =
            u"INSERT INTO T出張申請 (事業所コード, 番号基準日付, 出張申請No, 出張申請日付, 社員コード, 開始日付, 終了日付, 日数, 出張区分) VALUES "_qs;
        for (int i = 0; i < n; ++i) {
            if (i) 文 += u","_qs;
            文 += u"('000', '20270331', '"_qs + QString::number(10000000 + i) +
                  u"', '20261120', '00001', '20261121', '20261121', 1, '0')"_qs;
        }
        ASSERT_TRUE(人事(文));
        int 件数 = 0;
        bool 注意 = false;
        操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
            件数 = x.一覧().項目.size();
            注意 = x.画面(u"lab_注意"_qs).Visible;
            x.画面.操作_キー(x.一覧(), キーコード::Esc);
        };
        開く();
        EXPECT_EQ(件数, 1000);
        EXPECT_TRUE(注意);
    }
}

TEST_P(出張申請一覧, 人事のデータベースが途中で無くなっても空の一覧になり履歴に残る) {
    操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
        ASSERT_EQ(x.一覧().項目.size(), 2);
        if (GetParam()) {
            // The server drops the program's connection.
            ASSERT_TRUE(人事(
                u"SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = current_database() AND pid <> pg_backend_pid()"_qs));
        } else {
            s.データ.接続().連携先()->業務接続.閉じる();
        }
        押す(x, u"btn_複合検索"_qs);
        EXPECT_TRUE(x.一覧().項目.isEmpty());
        EXPECT_FALSE(x.画面(u"lab_注意"_qs).Visible);
        // The employee's name cannot be looked up either: it stays empty.
        打つ(x, u"社員コード"_qs, u"5"_qs);
        EXPECT_EQ(x.画面(u"社員コード"_qs).Text, u"00005"_qs);
        EXPECT_TRUE(x.画面(u"社員名"_qs).Text.isEmpty());
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    開く();
    EXPECT_FALSE(誤り().isEmpty());
    EXPECT_TRUE(c(u"出張申請No"_qs).Text.isEmpty());
}

TEST_P(出張申請一覧, 作業事業所が本社でなければその事業所の申請だけが出る) {
    s.データ.接続().作業事業所コード設定(u"001"_qs);
    QString 文;
    EXPECT_EQ(検索(u"btn_複合検索"_qs, {}, &文), QStringList{u"00000002"_qs});
    EXPECT_TRUE(
        文.contains(u" WHERE T出張申請.事業所コード = '001' AND (T出張申請.番号基準日付 <> '')"_qs))
        << 文.toStdString();
}

TEST_P(出張申請一覧, 文の形は人事側の方言で決まりOではWHEREを重ねず知らない方言では探さない) {
    // The company's own database says 'O'; the HR database's dialect is what counts.
    s.データ.接続().環境変更([&](プログラム環境情報& 値) { 値.db = u"O"_qs; });
    QString 文;
    EXPECT_EQ(検索(u"btn_複合検索"_qs, {}, &文).size(), 2);
    EXPECT_TRUE(文.contains(u" FROM K出張区分 INNER JOIN ("_qs)) << 文.toStdString();
    s.データ.接続().連携先()->定義.db = u"O"_qs;
    検索(u"btn_複合検索"_qs, {}, &文);
    EXPECT_TRUE(文.contains(
        u" FROM K出張区分,M社員, T出張申請 WHERE M社員.コード = T出張申請.社員コード AND K出張区分.区分 = T出張申請.出張区分 AND (T出張申請.番号基準日付 <> '')"_qs))
        << 文.toStdString();
    EXPECT_EQ(文.count(u" WHERE "_qs), 1);
    s.データ.接続().連携先()->定義.db = u"X"_qs;
    EXPECT_EQ(検索(u"btn_複合検索"_qs, {}, &文), QStringList());
    EXPECT_TRUE(文.isEmpty());
}

TEST_P(出張申請一覧, 社員コードでCtrlを押すと社員一覧が入れ子で開き選んだ社員で探せる) {
    QString 入れ子中の呼出元;
    int 入れ子中の区分 = 0;
    QStringList 行;
    操作[u"wnd社員一覧"_qs] = [&](一覧画面& x) {
        入れ子中の呼出元 = f->状態.一覧.呼出元画面;
        入れ子中の区分 = f->状態.一覧.入れ子区分;
        EXPECT_EQ(f->状態.一覧.設定先, &w(u"wnd出張申請No一覧"_qs).画面(u"社員コード"_qs));
        EXPECT_EQ(f->状態.一覧.名称先, &w(u"wnd出張申請No一覧"_qs).画面(u"btn_社員コード検索"_qs));
        打つ(x, u"名称"_qs, u"工藤"_qs);
        押す(x, u"btn_名称検索"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Enter);
    };
    操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
        部品& p = x.画面(u"社員コード"_qs);
        x.画面.操作_フォーカス(p);
        x.画面.操作_キー(p, キーコード::Ctrl);
        EXPECT_EQ(p.Text, u"00008"_qs);
        EXPECT_EQ(x.画面(u"社員名"_qs).Text, u"工藤 直樹"_qs);
        EXPECT_EQ(焦点(x.画面), u"btn_社員コード検索"_qs);
        EXPECT_EQ(f->状態.入力中項目, &p);
        EXPECT_EQ(f->状態.一覧.入れ子区分, 0);
        押す(x, u"btn_社員コード検索"_qs);
        行 = 列(x);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    開く();
    EXPECT_EQ(入れ子中の呼出元, u"wnd出張申請No一覧"_qs);
    EXPECT_EQ(入れ子中の区分, 1);
    EXPECT_EQ(行, QStringList{u"00000002"_qs});
    // The employee list is hidden for the next time, the trip list unloaded.
    EXPECT_EQ(基盤.隠した画面, QStringList{u"wnd社員一覧"_qs});
    EXPECT_EQ(基盤.閉じた画面, QStringList{u"wnd出張申請No一覧"_qs});
    EXPECT_EQ(基盤.使用可否.value(基盤.使用可否.size() - 2),
              (QPair<QString, bool>{u"wnd出張申請No一覧"_qs, true}));
}

TEST_P(出張申請一覧, 社員コードのダブルクリックでも社員一覧が開く) {
    bool 開いた = false;
    操作[u"wnd社員一覧"_qs] = [&](一覧画面& x) {
        開いた = true;
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    操作[u"wnd出張申請No一覧"_qs] = [&](一覧画面& x) {
        x.画面.操作_ダブルクリック(x.画面(u"社員コード"_qs));
        EXPECT_EQ(焦点(x.画面), u"社員コード"_qs);
        x.画面.操作_キー(x.一覧(), キーコード::Esc);
    };
    開く();
    EXPECT_TRUE(開いた);
}

KONPEKI_人事の両エンジンで(出張申請一覧);

}  // namespace
