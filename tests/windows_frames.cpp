// The bounds, captions and overlaps of the controls in every window, where windows and help pages open, the icon, and
// how the program ends.

#include "tests/windowsession.h"
#include "windows/helppages.h"
#include "windows/qt/button.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

namespace tessaly {

using windows_frames = windowsession;

namespace {

bool captionfits(const control& c, const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->sizeHint().width() <= widget.width() && label->fontMetrics().height() <= widget.height();
    if (c.kind != controlkind::button || c.text.empty()) return true;
    const captionlayout caption =
        layoutcaption(QString::fromStdString(c.text).simplified(), widget.size(), widget.font());
    return caption.fits && caption.font.pixelSize() >= 10;  // readable
}

// Neighbouring position buttons, such as those of a beam and its posts, overlap a little by design.
bool overlap(const control& a, const control& b) {
    const auto counts = [](const control& c) {
        return c.shown && c.kind != controlkind::frame && c.kind != controlkind::page;
    };
    const QRect shared = widgetof(a)->geometry() & widgetof(b)->geometry();
    const int allowed = a.elementnumber && b.elementnumber ? 5 : 0;  // pixels
    return &a != &b && counts(a) && counts(b) && std::min(shared.width(), shared.height()) > allowed;
}

// Returns the status with which the program ends after an action of the user.
template <class procedure>
int statusafter(procedure action) {
    QTimer::singleShot(0, action);
    return QApplication::exec();
}

}  // namespace

// NOT-BUGS: The picture does not grow with the window
TEST_F(windows_frames, controlsAreAtTheirPositionsAndCompletelyVisible) {
    runevent([] {
        for (window* w : allwindows()) showwindow(*w);
        for (const helppage& p : helppages) show(p.page);
    });
    for (const window* w : allwindows())
        for (const control* c : w->controls) {
            SCOPED_TRACE(c->name + ": " + c->text);
            const QWidget& widget = *widgetof(*c);
            const twips& b = c->bounds;
            EXPECT_EQ(widget.geometry(), QRect(qRound(b.left / 15.0), qRound(b.top / 15.0), qRound(b.width / 15.0),
                                               qRound(b.height / 15.0)));
            EXPECT_EQ(widget.objectName().toStdString(), c->name);
            EXPECT_TRUE(captionfits(*c, widget));
            EXPECT_TRUE(c->kind == controlkind::frame || !widget.accessibleName().isEmpty());  // for screen readers
            for (const control* other : w->controls) EXPECT_FALSE(overlap(*c, *other)) << other->name;
        }
    for (const helppage& p : helppages) {  // a scroll bar would cover the right edge of the page
        const auto* text = qobject_cast<const QPlainTextEdit*>(widgetof(p.page));
        EXPECT_EQ(text->verticalScrollBar()->maximum() + text->horizontalScrollBar()->maximum(), 0) << p.page.name;
    }
    for (const control* prompt : {&selectgirderfile, &selectpanelfile, &selectedbox, &autohintbox}) {
        EXPECT_TRUE(widgetof(*prompt)->property("readOnly").toBool()) << prompt->name;
        EXPECT_EQ(widgetof(*prompt)->focusPolicy(), Qt::NoFocus) << prompt->name;
    }
}

// A window opens at the right of the screen, in front of the main window, and does not extend beyond the screen.
TEST_F(windows_frames, windowsOpenAtTheRightAndOnTheScreen) {
    constexpr int border = 2;  // pixels by which a window border shifts the interior
    const QRect screen = frameof(vistaplan)->screen()->availableGeometry().adjusted(0, 0, border, border);
    EXPECT_TRUE(screen.contains(frameof(vistaplan)->geometry()));
    EXPECT_TRUE(frameof(vistaplan)->windowState() & Qt::WindowMaximized);
    EXPECT_EQ(frameof(layoutgirder), nullptr);  // a window is made on first use
    runevent([] {
        for (control* opener : {&postbeambtn, &orange1btn, &roofbtn, &fastchange, &instructionsbtn})
            clickcontrol(*opener);
    });
    int previoustop = -1;
    for (const window* w : {&layoutgirder, &layoutpanels, &layoutroof, &easyviews, &instructions}) {
        const windowframe& f = *frameof(*w);
        SCOPED_TRACE(w->name);
        EXPECT_TRUE(screen.contains(f.geometry()));
        EXPECT_NEAR(f.geometry().right(), screen.right(), border);
        EXPECT_EQ(f.windowHandle()->transientParent(), frameof(vistaplan)->windowHandle());
        EXPECT_EQ(f.windowFlags() & Qt::WindowType_Mask, Qt::Dialog);
        EXPECT_TRUE(screen.height() < 600 || w == &easyviews || w == &instructions || f.geometry().top() > previoustop);
        previoustop = f.geometry().top();
    }
    frameof(layoutgirder)->showMinimized();
    runevent([] { clickcontrol(postbeambtn); });
    EXPECT_FALSE(frameof(layoutgirder)->isMinimized());
}

// Catches an icon that only a plugin of the toolkit can draw: it has no sizes.
TEST_F(windows_frames, theIconNeedsNoPlugin) {
    const QIcon icon = QApplication::windowIcon();
    EXPECT_TRUE(icon.availableSizes().contains(QSize(16, 16)) && icon.availableSizes().contains(QSize(256, 256)));
    EXPECT_EQ(icon.pixmap(QSize(48, 48), 1.0).toImage().pixelColor(24, 24).alpha(), 255);
}

TEST_F(windows_frames, helpPagesOpenAtTheirTopAndTheirButtonStaysMarked) {
    keys("=vistaplan F1 =instructions");
    QScrollBar& bar = *frameof(instructions)->verticalScrollBar();
    control* const pagebuttons[] = {&elementsbtn, &filereaderbtn, &displaybtn, &viewcontrolbtn, &capturesbtn};
    for (control* pagebutton : pagebuttons) {
        keys(pagebutton->name);  // by Tab, from wherever the focus is
        EXPECT_GT(widgetof(*pagebutton)->visibleRegion().boundingRect().height(), 100) << pagebutton->name;
        bar.setValue(bar.maximum());
        keys("Return");
        EXPECT_EQ(bar.value(), 0);
        for (const control* other : pagebuttons) EXPECT_EQ(other->chosen, other == pagebutton) << other->name;
    }
}

TEST_F(windows_frames, theProgramEndsWithStatus0WhereTheUserWishesAndWith1AfterAReport) {
    EXPECT_EQ(statusafter([] { click(exitbtn); }), 0);
    EXPECT_FALSE(frameof(vistaplan)->isVisible());
    start();
    EXPECT_EQ(statusafter([] { frameof(vistaplan)->close(); }), 0);
    start();
    click(postbeambtn);
    std::filesystem::remove("datah/st-post.txt");
    testing::internal::CaptureStderr();
    EXPECT_EQ(statusafter([] { click(*findcontrol("postx0y16")); }), 1);
    EXPECT_EQ(report.find("datah\\st-post.txt"), 0) << report;
    EXPECT_NE(testing::internal::GetCapturedStderr().find("failure " + report + '\n'), std::string::npos);
    start();
    fillscreen.run = [] { throw std::runtime_error("an odd exception"); };
    EXPECT_EQ(statusafter([] { click(fillscreen); }), 1);
    EXPECT_EQ(report, "an odd exception");
}

}  // namespace tessaly
