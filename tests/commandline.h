// Command lines for the shell. All paths in them are quoted, because the project may be in a folder with any name.
#pragma once

#include <cstdlib>
#include <string>

#include <sys/wait.h>

namespace tessaly {

inline std::string shellquoted(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) quoted += c == '\'' ? "'\\''" : std::string(1, c);
    return quoted + "'";
}

inline const std::string playcommand = shellquoted(TESSALY_PLAY);

// Runs a command; returns its exit status, or -1 if a signal ended it.
inline int run(const std::string& command) {
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace tessaly
