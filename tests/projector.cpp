// The projector: random scenes compared with the geometry of the picture plane, and cases that random scenes do not
// contain. Lines that reach behind the picture plane are in the session first-steps.
#include "render/projector.h"

#include "data/pointtransforms.h"
#include "tests/geometry.h"
#include "tests/session.h"

using namespace tessaly;

namespace {

void setline(int line, int first, int second) {
    lineend1.set(line, first);
    lineend2.set(line, second);
}

void setoneline(const vec& from, const vec& to) {
    placepoint(1, from[0], from[1], from[2]);
    placepoint(2, to[0], to[1], to[2]);
    ptcount1 = 2;
    linecount1 = 1;
    setline(1, 1, 2);
}

// Sets a view, six points in each block, and lines between them in groups of 0 to 3. Returns the points relative to the
// focus.
std::map<int, vec> setrandomscene(randomnumbers& random) {
    resetworld();
    const double away = random.real(1500, 4000), angle = random.real(0, 6.28);
    setview(away * std::cos(angle), away * std::sin(angle), random.within(away), random.real(0.1, 0.6));
    perpx = perpy = perpz = 5;  // plotgroups takes the eye from perprelx..
    vertshift = random.within(300);
    horizshift = random.within(300);
    drawset = 2;
    const vec focus = randompoint(random, 100);
    std::tie(focusx, focusy, focusz) = std::tuple_cat(focus);
    ptcount1 = ptcount2 = ptcount3 = ptcount4 = 6;
    std::map<int, vec> points;
    for (const int block : {1, 2001, 4001, 6001})
        for (int i = block; i < block + 6; ++i) {
            const vec at = randompoint(random, 300);
            placepoint(i, at[0], at[1], at[2]);
            points[i] = at - focus;
        }
    for (int line = 1; line <= 3 * linegroups + 1; ++line) {
        const int first = random.whole(1, 6), second = (first + random.whole(0, 4)) % 6 + 1;
        setline(line, 2000 * random.whole(0, 3) + first, 2000 * random.whole(0, 3) + second);
    }
    for (int group = 1; group <= linegroups; ++group) {
        linecount[group] = random.whole(0, 3);
        wirecolour[group] = random.whole(1, 120);
    }
    return points;
}

}  // namespace

// Catches a wrong factor or sign, and a block, a group or a line that is left out.
TEST(projector, drawsWhatTheGeometrySays) {
    session s(inownfolder);
    randomnumbers random;
    for (int scene = 0; scene < 300; ++scene) {
        auto points = setrandomscene(random);
        s.takelines();
        plotgroups();
        const lens l;
        int line = 0;
        for (int group = 1; group <= linegroups; ++group) {
            const bool onemore = group == linegroups && linecount[group] > 0;  // the last group has one line more
            for (int left = static_cast<int>(linecount[group]) + onemore; left > 0; --left) {
                ASSERT_LT(line, s.lines().size());
                const drawnline& drawn = s.lines()[static_cast<std::size_t>(line++)];
                ASSERT_TRUE(isat(l.at(points[static_cast<int>(lineend1[line])]), drawn.x1, drawn.y1)) << drawn;
                ASSERT_TRUE(isat(l.at(points[static_cast<int>(lineend2[line])]), drawn.x2, drawn.y2)) << drawn;
                ASSERT_EQ(drawn.c, testcolour(static_cast<int>(wirecolour[group])));
            }
        }
        ASSERT_EQ(line, s.lines().size());
    }
}

// A point in the plane is not moved. A near end is moved to 1/299 of its line if necessary.
TEST(projector, nearEndsAreMovedBehindThePlane) {
    for (const auto& [x, movesleft] : {std::pair(940, 299), std::pair(1059, 1)}) {
        session s(inownfolder);
        setview(1000, 0, 0, 0.1);
        setoneline({double(x), 40, 16}, {939.5, 1, 1});
        plotgroups();
        EXPECT_EQ(joined(planecentrex, walkcount, s.lines().size()), joined(940, movesleft, 1)) << x;
    }
}

TEST(projector, zeroDivisorsAreFailures) {
    const struct {
        vec eye, point;
        const char* report;
    } cases[] = {{{1850, -1850, 550}, {0, 0, 0}, "a point lies on the line from the eye to the focus"},
                 {{0, 0, 0}, {5, 5, 5}, "the eye is at the focus"},
                 {{0, 0, 1024}, {5, 5, 5}, "the eye is straight above"}};
    for (const auto& c : cases) {
        session s(inownfolder);
        setview(c.eye[0], c.eye[1], c.eye[2]);
        setoneline(c.point, {1, 2, 3});
        expectfailure(failureof(plotgroups), failurekind::divisionbyzero, c.report);
    }
}
