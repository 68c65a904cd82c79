// A line of a script taken apart: its command, words, texts in quotes, file names. What does not fit the line's
// command is a scripterror, which the player shows with the line's number.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace tessaly {

struct scripterror : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class scriptline {
  public:
    // The line must outlive it; its line end may still be there.
    explicit scriptline(std::string_view line);

    bool atend();                                  // only blanks are left
    std::string_view text() const { return all; }  // the complete line, without its line end
    std::string_view word();                       // up to the next blank; "" at the end
    std::string_view rest();                       // all that is left, as it stands behind one blank
    std::string filename();  // all that is left, blanks around it or quotes taken off; fails when there is none
    std::string quoted();    // a text in quotes, its escapes obeyed; fails for anything else
    void expectend();        // fails when anything is left

  private:
    std::string_view all, left;
};

// The text in quotes, with \" \\ \r \n where they are needed.
std::string inquotes(std::string_view text);

}  // namespace tessaly
