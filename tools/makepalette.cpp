// Generates a palette from an editable list of one line per colour: "entry red green blue name", with entries numbered
// 1, 2, 3 and so on. Ignores lines that do not begin with a number. makepalette LIST FOLDER writes FOLDER/<name of the
// list>.pal, with eight bytes per entry.
#include "tools/generator.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

// Returns the eight bytes of an entry, "" for a line that is not an entry. Fails if the number of the entry is not
// next, or if its colour is not valid.
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
    return tessaly::rungenerator(argc, "makepalette LIST FOLDER", [argv] { make(argv[1], argv[2]); });
}
