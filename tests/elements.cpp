// The element reader: sections, cubes, end rows, placement, and what each mistake in a file leads to.
#include "data/elements.h"

#include "core/fields.h"
#include "render/painter.h"
#include "tests/session.h"

#include <cmath>
#include <set>

using namespace tessaly;

namespace {

using corner = std::array<double, 3>;

corner base(int i) { return {basex[i], basey[i], basez[i]}; }
corner working(int i) { return {ptx[i], pty[i], ptz[i]}; }
corner base(const value& i) { return base(indexof(i, "test", lastpoint)); }

// The element in a file of its own, read by a placement, from a view that shows it.
void readfile(const std::string& text, int mode = 3) {
    session::write("datah/st-test.txt", text);
    setview(1850, -1850, 550);
    focusx = 0.5;  // off the points: one on the axis of sight cannot be drawn
    focusy = 0.25;
    focusz = 0.125;
    datafile = "st-test.txt";
    placemode = mode;
    placex = 488;
    placey = 680;
    placez = rotx = rotz = 0;
    readelements();
}

int differing(const corner& a, const corner& b) { return (a[0] != b[0]) + (a[1] != b[1]) + (a[2] != b[2]); }

// Whether the lines first..first+11 are the twelve edges, and the quads from quad on the six faces, of the cube between
// these corners: told by where their ends lie, whatever their order.
void expectcube(int first, int quad, const corner& a, const corner& b) {
    std::set<std::set<corner>> edges, faces;
    for (int k = first; k < first + 12; ++k) {
        EXPECT_EQ(differing(base(lineend1[k]), base(lineend2[k])), 1);
        edges.insert({base(lineend1[k]), base(lineend2[k])});
    }
    EXPECT_EQ(edges.size(), 12U);
    for (int q = quad; q < quad + 6; ++q) {
        const corner around[] = {base(quad1[q]), base(quad2[q]), base(quad4[q]), base(quad3[q])};
        for (int i = 0; i < 4; ++i) EXPECT_EQ(differing(around[i], around[(i + 1) % 4]), 1) << "quad " << q;
        faces.insert({around, around + 4});
    }
    EXPECT_EQ(faces.size(), 6U);
    for (const auto& face : faces)
        for (const corner& c : face)
            for (std::size_t axis = 0; axis < 3; ++axis) EXPECT_TRUE(c[axis] == a[axis] || c[axis] == b[axis]);
}

}  // namespace

TEST(elements, sectionsGoToTheirTables) {
    session s(ownfolder);
    elementtext e;
    e.points = "1,1,2,3, 7,4,5,6\nlabel, 7,8\n9, 5, 0,0,-1e1,";  // rows and lines of the file are not bound together
    e.lines[0] = "1,2,2,3\n";
    e.cubes400 = "1,10,20,30,14,26,38,5,60\n2,0,0,0,-4,6,8,6,61\n";
    e.cubes600 = "1,1,1,1,2,2,2,7,62\n";
    e.planes = "1,1,2,3,4,9,70\n2,4,3,2,1,8,71\n";
    e.framing1 = "2,3\n4001,4\n";
    e.framing2 = "1,5\n";
    e.lines[2] = "3,1\n4,1\n";
    readfile(e);

    EXPECT_EQ(ptcount1, 4);
    EXPECT_EQ(base(2), (corner{4, 5, 6}));
    EXPECT_EQ(base(3), (corner{7, 8, 9}));  // a label that is no number is an ordinary row's
    EXPECT_EQ(base(4), (corner{0, 0, -10}));
    const double counts[] = {linecount1, linecount2, linecount3, linecount4, linecount5, linecount6, linecount7};
    EXPECT_EQ(std::vector<double>(counts, counts + 7), (std::vector<double>{2, 0, 2, 0, 0, 24, 12}));
    EXPECT_TRUE(lineend1[2] == 2 && lineend2[2] == 3 && lineend1[3] == 3 && lineend1[4] == 4);
    EXPECT_TRUE(wirecolour1 == 1 && wirecolour7 == 7 && wirecolour8.empty());
    EXPECT_TRUE(ptcount2 == 0 && ptcount3 == 20 && ptcount4 == 10 && drawset == 1);

    expectcube(5, 4001, {10, 20, 30}, {14, 26, 38});
    expectcube(17, 4011, {0, 0, 0}, {-4, 6, 8});
    expectcube(29, 6001, {1, 1, 1}, {2, 2, 2});
    EXPECT_EQ(base(4011), (corner{0, 0, 0}));  // the first corner stands on an index that ends in 1
    EXPECT_EQ(base(4016), (corner{-4, 6, 8}));
    EXPECT_TRUE(ptx[4009] == -0.5 && ptz[4020] == -0.125 && quad1[4007] == 0 && quad4[4010] == 0);
    EXPECT_TRUE(quadcolour[4006] == 60 && quadcolour[4011] == 61 && quadcolour[6001] == 62);
    EXPECT_TRUE(quadgrade[4004] == 5 && quadgrade[4005] == 0 && quadgrade[6001] == 7 && quadface[4016] == 6);

    EXPECT_TRUE(quad1[1] == 1 && quad3[1] == 2 && quad2[1] == 3 && quad4[1] == 4 && quadface[1] == 9);
    EXPECT_TRUE(quad1[2] == 4 && quadcolour[2] == 71 && quad1[3] == 0);
    EXPECT_TRUE(framing1[2] == 3 && framing1[4001] == 4 && framing2[1] == 5 && framing2[2] == 0);
    for (const int i : {1, 4, 4001, 4016, 6008}) {
        const auto [x, y, z] = base(i);
        EXPECT_EQ(working(i), (corner{x - 0.5, y - 0.25, z - 0.125})) << i;
    }
}

// The row that ends AUTOPLANE: stands in the quad table, and that of a framing section clears its quad's count.
TEST(elements, endRowsLeaveTraces) {
    session s(ownfolder);
    const elementtext e{
        .points = "1,0,0,0\n2,9,0,0\n3,9,9,0\n4,0,9,0\n", .planes = "1,1,2,3,4,1,7\n", .framing1 = "1,6\n"};
    const std::string text = replaced(e, "9999,0,0,0,0,0,0\nAUTOF", "9999,4,3,2,1,5,8\nAUTOF");
    readfile(replaced(text, "0,9999\nAUTOF", "1,9999\nAUTOF"));
    EXPECT_TRUE(quad1[2] == 4 && quad3[2] == 3 && quad4[2] == 1 && quadcolour[2] == 8);
    EXPECT_EQ(framing1[1], 0);
}

TEST(elements, sectionsWithoutAnEndRowStopAtTheirLimit) {
    session s(ownfolder);
    elementtext e;
    for (int c = 0; c < 201; ++c) e.cubes400 += "1,0,0,0,1,1,1,0,5\n";
    readfile(e);  // the 201st row and the end row are stray text
    EXPECT_TRUE(ptcount3 == 2000 && linecount6 == 2400 && ptcount4 == 0);
    elementtext many;
    for (int n = 0; n < 10001; ++n) many.points += "1,0,0,0\n";
    readfile(many);
    EXPECT_TRUE(ptcount1 == 0 && drawset == 1);
}

// Another element takes the first one out of the tables; only what lies above 7000 keeps the old one's figures.
TEST(elements, aSecondElementReplacesTheFirst) {
    session s(ownfolder);
    elementtext first;
    first.points = "1,1,1,1\n2,2,2,2\n3,3,3,3\n";
    first.lines[0] = "1,2\n2,3\n";
    for (int c = 0; c < 101; ++c) first.cubes600 += "1,5,5,5,6,6,6,0,5\n";
    readfile(first, 0);
    readfile(elementtext{.points = "1,4,4,4\n"}, 0);
    EXPECT_EQ(base(1), (corner{4, 4, 4}));
    EXPECT_EQ(base(2), (corner{0, 0, 0}));
    EXPECT_EQ(base(6001), (corner{0, 0, 0}));
    EXPECT_EQ(base(7001), (corner{5, 5, 5}));
    EXPECT_TRUE(linecount1 == 0 && linecount7 == 0 && ptcount4 == 0);
}

// Angles are turned into radians by a pi of five decimals, whose residue is to be seen.
TEST(elements, placementsTurnThenMove) {
    const double quarter = 90 * 3.14159 / 180, residue = std::cos(quarter);
    ASSERT_NEAR(residue, 1.3267949e-6, 1e-12);
    struct {
        int mode;
        double rotx, rotz;
        corner expected;  // of (100, 20, 3), moved by layout (500, 700, 256), that is world (12, 20, 256)
    } const cases[] = {
        {1, 0, 90, {12 - 20, 20 + 100, 259}},
        {4, 0, 270, {12 + 20, 20 - 100, 259}},
        {1, 77, 180, {12 - 100, 20 - 20, 259}},
        {2, 90, 45, {112, 20 - 3, 256 + 20}},
        {3, 90, 90, {112, 40, 259}},
        {5, 90, 90, {112, 40, 259}},
    };
    for (const auto& c : cases) {
        session s({{"datah/st-p.txt", elementtext{.points = "1,100,20,3\n", .cubes400 = "1,7,7,7,8,8,8,0,0\n"}}});
        setview(1850, -1850, 550);
        datafile = "st-p.txt";
        placemode = c.mode;
        rotx = c.rotx;
        rotz = c.rotz;
        placex = 500;
        placey = 700;
        placez = 256;
        readelements();
        const corner placed = base(1);
        for (std::size_t axis = 0; axis < 3; ++axis)
            EXPECT_NEAR(placed[axis], c.expected[axis], 1e-3) << "mode " << c.mode;
        EXPECT_TRUE(placex == 12 && placey == 20 && placez == 256);
        EXPECT_EQ(rotz, c.rotz);
        EXPECT_EQ(rotx, c.mode == 2 ? c.rotx * 3.14159 / 180 : c.rotx);
        if (c.mode == 1 && c.rotz == 90) {
            EXPECT_NEAR(placed[0] - (12 - 20), 100 * residue, 1e-9);
        }
        // Points 1 to 100 move, whatever the counts say; cubes stay where the file put them.
        EXPECT_EQ(base(100), (corner{12, 20, 256}));
        EXPECT_EQ(base(101), (corner{0, 0, 0}));
        EXPECT_EQ(base(4001), (corner{7, 7, 7}));
    }
}

// A placement that nobody knows leaves the element file open: the element after it fails.
TEST(elements, anUnknownPlacementBlocksTheChannel) {
    session s(ownfolder);
    elementtext e;
    e.points = "1,0,0,0\n2,9,9,9\n";
    e.lines[0] = "1,2\n";
    readfile(e, 6);
    EXPECT_TRUE(s.lines().empty());
    EXPECT_EQ(failureof([&] { readfile(e, 3); })->kind, failurekind::filealreadyopen);
}

// With the file opened for it the reader stops behind the framing: no placement, no plot, drawset as it was.
TEST(elements, aFileOpenedForItIsLeftOpen) {
    session s({{"datah/st-o.txt", elementtext{.points = "1,1,1,1\n", .lines = {"1,9999\n9999,1\n"}}}});
    placemode = 3;
    placex = 1000;
    preopened = 1;
    openinput(1, "datah\\st-o.txt", "test");
    readelements();
    EXPECT_EQ(base(1), (corner{1, 1, 1}));
    EXPECT_TRUE(drawset.empty() && placex == 1000 && s.lines().empty());
    EXPECT_EQ(linecount1, 2);  // one field of 9999 ends no section
    EXPECT_EQ(readtextfield(1, "it"), "TRAN");
}

TEST(elements, mistakesOfAFile) {
    const elementtext good{.points = "1,0,0,0\n2,50,0,0\n",
                           .lines = {"1,2\n"},
                           .cubes400 = "1,0,0,0,1,1,1,0,0\n",
                           .planes = "1,1,2,1,2,1,7\n",
                           .framing1 = "1,2\n"};
    struct {
        const char *taken, *put;
        failurekind kind;
        const char* told;
    } const cases[] = {
        {"STANDARD:", "standard:", failurekind::inputpastend, "looking for STANDARD:"},
        {"LINEG4:\n", "", failurekind::inputpastend, "looking for LINEG4:"},
        {"2,50,0,0", "2,5O,0,0", failurekind::typemismatch, "line 6, field 2 (x of a STANDARD: row)"},
        {"1,2\n9999", "1,two\n9999", failurekind::typemismatch, "\"two\""},
        {"1,2\n9999,9999", "1,10001\n9999,9999", failurekind::subscript, "line 9, field 2 (LINEG1:)"},
        {"1,2\n9999", "1,-1\n9999", failurekind::subscript, "point -1, a point 0..10000 was expected"},
        {"WIRECOLORS:\n1", "WIRECOLORS:\n300", failurekind::subscript, "line 3, field 1 (WIRECOLORS:)"},
        {"1,0,0,0,1,1,1,0,0", "1,0,0,0,one,1,1,0,0", failurekind::typemismatch, "line 20, field 5"},
        {"1,0,0,0,1,1,1,0,0", "40000,0,0,0,1,1,1,0,0", failurekind::overflow, "40000"},
        {"9999,0,0,0,0,0,0,0,0\nAUTOCUBE600:", "9999,0\nAUTOCUBE600:", failurekind::inputpastend, "AUTOCUBE600:"},
        {"1,1,2,1,2,1,7", "1,1,2,1,10001,1,7", failurekind::subscript,
         "line 25, field 5 (AUTOPLANE:): ptx has no index 10001"},
        {"1,1,2,1,2,1,7", "1,1,2,1,2,1,\n\n257", failurekind::subscript, "line 27, field 1 (AUTOPLANE:): palette"},
        {"1,2\n0,9999", "5e6,2\n0,9999", failurekind::subscript, "framing1 has no index 5000000, an index 0..10000"},
        {"1,2\n0,9999", "1,2\n1,1501\n0,9999", failurekind::subscript, "line 29, field 2 (AUTOFRAMING1:)"},
        {"0,9999\nTRAN", "0,9998\n", failurekind::inputpastend, "the count of a framing row"},
        {"9999,0,0,0\nLINEG1:", "LINEG1:", failurekind::inputpastend, "LINEG1:"},  // its rows are read as points
    };
    for (const auto& c : cases) {
        session s(ownfolder);
        const std::string text = replaced(good, c.taken, c.put);
        const auto f = failureof([&] {
            readfile(text);
            paintsolids();
        });
        expectfailure(f, c.kind, c.told);
        expectfailure(f, c.kind, "datah\\st-test.txt");
    }
    session s(ownfolder);
    datafile = "st-none.txt";
    EXPECT_EQ(failureof(readelements)->kind, failurekind::filenotfound);
}
