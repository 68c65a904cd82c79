// Text files on numbered channels. If a text cannot be appended completely, the part that was written is removed, so
// that a design file never holds half a record.

#include "core/textfiles.h"

#include "core/failure.h"
#include "core/systemfiles.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <optional>
#include <utility>

#include <sys/stat.h>

namespace tessaly {

namespace {

struct channelstate {
    std::optional<textinput> input;
    std::optional<textoutput> output;
};

constexpr int lastchannel = 2;
constexpr std::size_t maxbytes = 64 << 20;  // of a file that is read
std::array<channelstate, lastchannel + 1> channels;

channelstate& channelof(int channel) { return channels.at(static_cast<std::size_t>(channel)); }

std::string filelocation(const std::string& path, const char* note) { return shortpath(path) + " (" + note + ")"; }

// Reports an error of the system. note: the role of the file, or what did not happen to it.
[[noreturn]] void systemfailure(const std::string& path, const char* note, int error) {
    const auto kind = error == ENOENT || error == ENOTDIR ? failurekind::filenotfound : failurekind::fileaccess;
    const std::string location = filelocation(path, note);
    const std::size_t folderend = path.find('\\');
    std::error_code ignored;
    if (kind == failurekind::filenotfound && folderend != std::string::npos) {
        const std::string folder = path.substr(0, folderend);
        if (!std::filesystem::is_directory(folder, ignored))
            throw failure(kind, "the folder " + folder + " is missing", location, "make it");
    }
    throw failure(kind, error == ENOENT ? "this file does not exist" : std::strerror(error), location);
}

void expectfree(int channel, std::string_view path) {
    const channelstate& c = channelof(channel);
    if (!c.input && !c.output) return;
    const std::string& openpath = c.input ? c.input->path : c.output->path;
    throw failure(failurekind::filealreadyopen,
                  shortpath(openpath) + " is still open on channel " + std::to_string(channel), shortpath(path));
}

// Opens a regular file. Anything else is refused: a pipe may block, and a device may never end.
int openregular(const std::string& path, const char* role, int flags) {
    const int handle = ::open(systempath(path).c_str(), flags | openflags, 0666);
    struct stat s {};
    if (handle >= 0 && ::fstat(handle, &s) == 0 && S_ISREG(s.st_mode)) return handle;
    const int error = handle < 0 ? errno : ENXIO;
    if (handle >= 0) ::close(handle);
    if (error != ENXIO) systemfailure(path, role, error);  // a pipe without a reader also gives ENXIO
    throw failure(failurekind::fileaccess, "this is not a regular file", filelocation(path, role), "move it away");
}

// Reads to the end of the file, or stops slightly beyond maxbytes. Returns 0 or the error number.
int readwhole(int handle, std::string& bytes) {
    char block[1 << 16];
    while (bytes.size() <= maxbytes) {
        const auto count = ::read(handle, block, sizeof block);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return count < 0 ? errno : 0;
        bytes.append(block, static_cast<std::size_t>(count));
    }
    return 0;
}

// Appends text to a file. If that fails, tries to restore the length of the file. Returns 0 or the error number; sets
// changed to whether the file may have changed.
int append(int handle, std::string_view text, bool& changed) {
    changed = false;
    struct stat before {};
    if (::fstat(handle, &before) != 0) return errno;
    std::string_view unwritten = text;
    const int error = writeall(handle, unwritten);
    const bool wrote = unwritten.size() < text.size();
    changed = wrote && (error == 0 || ::ftruncate(handle, before.st_size) != 0);
    return error;
}

}  // namespace

std::string systempath(std::string_view path) {
    std::string result(path);
    const std::size_t folderend = result.find('\\');
    if (folderend != std::string::npos) result[folderend] = '/';
    return result;
}

std::string textinput::location(fieldlocation field) const {
    return shortpath(path) + ", line " + std::to_string(field.line) + ", field " + std::to_string(field.field);
}

void textinput::close() {
    for (channelstate& c : channels)
        if (c.input && &*c.input == this) return c.input.reset();
}

std::string filebytes(std::string_view path, const char* role) {
    const std::string name(path);
    const int handle = openregular(name, role, O_RDONLY);
    struct stat s {};
    int error = ::fstat(handle, &s) == 0 ? 0 : errno;
    const auto size = static_cast<std::size_t>(s.st_size);
    std::string bytes;
    if (error == 0 && size <= maxbytes) error = readwhole(handle, bytes);
    ::close(handle);
    if (error != 0) systemfailure(name, role, error);
    const std::size_t foundbytes = std::max(size, bytes.size());
    if (foundbytes <= maxbytes) return bytes;
    throw failure(failurekind::fileaccess,
                  "the file has " + std::to_string(foundbytes) + " bytes, at most " + std::to_string(maxbytes) +
                      " were expected",
                  filelocation(name, role), "move it away, or split it");
}

textinput& openinput(int channel, std::string_view path, const char* role) {
    expectfree(channel, path);
    return channelof(channel).input.emplace(textinput{std::string(path), filebytes(path, role)});
}

textoutput& openappend(int channel, std::string_view path, const char* role) {
    expectfree(channel, path);
    return channelof(channel).output.emplace(path, role);
}

textoutput::textoutput(std::string_view itspath, const char* role) : path(itspath) {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);  // exceeding the file size limit then fails the write instead of ending the process
#endif
    constexpr int flags = O_WRONLY | O_APPEND | O_CREAT;
    handle = ::open(systempath(path).c_str(), flags | O_EXCL | openflags, 0666);
    created = handle >= 0;
    if (created) return;
    if (errno != EEXIST) systemfailure(path, role, errno);  // a second try could create the file unnoticed
    handle = openregular(path, role, flags);
}

textoutput::~textoutput() {
    if (handle >= 0) ::close(handle);
}

void textoutput::close() {
    bool changed = false;
    int error = append(handle, unwritten, changed);
    error = closewith(error, std::exchange(handle, -1));
    if (error != 0 && created && !changed) ::unlink(systempath(path).c_str());
    const std::string closedpath = path;
    for (channelstate& c : channels)
        if (c.output && &*c.output == this) c.output.reset();
    if (error != 0)
        systemfailure(closedpath,
                      changed ? "could not be written completely: look at the end of the file"
                              : "could not be written, it is unchanged",
                      error);
}

textinput& channelinput(int channel) {
    channelstate& c = channelof(channel);
    if (!c.input)
        throw failure(failurekind::invalidcall, "channel " + std::to_string(channel) + " is not open for reading");
    return *c.input;
}

void resetchannels() {
    for (channelstate& c : channels) {
        c.input.reset();
        c.output.reset();
    }
}

void deletefile(std::string_view path) {
    if (::unlink(systempath(path).c_str()) != 0) systemfailure(std::string(path), "could not be deleted", errno);
}

std::vector<std::string> filesin(std::string_view folder) {
    std::error_code error;
    std::vector<std::string> names;
    std::filesystem::directory_iterator files(systempath(folder), error), end;
    for (; !error && files != end; files.increment(error)) {
        const std::string name = files->path().filename().string();
        std::error_code ignored;
        if (name != unfinishedname && !files->is_directory(ignored)) names.push_back(name);
    }
    if (error) systemfailure(std::string(folder), "folder", error.value());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace tessaly
