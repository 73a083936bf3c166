#pragma once

#include <gtest/gtest.h>

#include <QHash>
#include <functional>
#include <memory>

#include "common/エンジン別試験.h"
#include "common/出金準備.h"
#include "common/文字列表示.h"
#include "common/試験用ツリー.h"
#include "lists/一覧画面集.h"
#include "screen/frm紺碧帳.h"
#include "text/台本プラットフォーム.h"

// The entry screen with its list windows on a tree that the fixture 基 makes: the sample tree
// with its general database on either engine, or the tree with the HR system beside it. What
// an operator does in a list window while it is up is given per window.
template <class 基>
class 一覧操作 : public 基 {
  protected:
    // Starts the program on the tree as it stands now, with the entry screen loaded.
    void 開始() {
        出金セッション準備(s, *this->木);
        if (testing::Test::HasFatalFailure()) return;
        // A tree with the HR system beside it: the link opens as the start opens it.
        s.白樺連携フラグ = s.データ.人事連携選択(u"白樺"_qs);
        if (s.白樺連携フラグ) {
            ASSERT_TRUE(s.データ.人事連携開始());
        }
        f = std::make_unique<frm紺碧帳>(s);
        f->画面読込([this] { s.出金情報初期化(); });
        集 = std::make_unique<一覧画面集>(s, f->画面);
        this->基盤.画面表示時 = [this](const QString& 名) {
            const auto 手 = 操作.value(名);
            if (手) 手(*集->探す(名));
        };
    }

    部品& c(const QString& 名前, int 行 = -1) { return f->画面(名前, 行); }
    一覧画面& w(const QString& 名前) { return (*集)(名前); }
    // The first column of every row, in the order shown.
    static QStringList 列(const 一覧画面& 窓, int 列番号 = 0) {
        QStringList 値;
        const 部品& L = const_cast<一覧画面&>(窓).一覧();
        for (int r = 0; r < L.項目.size(); ++r) 値 << L.セル(r, 列番号);
        return 値;
    }
    static QString 焦点(const 画面モデル& m) {
        const 部品* p = m.フォーカス();
        if (!p) return {};
        return p->添字 < 0 ? p->名前 : p->名前 + u"("_qs + QString::number(p->添字) + u")"_qs;
    }
    bool 業務(const QString& 文) { return this->木->業務DB実行(文); }
    // A staff member of the master, as the suite's staff registration leaves him.
    bool 担当者追加(const QString& コード, const QString& 氏名, const QString& 事業所 = u"000"_qs,
                    const QString& 部門 = u"001"_qs, const QString& セクション = u"001"_qs,
                    const QString& 在籍 = u"0"_qs, const QString& カナ = u"テスト"_qs) {
        const auto 引 = [](QString t) { return t.replace(u"'"_qs, u"''"_qs); };
        return 業務(
            u"INSERT INTO M担当者 (コード, 氏名, カナ, 事業所コード, 部門コード, セクションコード, 社員区分, 在籍区分) VALUES ('"_qs +
            コード + u"', '"_qs + 引(氏名) + u"', '"_qs + カナ + u"', '"_qs + 事業所 + u"', '"_qs +
            部門 + u"', '"_qs + セクション + u"', '1', '"_qs + 在籍 + u"')"_qs);
    }

    出金セッション s{this->基盤};
    std::unique_ptr<frm紺碧帳> f;
    std::unique_ptr<一覧画面集> 集;
    QHash<QString, std::function<void(一覧画面&)>> 操作;
};

// The lists over the sample tree, the general database in SQLite or in PostgreSQL.
class 一覧試験 : public 一覧操作<エンジン別試験> {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
    }
};
