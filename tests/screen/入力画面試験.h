#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "common/伝票投入.h"
#include "common/出金準備.h"
#include "common/試験用ツリー.h"
#include "screen/frm紺碧帳.h"
#include "text/台本プラットフォーム.h"

// The entry screen on the sample tree, loaded with today's empty slip (2025-11-20), as an
// operator finds it after the start.
class 入力画面試験 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        出金セッション準備(s, 木);
        if (HasFatalFailure()) return;
        ASSERT_TRUE(木.プログラムを置く(u"紺碧帳書"_qs));
        f = std::make_unique<frm紺碧帳>(s);
        f->画面読込([this] { s.出金情報初期化(); });
    }

    部品& c(const QString& 名前, int 行 = -1) { return f->画面(名前, 行); }
    QString 焦点() const {
        const 部品* p = f->画面.フォーカス();
        if (!p) return {};
        return p->添字 < 0 ? p->名前 : p->名前 + u"("_qs + QString::number(p->添字) + u")"_qs;
    }
    // The argument texts the report program was started with, in order.
    QStringList 帳票起動記録() const {
        QStringList 引数;
        for (const auto& r : 基盤.起動済み) {
            if (r.プログラム == 木.プログラムフォルダ() + u"/紺碧帳書"_qs)
                引数 << r.引数.join(u'|');
        }
        return 引数;
    }
    // The header completed by staff 00003 through the staff commit, the focus left where it
    // was; the slip counts as unchanged afterwards, as a freshly loaded one.
    void 見出しを埋める() {
        f->担当者確定(u"00003"_qs);
        ASSERT_EQ(s.見出し.担当者名, u"上田 健一"_qs);
        ASSERT_EQ(s.見出し.部門コード, u"001"_qs);
        ASSERT_EQ(s.見出し.セクションコード, u"001"_qs);
        s.入力変更フラグ = false;
        f->見出し表示();
    }
    // Lines typed as an operator types them from the staff code on: class 3, amounts 1000,
    // 2000, ...; the focus ends after the last amount.
    void 行を打つ(int n) {
        f->画面.操作_入力(c(u"担当者コード"_qs), u"3"_qs);
        f->画面.操作_Tab();
        for (int i = 0; i < n; ++i) {
            部品* p = f->画面.フォーカス();
            ASSERT_TRUE(p && p->名前 == u"費目区分") << i;
            f->画面.操作_入力(*p, u"3"_qs);
            for (int k = 0; k < 10 && f->画面.フォーカス()->名前 != u"出金金額"; ++k) {
                f->画面.操作_Tab();
            }
            f->画面.操作_入力(*f->画面.フォーカス(), QString::number(1000 * (i + 1)));
            f->画面.操作_Tab();
        }
        ASSERT_EQ(s.最終行, n - 1);
    }
    // Lines 0 .. n-1 with expense class 3 and amounts 1000, 2000, ...
    void 行を入れる(int n) {
        for (int i = 0; i < n; ++i) {
            s.行[i].費目区分 = 3;
            s.行[i].内税外税区分 = 1;
            s.行[i].消費税率 = 金額::円(10);
            s.行[i].出金金額 = 金額::円(1000 * (i + 1));
        }
        s.最終行 = static_cast<short>(n - 1);
        f->明細表示();
        f->スクロール更新();
    }

    試験用ツリー 木;
    台本プラットフォーム 基盤;
    出金セッション s{基盤};
    std::unique_ptr<frm紺碧帳> f;
};
