#pragma once

#include <QString>
#include <map>
#include <optional>
#include <vector>

#include "audit/出金履歴.h"

class 接続環境;
class 記録集合;

// The rows of one key as the stores left them, each in its meaning.
struct 履歴行群 {
    struct 明細行 {
        QString 履歴No;
        QString 登録日付, ユーザID;
        履歴明細 明細;
    };
    struct 見出し行 {
        QString 履歴No;
        std::vector<項目値> 見出し;
        QString 登録日付, 更新日付, ユーザID;
    };
    std::optional<見出し行> 現在見出し;  // T出金
    std::vector<明細行> 現在明細;        // T出金明細, by 出金行No
    std::vector<見出し行> 旧見出し;      // R出金, by history number
    std::vector<明細行> 新明細, 旧明細;  // R出金明細, 赤黒区分 "1" and "0"
    bool 空() const {
        return !現在見出し && 現在明細.empty() && 旧見出し.empty() && 新明細.empty() &&
               旧明細.empty();
    }
};

// Reads every row of the key; false when a statement failed.
bool 履歴行を読む(接続環境& 接続, const 伝票鍵& 鍵, 履歴行群& 行群);

// " WHERE 事業所コード = 'x' AND 番号基準日付 = 'y' AND 出金No = 'z'" with each part's quotes
// doubled: a key typed on a command line is not trusted.
QString 鍵の条件(const 伝票鍵& 鍵);
// Numeric order of history numbers, which are digits as text.
bool 番号順(const QString& 左, const QString& 右);
