#include "screen/部品.h"

#include <QRegularExpression>
#include <algorithm>

QString 種別名(部品種別 種別) {
    static const char16_t* const 名前[] = {
        u"xField",    u"xNum",       u"xText",        u"xLabel",       u"xPass",
        u"SSCommand", u"SSPanel",    u"SSTab",        u"ListView",     u"ComboBox",
        u"CheckBox",  u"VScrollBar", u"CommonDialog", u"OptionButton", u"ProgressBar",
    };
    return QString::fromUtf16(名前[static_cast<int>(種別)]);
}

QString 部品::表記() const {
    return 添字 < 0 ? 名前 : 名前 + u'(' + QString::number(添字) + u')';
}

bool 部品::焦点を持てる種別() const {
    return 種別 != 部品種別::xLabel && 種別 != 部品種別::SSPanel &&
           種別 != 部品種別::CommonDialog && 種別 != 部品種別::ProgressBar;
}

bool 部品::入力可(const QString& 文字列) const {
    if (MaxLength > 0 && 文字列.size() > MaxLength) return false;
    const 数字制限& d = 定義.数字;
    if (d.整数桁 <= 0) return true;
    QString 型 = u"^"_qs + (d.符号 ? u"-?"_qs : QString()) + u"[0-9]{0,"_qs +
                 QString::number(d.整数桁) + u"}"_qs;
    if (d.小数桁 > 0) 型 += u"(\\.[0-9]{0,"_qs + QString::number(d.小数桁) + u"})?"_qs;
    if (!QRegularExpression(型 + u"$"_qs).match(文字列).hasMatch()) return false;
    // A bounded field stops taking digits once its value would pass the bound.
    if (Min < Max) {
        bool 数 = false;
        const double 値 = 文字列.toDouble(&数);
        if (数 && (値 > Max || 値 < Min)) return false;
    }
    return true;
}

void 部品::項目クリア() {
    項目.clear();
    選択 = -1;
    ++項目版;
}

QList<一覧項目> 部品::項目取出し() {
    QList<一覧項目> 前 = std::move(項目);
    項目 = {};
    項目.reserve(前.capacity());
    選択 = -1;
    ++項目版;
    return 前;
}

QString 部品::セル(int 行, int 列番号) const {
    if (行 < 0 || 行 >= 項目.size()) return {};
    const 一覧項目& r = 項目.at(行);
    return 列番号 == 0 ? r.Text : r.SubItems.value(列番号 - 1);
}

void 部品::項目追加(一覧項目 新) {
    新.順 = static_cast<int>(項目.size()) + 1;
    項目.append(std::move(新));
    if (項目.size() == 1) 選択 = 0;
    ++項目版;
}

QString 部品::鍵(int 行) const {
    if (行 < 0 || 行 >= 項目.size()) return {};
    const 一覧項目& r = 項目.at(行);
    return r.Key.isEmpty() && 鍵規則 ? 鍵規則(r) : r.Key;
}

void 部品::並べ替え() {
    if (項目.isEmpty()) return;
    QList<int> 順(項目.size());
    for (int i = 0; i < 順.size(); ++i) 順[i] = i;
    std::stable_sort(順.begin(), 順.end(), [this](int a, int b) {
        const int c = QString::compare(セル(a, SortKey), セル(b, SortKey), Qt::CaseInsensitive);
        return 降順 ? c > 0 : c < 0;
    });
    QList<一覧項目> 並び;
    並び.reserve(順.size());
    for (int i : 順) 並び.append(項目.at(i));
    項目 = std::move(並び);
    // The selected row stays selected wherever it went.
    if (選択 >= 0) 選択 = static_cast<int>(順.indexOf(選択));
    ++項目版;
}
