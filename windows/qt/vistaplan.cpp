// The main window: maximised at the start, with its keys.

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

// The seven boxes over the picture have no labels beside them: each carries its tag at its right end.
const QColor tagink(80, 80, 80);
const QColor hintpaper(255, 255, 225);

// Runs what a key does. A box that has the focus is then ready to be typed over.
void presskey(const std::function<void()>& procedure) {
    runevent(procedure);
    if (auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget())) line->selectAll();
}

// Makes Return in a box a press of a button.
void pressonreturn(const control& box, control& button) {
    auto* line = qobject_cast<QLineEdit*>(widgetof(box));
    QObject::connect(line, &QLineEdit::returnPressed, line, [&button] {
        if (button.shown) presskey([&button] { clickcontrol(button); });
    });
}

class tag : public QWidget {
  public:
    tag(const char* itsword, QWidget* box) : QWidget(box), word(itsword) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFont(captionfont());
        const int width = fontMetrics().horizontalAdvance(word) + 4;
        setGeometry(box->width() - width, 1, width - 1, box->height() - 2);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(tagink);
        painter.drawText(rect(), Qt::AlignCenter, word);
    }

  private:
    QString word;
};

// Prompts and hints are there to be read.
void makereadonly(const control& c) {
    QWidget* box = widgetof(c);
    if (auto* line = qobject_cast<QLineEdit*>(box)) line->setReadOnly(true);
    if (auto* lines = qobject_cast<QPlainTextEdit*>(box)) lines->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    QPalette paper = box->palette();
    paper.setColor(QPalette::Base, hintpaper);
    box->setPalette(paper);
}

}  // namespace

void decoratevistaplan(windowframe& f) {
    for (const viewvalue& over : taggedvalues) {
        auto* box = qobject_cast<QLineEdit*>(widgetof(over.box));
        auto* word = new tag(over.tag, box);
        box->setTextMargins(1, 0, word->width() - 2, 0);
    }
    for (const control* c : {&Label4, &Label5, &Label6, &vert, &horizlabel})
        qobject_cast<QLabel*>(widgetof(*c))->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (const control* c : {&selectgirderfile, &selectpanelfile, &selectedbox, &autohintbox}) makereadonly(*c);
    for (const programkey& k : programkeys()) {
        auto* shortcut = new QShortcut(QKeySequence(k.name), &f);
        shortcut->setContext(Qt::ApplicationShortcut);
        QObject::connect(shortcut, &QShortcut::activated, &f, [&k] { presskey(k.press); });
    }
    pressonreturn(capbox, screencapenter);
    for (const viewvalue& v : viewvalues) pressonreturn(v.box, cventerbtn);
    f.firstshowing = openmaximised;
}

}  // namespace tessaly
