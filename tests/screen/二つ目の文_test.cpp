#include <QMap>
#include <memory>

#include "common/エンジン別試験.h"
#include "common/出金準備.h"
#include "common/文字列表示.h"
#include "screen/frm紺碧帳.h"

namespace {

// A payee and a description typed so that the old-state history line, which takes them as
// stored, closes its own statement and starts another. The statement breaks, is logged, and
// runs nothing else, on both engines.
const QString 仕込んだ支払先 = u"文具店',/*"_qs;
const QString 仕込んだ摘要 =
    u"*/'1','ボールペン',10,1000,91,1000,909,1000,'20251130','','','','','',''); DELETE FROM M担当者; --"_qs;

class 二つ目の文 : public エンジン別試験 {
  protected:
    void SetUp() override {
        エンジン別試験::SetUp();
        if (IsSkipped() || HasFatalFailure()) return;
        基盤.時刻 = QDateTime(QDate(2025, 11, 20), QTime(10, 0, 0));
        出金セッション準備(s, *木);
        if (HasFatalFailure()) return;
        f = std::make_unique<frm紺碧帳>(s);
        f->画面読込([this] { s.出金情報初期化(); });
        f->停止 = [] {};
        f->フォーカス設定(c(u"担当者コード"_qs));
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f->印刷確認.画面.操作_クリック(f->印刷確認.画面(u"btn_登録"_qs));
        };
    }
    部品& c(const QString& 名前, int 行 = -1) { return f->画面(名前, 行); }
    QString 焦点() const { return f->画面.フォーカス() ? f->画面.フォーカス()->名前 : QString(); }
    void Tabで(const QString& 欄) {
        for (int k = 0; k < 12 && 焦点() != 欄; ++k) f->画面.操作_Tab();
        ASSERT_EQ(焦点(), 欄);
    }
    void 打ってTab(const QString& 欄, const QString& 文字列) {
        Tabで(欄);
        if (HasFatalFailure()) return;
        f->画面.操作_入力(*f->画面.フォーカス(), 文字列);
        f->画面.操作_Tab();
    }
    // A slip of one line of 1000 yen, typed from the staff code on and stored.
    void 伝票を打つ(const QString& 支払先, const QString& 摘要) {
        打ってTab(u"担当者コード"_qs, u"3"_qs);
        打ってTab(u"費目区分"_qs, u"3"_qs);
        打ってTab(u"支払先"_qs, 支払先);
        打ってTab(u"摘要"_qs, 摘要);
        打ってTab(u"出金金額"_qs, u"1000"_qs);
        f->画面.操作_クリック(c(u"btn_登録"_qs));
    }
    // The slip brought up by its number, its amount corrected to 1500 and stored again; the
    // rows each table of the general database gained or lost meanwhile, as "table delta".
    QStringList 直す(const QString& No) {
        f->画面.操作_入力(c(u"出金No"_qs), No);
        f->画面.操作_Tab();
        EXPECT_FALSE(s.新規情報フラグ);
        const QMap<QString, int> 前 = 行数();
        f->画面.操作_フォーカス(c(u"費目区分"_qs, 0));
        打ってTab(u"出金金額"_qs, u"1500"_qs);
        f->画面.操作_クリック(c(u"btn_登録"_qs));
        const QMap<QString, int> 後 = 行数();
        QStringList 増分;
        for (auto it = 後.begin(); it != 後.end(); ++it) {
            const int d = it.value() - 前.value(it.key());
            if (d != 0) 増分 << it.key() + u" "_qs + QString::number(d);
        }
        return 増分;
    }
    QMap<QString, int> 行数() {
        const QString 表一覧 =
            GetParam() ? u"SELECT tablename FROM pg_tables WHERE schemaname = 'public'"_qs
                       : u"SELECT name FROM sqlite_master WHERE type = 'table'"_qs;
        QMap<QString, int> 数;
        for (const auto& 行 : 木->業務DB行(表一覧)) {
            const QString 表 = 行[0].toString();
            // PostgreSQL names them in lower case.
            数[表.toLower()] = 木->業務DB行(u"SELECT COUNT(*) FROM "_qs + 表)[0][0].toInt();
        }
        return 数;
    }
    QStringList エラー行() {
        QStringList r;
        for (const auto& 行 : 履歴()) {
            if (行[1].toString().startsWith(u"エラー "_qs)) r << 行[1].toString();
        }
        return r;
    }

    出金セッション s{基盤};
    std::unique_ptr<frm紺碧帳> f;
};

TEST_P(二つ目の文, 支払先と摘要に仕込んだ文は古い明細履歴の文と共に断られ他は何も変わらない) {
    // The same correction of a slip with plain texts, for the rows a correction writes.
    伝票を打つ(u"文具店"_qs, u"ボールペン"_qs);
    if (HasFatalFailure()) return;
    qsizetype 前のエラー = エラー行().size();
    const QStringList 平の増分 = 直す(u"1"_qs);
    const qsizetype 平のエラー = エラー行().size() - 前のエラー;
    ASSERT_TRUE(平の増分.contains(u"r出金明細 2"_qs)) << 平の増分.join(u", ").toStdString();

    伝票を打つ(仕込んだ支払先, 仕込んだ摘要);
    if (HasFatalFailure()) return;
    const QString 行 = u"SELECT 支払先, 摘要, 出金金額 FROM T出金明細 WHERE 出金No = '00000002'"_qs;
    ASSERT_EQ(木->業務DB行(行).size(), 1);
    ASSERT_EQ(木->業務DB行(行)[0][1].toString(), 仕込んだ摘要);
    前のエラー = エラー行().size();
    const QStringList 増分 = 直す(u"2"_qs);

    // Only the old-state line is missing; every other table, the staff among them, moved as
    // for the plain slip.
    QStringList 期待 = 平の増分;
    期待.replace(期待.indexOf(u"r出金明細 2"_qs), u"r出金明細 1"_qs);
    EXPECT_EQ(増分, 期待);
    EXPECT_GT(行数().value(u"m担当者"_qs), 0);
    EXPECT_EQ(木->業務DB行(u"SELECT 出金固有行No FROM R出金明細 WHERE 出金No = '00000002' AND "
                           u"赤黒区分 = '0'"_qs),
              QList<QVariantList>());
    // The corrected line keeps both texts as typed.
    const auto 直した行 = 木->業務DB行(行);
    ASSERT_EQ(直した行.size(), 1);
    EXPECT_EQ(直した行[0][0].toString(), 仕込んだ支払先);
    EXPECT_EQ(直した行[0][1].toString(), 仕込んだ摘要);
    EXPECT_EQ(直した行[0][2].toLongLong(), 1500);

    // One failure more than for the plain slip: the broken statement, logged as the engine's
    // syntax error with its text, quotes doubled.
    const QStringList 新しいエラー = エラー行().mid(前のエラー);
    EXPECT_EQ(新しいエラー.size(), 平のエラー + 1) << 新しいエラー.join(u'\n').toStdString();
    const QStringList 明細履歴 = 新しいエラー.filter(u"INSERT INTO [R出金明細] "_qs);
    ASSERT_EQ(明細履歴.size(), 1) << 新しいエラー.join(u'\n').toStdString();
    EXPECT_TRUE(明細履歴[0].contains(GetParam() ? u"syntax error at or near \"DELETE\""_qs
                                                : u"near \"DELETE\": syntax error"_qs))
        << 明細履歴[0].toStdString();
    EXPECT_TRUE(明細履歴[0].contains(u"''文具店'',/*'',''1'',''*/''1'',''ボールペン''"_qs));
    EXPECT_TRUE(明細履歴[0].contains(u"DELETE FROM M担当者; --''"_qs));
}

KONPEKI_両エンジンで(二つ目の文);

}  // namespace
