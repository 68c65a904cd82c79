// The carrying of state between controls and widgets, and the frame around every event.

#include "windows/qt/binding.h"

#include "core/failure.h"
#include "render/surface.h"
#include "windows/handlers.h"
#include "windows/qt/accessibility.h"
#include "windows/qt/canvas.h"
#include "windows/qt/controlwidgets.h"
#include "windows/qt/keyrepeat.h"

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
    control* of;
    QWidget* widget;
    std::string text;  // as last carried to the widget, and the three below
    std::vector<std::string> items;
    std::string tooltip;
    boxtint tint = boxtint::none;
};

struct boundwindow {
    std::unique_ptr<windowframe> frame;
    std::vector<boundcontrol> controls;
    int raised = 0;  // as last carried
};

std::map<const window*, boundwindow>& boundwindows() {
    static std::map<const window*, boundwindow> bound;
    return bound;
}

void (*decorateframe)(windowframe&);  // of a window that was made

bool running = false;  // an event is under way
bool ending = false;   // the program is to end

// ---- building ----------------------------------------------------------------------------------------------

// What the user does with the widget is an event of its control.
void listento(QWidget* widget, control& c) {
    const auto click = [&c] { runevent([&c] { clickcontrol(c); }); };
    const auto pick = [&c](int item) { runevent([&c, item] { pickitem(c, item); }); };
    if (auto* button = qobject_cast<QPushButton*>(widget)) QObject::connect(button, &QPushButton::clicked, click);
    if (auto* box = qobject_cast<QComboBox*>(widget)) QObject::connect(box, &QComboBox::activated, pick);
    if (auto* rows = qobject_cast<QListWidget*>(widget))
        QObject::connect(rows, &QListWidget::clicked, [pick](const QModelIndex& row) { pick(row.row()); });
    // What is typed shows at once in what depends on it; nothing runs.
    if (auto* line = qobject_cast<QLineEdit*>(widget))
        QObject::connect(line, &QLineEdit::textChanged, [] { runevent([] {}); });
}

void buildwindow(window& w, boundwindow& bound) {
    bound.frame = std::make_unique<windowframe>(w);
    bound.frame->whenclosed = [&w] { runevent([&w] { closewindow(w); }); };
    bound.frame->whenescaped = [&w] { runevent([&w] { pressescape(w, focusedcontrol(w)); }); };
    bound.frame->whenactivated = [] { runevent([] {}); };  // files may have been edited meanwhile
    for (control* c : w.controls) {
        QWidget* widget = makewidget(*c, bound.frame->plan());
        listento(widget, *c);
        bound.controls.push_back({c, widget, {}, {}, {}});
    }
    // What the table lists later may lie under what it lists earlier: each kind has its layer.
    std::vector<boundcontrol> bylayer = bound.controls;
    std::stable_sort(bylayer.begin(), bylayer.end(),
                     [](const boundcontrol& a, const boundcontrol& b) { return layerof(*a.of) < layerof(*b.of); });
    for (const boundcontrol& b : bylayer) b.widget->raise();
    decorateframe(*bound.frame);
}

// ---- state to widgets --------------------------------------------------------------------------------------

// A page opens at its beginning, also where the press that opened it was further down.
void scrolltotop(windowframe& f) {
    f.horizontalScrollBar()->setValue(0);
    f.verticalScrollBar()->setValue(0);
}

void carrytowidget(boundcontrol& b) {
    // A hidden list is filled when it is shown: measuring 10,000 names takes 50 ms.
    if (b.of->shown && b.items != b.of->items) setitems(*b.widget, b.items = b.of->items);
    if (b.text != b.of->text) settext(*b.widget, b.text = b.of->text);
    if (const std::string tooltip = tooltipof(*b.of); b.tooltip != tooltip) settooltip(*b.widget, b.tooltip = tooltip);
    if (const boxtint tint = tintof(*b.of); b.tint != tint) settint(*b.widget, b.tint = tint);
    setselection(*b.of, *b.widget);
    if (b.widget->isHidden() != b.of->shown) return;
    b.widget->setVisible(b.of->shown);
    if (b.of->shown && b.of->kind == controlkind::page) scrolltotop(*frameof(*b.of->in));
    if (comestofront(*b.of)) b.widget->raise();
}

// The toolkit would hand the focus of a control that goes to the next one, unseen: it goes back to what opened it.
void takefocusback(const window& w, const boundwindow& bound) {
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
        f.firstshowing(f);
    }
    if (f.isHidden()) f.plan()->setFocus();  // no control takes a key before it is chosen
    if (f.isMinimized()) f.setWindowState(f.windowState() & ~Qt::WindowMinimized);
    f.show();
    f.raise();
    f.activateWindow();
}

void carrytowindow(window& w) {
    if (!w.shown && !frameof(w)) return;
    boundwindow& bound = boundwindows()[&w];
    if (!bound.frame) buildwindow(w, bound);
    takefocusback(w, bound);
    for (boundcontrol& b : bound.controls) carrytowidget(b);
    if (w.shown && bound.frame->follow) bound.frame->follow();
    if (!w.shown) bound.frame->hide();
}

void carrytowidgets() {
    std::vector<window*> torise;
    for (window* w : allwindows()) {
        carrytowindow(*w);
        if (w->shown && boundwindows()[w].raised != w->raised) torise.push_back(w);
    }
    std::sort(torise.begin(), torise.end(), [](const window* a, const window* b) { return a->raised < b->raised; });
    for (window* w : torise) {
        boundwindows()[w].raised = w->raised;
        showframe(*frameof(*w));
    }
    if (QWidget* picture = widgetof(viewport)) picture->update();
    if (QWidget* strip = widgetof(progressbar)) strip->update();
    if (QWidget* focused = wantedfocus ? widgetof(*wantedfocus) : nullptr) focused->setFocus();
    wantedfocus = nullptr;
}

// ---- widgets to state --------------------------------------------------------------------------------------

void carrytostate() {
    for (auto& [w, bound] : boundwindows())
        for (boundcontrol& b : bound.controls) {
            if (!typable(*b.of)) continue;
            const std::string text = typedtext(*b.widget);
            if (text != b.text) typetext(*b.of, b.text = text);
        }
}

// ---- the end -----------------------------------------------------------------------------------------------

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
    usespokenroles();
    filterkeyrepeats();
    ending = false;
    runevent(startprogram);
}

void dropwindows() {
    showprogresson(nullptr);
    boundwindows().clear();
}

void runevent(const std::function<void()>& procedure) {
    if (running || ending) return;
    running = true;
    const std::string failed = reportof([&procedure] {
        carrytostate();
        procedure();
    });
    const std::string unshown = reportof(carrytowidgets);  // what the event did before it failed is shown, too
    if (!failed.empty() || !unshown.empty()) showreport(failed.empty() ? unshown : failed);
    running = false;
    if (programended && !ending) endprogram(0);
}

const control* focusedcontrol(const window& w) {
    const auto found = boundwindows().find(&w);
    if (found == boundwindows().end()) return nullptr;
    for (const boundcontrol& b : found->second.controls)
        if (b.widget == found->second.frame->focusWidget()) return b.of;
    return nullptr;
}

QWidget* widgetof(const control& c) {
    const auto found = boundwindows().find(c.in);
    if (found == boundwindows().end()) return nullptr;
    for (const boundcontrol& b : found->second.controls)
        if (b.of == &c) return b.widget;
    return nullptr;
}

windowframe* frameof(const window& w) {
    const auto found = boundwindows().find(&w);
    return found == boundwindows().end() ? nullptr : found->second.frame.get();
}

}  // namespace tessaly
