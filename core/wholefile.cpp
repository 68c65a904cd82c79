// The temporary name is short and always the same, so that every folder accepts it and a file that a killed process
// left is found.

#include "core/wholefile.h"

#include "core/failure.h"
#include "core/systemfiles.h"
#include "core/textfiles.h"

#include <filesystem>
#include <system_error>

namespace tessaly {

namespace {

namespace fs = std::filesystem;

// Returns the file to replace: the target if path is a symbolic link.
fs::path replacedfile(std::string_view path, std::error_code& error) {
    const fs::path file = systempath(path);
    std::error_code ignored;
    return fs::is_symlink(file, ignored) ? fs::weakly_canonical(file, error) : file;
}

// Opens a file and writes bytes as its complete contents.
std::error_code writefile(const fs::path& file, int flags, std::string_view bytes) {
    const int handle = ::open(file.string().c_str(), O_WRONLY | flags | openflags, 0666);
    if (handle < 0) return {errno, std::generic_category()};
    std::string_view unwritten = bytes;
    int error = writeall(handle, unwritten);
    if (error == 0 && ::ftruncate(handle, static_cast<off_t>(bytes.size())) != 0) error = errno;
    return {closewith(error, handle), std::generic_category()};
}

// Writes bytes to a new file in file's folder and renames it to file.
std::error_code writeaside(const fs::path& file, std::string_view bytes) {
    const fs::path unfinished = file.parent_path() / unfinishedname;
    std::error_code ignored;
    fs::remove(unfinished, ignored);
    std::error_code error = writefile(unfinished, O_CREAT | O_EXCL, bytes);
    if (!error) fs::rename(unfinished, file, error);
    if (error) fs::remove(unfinished, ignored);
    return error;
}

bool refusesnames(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::read_only_file_system;
}

}  // namespace

void replacefile(std::string_view path, std::string_view bytes, const char* role) {
    std::error_code error, ignored;
    const fs::path file = replacedfile(path, error);
    const fs::file_status old = fs::status(file, ignored);
    if (fs::exists(old) && !fs::is_regular_file(old))  // opening a pipe could block
        throw failure(failurekind::fileaccess, "this is not a regular file", shortpath(path));
    if (!error && fs::exists(old) && ::access(file.string().c_str(), W_OK) != 0)
        error = {errno, std::generic_category()};
    if (!error) error = writeaside(file, bytes);
    if (fs::exists(old) && refusesnames(error)) error = writefile(file, 0, bytes);
    if (!error) return;
    throw failure(failurekind::fileaccess,
                  std::string("the ") + role + " could not be written completely: " + error.message(), shortpath(path));
}

}  // namespace tessaly
