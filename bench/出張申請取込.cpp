#include <QElapsedTimer>
#include <QTextStream>

#include "dataenv/データ接続.h"
#include "screen/frm紺碧帳.h"
#include "slip/起動処理.h"
#include "text/台本プラットフォーム.h"
#include "計測.h"

namespace {

const QString 申請鍵 = u"C00020270331"_qs + u"00000090"_qs;

// An application of the head office with 15 expense rows of every kind, in the HR database.
bool 十五行の申請を置く(const QString& 人事根) {
    接続先 先;
    先.ファイル = 人事根 + u"/data/gnrdb.sqlite"_qs;
    データ接続 人事(u"bench-hr"_qs);
    if (!人事.開く(先)) return false;
    bool 成功 = 人事.実行(
        u"INSERT INTO T出張申請 (事業所コード, 番号基準日付, 出張申請No, 出張申請日付, 社員コード, 開始日付, 終了日付, 日数, 出張区分, 出張先, 出張目的, ユーザID, 登録日付, 更新日付) VALUES ('000', '20270331', '00000090', '20261120', '00003', '20261124', '20261130', 7, '1', '九州', '支店巡回', '', '20261120 100000', '')"_qs);
    for (int i = 1; i <= 最大行数; ++i) {
        成功 =
            成功 &&
            人事.実行(
                u"INSERT INTO T出張旅費 (事業所コード, 番号基準日付, 出張申請No, 旅費行No, 旅費区分, 旅費摘要, 旅費金額) VALUES ('000', '20270331', '00000090', '"_qs +
                QString::number(i).rightJustified(3, u'0') + u"', '0"_qs +
                QString::number(1 + i % 5) + u"', '旅程 "_qs + QString::number(i) + u"', "_qs +
                QString::number(1000 * i + 80) + u")"_qs);
    }
    人事.閉じる();
    return 成功;
}

}  // namespace

// The take-over of a trip application with 15 expense rows, from the trip list's pick (its key
// left as the list's answer and the field left) to the lines drawn; HR database in SQLite.
void 出張申請計測() {
    計測用ツリー 木({}, true);
    if (!木.作成済み || !十五行の申請を置く(木.根() + u"/白樺"_qs)) {
        QTextStream(stderr) << "trip: the tree with the HR system could not be made\n";
        return;
    }
    台本プラットフォーム 基盤;
    基盤.時刻 = QDateTime(QDate(2026, 11, 23), QTime(10, 0, 0));
    出金セッション s(基盤);
    s.データ.接続().自身のフォルダ設定(木.根() + u"/prgbin"_qs);
    画面なし 画面;
    紺碧帳起動 起動(s, 画面);
    if (!起動.データベース開始() || !起動.ユーザ情報初期化()) return;
    s.白樺連携フラグ = s.データ.人事連携選択(u"白樺"_qs) && s.データ.人事連携開始();
    if (!s.白樺連携フラグ) return;

    frm紺碧帳 f(s);
    f.画面読込([&] { s.出金情報初期化(); });
    f.担当者確定(u"00003"_qs);
    f.見出し表示();
    部品& 欄 = f.画面(u"出張申請No"_qs);
    std::vector<double> 取込;
    for (int 回 = 0; 回 < 21; ++回) {
        // The slip without lines and application again, its header kept.
        s.出金明細初期化();
        s.出金合計初期化();
        s.見出し.出張申請事業所コード.clear();
        s.見出し.出張申請番号基準日付.clear();
        s.見出し.出張申請No.clear();
        f.画面全表示();
        f.画面.操作_フォーカス(欄);

        QElapsedTimer t;
        t.start();
        f.状態.選択鍵 = 申請鍵;
        f.画面.文字設定(欄, 申請鍵.right(8));
        f.画面.操作_フォーカス(f.画面(u"担当者コード"_qs));
        取込.push_back(ミリ秒(t));
        if (s.最終行 != 最大行数 - 1) {
            std::printf("the take-over ended with %d lines\n", s.最終行 + 1);
            return;
        }
    }
    結果表示("trip application of 15 lines, pick to lines drawn", 取込, "ms");
    s.データ.人事連携終了();
    s.データ.接続().接続終了();
}
