#include <gtest/gtest.h>

#include "rules/登録番号.h"

namespace {

// Check digits worked by hand: the twelve digits from the right, weighted 1, 2, 1, 2 ...
//   000012050002 (the corporate number of the National Tax Agency, 7000012050002):
//     2·1 + 0·2 + 0·1 + 0·2 + 5·1 + 0·2 + 2·1 + 1·2 + 0 + 0 + 0 + 0 = 11; 11 mod 9 = 2; 9 − 2 = 7
//   123456789012: 2·1 + 1·2 + 0·1 + 9·2 + 8·1 + 7·2 + 6·1 + 5·2 + 4·1 + 3·2 + 2·1 + 1·2
//     = 2 + 2 + 0 + 18 + 8 + 14 + 6 + 10 + 4 + 6 + 2 + 2 = 74; 74 mod 9 = 2; 9 − 2 = 7
//   000000000000: 0; 9 − 0 = 9 (a remainder of 0 gives 9, never 0)
//   000000000009: 9·1 = 9; 9 mod 9 = 0; 9
//   000000000010: 1·2 = 2; 9 − 2 = 7
//   999999999999: six 9·1 and six 9·2 = 54 + 108 = 162; 162 mod 9 = 0; 9
//   000000000001: 1; 9 − 1 = 8
struct 既知の番号 {
    const char16_t* 十二桁;
    int 検査数字;
};
const 既知の番号 既知[] = {
    {u"000012050002", 7}, {u"123456789012", 7}, {u"000000000000", 9}, {u"000000000009", 9},
    {u"000000000010", 7}, {u"999999999999", 9}, {u"000000000001", 8},
};

TEST(登録番号, 検査数字は手計算の表と一致する) {
    for (const 既知の番号& n : 既知) {
        EXPECT_EQ(登録番号検査数字(QStringView(n.十二桁)), n.検査数字)
            << QString::fromUtf16(n.十二桁).toStdString();
    }
}

TEST(登録番号, 表の番号はTを付けて正しく検査数字を変えると拒まれる) {
    for (const 既知の番号& n : 既知) {
        const QString 十二桁 = QString::fromUtf16(n.十二桁);
        EXPECT_EQ(登録番号検査(u"T"_qs + QString::number(n.検査数字) + 十二桁),
                  登録番号判定::正しい);
        for (int 他 = 0; 他 <= 9; ++他) {
            if (他 == n.検査数字) continue;
            EXPECT_EQ(登録番号検査(u"T"_qs + QString::number(他) + 十二桁),
                      登録番号判定::検査数字誤り)
                << 他 << 十二桁.toStdString();
        }
    }
}

TEST(登録番号, 形の違う番号は形式誤りとして拒まれる) {
    const QString 誤り[] = {
        u""_qs,
        u"7000012050002"_qs,    // no T
        u"t7000012050002"_qs,   // lower case
        u"T700001205000"_qs,    // twelve digits
        u"T70000120500021"_qs,  // fourteen digits
        u"T７000012050002"_qs,  // a full-width digit
        u"T7000-12050002"_qs,   // a hyphen
        u" T7000012050002"_qs,  // a blank in front
        u"Ｔ7000012050002"_qs,  // a full-width T
    };
    for (const QString& n : 誤り) {
        EXPECT_EQ(登録番号検査(n), 登録番号判定::形式誤り) << n.toStdString();
    }
}

TEST(登録番号, 形式誤りと検査数字誤りはそれぞれの文言で告げられる) {
    const QString 形式 = 登録番号判定文言(登録番号判定::形式誤り);
    const QString 検査 = 登録番号判定文言(登録番号判定::検査数字誤り);
    EXPECT_EQ(形式, u"登録番号は「T」と13桁の半角数字で入力してください。"_qs);
    EXPECT_EQ(検査, u"登録番号の検査用数字が一致しません。番号を確かめてください。"_qs);
    EXPECT_TRUE(登録番号判定文言(登録番号判定::正しい).isEmpty());
}

TEST(登録番号, 十二桁でない本体や数字でない本体に検査数字はない) {
    EXPECT_EQ(登録番号検査数字(u"00001205000"), -1);
    EXPECT_EQ(登録番号検査数字(u"0000120500021"), -1);
    EXPECT_EQ(登録番号検査数字(u"00001205000A"), -1);
}

}  // namespace
