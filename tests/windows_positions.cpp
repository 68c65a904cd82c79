// The bounds, captions and overlaps of the controls in every window, and where windows and help pages open.

#include "tests/windowsession.h"
#include "windows/helppages.h"
#include "windows/qt/button.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

namespace tessaly {

using windows_positions = windowsession;

namespace {

constexpr int readablepixels = 10;  // smallest size of letters

// Allows a difference of a pixel, because twips are rounded.
bool hasbounds(const control& c, const QRect& actual) {
    const QRect bounds(c.bounds.left / twipsperpixel, c.bounds.top / twipsperpixel, c.bounds.width / twipsperpixel,
                       c.bounds.height / twipsperpixel);
    return bounds.adjusted(-1, -1, 1, 1).contains(actual) && actual.adjusted(-1, -1, 1, 1).contains(bounds);
}

bool captionfits(const control& c, const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->sizeHint().width() <= widget.width() && label->fontMetrics().height() <= widget.height();
    if (c.kind != controlkind::button || c.text.empty()) return true;
    const captionlayout caption =
        layoutcaption(QString::fromStdString(c.text).simplified(), widget.size(), widget.font());
    return caption.fits && caption.font.pixelSize() >= readablepixels;
}

// Neighbouring position buttons, such as those of a beam and its posts, overlap a little by design.
bool overlap(const control& a, const control& b) {
    if (!a.shown || !b.shown || b.kind == controlkind::frame) return false;
    const QRect shared = widgetof(a)->geometry() & widgetof(b)->geometry();
    const int allowed = a.elementnumber && b.elementnumber ? 5 : 0;  // pixels
    return std::min(shared.width(), shared.height()) > allowed;
}

}  // namespace

// NOT-BUGS: The picture does not grow with the window
TEST_F(windows_positions, controlsAreAtTheirPositionsAndCompletelyVisible) {
    runevent([] {
        for (window* w : allwindows()) showwindow(*w);
    });
    for (const window* w : allwindows())
        for (const control* c : w->controls) {
            SCOPED_TRACE(c->name + ": " + c->text);
            ASSERT_TRUE(widgetof(*c));
            const QWidget& widget = *widgetof(*c);
            EXPECT_TRUE(hasbounds(*c, widget.geometry()));
            EXPECT_EQ(widget.objectName().toStdString(), c->name);
            EXPECT_EQ(widget.isHidden(), !c->shown);
            EXPECT_TRUE(captionfits(*c, widget));
            EXPECT_EQ(widget.toolTip().toStdString(), tooltipof(*c));
            if (c->kind == controlkind::frame) continue;
            EXPECT_FALSE(widget.accessibleName().isEmpty());  // what a screen reader says
            EXPECT_TRUE(c->accessiblename.empty() || widget.accessibleName().toStdString() == c->accessiblename);
            for (const control* other : w->controls) EXPECT_FALSE(other != c && overlap(*c, *other)) << other->name;
        }
    EXPECT_EQ(widgetof(viewport)->geometry(), QRect(120, 0, 897, 581));
    EXPECT_EQ(widgetof(*findcontrol("beamx192y400"))->geometry(), QRect(208, 112, 65, 17));

    runevent([] {
        for (const helppage& p : helppages) show(p.page);
    });
    for (const helppage& p : helppages) {  // a scroll bar would cover the right edge of the page
        const auto* text = qobject_cast<const QPlainTextEdit*>(widgetof(p.page));
        EXPECT_EQ(text->verticalScrollBar()->maximum() + text->horizontalScrollBar()->maximum(), 0) << p.page.name;
    }
}

// A window opens at the right of the screen, in front of the main window, and does not extend beyond the screen.
TEST_F(windows_positions, windowsOpenAtTheRightAndOnTheScreen) {
    constexpr int border = 2;  // pixels by which a window border shifts the interior
    const QRect screen = frameof(vistaplan)->screen()->availableGeometry().adjusted(0, 0, border, border);
    EXPECT_TRUE(screen.contains(frameof(vistaplan)->geometry()));
    int previoustop = -1;
    runevent([] {
        for (control* opener : {&postbeambtn, &orange1btn, &roofbtn, &fastchange, &instructionsbtn})
            clickcontrol(*opener);
    });
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
    EXPECT_TRUE(frameof(layoutgirder)->isVisible());
}

TEST_F(windows_positions, helpPagesOpenAtTheirTopAndTheirButtonStaysMarked) {
    keys("=vistaplan F1 =instructions");
    QScrollBar& bar = *frameof(instructions)->verticalScrollBar();
    control* const pagebuttons[] = {&elementsbtn, &filereaderbtn, &displaybtn, &viewcontrolbtn, &capturesbtn};
    for (control* pagebutton : pagebuttons) {
        keys(pagebutton->name);  // by Tab, from wherever the focus is
        const QRect visible = widgetof(*pagebutton)->visibleRegion().boundingRect();
        EXPECT_GT(visible.height(), 100) << pagebutton->name;
        bar.setValue(bar.maximum());
        keys("Return");
        EXPECT_EQ(bar.value(), 0);
        for (const control* other : pagebuttons) EXPECT_EQ(other->chosen, other == pagebutton) << other->name;
    }
}

}  // namespace tessaly
