// Text files, read sequentially or appended to. Each is open on a numbered channel, which holds one file at a time.
// Channel 1 is for element, scene and start files and for design files being written; channel 2 is for design files and
// temporary files during a replay. Paths are written as users see them ("designs\girders1.txt"). systempath converts
// them: the first backslash ends the folder; any other backslash is part of the name. role: the role of a file, for
// reports, such as "element file".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

// Returns the path in the notation of the system, relative to the working folder.
std::string systempath(std::string_view path);

// Returns the current contents of a file; nothing is cached. Fails with file not found or file access error, the latter
// also if it is not a regular file or is larger than 64 MB.
std::string filebytes(std::string_view path, const char* role);

// The location of a field in its file; line and field count from 1.
struct fieldlocation {
    int line = 1, field = 1;
};

// A file open for reading. Its bytes are read into memory when it is opened.
struct textinput {
    std::string path;                 // as users see it
    std::string bytes;                // of the complete file
    std::size_t position = 0;         // of the next field's first byte
    fieldlocation nextlocation = {};  // location of the next field

    // Return a location for reports, such as "datah\st-post.txt, line 14, field 3": of the next field, or of a given
    // one.
    std::string location() const { return location(nextlocation); }
    std::string location(fieldlocation field) const;

    // Frees the channel and destroys this object.
    void close();
};

// A file open for appending.
class textoutput {
  public:
    textoutput(std::string_view itspath, const char* role);  // see openappend
    ~textoutput();
    textoutput(const textoutput&) = delete;

    // Adds text to what close will write.
    void write(std::string_view text) { unwritten += text; }

    // Writes the text, completely or not at all, frees the channel and destroys this object. Fails with file access
    // error if the text cannot be written. The file is then cut back to its old length if possible, or deleted if this
    // object created it. If closing the file fails, the text may be in it, and the report says so.
    void close();

    const std::string path;
    bool created;  // by the constructor

  private:
    int handle;
    std::string unwritten;
};

// Opens a file for reading on a channel. Fails with file already open if the channel is in use, otherwise as filebytes
// does.
textinput& openinput(int channel, std::string_view path, const char* role);

// Opens a file for appending on a channel, and creates the file if it does not exist. Fails as openinput does.
textoutput& openappend(int channel, std::string_view path, const char* role);

// Returns the file open for reading on a channel. Fails with invalid call if there is none.
textinput& channelinput(int channel);

// Closes all channels and discards any text not written yet.
void resetchannels();

// Deletes a file. Fails with file not found or file access error.
void deletefile(std::string_view path);

// The name under which replacefile (core/wholefile.h) writes a file until it is complete.
inline constexpr std::string_view unfinishedname = ".unfinished";

// Returns the names of the files in a folder, sorted, except a file named unfinishedname. Fails with file not
// found if the folder does not exist.
std::vector<std::string> filesin(std::string_view folder);

}  // namespace tessaly
