#include "audit/出金検索出力.h"

#include "audit/出金検索.h"
#include "ledger/仕訳書式.h"
#include "slip/出金セッション.h"

namespace {

const QString 使い方 =
    u"使い方: --search [--from YYYYMMDD] [--to YYYYMMDD] [--min 円] [--max 円]"
    u" [--line-min 円] [--line-max 円] [--payee 文字] [--staff コード] [--office コード]"
    u" [--no-from 番号] [--no-to 番号] [--with-documents] [--deleted]"_qs;

// The options that take a value, and the condition each one fills.
struct 値の指定 {
    const char16_t* 名;
    QString 出金検索条件::*欄;
};

constexpr 値の指定 値の指定表[] = {
    {u"--from", &出金検索条件::日付から},       {u"--to", &出金検索条件::日付まで},
    {u"--min", &出金検索条件::合計下限},        {u"--max", &出金検索条件::合計上限},
    {u"--line-min", &出金検索条件::明細下限},   {u"--line-max", &出金検索条件::明細上限},
    {u"--payee", &出金検索条件::支払先},        {u"--staff", &出金検索条件::担当者コード},
    {u"--office", &出金検索条件::事業所コード}, {u"--no-from", &出金検索条件::番号から},
    {u"--no-to", &出金検索条件::番号まで},
};

// False with the refusal in エラー文.
bool 読む(const QStringList& 引数, 出金検索条件& 条件, QString& エラー文) {
    for (qsizetype i = 0; i < 引数.size(); ++i) {
        const QString& 名 = 引数[i];
        if (名 == u"--with-documents") {
            条件.書類あり = true;
            continue;
        }
        if (名 == u"--deleted") {
            条件.削除済 = true;
            continue;
        }
        const 値の指定* 指定 = nullptr;
        for (const 値の指定& v : 値の指定表) {
            if (名 == QStringView(v.名)) 指定 = &v;
        }
        if (!指定) {
            エラー文 = u"知らない指定です: "_qs + 名;
            return false;
        }
        if (i + 1 >= 引数.size()) {
            エラー文 = 名 + u" の値がありません。"_qs;
            return false;
        }
        条件.*(指定->欄) = 引数[++i];
    }
    エラー文 = 出金検索条件の誤り(条件);
    return エラー文.isEmpty();
}

void 行を書く(QTextStream& 出力, const QStringList& 項目) {
    QStringList 欄;
    for (const QString& v : 項目) 欄 << CSV項目(v);
    出力 << 欄.join(u',') << u"\r\n"_qs;
}

}  // namespace

int 出金検索を出力(出金セッション& s, const QStringList& 引数, QTextStream& 出力,
                   QTextStream& エラー) {
    出金検索条件 条件;
    QString エラー文;
    if (!読む(引数, 条件, エラー文)) {
        エラー << エラー文 << u"\n"_qs << 使い方 << u"\n"_qs;
        エラー.flush();
        return 2;
    }
    QList<出金検索行> 結果;
    if (!出金検索(s.データ, 条件, 結果)) {
        エラー << u"伝票を検索できませんでした。"_qs << u"\n"_qs;
        エラー.flush();
        return 1;
    }
    出力.setEncoding(QStringConverter::Utf8);
    行を書く(出力, {u"出金日付"_qs, u"出金No"_qs, u"事業所コード"_qs, u"番号基準日付"_qs,
                    u"担当者コード"_qs, u"担当者名"_qs, u"支払先"_qs, u"実質出金金額合計"_qs,
                    u"書類数"_qs, u"削除"_qs, u"出金履歴No"_qs});
    for (const 出金検索行& r : 結果) {
        行を書く(出力, {r.出金日付, r.鍵.番号, r.鍵.事業所コード, r.鍵.番号基準日付, r.担当者コード,
                        r.担当者名, r.支払先, r.合計.文字列(), QString::number(r.書類数),
                        r.削除済 ? u"削除"_qs : QString(), r.出金履歴No});
    }
    出力.flush();
    return 0;
}
