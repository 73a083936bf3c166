#include "text/数値書式.h"

#include <QList>

namespace {

struct 字句 {
    bool 桁 = false;  // a digit place ('0' or '#')
    QChar 文字;
};

bool 桁記号か(QChar c) {
    return c == u'0' || c == u'#';
}

qsizetype 最後の字句(const QList<字句>& 字句列) {
    for (qsizetype i = 字句列.size() - 1; i >= 0; --i)
        if (字句列[i].桁) return i;
    return -1;
}

// The plain number: whole digits, and the decimals that are not trailing zeros.
QString 一般表記(const 十進数& 値) {
    const int 小数桁 = 値.指数 < 0 ? -値.指数 : 0;
    QByteArray 桁 = 値.桁丸め(小数桁, 丸め規則::切捨て);
    if (桁.size() <= 小数桁) 桁.prepend(QByteArray(小数桁 - 桁.size() + 1, '0'));
    QString 整数 = QString::fromLatin1(桁.left(桁.size() - 小数桁));
    QString 小数 = QString::fromLatin1(桁.right(小数桁));
    while (小数.endsWith(u'0')) 小数.chop(1);
    QString 結果 = 小数.isEmpty() ? 整数 : 整数 + u'.' + 小数;
    return (値.負 && !値.ゼロか()) ? u'-' + 結果 : 結果;
}

}  // namespace

QString 書式(const 十進数& 値, QStringView マスク) {
    if (マスク.isEmpty()) return 一般表記(値);

    const qsizetype 点 = マスク.indexOf(u'.');
    const QStringView 整数マスク = 点 < 0 ? マスク : マスク.first(点);
    const QStringView 小数マスク = 点 < 0 ? QStringView() : マスク.sliced(点 + 1);

    // Commas of the whole part: between digit places they ask for grouping, behind the last
    // digit place each one divides by a thousand; neither kind is written itself.
    qsizetype 最初の桁 = -1, 最後の桁 = -1;
    for (qsizetype i = 0; i < 整数マスク.size(); ++i) {
        if (!桁記号か(整数マスク[i])) continue;
        if (最初の桁 < 0) 最初の桁 = i;
        最後の桁 = i;
    }
    bool 区切り = false;
    int 千分の一 = 0;
    QList<字句> 整数字句;
    for (qsizetype i = 0; i < 整数マスク.size(); ++i) {
        const QChar c = 整数マスク[i];
        if (c == u',' && 最初の桁 >= 0 && i > 最初の桁 && i < 最後の桁) {
            区切り = true;
        } else if (c == u',' && 最初の桁 >= 0 && i > 最後の桁) {
            ++千分の一;
        } else {
            整数字句.append({桁記号か(c), c});
        }
    }
    QList<字句> 小数字句;
    for (QChar c : 小数マスク) 小数字句.append({桁記号か(c), c});

    // Every place from the first "0" on is written, significant or not.
    int 整数桁数 = 0, 最初のゼロ = -1;
    for (const 字句& t : 整数字句) {
        if (!t.桁) continue;
        if (t.文字 == u'0' && 最初のゼロ < 0) 最初のゼロ = 整数桁数;
        ++整数桁数;
    }
    const int 最少整数桁 = 最初のゼロ < 0 ? 0 : 整数桁数 - 最初のゼロ;
    int 小数桁数 = 0, 最少小数桁 = 0;
    for (const 字句& t : 小数字句) {
        if (!t.桁) continue;
        ++小数桁数;
        if (t.文字 == u'0') 最少小数桁 = 小数桁数;
    }

    十進数 目盛り = 値;
    目盛り.指数 -= 3 * 千分の一;
    QByteArray 桁 = 目盛り.桁丸め(小数桁数, 丸め規則::四捨五入);
    if (桁.size() < 小数桁数) 桁.prepend(QByteArray(小数桁数 - 桁.size(), '0'));
    QString 整数 = QString::fromLatin1(桁.left(桁.size() - 小数桁数));
    QString 小数 = QString::fromLatin1(桁.right(小数桁数));
    while (整数.startsWith(u'0')) 整数.remove(0, 1);
    if (整数.size() < 最少整数桁) 整数 = QString(最少整数桁 - 整数.size(), u'0') + 整数;
    while (小数.size() > 最少小数桁 && 小数.endsWith(u'0')) 小数.chop(1);

    QString 整数部;
    if (区切り) {
        // In one pass: a text can bring a million digits.
        QString 区切った;
        区切った.reserve(整数.size() + 整数.size() / 3);
        for (qsizetype i = 0; i < 整数.size(); ++i) {
            if (i > 0 && (整数.size() - i) % 3 == 0) 区切った += u',';
            区切った += 整数[i];
        }
        整数 = 区切った;
        // Grouped digits stand as one block where the places are.
        const qsizetype 最後 = 最後の字句(整数字句);
        bool 置いた = false;
        for (qsizetype i = 0; i < 整数字句.size(); ++i) {
            const 字句& t = 整数字句[i];
            if (t.桁 && !置いた) {
                整数部 += 整数;
                置いた = true;
            } else if (!t.桁 && (!置いた || i > 最後)) {
                整数部 += t.文字;
            }
        }
    } else {
        // Digits go into the places from the right; the leftmost place takes what is left over.
        qsizetype 残り = 整数.size();
        int 残りの桁記号 = 整数桁数;
        for (qsizetype i = 整数字句.size() - 1; i >= 0; --i) {
            const 字句& t = 整数字句[i];
            if (!t.桁) {
                整数部.prepend(t.文字);
            } else if (--残りの桁記号 == 0) {
                整数部.prepend(整数.first(残り));
                残り = 0;
            } else if (残り > 0) {
                整数部.prepend(整数[--残り]);
            }
        }
        if (残り > 0) 整数部.prepend(整数.first(残り));  // no whole place at all: still written
    }

    QString 結果 = 整数部;
    if (点 >= 0) {
        結果 += u'.';
        int 次 = 0;
        for (const 字句& t : 小数字句) {
            if (!t.桁)
                結果 += t.文字;
            else if (次 < 小数.size())
                結果 += 小数[次++];
        }
    }
    return (値.負 && !値.ゼロか()) ? u'-' + 結果 : 結果;
}

namespace {

// A mask of digit places alone, grouped or not ("#,###,###,##0", "##0", "000"): how many
// places it always writes, and whether it groups. A point, a trailing comma or any other
// character sends the value the long way.
bool 整数桁だけ(QStringView マスク, int& 最少桁, bool& 区切り) {
    if (マスク.isEmpty() || !桁記号か(マスク.front()) || !桁記号か(マスク.back())) return false;
    最少桁 = 0;
    区切り = false;
    for (QChar c : マスク) {
        if (c == u',') {
            区切り = true;
        } else if (c == u'0' || (c == u'#' && 最少桁 > 0)) {
            ++最少桁;
        } else if (c != u'#') {
            return false;
        }
    }
    // More places than a 64-bit value has digits go the long way too.
    return 最少桁 <= 20;
}

}  // namespace

QString 書式(const 金額& 値, QStringView マスク) {
    int 最少桁 = 0;
    bool 区切り = false;
    if (!整数桁だけ(マスク, 最少桁, 区切り)) return 書式(値.十進表記(), マスク);
    // Money is whole ten-thousandths: half away from zero to whole yen in integers, the rule
    // the long way applies too. Unsigned, so that the lowest value has a magnitude.
    const qint64 万分 = 値.万分単位();
    const quint64 絶対値 = 万分 < 0 ? 0 - static_cast<quint64>(万分) : static_cast<quint64>(万分);
    quint64 円 = 絶対値 / 金額::一円 + (絶対値 % 金額::一円 >= 金額::一円 / 2 ? 1 : 0);
    char16_t 桁[32];
    int 桁数 = 0;
    for (; 円 > 0; 円 /= 10) 桁[桁数++] = static_cast<char16_t>(u'0' + 円 % 10);
    while (桁数 < 最少桁) 桁[桁数++] = u'0';
    QString 結果;
    結果.reserve(1 + 桁数 + 桁数 / 3);
    if (万分 < 0) 結果 += u'-';
    for (int i = 桁数 - 1; i >= 0; --i) {
        結果 += QChar(桁[i]);
        if (区切り && i > 0 && i % 3 == 0) 結果 += u',';
    }
    return 結果;
}

QString 書式(double 値, QStringView マスク) {
    return 書式(十進数::倍精度から(値, 15), マスク);
}

QString 書式(const QString& 値, QStringView マスク) {
    const auto 数 = 数値文字列解析(値);
    return 数 ? 書式(*数, マスク) : 値;
}
