// Where the figures stand that the lines and faces in the tables were given: for a report the file that was read last
// is read again, nothing is carried along for it. "datah\st-post.txt, line 14, field 3 (LINEG1:)"; only the file where
// the figure does not stand there any more.
#pragma once

#include <string>

namespace tessaly {

std::string placeofend(int group, int row, int end);  // end 1 or 2 of a row of a line group's section
std::string placeofwirecolour(int group);
std::string placeofcorner(int face);  // the first of its corners that is no point
std::string placeofcolour(int face);
std::string placeofframing(int face, int direction);  // 1 or 2: the row that gave the face its framing lines

}  // namespace tessaly
