// Files that are written complete or not at all, such as the bitmaps of captures.
#pragma once

#include <string_view>

namespace tessaly {

// Writes bytes as the file at path (as users write it). They go to a file named unfinishedname (core/textfiles.h) in
// the same folder, which is renamed when it is complete. If anything fails, an existing file at path is unchanged. A
// file of that name that a killed process left is deleted first. An existing file is overwritten directly only if the
// folder refuses new names. If path is a symbolic link, the file to which it points is replaced. role: the role of the
// file, for reports ("picture"). Fails with file access error, also if path is not a regular file.
void replacefile(std::string_view path, std::string_view bytes, const char* role);

}  // namespace tessaly
