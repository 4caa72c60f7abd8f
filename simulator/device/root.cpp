#include "device/root.h"

#include "device/conditions.h"
#include "device/next_function.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/time.h>
#include <sys/uio.h>
#include <unistd.h>
#include <utime.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <deque>

namespace simulator {
namespace {

// Everything of a device that this machine's own files do not need.
constexpr std::string_view devicePrefixes[] = {"/var",    "/private/var",  "/Library",
                                               "/System", "/Applications", "/usr/lib/librocketbootstrap"};

// Replaced as a whole, never changed or freed: other threads may be reading it.
std::atomic<const std::string*> mounted = nullptr;

bool isBelow(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

bool belongsToDevice(std::string_view path) {
    return std::ranges::any_of(devicePrefixes, [&](std::string_view prefix) {
        return prefix.ends_with("bootstrap") ? path.starts_with(prefix) : isBelow(path, prefix);
    });
}

// Both spellings of a path on the device mean the same file.
std::string_view withoutPrivate(std::string_view path) {
    constexpr std::string_view prefix = "/private";
    return path.starts_with("/private/var") ? path.substr(prefix.size()) : path;
}

bool lists(const std::vector<std::string>& paths, std::string_view path) {
    return std::ranges::any_of(paths, [&](const std::string& listed) {
        return isBelow(withoutPrivate(path), withoutPrivate(listed));
    });
}

// A file relative to the device's root folder is a file of the device too.
std::string devicePathOf(std::string_view path) {
    const std::string* folder = mounted;
    if (folder == nullptr) return {};
    const std::string root = *folder + "/root";
    return isBelow(path, root) ? std::string(path.substr(root.size())) : std::string();
}

std::string absolute(const char* path) {
    if (path[0] == '/') return path;
    char here[4096];
    return getcwd(here, sizeof here) == nullptr ? std::string(path) : std::string(here) + "/" + path;
}

// A path argument, resolved. Where a fault says that the file is missing, it resolves to where nothing is.
class Path {
  public:
    Path(const char* given) : m_given(given) {
        if (given == nullptr || mounted.load() == nullptr) return;
        m_resolved = linuxPath(given);
        m_devicePath = devicePathOf(absolute(m_resolved.c_str()));
        if (!m_devicePath.empty() && lists(currentConditions()->faults.missing, m_devicePath))
            m_resolved = *mounted.load() + "/root/nowhere/nothing";
    }

    operator const char*() const { return m_resolved.empty() ? m_given : m_resolved.c_str(); }
    const std::string& resolved() const { return m_resolved; }
    bool isOnDevice() const { return !m_devicePath.empty(); }
    bool isUnreadable() const {
        return isOnDevice() && lists(currentConditions()->faults.unreadable, m_devicePath);
    }

  private:
    const char* m_given;
    std::string m_resolved;
    std::string m_devicePath;
};

bool diskIsFull() { return mounted.load() != nullptr && currentConditions()->faults.diskFull; }

bool descriptorIsOnFullDisk(int descriptor) {
    if (!diskIsFull()) return false;
    char target[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length =
        nextFunction<"readlink", decltype(readlink)>()(link.c_str(), target, sizeof target);
    return length > 0 && !devicePathOf({target, static_cast<std::size_t>(length)}).empty();
}

bool opensForReading(int flags) { return (flags & O_ACCMODE) != O_WRONLY; }
bool takesMode(int flags) { return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE; }

template <class Result> Result failing(int error, Result result) {
    errno = error;
    return result;
}

template <FunctionName name> int openNext(const char* given, int flags, mode_t mode) {
    const Path path(given);
    if (path.isUnreadable() && opensForReading(flags)) return failing(EACCES, -1);
    return nextFunction<name, int(const char*, int, ...)>()(path, flags, mode);
}

template <FunctionName name> int openAtNext(int folder, const char* given, int flags, mode_t mode) {
    const Path path(given);
    if (path.isUnreadable() && opensForReading(flags)) return failing(EACCES, -1);
    return nextFunction<name, int(int, const char*, int, ...)>()(folder, path, flags, mode);
}

template <FunctionName name> FILE* openStreamNext(const char* given, const char* mode) {
    const Path path(given);
    if (path.isUnreadable() && std::strpbrk(mode, "r+") != nullptr) return failing<FILE*>(EACCES, nullptr);
    return nextFunction<name, FILE*(const char*, const char*)>()(path, mode);
}

// The template is the caller's to read afterwards: the letters chosen for its end are copied back.
template <FunctionName name> int makeTemporaryNext(char* givenTemplate) {
    const Path path(givenTemplate);
    std::string resolved(static_cast<const char*>(path));
    const int descriptor = nextFunction<name, int(char*)>()(resolved.data());
    const std::size_t length = std::strlen(givenTemplate);
    const std::size_t chosen = std::min<std::size_t>(length, 6);
    std::memcpy(givenTemplate + length - chosen, resolved.data() + resolved.size() - chosen, chosen);
    return descriptor;
}

} // namespace

void mountDevice(const std::filesystem::path& folder) {
    static auto* everMounted = new std::deque<std::string>;
    if (folder.empty())
        mounted = nullptr;
    else
        mounted = &everMounted->emplace_back(std::filesystem::absolute(folder).lexically_normal().string());
}

std::filesystem::path mountedDevice() {
    const std::string* folder = mounted;
    return folder == nullptr ? std::filesystem::path() : std::filesystem::path(*folder);
}

std::string linuxPath(std::string_view path) {
    const std::string* folder = mounted;
    if (folder == nullptr || !belongsToDevice(path) || isBelow(path, *folder)) return std::string(path);
    return *folder + "/root" + std::string(path);
}

} // namespace simulator

// The C library's functions, with the path resolved first. Exceptions of the standard library end the process
// here, as these functions cannot report them.
using simulator::nextFunction;
using simulator::Path;

#define SIMULATOR_MODE_ARGUMENT(flags)                                                                       \
    mode_t mode = 0;                                                                                         \
    if (simulator::takesMode(flags)) {                                                                       \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        mode = va_arg(arguments, mode_t);                                                                    \
        va_end(arguments);                                                                                   \
    }

extern "C" {

int open(const char* path, int flags, ...) {
    SIMULATOR_MODE_ARGUMENT(flags)
    return simulator::openNext<"open">(path, flags, mode);
}
int open64(const char* path, int flags, ...) {
    SIMULATOR_MODE_ARGUMENT(flags)
    return simulator::openNext<"open64">(path, flags, mode);
}
int openat(int folder, const char* path, int flags, ...) {
    SIMULATOR_MODE_ARGUMENT(flags)
    return simulator::openAtNext<"openat">(folder, path, flags, mode);
}
int openat64(int folder, const char* path, int flags, ...) {
    SIMULATOR_MODE_ARGUMENT(flags)
    return simulator::openAtNext<"openat64">(folder, path, flags, mode);
}
int creat(const char* path, mode_t mode) {
    return nextFunction<"creat", decltype(creat)>()(Path(path), mode);
}
int creat64(const char* path, mode_t mode) {
    return nextFunction<"creat64", decltype(creat64)>()(Path(path), mode);
}
FILE* fopen(const char* path, const char* mode) { return simulator::openStreamNext<"fopen">(path, mode); }
FILE* fopen64(const char* path, const char* mode) { return simulator::openStreamNext<"fopen64">(path, mode); }
int mkstemp(char* givenTemplate) { return simulator::makeTemporaryNext<"mkstemp">(givenTemplate); }
int mkstemp64(char* givenTemplate) { return simulator::makeTemporaryNext<"mkstemp64">(givenTemplate); }

int stat(const char* path, struct stat* result) noexcept {
    return nextFunction<"stat", decltype(stat)>()(Path(path), result);
}
int stat64(const char* path, struct stat64* result) noexcept {
    return nextFunction<"stat64", decltype(stat64)>()(Path(path), result);
}
int lstat(const char* path, struct stat* result) noexcept {
    return nextFunction<"lstat", decltype(lstat)>()(Path(path), result);
}
int lstat64(const char* path, struct stat64* result) noexcept {
    return nextFunction<"lstat64", decltype(lstat64)>()(Path(path), result);
}
int fstatat(int folder, const char* path, struct stat* result, int flags) noexcept {
    return nextFunction<"fstatat", decltype(fstatat)>()(folder, Path(path), result, flags);
}
int fstatat64(int folder, const char* path, struct stat64* result, int flags) noexcept {
    return nextFunction<"fstatat64", decltype(fstatat64)>()(folder, Path(path), result, flags);
}
int statvfs(const char* path, struct statvfs* result) noexcept {
    return nextFunction<"statvfs", decltype(statvfs)>()(Path(path), result);
}
int access(const char* given, int mode) noexcept {
    const Path path(given);
    if ((mode & R_OK) != 0 && path.isUnreadable()) return simulator::failing(EACCES, -1);
    return nextFunction<"access", decltype(access)>()(path, mode);
}
int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    return nextFunction<"faccessat", decltype(faccessat)>()(folder, Path(path), mode, flags);
}
int mkdir(const char* given, mode_t mode) noexcept {
    const Path path(given);
    if (path.isOnDevice() && simulator::diskIsFull()) return simulator::failing(ENOSPC, -1);
    return nextFunction<"mkdir", decltype(mkdir)>()(path, mode);
}
int rmdir(const char* path) noexcept { return nextFunction<"rmdir", decltype(rmdir)>()(Path(path)); }
int unlink(const char* path) noexcept { return nextFunction<"unlink", decltype(unlink)>()(Path(path)); }
int unlinkat(int folder, const char* path, int flags) noexcept {
    return nextFunction<"unlinkat", decltype(unlinkat)>()(folder, Path(path), flags);
}
int remove(const char* path) noexcept { return nextFunction<"remove", decltype(remove)>()(Path(path)); }
int rename(const char* from, const char* to) noexcept {
    return nextFunction<"rename", decltype(rename)>()(Path(from), Path(to));
}
int link(const char* from, const char* to) noexcept {
    return nextFunction<"link", decltype(link)>()(Path(from), Path(to));
}
int symlink(const char* target, const char* path) noexcept {
    return nextFunction<"symlink", decltype(symlink)>()(target, Path(path));
}
ssize_t readlink(const char* path, char* target, std::size_t size) noexcept {
    return nextFunction<"readlink", decltype(readlink)>()(Path(path), target, size);
}
char* realpath(const char* path, char* resolved) noexcept {
    return nextFunction<"realpath", decltype(realpath)>()(Path(path), resolved);
}
int chmod(const char* path, mode_t mode) noexcept {
    return nextFunction<"chmod", decltype(chmod)>()(Path(path), mode);
}
int chown(const char* path, uid_t owner, gid_t group) noexcept {
    return nextFunction<"chown", decltype(chown)>()(Path(path), owner, group);
}
int truncate(const char* path, off_t length) noexcept {
    return nextFunction<"truncate", decltype(truncate)>()(Path(path), length);
}
int utime(const char* path, const struct utimbuf* times) noexcept {
    return nextFunction<"utime", decltype(utime)>()(Path(path), times);
}
int utimes(const char* path, const struct timeval times[2]) noexcept {
    return nextFunction<"utimes", decltype(utimes)>()(Path(path), times);
}
int utimensat(int folder, const char* path, const struct timespec times[2], int flags) noexcept {
    return nextFunction<"utimensat", decltype(utimensat)>()(folder, Path(path), times, flags);
}
DIR* opendir(const char* path) { return nextFunction<"opendir", decltype(opendir)>()(Path(path)); }
int chdir(const char* path) noexcept { return nextFunction<"chdir", decltype(chdir)>()(Path(path)); }

ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    if (simulator::descriptorIsOnFullDisk(descriptor)) return simulator::failing<ssize_t>(ENOSPC, -1);
    return nextFunction<"write", decltype(write)>()(descriptor, bytes, size);
}
std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, FILE* stream) {
    if (simulator::descriptorIsOnFullDisk(fileno(stream))) return simulator::failing<std::size_t>(ENOSPC, 0);
    return nextFunction<"fwrite", decltype(fwrite)>()(bytes, size, count, stream);
}

} // extern "C"
