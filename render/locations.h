// Locations of the numbers that lines and faces were read from, for reports: the file read last into the tables, the
// section and the row, such as "datah\st-post.txt, LINEG3:, row 4, second number". An index into the tables determines
// them; nothing is read.
#pragma once

#include <string>

namespace tessaly {

std::string locationofend(int group, int row, int end);  // end 1 or 2 of a line
std::string locationofwirecolour(int group);
std::string locationofbadcorner(int face);  // the first corner that is not a point
std::string locationofcolour(int face);
std::string locationofframing(int face, int direction);  // names the face, because framing rows come in any order

}  // namespace tessaly
