#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <memory>

#include "common/人事連携試験.h"
#include "common/出金準備.h"
#include "common/試験用ツリー.h"
#include "screen/frm紺碧帳.h"
#include "text/台本プラットフォーム.h"

// The entry screen of a company linked to the HR system, the HR general database in SQLite or
// in PostgreSQL; the session opened the link as the start does. Today is 2026-11-23, the slip is
// empty and its header filled with staff 00003.
class 出張申請取込 : public 人事連携試験 {
  protected:
    void SetUp() override {
        人事連携試験::SetUp();
        if (HasFatalFailure() || IsSkipped()) return;
        連携したセッション準備(s, *木);
        if (HasFatalFailure()) return;
        ASSERT_TRUE(木->プログラムを置く(u"紺碧帳書"_qs));
        f = std::make_unique<frm紺碧帳>(s);
        f->画面読込([this] { s.出金情報初期化(); });
        f->担当者確定(u"00003"_qs);
        s.入力変更フラグ = false;
        f->見出し表示();
    }

    部品& c(const QString& 名前, int 行 = -1) { return f->画面(名前, 行); }
    QString 知らせ() { return c(u"お知らせ"_qs).Caption; }

    // The trip list's pick: the row's number into the field and its key left behind, then the
    // focus on the field and on to the staff code, which leaves the field.
    void 選ぶ(const QString& 事業所, const QString& 基準日付, const QString& No) {
        f->画面.操作_フォーカス(c(u"出張申請No"_qs));
        f->状態.選択鍵 = u"C"_qs + 事業所 + 基準日付 + No;
        f->画面.文字設定(c(u"出張申請No"_qs), No);
        f->画面.操作_フォーカス(c(u"担当者コード"_qs));
    }
    void 打って抜ける(const QString& 文字列) {
        f->画面.操作_入力(c(u"出張申請No"_qs), 文字列);
        f->画面.操作_フォーカス(c(u"担当者コード"_qs));
    }
    void 申請を置く(const QString& No, const QList<QPair<QString, QString>>& 旅費) {
        出張申請を置く(*木, No, 旅費);
    }
    void 同じ行の申請を置く(const QString& No, int 行数) {
        QList<QPair<QString, QString>> 旅費;
        for (int i = 0; i < 行数; ++i) 旅費.append({u"01"_qs, QString::number(1000 * (i + 1))});
        申請を置く(No, 旅費);
    }
    void 参照欄は(const QString& 事業所, const QString& 基準日付, const QString& No) {
        EXPECT_EQ(s.見出し.出張申請事業所コード, 事業所);
        EXPECT_EQ(s.見出し.出張申請番号基準日付, 基準日付);
        EXPECT_EQ(s.見出し.出張申請No, No);
    }
    int 数(const QString& 表) {
        return 木->業務DB行(u"SELECT COUNT(*) FROM "_qs + 表)[0][0].toInt();
    }
    int 人事数(const QString& 表) {
        return 木->人事DB行(u"SELECT COUNT(*) FROM "_qs + 表)[0][0].toInt();
    }
    QStringList 履歴() {
        QStringList r;
        for (const auto& 行 :
             木->環境DB行(u"SELECT 摘要 FROM プログラム稼動履歴 ORDER BY proccounter"_qs)) {
            r.append(行[0].toString());
        }
        return r;
    }
    // The operator's answer to the register question.
    void 登録のみと答える() {
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f->印刷確認.画面.操作_クリック(f->印刷確認.画面(u"btn_登録"_qs));
        };
    }

    出金セッション s{基盤};
    std::unique_ptr<frm紺碧帳> f;
};
