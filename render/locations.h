// Locations, for reports, of the numbers from which lines and faces were read, such as "datah\st-post.txt, LINEG3:, row
// 4, second number". They consist of the file read last into the tables, a section and a row. They are computed from an
// index into the tables, without reading the file again.
#pragma once

#include <string>

namespace tessaly {

std::string locationoflineend(int group, int row, int end);  // end: 1 or 2
std::string locationofwirecolour(int group);
std::string locationofbadcorner(int face);               // of the first corner whose number is not that of a point
std::string locationofcolour(int face);                  // without the row for a face of a cube
std::string locationofframing(int face, int direction);  // names the face, because framing rows come in any order

}  // namespace tessaly
