// Numbered channels: sequential text files as the building set uses them. Channel 1 serves element, scene and start
// files and design files being written; channel 2 a design file during replay and its temporary files.
// Paths are written as users know them ("designs\girders1.txt") and go through one procedure here: the first backslash
// ends the folder, and in the name behind it a backslash is a letter like any other, as it is on this system.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

// The path as this system opens it, relative to the working folder.
std::string systempath(std::string_view path);

// The bytes of a file as they stand on disk now: nothing is kept from an earlier reading. Fails with file not found,
// with file access error also where it is no regular file or has more than 64 MB.
std::string filebytes(std::string_view path, const char* what);

// The system's handle of a file, open for reading, which is the caller's to close. Fails with file not found, with file
// access error also where it is no regular file: a pipe may never answer, a device never end.
int openfile(std::string_view path, const char* what);

// A file open for reading, held whole.
struct textinput {
    std::string path;    // as users know it
    std::string bytes;   // as they stood when it was opened
    std::size_t at = 0;  // where the next field begins; line and field count from 1
    int line = 1, field = 1;

    // "datah\st-post.txt, line 14, field 3", for reports.
    std::string location() const { return location(line, field); }
    std::string location(int atline, int atfield) const;
};

// Opens path for reading on channel. Fails with file already open where the channel is in use, with file not found,
// with file access error. what: the role of the file, for reports ("element file").
void openinput(int channel, std::string_view path, const char* what);

// Opens path for appending on channel, creating it if need be. Fails like openinput.
void openappend(int channel, std::string_view path, const char* what);

// Adds text to what the append channel will write.
void writetext(int channel, std::string_view text);

// Closes channel. An append channel's text reaches the file here, whole or not at all: where it cannot be written the
// file is put back to its length (one that the opening created goes) and the failure is file access error. Closing a
// closed channel does nothing.
void closechannel(int channel);

// The input open on channel; fails with invalid call where there is none.
textinput& channelinput(int channel);

// Closes all channels and forgets unwritten text.
void resetchannels();

// Deletes a file; fails with file not found or file access error.
void deletefile(std::string_view path);

// The bare names of the visible files of a folder, sorted; fails with file not found where there is no such folder.
std::vector<std::string> filesin(std::string_view folder);

}  // namespace tessaly
