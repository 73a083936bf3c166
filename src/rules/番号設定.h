#pragma once

#include <QString>
#include <QStringView>

#include <functional>

#include "dataenv/記録集合.h"

class データ環境;
class 接続環境;
class データ接続;
class プラットフォーム;
struct 会社情報;

// Values of the number tables that the other programs of the suite read the same way.
struct 番号定数 {
    static constexpr QStringView 永続基準日付 = u"99999999";  // kind 0; as a date argument: today
    static constexpr QStringView 手入力基準日付 = u"88888888";
    static constexpr QStringView 番号なし = u"00000000";  // no A番号情報 row; also a fresh counter
    static constexpr QStringView 最初の番号 = u"00000001";
    static constexpr QStringView 出金番号ID = u"16810";
    static constexpr QStringView 閲覧番号ID = u"01110";
    static constexpr QStringView 出張申請番号ID = u"72150";
};

// Shown when a number ID has no A番号情報 row.
inline constexpr QStringView 番号情報エラー文言 = u"番号情報に問題が発生設定できませんでした。";

// Where the number routines run: the statements of one database, the message box, and the
// company settings that choose the tables and the closing dates. The session converts to it
// for the general database, so callers simply pass their データ環境 (or its connections and
// company row); another connection (the HR link's) is wrapped with the session's connections,
// whose run history receives its failures.
class 番号環境 {
  public:
    using 検索関数 = std::function<bool(記録集合&, const QString&)>;
    using 実行関数 = std::function<bool(const QString&)>;

    番号環境(データ環境& e);  // NOLINT(google-explicit-constructor): the usual call
    番号環境(接続環境& 接続, const 会社情報& 会社);
    番号環境(データ接続& 接続, 接続環境& 記録先, const 会社情報& 会社);
    番号環境(検索関数 検索, 実行関数 実行, プラットフォーム& 基盤, const 会社情報& 会社);

    // As 業務DB検索: true when a row stands current; failures are logged, never raised.
    検索関数 検索;
    実行関数 実行;
    プラットフォーム& 基盤;
    const 会社情報& 会社;
};

// The three dates a base date can be, computed before the kind is known.
struct 基準日付候補 {
    QString 年度終了日;
    QString 集計日付;
    QString 日付;

    // "99999999" stands for today. Throws 日付範囲外 for a year outside the calendar.
    static 基準日付候補 計算(const QString& 日付, const QString& 今日, const 会社情報& 会社);
    // Kind 0 for ever, 1 fiscal year, 2 month period, 3 day; 不明時 for every other kind.
    QString 種類別(double 連番種類, QStringView 不明時) const;
};

// The base date that names the sequence of the ID on the date ("yyyymmdd", or "99999999" for
// today); empty when A番号情報 has no row for the ID.
QString 番号基準日付取得(const 番号環境& 環境, const QString& 番号ID, const QString& 日付);

// Peek, take and history take. They choose company or per-office tables by 伝票番号管理区分;
// the office is ignored under company numbering. "00000000" means that the ID is unknown,
// and the operator has then seen the message twice; empty means the number is typed by hand.
QString 次番号参照(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                   const QString& 事業所コード);
QString 次番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                   const QString& 事業所コード);
QString 次履歴番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                       const QString& 事業所コード);

// The routines behind them; each shows the message once on "00000000".
QString 全社次番号参照(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付);
QString 全社次番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付);
QString 全社次履歴番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付);
QString 事業所別次番号参照(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                           const QString& 事業所コード);
QString 事業所別次番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                           const QString& 事業所コード);
QString 事業所別次履歴番号採番(const 番号環境& 環境, const QString& 番号ID, const QString& 基準日付,
                               const QString& 事業所コード);

// A missing counter row is inserted with both counters "00000000", but only for an ID that
// A番号情報 knows. The dated per-office row is never made here: its read of A番号情報 is worded
// against A事業所別番号情報, which the statement does not name, and every engine refuses it.
// That wording is kept on purpose, as is the peek's of a per-office kind 0 counter, which fails
// the same way and so proposes no number.
void 期日別番号行確保(const 番号環境& 環境, const QString& 番号ID, const QString& 期日);
void 事業所別番号行確保(const 番号環境& 環境, const QString& 番号ID, const QString& 事業所コード);
void 事業所別期日別番号行確保(const 番号環境& 環境, const QString& 番号ID, const QString& 期日,
                              const QString& 事業所コード);

// Starts the update program that A番号情報 names for the ID, from the program folder, without
// waiting; nothing when none is named.
void 更新プログラム起動(接続環境& 接続, const QString& 番号ID);

// The caller's side of numbering: counters have no lock, so a number is taken again until the
// document table does not hold it yet. There is deliberately no limit on the attempts.
QString 未使用番号採番(const std::function<QString()>& 採番,
                       const std::function<bool(const QString&)>& 使用済み);
