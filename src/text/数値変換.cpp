#include "text/数値変換.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "text/実行時エラー.h"

namespace {

// Exponents are held far beyond any double yet well inside an int.
constexpr int 指数上限 = 1000000;

bool 数字か(QChar c) {
    return c >= u'0' && c <= u'9';
}

int 十六進値(QChar c) {
    if (数字か(c)) return c.unicode() - u'0';
    if (c >= u'a' && c <= u'f') return c.unicode() - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c.unicode() - u'A' + 10;
    return -1;
}

QByteArray 先頭ゼロ除去(const QByteArray& 数字) {
    qsizetype i = 0;
    while (i < 数字.size() && 数字[i] == '0') ++i;
    return 数字.mid(i);
}

// Digits, one point and an exponent from position i on; "," between digits of the integer part
// only when 区切り許可. Returns where reading stopped; 数字あり tells whether any digit was read.
qsizetype 仮数と指数読込(QStringView s, qsizetype i, bool 区切り許可, 十進数& 値, bool& 数字あり) {
    数字あり = false;
    bool 点 = false;
    int 小数桁 = 0;
    for (; i < s.size(); ++i) {
        const QChar c = s[i];
        if (数字か(c)) {
            値.数字.append(static_cast<char>(c.unicode()));
            数字あり = true;
            if (点) ++小数桁;
        } else if (c == u'.' && !点) {
            点 = true;
        } else if (c == u',' && 区切り許可 && !点 && 数字あり) {
            continue;
        } else {
            break;
        }
    }
    値.指数 = -小数桁;
    if (!数字あり || i >= s.size()) return i;

    const QChar e = s[i];
    if (e != u'E' && e != u'e' && e != u'D' && e != u'd') return i;
    qsizetype j = i + 1;
    bool 指数負 = false;
    if (j < s.size() && (s[j] == u'+' || s[j] == u'-')) 指数負 = s[j++] == u'-';
    if (j >= s.size() || !数字か(s[j])) return i;  // "1E" is 1 followed by a letter
    qint64 指数 = 0;
    for (; j < s.size() && 数字か(s[j]); ++j)
        指数 = std::min<qint64>(指数 * 10 + (s[j].unicode() - u'0'), 指数上限);
    値.指数 += static_cast<int>(指数負 ? -指数 : 指数);
    return j;
}

// "&H" and "&O" integers: up to 16 bits they are read as a 16-bit integer and up to 32 bits as a
// 32-bit one, so "&HFFFF" is -1.
qsizetype 基数付き読込(QStringView s, qsizetype i, 十進数& 値, bool& 数字あり) {
    const QChar 種 = s[i + 1];
    const int 基数 = (種 == u'H' || 種 == u'h') ? 16 : 8;
    quint64 n = 0;
    数字あり = false;
    qsizetype j = i + 2;
    for (; j < s.size(); ++j) {
        const int v = 十六進値(s[j]);
        if (v < 0 || v >= 基数) break;
        n = n * 基数 + v;
        数字あり = true;
        if (n > 0xFFFFFFFFu) throw 桁あふれ();
    }
    qint64 符号付き = n <= 0xFFFF ? static_cast<qint16>(static_cast<quint16>(n))
                                  : static_cast<qint32>(static_cast<quint32>(n));
    値 = 十進数::整数から(符号付き);
    return j;
}

bool 基数付きか(QStringView s, qsizetype i) {
    return i + 1 < s.size() && s[i] == u'&' &&
           (s[i + 1] == u'H' || s[i + 1] == u'h' || s[i + 1] == u'O' || s[i + 1] == u'o');
}

bool 空白か(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

}  // namespace

bool 十進数::ゼロか() const {
    for (char c : 数字)
        if (c != '0') return false;
    return true;
}

QByteArray 十進数::桁丸め(int 小数桁, 丸め規則 規則) const {
    const QByteArray d = 先頭ゼロ除去(数字);
    if (d.isEmpty()) return "0";
    const qint64 s = static_cast<qint64>(指数) + 小数桁;
    if (s >= 0) return d + QByteArray(s, '0');

    const qint64 切る = -s;
    // Beyond one place past the digits the first digit dropped is a zero: nothing rounds up.
    if (切る > d.size()) return "0";
    QByteArray 残す = d.left(d.size() - 切る);
    const QByteArray 捨てる = d.mid(d.size() - 切る);
    bool 上げ = false;
    switch (規則) {
        case 丸め規則::切捨て:
            break;
        case 丸め規則::四捨五入:
            上げ = 捨てる[0] >= '5';
            break;
        case 丸め規則::偶数丸め: {
            bool 以降あり = false;
            for (qsizetype i = 1; i < 捨てる.size(); ++i) 以降あり |= 捨てる[i] != '0';
            const bool 奇数 = !残す.isEmpty() && (残す.back() - '0') % 2 == 1;
            上げ = 捨てる[0] > '5' || (捨てる[0] == '5' && (以降あり || 奇数));
            break;
        }
    }
    if (上げ) {
        qsizetype i = 残す.size() - 1;
        while (i >= 0 && 残す[i] == '9') 残す[i--] = '0';
        if (i >= 0)
            ++残す[i];
        else
            残す.prepend('1');
    }
    残す = 先頭ゼロ除去(残す);
    return 残す.isEmpty() ? QByteArray("0") : 残す;
}

十進数 十進数::整数から(qint64 値) {
    十進数 結果;
    結果.負 = 値 < 0;
    const quint64 絶対 = 値 < 0 ? 0 - static_cast<quint64>(値) : static_cast<quint64>(値);
    結果.数字 = QByteArray::number(絶対);
    return 結果;
}

十進数 十進数::倍精度から(double 値, int 有効桁) {
    if (!std::isfinite(値)) throw 桁あふれ();
    char 文字[64];
    const auto r =
        有効桁 > 0
            ? std::to_chars(文字, 文字 + sizeof 文字, 値, std::chars_format::scientific, 有効桁 - 1)
            : std::to_chars(文字, 文字 + sizeof 文字, 値, std::chars_format::scientific);
    const QString 表記 = QString::fromLatin1(文字, r.ptr - 文字);
    十進数 結果;
    qsizetype i = 0;
    if (表記.startsWith(u'-')) {
        結果.負 = true;
        i = 1;
    }
    bool 数字あり = false;
    仮数と指数読込(表記, i, false, 結果, 数字あり);
    if (結果.ゼロか()) 結果.負 = false;
    return 結果;
}

十進数 数値先頭解析(QStringView 文字列) {
    QString s;
    s.reserve(文字列.size());
    for (QChar c : 文字列)
        if (c != u' ' && c != u'\t' && c != u'\n') s.append(c);

    十進数 結果;
    bool 数字あり = false;
    if (基数付きか(s, 0)) {
        基数付き読込(s, 0, 結果, 数字あり);
        return 結果;
    }
    qsizetype i = 0;
    bool 負 = false;
    if (i < s.size() && (s[i] == u'+' || s[i] == u'-')) 負 = s[i++] == u'-';
    仮数と指数読込(s, i, false, 結果, 数字あり);
    結果.負 = 負 && !結果.ゼロか();
    return 結果;
}

double 数値変換(QStringView 文字列) {
    const 十進数 値 = 数値先頭解析(文字列);
    const QByteArray d = 先頭ゼロ除去(値.数字);
    if (d.isEmpty()) return 0.0;
    const std::string 表記 = d.toStdString() + "e" + std::to_string(値.指数);
    double 結果 = 0.0;
    const auto r = std::from_chars(表記.data(), 表記.data() + 表記.size(), 結果);
    if (r.ec == std::errc::result_out_of_range) {
        // Too small for a double reads as 0; too large overflows.
        if (static_cast<qint64>(d.size()) + 値.指数 > 0) throw 桁あふれ();
        結果 = 0.0;
    }
    return 値.負 ? -結果 : 結果;
}

qint16 小整数値(QStringView 文字列) {
    const 十進数 値 = 数値先頭解析(文字列);
    const QByteArray 桁 = 値.桁丸め(0, 丸め規則::偶数丸め);
    if (桁.size() > 5) throw 桁あふれ();
    return 小整数へ(値.負 ? -桁.toLongLong() : 桁.toLongLong());
}

std::optional<十進数> 数値文字列解析(QStringView 文字列) {
    qsizetype 始 = 0, 終 = 文字列.size();
    while (始 < 終 && 空白か(文字列[始])) ++始;
    while (終 > 始 && 空白か(文字列[終 - 1])) --終;
    const QStringView s = 文字列.sliced(始, 終 - 始);

    十進数 結果;
    bool 数字あり = false;
    qsizetype i = 0;
    if (基数付きか(s, 0)) {
        try {
            i = 基数付き読込(s, 0, 結果, 数字あり);
        } catch (const 桁あふれ&) {
            return std::nullopt;
        }
    } else {
        bool 負 = false;
        if (i < s.size() && (s[i] == u'+' || s[i] == u'-')) 負 = s[i++] == u'-';
        i = 仮数と指数読込(s, i, true, 結果, 数字あり);
        結果.負 = 負 && !結果.ゼロか();
    }
    if (!数字あり || i != s.size()) return std::nullopt;
    return 結果;
}

bool 数値文字列か(QStringView 文字列) {
    return 数値文字列解析(文字列).has_value();
}
