#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QStringList>
#include <optional>

#include "text/レジストリ.h"

// A registry held in memory, for the tests: keys are set up with the values a case needs, and
// what the program did to them is read back afterwards. Keys are written as whole paths from
// their root, "HKEY_CURRENT_USER\Software\...", and named case-insensitively, as in Windows.
// The access asked for at an open is recorded, not enforced.
class 記憶レジストリ : public レジストリ {
  public:
    struct 登録値 {
        bool 数値型 = false;
        QString 文字列;
        quint32 数値 = 0;
    };
    struct 開記録 {
        QString パス;
        quint32 権限 = 0;
        bool 作成 = false;
    };

    void キー作成(const QString& パス);
    void 文字列設定(const QString& パス, const QString& 名前, const QString& 文字列);
    bool キーあり(const QString& パス) const;
    std::optional<登録値> 値取得(const QString& パス, const QString& 名前) const;
    // The names of the subkeys, in the order of enumeration.
    QStringList 副キー一覧(const QString& パス) const;

    // Failures to play back: keys that refuse to open, to be created or to take a value, and
    // values ("key\name") that cannot be read.
    QStringList 開けないキー, 作れないキー, 書けないキー, 読めない値;

    QList<開記録> 開いた記録;  // every open and create that succeeded
    int 書込回数 = 0;          // values written and keys created
    int 開いたままのキー() const { return static_cast<int>(開放中.size()); }

    long キーを開く(キー 親, const QString& 副キー, quint32 権限, キー& 結果) override;
    long キーを作る(キー 親, const QString& 副キー, quint32 権限, キー& 結果) override;
    long 副キー名(キー 鍵, quint32 番号, QString& 名前) override;
    long 文字列を読む(キー 鍵, const QString& 名前, QString& 値) override;
    long 文字列を書く(キー 鍵, const QString& 名前, const QString& 値) override;
    long 数値を書く(キー 鍵, const QString& 名前, quint32 値) override;
    long キーを閉じる(キー 鍵) override;

  private:
    struct ノード {
        QString パス;                                // as first spelled
        QMap<QString, QPair<QString, 登録値>> 値表;  // by the upper-case name
    };
    std::optional<QString> 位置(キー 親, const QString& 副キー) const;
    long 書く(キー 鍵, const QString& 名前, const 登録値& v);
    キー 手渡し(const QString& パス, quint32 権限, bool 作成);
    static bool 含む(const QStringList& 一覧, const QString& パス);

    QMap<QString, ノード> ノード表;  // by the upper-case path
    QHash<キー, QString> 開放中;     // open handles and the path of their key
    キー 次の鍵 = 1;
};
