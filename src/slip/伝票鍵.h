#pragma once

#include <QString>
#include <array>
#include <optional>

// Where a table holds a key: its three columns in the order its statements name them, the
// table's name when they are qualified, and the column of a line's own id in a line table.
struct 鍵の列 {
    enum 部分 { 事業所, 基準日付, 番号 };
    struct 列 {
        部分 何;
        QString 名前;
    };
    QString 表;  // empty: the columns go unqualified
    std::array<列, 3> 列順;
    QString 行列 = {};

    // The tables and statements the key reaches, each as it names the columns.
    // A slip by its key, in the slip, its lines (past line pick) and its store checks.
    static const 鍵の列 T出金;
    static const 鍵の列 T出金明細;
    // The header read names the number first and qualifies every column.
    static const 鍵の列 T出金読込;
    // The lines of a slip, read and moved to the history.
    static const 鍵の列 T出金明細表付;
    // A history row by its history number, which runs in the slip's number sequence.
    static const 鍵の列 R出金履歴;
    // The schedule rows of the sales activity program that point at a slip.
    static const 鍵の列 T営業活動明細;
    // A trip application of the HR link and its travel expense rows.
    static const 鍵の列 T出張申請;
    static const 鍵の列 T出張旅費;
};

// The key of a numbered document (a slip, a trip application): office (3), number base date (8)
// and number (8), one text of 19 characters wherever it travels as one string.
struct 伝票鍵 {
    static constexpr qsizetype 事業所桁 = 3;
    static constexpr qsizetype 日付桁 = 8;
    static constexpr qsizetype 番号桁 = 8;
    static constexpr qsizetype 桁数 = 事業所桁 + 日付桁 + 番号桁;

    QString 事業所コード;
    QString 番号基準日付;
    QString 番号;

    QString 文字列() const;
    // As a list row keeps it: "C" before the 19 characters, since a list key must not be
    // purely numeric.
    QString 一覧の文字列() const;
    // As a reader sees it: "000-20260331-00000001".
    QString 表示() const;
    // The same number sequence with another number in it.
    伝票鍵 番号替え(const QString& 別の番号) const;
    // " WHERE a = 'x' AND b = 'y' AND c = 'z'" in the table's columns; the parts go in as they
    // are, the way every statement of the slip program takes them.
    QString 条件(const 鍵の列& 列) const;
    // " [a] = 'x',[b] = 'y',[c] = 'z'", the SET list that points rows at the key.
    QString 設定(const 鍵の列& 列) const;

    bool operator==(const 伝票鍵&) const = default;
};

// Exactly 19 characters; anything else is not a key.
std::optional<伝票鍵> 伝票鍵を読む(const QString& 文字列);
// The parts cut at their places, however long the text: a short one gives short or empty parts.
// The command line and the past line pick take their keys this way.
伝票鍵 伝票鍵を切り出す(const QString& 文字列);
// The key a number list hands back on a pick: one marker character, then the 19 characters.
std::optional<伝票鍵> 一覧の伝票鍵(const QString& 文字列);
// A list's answer taken as a key when it is one and does not name the table (that is a
// condition, never a key); the answer is used up then.
std::optional<伝票鍵> 答えの鍵を取る(std::optional<QString>& 答え, QStringView 表の語);

// A line of a stored slip: its slip's key and its own id, 出金固有行No (3 characters).
struct 明細鍵 {
    static constexpr qsizetype 行桁 = 3;

    伝票鍵 伝票;
    QString 固有行No;

    // The slip's condition and the line's id behind it.
    QString 条件(const 鍵の列& 列) const;
};

// 22 characters: the slip key, then the line id; cut like 伝票鍵を切り出す.
明細鍵 明細鍵を切り出す(const QString& 文字列);
