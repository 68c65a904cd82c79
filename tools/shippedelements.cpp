// Post, beam and roof. Each is modelled about the origin so that its placement brings it onto the plan: the post is
// laid along Y and stood up by a quarter turn about X (model Y becomes height, model Z becomes minus Y); the beam runs
// along Y from the post's face and is shifted, or turned by 270 degrees (model Y becomes X, model X becomes minus Y);
// the roof is shifted only.
#include "tools/shape.h"
#include "tools/shipped.h"

namespace tessaly {

namespace {

// The eight corners of a box from (0, 0, z) with these sides, in model units.
struct box {
    double z, dx, dy, dz;
    corner at(int i, int j, int k) const { return {i * dx, j * dy, z + k * dz}; }
};

// Faces of a box whose normals lie along an axis. Corner 1 is the lower end, edge 1-2 runs along the longer side.
void xface(shape& s, const box& b, int i, int colour, int columns = 1, int rows = 1) {
    s.face(1, colour, b.at(i, 0, 0), b.at(i, 1, 0), b.at(i, 0, 1), b.at(i, 1, 1), columns, rows);
}
void yface(shape& s, const box& b, int j, int colour, int columns = 1, int rows = 1) {
    s.face(1, colour, b.at(0, j, 0), b.at(1, j, 0), b.at(0, j, 1), b.at(1, j, 1), columns, rows);
}
void zface(shape& s, const box& b, int k, int colour, int columns = 1, int rows = 1) {
    s.face(1, colour, b.at(0, 0, k), b.at(1, 0, k), b.at(0, 1, k), b.at(1, 1, k), columns, rows);
}

// The side faces come first in the table: of faces that are equally near the first is painted last.
shape post() {
    shape s;
    s.title = "Post: a steel column of 16 by 16; 128 high";
    s.notes = {"It lies along Y here and is stood up when it is placed: Y becomes the height and Z becomes minus Y."};
    s.wires = {paint::steelwire, 0, 0, 0, 0};
    const box b{0, thick, storey, thick};
    zface(s, b, 0, paint::steelside + 1);
    zface(s, b, 1, paint::steelside + 1);
    xface(s, b, 0, paint::steelside);
    xface(s, b, 1, paint::steelside);
    yface(s, b, 1, paint::steeltop, 0, 0);
    yface(s, b, 0, paint::steelbottom, 0, 0);
    return s;
}

shape beam() {
    shape s;
    s.title = "Beam: a steel girder of 16 by 16; 176 long; at the top of its storey";
    s.notes = {"It starts at the face of one post and ends at the face of the next.",
               "Turned by 270 degrees it lies along X: Y becomes X and X becomes minus Y."};
    s.wires = {paint::steelwire, 0, 0, 0, 0};
    const box b{storey - thick, thick, bay - thick, thick};
    zface(s, b, 1, paint::steeltop, 0, 0);
    xface(s, b, 0, paint::steelside);
    xface(s, b, 1, paint::steelside);
    zface(s, b, 0, paint::steelbottom, 0, 0);
    yface(s, b, 0, paint::steelend);
    yface(s, b, 1, paint::steelend);
    return s;
}

// The seams are 16 apart, so that those of two roofs side by side fall together where the roofs overlap.
shape roof() {
    constexpr double slab = 8;
    shape s;
    s.title = "Roof: a slab of 208 by 208 on the top of its storey; 8 thick";
    s.wires = {paint::roofwire, 0, 0, 0, 0};
    const box b{storey, wallong, wallong, slab};
    zface(s, b, 1, paint::rooftop, wallong / thick, 0);
    yface(s, b, 0, paint::roofedge);
    yface(s, b, 1, paint::roofedge);
    xface(s, b, 0, paint::roofedge + 1);
    xface(s, b, 1, paint::roofedge + 1);
    zface(s, b, 0, paint::roofbelow, 0, 0);
    return s;
}

}  // namespace

std::vector<shippedfile> girderfiles() {
    return {{"datah/st-post.txt", post().text()}, {"datah/st-beam.txt", beam().text()}};
}

std::vector<shippedfile> rooffiles() { return {{"datah/st-roof.txt", roof().text()}}; }

}  // namespace tessaly
