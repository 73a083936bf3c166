#pragma once

#include <QString>
#include <QStringView>
#include <algorithm>

#include "text/項目編集.h"

// A row of an export written into a buffer made large enough beforehand, character by
// character, so that a row costs no text per field.
class 行の筆 {
  public:
    explicit 行の筆(char16_t* 始) : 始(始), p(始) {}
    void 字(char16_t c) { *p++ = c; }
    void 文(QStringView v) {
        std::copy(v.utf16(), v.utf16() + v.size(), p);
        p += v.size();
    }
    void 数(qint64 値) {
        if (値 < 0) 字(u'-');
        quint64 残 = 値 < 0 ? 0 - static_cast<quint64>(値) : static_cast<quint64>(値);
        char16_t 桁[20];
        int i = 20;
        do {
            桁[--i] = static_cast<char16_t>(u'0' + 残 % 10);
            残 /= 10;
        } while (残 > 0);
        文(QStringView(桁 + i, 20 - i));
    }
    // A 弥生 text: quoted, cut to the column's places in whole characters (the import cuts
    // longer texts itself; a text of at most half the places fits whatever its characters). A
    // row is one line of the file: a carriage return or line feed (a description taken over
    // from a trip application holds one), as any control character, becomes a blank.
    void 弥生の文字(QStringView 値, int 桁数) {
        QString 切った;
        if (桁数 > 0 && 値.size() * 2 > 桁数) {
            切った = バイト長切詰(値.toString(), 桁数);
            値 = 切った;
        }
        字(u'"');
        for (QChar c : 値) {
            if (c == u'"') 字(u'"');
            字(c.unicode() < 0x20 ? u' ' : c.unicode());
        }
        字(u'"');
    }
    // An RFC 4180 field: quoted only when it holds a comma, a quote or a line break, which
    // then stand in it as they are, a quote doubled.
    void CSVの文字(QStringView 値) {
        bool 引用 = false;
        for (QChar c : 値) 引用 = 引用 || c == u',' || c == u'"' || c == u'\r' || c == u'\n';
        if (!引用) return 文(値);
        字(u'"');
        for (QChar c : 値) {
            if (c == u'"') 字(u'"');
            字(c.unicode());
        }
        字(u'"');
    }
    // Room for a text however it is quoted.
    static qsizetype 上限(QStringView 値) { return 値.size() * 2 + 2; }
    QStringView 書いた() const { return QStringView(始, p - 始); }

  private:
    char16_t* 始;
    char16_t* p;
};
