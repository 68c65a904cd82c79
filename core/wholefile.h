// Replacing a file by a complete new one, such as the bitmap of a capture.
#pragma once

#include <string_view>

namespace tessaly {

// Writes bytes as the file at path (as users write it). They go to a file named unfinishedname (core/textfiles.h) in
// the same folder, which is renamed when it is complete. If that fails, an existing file at path is unchanged. Only if
// the folder refuses new names is an existing file overwritten directly. A file named unfinishedname that a killed
// process left is deleted first. If path is a symbolic link, the file to which it points is replaced. role: the role of
// the file, for reports ("picture"). Fails with file access error, for example if path is not a regular
// file.
void replacefile(std::string_view path, std::string_view bytes, const char* role);

}  // namespace tessaly
