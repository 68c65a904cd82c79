// Decorates the main window: connects its keys, and shows the tags and hints of its boxes.

#include "core/viewvalues.h"
#include "windows/handlers.h"
#include "windows/qt/binding.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"

#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

namespace tessaly {

namespace {

const QColor tagcolour(80, 80, 80);
const QColor hintcolour(255, 255, 225);

// Runs the procedure of a key, then selects the text of a focused box, so that typing replaces it.
void presskey(const std::function<void()>& procedure) {
    runevent(procedure);
    if (auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget())) line->selectAll();
}

// Makes Return in a box click a button if the button is shown.
void clickonreturn(const control& box, control& button) {
    auto* line = qobject_cast<QLineEdit*>(widgetof(box));
    QObject::connect(line, &QLineEdit::returnPressed, line, [&button] {
        if (button.shown) presskey([&button] { clickcontrol(button); });
    });
}

// Shows a tag at the right end of a box that has no label beside it.
void addtag(QLineEdit& box, const char* text) {
    auto* const tag = new QLabel(text, &box);
    QPalette palette;
    palette.setColor(QPalette::WindowText, tagcolour);
    tag->setPalette(palette);
    tag->setAttribute(Qt::WA_TransparentForMouseEvents);
    tag->adjustSize();
    tag->move(box.width() - tag->width() - 2, (box.height() - tag->height()) / 2);
    box.setTextMargins(1, 0, tag->width() + 2, 0);
}

// Makes the box of a prompt or hint read-only, without focus and in the colour of hints.
void makereadonly(const control& c) {
    QWidget* const box = widgetof(c);
    box->setProperty("readOnly", true);
    box->setFocusPolicy(Qt::NoFocus);
    QPalette palette = box->palette();
    palette.setColor(QPalette::Base, hintcolour);
    box->setPalette(palette);
}

}  // namespace

void decoratevistaplan(windowframe& f) {
    for (const viewvalue& v : taggedvalues) addtag(*qobject_cast<QLineEdit*>(widgetof(v.box)), v.tag);
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
}

}  // namespace tessaly
