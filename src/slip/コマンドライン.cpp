#include "slip/コマンドライン.h"

#include "slip/伝票鍵.h"

namespace {

// Behind the slip key: the slip date and the staff code.
constexpr qsizetype 日付位置 = 伝票鍵::桁数;
constexpr qsizetype 日付桁 = 8;
constexpr qsizetype 担当者位置 = 日付位置 + 日付桁;
constexpr qsizetype 担当者桁 = 5;

}  // namespace

起動コマンド 起動コマンド::解析(const QString& 引数) {
    起動コマンド c;
    c.全体 = 引数.trimmed();
    const 伝票鍵 鍵 = 伝票鍵を切り出す(c.全体);
    c.事業所コード = 鍵.事業所コード;
    c.番号基準日付 = 鍵.番号基準日付;
    c.出金No = 鍵.番号;
    c.出金日付 = c.全体.mid(日付位置, 日付桁);
    c.担当者コード = c.全体.mid(担当者位置, 担当者桁);
    return c;
}

起動モード 起動コマンド::モード() const {
    if (全体.isEmpty()) return 起動モード::通常;
    // The No is tested untrimmed: a single blank there still makes a key.
    if (事業所コード.trimmed().isEmpty() || 番号基準日付.trimmed().isEmpty() || 出金No.isEmpty()) {
        return 起動モード::不正;
    }
    if (番号基準日付 == u"00000000" && 出金No == u"00000000") return 起動モード::連携新規;
    return 起動モード::キー起動;
}
