#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include "lists/検索文.h"
#include "screen/画面モデル.h"

class 出金セッション;
class データ環境;
class 記録集合;

// What a condition field of a list window is: a code filled with zeros to its field's length
// (and, for a department or section, with its name looked up), free text, or a looked-up name
// that hands the focus on.
enum class 条件欄種類 { コード, 文字, 名称 };

struct 条件欄 {
    QString 名前;
    条件欄種類 種類 = 条件欄種類::文字;
    QString 名称欄;      // a code's looked-up name field
    QString 名称文;      // the statement that looks the name up, the code and "'" follow
    QString 名称列;      // the column of that statement that holds the name
    QString 検索ボタン;  // the single-field search the field enables
    QString 入れ子画面;  // the list opened by Ctrl or a double click in the code field
};

// A class drop-down kept in step with its number field; the list ends with "全て".
struct 区分欄 {
    QString 番号;  // the number field
    QString 名称;  // the drop-down list
    QString 文;    // the statement that fills the list, text in column 名称
};

// The frame every list window is made of: the search, the rows, the pick handed back to the
// caller's field, the way back, nesting, and what the window keeps between two openings.
class 一覧画面 {
  public:
    一覧画面(出金セッション& s, 画面モデル& 主画面, const QString& 名前, const 部品表& 表,
             const QString& 一覧名);
    virtual ~一覧画面() = default;
    一覧画面(const 一覧画面&) = delete;
    一覧画面& operator=(const 一覧画面&) = delete;

    画面モデル 画面;
    int 検索種別 = 0;  // 0 compound, -1 negative, the single-field searches from 1
    QString 検索SQL;
    QHash<QString, QString> 条件;  // the last accepted value of each condition field
    QHash<QString, int> 区分;      // the chosen row of each class list

    // The load of the window, its first opening: each window tells its own.
    virtual void 読込() = 0;
    // What a close by the window's frame leaves behind: the caller back in use, no pick.
    void 枠で閉じた();

    void 一覧検索実行();
    void 選ぶ();
    void 戻る();
    virtual void 条件クリア();
    void 列見出しクリック(int 列番号);
    部品& 一覧();
    // How many rows one search shows (0: all).
    virtual int 行上限() const { return 1000; }

  protected:
    // What each window brings: its statement for the current search, its list view, and how a
    // row becomes a list item.
    virtual QString 検索文作成() = 0;
    virtual void 行を加える(記録集合& rs, int 件数);
    // The number and description lists hand the row's key back and are always unloaded; the
    // master lists are hidden unless the main screen is that master's own registration.
    virtual bool 鍵を返す() const { return false; }
    virtual QString 登録画面題() const = 0;
    virtual void 一覧初期条件展開() {}
    virtual void 検索ボタン状態更新();

    // The building blocks the windows put together.
    void 欄を結ぶ(QList<条件欄> 欄, QList<区分欄> 区分欄群);
    void 区分一覧作成();
    void 一覧条件表示();
    // The list view as a load makes it: these columns, no rows, no sort.
    void 列作成(const QList<一覧列>& 列);
    // Takes a preset field's value out of 一覧条件文字列; empty when the caller did not name it.
    QString 条件取出(const QString& 項目名);
    // A preset code field: its value taken out of the caller's condition, and its name looked up.
    void コード取出(const QString& 欄名, const QString& 項目名);
    QString 名称検索(const 条件欄& 欄, const QString& コード);
    const 条件欄* 欄(const QString& 名前) const;
    // The first opening after the fields are filled: show them, search, select nothing.
    void 初回検索();
    void 焦点(部品* 先);
    // The clause of one field, when the field's stored value, trimmed, is not empty.
    void 欄句(検索文& 文, const 句定義& 句) const;
    // The same with literals made while the window is made, as for a window over either of two
    // tables.
    void 欄句(検索文& 文, const QString& 欄名, const QString& 正, const QString& 否,
              const QString& 閉じ, bool 曖昧) const;
    // The clause of a class list, unless it stands on "全て".
    void 区分句(検索文& 文, const QString& 番号, const QString& 正, const QString& 否) const;
    // The caller's condition, in brackets, when there is one.
    void 呼出条件句(検索文& 文) const;
    // The dialect of the database the search runs on.
    QString 方言() const;
    // A search button: sets its kind, searches, and leaves the focus on the list for Enter.
    void 検索ボタン(部品名 名前, int 種別);

    出金セッション& s;
    データ環境& d;
    画面モデル& 主;
    QList<条件欄> 条件欄群;
    QList<区分欄> 区分欄群;
    // Where the statements run: the search with its class lists, and the name look-ups of the
    // code fields. The windows on the personnel tables search the HR link's database, whose
    // dialect then decides the statement's form.
    bool 連携で検索 = false;
    bool 連携で名称 = false;

  private:
    部品* 一覧部品;
    bool 文を開く(記録集合& rs, const QString& 文, bool 連携);
    void 閉じる();
    void 呼出元へ戻す();
    void 入れ子一覧(const 条件欄& 欄);
};
