// The flags with which the program opens every file.
#pragma once

#include <fcntl.h>

namespace tessaly {

#ifdef _WIN32  // without O_BINARY, line ends would be converted
inline constexpr int openflags = O_BINARY | O_NOINHERIT;
#else
inline constexpr int openflags = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
#endif

}  // namespace tessaly
