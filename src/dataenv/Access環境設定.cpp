#include "dataenv/Access環境設定.h"

#include "text/プラットフォーム.h"
#include "text/数値変換.h"
#include "text/数値書式.h"

namespace {

using キー = レジストリ::キー;
constexpr キー HKCU = レジストリ::HKEY_CURRENT_USER;
constexpr long 成功 = レジストリ::成功;

enum class 手順 { 関連付け, セキュリティ, 信頼済み場所 };

struct 版 {
    const char16_t* 名;
    手順 する事;
    const char16_t* キー版;
};

// The key version lags the folder name by one from Office 17 on, as Office itself names them.
constexpr 版 版表[] = {
    {u"OFFICE9", 手順::関連付け, u""},          {u"OFFICE10", 手順::関連付け, u""},
    {u"OFFICE11", 手順::セキュリティ, u"11.0"}, {u"OFFICE12", 手順::信頼済み場所, u"12.0"},
    {u"OFFICE14", 手順::信頼済み場所, u"14.0"}, {u"OFFICE15", 手順::信頼済み場所, u"15.0"},
    {u"OFFICE16", 手順::信頼済み場所, u"16.0"}, {u"OFFICE17", 手順::信頼済み場所, u"16.0"},
    {u"OFFICE18", 手順::信頼済み場所, u"17.0"},
};

// Names of keys compare as text, so that "Location10" stands below "Location9".
int 名前比較(const QString& a, const QString& b) {
    return QString::compare(a, b, Qt::CaseInsensitive);
}

// The number a "Location" key carries from its ninth character on.
double 場所番号(const QString& 名前) {
    return 数値変換(QStringView(名前).mid(qMin<qsizetype>(8, 名前.size())));
}

}  // namespace

Access環境::Access環境(レジストリ& 登録簿_, プラットフォーム& 基盤_, QString 帳票フォルダ_)
    : 登録簿(登録簿_), 基盤(基盤_), 帳票フォルダ(std::move(帳票フォルダ_)) {}

void Access環境::書込不可() {
    基盤.メッセージ(u"書き込みできません。"_qs);
}

bool Access環境::Access環境設定() {
    キー 鍵 = 0;
    if (登録簿.キーを開く(
            レジストリ::HKEY_LOCAL_MACHINE,
            u"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\MSACCESS.EXE"_qs,
            レジストリ::読取権限, 鍵) != 成功) {
        return false;
    }
    QString フォルダ;
    const bool 読めた = 登録簿.文字列を読む(鍵, u"Path"_qs, フォルダ) == 成功;
    登録簿.キーを閉じる(鍵);
    if (!読めた) return false;
    フォルダ = フォルダ.left(256);
    for (const 版& v : 版表) {
        if (!フォルダ.contains(QString::fromUtf16(v.名), Qt::CaseInsensitive)) continue;
        switch (v.する事) {
            case 手順::関連付け:
                return Access関連付け(フォルダ);
            case 手順::セキュリティ:
                return Accessセキュリティ設定(フォルダ);
            case 手順::信頼済み場所:
                return 信頼済み場所設定(フォルダ, 帳票フォルダ, QString::fromUtf16(v.キー版));
        }
    }
    return false;
}

bool Access環境::Access関連付け(const QString& Accessフォルダ) {
    キー 鍵 = 0;
    if (登録簿.キーを開く(HKCU, u"Software\\Microsoft\\Windows\\CurrentVersion\\Extensions"_qs,
                          レジストリ::全権限, 鍵) != 成功) {
        return false;
    }
    QString 現在;
    登録簿.文字列を読む(鍵, u"mdb"_qs, 現在);
    const QString 本体 = Accessフォルダ + u"MSACCESS.EXE"_qs;
    if (現在.left(256) != 本体 && 登録簿.文字列を書く(鍵, u"mdb"_qs, 本体) != 成功) 書込不可();
    登録簿.キーを閉じる(鍵);
    return true;
}

bool Access環境::Accessセキュリティ設定(const QString& Accessフォルダ) {
    Access関連付け(Accessフォルダ);
    キー 鍵 = 0;
    登録簿.キーを作る(HKCU, u"Software\\Microsoft\\Office\\11.0\\Access\\Security"_qs,
                      レジストリ::全権限, 鍵);
    // Without the key the write has nowhere to go, and fails as such.
    if (登録簿.数値を書く(鍵, u"Level"_qs, 1) != 成功) 書込不可();
    if (鍵 != 0) 登録簿.キーを閉じる(鍵);
    return true;
}

bool Access環境::信頼済み場所設定(const QString& Accessフォルダ, const QString& 信頼フォルダ,
                                  const QString& キー版) {
    const bool 関連付け = Access関連付け(Accessフォルダ);
    // Only the routine of Office 14 speaks of subkeys it cannot read.
    const bool 読めないと知らせる = キー版 == u"14.0";
    const QString 場所キー =
        u"Software\\Microsoft\\Office\\"_qs + キー版 + u"\\Access\\Security\\Trusted Locations"_qs;

    キー 場所 = 0;
    if (登録簿.キーを開く(HKCU, 場所キー, レジストリ::読取権限, 場所) != 成功 &&
        登録簿.キーを作る(HKCU, 場所キー, レジストリ::全権限, 場所) != 成功) {
        return 関連付け;
    }
    // Paths of this build are written with "/", so a network path begins with "//".
    if (信頼フォルダ.contains(u"//") &&
        登録簿.数値を書く(場所, u"AllowNetworkLocations"_qs, 1) != 成功) {
        書込不可();
    }

    QString 最高, 最低, 一致, 名前;
    quint32 件数 = 0;
    for (; 登録簿.副キー名(場所, 件数, 名前) == 成功; ++件数) {
        if (名前比較(最高, 名前) < 0) 最高 = 名前;
        if (件数 == 0 || 名前比較(最低, 名前) > 0) 最低 = 名前;
        // A subkey that does not open has no Path to read either: Office 14 says so twice.
        キー 副 = 0;
        if (登録簿.キーを開く(場所, 名前, レジストリ::読取権限, 副) != 成功 && 読めないと知らせる) {
            基盤.メッセージ(u"オープンできません。"_qs);
        }
        QString パス;
        if (登録簿.文字列を読む(副, u"Path"_qs, パス) != 成功) {
            if (読めないと知らせる) 基盤.メッセージ(u"オープンできません。"_qs);
        } else if (パス.contains(信頼フォルダ + u"/"_qs, Qt::CaseInsensitive)) {
            一致 = 名前;
        }
        if (副 != 0) 登録簿.キーを閉じる(副);
    }
    登録簿.キーを閉じる(場所);

    キー 鍵 = 0;
    bool 手元 = false;
    if (!一致.isEmpty()) {
        手元 = 登録簿.キーを開く(HKCU, 場所キー + u"\\"_qs + 一致, レジストリ::全権限, 鍵) == 成功;
    } else {
        // "###" writes nothing for 0: a lowest key numbered 1 makes a key named plain Location.
        QString 新名 = u"\\Location0"_qs;
        if (件数 > 0) {
            const double 最低番号 = 場所番号(最低);
            新名 = u"\\Location"_qs +
                   (最低番号 > 0 ? 書式(最低番号 - 1, u"###") : 書式(場所番号(最高) + 1, u"###"));
        }
        手元 = 登録簿.キーを作る(HKCU, 場所キー + 新名, レジストリ::全権限, 鍵) == 成功;
        if (!手元) 基盤.メッセージ(u"設定できません。"_qs);
    }
    if (手元) {
        if (登録簿.文字列を書く(鍵, u"Path"_qs, 信頼フォルダ + u"/"_qs) != 成功) 書込不可();
        if (登録簿.数値を書く(鍵, u"AllowSubfolder"_qs, 1) != 成功) 書込不可();
        登録簿.キーを閉じる(鍵);
    }
    return true;
}
