// Text files, read sequentially or appended to. Each is open on a numbered channel, which holds one file at a time:
// channel 1 for element, scene and start files and for design files being written, channel 2 for design files and
// temporary files during a replay. Paths are written as users see them ("designs\girders1.txt"). systempath converts
// them: the first backslash ends the folder; any other backslash is part of the name.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

// Returns the path in the notation of the system, relative to the working folder.
std::string systempath(std::string_view path);

// Returns the current contents of a file; nothing is cached. Fails with file not found or file access error, the latter
// also if it is not a regular file or is larger than 64 MB. role: the role of the file, for reports.
std::string filebytes(std::string_view path, const char* role);

// The location of a field in its file; line and field count from 1.
struct fieldlocation {
    int line = 1, field = 1;
};

// A file open for reading. Its bytes are read into memory when it is opened.
struct textinput {
    std::string path;                 // as users see it
    std::string bytes;                // at the time of opening
    std::size_t position = 0;         // index of the next field's first byte
    fieldlocation nextlocation = {};  // of that field

    // "datah\st-post.txt, line 14, field 3", for reports.
    std::string location() const { return location(nextlocation); }
    std::string location(fieldlocation of) const;

    // Frees the channel. The object must not be used afterwards.
    void close();
};

// A file open for appending.
class textoutput {
  public:
    textoutput(std::string_view filepath, const char* role);  // see openappend
    ~textoutput();
    textoutput(const textoutput&) = delete;
    textoutput& operator=(const textoutput&) = delete;

    // Adds text to what close will write.
    void write(std::string_view text) { unwritten += text; }

    // Writes the text, completely or not at all, and frees the channel. Fails with file access error if it cannot be
    // written: the file is then cut back to its old length if possible, or deleted if this object created it. If
    // closing fails, the text may be in the file, and the report says so. The object must not be used afterwards.
    void close();

    const std::string path;
    bool created;  // by the constructor

  private:
    int handle;
    std::string unwritten;
};

// Opens path for reading on channel. Fails with file already open if the channel is in use, otherwise with file not
// found or file access error. role: the role of the file, for reports ("element file").
textinput& openinput(int channel, std::string_view path, const char* role);

// Opens path for appending on channel and creates it if it does not exist. Fails as openinput does.
textoutput& openappend(int channel, std::string_view path, const char* role);

// Returns the file open for reading on channel; fails with invalid call if there is none.
textinput& channelinput(int channel);

// Closes all channels and discards any text not written yet.
void resetchannels();

// Deletes a file; fails with file not found or file access error.
void deletefile(std::string_view path);

// The name under which replacefile (core/wholefile.h) writes a file until it is complete.
inline constexpr std::string_view unfinishedname = ".unfinished";

// Returns the names of the files in a folder, sorted, except a file named unfinishedname. Fails with file not
// found if the folder does not exist.
std::vector<std::string> filesin(std::string_view folder);

}  // namespace tessaly
