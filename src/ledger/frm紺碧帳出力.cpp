#include "ledger/frm紺碧帳出力.h"

#include <utility>

#include "dataenv/データ環境.h"
#include "text/プラットフォーム.h"

namespace {

using 欄 = 出力画面部品;

const 部品名 操作欄[] = {欄::開始日, 欄::終了日,   欄::事業所コード,
                         欄::出力先, 欄::btn_出力, 欄::btn_支払先登録};

}  // namespace

frm紺碧帳出力::frm紺碧帳出力(紺碧帳出力& 出力_) : p(出力_) {
    画面.作る(部品定義表);
    画面.Caption = u"仕訳出力"_qs;
    画面.Width = 7260;
    画面(欄::opb_形式, 0).Caption = u"弥生インポート形式（yayoi、Shift-JIS）"_qs;
    画面(欄::opb_形式, 1).Caption = u"CSV（csv、UTF-8、表計算用）"_qs;
    画面(欄::btn_出力).Click = [this] { 出力(); };
    画面(欄::btn_終了).Click = [this] { 終了(); };
    画面(欄::btn_支払先登録).Click = [this] {
        p.s.データ.基盤().画面表示(u"wnd支払先登録"_qs, true);
    };
    // Esc is the way out, as in every window of the program.
    画面.KeyPreview = [this](キーコード キー) {
        if (キー != キーコード::Esc || 実行中) return false;
        終了();
        return true;
    };
}

void frm紺碧帳出力::読込() {
    const QDate 今日 = p.s.データ.基盤().現在時刻().date();
    const QDate 月初(今日.year(), 今日.month(), 1);
    画面(欄::開始日).Text = 月初.toString(u"yyyyMMdd"_qs);
    画面(欄::終了日).Text = 月初.addMonths(1).addDays(-1).toString(u"yyyyMMdd"_qs);
    画面(欄::事業所コード).Text = u"000"_qs;
    画面(欄::opb_形式, 0).Value = 1;
    画面(欄::opb_形式, 1).Value = 0;
    部品& 進捗 = 画面(欄::pgb_進捗);
    進捗.Min = 0;
    進捗.Max = 1;
    進捗.Value = 0;
    開いた = p.開始();
    if (!開いた) {
        終了済み = true;
        画面(欄::lab_結果).Caption = p.拒否文言;
        使用可否(false);
        画面.SetFocus(画面(欄::btn_終了));
        return;
    }
    画面(欄::lab_結果).Caption.clear();
    画面.SetFocus(画面(欄::開始日));
}

void frm紺碧帳出力::使用可否(bool 可) {
    for (const 部品名 n : 操作欄) 画面(n).Enabled = 可;
    画面(欄::opb_形式, 0).Enabled = 可;
    画面(欄::opb_形式, 1).Enabled = 可;
}

void frm紺碧帳出力::出力() {
    if (!開いた || 実行中) return;
    // The fields are read as the command line is, so both refuse alike.
    QStringList 引数{u"--from"_qs, 画面(欄::開始日).Text.trimmed(), u"--to"_qs,
                     画面(欄::終了日).Text.trimmed()};
    const QString 事業所 = 画面(欄::事業所コード).Text.trimmed();
    if (!事業所.isEmpty()) 引数 << u"--office"_qs << 事業所;
    引数 << u"--format"_qs << (画面(欄::opb_形式, 1).Value ? u"csv"_qs : u"yayoi"_qs);
    引数 << u"--out"_qs << 画面(欄::出力先).Text.trimmed();
    出力指定 指定;
    QString エラー;
    部品& 結果 = 画面(欄::lab_結果);
    部品& 進捗 = 画面(欄::pgb_進捗);
    進捗.Value = 0;
    if (!出力指定::解析(引数, 指定, エラー)) {
        結果.Caption = エラー;
        return;
    }
    進捗.Max = qMax(1, 仕訳伝票数(p.s.データ, 指定));
    結果.Caption = u"出力中です。"_qs;
    実行中 = true;
    使用可否(false);
    // Drawn about a hundred times over the run, whatever its size.
    const int 刻み = qMax(1, 進捗.Max / 100);
    p.進捗 = [this, &進捗, 刻み](int 伝票数) {
        進捗.Value = qMin(伝票数, 進捗.Max);
        if (伝票数 % 刻み == 0 && 途中表示) 途中表示();
    };
    const bool 書けた = p.出力(指定);
    p.進捗 = nullptr;
    実行中 = false;
    使用可否(true);
    if (書けた) 進捗.Value = 進捗.Max;
    // The figures one to a line, the file last.
    結果.Caption =
        書けた ? QString(p.結果文言).replace(u"、"_qs, u"\n"_qs).replace(u" → "_qs, u"\n→ "_qs)
               : p.拒否文言;
}

void frm紺碧帳出力::終了() {
    if (実行中) return;
    if (!終了済み) {
        終了済み = true;
        p.終了();
    }
    if (閉じる) std::exchange(閉じる, nullptr)();
}
