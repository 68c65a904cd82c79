// What the real windows paint, on screens of single and double density: the grids and scales behind the buttons, the
// buttons' states, marks and pictures.

#include "building/layouts.h"
#include "tests/windowsession.h"

#include <QPainter>
#include <QPushButton>

namespace tessaly {

using windows_painting = windowsession;

namespace {

// Returns what a window paints behind its controls.
QImage backgroundof(const window& w) {
    QImage image(frameof(w)->content()->size(), QImage::Format_RGB32);
    image.fill(screencolour(w.background));
    QPainter painter(&image);
    frameof(w)->paintbackground(painter);
    return image;
}

// Returns whether a line crosses this rectangle.
bool hasink(const QImage& image, const QRect& where) {
    const QImage part = image.copy(where);
    for (int i = 0; i < part.width() * part.height(); ++i)
        if (std::abs(qGray(part.pixel(i % part.width(), i / part.width())) - qGray(image.pixel(0, 0))) > 8) return true;
    return false;
}

// The lightness of a button without a picture or caption at this position, in pixels of the design grid.
int lightnessat(const control& c, int x, int y) {
    const QImage seen = widgetof(c)->grab().toImage();
    return seen.pixelColor(seen.width() * x / widgetof(c)->width(), seen.height() * y / widgetof(c)->height())
        .lightness();
}

bool looksmarked(const control& c) { return lightnessat(c, 8, 8) == 255; }

// The tooltip of a position button, which is read out as well.
std::string tipof(const char* name) {
    const QWidget& position = *widgetof(*findcontrol(name));
    EXPECT_EQ(position.toolTip(), position.accessibleDescription());
    return position.toolTip().toStdString();
}

}  // namespace

// The grid points are at 8 + 192 n layout units, the buttons at the middles of their elements.
TEST_F(windows_painting, gridsAndButtonsHaveOneScale) {
    for (control* opener : {&postbeambtn, &orange1btn, &roofbtn}) click(*opener);
    for (const window* layout : {&layoutgirder, &layoutpanels, &layoutroof}) {
        QRect buttons;
        QPointF pixels, units, scale;
        int count = 0;
        for (const buttonposition& p : allbuttonpositions()) {
            if (p.family->layout != layout) continue;
            const QRectF bounds = widgetof(*findcontrol(positionname(p)))->geometry();
            buttons |= bounds.toRect();
            pixels += bounds.center();
            units += QPointF(p.y + p.family->dy, p.x + p.family->dx);
            scale = QPointF(p.family->pitch, p.family->pitch) / twipsperpixel / layoutbay;
            ++count;
        }
        const QImage seen = backgroundof(*layout);
        for (int bay = 0; bay < 8; ++bay) {
            SCOPED_TRACE(layout->name + std::to_string(bay));
            const QPointF line =
                pixels / count + (QPointF(8 + layoutbay * bay, 8 + layoutbay * bay) - units / count) * scale.x();
            const int x = qRound(line.x()), y = qRound(line.y());
            EXPECT_TRUE(hasink(seen, QRect(x - 1, buttons.top() - 11, 3, 4)));
            EXPECT_FALSE(hasink(seen, QRect(x - 5, buttons.top() - 11, 3, 4)));
            if (bay > 5) continue;
            EXPECT_TRUE(hasink(seen, QRect(buttons.left() - 11, y - 1, 4, 3)));
            EXPECT_FALSE(hasink(seen, QRect(buttons.left() - 11, y - 5, 4, 3)));
            EXPECT_EQ(hasink(seen, QRect(x + 2, y + 2, 1, 1)), layout != &layoutgirder);  // a post
        }
    }
}

TEST_F(windows_painting, eachHeightHasATickOnItsScale) {
    click(fastchange);
    const QImage seen = backgroundof(easyviews);
    for (const control* c : easyviews.controls) {
        if (!c->name.starts_with("perpz") && !c->name.starts_with("focusz")) continue;
        const QPoint right = widgetof(*c)->geometry().center() + QPoint(14, 0);
        EXPECT_TRUE(hasink(seen, {right - QPoint(0, 1), QSize(2, 3)})) << c->name;
        EXPECT_FALSE(hasink(seen, {right + QPoint(0, 3), QSize(2, 9)})) << c->name;
    }
}

TEST_F(windows_painting, buttonsShowTheirState) {
    click(postbeambtn);
    for (control* c : {findcontrol("postx0y16"), &fillscreen}) {
        SCOPED_TRACE(c->name);
        const int usual = lightnessat(*c, 4, 4), rim = lightnessat(*c, 8, 0);
        EXPECT_TRUE(widgetof(*c)->testAttribute(Qt::WA_Hover));
        widgetof(*c)->setAttribute(Qt::WA_UnderMouse);
        EXPECT_GT(lightnessat(*c, 4, 4), usual + 10);
        qobject_cast<QPushButton*>(widgetof(*c))->setDown(true);
        EXPECT_LT(lightnessat(*c, 4, 4), usual - 15);
        frameof(*c->parent)->content()->setFocus();
        keys(std::string("=") + c->parent->name + " " + c->name);
        EXPECT_NE(lightnessat(*c, 8, 0), rim);  // the ring of the keyboard
    }
}

// Catches a button that looks pressed without its window, and a window whose last button does not.
TEST_F(windows_painting, theButtonThatOpenedAShownWindowLooksPressed) {
    const auto pressed = [] {
        std::string names;
        for (const control* c : {&orange1btn, &yellow1btn, &postbeambtn, &roofbtn})
            if (lightnessat(*c, 4, 20) < lightnessat(door4btn, 4, 20)) names += c->name + ' ';
        return names;
    };
    EXPECT_EQ(pressed(), "");
    click(orange1btn);
    click(postbeambtn);
    const QImage before = frameof(layoutpanels)->grab().toImage();
    click(yellow1btn);
    EXPECT_NE(frameof(layoutpanels)->grab().toImage(), before);  // shows the panel of the next click
    EXPECT_EQ(pressed(), "yellow1btn postbeambtn ");
    EXPECT_EQ(frameof(layoutpanels)->accessibleDescription(), "The next click places: Yellow panel type 1");
    frameof(layoutpanels)->close();
    EXPECT_EQ(pressed(), "postbeambtn ");
    click(groupbtn);
    EXPECT_EQ(pressed(), "");
}

// Catches a mark that lags behind the file of the next click.
// NOT-BUGS: A position that I clicked twice has two elements
TEST_F(windows_painting, plansShowWhatIsBuilt) {
    const control& post = *findcontrol("postx0y16");
    click(postbeambtn);
    EXPECT_FALSE(looksmarked(post));
    click(post);
    click(post);
    EXPECT_TRUE(looksmarked(post));
    EXPECT_EQ(tipof("postx0y16"), "postx0y16, element 1, built 2 times in girders1.txt");
    EXPECT_EQ(tipof("beamx0y16"), "beamx0y16, element 49");
    click(displayfilelistbtn);
    keys("=designfileslist Down Return killfilebtn Return");
    EXPECT_EQ(tipof("postx0y16"), "postx0y16, element 1");
    session::write("designs/girders1.txt", "\"girder\",9,200,8,41,90,0,192,16,4,64\r\n");
    EXPECT_EQ(tipof("postx192y16"), "postx192y16, element 9");
    frameof(layoutgirder)->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == frameof(layoutgirder); }));
    EXPECT_EQ(tipof("postx192y16"), "postx192y16, element 9, built once in girders1.txt");
}

// Catches a picture that is blurred, moved, or of half the density.
TEST_F(windows_painting, picturesAreShownPixelByPixel) {
    click(orange1btn);
    const QString density = widgetof(orange1btn)->devicePixelRatioF() == 2 ? "@2x" : "";
    for (const control* c : {&orange2btn, &door2btn, &roofbtn, &snipleftbtn, &snipbothbtn}) {
        const QImage picture(":/pictures/" + QString::fromStdString(c->name) + density + ".png");
        const QImage seen = widgetof(*c)->grab().toImage();
        const QPoint corner((seen.width() - picture.width()) / 2, (seen.height() - picture.height()) / 2);
        int differ = 0, opaque = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y).alpha() < 255) continue;
                ++opaque;
                differ += seen.pixelColor(corner + QPoint(x, y)).rgb() != picture.pixelColor(x, y).rgb();
            }
        EXPECT_GT(opaque, 100) << c->name;
        EXPECT_EQ(differ, 0) << c->name;
    }
}

}  // namespace tessaly
