// Preloaded into the player: one system call on a file of the working folder fails. INJECTED is "CALL FAILING": the
// number of the call and which of its failings. The failure is announced on standard error as "injected NAME ERROR
// PATH".
#undef _FORTIFY_SOURCE  // its inline functions could not be defined here
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Failings that are no error number: half of the bytes are written, and the disk is full after that.
constexpr int half = -1, halfandfull = -2;
bool diskfull = false;

std::string& pathof(int handle) {
    static auto& paths = *new std::map<int, std::string>;  // never destroyed: files are closed until the very end
    return paths[handle];
}

// Returns whether this call is the one that fails, and sets errno to its failing.
bool injects(const char* name, const std::string& path, std::initializer_list<int> failings) {
    static int calls = 0, call = 0, failing = 0;
    if (call == 0) std::sscanf(std::getenv("INJECTED"), "%d %d", &call, &failing);
    if (path.empty() || path[0] == '/' || ++calls != call || failing >= static_cast<int>(failings.size())) return false;
    std::fprintf(stderr, "injected %s %d %s\n", name, failings.begin()[failing], path.c_str());
    errno = failings.begin()[failing];
    return true;
}

template <class function>
function* original(const char* name) {
    return reinterpret_cast<function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// clang-format off
extern "C" {

int open(const char* path, int flags, ...) {
    if (injects("open", path, {EMFILE, EIO, EINTR, ENOSPC, EACCES})) return -1;
    const int handle = original<int(const char*, int, ...)>("open")(path, flags, 0666);
    if (handle >= 0) pathof(handle) = path;
    return handle;
}
int close(int handle) {
    const int closed = original<int(int)>("close")(handle);
    return injects("close", std::exchange(pathof(handle), {}), {EIO, EINTR}) ? -1 : closed;
}
ssize_t write(int handle, const void* bytes, size_t count) {
    const auto write = original<ssize_t(int, const void*, size_t)>("write");
    if (diskfull) return errno = ENOSPC, -1;
    if (!injects("write", pathof(handle), {ENOSPC, EIO, EINTR, half, halfandfull})) return write(handle, bytes, count);
    diskfull = errno == halfandfull;
    return errno < 0 ? write(handle, bytes, count / 2) : -1;
}
ssize_t read(int handle, void* bytes, size_t count) {
    if (injects("read", pathof(handle), {EIO, EINTR})) return -1;
    return original<ssize_t(int, void*, size_t)>("read")(handle, bytes, count);
}
int ftruncate(int handle, off_t size) noexcept {
    return injects("ftruncate", pathof(handle), {EIO}) ? -1 : original<int(int, off_t)>("ftruncate")(handle, size);
}
int fstat(int handle, struct stat* found) noexcept {
    return injects("fstat", pathof(handle), {EIO}) ? -1 : original<int(int, struct stat*)>("fstat")(handle, found);
}
int rename(const char* from, const char* to) noexcept {
    return injects("rename", from, {EIO}) ? -1 : original<int(const char*, const char*)>("rename")(from, to);
}
int unlink(const char* path) noexcept {
    return injects("unlink", path, {EIO}) ? -1 : original<int(const char*)>("unlink")(path);
}
int remove(const char* path) noexcept {
    return injects("remove", path, {EIO}) ? -1 : original<int(const char*)>("remove")(path);
}
DIR* opendir(const char* path) {
    return injects("opendir", path, {EMFILE}) ? nullptr : original<DIR*(const char*)>("opendir")(path);
}

}
