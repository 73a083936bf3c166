#pragma once

#include "audit/出金履歴.h"
#include "dataenv/環境情報.h"
#include "screen/両エンジン入力画面.h"

// The entry screen on either engine, with the slips the cases store, correct and delete through
// it; the clock moves a minute before each store, as an operator's day goes on.
class 出金履歴試験 : public 両エンジン入力画面 {
  protected:
    void 登録する() {
        基盤.時刻 = 基盤.時刻.addSecs(60);
        f->画面.操作_クリック(c(u"btn_登録"_qs));
    }
    void 日付を打つ(const QString& 年, const QString& 月, const QString& 日) {
        打ってTab(c(u"出金日付年"_qs), 年);
        打ってTab(c(u"出金日付月"_qs), 月);
        打ってTab(c(u"出金日付日"_qs), 日);
    }
    // A slip of two lines whose line of that index has a description with a quote, stored and
    // loaded again; answers its number.
    QString 引用符の摘要で保存して呼ぶ(int 行, const QString& 摘要) {
        const QString No = c(u"出金No"_qs).Text;
        行を打つ(u"3"_qs, 2);
        f->画面.操作_フォーカス(c(u"摘要"_qs, 行));
        打ってTab(c(u"摘要"_qs, 行), 摘要);
        f->画面.操作_クリック(c(u"btn_登録"_qs));
        呼ぶ(No);
        EXPECT_EQ(s.行[行].摘要, 摘要);
        return No;
    }
    伝票鍵 鍵(const QString& 基準日付, const QString& No) const {
        return {u"000"_qs, 基準日付, No};
    }
    出金履歴 読む(const 伝票鍵& k) {
        std::optional<出金履歴> h = 出金履歴読込(s.データ, k);
        EXPECT_TRUE(h.has_value()) << k.文字列().toStdString();
        return h.value_or(出金履歴{});
    }
    static QStringList 名前(const std::vector<項目変化>& 変化) {
        QStringList r;
        for (const 項目変化& c : 変化) r << c.名前;
        return r;
    }
    static const 項目変化* 変化(const std::vector<項目変化>& 変化, const QString& 名前) {
        for (const 項目変化& c : 変化) {
            if (c.名前 == 名前) return &c;
        }
        return nullptr;
    }
    QString 今の利用者() const { return 記録者ID(s.データ.接続().環境()); }
};
