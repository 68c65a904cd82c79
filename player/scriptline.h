// Splits a line of a script into its command, words, quoted texts and file names. A line that does not fit its command
// throws scripterror, which the player reports with the line's number.
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
    // The line must outlive this object; it may end with a line end.
    explicit scriptline(std::string_view line);

    bool atend();                                  // whether only blanks remain
    std::string_view text() const { return all; }  // the complete line, without its line end

    // Each of these removes what it returns.
    std::string_view word();  // the next word; "" at the end
    std::string_view rest();  // everything after the next character, a blank
    std::string filename();   // everything, without the blanks or quotes around it; fails if nothing remains
    std::string quoted();     // a text in quotes, with its escapes replaced; fails for anything else

    void expectend();  // fails if anything remains

  private:
    std::string_view all, left;
};

// Returns the text in quotes, with the escapes \" \\ \r \n.
std::string inquotes(std::string_view text);

}  // namespace tessaly
