#include "ui/画面ウィンドウ.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionHeader>
#include <QTabBar>
#include <QTreeWidget>
#include <QValidator>

#include "text/キーコード.h"

namespace {

constexpr int 画素(int twips) {
    return twips / 15;
}  // 15 twips to a pixel at 96 dpi

// Qt sizes every header section with a bold font, for a highlight our lists never show; that
// alone loads the bold face of the CJK font, megabytes of a font drawn nowhere.
class 一覧見出し : public QHeaderView {
  public:
    // As a tree view makes its own header.
    explicit 一覧見出し(QWidget* 親) : QHeaderView(Qt::Horizontal, 親) {
        setSectionsMovable(true);
        setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }

  protected:
    QSize sectionSizeFromContents(int 列) const override {
        QStyleOptionHeader 選択肢;
        initStyleOption(&選択肢);
        選択肢.section = 列;
        if (model()) 選択肢.text = model()->headerData(列, orientation()).toString();
        return style()->sizeFromContents(QStyle::CT_HeaderSection, &選択肢, QSize(), this);
    }
};

Qt::Alignment 寄せ(const 一覧列& 列) {
    return (列.右寄せ ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

// A field takes what its control takes as it is typed; the rule is the model's.
class 部品の検査 : public QValidator {
  public:
    部品の検査(const 部品& p, QObject* 親) : QValidator(親), p(p) {}
    State validate(QString& 文字列, int&) const override {
        return p.入力可(文字列) ? Acceptable : Invalid;
    }

  private:
    const 部品& p;
};

QWidget* 作成(部品& p, QWidget* 親) {
    switch (p.種別) {
        case 部品種別::xField:
        case 部品種別::xNum:
        case 部品種別::xText:
        case 部品種別::xPass: {
            auto* e = new QLineEdit(親);
            if (p.種別 == 部品種別::xNum) e->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            if (p.種別 == 部品種別::xPass) e->setEchoMode(QLineEdit::Password);
            e->setValidator(new 部品の検査(p, e));
            return e;
        }
        case 部品種別::xLabel: {
            auto* l = new QLabel(親);
            l->setAlignment(Qt::AlignCenter);
            // A label of several lines' height breaks a long text rather than cut it.
            l->setWordWrap(p.Height >= 2 * 330);
            return l;
        }
        case 部品種別::SSPanel: {
            auto* l = new QLabel(親);
            l->setFrameStyle(QFrame::Panel | QFrame::Raised);
            l->setAlignment(Qt::AlignCenter);
            l->setAutoFillBackground(true);
            return l;
        }
        case 部品種別::SSCommand:
            return new QPushButton(親);
        case 部品種別::SSTab:
            return new QTabBar(親);
        case 部品種別::ListView: {
            // Rows are drawn in the model's order; the model sorts, never the widget.
            auto* t = new QTreeWidget(親);
            t->setHeader(new 一覧見出し(t));
            t->setRootIsDecorated(false);
            t->setUniformRowHeights(true);
            t->setSortingEnabled(false);
            t->setSelectionMode(QAbstractItemView::SingleSelection);
            t->header()->setSectionsClickable(true);
            t->header()->setStretchLastSection(false);
            return t;
        }
        case 部品種別::ComboBox:
            return new QComboBox(親);
        case 部品種別::CheckBox:
            return new QCheckBox(親);
        case 部品種別::OptionButton: {
            // The group is the model's: the widget never turns its siblings off by itself.
            auto* r = new QRadioButton(親);
            r->setAutoExclusive(false);
            return r;
        }
        case 部品種別::VScrollBar:
            return new QScrollBar(Qt::Vertical, 親);
        case 部品種別::ProgressBar:
            return new QProgressBar(親);
        case 部品種別::CommonDialog:
            break;
    }
    return nullptr;
}

// The keys the model knows: Ctrl anywhere, Esc and the function keys for the window, and in a
// list view Enter and the keys that move its selection. なし for every other key.
キーコード 仮想キー(int キー, 部品種別 種別) {
    switch (キー) {
        case Qt::Key_Control:
            return キーコード::Ctrl;
        case Qt::Key_Escape:
            return キーコード::Esc;
        case Qt::Key_F8:
            return キーコード::F8;
        case Qt::Key_F9:
            return キーコード::F9;
        case Qt::Key_F10:
            return キーコード::F10;
        default:
            break;
    }
    if (種別 != 部品種別::ListView) return キーコード::なし;
    switch (キー) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return キーコード::Enter;
        case Qt::Key_PageUp:
            return キーコード::PageUp;
        case Qt::Key_PageDown:
            return キーコード::PageDown;
        case Qt::Key_End:
            return キーコード::End;
        case Qt::Key_Home:
            return キーコード::Home;
        case Qt::Key_Up:
            return キーコード::Up;
        case Qt::Key_Down:
            return キーコード::Down;
        default:
            return キーコード::なし;
    }
}

}  // namespace

ScreenWindow::ScreenWindow(画面モデル& モデル, QWidget* 親) : QWidget(親), m(モデル) {
    // The inner area: the full width, and down to the lowest control; the frame is the
    // platform's own.
    int 下端 = 0;
    for (const 部品* p : m.全部品()) 下端 = qMax(下端, p->Top + p->Height);
    setFixedSize(画素(m.Width), 画素(下端) + 4);
    作る();
    反映();
}

部品* ScreenWindow::部品へ(QWidget* w) const {
    return 逆引き.value(w);
}

void ScreenWindow::作る() {
    for (部品* p : m.全部品()) {
        QWidget* w = 作成(*p, this);
        if (!w) continue;
        int 高さ = qMax(1, 画素(p->Height));
        // A tab control draws only its tabs here; the pages are the controls laid over it.
        if (p->種別 == 部品種別::SSTab) 高さ = 24;
        w->setGeometry(画素(p->Left), 画素(p->Top), qMax(1, 画素(p->Width)), 高さ);
        // The model keeps the focus: neither Qt's focus chain nor its clicks move it.
        w->setFocusPolicy(Qt::NoFocus);
        w->installEventFilter(this);
        対応.insert(p, w);
        逆引き.insert(w, p);
        if (auto* e = qobject_cast<QLineEdit*>(w)) {
            // Every edit is the field's change, as each typed key is.
            QObject::connect(e, &QLineEdit::textEdited, this, [this, p](const QString& 文字列) {
                if (!同期中) 操作([this, p, 文字列] { m.文字設定(*p, 文字列); });
            });
        } else if (auto* b = qobject_cast<QPushButton*>(w)) {
            b->setAutoDefault(false);
            QObject::connect(b, &QPushButton::clicked, this,
                             [this, p] { 操作([this, p] { m.操作_クリック(*p); }); });
        } else if (auto* c = qobject_cast<QComboBox*>(w)) {
            QObject::connect(c, &QComboBox::activated, this,
                             [this, p](int i) { 操作([this, p, i] { m.操作_値変更(*p, i); }); });
        } else if (auto* k = qobject_cast<QAbstractButton*>(w)) {
            // Check boxes and option buttons: the model turns them.
            QObject::connect(k, &QAbstractButton::clicked, this,
                             [this, p] { 操作([this, p] { m.操作_クリック(*p); }); });
        } else if (auto* s = qobject_cast<QScrollBar*>(w)) {
            QObject::connect(s, &QScrollBar::valueChanged, this, [this, p](int 値) {
                if (!同期中) 操作([this, p, 値] { m.操作_値変更(*p, 値); });
            });
        } else if (auto* t = qobject_cast<QTabBar*>(w)) {
            QObject::connect(t, &QTabBar::currentChanged, this, [this, p](int 値) {
                if (!同期中) 操作([this, p, 値] { m.操作_値変更(*p, 値); });
            });
        } else if (auto* v = qobject_cast<QTreeWidget*>(w)) {
            // Presses on the rows land on the viewport; they belong to the list all the same.
            v->viewport()->installEventFilter(this);
            逆引き.insert(v->viewport(), p);
            QObject::connect(v->header(), &QHeaderView::sectionClicked, this, [this, p](int 列) {
                if (!同期中) 操作([this, p, 列] { m.操作_列クリック(*p, 列); });
            });
        }
    }
}

void ScreenWindow::行を描く(const 部品& p, QTreeWidget* t) {
    QStringList 見出し;
    for (const 一覧列& c : p.列) 見出し << c.見出し;
    QStringList 今の見出し;
    for (int i = 0; i < t->columnCount(); ++i) 今の見出し << t->headerItem()->text(i);
    if (今の見出し != 見出し) {
        t->setColumnCount(static_cast<int>(p.列.size()));
        t->setHeaderLabels(見出し);
        for (int i = 0; i < p.列.size(); ++i) {
            t->setColumnWidth(i, 画素(p.列.at(i).幅));
            t->headerItem()->setTextAlignment(i, 寄せ(p.列.at(i)));
        }
    }
    if (描いた版.value(&p, -1) != p.項目版) {
        描いた版[&p] = p.項目版;
        t->clear();
        QList<QTreeWidgetItem*> 行;
        行.reserve(p.項目.size());
        for (int r = 0; r < p.項目.size(); ++r) {
            auto* i = new QTreeWidgetItem;
            for (int c = 0; c < p.列.size(); ++c) {
                i->setText(c, p.セル(r, c));
                if (p.列.at(c).右寄せ) i->setTextAlignment(c, 寄せ(p.列.at(c)));
            }
            行.append(i);
        }
        t->addTopLevelItems(行);
    }
    QTreeWidgetItem* 選 = t->topLevelItem(p.選択);
    if (t->currentItem() != 選) t->setCurrentItem(選);
    if (!選) t->clearSelection();
    if (選) t->scrollToItem(選);
}

void ScreenWindow::色を合わせる(const 部品& p, QWidget* w, QPalette::ColorRole 役) {
    const QColor 色 = p.ForeColor < 0 ? palette().color(役) : QColor::fromRgb(p.ForeColor);
    if (w->palette().color(役) == 色) return;
    QPalette pal = w->palette();
    pal.setColor(役, 色);
    w->setPalette(pal);
}

void ScreenWindow::反映() {
    同期中 = true;
    setWindowTitle(m.Caption);
    for (auto it = 対応.cbegin(); it != 対応.cend(); ++it) {
        const 部品& p = *it.key();
        QWidget* w = it.value();
        const QSignalBlocker 止め(w);
        w->setVisible(m.見えるか(p));
        w->setEnabled(p.Enabled);
        if (auto* e = qobject_cast<QLineEdit*>(w)) {
            if (p.MaxLength > 0) e->setMaxLength(p.MaxLength);
            if (e->text() != p.Text) {
                // Typed text is the model's already, so this text is the program's: it shows
                // from its first character. Only the operator's keys move the view.
                e->setText(p.Text);
                e->setCursorPosition(0);
            }
            色を合わせる(p, w, QPalette::Text);
        } else if (auto* l = qobject_cast<QLabel*>(w)) {
            l->setText(p.Caption);
            色を合わせる(p, w, QPalette::WindowText);
        } else if (auto* b = qobject_cast<QPushButton*>(w)) {
            b->setText(p.Caption);
        } else if (auto* c = qobject_cast<QComboBox*>(w)) {
            QStringList 今;
            for (int i = 0; i < c->count(); ++i) 今 << c->itemText(i);
            if (今 != p.一覧) {
                c->clear();
                c->addItems(p.一覧);
            }
            c->setCurrentIndex(p.ListIndex);
        } else if (auto* k = qobject_cast<QAbstractButton*>(w)) {
            k->setText(p.Caption);
            k->setChecked(p.Value != 0);
        } else if (auto* s = qobject_cast<QScrollBar*>(w)) {
            s->setRange(p.Min, p.Max);
            s->setPageStep(p.LargeChange);
            s->setValue(p.Value);
        } else if (auto* t = qobject_cast<QTabBar*>(w)) {
            while (t->count() < p.一覧.size()) t->addTab(p.一覧.at(t->count()));
            t->setCurrentIndex(p.Value);
        } else if (auto* v = qobject_cast<QTreeWidget*>(w)) {
            行を描く(p, v);
        } else if (auto* g = qobject_cast<QProgressBar*>(w)) {
            g->setRange(p.Min, p.Max);
            g->setValue(p.Value);
        }
    }
    if (部品* f = m.フォーカス()) {
        QWidget* w = 対応.value(f);
        if (w && w != QApplication::focusWidget()) w->setFocus(Qt::OtherFocusReason);
        // A field the focus comes to holds its whole text selected from the first character:
        // keys typed replace it, and the view stays at its start.
        auto* e = qobject_cast<QLineEdit*>(w);
        if (e && f != 焦点の部品) e->setSelection(e->text().size(), -e->text().size());
    }
    焦点の部品 = m.フォーカス();
    同期中 = false;
}

void ScreenWindow::入力を渡す() {
    部品* f = m.フォーカス();
    if (!f) return;
    if (auto* e = qobject_cast<QLineEdit*>(対応.value(f))) m.文字設定(*f, e->text());
}

void ScreenWindow::操作(const std::function<void()>& 動作) {
    if (同期中) return;
    入力を渡す();
    動作();
    反映();
}

bool ScreenWindow::eventFilter(QObject* 対象, QEvent* 事象) {
    auto* w = qobject_cast<QWidget*>(対象);
    部品* p = w ? 逆引き.value(w) : nullptr;
    if (!p || 同期中) return QWidget::eventFilter(対象, 事象);
    switch (事象->type()) {
        case QEvent::KeyPress: {
            const auto* k = static_cast<QKeyEvent*>(事象);
            const bool 一行欄 = qobject_cast<QLineEdit*>(w) != nullptr;
            if (k->key() == Qt::Key_Tab || k->key() == Qt::Key_Backtab ||
                (一行欄 && (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter))) {
                const bool 逆 = k->key() == Qt::Key_Backtab ||
                                (k->key() == Qt::Key_Tab && (k->modifiers() & Qt::ShiftModifier));
                操作([this, 逆] { 逆 ? m.操作_ShiftTab() : m.操作_Tab(); });
                return true;
            }
            if (const キーコード キー = 仮想キー(k->key(), p->種別); キー != キーコード::なし) {
                操作([this, p, キー] { m.操作_キー(*p, キー); });
                return キー != キーコード::Ctrl;
            }
            break;
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (auto* v = qobject_cast<QTreeWidget*>(w->parentWidget()); v && v->viewport() == w) {
                const int 行 =
                    v->indexAt(static_cast<QMouseEvent*>(事象)->position().toPoint()).row();
                const bool 二度 = 事象->type() == QEvent::MouseButtonDblClick;
                操作([this, p, 行, 二度] {
                    if (行 < 0) {
                        m.操作_フォーカス(*p);
                    } else if (二度) {
                        m.操作_項目ダブルクリック(*p, 行);
                    } else {
                        m.操作_項目選択(*p, 行);
                    }
                });
                return true;
            }
            if (事象->type() == QEvent::MouseButtonPress) return 押下(*p, w);
            操作([this, p] { m.操作_ダブルクリック(*p); });
            break;
        case QEvent::Wheel:
            // No wheel turns a closed list or the tab pages: only what the operator opens moves.
            if (qobject_cast<QComboBox*>(w) || qobject_cast<QTabBar*>(w)) return true;
            break;
        default:
            break;
    }
    return QWidget::eventFilter(対象, 事象);
}

bool ScreenWindow::押下(部品& p, QWidget* w) {
    switch (p.種別) {
        case 部品種別::SSCommand:
        case 部品種別::CheckBox:
        case 部品種別::OptionButton:
        case 部品種別::VScrollBar:
        case 部品種別::SSTab:
            return false;  // their click, value or page reaches the model when it is complete
        case 部品種別::SSPanel:
        case 部品種別::xLabel:
            操作([this, &p] { m.操作_クリック(p); });
            return false;
        default:
            break;
    }
    // A field, list or list view: the press asks for the focus, and where the model sends it
    // elsewhere the press goes no further (no cursor placed, no list opened). A text field's own
    // click runs as well, as the employee list's code fields open their lists on it.
    操作([this, &p] {
        if (p.種別 == 部品種別::xField) {
            m.操作_クリック(p);
        } else {
            m.操作_フォーカス(p);
        }
    });
    return m.フォーカス() != &p;
}

void ScreenWindow::closeEvent(QCloseEvent* e) {
    if (閉じてよいか && !閉じてよいか()) {
        e->ignore();
        反映();
        return;
    }
    if (閉じる時) 閉じる時();
    e->accept();
}
