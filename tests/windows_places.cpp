// Every window as it is built: places as in the tables, captions whole, nothing over anything else.

#include "tests/windowsession.h"
#include "windows/helppages.h"
#include "windows/qt/button.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>

namespace tessaly {

namespace {

constexpr int leastpixels = 10;  // of letters that can be read

class windowplaces : public windowsession {
  protected:
    void SetUp() override {
        windowsession::SetUp();
        start();
        runevent([] {
            for (window* w : allwindows()) showwindow(*w);
        });
    }

    static void foreachcontrol(void (*look)(const control&, const QWidget&)) {
        int seen = 0;
        for (const window* w : allwindows())
            for (const control* c : w->controls) {
                ASSERT_TRUE(widgetof(*c)) << c->name;
                look(*c, *widgetof(*c));
                ++seen;
            }
        EXPECT_GT(seen, 450);
    }
};

QRect designplace(const control& c) {
    return {c.place.left / twipsperpixel, c.place.top / twipsperpixel, c.place.width / twipsperpixel,
            c.place.height / twipsperpixel};
}

bool captionfits(const control& c, const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->sizeHint().width() <= widget.width() && label->fontMetrics().height() <= widget.height();
    if (c.kind != controlkind::button || widget.font().pixelSize() > captionpixels) return true;
    const captionlines caption = wrapcaption(QString::fromStdString(c.text), widget.size(), false);
    return caption.whole && caption.pixels >= leastpixels;
}

// Positions that meet, as a beam and its posts or the panels around a corner, share their rims by design.
bool meet(const control& a, const control& b, const QRect& shared) {
    return a.elementnumber && b.elementnumber && std::min(shared.width(), shared.height()) <= 5;
}

}  // namespace

TEST_F(windowplaces, areThoseOfTheTables) {
    foreachcontrol([](const control& c, const QWidget& widget) {
        const QRect off(widget.geometry().topLeft() - designplace(c).topLeft(),
                        widget.geometry().bottomRight() - designplace(c).bottomRight());
        EXPECT_TRUE(QRect(-1, -1, 3, 3).contains(off.topLeft()) && off.width() <= 2 && off.height() <= 2) << c.name;
        EXPECT_EQ(widget.objectName().toStdString(), c.name);
        EXPECT_EQ(widget.isHidden(), !c.shown) << c.name;
    });
    EXPECT_EQ(widgetof(viewport)->geometry(), QRect(120, 0, 897, 581));
    EXPECT_EQ(widgetof(*findcontrol("beamx192y400"))->geometry(), QRect(208, 112, 65, 17));
}

TEST_F(windowplaces, captionsAreWhole) {
    foreachcontrol([](const control& c, const QWidget& widget) {
        EXPECT_TRUE(captionfits(c, widget)) << c.name << ": " << c.text;
    });
}

// What a screen reader says and what the mouse is told: a control without a caption has both.
TEST_F(windowplaces, controlsSayWhatTheyAre) {
    foreachcontrol([](const control& c, const QWidget& widget) {
        if (c.kind == controlkind::frame) return;
        EXPECT_FALSE(widget.accessibleName().isEmpty()) << c.name;
        const bool captionless = c.kind == controlkind::picturebutton || c.elementnumber;
        EXPECT_FALSE(captionless && widget.toolTip().isEmpty()) << c.name;
    });
    EXPECT_EQ(widgetof(*findcontrol("beamx192y400"))->toolTip().toStdString(), "beamx192y400, element 58");
}

// A page that is longer than its control has a bar to scroll by, over its right edge.
TEST_F(windowplaces, helpPagesAreSeenWhole) {
    for (const helppage& page : helppages) {
        control& c = *page.on;
        runevent([&c] { show(c); });
        const auto* text = qobject_cast<const QPlainTextEdit*>(widgetof(c));
        EXPECT_EQ(text->verticalScrollBar()->maximum() + text->horizontalScrollBar()->maximum(), 0) << c.name;
    }
}

TEST_F(windowplaces, nothingLiesOverAnotherControl) {
    for (const window* w : allwindows())
        for (const control* a : w->controls)
            for (const control* b : w->controls) {
                if (a == b) break;
                if (!a->shown || !b->shown) continue;
                if (a->kind == controlkind::frame || b->kind == controlkind::frame) continue;
                const QRect shared = widgetof(*a)->geometry() & widgetof(*b)->geometry();
                EXPECT_TRUE(shared.isEmpty() || meet(*a, *b, shared)) << a->name << " and " << b->name;
            }
}

}  // namespace tessaly
