// Files that are written complete or not at all, such as the bitmaps of captures.
#pragma once

#include <string_view>

namespace tessaly {

// The name under which replacefile writes, in the folder of its target. A process that is killed may leave such a file;
// the next replacefile in that folder deletes it.
inline constexpr std::string_view unfinishedname = ".unfinished";

// Writes bytes as the file at path (as users write it). They go to a file named unfinishedname first, which is renamed
// when it is complete: if anything fails, an existing file at path is unchanged. Only if the folder refuses new names
// is an existing file overwritten directly. If path is a symbolic link, the file it points to is replaced. what: the
// contents, for reports ("picture"). Fails with file access error, also if path is no regular file.
void replacefile(std::string_view path, std::string_view bytes, const char* what);

}  // namespace tessaly
