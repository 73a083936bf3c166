#include "dataenv/データ環境.h"

#include "text/プラットフォーム.h"

データ環境::データ環境(プラットフォーム& 基盤, QString プログラムID)
    : 接続_(基盤, std::move(プログラムID)) {
    接続_.記録担当者設定([this] { return 操作者_.操作者().担当者コード; });
}

void データ環境::開始履歴書込() {
    操作者_.操作者読込();
    接続_.開始履歴書込();
}

bool データ環境::人事連携選択(const QString& 業務名) {
    const 他業務連携情報& 連携 = 会社_.他業務連携();
    // Ascending, so of two slots that hold one row the first wins.
    for (short i = 0; i < 連携.スロット数; ++i) {
        const 他業務連携スロット& 枠 = 連携.スロット[i];
        if (枠.業務名 == 業務名 && 枠.連携有無区分 == 1) {
            接続_.連携スロット選択(i, 枠.連携アプリフォルダ);
            return true;
        }
    }
    return false;
}

bool データ環境::人事連携開始() {
    連携スロット環境* L = 接続_.連携先();
    if (L == nullptr) return false;
    if (!L->アプリフォルダ.isEmpty()) {
        if (!接続_.連携SYB_OPEN()) return false;
        // The HR system may start this program as well, with its request in its own tables.
        if (連携_.受信起動連携情報().isEmpty()) {
            const QString 最早 = 基盤().現在時刻().addSecs(-60).toString(u"yyyyMMdd HHmmss"_qs);
            連携_.人事側連携受信(接続_.コマンドライン().trimmed(), 最早);
        }
    }
    return 接続_.連携DB_OPEN();
}

void データ環境::人事連携終了() {
    連携スロット環境* L = 接続_.連携先();
    if (L == nullptr) return;
    if (!L->連携起動連携情報.isEmpty()) {
        連携_.人事側連携発信(L->連携起動連携情報, L->連携終了連携情報);
    }
    接続_.連携接続終了();
}
