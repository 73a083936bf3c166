#include "screen/frm紺碧帳.h"

namespace {

struct 配置 {
    画面モデル& 画面;
    部品& 置く(const char16_t* 名前, 部品種別 種別, int 左, int 上, int 幅, int 高さ,
               const QString& 親 = {}, int 添字 = -1) {
        部品& p = 画面.追加(QString::fromUtf16(名前), 種別, 添字);
        p.Left = 左;
        p.Top = 上;
        p.Width = 幅;
        p.Height = 高さ;
        p.親 = 親;
        p.TabStop = false;
        return p;
    }
    部品& 入力(const char16_t* 名前, 部品種別 種別, int 左, int 上, int 幅, int 順, bool 停止,
               const QString& 親 = {}, int 添字 = -1, int 高さ = 330) {
        部品& p = 置く(名前, 種別, 左, 上, 幅, 高さ, 親, 添字);
        p.TabIndex = 順;
        p.TabStop = 停止;
        return p;
    }
    部品& 見出し(const char16_t* 名前, 部品種別 種別, const char16_t* 題, int 左, int 上, int 幅,
                 int 高さ = 330, const QString& 親 = {}, int 添字 = -1) {
        部品& p = 置く(名前, 種別, 左, 上, 幅, 高さ, 親, 添字);
        p.Caption = QString::fromUtf16(題);
        return p;
    }
};

constexpr int 見出し上 = 600, 見出し二段 = 960;
constexpr int 明細上 = 2040, 明細高 = 1140;
constexpr int 合計上 = 7920, 命令上 = 8880, 知らせ上 = 9300;

}  // namespace

// Every control of the form, in its band, with its caption and its place in the traversal.
void frm紺碧帳::部品を作る() {
    using enum 部品種別;
    配置 c{画面};

    c.見出し(u"prg_ttl", SSPanel, u"", 0, 60, 10560, 420);
    c.見出し(u"manualpanel", SSPanel, u"Manual", 10620, 60, 1695, 420);

    c.見出し(u"itm_ttl_出金日付", SSPanel, u"出金日付", 60, 見出し上, 900);
    c.入力(u"出金日付年", xField, 990, 見出し上, 600, 0, true).MaxLength = 4;
    c.見出し(u"Lab_出金日付年", xLabel, u"年", 1600, 見出し上, 240);
    c.入力(u"出金日付月", xField, 1850, 見出し上, 360, 1, true).MaxLength = 2;
    c.見出し(u"Lab_出金日付月", xLabel, u"月", 2220, 見出し上, 240);
    c.入力(u"出金日付日", xField, 2470, 見出し上, 360, 2, true).MaxLength = 2;
    c.見出し(u"lab_出金日付日", xLabel, u"日", 2840, 見出し上, 240);
    c.見出し(u"btn_出金No", SSCommand, u"出金No", 3200, 見出し上, 900);
    c.入力(u"出金No", xField, 4110, 見出し上, 1100, 3, true);
    c.見出し(u"btn_次No", SSCommand, u"▲", 5220, 見出し上, 300, 165);
    c.見出し(u"btn_前No", SSCommand, u"▼", 5220, 見出し上 + 165, 300, 165);
    c.見出し(u"btn_担当者コード", SSCommand, u"担当者コード", 5640, 見出し上, 1200);
    c.入力(u"担当者コード", xField, 6850, 見出し上, 700, 4, true);
    c.入力(u"担当者名", xField, 7560, 見出し上, 1700, 5, false).MaxLength = 20;
    c.見出し(u"btn_画面クリア", SSCommand, u"画面ｸﾘｱ", 9300, 見出し上, 740);
    c.見出し(u"btn_行クリア", SSCommand, u"行ｸﾘｱ", 10050, 見出し上, 740);
    c.見出し(u"btn_行挿入", SSCommand, u"行挿入", 10800, 見出し上, 740);
    c.見出し(u"btn_行複写", SSCommand, u"前行複写", 11550, 見出し上, 765);

    c.見出し(u"btn_部門コード", SSCommand, u"部門", 60, 見出し二段, 900);
    c.入力(u"部門コード", xField, 990, 見出し二段, 500, 6, false);
    c.入力(u"部門名", xField, 1500, 見出し二段, 2000, 7, false).MaxLength = 20;
    c.見出し(u"btn_セクションコード", SSCommand, u"所属", 3600, 見出し二段, 900);
    c.入力(u"セクションコード", xField, 4510, 見出し二段, 500, 8, false);
    c.入力(u"セクション名", xField, 5020, 見出し二段, 2000, 9, false).MaxLength = 20;
    c.見出し(u"btn_出張申請No", SSCommand, u"出張申請No", 7120, 見出し二段, 1200);
    c.入力(u"出張申請No", xField, 8330, 見出し二段, 1100, 10, true).MaxLength = 8;
    c.見出し(u"btn_参照元No", SSCommand, u"＊", 9440, 見出し二段, 300);
    // Off the working area: it only catches the focus at the seam between header and rows.
    c.入力(u"ヘッド終了", SSCommand, -2400, 見出し上, 60, 11, true, {}, -1, 60);

    c.置く(u"baK_dtl_heada", SSPanel, 60, 1740, 4020, 300);
    c.見出し(u"itm_ttl_費目区分", SSPanel, u"費目区分", 60, 1740, 2520, 300, u"baK_dtl_heada"_qs);
    c.見出し(u"itm_ttl_内税外税", SSPanel, u"内税外税", 2580, 1740, 1500, 300, u"baK_dtl_heada"_qs);
    部品& タブ = c.置く(u"tab_詳細", SSTab, 4380, 1380, 7935, 6480);
    タブ.一覧 = {u"明細情報"_qs, u"付属書類"_qs};
    c.置く(u"baK_出金_headb", SSPanel, 4440, 1740, 7815, 300, u"tab_詳細"_qs);
    const QString 頭b = u"baK_出金_headb"_qs;
    c.見出し(u"itm_ttl_支払先", SSPanel, u"支払先", 4440, 1740, 2340, 300, 頭b);
    c.見出し(u"itm_ttl_摘要", SSPanel, u"摘要", 6780, 1740, 2410, 300, 頭b);
    c.見出し(u"itm_ttl_出金金額", SSPanel, u"金額", 9190, 1740, 1640, 300, 頭b);
    c.見出し(u"itm_ttl_出金消費税", SSPanel, u"消費税", 10830, 1740, 1425, 300, 頭b);

    for (int r = 0; r < 表示行数; ++r) {
        const int 上 = 明細上 + r * 明細高, 下段 = 上 + 510, 順 = 12 + 10 * r;
        const QString a = u"bak_dtla"_qs, b = u"bak_dtlb"_qs;
        c.置く(u"bak_dtla", SSPanel, 60, 上, 4020, 明細高 - 60, {}, r);
        c.置く(u"bak_dtlb", SSPanel, 4440, 上, 7815, 明細高 - 60, u"tab_詳細"_qs, r);
        部品& 費目 = c.入力(u"費目区分", xNum, 120, 上 + 60, 500, 順, true, a, r);
        費目.MaxLength = 2;
        c.入力(u"費目区分名称", ComboBox, 630, 上 + 60, 2500, 順 + 1, true, a, r);
        c.見出し(u"btn_摘要", SSCommand, u"摘要", 3180, 上 + 60, 840, 330, a, r);
        c.入力(u"内税外税区分", xNum, 120, 下段, 500, 順 + 2, false, a, r).MaxLength = 1;
        c.入力(u"内税外税区分名称", ComboBox, 630, 下段, 2500, 順 + 3, true, a, r);
        c.入力(u"支払先", xText, 4500, 上 + 60, 2250, 順 + 4, true, b, r);
        c.見出し(u"chb_課税事業所区分", CheckBox, u"課税事業所", 4500, 下段, 1500, 330, b, r);
        c.入力(u"摘要", xText, 6810, 上 + 60, 2350, 順 + 5, true, b, r);
        c.見出し(u"Lab_消費税率", xLabel, u"税率", 9220, 下段, 480, 330, b, r);
        c.入力(u"消費税率", xNum, 9710, 下段, 700, 順 + 6, false, b, r).MaxLength = 5;
        c.入力(u"出金金額", xNum, 9220, 上 + 60, 1580, 順 + 7, true, b, r).MaxLength = 10;
        c.入力(u"出金消費税", xNum, 10860, 上 + 60, 1360, 順 + 8, false, b, r).MaxLength = 9;
        c.入力(u"頁1終了", SSCommand, 12200, 下段 + 270, 30, 順 + 9, true, b, r, 30);
    }
    部品& 行棒 = c.置く(u"scl_行", VScrollBar, 4100, 明細上, 240, 明細高 * 表示行数 - 60);
    行棒.LargeChange = 5;

    c.置く(u"List付属書類", ListView, 4440, 1740, 7815, 5400, u"tab_詳細"_qs).TabIndex = 72;
    c.見出し(u"btn_付属書類追加", SSCommand, u"付属書類追加", 4440, 7200, 1800, 400,
             u"tab_詳細"_qs);
    c.見出し(u"btn_付属書類削除", SSCommand, u"付属書類削除", 6300, 7200, 1800, 400,
             u"tab_詳細"_qs);
    c.見出し(u"btn_フォルダ", SSCommand, u"ﾌｫﾙﾀﾞ追加", 8160, 7200, 1800, 400, u"tab_詳細"_qs);

    c.置く(u"bak_合計", SSPanel, 60, 合計上, 12255, 900);
    const QString 合 = u"bak_合計"_qs;
    c.見出し(u"itm_ttl_出金伝票備考", SSPanel, u"備考", 120, 合計上 + 60, 700, 720, 合);
    c.入力(u"出金伝票備考A", xField, 830, 合計上 + 60, 5040, 62, true, 合).MaxLength = 40;
    c.入力(u"出金伝票備考B", xField, 830, 合計上 + 450, 5040, 63, true, 合).MaxLength = 40;
    c.見出し(u"itm_ttl_出金合計", SSPanel, u"縦計", 6000, 合計上 + 60, 800, 330, 合);
    c.入力(u"出金金額合計", xNum, 6810, 合計上 + 60, 1600, 90, false, 合);
    c.入力(u"出金消費税合計", xNum, 8420, 合計上 + 60, 1400, 91, false, 合);
    c.見出し(u"itm_ttl_実質出金金額合計", SSPanel, u"実質出金額", 6000, 合計上 + 450, 1200, 330,
             合);
    c.入力(u"実質出金金額合計", xNum, 7210, 合計上 + 450, 1600, 92, false, 合);
    c.見出し(u"btn_軽減税率切替", SSCommand, u"●", 11950, 合計上 + 60, 300, 330, 合);
    c.置く(u"bak_税別合計", SSPanel, 5940, 合計上, 6315, 900, 合).Visible = false;
    const QString 税 = u"bak_税別合計"_qs;
    c.見出し(u"itm_ttl_前回税率合計", SSPanel, u"合計(8%)", 6000, 合計上 + 60, 1200, 330, 税);
    c.入力(u"前回税率出金金額合計", xNum, 7210, 合計上 + 60, 1600, 93, false, 税);
    c.入力(u"前回税率出金消費税合計", xNum, 8820, 合計上 + 60, 1400, 94, false, 税);
    c.見出し(u"itm_ttl_今回税率合計", SSPanel, u"合計(10%)", 6000, 合計上 + 450, 1200, 330, 税);
    c.入力(u"今回税率出金金額合計", xNum, 7210, 合計上 + 450, 1600, 95, false, 税);
    c.入力(u"今回税率出金消費税合計", xNum, 8820, 合計上 + 450, 1400, 96, false, 税);
    c.見出し(u"btn_通常表示切替", SSCommand, u"●", 11950, 合計上 + 60, 300, 330, 税);
    c.入力(u"テイル終了", SSCommand, -2400, 合計上, 60, 64, true, {}, -1, 60);

    c.入力(u"btn_登録", SSCommand, 60, 命令上, 1200, 65, true, {}, -1, 400).Caption = u"登録"_qs;
    c.入力(u"btn_削除", SSCommand, 1300, 命令上, 1200, 66, true, {}, -1, 400).Caption = u"削除"_qs;
    c.入力(u"btn_終了", SSCommand, 11055, 命令上, 1200, 67, true, {}, -1, 400).Caption = u"終了"_qs;
    c.入力(u"btn_印刷", SSCommand, 6960, 命令上, 1300, 68, true, {}, -1, 400).Caption = u"印刷"_qs;
    c.入力(u"btn_プレビュ", SSCommand, 8300, 命令上, 1300, 69, true, {}, -1, 400).Caption =
        u"プレビュ"_qs;
    c.入力(u"btn_帳票イメージ出力", SSCommand, 9640, 命令上, 1300, 70, true, {}, -1, 400).Caption =
        u"PDF出力"_qs;

    c.見出し(u"お知らせ", SSPanel, u"", 60, 知らせ上, 12285, 435);
}
