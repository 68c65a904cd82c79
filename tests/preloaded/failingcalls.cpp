// Preloaded into the player: makes one system call on a file in the folders of the working folder fail. Each call has
// several possible errors. They are counted from the start, and INJECTED is the number of the one that happens. It is
// announced on standard error.
#undef _FORTIFY_SOURCE  // its inline functions could not be defined here
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr int half = -1, halfandfull = -2;  // writes half of the bytes; after the second one the disk is full
bool diskfull = false;

std::string pathof(int handle) { return "/proc/self/fd/" + std::to_string(handle); }

// Returns whether this call fails, and sets errno to the error.
bool fails(const char* name, const std::string& path, std::initializer_list<int> errors) {
    static int calls = 0, left = std::atoi(std::getenv("INJECTED"));
    const fs::path file = fs::weakly_canonical(path).lexically_relative(fs::current_path());
    if (!file.has_parent_path() || *file.begin() == "..") return false;
    ++calls;
    for (const int error : errors) {
        if (--left != 0) continue;
        std::fprintf(stderr, "injected into call %d, %s %s: %d\n", calls, name, file.c_str(), error);
        errno = error;
        return true;
    }
    return false;
}

// Calls the original function unless the call fails.
template <class result, class... types>
result call(const char* name, const std::string& path, std::initializer_list<int> errors, types... given) {
    if (fails(name, path, errors)) return -1;
    return reinterpret_cast<result (*)(types...)>(dlsym(RTLD_NEXT, name))(given...);
}

}  // namespace

// clang-format off
extern "C" {

int open(const char* path, int flags, ...) {
    return call<int>("open", path, {EMFILE, EIO, EINTR, ENOSPC, EACCES}, path, flags, 0666);
}
int close(int handle) {
    const bool written = (fcntl(handle, F_GETFL) & O_ACCMODE) != O_RDONLY;
    if (fails(written ? "close written" : "close", pathof(handle), {EIO, EINTR})) return -1;
    return call<int>("close", "/", {}, handle);
}
ssize_t read(int handle, void* bytes, size_t count) {
    return call<ssize_t>("read", pathof(handle), {EIO, EINTR}, handle, bytes, count);
}
ssize_t write(int handle, const void* bytes, size_t count) {
    if (diskfull) return errno = ENOSPC, -1;
    const bool failed = fails("write", pathof(handle), {ENOSPC, EIO, EINTR, half, halfandfull});
    diskfull = failed && errno == halfandfull;
    if (failed && errno > 0) return -1;
    return call<ssize_t>("write", "/", {}, handle, bytes, failed ? count / 2 : count);
}
int ftruncate(int handle, off_t size) noexcept { return call<int>("ftruncate", pathof(handle), {EIO}, handle, size); }
int fstat(int handle, struct stat* found) noexcept { return call<int>("fstat", pathof(handle), {EIO}, handle, found); }
int rename(const char* from, const char* to) noexcept { return call<int>("rename", from, {EIO}, from, to); }
int unlink(const char* path) noexcept { return call<int>("unlink", path, {EIO}, path); }
int remove(const char* path) noexcept { return call<int>("remove", path, {EIO}, path); }

}
