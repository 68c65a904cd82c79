// The data that comes with the building set: elements, start scene, palette. Each procedure here gives files as bytes;
// makedata writes them, and a test compares them with the committed ones. Nothing here knows the program's tables.
#pragma once

#include <string>
#include <vector>

namespace tessaly {

struct shippedfile {
    std::string path;  // from the working folder, with forward slashes
    std::string bytes;
};

std::vector<shippedfile> girderfiles();   // the post and the beam
std::vector<shippedfile> panelfiles();    // eight types of panel, each with four ends
std::vector<shippedfile> rooffiles();     // the roof slab
std::vector<shippedfile> scenefiles();    // start.txt, the three start groups, the nine-storey cube
std::vector<shippedfile> palettefiles();  // the palette and its list in words

// All of the above, in that order.
std::vector<shippedfile> shippedfiles();

// ---- measures, in model units ------------------------------------------------------------
constexpr int bay = 192;                 // from the middle of a post to that of the next
constexpr int thick = 16;                // side of a post, depth and width of a beam
constexpr int storey = 128;              // height of a floor
constexpr int wallong = bay + thick;     // a panel and a roof reach over the posts at both ends
constexpr int baysx = 5, baysy = 7;      // the plan
constexpr int planx = 488, plany = 680;  // layout X, Y of the world's origin: half of the plan, posts included

// ---- the palette's colours ---------------------------------------------------------------
// Each stands for three entries: the face itself; behind it the shade, which the painter takes for the face when it is
// turned by a quarter and for framing lines on the face when it is not; behind that the framing lines on the turned
// face.
namespace colour {  // clang-format off
constexpr int
    steelside = 1,   steelend = 4,     steeltop = 7,    steelbottom = 10,
    orange = 13,     orangerib = 16,   orangetrim = 19,
    yellow = 22,     yellowboard = 25, yellowtrim = 28,
    cream = 31,      creamtrim = 34,   doorred = 37,    doorgreen = 40,  brass = 43,
    glass = 46,      rooftop = 49,     roofedge = 52,   roofbelow = 55,
    steelwire = 58,  orangewire = 61,  yellowwire = 64, doorwire = 67,   glasswire = 70, roofwire = 73,
    gridwire = 76,   landwire = 79,    treewire = 82,   axisx = 85,      axisy = 88,     axisz = 91, cubewire = 94,
    named = 96;      // the last entry with a name; a colour wheel for users' own elements follows
}  // clang-format on

}  // namespace tessaly
