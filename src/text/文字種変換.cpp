#include <QHash>

#include "text/項目編集.h"

namespace {

// Each sign in the one full-width form the system wants, the apostrophe and the backslash
// included: they become "’" and "￥", not their plain full-width forms.
const QHash<char16_t, char16_t> 記号表 = {
    {u'!', u'！'}, {u'#', u'＃'},  {u'$', u'＄'}, {u'%', u'％'}, {u'&', u'＆'}, {u'\'', u'’'},
    {u'(', u'（'}, {u')', u'）'},  {u'=', u'＝'}, {u'~', u'～'}, {u'-', u'－'}, {u'+', u'＋'},
    {u'*', u'＊'}, {u'[', u'［'},  {u']', u'］'}, {u'@', u'＠'}, {u':', u'：'}, {u'{', u'｛'},
    {u'ｰ', u'ー'}, {u'\\', u'￥'}, {u';', u'；'}, {u'.', u'．'}, {u',', u'，'}, {u'/', u'／'},
    {u'?', u'？'}, {u'<', u'＜'},  {u'>', u'＞'}, {u'}', u'｝'}, {u'_', u'＿'}, {u'|', u'｜'},
};

// "ｦ", the small kana and "ｱ" to "ﾝ" stand in one run of the half-width block.
constexpr char16_t 半角仮名始め = u'ｦ';
constexpr char16_t 全角仮名[] =
    u"ヲァィゥェォャュョッ"
    u"ー"
    u"アイウエオカキクケコサシスセソタチツテトナニヌネノ"
    u"ハヒフヘホマミムメモヤユヨラリルレロワン";

// Kana that take a voiced or semi-voiced mark, with their marked forms.
const QHash<char16_t, char16_t> 濁音表 = {
    {u'ｳ', u'ヴ'}, {u'ｶ', u'ガ'}, {u'ｷ', u'ギ'}, {u'ｸ', u'グ'}, {u'ｹ', u'ゲ'}, {u'ｺ', u'ゴ'},
    {u'ｻ', u'ザ'}, {u'ｼ', u'ジ'}, {u'ｽ', u'ズ'}, {u'ｾ', u'ゼ'}, {u'ｿ', u'ゾ'}, {u'ﾀ', u'ダ'},
    {u'ﾁ', u'ヂ'}, {u'ﾂ', u'ヅ'}, {u'ﾃ', u'デ'}, {u'ﾄ', u'ド'}, {u'ﾊ', u'バ'}, {u'ﾋ', u'ビ'},
    {u'ﾌ', u'ブ'}, {u'ﾍ', u'ベ'}, {u'ﾎ', u'ボ'},
};
const QHash<char16_t, char16_t> 半濁音表 = {
    {u'ﾊ', u'パ'}, {u'ﾋ', u'ピ'}, {u'ﾌ', u'プ'}, {u'ﾍ', u'ペ'}, {u'ﾎ', u'ポ'},
};

}  // namespace

QString 文字種変換(const QString& 文字列) {
    QString 結果;
    結果.reserve(文字列.size());
    for (qsizetype i = 0; i < 文字列.size(); ++i) {
        const char16_t c = 文字列[i].unicode();
        const char16_t 次 = i + 1 < 文字列.size() ? 文字列[i + 1].unicode() : 0;
        if ((c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z')) {
            結果 += QChar(c + (u'０' - u'0'));  // one offset serves digits and letters alike
        } else if (記号表.contains(c)) {
            結果 += QChar(記号表.value(c));
        } else if (次 == u'ﾞ' && 濁音表.contains(c)) {
            結果 += QChar(濁音表.value(c));
            ++i;
        } else if (次 == u'ﾟ' && 半濁音表.contains(c)) {
            結果 += QChar(半濁音表.value(c));
            ++i;
        } else if (c >= 半角仮名始め && c <= u'ﾝ' && c != u'ｰ') {
            結果 += QChar(全角仮名[c - 半角仮名始め]);
        } else {
            結果 += QChar(c);
        }
    }
    return 結果;
}
