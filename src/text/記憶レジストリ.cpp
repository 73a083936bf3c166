#include "text/記憶レジストリ.h"

namespace {

QString 正規(const QString& パス) {
    return パス.toUpper();
}

QString 親の名(レジストリ::キー 鍵) {
    if (鍵 == レジストリ::HKEY_CURRENT_USER) return u"HKEY_CURRENT_USER"_qs;
    if (鍵 == レジストリ::HKEY_LOCAL_MACHINE) return u"HKEY_LOCAL_MACHINE"_qs;
    return {};
}

}  // namespace

bool 記憶レジストリ::含む(const QStringList& 一覧, const QString& パス) {
    for (const QString& p : 一覧) {
        if (正規(p) == 正規(パス)) return true;
    }
    return false;
}

void 記憶レジストリ::キー作成(const QString& パス) {
    qsizetype i = -1;
    do {
        i = パス.indexOf(u'\\', i + 1);
        const QString 途中 = i < 0 ? パス : パス.left(i);
        if (!ノード表.contains(正規(途中))) ノード表.insert(正規(途中), ノード{途中, {}});
    } while (i >= 0);
}

void 記憶レジストリ::文字列設定(const QString& パス, const QString& 名前, const QString& 文字列) {
    キー作成(パス);
    ノード表[正規(パス)].値表.insert(正規(名前), {名前, 登録値{false, 文字列, 0}});
}

bool 記憶レジストリ::キーあり(const QString& パス) const {
    return ノード表.contains(正規(パス));
}

std::optional<記憶レジストリ::登録値> 記憶レジストリ::値取得(const QString& パス,
                                                             const QString& 名前) const {
    const auto n = ノード表.constFind(正規(パス));
    if (n == ノード表.cend()) return std::nullopt;
    const auto v = n->値表.constFind(正規(名前));
    if (v == n->値表.cend()) return std::nullopt;
    return v->second;
}

QStringList 記憶レジストリ::副キー一覧(const QString& パス) const {
    const QString 前 = 正規(パス) + u'\\';
    QStringList 名前;
    for (auto it = ノード表.cbegin(); it != ノード表.cend(); ++it) {
        if (it.key().startsWith(前) && !it.key().mid(前.size()).contains(u'\\')) {
            名前.append(it->パス.mid(前.size()));
        }
    }
    return 名前;
}

std::optional<QString> 記憶レジストリ::位置(キー 親, const QString& 副キー) const {
    QString 上 = 親の名(親);
    if (上.isEmpty()) {
        const auto it = 開放中.constFind(親);
        if (it == 開放中.cend()) return std::nullopt;
        上 = ノード表.value(*it).パス;
    }
    return 副キー.isEmpty() ? 上 : 上 + u'\\' + 副キー;
}

レジストリ::キー 記憶レジストリ::手渡し(const QString& パス, quint32 権限, bool 作成) {
    const キー 鍵 = 次の鍵++;
    開放中.insert(鍵, 正規(パス));
    開いた記録.append({ノード表.value(正規(パス)).パス, 権限, 作成});
    return 鍵;
}

long 記憶レジストリ::キーを開く(キー 親, const QString& 副キー, quint32 権限, キー& 結果) {
    結果 = 0;
    const auto パス = 位置(親, 副キー);
    if (!パス) return 拒否;
    if (!キーあり(*パス)) return 見つからない;
    if (含む(開けないキー, *パス)) return 拒否;
    結果 = 手渡し(*パス, 権限, false);
    return 成功;
}

long 記憶レジストリ::キーを作る(キー 親, const QString& 副キー, quint32 権限, キー& 結果) {
    結果 = 0;
    const auto パス = 位置(親, 副キー);
    if (!パス) return 拒否;
    if (!キーあり(*パス)) {
        if (含む(作れないキー, *パス)) return 拒否;
        キー作成(*パス);
        ++書込回数;
    }
    if (含む(開けないキー, *パス)) return 拒否;
    結果 = 手渡し(*パス, 権限, true);
    return 成功;
}

long 記憶レジストリ::副キー名(キー 鍵, quint32 番号, QString& 名前) {
    const auto it = 開放中.constFind(鍵);
    if (it == 開放中.cend()) return 拒否;
    const QStringList 一覧 = 副キー一覧(*it);
    if (番号 >= static_cast<quint32>(一覧.size())) return 項目なし;
    名前 = 一覧[番号];
    return 成功;
}

long 記憶レジストリ::文字列を読む(キー 鍵, const QString& 名前, QString& 値) {
    const auto it = 開放中.constFind(鍵);
    if (it == 開放中.cend()) return 拒否;
    if (含む(読めない値, *it + u'\\' + 名前)) return 拒否;
    const auto v = 値取得(*it, 名前);
    if (!v) return 見つからない;
    値 = v->数値型 ? QString() : v->文字列;
    return 成功;
}

long 記憶レジストリ::書く(キー 鍵, const QString& 名前, const 登録値& v) {
    const auto it = 開放中.constFind(鍵);
    if (it == 開放中.cend()) return 拒否;
    if (含む(書けないキー, *it)) return 拒否;
    ノード表[*it].値表.insert(正規(名前), {名前, v});
    ++書込回数;
    return 成功;
}

long 記憶レジストリ::文字列を書く(キー 鍵, const QString& 名前, const QString& 値) {
    return 書く(鍵, 名前, 登録値{false, 値, 0});
}

long 記憶レジストリ::数値を書く(キー 鍵, const QString& 名前, quint32 値) {
    return 書く(鍵, 名前, 登録値{true, {}, 値});
}

long 記憶レジストリ::キーを閉じる(キー 鍵) {
    return 開放中.remove(鍵) ? 成功 : 拒否;
}
