#include "device/root.h"

#include "device/conditions.h"
#include "device/next_function.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <deque>

namespace simulator {
namespace {

// Replaced as a whole, never changed or freed: other threads may be reading it.
std::atomic<const std::string*> mounted = nullptr;

bool isBelow(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

// Everything of a device that this machine's own files do not need.
bool belongsToDevice(std::string_view path) {
    constexpr std::string_view folders[] = {"/var", "/private/var", "/Library", "/System", "/Applications"};
    return std::ranges::any_of(folders, [&](std::string_view folder) { return isBelow(path, folder); });
}

// Both spellings of a path on the device mean the same file.
std::string_view withoutPrivate(std::string_view path) {
    return path.starts_with("/private/var") ? path.substr(std::strlen("/private")) : path;
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

// A path argument, resolved. Where a fault says that the file is missing, it resolves to where nothing is.
class Path {
  public:
    Path(const char* given) : m_given(given) {
        if (given == nullptr || *given == '\0' || mounted.load() == nullptr) return;
        m_resolved = linuxPath(given);
        m_devicePath = devicePathOf(std::filesystem::absolute(m_resolved).native());
        if (!m_devicePath.empty() && lists(currentConditions()->faults.missing, m_devicePath))
            m_resolved = *mounted.load() + "/root/nowhere/nothing";
    }

    operator const char*() const { return m_resolved.empty() ? m_given : m_resolved.c_str(); }
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
    std::error_code ignored; // one of another kind than a file is nowhere
    const auto file = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), ignored);
    return !devicePathOf(file.native()).empty();
}

template <class Result> Result failing(int error, Result result) {
    errno = error;
    return result;
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

// The C library's functions as far as Foundation calls them, with the path resolved first. Exceptions of the
// standard library end the process here, as these functions cannot report them.
using simulator::diskIsFull;
using simulator::failing;
using simulator::Path;

extern "C" {

int open(const char* given, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    const Path path(given);
    if (path.isUnreadable() && (flags & O_ACCMODE) != O_WRONLY) return failing(EACCES, -1);
    return NEXT_FUNCTION(open)(path, flags, mode);
}

FILE* fopen(const char* given, const char* mode) {
    const Path path(given);
    if (path.isUnreadable() && std::strpbrk(mode, "r+") != nullptr) return failing<FILE*>(EACCES, nullptr);
    return NEXT_FUNCTION(fopen)(path, mode);
}

// The template is the caller's to read afterwards: the letters chosen for its end are copied back.
int mkstemp(char* given) {
    std::string resolved(static_cast<const char*>(Path(given)));
    const int descriptor = NEXT_FUNCTION(mkstemp)(resolved.data());
    const std::size_t chosen = std::min<std::size_t>(std::strlen(given), 6);
    resolved.copy(given + std::strlen(given) - chosen, chosen, resolved.size() - chosen);
    return descriptor;
}

int access(const char* given, int mode) noexcept {
    const Path path(given);
    if ((mode & R_OK) != 0 && path.isUnreadable()) return failing(EACCES, -1);
    return NEXT_FUNCTION(access)(path, mode);
}

int mkdir(const char* given, mode_t mode) noexcept {
    const Path path(given);
    if (path.isOnDevice() && diskIsFull()) return failing(ENOSPC, -1);
    return NEXT_FUNCTION(mkdir)(path, mode);
}

// clang-format off
int stat(const char* path, struct stat* result) noexcept { return NEXT_FUNCTION(stat)(Path(path), result); }
int lstat(const char* path, struct stat* result) noexcept { return NEXT_FUNCTION(lstat)(Path(path), result); }
int rmdir(const char* path) noexcept { return NEXT_FUNCTION(rmdir)(Path(path)); }
int unlink(const char* path) noexcept { return NEXT_FUNCTION(unlink)(Path(path)); }
int rename(const char* from, const char* to) noexcept { return NEXT_FUNCTION(rename)(Path(from), Path(to)); }
ssize_t readlink(const char* path, char* target, std::size_t size) noexcept { return NEXT_FUNCTION(readlink)(Path(path), target, size); }
int chmod(const char* path, mode_t mode) noexcept { return NEXT_FUNCTION(chmod)(Path(path), mode); }
int chown(const char* path, uid_t owner, gid_t group) noexcept { return NEXT_FUNCTION(chown)(Path(path), owner, group); }
int utimensat(int folder, const char* path, const struct timespec times[2], int flags) noexcept { return NEXT_FUNCTION(utimensat)(folder, Path(path), times, flags); }
DIR* opendir(const char* path) { return NEXT_FUNCTION(opendir)(Path(path)); }
// clang-format on

ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    if (simulator::descriptorIsOnFullDisk(descriptor)) return failing<ssize_t>(ENOSPC, -1);
    return NEXT_FUNCTION(write)(descriptor, bytes, size);
}

std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, FILE* stream) {
    if (simulator::descriptorIsOnFullDisk(fileno(stream))) return failing<std::size_t>(ENOSPC, 0);
    return NEXT_FUNCTION(fwrite)(bytes, size, count, stream);
}

} // extern "C"
