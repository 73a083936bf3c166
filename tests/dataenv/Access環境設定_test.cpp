#include <gtest/gtest.h>

#include <QFile>

#include "common/試験用ツリー.h"
#include "dataenv/Access環境設定.h"
#include "dataenv/データ環境.h"
#include "dataenv/ファイル操作.h"
#include "text/台本プラットフォーム.h"
#include "text/記憶レジストリ.h"

namespace {

const QString 本体キー =
    u"HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\MSACCESS.EXE"_qs;
const QString 拡張子キー =
    u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Extensions"_qs;
const QString Office16 = u"C:\\Program Files\\Microsoft Office\\root\\Office16\\"_qs;
const QString 帳票 = u"/srv/konpeki/users/sato/report"_qs;

QString 場所(const QString& 版) {
    return u"HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\"_qs + 版 +
           u"\\Access\\Security\\Trusted Locations"_qs;
}

class Access環境設定 : public ::testing::Test {
  protected:
    // A workstation with Access installed in that folder and the key of the associations.
    void Accessあり(const QString& フォルダ) {
        登録簿.文字列設定(本体キー, u"Path"_qs, フォルダ);
        登録簿.キー作成(拡張子キー);
    }
    void 場所あり(const QString& 版, const QString& 名前, const QString& パス) {
        登録簿.文字列設定(場所(版) + u"\\"_qs + 名前, u"Path"_qs, パス);
    }
    QString 場所のパス(const QString& 版, const QString& 名前) {
        const auto v = 登録簿.値取得(場所(版) + u"\\"_qs + 名前, u"Path"_qs);
        return v ? v->文字列 : u"(なし)"_qs;
    }
    std::optional<quint32> 数値(const QString& キー, const QString& 名前) {
        const auto v = 登録簿.値取得(キー, 名前);
        if (!v || !v->数値型) return std::nullopt;
        return v->数値;
    }
    bool 設定(const QString& フォルダ = 帳票) {
        const bool 結果 = Access環境(登録簿, 基盤, フォルダ).Access環境設定();
        EXPECT_EQ(登録簿.開いたままのキー(), 0);
        return 結果;
    }

    記憶レジストリ 登録簿;
    台本プラットフォーム 基盤;
};

TEST_F(Access環境設定, Accessが無ければ偽で何も書かない) {
    登録簿.キー作成(拡張子キー);
    登録簿.キー作成(場所(u"16.0"_qs));
    EXPECT_FALSE(設定());
    EXPECT_EQ(登録簿.書込回数, 0);
    EXPECT_TRUE(登録簿.副キー一覧(場所(u"16.0"_qs)).isEmpty());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(Access環境設定, この版のレジストリにはAccessが無い) {
    空レジストリ 空;
    EXPECT_FALSE(Access環境(空, 基盤, 帳票).Access環境設定());
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(Access環境設定, 本体のPathが無ければ偽) {
    登録簿.キー作成(本体キー);
    登録簿.キー作成(拡張子キー);
    EXPECT_FALSE(設定());
    EXPECT_EQ(登録簿.書込回数, 0);
}

TEST_F(Access環境設定, 表に無い版は偽で何も書かない) {
    Accessあり(u"C:\\Program Files\\Microsoft Office\\Office13\\"_qs);
    EXPECT_FALSE(設定());
    EXPECT_EQ(登録簿.書込回数, 0);
}

struct 版の例 {
    const char16_t* フォルダ名;
    const char16_t* キー版;  // empty: association only
};

class Access版表 : public Access環境設定, public ::testing::WithParamInterface<版の例> {};

// Each Office folder name leads to its key version; from Office 17 on the key version lags the
// folder name by one, on purpose.
TEST_P(Access版表, フォルダ名が鍵の版を決める) {
    const QString フォルダ = u"C:\\Program Files\\Microsoft Office\\"_qs +
                             QString::fromUtf16(GetParam().フォルダ名) + u"\\"_qs;
    const QString 版 = QString::fromUtf16(GetParam().キー版);
    Accessあり(フォルダ);
    EXPECT_TRUE(設定());
    EXPECT_EQ(登録簿.値取得(拡張子キー, u"mdb"_qs)->文字列, フォルダ + u"MSACCESS.EXE"_qs);
    const QString 保安 =
        u"HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\11.0\\Access\\Security"_qs;
    if (版.isEmpty()) {
        EXPECT_FALSE(登録簿.キーあり(保安));
        EXPECT_EQ(登録簿.書込回数, 1);
    } else if (版 == u"11.0") {
        EXPECT_EQ(数値(保安, u"Level"_qs), 1u);
        EXPECT_FALSE(登録簿.キーあり(場所(版)));
    } else {
        EXPECT_EQ(登録簿.副キー一覧(場所(版)), QStringList{u"Location0"_qs});
        EXPECT_EQ(場所のパス(版, u"Location0"_qs), 帳票 + u"/"_qs);
        EXPECT_EQ(数値(場所(版) + u"\\Location0"_qs, u"AllowSubfolder"_qs), 1u);
        for (const char16_t* 他 : {u"12.0", u"14.0", u"15.0", u"16.0", u"17.0"}) {
            if (QString::fromUtf16(他) != 版) {
                EXPECT_FALSE(登録簿.キーあり(場所(QString::fromUtf16(他))));
            }
        }
    }
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    版, Access版表,
    ::testing::Values(版の例{u"OFFICE9", u""}, 版の例{u"Office10", u""},
                      版の例{u"OFFICE11", u"11.0"}, 版の例{u"Office12", u"12.0"},
                      版の例{u"OFFICE14", u"14.0"}, 版の例{u"Office15", u"15.0"},
                      版の例{u"Office16", u"16.0"}, 版の例{u"OFFICE17", u"16.0"},
                      版の例{u"Office18", u"17.0"}, 版の例{u"office16", u"16.0"}));

TEST_F(Access環境設定, 関連付けが既に同じなら書き直さない) {
    Accessあり(Office16);
    登録簿.文字列設定(拡張子キー, u"mdb"_qs, Office16 + u"MSACCESS.EXE"_qs);
    Access環境 a(登録簿, 基盤, 帳票);
    EXPECT_TRUE(a.Access関連付け(Office16));
    EXPECT_EQ(登録簿.書込回数, 0);
    EXPECT_EQ(登録簿.開いた記録.last().権限, レジストリ::全権限);
}

TEST_F(Access環境設定, 関連付けのキーが開けなければ偽) {
    Access環境 a(登録簿, 基盤, 帳票);
    EXPECT_FALSE(a.Access関連付け(Office16));
    登録簿.キー作成(拡張子キー);
    登録簿.開けないキー.append(拡張子キー);
    EXPECT_FALSE(a.Access関連付け(Office16));
    EXPECT_EQ(登録簿.書込回数, 0);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(Access環境設定, 関連付けが書けなければ知らせて真) {
    Accessあり(Office16);
    登録簿.書けないキー.append(拡張子キー);
    Access環境 a(登録簿, 基盤, 帳票);
    EXPECT_TRUE(a.Access関連付け(Office16));
    EXPECT_EQ(基盤.表示文言(), QStringList{u"書き込みできません。"_qs});
    EXPECT_EQ(基盤.表示済み[0].ボタン, ボタン種別::OK);
    EXPECT_TRUE(基盤.表示済み[0].題名.isEmpty());  // the program's title
}

TEST_F(Access環境設定, 保安の鍵が作れなければ書けないと知らせて真) {
    Accessあり(u"C:\\Office11\\"_qs);
    登録簿.作れないキー.append(
        u"HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\11.0\\Access\\Security"_qs);
    EXPECT_TRUE(設定());
    EXPECT_EQ(基盤.表示文言(), QStringList{u"書き込みできません。"_qs});
}

TEST_F(Access環境設定, 既に信頼済みなら同じ鍵を書き直し新しい場所は増えない) {
    Accessあり(Office16);
    場所あり(u"16.0"_qs, u"Location0"_qs, u"C:/other/"_qs);
    場所あり(u"16.0"_qs, u"Location1"_qs, 帳票.toUpper() + u"/"_qs);
    EXPECT_TRUE(設定());
    EXPECT_EQ(登録簿.副キー一覧(場所(u"16.0"_qs)), (QStringList{u"Location0"_qs, u"Location1"_qs}));
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location1"_qs), 帳票 + u"/"_qs);
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location0"_qs), u"C:/other/"_qs);
    EXPECT_EQ(数値(場所(u"16.0"_qs) + u"\\Location1"_qs, u"AllowSubfolder"_qs), 1u);
}

TEST_F(Access環境設定, 場所0と2があれば最低の番号は0で新しい鍵は場所3) {
    Accessあり(Office16);
    場所あり(u"16.0"_qs, u"Location0"_qs, u"C:/a/"_qs);
    場所あり(u"16.0"_qs, u"Location2"_qs, u"C:/b/"_qs);
    EXPECT_TRUE(設定());
    EXPECT_EQ(登録簿.副キー一覧(場所(u"16.0"_qs)),
              (QStringList{u"Location0"_qs, u"Location2"_qs, u"Location3"_qs}));
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location3"_qs), 帳票 + u"/"_qs);
}

TEST_F(Access環境設定, 場所2と3だけなら新しい鍵は場所1) {
    Accessあり(Office16);
    場所あり(u"16.0"_qs, u"Location2"_qs, u"C:/a/"_qs);
    場所あり(u"16.0"_qs, u"Location3"_qs, u"C:/b/"_qs);
    EXPECT_TRUE(設定());
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location1"_qs), 帳票 + u"/"_qs);
    EXPECT_EQ(登録簿.副キー一覧(場所(u"16.0"_qs)).size(), 3);
}

// "###" writes no digit for 0, so the key below Location1 is plain Location, on purpose.
TEST_F(Access環境設定, 最低が場所1なら新しい鍵は番号の無いLocation) {
    Accessあり(Office16);
    場所あり(u"16.0"_qs, u"Location1"_qs, u"C:/a/"_qs);
    EXPECT_TRUE(設定());
    EXPECT_EQ(登録簿.副キー一覧(場所(u"16.0"_qs)), (QStringList{u"Location"_qs, u"Location1"_qs}));
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location"_qs), 帳票 + u"/"_qs);
}

// Names compare as text: Location9 stands above Location10, so with Location0 to Location10 the
// next number is 10, and that key, which exists, takes the new folder. Kept deliberately.
TEST_F(Access環境設定, 名前は文字として比べるので十番目は九番目より下になる) {
    Accessあり(Office16);
    for (int i = 0; i <= 10; ++i) {
        場所あり(u"16.0"_qs, u"Location"_qs + QString::number(i),
                 u"C:/"_qs + QString::number(i) + u"/"_qs);
    }
    EXPECT_TRUE(設定());
    EXPECT_EQ(登録簿.副キー一覧(場所(u"16.0"_qs)).size(), 11);
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location10"_qs), 帳票 + u"/"_qs);
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location9"_qs), u"C:/9/"_qs);
}

// Thirty keys numbered 0 to 31 without 9 and 17: the highest by text is Location8, so the new
// key fills the gap at 9; no other key changes, and nothing is said.
TEST_F(Access環境設定, 三十の鍵に抜けがあれば抜けた番号に入り他の鍵は変わらない) {
    Accessあり(Office16);
    for (int i = 0; i <= 31; ++i) {
        if (i == 9 || i == 17) continue;
        場所あり(u"16.0"_qs, u"Location"_qs + QString::number(i),
                 u"C:/"_qs + QString::number(i) + u"/"_qs);
    }
    EXPECT_TRUE(設定());
    const QStringList 鍵 = 登録簿.副キー一覧(場所(u"16.0"_qs));
    EXPECT_EQ(鍵.size(), 31);
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location9"_qs), 帳票 + u"/"_qs);
    for (int i = 0; i <= 31; ++i) {
        if (i == 9 || i == 17) continue;
        EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location"_qs + QString::number(i)),
                  u"C:/"_qs + QString::number(i) + u"/"_qs);
    }
    EXPECT_FALSE(登録簿.キーあり(場所(u"16.0"_qs) + u"\\Location17"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(Access環境設定, 鍵が無ければ場所の鍵を作り場所0に書く) {
    Accessあり(Office16);
    EXPECT_TRUE(設定());
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location0"_qs), 帳票 + u"/"_qs);
    // The trusted-locations key is tried for reading first, and made only when that fails.
    bool 作成 = false;
    for (const auto& r : 登録簿.開いた記録) {
        if (r.パス.endsWith(u"Trusted Locations"_qs)) {
            作成 = r.作成;
            EXPECT_EQ(r.権限, レジストリ::全権限);
        }
    }
    EXPECT_TRUE(作成);
}

TEST_F(Access環境設定, 場所の鍵は読むために開く) {
    Accessあり(Office16);
    場所あり(u"16.0"_qs, u"Location0"_qs, u"C:/a/"_qs);
    EXPECT_TRUE(設定());
    int 読取 = 0;
    for (const auto& r : 登録簿.開いた記録) {
        if (r.パス == 場所(u"16.0"_qs) || r.パス.endsWith(u"Location0"_qs)) {
            EXPECT_EQ(r.権限, レジストリ::読取権限);
            EXPECT_FALSE(r.作成);
            ++読取;
        }
    }
    EXPECT_EQ(読取, 2);
}

TEST_F(Access環境設定, ネットワークのパスならネットワーク上の場所を許す) {
    Accessあり(Office16);
    場所あり(u"16.0"_qs, u"Location0"_qs, u"C:/a/"_qs);
    EXPECT_TRUE(設定(u"//server/share/users/sato/report"_qs));
    EXPECT_EQ(数値(場所(u"16.0"_qs), u"AllowNetworkLocations"_qs), 1u);
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location1"_qs), u"//server/share/users/sato/report/"_qs);
}

TEST_F(Access環境設定, ローカルのパスならネットワーク上の場所に触れない) {
    Accessあり(Office16);
    場所あり(u"16.0"_qs, u"Location0"_qs, u"C:/a/"_qs);
    EXPECT_TRUE(設定());
    EXPECT_FALSE(登録簿.値取得(場所(u"16.0"_qs), u"AllowNetworkLocations"_qs));
}

TEST_F(Access環境設定, 場所の鍵が開けも作れもしなければ関連付けの結果で終わる) {
    Accessあり(Office16);
    登録簿.作れないキー.append(場所(u"16.0"_qs));
    EXPECT_TRUE(設定());
    EXPECT_FALSE(登録簿.キーあり(場所(u"16.0"_qs)));
    EXPECT_TRUE(基盤.表示済み.isEmpty());

    登録簿.開けないキー.append(拡張子キー);
    EXPECT_FALSE(設定());
}

TEST_F(Access環境設定, 新しい鍵が作れなければ設定できないと知らせて真) {
    Accessあり(Office16);
    場所あり(u"16.0"_qs, u"Location0"_qs, u"C:/a/"_qs);
    登録簿.作れないキー.append(場所(u"16.0"_qs) + u"\\Location1"_qs);
    EXPECT_TRUE(設定());
    EXPECT_EQ(基盤.表示文言(), QStringList{u"設定できません。"_qs});
    EXPECT_EQ(登録簿.副キー一覧(場所(u"16.0"_qs)), QStringList{u"Location0"_qs});
    EXPECT_EQ(場所のパス(u"16.0"_qs, u"Location0"_qs), u"C:/a/"_qs);
}

TEST_F(Access環境設定, 新しい鍵に書けなければ書くたびに知らせる) {
    Accessあり(Office16);
    登録簿.キー作成(場所(u"16.0"_qs));
    登録簿.書けないキー.append(場所(u"16.0"_qs) + u"\\Location0"_qs);
    EXPECT_TRUE(設定(u"//server/share/report"_qs));
    EXPECT_EQ(基盤.表示文言(),
              (QStringList{u"書き込みできません。"_qs, u"書き込みできません。"_qs}));
    EXPECT_EQ(数値(場所(u"16.0"_qs), u"AllowNetworkLocations"_qs), 1u);
}

// Office 14 alone speaks of a subkey that does not open (twice: its Path cannot be read then
// either) and of a Path that cannot be read; the walk goes on all the same.
TEST_F(Access環境設定, 版14だけは読めない鍵を知らせる) {
    for (const QString& 版 : {u"14.0"_qs, u"16.0"_qs}) {
        登録簿 = 記憶レジストリ();
        基盤.表示済み.clear();
        Accessあり(版 == u"14.0" ? u"C:\\Office14\\"_qs : Office16);
        場所あり(版, u"Location0"_qs, u"C:/a/"_qs);
        場所あり(版, u"Location1"_qs, u"C:/b/"_qs);
        場所あり(版, u"Location2"_qs, 帳票 + u"/"_qs);
        登録簿.開けないキー.append(場所(版) + u"\\Location0"_qs);
        登録簿.読めない値.append(場所(版) + u"\\Location1\\Path"_qs);
        EXPECT_TRUE(設定());
        EXPECT_EQ(登録簿.副キー一覧(場所(版)).size(), 3);
        EXPECT_EQ(数値(場所(版) + u"\\Location2"_qs, u"AllowSubfolder"_qs), 1u);
        if (版 == u"14.0") {
            EXPECT_EQ(基盤.表示文言(), QStringList(3, u"オープンできません。"_qs));
        } else {
            EXPECT_TRUE(基盤.表示済み.isEmpty());
        }
    }
}

// The first preparation of a user's report folder asks the registry; without Access, as in this
// build, the copies stay exactly as they were copied.
class 利用者別の帳票 : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(木.作成済み) << 木.エラー.toStdString();
        ASSERT_TRUE(木.環境DB実行(u"UPDATE 動作環境定義 SET インストール区分 = 1"_qs));
        for (const char16_t* 名 : {u"/report/repdb.db", u"/report/repfrmdb.db"}) {
            QFile f(木.根() + QString::fromUtf16(名));
            ASSERT_TRUE(f.open(QIODevice::WriteOnly));
            f.write("layouts linked to the shared data");
        }
        環境.接続().自身のフォルダ設定(木.プログラムフォルダ());
    }
    QString 利用者の帳票() const {
        return 木.根() + u"/users/"_qs + 端末利用者名取得() + u"/report"_qs;
    }
    static QByteArray 中身(const QString& パス) {
        QFile f(パス);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    試験用ツリー 木;
    台本プラットフォーム 基盤;
    データ環境 環境{基盤};
};

TEST_F(利用者別の帳票, Accessの無いこの版では写しは写したままで何も言わない) {
    EXPECT_FALSE(環境.接続().Access環境設定());
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(中身(利用者の帳票() + u"/repfrmdb.db"_qs), 中身(木.根() + u"/report/repfrmdb.db"_qs));
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

TEST_F(利用者別の帳票, Accessがあれば初回に利用者の帳票フォルダを信頼させ二度目は触れない) {
    記憶レジストリ 登録簿;
    登録簿.文字列設定(本体キー, u"Path"_qs, Office16);
    登録簿.キー作成(拡張子キー);
    環境.接続().端末レジストリ設定(&登録簿);
    ASSERT_TRUE(環境.接続().SYB_OPEN());
    EXPECT_EQ(登録簿.値取得(場所(u"16.0"_qs) + u"\\Location0"_qs, u"Path"_qs)->文字列,
              利用者の帳票() + u"/"_qs);
    EXPECT_EQ(中身(利用者の帳票() + u"/repfrmdb.db"_qs), 中身(木.根() + u"/report/repfrmdb.db"_qs));
    環境.接続().接続終了();

    const int 書込 = 登録簿.書込回数;
    データ環境 二度目{基盤};
    二度目.接続().端末レジストリ設定(&登録簿);
    二度目.接続().自身のフォルダ設定(木.プログラムフォルダ());
    ASSERT_TRUE(二度目.接続().SYB_OPEN());
    EXPECT_EQ(登録簿.書込回数, 書込);
    EXPECT_TRUE(基盤.表示済み.isEmpty());
}

}  // namespace
