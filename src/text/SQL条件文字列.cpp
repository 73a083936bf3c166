#include "text/項目編集.h"

#include "text/数値書式.h"

QString 引用符だけ二重化(const QString& 文字列) {
    QString 結果;
    結果.reserve(文字列.size() + 4);
    for (QChar c : 文字列) {
        結果.append(c);
        if (c == u'\'') 結果.append(c);
    }
    return 結果;
}

QString 引用符で囲む(const QString& 文字列) {
    return u'\'' + 引用符だけ二重化(文字列) + u'\'';
}

QString 引用符二重化(const QString& 文字列) {
    QString 結果 = 引用符だけ二重化(文字列);
    qsizetype n = 結果.size();
    while (n > 0 && 結果.at(n - 1) == u' ') --n;
    結果.truncate(n);
    return 結果;
}

QString ゼロ文字列(int 桁数) {
    return 桁数 > 0 ? QString(桁数, u'0') : QString();
}

QString 書式桁揃え(const QString& 値, const QString& マスク) {
    if (マスク.isEmpty()) return 値;
    return 書式(値, マスク).left(マスク.size());
}

QString 書式マスク作成(const QString& 文字列) {
    return 文字列.isEmpty() ? QString() : ゼロ文字列(文字列.size());
}

QString 百分率記号除去(const QString& 文字列) {
    QString 結果 = 文字列;
    結果.remove(u'%');
    return 結果;
}

namespace {

// Positions are 1-based and 0 means "not found", as the cutting rules below count them.
qsizetype 位置(const QString& 文字列, qsizetype 開始, const QString& 探す) {
    if (開始 < 1) 開始 = 1;
    if (開始 > 文字列.size()) return 0;
    const qsizetype i = 文字列.indexOf(探す, 開始 - 1, Qt::CaseInsensitive);
    return i < 0 ? 0 : i + 1;
}

QString 以降(const QString& 文字列, qsizetype 開始) {
    return 文字列.mid(開始 - 1);
}

const QString 以上 = QStringLiteral(" >= '");
const QString 以下 = QStringLiteral(" <= '");
const QString 等しい = QStringLiteral(" = '");
const QString 超 = QStringLiteral(" > '");
const QString 未満 = QStringLiteral(" < '");
const QString 類似 = QStringLiteral(" LIKE '");

// A connector right behind the clause's closing quote goes with the clause.
void 後続接続詞(const QString& 条件, qsizetype& 終) {
    if (位置(条件, 終, QStringLiteral(" AND ")) == 終 + 1)
        終 += 5;
    else if (位置(条件, 終, QStringLiteral(" OR ")) == 終 + 1)
        終 += 4;
}

}  // namespace

QString 条件値取出(const QString& 項目名, const QString& 条件, QString& 残り) {
    // 残り is usually 条件 itself, so work on a copy.
    const QString C = 条件;
    const QString& F = 項目名;

    QString 演算子;
    qsizetype 句 = 0;
    for (const QString* 候補 : {&以上, &以下, &等しい, &超, &未満, &類似}) {
        句 = 位置(C, 1, F + *候補);
        if (句 > 0) {
            演算子 = *候補;
            break;
        }
    }
    if (句 == 0) return QString();

    const qsizetype q = 句 + F.size() + 演算子.size();
    qsizetype e = 位置(C, q, QStringLiteral("'"));
    // A value without its closing quote runs to the end of the text.
    if (e == 0) e = C.size() + 1;
    QString 値 = C.mid(q - 1, e - q);
    if (演算子 == 類似) 値 = 百分率記号除去(値);

    // For " > '", " < '" and " LIKE '" this looks for " >= '", which the operator search has
    // ruled out: p is 0 and everything in front of the clause is cut with it, on purpose.
    const bool 範囲 = 演算子 == 以上 || 演算子 == 以下 || 演算子 == 等しい;
    const qsizetype p = 位置(C, 1, F + (範囲 ? 演算子 : 以上));

    qsizetype s = 0;
    if (p >= 8) {
        if (位置(C, p - 7, QStringLiteral(" WHERE ")) > 0) {
            // For " = '" the start is looked for with " >= '" and so is 0: all in front of the
            // clause goes with it, the WHERE included. Kept so on purpose.
            s = 位置(C, 1, F + (演算子 == 等しい ? 以上 : 演算子));
            後続接続詞(C, e);
        } else {
            s = 位置(C, p - 5, QStringLiteral(" AND "));
        }
        if (s == 0) s = 位置(C, p - 4, QStringLiteral(" OR "));
        if (s == 0) s = 1;
    } else if (p >= 6) {
        s = 位置(C, p - 5, QStringLiteral(" AND "));
        if (s == 0) s = 位置(C, p - 4, QStringLiteral(" OR "));
        if (s == 0) s = 1;
    } else if (p == 5) {
        s = 位置(C, p - 4, QStringLiteral(" OR "));
        if (s == 0) s = 1;
    } else {
        s = 1;
        if (p == 1) 後続接続詞(C, e);
    }

    // A "(" between the start and the value makes it a bracketed clause, cut to its ")".
    if (s == 1) {
        残り = 以降(C, e + 1);
    } else {
        const qsizetype a = 位置(C, s, QStringLiteral("("));
        if (a == 0 || a <= s || a >= e)
            残り = C.left(s - 1) + 以降(C, e + 1);
        else
            残り = C.left(s - 1) + 以降(C, 位置(C, e, QStringLiteral(")")) + 1);
    }
    return 値;
}
