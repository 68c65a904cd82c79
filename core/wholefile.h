// Files that are written complete or not at all, such as the bitmaps of captures.
#pragma once

#include <string_view>

namespace tessaly {

// Writes bytes as the file at path (as users write it). They go to a file named unfinishedname (core/textfiles.h) in
// the same folder, which is renamed when it is complete: if anything fails, an existing file at path is unchanged. A
// file of that name, left by a process that was killed, is deleted first. Only if the folder refuses new names is an
// existing file overwritten directly. If path is a symbolic link, the file it points to is replaced. what: the
// contents, for reports ("picture"). Fails with file access error, also if path is no regular file.
void replacefile(std::string_view path, std::string_view bytes, const char* what);

}  // namespace tessaly
