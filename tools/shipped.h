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
namespace paint {  // clang-format off
constexpr int
    steelside = 1,   steelend = 4,     steeltop = 7,     steelbottom = 10,
    orange = 13,     orangerib = 16,   orangetrim = 19,
    yellow = 22,     yellowboard = 25, yellowtrim = 28,
    cream = 31,      creamtrim = 34,   sash = 37,        glass = 40,
    doorred = 43,    doorredin = 46,   doorgreen = 49,   doorgreenin = 52, brass = 55,
    rooftop = 58,    roofedge = 61,    roofbelow = 64,
    steelwire = 67,  orangewire = 70,  yellowwire = 73,  doorwire = 76,    glasswire = 79, roofwire = 82,
    gridwire = 85,   landwire = 88,    treewire = 91,    axisx = 94,       axisy = 97,     axisz = 100, cubewire = 103,
    named = 105;      // the last entry with a name; a colour wheel for users' own elements follows
}  // clang-format on

}  // namespace tessaly
