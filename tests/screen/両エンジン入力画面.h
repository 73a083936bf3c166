#pragma once

#include <functional>
#include <memory>

#include "common/エンジン別試験.h"
#include "common/出金準備.h"
#include "common/断点プラットフォーム.h"
#include "screen/frm紺碧帳.h"

// The scripted platform that also lets the test look at the screen each time it paints.
class 描画を見るプラットフォーム : public 断点プラットフォーム {
  public:
    std::function<void()> 描画時;
    void 保留イベント処理() override {
        断点プラットフォーム::保留イベント処理();
        if (描画時) 描画時();
    }
};

// The entry screen on the sample tree with its general database on either engine, loaded with
// today's empty slip (2025-11-20). The register question is answered "register only" unless a
// case says otherwise; the program's end is counted.
class 両エンジン入力画面 : public エンジン別試験基<描画を見るプラットフォーム> {
  protected:
    void SetUp() override {
        エンジン別試験基::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        ASSERT_TRUE(木->プログラムを置く(u"紺碧帳書"_qs));
        始める前();
        if (HasFatalFailure()) return;
        出金セッション準備(s, *木);
        if (HasFatalFailure()) return;
        f = std::make_unique<frm紺碧帳>(s);
        f->画面読込([this] { s.出金情報初期化(); });
        f->停止 = [this] { ++停止回数; };
        f->フォーカス設定(c(u"担当者コード"_qs));
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認" && !登録の答え.isEmpty())
                f->印刷確認.画面.操作_クリック(f->印刷確認.画面(登録の答え));
        };
    }
    // The company as it stands before the program starts (its settings are read at the start).
    virtual void 始める前() {}

    部品& c(const QString& 名前, int 行 = -1) { return f->画面(名前, 行); }
    QString 焦点() const {
        const 部品* p = f->画面.フォーカス();
        if (!p) return {};
        return p->添字 < 0 ? p->名前 : p->名前 + u"("_qs + QString::number(p->添字) + u")"_qs;
    }
    void 打ってTab(部品& 欄, const QString& 文字列) {
        f->画面.操作_入力(欄, 文字列);
        f->画面.操作_Tab();
    }
    // Lines of class 3, amounts 1000, 2000, ..., typed from the staff code on; the focus ends
    // on the class of the next line.
    void 行を打つ(const QString& 担当者, int n) {
        打ってTab(c(u"担当者コード"_qs), 担当者);
        for (int i = 0; i < n; ++i) {
            部品& 区分 = *f->画面.フォーカス();
            ASSERT_EQ(区分.名前, u"費目区分"_qs);
            打ってTab(区分, u"3"_qs);
            for (int k = 0; k < 10 && f->画面.フォーカス()->名前 != u"出金金額"; ++k) {
                f->画面.操作_Tab();
            }
            打ってTab(*f->画面.フォーカス(), QString::number(1000 * (i + 1)));
        }
    }
    // Such a slip stored by the register button; answers the number it was shown with.
    QString 伝票を打つ(const QString& 担当者, int n) {
        const QString No = c(u"出金No"_qs).Text;
        行を打つ(担当者, n);
        f->画面.操作_クリック(c(u"btn_登録"_qs));
        return No;
    }
    void 呼ぶ(const QString& No) { 打ってTab(c(u"出金No"_qs), No); }
    int 数(const QString& 文) { return 木->業務DB行(文)[0][0].toInt(); }
    // The run history's error rows.
    QStringList エラー履歴() {
        QStringList 行;
        for (const auto& r : 履歴()) {
            if (r[1].toString().startsWith(u"エラー"_qs)) 行 << r[1].toString();
        }
        return 行;
    }
    // The argument texts the report program was started with, in order.
    QStringList 帳票起動記録() const {
        QStringList 引数;
        for (const auto& r : 基盤.起動済み) {
            if (r.プログラム == 木->プログラムフォルダ() + u"/紺碧帳書"_qs)
                引数 << r.引数.join(u'|');
        }
        return 引数;
    }
    // A trigger in the general database, in the words of its engine: SQLite takes its body
    // as it stands, PostgreSQL through a function of the same name.
    void 引き金(const QString& 名前, const QString& 時と表, const QString& SQLite本体,
                const QString& PostgreSQL本体) {
        if (GetParam()) {
            ASSERT_TRUE(木->業務DB素で実行(
                u"CREATE FUNCTION "_qs + 名前 + u"() RETURNS trigger LANGUAGE plpgsql AS '"_qs +
                QString(PostgreSQL本体).replace(u"'"_qs, u"''"_qs) + u"'"_qs));
            ASSERT_TRUE(木->業務DB素で実行(u"CREATE TRIGGER "_qs + 名前 + u" "_qs + 時と表 +
                                           u" FOR EACH ROW EXECUTE FUNCTION "_qs + 名前 +
                                           u"()"_qs));
        } else {
            ASSERT_TRUE(木->業務DB素で実行(u"CREATE TRIGGER "_qs + 名前 + u" "_qs + 時と表 +
                                           u" BEGIN "_qs + SQLite本体 + u" END"_qs));
        }
    }

    出金セッション s{基盤};
    std::unique_ptr<frm紺碧帳> f;
    QString 登録の答え = u"btn_登録"_qs;
    int 停止回数 = 0;
};
