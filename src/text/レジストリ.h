#pragma once

#include <QString>
#include <QtGlobal>

// The registry of the workstation, reached as the Windows registry calls reach it: handles, and
// 0 for success or an error number from every call.
class レジストリ {
  public:
    using キー = quintptr;  // 0 is no key
    static constexpr キー HKEY_CURRENT_USER = 0x80000001;
    static constexpr キー HKEY_LOCAL_MACHINE = 0x80000002;
    static constexpr quint32 読取権限 = 131097;
    static constexpr quint32 全権限 = 983103;
    static constexpr long 成功 = 0;
    static constexpr long 見つからない = 2;
    static constexpr long 拒否 = 5;
    static constexpr long 項目なし = 259;

    virtual ~レジストリ() = default;

    // RegOpenKeyExA: an existing key below a root or an open key.
    virtual long キーを開く(キー 親, const QString& 副キー, quint32 権限, キー& 結果) = 0;
    // RegCreateKeyExA: the key with every missing key above it; an existing one is opened.
    virtual long キーを作る(キー 親, const QString& 副キー, quint32 権限, キー& 結果) = 0;
    // RegEnumKeyExA: the name of the subkey at that index; 項目なし past the last one.
    virtual long 副キー名(キー 鍵, quint32 番号, QString& 名前) = 0;
    // RegQueryValueExA of a text value.
    virtual long 文字列を読む(キー 鍵, const QString& 名前, QString& 値) = 0;
    // RegSetValueExA as REG_SZ and as REG_DWORD.
    virtual long 文字列を書く(キー 鍵, const QString& 名前, const QString& 値) = 0;
    virtual long 数値を書く(キー 鍵, const QString& 名前, quint32 値) = 0;
    virtual long キーを閉じる(キー 鍵) = 0;
};

// The registry of this build: it holds no key, and none can be made. There is no Access on the
// machine, so the client set-up for Access finds nothing to do.
class 空レジストリ : public レジストリ {
  public:
    long キーを開く(キー, const QString&, quint32, キー&) override { return 見つからない; }
    long キーを作る(キー, const QString&, quint32, キー&) override { return 拒否; }
    long 副キー名(キー, quint32, QString&) override { return 項目なし; }
    long 文字列を読む(キー, const QString&, QString&) override { return 見つからない; }
    long 文字列を書く(キー, const QString&, const QString&) override { return 拒否; }
    long 数値を書く(キー, const QString&, quint32) override { return 拒否; }
    long キーを閉じる(キー) override { return 成功; }
};
