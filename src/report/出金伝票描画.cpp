#include "report/出金伝票描画.h"

#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include "report/出金伝票帳票.h"
#include "text/数値書式.h"

namespace {

// A4 in tenths of a millimetre, and the printable band inside its margins.
constexpr double 幅 = 2100, 高さ = 2970, 左 = 150, 右 = 1950;
constexpr int 明細行高 = 66;

QFont 書体(int 大きさ, bool 太字 = false) {
    QFont f(u"Noto Sans CJK JP"_qs);
    f.setPixelSize(大きさ);
    f.setBold(太字);
    return f;
}

QString 額(const 金額& 値) {
    return 書式(値, 数値書式::一覧金額);
}

QString 率(const 金額& 値) {
    return 書式(値, 数値書式::百分率) + u"%"_qs;
}

QString 日付(const QString& 値) {
    if (値.size() != 8) return 値;
    return 値.left(4) + u"年"_qs + 値.mid(4, 2) + u"月"_qs + 値.mid(6, 2) + u"日"_qs;
}

QString 組(const QString& コード, const QString& 名) {
    return 名.isEmpty() ? コード : コード + u"  "_qs + 名;
}

// A caption over its value in a ruled box.
void 項目枠(QPainter& p, const QRectF& r, const QString& 題, const QString& 値,
            Qt::Alignment 寄せ = Qt::AlignLeft) {
    p.drawRect(r);
    p.setFont(書体(24));
    p.drawText(r.adjusted(12, 6, -12, 0), Qt::AlignLeft | Qt::AlignTop, 題);
    p.setFont(書体(36));
    p.drawText(r.adjusted(12, 30, -12, -4), 寄せ | Qt::AlignVCenter, 値);
}

struct 列 {
    const char16_t* 題;
    double 幅;
    Qt::Alignment 寄せ;
};

}  // namespace

void 出金伝票描画(QPainter& p, const QRectF& 頁, const 出金伝票帳票& 帳票) {
    p.save();
    p.translate(頁.topLeft());
    const double 倍率 = std::min(頁.width() / 幅, 頁.height() / 高さ);
    p.scale(倍率, 倍率);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    QPen 線(Qt::black);
    線.setWidthF(3.5);
    p.setPen(線);

    // Title, company and office.
    p.setFont(書体(80, true));
    p.drawText(QRectF(左, 140, 右 - 左, 110), Qt::AlignHCenter | Qt::AlignVCenter,
               u"出 金 伝 票"_qs);
    p.drawLine(QPointF(800, 255), QPointF(1300, 255));
    p.setFont(書体(34, true));
    p.drawText(QRectF(1300, 300, 右 - 1300, 50), Qt::AlignRight | Qt::AlignVCenter, 帳票.会社名);
    p.setFont(書体(30));
    p.drawText(QRectF(1300, 355, 右 - 1300, 45), Qt::AlignRight | Qt::AlignVCenter,
               組(帳票.事業所コード, 帳票.事業所名));

    // Date and number, staff, department and section.
    項目枠(p, QRectF(左, 300, 420, 95), u"出金日付"_qs, 日付(帳票.出金日付));
    項目枠(p, QRectF(左 + 420, 300, 330, 95), u"出金No"_qs, 帳票.出金No);
    項目枠(p, QRectF(左, 395, 600, 95), u"担当者"_qs, 組(帳票.担当者コード, 帳票.担当者名));
    項目枠(p, QRectF(左 + 600, 395, 600, 95), u"部門"_qs, 組(帳票.部門コード, 帳票.部門名));
    項目枠(p, QRectF(左 + 1200, 395, 600, 95), u"セクション"_qs,
           組(帳票.セクションコード, 帳票.セクション名));

    // The lines: always fifteen ruled rows, filled from the top.
    static const 列 列一覧[] = {
        {u"No", 70, Qt::AlignHCenter},      {u"費目区分", 250, Qt::AlignLeft},
        {u"税区分", 150, Qt::AlignLeft},    {u"支払先", 330, Qt::AlignLeft},
        {u"摘要", 500, Qt::AlignLeft},      {u"税率", 90, Qt::AlignRight},
        {u"出金金額", 230, Qt::AlignRight}, {u"消費税", 180, Qt::AlignRight},
    };
    const double 表上 = 550;
    double x = 左;
    p.setFont(書体(28, true));
    p.fillRect(QRectF(左, 表上, 右 - 左, 明細行高), QColor(235, 240, 248));
    for (const 列& c : 列一覧) {
        p.drawText(QRectF(x, 表上, c.幅, 明細行高), Qt::AlignCenter, QString::fromUtf16(c.題));
        x += c.幅;
    }
    p.setFont(書体(30));
    for (int i = 0; i < 最大行数; ++i) {
        const double y = 表上 + 明細行高 * (i + 1);
        if (i >= 帳票.明細.size()) continue;
        const 帳票明細& m = 帳票.明細[i];
        const QString 値[] = {
            QString::number(i + 1), m.費目区分名称, m.内税外税区分名称, m.支払先, m.摘要,
            率(m.消費税率),         額(m.出金金額), 額(m.出金消費税)};
        x = 左;
        for (int k = 0; k < 8; ++k) {
            p.drawText(QRectF(x + 10, y, 列一覧[k].幅 - 20, 明細行高),
                       列一覧[k].寄せ | Qt::AlignVCenter, 値[k]);
            x += 列一覧[k].幅;
        }
    }
    const double 表下 = 表上 + 明細行高 * (最大行数 + 1);
    for (int i = 0; i <= 最大行数 + 1; ++i) {
        const double y = 表上 + 明細行高 * i;
        p.drawLine(QPointF(左, y), QPointF(右, y));
    }
    x = 左;
    p.drawLine(QPointF(x, 表上), QPointF(x, 表下));
    for (const 列& c : 列一覧) {
        x += c.幅;
        p.drawLine(QPointF(x, 表上), QPointF(x, 表下));
    }

    // The totals, then the two rate groups of the reduced-rate view.
    const 出金合計& t = 帳票.合計;
    const double 合計上 = 表下 + 50;
    項目枠(p, QRectF(右 - 1200, 合計上, 400, 100), u"出金金額合計"_qs, 額(t.出金金額合計),
           Qt::AlignRight);
    項目枠(p, QRectF(右 - 800, 合計上, 400, 100), u"消費税合計"_qs, 額(t.出金消費税合計),
           Qt::AlignRight);
    項目枠(p, QRectF(右 - 400, 合計上, 400, 100), u"実質出金金額合計"_qs, 額(t.実質出金金額合計),
           Qt::AlignRight);
    const double 税別上 = 合計上 + 140;
    const auto 税別 = [&](double y, const 金額& 税率, const 金額& 税抜, const 金額& 税) {
        const QString 題 = 税率.ゼロか() ? QString() : u"合計("_qs + 率(税率) + u")"_qs;
        p.setFont(書体(30, true));
        p.drawText(QRectF(右 - 1200, y, 400, 80), Qt::AlignLeft | Qt::AlignVCenter, 題);
        項目枠(p, QRectF(右 - 800, y, 400, 80), u"税抜金額"_qs, 額(税抜), Qt::AlignRight);
        項目枠(p, QRectF(右 - 400, y, 400, 80), u"消費税"_qs, 額(税), Qt::AlignRight);
    };
    税別(税別上, 帳票.前回税率, t.前回税率出金金額合計, t.前回税率出金消費税合計);
    税別(税別上 + 90, 帳票.今回税率, t.今回税率出金金額合計, t.今回税率出金消費税合計);

    // Remarks, and the boxes for the approvers' seals.
    const double 備考上 = 税別上 + 220;
    項目枠(p, QRectF(左, 備考上, 右 - 左, 95), u"備考"_qs, 帳票.備考A);
    項目枠(p, QRectF(左, 備考上 + 95, 右 - 左, 95), QString(), 帳票.備考B);
    const double 印上 = 備考上 + 250;
    const char16_t* 印[] = {u"承認", u"経理", u"担当"};
    for (int i = 0; i < 3; ++i) {
        const QRectF r(右 - 600 + 200 * i, 印上, 200, 230);
        p.drawRect(r);
        p.drawLine(QPointF(r.left(), r.top() + 50), QPointF(r.right(), r.top() + 50));
        p.setFont(書体(26));
        p.drawText(QRectF(r.left(), r.top(), r.width(), 50), Qt::AlignCenter,
                   QString::fromUtf16(印[i]));
    }
    p.restore();
}

QImage 出金伝票画像(const 出金伝票帳票& 帳票, int dpi) {
    QImage 画像(qRound(210.0 / 25.4 * dpi), qRound(297.0 / 25.4 * dpi), QImage::Format_RGB32);
    画像.fill(Qt::white);
    const int 毎m = qRound(dpi / 0.0254);
    画像.setDotsPerMeterX(毎m);
    画像.setDotsPerMeterY(毎m);
    QPainter p(&画像);
    出金伝票描画(p, QRectF(画像.rect()), 帳票);
    p.end();
    return 画像;
}

bool 出金伝票PDF(const 出金伝票帳票& 帳票, const QString& パス) {
    QSaveFile 先(パス);
    if (!先.open(QIODevice::WriteOnly)) return false;
    {
        QPdfWriter 書き手(&先);
        書き手.setPageSize(QPageSize(QPageSize::A4));
        書き手.setPageMargins(QMarginsF(0, 0, 0, 0));
        書き手.setResolution(300);
        書き手.setTitle(u"出金伝票 "_qs + 帳票.事業所コード + u"-"_qs + 帳票.出金No);
        書き手.setCreator(u"紺碧帳書"_qs);
        QPainter p;
        if (!p.begin(&書き手)) {
            先.cancelWriting();
            return false;
        }
        出金伝票描画(p, QRectF(0, 0, 書き手.width(), 書き手.height()), 帳票);
        if (!p.end()) {
            先.cancelWriting();
            return false;
        }
    }
    return 先.commit();
}
