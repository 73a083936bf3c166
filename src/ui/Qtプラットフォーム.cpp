#include "ui/Qtプラットフォーム.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QThread>
#include <QUrl>

#include "ui/画面ウィンドウ.h"

namespace {

struct ボタン定義 {
    QMessageBox::StandardButton 標準;
    応答 答え;
    const char16_t* 文言;
};

QList<ボタン定義> ボタン一覧(ボタン種別 種別) {
    const ボタン定義 OK{QMessageBox::Ok, 応答::OK, u"OK"};
    const ボタン定義 取消{QMessageBox::Cancel, 応答::キャンセル, u"キャンセル"};
    const ボタン定義 はい{QMessageBox::Yes, 応答::はい, u"はい(&Y)"};
    const ボタン定義 いいえ{QMessageBox::No, 応答::いいえ, u"いいえ(&N)"};
    const ボタン定義 中止{QMessageBox::Abort, 応答::中止, u"中止(&A)"};
    const ボタン定義 再試行{QMessageBox::Retry, 応答::再試行, u"再試行(&R)"};
    const ボタン定義 無視{QMessageBox::Ignore, 応答::無視, u"無視(&I)"};
    switch (種別) {
        case ボタン種別::OK:
            return {OK};
        case ボタン種別::OKキャンセル:
            return {OK, 取消};
        case ボタン種別::中止再試行無視:
            return {中止, 再試行, 無視};
        case ボタン種別::はいいいえキャンセル:
            return {はい, いいえ, 取消};
        case ボタン種別::はいいいえ:
            return {はい, いいえ};
        case ボタン種別::再試行キャンセル:
            return {再試行, 取消};
    }
    return {OK};
}

QMessageBox::Icon Qtのアイコン(アイコン種別 a) {
    switch (a) {
        case アイコン種別::停止:
            return QMessageBox::Critical;
        case アイコン種別::質問:
            return QMessageBox::Question;
        case アイコン種別::注意:
            return QMessageBox::Warning;
        case アイコン種別::情報:
            return QMessageBox::Information;
        case アイコン種別::なし:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

応答 Qtプラットフォーム::メッセージ表示(const メッセージ指定& 指定) {
    QMessageBox box(Qtのアイコン(指定.アイコン), 指定.題名.isEmpty() ? 既定の題名 : 指定.題名,
                    指定.本文, QMessageBox::NoButton, QApplication::activeWindow());
    const auto 一覧 = ボタン一覧(指定.ボタン);
    QList<QPushButton*> 押釦;
    for (const auto& b : 一覧) {
        押釦.append(box.addButton(b.標準));
        押釦.last()->setText(QString::fromUtf16(b.文言));
    }
    const int 既定 = 指定.既定ボタン - 1;
    box.setDefaultButton(押釦.value(既定 >= 0 && 既定 < 押釦.size() ? 既定 : 0));
    box.exec();
    const int i = 押釦.indexOf(qobject_cast<QPushButton*>(box.clickedButton()));
    // Closing the box by its frame answers as its escape button would: the last one.
    return 一覧.value(i >= 0 ? i : 一覧.size() - 1).答え;
}

void Qtプラットフォーム::保留イベント処理() {
    QApplication::processEvents();
}

void Qtプラットフォーム::待機(int ミリ秒) {
    QThread::msleep(static_cast<unsigned long>(ミリ秒));
}

void Qtプラットフォーム::お待ち表示(bool 表示) {
    if (!表示) {
        if (お待ち画面) お待ち画面->close();
        return;
    }
    画面モデル* m = 画面群.value(u"msgお待ち"_qs);
    if (!m) return;
    if (!お待ち画面) {
        auto* w = new ScreenWindow(*m);
        w->setWindowFlags(Qt::Dialog | Qt::WindowStaysOnTopHint);
        if (QWidget* 上 = QApplication::activeWindow()) {
            w->move(上->geometry().center() - w->rect().center());
        }
        w->setAttribute(Qt::WA_DeleteOnClose);
        お待ち画面 = w;
    }
    お待ち画面->show();
    お待ち画面->raise();
    QApplication::processEvents();
}

bool Qtプラットフォーム::文書を開く(const QString& パス, const QString&) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(パス));
}

bool Qtプラットフォーム::プログラム起動(const QString& プログラム, const QStringList& 引数,
                                        const QString& 作業フォルダ) {
    return QProcess::startDetached(プログラム, 引数, 作業フォルダ);
}

QString Qtプラットフォーム::ファイル選択(const QString& 開始フォルダ, const QString& 絞込) {
    // "name (*.ext)|*.ext|..." pairs become Qt's "name (*.ext);;..." form; "*.*" means every
    // file, also those without a dot.
    const QStringList 部分 = 絞込.split(u'|');
    QStringList 項目;
    for (qsizetype i = 0; i + 1 < 部分.size(); i += 2) {
        項目.append(部分[i].section(u'(', 0, 0) + u'(' +
                    QString(部分[i + 1]).replace(u"*.*"_qs, u"*"_qs) + u')');
    }
    return QFileDialog::getOpenFileName(QApplication::activeWindow(), QString(), 開始フォルダ,
                                        項目.join(u";;"_qs));
}

QString Qtプラットフォーム::フォルダ選択(const QString& 題名, const QString& 開始フォルダ) {
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(), 題名, 開始フォルダ);
}

QWidget* Qtプラットフォーム::窓を作る(const QString& 画面名, 画面モデル& m) {
    // A window of its own; a parent would take the dialogue down with it.
    auto* 窓 = new ScreenWindow(m);
    窓->setWindowFlag(Qt::Dialog);
    窓->setAttribute(Qt::WA_DeleteOnClose);
    // A close by the frame runs the window's own answer to it, then unloads it.
    窓->閉じる時 = [this, 画面名] {
        if (!開いている.contains(画面名)) return;
        枠閉じ実行(画面名);
        画面終了(画面名);
    };
    return 窓;
}

void Qtプラットフォーム::画面表示(const QString& 画面名, bool モーダル) {
    画面モデル* m = 画面群.value(画面名);
    if (!m) {
        // A window not built yet: the operator is told instead.
        メッセージ(画面名 + u" は準備中です。"_qs);
        return;
    }
    QWidget* 上 = QApplication::activeWindow();
    QPointer<QWidget> 窓 = 隠れている.take(画面名);
    if (!窓) {
        // A window may unload itself in its own load: then nothing is shown.
        開いている[画面名] = {};
        読込実行(画面名);
        if (!開いている.contains(画面名)) return;
        窓 = 窓を作る(画面名, *m);
        if (上) 窓->move(上->geometry().center() - 窓->rect().center());
    }
    窓->setWindowModality(モーダル ? Qt::ApplicationModal : Qt::NonModal);
    開いている[画面名] = {窓, nullptr};
    窓->show();
    窓->raise();
    窓->activateWindow();
    static_cast<ScreenWindow*>(窓.data())->反映();
    if (!モーダル) return;
    QEventLoop 待ち;
    開いている[画面名].待ち = &待ち;
    待ち.exec();
}

void Qtプラットフォーム::画面終了(const QString& 画面名) {
    const 開いた画面 開 = 開いている.take(画面名);
    if (開.窓) 開.窓->close();
    if (開.待ち) 開.待ち->quit();
    if (const QPointer<QWidget> 隠 = 隠れている.take(画面名)) 隠->close();
}

void Qtプラットフォーム::画面隠す(const QString& 画面名) {
    const 開いた画面 開 = 開いている.take(画面名);
    if (開.窓) {
        開.窓->hide();
        隠れている[画面名] = 開.窓;
    }
    if (開.待ち) 開.待ち->quit();
}

void Qtプラットフォーム::画面使用可否(const QString&, bool) {
    // Modal windows keep the others from input by themselves.
}

void Qtプラットフォーム::最前面表示() {
    if (QWidget* w = QApplication::activeWindow()) {
        w->raise();
        w->activateWindow();
    }
}
