// Every window as it is built: places as in the tables, captions whole, nothing over anything else.

#include "tests/windowsession.h"
#include "windows/helppages.h"
#include "windows/qt/button.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>

namespace tessaly {

namespace {

constexpr int leastpixels = 10;  // of letters that can be read

bool standsatitsplace(const control& c, const QRect& seen) {
    const QRect place(c.bounds.left / twipsperpixel, c.bounds.top / twipsperpixel, c.bounds.width / twipsperpixel,
                      c.bounds.height / twipsperpixel);
    return place.adjusted(-1, -1, 1, 1).contains(seen) && seen.adjusted(-1, -1, 1, 1).contains(place);
}

bool captionfits(const control& c, const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->sizeHint().width() <= widget.width() && label->fontMetrics().height() <= widget.height();
    if (c.kind != controlkind::button || widget.font().pixelSize() > captionpixels) return true;
    const captionlines caption = wrapcaption(QString::fromStdString(c.text), widget.size(), false);
    return caption.whole && caption.pixels >= leastpixels;
}

// Positions that meet, as a beam and its posts or the panels around a corner, share their rims by design.
bool liesover(const control& a, const control& b) {
    if (!a.shown || !b.shown || b.kind == controlkind::frame) return false;
    const QRect shared = widgetof(a)->geometry() & widgetof(b)->geometry();
    return std::min(shared.width(), shared.height()) > (a.elementnumber && b.elementnumber ? 5 : 0);
}

}  // namespace

TEST_F(windowsession, controlsStandAtTheirPlacesAndAreSeenWhole) {
    runevent([] {
        for (window* w : allwindows()) showwindow(*w);
    });
    for (const window* w : allwindows())
        for (const control* c : w->controls) {
            SCOPED_TRACE(c->name + ": " + c->text);
            ASSERT_TRUE(widgetof(*c));
            const QWidget& widget = *widgetof(*c);
            EXPECT_TRUE(standsatitsplace(*c, widget.geometry()));
            EXPECT_EQ(widget.objectName().toStdString(), c->name);
            EXPECT_EQ(widget.isHidden(), !c->shown);
            EXPECT_TRUE(captionfits(*c, widget));
            EXPECT_EQ(widget.toolTip().toStdString(), tooltipof(*c));
            if (c->kind == controlkind::frame) continue;
            EXPECT_FALSE(widget.accessibleName().isEmpty());  // what a screen reader says
            EXPECT_TRUE(c->accessiblename.empty() || widget.accessibleName().toStdString() == c->accessiblename);
            for (const control* other : w->controls) EXPECT_FALSE(other != c && liesover(*c, *other)) << other->name;
        }
    EXPECT_EQ(widgetof(viewport)->geometry(), QRect(120, 0, 897, 581));
    EXPECT_EQ(widgetof(*findcontrol("beamx192y400"))->geometry(), QRect(208, 112, 65, 17));

    runevent([] {
        for (const helppage& page : helppages) show(*page.on);
    });
    for (const helppage& page : helppages) {  // a bar to scroll by would lie over the page's right edge
        const auto* text = qobject_cast<const QPlainTextEdit*>(widgetof(*page.on));
        EXPECT_EQ(text->verticalScrollBar()->maximum() + text->horizontalScrollBar()->maximum(), 0) << page.on->name;
    }
}

}  // namespace tessaly
