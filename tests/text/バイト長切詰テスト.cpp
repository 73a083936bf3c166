#include <gtest/gtest.h>

#include <QList>
#include <clocale>
#include <random>

#include "text/項目編集.h"

TEST(バイト長切詰, 上限を超えると全角文字をまるごと落とす) {
    EXPECT_EQ(バイト長切詰(u"あいう"_qs, 5), u"あい"_qs);
}

TEST(バイト長切詰, 上限ちょうどならそのまま返す) {
    EXPECT_EQ(バイト長切詰(u"あいう"_qs, 6), u"あいう"_qs);
}

TEST(バイト長切詰, 最初の全角文字が入らなければ空になる) {
    EXPECT_EQ(バイト長切詰(u"あいう"_qs, 1), QString());
}

TEST(バイト長切詰, 空の文字列は空のまま) {
    EXPECT_EQ(バイト長切詰(QString(), 5), QString());
    EXPECT_EQ(バイト長切詰(QString(), 0), QString());
}

TEST(バイト長切詰, 半角文字は一バイトと数える) {
    EXPECT_EQ(バイト長切詰(u"abcdef"_qs, 4), u"abcd"_qs);
    EXPECT_EQ(バイト長切詰(u"ｱｲｳｴ"_qs, 3), u"ｱｲｳ"_qs);
    EXPECT_EQ(バイト長切詰(u"aあb"_qs, 2), u"a"_qs);
    EXPECT_EQ(バイト長切詰(u"aあb"_qs, 3), u"aあ"_qs);
}

TEST(バイト長切詰, 上限ゼロや負なら空になる) {
    EXPECT_EQ(バイト長切詰(u"a"_qs, 0), QString());
    EXPECT_EQ(バイト長切詰(u"a"_qs, -1), QString());
    EXPECT_EQ(バイト長切詰(u"あいう"_qs, -5), QString());
    EXPECT_EQ(バイト長切詰(QString(), -1), QString());
}

TEST(バイト長切詰, 基本面の外の文字は二バイトと数え割らずに落とす) {
    const QString 𠮷 = QString::fromUcs4(U"\U00020BB7");
    EXPECT_EQ(バイト長切詰(u"a"_qs + 𠮷 + u"b"_qs, 2), u"a"_qs);
    EXPECT_EQ(バイト長切詰(u"a"_qs + 𠮷 + u"b"_qs, 3), u"a"_qs + 𠮷);
    EXPECT_EQ(バイト長切詰(u"😀😀"_qs, 3), u"😀"_qs);
    EXPECT_EQ(バイト長切詰(u"😀"_qs, 1), QString());
}

TEST(バイト長切詰, シフトJISのバイト長を数える) {
    EXPECT_EQ(シフトJISバイト長(u"あa"_qs), 3);
    EXPECT_EQ(シフトJISバイト長(u"ｶﾞ"_qs), 2);
    EXPECT_EQ(シフトJISバイト長(u"出金伝票"_qs), 8);
    EXPECT_EQ(シフトJISバイト長(QString()), 0);
}

TEST(バイト長切詰, 機種依存文字もCP932の二バイトと数える) {
    EXPECT_EQ(シフトJISバイト長(u"①"_qs), 2);
    EXPECT_EQ(シフトJISバイト長(u"～"_qs), 2);
}

TEST(バイト長切詰, シフトJISにない文字は一バイトと数える) {
    EXPECT_EQ(シフトJISバイト長(u"é"_qs), 1);
    EXPECT_EQ(シフトJISバイト長(u"😀"_qs), 2);  // two UTF-16 units, two "?"
}

TEST(バイト長切詰, ロケールにかかわらずシフトJISで数える) {
    const std::string 元 = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(シフトJISバイト長(u"あいう"_qs), 6);
    EXPECT_EQ(バイト長切詰(u"あいう"_qs, 5), u"あい"_qs);
    std::setlocale(LC_ALL, 元.c_str());
}

namespace {

// A piece of random text with the bytes it takes in CP932, known from the kind of character.
struct 試験文字 {
    QString 文字;
    int バイト数;
};

試験文字 無作為の文字(std::mt19937& 乱数) {
    static const QList<試験文字> 表の文字 = {{u"あ"_qs, 2}, {u"出"_qs, 2}, {u"金"_qs, 2},
                                             {u"①"_qs, 2},  {u"ー"_qs, 2}, {u"é"_qs, 1}};
    static const QList<試験文字> 面外 = {{u"😀"_qs, 2}, {QString::fromUcs4(U"\U00020BB7"), 2}};
    switch (乱数() % 4) {
        case 0:
            return {QString(QChar(char16_t(0x20 + 乱数() % 0x5F))), 1};
        case 1:
            return {QString(QChar(char16_t(0xFF61 + 乱数() % 0x3F))), 1};
        case 2:
            return 表の文字[乱数() % 表の文字.size()];
        default:
            return 面外[乱数() % 面外.size()];
    }
}

}  // namespace

// Against the rule itself: at most N bytes, whole characters, and no longer such start exists.
TEST(バイト長切詰, 無作為の文字列でも最長の丸ごとの文字の頭を返す) {
    std::mt19937 乱数(20251120);
    for (int 回 = 0; 回 < 4000; ++回) {
        QList<試験文字> 文字;
        QString 文字列;
        for (int i = 0, n = 乱数() % 16; i < n; ++i) {
            文字.append(無作為の文字(乱数));
            文字列 += 文字.last().文字;
        }
        const int 上限 = int(乱数() % 40) - 4;

        QString 期待;
        int バイト = 0;
        for (const 試験文字& c : 文字) {
            if (バイト + c.バイト数 > 上限) break;
            バイト += c.バイト数;
            期待 += c.文字;
        }
        const QString 結果 = バイト長切詰(文字列, 上限);
        ASSERT_EQ(結果, 期待) << "limit " << 上限 << " text " << 文字列.toStdString();
        ASSERT_LE(シフトJISバイト長(結果), std::max(上限, 0));
        ASSERT_TRUE(結果.isEmpty() || !結果.back().isHighSurrogate());
    }
}
