#include "dataenv/文の引数化.h"

#include <QByteArrayView>
#include <limits>

namespace {

// PostgreSQL's type numbers of the literals' types.
constexpr unsigned int4型 = 23;
constexpr unsigned int8型 = 20;
constexpr unsigned numeric型 = 1700;

bool 空白か(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
bool 数字か(char c) {
    return c >= '0' && c <= '9';
}
// A byte of a name: ASCII letters, digits, '_', '.', and every byte of a multibyte character.
bool 名の字か(char c) {
    const auto u = static_cast<unsigned char>(c);
    return u >= 0x80 || 数字か(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
           c == '.';
}

// The statement in UTF-8 as it is read, with the template built behind the reading.
struct 読み手 {
    const QByteArray& s;
    引数付き文& 結果;
    qsizetype i = 0;
    qsizetype 写した所 = 0;  // the template holds the text up to here

    char 今() const { return i < s.size() ? s[i] : '\0'; }
    void 空白を飛ばす() {
        while (i < s.size() && 空白か(s[i])) ++i;
    }
    // The ASCII word at i in any case, with no letter of a name behind it.
    bool 語(QByteArrayView w) {
        if (s.size() - i < w.size()) return false;
        for (qsizetype k = 0; k < w.size(); ++k) {
            char c = s[i + k];
            if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
            if (c != w[k]) return false;
        }
        if (i + w.size() < s.size() && 名の字か(s[i + w.size()])) return false;
        i += w.size();
        return true;
    }
    bool 名() {
        const qsizetype 始 = i;
        while (i < s.size() && 名の字か(s[i])) ++i;
        return i > 始 && !数字か(s[始]);
    }
    // A literal at i becomes the next parameter.
    bool 値() {
        const qsizetype 始 = i;
        unsigned 型 = 0;
        int 位置 = static_cast<int>(結果.値列.size());
        if (今() == '\'') {
            if (!文字を読む()) return false;
        } else if (語("NULL")) {
            位置 = -1;
        } else if (!数を読む(型)) {
            return false;
        }
        if (位置 >= 0) 結果.値列 += '\0';
        結果.型.push_back(型);
        結果.値位置.push_back(位置);
        結果.型紙 += QByteArrayView(s).sliced(写した所, 始 - 写した所);
        結果.型紙 += '$' + QByteArray::number(static_cast<qsizetype>(結果.型.size()));
        写した所 = i;
        return true;
    }
    // A quoted text, its doubled quotes made single; backslashes stand as they are.
    bool 文字を読む() {
        ++i;
        while (i < s.size()) {
            qsizetype 末 = s.indexOf('\'', i);
            if (末 < 0) return false;
            結果.値列 += QByteArrayView(s).sliced(i, 末 - i);
            i = 末 + 1;
            if (今() != '\'') return true;
            結果.値列 += '\'';
            ++i;
        }
        return false;
    }
    // A number as PostgreSQL reads it in a statement: digits with at most one point inside, a
    // minus before them. Leading zeros and exponents are left to the statement as it is.
    bool 数を読む(unsigned& 型) {
        const qsizetype 始 = i;
        if (今() == '-') ++i;
        const qsizetype 桁始 = i;
        while (数字か(今())) ++i;
        const qsizetype 整数桁 = i - 桁始;
        if (整数桁 == 0 || (整数桁 > 1 && s[桁始] == '0')) return false;
        bool 小数 = false;
        if (今() == '.') {
            ++i;
            const qsizetype 小数始 = i;
            while (数字か(今())) ++i;
            if (i == 小数始) return false;
            小数 = true;
        }
        const QByteArrayView 数 = QByteArrayView(s).sliced(始, i - 始);
        bool 収まる = false;
        const qlonglong v = 数.toLongLong(&収まる);
        if (小数 || !収まる) {
            型 = numeric型;
        } else {
            型 = v >= std::numeric_limits<qint32>::min() && v <= std::numeric_limits<qint32>::max()
                     ? int4型
                     : int8型;
        }
        結果.値列 += 数;
        return true;
    }
    bool 残りなし() {
        空白を飛ばす();
        if (i != s.size()) return false;
        結果.型紙 += QByteArrayView(s).sliced(写した所);
        return true;
    }

    // "(columns) VALUES (values)" behind the table's name; the names hold no quote, no
    // comment and no parenthesis.
    bool 挿入() {
        空白を飛ばす();
        if (今() != '(') return false;
        ++i;
        結果.列数 = 1;
        for (; i < s.size() && s[i] != ')'; ++i) {
            const char c = s[i];
            if (c == '\'' || c == '"' || c == '-' || c == '/' || c == '(') return false;
            if (c == ',') ++結果.列数;
        }
        ++i;
        空白を飛ばす();
        if (!語("VALUES")) return false;
        空白を飛ばす();
        if (今() != '(') return false;
        ++i;
        for (;;) {
            空白を飛ばす();
            if (!値()) return false;
            空白を飛ばす();
            if (今() == ',') {
                ++i;
                continue;
            }
            if (今() != ')') return false;
            ++i;
            return 残りなし();
        }
    }
    // "WHERE column = value" joined by AND behind the table's name.
    bool 削除() {
        if (!名()) return false;
        空白を飛ばす();
        if (!語("WHERE")) return false;
        for (;;) {
            空白を飛ばす();
            if (!名()) return false;
            空白を飛ばす();
            if (今() != '=') return false;
            ++i;
            空白を飛ばす();
            if (!値()) return false;
            const qsizetype 値末 = i;
            空白を飛ばす();
            if (i == s.size()) return 残りなし();
            if (i == 値末 || !語("AND")) return false;
        }
    }
};

}  // namespace

QByteArray 引数付き文::鍵() const {
    QByteArray k = 型紙;
    for (unsigned t : 型) k += ' ' + QByteArray::number(t);
    return k;
}

std::vector<const char*> 引数付き文::値() const {
    std::vector<const char*> v(値位置.size());
    for (std::size_t k = 0; k < v.size(); ++k) {
        v[k] = 値位置[k] < 0 ? nullptr : 値列.constData() + 値位置[k];
    }
    return v;
}

bool 文を引数に(const QString& 単文, 引数付き文& 結果) {
    結果 = {};
    const QByteArray s = 単文.toUtf8();
    読み手 r{s, 結果};
    if (r.語("INSERT") && (r.空白を飛ばす(), r.語("INTO"))) {
        r.空白を飛ばす();
        return r.名() && r.挿入();
    }
    r.i = 0;
    if (r.語("DELETE") && (r.空白を飛ばす(), r.語("FROM"))) {
        r.空白を飛ばす();
        return r.削除();
    }
    return false;
}
