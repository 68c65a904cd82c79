// Command lines for the shell. Every path in one is quoted: the project may lie in a folder of any name.
#pragma once

#include <string>

namespace tessaly {

inline std::string shellquoted(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) quoted += c == '\'' ? "'\\''" : std::string(1, c);
    return quoted + "'";
}

inline const std::string playcommand = shellquoted(TESSALY_PLAY);

}  // namespace tessaly
