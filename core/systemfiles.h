// Opening and writing files through the system, for core/textfiles and core/wholefile.
#pragma once

#include <cerrno>
#include <cstddef>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

namespace tessaly {

// The flags with which the program opens every file.
#ifdef _WIN32  // without O_BINARY, line ends would be converted
inline constexpr int openflags = O_BINARY | O_NOINHERIT;
#else
inline constexpr int openflags = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
#endif

// Writes all bytes to an open file and removes from bytes those that were written. Returns 0 or the error number.
inline int writeall(int handle, std::string_view& bytes) {
    while (!bytes.empty()) {
        const auto written = ::write(handle, bytes.data(), static_cast<unsigned>(bytes.size()));
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (written == 0 || errno != EINTR)
            return written == 0 ? ENOSPC : errno;
    }
    return 0;
}

// Closes a file. Returns error if it is an error number, otherwise 0 or the error number of closing.
inline int closewith(int error, int handle) {
    const bool failed = ::close(handle) != 0 && errno != EINTR;
    return error == 0 && failed ? errno : error;
}

}  // namespace tessaly
