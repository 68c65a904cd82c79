// Runs the program with random inputs. A play file of this folder, named by the environment variable TESSALY_FUZZ,
// defines the target. Each of its paragraphs uses the input in another way, and the input's length selects one. The
// program plays the lines of the paragraph. These lines use the input:
//   # input FILE     writes the input to this file
//   # script FILE    appends the input to the sections of this element file, as its script
//   # played         plays the input's lines, except those that no user could carry out or that name another folder
// Every input may end in a failure. Anything else is a finding: a crash, a sanitizer's report, another exception, or
// more than two seconds of work.

#include "core/failure.h"
#include "core/textfiles.h"
#include "player/commands.h"
#include "tools/workingfolder.h"
#include "windows/handlers.h"

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

namespace {

using namespace tessaly;
namespace fs = std::filesystem;

void write(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

// Returns the files of the working folder before each input. Elements have a single face and the scene only its axes,
// so that a start takes little time.
std::map<fs::path, std::string> filesatstart() {
    static const workingfolder folder(TESSALY_SOURCE_DIR);
    const std::string face = filebytes(TESSALY_SOURCE_DIR "/fuzz/face.txt", "element");
    const std::string axes = filebytes("datah\\st-axes.txt", "scene");
    std::map<fs::path, std::string> files;
    for (const char* shipped : {"datah", "pals"})
        for (const auto& file : fs::directory_iterator(shipped)) {
            const std::string name = file.path().filename().string();
            files[file] = name.starts_with("st-") ? face : filebytes(file.path().string(), "shipped file");
        }
    for (const char* scene : {"datah/st-axes.txt", "datah/st-grid.txt", "datah/st-land.txt"}) files[scene] = axes;
    files["designs/girders1.txt"] = "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n";
    files["bmps/view.txt"] = "\"1850\",\"-1850\",\"830\",\"0\",\"0\",\"280\",\"0.056\",\"170\",\"-270\"\r\n";
    return files;
}

void startanew() {
    static const std::map<fs::path, std::string> files = filesatstart();
    for (const char* folder : {"designs", "bmps", "nonuser", "datah", "pals"}) {
        fs::remove_all(folder);
        fs::create_directory(folder);
    }
    for (const auto& [path, bytes] : files) write(path, bytes);
    static raster picture(90, 58);  // a tenth as wide and high as viewport: clearing that took half of each run
    picture.clear();
    viewportsurface = &picture;
    progresssurface = &playedstrip;
    startprogram();
}

// Returns whether a text, as part of a file name, could lead out of the working folder. Inputs must change nothing
// outside it.
bool leavesfolder(const std::string& text) { return text.find("..") != text.npos || text.find('/') != text.npos; }

void playinput(std::istream& input) {
    for (std::string line; !programended && std::getline(input, line);) {
        try {
            if (!leavesfolder(line)) playline(line);
        } catch (const scripterror&) {
        }
    }
    playedsurface.endlog();
}

std::string sections(const std::string& element) { return element.substr(0, element.rfind("TRAN")); }

void play(const std::string& variant, const std::string& input) {
    std::istringstream lines(variant), inputlines(input);
    for (std::string line, command, name; std::getline(lines, line);) {
        std::istringstream(line).ignore(2) >> command >> name;
        if (!line.starts_with('#')) playline(line);
        if (line.starts_with("# input")) write(name, input);
        if (line.starts_with("# script")) write(name, sections(filebytes(name, "element")) + input);
        if (line == "# played") playinput(inputlines);
    }
}

// Returns the paragraphs of the play file.
std::vector<std::string> readvariants() {
    std::vector<std::string> variants(1);
    std::ifstream file(std::getenv("TESSALY_FUZZ"));
    for (std::string line; std::getline(file, line);)
        if (line.empty())
            variants.emplace_back();
        else
            variants.back() += line + '\n';
    return variants;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const std::vector<std::string> variants = readvariants();
    // Processor time, because on a busy machine more time passes.
    constexpr std::clock_t maxwork = 2 * CLOCKS_PER_SEC;
    const std::clock_t before = std::clock();
    try {
        startanew();
        play(variants[size % variants.size()], std::string(bytes, bytes + size));
    } catch (const failure&) {
    }
    if (std::clock() - before > maxwork) throw std::runtime_error("an input took more than 2 s of processor time");
    return 0;
}
