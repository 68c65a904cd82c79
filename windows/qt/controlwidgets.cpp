// The kinds of controls on the screen.

#include "windows/qt/controlwidgets.h"

#include "windows/qt/accessibility.h"
#include "windows/qt/button.h"
#include "windows/qt/canvas.h"
#include "windows/qt/listrows.h"
#include "windows/qt/style.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>

#include <algorithm>

namespace tessaly {

namespace {

const QColor buttonface(226, 226, 226);
const QColor editedpaper(255, 232, 150), warningpaper(255, 170, 150);
constexpr int tallestrow = 17;  // pixels of a list's row; less where the items of a fixed list fit only so
constexpr int multiline = 60;   // pixels: a text box from this height on has several lines

// ---- lists -------------------------------------------------------------------------------------------------

// A click on a row is a pick, also on the row that is selected already; so is Enter on the current row. Any pick is
// told as a click.
class list : public QListWidget {
  public:
    list(const control& itscontrol, QWidget* plan) : QListWidget(plan), of(itscontrol) {
        setFocusPolicy(Qt::StrongFocus);  // not by the wheel
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setTextElideMode(Qt::ElideMiddle);
        setUniformItemSizes(true);
        setVerticalScrollMode(ScrollPerPixel);
        new rowpainter(*this);
        // A row that something else selects, as assistive technology does, is picked.
        connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this](const QItemSelection& rows) {
            if (!marking && !rows.isEmpty()) pick(rows.front().top());
        });
    }

    int rowheight(int rows) const {
        if (of.kind == controlkind::filelist) return tallestrow;
        const int least = fontMetrics().height();
        return std::clamp((height() - 2 * frameWidth()) / std::max(rows, 1), least, tallestrow);
    }

    // Marks the picked row and no other; the row of the keyboard goes there too.
    void mark(int row) {
        const QModelIndexList marked = selectedIndexes();
        if (row < 0 ? marked.isEmpty() : !marked.isEmpty() && marked.front().row() == row) return;
        const QModelIndex picked = model()->index(row, 0);
        marking = true;
        selectionModel()->setCurrentIndex(picked, QItemSelectionModel::NoUpdate);
        selectionModel()->select(picked, QItemSelectionModel::ClearAndSelect);
        marking = false;
    }

  protected:
    // What is marked is what the program holds as picked: neither the arrow keys nor a press of the mouse change it.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex&, const QEvent*) const override {
        return QItemSelectionModel::NoUpdate;
    }

    void keyPressEvent(QKeyEvent* event) override {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (enter && currentRow() >= 0)
            pick(currentRow());
        else
            QListWidget::keyPressEvent(event);
    }

    // The toolkit would make the first row current. Only a user of the keyboard gets a row on which Return acts at
    // once.
    void focusInEvent(QFocusEvent* event) override {
        const bool hadrow = currentRow() >= 0;
        QListWidget::focusInEvent(event);
        if (hadrow || count() == 0) return;
        const bool keyboard = window()->testAttribute(Qt::WA_KeyboardFocusChange);
        selectionModel()->setCurrentIndex(keyboard ? model()->index(0, 0) : QModelIndex(),
                                          QItemSelectionModel::NoUpdate);
    }

    void paintEvent(QPaintEvent* event) override {
        QListWidget::paintEvent(event);
        if (count() > 0 || of.kind != controlkind::filelist) return;
        QPainter painter(QListWidget::viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(QListWidget::viewport()->rect().adjusted(4, 4, -4, -4), Qt::AlignHCenter | Qt::AlignTop,
                         "no files");
    }

  private:
    void pick(int row) { emit clicked(model()->index(row, 0)); }

    const control& of;
    bool marking = false;
};

// ---- boxes -------------------------------------------------------------------------------------------------

// A box whose text is there to be typed over: the first click selects all of it, as Tab does, the next one sets the
// cursor.
class linebox : public QLineEdit {
  public:
    explicit linebox(QWidget* plan) : QLineEdit(plan) {
        setTextMargins(-1, 0, -1, 0);  // the narrowest boxes are 33 pixels wide
    }

  protected:
    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        fresh = true;
    }
    void keyPressEvent(QKeyEvent* event) override {
        fresh = false;
        QLineEdit::keyPressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        QLineEdit::mouseReleaseEvent(event);
        if (fresh && !hasSelectedText()) selectAll();
        fresh = false;
    }
    void mouseDoubleClickEvent(QMouseEvent*) override { selectAll(); }

  private:
    bool fresh = false;  // since it has the focus, no key and no click
};

// The wheel turns past it unless it has the focus, and its list is as wide as its entries.
class snipbox : public QComboBox {
  public:
    explicit snipbox(QWidget* plan) : QComboBox(plan) {
        setEditable(true);
        setCompleter(nullptr);  // what is typed stays as typed
        setInsertPolicy(QComboBox::NoInsert);
        lineEdit()->setTextMargins(-2, 0, -2, 0);  // so that the longest entry fits
        setFocusPolicy(Qt::StrongFocus);           // not by the wheel
    }
    void showPopup() override {
        view()->setMinimumWidth(view()->sizeHintForColumn(0) + 2 * view()->frameWidth());
        QComboBox::showPopup();
    }

  protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus())
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }
};

// ---- the kinds ---------------------------------------------------------------------------------------------

QWidget* makebutton(const control& c, QWidget* plan) {
    auto* made = new button(c.back ? screencolour(*c.back) : buttonface, plan);
    made->setAutoRepeat(c.repeats);
    if (c.kind == controlkind::picturebutton) made->setpicture(QString::fromStdString(c.name));
    return made;
}

QWidget* makelabel(QWidget* plan) {
    auto* label = new QLabel(plan);
    label->setTextFormat(Qt::PlainText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

QWidget* maketextbox(const control& c, QWidget* plan) {
    if (inpixels(c.bounds.height) < multiline) return new linebox(plan);
    auto* box = new QPlainTextEdit(plan);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setTabChangesFocus(true);
    return box;
}

QWidget* makepage(QWidget* plan) {
    auto* page = new QPlainTextEdit(plan);
    page->setReadOnly(true);
    page->setLineWrapMode(QPlainTextEdit::NoWrap);
    page->setTabChangesFocus(true);
    page->setFont(pagefont());
    return page;
}

// A picture box without an image of the engine shows a picture of its own name, and its text upon that.
class stillpicture : public QWidget {
  public:
    stillpicture(const control& c, QWidget* plan)
        : QWidget(plan), shows(QString::fromStdString(c.name)), words(QString::fromStdString(c.text)) {
        setFont(captionfont(wordpixels));
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        shows.paint(painter, rect());
        painter.drawText(rect().adjusted(0, wordpixels, 0, 0), Qt::AlignHCenter | Qt::AlignTop, words);
    }

  private:
    static constexpr int wordpixels = 20;
    picture shows;
    QString words;
};

QWidget* makepicturebox(const control& c, QWidget* plan) {
    if (&c == &viewport) return new canvas(viewportimage(), plan);
    if (&c != &progressbar) return new stillpicture(c, plan);
    auto* strip = new canvas(progressimage(), plan);
    showprogresson(strip);
    return strip;
}

QWidget* makeframe(QWidget* plan) {
    auto* frame = new QFrame(plan);
    frame->setFrameStyle(QFrame::Box | QFrame::Sunken);
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    return frame;
}

QWidget* makekind(const control& c, QWidget* plan) {
    switch (c.kind) {
    case controlkind::button:
    case controlkind::picturebutton: return makebutton(c, plan);
    case controlkind::label: return makelabel(plan);
    case controlkind::textbox: return maketextbox(c, plan);
    case controlkind::page: return makepage(plan);
    case controlkind::list:
    case controlkind::filelist: return new list(c, plan);
    case controlkind::combobox: return new snipbox(plan);
    case controlkind::picturebox: return makepicturebox(c, plan);
    case controlkind::frame: return makeframe(plan);
    }
    return nullptr;
}

}  // namespace

QWidget* makewidget(const control& c, QWidget* plan) {
    QWidget* widget = makekind(c, plan);
    if (c.kind == controlkind::picturebox) setrole(*widget, QAccessible::Graphic);
    if (c.kind == controlkind::frame) setrole(*widget, QAccessible::Grouping);
    const QString caption = QString::fromStdString(c.text).simplified();
    widget->setObjectName(QString::fromStdString(c.name));
    widget->setGeometry(inpixels(c.bounds.left), inpixels(c.bounds.top), inpixels(c.bounds.width),
                        inpixels(c.bounds.height));
    widget->setAccessibleName(c.accessiblename.empty() ? caption : QString::fromStdString(c.accessiblename));
    if (auto* box = qobject_cast<QComboBox*>(widget)) box->lineEdit()->setAccessibleName(box->accessibleName());
    widget->hide();
    return widget;
}

int layerof(const control& c) {
    if (&c == &progressbar) return 5;
    switch (c.kind) {
    case controlkind::picturebox: return 0;
    case controlkind::frame: return 1;
    case controlkind::label: return 2;
    case controlkind::button:
    case controlkind::picturebutton: return 3;
    default: return 4;
    }
}

bool comestofront(const control& c) { return c.kind == controlkind::list || c.kind == controlkind::filelist; }

bool typable(const control& c) { return c.kind == controlkind::textbox || c.kind == controlkind::combobox; }

std::string typedtext(const QWidget& widget) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return line->text().toStdString();
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) return box->currentText().toStdString();
    const auto* lines = qobject_cast<const QPlainTextEdit*>(&widget);
    return lines ? lines->toPlainText().toStdString() : std::string();
}

void settext(QWidget& widget, const std::string& text) {
    const QString shown = QString::fromStdString(text);
    if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
        line->setText(shown);
        line->setCursorPosition(0);
    } else if (auto* page = qobject_cast<QPlainTextEdit*>(&widget))
        page->setPlainText(shown);
    else if (auto* box = qobject_cast<QComboBox*>(&widget))
        box->setEditText(shown);
    else if (auto* label = qobject_cast<QLabel*>(&widget))
        label->setText(shown);
    else if (auto* push = qobject_cast<QPushButton*>(&widget))
        push->setText(shown);
}

void settooltip(QWidget& widget, const std::string& text) {
    widget.setToolTip(QString::fromStdString(text));
    widget.setAccessibleDescription(widget.toolTip().section(": ", -1));  // what the name does not say already
}

void settint(QWidget& widget, boxtint tint) {
    QPalette palette;  // of no colours: those of the window hold
    if (tint != boxtint::none) palette.setColor(QPalette::Base, tint == boxtint::edited ? editedpaper : warningpaper);
    widget.setPalette(palette);
}

void setitems(QWidget& widget, const std::vector<std::string>& items) {
    QStringList names;
    for (const std::string& item : items) names << QString::fromStdString(item);
    if (auto* rows = dynamic_cast<list*>(&widget)) {
        rows->clear();
        for (const QString& name : names) {
            auto* row = new QListWidgetItem(name, rows);
            row->setSizeHint(QSize(0, rows->rowheight(static_cast<int>(names.size()))));
            if (rows->fontMetrics().horizontalAdvance(name) > rows->width() - 24) row->setToolTip(name);
        }
    } else if (auto* box = qobject_cast<QComboBox*>(&widget)) {
        const QString text = box->currentText();
        box->clear();
        box->addItems(names);
        box->setEditText(text);
    }
}

void setselection(const control& c, QWidget& widget) {
    if (auto* rows = dynamic_cast<list*>(&widget)) rows->mark(c.selected);
    if (auto* push = dynamic_cast<button*>(&widget)) push->setchosen(c.chosen || opensshownwindow(c));
    if (auto* box = qobject_cast<QComboBox*>(&widget)) {
        const QString text = box->currentText();
        const int row = box->findText(text, Qt::MatchExactly);  // its list opens at this one
        if (row == box->currentIndex()) return;
        box->setCurrentIndex(row);
        box->setEditText(text);
    }
}

}  // namespace tessaly
