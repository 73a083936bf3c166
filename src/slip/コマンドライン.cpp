#include "slip/コマンドライン.h"

起動コマンド 起動コマンド::解析(const QString& 引数) {
    起動コマンド c;
    c.全体 = 引数.trimmed();
    c.事業所コード = c.全体.mid(0, 3);
    c.番号基準日付 = c.全体.mid(3, 8);
    c.出金No = c.全体.mid(11, 8);
    c.出金日付 = c.全体.mid(19, 8);
    c.担当者コード = c.全体.mid(27, 5);
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
