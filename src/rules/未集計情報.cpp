#include "rules/未集計情報.h"

#include "dataenv/会社情報.h"
#include "dataenv/接続環境.h"
#include "rules/番号設定.h"
#include "text/数値変換.h"

bool 未集計情報は業務DBへ(const 会社情報& 会社) {
    return 会社.更新実行区分 == 1;
}

namespace {

QString 未集計情報文(接続環境& 接続, const QString& 登録情報区分, const QString& 赤黒区分,
                     const QString& 番号ID, const QString& 事業所コード,
                     const QString& 番号基準日付, const QString& 伝票No, const QString& 履歴No) {
    return u"INSERT INTO [未集計情報] "_qs + u"(事業所コード"_qs + u",番号ID"_qs +
           u",番号基準日付"_qs + u",履歴No"_qs + u",赤黒区分"_qs + u",伝票No"_qs +
           u",追加キー項目"_qs + u",データフラグ"_qs + u",登録情報区分"_qs + u",予備項目)"_qs +
           u" VALUES "_qs + u"('"_qs + 事業所コード + u"'"_qs + u",'"_qs + 番号ID + u"'"_qs +
           u",'"_qs + 番号基準日付 + u"'"_qs + u",'"_qs + 履歴No + u"'"_qs + u",'"_qs + 赤黒区分 +
           u"'"_qs + u",'"_qs + 伝票No + u"'"_qs + u",''"_qs + u",'0'"_qs + u",'"_qs +
           登録情報区分 + u"'"_qs + u",'"_qs + 記録者ID(接続.環境()) + u"')"_qs;
}

書込結果 結果に(bool 成功) {
    if (成功) return {1, {}};
    return {3, u"登録済です。登録できませんでした。"_qs};
}

// The rows of one store of a slip, old state first, each with the statement that writes it.
template <typename 書く>
void 状態ごとに(接続環境& 接続, const 保存状態& 状態, 書く 書込) {
    const QString 番号ID = 番号定数::出金番号ID.toString();
    if (数値変換(状態.旧出金履歴No) != 0) {
        書込(未集計情報文(接続, 状態.処理区分, u"0"_qs, 番号ID, 状態.事業所コード,
                          状態.旧番号基準日付, 状態.旧出金No, 状態.旧出金履歴No));
    }
    if (数値変換(状態.出金履歴No) != 0) {
        書込(未集計情報文(接続, 状態.処理区分, u"1"_qs, 番号ID, 状態.事業所コード,
                          状態.番号基準日付, 状態.出金No, 状態.出金履歴No));
    }
}

書込結果 未集計情報文書込(接続環境& 接続, const 会社情報& 会社, const QString& 文) {
    return 結果に(未集計情報は業務DBへ(会社) ? 接続.業務DB実行(文, true) : 接続.環境DB実行(文));
}

}  // namespace

書込結果 未集計情報書込(接続環境& 接続, const 会社情報& 会社, const QString& 登録情報区分,
                        const QString& 赤黒区分, const QString& 番号ID, const QString& 事業所コード,
                        const QString& 番号基準日付, const QString& 伝票No, const QString& 履歴No) {
    return 未集計情報文書込(接続, 会社,
                            未集計情報文(接続, 登録情報区分, 赤黒区分, 番号ID, 事業所コード,
                                         番号基準日付, 伝票No, 履歴No));
}

std::optional<書込結果> 出金未集計情報書込(接続環境& 接続, const 会社情報& 会社,
                                           const 保存状態& 状態) {
    std::optional<書込結果> 結果;
    状態ごとに(接続, 状態, [&](const QString& 文) { 結果 = 未集計情報文書込(接続, 会社, 文); });
    return 結果;
}

void 出金未集計情報を送る(接続環境& 接続, const 保存状態& 状態,
                          const std::function<void(const 書込結果&)>& 受け) {
    状態ごとに(接続, 状態, [&](const QString& 文) {
        接続.業務DB後で実行(
            文, [受け](bool 成功) { 受け(結果に(成功)); }, true);
    });
}
