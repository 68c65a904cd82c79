// Makes a palette from a list that people read and edit: after any text, a line a colour, "entry red green blue name".
// makepalette LIST FOLDER writes FOLDER/<name of the list>.pal, eight bytes an entry in the order of the list, in which
// the entries must stand by their numbers, from 1.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

// The record of a line, "" for text. Fails where the entry is not the next one, or the colour none.
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
    try {
        make(argv[1], argv[2]);
    } catch (const std::exception& failed) {
        std::fprintf(stderr, "makepalette: %s\n", failed.what());
        return 1;
    }
    return 0;
}
