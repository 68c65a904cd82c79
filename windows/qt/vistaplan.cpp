// Decorates the main window: opens it maximised, and gives it its keys and the tags of its boxes.

#include "core/viewvalues.h"
#include "windows/handlers.h"
#include "windows/qt/binding.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"
#include "windows/qt/windowposition.h"

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QShortcut>

namespace tessaly {

namespace {

// The seven boxes over the picture have no labels beside them: each shows a tag at its right end.
const QColor tagcolour(80, 80, 80);
const QColor hintcolour(255, 255, 225);

// Runs the procedure of a key. Then selects the text of a focused box, so that typing replaces it.
void presskey(const std::function<void()>& procedure) {
    runevent(procedure);
    if (auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget())) line->selectAll();
}

// Makes Return in a box click a button, while that is shown.
void clickonreturn(const control& box, control& button) {
    auto* line = qobject_cast<QLineEdit*>(widgetof(box));
    QObject::connect(line, &QLineEdit::returnPressed, line, [&button] {
        if (button.shown) presskey([&button] { clickcontrol(button); });
    });
}

class tag : public QWidget {
  public:
    tag(const char* itstext, QWidget* box) : QWidget(box), text(itstext) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFont(captionfont());
        const int width = fontMetrics().horizontalAdvance(text) + 4;
        setGeometry(box->width() - width, 1, width - 1, box->height() - 2);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(tagcolour);
        painter.drawText(rect(), Qt::AlignCenter, text);
    }

  private:
    QString text;
};

// Makes the box of a prompt or hint read-only, without focus and in the colour of hints.
void makereadonly(const control& c) {
    QWidget* box = widgetof(c);
    if (auto* line = qobject_cast<QLineEdit*>(box)) line->setReadOnly(true);
    if (auto* lines = qobject_cast<QPlainTextEdit*>(box)) lines->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    QPalette palette = box->palette();
    palette.setColor(QPalette::Base, hintcolour);
    box->setPalette(palette);
}

}  // namespace

void decoratevistaplan(windowframe& f) {
    for (const viewvalue& over : taggedvalues) {
        auto* box = qobject_cast<QLineEdit*>(widgetof(over.box));
        auto* boxtag = new tag(over.tag, box);
        box->setTextMargins(1, 0, boxtag->width() - 2, 0);
    }
    for (const control* c : {&Label4, &Label5, &Label6, &vert, &horizlabel})
        qobject_cast<QLabel*>(widgetof(*c))->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (const control* c : {&selectgirderfile, &selectpanelfile, &selectedbox, &autohintbox}) makereadonly(*c);
    for (const programkey& k : programkeys()) {
        auto* shortcut = new QShortcut(QKeySequence(k.name), &f);
        shortcut->setContext(Qt::ApplicationShortcut);
        QObject::connect(shortcut, &QShortcut::activated, &f, [&k] { presskey(k.press); });
    }
    clickonreturn(capbox, screencapenter);
    for (const viewvalue& v : viewvalues) clickonreturn(v.box, cventerbtn);
    f.setfirstposition = openmaximised;
}

}  // namespace tessaly
