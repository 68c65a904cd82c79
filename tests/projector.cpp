// The projector against the geometry of its picture plane, the near-side walk, the fix-up and the failures.
#include "render/projector.h"

#include "tests/geometry.h"
#include "tests/session.h"

#include <random>

using namespace tessaly;

namespace {

void setpoint(int i, const vec& at) {
    basex.set(i, at[0]);
    basey.set(i, at[1]);
    basez.set(i, at[2]);
    ptx.set(i, at[0]);
    pty.set(i, at[1]);
    ptz.set(i, at[2]);
}

// Points 1.. and lines between points 1-2, 3-4 and so on, all in group 1.
void setlines(const std::vector<vec>& ends) {
    resetworld();
    for (std::size_t i = 0; i < ends.size(); ++i) setpoint(static_cast<int>(i) + 1, ends[i]);
    ptcount1 = ends.size();
    linecount1 = ends.size() / 2;
    for (int k = 1; k <= linecount1; ++k) {
        lineend1.set(k, 2 * k - 1);
        lineend2.set(k, 2 * k);
    }
    wirecolour1 = 7;
}

void setfocus(const vec& f) {
    focusx = f[0];
    focusy = f[1];
    focusz = f[2];
}

lens lensofview() { return {{perpx, perpy, perpz}, mag * 15.2, vertshift, horizshift}; }

void expectseen(float x, float y, const seen& at) {
    EXPECT_NEAR(x, at.x, 1e-3 + 1e-5 * std::abs(at.x));
    EXPECT_NEAR(y, at.y, 1e-3 + 1e-5 * std::abs(at.y));
}

}  // namespace

// Random eyes, focuses and points on the far side: every line stands where the geometry says.
TEST(projector, drawsWhatTheGeometrySays) {
    session s;
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(-600, 600), far(1200, 4000), turn(0, 6.28), shift(-300, 300);
    for (int view = 0; view < 200; ++view) {
        const double around = turn(random), away = far(random);
        setview(away * std::cos(around), away * std::sin(around), 4 * place(random), 0.3);
        const vec focus{place(random), place(random), place(random)};
        setfocus(focus);
        vertshift = shift(random);
        horizshift = shift(random);
        std::vector<vec> ends;
        for (int i = 0; i < 20; ++i) ends.push_back(focus + vec{place(random), place(random), place(random)});
        setlines(ends);
        plotgroups();
        const lens l = lensofview();
        const auto drawn = s.takelines();
        ASSERT_EQ(drawn.size(), 10U);
        for (std::size_t k = 0; k < drawn.size(); ++k) {
            expectseen(drawn[k].x1, drawn[k].y1, l.at(ends[2 * k] - focus));
            expectseen(drawn[k].x2, drawn[k].y2, l.at(ends[2 * k + 1] - focus));
            EXPECT_EQ(drawn[k].c, testcolour(7));
        }
    }
}

// From the right in front X runs down to the right, Y away to the right, Z up.
TEST(projector, directionsOnThePicture) {
    session s;
    setview(1850, -1850, 550);
    setlines({{1, 1, 1}, {200, 1, 1}, {1, 1, 1}, {1, 200, 1}, {1, 1, 1}, {1, 1, 200}});
    plotgroups();
    const auto& l = s.lines();
    EXPECT_TRUE(l[0].x2 > l[0].x1 && l[0].y2 > l[0].y1);
    EXPECT_TRUE(l[1].x2 > l[1].x1 && l[1].y2 < l[1].y1);
    EXPECT_TRUE(l[2].y2 < l[2].y1);
}

// A cosine beyond 0.9999 is drawn exactly under the middle: no sideways at all.
TEST(projector, almostUprightHasNoSide) {
    session s;
    setview(1850, -1850, 550);
    setlines({{1, 1, 200}, {3, 3, 200}, {-1, -1, -150}, {0, 0, 100}});
    plotgroups();
    const auto& l = s.lines();
    EXPECT_TRUE(l[0].x1 == 730 && l[1].x1 == 730 && l[1].x2 == 730);
    EXPECT_GT(l[0].x2, 731);
}

TEST(projector, nearEndsAreWalkedAlongTheirLine) {
    session s;
    setview(1000, 0, 300, 0.1);
    const lens l = lensofview();
    const vec far{50, 80, 10}, close{1100, 30, 250}, behind{3000, -500, 20};
    setlines({close, far, far, close, behind, far, close, behind, far, {90, 90, 90}});
    screeny.set(8, 5);
    plotgroups();
    const auto& drawn = s.lines();
    ASSERT_EQ(drawn.size(), 4U);  // the line with two near ends is given up, the one behind it is drawn
    const auto walked = [&](const vec& near) { return far + l.farsteps(far, near) / 299.0 * (near - far); };
    expectseen(drawn[0].x1, drawn[0].y1, l.at(walked(close)));
    expectseen(drawn[0].x2, drawn[0].y2, l.at(far));
    expectseen(drawn[1].x2, drawn[1].y2, l.at(walked(close)));
    expectseen(drawn[2].x1, drawn[2].y1, l.at(walked(behind)));
    EXPECT_TRUE(screeny[7] == 9999 && screeny[8] == 5);
    EXPECT_TRUE(ptx[1] == 1100 && ptx[7] == 1100);  // restored
}

// The budget of a line's walks is one for both ends: the second end goes on where the first one stopped. Saved, working
// and base positions differ here, as they do after a rebasing.
TEST(projector, theWalksBudgetIsShared) {
    session s;
    setview(1000, 0, 300, 0.1);
    setlines({{0, 50, 20}, {0, -50, 20}});
    const auto setsaved = [](int i, const vec& at) {
        savex.set(i, at[0]);
        savey.set(i, at[1]);
        savez.set(i, at[2]);
    };
    for (const int i : {1, 2}) ptx.set(i, 1200);  // near; the base positions are far
    setsaved(1, {-900, 50, 20});
    setsaved(2, {100, -50, 20});
    setplane();
    refready = 0;
    referencepass();
    drawlines(1, 1, 7);
    const lens l = lensofview();
    ASSERT_EQ(s.lines().size(), 1U);
    const vec first = vec{1200, -50, 20} + 298 / 299.0 * (vec{-900, 50, 20} - vec{1200, -50, 20});
    const vec second = vec{0, 50, 20} + 297 / 299.0 * (vec{100, -50, 20} - vec{0, 50, 20});
    expectseen(s.lines()[0].x1, s.lines()[0].y1, l.at(first));
    expectseen(s.lines()[0].x2, s.lines()[0].y2, l.at(second));
    EXPECT_EQ(walkcount, 297);

    ptx.set(2, 1200);
    setsaved(2, {900000, -50, 20});  // a walk that no budget brings to the far side
    drawlines(1, 1, 7);
    EXPECT_EQ(s.lines().size(), 1U);
    EXPECT_TRUE(screeny[2] == 9999 && screeny[1] != 9999 && ptx[2] == 0 && walkcount == 299);
}

TEST(projector, aPointInThePlaneCountsAsFar) {
    session s;
    setview(1000, 0, 0, 0.1);
    setplane();  // across X
    setlines({{planecentrex, 40, 16}, {1, 1, 1}});
    refready = 0;
    referencepass();
    drawlines(1, 1, 7);
    EXPECT_EQ(walkcount, 299);
}

TEST(projector, groupsFollowEachOther) {
    session s;
    setview(1850, -1850, 550);
    std::vector<vec> ends;
    for (int i = 1; i <= 14; ++i) ends.push_back({20.0 * i, 10, 10});
    setlines(ends);
    linecount1 = 2;
    linecount4 = 1;
    linecount10 = 2;
    wirecolour4 = 14;
    plotgroups();
    EXPECT_TRUE(groupfirst[2] == 3 && grouplast[2] == 2 && groupfirst[4] == 3 && grouplast[4] == 3);
    EXPECT_TRUE(groupfirst[10] == 4 && grouplast[10] == 6);  // one line past its count
    const auto& l = s.lines();
    ASSERT_EQ(l.size(), 6U);
    EXPECT_TRUE(l[1].c == testcolour(7) && l[2].c == testcolour(14) && l[5].c == colour{});
}

// Blocks that drawset leaves out are drawn where the last reading left them, that is displaced by the focus.
TEST(projector, drawsetChoosesTheBlocks) {
    const value sets[] = {1, 2, value(), 3, "2"};
    for (const value& set : sets) {
        session s;
        setview(1850, -1850, 550);
        setfocus({10, 20, 30});
        setlines({});
        for (const int first : {1, 2001, 4001, 6001}) {
            setpoint(first, {50, 60, 70});
            setpoint(first + 1, {80, 60, 70});
        }
        ptcount1 = ptcount2 = ptcount3 = ptcount4 = 2;
        linecount1 = 4;
        for (int k = 1; k <= 4; ++k) {
            lineend1.set(k, 2000 * (k - 1) + 1);
            lineend2.set(k, 2000 * (k - 1) + 2);
        }
        drawset = set;
        plotgroups();
        const lens l = lensofview();
        const auto& drawn = s.lines();
        for (const std::size_t k : {0U, 2U, 3U}) expectseen(drawn[k].x1, drawn[k].y1, l.at({40, 40, 40}));
        const bool two = set.isnumber() && set == 2;
        expectseen(drawn[1].x1, drawn[1].y1, two ? l.at({40, 40, 40}) : l.at({50, 60, 70}));
        EXPECT_TRUE(ptx[2001] == 40 && ptz[2002] == 40);
    }
}

// Eye and focus as they are asked for, and the eye as the exact comparisons leave it.
TEST(projector, fixUpNudgesDegenerateViews) {
    struct {
        vec eye, focus, fixedeye, fixedfocus;
    } const cases[] = {
        {{10, 20, 30}, {10, 20, 5}, {10 * 0.997, 20, 30}, {10, 20, 5}},
        {{10, 20, 30}, {10, 5, 30}, {10 * 0.998, 20, 30}, {10, 5, 30}},
        {{10, 20, 30}, {5, 20, 30}, {10, 20 * 0.999, 30}, {5, 20, 30}},
        {{10, 20, 30}, {10, 20, 30}, {10 * 0.997, 20 * 0.999, 30}, {10, 20, 30}},
        {{10, 20, 30}, {1, 2, 5}, {10 * 0.997, 20, 30}, {1, 2, 5}},
        {{10, 20, 30}, {1, 5, 3}, {10 * 0.998, 20, 30}, {1, 5, 3}},
        {{10, 20, 30}, {5, 2, 3}, {10, 20 * 0.999, 30}, {5, 2, 3}},
        {{10, 20, 30}, {1, 2, 3}, {10 * 0.997, 20 * 0.999, 30}, {1, 2, 3}},
        {{0, -5, 0}, {0, 0, 0}, {0.1 * 0.998, -5, 0.1}, {0.1, 0.1, 0.1}},
        {{1850, -1850, 830}, {0, 0, 280}, {1850, -1850, 830}, {0.1, 0.1, 280}},
    };
    for (const auto& c : cases) {
        session s;
        setview(c.eye[0], c.eye[1], c.eye[2], 0.056);
        setfocus(c.focus);
        perprelative = plotstate = 0;
        viewprompt = "AUTOMA";
        setlines({});
        plotgroups();
        EXPECT_EQ((vec{focusx, focusy, focusz}), c.fixedfocus);
        EXPECT_EQ((vec{perpx, perpy, perpz}), c.fixedeye - c.fixedfocus) << c.eye[0] << ' ' << c.focus[0];
        EXPECT_EQ((vec{perprelx, perprely, perprelz}), c.fixedeye - c.fixedfocus);
        EXPECT_TRUE(viewprompt.is("PROMPT") && perprelative == 1 && mag == 0.56 && refready == 1);
    }
}

// "AUTOMA" waits through any number of plots; a direct drawing consumes it, and multiplies mag whatever it holds.
TEST(projector, fixUpAndScaleWaitForADirectDrawing) {
    session s;
    setview(1850, -1850, 550, 2);
    setlines({});
    viewprompt = "AUTOMA";
    for (int i = 0; i < 3; ++i) {
        perpx = 5;  // a plot takes the eye of the view in force
        plotgroups();
    }
    EXPECT_TRUE(viewprompt.is("AUTOMA") && mag == 2 && perpx == 1850 && skipfixup == 0);
    projectdraw();
    EXPECT_TRUE(viewprompt.is("PROMPT") && mag == 20 && focusx == 0.1);
    viewprompt = value();
    rebasedone = 1;
    projectdraw();
    EXPECT_TRUE(viewprompt.empty() && mag == 200 && rebasedone == 0);
}

// A second drawing without restored points is displaced by one more focus.
TEST(projector, drawingAgainMovesTheLineEndsOnceMore) {
    session s;
    setview(1850, -1850, 550);
    setfocus({10, 20, 30});
    setlines({{100, 50, 40}, {-60, 50, 40}});
    plotgroups();
    EXPECT_TRUE(ptx[1] == 90 && savez[2] == 10);
    s.takelines();
    projectdraw();
    expectseen(s.lines()[0].x1, s.lines()[0].y1, lensofview().at({80, 10, -20}));
    EXPECT_EQ(ptx[1], 90);
}

TEST(projector, writesTheViewBack) {
    session s;
    setview(1234.5678, -1850.25, 1.0 / 3, 0.56);
    setfocus({0.1, -20, 280});
    vertshift = 123.456;
    horizshift = -270;
    setlines({});
    plotgroups();
    const std::string texts[] = {perptxtx.text,  perptxty.text, perptxtz.text, focustxtx.text, focustxty.text,
                                 focustxtz.text, magtxt.text,   verttxt.text,  horiztxt.text};
    EXPECT_EQ(std::vector<std::string>(texts, texts + 9),
              (std::vector<std::string>{"1234.6678", "-1870.25", "280.333333333333", "0.1", "-20", "280", "0.056",
                                        "123.4", "-270"}));
}

TEST(projector, zeroDivisorsAreFailures) {
    const struct {
        vec eye, point;
        const char* told;
    } cases[] = {{{1850, -1850, 550}, {0, 0, 0}, "a point lies on the axis of sight"},
                 {{0, 0, 0}, {5, 5, 5}, "the eye stands at the focus"},
                 {{0, 0, 1024}, {5, 5, 5}, "the eye stands straight above"}};
    for (const auto& c : cases) {
        session s;
        setview(c.eye[0], c.eye[1], c.eye[2]);
        setlines({c.point, {1, 2, 3}});
        expectfailure(failureof(plotgroups), failurekind::divisionbyzero, c.told);
    }
    session s;
    setview(1850, -1850, 550);
    setlines({{1, 2, 3}, {4, 5, 6}});
    wirecolour1 = 257;
    EXPECT_EQ(failureof(plotgroups)->kind, failurekind::subscript);
}
