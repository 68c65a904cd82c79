// A widget for each kind of control.

#include "windows/qt/controlwidgets.h"

#include "windows/qt/accessibility.h"
#include "windows/qt/button.h"
#include "windows/qt/canvas.h"
#include "windows/qt/keyboard.h"
#include "windows/qt/style.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyledItemDelegate>

#include <algorithm>

namespace tessaly {

namespace {

const QColor buttoncolour(226, 226, 226);
const QColor editedcolour(255, 232, 150), warningcolour(255, 170, 150);  // backgrounds of boxes
const QColor hovercolour(205, 222, 245);
constexpr int maxrowheight = 17;  // pixels; the rows of a fixed list are lower if its items do not fit otherwise
constexpr int minmultiline = 60;  // pixels; text boxes at least this high have several lines

// ---- lists --------------------------------------------------------------------------------------------------

// Paints the rows of a list: fills the picked row with a dark colour and the row under the mouse with a light one, and
// draws a dotted frame around the current row of the keyboard.
class rowpainter : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem row = option;
        const bool picked = row.state & QStyle::State_Selected, keyboard = row.state & QStyle::State_HasFocus;
        row.state &= ~QStyle::State_HasFocus;  // the style would fill the row as if it were picked
        if (!picked && (row.state & QStyle::State_MouseOver)) painter->fillRect(row.rect, hovercolour);
        QStyledItemDelegate::paint(painter, row, index);
        if (!keyboard) return;
        painter->setPen(QPen(row.palette.color(picked ? QPalette::HighlightedText : QPalette::Text), 1, Qt::DotLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(row.rect.adjusted(0, 0, -1, -1));
    }
};

// A click picks a row, even the selected one, and Return picks the current row. Each pick emits clicked.
class list : public QListWidget {
  public:
    list(const control& itscontrol, QWidget* content) : QListWidget(content), listcontrol(itscontrol) {
        setFocusPolicy(Qt::StrongFocus);  // the wheel does not focus it
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setTextElideMode(Qt::ElideMiddle);
        setUniformItemSizes(true);
        setVerticalScrollMode(ScrollPerPixel);
        QListWidget::viewport()->setAttribute(Qt::WA_Hover);
        setItemDelegate(new rowpainter(this));
        // Assistive technology picks a row by selecting it, without a click.
        connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this](const QItemSelection& rows) {
            if (!selecting && !rows.isEmpty()) pick(rows.front().top());
        });
    }

    int rowheight(int rows) const {
        if (listcontrol.kind == controlkind::filelist) return maxrowheight;
        const int minheight = fontMetrics().height();
        return std::clamp((height() - 2 * frameWidth()) / std::max(rows, 1), minheight, maxrowheight);
    }

    // Selects this row only and makes it the current row of the keyboard; -1: selects none.
    void selectrow(int row) {
        const QModelIndex index = model()->index(row, 0);
        if (selectedIndexes().value(0) == index) return;
        selecting = true;
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
        selecting = false;
    }

  protected:
    // Only selectrow changes the selection, which shows the picked item: arrow keys and the mouse do not.
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

    // Qt makes the first row current, so that Return picks it. Undoes this if the user works with the mouse.
    void focusInEvent(QFocusEvent* event) override {
        const bool hadrow = currentRow() >= 0;
        QListWidget::focusInEvent(event);
        if (hadrow || count() == 0) return;
        selectionModel()->setCurrentIndex(lastpresswaskey() ? model()->index(0, 0) : QModelIndex(),
                                          QItemSelectionModel::NoUpdate);
    }

    void paintEvent(QPaintEvent* event) override {
        QListWidget::paintEvent(event);
        if (count() > 0 || listcontrol.kind != controlkind::filelist) return;
        QPainter painter(QListWidget::viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(QListWidget::viewport()->rect().adjusted(4, 4, -4, -4), Qt::AlignHCenter | Qt::AlignTop,
                         "no files");
    }

  private:
    void pick(int row) { emit clicked(model()->index(row, 0)); }

    const control& listcontrol;
    bool selecting = false;  // in selectrow, whose changes of the selection are not picks
};

// ---- boxes --------------------------------------------------------------------------------------------------

// A text box of one line. The first click selects its whole text, as Tab does; the next click sets the cursor.
class linebox : public QLineEdit {
  public:
    explicit linebox(QWidget* content) : QLineEdit(content) {
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
    bool untouched = false;  // neither key nor click since it received the focus
};

// A combination box that ignores the wheel unless it has the focus.
class snipbox : public QComboBox {
  public:
    explicit snipbox(QWidget* content) : QComboBox(content) {
        setEditable(true);
        setCompleter(nullptr);  // typed text is not completed
        setInsertPolicy(QComboBox::NoInsert);
        lineEdit()->setTextMargins(-2, 0, -2, 0);  // so that the longest entry fits
        setFocusPolicy(Qt::StrongFocus);           // the wheel does not focus it
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

QWidget* makebutton(const control& c, QWidget* content) {
    auto* widget = new button(c.background ? screencolour(*c.background) : buttoncolour, content);
    widget->setAutoRepeat(c.repeats);
    if (c.kind == controlkind::picturebutton) widget->setIcon(pictureof(c.name));
    return widget;
}

QWidget* makelabel(QWidget* content) {
    auto* label = new QLabel(content);
    label->setTextFormat(Qt::PlainText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

QWidget* makepage(const QFont& font, QWidget* content) {
    auto* page = new QPlainTextEdit(content);
    page->setReadOnly(true);
    page->setLineWrapMode(QPlainTextEdit::NoWrap);
    page->setTabChangesFocus(true);
    page->setFont(font);
    return page;
}

QWidget* maketextbox(const control& c, QWidget* content) {
    if (inpixels(c.bounds.height) < minmultiline) return new linebox(content);
    return makepage(captionfont(), content);
}

// A picture box that shows the picture file of its control's name, with the control's text above it.
class namedpicture : public QWidget {
  public:
    namedpicture(const control& c, QWidget* content)
        : QWidget(content), image(pictureof(c.name)), caption(QString::fromStdString(c.text)) {
        setFont(captionfont(letterpixels));
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        image.paint(&painter, rect());
        painter.drawText(rect().adjusted(0, letterpixels, 0, 0), Qt::AlignHCenter | Qt::AlignTop, caption);
    }

  private:
    static constexpr int letterpixels = 20;
    QIcon image;
    QString caption;
};

QWidget* makepicturebox(const control& c, QWidget* content) {
    if (&c == &viewport) return new canvas(viewportimage(), content);
    if (&c == &progressbar) return new canvas(progressimage(), content);
    return new namedpicture(c, content);
}

QWidget* makeframe(QWidget* content) {
    auto* frame = new QFrame(content);
    frame->setFrameStyle(QFrame::Box | QFrame::Sunken);
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    return frame;
}

QWidget* makeunnamed(const control& c, QWidget* content) {
    switch (c.kind) {
    case controlkind::button:
    case controlkind::picturebutton: return makebutton(c, content);
    case controlkind::label: return makelabel(content);
    case controlkind::textbox: return maketextbox(c, content);
    case controlkind::page: return makepage(pagefont(), content);
    case controlkind::list:
    case controlkind::filelist: return new list(c, content);
    case controlkind::combobox: return new snipbox(content);
    case controlkind::picturebox: return makepicturebox(c, content);
    case controlkind::frame: return makeframe(content);
    }
    return nullptr;
}

}  // namespace

QWidget* makewidget(const control& c, QWidget* content) {
    QWidget* widget = makeunnamed(c, content);
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

QLineEdit* typedline(QWidget& widget) {
    auto* const box = qobject_cast<QComboBox*>(&widget);
    return box ? box->lineEdit() : qobject_cast<QLineEdit*>(&widget);
}

void settext(QWidget& widget, const std::string& text) {
    for (const char* property : {"text", "plainText", "currentText"})
        if (widget.metaObject()->indexOfProperty(property) >= 0)
            widget.setProperty(property, QString::fromStdString(text));
    if (QLineEdit* const line = typedline(widget)) line->setCursorPosition(0);
}

void settooltip(QWidget& widget, const std::string& text) {
    const QString tooltip = QString::fromStdString(text);
    if (tooltip == widget.toolTip()) return;
    widget.setToolTip(tooltip);
    widget.setAccessibleDescription(tooltip.section(": ", -1));  // without a part that repeats the name
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
        box->addItems(texts);
        box->view()->setMinimumWidth(box->view()->sizeHintForColumn(0) + 2 * box->view()->frameWidth());
    }
}

void setselection(const control& c, QWidget& widget) {
    if (auto* rows = dynamic_cast<list*>(&widget)) rows->selectrow(c.selected);
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
