// Splits a line of a script into words, quoted texts and file names. If the line does not have the part that its
// command needs, scripterror is thrown, which the player reports with the number of the line.
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
    // The line, which may include its line end, must outlive this object.
    explicit scriptline(std::string_view line);

    bool atend();                                       // whether only blanks remain
    std::string_view text() const { return complete; }  // the complete line, without its line end

    // Each of these returns the next part of the line and removes it.
    std::string_view takeword();  // a word; "" at the end of the line
    std::string_view takerest();  // all that remains, without the blank before it
    std::string takefilename();   // all that remains, without blanks or quotes around it; fails if it is empty
    std::string takequoted();     // a text in quotes, with its escapes replaced; fails for anything else

    void expectend();  // fails if anything remains

  private:
    std::string_view complete, remaining;
};

// Returns the text between double quotes. In it, a quote, backslash, CR or LF is written as \" \\ \r or \n.
std::string inquotes(std::string_view text);

}  // namespace tessaly
