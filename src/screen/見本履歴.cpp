#include "screen/見本履歴.h"
#include "screen/msg印刷確認_部品名.h"

#include <QRandomGenerator>
#include <memory>
#include <vector>

#include "screen/frm紺碧帳.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"

namespace {

struct 行の型 {
    const char16_t* 費目;
    const char16_t* 支払先;
    const char16_t* 摘要;
    int 最小, 最大;
    bool 軽減;  // food and drink at the reduced rate
};

const 行の型 行の型一覧[] = {
    {u"1", u"東京交通", u"タクシー代", 1200, 6800, false},
    {u"1", u"JR東日本", u"新幹線 東京-仙台", 11000, 23000, false},
    {u"2", u"日本郵便", u"切手代", 84, 2000, false},
    {u"3", u"文具の青葉堂", u"コピー用紙", 500, 8000, false},
    {u"3", u"家電のみどり", u"USBメモリ", 1200, 5000, false},
    {u"4", u"喫茶こもれび", u"打合せ 飲物", 800, 4000, true},
    {u"5", u"料亭 松風", u"接待 会食", 12000, 60000, true},
    {u"6", u"丸の内書房", u"業界誌", 1500, 3800, false},
    {u"7", u"紺碧銀行", u"振込手数料", 330, 880, false},
    {u"8", u"港区役所", u"印紙代", 200, 4000, false},
    {u"9", u"弁当の大地", u"会議用弁当", 3000, 12000, true},
    {u"10", u"", u"雑費", 100, 3000, false},
};

// One sitting of an operator at one office.
class 事務所の一日 {
  public:
    事務所の一日(const QString& プログラムフォルダ, const QDate& 日) {
        基盤.時刻 = QDateTime(日, QTime(9, 0, 0));
        s.データ.接続().自身のフォルダ設定(プログラムフォルダ);
        // The question before a store is answered "register only".
        基盤.画面表示時 = [this](const QString& 名) {
            if (名 == u"msg印刷確認")
                f.印刷確認.画面.操作_クリック(f.印刷確認.画面(印刷確認部品::btn_登録));
        };
    }
    bool 開く() {
        if (!起動.データベース開始() || !起動.ユーザ情報初期化()) return false;
        f.画面読込([this] { s.出金情報初期化(); });
        return true;
    }
    ~事務所の一日() { 起動.終了処理(); }

    QStringList 在籍者() {
        QStringList 人;
        記録集合 rs;
        const QString 文 =
            u"SELECT コード FROM M担当者 WHERE 在籍区分 = '0' AND 事業所コード = '"_qs +
            s.見出し.事業所コード + u"' ORDER BY コード"_qs;
        if (s.データ.接続().業務DB検索(rs, 文)) {
            for (; !rs.EOFか(); rs.MoveNext()) 人.append(rs.文字列(u"コード"_qs));
        }
        rs.閉じる();
        return 人;
    }

    // Types one slip and stores it; answers its number.
    QString 伝票(const QDate& 日, const QString& 担当者, int 行数, QRandomGenerator& 乱) {
        基盤.時刻 = QDateTime(日, QTime(9 + 乱.bounded(9), 乱.bounded(60), 乱.bounded(60)));
        日付を打つ(日);
        打つ(c(u"担当者コード"_qs), 担当者);
        for (int i = 0; i < 行数; ++i) 一行(i, 乱, 日 >= QDate(2019, 10, 1));
        if (乱.bounded(4) == 0) {
            f.画面.操作_フォーカス(c(u"出金伝票備考A"_qs));
            打つ(c(u"出金伝票備考A"_qs), u"領収書添付"_qs);
        }
        f.画面.操作_クリック(c(u"btn_登録"_qs));
        return 最後の番号();
    }

    // Loads a stored slip, changes the amount of its first line, and stores the correction.
    void 訂正(const QString& No, QRandomGenerator& 乱) {
        打つ(c(u"出金No"_qs), No);
        if (s.新規情報フラグ) return;
        f.画面.操作_フォーカス(c(u"費目区分"_qs, 0));
        打つ(c(u"出金金額"_qs, 0), QString::number(100 * (1 + 乱.bounded(200))));
        f.画面.操作_クリック(c(u"btn_登録"_qs));
    }

    // Loads a stored slip and deletes it, answering yes to the question.
    void 削除(const QString& No) {
        打つ(c(u"出金No"_qs), No);
        if (s.新規情報フラグ) return;
        基盤.回答.enqueue(応答::はい);
        f.画面.操作_クリック(c(u"btn_削除"_qs));
    }

    // Loads a slip of the previous fiscal year and stores it again dated into the new one:
    // the correction moves it to the new year's number sequence.
    void 年度を越えて移す(const QString& No, const QDate& 元の日, const QDate& 新しい日) {
        基盤.時刻 = QDateTime(新しい日, QTime(17, 30, 0));
        日付を打つ(元の日);
        打つ(c(u"出金No"_qs), No);
        if (s.新規情報フラグ) return;
        日付を打つ(新しい日);
        f.画面.操作_クリック(c(u"btn_登録"_qs));
    }

    // A visit in the schedule of the sales activity program that points at the stored slip, as
    // that program links them.
    void 日程を結ぶ(const QString& No, const QString& 担当者, const QDate& 日) {
        const QString 日付 = 日.toString(u"yyyyMMdd"_qs);
        s.データ.接続().業務DB実行(
            u"INSERT INTO T営業活動明細 (担当者コード, 日付, 開始時刻, 終了時刻, 件名, 内容, 出金事業所コード, 出金番号基準日付, 出金No) VALUES ('"_qs +
            担当者 + u"', '"_qs + 日付 +
            u"', '1400', '1530', '得意先訪問', '交通費を出金伝票で精算', '"_qs +
            s.見出し.事業所コード + u"', '"_qs + s.見出し.番号基準日付 + u"', '"_qs + No +
            u"')"_qs);
    }

  private:
    // The number the last store took: the proposal on the screen may have gone to another
    // office in the meantime, and the store took the next free one.
    QString 最後の番号() {
        記録集合 rs;
        QString No;
        const QString 文 = u"SELECT MAX(出金No) AS 番号 FROM T出金 WHERE 事業所コード = '"_qs +
                           s.見出し.事業所コード + u"' AND 番号基準日付 = '"_qs +
                           s.見出し.番号基準日付 + u"'"_qs;
        if (s.データ.接続().業務DB検索(rs, 文)) No = rs.文字列(u"番号"_qs);
        rs.閉じる();
        return No;
    }
    部品& c(const QString& 名前, int 行 = -1) { return f.画面(名前, 行); }
    void 日付を打つ(const QDate& 日) {
        打つ(c(u"出金日付年"_qs), QString::number(日.year()));
        打つ(c(u"出金日付月"_qs), QString::number(日.month()));
        打つ(c(u"出金日付日"_qs), QString::number(日.day()));
    }
    // Clicks into the field, types over it and leaves it for the next field.
    void 打つ(部品& 欄, const QString& 文字列) {
        f.画面.操作_入力(欄, 文字列);
        f.画面.操作_Tab();
    }
    void 一行(int i, QRandomGenerator& 乱, bool 軽減あり) {
        if (i >= 5) f.画面.値設定(c(u"scl_行"_qs), i - 4);
        const int r = i - s.先頭行;
        const 行の型& 型 = 行の型一覧[乱.bounded(static_cast<int>(std::size(行の型一覧)))];
        f.画面.操作_フォーカス(c(u"費目区分"_qs, r));
        打つ(c(u"費目区分"_qs, r), QString::fromUtf16(型.費目));
        if (*型.支払先) 打つ(c(u"支払先"_qs, r), QString::fromUtf16(型.支払先));
        打つ(c(u"摘要"_qs, r), QString::fromUtf16(型.摘要));
        if (型.軽減 && 軽減あり) 打つ(c(u"消費税率"_qs, r), u"8"_qs);
        const int 額 = 型.最小 + 乱.bounded(型.最大 - 型.最小 + 1);
        打つ(c(u"出金金額"_qs, r), QString::number(額));
    }

    台本プラットフォーム 基盤;
    出金セッション s{基盤};
    画面なし 窓;
    紺碧帳起動 起動{s, 窓};
    frm紺碧帳 f{s};
};

// Moves the workplace to another office for the next sitting.
bool 事務所を替える(const QString& プログラムフォルダ, const QString& 事業所コード) {
    台本プラットフォーム 基盤;
    出金セッション s(基盤);
    s.データ.接続().自身のフォルダ設定(プログラムフォルダ);
    if (!s.データ.接続().SYB_OPEN()) return false;
    s.データ.接続().運用事業所変更(事業所コード);
    s.データ.接続().接続終了();
    return true;
}

}  // namespace

int 見本履歴作成(const QString& プログラムフォルダ, const QDate& 今日, int 件数, QString& エラー) {
    // The fiscal year ends on 31 March: the previous year's first day and today bound the dates.
    const int 年度 = 今日.month() >= 4 ? 今日.year() : 今日.year() - 1;
    const QDate 初日(年度 - 1, 4, 1);
    const qint64 日数 = 初日.daysTo(今日);
    QRandomGenerator 乱(20251120);
    QList<QDate> 日付;
    for (int i = 0; i < 件数; ++i) 日付.append(初日.addDays(乱.bounded(日数 + 1)));
    std::sort(日付.begin(), 日付.end());

    // One sitting per office, all open at once, so that the offices store in the order of the
    // dates as their operators would.
    const QStringList 事業所 = {u"000"_qs, u"001"_qs, u"002"_qs};
    std::vector<std::unique_ptr<事務所の一日>> 一日;
    std::vector<QStringList> 人;
    for (const QString& 所 : 事業所) {
        if (!事務所を替える(プログラムフォルダ, 所)) {
            エラー = u"動作環境定義を書き換えられません"_qs;
            return -1;
        }
        一日.push_back(std::make_unique<事務所の一日>(プログラムフォルダ, 初日));
        if (!一日.back()->開く()) {
            エラー = u"データベースが使用できません。"_qs;
            return -1;
        }
        人.push_back(一日.back()->在籍者());
    }
    int 保存 = 0;
    // Head office's last slip of the previous fiscal year, moved into the new year by a
    // correction within the first two months, while the previous year is still open.
    const QDate 新年度(年度, 4, 1);
    QString 前年度のNo;
    QDate 前年度の日;
    bool 移した = false;
    for (int i = 0; i < 日付.size(); ++i) {
        // Head office types half of the slips, each branch a quarter.
        const int k = i % 4 == 1 ? 1 : i % 4 == 3 ? 2 : 0;
        if (人[k].isEmpty()) continue;
        const int 行数 = i % 23 == 0 ? 15 : 1 + 乱.bounded(乱.bounded(4) == 0 ? 8 : 3);
        const QString 担当者 = 人[k][乱.bounded(人[k].size())];
        const QString No = 一日[k]->伝票(日付[i], 担当者, 行数, 乱);
        ++保存;
        const bool 結ぶ = i % 37 == 5;
        if (結ぶ) 一日[k]->日程を結ぶ(No, 担当者, 日付[i]);
        if (i % 9 == 0) 一日[k]->訂正(No, 乱);
        // A few slips are deleted, so that the history holds every kind of state.
        const bool 消す = i % 13 == 6;
        if (消す) 一日[k]->削除(No);
        if (k != 0) continue;
        if (日付[i] < 新年度) {
            // A slip linked to the schedule may not leave its fiscal year.
            if (!消す && !結ぶ) 前年度のNo = No, 前年度の日 = 日付[i];
        } else if (!移した && !前年度のNo.isEmpty() && 日付[i] < 新年度.addMonths(2)) {
            一日[0]->年度を越えて移す(前年度のNo, 前年度の日, 日付[i]);
            移した = true;
        }
    }
    一日.clear();
    事務所を替える(プログラムフォルダ, u"000"_qs);
    return 保存;
}
