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

void expectends(const drawnline& l, const seen& from, const seen& to) {
    expectseen(l.x1, l.y1, from);
    expectseen(l.x2, l.y2, to);
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
            expectends(drawn[k], l.at(ends[2 * k] - focus), l.at(ends[2 * k + 1] - focus));
            EXPECT_EQ(drawn[k].c, testcolour(7));
        }
    }
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
    expectends(drawn[0], l.at(walked(close)), l.at(far));
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
    for (const int i : {1, 2}) {
        ptx.set(i, 1200);  // near; the base positions are far
        savex.set(i, i == 1 ? -900 : 100);
        savey.set(i, basey[i]);
        savez.set(i, 20);
    }
    setplane();
    refready = 0;
    referencepass();
    drawlines(1, 1, 7);
    ASSERT_EQ(s.lines().size(), 1U);
    const vec first = vec{1200, -50, 20} + 298 / 299.0 * (vec{-900, 50, 20} - vec{1200, -50, 20});
    const vec second = vec{0, 50, 20} + 297 / 299.0 * (vec{100, -50, 20} - vec{0, 50, 20});
    expectends(s.lines()[0], lensofview().at(first), lensofview().at(second));
    EXPECT_EQ(walkcount, 297);
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

// Eye and focus as they are asked for, and the eye as the exact comparisons leave it.
TEST(projector, fixUpNudgesDegenerateViews) {
    struct {
        vec eye, focus, fixedeye, fixedfocus;
    } const cases[] = {
        {{10, 20, 30}, {10, 20, 5}, {10 * 0.997, 20, 30}, {10, 20, 5}},
        {{10, 20, 30}, {10, 5, 30}, {10 * 0.998, 20, 30}, {10, 5, 30}},
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
}
