// A widget for each kind of control.

#include "windows/qt/controlwidgets.h"

#include "windows/qt/accessibility.h"
#include "windows/qt/button.h"
#include "windows/qt/canvas.h"
#include "windows/qt/keyboard.h"
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

const QColor buttoncolour(226, 226, 226);
const QColor editedcolour(255, 232, 150), warningcolour(255, 170, 150);  // backgrounds of boxes
constexpr int maxrowheight = 17;  // pixels; the rows of a fixed list are lower if its items do not fit otherwise
constexpr int minmultiline = 60;  // pixels; text boxes at least this high have several lines

// ---- lists --------------------------------------------------------------------------------------------------

// Clicking a row picks it, even if it is selected already; so does Enter on the current row. Each pick emits clicked.
class list : public QListWidget {
  public:
    list(const control& itscontrol, QWidget* plan) : QListWidget(plan), source(itscontrol) {
        setFocusPolicy(Qt::StrongFocus);  // the wheel does not focus it
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setTextElideMode(Qt::ElideMiddle);
        setUniformItemSizes(true);
        setVerticalScrollMode(ScrollPerPixel);
        new rowpainter(*this);
        // Assistive technology selects a row without a click: this picks the row.
        connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this](const QItemSelection& rows) {
            if (!marking && !rows.isEmpty()) pick(rows.front().top());
        });
    }

    int rowheight(int rows) const {
        if (source.kind == controlkind::filelist) return maxrowheight;
        const int least = fontMetrics().height();
        return std::clamp((height() - 2 * frameWidth()) / std::max(rows, 1), least, maxrowheight);
    }

    // Selects this row only and makes it the current row of the keyboard; -1: selects none.
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
    // The selection shows the picked item: only mark changes it, not the arrow keys or the mouse.
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

    // Qt makes the first row current. Keeps it only for a user of the keyboard, so that Return picks it.
    void focusInEvent(QFocusEvent* event) override {
        const bool hadrow = currentRow() >= 0;
        QListWidget::focusInEvent(event);
        if (hadrow || count() == 0) return;
        selectionModel()->setCurrentIndex(lastpresswaskey() ? model()->index(0, 0) : QModelIndex(),
                                          QItemSelectionModel::NoUpdate);
    }

    void paintEvent(QPaintEvent* event) override {
        QListWidget::paintEvent(event);
        if (count() > 0 || source.kind != controlkind::filelist) return;
        QPainter painter(QListWidget::viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(QListWidget::viewport()->rect().adjusted(4, 4, -4, -4), Qt::AlignHCenter | Qt::AlignTop,
                         "no files");
    }

  private:
    void pick(int row) { emit clicked(model()->index(row, 0)); }

    const control& source;
    bool marking = false;  // the program changes the selection: this is no pick
};

// ---- boxes --------------------------------------------------------------------------------------------------

// A box whose text is usually replaced: the first click selects all of it, as Tab does; the next one sets the cursor.
class linebox : public QLineEdit {
  public:
    explicit linebox(QWidget* plan) : QLineEdit(plan) {
        setTextMargins(-1, 0, -1, 0);  // the narrowest boxes are 33 pixels wide
    }

  protected:
    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        untouched = true;
    }
    void keyPressEvent(QKeyEvent* event) override {
        untouched = false;
        QLineEdit::keyPressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        QLineEdit::mouseReleaseEvent(event);
        if (untouched && !hasSelectedText()) selectAll();
        untouched = false;
    }
    void mouseDoubleClickEvent(QMouseEvent*) override { selectAll(); }

  private:
    bool untouched = false;  // no key and no click since it got the focus
};

// Ignores the wheel unless it has the focus; its list is as wide as its longest entry.
class snipbox : public QComboBox {
  public:
    explicit snipbox(QWidget* plan) : QComboBox(plan) {
        setEditable(true);
        setCompleter(nullptr);  // typed text is not completed
        setInsertPolicy(QComboBox::NoInsert);
        lineEdit()->setTextMargins(-2, 0, -2, 0);  // so that the longest entry fits
        setFocusPolicy(Qt::StrongFocus);           // the wheel does not focus it
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

// ---- a widget of each kind ----------------------------------------------------------------------------------

QWidget* makebutton(const control& c, QWidget* plan) {
    auto* widget = new button(c.background ? screencolour(*c.background) : buttoncolour, plan);
    widget->setAutoRepeat(c.repeats);
    if (c.kind == controlkind::picturebutton) widget->setpicture(QString::fromStdString(c.name));
    return widget;
}

QWidget* makelabel(QWidget* plan) {
    auto* label = new QLabel(plan);
    label->setTextFormat(Qt::PlainText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

QWidget* maketextbox(const control& c, QWidget* plan) {
    if (inpixels(c.bounds.height) < minmultiline) return new linebox(plan);
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

// A picture box on which the program does not draw. Shows the picture file of the control's name, and the control's
// text over it.
class stillpicture : public QWidget {
  public:
    stillpicture(const control& c, QWidget* plan)
        : QWidget(plan), image(QString::fromStdString(c.name)), caption(QString::fromStdString(c.text)) {
        setFont(captionfont(letterpixels));
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        image.paint(painter, rect());
        painter.drawText(rect().adjusted(0, letterpixels, 0, 0), Qt::AlignHCenter | Qt::AlignTop, caption);
    }

  private:
    static constexpr int letterpixels = 20;
    picture image;
    QString caption;
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

QWidget* makeofkind(const control& c, QWidget* plan) {
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
    QWidget* widget = makeofkind(c, plan);
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

bool raisedwhenshown(const control& c) { return c.kind == controlkind::list || c.kind == controlkind::filelist; }

bool takestyping(const control& c) { return c.kind == controlkind::textbox || c.kind == controlkind::combobox; }

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
    widget.setAccessibleDescription(widget.toolTip().section(": ", -1));  // without a part that repeats the name
}

void settint(QWidget& widget, boxtint tint) {
    QPalette palette;  // without a colour set, the window's colours apply
    if (tint != boxtint::none) palette.setColor(QPalette::Base, tint == boxtint::edited ? editedcolour : warningcolour);
    widget.setPalette(palette);
}

void setitems(QWidget& widget, const std::vector<std::string>& items) {
    QStringList texts;
    for (const std::string& item : items) texts << QString::fromStdString(item);
    if (auto* rows = dynamic_cast<list*>(&widget)) {
        rows->clear();
        for (const QString& text : texts) {
            auto* row = new QListWidgetItem(text, rows);
            row->setSizeHint(QSize(0, rows->rowheight(static_cast<int>(texts.size()))));
            if (rows->fontMetrics().horizontalAdvance(text) > rows->width() - 24) row->setToolTip(text);
        }
    } else if (auto* box = qobject_cast<QComboBox*>(&widget)) {
        const QString text = box->currentText();
        box->clear();
        box->addItems(texts);
        box->setEditText(text);
    }
}

void setselection(const control& c, QWidget& widget) {
    if (auto* rows = dynamic_cast<list*>(&widget)) rows->mark(c.selected);
    if (auto* push = dynamic_cast<button*>(&widget)) push->setchosen(c.chosen || opensshownwindow(c));
    if (auto* box = qobject_cast<QComboBox*>(&widget)) {
        const QString text = box->currentText();
        const int row = box->findText(text, Qt::MatchExactly);  // the list opens at this row
        if (row == box->currentIndex()) return;
        box->setCurrentIndex(row);
        box->setEditText(text);
    }
}

}  // namespace tessaly
