#pragma once

#include <iconv.h>

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>

// The reader of the tests for a 弥生 import file, written apart from the export: the bytes are
// decoded from CP932 by iconv, rows must end in CRLF, and fields are split by commas with "..."
// quoting. Each row comes back with its fields and whether each was quoted.
struct 弥生読取行 {
    QStringList 項目;
    QList<bool> 引用;
};

inline bool CP932から(const QByteArray& バイト, QString& 文字列) {
    iconv_t 変換 = iconv_open("UTF-8", "CP932");
    if (変換 == reinterpret_cast<iconv_t>(-1)) return false;
    QByteArray 出力(バイト.size() * 3 + 4, '\0');
    char* 入 = const_cast<char*>(バイト.constData());
    size_t 入力残 = バイト.size();
    char* 出 = 出力.data();
    size_t 出力残 = 出力.size();
    const size_t r = iconv(変換, &入, &入力残, &出, &出力残);
    iconv_close(変換);
    if (r == static_cast<size_t>(-1)) return false;
    出力.resize(出力.size() - static_cast<qsizetype>(出力残));
    文字列 = QString::fromUtf8(出力);
    return true;
}

// Fields of one CSV row (no line breaks inside a field here); false on a stray quote.
inline bool 行を分ける(const QString& 行, 弥生読取行& 結果) {
    QString 項目;
    bool 引用中 = false, 引用あり = false;
    for (qsizetype i = 0; i < 行.size(); ++i) {
        const QChar c = 行[i];
        if (引用中) {
            if (c == u'"' && i + 1 < 行.size() && 行[i + 1] == u'"') {
                項目 += u'"';
                ++i;
            } else if (c == u'"') {
                引用中 = false;
            } else {
                項目 += c;
            }
        } else if (c == u'"') {
            if (!項目.isEmpty()) return false;
            引用中 = 引用あり = true;
        } else if (c == u',') {
            結果.項目.append(項目);
            結果.引用.append(引用あり);
            項目.clear();
            引用あり = false;
        } else {
            項目 += c;
        }
    }
    if (引用中) return false;
    結果.項目.append(項目);
    結果.引用.append(引用あり);
    return true;
}

inline bool 弥生ファイル読取(const QString& パス, QList<弥生読取行>& 行, QString& エラー) {
    QFile f(パス);
    if (!f.open(QIODevice::ReadOnly)) {
        エラー = u"開けない"_qs;
        return false;
    }
    const QByteArray バイト = f.readAll();
    if (バイト.isEmpty()) return true;  // an export of no slip has no row
    // A carriage return or line feed stands only as the end of a row.
    if (バイト.count('\n') != バイト.count("\r\n") || バイト.count('\r') != バイト.count("\r\n") ||
        !バイト.endsWith("\r\n")) {
        エラー = u"CRLF でない改行がある"_qs;
        return false;
    }
    QString 全体;
    if (!CP932から(バイト, 全体)) {
        エラー = u"CP932 でない"_qs;
        return false;
    }
    QStringList 行文字列 = 全体.split(u"\r\n"_qs);
    行文字列.removeLast();
    for (const QString& s : 行文字列) {
        弥生読取行 r;
        if (!行を分ける(s, r)) {
            エラー = u"引用符が壊れている: "_qs + s;
            return false;
        }
        行.append(r);
    }
    return true;
}
