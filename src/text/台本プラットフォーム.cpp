#include "text/台本プラットフォーム.h"

#include <QFileInfo>

namespace {
// With no answer queued, a box is closed by its default button, as Enter would close it.
応答 既定の応答(const メッセージ指定& 指定) {
    static const QList<応答> 並び[] = {
        {応答::OK},
        {応答::OK, 応答::キャンセル},
        {応答::中止, 応答::再試行, 応答::無視},
        {応答::はい, 応答::いいえ, 応答::キャンセル},
        {応答::はい, 応答::いいえ},
        {応答::再試行, 応答::キャンセル},
    };
    const auto& ボタン = 並び[static_cast<int>(指定.ボタン)];
    const int i = 指定.既定ボタン - 1;
    return ボタン.value(i >= 0 && i < ボタン.size() ? i : 0);
}

// The answer that changes nothing, given after an unanswered question was told.
応答 控えめな応答(ボタン種別 ボタン) {
    switch (ボタン) {
        case ボタン種別::はいいいえ:
            return 応答::いいえ;
        case ボタン種別::中止再試行無視:
            return 応答::中止;
        case ボタン種別::OK:
            return 応答::OK;
        default:
            return 応答::キャンセル;
    }
}
}  // namespace

応答 台本プラットフォーム::メッセージ表示(const メッセージ指定& 指定) {
    表示済み.append(指定);
    if (!回答.isEmpty()) return 回答.dequeue();
    // A box with OK alone tells; any other asks, and its answer belongs to the script.
    if (指定.ボタン != ボタン種別::OK && 漏れを告げる(u"答えの無い問い: "_qs + 指定.本文))
        return 控えめな応答(指定.ボタン);
    return 既定の応答(指定);
}

bool 台本プラットフォーム::文書を開く(const QString& パス, const QString&) {
    開いた文書.append(パス);
    return true;
}

bool 台本プラットフォーム::プログラム起動(const QString& プログラム, const QStringList& 引数,
                                          const QString& 作業フォルダ) {
    起動済み.append({プログラム, 引数, 作業フォルダ});
    // As the system's start would: only a program file that is there starts.
    const QFileInfo 情報(プログラム);
    return 情報.isFile() && 情報.isExecutable();
}

QString 台本プラットフォーム::ファイル選択(const QString& 開始フォルダ, const QString& 絞込) {
    選択済み.append({u"ファイル"_qs, 絞込, 開始フォルダ});
    if (選択中) 選択中();
    return 選択回答.isEmpty() ? QString() : 選択回答.dequeue();
}

QString 台本プラットフォーム::フォルダ選択(const QString& 題名, const QString& 開始フォルダ) {
    選択済み.append({u"フォルダ"_qs, 題名, 開始フォルダ});
    if (選択中) 選択中();
    return 選択回答.isEmpty() ? QString() : 選択回答.dequeue();
}

QStringList 台本プラットフォーム::表示文言() const {
    QStringList 文言;
    for (const auto& m : 表示済み) 文言.append(m.本文);
    return 文言;
}
