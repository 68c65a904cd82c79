// The projector: single lines that no session draws. tests/painter.cpp compares random lines with the geometry of the
// picture plane; lines that reach the near side of the plane are in the session first-steps.
#include "render/projector.h"

#include "data/pointtransforms.h"
#include "tests/geometry.h"
#include "tests/session.h"

using namespace tessaly;

namespace {

void drawoneline(const vec& eye, const vec& from, const vec& to) {
    setview(eye[0], eye[1], eye[2]);
    placepoint(1, from[0], from[1], from[2]);
    placepoint(2, to[0], to[1], to[2]);
    ptcount1 = 2;
    linecount1 = 1;
    lineend1.set(1, 1);
    lineend2.set(1, 2);
    plotgroups();
}

}  // namespace

// A point in the plane is not moved. An end on the near side is moved up to 298 times, until 1/299 of its line remains.
TEST(projector, nearEndsAreMovedToTheFarSide) {
    for (const auto& [x, stepsleft] : {std::pair(940, 299), std::pair(1059, 1)}) {
        session s(inownfolder);
        drawoneline({1000, 0, 0}, {double(x), 40, 16}, {939.5, 1, 1});
        EXPECT_EQ(joined(planecentrex, walkcount, s.lines().size()), joined(940, stepsleft, 1)) << x;
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
        expectfailure(failureof([&] {
                          drawoneline(c.eye, c.point, {1, 2, 3});
                      }),
                      failurekind::divisionbyzero, c.report);
    }
}
