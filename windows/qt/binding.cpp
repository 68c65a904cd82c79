// Copies state between controls and widgets, and runs every user event between two such copies.

#include "windows/qt/binding.h"

#include "core/failure.h"
#include "render/surface.h"
#include "windows/handlers.h"
#include "windows/qt/accessibility.h"
#include "windows/qt/canvas.h"
#include "windows/qt/controlwidgets.h"
#include "windows/qt/keyboard.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>

namespace tessaly {

namespace {

struct boundcontrol {
    control* source;
    QWidget* widget;
    std::string text;  // this and the next three as last copied between control and widget
    std::vector<std::string> items;
    std::string tooltip;
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

void (*decorateframe)(windowframe&);  // called for each new window

bool running = false;  // an event is being handled
bool ending = false;   // the program is ending

// ---- creating widgets ---------------------------------------------------------------------------------------

// Makes the user's clicks and picks on a widget events of its control.
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
    bound.frame->whenclosed = [&w] { runevent([&w] { closewindow(w); }); };
    bound.frame->whenescaped = [&w] { runevent([&w] { pressescape(w, focusedcontrol(w)); }); };
    bound.frame->whenactivated = [] { runevent([] {}); };  // the user may have edited files meanwhile
    for (control* c : w.controls) {
        QWidget* widget = makewidget(*c, bound.frame->plan());
        connectevents(widget, *c);
        bound.controls.push_back({c, widget, {}, {}, {}});
    }
    // Widgets overlap by the layers of their kinds, not by the order of the table.
    std::vector<boundcontrol> bylayer = bound.controls;
    std::stable_sort(bylayer.begin(), bylayer.end(), [](const boundcontrol& a, const boundcontrol& b) {
        return layerof(*a.source) < layerof(*b.source);
    });
    for (const boundcontrol& b : bylayer) b.widget->raise();
    decorateframe(*bound.frame);
}

// ---- state to widgets ---------------------------------------------------------------------------------------

// Scrolls a window to its top: on a small screen the button that opens a help page is further down.
void scrolltotop(windowframe& f) {
    f.horizontalScrollBar()->setValue(0);
    f.verticalScrollBar()->setValue(0);
}

void copytowidget(boundcontrol& b) {
    // A hidden list is filled when it is shown: measuring 10,000 names takes 50 ms.
    if (b.source->shown && b.items != b.source->items) setitems(*b.widget, b.items = b.source->items);
    if (b.text != b.source->text) settext(*b.widget, b.text = b.source->text);
    if (const std::string tooltip = tooltipof(*b.source); b.tooltip != tooltip)
        settooltip(*b.widget, b.tooltip = tooltip);
    if (const boxtint tint = tintof(*b.source); b.tint != tint) settint(*b.widget, b.tint = tint);
    setselection(*b.source, *b.widget);
    if (b.widget->isHidden() != b.source->shown) return;
    b.widget->setVisible(b.source->shown);
    if (b.source->shown && b.source->kind == controlkind::page) scrolltotop(*frameof(*b.source->parent));
    if (raisedwhenshown(*b.source)) b.widget->raise();
}

// When a focused control is hidden, Qt would focus the next one in the tab order. Focuses the control that opened it
// instead, or the plan if no such control is shown.
void returnfocus(const window& w, const boundwindow& bound) {
    const control* const focused = focusedcontrol(w);
    if (!focused || focused->shown) return;
    const control* const back = focusafter(*focused);
    QWidget* const to = back ? widgetof(*back) : bound.frame->plan();
    bound.frame->tabfrom = back ? nullptr : widgetof(*focused);
    to->show();
    to->setFocus();
}

void showframe(windowframe& f) {
    const bool first = !f.testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (first) {
        f.resize(f.designedsize());
        f.setfirstposition(f);
    }
    if (f.isHidden()) f.plan()->setFocus();  // the plan of startform passes the focus to startprogrambtn
    if (f.isMinimized()) f.setWindowState(f.windowState() & ~Qt::WindowMinimized);
    f.show();
    f.raise();
    f.activateWindow();
}

void copytowindow(window& w) {
    if (!w.shown && !frameof(w)) return;
    boundwindow& bound = boundwindows()[&w];
    if (!bound.frame) createwindow(w, bound);
    returnfocus(w, bound);
    for (boundcontrol& b : bound.controls) copytowidget(b);
    if (w.shown && bound.frame->afterevent) bound.frame->afterevent();
    if (!w.shown) bound.frame->hide();
}

void copytowidgets() {
    std::vector<window*> toraise;
    for (window* w : allwindows()) {
        copytowindow(*w);
        if (w->shown && boundwindows()[w].raiseorder != w->raiseorder) toraise.push_back(w);
    }
    std::sort(toraise.begin(), toraise.end(),
              [](const window* a, const window* b) { return a->raiseorder < b->raiseorder; });
    for (window* w : toraise) {
        boundwindows()[w].raiseorder = w->raiseorder;
        showframe(*frameof(*w));
    }
    if (QWidget* picture = widgetof(viewport)) picture->update();
    if (QWidget* strip = widgetof(progressbar)) strip->update();
    if (QWidget* focused = wantedfocus ? widgetof(*wantedfocus) : nullptr) focused->setFocus();
    wantedfocus = nullptr;
}

// ---- widgets to state ---------------------------------------------------------------------------------------

void copytostate() {
    for (auto& [w, bound] : boundwindows())
        for (boundcontrol& b : bound.controls) {
            if (!takestyping(*b.source)) continue;
            const std::string text = typedtext(*b.widget);
            if (text != b.text) b.source->text = b.text = text;
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

void openwindows(void (*decoratewindow)(windowframe&)) {
    decorateframe = decoratewindow;
    viewportimage().clear();
    progressimage().clear();
    viewportsurface = &viewportimage();
    progresssurface = &progressimage();
    repaintmainwindow = [] {
        if (QWidget* picture = widgetof(viewport)) picture->update();
    };
    installaccessibility();
    filterkeys();
    ending = false;
    runevent(startprogram);
}

void destroywindows() {
    showprogresson(nullptr);
    boundwindows().clear();
}

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
        if (b.widget == found->second.frame->focusWidget()) return b.source;
    return nullptr;
}

QWidget* widgetof(const control& c) {
    const auto found = boundwindows().find(c.parent);
    if (found == boundwindows().end()) return nullptr;
    for (const boundcontrol& b : found->second.controls)
        if (b.source == &c) return b.widget;
    return nullptr;
}

windowframe* frameof(const window& w) {
    const auto found = boundwindows().find(&w);
    return found == boundwindows().end() ? nullptr : found->second.frame.get();
}

}  // namespace tessaly
