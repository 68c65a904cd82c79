// Generates a palette from an editable list: any text, then one line per colour, "entry red green blue name".
// makepalette LIST FOLDER writes FOLDER/<name of the list>.pal with eight bytes per entry. The entries of the list must
// be numbered 1, 2, 3 and so on.
#include "tools/generator.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

// Returns the eight bytes of a line, "" for a line of text. Fails if the entry is not number next, or is no colour.
std::string record(const std::string& line, int next) {
    std::istringstream fields(line);
    int entry, red, green, blue;
    if (!(fields >> entry)) return "";
    if (entry != next) throw std::runtime_error("entry " + std::to_string(next) + " was expected: " + line);
    fields >> red >> green >> blue;
    std::string bytes(2, '\0');
    for (const int component : {blue, green, red}) {
        if (!fields || component < 0 || component > 255)
            throw std::runtime_error("red, green and blue, 0 to 255, were expected: " + line);
        bytes += {static_cast<char>(component), '\0'};
    }
    return bytes;
}

void make(const std::filesystem::path& list, const std::filesystem::path& folder) {
    std::ifstream in(list);
    if (!in) throw std::runtime_error("no such file: " + list.string());
    std::ofstream out(folder / list.stem().concat(".pal"), std::ios::binary);
    out.exceptions(std::ios::failbit | std::ios::badbit);
    int next = 1;
    for (std::string line; std::getline(in, line);) {
        const std::string bytes = record(line, next);
        out << bytes;
        next += !bytes.empty();
    }
    out.flush();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: makepalette LIST FOLDER\n", stderr);
        return 2;
    }
    return tessaly::generate("makepalette", [argv] { make(argv[1], argv[2]); });
}
