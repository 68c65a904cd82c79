// Replacing a file. The temporary name is short and fixed: every folder takes it, and a leftover is found.

#include "core/wholefile.h"

#include "core/failure.h"
#include "core/openflags.h"
#include "core/textfiles.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace tessaly {

namespace {

namespace fs = std::filesystem;

// The file that is to be replaced: the target if path is a symbolic link.
fs::path replacedfile(std::string_view path, std::error_code& error) {
    const fs::path file = systempath(path);
    std::error_code missing;
    return fs::is_symlink(file, missing) ? fs::weakly_canonical(file, error) : file;
}

// Opens a file for writing; returns -1 and sets errno if that fails.
int openforwriting(const fs::path& file, int flags) {
    return ::open(file.string().c_str(), O_WRONLY | flags | openflags, 0666);
}

// Returns why a file cannot be written, if it cannot.
std::error_code errorofopening(const fs::path& file) {
    const int handle = openforwriting(file, 0);
    if (handle < 0) return {errno, std::generic_category()};
    ::close(handle);
    return {};
}

// Writes bytes as the complete contents of the file behind handle and closes it. handle and errno: of openforwriting.
std::error_code writeandclose(int handle, std::string_view bytes) {
    int error = handle < 0 ? errno : 0;
    for (std::string_view left = bytes; error == 0 && !left.empty();) {
        const ssize_t written = ::write(handle, left.data(), static_cast<unsigned>(left.size()));
        if (written > 0)
            left.remove_prefix(static_cast<std::size_t>(written));
        else if (written == 0 || errno != EINTR)
            error = written == 0 ? ENOSPC : errno;
    }
    if (error == 0 && ::ftruncate(handle, static_cast<off_t>(bytes.size())) != 0) error = errno;
    if (handle >= 0 && ::close(handle) != 0 && error == 0 && errno != EINTR) error = errno;
    return {error, std::generic_category()};
}

// Writes bytes to a new file in file's folder and renames it to file.
std::error_code writeaside(const fs::path& file, std::string_view bytes) {
    const fs::path unfinished = file.parent_path() / unfinishedname;
    std::error_code ignored;
    fs::remove(unfinished, ignored);  // the leftover of a process that was killed
    const int handle = openforwriting(unfinished, O_CREAT | O_EXCL);
    std::error_code error = writeandclose(handle, bytes);
    if (!error) fs::rename(unfinished, file, error);
    if (error && handle >= 0) fs::remove(unfinished, ignored);
    return error;
}

bool refusesnames(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::read_only_file_system;
}

}  // namespace

void replacefile(std::string_view path, std::string_view bytes, const char* what) {
    std::error_code error, ignored;
    const fs::path file = replacedfile(path, error);
    const fs::file_status old = fs::status(file, ignored);
    if (fs::exists(old) && !fs::is_regular_file(old))  // opening a pipe could block
        throw failure(failurekind::fileaccess, "this is not a regular file", shortpath(path));
    if (!error && fs::exists(old)) error = errorofopening(file);
    if (!error) error = writeaside(file, bytes);
    if (fs::exists(old) && refusesnames(error)) error = writeandclose(openforwriting(file, 0), bytes);
    if (!error) return;
    throw failure(failurekind::fileaccess,
                  std::string("the ") + what + " could not be written completely: " + error.message(), shortpath(path));
}

}  // namespace tessaly
