// Copies state between controls and widgets, and runs every user event between two such copies.

#include "windows/qt/binding.h"

#include "core/failure.h"
#include "render/surface.h"
#include "windows/handlers.h"
#include "windows/qt/accessibility.h"
#include "windows/qt/canvas.h"
#include "windows/qt/controlwidgets.h"
#include "windows/qt/decoration.h"
#include "windows/qt/keyboard.h"

#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>

namespace tessaly {

namespace {

struct boundcontrol {
    control* state;
    QWidget* widget;
    std::string text = {};  // text, items and tint: as last copied between control and widget
    std::vector<std::string> items = {};
    boxtint tint = boxtint::none;
};

struct boundwindow {
    std::unique_ptr<windowframe> frame;
    std::vector<boundcontrol> controls;
    int raiseorder = 0;  // as last copied
};

std::map<const window*, boundwindow>& boundwindows() {
    static std::map<const window*, boundwindow> bound;
    return bound;
}

bool running = false;  // an event is being handled
bool ending = false;   // the program is ending

// ---- creating widgets ---------------------------------------------------------------------------------------

// Connects a widget, so that a click on it or a pick of an item runs its control's procedure.
void connectevents(QWidget* widget, control& c) {
    const auto click = [&c] { runevent([&c] { clickcontrol(c); }); };
    const auto pick = [&c](int item) { runevent([&c, item] { pickitem(c, item); }); };
    if (auto* button = qobject_cast<QPushButton*>(widget)) QObject::connect(button, &QPushButton::clicked, click);
    if (auto* box = qobject_cast<QComboBox*>(widget)) QObject::connect(box, &QComboBox::activated, pick);
    if (auto* rows = qobject_cast<QListWidget*>(widget))
        QObject::connect(rows, &QListWidget::clicked, [pick](const QModelIndex& row) { pick(row.row()); });
    // Typing runs no procedure; the empty event updates what depends on the text, such as the tint of the box.
    if (auto* line = qobject_cast<QLineEdit*>(widget))
        QObject::connect(line, &QLineEdit::textChanged, [] { runevent([] {}); });
}

void createwindow(window& w, boundwindow& bound) {
    bound.frame = std::make_unique<windowframe>(w);
    bound.frame->onactivation = [] { runevent([] {}); };  // the user may have edited files before returning
    bound.frame->onclose = [&w] { runevent([&w] { closewindow(w); }); };
    bound.frame->onescape = [&w] { runevent([&w] { pressescape(w, focusedcontrol(w)); }); };
    QWidget* const content = bound.frame->content();
    auto* const buttons = new QButtonGroup(content);  // in a group, arrow keys move the focus to the nearest button
    buttons->setExclusive(false);
    for (control* c : w.controls) {
        bound.controls.push_back({c, makewidget(*c, content)});
        connectevents(bound.controls.back().widget, *c);
        if (auto* button = qobject_cast<QPushButton*>(bound.controls.back().widget)) buttons->addButton(button);
    }
    // Widgets overlap in the order of their kinds, not in that of the table.
    std::vector<control*> backtofront = w.controls;
    std::stable_sort(backtofront.begin(), backtofront.end(),
                     [](const control* a, const control* b) { return a->kind < b->kind; });
    for (const control* c : backtofront) widgetof(*c)->raise();
    decoratewindow(*bound.frame);
}

// ---- state to widgets ---------------------------------------------------------------------------------------

void copytowidget(boundcontrol& b) {
    const control& c = *b.state;
    // A hidden list is filled when it is shown: measuring 10,000 names takes 50 ms.
    if (c.shown && b.items != c.items) setitems(*b.widget, b.items = c.items);
    if (b.text != c.text) settext(*b.widget, b.text = c.text);
    settooltip(*b.widget, tooltipof(c));
    if (const boxtint tint = tintof(c); b.tint != tint) settint(*b.widget, b.tint = tint);
    setselection(c, *b.widget);
    if (b.widget->isHidden() != c.shown) return;
    b.widget->setVisible(c.shown);
    if (islist(c)) b.widget->raise();  // lists can open over each other
    // On a small screen the button that opens a help page is further down.
    if (c.shown && c.kind == controlkind::page) frameof(*c.parent)->ensureVisible(0, 0);
}

// When a focused control is hidden, Qt would focus the next one in the tab order. Focuses the control that opened it
// instead, or the content if no such control is shown; Tab then continues after the hidden control.
void returnfocus(const window& w, const boundwindow& bound) {
    const control* const focused = focusedcontrol(w);
    if (!focused || focused->shown) return;
    const control* const opener = focusafter(*focused);
    QWidget* const to = opener ? widgetof(*opener) : bound.frame->content();
    if (!opener) {
        to->setFocusPolicy(Qt::ClickFocus);  // setTabOrder ignores widgets without a focus policy
        QWidget::setTabOrder(widgetof(*focused), to);
        to->setFocusPolicy(Qt::NoFocus);
    }
    to->show();
    to->setFocus();
}

void showframe(windowframe& f) {
    if (f.isHidden()) f.content()->setFocus();  // the content of startform passes the focus to startprogrambtn
    if (f.isMinimized()) f.setWindowState(f.windowState() & ~Qt::WindowMinimized);
    f.show();
    f.raise();
    f.activateWindow();
}

void copytowindow(window& w) {
    if (!w.shown && !frameof(w)) return;
    boundwindow& bound = boundwindows()[&w];
    if (!bound.frame) createwindow(w, bound);
    if (w.shown && bound.frame->refreshcontent) bound.frame->refreshcontent();
    returnfocus(w, bound);
    for (boundcontrol& b : bound.controls) copytowidget(b);
    if (!w.shown) return bound.frame->hide();
    if (bound.raiseorder != w.raiseorder) showframe(*bound.frame);
    bound.raiseorder = w.raiseorder;
}

void copytowidgets() {
    std::vector<window*> backtofront = allwindows();
    std::sort(backtofront.begin(), backtofront.end(),
              [](const window* a, const window* b) { return a->raiseorder < b->raiseorder; });
    for (window* w : backtofront) copytowindow(*w);
    repaintmainwindow();
    if (QWidget* focused = wantedfocus ? widgetof(*wantedfocus) : nullptr) focused->setFocus();
    wantedfocus = nullptr;
}

// ---- widgets to state ---------------------------------------------------------------------------------------

void copytostate() {
    for (auto& [w, bound] : boundwindows())
        for (boundcontrol& b : bound.controls) {
            const QLineEdit* const line = typedline(*b.widget);
            if (!line) continue;
            const std::string text = line->text().toStdString();
            if (text != b.text) b.state->text = b.text = text;
        }
}

// ---- the end of the program ---------------------------------------------------------------------------------

void endprogram(int status) {
    ending = true;
    QCoreApplication::exit(status);
}

void showreport(const std::string& report) {
    ending = true;  // no event runs while the message is shown
    std::fprintf(stderr, "failure %s\n", report.c_str());
    std::fflush(stderr);
    QMessageBox box(QMessageBox::Critical, "Tessaly", QString::fromStdString(report), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setInformativeText("Tessaly ends now. Everything recorded is safe in the design files.");
    box.exec();
    endprogram(1);
}

}  // namespace

void openwindows() {
    viewportimage().clear();
    progressimage().clear();
    viewportsurface = &viewportimage();
    progresssurface = &progressimage();
    repaintmainwindow = [] {
        if (QWidget* picture = widgetof(viewport)) picture->update();
    };
    installaccessibility();
    droprepeats();
    ending = false;
    runevent(startprogram);
}

void destroywindows() { boundwindows().clear(); }

void runevent(const std::function<void()>& procedure) {
    if (running || ending) return;
    running = true;
    const std::string failed = reportof([&procedure] {
        copytostate();
        procedure();
    });
    const std::string copyfailed = reportof(copytowidgets);  // after a failure, too, to show what the event did
    if (!failed.empty() || !copyfailed.empty()) showreport(failed.empty() ? copyfailed : failed);
    running = false;
    if (programended && !ending) endprogram(0);
}

const control* focusedcontrol(const window& w) {
    const auto found = boundwindows().find(&w);
    if (found == boundwindows().end()) return nullptr;
    for (const boundcontrol& b : found->second.controls)
        if (b.widget == found->second.frame->focusWidget()) return b.state;
    return nullptr;
}

QWidget* widgetof(const control& c) {
    const auto found = boundwindows().find(c.parent);
    if (found == boundwindows().end()) return nullptr;
    for (const boundcontrol& b : found->second.controls)
        if (b.state == &c) return b.widget;
    return nullptr;
}

windowframe* frameof(const window& w) {
    const auto found = boundwindows().find(&w);
    return found == boundwindows().end() ? nullptr : found->second.frame.get();
}

}  // namespace tessaly
