// The solid painter: which faces are painted in which order, the density and colour of their webs, and framing lines.
#include "render/painter.h"

#include "data/elements.h"
#include "tests/geometry.h"
#include "tests/session.h"

using namespace tessaly;

namespace {

const vec eye{1850, -1850, 550};
lens lensofview() { return {eye, 0.56 * 15.2, 0, 0}; }

// A face across X: corners 1, 2 at the bottom, 3, 4 at the top.
struct face {
    double x;
    int colour;
    int framing1 = 0, framing2 = 0;
    std::array<vec, 4> corners() const { return {{{x, 10, 10}, {x, 90, 10}, {x, 10, 70}, {x, 90, 70}}}; }
};

// Reads an element of these faces, each with four points of its own.
void readfaces(const std::vector<face>& faces) {
    elementtext e;
    int p = 0, q = 0;
    const auto row = [](std::initializer_list<double> fields) {
        std::string text;
        for (const double f : fields) text += shortesttext(f) + ",";
        text.back() = '\n';
        return text;
    };
    for (const face& f : faces) {
        for (const vec& c : f.corners()) e.points += row({1, c[0], c[1], c[2]});
        e.lines[0] += row({p + 1.0, p + 2.0}) + row({p + 3.0, p + 4.0});
        e.planes += row({1, p + 1.0, p + 3.0, p + 2.0, p + 4.0, 1, double(f.colour)});
        ++q;
        e.framing1 += row({double(q), double(f.framing1)});
        e.framing2 += row({double(q), double(f.framing2)});
        p += 4;
    }
    session::write("datah/st-faces.txt", e);
    setview(eye[0], eye[1], eye[2]);
    datafile = "st-faces.txt";
    placemode = 0;
    readelements();
}

// The drawn lines as runs of one colour: palette index and count.
using runs = std::vector<std::pair<int, int>>;
runs runsof(const std::vector<drawnline>& lines) {
    runs result;
    const drawnline* before = nullptr;
    for (const drawnline& l : lines) {
        if (before && before->c == l.c)
            ++result.back().second;
        else
            result.push_back({l.c.red, 1});
        before = &l;
    }
    return result;
}

runs paint(session& s) {
    s.takelines();
    paintsolids();
    return runsof(s.lines());
}

void expectseen(float x, float y, const vec& at) {
    EXPECT_NEAR(x, lensofview().at(at).x, 1e-2);
    EXPECT_NEAR(y, lensofview().at(at).y, 1e-2);
}

}  // namespace

// The eye is at the side of greater X: faces of small X first. Equal keys: the lower slot comes later, on top.
TEST(painter, paintsFarthestFirst) {
    session s(ownfolder);
    readfaces({{50, 12}, {200, 14}, {-100, 11}, {50, 13}, {300, 15}});
    EXPECT_EQ(paint(s), (runs{{11, 402}, {13, 402}, {12, 402}, {14, 402}, {15, 402}}));
    EXPECT_TRUE(quadorder[1] == 5 && quadorder[2] == 2 && quadorder[5] == 3 && quaddist[3] == 2000000);
}

TEST(painter, paintsTheHundredNearest) {
    session s(ownfolder);
    std::vector<face> faces;
    for (int i = 1; i <= 120; ++i) faces.push_back({2.0 * i, i});
    readfaces(faces);
    runs expected;
    for (int i = 21; i <= 120; ++i) expected.push_back({i, 402});
    EXPECT_EQ(paint(s), expected);
}

// Positions are those of slots 1 to 100: what stands in the cubes' slots only is sorted and never painted.
TEST(painter, paintsNoElementOfCubesAlone) {
    session s(ownfolder);
    session::write("datah/st-cubes.txt", elementtext{.cubes400 = "1,10,10,10,50,50,50,0,20\n"});
    setview(eye[0], eye[1], eye[2]);
    datafile = "st-cubes.txt";
    placemode = 0;
    readelements();
    EXPECT_EQ(paint(s), runs{});
    EXPECT_NE(quadorder[4001], 0);
    // Beside faces they take their positions away: the far face is not among those painted.
    session::write("datah/st-cubes.txt", elementtext{.points = "1,-90,1,1\n2,-90,50,1\n3,-90,1,50\n4,-90,50,50\n",
                                                     .cubes400 = "1,10,10,10,50,50,50,0,20\n",
                                                     .planes = "1,1,3,2,4,1,30\n"});
    readelements();
    EXPECT_EQ(paint(s), (runs{{20, 402}}));
}

TEST(painter, turnedElementsShiftTheirColours) {
    struct {
        double rotz;
        int shift;
    } const cases[] = {{0, 0}, {90, 1}, {180, 0}, {270, 1}, {90.5, 0}};
    for (const auto& c : cases) {
        session s(ownfolder);
        readfaces({{50, 20, 1, 0}});
        rotz = c.rotz;
        EXPECT_EQ(paint(s), (runs{{20 + c.shift, 402}, {21 + c.shift, 2}})) << c.rotz;
        EXPECT_EQ(quadcolour[1], 20 + c.shift);  // it stays in the table: painting again shifts again
        EXPECT_EQ(paint(s).back().first, 21 + 2 * c.shift);
    }
}

TEST(painter, densityOfTheWeb) {
    struct {
        value code, first, second, kind;
        int lines;
    } const cases[] = {
        {{}, {}, {}, {}, 402},
        {19, {}, {}, "girder", 802},
        {21, "roofs1.txt", {}, "roof", 802},
        {22, {}, {}, "panel", 402},
        {18, "girders1.txt", "roofs1.txt", "girder", 3002},
        {{}, "roof", {}, {}, 3002},
        {{}, "Roofs1.txt", "aroof.txt", "roofs", 402},
        {1, {}, {}, "roof", 3002},
    };
    for (const auto& c : cases) {
        session s(ownfolder);
        readfaces({{50, 20}});
        panelcode = c.code;
        firstfilename = c.first;
        secondfilename = c.second;
        elementkind = c.kind;
        EXPECT_EQ(paint(s), (runs{{20, c.lines}})) << c.code.text() << c.kind.text();
    }
}

// The web joins edge 1-2 with edge 3-4, then edge 1-3 with edge 2-4; what lies between is straight on the screen.
TEST(painter, theWebJoinsOppositeEdges) {
    session s(ownfolder);
    readfaces({{50, 20}});
    paint(s);
    const auto& l = s.lines();
    const auto [c1, c2, c3, c4] = face{50, 20}.corners();
    expectseen(l[0].x1, l[0].y1, c1);
    expectseen(l[0].x2, l[0].y2, c3);
    expectseen(l[200].x1, l[200].y1, c2);
    expectseen(l[200].x2, l[200].y2, c4);
    expectseen(l[201].x2, l[201].y2, c2);
    expectseen(l[401].x1, l[401].y1, c3);
    EXPECT_NEAR(l[50].x1, l[0].x1 + (l[200].x1 - l[0].x1) / 4, 1e-3);
    EXPECT_NEAR(l[50].y2, l[0].y2 + (l[200].y2 - l[0].y2) / 4, 1e-3);
}

// Framing lines stand at even parts of the rails in the model, the closing edge comes before them.
TEST(painter, framingLinesKeepTheirPerspective) {
    struct {
        int along1, along2;
    } const cases[] = {{3, 0}, {0, 4}, {3, 4}, {-1, 2}};
    for (const auto& c : cases) {
        session s(ownfolder);
        readfaces({{50, 20, c.along1, c.along2}});
        const int first = std::max(c.along1, 0);
        const int framing = (first ? 1 + first : 0) + (c.along2 ? 1 + c.along2 : 0);
        ASSERT_EQ(paint(s), (runs{{20, 402}, {21, framing}}));
        const auto [c1, c2, c3, c4] = face{50, 20}.corners();
        const drawnline* l = &s.lines()[402];
        const auto direction = [&](int count, const vec& a, const vec& b, const vec& from, const vec& to) {
            if (count <= 0) return;
            expectseen(l->x1, l->y1, to);
            expectseen(l->x2, l->y2, b);
            ++l;
            for (int i = 0; i < count; ++i, ++l) {
                expectseen(l->x1, l->y1, a + double(i) / count * (b - a));
                expectseen(l->x2, l->y2, from + double(i) / count * (to - from));
            }
        };
        direction(c.along1, c1, c2, c3, c4);
        direction(c.along2, c1, c3, c2, c4);
        EXPECT_EQ(ptx[7001], 0);  // scratch is restored from what the base tables hold there
    }
    session s(ownfolder);
    readfaces({{50, 20, 2000, 0}});
    EXPECT_EQ(failureof(paintsolids)->kind, failurekind::subscript);
}

// A face of its fourth corner alone is not measured: its key stays 0 and it comes out as the nearest. The test for that
// looks at slot 0's fourth corner.
TEST(painter, emptinessIsToldByThreeCorners) {
    for (const int slotzero : {0, 1}) {
        session s(ownfolder);
        readfaces({{50, 20}, {-500, 30}});
        for (auto* corner : {&quad1, &quad2, &quad3}) corner->set(2, 0);
        quad4.set(0, slotzero);
        const runs order = paint(s);
        ASSERT_EQ(order.size(), 2U);
        EXPECT_EQ(order[1].first, slotzero ? 20 : 30);
    }
}

// A face a million units away is not chosen: its position paints again what it held before.
TEST(painter, theFarthestFacesAreNeverChosen) {
    session s(ownfolder);
    readfaces({{50, 20}, {-1e6, 30}});
    quadorder.set(2, 1);
    EXPECT_EQ(paint(s), (runs{{20, 804}}));
}
