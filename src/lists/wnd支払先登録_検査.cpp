#include <QDate>

#include "lists/wnd支払先登録.h"
#include "rules/登録番号.h"

namespace {

bool 日付か(const QString& 日付) {
    return 日付.size() == 8 && QDate::fromString(日付, u"yyyyMMdd"_qs).isValid();
}

// An open end reaches past every date.
QString 終わり(const QString& 終了日) {
    return 終了日.isEmpty() ? u"99999999"_qs : 終了日;
}

}  // namespace

QString 支払先登録検査(const 支払先登録& r, const QList<QPair<QString, QString>>& 他の期間) {
    if (r.支払先.isEmpty()) return u"支払先を入力してください。"_qs;
    const 登録番号判定 判定 = 登録番号検査(r.登録番号);
    if (判定 != 登録番号判定::正しい) return 登録番号判定文言(判定);
    if (r.登録名称.isEmpty()) return u"登録名称を入力してください。"_qs;
    if (!日付か(r.有効開始日)) return u"有効開始日は YYYYMMDD の日付で入力してください。"_qs;
    if (!r.有効終了日.isEmpty() && !日付か(r.有効終了日))
        return u"有効終了日は YYYYMMDD の日付で入力するか、空にしてください。"_qs;
    if (!r.有効終了日.isEmpty() && r.有効終了日 < r.有効開始日)
        return u"有効終了日が有効開始日より前です。"_qs;
    // Two periods of one payee must not overlap, or the export could not tell which holds.
    for (const auto& [開始, 終了] : 他の期間) {
        if (r.有効開始日 <= 終わり(終了) && 開始 <= 終わり(r.有効終了日)) {
            return u"支払先「"_qs + r.支払先 + u"」には期間の重なる登録（"_qs + 開始 + u"～"_qs +
                   終了 + u"）があります。"_qs;
        }
    }
    return {};
}
